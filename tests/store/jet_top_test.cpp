// TOP n gives every row tied with the n-th on the ORDER BY values, as Jet does, wherever it
// stands; an ORDER BY that ends in a row's own key stays a plain LIMIT.

#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

#include <QElapsedTimer>

#include "common/magazyn_testowy.h"
#include "store/baza.h"
#include "store/jet.h"

// Texts in failure messages as text.
inline void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }

namespace {

QStringList kolumna(const char* jet, int pole = 0) {
  Rekordy rs = pubBaza().Czytaj(QString::fromUtf8(jet));
  EXPECT_TRUE(rs.Ok()) << rs.Blad().toStdString() << " | "
                       << TlumaczJet(QString::fromUtf8(jet)).toStdString();
  QStringList w;
  for (; !rs.Eof(); rs.MoveNext()) w << rs.Pole(pole).toString();
  return w;
}

QStringList posortowane(QStringList l) {
  l.sort();
  return l;
}

}  // namespace

TEST(JetTop, TopKeepsEveryRowTiedWithTheLast) {
  MagazynTestowy m;
  ASSERT_EQ(sqlite3_exec(pubBaza().Uchwyt(),
                         "INSERT INTO wewnetrzne (id,data,kwota,opis,zkonta,nakonto) VALUES "
                         "(1,'2026-11-20',10,'a',1,2),(2,'2026-11-22',20,'b',1,2),"
                         "(3,'2026-11-22',30,'c',1,3),(4,'2026-11-21',30,'d',1,2),"
                         "(5,'2026-11-22',5,'e',2,1);"
                         "INSERT INTO kontrahent (id,skrocona) VALUES (1,'Sklep'),(2,'apteka'),"
                         "(3,'SKLEP'),(4,'Żabka');",
                         nullptr, nullptr, nullptr),
            SQLITE_OK);
  // Three transfers share the latest day: all three come for TOP 2, latest first.
  EXPECT_EQ(posortowane(kolumna("SELECT TOP 2 opis FROM wewnetrzne ORDER BY data DESC")),
            QStringList({"b", "c", "e"}));
  EXPECT_EQ(kolumna("SELECT TOP 3 opis FROM wewnetrzne ORDER BY data DESC").size(), 3);
  EXPECT_EQ(kolumna("SELECT TOP 4 opis FROM wewnetrzne ORDER BY data DESC").last(), "d");
  // A second key breaks the tie, in either direction.
  EXPECT_EQ(kolumna("SELECT TOP 1 opis FROM wewnetrzne ORDER BY data DESC, kwota"),
            QStringList({"e"}));
  EXPECT_EQ(kolumna("SELECT TOP 2 opis FROM wewnetrzne ORDER BY data DESC, kwota DESC"),
            QStringList({"c", "b"}));
  EXPECT_EQ(posortowane(kolumna("SELECT TOP 1 opis FROM wewnetrzne ORDER BY kwota DESC")),
            QStringList({"c", "d"}));
  // More than there are, none asked for an order, an alias, a subquery.
  EXPECT_EQ(kolumna("SELECT TOP 10 opis FROM wewnetrzne ORDER BY zkonta").size(), 5);
  EXPECT_EQ(kolumna("SELECT TOP 2 opis FROM wewnetrzne").size(), 2);
  EXPECT_EQ(kolumna("SELECT TOP 1 wewnetrzne.opis AS o, wewnetrzne.kwota AS k FROM wewnetrzne "
                    "ORDER BY k DESC")
                .size(),
            2);
  EXPECT_EQ(kolumna("SELECT COUNT(*) AS ile FROM wewnetrzne WHERE id IN (SELECT TOP 1 id FROM "
                    "wewnetrzne ORDER BY kwota DESC)"),
            QStringList({"2"}));
  EXPECT_EQ(kolumna("SELECT opis FROM wewnetrzne WHERE nakonto IN (SELECT TOP 1 nakonto FROM "
                    "wewnetrzne ORDER BY data DESC) ORDER BY id"),
            QStringList({"a", "b", "c", "d", "e"}));
  // Distinct rows tie only once.
  EXPECT_EQ(kolumna("SELECT DISTINCT TOP 1 data FROM wewnetrzne ORDER BY data DESC"),
            QStringList({"2026-11-22"}));
  EXPECT_EQ(kolumna("SELECT DISTINCT TOP 2 zkonta FROM wewnetrzne ORDER BY zkonta"),
            QStringList({"1", "2"}));
  // Grouped, ordered by a sum.
  EXPECT_EQ(kolumna("SELECT TOP 1 data, COUNT(id) AS ile FROM wewnetrzne GROUP BY data ORDER BY "
                    "COUNT(id) DESC"),
            QStringList({"2026-11-22"}));
  EXPECT_EQ(kolumna("SELECT TOP 2 data, COUNT(id) AS ile FROM wewnetrzne GROUP BY data ORDER BY "
                    "COUNT(id) DESC")
                .size(),
            3);
  // Names tie whatever their case.
  EXPECT_EQ(posortowane(kolumna("SELECT TOP 1 id FROM kontrahent ORDER BY skrocona")),
            QStringList({"2"}));
  EXPECT_EQ(posortowane(kolumna("SELECT TOP 2 id FROM kontrahent ORDER BY skrocona")),
            QStringList({"1", "2", "3"}));
  EXPECT_EQ(kolumna("SELECT TOP 1 skrocona FROM kontrahent ORDER BY skrocona DESC"),
            QStringList({"Żabka"}));
  // The row's own key last: exactly n rows.
  EXPECT_EQ(kolumna("SELECT TOP 2 opis FROM wewnetrzne ORDER BY data DESC, id DESC"),
            QStringList({"e", "c"}));
  EXPECT_EQ(kolumna("SELECT TOP 1 wewnetrzne.id AS id FROM wewnetrzne, konta WHERE "
                    "konta.id=wewnetrzne.zkonta ORDER BY wewnetrzne.data DESC, wewnetrzne.id DESC")
                .size(),
            0);  // no accounts in this store
  EXPECT_EQ(kolumna("SELECT TOP 1 id FROM konta ORDER BY id DESC").size(), 0);
}

// On a big table: the dashboard's statements end in the row's key and read only their rows; a
// TOP on the date alone brings the whole last day. The times are printed for comparison.
TEST(JetTop, LatestRowsOfABigTableStayCheap) {
  MagazynTestowy m;
  sqlite3* db = pubBaza().Uchwyt();
  sqlite3_exec(db, "BEGIN", nullptr, nullptr, nullptr);
  sqlite3_stmt* st = nullptr;
  sqlite3_prepare_v2(db,
                     "INSERT INTO transakcje (data,rodzaj,przychod,wydatek,opis,kategoria,konto,"
                     "kontrahent) VALUES (?,2,0,1.5,'x','a',1,0)",
                     -1, &st, nullptr);
  const QDate poczatek(2020, 1, 1);
  for (int i = 0; i < 100000; ++i) {
    const QByteArray d = poczatek.addDays(i / 40).toString(Qt::ISODate).toLatin1();
    sqlite3_bind_text(st, 1, d.constData(), int(d.size()), SQLITE_TRANSIENT);
    sqlite3_step(st);
    sqlite3_reset(st);
  }
  sqlite3_finalize(st);
  sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr);
  auto czas = [](const char* jet, qsizetype wierszy) {
    double najlepszy = 1e9;
    for (int i = 0; i < 5; ++i) {
      QElapsedTimer t;
      t.start();
      EXPECT_EQ(kolumna(jet).size(), wierszy) << jet;
      najlepszy = std::min(najlepszy, double(t.nsecsElapsed()) / 1e6);
    }
    return najlepszy;
  };
  const double zKluczem = czas(
      "SELECT TOP 10 transakcje.id AS id, transakcje.data AS data FROM transakcje ORDER BY "
      "transakcje.data DESC,transakcje.id DESC",
      10);
  const double remisy = czas("SELECT TOP 10 id, data FROM transakcje ORDER BY data DESC", 40);
  const double bezKolejnosci = czas("SELECT TOP 10 id FROM transakcje", 10);
  std::printf(
      "[ top      ] 100000 rows: TOP 10 by date and key %.3f ms, by date with ties %.3f "
      "ms, unordered %.3f ms\n",
      zKluczem, remisy, bezKolejnosci);
}
