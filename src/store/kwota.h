#pragma once
// Money: amounts are doubles that always hold a value rounded to whole cents, which a double
// represents exactly enough for any amount up to 10^12. Sums in the store are exact (see jet.cpp).

#include <QString>

// Nearest whole-cent value, half away from zero on the decimal form.
double ZaokraglijDoGroszy(double wartosc);
// The amount of a number of whole cents.
inline double ZGroszy(qint64 grosze) { return double(grosze) / 100.0; }
// Amount in whole cents (exact for |wartosc| < 10^13).
qint64 WGroszach(double wartosc);
// The program's number reader: leading blanks skipped, the longest numeric prefix with "."
// as the only decimal mark, 0 for anything that doesn't begin a number.
double LiczbaZTekstu(const QString& tekst);
