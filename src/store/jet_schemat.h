#pragma once
// What the translator knows of the store's tables: which columns hold numbers, which hold keys
// and codes compared exactly, and which hold names and free text, compared blind to case in the
// Polish order.

#include <QStringView>

enum class RodzajKolumny {
  Nieznana,  // the table or the column is not the store's
  Liczba,    // a quoted literal written to or compared with it becomes a number
  Klucz,     // text compared exactly: keys, dates, codes, colours, passwords
  Tekst,     // names and free text
};

// True when tabela is one of the store's tables (case-insensitive).
bool JetZnanaTabela(QStringView tabela);
RodzajKolumny JetRodzajKolumny(QStringView tabela, QStringView kolumna);
// 1: the column exists in the table and holds numbers; 0: it holds text; -1: unknown.
int JetKolumnaLiczbowa(QStringView tabela, QStringView kolumna);
// A name column with an index of its own, which a lookup by name should keep using.
bool JetTekstZIndeksem(QStringView tabela, QStringView kolumna);
// The column is the table's row key (unique, never null).
bool JetKluczWiersza(QStringView tabela, QStringView kolumna);
