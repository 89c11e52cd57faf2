#include "reports/raporty_galeria_gui.h"

#include <QLabel>

#include "reports/frmRaport.h"
#include "store/baza.h"
#include "store/filtr.h"
#include "store/session.h"

std::unique_ptr<QWidget> GaleriaRaportu(const QString& ekran, bool wTrakcie) {
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
