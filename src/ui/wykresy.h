#pragma once
// Charts of a fixed shape, as data: a type, a grid of rows and columns with a value in each
// cell, and labels. The screens draw them through wykresy_gui.h. A column is one series (one
// colour); a row is one group of bars, or one slice of a pie.

#include <QColor>
#include <QDate>
#include <QString>
#include <QStringList>
#include <vector>

struct DaneWykresu {
  enum Typ { Slupki = 1, Kolowy = 14 };  // two-dimensional bars, two-dimensional pie
  int typ = Slupki;
  int wiersze = 0;
  int kolumny = 0;
  std::vector<double> wartosci;  // row by row
  QStringList etykietyWierszy;   // may be shorter than the rows: the rest stay unlabelled
  QStringList etykietyKolumn;
  std::vector<QColor> kolory;  // per column (bars) or per row (pie); empty: the default set
  QString tytul;

  void Rozmiar(int w, int k);
  // Rows and columns are counted from 1, as the cells are named.
  void Ustaw(int wiersz, int kolumna, double wartosc);
  double Wartosc(int wiersz, int kolumna) const;
};

// One row, two columns: column 1 holds the first value, column 2 the second.
DaneWykresu DwaSlupki(double wartosc1, double wartosc2);

// Six values as bars: six rows of one column, filled green (the chart of the six balances, and
// of six months).
DaneWykresu WykresMiesiecy(const std::vector<double>& szesc, const QStringList& etykiety = {});
// Six values as a pie; negative values have no slice.
DaneWykresu WykresKolowy(const std::vector<double>& szesc, const QStringList& etykiety = {});

// The last six months up to today's month, from the store: kind 1 income, 2 expense, 3 both
// (income green in column 1, expense red in column 2). Rows are the months, oldest first,
// labelled with their short names.
DaneWykresu WykresBilansu(int rodzaj, const QDate& dzis);
// The statement behind it, for today's month and year.
QString ZapytanieBilansu(int miesiac, int rok);
