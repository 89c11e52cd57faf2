#pragma once
// The user's own data in the setup row (name, address and bank data, which also fill the
// sender's fields of payment slips) and the program's password.

#include <QString>

struct DaneUzytkownika {
  QString imie, nazwisko, miasto, ulica, lk, bank, konto;
};

DaneUzytkownika CzytajDaneUzytkownika();
// True when a password guards the program.
bool JestHaslo();

// Which message the two password fields call for: 0 when they agree, otherwise the number of
// the first key of the pair (15: the first field is empty, 17: the second is, 19: they differ).
int KontrolaHasel(const QString& haslo, const QString& powtorzenie);

// Saves the user's data; with zmienHaslo also the password (empty: none), which locks the store
// under it or gives it back the program's key, safely (a checked copy, one rename). False with
// the reason when the store refused; the data saved before a failed change of password stays.
bool ZapiszUstawienia(const DaneUzytkownika& d, bool zmienHaslo, const QString& haslo,
                      QString* blad = nullptr);
