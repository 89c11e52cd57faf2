// Zorvik: the program. The start-up steps live in the screens' library (setup/start_gui); this
// file reads the command line, installs the message dialog and runs the event loop.

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QTemporaryDir>
#include <QTranslator>
#include <cstdio>

#include "budowa.h"
#include "store/MsgBoxModule.h"
#include "ui/frmMsgBox.h"
#include "app/ekrany_gui.h"
#include "app/galeria_gui.h"
#include "imports/kopie.h"
#include "ui/obrazki_gui.h"
#include "setup/frmPomoc.h"
#include "setup/kolorowanie_gui.h"
#include "setup/start_gui.h"
#include "store/baza.h"
#include "store/dzis.h"
#include "store/session.h"

namespace {
// The gallery runs on the store given by --dane, or on a copy of the delivered store filled
// with a small generated sample, with a fixed today so that the pictures repeat.
int galeria(const ParametryStartu& p) {
  QTemporaryDir tymczasowy;
  QString folder = p.folderDanych;
  if (folder.isEmpty()) {
    folder = tymczasowy.path();
    const QString plik = QDir(folder).filePath(QStringLiteral("money.fns"));
    const QString dostarczony =
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("dane/money.fns"));
    QString blad;
    const bool jest = QFile::exists(dostarczony)
                          ? QFile::copy(dostarczony, plik)
                          : ZbudujBaze(QStringLiteral(ZORVIK_DATA_DIR), plik, &blad);
    QFile(plik).setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    RozmiarProbki r = RozmiarDlaWpisow(2000);
    r.dzienKoncowy = QStringLiteral("2026-11-22");  // executed entries end on the gallery's today
    if (!jest || !GenerujProbke(plik, r, &blad)) {
      std::fprintf(stderr, "zorvik: no store for the gallery: %s\n", qPrintable(blad));
      return 1;
    }
  }
  UstawFolderDanych(folder);
  UstawDzis(QDate(2026, 11, 22));  // the sample's last executed day
  if (!OtworzBaze()) {
    std::fprintf(stderr, "zorvik: cannot open %s\n", qPrintable(PlikBazy()));
    return 1;
  }
  QStringList zapisane;
  QString blad;
  const bool ok = ZapiszGalerie(p.galeria, &zapisane, &blad);
  for (const QString& plik : zapisane) std::printf("%s\n", qPrintable(plik));
  if (!ok) std::fprintf(stderr, "zorvik: %s\n", qPrintable(blad));
  ZamknijBaze();
  return ok ? 0 : 1;
}
}  // namespace

int main(int argc, char** argv) {
  QStringList argumenty;
  for (int i = 1; i < argc; ++i) argumenty << QString::fromLocal8Bit(argv[i]);
  const ParametryStartu p = CzytajWierszPolecen(argumenty);
  if (!p.blad.isEmpty()) {
    std::fprintf(stderr,
                 "zorvik: %s\nusage: zorvik [--edition pl|en] [--dane DIR] [--gallery DIR] [a]\n",
                 qPrintable(p.blad));
    return 2;
  }

  // The reminder run shows no window: it needs no window system.
  if (p.przypomnienie) {
    QCoreApplication app(argc, argv);
    const Start s = Main(p);
    ZamknijBaze();
    return s.kodWyjscia;
  }

  // The gallery draws into images only: it needs no display, and looks the same on any machine.
  if (!p.galeria.isEmpty() && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Zorvik"));
  QApplication::setWindowIcon(IkonaProgramu());
  ZarejestrujEkrany();
  WlaczKolorowanieOkien();
  WlaczPomocF1();
  HostOkienkowy host;
  UstawHostKomunikatow(&host);
  // Qt's own dialogs (files, printing) speak the edition's language too, when the system has
  // Qt's Polish texts.
  QTranslator tekstyQt;
  if ((p.jezyk ? p.jezyk : JezykSystemu()) == 1 &&
      tekstyQt.load(QStringLiteral("qtbase_pl"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(&tekstyQt);

  int kod = 0;
  if (!p.galeria.isEmpty()) {
    sesja.pubJezyk = p.jezyk ? p.jezyk : JezykSystemu();
    kod = galeria(p);
  } else {
    const Start s = Main(p);
    kod = s.wynik == WynikStartu::Dziala ? QApplication::exec() : s.kodWyjscia;
    // The end of a run that used the store leaves a copy of it behind.
    CzekajNaKopie();
    if (s.wynik == WynikStartu::Dziala && pubBaza().Otwarta()) ZrobKopie(PowodKopii::Koniec);
  }
  UstawHostKomunikatow(nullptr);
  ZamknijBaze();
  return kod;
}
