#include "imports/kopie.h"

#include <fcntl.h>
#include <sqlcipher/sqlite3.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <thread>
#include <vector>

#include "store/baza.h"
#include "store/dziennik.h"
#include "store/dzis.h"
#include "store/start.h"
#include "store/strony.h"
#include "store/zmiany.h"

namespace {
const char* const nazwyPowodow[] = {"aktualizacja", "start", "koniec", "przywracanie", "reczna"};

QString systemowy() { return QString::fromLocal8Bit(std::strerror(errno)); }

bool synchronizuj(const QString& sciezka, bool folder) {
  const int fd = ::open(QFile::encodeName(sciezka).constData(),
                        (folder ? O_RDONLY | O_DIRECTORY : O_RDONLY) | O_CLOEXEC);
  if (fd < 0) return false;
  const bool ok = ::fsync(fd) == 0 || (folder && errno == EINVAL);
  ::close(fd);
  return ok;
}

QByteArray kluczBazy() {
  const QByteArray k = KluczSesji();
  return k.isEmpty() ? QByteArray(KluczBazy) : k;
}

const QRegularExpression& wzorNazwy() {
  static const QRegularExpression w(
      QStringLiteral(R"(^money-(\d{8}-\d{6})(?:-(\d+))?-([a-z]+)\.fns$)"));
  return w;
}

// Copies the pages of zrodlo into a new file under the store's key. Steps of 256 pages let other
// users of the connection in between; a step refused because the connection is writing waits.
bool kopiujStrony(sqlite3* zrodlo, const QString& cel, QString* blad,
                  const std::function<void()>& krok) {
  const int fd = ::open(QFile::encodeName(cel).constData(),
                        O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600);
  if (fd < 0) {
    *blad = systemowy();
    return false;
  }
  ::close(fd);
  sqlite3* db = nullptr;
  if (sqlite3_open_v2(cel.toUtf8().constData(), &db, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
    *blad = QString::fromUtf8(sqlite3_errmsg(db));
    sqlite3_close(db);
    return false;
  }
  const QByteArray k = kluczBazy();
  sqlite3_key(db, k.constData(), int(k.size()));
  // A copy of encrypted pages must have pages of the store's size.
  UstawRozmiarStrony(db, RozmiarStrony(zrodlo));
  sqlite3_backup* b = sqlite3_backup_init(db, "main", zrodlo, "main");
  if (!b) {
    *blad = QString::fromUtf8(sqlite3_errmsg(db));
    sqlite3_close(db);
    return false;
  }
  int kod;
  int proby = 0;
  while ((kod = sqlite3_backup_step(b, 256)) == SQLITE_OK || kod == SQLITE_BUSY ||
         kod == SQLITE_LOCKED) {
    if (kod != SQLITE_OK) {
      // The program is writing: wait for its commit, for at most half a minute.
      if (++proby > 3000) break;
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    if (krok) krok();
  }
  if (kod != SQLITE_DONE) *blad = QString::fromUtf8(sqlite3_errstr(kod));
  sqlite3_backup_finish(b);
  if (kod == SQLITE_DONE && sqlite3_errcode(db) != SQLITE_OK && sqlite3_errcode(db) != SQLITE_DONE)
    *blad = QString::fromUtf8(sqlite3_errmsg(db));
  sqlite3_close(db);
  return kod == SQLITE_DONE && blad->isEmpty();
}

// A 64-bit sum of bytes, word by word: enough to tell a copy that differs from what was read.
quint64 suma(const char* dane, size_t ile, quint64 s) {
  size_t i = 0;
  for (; i + 8 <= ile; i += 8) {
    quint64 w;
    std::memcpy(&w, dane + i, 8);
    s = (s ^ w) * 0x100000001b3ULL;
    s ^= s >> 29;
  }
  for (; i < ile; ++i) s = (s ^ quint64(uchar(dane[i]))) * 0x100000001b3ULL;
  return s;
}

// Copies the store's file as it lies on disk while the connection holds a read lock, so no
// writer, in this program or another, can change it meanwhile. The store keeps its journal
// beside the file (never a write-ahead log), so the locked file alone is the whole store.
// The connection's own mutex is held throughout: the window's thread, should it touch the store
// meanwhile, waits for the few tens of milliseconds a file copy takes. False with nothing left
// behind when anything fails; *mozliwe false when this way cannot be used at all (a write of
// the program was in progress for too long, or the store has no file), so the caller takes the
// page-by-page way.
bool kopiujPlik(sqlite3* db, const QString& cel, QString* blad, bool* mozliwe, quint64* sumaKopii,
                qint64* rozmiar) {
  *mozliwe = false;
  sqlite3_mutex* zamek = sqlite3_db_mutex(db);
  // A change of the program's in progress (a transaction spans several calls) ends first.
  for (int proby = 0;; ++proby) {
    sqlite3_mutex_enter(zamek);
    if (sqlite3_get_autocommit(db)) break;
    sqlite3_mutex_leave(zamek);
    if (proby > 3000) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  *mozliwe = true;
  bool ok = false;
  // A read transaction: the shared lock stays until the COMMIT.
  if (sqlite3_exec(db, "BEGIN; SELECT count(*) FROM sqlite_master;", nullptr, nullptr, nullptr) !=
      SQLITE_OK) {
    *blad = QString::fromUtf8(sqlite3_errmsg(db));
  } else {
    // Read through the store's own open file, never a descriptor of ours: closing one would
    // drop the locks the process holds on the file.
    sqlite3_file* plik = nullptr;
    sqlite3_int64 wielkosc = 0;
    if (sqlite3_file_control(db, "main", SQLITE_FCNTL_FILE_POINTER, &plik) != SQLITE_OK || !plik ||
        !plik->pMethods || plik->pMethods->xFileSize(plik, &wielkosc) != SQLITE_OK) {
      *mozliwe = false;  // the page-by-page way still can
    } else if (const int wy = ::open(QFile::encodeName(cel).constData(),
                                     O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600);
               wy < 0) {
      *blad = systemowy();
    } else {
      std::vector<char> bufor(1 << 20);
      quint64 sumaOdczytu = 0xcbf29ce484222325ULL;
      ok = true;
      for (sqlite3_int64 od = 0; ok && od < wielkosc;) {
        const int n = int(std::min<sqlite3_int64>(sqlite3_int64(bufor.size()), wielkosc - od));
        if (plik->pMethods->xRead(plik, bufor.data(), n, od) != SQLITE_OK) {
          *blad = QStringLiteral("the store's file can't be read");
          ok = false;
          break;
        }
        for (ssize_t zapisane = 0; ok && zapisane < n;) {
          const ssize_t m = ::write(wy, bufor.data() + zapisane, size_t(n - zapisane));
          if (m < 0 && errno == EINTR) continue;
          if (m <= 0) {
            if (m == 0) errno = ENOSPC;
            *blad = systemowy();
            ok = false;
          } else {
            zapisane += m;
          }
        }
        sumaOdczytu = suma(bufor.data(), size_t(n), sumaOdczytu);
        od += n;
      }
      *sumaKopii = sumaOdczytu;
      *rozmiar = wielkosc;
      if (::close(wy) != 0 && ok) {
        ok = false;
        *blad = systemowy();
      }
    }
  }
  // The read ends however it went (a BEGIN whose read was refused is still open).
  if (!sqlite3_get_autocommit(db)) sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr);
  sqlite3_mutex_leave(zamek);
  if (!ok) QFile::remove(cel);
  return ok;
}

// The copy as it lies on disk, read back: the same bytes as were read from the locked store.
bool zgodna(const QString& plik, quint64 oczekiwana, qint64 rozmiar, QString* blad) {
  const int fd = ::open(QFile::encodeName(plik).constData(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) {
    *blad = systemowy();
    return false;
  }
  std::vector<char> bufor(1 << 20);
  quint64 s = 0xcbf29ce484222325ULL;
  qint64 razem = 0;
  ssize_t n;
  while ((n = ::read(fd, bufor.data(), bufor.size())) > 0 || (n < 0 && errno == EINTR))
    if (n > 0) {
      s = suma(bufor.data(), size_t(n), s);
      razem += n;
    }
  ::close(fd);
  if (n < 0 || razem != rozmiar || s != oczekiwana) {
    *blad = n < 0 ? systemowy() : QStringLiteral("the copy differs from the store");
    return false;
  }
  return true;
}

}  // namespace

QString FolderKopii() { return QDir(FolderDanych()).filePath(QStringLiteral("kopie")); }

std::vector<Kopia> ListaKopii() {
  std::vector<Kopia> lista;
  const QDir d(FolderKopii());
  for (const QFileInfo& f : d.entryInfoList({QStringLiteral("money-*.fns")}, QDir::Files)) {
    const auto m = wzorNazwy().match(f.fileName());
    if (!m.hasMatch()) continue;
    Kopia k;
    k.plik = f.absoluteFilePath();
    k.kiedy = QDateTime::fromString(m.captured(1), QStringLiteral("yyyyMMdd-HHmmss"));
    k.rozmiar = f.size();
    for (int i = 0; i < 5; ++i)
      if (m.captured(3) == QLatin1String(nazwyPowodow[i])) k.powod = PowodKopii(i);
    k.kolejny = m.captured(2).toInt();
    if (k.kiedy.isValid()) lista.push_back(k);
  }
  std::sort(lista.begin(), lista.end(), [](const Kopia& a, const Kopia& b) {
    return a.kiedy != b.kiedy ? a.kiedy > b.kiedy : a.kolejny > b.kolejny;
  });
  return lista;
}

int LiczbaKopiiDoZachowania() {
  if (!pubBaza().Otwarta()) return 10;
  const Rekordy rs = pubBaza().Czytaj(QStringLiteral("SELECT liczbakopii FROM setup"));
  const int n = rs.Pole(QStringLiteral("liczbakopii")).toInt();
  return n > 0 ? n : 10;
}

bool UstawLiczbeKopii(int liczba) {
  if (liczba < 1 || liczba > 999) return false;
  const QString sql = QStringLiteral("UPDATE setup SET liczbakopii=%1").arg(liczba);
  const WynikZapisu w = pubBaza().Wykonaj(sql);
  if (!w) return false;
  if (w.zmienione > 0) return true;
  // A store without its setup row gets the default one first.
  WczytajSetup();
  return pubBaza().Wykonaj(sql).zmienione > 0;
}

namespace {
void usunNadmiar(const std::vector<Kopia>& lista, size_t zostaw) {
  for (size_t i = zostaw; i < lista.size(); ++i) QFile::remove(lista[i].plik);
}

// The copy itself, touching nothing of the program but the raw connection: it may run in a
// thread of its own. The error is returned, not logged.
bool kopiuj(sqlite3* zrodlo, const QString& folder, PowodKopii powod, const QDateTime& teraz,
            QString* blad, const std::function<void()>& krok) {
  if (!QDir().mkpath(folder)) {
    *blad = QStringLiteral("cannot create %1").arg(folder);
    return false;
  }
  QFile::setPermissions(folder, QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                    QFileDevice::ExeOwner);
  const QString znacznik = teraz.toString(QStringLiteral("yyyyMMdd-HHmmss"));
  const QString rodzaj = QLatin1String(nazwyPowodow[int(powod)]);
  const QDir d(folder);
  // Copies of one second are numbered on from the highest number that second has had, so
  // that a name freed by the rotation is never reused out of order.
  int numer = 0;
  for (const QString& n : d.entryList({QStringLiteral("money-") + znacznik + QStringLiteral("*.fns")}, QDir::Files)) {
    const auto m = wzorNazwy().match(n);
    if (m.hasMatch()) numer = std::max(numer, std::max(1, m.captured(2).toInt()));
  }
  QString cel = numer == 0 ? d.filePath(QStringLiteral("money-%1-%2.fns").arg(znacznik, rodzaj))
                           : d.filePath(QStringLiteral("money-%1-%2-%3.fns").arg(znacznik).arg(numer + 1).arg(rodzaj));
  const QString tymczasowy = cel + QStringLiteral(".czesc");
  QFile::remove(tymczasowy);
  QString b;
  bool plikiem = false;
  quint64 sumaKopii = 0;
  qint64 rozmiar = 0;
  bool ok = kopiujPlik(zrodlo, tymczasowy, &b, &plikiem, &sumaKopii, &rozmiar);
  if (!ok && !plikiem) {
    QFile::remove(tymczasowy);
    b.clear();
    ok = kopiujStrony(zrodlo, tymczasowy, &b, krok);
  }
  if (!ok) {
    QFile::remove(tymczasowy);
    *blad = QStringLiteral("copy to %1 failed: %2").arg(cel, b);
    return false;
  }
  if (!synchronizuj(tymczasowy, false)) {
    *blad = QStringLiteral("copy to %1 failed: %2").arg(cel, systemowy());
    QFile::remove(tymczasowy);
    return false;
  }
  // A file copy is read back once it is on disk: a copy that differs never gets its name.
  if (plikiem && !zgodna(tymczasowy, sumaKopii, rozmiar, &b)) {
    *blad = QStringLiteral("copy to %1 failed its check: %2").arg(cel, b);
    QFile::remove(tymczasowy);
    return false;
  }
  if (::rename(QFile::encodeName(tymczasowy).constData(), QFile::encodeName(cel).constData()) !=
      0) {
    *blad = QStringLiteral("copy to %1 failed: %2").arg(cel, systemowy());
    QFile::remove(tymczasowy);
    return false;
  }
  synchronizuj(folder, true);
  return true;
}

struct KopiaWTle {
  std::thread watek;
  QString blad;
  QString folder;
  bool ok = true;
  // A run that ends while a copy is being taken waits for it.
  ~KopiaWTle() {
    if (watek.joinable()) watek.join();
  }
};
KopiaWTle& wTle() {
  static KopiaWTle k;
  return k;
}
}  // namespace

void UsunNadmiarKopii() { usunNadmiar(ListaKopii(), size_t(LiczbaKopiiDoZachowania())); }

bool ZrobKopie(PowodKopii powod, QString* blad, const std::function<void()>& krok) {
  CzekajNaKopie();
  QString b;
  if (!pubBaza().Otwarta()) b = QStringLiteral("the store is not open");
  const bool ok = b.isEmpty() && kopiuj(pubBaza().Uchwyt(), FolderKopii(), powod, Teraz(), &b, krok);
  if (!ok) {
    ZapiszLog(QStringLiteral("backup: %1").arg(BezCytatow(b)));
    if (blad) *blad = b;
    return false;
  }
  UsunNadmiarKopii();
  return true;
}

bool ZrobKopieStartuWTle() {
  CzekajNaKopie();
  if (!pubBaza().Otwarta() || JestKopiaZDzisiaj()) return false;
  KopiaWTle& t = wTle();
  t.ok = true;
  t.blad.clear();
  sqlite3* db = pubBaza().Uchwyt();
  const QString folder = FolderKopii();
  t.folder = FolderDanych();
  const QDateTime teraz = Teraz();
  t.watek = std::thread([&t, db, folder, teraz] {
    // The connection is serialized: the window's thread waits at most one step of 256 pages.
    t.ok = kopiuj(db, folder, PowodKopii::Start, teraz, &t.blad,
                  [] { std::this_thread::sleep_for(std::chrono::milliseconds(1)); });
  });
  return true;
}

void CzekajNaKopie() {
  KopiaWTle& t = wTle();
  if (!t.watek.joinable()) return;
  t.watek.join();
  // A copy whose data folder went away meanwhile (another store was opened) has no one to tell.
  if (!t.ok && QDir(t.folder).exists())
    ZapiszLog(QStringLiteral("backup: %1").arg(BezCytatow(t.blad)));
  else if (pubBaza().Otwarta())
    UsunNadmiarKopii();
}

bool JestKopiaZDzisiaj() {
  for (const Kopia& k : ListaKopii())
    if (k.powod == PowodKopii::Start && k.kiedy.date() == Dzis()) return true;
  return false;
}

bool SprawdzKopie(const QString& plik, QString* blad) {
  QString b;
  Baza kopia;
  if (!kopia.Otworz(plik, &b, KluczSesji(), true)) {
    if (blad) *blad = b;
    return false;
  }
  sqlite3_stmt* st = nullptr;
  QString wynik;
  if (sqlite3_prepare_v2(kopia.Uchwyt(), "PRAGMA integrity_check", -1, &st, nullptr) ==
          SQLITE_OK &&
      sqlite3_step(st) == SQLITE_ROW)
    wynik = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, 0)));
  else
    wynik = QString::fromUtf8(sqlite3_errmsg(kopia.Uchwyt()));
  sqlite3_finalize(st);
  if (wynik != QLatin1String("ok")) {
    if (blad) *blad = wynik;
    return false;
  }
  // A copy is a store of this program: it has its entries' table.
  if (!kopia.Czytaj(QStringLiteral("SELECT COUNT(*) AS ile FROM transakcje")).Ok()) {
    if (blad) *blad = QStringLiteral("not a store of this program");
    return false;
  }
  return true;
}

std::vector<Kopia> KopieDoPrzywrocenia() {
  std::vector<Kopia> dobre;
  for (const Kopia& k : ListaKopii()) {
    QString blad;
    if (SprawdzKopie(k.plik, &blad))
      dobre.push_back(k);
    else
      ZapiszLog(QStringLiteral("backup %1 fails its check: %2").arg(k.plik, BezCytatow(blad)));
  }
  return dobre;
}

bool PrzywrocKopie(const QString& plik, QString* blad) {
  auto porazka = [&](const QString& tekst) {
    ZapiszLog(QStringLiteral("restore of %1: %2").arg(plik, tekst));
    if (blad) *blad = tekst;
    return false;
  };
  QString b;
  if (!SprawdzKopie(plik, &b)) return porazka(QStringLiteral("the copy fails its check: ") + b);
  if (!OtworzBaze()) return porazka(QStringLiteral("the store is not open"));
  // The chosen copy is taken aside first: the rotation below may count it out.
  const QString tymczasowy = PlikBazy() + QStringLiteral(".przywracana");
  QFile::remove(tymczasowy);
  if (!QFile::copy(plik, tymczasowy) || !synchronizuj(tymczasowy, false)) {
    QFile::remove(tymczasowy);
    return porazka(QStringLiteral("cannot write %1").arg(tymczasowy));
  }
  // The file in use now becomes one more copy.
  if (!ZrobKopie(PowodKopii::Przywracanie, &b)) {
    QFile::remove(tymczasowy);
    return porazka(QStringLiteral("the current store could not be kept: ") + b);
  }
  QFile::setPermissions(tymczasowy, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
  ZamknijBaze();
  if (::rename(QFile::encodeName(tymczasowy).constData(),
               QFile::encodeName(PlikBazy()).constData()) != 0) {
    const QString s = systemowy();
    QFile::remove(tymczasowy);
    OtworzBaze();
    return porazka(s);
  }
  synchronizuj(FolderDanych(), true);
  if (!OtworzBaze()) return porazka(QStringLiteral("the restored store does not open"));
  AktualizujBaze();
  OglosZmiane(~0u);
  return true;
}

void WlaczKopiePrzedAktualizacja() {
  UstawPrzedAktualizacja([] { ZrobKopie(PowodKopii::Aktualizacja); });
}
