#pragma once
// Pieces the entry, transfer, template, receipt and recurring rule editors share: the date field,
// the pictures of the three kinds of row, the frames of a choice, their buttons and the pickers
// that open beside a caption.

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

// A button of an editor: named, and never the default of the dialog by having the focus.
QPushButton* NowyPrzycisk(const QString& nazwa, const QString& tekst, QWidget* rodzic);

// Opens a browser (frmPrzegladKont, frmPrzegladKategorii, frmPrzegladKontrahentow) as a picker
// below the caption it fills; the choice comes back in the session's record.
void PokazWybor(const QString& przegladarka, const QWidget* etykieta, QWidget* rodzic);
