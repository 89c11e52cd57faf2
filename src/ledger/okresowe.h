#pragma once
// Recurring rules: an income, expense or transfer that comes back on a schedule. A rule names
// what a template names (accounts, category, counterparty, description) plus an amount, the
// first day and an optional last day, one of seven frequencies and what to do with a day that
// falls on a weekend. The program turns rules into ordinary planned rows (zaplanowane,
// zaplanowanewewnetrzne) up to a horizon of days ahead, so that everything that reads planned
// rows works on them unchanged. Each rule's days already planned are remembered (okresowedni),
// so that no rule plans the same day twice, even after its row was realised or deleted; every
// generation is one transaction, so an interrupted one leaves nothing half done.

#include <QDate>
#include <QString>
#include <optional>
#include <vector>

// optCzestotliwosc, in the order of the screen.
enum Czestotliwosc : int {
  Codziennie = 1,
  DniPowszednie = 2,
  CoTydzien = 3,
  CoMiesiac = 4,
  CoKwartal = 5,
  CoPolRoku = 6,
  CoRok = 7,
};
// A day on a Saturday or Sunday: kept, moved to the Friday before, or to the Monday after.
enum Weekend : int { WeekendZostaw = 0, WeekendPiatek = 1, WeekendPoniedzialek = 2 };

constexpr int DomyslnyHoryzont = 60;

struct RegulaOkresowa {
  qint64 id = 0;       // 0: a new rule
  int rodzaj = 2;      // 1 income, 2 expense, 3 transfer
  qint64 konto = 0;    // the account; for a transfer the one the money leaves
  qint64 naKonto = 0;  // a transfer's target
  QString kategoria;   // an entry's category identifier (of the rule's kind)
  qint64 kontrahent = 0;
  QString opis;
  double kwota = 0;
  QDate od;
  QDate do_;  // null: no end
  int czestotliwosc = CoMiesiac;
  int weekend = WeekendZostaw;
  QDate wygenerowanoDo;  // the last rule day planned so far; null: none yet
};

// One day of a rule: the rule's own day, and the day its row is planned for (moved off a
// weekend as the rule says).
struct Termin {
  QDate dzien;
  QDate data;
};

// The rule's own day number k (0 is the first day). Month-based rules count months from the first
// day, so a rule of the 31st falls on the last day of a shorter month and comes back to the 31st.
QDate DzienReguly(const RegulaOkresowa& r, int k);
QDate PrzesunZWeekendu(const QDate& data, int weekend);
// The rule's days from od to do_ (both included), within the rule's own period.
std::vector<Termin> TerminyReguly(const RegulaOkresowa& r, const QDate& od, const QDate& do_);

// A line of the list with the names behind the numbers.
struct WierszOkresowej {
  RegulaOkresowa regula;
  QString konto, naKonto, kategoria, kontrahent;
};
// The rules, by description, narrowed by a key anywhere in the description, an account, the
// category or the counterparty.
std::vector<WierszOkresowej> ListaOkresowych(const QString& klucz);
std::optional<RegulaOkresowa> CzytajOkresowa(qint64 id);

// The editor's OK: the checks in order (amount, account, category or target account, the same
// account twice, an end before the start), each refusal a message; then the rule is stored and
// planned anew from today on (its planned rows from today that still wait are replaced, at the new
// amount), all as one change. A day whose row the user already realised or deleted stays done;
// when the rule moves to another first day at the same frequency, the new day of that week or
// month (the nearest one for longer periods) stays done instead, so a week or month already paid
// does not come back. True when stored (with the rule's id in id when given).
bool ZapiszOkresowa(RegulaOkresowa r, qint64* id = nullptr);
// Deletes the rule after a question, and its planned rows from today on that still wait when the
// user says so (a second question). True when the rule went.
bool UsunOkresowaZPytaniem(qint64 id, const QString& opis);

// How many days ahead rules are planned (setup.horyzontokresowych; 60 when unset).
int HoryzontOkresowych();
bool UstawHoryzontOkresowych(int dni);

struct WynikGenerowania {
  bool ok = true;
  qint64 wiersze = 0;  // planned rows written
};
// Plans every rule's days up to dzis + horyzont that are not planned yet, as one transaction.
// A rule whose account or category no longer exists plans nothing.
WynikGenerowania GenerujOkresowe(const QDate& dzis, int horyzont);
// The same for today and the stored horizon: what the start and every change of a rule run.
WynikGenerowania GenerujOkresowe();

// The frequency's name as optCzestotliwosc shows it, and a rule's period ("od ... do ..." or
// open).
QString NazwaCzestotliwosci(int czestotliwosc);
QString OpisOkresuReguly(const RegulaOkresowa& r);
