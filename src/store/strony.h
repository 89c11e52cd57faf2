#pragma once
// The page size of the store file. Every page read is decrypted and its checksum tested, so the
// size of a page sets how much work each read costs: new stores use pages of RozmiarStronyBazy,
// stores made by earlier versions have pages of 1 KiB until they are moved to the larger size
// (PrzeniesNaNoweStrony in zamek.h). The size is not written in the clear anywhere in the file,
// so a connection learns it by trying to read the first page.

#include <QByteArray>

struct sqlite3;

// Pages of new stores (and of every store after its move).
constexpr int RozmiarStronyBazy = 4096;
// Pages of the stores made before: 1 KiB.
constexpr int DawnyRozmiarStrony = 1024;

// Keys a connection just opened on a store file and reads its first page, trying the new page
// size first and then the old one (a file whose length is not a whole number of new pages is
// tried at the old size first). Returns the store's result code of the last try: SQLITE_OK once
// the first page reads, SQLITE_NOTADB when no size fits (a wrong key, or not a store). Trying
// again at another size does not derive the key again. An empty file gets the new size.
int KluczujPolaczenie(sqlite3* db, const QByteArray& klucz, qint64 dlugoscPliku);

// The page size a keyed connection reads its main file with (0 when it can't be told).
int RozmiarStrony(sqlite3* db, const char* baza = "main");

// Sets the page size of a keyed connection's file (main, or an attached one) before its first
// read or write.
bool UstawRozmiarStrony(sqlite3* db, int rozmiar, const char* baza = "main");
