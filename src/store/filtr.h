#pragma once
// The time filter: a kind and the working date turned into two SQL conditions and two texts.

#include <QDate>
#include <QString>

#include "store/session.h"

// Conditions and texts of the period of filtr.rodzaj; the working date and the range always
// come from sesja.pubFiltrCzasowy. A kind outside 0..6 gives four empty texts.
Okres FiltrCzasowy(const FiltrCzasowyRekord& filtr);
// Caption of the filter button of the given kind.
QString OpisOkresu(int rodzaj);
// Text of an account kind 1..6 ("Module110" for any other value).
QString NazwaRodzajuKonta(int rodzaj);
// Week number with Monday as the first day and week 1 the week holding 1 January.
int NumerTygodnia(const QDate& data);
