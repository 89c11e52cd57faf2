#pragma once
// Start-up steps that touch the store: the upgrade of wersjabazy, the setup row, the empty-store
// test, today's name days.

#include <QString>
#include <functional>

// Adds the eight mask columns to a two-column wersjabazy (with the masks of the edition in
// force) and reads the masks into the session. False when the store can't be read.
bool AktualizujBaze();
// Moves a store of an earlier version's small pages to the page size of new stores, the copy of
// UstawPrzedAktualizacja taken first. Only while no other process uses the store (the move
// replaces the file). False when a move was due and failed: the store is then as it was.
bool AktualizujStrony();
// What runs once before the upgrade changes the structure of the store (a copy is taken there);
// nothing when none is installed.
void UstawPrzedAktualizacja(std::function<void()> przed);
// Adds the columns of statement import and backups to a store that lacks them: konta.numer (the
// bank account number), transakcje.idbanku (the bank's id of an imported line),
// transakcje/wewnetrzne/kontrahent.importu (the import that wrote the row) and setup.liczbakopii
// (how many copies are kept). Part of AktualizujBaze. False when the store refused.
bool DodajKolumnyImportu();
// Adds setup's adresserwisu column (the questions service's address, empty for the default) to a
// store that lacks it; part of AktualizujBaze. False when the store refused.
bool DodajAdresSerwisu();
// Adds the recurring rules' tables (okresowe, okresowedni) and setup's horizon column
// (horyzontokresowych) to a store made before them; the rows already stored stay as they are.
bool DodajOkresowe();
// True when there is no category, no account and no counterparty.
bool CzyPustaBaza();
// Reads the setup row into the session; inserts the default row when there is none.
void WczytajSetup();
// The names of today's name day ("" when the table has no row for today).
QString ImionaDnia();
// Default colours of the nine theme fields, in setup's column order.
const QStringList& DomyslneKolory();
