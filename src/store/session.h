#pragma once
// The session: every value that screens hand to each other. Screens take no parameters: a
// caller sets these and shows the next screen modally; the screen writes its result back here.

#include <QDate>
#include <QString>

struct KontoRekord {
  qint64 id = 0;
  QString nazwa;
  int rodzaj = 0;  // 1 cash, 2 bank, 3 credit cards, 4 deposits, 5 loans, 6 other
  double limit = 0;
  double saldo = 0;
  QDate datautworzenia;
};

struct KategoriaRekord {
  QString identyfikator;  // empty: none chosen (or a new category for the editor)
  QString nazwa;
  QString nadkategoria;   // the parent's key: an identifier or "Root"
  int rodzaj = 0;         // 1 income, 2 expense
};

struct KontrahentRekord {
  qint64 id = 0;  // 0: none
  QString skrocona;
};

struct TransakcjaRekord {
  qint64 id = 0;  // 0: a new entry
  int rodzaj = 0;
};

// The setup row in memory.
struct Ustawienia {
  QString tloaktywne, napisyaktywne, przyciskiaktywne, etykietyaktywne, napisyetykietaktywne,
      listajeden, listadwa, tlonieaktywne, napisynieaktywne;
  QString haslo;
  QString imieniny;  // today's names for the date line
  int pubWykres = 0;  // chart mode of the main window, not stored
  QString notatnik;
  QString userid;
  QString hasloserwisu;
};

// The payment slip as its editor hands it to the print-out.
struct PrzelewRekord {
  int wplata = 0;  // -1 a cash deposit, 0 a transfer
  QString nazwaOdbiorcy, nazwaOdbiorcyCd, lkOdbiorcy, bankOdbiorcy, kontoOdbiorcy;
  QString waluta;
  QString kwota;  // as typed
  QString nazwaNadawcy, nazwaNadawcyCd, lkNadawcy, bankNadawcy, kontoNadawcy;
  QString tytulem, tytulemCd;
  int naFormularzu = 0;  // -1 on the ready-printed form, 0 on a plain sheet
};

// The time filter in force.
struct FiltrCzasowyRekord {
  int rodzaj = 2;  // 0 all, 1 day, 2 week, 3 month, 4 quarter, 5 year, 6 range
  QDate pozycja;   // working date
  QDate od;        // first day of a range
  QDate do_;       // last day of a range
};

// Result of FiltrCzasowy, also handed to reports.
struct Okres {
  QString warunek;
  QString warunekPrzed;
  QString opis;
  QString opisDlugi;
};

struct Session {
  int pubJezyk = 1;  // 1 Polish, 2 English; fixed for the run
  QString pubSeparator = QStringLiteral(".");
  QString pubCzcionka = QStringLiteral("Liberation Mono");

  QString pubFormatDaty_ddpmmm;
  QString pubFormatDaty_ddpmmmpyy;
  QString pubFormatDaty_ddlmmmlyyyy;
  QString pubFormatDaty_ddsmmmmsyyyy;
  QString pubFormatDaty_dd_mmm_yy;
  QString pubFormatDaty_ddpmmmmpyy;
  QString pubFormatDaty_ddpmmmmpyyyy;
  int DrukowacZera = 0;

  Ustawienia pubUstawienia;
  bool pubPierwszyStart = false;
  int pubPrzedefiniowanyKontrahent = 0;  // -1 while the counterparty browser drives an editor
  QDate pubPrzedefiniowanaData;          // date for a new entry or transfer; null for none

  int pubTryb = 2;  // 1 planned, 2 executed, 3 realising
  TransakcjaRekord pubTransakcja;
  int pubWierszTransakcji = 0;
  qint64 pubTransfer = 0;
  int pubWierszTransferu = 0;
  QString pubFiltrTransakcji, pubTytulTransakcji;
  QString pubFiltrTransferow, pubTytulTransferow;
  // The query a browser hands to the entry or transfer report; empty: the report asks the
  // browser's own statement of pubTryb, pubFiltrTransakcji (pubFiltrTransferow) and pubOkres.
  QString pubZapytanieRaportu;

  FiltrCzasowyRekord pubFiltrCzasowy;
  Okres pubOkres;

  KategoriaRekord pubKategoria;
  KontrahentRekord pubKontrahent;
  KontoRekord pubKonto;

  // Browsers as pickers.
  int pubTrybPrzegladu = 1;  // 1 browsing, 2 picker
  int pubSzczegoly = 0;      // 1: the details panel is open
  int pubPozycjaX = -1, pubPozycjaY = -1;  // wanted position of a browser; -1: centred
  QString pubWezelKont;
  int pubWidokZrodlowy = 0;
  bool pubEdytorOtwarty = false;
  bool pubEdytorTransferuOtwarty = false;
  int pubPrzegladOtwarty = 0;
  bool pubRaportDetaliczny = false;  // the account, category and counterparty reports: detailed
  // The transfer browser restricted by the account browser: to one kind, or to one account.
  int pubFiltrTransferowRodzaj = 0;
  qint64 pubFiltrTransferowKonto = 0;

  // The payment slip: the recipient and the planned entry it pays (0: none).
  qint64 pubPrzelewKontrahent = 0;
  qint64 pubPrzelewZaplanowana = 0;
  PrzelewRekord pubPrzelew;

  // The first-run wizard: the chosen category set (0 none) and colour profile, the flag that
  // unwinds its stacked windows, the flag that it was finished, and the last size of a step.
  int pubTypKreatora = 0;
  int pubProfilKreatora = 0;
  bool pubKreatorPrzerwany = false;
  bool pubKreatorZakonczony = false;
  int pubKreatorSzerokosc = 0, pubKreatorWysokosc = 0;

  // Templates: the one chosen or edited (0: none, or a new one), the kind an entry-template list
  // shows, picker (1) or maintenance (2), the name under the cursor and the line to re-select.
  qint64 pubSzablonId = 0;
  int pubSzablonRodzaj = 2;
  int pubSzablonWybor = 2;
  QString pubSzablonNazwa;
  int pubSzablonWiersz = 0;
  // The recurring rule being edited (0: a new one).
  qint64 pubOkresowaId = 0;

  // The calculator: the value handed in and out, and where its window goes (screen pixels).
  QString pubKalkWartosc;
  int pubKalkLewa = 0, pubKalkGora = 0;
};

extern Session sesja;
