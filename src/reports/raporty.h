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
