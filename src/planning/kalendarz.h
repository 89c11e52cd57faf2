#pragma once
// The calendar of one month of planned money: the grid of 37 cells from Monday, and for each day
// the count of planned rows and the sums of planned income, expense and transfers. Only the
// planned tables are read.

#include <QDate>
#include <array>

inline constexpr int KomorekKalendarza = 37;  // a 31-day month that begins on a Sunday

struct DzienKalendarza {
  int ile = 0;                                       // planned entries and transfers on the day
  qint64 przychod = 0, wydatek = 0, wewnetrzne = 0;  // whole grosze
  // The count shows only where the sums do: a row of amount 0 alone shows nothing.
  bool CosZaplanowano() const { return przychod + wydatek + wewnetrzne != 0; }
};

struct MiesiacKalendarza {
  int miesiac = 1, rok = 2000;
  int pierwszyDzien = 1;  // weekday of the 1st: Monday 1 ... Sunday 7
  int ileDni = 31;
  std::array<DzienKalendarza, 32> dni{};  // by the day of the month, 1 to ileDni

  // The cell of a day, and the day of a cell (0 for a cell outside the month).
  int Komorka(int dzien) const { return dzien + pierwszyDzien - 2; }
  int Dzien(int komorka) const;
  QDate Data(int komorka) const;
};

// The month's grid only (no store).
MiesiacKalendarza UkladMiesiaca(int miesiac, int rok);
// The grid with the planned rows of the month.
MiesiacKalendarza CzytajMiesiac(int miesiac, int rok);

// The cell that carries today's colours in that month, or -1 when today lies in another month.
int KomorkaDzisiaj(const MiesiacKalendarza& m, const QDate& dzis);

// ">>" and "<<" across the year's end.
void NastepnyMiesiac(int& miesiac, int& rok);
void PoprzedniMiesiac(int& miesiac, int& rok);
