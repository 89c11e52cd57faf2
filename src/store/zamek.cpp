#include "store/zamek.h"

#include <fcntl.h>
#include <sqlcipher/sqlite3.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <QStringList>
#include <cerrno>
#include <cstring>

#include "store/baza.h"
#include "store/strony.h"

namespace {

QString nowyPlik() { return PlikBazy() + QStringLiteral(".nowy"); }
QString kopiaPliku() { return PlikBazy() + QStringLiteral(".kopia"); }
QByteArray nazwa(const QString& s) { return QFile::encodeName(s); }
QString systemowy() { return QString::fromLocal8Bit(std::strerror(errno)); }

bool wykonaj(sqlite3* db, const char* sql, QString* blad) {
  if (sqlite3_exec(db, sql, nullptr, nullptr, nullptr) == SQLITE_OK) return true;
  *blad = BezCytatow(QString::fromUtf8(sqlite3_errmsg(db)));
  return false;
}

bool synchronizuj(const QString& sciezka, bool folder) {
  const int fd =
      ::open(nazwa(sciezka).constData(), (folder ? O_RDONLY | O_DIRECTORY : O_RDONLY) | O_CLOEXEC);
  if (fd < 0) return false;
  const bool ok = ::fsync(fd) == 0 || (folder && errno == EINVAL);
  ::close(fd);
  return ok;
}

// The copy under the new key, with pages of the new stores' size: the whole store exported in
// one transaction, setup.haslo set when a password's hash is given. The key and the hash go in
// as bound values, never as statement text.
bool zrobKopie(sqlite3* db, const QByteArray& klucz, const QString* hasloWBazie, QString* blad) {
  // Created here, empty and private: the store makes new files readable by everyone.
  const int fd =
      ::open(nazwa(nowyPlik()).constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600);
  if (fd < 0) {
    *blad = QStringLiteral("cannot create the copy: ") + systemowy();
    return false;
  }
  ::close(fd);
  sqlite3_stmt* st = nullptr;
  const QByteArray sciezka = nowyPlik().toUtf8();
  bool ok =
      sqlite3_prepare_v2(db, "ATTACH DATABASE ?1 AS nowa KEY ?2", -1, &st, nullptr) == SQLITE_OK;
  if (ok) {
    sqlite3_bind_text(st, 1, sciezka.constData(), int(sciezka.size()), SQLITE_TRANSIENT);
    sqlite3_bind_blob(st, 2, klucz.constData(), int(klucz.size()), SQLITE_TRANSIENT);
    ok = sqlite3_step(st) == SQLITE_DONE;
  }
  sqlite3_finalize(st);
  if (!ok) {
    *blad = QStringLiteral("attach: ") + BezCytatow(QString::fromUtf8(sqlite3_errmsg(db)));
    return false;
  }
  if (!UstawRozmiarStrony(db, RozmiarStronyBazy, "nowa")) {
    *blad = QStringLiteral("page size: ") + BezCytatow(QString::fromUtf8(sqlite3_errmsg(db)));
    sqlite3_exec(db, "DETACH DATABASE nowa", nullptr, nullptr, nullptr);
    return false;
  }
  // A deferred transaction writes to the copy alone, so that it commits as one file, with no
  // journal spanning both.
  ok = wykonaj(db, "BEGIN", blad) && wykonaj(db, "SELECT sqlcipher_export('nowa')", blad);
  if (ok && hasloWBazie) {
    ok = sqlite3_prepare_v2(db, "UPDATE nowa.setup SET haslo=?1", -1, &st, nullptr) == SQLITE_OK;
    if (ok) {
      const QByteArray h = hasloWBazie->toUtf8();
      if (hasloWBazie->isNull())
        sqlite3_bind_null(st, 1);
      else
        sqlite3_bind_text(st, 1, h.constData(), int(h.size()), SQLITE_TRANSIENT);
      ok = sqlite3_step(st) == SQLITE_DONE;
    }
    sqlite3_finalize(st);
    if (!ok) *blad = QStringLiteral("setup: ") + BezCytatow(QString::fromUtf8(sqlite3_errmsg(db)));
  }
  ok = ok && wykonaj(db, "COMMIT", blad);
  if (!ok) sqlite3_exec(db, "ROLLBACK", nullptr, nullptr, nullptr);
  QString bladOdlaczenia;
  if (!wykonaj(db, "DETACH DATABASE nowa", &bladOdlaczenia) && ok) {
    *blad = QStringLiteral("detach: ") + bladOdlaczenia;
    return false;
  }
  if (ok && !synchronizuj(nowyPlik(), false)) {
    *blad = QStringLiteral("sync of the copy: ") + systemowy();
    return false;
  }
  return ok;
}

QStringList tabele(sqlite3* db) {
  QStringList t;
  sqlite3_stmt* st = nullptr;
  if (sqlite3_prepare_v2(db,
                         "SELECT name FROM sqlite_master WHERE type='table' AND name NOT LIKE "
                         "'sqlite_%' ORDER BY name",
                         -1, &st, nullptr) == SQLITE_OK)
    while (sqlite3_step(st) == SQLITE_ROW)
      t << QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, 0)));
  sqlite3_finalize(st);
  return t;
}

qint64 wiersze(sqlite3* db, const QString& tabela) {
  sqlite3_stmt* st = nullptr;
  qint64 n = -1;
  const QByteArray sql = QStringLiteral("SELECT count(*) FROM \"%1\"").arg(tabela).toUtf8();
  if (sqlite3_prepare_v2(db, sql.constData(), -1, &st, nullptr) == SQLITE_OK &&
      sqlite3_step(st) == SQLITE_ROW)
    n = sqlite3_column_int64(st, 0);
  sqlite3_finalize(st);
  return n;
}

// The copy opens with the new key, is sound, and holds every table with as many rows.
bool sprawdzKopie(sqlite3* stara, const QByteArray& klucz, QString* blad) {
  Baza kopia;
  if (!kopia.Otworz(nowyPlik(), blad, klucz, true)) {
    *blad = QStringLiteral("the copy does not open: ") + BezCytatow(*blad);
    return false;
  }
  sqlite3* db = kopia.Uchwyt();
  sqlite3_stmt* st = nullptr;
  QString wynik;
  if (sqlite3_prepare_v2(db, "PRAGMA integrity_check", -1, &st, nullptr) == SQLITE_OK &&
      sqlite3_step(st) == SQLITE_ROW)
    wynik = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, 0)));
  sqlite3_finalize(st);
  if (wynik != QLatin1String("ok")) {
    *blad = QStringLiteral("the copy is not sound");
    return false;
  }
  const QStringList t = tabele(stara);
  if (tabele(db) != t) {
    *blad = QStringLiteral("the copy lacks tables");
    return false;
  }
  for (const QString& tabela : t)
    if (wiersze(db, tabela) != wiersze(stara, tabela)) {
      *blad = QStringLiteral("the copy differs in %1").arg(tabela);
      return false;
    }
  return true;
}

}  // namespace

void UsunResztkiPrzekluczenia() {
  for (const QString& s : {nowyPlik(), nowyPlik() + QStringLiteral("-journal"), kopiaPliku()})
    if (QFileInfo::exists(s) && !QFile::remove(s))
      ZapiszLog(QStringLiteral("cannot remove %1").arg(s));
}

namespace {

// Makes a checked copy of the open store under klucz (with setup.haslo set when hasloWBazie is
// given) and puts it in place of the store; see PrzekluczBaze.
bool przepisz(const QByteArray& nowyKlucz, const QString* hasloWBazie, const QString& co,
              QString* blad) {
  QString powod;
  auto porazka = [&](const QString& p) {
    ZapiszLog(QStringLiteral("store %1 failed: %2").arg(co, p));
    if (blad) *blad = p;
    return false;
  };
  if (!OtworzBaze()) return porazka(QStringLiteral("the store is not open"));
  const QByteArray staryKlucz = KluczSesji();
  const QByteArray klucz = nowyKlucz.isEmpty() ? QByteArray(KluczBazy) : nowyKlucz;
  UsunResztkiPrzekluczenia();
  // The copy needs about the store's size; a disk short of it is told before anything is written.
  const QStorageInfo dysk(QFileInfo(PlikBazy()).absolutePath());
  const qint64 potrzeba = QFileInfo(PlikBazy()).size() + QFileInfo(PlikBazy()).size() / 8 + 65536;
  if (dysk.isValid() && dysk.bytesAvailable() >= 0 && dysk.bytesAvailable() < potrzeba)
    return porazka(QStringLiteral("not enough free space for the copy (%1 bytes free, %2 needed)")
                       .arg(dysk.bytesAvailable())
                       .arg(potrzeba));
  if (!zrobKopie(pubBaza().Uchwyt(), klucz, hasloWBazie, &powod) ||
      !sprawdzKopie(pubBaza().Uchwyt(), klucz, &powod)) {
    UsunResztkiPrzekluczenia();
    return porazka(powod);
  }
  // The swap. The old file keeps a second name until the new one has opened in its place.
  ZamknijBaze();
  const QByteArray plik = nazwa(PlikBazy());
  const QString folder = QFileInfo(PlikBazy()).absolutePath();
  if (::link(plik.constData(), nazwa(kopiaPliku()).constData()) != 0) {
    powod = QStringLiteral("cannot keep the old file: ") + systemowy();
    UsunResztkiPrzekluczenia();
    OtworzBaze();
    return porazka(powod);
  }
  if (::rename(nazwa(nowyPlik()).constData(), plik.constData()) != 0) {
    powod = QStringLiteral("cannot put the copy in place: ") + systemowy();
    UsunResztkiPrzekluczenia();
    OtworzBaze();
    return porazka(powod);
  }
  synchronizuj(folder, true);
  UstawKluczSesji(nowyKlucz);
  if (!OtworzBaze()) {
    // Should never happen, since the copy was checked: the old file goes back.
    ::rename(nazwa(kopiaPliku()).constData(), plik.constData());
    synchronizuj(folder, true);
    UstawKluczSesji(staryKlucz);
    OtworzBaze();
    return porazka(QStringLiteral("the new file did not open; the old one is back"));
  }
  UsunResztkiPrzekluczenia();
  synchronizuj(folder, true);
  return true;
}

}  // namespace

bool PrzekluczBaze(const QByteArray& nowyKlucz, const QString& hasloWBazie, QString* blad) {
  return przepisz(nowyKlucz, &hasloWBazie, QStringLiteral("key change"), blad);
}

bool PrzeniesNaNoweStrony(QString* blad) {
  if (!OtworzBaze()) {
    if (blad) *blad = QStringLiteral("the store is not open");
    return false;
  }
  const int strona = pubBaza().RozmiarStrony();
  if (strona >= RozmiarStronyBazy) return true;
  QElapsedTimer czas;
  czas.start();
  if (!przepisz(KluczSesji(), nullptr, QStringLiteral("move to larger pages"), blad)) return false;
  ZapiszLog(QStringLiteral("store moved from pages of %1 to pages of %2 bytes in %3 ms")
                .arg(strona)
                .arg(pubBaza().RozmiarStrony())
                .arg(czas.elapsed()));
  return true;
}
