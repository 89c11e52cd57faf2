#pragma once
// Small pieces the report forms share: amounts read and added in whole grosze, and the two sums
// of one statement, each statement run once per report.

#include <QHash>
#include <QString>

#include "store/baza.h"

// A number field of the current row in whole grosze (EOF or null: 0).
qint64 Grosze(const Rekordy& rs, const QString& pole);
// An amount in a report column ("#### ##0.00") and in a CSV cell (no grouping).
QString KwotaRaportu(qint64 grosze);
QString KwotaTabeli(qint64 grosze);

// sumprzychod + sumwydatek of a statement; the same statement asked again within one report is
// answered from memory (a parent's branch is its children's branch, and the same for every main
// category).
class SumyKategorii {
 public:
  qint64 Suma(const QString& jetSql);

 private:
  QHash<QString, qint64> znane_;
};

// The statements of a category's sums, with the period condition behind each.
QString SumaWlasna(const QString& identyfikator, int rodzaj, const QString& warunek);
QString SumaPodrzednych(const QString& identyfikator, int rodzaj, const QString& warunek);
