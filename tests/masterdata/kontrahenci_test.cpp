// Counterparties: the lookup, saving and deleting, the browser's executed sums and planned panel,
// and the editor and browser screens driven as a user does.

#include "masterdata/kontrahenci.h"

#include <gtest/gtest.h>

#include <QDateEdit>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>

#include "common/magazyn_testowy.h"
#include "ui/nawigacja_gui.h"
#include "ledger/transakcje_pomoc.h"
#include "masterdata/frmEdycjaKontrahenta.h"
#include "masterdata/frmPrzegladKontrahentow.h"
#include "store/dzis.h"
#include "store/filtr.h"
#include "store/tekst.h"

using namespace testy_wpisow;

namespace {

void Usun(QWidget* lista) {
  QKeyEvent k(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
  QApplication::sendEvent(lista, &k);
}

QStringList Linie(QTreeWidget* lista, int kolumna = 0) {
  QStringList w;
  for (int i = 0; i < lista->topLevelItemCount(); ++i) w << lista->topLevelItem(i)->text(kolumna);
  return w;
}

}  // namespace

TEST(Kontrahenci, LookupSavingAndDeleting) {
  MagazynTestowy m;
  KontrahentRekord k{KontrahentT(QStringLiteral("Piekarnia")), QString()};
  EXPECT_EQ(OpisKontrahenta(k), QStringLiteral("Piekarnia"));
  EXPECT_EQ(k.skrocona, QStringLiteral("Piekarnia"));
  k.id = 999;
  EXPECT_EQ(OpisKontrahenta(k), Napis(QStringLiteral("Module154")));
  EXPECT_EQ(k.id, 0);

  DaneKontrahenta d;
  d.skrocona = QStringLiteral("   ");
  EXPECT_FALSE(ZapiszKontrahenta(d));
  d.skrocona = QStringLiteral(" Piekarnia ");
  d.opis = QStringLiteral("Pod \"Kłosem\" i O'Hara");
  m.host.odpowiedzi = {WynikNie};
  EXPECT_FALSE(ZapiszKontrahenta(d));
  m.host.odpowiedzi = {WynikTak};
  qint64 nowy = 0;
  EXPECT_TRUE(ZapiszKontrahenta(d, &nowy));
  const QStringList tytuly = TytulyKomunikatow(
      m.host, {QStringLiteral("frmEdycjaKontrahenta16"), QStringLiteral("frmEdycjaKontrahenta19")});
  EXPECT_EQ(tytuly, (QStringList{"frmEdycjaKontrahenta16", "frmEdycjaKontrahenta19",
                                 "frmEdycjaKontrahenta19"}));
  EXPECT_EQ(m.host.pokazane[1].tekst, Napis(QStringLiteral("frmEdycjaKontrahenta17")) +
                                          QStringLiteral(" Piekarnia") +
                                          Napis(QStringLiteral("frmEdycjaKontrahenta18")));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kontrahent WHERE skrocona='Piekarnia'")),
            2);
  EXPECT_EQ(CzytajKontrahenta(nowy).opis, d.opis);
  // A rename onto a taken name asks nothing.
  m.host.pokazane.clear();
  const qint64 inny = KontrahentT(QStringLiteral("Apteka"));
  d.id = inny;
  d.lk = QStringLiteral("12");
  EXPECT_TRUE(ZapiszKontrahenta(d));
  EXPECT_TRUE(m.host.pokazane.empty());
  EXPECT_EQ(CzytajKontrahenta(inny).skrocona, QStringLiteral("Piekarnia"));
  EXPECT_EQ(CzytajKontrahenta(inny).lk, QStringLiteral("12"));

  // Entries executed or planned block the deletion; templates go with the counterparty.
  const qint64 konto = KontoT(QStringLiteral("Portfel"), 1);
  WpisT(QStringLiteral("zaplanowane"), 2, 5, QStringLiteral("2026-12-01"), konto,
        QStringLiteral("a"), inny);
  const qint64 zSzablonem = KontrahentT(QStringLiteral("Kino"));
  ASSERT_TRUE(pubBaza().Wykonaj(
      QStringLiteral("INSERT INTO szablony (rodzaj,nazwa,konto,kategoria,kontrahent) VALUES "
                     "(2,'Bilet',1,'a',%1)")
          .arg(zSzablonem)));
  m.host.pokazane.clear();
  EXPECT_FALSE(UsunKontrahenta(inny, QStringLiteral("Piekarnia")));
  EXPECT_EQ(m.host.pokazane[0].tekst, Napis(QStringLiteral("frmPrzegladKontrahentow70")) +
                                          QStringLiteral(" Piekarnia ") +
                                          Napis(QStringLiteral("frmPrzegladKontrahentow71")));
  m.host.odpowiedzi = {WynikNie};
  EXPECT_FALSE(UsunKontrahenta(zSzablonem, QStringLiteral("Kino")));
  EXPECT_EQ(m.host.pokazane[1].tekst,
            Napis(QStringLiteral("frmPrzegladKontrahentow73")) + QStringLiteral(" Kino ?"));
  m.host.odpowiedzi = {WynikTak};
  EXPECT_TRUE(UsunKontrahenta(zSzablonem, QStringLiteral("Kino")));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kontrahent WHERE id=%1").arg(zSzablonem)),
            0);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM szablony")), 0);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kontrahent WHERE id=%1").arg(inny)), 1);
}

// Executed sums of one counterparty or of all that have one, and the planned panel's totals: an
// entry dated on the working date is not overdue, one dated the day before is.
TEST(Kontrahenci, ExecutedSumsAndPlannedTotals) {
  MagazynTestowy m;
  const qint64 konto = KontoT(QStringLiteral("Portfel"), 1);
  const qint64 a = KontrahentT(QStringLiteral("A")), b = KontrahentT(QStringLiteral("B"));
  const QString t = QStringLiteral("transakcje"), z = QStringLiteral("zaplanowane"),
                kat = QStringLiteral("a");
  WpisT(t, 1, 100.10, QStringLiteral("2026-11-05"), konto, kat, a);
  WpisT(t, 2, 0.20, QStringLiteral("2026-11-06"), konto, kat, a);
  WpisT(t, 2, 7.00, QStringLiteral("2026-10-30"), konto, kat, a);  // another month
  WpisT(t, 2, 50.00, QStringLiteral("2026-11-07"), konto, kat, b);
  WpisT(t, 2, 900.00, QStringLiteral("2026-11-07"), konto, kat, 0);  // no counterparty
  FiltrCzasowyRekord miesiac;
  miesiac.rodzaj = 3;
  const QString w = FiltrCzasowy(miesiac).warunek;
  SumyKontrahenta s = SumyDokonanych(a, false, w);
  EXPECT_EQ(s.ile, 2);
  EXPECT_EQ(s.przychod, 100.10);
  EXPECT_EQ(s.wydatek, 0.20);
  s = SumyDokonanych(a, true, w);
  EXPECT_EQ(s.ile, 3);
  EXPECT_EQ(s.wydatek, 50.20);
  EXPECT_EQ(SumyDokonanych(a, false, QString()).wydatek, 7.20);

  WpisT(z, 1, 10.50, QStringLiteral("2026-11-22"), konto, kat, a);  // today
  WpisT(z, 2, 2.25, QStringLiteral("2026-11-21"), konto, kat, a);   // yesterday
  WpisT(z, 2, 1.00, QStringLiteral("2026-11-21"), konto, kat, a);
  WpisT(z, 1, 0.00, QStringLiteral("2026-12-01"), konto, kat, a);
  WpisT(z, 2, 99.00, QStringLiteral("2026-01-01"), konto, kat, b);
  const PanelZaplanowanych p = CzytajZaplanowane(a, Dzis());
  ASSERT_EQ(p.wiersze.size(), 4u);
  EXPECT_EQ(p.wiersze[0].wydatek, 1.00);  // by date, the newest id first
  EXPECT_EQ(p.wiersze[1].wydatek, 2.25);
  EXPECT_EQ(p.przychody, 10.50);
  EXPECT_EQ(p.wydatki, 3.25);
  EXPECT_EQ(p.zaleglePrzychody, 0.0);
  EXPECT_EQ(p.zalegleWydatki, 3.25);
  EXPECT_TRUE(p.wiersze[3].Przychod());  // 0 and 0 counts as income
  EXPECT_FALSE(p.wiersze[0].Przychod());
  EXPECT_EQ(LiczbaBezMaski(10.5), QStringLiteral("10.5"));
  EXPECT_EQ(LiczbaBezMaski(3.25), QStringLiteral("3.25"));
  EXPECT_EQ(LiczbaBezMaski(100), QStringLiteral("100"));
  EXPECT_EQ(LiczbaBezMaski(0), QStringLiteral("0"));
  sesja.pubSeparator = QStringLiteral(",");
  EXPECT_EQ(LiczbaBezMaski(1234567.8), QStringLiteral("1234567,8"));
}

TEST(Kontrahenci, EditorShowsBankFieldsOnlyInThePolishEdition) {
  for (int jezyk : {1, 2}) {
    MagazynTestowy m(jezyk);
    const qint64 id = KontrahentT(QStringLiteral("Gaz"));
    sesja.pubKontrahent.id = id;
    frmEdycjaKontrahenta f;
    f.show();
    EXPECT_EQ(f.windowTitle(), Napis(QStringLiteral("frmEdycjaKontrahenta21")));
    EXPECT_EQ(Kontrolka<QGroupBox>(&f, "fraBank")->isVisible(), jezyk == 1);
    EXPECT_EQ(Kontrolka<QLineEdit>(&f, "txtNazwaSkrocona")->text(), QStringLiteral("Gaz"));
    EXPECT_EQ(Kontrolka<QLineEdit>(&f, "txtNazwaSkrocona")->maxLength(), 16);
    Kontrolka<QLineEdit>(&f, "txtNazwaSkrocona")->setText(QString());
    Kontrolka<QLineEdit>(&f, "txtMiasto")->setText(QStringLiteral("00-950 Warszawa"));
    Kontrolka<QPushButton>(&f, "cmdOk")->click();
    EXPECT_TRUE(f.isVisible());  // refused; what was typed stays
    EXPECT_EQ(Kontrolka<QLineEdit>(&f, "txtMiasto")->text(), QStringLiteral("00-950 Warszawa"));
    Kontrolka<QLineEdit>(&f, "txtNazwaSkrocona")->setText(QStringLiteral("Gazownia"));
    Kontrolka<QPushButton>(&f, "cmdOk")->click();
    EXPECT_EQ(f.result(), QDialog::Accepted);
    EXPECT_EQ(f.Zapisany(), id);
    EXPECT_EQ(CzytajKontrahenta(id).miasto, QStringLiteral("00-950 Warszawa"));
  }
}

namespace {
class PrzegladKontrahentow : public ::testing::Test {
 protected:
  void SetUp() override {
    konto = KontoT(QStringLiteral("Portfel"), 1, 1000);
    KategoriaT(QStringLiteral("a"), 1, QStringLiteral("Pensja"));
    KategoriaT(QStringLiteral("a"), 2, QStringLiteral("Dom"));
    alfa = KontrahentT(QStringLiteral("Alfa"));
    beta = KontrahentT(QStringLiteral("Beta"));
    gamma = KontrahentT(QStringLiteral("Gamma"));
    WpisT(QStringLiteral("transakcje"), 2, 12.5, QStringLiteral("2026-11-20"), konto,
          QStringLiteral("a"), beta);
    WpisT(QStringLiteral("transakcje"), 2, 30, QStringLiteral("2026-11-21"), konto,
          QStringLiteral("a"), gamma);
    przychod = WpisT(QStringLiteral("zaplanowane"), 1, 40, QStringLiteral("2026-11-21"), konto,
                     QStringLiteral("a"), beta);
    wydatek = WpisT(QStringLiteral("zaplanowane"), 2, 15, QStringLiteral("2026-11-28"), konto,
                    QStringLiteral("a"), beta, QStringLiteral("Rata"));
    sesja.pubFiltrCzasowy.rodzaj = 3;
    sesja.pubTrybPrzegladu = 1;
    sesja.pubSzczegoly = 1;
    sesja.pubKontrahent.id = beta;
  }
  void TearDown() override {
    Nawigacja::Zarejestruj(QStringLiteral("frmEdycjaPrzelewu"), std::move(dawnyPrzelew));
  }

  MagazynTestowy m;
  Nawigacja::Ekran dawnyPrzelew;
  qint64 konto = 0, alfa = 0, beta = 0, gamma = 0, przychod = 0, wydatek = 0;
};
}  // namespace

TEST_F(PrzegladKontrahentow, ListPanelsPickerAndSearch) {
  {
    frmPrzegladKontrahentow f;
    f.show();
    auto* lista = Kontrolka<QTreeWidget>(&f, "lvwKontrahenci");
    EXPECT_EQ(Linie(lista), (QStringList{"Alfa", "Beta", "Gamma"}));
    EXPECT_EQ(lista->currentItem()->text(0), QStringLiteral("Beta"));
    EXPECT_EQ(sesja.pubWidokZrodlowy, 3);
    EXPECT_EQ(Kontrolka<QPushButton>(&f, "cmdWybierz")->text(),
              Napis(QStringLiteral("frmPrzegladKontrahentow76")));
    EXPECT_EQ(Kontrolka<QLabel>(&f, "lblIlosc")->text(), QStringLiteral("1"));
    EXPECT_EQ(Kontrolka<QLabel>(&f, "lblWydatek")->text(), FormatKwoty(12.5));
    auto* plan = Kontrolka<QTreeWidget>(&f, "lvwZaplanowane");
    EXPECT_EQ(Linie(plan, 3), (QStringList{"", "Rata"}));
    EXPECT_EQ(Kontrolka<QLabel>(&f, "lblSumaZaplanowanychPrzychodow")->text(),
              QStringLiteral("40"));
    EXPECT_EQ(Kontrolka<QLabel>(&f, "lblSumaZaleglychPrzychodow")->text(), QStringLiteral("40"));
    EXPECT_EQ(Kontrolka<QLabel>(&f, "lblSumaZaleglychWydatkow")->text(), QStringLiteral("0"));
    // "All" widens only the executed sums.
    Kontrolka<QRadioButton>(&f, "optWszyscy(1)")->click();
    EXPECT_EQ(Kontrolka<QLabel>(&f, "lblWydatek")->text(), FormatKwoty(42.5));
    EXPECT_EQ(plan->topLevelItemCount(), 2);
    // The search walks the names from the first line.
    Kontrolka<QLineEdit>(&f, "txtKlucz")->setText(QStringLiteral("amm"));
    EXPECT_EQ(lista->currentItem()->text(0), QStringLiteral("Gamma"));
    EXPECT_EQ(sesja.pubKontrahent.id, gamma);
    EXPECT_EQ(plan->topLevelItemCount(), 0);
    // Delete refuses a counterparty with entries.
    Usun(lista);
    EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kontrahent")), 3);
    EXPECT_EQ(m.host.pokazane.back().tytul.trimmed(),
              Napis(QStringLiteral("frmPrzegladKontrahentow72")));
  }
  EXPECT_EQ(sesja.pubWidokZrodlowy, 0);

  // As a picker: the chosen line is taken; Zamknij gives the record back as it was.
  sesja.pubTrybPrzegladu = 2;
  sesja.pubSzczegoly = 0;
  sesja.pubKontrahent = {alfa, QStringLiteral("Alfa")};
  {
    frmPrzegladKontrahentow f;
    f.show();
    auto* lista = Kontrolka<QTreeWidget>(&f, "lvwKontrahenci");
    lista->setCurrentItem(lista->topLevelItem(2));
    Kontrolka<QPushButton>(&f, "cmdAnuluj")->click();
    EXPECT_EQ(sesja.pubKontrahent.id, alfa);
  }
  {
    frmPrzegladKontrahentow f;
    f.show();
    auto* lista = Kontrolka<QTreeWidget>(&f, "lvwKontrahenci");
    lista->setCurrentItem(lista->topLevelItem(2));
    Kontrolka<QPushButton>(&f, "cmdWybierz")->click();
    EXPECT_EQ(f.result(), QDialog::Accepted);
    EXPECT_EQ(sesja.pubKontrahent.id, gamma);
    EXPECT_EQ(sesja.pubKontrahent.skrocona, QStringLiteral("Gamma"));
  }
  // An empty list closes the picker with the record unchanged.
  ASSERT_TRUE(pubBaza().Wykonaj(QStringLiteral("DELETE FROM kontrahent")));
  frmPrzegladKontrahentow f;
  f.show();
  Kontrolka<QPushButton>(&f, "cmdWybierz")->click();
  EXPECT_EQ(f.result(), QDialog::Accepted);
  EXPECT_EQ(sesja.pubKontrahent.id, gamma);
}

// Planned entries maintained from the browser: add, edit, realise, delete, and the slip.
TEST_F(PrzegladKontrahentow, PlannedEntryActions) {
  QList<std::pair<qint64, qint64>> przelewy;
  dawnyPrzelew = Nawigacja::Zarejestruj(QStringLiteral("frmEdycjaPrzelewu"), [&](QWidget*) {
    przelewy << std::pair{sesja.pubPrzelewKontrahent, sesja.pubPrzelewZaplanowana};
  });
  frmPrzegladKontrahentow f;
  f.show();
  auto* plan = Kontrolka<QTreeWidget>(&f, "lvwZaplanowane");

  // Add a planned expense: the editor comes with this counterparty fixed.
  ZOknem([&] { Kontrolka<QPushButton>(&f, "cmdDodajZaplanowanyWydatek")->click(); },
         [&](QDialog* d) {
           EXPECT_EQ(d->windowTitle(), Napis(QStringLiteral("frmEdycjaTransakcji51")) + ' ' +
                                           Napis(QStringLiteral("frmEdycjaTransakcji60")));
           EXPECT_FALSE(Kontrolka<QPushButton>(d, "cmdWybierzKontrahenta")->isEnabled());
           EXPECT_EQ(Kontrolka<QLabel>(d, "lblKontrahent")->text(), QStringLiteral("Beta"));
           sesja.pubKonto = WybraneKonto(konto);
           sesja.pubKategoria.identyfikator = QStringLiteral("a");
           Kontrolka<QDateEdit>(d, "dtpData")->setDate(QDate(2026, 11, 10));
           Kontrolka<QLineEdit>(d, "txtKwota")->setText(QStringLiteral("5.75"));
           Kontrolka<QPushButton>(d, "cmdOk")->click();
         });
  EXPECT_EQ(sesja.pubPrzedefiniowanyKontrahent, 0);
  EXPECT_EQ(
      m.Licz(QStringLiteral("SELECT COUNT(*) FROM zaplanowane WHERE kontrahent=%1 AND wydatek=5.75")
                 .arg(beta)),
      1);
  ASSERT_EQ(plan->topLevelItemCount(), 3);
  EXPECT_EQ(Kontrolka<QLabel>(&f, "lblSumaZaleglychWydatkow")->text(), QStringLiteral("5.75"));

  // Edit the income (the expense column reads 0): the editor opens it as an income.
  plan->setCurrentItem(plan->topLevelItem(1));
  m.host.odpowiedzi = {WynikTak};
  ZOknem([&] { Kontrolka<QPushButton>(&f, "cmdEdytuj")->click(); },
         [&](QDialog* d) {
           EXPECT_EQ(d->windowTitle(), Napis(QStringLiteral("frmEdycjaTransakcji54")) + ' ' +
                                           Napis(QStringLiteral("frmEdycjaTransakcji60")));
           Kontrolka<QLineEdit>(d, "txtKwota")->setText(QStringLiteral("44.00"));
           Kontrolka<QPushButton>(d, "cmdOk")->click();
         });
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM zaplanowane WHERE id=%1 AND przychod=44")
                       .arg(przychod)),
            1);
  EXPECT_EQ(Kontrolka<QLabel>(&f, "lblSumaZaplanowanychPrzychodow")->text(), QStringLiteral("44"));

  // The slip: nothing for an income, the counterparty and entry for an expense.
  plan->setCurrentItem(plan->topLevelItem(1));
  Kontrolka<QPushButton>(&f, "cmdPrzelew")->click();
  EXPECT_TRUE(przelewy.isEmpty());
  plan->setCurrentItem(plan->topLevelItem(2));
  Kontrolka<QPushButton>(&f, "cmdPrzelew")->click();
  EXPECT_EQ(przelewy, (QList<std::pair<qint64, qint64>>{{beta, wydatek}}));

  // Realise the expense "Rata": the row moves and the executed sums follow.
  m.host.odpowiedzi = {WynikTak};
  ZOknem([&] { Kontrolka<QPushButton>(&f, "cmdRealizujZaplanowana")->click(); },
         [&](QDialog* d) {
           sesja.pubKonto.saldo = SaldoKonta(konto);
           Kontrolka<QPushButton>(d, "cmdOk")->click();
         });
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM zaplanowane WHERE id=%1").arg(wydatek)), 0);
  EXPECT_EQ(
      m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje WHERE kontrahent=%1 AND wydatek=15")
                 .arg(beta)),
      1);
  EXPECT_EQ(Kontrolka<QTreeWidget>(&f, "lvwKontrahenci")->currentItem()->text(0),
            QStringLiteral("Beta"));
  EXPECT_EQ(plan->topLevelItemCount(), 2);
  EXPECT_EQ(plan->currentItem(), plan->topLevelItem(0));
  EXPECT_EQ(Kontrolka<QLabel>(&f, "lblWydatek")->text(), FormatKwoty(27.5));

  // Delete a planned entry: Nie keeps it, Tak (here by the Delete key) removes it.
  m.host.odpowiedzi = {WynikNie};
  Kontrolka<QPushButton>(&f, "cmdUsunZaplanowana")->click();
  EXPECT_EQ(plan->topLevelItemCount(), 2);
  m.host.odpowiedzi = {WynikTak};
  Usun(plan);
  EXPECT_EQ(plan->topLevelItemCount(), 1);
  EXPECT_EQ(
      m.Licz(QStringLiteral("SELECT COUNT(*) FROM zaplanowane WHERE kontrahent=%1").arg(beta)), 1);
  EXPECT_EQ(m.host.pokazane.back().tytul.trimmed(),
            Napis(QStringLiteral("frmPrzegladKontrahentow67")));
}

// With an editor behind the browser no second one opens; the English edition has no slip.
TEST_F(PrzegladKontrahentow, EditorBehindAndEnglishEdition) {
  sesja.pubEdytorOtwarty = true;
  {
    frmPrzegladKontrahentow f;
    for (const char* b : {"cmdDodajZaplanowanyPrzychod", "cmdDodajZaplanowanyWydatek", "cmdEdytuj",
                          "cmdRealizujZaplanowana"})
      EXPECT_FALSE(Kontrolka<QPushButton>(&f, b)->isEnabled()) << b;
    EXPECT_EQ(Kontrolka<QPushButton>(&f, "cmdWybierz")->text(),
              Napis(QStringLiteral("frmPrzegladKontrahentow75")));
    EXPECT_NE(f.findChild<QPushButton*>(QStringLiteral("cmdPrzelew")), nullptr);
  }
  sesja.pubEdytorOtwarty = false;
  sesja.pubJezyk = 2;
  WyczyscNapisy();
  frmPrzegladKontrahentow f;
  EXPECT_EQ(f.findChild<QPushButton*>(QStringLiteral("cmdPrzelew")), nullptr);
  EXPECT_EQ(f.windowTitle(), QStringLiteral("Counterparties"));
}
