#pragma once
// The order in which the program compares and sorts names and descriptions: blind to case in
// every alphabet, with the Polish letters where a Polish reader looks for them
// (a ą b c ć d e ę ... l ł ... n ń o ó ... s ś ... z ź ż). Digits, blanks and signs come before
// the letters; other accented Latin letters follow their base letter.

#include <QStringView>
#include <QVarLengthArray>

// The name under which the order is registered on the store's connection ("... COLLATE PL").
extern const char* const NazwaPorzadku;

// <0, 0 or >0 as a comes before b, equals it (case aside), or comes after it. UTF-8 texts.
int PorownajPolskoUtf8(const unsigned char* a, int na, const unsigned char* b, int nb);
int PorownajPolsko(QStringView a, QStringView b);

// Every character that equals c when case is ignored, c itself among them ('k': k, K and the
// Kelvin sign).
QVarLengthArray<char32_t, 4> WariantyWielkosci(char32_t c);
