#include "budowa.h"

#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

#include <QDate>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "surowa.h"

namespace {

void zapisz(const QString& plik, const QByteArray& tresc) {
  QFile f(plik);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
  f.write(tresc);
}

QString tekst(const QString& plik, const QString& sql) {
  QString blad;
  sqlite3* db = OtworzSurowo(plik, false, &blad);
  if (!db) return QStringLiteral("error: ") + blad;
  Polecenie p(db, sql);
  const QString w = p.Wiersz() ? p.Tekst(0) : QStringLiteral("error: ") + p.Blad();
  sqlite3_close(db);
  return w;
}

}  // namespace

// The build beside the program makes a missing store, rebuilds one without user data, and only
// refreshes the delivered tables of one holding the user's data.
TEST(Budowa, NeverOverwritesUserDataButRefreshesTexts) {
  QTemporaryDir dir;
  const QString data = dir.filePath(QStringLiteral("data"));
  ASSERT_TRUE(QDir().mkpath(data + QStringLiteral("/jezyki")));
  ASSERT_TRUE(QFile::copy(QStringLiteral(ZORVIK_DATA_DIR "/schema.sql"),
                          data + QStringLiteral("/schema.sql")));
  zapisz(data + QStringLiteral("/jezyki/Test.tsv"), "Test1\tstary tekst\told text\n");
  const QString plik = dir.filePath(QStringLiteral("dane/money.fns"));

  SkutekBudowy s;
  QString blad;
  ASSERT_TRUE(PrzygotujBaze(data, plik, &s, &blad)) << blad.toStdString();
  EXPECT_EQ(s, SkutekBudowy::Zbudowana);
  ASSERT_TRUE(PrzygotujBaze(data, plik, &s, &blad));
  EXPECT_EQ(s, SkutekBudowy::Zbudowana);  // nothing of the user's yet

  bool ma = true;
  ASSERT_TRUE(MaDaneUzytkownika(plik, &ma));
  EXPECT_FALSE(ma);
  {
    sqlite3* db = OtworzSurowo(plik, false, &blad);
    ASSERT_TRUE(db);
    ASSERT_TRUE(WykonajSurowo(db, QStringLiteral("INSERT INTO setup (haslo) VALUES ('x')"), &blad));
    sqlite3_close(db);
  }
  ASSERT_TRUE(MaDaneUzytkownika(plik, &ma));
  EXPECT_TRUE(ma);

  zapisz(data + QStringLiteral("/jezyki/Test.tsv"),
         "Test1\tnowy tekst\tnew text\nTest2\tdrugi\tsecond\n");
  ASSERT_TRUE(PrzygotujBaze(data, plik, &s, &blad)) << blad.toStdString();
  EXPECT_EQ(s, SkutekBudowy::Odswiezona);
  EXPECT_EQ(tekst(plik, QStringLiteral("SELECT haslo FROM setup")), QStringLiteral("x"));
  EXPECT_EQ(tekst(plik, QStringLiteral("SELECT polski FROM jezyki WHERE kontrolka='Test1'")),
            QStringLiteral("nowy tekst"));
  EXPECT_EQ(tekst(plik, QStringLiteral("SELECT count(*) FROM jezyki")), QStringLiteral("2"));

  // A broken language file fails the refresh and leaves the store as it was.
  zapisz(data + QStringLiteral("/jezyki/Test.tsv"), "Test1\tbez angielskiego\n");
  EXPECT_FALSE(PrzygotujBaze(data, plik, &s, &blad));
  EXPECT_EQ(tekst(plik, QStringLiteral("SELECT polski FROM jezyki WHERE kontrolka='Test1'")),
            QStringLiteral("nowy tekst"));

  // A file that is not a store is never replaced.
  const QString obcy = dir.filePath(QStringLiteral("obcy.fns"));
  zapisz(obcy, QByteArray(4096, 'x'));
  EXPECT_FALSE(PrzygotujBaze(data, obcy, &s, &blad));
  QFile f(obcy);
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  EXPECT_EQ(f.readAll(), QByteArray(4096, 'x'));
}

// The delivered name days cover every day of a leap year once, each with names.
TEST(Budowa, NameDaysCoverTheWholeYear) {
  QTemporaryDir dir;
  const QString plik = dir.filePath(QStringLiteral("money.fns"));
  QString blad;
  ASSERT_TRUE(ZbudujBaze(QStringLiteral(ZORVIK_DATA_DIR), plik, &blad)) << blad.toStdString();
  sqlite3* db = OtworzSurowo(plik, false, &blad);
  ASSERT_TRUE(db);
  Polecenie p(db, QStringLiteral("SELECT miesiac, dzien, imiona FROM imieniny"));
  QSet<QDate> dni;
  int wiersze = 0;
  while (p.Wiersz()) {
    ++wiersze;
    const QDate d(2024, int(p.Liczba(0)), int(p.Liczba(1)));
    EXPECT_TRUE(d.isValid()) << p.Liczba(0) << "/" << p.Liczba(1);
    dni.insert(d);
    EXPECT_GE(p.Tekst(2).split(QStringLiteral(", ")).size(), 2) << p.Tekst(2).toStdString();
  }
  sqlite3_close(db);
  EXPECT_EQ(wiersze, 366);
  EXPECT_EQ(dni.size(), 366);
  EXPECT_TRUE(dni.contains(QDate(2024, 2, 29)));
}
