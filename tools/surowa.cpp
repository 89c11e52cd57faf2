#include "surowa.h"

#include <sqlcipher/sqlite3.h>

#include <QFileInfo>

#include "store/baza.h"
#include "store/strony.h"

sqlite3* OtworzSurowo(const QString& plik, bool utworz, QString* blad) {
  sqlite3* db = nullptr;
  const int flagi = SQLITE_OPEN_READWRITE | (utworz ? SQLITE_OPEN_CREATE : 0);
  if (sqlite3_open_v2(plik.toUtf8().constData(), &db, flagi, nullptr) != SQLITE_OK) {
    if (blad) *blad = QString::fromUtf8(sqlite3_errmsg(db));
    sqlite3_close(db);
    return nullptr;
  }
  // A new store gets the page size of new stores; a wrong key or a file that is not a store
  // shows at the first read.
  if (KluczujPolaczenie(db, QByteArray(KluczBazy), QFileInfo(plik).size()) != SQLITE_OK) {
    if (blad) *blad = QString::fromUtf8(sqlite3_errmsg(db));
    sqlite3_close(db);
    return nullptr;
  }
  return db;
}

bool WykonajSurowo(sqlite3* db, const QString& sql, QString* blad) {
  char* err = nullptr;
  if (sqlite3_exec(db, sql.toUtf8().constData(), nullptr, nullptr, &err) == SQLITE_OK) return true;
  if (blad) *blad = QString::fromUtf8(err ? err : sqlite3_errmsg(db));
  sqlite3_free(err);
  return false;
}

Polecenie::Polecenie(sqlite3* db, const QString& sql) : db_(db) {
  const QByteArray tekst = sql.toUtf8();
  if (sqlite3_prepare_v2(db, tekst.constData(), int(tekst.size()), &st_, nullptr) != SQLITE_OK) {
    blad_ = QString::fromUtf8(sqlite3_errmsg(db)) + QStringLiteral(" | ") + sql;
    sqlite3_finalize(st_);
    st_ = nullptr;
  }
}

Polecenie::~Polecenie() { sqlite3_finalize(st_); }

Polecenie& Polecenie::Tekst(int i, const QString& v) { return Tekst(i, v.toUtf8()); }

Polecenie& Polecenie::Tekst(int i, const QByteArray& v) {
  if (st_) sqlite3_bind_text(st_, i, v.constData(), int(v.size()), SQLITE_TRANSIENT);
  return *this;
}

Polecenie& Polecenie::Liczba(int i, qint64 v) {
  if (st_) sqlite3_bind_int64(st_, i, v);
  return *this;
}

Polecenie& Polecenie::Kwota(int i, qint64 grosze) {
  if (st_) sqlite3_bind_double(st_, i, double(grosze) / 100.0);
  return *this;
}

bool Polecenie::Wykonaj() {
  if (!st_) return false;
  int kod;
  while ((kod = sqlite3_step(st_)) == SQLITE_ROW) {
  }
  if (kod != SQLITE_DONE) blad_ = QString::fromUtf8(sqlite3_errmsg(db_));
  sqlite3_reset(st_);
  return kod == SQLITE_DONE;
}

bool Polecenie::Wiersz() {
  if (!st_) return false;
  const int kod = sqlite3_step(st_);
  if (kod == SQLITE_ROW) return true;
  if (kod != SQLITE_DONE) blad_ = QString::fromUtf8(sqlite3_errmsg(db_));
  return false;
}

void Polecenie::OdNowa() {
  if (st_) sqlite3_reset(st_);
}

qint64 Polecenie::Liczba(int kolumna) const { return st_ ? sqlite3_column_int64(st_, kolumna) : 0; }

double Polecenie::Rzeczywista(int kolumna) const {
  return st_ ? sqlite3_column_double(st_, kolumna) : 0;
}

QString Polecenie::Tekst(int kolumna) const {
  if (!st_) return {};
  return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st_, kolumna)),
                           sqlite3_column_bytes(st_, kolumna));
}

int Polecenie::Kolumny() const { return st_ ? sqlite3_column_count(st_) : 0; }
