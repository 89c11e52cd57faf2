#include "store/baza.h"

#include <sqlcipher/sqlite3.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTextStream>
#include <cmath>
#include <utility>

#include "store/jet.h"
#include "store/zmiany.h"
#include "store/kwota.h"

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

bool Baza::Otworz(const QString& plik, QString* blad) {
  Zamknij();
  auto fail = [&](const QString& tekst) {
    if (blad) *blad = tekst;
    ZapiszLog(QStringLiteral("open %1: %2").arg(plik, tekst));
    if (db_) sqlite3_close(db_);
    db_ = nullptr;
    return false;
  };
  if (!QFile::exists(plik)) return fail(QStringLiteral("file not found"));
  if (sqlite3_open_v2(plik.toUtf8().constData(), &db_, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
    return fail(QString::fromUtf8(sqlite3_errmsg(db_)));
  sqlite3_key(db_, KluczBazy, int(strlen(KluczBazy)));
  // A wrong key or a file that is not a store shows at the first read.
  if (sqlite3_exec(db_, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr) !=
      SQLITE_OK)
    return fail(QString::fromUtf8(sqlite3_errmsg(db_)));
  sqlite3_exec(db_,
               "PRAGMA foreign_keys=OFF; PRAGMA journal_mode=DELETE; PRAGMA synchronous=FULL; "
               "PRAGMA cache_size=-65536; PRAGMA temp_store=MEMORY;",
               nullptr, nullptr, nullptr);
  ZarejestrujFunkcjeJet(db_);
  plik_ = plik;
  return true;
}

void Baza::Zamknij() {
  if (db_) sqlite3_close(db_);
  db_ = nullptr;
  glebokoscTransakcji_ = 0;
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
    ZapiszLog(QStringLiteral("read: %1 | %2").arg(rs.blad_, jetSql));
    return rs;
  }
  const QByteArray sql = TlumaczJet(jetSql).toUtf8();
  sqlite3_stmt* st = nullptr;
  if (sqlite3_prepare_v2(db_, sql.constData(), int(sql.size()), &st, nullptr) != SQLITE_OK) {
    rs.blad_ = QString::fromUtf8(sqlite3_errmsg(db_));
    ZapiszLog(QStringLiteral("read: %1 | %2 | %3").arg(rs.blad_, jetSql, QString::fromUtf8(sql)));
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
    ZapiszLog(QStringLiteral("read: %1 | %2").arg(rs.blad_, jetSql));
  }
  sqlite3_finalize(st);
  return rs;
}

WynikZapisu Baza::Wykonaj(const QString& jetSql) {
  WynikZapisu w;
  if (!db_) {
    w.blad = QStringLiteral("store not open");
    ZapiszLog(QStringLiteral("write: %1 | %2").arg(w.blad, jetSql));
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
    ZapiszLog(QStringLiteral("write: %1 | %2 | %3").arg(w.blad, jetSql, QString::fromUtf8(sql)));
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
    ZapiszLog(QStringLiteral("begin: %1").arg(QString::fromUtf8(sqlite3_errmsg(db_))));
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
  if (ok) ZapiszLog(QStringLiteral("commit: %1").arg(QString::fromUtf8(sqlite3_errmsg(db_))));
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
  if (folderDanych() != folder) ZamknijBaze();
  folderDanych() = folder;
}

QString PlikBazy() { return QDir(FolderDanych()).filePath(QStringLiteral("money.fns")); }

bool OtworzBaze() {
  Baza& b = baza();
  if (b.Otwarta() && b.Plik() == PlikBazy()) return true;
  return b.Otworz(PlikBazy());
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

void ZapiszLog(const QString& wpis) {
  QFile f(QDir(FolderDanych()).filePath(QStringLiteral("zorvik.log")));
  if (!f.open(QIODevice::Append | QIODevice::Text)) return;
  QTextStream out(&f);
  out << QDateTime::currentDateTime().toString(Qt::ISODate) << ' ' << wpis << '\n';
}
