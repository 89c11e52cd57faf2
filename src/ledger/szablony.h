#pragma once
// Templates: named sets of choices for an entry (szablony: account, category, counterparty,
// description) or a transfer (szablonywewnetrzne: two accounts and a description), with no date
// and no amount. The lists with their letter-by-letter search, the editors' reads and saves with
// their checks in order, the delete, and the reads an entry or transfer editor makes when the
// user takes a template.

#include <QString>
#include <optional>
#include <vector>

#include "store/session.h"

// The length of a template's name the store holds.
constexpr int DlugoscNazwySzablonu = 20;

// One line of a template list. For transfer templates kategoria is empty, konto is the source
// and kontrahent the target ("name (kind)" each).
struct WierszSzablonu {
  qint64 id = 0;
  QString nazwa, kategoria, konto, kontrahent, opis;
  QString zKonta, naKonto;
  bool operator==(const WierszSzablonu&) const = default;
};

// The income (rodzaj 1) or expense (2) templates whose account and category exist, by name; a
// non-empty key narrows them to those with it anywhere in the name, description, account,
// category or counterparty.
std::vector<WierszSzablonu> ListaSzablonow(int rodzaj, const QString& klucz);
// The transfer templates whose two accounts exist, by name, narrowed by the key over the name,
// the description and either account.
std::vector<WierszSzablonu> ListaSzablonowWewnetrznych(const QString& klucz);

// The statements of the two lists, as they run.
QString SqlListySzablonow(int rodzaj, const QString& klucz);
QString SqlListySzablonowWewnetrznych(const QString& klucz);

// A template as its editor holds it. For a transfer template konto is the source account and
// naKonto the target.
struct Szablon {
  qint64 id = 0;  // 0: a new one
  int rodzaj = 2;
  QString nazwa, opis;
  KontoRekord konto, naKonto;
  KategoriaRekord kategoria;
  KontrahentRekord kontrahent;
};

// The editors' reads (only a template whose account(s) and category exist is found).
std::optional<Szablon> CzytajSzablon(qint64 id);
std::optional<Szablon> CzytajSzablonWewnetrzny(qint64 id);

// The OK of the editors: the checks in their order, each refusal an OK-only message; then the
// insert or the update. A failed write is told too. True when the template is stored.
bool ZapiszSzablon(const Szablon& s);
bool ZapiszSzablonWewnetrzny(const Szablon& s);

// The delete of a list, after its question (names the template); true when it went.
bool UsunSzablonZPytaniem(qint64 id, const QString& nazwa, bool wewnetrzny);

// What an entry editor takes from a chosen template: the description and the three records with
// their names (the account's kind too).
std::optional<Szablon> SzablonDlaWpisu(qint64 id);
// What a transfer editor takes: the description and both accounts.
std::optional<Szablon> SzablonDlaTransferu(qint64 id);
