#pragma once
// Building stores: the delivered store from data/, and generated sample stores.

#include <QString>

// Makes a fresh store at plik from the text in folderData (schema, language table, name days).
bool ZbudujBaze(const QString& folderData, const QString& plik, QString* blad = nullptr);

// Brings the delivered tables (language table, name days, wizard sets) of an existing store up
// to date with folderData, leaving the user's tables alone.
bool OdswiezDostarczone(const QString& folderData, const QString& plik, QString* blad = nullptr);

// Size of a generated sample store.
struct RozmiarProbki {
  int transakcje = 100000;
  int wewnetrzne = 20000;
  int konta = 40;
  int kategorie = 300;
  int kontrahenci = 500;
  int zaplanowane = 2000;
  int zaplanowaneWewnetrzne = 400;
  int lata = 5;              // entries spread over this many years ending at dzienKoncowy
  QString dzienKoncowy = QStringLiteral("2026-12-31");
  unsigned ziarno = 20260101;
};

// Fills an existing (delivered, empty) store with deterministic sample data.
bool GenerujProbke(const QString& plik, const RozmiarProbki& rozmiar, QString* blad = nullptr);
