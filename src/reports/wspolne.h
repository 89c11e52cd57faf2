#pragma once
// Small pieces the report forms share: amounts read and added in whole grosze, and the sums of
// a category tree read in one pass.

#include <QMap>
#include <QString>

#include "store/baza.h"

// A number field of the current row in whole grosze (EOF or null: 0).
qint64 Grosze(const Rekordy& rs, const QString& pole);
// An amount in a report column ("#### ##0.00") and in a CSV cell (no grouping).
QString KwotaRaportu(qint64 grosze);
QString KwotaTabeli(qint64 grosze);

// The entries of one kind in a period summed by category key in one grouped pass, and from them
// the sums per-category statements would give: a category's own (kategoria='x') and
// all below it (kategoria LIKE 'x*' AND kategoria<>'x'). A whole tree costs one statement rather
// than three per category.
class SumyWedlugKategorii {
 public:
  // warunek: the period condition, as it stands behind "WHERE rodzaj=<kind>".
  SumyWedlugKategorii(int rodzaj, const QString& warunek);
  qint64 Wlasna(const QString& identyfikator) const;
  qint64 Podrzednych(const QString& identyfikator) const;

 private:
  QMap<QString, qint64> klucze_;  // entries with no key never count under any category
};
