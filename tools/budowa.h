#pragma once
// Building stores: the delivered store from data/, and generated sample stores.

#include <QString>

// Makes a fresh store at plik from the text in folderData (schema, language table, name days).
bool ZbudujBaze(const QString& folderData, const QString& plik, QString* blad = nullptr);

// Brings the delivered tables (language table, name days, wizard sets) of an existing store up
// to date with folderData, leaving the user's tables alone.
bool OdswiezDostarczone(const QString& folderData, const QString& plik, QString* blad = nullptr);

// Whether the store at plik holds anything the user typed (accounts, categories, entries, the
// setup row, ...). False with blad set when the file can't be read as a store.
bool MaDaneUzytkownika(const QString& plik, bool* ma, QString* blad = nullptr);

enum class SkutekBudowy { Zbudowana, Odswiezona };

// The build step beside the program: a missing store, or one without user data, is built afresh;
// one holding user data only gets its delivered tables refreshed, so that new texts show up and
// nothing typed is lost. A file that doesn't open as a store is left untouched (an error).
bool PrzygotujBaze(const QString& folderData, const QString& plik, SkutekBudowy* skutek = nullptr,
                   QString* blad = nullptr);

// Size of a generated sample store. The defaults are the bench store.
struct RozmiarProbki {
  int transakcje = 100000;
  int wewnetrzne = 20000;
  int konta = 40;
  int kategorie = 300;  // both trees together
  int kontrahenci = 500;
  int zaplanowane = 2000;
  int zaplanowaneWewnetrzne = 400;
  int szablony = 8;
  int szablonyWewnetrzne = 4;
  int lata = 5;  // entries spread over this many years ending at dzienKoncowy
  QString dzienKoncowy = QStringLiteral("2026-12-31");
  unsigned ziarno = 20260101;
};

// A sample of n entries, with the other tables scaled to it (masters kept at the bench size).
RozmiarProbki RozmiarDlaWpisow(int wpisy);

// Fills an existing delivered store that holds no user data with deterministic sample data:
// the same size and seed always give the same rows.
bool GenerujProbke(const QString& plik, const RozmiarProbki& rozmiar, QString* blad = nullptr);
