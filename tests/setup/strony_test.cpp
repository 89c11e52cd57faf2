// Stores made with the old 1 KiB pages move to the larger pages of new stores at start: every row
// survives exactly, a password-locked store keeps its password, and neither a kill at any moment,
// nor what an interrupted move left behind, nor a full disk costs the user the store.

#include "store/strony.h"

#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <csignal>
#include <map>
#include <thread>

#include "budowa.h"
#include "common/magazyn_testowy.h"
#include "imports/kopie.h"
#include "setup/haslo.h"
#include "setup/start_pomoc.h"
#include "store/baza.h"
#include "store/start.h"
#include "store/zamek.h"

namespace {
const QString kHaslo = QStringLiteral("Źdźbło 'trawy' ŻÓŁW");

void wykonaj(const QString& sql) { ASSERT_TRUE(pubBaza().Wykonaj(sql)) << sql.toStdString(); }

// Rows a user typed with what tends to break copies: the largest amount, apostrophes, Polish
// letters in both cases, on top of a generated sample.
void dopiszTrudneWiersze() {
  wykonaj(QStringLiteral("INSERT INTO konta (nazwa, rodzaj) VALUES ('Łódź ''oszczędności''', 2)"));
  wykonaj(
      QStringLiteral("INSERT INTO kategorie (identyfikator, kategoria, nazwa, rodzaj) VALUES "
                     "('zz', 'Root', 'Śliwki ''węgierki''', 1)"));
  wykonaj(QStringLiteral(
              "INSERT INTO transakcje (data, rodzaj, przychod, wydatek, opis, kategoria, konto, "
              "kontrahent) VALUES (#11/21/2026#, 1, 999999999999.99, 0, 'Zażółć ''gęślą'' JAŹŃ', "
              "'zz', %1, 0)")
              .arg(PoliczIle(QStringLiteral("SELECT MAX(id) AS ile FROM konta"))));
}

// Every row of every table, in key order: one digest per table.
using Odcisk = std::map<QString, QByteArray>;
Odcisk odcisk(Baza& b) {
  Odcisk o;
  const Rekordy t = b.Czytaj(QStringLiteral(
      "SELECT name FROM sqlite_master WHERE type='table' AND name NOT LIKE 'sqlite_%' ORDER BY "
      "name"));
  for (Rekordy rs = t; !rs.Eof(); rs.MoveNext()) {
    const QString nazwa = rs.Tekst(QStringLiteral("name"));
    const Rekordy w = b.Czytaj(QStringLiteral("SELECT * FROM \"%1\" ORDER BY 1, 2").arg(nazwa));
    EXPECT_TRUE(w.Ok()) << nazwa.toStdString();
    QCryptographicHash h(QCryptographicHash::Sha256);
    for (Rekordy r = w; !r.Eof(); r.MoveNext())
      for (int i = 0; i < r.LiczbaPol(); ++i) {
        const QVariant v = r.Pole(i);
        h.addData(QByteArray::number(v.typeId()) + '|' + v.toString().toUtf8() + '\x1f');
      }
    o[nazwa] = h.result().toHex().left(16) + ' ' + QByteArray::number(w.RecordCount());
  }
  return o;
}

// The tables whose rows differ, for the failure message.
std::string rozne(const Odcisk& a, const Odcisk& b) {
  std::string r;
  for (const auto& [t, d] : a)
    if (!b.count(t) || b.at(t) != d) r += t.toStdString() + " ";
  return r.empty() && a.size() != b.size() ? "(tables)" : r;
}

// The program's start-up writes (the setup row, planned rows of recurring rules): a start and its
// end, so that the rows compared after a later start are the same.
void pierwszyStart(const QString& folder) {
  ASSERT_EQ(Main(parametry(folder), ekran(1280)).wynik, WynikStartu::Dziala);
  zamknijGlowne();
  CzekajNaKopie();
  ASSERT_TRUE(OtworzBaze());
}

struct Otwarty {
  bool ok = false;
  int strona = 0;
  Odcisk odcisk;
  QString haslo;
};
// Opens the file by itself, as another program would.
Otwarty otworz(const QString& plik, const QByteArray& klucz = {}) {
  Otwarty o;
  Baza b;
  QString blad;
  if (!b.Otworz(plik, &blad, klucz, true)) return o;
  o.ok = true;
  o.strona = b.RozmiarStrony();
  o.odcisk = odcisk(b);
  o.haslo = b.Czytaj(QStringLiteral("SELECT haslo FROM setup")).Tekst(QStringLiteral("haslo"));
  return o;
}

// Puts in place of the open store the same rows in a file of 1 KiB pages under klucz, as an
// earlier version made it; the store is closed afterwards.
void zrobStaraBaze(const QString& plik, const QByteArray& klucz) {
  const QString stara = plik + QStringLiteral(".stara");
  QFile::remove(stara);
  // Made empty here: the store's connection may not create files.
  ASSERT_TRUE(zapisz(stara, QByteArray()));
  sqlite3* db = pubBaza().Uchwyt();
  sqlite3_stmt* st = nullptr;
  ASSERT_EQ(sqlite3_prepare_v2(db, "ATTACH DATABASE ?1 AS stara KEY ?2", -1, &st, nullptr),
            SQLITE_OK);
  const QByteArray sciezka = stara.toUtf8();
  sqlite3_bind_text(st, 1, sciezka.constData(), -1, SQLITE_TRANSIENT);
  sqlite3_bind_blob(st, 2, klucz.constData(), int(klucz.size()), SQLITE_TRANSIENT);
  ASSERT_EQ(sqlite3_step(st), SQLITE_DONE);
  sqlite3_finalize(st);
  ASSERT_TRUE(UstawRozmiarStrony(db, DawnyRozmiarStrony, "stara"));
  ASSERT_EQ(sqlite3_exec(db, "SELECT sqlcipher_export('stara')", nullptr, nullptr, nullptr),
            SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(db, "DETACH DATABASE stara", nullptr, nullptr, nullptr), SQLITE_OK);
  ZamknijBaze();
  ASSERT_TRUE(QFile::remove(plik));
  ASSERT_TRUE(QFile::rename(stara, plik));
  ASSERT_EQ(otworz(plik, klucz).strona, DawnyRozmiarStrony);
}

QStringList resztki(const QString& folder) {
  return QDir(folder).entryList({QStringLiteral("money.fns*")}, QDir::Files);
}

RozmiarProbki probka() {
  RozmiarProbki r = RozmiarDlaWpisow(1500);
  r.dzienKoncowy = QStringLiteral("2026-11-30");
  return r;
}
}  // namespace

// The first start of a store of 1 KiB pages moves it; the copy taken before the move is the old
// store, and a later start has nothing to move.
TEST(Strony, StartMovesAnOldStoreKeepingEveryRow) {
  const RozmiarProbki r = probka();
  MagazynTestowy m(1, &r);
  EXPECT_EQ(pubBaza().RozmiarStrony(), RozmiarStronyBazy) << "new stores have the larger pages";
  dopiszTrudneWiersze();
  pierwszyStart(m.Folder());
  const Odcisk przed = odcisk(pubBaza());
  zrobStaraBaze(m.Plik(), KluczBazy);

  ASSERT_EQ(Main(parametry(m.Folder()), ekran(1280)).wynik, WynikStartu::Dziala);
  zamknijGlowne();
  CzekajNaKopie();
  ZamknijBaze();
  const Otwarty po = otworz(m.Plik());
  ASSERT_TRUE(po.ok);
  EXPECT_EQ(po.strona, RozmiarStronyBazy);
  EXPECT_EQ(po.odcisk, przed) << rozne(po.odcisk, przed);
  EXPECT_EQ(resztki(m.Folder()), QStringList{QStringLiteral("money.fns")});
  EXPECT_TRUE(logDanych(m.Folder()).contains(QStringLiteral("moved from pages of 1024")));
  ASSERT_TRUE(OtworzBaze());
  EXPECT_EQ(PoliczIle(QStringLiteral("SELECT COUNT(*) AS ile FROM transakcje WHERE opis='ZAŻÓŁĆ "
                                     "''GĘŚLĄ'' jaźń' AND przychod=999999999999.99")),
            1);

  // The copy before the move is the old store, whole.
  int przedAktualizacja = 0;
  for (const Kopia& k : ListaKopii()) {
    if (k.powod != PowodKopii::Aktualizacja) continue;
    ++przedAktualizacja;
    EXPECT_TRUE(SprawdzKopie(k.plik));
    const Otwarty kopia = otworz(k.plik);
    EXPECT_EQ(kopia.strona, DawnyRozmiarStrony);
    EXPECT_EQ(kopia.odcisk, przed) << rozne(kopia.odcisk, przed);
  }
  EXPECT_EQ(przedAktualizacja, 1);

  // Nothing left to move: no second copy.
  ZamknijBaze();
  ASSERT_EQ(Main(parametry(m.Folder()), ekran(1280)).wynik, WynikStartu::Dziala);
  zamknijGlowne();
  CzekajNaKopie();
  int kopiePo = 0;
  for (const Kopia& k : ListaKopii()) kopiePo += k.powod == PowodKopii::Aktualizacja;
  EXPECT_EQ(kopiePo, 1);
  EXPECT_EQ(otworz(m.Plik()).strona, RozmiarStronyBazy);
}

// A store locked by a password moves after the gate, under the same password: the file opens
// with it alone, and setup keeps the same hash.
TEST(Strony, LockedStoreMovesWithItsPassword) {
  MagazynTestowy m;
  WczytajSetup();
  dopiszTrudneWiersze();
  ASSERT_TRUE(UstawHasloBazy(kHaslo));
  UstawKluczSesji({});
  odpowiadajBramie({kHaslo});
  pierwszyStart(m.Folder());
  const Odcisk przed = odcisk(pubBaza());
  zrobStaraBaze(m.Plik(), kHaslo.toUtf8());
  const Otwarty stara = otworz(m.Plik(), kHaslo.toUtf8());
  ASSERT_TRUE(stara.ok);
  ASSERT_FALSE(stara.haslo.isEmpty());

  UstawKluczSesji({});
  odpowiadajBramie({kHaslo});
  ASSERT_EQ(Main(parametry(m.Folder()), ekran(1280)).wynik, WynikStartu::Dziala);
  zamknijGlowne();
  CzekajNaKopie();
  ZamknijBaze();
  const Otwarty po = otworz(m.Plik(), kHaslo.toUtf8());
  ASSERT_TRUE(po.ok);
  EXPECT_EQ(po.strona, RozmiarStronyBazy);
  EXPECT_EQ(po.odcisk, przed) << rozne(po.odcisk, przed);
  EXPECT_EQ(po.haslo, stara.haslo);
  EXPECT_FALSE(otworz(m.Plik()).ok) << "the program's own key must not open a locked store";
  EXPECT_FALSE(otworz(m.Plik(), kHaslo.toLower().toUtf8()).ok);
  UstawKluczSesji({});
}

// What a move stopped half-way leaves (an unfinished copy, its journal, the old file's second
// name) goes at the next start; a move killed at random moments always leaves a store with every
// row, of either page size, which the next start finishes.
TEST(Strony, InterruptedMoveIsHarmless) {
  const RozmiarProbki r = probka();
  MagazynTestowy m(1, &r);
  dopiszTrudneWiersze();
  pierwszyStart(m.Folder());
  const Odcisk przed = odcisk(pubBaza());
  zrobStaraBaze(m.Plik(), KluczBazy);
  const QByteArray staryPlik = zawartosc(m.Plik());

  ASSERT_TRUE(zapisz(m.Plik() + QStringLiteral(".nowy"), QByteArray(5000, 'x')));
  ASSERT_TRUE(zapisz(m.Plik() + QStringLiteral(".nowy-journal"), QByteArray(512, '\0')));
  ASSERT_EQ(::link(QFile::encodeName(m.Plik()).constData(),
                   QFile::encodeName(m.Plik() + QStringLiteral(".kopia")).constData()),
            0);
  ASSERT_EQ(Main(parametry(m.Folder()), ekran(1280)).wynik, WynikStartu::Dziala);
  zamknijGlowne();
  CzekajNaKopie();
  ZamknijBaze();
  EXPECT_EQ(resztki(m.Folder()), QStringList{QStringLiteral("money.fns")});
  Otwarty po = otworz(m.Plik());
  EXPECT_EQ(po.strona, RozmiarStronyBazy);
  EXPECT_EQ(po.odcisk, przed) << rozne(po.odcisk, przed);

  // One move, timed from the open, sets the span the kills fall in.
  auto odNowa = [&] {
    ZamknijBaze();
    UsunResztkiPrzekluczenia();
    ASSERT_TRUE(zapisz(m.Plik(), staryPlik));
  };
  odNowa();
  QElapsedTimer t;
  t.start();
  ASSERT_TRUE(OtworzBaze());
  ASSERT_TRUE(PrzeniesNaNoweStrony());
  const qint64 jeden = qMax<qint64>(t.elapsed(), 20);
  int stare = 0, nowe = 0;
  auto* los = QRandomGenerator::global();
  for (int proba = 0; proba < 12; ++proba) {
    odNowa();
    const pid_t dziecko = ::fork();
    ASSERT_GE(dziecko, 0);
    if (dziecko == 0) {
      OtworzBaze();
      PrzeniesNaNoweStrony();
      // Waits to be killed, so that every try ends the same way.
      for (;;) ::pause();
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(los->bounded(jeden * 2 + 1)));
    ::kill(dziecko, SIGKILL);
    int stan = 0;
    ::waitpid(dziecko, &stan, 0);
    ASSERT_TRUE(WIFSIGNALED(stan)) << "try " << proba;
    po = otworz(m.Plik());
    ASSERT_TRUE(po.ok) << "try " << proba << ": the store does not open";
    EXPECT_EQ(po.odcisk, przed) << rozne(po.odcisk, przed) << "try " << proba;
    (po.strona == DawnyRozmiarStrony ? stare : nowe)++;
    // The next start clears what was left and finishes the move.
    ASSERT_EQ(OtworzBazeIZbadaj(), StanBazy::Otwarta) << "try " << proba;
    UsunResztkiPrzekluczenia();
    ASSERT_TRUE(PrzeniesNaNoweStrony()) << "try " << proba;
    EXPECT_EQ(pubBaza().RozmiarStrony(), RozmiarStronyBazy);
    EXPECT_EQ(resztki(m.Folder()), QStringList{QStringLiteral("money.fns")});
  }
  EXPECT_GT(stare, 0);
  EXPECT_GT(nowe, 0);
}

// A disk that fills during the copy: the move gives up, the store stays open as it was and takes
// new entries, and the unfinished copy is gone.
TEST(Strony, FullDiskLeavesTheOldStoreInUse) {
  const RozmiarProbki r = probka();
  MagazynTestowy m(1, &r);
  dopiszTrudneWiersze();
  const Odcisk przed = odcisk(pubBaza());
  zrobStaraBaze(m.Plik(), KluczBazy);
  ASSERT_TRUE(OtworzBaze());

  // No file of this process may grow past a quarter of the store.
  const auto dawnySygnal = std::signal(SIGXFSZ, SIG_IGN);
  rlimit dawny{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &dawny), 0);
  rlimit maly = dawny;
  maly.rlim_cur = rlim_t(QFileInfo(m.Plik()).size() / 4);
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &maly), 0);
  QString blad;
  const bool przeniesiona = PrzeniesNaNoweStrony(&blad);
  ::setrlimit(RLIMIT_FSIZE, &dawny);
  std::signal(SIGXFSZ, dawnySygnal);

  EXPECT_FALSE(przeniesiona);
  EXPECT_FALSE(blad.isEmpty());
  ASSERT_TRUE(pubBaza().Otwarta());
  EXPECT_EQ(pubBaza().RozmiarStrony(), DawnyRozmiarStrony);
  EXPECT_EQ(odcisk(pubBaza()), przed);
  EXPECT_EQ(resztki(m.Folder()), QStringList{QStringLiteral("money.fns")});
  wykonaj(QStringLiteral("UPDATE konta SET nazwa='Po awarii' WHERE nazwa='ŁÓDŹ ''oszczędności'''"));
  EXPECT_EQ(PoliczIle(QStringLiteral("SELECT COUNT(*) AS ile FROM konta WHERE nazwa='po awarii'")),
            1);
  // With room again the move goes through.
  ASSERT_TRUE(PrzeniesNaNoweStrony(&blad)) << blad.toStdString();
  EXPECT_EQ(pubBaza().RozmiarStrony(), RozmiarStronyBazy);
}
