#pragma once
// Every text the user reads comes from the language table by key.

#include <QString>

// Text of the key in the edition's language; "" for a missing key or a null text.
// The whole table is read once and kept in memory.
QString Napis(const QString& klucz);
// Forgets the cached table (a new store or another edition in tests).
void WyczyscNapisy();
