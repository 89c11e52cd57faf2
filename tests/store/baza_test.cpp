#include <gtest/gtest.h>

#include "common/magazyn_testowy.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/start.h"

// The delivered store opens, its wersjabazy is upgraded once with the edition's masks, and a
// second start leaves the upgraded table as it is.
TEST(Baza, UpgradeAddsMasksOnceInTheEditionsOrder) {
  MagazynTestowy m(2);
  EXPECT_EQ(sesja.pubFormatDaty_ddsmmmmsyyyy, QStringLiteral("mmmm dd yyyy"));
  EXPECT_EQ(sesja.pubFormatDaty_ddpmmmmpyyyy, QStringLiteral("mm-dd-yyyy"));
  EXPECT_EQ(sesja.DrukowacZera, 1);
  EXPECT_EQ(pubBaza().Czytaj(QStringLiteral("SELECT * FROM wersjabazy")).LiczbaPol(), 10);
  // A later start in the other edition keeps the masks of the first.
  sesja.pubJezyk = 1;
  sesja.pubFormatDaty_ddsmmmmsyyyy.clear();
  ASSERT_TRUE(AktualizujBaze());
  EXPECT_EQ(pubBaza().Czytaj(QStringLiteral("SELECT * FROM wersjabazy")).LiczbaPol(), 10);
  EXPECT_EQ(sesja.pubFormatDaty_ddsmmmmsyyyy, QStringLiteral("mmmm dd yyyy"));
}

// Text with apostrophes and other odd characters is stored exactly; a failing write reports.
TEST(Baza, QuotedTextRoundTripsAndFailuresReport) {
  MagazynTestowy m;
  const QString opis = QStringLiteral("O'Brien's \"bar\" ; -- % * ? \u0105\u017c");
  ASSERT_TRUE(pubBaza().Wykonaj(QStringLiteral("INSERT INTO kontrahent (skrocona, opis) VALUES (%1, %2)")
                                    .arg(SqlTekst(QStringLiteral("x'y")), SqlTekst(opis))));
  Rekordy rs = pubBaza().Czytaj(QStringLiteral("SELECT opis FROM kontrahent WHERE skrocona=") + SqlTekst(QStringLiteral("x'y")));
  ASSERT_FALSE(rs.Eof());
  EXPECT_EQ(rs.Tekst(QStringLiteral("opis")), opis);
  const WynikZapisu zly = pubBaza().Wykonaj(QStringLiteral("INSERT INTO nietabela (a) VALUES (1)"));
  EXPECT_FALSE(zly.ok);
  EXPECT_FALSE(zly.blad.isEmpty());
  // Read failures give an empty result, and reading it gives 0 and "".
  Rekordy pusty = pubBaza().Czytaj(QStringLiteral("SELECT x FROM nietabela"));
  EXPECT_FALSE(pusty.Ok());
  EXPECT_TRUE(pusty.Eof());
  EXPECT_EQ(PoleRekordu(pusty, QStringLiteral("x")), 0.0);
  EXPECT_EQ(pusty.Tekst(QStringLiteral("x")), QString());
}

// A change of several statements is all or nothing.
TEST(Baza, TransactionRollsBackEveryStatement) {
  MagazynTestowy m;
  const bool ok = pubBaza().Transakcja([] {
    pubBaza().Wykonaj(QStringLiteral("INSERT INTO konta (nazwa, rodzaj) VALUES ('A', '1')"));
    return bool(pubBaza().Wykonaj(QStringLiteral("INSERT INTO brak (x) VALUES (1)")));
  });
  EXPECT_FALSE(ok);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta")), 0);
  EXPECT_TRUE(pubBaza().Transakcja([] {
    return bool(pubBaza().Wykonaj(QStringLiteral("INSERT INTO konta (nazwa, rodzaj) VALUES ('A', '1')")));
  }));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta")), 1);
}

// The setup row: inserted with the defaults when missing, read through text when present.
TEST(Baza, SetupRowRule) {
  MagazynTestowy m;
  ASSERT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM setup")), 0);
  WczytajSetup();
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM setup")), 1);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT autostartprzypominacz FROM setup")), 1);
  EXPECT_EQ(sesja.pubUstawienia.tloaktywne, QStringLiteral("12303359"));
  EXPECT_EQ(sesja.pubUstawienia.napisynieaktywne, QStringLiteral("986895"));
  pubBaza().Wykonaj(QStringLiteral("UPDATE setup SET tloaktywne='1', haslo=NULL, notatnik='n'"));
  WczytajSetup();
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM setup")), 1);
  EXPECT_EQ(sesja.pubUstawienia.tloaktywne, QStringLiteral("1"));
  EXPECT_EQ(sesja.pubUstawienia.haslo, QString());
  EXPECT_EQ(sesja.pubUstawienia.notatnik, QStringLiteral("n"));
}

// An empty store is a first run; a category alone is enough to make it not one.
TEST(Baza, EmptyStoreTest) {
  MagazynTestowy m;
  EXPECT_TRUE(CzyPustaBaza());
  pubBaza().Wykonaj(QStringLiteral("INSERT INTO kategorie (identyfikator, kategoria, nazwa, rodzaj) VALUES ('a','-','X','2')"));
  EXPECT_FALSE(CzyPustaBaza());
}
