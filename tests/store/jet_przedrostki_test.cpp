// Category subtrees asked for by the prefix of the key: the range the translator writes selects
// the same entries as the prefix test for every key shape, uses the key index, and leaves alone
// what it must not touch.

#include "store/jet_przedrostki.h"

#include <gtest/gtest.h>

#include <sqlcipher/sqlite3.h>

#include "common/magazyn_testowy.h"
#include "store/baza.h"
#include "store/jet.h"

TEST(JetPrzedrostki, SubtreeRangesSelectWhatThePrefixSelects) {
  MagazynTestowy m;
  const QStringList klucze = {"a", "aa", "ab", "abz", "abzz", "az", "aza", "azz", "b", "ba",
                              "y", "yz", "z", "za", "zz", "zzz", "zzzz"};
  pubBaza().Transakcja([&] {
    for (const QString& k : klucze)
      for (int rodzaj = 1; rodzaj <= 2; ++rodzaj)
        pubBaza().Wykonaj(QStringLiteral("INSERT INTO transakcje (data,rodzaj,przychod,wydatek,"
                                         "kategoria) VALUES ('2026-03-01',%1,0,1,'%2')")
                              .arg(rodzaj)
                              .arg(k));
    return true;
  });
  for (const char* przedrostek : {"a", "ab", "abz", "az", "azz", "y", "z", "zz", "zzzz", "q"}) {
    const QString p = QLatin1String(przedrostek);
    qint64 oczekiwane = 0;
    for (const QString& k : klucze) oczekiwane += k.startsWith(p) && k != p;
    const QString like = QStringLiteral(
                             "SELECT SUM(wydatek) AS ile FROM transakcje WHERE rodzaj=2 AND "
                             "kategoria LIKE '%1*' AND kategoria<>'%1'")
                             .arg(p);
    EXPECT_EQ(PoliczIle(like), oczekiwane) << p.toStdString();
    const QString left = QStringLiteral(
                             "SELECT COUNT(transakcje.id) AS ile FROM transakcje WHERE rodzaj=1 AND "
                             "LEFT(transakcje.kategoria,%1)='%2'")
                             .arg(p.size())
                             .arg(p);
    EXPECT_EQ(PoliczIle(left), oczekiwane + klucze.contains(p)) << p.toStdString();
  }

  // The range is what the key index serves.
  const QByteArray sql = TlumaczJet(QStringLiteral(
                                        "SELECT SUM(wydatek) AS s FROM transakcje WHERE rodzaj=2 "
                                        "AND kategoria LIKE 'ab*' AND YEAR(data)=2026"))
                             .prepend(QStringLiteral("EXPLAIN QUERY PLAN "))
                             .toUtf8();
  sqlite3_stmt* st = nullptr;
  ASSERT_EQ(sqlite3_prepare_v2(pubBaza().Uchwyt(), sql.constData(), -1, &st, nullptr), SQLITE_OK);
  QString plan;
  while (sqlite3_step(st) == SQLITE_ROW)
    plan += QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, 3))) + ' ';
  sqlite3_finalize(st);
  EXPECT_TRUE(plan.contains(QLatin1String("transakcje_kategoria (rodzaj=? AND kategoria>? AND kategoria<?)")))
      << plan.toStdString();
}

TEST(JetPrzedrostki, LeavesAloneWhatIsNoCategoryPrefix) {
  // Inside a text, under NOT, a capital or wildcard inside, no prefix at all, a length that is
  // not the text's, another column: all as written.
  for (const char* s :
       {"SELECT 'kategoria LIKE ''a*''' AS t FROM kategorie",
        "SELECT * FROM transakcje WHERE NOT kategoria LIKE 'a*'",
        "SELECT * FROM transakcje WHERE kategoria NOT LIKE 'a*'",
        "SELECT * FROM transakcje WHERE kategoria LIKE 'A*'",
        "SELECT * FROM transakcje WHERE kategoria LIKE 'a?*'",
        "SELECT * FROM transakcje WHERE kategoria LIKE 'a*b'",
        "SELECT * FROM transakcje WHERE kategoria LIKE '*'",
        "SELECT * FROM transakcje WHERE LEFT(kategoria,3)='ab'",
        "SELECT * FROM kontrahent WHERE skrocona LIKE 'ab*'",
        "SELECT * FROM kategorie WHERE podkategoria LIKE 'ab*'"})
    EXPECT_EQ(ZakresyPrzedrostkow(QLatin1String(s)), QLatin1String(s)) << s;
  EXPECT_EQ(ZakresyPrzedrostkow(QStringLiteral(
                "SELECT nazwa FROM kategorie WHERE identyfikator LIKE 'az*' AND rodzaj=2 OR "
                "opis='kategoria LIKE ''b*''' OR LEFT( transakcje.kategoria , 1 )='c'")),
            QStringLiteral("SELECT nazwa FROM kategorie WHERE (identyfikator>='az' AND "
                           "identyfikator<'a{') AND rodzaj=2 OR opis='kategoria LIKE ''b*''' OR "
                           "(transakcje.kategoria>='c' AND transakcje.kategoria<'d')"));
}
