#pragma once
// Charts of a fixed shape, as data: a type, a grid of rows and columns with a value in each
// cell, and labels. The screens draw them through wykresy_gui.h. A column is one series (one
// colour); a row is one group of bars, or one slice of a pie.

#include <QColor>
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
