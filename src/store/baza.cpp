#include "store/baza.h"

#include <fcntl.h>
#include <sqlcipher/sqlite3.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <utility>

#include "store/jet.h"
#include "store/kwota.h"
#include "store/strony.h"
#include "store/zmiany.h"

const char* const KluczBazy = "xqz";

// ---- Rekordy ---------------------------------------------------------------------------------

int Rekordy::indeks(const QString& nazwa) const {
  for (int i = 0; i < nazwy_.size(); ++i)
    if (nazwy_[i].compare(nazwa, Qt::CaseInsensitive) == 0) return i;
  return -1;
}

QVariant Rekordy::Pole(const QString& nazwa) const { return Pole(indeks(nazwa)); }

QVariant Rekordy::Pole(int kolumna) const {
  if (Eof() || kolumna < 0 || kolumna >= nazwy_.size()) return {};
  return wiersze_[biezacy_][size_t(kolumna)];
}

QString Rekordy::Tekst(const QString& nazwa) const {
  const QVariant v = Pole(nazwa);
  return v.isNull() ? QString() : v.toString();
}

// ---- Baza ------------------------------------------------------------------------------------

Baza::~Baza() { Zamknij(); }

bool Baza::Otworz(const QString& plik, QString* blad, const QByteArray& klucz,
                  bool tylkoDoOdczytu) {
  Zamknij();
  kodBledu_ = 0;
  auto fail = [&](const QString& tekst) {
    // A caller that asks for the reason reports it itself.
    if (blad)
      *blad = tekst;
    else
      ZapiszLog(QStringLiteral("open %1: %2").arg(plik, BezCytatow(tekst)));
    if (db_) sqlite3_close(db_);
    db_ = nullptr;
    return false;
  };
  if (!QFile::exists(plik)) return fail(QStringLiteral("file not found"));
  const int tryb = tylkoDoOdczytu ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
  if ((kodBledu_ = sqlite3_open_v2(plik.toUtf8().constData(), &db_, tryb, nullptr)) != SQLITE_OK)
    return fail(QString::fromUtf8(sqlite3_errmsg(db_)));
  const QByteArray k = klucz.isEmpty() ? QByteArray(KluczBazy) : klucz;
  // A wrong key or a file that is not a store shows at the first read.
  if ((kodBledu_ = KluczujPolaczenie(db_, k, QFileInfo(plik).size())) != SQLITE_OK)
    return fail(QString::fromUtf8(sqlite3_errmsg(db_)));
  rozmiarStrony_ = ::RozmiarStrony(db_);
  sqlite3_exec(db_,
               "PRAGMA foreign_keys=OFF; PRAGMA journal_mode=DELETE; PRAGMA synchronous=FULL; "
               "PRAGMA cache_size=-65536; PRAGMA temp_store=MEMORY;",
               nullptr, nullptr, nullptr);
  ZarejestrujFunkcjeJet(db_);
  plik_ = plik;
  return true;
}

void Baza::Zamknij() {
  // A backup still running in another thread finishes before the connection really closes.
  if (db_) sqlite3_close_v2(db_);
  db_ = nullptr;
  glebokoscTransakcji_ = 0;
  rozmiarStrony_ = 0;
}

static QVariant wartoscKolumny(sqlite3_stmt* st, int i) {
  switch (sqlite3_column_type(st, i)) {
    case SQLITE_INTEGER:
      return QVariant(qint64(sqlite3_column_int64(st, i)));
    case SQLITE_FLOAT:
      return QVariant(sqlite3_column_double(st, i));
    case SQLITE_NULL:
      return QVariant();
    default:
      return QVariant(QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, i)),
                                        sqlite3_column_bytes(st, i)));
  }
}

Rekordy Baza::Czytaj(const QString& jetSql) {
  Rekordy rs;
  if (!db_) {
    rs.blad_ = QStringLiteral("store not open");
    ZapiszLog(QStringLiteral("read failed: %1 | %2").arg(rs.blad_, KsztaltZapytania(jetSql)));
    return rs;
  }
  const QByteArray sql = TlumaczJet(jetSql).toUtf8();
  sqlite3_stmt* st = nullptr;
  if (sqlite3_prepare_v2(db_, sql.constData(), int(sql.size()), &st, nullptr) != SQLITE_OK) {
    rs.blad_ = QString::fromUtf8(sqlite3_errmsg(db_));
    ZapiszLog(
        QStringLiteral("read failed: %1 | %2").arg(BezCytatow(rs.blad_), KsztaltZapytania(jetSql)));
    return rs;
  }
  const int n = sqlite3_column_count(st);
  for (int i = 0; i < n; ++i) rs.nazwy_ << QString::fromUtf8(sqlite3_column_name(st, i));
  int kod;
  while ((kod = sqlite3_step(st)) == SQLITE_ROW) {
    std::vector<QVariant> wiersz;
    wiersz.reserve(size_t(n));
    for (int i = 0; i < n; ++i) wiersz.push_back(wartoscKolumny(st, i));
    rs.wiersze_.push_back(std::move(wiersz));
  }
  if (kod != SQLITE_DONE) {
    rs.blad_ = QString::fromUtf8(sqlite3_errmsg(db_));
    rs.wiersze_.clear();
    ZapiszLog(
        QStringLiteral("read failed: %1 | %2").arg(BezCytatow(rs.blad_), KsztaltZapytania(jetSql)));
  }
  sqlite3_finalize(st);
  return rs;
}

WynikZapisu Baza::Wykonaj(const QString& jetSql) {
  WynikZapisu w;
  if (!db_) {
    w.blad = QStringLiteral("store not open");
    ZapiszLog(QStringLiteral("write failed: %1 | %2").arg(w.blad, KsztaltZapytania(jetSql)));
    return w;
  }
  const QByteArray sql = TlumaczJet(jetSql).toUtf8();
  sqlite3_stmt* st = nullptr;
  int kod = sqlite3_prepare_v2(db_, sql.constData(), int(sql.size()), &st, nullptr);
  if (kod == SQLITE_OK) {
    while ((kod = sqlite3_step(st)) == SQLITE_ROW) {
    }
  }
  if (kod == SQLITE_DONE) {
    w.ok = true;
    w.zmienione = sqlite3_changes(db_);
    // Screens learn of the change at once, or at the commit of the change it belongs to.
    if (w.zmienione > 0) {
      const unsigned tabela = TabelaZapisu(jetSql);
      if (glebokoscTransakcji_ > 0)
        zmienioneTabele_ |= tabela;
      else
        OglosZmiane(tabela);
    }
  } else {
    w.blad = QString::fromUtf8(sqlite3_errmsg(db_));
    ZapiszLog(
        QStringLiteral("write failed: %1 | %2").arg(BezCytatow(w.blad), KsztaltZapytania(jetSql)));
  }
  sqlite3_finalize(st);
  return w;
}

bool Baza::Transakcja(const std::function<bool()>& praca) {
  if (!db_) return false;
  if (glebokoscTransakcji_ > 0) {
    // Joining an outer change: its owner commits or rolls back.
    ++glebokoscTransakcji_;
    const bool ok = praca();
    --glebokoscTransakcji_;
    return ok;
  }
  if (sqlite3_exec(db_, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) != SQLITE_OK) {
    ZapiszLog(
        QStringLiteral("begin failed: %1").arg(BezCytatow(QString::fromUtf8(sqlite3_errmsg(db_)))));
    return false;
  }
  glebokoscTransakcji_ = 1;
  zmienioneTabele_ = 0;
  bool ok = false;
  try {
    ok = praca();
  } catch (...) {
    ok = false;
  }
  glebokoscTransakcji_ = 0;
  if (ok && sqlite3_exec(db_, "COMMIT", nullptr, nullptr, nullptr) == SQLITE_OK) {
    OglosZmiane(std::exchange(zmienioneTabele_, 0u));
    return true;
  }
  zmienioneTabele_ = 0;
  if (ok)
    ZapiszLog(QStringLiteral("commit failed: %1")
                  .arg(BezCytatow(QString::fromUtf8(sqlite3_errmsg(db_)))));
  sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr);
  return false;
}

qint64 Baza::OstatnieId() const { return db_ ? sqlite3_last_insert_rowid(db_) : 0; }

// ---- the program's store ---------------------------------------------------------------------

namespace {
Baza& baza() {
  static Baza b;
  return b;
}
QString& folderDanych() {
  static QString f;
  return f;
}
QByteArray& kluczSesji() {
  static QByteArray k;
  return k;
}

bool zapisywalny(const QString& sciezka) {
  return ::faccessat(AT_FDCWD, QFile::encodeName(sciezka).constData(), W_OK, AT_EACCESS) == 0;
}
}  // namespace

QString FolderDanych() {
  if (folderDanych().isEmpty()) {
    const QString program =
        QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QDir::currentPath();
    folderDanych() = QDir(program).filePath(QStringLiteral("dane"));
  }
  return folderDanych();
}

void UstawFolderDanych(const QString& folder) {
  if (folderDanych() != folder) {
    ZamknijBaze();
    // Another store: its own key is learnt at its gate.
    kluczSesji().clear();
  }
  folderDanych() = folder;
}

void UstawKluczSesji(const QByteArray& klucz) {
  if (kluczSesji() != klucz) ZamknijBaze();
  kluczSesji() = klucz;
}

QByteArray KluczSesji() { return kluczSesji(); }

QString PlikBazy() { return QDir(FolderDanych()).filePath(QStringLiteral("money.fns")); }

bool OtworzBaze() {
  Baza& b = baza();
  if (b.Otwarta() && b.Plik() == PlikBazy()) return true;
  return b.Otworz(PlikBazy(), nullptr, kluczSesji());
}

bool OtworzBazeDoOdczytu() { return baza().Otworz(PlikBazy(), nullptr, kluczSesji(), true); }

StanBazy OtworzBazeIZbadaj() {
  const QString plik = PlikBazy();
  auto stan = [&](StanBazy s, const QString& powod) {
    ZapiszLog(QStringLiteral("store %1: %2").arg(plik, powod));
    return s;
  };
  const QFileInfo info(plik);
  if (!info.exists()) return stan(StanBazy::Brak, QStringLiteral("no such file"));
  if (baza().Otwarta() && baza().Plik() == plik) return StanBazy::Otwarta;
  const int fd = ::open(QFile::encodeName(plik).constData(), O_RDONLY | O_CLOEXEC);
  if (fd < 0)
    return stan(StanBazy::Nieczytelna,
                QStringLiteral("cannot be read: ") + QString::fromLocal8Bit(std::strerror(errno)));
  char naglowek[16] = {};
  const ssize_t n = ::read(fd, naglowek, sizeof naglowek);
  ::close(fd);
  // A store is encrypted from its first byte; a plain database or a stub is not one of ours.
  if (n < qsizetype(sizeof naglowek))
    return stan(StanBazy::Nieczytelna,
                QStringLiteral("too short to be a store (%1 bytes)").arg(info.size()));
  // A store is made of whole pages of 1 KiB (or a multiple of it).
  if (info.size() % 1024 != 0)
    return stan(StanBazy::Nieczytelna,
                QStringLiteral("not made of whole pages (%1 bytes): damaged").arg(info.size()));
  if (std::memcmp(naglowek, "SQLite format 3", 16) == 0)
    return stan(StanBazy::Nieczytelna, QStringLiteral("an unencrypted database, not a store"));
  // Writing needs the file and, for the journal beside it, the folder.
  if (!zapisywalny(plik))
    return stan(StanBazy::TylkoDoOdczytu,
                QStringLiteral("read-only: the file may not be written (%1)")
                    .arg(QString::fromLocal8Bit(std::strerror(errno))));
  if (!zapisywalny(info.absolutePath()))
    return stan(StanBazy::TylkoDoOdczytu,
                QStringLiteral("read-only: its folder may not be written (%1)")
                    .arg(QString::fromLocal8Bit(std::strerror(errno))));
  QString blad;
  if (baza().Otworz(plik, &blad, kluczSesji())) return StanBazy::Otwarta;
  if (baza().KodBledu() == SQLITE_NOTADB)
    return stan(StanBazy::Zablokowana,
                kluczSesji().isEmpty()
                    ? QStringLiteral(
                          "does not open with the program's key: locked by a password, or damaged")
                    : QStringLiteral("does not open with the key given"));
  return stan(StanBazy::Nieczytelna, BezCytatow(blad));
}

Baza& pubBaza() { return baza(); }

void ZamknijBaze() { baza().Zamknij(); }

// ---- helpers ---------------------------------------------------------------------------------

QString SqlTekst(const QString& tekst) {
  QString t = tekst;
  t.replace(QLatin1Char('\''), QStringLiteral("''"));
  return QLatin1Char('\'') + t + QLatin1Char('\'');
}

double PoleRekordu(const Rekordy& rs, const QString& nazwa) {
  const QVariant v = rs.Pole(nazwa);
  if (v.isNull()) return 0.0;
  if (v.typeId() == QMetaType::QString) return ZaokraglijDoGroszy(LiczbaZTekstu(v.toString()));
  return ZaokraglijDoGroszy(v.toDouble());
}

qint64 PoliczIle(const QString& jetSql) {
  return pubBaza().Czytaj(jetSql).Pole(QStringLiteral("ile")).toLongLong();
}

QString Oczysc(const QVariant& wartosc) { return wartosc.toString().trimmed(); }
