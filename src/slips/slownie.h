#pragma once
// The amount in words of a deposit slip, as banks take it: each digit of the whole zloty written
// as its three-letter word closed by "*", then the grosze as two digits over 100.
//   125.50 -> "jed*dwa*pie* 50/100",   0.05 -> "zer* 05/100"

#include <QString>

// The amount as the slip's field holds it ("1234,5", "0.07", blanks allowed); "," and "." both
// read as the decimal mark, rounded to whole grosze with a half going to the even digit; the
// reading stops at the first character that is not part of the number. A sign is not written.
QString KwotaSlownie(const QString& kwota);

// The same amount in whole grosze (never negative).
qint64 GroszeKwotySlownie(const QString& kwota);
