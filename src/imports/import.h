#pragma once
// From a read statement to entries: the preview (duplicates, the other party matched by name or
// account number, a category proposed from the user's own past entries, lines between the
// user's own accounts as transfers), the write of the chosen lines as one change, and the undo
// of the last import.

#include <QString>
#include <vector>

#include "imports/wyciag.h"

enum class StanPozycji { Nowy, Duplikat, Transfer };

struct PozycjaPodgladu {
  PozycjaWyciagu p;
  StanPozycji stan = StanPozycji::Nowy;
  bool wybrana = true;         // duplicates start unchosen
  qint64 kontrahent = 0;       // matched counterparty; 0: none
  QString nazwaKontrahenta;    // its short name, or the full name of a new one
  bool nowyKontrahent = false; // a counterparty to create under nazwaKontrahenta
  QString kategoria;           // proposed or chosen category (identifier); "" none
  qint64 kontoTransferu = 0;   // the user's other account of a transfer line
  bool jakoTransfer = false;   // written as a transfer between the two accounts
  int rodzaj() const { return p.grosze >= 0 ? 1 : 2; }  // 1 income, 2 expense
};

struct Podglad {
  qint64 konto = 0;
  std::vector<PozycjaPodgladu> pozycje;
  int ile(StanPozycji s) const;
};

// The account whose number is the statement's own (digits compared); 0 when none.
qint64 KontoDlaRachunku(const QString& rachunek);
// The account's number as stored (digits only), and its change; "" clears it.
QString NumerKonta(qint64 konto);

// Matches the statement against the store for the account.
Podglad PrzygotujPodglad(const Wyciag& w, qint64 konto);
// The name of a category by identifier and kind, for the preview ("" unknown).
QString NazwaKategorii(const QString& identyfikator, int rodzaj);

struct WynikImportu {
  bool ok = false;
  int wpisy = 0, transfery = 0, kontrahenci = 0;
  QString blad;
};
// Writes the chosen lines (and the counterparties they need) as one change, marked as one
// import; nothing is written when any statement fails.
WynikImportu ZapiszImport(const Podglad& p);
// How many rows the last import wrote (entries + transfers); 0 when there is none to undo.
int WierszeOstatniegoImportu();
// Removes exactly what the last import wrote: its entries, transfers and the counterparties it
// created that nothing else uses. One change.
WynikImportu CofnijImport();
