#pragma once
// Start-up steps that touch the store: the upgrade of wersjabazy, the setup row, the empty-store
// test, today's name days.

#include <QString>

// Adds the eight mask columns to a two-column wersjabazy (with the masks of the edition in
// force) and reads the masks into the session. False when the store can't be read.
bool AktualizujBaze();
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
