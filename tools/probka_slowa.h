#pragma once
// Words the sample generator draws names and descriptions from.

struct Slowa {
  const char* const* slowa;
  int ile;
};

extern const Slowa NazwyKont[7];  // by account kind 1..6
extern const Slowa OpisyKont, KategoriePrzychodow, KategorieWydatkow, PodkategoriePrzychodow,
    PodkategorieWydatkow, OpisyKategorii, RodzajeFirm, Nazwiska, FormyPrawne, Ulice, Miasta,
    OpisyKontrahentow, OpisyPrzychodow, OpisyWydatkow, OpisyPrzelewow, SzablonyPrzychodow,
    SzablonyWydatkow, SzablonyPrzelewow;
