#pragma once
// Accounts: the balance arithmetic every screen and report repeats, the account lookups, and the
// rules of saving and deleting an account.
//
// A balance is never stored: it is summed from the rows, always in the same order,
// bowinien - boma + income - expense + incoming transfers - outgoing transfers.
// Every sum is exact to the cent (the store sums in whole cents; we add in whole cents).

#include <QDate>
#include <QString>
#include <optional>

#include "store/baza.h"
#include "store/session.h"

// A node of the account tree: all accounts ("Root"), one kind ("r3") or one account ("q17").
struct WezelKont {
  char typ = 'R';    // 'R' all accounts, 'r' one kind, 'q' one account
  qint64 numer = 0;  // the kind or the account's id; 0 for the root

  static WezelKont ZKlucza(const QString& klucz);
  static WezelKont Konto(qint64 id) { return {'q', id}; }
  static WezelKont Rodzaj(int rodzaj) { return {'r', rodzaj}; }
  QString Klucz() const;  // "Root", "r3", "q17"
  // The scope a report reads from pubWezelKont: "R", "r3" or "q".
  QString Zakres() const;
};

// The four statements of a node, each ready to take a time condition behind it.
struct ZapytaniaKont {
  QString bilansOtwarcia;  // sumabowinien, sumaboma (the condition speaks of datautworzenia)
  QString transakcje;      // ile, sumprzychod, sumwydatek
  QString przychodzace;    // ile, suma: transfers into the node
  QString wychodzace;      // ile, suma: transfers out of the node
};
ZapytaniaKont ZapytaniaWezla(const WezelKont& wezel);

// The six sums of a node under one condition, each rounded to cents.
struct SumyKont {
  double bowinien = 0, boma = 0, przychod = 0, wydatek = 0, przychodzace = 0, wychodzace = 0;
  // bowinien - boma + przychod - wydatek + przychodzace - wychodzace, exact to the cent.
  double Saldo() const;
  double BilansOtwarcia() const;  // bowinien - boma
};

// A time condition of the time filter is written over the column "data"; the opening balance
// is counted by the account's creation date instead.
QString WarunekDlaKont(const QString& warunek);

// Runs the four statements of the node with the condition behind each (empty: all time).
SumyKont CzytajSumy(const WezelKont& wezel, const QString& warunek = QString());
double SaldoWezla(const WezelKont& wezel);
// The balance of one account over all time; planned rows never count.
double SaldoKonta(qint64 id);

// The figures of a node over a period of the time filter.
struct BilansOkresu {
  SumyKont przed;             // everything before the period
  SumyKont wOkresie;          // the period itself
  double bilansOtwarcia = 0;  // opening balances before and in the period together
  double poczatek = 0;        // balance before the period
  double koniec = 0;          // balance after the period
  double zmiana = 0;          // koniec - poczatek
  double procent = 0;         // ProcentZmiany(poczatek, koniec)
};
BilansOkresu ObliczBilansOkresu(const WezelKont& wezel, const Okres& okres);

// What a click on a node of the account browser reads: the balance over all time where it is
// shown (an account's limit panel; kinds and the root have no limit), and with the details open
// the figures of the period.
struct StanWezla {
  bool maSaldo = false;
  double saldo = 0;
  bool maBilans = false;
  BilansOkresu bilans;
};
StanWezla CzytajStanWezla(const WezelKont& wezel, const Okres* okres);

// Percent change from before to after. With before 0: 0 when after is 0 too, else 100.
// The sign follows the division, so a debt shrinking from -100 to -50 reads -50.
double ProcentZmiany(double przed, double po);

// Over-limit test of an account's balance over all time: 1 in order (zero or above),
// 2 within the allowed overdraft (limit >= |balance|), 3 over the limit.
int StanLimitu(double saldo, double limit);

// "name (kind)" of the record's account; fills nazwa, rodzaj and limit. An unknown id clears the
// record and gives the text of "Module153".
QString OpisKonta(KontoRekord& konto);
// The account's creation date; invalid for an unknown id.
QDate DataUtworzeniaKonta(qint64 id);

// ---- saving and deleting ---------------------------------------------------------------------

// What the editor holds when OK is pressed.
struct DaneKonta {
  qint64 id = 0;  // 0: a new account
  QString nazwa, opis;
  int rodzaj = 1;
  QString winien, ma, limit;  // the three amount fields as typed
  // The bank account number, digits only (empty: none); written with the row when given, so
  // the account and its number are saved as one change. Unset: an existing number stays.
  std::optional<QString> numer;
};

// What a step of saving or deleting has to tell the user before going on.
struct PytanieKonta {
  enum Rodzaj { Nic, Odmowa, Pytanie };  // nothing; an OK-only refusal; a Tak/Nie question
  Rodzaj rodzaj = Nic;
  QString tekst, tytul;
};

// Saving, before anything is written: an empty name is refused; a new account whose name is
// already taken asks whether to go on (editing an account never asks).
PytanieKonta SprawdzZapisKonta(const DaneKonta& dane);
// Writes the row: an UPDATE of an existing account, or an INSERT of a new one dated with the
// working date. nowyId receives the new account's id.
WynikZapisu ZapiszKonto(const DaneKonta& dane, qint64* nowyId = nullptr);
// The whole OK path with the questions asked through MyMsgbox. True: saved, the editor closes.
// A store failure is told to the user and gives false, so the editor stays open.
bool ZapiszKontoZPytaniami(const DaneKonta& dane, qint64* nowyId = nullptr);

// Deleting: refused while executed or planned entries or transfers refer to the account; else
// the question whether to delete.
PytanieKonta SprawdzUsuniecieKonta(qint64 id, const QString& nazwa);
// Deletes the account and the templates on it, as one change.
bool UsunKonto(qint64 id);
// The whole deletion with its refusal or question through MyMsgbox. True: deleted.
bool UsunKontoZPytaniami(qint64 id, const QString& nazwa);

// ---- the entry and transfer lists of a node --------------------------------------------------

// The condition and title the account browser hands to the entry browser for a node.
struct FiltrListy {
  QString warunek;
  QString tytul;
  int rodzaj = 0;    // transfers only: the kind the list is restricted to
  qint64 konto = 0;  // transfers only: the account the list is restricted to
};
FiltrListy FiltrTransakcjiWezla(const WezelKont& wezel, const QString& nazwaKonta);
FiltrListy FiltrTransferowWezla(const WezelKont& wezel, const QString& nazwaKonta);
