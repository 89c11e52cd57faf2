#include "planning/planowanie_galeria_gui.h"

#include <QLabel>
#include <QMenu>
#include <QPainter>

#include "planning/frmKalendarz.h"
#include "planning/frmKategorieOszczednosci.h"
#include "planning/raport_symulacji.h"
#include "planning/symulacja.h"
#include "reports/frmRaport.h"
#include "store/baza.h"
#include "store/dzis.h"

namespace {

// Runs zbuduj inside a change of the store that is then rolled back.
template <typename F>
auto naChwile(F zbuduj) {
  decltype(zbuduj()) wynik;
  pubBaza().Transakcja([&] {
    wynik = zbuduj();
    return false;
  });
  return wynik;
}

// Plans on a dozen days of today's month: income, expense and transfers, some days with all.
void planyMiesiaca() {
  Baza& b = pubBaza();
  const QDate dzis = Dzis();
  const qint64 konto =
      b.Czytaj(QStringLiteral("SELECT TOP 1 id FROM konta ORDER BY id")).Pole(0).toLongLong();
  const qint64 drugie =
      b.Czytaj(QStringLiteral("SELECT TOP 1 id FROM konta ORDER BY id DESC")).Pole(0).toLongLong();
  const int dni[] = {1, 3, 4, 7, 10, 10, 12, 15, 15, 18, 20, 22, 25, 27, 28, 30};
  int n = 0;
  for (int d : dni) {
    const QString data =
        QDate(dzis.year(), dzis.month(), std::min(d, dzis.daysInMonth())).toString(Qt::ISODate);
    const int rodzaj = n % 3 == 0 ? 1 : 2;
    const double kwota = 37.5 + n * 113.25;
    b.Wykonaj(QStringLiteral("INSERT INTO zaplanowane (data,rodzaj,przychod,wydatek,opis,kategoria,"
                             "konto,kontrahent) VALUES ('%1',%2,'%3','%4','','a',%5,0)")
                  .arg(data)
                  .arg(rodzaj)
                  .arg(rodzaj == 1 ? kwota : 0, 0, 'f', 2)
                  .arg(rodzaj == 2 ? kwota : 0, 0, 'f', 2)
                  .arg(konto));
    if (n % 4 == 1)
      b.Wykonaj(QStringLiteral("INSERT INTO zaplanowanewewnetrzne (data,kwota,opis,zkonta,nakonto) "
                               "VALUES ('%1','250.00','',%2,%3)")
                    .arg(data)
                    .arg(konto)
                    .arg(drugie));
    ++n;
  }
}

std::unique_ptr<frmKalendarz> kalendarz() {
  return naChwile([] {
    planyMiesiaca();
    auto f = std::make_unique<frmKalendarz>();
    f->resize(1060, 640);
    return f;
  });
}

// The simulation with a cut on the first main category and a rise on the last leaf of another.
std::unique_ptr<frmKategorieOszczednosci> symulacja() {
  return naChwile([] {
    const Symulacja s = PrzeliczSymulacje(2, false, Dzis());
    UstawOszczednosc(s, QStringLiteral("a"), QStringLiteral("-15"), 2);
    UstawOszczednosc(s, QStringLiteral("b"), QStringLiteral("10"), 2);
    auto f = std::make_unique<frmKategorieOszczednosci>();
    f->Wybierz(QStringLiteral("a"));
    return f;
  });
}

}  // namespace

std::unique_ptr<QWidget> GaleriaKalendarza() { return kalendarz(); }

std::unique_ptr<QWidget> GaleriaMenuKalendarza() {
  std::unique_ptr<frmKalendarz> f = kalendarz();
  f->setAttribute(Qt::WA_DontShowOnScreen);
  f->show();
  QPixmap obraz = f->grab();
  // The menu as it opens under the pointer on the 15th.
  const int komorka = f->Miesiac().Komorka(15);
  QWidget* dzien = f->findChild<QWidget*>(QStringLiteral("picDzien(%1)").arg(komorka));
  QMenu* menu = f->Menu();
  menu->ensurePolished();
  menu->resize(menu->sizeHint());
  const QPixmap obrazMenu = menu->grab();
  QPainter g(&obraz);
  const QPoint gdzie = dzien
                           ? dzien->mapTo(f.get(), QPoint(dzien->width() / 2, dzien->height() / 2))
                           : QPoint(100, 100);
  g.drawPixmap(std::min(gdzie.x(), obraz.width() - obrazMenu.width() - 4), gdzie.y(), obrazMenu);
  g.end();
  f->hide();
  auto plansza = std::make_unique<QLabel>();
  plansza->setPixmap(obraz);
  plansza->setWindowTitle(f->windowTitle());
  plansza->resize(obraz.size());
  return plansza;
}

std::unique_ptr<QWidget> GaleriaSymulacji() { return symulacja(); }

std::unique_ptr<QWidget> GaleriaRaportuSymulacji() {
  std::unique_ptr<frmKategorieOszczednosci> s = symulacja();
  s->Wybierz(QStringLiteral("Root"));
  UstawSymulacjeRaportu(&s->symulacja(), s->Wybrany());
  auto okno = std::make_unique<frmRaport>(FormularzRaportuSymulacji());
  okno->TworzRaport();
  UstawSymulacjeRaportu(nullptr, {});
  return okno;
}
