#pragma once
// The transfer editor's logic: money moved from one of the user's accounts to another, as one row
// of wewnetrzne (executed) or zaplanowanewewnetrzne (planned); realising moves a planned row to
// the executed ones. Reading an existing transfer and the save with its checks in their order.

#include <QDate>
#include <QString>
#include <optional>

#include "ledger/transakcje.h"
#include "store/session.h"

// What the transfer editor holds when OK or cmdRealizuj is pressed.
struct DaneTransferu {
  int tryb = 2;   // pubTryb: 1 planned, 2 executed, 3 realise the planned row id
  qint64 id = 0;  // pubTransfer; 0: a new row
  QDate data;
  QString kwota;  // txtKwota as it stands
  QString opis;   // txtOpis as typed
  // The account the money leaves and the one it reaches. saldo of zKonta is what the account
  // browser computed when the user picked it, 0 for a row opened and not picked again.
  KontoRekord zKonta, naKonto;
};

// The table of a mode: zaplanowanewewnetrzne for 1 and 3, else wewnetrzne.
QString TabelaTransferow(int tryb);

QString SqlWstawTransfer(const QString& tabela, const DaneTransferu& d);
QString SqlZmienTransfer(const QString& tabela, const DaneTransferu& d);

// The whole OK path, questions and refusals through MyMsgbox. The cover of the source account is
// checked for every executed transfer, a change of one included, and never for a planned one.
WynikEdycji ZapiszTransfer(const DaneTransferu& d);

// An existing transfer as the editor opens it (both accounts must exist).
struct WierszTransferu {
  qint64 id = 0;
  QDate data;
  double kwota = 0;
  QString opis;
  qint64 zKonta = 0, naKonto = 0;
  QString nazwaZKonta, nazwaNaKonto;
  int rodzajZKonta = 0, rodzajNaKonto = 0;
};
std::optional<WierszTransferu> CzytajTransfer(int tryb, qint64 id);
