#pragma once
// The program's password: kept in setup.haslo as a salted PBKDF2 hash, never as plain text.

#include <QString>

// A fresh salted hash of the password, ready for setup.haslo ("" stays "": no password).
QString HashHasla(const QString& haslo);
// True when the stored value is in the hash form written by HashHasla.
bool CzyHashHasla(const QString& zapisane);
// Exact, case-sensitive check of a typed password against the stored value. A stored value
// that is not a hash (a plain password of an older store) is compared as plain text.
bool SprawdzHaslo(const QString& wpisane, const QString& zapisane);
