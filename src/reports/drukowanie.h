#pragma once
// The common scheme of every report: fields padded into columns, lines, rules, the closing line,
// the entries listed under a row of a detailed report, and the walk of a report's rows with its
// progress bar and abort button.

#include <QString>

#include "reports/dokument.h"

// What the report window offers a report while it is written: the bar, the caption of the wait
// frame, and a turn of the event loop in which the user may press the abort button. A report
// written with no window (tests, the command line) has none.
class PostepRaportu {
 public:
  virtual ~PostepRaportu() = default;
  virtual void Maksimum(int maksimum) = 0;
  // Moves the bar and lets waiting events run; true when the user has asked to stop.
  virtual bool Krok(int wartosc) = 0;
  virtual void Opis(const QString& tekst) = 0;
};

// One report being written: its document and the report-wide values the helpers read.
struct Raport {
  DokumentRaportu dok;
  int pubSzerokoscRaportu = 0;  // width of the rules
  int pubRodzajRaportu = 0;     // 1 entries, 2 categories, 3 accounts: which head a page repeats
  // The entries listed under a row: their condition on transakcje (may name konta), the period
  // condition beside it, and the columns written.
  QString pubWarunekListy, pubOkresListy;
  bool pubKolumnaData = false, pubKolumnaOpis = false, pubKolumnaPrzychod = false,
       pubKolumnaWydatek = false, pubKolumnaKategoria = false, pubKolumnaKonto = false,
       pubKolumnaKontrahent = false;

  PostepRaportu* postep = nullptr;
  bool przerwano = false;

  // The walk of a record set of `ile` rows: the bar runs to ile + 1.
  void Maksimum(int ile);
  // One row of the walk: the bar moves to `licznik`, events run, and the abort is tested. True
  // when the walk must stop before this row.
  bool Przerwij(int licznik);
  void Opis(const QString& tekst);
};

// One field, staying on the line: the text padded with blanks to abs(szerokosc) (never cut: a
// longer text pushes the line on), in front of it for a negative width, behind it otherwise.
// styl 0 or 1 plain, 2 bold; any other value keeps the look of the run before.
void PoleRaportu(Raport& cel, const QString& tekst, int szerokosc, int styl);
QString PoleTekstu(const QString& tekst, int szerokosc);
void NowaLinia(Raport& cel, int ile);
// A rule of dashes ending its line, bold if asked; it takes the font of the field before it.
void LiniaRaportu(Raport& cel, int szerokosc, bool pogrubiona);
// The closing line: printed on, today's date.
void StopkaRaportu(Raport& cel);
// The entries that pubWarunekListy selects, numbered, between two rules, under a heading line.
// Nothing at all when no entry matches.
void ListaTransakcji(Raport& cel, const QString& naglowek, int wciecie);

// A report's title: the first field of every head.
void TytulRaportu(Raport& cel, const QString& tytul);
