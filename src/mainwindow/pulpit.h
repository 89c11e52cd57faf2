#pragma once
// What the main window shows, as plain data: the four short lists, the sums of what is planned
// and overdue, the balance of each kind of account with the month's figures, the daily overview,
// the search condition, and the deletes and the wipe that the window's commands run.

#include <QDate>
#include <QString>
#include <QStringList>
#include <array>
#include <vector>

// The four lists of the dashboard.
enum class ListaPulpitu { Transakcje, Zaplanowane, Wewnetrzne, WewnetrzneZaplanowane };

// Entry lists or transfer lists; executed or planned.
bool ListaTransferow(ListaPulpitu lista);
bool ListaZaplanowanych(ListaPulpitu lista);

// One row as the list shows it: entries date, income, expense, category, account, counterparty,
// description; transfers date, amount, from account, to account, description.
struct WierszPulpitu {
  qint64 id = 0;
  QStringList kolumny;
  double przychod = 0;  // transfers: the amount
  double wydatek = 0;
  QString opis;
};

// The statement of a list, in the store's dialect.
QString ZapytanieListy(ListaPulpitu lista);
// The rows of a list, newest first (planned entries: oldest first). A failed read gives none.
std::vector<WierszPulpitu> CzytajListe(ListaPulpitu lista);
// The columns of a list that hold amounts.
bool KolumnaKwoty(ListaPulpitu lista, int kolumna);

// The planned entries: all of them, and those dated before today.
struct StanZaplanowanych {
  double przychody = 0, wydatki = 0;
  double zaleglePrzychody = 0, zalegleWydatki = 0;
};
StanZaplanowanych CzytajStanZaplanowanych(const QDate& dzis);

// The balance panel: the balance of each account kind 1 to 6 over all time, their total, and the
// income and expense of today's calendar month. Exact to the cent.
struct StanKontPulpitu {
  std::array<double, 7> salda{};  // salda[1] .. salda[6]; [0] unused
  double suma = 0;
  double przychody = 0, wydatki = 0, bilans = 0;
};
StanKontPulpitu ObliczStanKont(const QDate& dzis);
// True when the store keeps per-account totals (new stores do); older stores sum every row.
bool MaObrotyKont();

// The caption of the month of the panel: a blank and the month's full name, capitalised.
QString TytulMiesiaca(const QDate& dzis);

// The daily overview: what is planned up to and including today, or the text that nothing is.
QString PrzegladDnia(const QDate& dzis);

// The condition the search hands to the entry browser: the text (trimmed) anywhere in the
// description, the amounts read as text, the category, counterparty or account name.
QString FiltrWyszukiwania(const QString& tekst);

// The row in words for the delete question: its columns with the description in double quotes.
QString OpisWiersza(const WierszPulpitu& wiersz);

// Deletes one row of the list's table; true when the statement ran.
bool UsunWierszListy(ListaPulpitu lista, qint64 id);

// Deletes everything the user entered (categories, accounts, counterparties, templates, entries,
// transfers, plans) as one change.
bool WyczyscWszystkieDane();
