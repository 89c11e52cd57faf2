// zorvik-raport --raport NAME --format txt|rtf|pdf|csv [options]   (--help lists them)
// Writes a report with no window, through the program's own report code: the document is the
// one the report window shows.

#include <QGuiApplication>
#include <cstdio>

#include "reports/wiersz_raportu.h"

namespace {
// Qt's own notes (a missing runtime folder of the offscreen platform and the like) would mix with
// the runner's messages; only its critical ones are kept.
void komunikatQt(QtMsgType typ, const QMessageLogContext&, const QString& tekst) {
  if (typ == QtCriticalMsg || typ == QtFatalMsg)
    std::fprintf(stderr, "%s\n", tekst.toUtf8().constData());
}
}  // namespace

int main(int argc, char** argv) {
  qInstallMessageHandler(komunikatQt);
  // Fonts (the PDF, the charts' labels) need a GUI application; no screen is needed for it.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  QByteArray wyjscie;
  QString komunikat;
  const int kod = UruchomRaport(app.arguments().mid(1), &wyjscie, &komunikat);
  if (!wyjscie.isEmpty()) std::fwrite(wyjscie.constData(), 1, size_t(wyjscie.size()), stdout);
  if (!komunikat.isEmpty()) std::fprintf(stderr, "%s\n", komunikat.toUtf8().constData());
  return kod;
}
