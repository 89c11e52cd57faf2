#include "store/strony.h"

#include <sqlcipher/sqlite3.h>

#include <QByteArray>
#include <vector>

bool UstawRozmiarStrony(sqlite3* db, int rozmiar, const char* baza) {
  const QByteArray sql =
      QByteArray("PRAGMA \"") + baza + "\".cipher_page_size=" + QByteArray::number(rozmiar);
  return sqlite3_exec(db, sql.constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

int RozmiarStrony(sqlite3* db, const char* baza) {
  const QByteArray sql = QByteArray("PRAGMA \"") + baza + "\".page_size";
  sqlite3_stmt* st = nullptr;
  int n = 0;
  if (sqlite3_prepare_v2(db, sql.constData(), -1, &st, nullptr) == SQLITE_OK &&
      sqlite3_step(st) == SQLITE_ROW)
    n = sqlite3_column_int(st, 0);
  sqlite3_finalize(st);
  return n;
}

int KluczujPolaczenie(sqlite3* db, const QByteArray& klucz, qint64 dlugoscPliku) {
  sqlite3_key(db, klucz.constData(), int(klucz.size()));
  if (dlugoscPliku <= 0) {
    UstawRozmiarStrony(db, RozmiarStronyBazy);
    return sqlite3_exec(db, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr);
  }
  // The likely sizes first; the rest only for a file made by hand with the shell.
  std::vector<int> rozmiary;
  if (dlugoscPliku % RozmiarStronyBazy == 0) rozmiary.push_back(RozmiarStronyBazy);
  rozmiary.push_back(DawnyRozmiarStrony);
  for (int r = 2048; r <= 65536; r *= 2)
    if (r != RozmiarStronyBazy && dlugoscPliku % r == 0) rozmiary.push_back(r);
  int kod = SQLITE_NOTADB;
  for (int r : rozmiary) {
    UstawRozmiarStrony(db, r);
    // The first read decrypts page 1 and tests its checksum: the wrong size fails it.
    kod = sqlite3_exec(db, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr);
    if (kod != SQLITE_NOTADB) return kod;
  }
  return kod;
}
