#pragma once
// An amount field: a QLineEdit that follows the keystroke rules of the calculator (Kalkulator.h).
// Any screen makes its txtKwota one with PoleKwoty::Podlacz(txtKwota):
//   - keys: digits written position by position, "," and "." jump to the decimals, "c" resets,
//     Backspace edits, Enter/Tab/Esc belong to the window, every other typed key is refused;
//   - the "######0.00" shape is restored when the field loses the focus and when its window
//     becomes active;
//   - Wartosc() reads the amount (whole cents), UstawWartosc() writes one in the shape;
//   - OtworzKalkulator() is what a cmdKalkulator button does: frmKalkulator beside the field,
//     its result back into the field.
// The typing rule limits what is typed (ten characters); what the program writes into the field
// (an amount from the store, a calculator's result) is any amount up to 10^12 and is never cut:
// a screen sets no length cap on an amount field.

#include <QObject>
#include <functional>

#include "calculator/Kalkulator.h"

class QKeyEvent;
class QLineEdit;
class QToolButton;
class QWidget;

// An amount field with the rules attached, and its "..." button beside it that opens the
// calculator for it.
struct PoleZKalkulatorem {
  QLineEdit* pole;
  QToolButton* kalkulator;
};

class PoleKwoty : public QObject {
  Q_OBJECT
 public:
  // Attaches the rules to the field (lifting any length cap); the field owns the attachment.
  // Attaching twice gives the same object.
  static PoleKwoty* Podlacz(QLineEdit* pole);
  // The attachment of a field, or null.
  static PoleKwoty* Z(const QLineEdit* pole);
  // Makes the field (nazwaPola) and then its calculator button (nazwaPrzycisku, with the tip);
  // the screen places both and sets the field's width.
  static PoleZKalkulatorem NowePole(const QString& nazwaPola, const QString& nazwaPrzycisku,
                                    const QString& podpowiedzPrzycisku, QWidget* rodzic);

  // The width at which the field shows any amount the program holds (up to 10^12, negative
  // results of the calculator included) whole.
  static int Szerokosc(const QLineEdit* pole);

  QLineEdit* Pole() const;
  // The amount the field shows, in whole cents (a text out of shape is read as it will be shown).
  double Wartosc() const;
  void UstawWartosc(double wartosc);
  // kalkFormatuj: the text back into the "######0.00" shape.
  void Formatuj();
  // Opens frmKalkulator beside the field with the field's text, puts the result back and gives
  // the field the focus.
  void OtworzKalkulator();

 protected:
  bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

 private:
  explicit PoleKwoty(QLineEdit* pole);
};

// The state of an edit field as the rules see it, and back.
PoleTekstowe StanPola(const QLineEdit* pole);
void UstawStanPola(QLineEdit* pole, const PoleTekstowe& stan);

// Runs a key press of the field through a rule (a typed character and the field's state; the
// rule returns true to let the field handle the key). Keys that type nothing (arrows, Home,
// function keys), Tab and the copy and select-all shortcuts pass untouched; other shortcuts
// with Ctrl or Alt are refused. Returns true when the key has been dealt with (swallowed).
bool FiltrujKlawisz(QLineEdit* pole, QKeyEvent* klawisz,
                    const std::function<bool(QChar, PoleTekstowe&)>& regula);
