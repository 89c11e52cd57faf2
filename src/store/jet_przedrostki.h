#pragma once

#include <QString>

// A subtree of categories asked for by the prefix of its key — kategoria LIKE 'ab*' or
// LEFT(kategoria,2)='ab' (also identyfikator, and both qualified by a table) — rewritten as the
// range kategoria>='ab' AND kategoria<'ac', which the key indexes serve. Category keys are lower-
// case letters, for which both forms select the same rows; any other prefix, a LIKE under NOT
// and anything inside a quoted text are left as they stand. The result is still Jet text.
QString ZakresyPrzedrostkow(const QString& jet);
