#pragma once
// Every text the user reads comes from the language table by key.

#include <QString>

// Text of the key in the edition's language; "" for a missing key or a null text.
// The store's table is read once and kept in memory; while the store is not open (missing,
// locked, before the password gate) the program's own copy of the same texts serves.
QString Napis(const QString& klucz);
// Forgets the cached table (a new store or another edition in tests).
void WyczyscNapisy();
