#pragma once
// The entry editor's logic: reading an existing executed or planned entry, and the save of OK and
// of "realise" with every check in its fixed order. An entry is one row of transakcje (executed)
// or zaplanowane (planned); realising moves a row from the second to the first. No balance is
// ever stored: the editor writes its one row and nothing else.

#include <QDate>
#include <QString>
#include <optional>

#include "store/session.h"

// What the editor holds when OK or cmdRealizuj is pressed.
struct DaneTransakcji {
  int tryb = 2;    // pubTryb: 1 planned, 2 executed, 3 realise the planned row id
  qint64 id = 0;   // 0: a new row
  int rodzaj = 2;  // 1 income, 2 expense
  QDate data;
  QString kwota;  // txtKwota as it stands
  QString opis;   // txtOpis as typed
  // pubKonto: id (0 none), nazwa, rodzaj, limit, and saldo as the account browser last
  // computed it; datautworzenia.
  KontoRekord konto;
  QString kategoria;      // pubKategoria.identyfikator; empty: none
  qint64 kontrahent = 0;  // 0: none
};

// How the save ended: written; the user declined the first question, which closes the editor;
// or the editor stays open with what was typed (a refusal, Nie later on, a failed write).
enum class WynikEdycji { Zapisano, Zamknij, Zostan };

// The table a mode works on: zaplanowane for 1 (planned) and 3 (realise), else transakcje.
QString TabelaTrybu(int tryb);

// A number as the program writes it into a statement: a blank in front of a positive number or
// 0, so the statement carries ' 7' and the store converts it on storing.
QString LiczbaDoZapisu(qint64 liczba);

// The amount of an amount field's text: "," read as the decimal mark, the leading number taken.
double KwotaPola(const QString& tekst);

// Whether an amount going out of an account is over its cover: cash and deposits have the
// balance only, bank accounts and cards the balance and the limit, loans and "other" are judged
// only when they have a limit. Equality is covered.
bool PozaPokryciem(int rodzajKonta, double kwota, double limit, double saldo);

// An amount in a warning: rounded to cents in the system's currency form.
QString KwotaWaluty(double kwota);

// The statements of a save, exactly in the store's dialect. The insert's description ends in two
// blanks and the update's in one; numbers carry their leading blank.
QString SqlWstawTransakcje(const QString& tabela, const DaneTransakcji& d);
QString SqlZmienTransakcje(const QString& tabela, const DaneTransakcji& d);

// The whole OK path: questions and refusals through MyMsgbox, then the write (realising deletes
// the planned row and inserts the executed one as one change). A failed write is told to the
// user and leaves the editor open.
WynikEdycji ZapiszTransakcje(const DaneTransakcji& d);

// An existing entry as the editor opens it, by the editor's read (only an entry whose account
// and category exist is found).
struct WierszTransakcji {
  qint64 id = 0;
  int rodzaj = 0;
  QDate data;
  double przychod = 0, wydatek = 0;
  QString opis;
  qint64 kontrahent = 0;
  QString nazwaKontrahenta;
  QString kategoria, nazwaKategorii;
  qint64 konto = 0;
  QString nazwaKonta;
  int rodzajKonta = 0;
};
std::optional<WierszTransakcji> CzytajTransakcje(int tryb, qint64 id);
