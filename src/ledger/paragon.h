#pragma once
// A shop receipt turned into expense entries: one date, one account, one counterparty, and up to
// nine lines of category, amount and description. Saving checks the receipt in its fixed order
// and writes one row of transakcje per line with an amount, from line 9 down to line 1, so that
// the browsers (newest id first within a day) list the receipt in its printed order. All the
// rows are written as one change: a failed line leaves nothing in the store.

#include <QDate>
#include <QString>
#include <array>

#include "store/session.h"

constexpr int LiczbaPozycjiParagonu = 9;

struct PozycjaParagonu {
  QString kwota;      // the amount field's text as it stands
  QString kategoria;  // the expense category's identifier; empty: none chosen
  QString opis;       // as typed
};

struct DaneParagonu {
  QDate data;
  // pubKonto as the account browser left it (saldo and limit judge the cover).
  KontoRekord konto;
  qint64 kontrahent = 0;
  std::array<PozycjaParagonu, LiczbaPozycjiParagonu> pozycje;  // lines 1..9 at 0..8
};

// The sum of the nine amounts, exact to the cent.
double SumaParagonu(const DaneParagonu& d);

// The insert of line n (1..9).
QString SqlPozycjiParagonu(const DaneParagonu& d, int n);

// The whole OK: messages and questions through MyMsgbox, then the rows as one change. True when
// the receipt is stored; false leaves the form open with everything as typed.
bool ZapiszParagon(const DaneParagonu& d);
