#pragma once
// Category rows for the category tests, written straight into the store.

#include <gtest/gtest.h>

#include "masterdata/kategorie.h"
#include "store/baza.h"

// A category under the parent its identifier names, with a monthly limit if one is given.
inline void Kategoria(const QString& id, int rodzaj, const QString& nazwa, double limit = 0) {
  const QString rodzic = id.size() == 1 ? QStringLiteral("-") : id.left(id.size() - 1);
  ASSERT_TRUE(pubBaza().Wykonaj(
      QStringLiteral("INSERT INTO kategorie (identyfikator,kategoria,nazwa,opis,rodzaj) VALUES "
                     "(%1,%2,%3,'',%4)")
          .arg(SqlTekst(id), SqlTekst(rodzic), SqlTekst(nazwa), QString::number(rodzaj))));
  if (limit != 0) {
    ASSERT_TRUE(UstawLimit(id, rodzaj, limit));
  }
}
