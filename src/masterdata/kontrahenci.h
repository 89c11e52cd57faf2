#pragma once
// Counterparties: the person or firm on the other side of an income or expense entry. The lookup
// of the short name, the rules of saving and deleting, and the figures the counterparty browser
// shows for the selected one (the executed sums of a period and the planned entries).

#include <QDate>
#include <QString>
#include <vector>

#include "store/session.h"

// Every field of a row of kontrahent, as the editor shows it.
struct DaneKontrahenta {
  qint64 id = 0;  // 0: a new counterparty
  QString skrocona, opis, nazwa, adres, miasto, telefon, lk, bank, konto;
};

// The short name of the record's counterparty; fills skrocona. An unknown id clears the record
// and gives the text of "Module154".
QString OpisKontrahenta(KontrahentRekord& kontrahent);

// The row of id, fields trimmed; an unknown id gives empty fields (and id 0).
DaneKontrahenta CzytajKontrahenta(qint64 id);

// The editor's OK: every field trimmed; an empty short name is refused; a new counterparty whose
// short name is taken asks whether to go on (a rename never asks). Questions, refusals and a
// failed write go through MyMsgbox. True when saved: the editor closes. nowyId receives the id of
// a new row.
bool ZapiszKontrahenta(const DaneKontrahenta& dane, qint64* nowyId = nullptr);

// Executed and planned entries that name the counterparty.
qint64 IleWpisowKontrahenta(qint64 id);
// Deleting: refused while entries (executed or planned) name the counterparty; else asks. On Tak
// the row goes together with the templates that name it, as one change. True when deleted.
bool UsunKontrahenta(qint64 id, const QString& nazwa);

// ---- the browser's panels --------------------------------------------------------------------

struct SumyKontrahenta {
  qint64 ile = 0;
  double przychod = 0, wydatek = 0;
};
// The executed entries of one counterparty, or (wszyscy) of every entry that names any
// counterparty, under a time condition (" AND ..." over "data", or empty for all time).
SumyKontrahenta SumyDokonanych(qint64 id, bool wszyscy, const QString& warunek);

struct ZaplanowanaKontrahenta {
  qint64 id = 0;
  QDate data;
  double przychod = 0, wydatek = 0;
  QString opis;
  // An entry whose expense column reads 0 is treated as income (also when both are 0).
  bool Przychod() const;
};
struct PanelZaplanowanych {
  std::vector<ZaplanowanaKontrahenta> wiersze;      // by date, then the newest id first
  double przychody = 0, wydatki = 0;                // every planned entry
  double zaleglePrzychody = 0, zalegleWydatki = 0;  // dated before the working date
};
// The planned entries of a counterparty; an entry is overdue when it lies at least one day
// before the working date (one dated on the working date is not).
PanelZaplanowanych CzytajZaplanowane(qint64 id, const QDate& dzienRoboczy);

// A number as plain text with no mask: 12.5 reads "12.5", 12 reads "12" (pubSeparator as the
// decimal mark), so that the planned totals are not always shown with two decimals.
QString LiczbaBezMaski(double wartosc);

// Deletes a planned entry after the question. True when deleted.
bool UsunZaplanowanaKontrahenta(qint64 id);
