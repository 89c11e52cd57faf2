// The entry and transfer browsers, driven as a user drives them: opened by the buttons that lead
// to them, sorted by a header click, a line edited and deleted.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDateEdit>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>
#include <QTreeWidget>

#include "common/magazyn_testowy.h"
#include "ledger/frmPrzegladTransakcji.h"
#include "ledger/frmPrzegladTransakcjiWewnetrznych.h"
#include "ledger/transakcje_pomoc.h"
#include "mainwindow/frmMain.h"
#include "store/dzis.h"
#include "store/filtr.h"
#include "store/start.h"
#include "store/tekst.h"
#include "ui/nawigacja_gui.h"

using namespace testy_wpisow;

namespace {

// Column texts of every line as the list shows them, top to bottom.
QStringList Kolumna(const PrzegladWpisowGui& p, int kolumna) {
  QStringList w;
  const QAbstractItemModel* m = p.Lista()->model();
  for (int i = 0; i < m->rowCount(); ++i) w << m->index(i, kolumna).data().toString().trimmed();
  return w;
}

QString Etykieta(QWidget* okno, const char* nazwa) {
  auto* l = Kontrolka<QLabel>(okno, nazwa);
  return l ? l->text() : QString();
}

void Klawisz(QWidget* w, int klawisz) {
  QKeyEvent e(QEvent::KeyPress, klawisz, Qt::NoModifier);
  QApplication::sendEvent(w, &e);
}

void Klik(QWidget* w) {
  ASSERT_NE(w, nullptr);
  const QPointF p(w->width() / 2.0, w->height() / 2.0);
  for (auto typ : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QMouseEvent e(typ, p, w->mapToGlobal(p), Qt::LeftButton,
                  typ == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(w, &e);
  }
}

// A small ledger: entries over two years, one without a counterparty, two on one day.
struct Ksiega {
  qint64 gotowka, bank;
  std::vector<qint64> id;
  Ksiega() {
    gotowka = KontoT(QStringLiteral("Portfel"), 1, 10000, 0, QStringLiteral("2020-01-01"));
    bank = KontoT(QStringLiteral("Bank Śląski"), 2, 0, 0, QStringLiteral("2020-01-01"));
    KategoriaT(QStringLiteral("a"), 1, QStringLiteral("Pensja"));
    KategoriaT(QStringLiteral("a"), 2, QStringLiteral("Żywność"));
    KategoriaT(QStringLiteral("b"), 2, QStringLiteral("czynsz"));
    KategoriaT(QStringLiteral("c"), 2, QStringLiteral("Ćwiczenia"));
    const qint64 sklep = KontrahentT(QStringLiteral("Sklep u Zenka"));
    const QString t = QStringLiteral("transakcje");
    id.push_back(WpisT(t, 2, 20, QStringLiteral("2026-11-05"), gotowka, QStringLiteral("a"), sklep,
                       QStringLiteral("żurek")));
    id.push_back(WpisT(t, 2, 1000, QStringLiteral("2026-11-05"), bank, QStringLiteral("b"), 0,
                       QStringLiteral("Zebra")));
    id.push_back(WpisT(t, 2, 5, QStringLiteral("2025-03-01"), gotowka, QStringLiteral("c"), 0,
                       QStringLiteral("ćma")));
    id.push_back(WpisT(t, 1, 999999999999.99, QStringLiteral("2026-01-31"), bank,
                       QStringLiteral("a"), 0, QStringLiteral("Łódź i 'cudzysłów'")));
    id.push_back(WpisT(t, 2, 300, QStringLiteral("2026-06-15"), bank, QStringLiteral("a"), sklep,
                       QStringLiteral("cebula")));
  }
};

}  // namespace

// A header click sorts by the column's value and flips on the second click; the arrow stands on
// that header alone; the selected row stays selected; the totals are exact for the longest
// amounts; a refill brings the statement's order (newest first, higher id first within a day).
TEST(PrzegladTransakcji, SortsByValueAndKeepsTheSelectedRow) {
  MagazynTestowy m(1);
  WczytajSetup();
  Ksiega k;
  sesja.pubTryb = 2;
  sesja.pubFiltrCzasowy.rodzaj = 0;
  sesja.pubFiltrTransakcji.clear();
  sesja.pubTytulTransakcji = QStringLiteral("Wszystko, co było");
  sesja.pubFiltrCzasowy.pozycja = QDate(2026, 11, 22);
  frmPrzegladTransakcji p;
  p.show();
  EXPECT_EQ(Etykieta(&p, "lblTytul"), QStringLiteral("Wszystko, co było"));
  EXPECT_EQ(Kolumna(p, 6), QStringList({"Zebra", "żurek", "cebula", "Łódź i 'cudzysłów'", "ćma"}));
  EXPECT_EQ(Etykieta(&p, "lblPrzychody"), FormatKwoty(999999999999.99));
  EXPECT_EQ(Etykieta(&p, "lblWydatki"), FormatKwoty(1325));
  EXPECT_TRUE(Etykieta(&p, "lblIloscZapisow").endsWith(QStringLiteral(" 5")));

  // "cebula" selected; by expense: 0 (the income) < 5 < 20 < 300 < 1000, not as text.
  ASSERT_TRUE(p.ZaznaczWiersz(3));
  QHeaderView* h = p.Lista()->header();
  p.KliknijNaglowek(2);
  EXPECT_EQ(Kolumna(p, 6), QStringList({"Łódź i 'cudzysłów'", "ćma", "żurek", "cebula", "Zebra"}));
  EXPECT_TRUE(h->isSortIndicatorShown());
  EXPECT_EQ(h->sortIndicatorSection(), 2);
  EXPECT_EQ(h->sortIndicatorOrder(), Qt::AscendingOrder);
  EXPECT_EQ(p.WybranyWiersz(), 4) << "the selection follows its row";
  p.KliknijNaglowek(2);
  EXPECT_EQ(Kolumna(p, 6).first(), QStringLiteral("Zebra"));
  EXPECT_EQ(h->sortIndicatorOrder(), Qt::DescendingOrder);

  // Texts in the Polish order, case aside; dates by date across years.
  p.KliknijNaglowek(6);
  EXPECT_EQ(Kolumna(p, 6), QStringList({"cebula", "ćma", "Łódź i 'cudzysłów'", "Zebra", "żurek"}));
  EXPECT_EQ(h->sortIndicatorSection(), 6);
  p.KliknijNaglowek(3);
  EXPECT_EQ(Kolumna(p, 3), QStringList({"czynsz", "Ćwiczenia", "Pensja", "Żywność", "Żywność"}));
  p.KliknijNaglowek(0);
  EXPECT_EQ(Kolumna(p, 6), QStringList({"ćma", "Łódź i 'cudzysłów'", "cebula", "Zebra", "żurek"}));
  // An empty counterparty stands first.
  p.KliknijNaglowek(5);
  EXPECT_EQ(Kolumna(p, 5).mid(0, 3), QStringList({"", "", ""}));

  // The period buttons refill in the statement's order and without the arrow.
  Klik(Kontrolka<QPushButton>(&p, "cmdFiltr(5)"));
  EXPECT_EQ(sesja.pubFiltrCzasowy.rodzaj, 5);
  EXPECT_FALSE(h->isSortIndicatorShown());
  EXPECT_EQ(Kolumna(p, 6), QStringList({"Zebra", "żurek", "cebula", "Łódź i 'cudzysłów'"}));
  EXPECT_TRUE(Etykieta(&p, "lblOkres").contains(OpisOkresu(5)));
}

// A line edited in the real editor: the list refills in the statement's order and the line of
// the same number is selected again, though the edit moved the row. A change made elsewhere
// (no editor of this browser) shows at once; a delete asks first and refills the totals.
TEST(PrzegladTransakcji, EditAndDeleteRefillTheListAndItsTotals) {
  MagazynTestowy m(1);
  WczytajSetup();
  UstawDzis(QDate(2026, 11, 22));
  Ksiega k;
  sesja.pubTryb = 2;
  sesja.pubFiltrCzasowy.rodzaj = 0;
  sesja.pubFiltrTransakcji.clear();
  sesja.pubWierszTransakcji = 2;  // the line a caller asks to stand on: "żurek", 2026-11-05
  frmPrzegladTransakcji p;
  p.show();
  QApplication::processEvents();
  ASSERT_EQ(p.WybranyWiersz(), 2);
  EXPECT_EQ(sesja.pubWierszTransakcji, 0);
  m.host.odpowiedzi = {WynikTak};   // the change confirmed
  ZOknem([&] { p.EdytujWiersz(); },
         [&](QDialog* e) {
           EXPECT_EQ(sesja.pubTransakcja.id, k.id[0]);
           EXPECT_EQ(sesja.pubTransakcja.rodzaj, 2);
           Kontrolka<QDateEdit>(e, "dtpData")->setDate(QDate(2024, 1, 1));
           Kontrolka<QLineEdit>(e, "txtOpis")->setText(QStringLiteral("żurek z 'jajkiem'"));
           Klik(Kontrolka<QPushButton>(e, "cmdOk"));
         });
  EXPECT_EQ(Kolumna(p, 6),
            QStringList({"Zebra", "cebula", "Łódź i 'cudzysłów'", "ćma", "żurek z 'jajkiem'"}));
  EXPECT_EQ(p.WybranyWiersz(), 2);
  EXPECT_EQ(sesja.pubWierszTransakcji, 0);

  // Another screen changes an amount: the list and its totals follow without a click.
  ASSERT_TRUE(pubBaza().Wykonaj(
      QStringLiteral("UPDATE transakcje SET wydatek=' 7' WHERE id=%1").arg(k.id[1])));
  QApplication::processEvents();
  EXPECT_EQ(Kolumna(p, 2).first(), FormatKwoty(7).trimmed());
  EXPECT_EQ(Etykieta(&p, "lblWydatki"), FormatKwoty(332));

  // Delete: Nie keeps the row, Tak removes it and the totals and count follow.
  ASSERT_TRUE(p.ZaznaczWiersz(1));
  m.host.pokazane.clear();
  m.host.odpowiedzi = {WynikNie, WynikTak};
  Klawisz(p.Lista(), Qt::Key_Delete);
  EXPECT_EQ(p.Dane().Ile(), 5);
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_EQ(m.host.pokazane[0].tytul.trimmed(), Napis(QStringLiteral("frmPrzegladTransakcji23")));
  EXPECT_TRUE(m.host.pokazane[0].tekst.contains(QStringLiteral("\"Zebra\"")));
  Klawisz(p.Lista(), Qt::Key_Delete);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT count(*) FROM transakcje")), 4);
  EXPECT_EQ(Kolumna(p, 6).first(), QStringLiteral("cebula"));
  EXPECT_EQ(Etykieta(&p, "lblWydatki"), FormatKwoty(325));
  EXPECT_TRUE(Etykieta(&p, "lblIloscZapisow").endsWith(QStringLiteral(" 4")));
}

// The buttons that waited for the browsers open them with their conditions: the main window's
// bank balance shows the bank accounts' entries of the month, the planned list of the main window
// shows the planned table, and the account browser's transfers of one account show only its
// transfers, in both directions.
TEST(PrzegladTransakcji, CallersConditionsReachTheBrowsers) {
  MagazynTestowy m(2);
  WczytajSetup();
  UstawDzis(QDate(2026, 11, 22));
  Ksiega k;
  const qint64 karta = KontoT(QStringLiteral("Karta"), 3);
  WpisT(QStringLiteral("zaplanowane"), 2, 44, QStringLiteral("2026-11-28"), k.bank,
        QStringLiteral("b"), 0, QStringLiteral("planowany czynsz"));
  TransferT(QStringLiteral("wewnetrzne"), 50, QStringLiteral("2026-11-01"), k.gotowka, k.bank,
            QStringLiteral("wpłata"));
  TransferT(QStringLiteral("wewnetrzne"), 60, QStringLiteral("2026-11-02"), k.bank, karta,
            QStringLiteral("spłata karty"));
  TransferT(QStringLiteral("wewnetrzne"), 70, QStringLiteral("2026-11-03"), karta, k.gotowka,
            QStringLiteral("bez banku"));
  sesja.pubFiltrCzasowy.rodzaj = 0;
  sesja.pubFiltrCzasowy.pozycja = QDate(2026, 11, 22);
  frmMain f;
  f.show();

  QStringList opisy;
  QString tytul, okno;
  auto zapisz = [&](QDialog* d) {
    auto* p = qobject_cast<PrzegladWpisowGui*>(d);
    ASSERT_NE(p, nullptr);
    opisy = Kolumna(*p, p->Dane().LiczbaKolumn() - 1);
    tytul = Etykieta(p, "lblTytul");
    okno = p->windowTitle();
    p->reject();
  };
  ZOknem([&] { Klik(f.findChild<QWidget*>(QStringLiteral("lblStanKont(1)"))); }, zapisz);
  EXPECT_EQ(opisy, QStringList({"Zebra"})) << "bank entries of this month only";
  EXPECT_TRUE(tytul.endsWith(NazwaRodzajuKonta(2)));
  // The caption of the planned list keeps the filter in force: the month the balance set.
  ZOknem([&] { Klik(f.findChild<QWidget*>(QStringLiteral("lblZaplanowane"))); }, zapisz);
  EXPECT_EQ(opisy, QStringList({"planowany czynsz"}));
  EXPECT_EQ(okno, Napis(QStringLiteral("frmPrzegladTransakcji24")));

  // The account browser: the bank account's transfers.
  sesja.pubFiltrCzasowy.rodzaj = 0;
  sesja.pubTrybPrzegladu = 1;
  ZOknem([&] { Nawigacja::Pokaz(QStringLiteral("frmPrzegladKont")); },
         [&](QDialog* konta) {
           auto* drzewo = Kontrolka<QTreeWidget>(konta, "tvwKonta");
           for (QTreeWidgetItem* w : drzewo->findItems(QStringLiteral("Bank Śląski"),
                                                       Qt::MatchExactly | Qt::MatchRecursive))
             drzewo->setCurrentItem(w);
           ZOknem([&] { Klik(Kontrolka<QPushButton>(konta, "cmdPrzegladWewnetrznych")); }, zapisz);
           konta->reject();
         });
  EXPECT_EQ(opisy, QStringList({"spłata karty", "wpłata"}));
  EXPECT_TRUE(tytul.endsWith(QStringLiteral("Bank Śląski")));
}
