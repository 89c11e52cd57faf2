#include "store/baza.h"

#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

#include <QDir>
#include <QFile>

#include "common/magazyn_testowy.h"
#include "store/napis.h"
#include "store/przypomnienia.h"
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
  ASSERT_TRUE(
      pubBaza().Wykonaj(QStringLiteral("INSERT INTO kontrahent (skrocona, opis) VALUES (%1, %2)")
                            .arg(SqlTekst(QStringLiteral("x'y")), SqlTekst(opis))));
  Rekordy rs = pubBaza().Czytaj(QStringLiteral("SELECT opis FROM kontrahent WHERE skrocona=") +
                                SqlTekst(QStringLiteral("x'y")));
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
    return bool(
        pubBaza().Wykonaj(QStringLiteral("INSERT INTO konta (nazwa, rodzaj) VALUES ('A', '1')")));
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
  pubBaza().Wykonaj(QStringLiteral(
      "INSERT INTO kategorie (identyfikator, kategoria, nazwa, rodzaj) VALUES ('a','-','X','2')"));
  EXPECT_FALSE(CzyPustaBaza());
}

// A wersjabazy of an odd shape (neither the old two columns nor the upgraded ten, gone, or
// without its row) does not stop the start: the edition's own masks are taken, a line goes to
// the log, and the store stays usable (the reminder run still writes its file). Only a store
// that is missing or can't be read stops it.
TEST(Baza, OddVersionTableFallsBackToTheEditionsMasks) {
  struct Postac {
    const char* opis;
    const char* sql;
  };
  const Postac postacie[] = {
      {"three columns",
       "DROP TABLE wersjabazy; CREATE TABLE wersjabazy (wersja TEXT, data TEXT, uwagi TEXT); "
       "INSERT INTO wersjabazy VALUES ('1','2003-01-01','x')"},
      {"one column", "DROP TABLE wersjabazy; CREATE TABLE wersjabazy (wersja TEXT)"},
      {"no table", "DROP TABLE wersjabazy"},
      {"upgraded, no row", "DELETE FROM wersjabazy"},
  };
  for (const int jezyk : {1, 2}) {
    for (const Postac& p : postacie) {
      SCOPED_TRACE(std::string(p.opis) + (jezyk == 1 ? ", Polish" : ", English"));
      MagazynTestowy m(jezyk);
      ASSERT_EQ(sqlite3_exec(pubBaza().Uchwyt(), p.sql, nullptr, nullptr, nullptr), SQLITE_OK);
      QFile::remove(QDir(m.Folder()).filePath(QStringLiteral("zorvik.log")));
      sesja.pubFormatDaty_ddpmmm = sesja.pubFormatDaty_ddsmmmmsyyyy = QStringLiteral("?");
      sesja.DrukowacZera = 0;
      ASSERT_TRUE(AktualizujBaze());
      EXPECT_EQ(sesja.pubFormatDaty_ddpmmm, QStringLiteral("dd-mmm"));
      EXPECT_EQ(sesja.pubFormatDaty_ddpmmmpyy, QStringLiteral("dd-mmm-yy"));
      EXPECT_EQ(sesja.pubFormatDaty_ddlmmmlyyyy, QStringLiteral("dd/mmm/yyyy"));
      EXPECT_EQ(sesja.pubFormatDaty_ddsmmmmsyyyy,
                jezyk == 1 ? QStringLiteral("dd mmmm yyyy") : QStringLiteral("mmmm dd yyyy"));
      EXPECT_EQ(sesja.pubFormatDaty_dd_mmm_yy, QStringLiteral("dd_mmm_yy"));
      EXPECT_EQ(sesja.pubFormatDaty_ddpmmmmpyy,
                jezyk == 1 ? QStringLiteral("dd-mmmm-yy") : QStringLiteral("mmmm-dd-yy"));
      EXPECT_EQ(sesja.pubFormatDaty_ddpmmmmpyyyy,
                jezyk == 1 ? QStringLiteral("dd-mmmm-yyyy") : QStringLiteral("mm-dd-yyyy"));
      EXPECT_EQ(sesja.DrukowacZera, 1);
      QFile log(QDir(m.Folder()).filePath(QStringLiteral("zorvik.log")));
      ASSERT_TRUE(log.open(QIODevice::ReadOnly));
      EXPECT_TRUE(log.readAll().contains("wersjabazy"));
      QString blad;
      EXPECT_TRUE(ZapiszPrzypomnienia(&blad)) << blad.toStdString();
      EXPECT_TRUE(QFile::exists(QDir(m.Folder()).filePath(QStringLiteral("cont.rmd"))));
    }
  }
  // A missing store and a file that is no store stop the start.
  {
    MagazynTestowy m;
    ZamknijBaze();
    QFile::remove(m.Plik());
    EXPECT_FALSE(AktualizujBaze());
    QFile smieci(m.Plik());
    ASSERT_TRUE(smieci.open(QIODevice::WriteOnly));
    smieci.write(QByteArray(8192, 'x'));
    smieci.close();
    EXPECT_FALSE(AktualizujBaze());
  }
}
