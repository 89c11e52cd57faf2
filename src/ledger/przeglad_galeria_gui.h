#pragma once
// The entry and transfer browsers for the gallery, on the store that is open (the gallery's
// sample): executed over the month of the working date, planned over every period, and sorted
// by a column.

#include <QWidget>
#include <memory>

// tryb: 2 executed, 1 planned; kolumna: the column sorted by a header click, -1 none.
std::unique_ptr<QWidget> GaleriaPrzegladuTransakcji(int tryb, int kolumna);
std::unique_ptr<QWidget> GaleriaPrzegladuTransferow(int tryb, int kolumna);
