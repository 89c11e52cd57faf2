// The account, category, counterparty and summary reports, line by line over a small household:
// heads, rows, rules, totals and the closing line, as the user reads them.

#include <gtest/gtest.h>

#include "common/magazyn_testowy.h"
#include "raport_pomoc.h"
#include "store/napis.h"

using namespace testy_raportow;

namespace {

const QString kTytul = QStringLiteral("okres  miesiąc (marzec)");
const QString kStopka = QStringLiteral("Zorvik - raport sporządzony 15 marca 2026");

class Raporty : public ::testing::Test {
 protected:
  void SetUp() override {
    sesja.pubSeparator = QStringLiteral(",");
    Gospodarstwo();
    UstawOkres(QDate(2026, 3, 15), 3);
  }
  MagazynTestowy m;
};

}  // namespace

TEST_F(Raporty, AccountsAllKindsAndOneAccountInDetail) {
  sesja.pubWezelKont = QStringLiteral("R");
  Raport r;
  const QStringList linie = Napisz("frmRaportKont", &r);
  const QString zera = QStringLiteral("       0,00").repeated(7);
  const QString gotowka =
      QStringLiteral("419,95      70,00      50,00       0,05     300,00       0,00     349,95");
  const QString bank = QStringLiteral(
      "12343 744,4012345 378,91       0,00   1 334,51       0,00     300,00  -1 634,51");
  const QString karta = S(6) + QStringLiteral("10,00") + S(6) + QStringLiteral("10,00") +
                        QStringLiteral("       0,00").repeated(5);
  TakieSame(linie,
            {kTytul,
             S(23) + "Saldo" + S(5) + "Saldo" + S(26) + "Transfery" + S(2) + "Transfery",
             "Konto" + S(17) + "na koniec" + S(3) + "na pocz." + S(1) + "Przychody" + S(4) +
                 "Wydatki" + S(1) + "przych." + S(6) + "wych." + S(6) + "Zmiana",
             D(96),
             "Wszystkie konta" + S(4) + "12344 174,3512345 458,91" + S(6) + "50,00" + S(3) +
                 "1 334,56" + S(5) + "300,00" + S(5) + "300,00" + S(2) + "-1 284,56",
             "", D(96),
             " Gotówkowe" + S(14) + gotowka, D(96), "   Gotówka" + S(14) + gotowka, D(96),
             " Bankowe" + S(11) + bank, D(96), "   Konto osobiste" + S(2) + bank, D(96),
             " Karty kredytowe" + S(3) + karta, D(96), "   Karta kredytowa" + S(1) + karta, D(96),
             " Lokaty" + S(12) + zera, D(96),
             " Kredyty" + S(11) + zera, D(96),
             " Inne" + S(14) + zera, D(96),
             "", kStopka});
  // The rule under the head of the whole report is bold, the others are not.
  int pogrubione = 0;
  for (const ElementDokumentu& e : r.dok.Elementy())
    if (e.rodzaj == ElementDokumentu::Tekst && e.przebieg.pogrubiony &&
        e.przebieg.tekst.startsWith(QLatin1Char('-')))
      ++pogrubione;
  EXPECT_EQ(pogrubione, 1);
  // The CSV table: a head and one row per report row, amounts with no grouping.
  ASSERT_EQ(r.dok.tabela.size(), 1u + 10u);
  EXPECT_EQ(r.dok.tabela[1].join(QLatin1Char('|')),
            QStringLiteral("Wszystkie konta|12344174,35|12345458,91|50,00|1334,56|300,00|300,00|"
                           "-1284,56"));

  // One account, detailed: its entries between the row and the bold rule.
  sesja.pubWezelKont = QStringLiteral("q");
  sesja.pubKonto.id = 1;
  sesja.pubKonto.nazwa = QStringLiteral("Gotówka");
  sesja.pubRaportDetaliczny = true;
  TakieSame(Napisz("frmRaportKont").mid(3),
            {D(96), "Gotówka" + S(17) + gotowka, D(96), S(8) + "Wpisy konta Gotówka",
             S(8) + "1   05-mar-26" + S(26) + "50,00" + S(7) + "0,00 Pensja",
             S(8) + "2   07-mar-26" + S(27) + "0,00" + S(7) + "0,05 Jedzenie" + S(9) + "Żabka",
             D(96), "", D(96), "", kStopka});

  // The whole period: nothing lies before it, so the start is the opening balance alone.
  UstawOkres(QDate(2026, 3, 15), 0);
  sesja.pubRaportDetaliczny = false;
  const QStringList wszystko = Napisz("frmRaportKont");
  EXPECT_EQ(wszystko[0], QStringLiteral("okres bez ograniczeń"));
  EXPECT_EQ(wszystko[4], "Gotówka" + S(17) + "419,95" + S(5) + "100,00" + S(6) + "50,00" + S(6) +
                             "20,05" + S(5) + "300,00" + S(6) + "10,00" + S(5) + "319,95");
}

TEST_F(Raporty, CategoryTreeWithSharesAndEntries) {
  sesja.pubKategoria.identyfikator = QStringLiteral("Root");
  sesja.pubKategoria.rodzaj = 2;
  const QStringList glowa = {kTytul, S(48) + "Suma",
                             "Kategoria (udział w gałęzi nadrzędnej)" + S(8) + "w okresie", D(59),
                             ""};
  TakieSame(Napisz("frmRaportKategorii"),
            glowa + QStringList{"Dom (100,00 %)" + S(34) + "1 334,51",
                                "    Czynsz (92,51 %)" + S(28) + "1 234,56",
                                "    Prąd (7,49 %)" + S(34) + "99,95",
                                "Jedzenie (0,00 %)" + S(35) + "0,05", "", kStopka});

  // A chosen category still measures its share against its parent's whole branch; in detail
  // only its own entries stand under it.
  sesja.pubKategoria.identyfikator = QStringLiteral("aa");
  sesja.pubRaportDetaliczny = true;
  TakieSame(Napisz("frmRaportKategorii"),
            glowa + QStringList{"    Czynsz (92,51 %)" + S(28) + "1 234,56", D(85),
                                S(12) + "Wpisy kategorii Czynsz",
                                S(12) + "1   06-mar-26  Czynsz za marzec" + S(5) + "1 234,56" +
                                    " Konto osobiste   O'Brien",
                                D(85), "", kStopka});

  // A month with no entries: every share is empty and every amount zero.
  UstawOkres(QDate(2026, 7, 1), 3);
  sesja.pubKategoria.identyfikator = QStringLiteral("Root");
  sesja.pubRaportDetaliczny = false;
  const QStringList lipiec = Napisz("frmRaportKategorii");
  EXPECT_EQ(lipiec[5], "Dom ( %)" + S(44) + "0,00");
  EXPECT_EQ(lipiec[8], "Jedzenie ( %)" + S(39) + "0,00");
}

TEST_F(Raporty, CounterpartiesNumberedFromTwo) {
  sesja.pubKontrahent.id = 0;
  TakieSame(Napisz("frmRaportKontrahenta"),
            {kTytul, "", "Lp. Kontrahent" + S(27) + "Przychody" + S(4) + "Wydatki", "", D(96),
             "2   O'Brien" + S(35) + "0,00   1 334,51", "3   Żabka" + S(37) + "0,00" + S(7) + "0,05",
             "", kStopka});

  // One counterparty in detail; a counterparty with nothing in the period has no row at all.
  sesja.pubKontrahent.id = 2;
  sesja.pubRaportDetaliczny = true;
  const QStringList zabka = Napisz("frmRaportKontrahenta");
  EXPECT_EQ(zabka.mid(5, 5),
            (QStringList{"2   Żabka" + S(37) + "0,00" + S(7) + "0,05", D(96),
                         S(6) + "Wpisy kontrahenta Żabka",
                         S(6) + "1   07-mar-26  Guma" + S(14) + "       0,00       0,05 Jedzenie" +
                             S(9) + "Gotówka",
                         D(96)}));
  UstawOkres(QDate(2026, 1, 15), 3);
  const QStringList styczen = Napisz("frmRaportKontrahenta");
  EXPECT_EQ(styczen.mid(4), (QStringList{D(96), "", QString(kStopka).replace("15 marca", "15 stycznia")}));
}

TEST_F(Raporty, SummaryMonthAgainstMonthBefore) {
  sesja.pubKategoria.rodzaj = 2;
  const QStringList glowa = {
      kTytul, S(53) + "Poprzedni" + S(8) + "Bieżący" + S(21) + "Zmiana",
      "Kategoria (udział w poprzednim miesiącu)" + S(14) + "miesiąc" + S(9) + "miesiąc" + S(8) +
          "Różnica" + S(4) + "procentowa",
      D(107), ""};
  TakieSame(Napisz("frmRaportSumaryczny"),
            glowa + QStringList{"Dom (93,75 %)" + S(43) + "300,00" + S(7) + "1 334,51" + S(7) +
                                    "1 034,51" + S(6) + "344,84 %",
                                "Jedzenie (6,25 %)" + S(40) + "20,00" + S(11) + "0,05" + S(8) +
                                    "- 19,95" + S(5) + "- 99,75 %",
                                D(107),
                                "Razem" + S(51) + "320,00" + S(7) + "1 334,56" + S(7) + "1 014,56" +
                                    S(6) + "317,05 %",
                                D(107), "", kStopka});

  // January is measured against December of the year before; a category with nothing in the
  // month before has no per cent, and its line ends after the difference.
  Sql(QStringLiteral("INSERT INTO transakcje (data,rodzaj,przychod,wydatek,opis,kategoria,konto) "
                     "VALUES ('2025-12-10',2,0,40,'','b',1),('2026-01-05',2,0,10,'','b',1),"
                     "('2026-12-03',2,0,999,'','b',1)"));
  UstawOkres(QDate(2026, 1, 20), 3);
  const QStringList styczen = Napisz("frmRaportSumaryczny");
  EXPECT_EQ(styczen.mid(5, 4),
            (QStringList{"Dom (0,00 %)" + S(46) + "0,00" + S(11) + "0,00" + S(11) + "0,00",
                         "Jedzenie (100,00 %)" + S(38) + "40,00" + S(10) + "10,00" + S(8) +
                             "- 30,00" + S(5) + "- 75,00 %",
                         D(107),
                         "Razem" + S(52) + "40,00" + S(10) + "10,00" + S(8) + "- 30,00" + S(5) +
                             "- 75,00 %"}));
}

// What a real store holds besides the neat household: a category three levels deep, an amount of
// a trillion, a deleted counterparty, an account no longer kept and a key no category has.
TEST_F(Raporty, LongAmountsDeepCategoriesAndDeletedRecords) {
  Sql(
      QStringLiteral("INSERT INTO kategorie (identyfikator,kategoria,nazwa,opis,rodzaj) VALUES "
                     "('aba','ab','Licznik','',2)"));
  Sql(QStringLiteral("INSERT INTO kontrahent (skrocona,opis,nazwa) VALUES ('Usunięty','','')"));
  Sql(QStringLiteral("DELETE FROM kontrahent WHERE id=3"));
  Sql(QStringLiteral(
      "INSERT INTO transakcje (data,rodzaj,przychod,wydatek,opis,kategoria,konto,kontrahent) "
      "VALUES ('2026-03-10',2,0,999999999999.99,'Licznik','aba',2,3),"
      "('2026-03-11',2,0,10,'Stare konto','qq',99,0)"));

  // The branch of the main categories counts the key no category has; a sum longer than its
  // column pushes the line on.
  sesja.pubKategoria.identyfikator = QStringLiteral("Root");
  sesja.pubKategoria.rodzaj = 2;
  EXPECT_EQ(Napisz("frmRaportKategorii").mid(5, 5),
            (QStringList{"Dom (100,00 %)" + S(30) + "1000000001 334,50",
                         S(4) + "Czynsz (0,00 %)" + S(29) + "1 234,56",
                         S(4) + "Prąd (100,00 %)" + S(25) + "1000000000 099,94",
                         S(8) + "Licznik (100,00 %)" + S(18) + "999999999 999,99",
                         "Jedzenie (0,00 %)" + S(35) + "0,05"}));

  // The main categories alone make the total: the key no category has stays out of it.
  EXPECT_EQ(Napisz("frmRaportSumaryczny").mid(5, 4),
            (QStringList{"Dom (93,75 %)" + S(43) + "300,00" + "1000000001 334,50" +
                             "1000000001 034,50" + "333333333 678,17 %",
                         "Jedzenie (6,25 %)" + S(40) + "20,00" + S(11) + "0,05" + S(8) + "- 19,95" +
                             S(5) + "- 99,75 %",
                         D(107),
                         "Razem" + S(51) + "320,00" + "1000000001 334,55" + "1000000001 014,55" +
                             "312500000 317,05 %"}));

  // Over time a main category's months hold its whole subtree, and a key that differs only in
  // case (no category has it) is not part of it.
  Sql(QStringLiteral("INSERT INTO transakcje (data,rodzaj,przychod,wydatek,opis,kategoria,konto) "
                     "VALUES ('2026-03-12',2,0,5,'','Ab',1)"));
  const QStringList wCzasie = Napisz("frmRaportKategorieWCzasie");
  EXPECT_TRUE(wCzasie.contains("Dom" + S(25) + QStringLiteral("       0,00").repeated(4) +
                               "     300,00" + "1000000001 334,50"))
      << wCzasie.join(QLatin1Char('\n')).toStdString();
  Sql(QStringLiteral("DELETE FROM transakcje WHERE kategoria='Ab'"));

  // A deleted counterparty keeps its row, with no name, and in detail its own entries.
  sesja.pubKontrahent.id = 0;
  EXPECT_EQ(Napisz("frmRaportKontrahenta")[7], "4" + S(45) + "0,00999999999 999,99");
  sesja.pubRaportDetaliczny = true;
  const QStringList szczegoly = Napisz("frmRaportKontrahenta");
  const qsizetype czwarty = szczegoly.indexOf("4" + S(45) + "0,00999999999 999,99");
  ASSERT_GT(czwarty, 0);
  EXPECT_EQ(szczegoly.mid(czwarty + 2, 3),
            (QStringList{S(6) + "Wpisy kontrahenta",
                         S(6) + "1   10-mar-26  Licznik" + S(11) + "       0,00999999999 999,99 " +
                             "Licznik          Konto osobiste",
                         D(96)}));
  sesja.pubRaportDetaliczny = false;

  // The account no longer kept counts in all accounts and in no kind.
  sesja.pubWezelKont = QStringLiteral("R");
  const QStringList konta = Napisz("frmRaportKont");
  EXPECT_EQ(konta[4], "Wszystkie konta" + S(4) + "-999987655 835,6412345 458,91" + S(6) + "50,00" +
                          "1000000001 344,55" + S(5) + "300,00" + S(5) + "300,00" +
                          "-1000000001 294,55");
  const QString bank = QStringLiteral(
      "-999987656 255,5912345 378,91       0,001000000001 334,50       0,00     300,00"
      "-1000000001 634,50");
  EXPECT_EQ(konta[11], " Bankowe" + S(11) + bank);
  EXPECT_EQ(konta[13], "   Konto osobiste" + S(2) + bank);
  EXPECT_EQ(konta[9],
            "   Gotówka" + S(14) +
                "419,95      70,00      50,00       0,05     300,00       0,00     349,95");
}
