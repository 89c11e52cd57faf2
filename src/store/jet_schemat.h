#pragma once
// What the translator knows of the store's tables: which columns hold numbers. A quoted literal
// written to or compared with one of these is turned into a number; every other column is text.

#include <QStringView>

// True when tabela is one of the store's tables (case-insensitive).
bool JetZnanaTabela(QStringView tabela);
// 1: the column exists in the table and holds numbers; 0: it exists and holds text (or dates);
// -1: the table or the column is unknown.
int JetKolumnaLiczbowa(QStringView tabela, QStringView kolumna);
