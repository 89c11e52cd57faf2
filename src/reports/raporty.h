#pragma once
// The reports over master data. Each writes its whole document into a Raport from the session
// values its caller has set, so it runs the same in the report window and with no window.

#include <QString>

#include "reports/drukowanie.h"

// Accounts (pubWezelKont: "R" all, "r<kind>", "q" the account of pubKonto): balances at the end
// and start of pubOkres and the flows between; detailed (pubRaportDetaliczny) lists each
// account's entries under its row.
void TworzRaportKont(Raport& r);
// A category tree of pubKategoria.rodzaj from pubKategoria.identyfikator ("Root" for the whole
// tree): the sum of each category with its descendants in pubOkres and its share of the parent's
// branch; detailed lists each category's own entries.
void TworzRaportKategorii(Raport& r);
// Income and expense per counterparty in pubOkres: pubKontrahent.id, or every one for 0.
void TworzRaportKontrahenta(Raport& r);
// The main categories of pubKategoria.rodzaj: the month before the working date's month against
// that month, with the difference and its per cent, and a total line.
void TworzRaportSumaryczny(Raport& r);

// What a browser lists, walked line by line: pubZapytanieRaportu when the caller handed one, else
// the browser's statement of pubTryb (2 executed, else planned), the caller's fragment
// (pubFiltrTransakcji, pubFiltrTransferow) and pubOkres; entries with the sums of income and
// expense under them.
void TworzRaportTransakcji(Raport& r);
void TworzRaportTransferow(Raport& r);
// The browsers' statements: newest first, the fragment and the period condition behind "WHERE".
QString ZapytanieWpisow(int tryb, const QString& filtr, const QString& warunekOkresu);
QString ZapytanieTransferow(int tryb, const QString& filtr, const QString& warunekOkresu);

// Six months side by side, ending with the month of the time filter's date: balances at each
// month's end (pubWezelKont as for the account report), sums per category of pubKategoria with a
// bar chart under each main category, and sums per counterparty (pubKontrahent.id, 0 all).
void TworzRaportKontWCzasie(Raport& r);
void TworzRaportKategoriiWCzasie(Raport& r);
void TworzRaportKontrahentaWCzasie(Raport& r);

// A report form: the name its window is shown by, the stem of its language keys, the width of
// its rules, the head its printed pages repeat, and the function that writes it.
struct FormularzRaportu {
  const char* ekran;
  const char* klucze;  // captions <klucze>1 to 6, the file name's stem <klucze>7
  const char* tytul;   // key of the window's title
  int szerokosc;
  int rodzaj;
  void (*tworz)(Raport&);
};
// The forms above; nullptr for an unknown name.
const FormularzRaportu* ZnajdzFormularz(const QString& ekran);
const FormularzRaportu* FormularzeRaportow(int* ile);

// Writes the form's report with no window: width, kind and the whole document.
void TworzRaport(const FormularzRaportu& f, Raport& r);
