#pragma once
// Translation of the Jet dialect the program writes into SQLite, and the Jet functions
// the translated statements call.

#include <QString>

struct sqlite3;

// Turns one Jet statement into SQLite text: #mm/dd/yyyy# dates, LIKE wildcards, TOP n with its
// ties, LEFT/MID/LEN, quoted numbers with a decimal comma, ALTER TABLE ... BYTE, the column
// "limit", names compared and sorted in the Polish order. Text inside quotes never changes.
QString TlumaczJet(const QString& jet);

// Registers MONTH, YEAR, DAY, DATEPART, MID, LEN, JETLEFT, JETNOW, JETDATE, IIF, NZ, INT, the
// exact sum SUMA, a LIKE blind to case in every alphabet and the Polish order PL on a
// connection.
void ZarejestrujFunkcjeJet(sqlite3* db);
