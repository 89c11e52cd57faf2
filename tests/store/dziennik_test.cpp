#include "store/dziennik.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>

#include "common/magazyn_testowy.h"
#include "store/baza.h"

namespace {
QString log(const MagazynTestowy& m) {
  QFile f(QDir(m.Folder()).filePath(QStringLiteral("zorvik.log")));
  return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}
}  // namespace

// The log lies beside the user's money: a failed statement is logged with what failed, why, and
// the statement's verb and tables, but none of the amounts, names or descriptions in it. The
// log is the user's alone, also when an older one was readable by others.
TEST(Dziennik, FailedStatementsLeaveNoUserDataInTheLog) {
  MagazynTestowy m;
  const QString sciezka = QDir(m.Folder()).filePath(QStringLiteral("zorvik.log"));
  {
    QFile f(sciezka);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("2026-01-01T00:00:00 older line\n");
    f.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadOther);
  }
  Baza& b = pubBaza();
  // A column that isn't there, a constraint, an unknown table, a broken condition.
  EXPECT_FALSE(b.Wykonaj(QStringLiteral(
      "INSERT INTO transakcje (data, rodzaj, przychod, wydatek, opis, kategoria, konto, "
      "nieistniejaca) VALUES (#11/22/2026#, 2, '0', '12345678,91', 'Czynsz O''Brien Łódź', "
      "'a', 1, 'Kowalski')")));
  EXPECT_FALSE(
      b.Wykonaj(QStringLiteral("UPDATE konta SET nazwa='Skarbonka Zosi', "
                               "bowinien='999999999999.99' WHERE nieistniejaca=7")));
  EXPECT_FALSE(b.Czytaj(QStringLiteral("SELECT opis FROM zaplanowane INNER JOIN brak ON "
                                       "zaplanowane.konto=brak.id WHERE opis LIKE '*Tajemnica*'"))
                   .Ok());
  EXPECT_FALSE(b.Czytaj(QStringLiteral("SELECT * FROM konta WHERE nazwa='Ala' 'ma kota' AND "
                                       "bowinien=4321.09"))
                   .Ok());
  const QString tekst = log(m);
  ASSERT_TRUE(tekst.startsWith(QStringLiteral("2026-01-01T00:00:00 older line\n")));
  for (const char* prywatne :
       {"12345678", "12 345 678", "O'Brien", "O''Brien", "Czynsz", "Łódź", "Kowalski", "Skarbonka",
        "999999999999", "Tajemnica", "ma kota", "Ala", "4321"})
    EXPECT_FALSE(tekst.contains(QString::fromUtf8(prywatne))) << prywatne << "\n"
                                                              << tekst.toStdString();
  // What failed and why is still there.
  EXPECT_TRUE(tekst.contains(QStringLiteral("INSERT transakcje"))) << tekst.toStdString();
  EXPECT_TRUE(tekst.contains(QStringLiteral("nieistniejaca")));
  EXPECT_TRUE(tekst.contains(QStringLiteral("UPDATE konta")));
  EXPECT_TRUE(tekst.contains(QStringLiteral("SELECT zaplanowane, brak")));
  EXPECT_TRUE(tekst.contains(QStringLiteral("no such table: brak")));
  EXPECT_EQ(tekst.count(QLatin1Char('\n')), 5) << tekst.toStdString();
  struct stat st {};
  ASSERT_EQ(::stat(QFile::encodeName(sciezka).constData(), &st), 0);
  EXPECT_EQ(st.st_mode & 0777, 0600u);
}
