#include "store/przypomnienia.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include "common/magazyn_testowy.h"
#include "store/baza.h"
#include "store/jet.h"

namespace {
QByteArray plik(const MagazynTestowy& m) {
  QFile f(QDir(m.Folder()).filePath(QStringLiteral("cont.rmd")));
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void wykonaj(const QString& sql) { ASSERT_TRUE(pubBaza().Wykonaj(sql)) << sql.toStdString(); }

bool tlumaczDaty() {
  return TlumaczJet(QStringLiteral("SELECT #01/02/2003#")) != QStringLiteral("SELECT #01/02/2003#");
}
}  // namespace

// Polish letters and the separator come out as their Windows-1250 bytes, and so do the other
// letters and signs of the code page; what it lacks becomes one '?' a character.
TEST(Przypomnienia, Windows1250Bytes) {
  ASSERT_TRUE(KodowanieWindows1250())
      << "Qt without the code page: the reminder file can't be written";
  const QString polskie = QStringLiteral("ąćęłńóśźżĄĆĘŁŃÓŚŹŻ");
  EXPECT_EQ(DoWindows1250(polskie),
            QByteArray("\xB9\xE6\xEA\xB3\xF1\xF3\x9C\x9F\xBF\xA5\xC6\xCA\xA3\xD1\xD3\x8C\x8F\xAF"));
  EXPECT_EQ(DoWindows1250(QStringLiteral("a®€–é漢")), QByteArray("a\xAE\x80\x96\xE9?"));
  EXPECT_EQ(
      DoWindows1250(QStringLiteral("„”—…äöüßÄÖÜáíúýčřšžť°§ abc 123")),
      QByteArray("\x84\x94\x97\x85\xE4\xF6\xFC\xDF\xC4\xD6\xDC\xE1\xED\xFA\xFD\xE8\xF8\x9A\x9E"
                 "\x9D\xB0\xA7 abc 123"));
  EXPECT_EQ(DoWindows1250(QStringLiteral("Ą😀ż€\u0001")), QByteArray("\xA5?\xBF\x80\x01"));
}

// With nothing due the file has two lines, CR LF, in Windows-1250; with no name day for today
// the first is empty. A missing store writes nothing.
TEST(Przypomnienia, NothingDueGivesTwoLines) {
  MagazynTestowy m;
  wykonaj(QStringLiteral("DELETE FROM imieniny"));
  wykonaj(QStringLiteral(
      "INSERT INTO imieniny (dzien, miesiac, imiona) VALUES (22, 11, 'Cecylii, Marka')"));
  wykonaj(QStringLiteral("INSERT INTO setup (tloaktywne, imie) VALUES ('1', 'Łukasz')"));
  QString blad;
  ASSERT_TRUE(ZapiszPrzypomnienia(&blad)) << blad.toStdString();
  EXPECT_EQ(plik(m), QByteArray("Cecylii, Marka\r\n\xA3ukasz\r\n"));

  wykonaj(QStringLiteral("DELETE FROM imieniny"));
  wykonaj(QStringLiteral("UPDATE setup SET imie=NULL"));
  ASSERT_TRUE(ZapiszPrzypomnienia());
  EXPECT_EQ(plik(m), QByteArray("\r\n\r\n"));

  QTemporaryDir pusty;
  UstawFolderDanych(pusty.path());
  EXPECT_FALSE(ZapiszPrzypomnienia(&blad));
  EXPECT_FALSE(blad.isEmpty());
  EXPECT_FALSE(QFile::exists(QDir(pusty.path()).filePath(QStringLiteral("cont.rmd"))));
}

// Due entries oldest first (newest id first within a day), then due transfers newest first;
// seven fields each, the separator scrubbed from the texts, nothing after today.
TEST(Przypomnienia, DueLinesInTheirOrders) {
  if (!tlumaczDaty()) GTEST_SKIP() << "the Jet translator does not translate dates yet";
  MagazynTestowy m;
  wykonaj(QStringLiteral("DELETE FROM imieniny"));
  wykonaj(QStringLiteral("INSERT INTO konta (nazwa, rodzaj) VALUES ('Gotówka', 1), ('Bank', 2)"));
  wykonaj(
      QStringLiteral("INSERT INTO kategorie (identyfikator, kategoria, nazwa, rodzaj) VALUES "
                     "('a', 'Root', 'Żywność', 2), ('a', 'Root', 'Pensja', 1)"));
  wykonaj(QStringLiteral("INSERT INTO kontrahent (skrocona) VALUES ('Sklep')"));
  wykonaj(
      QStringLiteral("INSERT INTO zaplanowane (data, rodzaj, przychod, wydatek, opis, kategoria, "
                     "konto, kontrahent) VALUES "
                     "('2026-11-20', 2, 0, 120, 'Obiad  ', 'a', 1, 0),"
                     "('2026-11-15', 1, 5000.5, 0, 'Wypłata ® listopad', 'a', 2, 1),"
                     "('2026-11-20', 2, 0, 10, 'Kawa', 'a', 1, 1),"
                     "('2026-11-23', 2, 0, 99, 'Jutro', 'a', 1, 0),"
                     "('2026-11-22', 2, 0, 1234567.89, 'Dziś', 'a', 1, 0)"));
  wykonaj(QStringLiteral(
      "INSERT INTO zaplanowanewewnetrzne (data, kwota, opis, zkonta, nakonto) VALUES "
      "('2026-11-10', 300, 'Na lokatę', 1, 2), ('2026-11-21', 50, 'Zwrot', 2, 1),"
      "('2026-11-21', 7, 'Drobne', 2, 1), ('2026-12-01', 1, 'Grudzień', 1, 2)"));
  ASSERT_TRUE(ZapiszPrzypomnienia());
  const QByteArray tresc = plik(m);
  ASSERT_TRUE(tresc.endsWith("\r\n"));
  const QList<QByteArray> linie = tresc.chopped(2).split('\n');
  for (const QByteArray& l : linie.mid(0, linie.size() - 1)) EXPECT_TRUE(l.endsWith('\r'));
  ASSERT_EQ(linie.size(), 2 + 4 + 3);
  EXPECT_EQ(linie[0], QByteArray("\r"));
  const QByteArray oczekiwane[] = {
      "15-lis\xAEPrzych\xF3"
      "d\xAE"
      "5 000.50\xAE"
      "Bank\xAEPensja\xAESklep\xAEWyp\xB3"
      "ata (R) listopad\r",
      "20-lis\xAEWydatek\xAE 10.00\xAEGot\xF3wka\xAE\xAFywno\x9C\xE6\xAESklep\xAEKawa\r",
      "20-lis\xAEWydatek\xAE 120.00\xAEGot\xF3wka\xAE\xAFywno\x9C\xE6\xAE\xAEObiad  \r",
      "22-lis\xAEWydatek\xAE"
      "1234 567.89\xAEGot\xF3wka\xAE\xAFywno\x9C\xE6\xAE\xAE"
      "Dzi\x9C\r",
      "21-lis\xAETransfer\xAE 7.00\xAE"
      "Bank\xAEGot\xF3wka\xAE\xAE"
      "Drobne\r",
      "21-lis\xAETransfer\xAE 50.00\xAE"
      "Bank\xAEGot\xF3wka\xAE\xAEZwrot\r",
      "10-lis\xAETransfer\xAE 300.00\xAEGot\xF3wka\xAE"
      "Bank\xAE\xAENa lokat\xEA"};
  for (int i = 0; i < 7; ++i) {
    EXPECT_EQ(linie[i + 2], oczekiwane[i]) << i;
    EXPECT_EQ(linie[i + 2].count('\xAE'), 6) << i;
  }
}

// The companion starts from the program's folder when it is there, timer.exe first.
TEST(Przypomnienia, StartsTheCompanion) {
  MagazynTestowy m;
  EXPECT_FALSE(UruchomPrzypominacz());
  const QDir dane(m.Folder());
  auto skrypt = [&](const QString& nazwa, const QString& slad) {
    QFile f(dane.filePath(nazwa));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(QStringLiteral("#!/bin/sh\npwd > \"%1\"\n").arg(dane.filePath(slad)).toUtf8());
    f.close();
    f.setPermissions(f.permissions() | QFileDevice::ExeOwner);
  };
  auto czekaj = [&](const QString& slad) {
    QElapsedTimer t;
    t.start();
    QFile f(dane.filePath(slad));
    while (t.elapsed() < 5000) {
      if (f.open(QIODevice::ReadOnly)) {
        const QByteArray s = f.readAll().trimmed();
        f.close();
        if (!s.isEmpty()) return QString::fromUtf8(s);
      }
      QThread::msleep(20);
    }
    return QString();
  };
  skrypt(QStringLiteral("timer"), QStringLiteral("slad"));
  ASSERT_TRUE(UruchomPrzypominacz());
  QDir program = dane;
  program.cdUp();
  EXPECT_EQ(czekaj(QStringLiteral("slad")), program.canonicalPath());
  skrypt(QStringLiteral("timer.exe"), QStringLiteral("slad_exe"));
  ASSERT_TRUE(UruchomPrzypominacz());
  EXPECT_FALSE(czekaj(QStringLiteral("slad_exe")).isEmpty());
}
