// The Jet translator's tricky cases, and the functions it relies on, run on a real store.

#include "store/jet.h"

#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

#include <QElapsedTimer>
#include <limits>

#include "common/magazyn_testowy.h"
#include "store/baza.h"

namespace {

std::string T(const char* jet) { return TlumaczJet(QString::fromUtf8(jet)).toStdString(); }

// The first field of the first row of a Jet read.
QVariant jedno(const QString& jet) {
  const Rekordy rs = pubBaza().Czytaj(jet);
  EXPECT_TRUE(rs.Ok()) << rs.Blad().toStdString() << " | " << TlumaczJet(jet).toStdString();
  return rs.Pole(0);
}
QVariant jedno(const char* jet) { return jedno(QString::fromUtf8(jet)); }

// A statement in SQLite's own words, past the translator.
QVariant surowo(const char* sql) {
  sqlite3_stmt* st = nullptr;
  EXPECT_EQ(sqlite3_prepare_v2(pubBaza().Uchwyt(), sql, -1, &st, nullptr), SQLITE_OK) << sql;
  QVariant v;
  if (sqlite3_step(st) == SQLITE_ROW) {
    switch (sqlite3_column_type(st, 0)) {
      case SQLITE_INTEGER:
        v = qint64(sqlite3_column_int64(st, 0));
        break;
      case SQLITE_FLOAT:
        v = sqlite3_column_double(st, 0);
        break;
      case SQLITE_NULL:
        break;
      default:
        v = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, 0)));
    }
  }
  sqlite3_finalize(st);
  return v;
}

void wykonaj(const QString& jet) {
  const WynikZapisu w = pubBaza().Wykonaj(jet);
  EXPECT_TRUE(w.ok) << w.blad.toStdString() << " | " << TlumaczJet(jet).toStdString();
}
void wykonaj(const char* jet) { wykonaj(QString::fromUtf8(jet)); }

}  // namespace

TEST(Jet, TokensAreRewrittenOnlyOutsideTexts) {
  // A date, and the same characters inside a text that must stay as typed.
  EXPECT_EQ(T("SELECT * FROM transakcje WHERE data=#03/31/2003# AND opis='#03/31/2003# O''Neil * ? "
              "% 1AND'"),
            "SELECT * FROM transakcje WHERE data='2003-03-31' AND opis COLLATE PL='#03/31/2003# "
            "O''Neil * ? % 1AND'");
  EXPECT_EQ(T("SELECT 1 FROM pytania WHERE datawyslania>=#1/5/2026# AND datawyslania<#2026-02-01#"),
            "SELECT 1 FROM pytania WHERE datawyslania>='2026-01-05' AND datawyslania<'2026-02-01'");
  // TOP becomes LIMIT at the end of its own SELECT, also of a subquery.
  EXPECT_EQ(T("SELECT TOP 1 id FROM konta ORDER BY id DESC"),
            "SELECT id FROM konta ORDER BY id DESC LIMIT 1");
  EXPECT_EQ(T("SELECT nazwa FROM konta WHERE id IN (SELECT TOP 3 konto FROM transakcje ORDER BY "
              "data DESC, id DESC) ORDER BY nazwa"),
            "SELECT nazwa FROM konta WHERE id IN (SELECT konto FROM transakcje ORDER BY data DESC, "
            "id DESC LIMIT 3) ORDER BY nazwa COLLATE PL");
  EXPECT_EQ(T("SELECT TOP 2 opis FROM transakcje;"), "SELECT opis FROM transakcje LIMIT 2;");
  // The column "limit", bare or qualified; SQLite's own "LIMIT 5" stays.
  EXPECT_EQ(
      T("SELECT nazwa,rodzaj,id,limit FROM konta WHERE konta.limit>0 ORDER BY Limit"),
      "SELECT nazwa,rodzaj,id,\"limit\" FROM konta WHERE konta.\"limit\">0 ORDER BY \"limit\"");
  EXPECT_EQ(T("SELECT id FROM konta LIMIT 5"), "SELECT id FROM konta LIMIT 5");
  // A number glued to a word is split; SUM and LEFT get the program's functions.
  EXPECT_EQ(T("SELECT SUM (kwota) AS s FROM wewnetrzne WHERE ((MONTH(data)<=5AND YEAR "
              "(data)>=2026)) GROUP BY LEFT (opis,1)"),
            "SELECT SUMA (kwota) AS s FROM wewnetrzne WHERE ((MONTH(data)<=5 AND YEAR "
            "(data)>=2026)) GROUP BY JETLEFT (opis,1)");
  EXPECT_EQ(T("SELECT * FROM (konta LEFT JOIN kontrahent ON konta.id = kontrahent.id)"),
            "SELECT * FROM (konta LEFT JOIN kontrahent ON konta.id = kontrahent.id)");
  // Jet's types, "text" literals, [names], & and True.
  EXPECT_EQ(T("ALTER TABLE wersjabazy ADD COLUMN DrukowacZera BYTE"),
            "ALTER TABLE wersjabazy ADD COLUMN DrukowacZera INTEGER");
  EXPECT_EQ(T("ALTER TABLE wersjabazy ADD COLUMN pubFormatDaty_ddpmmm TEXT(25)"),
            "ALTER TABLE wersjabazy ADD COLUMN pubFormatDaty_ddpmmm TEXT(25)");
  EXPECT_EQ(T("SELECT [nazwa] & \"it's\" FROM konta WHERE True"),
            "SELECT \"nazwa\" || 'it''s' FROM konta WHERE -1");
  EXPECT_EQ(T("SELECT COUNT(*) AS ile FROM konta WHERE nazwa='O''Brien'"),
            "SELECT COUNT(*) AS ile FROM konta WHERE nazwa COLLATE PL='O''Brien'");
}

TEST(Jet, QuotedNumbersBecomeNumbersOnlyInNumberColumns) {
  // VALUES by position: amounts and references are numbers, the description and category text.
  EXPECT_EQ(
      T("INSERT INTO transakcje (data,rodzaj,przychod,wydatek,opis,kategoria,konto,kontrahent) "
        "Values (#11/22/2026#,'1','12,50',' 0','12,50  ','7',' 3','4 ')"),
      "INSERT INTO transakcje (data,rodzaj,przychod,wydatek,opis,kategoria,konto,kontrahent) "
      "Values ('2026-11-22',1,12.50,0,'12,50  ','7',3,4)");
  EXPECT_EQ(T("UPDATE konta SET nazwa='12,5', limit='1.234,50', boma='-0,5' WHERE id=1"),
            "UPDATE konta SET nazwa='12,5', \"limit\"=1234.50, boma=-0.5 WHERE id=1");
  // The same column name is a number in one table and text in another.
  EXPECT_EQ(T("UPDATE kontrahent SET konto='12,50', bank='10501234' WHERE id=1"),
            "UPDATE kontrahent SET konto='12,50', bank='10501234' WHERE id=1");
  EXPECT_EQ(T("UPDATE szablony SET konto=' 2', kategoria='12' WHERE id=1"),
            "UPDATE szablony SET konto=2, kategoria='12' WHERE id=1");
  // Comparisons either way round, through an alias, and not inside LIKE or a function.
  EXPECT_EQ(T("SELECT * FROM transakcje,konta WHERE '12,5'=przychod AND konta.nazwa='3' AND "
              "transakcje.wydatek<>'3'"),
            "SELECT * FROM transakcje,konta WHERE 12.5=przychod AND konta.nazwa COLLATE PL='3' AND "
            "transakcje.wydatek<>3");
  EXPECT_EQ(T("SELECT * FROM wewnetrzne, konta AS kontaprim WHERE kontaprim.limit>='5,5' AND "
              "kontaprim.nazwa=LEFT('1,5',1)"),
            "SELECT * FROM wewnetrzne, konta AS kontaprim WHERE kontaprim.\"limit\">=5.5 AND "
            "kontaprim.nazwa COLLATE PL=JETLEFT('1,5',1)");
  // Not a number: left as it is.
  EXPECT_EQ(T("UPDATE konta SET bowinien='12,5x' WHERE id=1"),
            "UPDATE konta SET bowinien='12,5x' WHERE id=1");

  // On the store: the amount is a number, the description the text typed.
  MagazynTestowy m;
  wykonaj(
      "INSERT INTO transakcje (data,rodzaj,przychod,wydatek,opis,kategoria,konto,kontrahent) "
      "Values (#11/22/2026#,'2','0',' 12,50','12,50 ','a',' 1',' 0')");
  wykonaj(
      "INSERT INTO transakcje (data,rodzaj,przychod,wydatek,opis,kategoria,konto,kontrahent) "
      "Values (#11/22/2026#,'2','0','7.25','7.25 ','a',' 1',' 0')");
  EXPECT_EQ(
      surowo("SELECT typeof(wydatek) || typeof(opis) || typeof(konto) FROM transakcje WHERE id=1"),
      QVariant(QStringLiteral("realtextinteger")));
  EXPECT_EQ(jedno("SELECT wydatek FROM transakcje WHERE opis='12,50 '").toDouble(), 12.5);
  EXPECT_EQ(jedno("SELECT opis FROM transakcje WHERE wydatek='12,5'"),
            QVariant(QStringLiteral("12,50 ")));
  EXPECT_EQ(
      jedno("SELECT COUNT(*) FROM transakcje WHERE wydatek>'7,24' AND wydatek<'12.51'").toInt(), 2);
  // Amounts searched as text are found with either decimal mark.
  EXPECT_EQ(jedno("SELECT COUNT(*) FROM transakcje WHERE wydatek LIKE '*7,25*'").toInt(), 1);
  EXPECT_EQ(jedno("SELECT COUNT(*) FROM transakcje WHERE opis LIKE '*7,25*'").toInt(), 0);
}

TEST(Jet, LikeUsesJetWildcardsAndIgnoresCaseInEveryAlphabet) {
  EXPECT_EQ(T("SELECT 1 FROM konta WHERE nazwa LIKE '*a?b*'"),
            "SELECT 1 FROM konta WHERE nazwa LIKE '%a_b%'");
  EXPECT_EQ(T("SELECT 1 FROM konta WHERE nazwa LIKE '*50%_x\\*'"),
            "SELECT 1 FROM konta WHERE nazwa LIKE '%50\\%\\_x\\\\%' ESCAPE '\\'");
  EXPECT_EQ(T("SELECT 1 FROM konta WHERE nazwa NOT LIKE '[*]*'"),
            "SELECT 1 FROM konta WHERE nazwa NOT LIKE '*%'");

  MagazynTestowy m;
  for (const char* s :
       {"50% rabatu", "500 zł", "a_b", "axb", "Żółw morski", "mały ŻÓŁW", "c:\\temp", "*gwiazdka"})
    wykonaj(QStringLiteral("INSERT INTO kontrahent (skrocona) VALUES (%1)")
                .arg(SqlTekst(QString::fromUtf8(s))));
  auto ile = [](const char* wzorzec) {
    return jedno(QStringLiteral("SELECT COUNT(*) AS ile FROM kontrahent WHERE skrocona LIKE %1")
                     .arg(SqlTekst(QString::fromUtf8(wzorzec))))
        .toInt();
  };
  EXPECT_EQ(ile("*50*"), 2);
  EXPECT_EQ(ile("*50%*"), 1);  // the % typed is a character, not a wildcard
  EXPECT_EQ(ile("a_b"), 1);    // likewise _
  EXPECT_EQ(ile("a?b"), 2);
  EXPECT_EQ(ile("*ŻÓŁW*"), 2);  // case-blind beyond ASCII, as Jet is
  EXPECT_EQ(ile("żółw*"), 1);
  EXPECT_EQ(ile("*\\temp"), 1);
  EXPECT_EQ(ile("[*]*"), 1);
  EXPECT_EQ(ile("*"), 8);
  EXPECT_EQ(ile("?"), 0);
}

TEST(Jet, WeeksQuartersAndDatePartsOfIsoDates) {
  MagazynTestowy m;
  auto tydzien = [](const char* data, const char* dzien = ",2") {
    return jedno(QStringLiteral("SELECT DATEPART('ww',#%1#%2)")
                     .arg(QLatin1String(data), QLatin1String(dzien)))
        .toInt();
  };
  // Monday first, week 1 holds 1 January: 1 January 2023 is a Sunday and alone in week 1.
  EXPECT_EQ(tydzien("12/31/2022"), 53);
  EXPECT_EQ(tydzien("01/01/2023"), 1);
  EXPECT_EQ(tydzien("01/02/2023"), 2);
  EXPECT_EQ(tydzien("12/31/2025"), 53);
  EXPECT_EQ(tydzien("01/01/2026"), 1);
  EXPECT_EQ(tydzien("01/04/2026"), 1);
  EXPECT_EQ(tydzien("01/05/2026"), 2);
  EXPECT_EQ(tydzien("11/15/2026"), 46);
  EXPECT_EQ(tydzien("11/16/2026"), 47);
  EXPECT_EQ(tydzien("11/22/2026"), 47);
  EXPECT_EQ(tydzien("12/30/2024"), 53);  // 2024 began on a Monday and is a leap year
  // Jet's default week begins on Sunday.
  EXPECT_EQ(tydzien("01/07/2023", ""), 1);
  EXPECT_EQ(tydzien("01/08/2023", ""), 2);
  // ISO-like weeks: the first week with four days, and the first full week.
  EXPECT_EQ(jedno("SELECT DATEPART('ww',#01/01/2021#,2,2)").toInt(), 53);
  EXPECT_EQ(jedno("SELECT DATEPART('ww',#01/04/2021#,2,3)").toInt(), 1);

  EXPECT_EQ(jedno("SELECT DATEPART('q',#03/31/2026#)").toInt(), 1);
  EXPECT_EQ(jedno("SELECT DATEPART('q',#04/01/2026#)").toInt(), 2);
  EXPECT_EQ(jedno("SELECT DATEPART('q',#12/31/2026#)").toInt(), 4);
  EXPECT_EQ(jedno("SELECT DATEPART('y',#12/31/2024#)").toInt(), 366);
  EXPECT_EQ(jedno("SELECT DATEPART('w',#11/22/2026#,2)").toInt(), 7);
  EXPECT_EQ(
      jedno("SELECT YEAR(#02/29/2024#) * 10000 + MONTH(#02/29/2024#) * 100 + DAY(#02/29/2024#)")
          .toInt(),
      20240229);
  EXPECT_TRUE(jedno("SELECT MONTH(NULL)").isNull());
  EXPECT_TRUE(jedno("SELECT YEAR('wczoraj')").isNull());
  EXPECT_EQ(jedno("SELECT YEAR('2026-11-22 10:15:00')").toInt(), 2026);
  EXPECT_EQ(jedno("SELECT JETDATE()").toString(), QStringLiteral("2026-11-22"));
  EXPECT_EQ(jedno("SELECT Date()").toString(), QStringLiteral("2026-11-22"));

  // The week filter on rows around New Year: week 1 of 2023 does not reach back into 2022.
  for (const char* d : {"12/26/2022", "12/31/2022", "01/01/2023", "01/02/2023"})
    wykonaj(
        QStringLiteral(
            "INSERT INTO transakcje (data,rodzaj,przychod,wydatek,opis,kategoria,konto,kontrahent) "
            "Values (#%1#,'2','0','1','x','a','1','0')")
            .arg(QLatin1String(d)));
  const QString ile = QStringLiteral("SELECT COUNT(id) AS ile FROM transakcje WHERE 1=1 ");
  EXPECT_EQ(
      jedno(ile + QStringLiteral(" AND (DATEPART ('ww',data,2)=1 AND YEAR(data)=2023) ")).toInt(),
      1);
  EXPECT_EQ(
      jedno(ile + QStringLiteral(" AND (DATEPART ('ww',data,2)=53 AND YEAR(data)=2022) ")).toInt(),
      2);
  EXPECT_EQ(
      jedno(ile +
            QStringLiteral(
                " AND ((DATEPART ('ww',data,2)<1 AND YEAR(data)=2023) OR (YEAR(data)<2023)) "))
          .toInt(),
      2);
  EXPECT_EQ(
      jedno(ile + QStringLiteral(" AND (DATEPART ('ww',data,2)=2 AND YEAR(data)=2023) ")).toInt(),
      1);
  EXPECT_EQ(
      jedno(ile + QStringLiteral(" AND (DATEPART ('q',data)=4 AND YEAR(data)=2022) ")).toInt(), 2);
}

TEST(Jet, TextPiecesCountCharactersAndJoinsNest) {
  MagazynTestowy m;
  EXPECT_EQ(jedno("SELECT LEN('Żółw')").toInt(), 4);
  EXPECT_EQ(jedno("SELECT LEFT('Żółw',2)").toString(), QString::fromUtf8("Żó"));
  EXPECT_EQ(jedno("SELECT MID('Żółw',2,2)").toString(), QString::fromUtf8("ół"));
  EXPECT_EQ(jedno("SELECT MID ('abc',2)").toString(), QStringLiteral("bc"));
  EXPECT_EQ(jedno("SELECT MID('abc',5,1)").toString(), QString());
  EXPECT_TRUE(jedno("SELECT LEFT(NULL,1)").isNull());
  EXPECT_EQ(jedno("SELECT 'a' & 'b' & 1").toString(), QStringLiteral("ab1"));
  EXPECT_EQ(jedno("SELECT IIF(1>2,'tak','nie')").toString(), QStringLiteral("nie"));
  EXPECT_EQ(jedno("SELECT Nz(NULL,5)").toInt(), 5);
  EXPECT_EQ(jedno("SELECT Int(-2.5)").toInt(), -3);
  EXPECT_FALSE(pubBaza().Czytaj(QStringLiteral("SELECT LEFT('abc',-1)")).Ok());

  // Joins in nested parentheses, with the kind of the category in the join, "ON (x) AND (y)".
  sqlite3_exec(pubBaza().Uchwyt(),
               "INSERT INTO konta (id,nazwa,rodzaj) VALUES (1,'Portfel',1);"
               "INSERT INTO kategorie (identyfikator,kategoria,nazwa,rodzaj) VALUES "
               "('a','-','Pensja',1),('a','-','Jedzenie',2);"
               "INSERT INTO kontrahent (id,skrocona) VALUES (5,'Sklep');"
               "INSERT INTO transakcje "
               "(id,data,rodzaj,przychod,wydatek,opis,kategoria,konto,kontrahent) VALUES "
               "(1,'2026-11-20',2,0,3,'x','a',1,5),(2,'2026-11-21',1,9,0,'y','a',1,0),(3,'2026-11-"
               "22',2,0,4,'z','a',9,0);",
               nullptr, nullptr, nullptr);
  const Rekordy rs = pubBaza().Czytaj(QStringLiteral(
      "SELECT transakcje.id AS id, kategorie.nazwa AS kategoria, kontrahent.skrocona AS "
      "kontrahent, konta.nazwa AS konto "
      "FROM ((transakcje INNER JOIN konta ON transakcje.konto = konta.id) INNER JOIN kategorie ON "
      "(kategorie.rodzaj = transakcje.rodzaj) AND (transakcje.kategoria = "
      "kategorie.identyfikator)) "
      "LEFT JOIN kontrahent ON transakcje.kontrahent = kontrahent.id ORDER BY transakcje.id"));
  ASSERT_TRUE(rs.Ok()) << rs.Blad().toStdString();
  ASSERT_EQ(rs.RecordCount(), 2);  // the entry on a missing account drops out
  EXPECT_EQ(rs.Tekst(QStringLiteral("kategoria")), QStringLiteral("Jedzenie"));
  EXPECT_EQ(rs.Tekst(QStringLiteral("kontrahent")), QStringLiteral("Sklep"));
  Rekordy drugi = rs;
  drugi.MoveNext();
  EXPECT_EQ(drugi.Tekst(QStringLiteral("kategoria")), QStringLiteral("Pensja"));
  EXPECT_TRUE(drugi.Pole(QStringLiteral("kontrahent")).isNull());
}

TEST(Jet, SumsAreExactToTheCent) {
  MagazynTestowy m;
  sqlite3* db = pubBaza().Uchwyt();
  // No rows: null, as SUM gives, and 0 through PoleRekordu.
  Rekordy pusty = pubBaza().Czytaj(QStringLiteral("SELECT SUM(kwota) AS suma FROM wewnetrzne"));
  EXPECT_TRUE(pusty.Pole(QStringLiteral("suma")).isNull());
  EXPECT_EQ(PoleRekordu(pusty, QStringLiteral("suma")), 0.0);

  const int n = 100000;
  sqlite3_exec(db, "BEGIN", nullptr, nullptr, nullptr);
  sqlite3_stmt* st = nullptr;
  sqlite3_prepare_v2(
      db, "INSERT INTO wewnetrzne (data,kwota,zkonta,nakonto) VALUES ('2026-11-22',?,1,2)", -1, &st,
      nullptr);
  for (int i = 0; i < n; ++i) {
    sqlite3_bind_double(st, 1, 0.1);
    sqlite3_step(st);
    sqlite3_reset(st);
  }
  sqlite3_finalize(st);
  sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr);

  QElapsedTimer t;
  t.start();
  const Rekordy rs = pubBaza().Czytaj(
      QStringLiteral("SELECT COUNT(id) AS ile, SUM(kwota) AS suma FROM wewnetrzne"));
  const qint64 ns = t.nsecsElapsed();
  ASSERT_TRUE(rs.Ok());
  EXPECT_EQ(rs.Pole(QStringLiteral("ile")).toInt(), n);
  EXPECT_EQ(rs.Pole(QStringLiteral("suma")).toDouble(),
            10000.0);  // exactly, not 10000.000000018848
  std::printf("[ sum      ] %d rows: exact sum %.9f in %.2f ms; SQLite's own SUM gives %.9f\n", n,
              rs.Pole(QStringLiteral("suma")).toDouble(), double(ns) / 1e6,
              surowo("SELECT SUM(kwota) FROM wewnetrzne").toDouble());

  // Each value is rounded to cents on its decimal form, half away from zero; nulls are skipped;
  // a text amount with a decimal comma still counts.
  sqlite3_exec(db,
               "DELETE FROM wewnetrzne; INSERT INTO wewnetrzne (kwota) VALUES (1.005), (-0.005), "
               "(NULL), ('2,50'), (3);",
               nullptr, nullptr, nullptr);
  EXPECT_EQ(jedno("SELECT SUM(kwota) FROM wewnetrzne").toDouble(), 6.5);
  EXPECT_EQ(jedno("SELECT SUM(kwota) FROM wewnetrzne WHERE kwota<0").toDouble(), -0.01);
}

// Sums far beyond what 64-bit cents hold are still exact (or as near as a double can hold
// them), and an amount no sum can hold is an error, never a wrong number.
TEST(Jet, SumsNeverOverflow) {
  MagazynTestowy m;
  sqlite3* db = pubBaza().Uchwyt();
  auto wstaw = [&](double kwota, int ile) {
    sqlite3_exec(db, "BEGIN", nullptr, nullptr, nullptr);
    sqlite3_stmt* st = nullptr;
    sqlite3_prepare_v2(
        db, "INSERT INTO wewnetrzne (data,kwota,zkonta,nakonto) VALUES ('2026-11-22',?,1,2)", -1,
        &st, nullptr);
    for (int i = 0; i < ile; ++i) {
      sqlite3_bind_double(st, 1, kwota);
      sqlite3_step(st);
      sqlite3_reset(st);
    }
    sqlite3_finalize(st);
    sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr);
  };
  // 100 000 transfers of a trillion: 10^19 cents, past the 64-bit range.
  wstaw(1e12, 100000);
  EXPECT_EQ(jedno("SELECT SUM(kwota) AS s FROM wewnetrzne").toDouble(), 1e17);
  wstaw(-1e12, 100000);
  wstaw(999999999999.99, 3);
  EXPECT_EQ(jedno("SELECT SUM(kwota) AS s FROM wewnetrzne").toDouble(), 2999999999999.97);
  // The largest amounts a user can type, many times over: the double nearest the exact sum.
  sqlite3_exec(db, "DELETE FROM wewnetrzne", nullptr, nullptr, nullptr);
  wstaw(999999999999.99, 20000);
  EXPECT_EQ(jedno("SELECT SUM(kwota) AS s FROM wewnetrzne").toDouble(), 19999999999999800.0);
  // Whole numbers near the 64-bit limit, and text amounts with more digits than a double holds.
  EXPECT_EQ(jedno("SELECT SUM(x) FROM (SELECT 9223372036854775807 AS x UNION ALL SELECT "
                  "9223372036854775807)")
                .toDouble(),
            18446744073709551614.0);
  EXPECT_EQ(jedno("SELECT SUM(x) FROM (SELECT '90071992547409930,07' AS x UNION ALL SELECT "
                  "'-90071992547409930,06')")
                .toDouble(),
            0.01);
  // Beyond any sum: an error.
  const struct {
    double kwota;
    int ile;
  } zle[] = {{1e300, 1}, {std::numeric_limits<double>::infinity(), 1}, {5e35, 4}};
  for (const auto& z : zle) {
    sqlite3_exec(db, "DELETE FROM wewnetrzne", nullptr, nullptr, nullptr);
    wstaw(z.kwota, z.ile);
    const Rekordy rs = pubBaza().Czytaj(QStringLiteral("SELECT SUM(kwota) AS s FROM wewnetrzne"));
    EXPECT_FALSE(rs.Ok()) << z.kwota;
    EXPECT_TRUE(rs.Eof());
  }
  EXPECT_EQ(jedno("SELECT 1e3 + 2.5E-1").toDouble(), 1000.25);
}
