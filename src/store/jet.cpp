#include "store/jet.h"

#include <sqlcipher/sqlite3.h>

// Placeholder until the translator lands: statements pass through unchanged.
QString TlumaczJet(const QString& jet) { return jet; }

void ZarejestrujFunkcjeJet(sqlite3*) {}
