#pragma once
// The commands of the main window: one table from a command's name ("mnuKonta", "cmdMenu(17)")
// to what it does. The main window enables exactly the commands that can run: those with a
// handler of their own, and those whose screen is registered (app/ekrany_gui.cpp).

#include <QString>
#include <functional>

using Polecenie = std::function<void()>;

// The name a command button stands for: most cmdMenu buttons repeat a menu command
// ("cmdMenu(11)" -> "mnuKonta"); any other name comes back as it is.
QString NazwaPolecenia(const QString& nazwa);
// True when the command (or the menu command its button stands for) can run now.
bool MaPolecenie(const QString& nazwa);
// Runs the command; false when it cannot run.
bool UruchomPolecenie(const QString& nazwa);

// A new income (1) or expense (2) entry, executed (tryb 2) or planned (tryb 1), in its editor.
void NowaTransakcja(int tryb, int rodzaj);
// A new transfer, executed (tryb 2) or planned (tryb 1), in its editor.
void NowyTransfer(int tryb);

// The entry browser (executed for tryb 2, planned otherwise) over the rows of the condition
// fragment, under the title; with the filter kind rodzajFiltra, or the one in force for -1.
// The filter kind stays as the browser leaves it.
void PokazPrzegladTransakcji(int tryb, const QString& fragment, const QString& tytul,
                             int rodzajFiltra);
// The same for the transfer browser.
void PokazPrzegladTransferow(int tryb, const QString& fragment, const QString& tytul,
                             int rodzajFiltra);
// The planned entries of the dashboard's sums: 0 all income, 1 overdue income, 2 all expense,
// 3 overdue expense. The filter kind, the condition and the range are put back afterwards.
void PokazZaplanowane(int indeks);
// The entry browser over every executed entry that holds the text; with no text, the message
// that there is nothing to search for. False when nothing was searched.
bool Szukaj(const QString& tekst);
// Whether the browsers the dashboard opens are there.
bool MaPrzegladTransakcji();
bool MaPrzegladTransferow();
