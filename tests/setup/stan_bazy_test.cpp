// The store and the files beside it when the disk, the permissions or the folder stand in the
// way: each case is told for what it is, logged, and leaves the user's files as they were.

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <cstring>

#include "common/magazyn_testowy.h"
#include "setup/haslo.h"
#include "setup/start_pomoc.h"
#include "store/baza.h"
#include "store/dzis.h"
#include "store/napis.h"
#include "store/przypomnienia.h"
#include "store/start.h"

namespace {
void wykonaj(const QString& sql) { ASSERT_TRUE(pubBaza().Wykonaj(sql)) << sql.toStdString(); }

// A store with a name, an account, a category and many planned entries in December: on 22
// November the reminder file has its two lines, at the end of December it is much larger than
// one page of the disk.
void wypelnijPrzypomnienia(int ile) {
  WczytajSetup();
  wykonaj(QStringLiteral("UPDATE setup SET imie='Łucja'"));
  wykonaj(QStringLiteral("INSERT INTO konta (nazwa, rodzaj) VALUES ('Gotówka', 1)"));
  wykonaj(
      QStringLiteral("INSERT INTO kategorie (identyfikator, kategoria, nazwa, rodzaj) VALUES "
                     "('a', 'Root', 'Żywność', 2)"));
  pubBaza().Transakcja([&] {
    for (int i = 0; i < ile; ++i)
      pubBaza().Wykonaj(
          QStringLiteral("INSERT INTO zaplanowane (data, rodzaj, przychod, wydatek, opis, "
                         "kategoria, konto, kontrahent) VALUES (#12/%1/2026#, 2, '0', "
                         "'12345678,91', %2, 'a', 1, 0)")
              .arg(1 + i % 22)
              .arg(SqlTekst(QStringLiteral("Rata %1 za mieszkanie na ulicy Źródlanej w Łodzi, "
                                           "zapłacić do końca miesiąca")
                                .arg(i))));
    return true;
  });
}

QStringList ukrytePliki(const QString& folder) {
  return QDir(folder).entryList({QStringLiteral(".*")}, QDir::Files | QDir::Hidden);
}

// A small file system of its own, which the test can really fill. Mounting needs root; where
// the test may not mount, the process's file size limit stands in for the full disk: the
// kernel refuses the write past it just the same.
class MalyDysk {
 public:
  explicit MalyDysk(int kilobajty) {
    const QByteArray opcje = QByteArray("size=") + QByteArray::number(kilobajty) + "k,mode=0700";
    zamontowany_ = ::mount("tmpfs", QFile::encodeName(dir_.path()).constData(), "tmpfs", 0,
                           opcje.constData()) == 0;
  }
  ~MalyDysk() {
    Zwolnij();
    if (zamontowany_) ::umount2(QFile::encodeName(dir_.path()).constData(), MNT_DETACH);
  }
  bool Zamontowany() const { return zamontowany_; }
  QString Sciezka() const { return dir_.path(); }

  // Takes all the space left; with no file system of its own, files may not grow past 16 KiB.
  void Zapelnij() {
    if (!zamontowany_) {
      ::getrlimit(RLIMIT_FSIZE, &dawnyLimit_);
      std::signal(SIGXFSZ, SIG_IGN);
      rlimit r = dawnyLimit_;
      r.rlim_cur = 16 * 1024;
      ::setrlimit(RLIMIT_FSIZE, &r);
      limit_ = true;
      return;
    }
    QFile f(QDir(dir_.path()).filePath(QStringLiteral("wypelniacz")));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    const QByteArray blok(4096, 'z');
    while (f.write(blok) == blok.size()) {
    }
  }
  void Zwolnij() {
    if (limit_) ::setrlimit(RLIMIT_FSIZE, &dawnyLimit_);
    limit_ = false;
    QFile::remove(QDir(dir_.path()).filePath(QStringLiteral("wypelniacz")));
  }

 private:
  QTemporaryDir dir_;
  bool zamontowany_ = false;
  bool limit_ = false;
  rlimit dawnyLimit_{};
};

// Root isn't stopped by permissions: for the while, the test runs as an ordinary user, to whom
// the data folder belongs and the store file is read-only, as it is for a user whose store lies
// on a copy from a CD or in someone else's folder.
class BezPrawaZapisu {
 public:
  BezPrawaZapisu(const QString& folder, const QString& plik) : plik_(plik) {
    ::chmod(QFile::encodeName(plik).constData(), 0444);
    if (::geteuid() != 0) return;
    for (QDirIterator it(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
         it.hasNext();)
      ::chown(QFile::encodeName(it.next()).constData(), kNikt, kNikt);
    ::chown(QFile::encodeName(folder).constData(), kNikt, kNikt);
    root_ = ::setegid(kNikt) == 0 && ::seteuid(kNikt) == 0;
  }
  ~BezPrawaZapisu() {
    if (root_) {
      ::seteuid(0);
      ::setegid(0);
    }
    ::chmod(QFile::encodeName(plik_).constData(), 0600);
  }
  bool Dziala() const { return ::geteuid() != 0; }

 private:
  static constexpr uid_t kNikt = 65534;
  QString plik_;
  bool root_ = false;
};
}  // namespace

// The reminder run on a full disk, with a file of two lines (which the disk's cache would take
// at first) and with a long one: the reminder file of the last run stays whole, no piece of the
// new one is left behind, and the log says which file and why. With room again the same run
// writes the file.
TEST(StanBazy, FullDiskKeepsTheLastReminderFile) {
  MagazynTestowy m;
  wypelnijPrzypomnienia(300);
  ZamknijBaze();
  MalyDysk dysk(2048);
  QString folder = m.Folder();
  if (dysk.Zamontowany()) {
    folder = dysk.Sciezka();
    ASSERT_TRUE(QFile::copy(m.Plik(), QDir(folder).filePath(QStringLiteral("money.fns"))));
  }
  const QString cont = QDir(folder).filePath(QStringLiteral("cont.rmd"));
  const QByteArray stary = QByteArray("Cecylii\r\n\xA3ucja\r\n2026-11-21\r\n");
  ASSERT_TRUE(zapisz(cont, stary));
  // The log has its first page already: its next lines fit where the reminder file can't.
  ASSERT_TRUE(zapisz(QDir(folder).filePath(QStringLiteral("zorvik.log")), "start\n"));

  const QString powod = QString::fromLocal8Bit(std::strerror(dysk.Zamontowany() ? ENOSPC : EFBIG));
  dysk.Zapelnij();
  for (const QDate dzien : {QDate(2026, 11, 22), QDate(2026, 12, 31)}) {
    UstawDzis(dzien);
    const Start w = Main(przypomnienie(folder), ekran(1280));
    EXPECT_EQ(w.wynik, WynikStartu::Koniec);
    EXPECT_EQ(zawartosc(cont), stary) << dzien.toString().toStdString();
    EXPECT_EQ(ukrytePliki(folder), QStringList()) << "no half-written copy is left";
    ZamknijBaze();
  }
  dysk.Zwolnij();
  const QString log = logDanych(folder);
  EXPECT_EQ(log.count(cont + QStringLiteral(": ") + powod), 2) << log.toStdString();

  ASSERT_EQ(Main(przypomnienie(folder), ekran(1280)).wynik, WynikStartu::Koniec);
  const QByteArray nowy = zawartosc(cont);
  EXPECT_GT(nowy.size(), 16 * 1024);
  EXPECT_EQ(nowy.split('\n').value(1), QByteArray("\xA3ucja\r"));
  EXPECT_EQ(nowy.count("\r\n"), 2 + 300);
  ZamknijBaze();
}

// A store the user may not write to is told as such, with where it lies and what to do, and
// logged; it is not reported as missing and stays untouched. The reminder run, which only
// reads, still writes the reminder file from it.
TEST(StanBazy, ReadOnlyStoreHasItsOwnMessage) {
  MagazynTestowy m;
  wypelnijPrzypomnienia(3);
  ZamknijBaze();
  const QByteArray przed = zawartosc(m.Plik());
  QStringList teksty;
  SrodowiskoStartu s = ekran(1280);
  s.komunikatBrakuBazy = [&](const QString& tekst, const QString& tytul) {
    teksty << tekst << tytul;
  };
  const QString cont = QDir(m.Folder()).filePath(QStringLiteral("cont.rmd"));
  {
    BezPrawaZapisu ro(m.Folder(), m.Plik());
    ASSERT_TRUE(ro.Dziala());
    const Start w = Main(parametry(m.Folder(), 1), s);
    EXPECT_EQ(w.wynik, WynikStartu::Koniec);
    EXPECT_EQ(w.kodWyjscia, 1);
    EXPECT_EQ(frmMain::Instancja(), nullptr);
    ASSERT_EQ(teksty.size(), 2);
    EXPECT_EQ(teksty[0],
              Napis(QStringLiteral("Module156"))
                  .arg(QDir::toNativeSeparators(m.Plik()), QDir::toNativeSeparators(m.Folder()))
                  .replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    EXPECT_TRUE(teksty[0].contains(QStringLiteral("tylko do odczytu")));
    EXPECT_EQ(teksty[1], Napis(QStringLiteral("Module157")));
    EXPECT_TRUE(logDanych(m.Folder()).contains(m.Plik() + QStringLiteral(": read-only")))
        << logDanych(m.Folder()).toStdString();

    teksty.clear();
    QFile::remove(cont);
    EXPECT_EQ(Main(przypomnienie(m.Folder()), s).kodWyjscia, 0);
    EXPECT_TRUE(teksty.isEmpty());
    EXPECT_EQ(zawartosc(cont).split('\n').value(1), QByteArray("\xA3ucja\r"));
    ZamknijBaze();
  }
  if (frmMain::Instancja()) zamknijGlowne();
  EXPECT_EQ(zawartosc(m.Plik()), przed);
}

// Every file the program makes in the data folder is the user's alone, older ones readable by
// others included, the store after its key changed as well; the folder it makes for its socket
// is the user's alone, and one that others may enter is not used.
TEST(StanBazy, FilesArePrivate) {
  MagazynTestowy m;
  const QDir d(m.Folder());
  const QString cont = d.filePath(QStringLiteral("cont.rmd"));
  const QString log = d.filePath(QStringLiteral("zorvik.log"));
  for (const QString& p : {cont, log}) {
    ASSERT_TRUE(zapisz(p, "stary\n"));
    ::chmod(QFile::encodeName(p).constData(), 0644);
  }
  ASSERT_EQ(Main(parametry(m.Folder()), ekran(1280)).wynik, WynikStartu::Dziala);
  pubBaza().Czytaj(QStringLiteral("SELECT * FROM nietabela"));
  zamknijGlowne();
  EXPECT_NE(zawartosc(cont), QByteArray("stary\n"));
  EXPECT_EQ(tryb(cont), 0600);
  EXPECT_EQ(tryb(log), 0600);
  EXPECT_TRUE(logDanych(m.Folder()).contains(QStringLiteral("nietabela")));

  ASSERT_TRUE(UstawHasloBazy(QStringLiteral("Sekret")));
  EXPECT_EQ(tryb(m.Plik()), 0600);
  QFile::remove(cont);
  ASSERT_TRUE(ZapiszPrzypomnienia());
  EXPECT_EQ(tryb(cont), 0600);

  const QByteArray dawny = qgetenv("XDG_RUNTIME_DIR");
  qunsetenv("XDG_RUNTIME_DIR");
  const QString wlasny = FolderGniazda();
  EXPECT_EQ(wlasny, QDir(QDir::tempPath()).filePath(QStringLiteral("zorvik-%1").arg(::geteuid())));
  EXPECT_EQ(tryb(wlasny), 0700);
  EXPECT_EQ(QFileInfo(NazwaGniazda()).absolutePath(), wlasny);
  QTemporaryDir runtime;
  ::chmod(QFile::encodeName(runtime.path()).constData(), 0755);
  qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
  EXPECT_EQ(FolderGniazda(), wlasny) << "a runtime folder others may enter is not used";
  ::chmod(QFile::encodeName(runtime.path()).constData(), 0700);
  EXPECT_EQ(FolderGniazda(), runtime.path());
  EXPECT_EQ(QFileInfo(NazwaGniazda()).absolutePath(), runtime.path());
  if (dawny.isNull())
    qunsetenv("XDG_RUNTIME_DIR");
  else
    qputenv("XDG_RUNTIME_DIR", dawny);
}
