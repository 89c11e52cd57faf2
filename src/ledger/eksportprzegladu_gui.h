#pragma once
// The export command of the entry and transfer browsers: asks for a file (CSV or QIF) and
// writes the rows the browser shows, in its order, through the checked writer.

#include <QString>

class DanePrzegladu;
class QWidget;

// Asks for the file and writes it. True when written; false when cancelled or when the write
// failed (the user was told which file and why, and a former file of that name is untouched).
bool EksportujPrzeglad(QWidget* rodzic, const DanePrzegladu& dane);
