#pragma once
// Pieces the entry and transfer editors share: the date field, the pictures of the three kinds of
// row, and the place where a picker opens beside a caption.

#include <QDate>
#include <QIcon>
#include <QString>

class QDateEdit;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;
class QWidget;

// The length of a description the store holds (opis of entries and transfers).
constexpr int DlugoscOpisu = 150;

// A date field with a month calendar that drops down, in the edition's date form.
QDateEdit* NowePoleDaty(const QString& nazwa, const QDate& data, QWidget* rodzic);

// fraData: dtpData on the left; lblKwota, txtKwota and its cmdKalkulator on the right.
struct NapisyRamkiDaty {
  QString tytul, podpowiedzDaty, kwota, podpowiedzKwoty, podpowiedzKalkulatora;
};
struct RamkaDaty {
  QGroupBox* ramka;
  QDateEdit* data;
  QLineEdit* kwota;
  QToolButton* kalkulator;
};
RamkaDaty NowaRamkaDaty(const NapisyRamkiDaty& napisy, QWidget* rodzic);

// A frame with the chosen item's caption in bold and the button that changes it; the button
// moves into the frame.
QGroupBox* NowaRamkaWyboru(const QString& nazwa, const QString& tytul, QLabel*& etykieta,
                           const QString& nazwaEtykiety, const QString& tekstEtykiety,
                           QPushButton* przycisk, QWidget* rodzic);

// imgPrzychod (1), imgWydatek (2) and the transfer's picture (3).
QIcon IkonaWpisu(int rodzaj);

// pubPozycjaX and pubPozycjaY for a picker: below the left end of the caption, on the screen.
void PozycjaPrzy(const QWidget* etykieta);
