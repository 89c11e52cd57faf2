#include "reports/raporty_galeria_gui.h"

#include <QDir>
#include <QLabel>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "reports/frmRaport.h"
#include "reports/zapis.h"
#include "store/baza.h"
#include "store/dziennik.h"
#include "store/filtr.h"
#include "store/napis.h"
#include "store/session.h"

namespace {
void ustawRaport(const QString& ekran) {
  sesja.pubFiltrCzasowy.rodzaj = 3;
  sesja.pubOkres = FiltrCzasowy(sesja.pubFiltrCzasowy);
  sesja.pubRaportDetaliczny = ekran == QLatin1String("frmRaportKategorii");
  sesja.pubWezelKont = QStringLiteral("R");
  sesja.pubKategoria.identyfikator = QStringLiteral("Root");
  sesja.pubKategoria.rodzaj = 2;
  sesja.pubKontrahent.id = 0;
  sesja.pubTryb = 2;
  sesja.pubZapytanieRaportu.clear();
  sesja.pubFiltrTransakcji.clear();
  sesja.pubFiltrTransferow.clear();
}
}  // namespace

std::unique_ptr<QWidget> GaleriaRaportu(const QString& ekran, bool wTrakcie) {
  ustawRaport(ekran);
  auto okno = std::make_unique<frmRaport>(*ZnajdzFormularz(ekran));
  if (!wTrakcie) {
    okno->TworzRaport();
    return okno;
  }
  // The window as it stands at the third account of a kind, taken while the report goes on.
  okno->setAttribute(Qt::WA_DontShowOnScreen);
  okno->show();
  QPixmap obraz;
  okno->poKroku = [&](int krok) {
    if (krok == 3 && obraz.isNull()) obraz = okno->grab();
  };
  okno->TworzRaport();
  okno->hide();
  auto zdjecie = std::make_unique<QLabel>();
  zdjecie->setPixmap(obraz);
  zdjecie->setWindowTitle(okno->windowTitle());
  zdjecie->setWindowIcon(okno->windowIcon());
  zdjecie->resize(obraz.size());
  return zdjecie;
}

std::unique_ptr<QWidget> GaleriaPdfRaportu(const QString& ekran) {
  const QString pdftoppm = QStandardPaths::findExecutable(QStringLiteral("pdftoppm"));
  if (pdftoppm.isEmpty()) {
    ZapiszLog(
        QStringLiteral("gallery: pdftoppm is missing, the PDF page of %1 is left out").arg(ekran));
    return nullptr;
  }
  ustawRaport(ekran);
  const FormularzRaportu& f = *ZnajdzFormularz(ekran);
  Raport r;
  TworzRaport(f, r);
  QTemporaryDir folder;
  const QString pdf = QDir(folder.path()).filePath(QStringLiteral("raport.pdf"));
  const QString png = QDir(folder.path()).filePath(QStringLiteral("strona"));
  QString blad;
  if (!ZapiszRaport(r.dok, pdf, FormatZapisu::Pdf, &blad) ||
      QProcess::execute(pdftoppm,
                        {QStringLiteral("-png"), QStringLiteral("-r"), QStringLiteral("80"),
                         QStringLiteral("-f"), QStringLiteral("1"), QStringLiteral("-l"),
                         QStringLiteral("1"), QStringLiteral("-singlefile"), pdf, png}) != 0) {
    ZapiszLog(QStringLiteral("gallery: the PDF page of %1 was not made %2").arg(ekran, blad));
    return nullptr;
  }
  const QPixmap strona(png + QStringLiteral(".png"));
  if (strona.isNull()) return nullptr;
  auto obraz = std::make_unique<QLabel>();
  obraz->setPixmap(strona);
  obraz->setWindowTitle(Napis(QLatin1String(f.tytul)));
  obraz->resize(strona.size());
  return obraz;
}
