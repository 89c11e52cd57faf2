#pragma once
// The error log, <data folder>/zorvik.log: what failed and why, for whoever has to find out
// later. It lies beside the user's money, so it never holds the user's data: statements are
// logged by their shape (verb and tables), never with their values, and the password never.

#include <QString>

// Appends one dated line. The file is created readable by the user alone (0600), and an older
// log that was readable by others is made private. When the data folder does not exist the line
// goes to the standard error instead.
void ZapiszLog(const QString& wpis);

// The shape of a statement: its verb and the tables it names, with every literal left out
// ("INSERT transakcje", "SELECT zaplanowane, konta, kategorie").
QString KsztaltZapytania(const QString& sql);

// An error text of the store with anything quoted in it left out: the store quotes the piece of
// a statement near which it failed, and that piece may be the user's text.
QString BezCytatow(const QString& blad);
