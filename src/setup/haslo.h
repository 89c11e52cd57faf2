#pragma once
// The program's password: kept in setup.haslo as a salted PBKDF2 hash, never as plain text, and
// the lock of the store: with a password the store file is encrypted under it.

#include <QString>

// A fresh salted hash of the password, ready for setup.haslo ("" stays "": no password).
QString HashHasla(const QString& haslo);
// True when the stored value is in the hash form written by HashHasla.
bool CzyHashHasla(const QString& zapisane);
// Exact, case-sensitive check of a typed password against the stored value. A stored value
// that is not a hash (a plain password of an older store) is compared as plain text; the gate
// replaces such a value by its hash the first time it lets the user in.
bool SprawdzHaslo(const QString& wpisane, const QString& zapisane);

// Sets the user's password: a non-empty one locks the store with it and keeps its salted hash
// in setup.haslo; an empty one removes it, and the store goes back to the program's own key.
// The store is open afterwards under its new key. False with the reason (also logged) when the
// store could not be changed: it then stays as it was.
bool UstawHasloBazy(const QString& nowe, QString* blad = nullptr);

// The gate's check of a typed password. A store locked by a password opens with the right one.
// A store still under the program's key compares it with setup.haslo; when it is right, a plain
// value there is replaced by its hash at once and the store is locked with the password. False
// for a wrong password. bladZamka gets the reason when the password was right but the store
// could not be locked (the user is let in all the same).
bool WpuscHaslem(const QString& wpisane, QString* bladZamka = nullptr);
