// The calendar: the month grid at its edges, the planned sums of a day, the year's turn, today's
// colours, and the day menu's actions handed to the editors and browsers.

#include "planning/kalendarz.h"

#include <gtest/gtest.h>

#include <QFrame>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>

#include "common/magazyn_testowy.h"
#include "ledger/transakcje_pomoc.h"
#include "planning/frmKalendarz.h"
#include "store/dzis.h"
#include "store/tekst.h"
#include "ui/nawigacja_gui.h"
#include "ui/pasujliste_gui.h"

using namespace testy_wpisow;

namespace {
// The cells a month fills, first and last.
std::pair<int, int> komorki(const MiesiacKalendarza& m) {
  int pierwsza = -1, ostatnia = -1;
  for (int i = 0; i < KomorekKalendarza; ++i)
    if (m.Dzien(i)) {
      if (pierwsza < 0) pierwsza = i;
      ostatnia = i;
    }
  return {pierwsza, ostatnia};
}
}  // namespace

TEST(Kalendarz, GridEdgesAndYearTurn) {
  // March 2026 begins on a Sunday and has 31 days: the last of the 37 cells holds the 31st.
  const MiesiacKalendarza marzec = UkladMiesiaca(3, 2026);
  EXPECT_EQ(marzec.pierwszyDzien, 7);
  EXPECT_EQ(komorki(marzec), std::pair(6, 36));
  EXPECT_EQ(marzec.Dzien(36), 31);
  EXPECT_EQ(marzec.Data(6), QDate(2026, 3, 1));
  EXPECT_FALSE(marzec.Data(5).isValid());
  // February 2021 begins on a Monday: cells 0 to 27. Leap February 2028 (a Tuesday): 1 to 29.
  EXPECT_EQ(komorki(UkladMiesiaca(2, 2021)), std::pair(0, 27));
  const MiesiacKalendarza luty = UkladMiesiaca(2, 2028);
  EXPECT_EQ(luty.ileDni, 29);
  EXPECT_EQ(komorki(luty), std::pair(1, 29));
  EXPECT_EQ(luty.Data(29), QDate(2028, 2, 29));
  EXPECT_EQ(komorki(UkladMiesiaca(2, 2100)).second - komorki(UkladMiesiaca(2, 2100)).first, 27);

  int m = 12, r = 2026;
  NastepnyMiesiac(m, r);
  EXPECT_EQ(std::pair(m, r), std::pair(1, 2027));
  PoprzedniMiesiac(m, r);
  PoprzedniMiesiac(m, r);
  EXPECT_EQ(std::pair(m, r), std::pair(11, 2026));
  m = 1;
  PoprzedniMiesiac(m, r);
  EXPECT_EQ(std::pair(m, r), std::pair(12, 2025));

  // Today's cell is the system date's, only in its own month.
  EXPECT_EQ(KomorkaDzisiaj(marzec, QDate(2026, 3, 31)), 36);
  EXPECT_EQ(KomorkaDzisiaj(marzec, QDate(2027, 3, 31)), -1);
}

// A day's count and sums come from the planned tables only; a day whose rows sum to 0 shows no
// count; long amounts show whole.
TEST(Kalendarz, PlannedSumsOfADay) {
  MagazynTestowy m;
  const qint64 konto = KontoT(QStringLiteral("Portfel"), 1),
               bank = KontoT(QStringLiteral("Bank"), 2);
  KategoriaT(QStringLiteral("a"), 1, QStringLiteral("Pensja"));
  KategoriaT(QStringLiteral("a"), 2, QStringLiteral("Dom"));
  const QString z = QStringLiteral("zaplanowane"), zw = QStringLiteral("zaplanowanewewnetrzne");
  WpisT(z, 1, 100.10, QStringLiteral("2026-12-05"), konto, QStringLiteral("a"));
  WpisT(z, 2, 0.20, QStringLiteral("2026-12-05"), konto, QStringLiteral("a"));
  WpisT(z, 2, 999999999999.99, QStringLiteral("2026-12-05"), konto, QStringLiteral("a"));
  TransferT(zw, 50, QStringLiteral("2026-12-05"), konto, bank);
  WpisT(z, 2, 0, QStringLiteral("2026-12-06"), konto, QStringLiteral("a"));
  WpisT(QStringLiteral("transakcje"), 2, 7, QStringLiteral("2026-12-07"), konto,
        QStringLiteral("a"));
  WpisT(z, 2, 3, QStringLiteral("2027-12-07"), konto, QStringLiteral("a"));
  TransferT(zw, 0.01, QStringLiteral("2026-12-31"), konto, bank);

  const MiesiacKalendarza g = CzytajMiesiac(12, 2026);
  EXPECT_EQ(g.dni[5].ile, 4);
  EXPECT_EQ(g.dni[5].przychod, 10010);
  EXPECT_EQ(g.dni[5].wydatek, 99999999999999LL + 20);
  EXPECT_EQ(g.dni[5].wewnetrzne, 5000);
  EXPECT_EQ(g.dni[6].ile, 1);
  EXPECT_FALSE(g.dni[6].CosZaplanowano());
  EXPECT_EQ(g.dni[7].ile, 0);
  EXPECT_EQ(g.dni[31].wewnetrzne, 1);

  UstawDzis(QDate(2026, 12, 15));
  frmKalendarz f;
  f.show();
  const int c5 = g.Komorka(5), c6 = g.Komorka(6), c31 = g.Komorka(31);
  const auto lbl = [&](const char* n, int i) {
    return f.findChild<QLabel*>(QStringLiteral("%1(%2)").arg(QLatin1String(n)).arg(i));
  };
  EXPECT_EQ(lbl("lblDzien", c5)->text(), QStringLiteral("5"));
  EXPECT_EQ(lbl("lblIleZaplanowanych", c5)->text(), QStringLiteral("4"));
  EXPECT_EQ(lbl("lblPrzychod", c5)->text(), FormatKwoty(100.10).trimmed());
  EXPECT_EQ(lbl("lblWydatki", c5)->text(), FormatKwoty(1000000000000.19).trimmed());
  EXPECT_EQ(lbl("lblWewnetrzne", c5)->text(), FormatKwoty(50).trimmed());
  EXPECT_TRUE(lbl("imgWew", c5)->isVisible());
  EXPECT_TRUE(lbl("lblIleZaplanowanych", c6)->text().isEmpty());
  EXPECT_FALSE(lbl("imgWyd", c6)->isVisible());
  EXPECT_FALSE(lbl("lblPrzychod", c31)->isVisible());
  EXPECT_TRUE(lbl("lblWewnetrzne", c31)->isVisible());
  // December 2026 begins on a Tuesday: cell 0 stays empty, cell 31 holds the 31st.
  EXPECT_FALSE(f.findChild<QFrame*>(QStringLiteral("picDzien(0)"))->isVisible());
  EXPECT_TRUE(f.findChild<QFrame*>(QStringLiteral("picDzien(31)"))->isVisible());
  EXPECT_FALSE(f.findChild<QFrame*>(QStringLiteral("picDzien(32)"))->isVisible());
}

// ">>" and "<<" across the year's end, with today's colours following the system's date (not
// the working date) from month to month.
TEST(Kalendarz, StepsAndTodaysColours) {
  MagazynTestowy m;
  sesja.pubUstawienia.listajeden = QStringLiteral("16777215");      // white
  sesja.pubUstawienia.etykietyaktywne = QStringLiteral("8454143");  // #FFFF80
  UstawDzis(QDate(2026, 12, 24));
  sesja.pubFiltrCzasowy.pozycja = QDate(2026, 5, 1);
  frmKalendarz f;
  f.show();
  const auto tlo = [&](int i) {
    return f.findChild<QFrame*>(QStringLiteral("picDzien(%1)").arg(i))
        ->palette()
        .color(QPalette::Window);
  };
  const QColor dzisiaj = KolorUstawienia(sesja.pubUstawienia.etykietyaktywne);
  const QColor zwykly = KolorUstawienia(sesja.pubUstawienia.listajeden);
  const auto podswietlone = [&] {
    QList<int> w;
    for (int i = 0; i < KomorekKalendarza; ++i)
      if (tlo(i) == dzisiaj) w << i;
    return w;
  };
  const int grudzien24 = 24 + 2 - 2;  // December 2026 begins on a Tuesday
  EXPECT_EQ(std::pair(f.miesiac(), f.rok()), std::pair(12, 2026));
  EXPECT_EQ(podswietlone(), QList<int>{grudzien24});
  EXPECT_EQ(f.findChild<QLabel*>(QStringLiteral("lblWybranyMiesiac"))->text(),
            NazwaMiesiaca(12) + QStringLiteral(" 2026"));

  auto* nastepny = f.findChild<QPushButton*>(QStringLiteral("cmdNastepnyMiesiac"));
  auto* poprzedni = f.findChild<QPushButton*>(QStringLiteral("cmdPoprzedniMiesiac"));
  nastepny->click();
  EXPECT_EQ(std::pair(f.miesiac(), f.rok()), std::pair(1, 2027));
  EXPECT_TRUE(podswietlone().isEmpty());
  EXPECT_EQ(tlo(grudzien24), zwykly);
  EXPECT_EQ(f.findChild<QLabel*>(QStringLiteral("lblWybranyMiesiac"))->text(),
            NazwaMiesiaca(1) + QStringLiteral(" 2027"));
  poprzedni->click();
  EXPECT_EQ(podswietlone(), QList<int>{grudzien24});
  // A new day moves the highlight with it.
  UstawDzis(QDate(2027, 1, 1));
  nastepny->click();
  EXPECT_EQ(podswietlone(), QList<int>{4});  // 1 January 2027 is a Friday
  for (int i = 0; i < 13; ++i) poprzedni->click();
  EXPECT_EQ(std::pair(f.miesiac(), f.rok()), std::pair(12, 2025));
  EXPECT_TRUE(podswietlone().isEmpty());
}

// The day menu: a right click on any part of a cell opens it for that day; each item hands the
// day to its screen through the session and the calendar redraws after it.
TEST(Kalendarz, DayMenuHandsTheDayOn) {
  MagazynTestowy m;
  const qint64 konto = KontoT(QStringLiteral("Portfel"), 1);
  KategoriaT(QStringLiteral("a"), 2, QStringLiteral("Dom"));
  UstawDzis(QDate(2026, 11, 22));
  sesja.pubFiltrCzasowy.rodzaj = 3;
  const QDate od = sesja.pubFiltrCzasowy.od, do_ = sesja.pubFiltrCzasowy.do_;

  QStringList wywolane;
  Nawigacja::Ekran dawne[4];
  const QString ekrany[4] = {
      QStringLiteral("frmEdycjaTransakcji"), QStringLiteral("frmEdycjaTransakcjiWewnetrznej"),
      QStringLiteral("frmPrzegladTransakcji"), QStringLiteral("frmPrzegladTransakcjiWewnetrznych")};
  dawne[0] = Nawigacja::Zarejestruj(ekrany[0], [&](QWidget*) {
    wywolane << QStringLiteral("wpis %1 %2 %3 %4")
                    .arg(sesja.pubTryb)
                    .arg(sesja.pubTransakcja.rodzaj)
                    .arg(sesja.pubKategoria.rodzaj)
                    .arg(sesja.pubPrzedefiniowanaData.toString(Qt::ISODate));
    // The editor saves a planned expense on that day.
    WpisT(QStringLiteral("zaplanowane"), 2, 12.34,
          sesja.pubPrzedefiniowanaData.toString(Qt::ISODate), konto, QStringLiteral("a"));
  });
  dawne[1] = Nawigacja::Zarejestruj(ekrany[1], [&](QWidget*) {
    wywolane << QStringLiteral("transfer %1 %2 %3")
                    .arg(sesja.pubTryb)
                    .arg(sesja.pubTransfer)
                    .arg(sesja.pubPrzedefiniowanaData.toString(Qt::ISODate));
  });
  for (int i = 2; i < 4; ++i)
    dawne[i] = Nawigacja::Zarejestruj(ekrany[i], [&, i](QWidget*) {
      const FiltrCzasowyRekord& f = sesja.pubFiltrCzasowy;
      wywolane << QStringLiteral("%1 %2 %3 %4 [%5]")
                      .arg(i == 2 ? QStringLiteral("wpisy") : QStringLiteral("transfery"))
                      .arg(f.rodzaj)
                      .arg(f.od.toString(Qt::ISODate), f.do_.toString(Qt::ISODate))
                      .arg(i == 2 ? sesja.pubFiltrTransakcji : sesja.pubFiltrTransferow);
    });

  {
    frmKalendarz f;
    f.show();
    const MiesiacKalendarza& g = f.Miesiac();
    int wybor = 0;
    f.pokazMenu = [&](QMenu* menu, const QPoint&) { return menu->actions().value(wybor); };
    const auto prawyKlik = [&](const char* czesc, int dzien, int opcja) {
      wybor = opcja;
      QWidget* w = f.findChild<QWidget*>(
          QStringLiteral("%1(%2)").arg(QLatin1String(czesc)).arg(g.Komorka(dzien)));
      QMouseEvent e(QEvent::MouseButtonPress, QPointF(2, 2), w->mapToGlobal(QPointF(2, 2)),
                    Qt::RightButton, Qt::RightButton, Qt::NoModifier);
      QApplication::sendEvent(w, &e);
    };
    prawyKlik("lblDzien", 9, 1);
    EXPECT_EQ(f.wybranyDzien(), g.Komorka(9));
    EXPECT_EQ(wywolane.value(0), QStringLiteral("wpis 1 2 2 2026-11-09"));
    EXPECT_FALSE(sesja.pubPrzedefiniowanaData.isValid());
    // Redrawn: the new plan shows on its day.
    EXPECT_EQ(f.findChild<QLabel*>(QStringLiteral("lblWydatki(%1)").arg(g.Komorka(9)))->text(),
              FormatKwoty(12.34).trimmed());
    prawyKlik("picDzien", 30, 0);
    EXPECT_EQ(wywolane.value(1), QStringLiteral("wpis 1 1 1 2026-11-30"));
    prawyKlik("imgWyd", 9, 2);
    EXPECT_EQ(wywolane.value(2), QStringLiteral("transfer 1 0 2026-11-09"));
    prawyKlik("lblIleZaplanowanych", 1, 3);
    EXPECT_EQ(wywolane.value(3), QStringLiteral("wpisy 6 2026-11-01 2026-11-01 [ AND 1=1 ]"));
    prawyKlik("lblDzien", 22, 4);
    EXPECT_EQ(wywolane.value(4), QStringLiteral("transfery 6 2026-11-22 2026-11-22 [ AND 1=1 ]"));
    // The range and the filter are back as they were.
    EXPECT_EQ(sesja.pubFiltrCzasowy.rodzaj, 3);
    EXPECT_EQ(std::pair(sesja.pubFiltrCzasowy.od, sesja.pubFiltrCzasowy.do_), std::pair(od, do_));
    // A double click lists the day's planned entries.
    QWidget* w = f.findChild<QWidget*>(QStringLiteral("lblDzien(%1)").arg(g.Komorka(2)));
    QMouseEvent dwa(QEvent::MouseButtonDblClick, QPointF(2, 2), w->mapToGlobal(QPointF(2, 2)),
                    Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(w, &dwa);
    EXPECT_EQ(wywolane.value(5), QStringLiteral("wpisy 6 2026-11-02 2026-11-02 [ AND 1=1 ]"));
    EXPECT_EQ(wywolane.size(), 6);
  }
  for (int i = 0; i < 4; ++i) Nawigacja::Zarejestruj(ekrany[i], std::move(dawne[i]));
}
