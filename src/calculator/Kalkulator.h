#pragma once
// Amount fields behave like the display of a pocket calculator: they always hold a number with
// two decimals ("######0.00", the system's decimal mark), digits are written into them position
// by position, and most keys are refused. This file holds those rules and the four-function
// calculator behind frmKalkulator and frmKalkulatorCaly, as plain functions over a field's state.

#include <QChar>
#include <QString>

// What the keystroke rules see of an edit field: its text and its selection. With no selection
// selStart is the caret.
struct PoleTekstowe {
  QString tekst;
  int selStart = 0;
  int selLength = 0;
};

// The text in the amount shape: read as an amount, written by "######0.00". "" gives "0.00".
QString kalkFormatuj(const QString& tekst);
// Reformats the field and keeps the caret where it stood (at most at the end).
void kalkFormatuj(PoleTekstowe& pole);
// True when the text has the shape of an amount: digits (a minus in front allowed), the system's
// decimal mark and two decimals.
bool kalkWKsztalcie(const QString& tekst);

// The key-press rule of every amount field, for one typed character. "," and "." select the two
// decimals; a digit is written by kalkLiczba; "c" resets the field to "0"; Backspace (and the
// characters that belong to the window rather than the field: Enter, Tab, Esc) go through.
// Returns true when the edit control must handle the key itself, false when it is swallowed.
bool kalkKeyPress(QChar klawisz, PoleTekstowe& pole);

// Writes a digit at the caret: inserted into the integer part (a lone "0" gives way; at 10
// characters the digit is dropped), overwriting a decimal after the mark. A selection is cleared
// first: its integer digits go, its decimals become 0. A text out of shape (after Backspace) is
// put back into shape first, so nothing typed before is lost.
void kalkLiczba(QChar cyfra, PoleTekstowe& pole);

// The caret jump on the decimal mark: the two decimals get selected.
void kalkDoGroszy(PoleTekstowe& pole);

// The calculator of frmKalkulator and frmKalkulatorCaly. Amounts are worked in whole cents, so
// every result is exact and rounded to cents with a final half going to the even cent.
class Kalkulator {
 public:
  enum Dzialanie { Brak = -1, Dodaj = 0, Odejmij = 1, Mnoz = 2, Dziel = 3 };

  // On load: the display takes the value handed in; no operation waits.
  explicit Kalkulator(const QString& wartosc = QString());

  void Liczba(int cyfra);  // cmdLiczba(n)
  void Koma();             // cmdKoma: to the decimals, starting a new number if one is due
  void Dzialanie(int n);   // cmdDzialanie(n): 0 "+", 1 "-", 2 "*", 3 "/"
  void Oblicz();           // cmdOblicz, "="
  void Procent();          // cmdProcent: display := memory * display / 100, op. stays
  void C();                // cmdC: memory and display to "0"
  void PlusMinus() {}      // cmdPlusMinus: the button is on the form and does nothing
  QString Wynik() const { return wyswietlacz.tekst; }  // what cmdZamknij hands over

  // A typed character in the display: Enter and "=" compute, "%" and the four operator signs act
  // as their buttons, "," and "." as cmdKoma, digits start a new number when one is due and
  // then follow the field rules, as does everything else. Returns true when the edit control
  // must handle the key itself (Backspace, Tab, Esc).
  bool Klawisz(QChar klawisz);
  // The Delete key in the display: it acts as "c".
  void Usun();

  PoleTekstowe wyswietlacz;  // txtWyswietlacz
  QString pamiec = QStringLiteral("0");
  int dzialanie = Brak;
  bool nowaLiczba = false;      // the next digit starts a new number
  bool czekaDzialanie = false;  // an operation waits for its second operand

 private:
  void ZacznijLiczbe();
  void WykonajDzialanie();
};
