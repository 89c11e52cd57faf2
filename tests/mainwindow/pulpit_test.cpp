// The dashboard driven as a user drives it: its four lists, the planned sums and their alarms,
// the captions that open the browsers, the balance panel, deletes, edits and popup menus.

#include <gtest/gtest.h>

#include <QAction>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QToolButton>

#include "common/magazyn_testowy.h"
#include "mainwindow/listapulpitu_gui.h"
#include "mainwindow/pulpit.h"
#include "pulpit_pomoc.h"
#include "store/dzis.h"
#include "store/kwota.h"
#include "store/napis.h"
#include "store/start.h"
#include "store/tekst.h"

using namespace testy_pulpitu;

namespace {
QString napis(int n) { return Napis(QStringLiteral("frmMain%1").arg(n)); }

void Czekaj(int ms) {
  QElapsedTimer t;
  t.start();
  while (t.elapsed() < ms) QApplication::processEvents(QEventLoop::AllEvents, 5);
}

void Klik(QWidget* w) {
  ASSERT_NE(w, nullptr);
  const QPointF p(w->width() / 2.0, w->height() / 2.0);
  QMouseEvent nacisk(QEvent::MouseButtonPress, p, w->mapToGlobal(p), Qt::LeftButton,
                     Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(w, &nacisk);
  QMouseEvent puszczenie(QEvent::MouseButtonRelease, p, w->mapToGlobal(p), Qt::LeftButton,
                         Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(w, &puszczenie);
}

void Klawisz(QWidget* w, int klawisz) {
  QKeyEvent e(QEvent::KeyPress, klawisz, Qt::NoModifier);
  QApplication::sendEvent(w, &e);
}

// The right button on a row: the row is selected and the list's menu opens.
QMenu* Menu(frmMain& f, QTreeWidget* l, int wiersz) {
  const QPoint p = l->visualItemRect(l->topLevelItem(wiersz)).center();
  QContextMenuEvent e(QContextMenuEvent::Mouse, p, l->viewport()->mapToGlobal(p));
  QApplication::sendEvent(l->viewport(), &e);
  for (int i = 0; i < 4; ++i)
    if (f.Lista(i)->Lista() == l) return f.Lista(i)->Menu();
  return nullptr;
}

// Accounts of two kinds, the two categories and a counterparty every test starts from.
struct Dane {
  qint64 gotowka, bank, karta, kontrahent;
  Dane() {
    gotowka = Konto(QStringLiteral("Portfel"), 1, 100);
    bank = Konto(QStringLiteral("Konto w banku"), 2, 1000);
    karta = Konto(QStringLiteral("Karta Żółta"), 3);
    Kategoria(QStringLiteral("A"), 1, QStringLiteral("Pensja"));
    Kategoria(QStringLiteral("B"), 2, QStringLiteral("Jedzenie"));
    kontrahent = Kontrahent(QStringLiteral("Łódź Sklep"));
  }
};
}  // namespace

// Ten newest entries by date and, within a day, by the higher id; the oldest planned entries
// first; planned transfers newest first. A deleted counterparty leaves an empty cell, a deleted
// account takes its rows away. A write anywhere refills the list at once.
TEST(Pulpit, ListsShowTheirRowsInTheirOrder) {
  MagazynTestowy m(1);
  WczytajSetup();
  Dane d;
  for (int i = 1; i <= 8; ++i)
    Wpis(QStringLiteral("transakcje"), d.bank, QStringLiteral("2026-11-0%1").arg(i), 0, i,
         QStringLiteral("e%1").arg(i));
  const qint64 klient = Kontrahent(QStringLiteral("O'Brien"));
  Wpis(QStringLiteral("transakcje"), d.bank, QStringLiteral("2026-11-20"), 0, 9, QStringLiteral("e9"));
  Wpis(QStringLiteral("transakcje"), d.bank, QStringLiteral("2026-11-20"), 1234567.5, 0,
       QStringLiteral("e10"), klient);
  Wpis(QStringLiteral("transakcje"), d.gotowka, QStringLiteral("2026-11-20"), 0, 11,
       QStringLiteral("e11"), d.kontrahent);
  const qint64 znikne = Konto(QStringLiteral("Zamknięte"), 2);
  Wpis(QStringLiteral("transakcje"), znikne, QStringLiteral("2026-11-21"), 0, 12, QStringLiteral("e12"));
  Zapisz(QStringLiteral("DELETE FROM konta WHERE id=%1").arg(znikne));
  Zapisz(QStringLiteral("DELETE FROM kontrahent WHERE id=%1").arg(klient));

  Wpis(QStringLiteral("zaplanowane"), d.bank, QStringLiteral("2026-12-01"), 0, 1, QStringLiteral("p4"));
  Wpis(QStringLiteral("zaplanowane"), d.bank, QStringLiteral("2026-11-23"), 0, 1, QStringLiteral("p2"));
  Wpis(QStringLiteral("zaplanowane"), d.bank, QStringLiteral("2026-11-23"), 0, 1, QStringLiteral("p3"));
  Wpis(QStringLiteral("zaplanowane"), d.bank, QStringLiteral("2026-11-25"), 0, 1, QStringLiteral("p1"));
  for (int i = 1; i <= 4; ++i)
    Transfer(QStringLiteral("zaplanowanewewnetrzne"), d.bank, d.gotowka,
             QStringLiteral("2026-12-0%1").arg(i), 10 * i, QStringLiteral("t%1").arg(i));
  Transfer(QStringLiteral("wewnetrzne"), d.bank, d.karta, QStringLiteral("2026-11-10"), 55.5,
           QStringLiteral("spłata"));

  frmMain f;
  QTreeWidget* wykonane = Lista(f, "lvwTransakcje");
  EXPECT_EQ(Kolumna(wykonane, 6), QStringList({"e11", "e10", "e9", "e8", "e7", "e6", "e5", "e4",
                                               "e3", "e2"}));
  EXPECT_EQ(wykonane->topLevelItem(0)->text(5), QStringLiteral("Łódź Sklep"));
  EXPECT_EQ(wykonane->topLevelItem(1)->text(5), QString()) << "the counterparty was deleted";
  EXPECT_EQ(wykonane->topLevelItem(1)->text(1), FormatKwoty(1234567.5));
  EXPECT_EQ(wykonane->topLevelItem(0)->text(1), FormatKwoty(0)) << "the zero column holds 0.00";
  EXPECT_EQ(wykonane->topLevelItem(0)->text(0), FormatDaty(QDate(2026, 11, 20), sesja.pubFormatDaty_ddpmmm));
  EXPECT_EQ(wykonane->topLevelItem(0)->textAlignment(2) & Qt::AlignRight, Qt::AlignRight);
  EXPECT_EQ(wykonane->topLevelItem(0)->text(3), QStringLiteral("Jedzenie"));
  EXPECT_EQ(wykonane->topLevelItem(0)->text(4), QStringLiteral("Portfel"));
  EXPECT_EQ(Kolumna(Lista(f, "lvwZaplanowane"), 6), QStringList({"p3", "p2", "p1"}));
  EXPECT_EQ(Kolumna(Lista(f, "lvwWewnetrzneZaplanowane"), 4), QStringList({"t4", "t3", "t2"}));
  QTreeWidget* transfery = Lista(f, "lvwWewnetrzne");
  ASSERT_EQ(transfery->topLevelItemCount(), 1);
  EXPECT_EQ(transfery->topLevelItem(0)->text(2), QStringLiteral("Konto w banku"));
  EXPECT_EQ(transfery->topLevelItem(0)->text(3), QStringLiteral("Karta Żółta"));
  EXPECT_EQ(transfery->topLevelItem(0)->text(1), FormatKwoty(55.5));
  // Rows alternate in the theme's two list colours.
  EXPECT_TRUE(wykonane->alternatingRowColors());
  EXPECT_EQ(wykonane->palette().color(QPalette::AlternateBase), QColor(0xDC, 0xFB, 0xA4));

  // A new entry shows at once, at the top.
  Wpis(QStringLiteral("transakcje"), d.gotowka, QStringLiteral("2026-11-22"), 0, 3, QStringLiteral("nowy"));
  EXPECT_EQ(Kolumna(wykonane, 6).value(0), QStringLiteral("nowy"));
  EXPECT_EQ(wykonane->topLevelItemCount(), 10);
  // A renamed account shows in every list.
  Zapisz(QStringLiteral("UPDATE konta SET nazwa='Bank Główny' WHERE id=%1").arg(d.bank));
  EXPECT_EQ(transfery->topLevelItem(0)->text(2), QStringLiteral("Bank Główny"));
  EXPECT_EQ(Lista(f, "lvwZaplanowane")->topLevelItem(0)->text(4), QStringLiteral("Bank Główny"));
}

// Today's plan is not late, yesterday's is: only an overdue sum above zero rings its alarm.
TEST(Pulpit, PlannedSumsAndAlarms) {
  MagazynTestowy m(1);
  WczytajSetup();
  Dane d;
  UstawDzis(QDate(2026, 11, 22));
  Wpis(QStringLiteral("zaplanowane"), d.bank, QStringLiteral("2026-11-22"), 100, 0, QStringLiteral("dziś"));
  Wpis(QStringLiteral("zaplanowane"), d.bank, QStringLiteral("2026-11-25"), 7.25, 0);
  const qint64 wczoraj =
      Wpis(QStringLiteral("zaplanowane"), d.bank, QStringLiteral("2026-11-21"), 0, 30.5, QStringLiteral("wczoraj"));
  Wpis(QStringLiteral("zaplanowane"), d.bank, QStringLiteral("2026-10-01"), 0, 999999999.99);

  frmMain f;
  f.show();
  EXPECT_EQ(Tekst(f, "lblZaplanowanePrzychody"), FormatKwoty(107.25));
  EXPECT_EQ(Tekst(f, "lblZaleglePrzychody"), FormatKwoty(0));
  EXPECT_EQ(Tekst(f, "lblZaplanowaneWydatki"), FormatKwoty(1000000030.49));
  EXPECT_EQ(Tekst(f, "lblZalegleWydatki"), FormatKwoty(1000000030.49));
  auto* alarmPrzychodow = f.findChild<QLabel*>(QStringLiteral("imgAlarmy(0)"));
  auto* alarmWydatkow = f.findChild<QLabel*>(QStringLiteral("imgAlarmy(1)"));
  EXPECT_FALSE(alarmPrzychodow->isVisible());
  EXPECT_TRUE(alarmWydatkow->isVisible());

  // The next day today's income is late.
  UstawDzis(QDate(2026, 11, 23));
  OdswiezMainZaplanowane();
  EXPECT_EQ(Tekst(f, "lblZaleglePrzychody"), FormatKwoty(100));
  EXPECT_TRUE(alarmPrzychodow->isVisible());

  // Deleting the overdue expenses by the Delete key puts their alarm out.
  QTreeWidget* plany = Lista(f, "lvwZaplanowane");
  m.host.odpowiedzi = {WynikTak, WynikTak};
  for (int i = 0; i < 2; ++i) {
    plany->setCurrentItem(plany->topLevelItem(0));
    Klawisz(plany, Qt::Key_Delete);
  }
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM zaplanowane WHERE id=%1").arg(wczoraj)), 0);
  EXPECT_EQ(Tekst(f, "lblZalegleWydatki"), FormatKwoty(0));
  EXPECT_FALSE(alarmWydatkow->isVisible());
}

// Each caption and picture hands the browser its mode, condition, title and period; the
// conditions select what the figure beside the caption counts. The planned sums' pictures put
// the filter, the condition and the range back afterwards.
TEST(Pulpit, CaptionsOpenTheBrowserWithTheirCondition) {
  MagazynTestowy m(1);
  WczytajSetup();
  Dane d;
  Wpis(QStringLiteral("transakcje"), d.gotowka, QStringLiteral("2026-11-05"), 10, 0, QStringLiteral("przychód got"));
  Wpis(QStringLiteral("transakcje"), d.bank, QStringLiteral("2026-11-06"), 0, 20, QStringLiteral("wydatek bank"));
  Wpis(QStringLiteral("transakcje"), d.bank, QStringLiteral("2026-11-07"), 30, 0, QStringLiteral("przychód bank"));
  Wpis(QStringLiteral("transakcje"), d.bank, QStringLiteral("2026-10-07"), 40, 0, QStringLiteral("październik"));
  Wpis(QStringLiteral("zaplanowane"), d.bank, QStringLiteral("2026-11-21"), 5, 0, QStringLiteral("zaległy"));
  Wpis(QStringLiteral("zaplanowane"), d.bank, QStringLiteral("2026-11-22"), 6, 0, QStringLiteral("dzisiejszy"));
  Wpis(QStringLiteral("zaplanowane"), d.bank, QStringLiteral("2000-12-31"), 7, 0, QStringLiteral("prastary"));
  Wpis(QStringLiteral("zaplanowane"), d.bank, QStringLiteral("2026-11-20"), 0, 8, QStringLiteral("zaległy wydatek"));

  std::vector<Wywolanie> wywolania;
  ZastepczyEkran przeglad(QStringLiteral("frmPrzegladTransakcji"),
                          [&](QWidget*) { wywolania.push_back(PrzegladTransakcji()); });
  sesja.pubFiltrCzasowy.rodzaj = 2;
  sesja.pubFiltrCzasowy.pozycja = QDate(2026, 11, 10);
  sesja.pubFiltrCzasowy.od = QDate(2026, 5, 1);
  sesja.pubFiltrCzasowy.do_ = QDate(2026, 5, 31);
  sesja.pubFiltrTransakcji = QStringLiteral(" AND 1=1");
  frmMain f;
  f.show();

  Klik(f.findChild<QWidget*>(QStringLiteral("lblTransakcje")));
  ASSERT_EQ(wywolania.size(), 1u);
  EXPECT_EQ(wywolania[0].tryb, 2);
  EXPECT_EQ(wywolania[0].fragment, QString());
  EXPECT_EQ(wywolania[0].tytul, napis(176));
  EXPECT_EQ(wywolania[0].rodzajFiltra, 2) << "the filter in force";
  EXPECT_EQ(wywolania[0].wierszTransakcji, 0);

  Klik(f.findChild<QWidget*>(QStringLiteral("picWiecej(1)")));
  ASSERT_EQ(wywolania.size(), 2u);
  EXPECT_EQ(wywolania[1].tryb, 1);

  // This month's income: the month of the working date.
  Klik(f.findChild<QWidget*>(QStringLiteral("lblStanObrotow(0)")));
  ASSERT_EQ(wywolania.size(), 3u);
  EXPECT_EQ(wywolania[2].rodzajFiltra, 3);
  EXPECT_EQ(wywolania[2].tytul, napis(178));
  EXPECT_EQ(wywolania[2].opisy, QStringList({"przychód bank", "przychód got"}));
  Klik(f.findChild<QWidget*>(QStringLiteral("lblStanObrotow(1)")));
  EXPECT_EQ(wywolania.back().opisy, QStringList({"wydatek bank"}));

  // The bank kind's entries of the month.
  Klik(f.findChild<QWidget*>(QStringLiteral("lblStanKont(1)")));
  EXPECT_EQ(wywolania.back().opisy, QStringList({"przychód bank", "wydatek bank"}));
  EXPECT_EQ(wywolania.back().tytul, napis(182) + QStringLiteral(" Bankowe"));
  Klik(f.findChild<QWidget*>(QStringLiteral("lblStanKont(0)")));
  EXPECT_EQ(wywolania.back().opisy, QStringList({"przychód got"}));

  // Overdue income: from 2001 to yesterday; everything put back afterwards.
  sesja.pubFiltrCzasowy.rodzaj = 5;
  sesja.pubFiltrTransakcji = QStringLiteral(" AND 1=1");
  Klik(f.findChild<QWidget*>(QStringLiteral("picZaplanowane(1)")));
  const Wywolanie& zalegle = wywolania.back();
  EXPECT_EQ(zalegle.tryb, 1);
  EXPECT_EQ(zalegle.rodzajFiltra, 6);
  EXPECT_EQ(zalegle.od, QDate(2001, 1, 1));
  EXPECT_EQ(zalegle.do_, QDate(2026, 11, 21));
  EXPECT_EQ(zalegle.tytul, napis(211));
  EXPECT_EQ(zalegle.opisy, QStringList({"zaległy"}));
  EXPECT_EQ(sesja.pubFiltrCzasowy.rodzaj, 5);
  EXPECT_EQ(sesja.pubFiltrCzasowy.od, QDate(2026, 5, 1));
  EXPECT_EQ(sesja.pubFiltrCzasowy.do_, QDate(2026, 5, 31));
  EXPECT_EQ(sesja.pubFiltrTransakcji, QStringLiteral(" AND 1=1"));

  // All planned expense, by its caption: every period.
  Klik(f.findChild<QWidget*>(QStringLiteral("lblLupka(2)")));
  EXPECT_EQ(wywolania.back().rodzajFiltra, 0);
  EXPECT_EQ(wywolania.back().opisy, QStringList({"zaległy wydatek"}));
  Klik(f.findChild<QWidget*>(QStringLiteral("lblLupka(0)")));
  EXPECT_EQ(wywolania.back().opisy, QStringList({"dzisiejszy", "zaległy", "prastary"}));

  // Transfers go to their own browser.
  int tryb = 0;
  QString tytul;
  ZastepczyEkran transfery(QStringLiteral("frmPrzegladTransakcjiWewnetrznych"), [&](QWidget*) {
    tryb = sesja.pubTryb;
    tytul = sesja.pubTytulTransferow;
  });
  Klik(f.findChild<QWidget*>(QStringLiteral("lblWewnetrzneZaplanowane")));
  EXPECT_EQ(tryb, 1);
  EXPECT_EQ(tytul, napis(177));
}

// The balance of each kind follows entries and transfers (a transfer within a kind changes
// nothing, one across kinds moves the amount and leaves the total), the month's figures follow
// the calendar month of today and not the filter, and deletes refill the balances.
TEST(Pulpit, BalancePanelFollowsEveryChange) {
  MagazynTestowy m(1);
  WczytajSetup();
  Dane d;
  const qint64 gotowka2 = Konto(QStringLiteral("Skarbonka"), 1);
  const qint64 wpis = Wpis(QStringLiteral("transakcje"), d.bank, QStringLiteral("2026-11-02"), 0, 20,
                           QStringLiteral("Zakupy \"na szybko\""));
  Wpis(QStringLiteral("transakcje"), d.gotowka, QStringLiteral("2026-11-03"), 50, 0);
  Wpis(QStringLiteral("transakcje"), d.bank, QStringLiteral("2026-10-30"), 10, 0);
  sesja.pubFiltrCzasowy.rodzaj = 3;
  sesja.pubFiltrCzasowy.pozycja = QDate(2026, 3, 15);
  frmMain f;
  f.show();
  EXPECT_EQ(Tekst(f, "lblKonto(1)"), FormatKwoty(150));
  EXPECT_EQ(Tekst(f, "lblKonto(2)"), FormatKwoty(990));
  EXPECT_EQ(Tekst(f, "lblKonto(3)"), FormatKwoty(0));
  EXPECT_EQ(Tekst(f, "lblSuma"), FormatKwoty(1140));
  EXPECT_EQ(Tekst(f, "lblPrzychody"), FormatKwoty(50));
  EXPECT_EQ(Tekst(f, "lblWydatki"), FormatKwoty(20));
  EXPECT_EQ(Tekst(f, "lblBilans"), FormatKwoty(30));
  EXPECT_EQ(Tekst(f, "lblMiesiac"), QStringLiteral(" Listopad"));
  EXPECT_EQ(f.findChild<QLabel*>(QStringLiteral("lblStanKont(2)"))->toolTip(),
            napis(200) + QStringLiteral(" Listopad )"));
  EXPECT_EQ(f.findChild<QLabel*>(QStringLiteral("lblStanObrotow(1)"))->toolTip(),
            napis(202) + QStringLiteral(" Listopad )"));

  Transfer(QStringLiteral("wewnetrzne"), d.gotowka, gotowka2, QStringLiteral("2026-11-04"), 30);
  EXPECT_EQ(Tekst(f, "lblKonto(1)"), FormatKwoty(150)) << "a transfer within a kind";
  Transfer(QStringLiteral("wewnetrzne"), d.gotowka, d.bank, QStringLiteral("2026-11-04"), 40);
  EXPECT_EQ(Tekst(f, "lblKonto(1)"), FormatKwoty(110));
  EXPECT_EQ(Tekst(f, "lblKonto(2)"), FormatKwoty(1030));
  EXPECT_EQ(Tekst(f, "lblSuma"), FormatKwoty(1140)) << "a transfer across kinds";
  // A planned transfer is no money moved yet.
  Transfer(QStringLiteral("zaplanowanewewnetrzne"), d.gotowka, d.karta, QStringLiteral("2026-11-04"), 40);
  EXPECT_EQ(Tekst(f, "lblKonto(3)"), FormatKwoty(0));
  // An account of no known kind counts nowhere.
  const qint64 dziwne = Konto(QStringLiteral("Dziwne"), 9, 500);
  Wpis(QStringLiteral("transakcje"), dziwne, QStringLiteral("2026-11-05"), 70, 0);
  EXPECT_EQ(Tekst(f, "lblSuma"), FormatKwoty(1140));

  // The calendar month turns: the month's figures start again, whatever the filter says.
  UstawDzis(QDate(2026, 12, 1));
  StanKont();
  EXPECT_EQ(Tekst(f, "lblPrzychody"), FormatKwoty(0));
  EXPECT_EQ(Tekst(f, "lblMiesiac"), QStringLiteral(" Grudzień"));
  UstawDzis(QDate(2026, 11, 22));
  StanKont();

  // Delete by the key: Nie keeps the entry, Tak takes it and its amount out of the balance.
  QTreeWidget* lista = Lista(f, "lvwTransakcje");
  const QStringList opisy = Kolumna(lista, 6);
  const int wiersz = int(opisy.indexOf(QStringLiteral("Zakupy \"na szybko\"")));
  ASSERT_GE(wiersz, 0);
  lista->setCurrentItem(lista->topLevelItem(wiersz));
  m.host.odpowiedzi = {WynikNie};
  Klawisz(lista, Qt::Key_Delete);
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  const QString pytanie = m.host.pokazane[0].tekst;
  EXPECT_TRUE(pytanie.startsWith(napis(183) + QLatin1Char(' '))) << pytanie.toStdString();
  EXPECT_TRUE(pytanie.contains(QStringLiteral("\"Zakupy \"na szybko\"\"")));
  EXPECT_TRUE(pytanie.contains(QStringLiteral("Konto w banku")));
  EXPECT_TRUE(pytanie.endsWith(QStringLiteral(" ?")));
  EXPECT_EQ(m.host.pokazane[0].przyciski, MsgTakNie);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje WHERE id=%1").arg(wpis)), 1);
  m.host.odpowiedzi = {WynikTak};
  Klawisz(lista, Qt::Key_Delete);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje WHERE id=%1").arg(wpis)), 0);
  EXPECT_EQ(Tekst(f, "lblKonto(2)"), FormatKwoty(1050));
  EXPECT_EQ(Tekst(f, "lblWydatki"), FormatKwoty(0));

  // Delete with no row selected does nothing.
  lista->clearSelection();
  m.host.pokazane.clear();
  Klawisz(lista, Qt::Key_Delete);
  EXPECT_TRUE(m.host.pokazane.empty());

  // A transfer deleted from its list's menu: the command runs once the menu has closed.
  QTreeWidget* transfery = Lista(f, "lvwWewnetrzne");
  const int przed = transfery->topLevelItemCount();
  QMenu* menu = Menu(f, transfery, 0);
  ASSERT_NE(menu, nullptr);
  EXPECT_TRUE(menu->isVisible());
  m.host.odpowiedzi = {WynikTak};
  menu->actions().at(1)->trigger();
  menu->hide();
  EXPECT_EQ(transfery->topLevelItemCount(), przed) << "nothing runs inside the menu's click";
  Czekaj(30);
  EXPECT_EQ(transfery->topLevelItemCount(), przed - 1);
  EXPECT_EQ(Tekst(f, "lblSuma"), FormatKwoty(1160));

  // The largest amount fits its label whole.
  Konto(QStringLiteral("Lokata"), 4, 999999999999.99);
  QLabel* lokaty = f.findChild<QLabel*>(QStringLiteral("lblKonto(4)"));
  EXPECT_EQ(lokaty->text(), FormatKwoty(999999999999.99));
  QApplication::processEvents();
  EXPECT_LE(lokaty->fontMetrics().horizontalAdvance(lokaty->text()), lokaty->width());
}

// The totals the store keeps by its triggers give exactly the balances summed from every row,
// through inserts, changes of amount and account, and deletes; without the triggers the panel
// sums the rows itself.
TEST(Pulpit, KeptTotalsEqualTheSummedBalances) {
  RozmiarProbki r = RozmiarDlaWpisow(3000);
  MagazynTestowy m(1, &r);
  ASSERT_TRUE(MaObrotyKont());
  const auto zsumowane = [] {
    std::array<qint64, 7> s{};
    const auto dodaj = [&s](const QString& sql, int znak) {
      for (Rekordy rs = pubBaza().Czytaj(sql); !rs.Eof(); rs.MoveNext()) {
        const int k = int(PoleRekordu(rs, QStringLiteral("rodzaj")));
        if (k >= 1 && k <= 6) s[size_t(k)] += znak * WGroszach(PoleRekordu(rs, QStringLiteral("suma")));
      }
    };
    dodaj(QStringLiteral("SELECT konta.rodzaj AS rodzaj, SUM(bowinien)-SUM(boma) AS suma FROM "
                         "konta GROUP BY konta.rodzaj"), 1);
    dodaj(QStringLiteral("SELECT konta.rodzaj AS rodzaj, SUM(przychod)-SUM(wydatek) AS suma FROM "
                         "transakcje, konta WHERE transakcje.konto=konta.id GROUP BY konta.rodzaj"), 1);
    dodaj(QStringLiteral("SELECT konta.rodzaj AS rodzaj, SUM(kwota) AS suma FROM wewnetrzne, konta "
                         "WHERE wewnetrzne.nakonto=konta.id GROUP BY konta.rodzaj"), 1);
    dodaj(QStringLiteral("SELECT konta.rodzaj AS rodzaj, SUM(kwota) AS suma FROM wewnetrzne, konta "
                         "WHERE wewnetrzne.zkonta=konta.id GROUP BY konta.rodzaj"), -1);
    return s;
  };
  const auto porownaj = [&](const char* krok) {
    const StanKontPulpitu s = ObliczStanKont(Dzis());
    const auto oczekiwane = zsumowane();
    qint64 suma = 0;
    for (int k = 1; k <= 6; ++k) {
      EXPECT_EQ(WGroszach(s.salda[size_t(k)]), oczekiwane[size_t(k)]) << krok << ", kind " << k;
      suma += oczekiwane[size_t(k)];
    }
    EXPECT_EQ(WGroszach(s.suma), suma) << krok;
  };
  porownaj("generated");
  Zapisz(QStringLiteral("UPDATE transakcje SET przychod=przychod+'0.01', konto=konto+1 WHERE id<=300 AND konto<5"));
  Zapisz(QStringLiteral("UPDATE transakcje SET wydatek='12345678.91' WHERE id BETWEEN 301 AND 310"));
  Zapisz(QStringLiteral("DELETE FROM transakcje WHERE id BETWEEN 400 AND 700"));
  Zapisz(QStringLiteral("UPDATE wewnetrzne SET nakonto=zkonta, zkonta=nakonto WHERE id<=50"));
  Zapisz(QStringLiteral("UPDATE wewnetrzne SET kwota='0.05' WHERE id BETWEEN 51 AND 60"));
  Zapisz(QStringLiteral("DELETE FROM wewnetrzne WHERE id BETWEEN 100 AND 150"));
  Zapisz(QStringLiteral("UPDATE konta SET rodzaj=6 WHERE id=3"));
  // Rows moved to an account that had none yet.
  const qint64 nowe = Konto(QStringLiteral("Nowe"), 4);
  Zapisz(QStringLiteral("UPDATE transakcje SET konto=%1 WHERE id BETWEEN 1000 AND 1010").arg(nowe));
  Zapisz(QStringLiteral("UPDATE wewnetrzne SET zkonta=%1 WHERE id BETWEEN 200 AND 205").arg(nowe));
  const qint64 trzecie = Konto(QStringLiteral("Trzecie"), 5);
  Zapisz(QStringLiteral("UPDATE wewnetrzne SET nakonto=%1 WHERE id BETWEEN 206 AND 210").arg(trzecie));
  porownaj("changed");
  // An account deleted with its rows still there counts nowhere, as in the summed balances.
  Zapisz(QStringLiteral("DELETE FROM konta WHERE id=2"));
  porownaj("account deleted");
  Zapisz(QStringLiteral("DROP TRIGGER transakcje_obroty_usun"));
  EXPECT_FALSE(MaObrotyKont());
  Zapisz(QStringLiteral("DELETE FROM transakcje WHERE id BETWEEN 800 AND 900"));
  porownaj("without the totals");
}
