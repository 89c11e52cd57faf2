#pragma once
// Pieces the entry and transfer editors share: the date field, the pictures of the three kinds of
// row, and the place where a picker opens beside a caption.

#include <QDate>
#include <QIcon>
#include <QString>

class QDateEdit;
class QWidget;

// A date field with a month calendar that drops down, in the edition's date form.
QDateEdit* NowePoleDaty(const QString& nazwa, const QDate& data, QWidget* rodzic);

// imgPrzychod (1), imgWydatek (2) and the transfer's picture (3).
QIcon IkonaWpisu(int rodzaj);

// pubPozycjaX and pubPozycjaY for a picker: below the left end of the caption, on the screen.
void PozycjaPrzy(const QWidget* etykieta);
