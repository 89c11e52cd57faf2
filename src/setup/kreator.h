#pragma once
// The first-run wizard's logic: the five ready category sets and the finish. Nothing of the
// chosen set and colours reaches the store before the finish, and the finish is one transaction.

#include <QString>
#include <vector>

inline constexpr int LiczbaZestawow = 5;
// A set's income tree is kept under its typ plus this.
inline constexpr int PrzesuniecieZestawuPrzychodow = 10;

// One category of a ready set, with its name in the edition's language.
struct KategoriaZestawu {
  QString identyfikator;
  QString kategoria;  // the parent's identifier, "-" for a main category
  QString nazwa;
  QString opis;
};

// The categories of a set kept under typ, in identifier order (a parent before its children).
// The expense tree of set n is typ n, its income tree typ n + PrzesuniecieZestawuPrzychodow.
std::vector<KategoriaZestawu> ZestawKategorii(int typ);

// The finish: the expense tree of set typ (kind 2) and its income tree (kind 1) into kategorie,
// and the nine colours of profile into setup and the session, all in one transaction. typ 0 (no
// set chosen) writes no category. False, with nothing written, when the store refused.
bool ZakonczKreator(int typ, int profil);

// What an unfinished wizard leaves behind goes: the accounts and counterparties it made.
bool PosprzatajPoKreatorze();
