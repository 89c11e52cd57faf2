// The password locks the store: the file opens with the password and not with the program's
// key, and no interruption of the change of key leaves a store that opens with neither.

#include "store/zamek.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <csignal>
#include <thread>

#include "common/magazyn_testowy.h"
#include "setup/haslo.h"
#include "setup/start_pomoc.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/przypomnienia.h"
#include "store/session.h"
#include "store/start.h"

namespace {
const QString kHaslo = QStringLiteral("Zażółć 'gęślą' 1");

// Opens the file by itself, as another program would; the key "" is the program's own.
bool otwieraSie(const QString& plik, const QString& klucz, qint64* konta = nullptr,
                QString* haslo = nullptr) {
  Baza b;
  QString blad;
  if (!b.Otworz(plik, &blad, klucz.toUtf8(), true)) return false;
  const Rekordy rs = b.Czytaj(QStringLiteral("SELECT COUNT(*) AS ile FROM konta"));
  if (!rs.Ok()) return false;
  if (konta) *konta = rs.Pole(QStringLiteral("ile")).toLongLong();
  if (haslo)
    *haslo = b.Czytaj(QStringLiteral("SELECT haslo FROM setup")).Tekst(QStringLiteral("haslo"));
  return true;
}

void wykonaj(const QString& sql) { ASSERT_TRUE(pubBaza().Wykonaj(sql)) << sql.toStdString(); }

// A store with two accounts and a planned expense due today.
void przygotuj() {
  WczytajSetup();
  wykonaj(QStringLiteral("INSERT INTO konta (nazwa, rodzaj) VALUES ('Gotówka', 1), ('Konto', 2)"));
  wykonaj(
      QStringLiteral("INSERT INTO kategorie (identyfikator, kategoria, nazwa, rodzaj) VALUES "
                     "('a', 'Root', 'Czynsz', 2)"));
  wykonaj(
      QStringLiteral("INSERT INTO zaplanowane (data, rodzaj, przychod, wydatek, opis, "
                     "kategoria, konto, kontrahent) VALUES (#11/22/2026#, 2, '0', "
                     "'1234,56', 'Czynsz za listopad', 'a', 1, 0)"));
}

// A companion in the data folder that leaves a trace when started.
void companion(const QString& folder) {
  const QString slad = QDir(folder).filePath(QStringLiteral("slad"));
  const QString timer = QDir(folder).filePath(QStringLiteral("timer"));
  ASSERT_TRUE(zapisz(timer, QStringLiteral("#!/bin/sh\ntouch \"%1\"\n").arg(slad).toUtf8()));
  QFile::setPermissions(timer,
                        QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

bool czekajNaSlad(const QString& folder) {
  QElapsedTimer t;
  t.start();
  while (t.elapsed() < 5000) {
    if (QFile::exists(QDir(folder).filePath(QStringLiteral("slad")))) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  return false;
}
}  // namespace

// A password set locks the file: it opens with the password alone, setup keeps only a salted
// hash, and neither the file nor the log holds the password. The gate opens it with the
// password typed, exactly and case-sensitively, three tries; the reminder run can't read it and
// leaves the last file for the companion, which it still starts; the end of a normal run writes
// the file afresh. Removing the password brings the program's key back.
TEST(Zamek, LockedStoreOpensOnlyWithThePassword) {
  MagazynTestowy m;
  przygotuj();
  QString blad;
  ASSERT_TRUE(UstawHasloBazy(kHaslo, &blad)) << blad.toStdString();
  QString hash;
  qint64 konta = 0;
  EXPECT_FALSE(otwieraSie(m.Plik(), QString()));
  EXPECT_FALSE(otwieraSie(m.Plik(), kHaslo.toLower()));
  ASSERT_TRUE(otwieraSie(m.Plik(), kHaslo, &konta, &hash));
  EXPECT_EQ(konta, 2);
  EXPECT_TRUE(CzyHashHasla(hash));
  EXPECT_TRUE(SprawdzHaslo(kHaslo, hash));
  EXPECT_EQ(QDir(m.Folder()).entryList({QStringLiteral("money.fns*")}, QDir::Files),
            QStringList{QStringLiteral("money.fns")});
  ZamknijBaze();
  for (const QString& plik : QDir(m.Folder()).entryList(QDir::Files)) {
    const QByteArray bajty = zawartosc(QDir(m.Folder()).filePath(plik));
    EXPECT_FALSE(bajty.contains(kHaslo.toUtf8())) << plik.toStdString();
    EXPECT_FALSE(bajty.contains("gęślą")) << plik.toStdString();
  }

  // The reminder run: the last file stays, the companion starts.
  const QString cont = QDir(m.Folder()).filePath(QStringLiteral("cont.rmd"));
  ASSERT_TRUE(zapisz(cont, "ostatni\r\n"));
  companion(m.Folder());
  UstawKluczSesji({});
  EXPECT_EQ(Main(przypomnienie(m.Folder()), ekran(1280)).kodWyjscia, 0);
  EXPECT_EQ(zawartosc(cont), QByteArray("ostatni\r\n"));
  EXPECT_TRUE(czekajNaSlad(m.Folder()));
  EXPECT_TRUE(logDanych(m.Folder()).contains(QStringLiteral("locked by a password")));

  // Three wrong tries at the gate end the run with the store as it was.
  const QByteArray przed = zawartosc(m.Plik());
  odpowiadajBramie({kHaslo.toUpper(), kHaslo + QLatin1Char(' '), QStringLiteral("xqz")});
  EXPECT_EQ(Main(parametry(m.Folder()), ekran(1280)).wynik, WynikStartu::Koniec);
  EXPECT_EQ(frmMain::Instancja(), nullptr);
  ASSERT_EQ(m.host.pokazane.size(), 4u);
  EXPECT_EQ(m.host.pokazane[0].tekst, Napis(QStringLiteral("frmHaslo4")));
  EXPECT_EQ(m.host.pokazane[3].tekst, Napis(QStringLiteral("frmHaslo6")));
  EXPECT_FALSE(m.host.pokazane[3].tekst.isEmpty()) << "the gate speaks before the store is open";
  EXPECT_EQ(zawartosc(m.Plik()), przed);
  EXPECT_TRUE(widoczneOkna().isEmpty());

  // The right password: the main window; its end writes the reminder file from the store.
  m.host.pokazane.clear();
  odpowiadajBramie({kHaslo});
  ASSERT_EQ(Main(parametry(m.Folder()), ekran(1280)).wynik, WynikStartu::Dziala);
  EXPECT_NE(frmMain::Instancja(), nullptr);
  EXPECT_TRUE(m.host.pokazane.empty());
  EXPECT_TRUE(sesja.pubUstawienia.haslo.isEmpty());
  zamknijGlowne();
  EXPECT_TRUE(zawartosc(cont).contains("Czynsz za listopad"));
  EXPECT_FALSE(logDanych(m.Folder()).contains(kHaslo));

  // No password: the program's key again, and no gate.
  ASSERT_TRUE(OtworzBaze());
  ASSERT_TRUE(UstawHasloBazy(QString(), &blad)) << blad.toStdString();
  EXPECT_TRUE(otwieraSie(m.Plik(), QString(), &konta, &hash));
  EXPECT_TRUE(hash.isEmpty());
  EXPECT_FALSE(otwieraSie(m.Plik(), kHaslo));
  ZamknijBaze();
  UstawKluczSesji({});
  ASSERT_EQ(Main(parametry(m.Folder()), ekran(1280)).wynik, WynikStartu::Dziala);
  EXPECT_TRUE(m.host.pokazane.empty());
  zamknijGlowne();
}

// The change of key killed at any moment, many times over: the store always opens with one of
// the keys it went between, whole and with the hash that belongs to that key, and what the
// interrupted change left beside it goes at the next start.
TEST(Zamek, KillDuringTheChangeOfKeyLeavesAStoreThatOpens) {
  MagazynTestowy m;
  przygotuj();
  const QStringList klucze = {QStringLiteral("Pierwsze hasło"), QStringLiteral("drugie'HASŁO"),
                              QString()};
  // One change of key, timed, sets the span the kills fall in.
  QElapsedTimer t;
  t.start();
  ASSERT_TRUE(UstawHasloBazy(klucze[0]));
  const qint64 jedna = qMax<qint64>(t.elapsed(), 20);
  ZamknijBaze();

  int biezacy = 0;  // the key the store opens with now
  int przedZmiana = 0, poZmianie = 0, wKopii = 0;
  auto* los = QRandomGenerator::global();
  for (int proba = 0; proba < 24; ++proba) {
    const pid_t dziecko = ::fork();
    ASSERT_GE(dziecko, 0);
    if (dziecko == 0) {
      // The child changes the key round and round until it is killed.
      UstawKluczSesji(klucze[biezacy].toUtf8());
      for (int i = 1; i < 100; ++i) UstawHasloBazy(klucze[(biezacy + i) % 3]);
      ::_exit(0);
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(los->bounded(qint64(jedna * 5 / 2) + 1)));
    ::kill(dziecko, SIGKILL);
    int stan = 0;
    ::waitpid(dziecko, &stan, 0);
    ASSERT_TRUE(WIFSIGNALED(stan)) << "try " << proba;

    int otwiera = -1;
    for (int k = 0; k < 3 && otwiera < 0; ++k) {
      qint64 konta = 0;
      QString hash;
      if (!otwieraSie(m.Plik(), klucze[k], &konta, &hash)) continue;
      otwiera = k;
      EXPECT_EQ(konta, 2) << "try " << proba;
      if (klucze[k].isEmpty())
        EXPECT_TRUE(hash.isEmpty()) << "try " << proba;
      else
        EXPECT_TRUE(SprawdzHaslo(klucze[k], hash)) << "try " << proba;
    }
    ASSERT_GE(otwiera, 0) << "try " << proba << ": the store opens with none of the keys";
    (otwiera == biezacy ? przedZmiana : poZmianie)++;
    biezacy = otwiera;

    if (QFile::exists(m.Plik() + QStringLiteral(".nowy"))) ++wKopii;
    // The next start opens it and clears what the change left behind.
    UstawKluczSesji(klucze[biezacy].toUtf8());
    ASSERT_EQ(OtworzBazeIZbadaj(), StanBazy::Otwarta) << "try " << proba;
    UsunResztkiPrzekluczenia();
    EXPECT_EQ(QDir(m.Folder()).entryList({QStringLiteral("money.fns*")}, QDir::Files),
              QStringList{QStringLiteral("money.fns")});
    ZamknijBaze();
  }
  // The kills fell while the copy was being made, and both before and after a swap.
  EXPECT_GT(wKopii, 0);
  EXPECT_GT(przedZmiana, 0);
  EXPECT_GT(poZmianie, 0);
}
