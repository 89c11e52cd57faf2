#include "ui/wykresy.h"

void DaneWykresu::Rozmiar(int w, int k) {
  wiersze = w < 0 ? 0 : w;
  kolumny = k < 0 ? 0 : k;
  wartosci.assign(size_t(wiersze) * size_t(kolumny), 0.0);
}

void DaneWykresu::Ustaw(int wiersz, int kolumna, double wartosc) {
  if (wiersz < 1 || wiersz > wiersze || kolumna < 1 || kolumna > kolumny) return;
  wartosci[size_t(wiersz - 1) * size_t(kolumny) + size_t(kolumna - 1)] = wartosc;
}

double DaneWykresu::Wartosc(int wiersz, int kolumna) const {
  if (wiersz < 1 || wiersz > wiersze || kolumna < 1 || kolumna > kolumny) return 0.0;
  return wartosci[size_t(wiersz - 1) * size_t(kolumny) + size_t(kolumna - 1)];
}

DaneWykresu DwaSlupki(double wartosc1, double wartosc2) {
  DaneWykresu d;
  d.typ = DaneWykresu::Slupki;
  d.Rozmiar(1, 2);
  d.Ustaw(1, 1, wartosc1);
  d.Ustaw(1, 2, wartosc2);
  return d;
}
