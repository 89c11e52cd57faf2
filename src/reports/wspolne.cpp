#include "reports/wspolne.h"

#include <QRegularExpression>

#include "store/kwota.h"
#include "store/tekst.h"

qint64 Grosze(const Rekordy& rs, const QString& pole) { return WGroszach(PoleRekordu(rs, pole)); }

QString KwotaRaportu(qint64 grosze) { return FormatKwoty(ZGroszy(grosze)); }
QString KwotaTabeli(qint64 grosze) { return FormatKwotyEdycja(ZGroszy(grosze)); }

SumyWedlugKategorii::SumyWedlugKategorii(int rodzaj, const QString& warunek) {
  Rekordy rs = pubBaza().Czytaj(
      // Over the whole time every row of the kind is read: one pass over the table then beats
      // a look-up per row along the category index.
      QStringLiteral("SELECT kategoria, SUM(przychod) AS sumprzychod, SUM(wydatek) AS sumwydatek "
                     "FROM transakcje WHERE %1rodzaj=%2")
          .arg(warunek.trimmed().isEmpty() ? QStringLiteral("+") : QString())
          .arg(rodzaj) +
      warunek + QStringLiteral(" GROUP BY kategoria"));
  for (; !rs.Eof(); rs.MoveNext()) {
    const QVariant klucz = rs.Pole(QStringLiteral("kategoria"));
    if (klucz.isNull()) continue;
    klucze_.insert(klucz.toString(), Grosze(rs, QStringLiteral("sumprzychod")) +
                                         Grosze(rs, QStringLiteral("sumwydatek")));
  }
}

qint64 SumyWedlugKategorii::Wlasna(const QString& identyfikator) const {
  return klucze_.value(identyfikator);
}

qint64 SumyWedlugKategorii::Podrzednych(const QString& identyfikator) const {
  // A key of lower-case letters is a range of keys in plain order; anything else goes by the
  // pattern, which is blind to case (the empty key matches every key).
  static const QRegularExpression litery(QStringLiteral("^[a-z]+$"));
  qint64 suma = 0;
  if (litery.match(identyfikator).hasMatch()) {
    for (auto it = klucze_.lowerBound(identyfikator);
         it != klucze_.cend() && it.key().startsWith(identyfikator); ++it)
      if (it.key() != identyfikator) suma += *it;
    return suma;
  }
  for (auto it = klucze_.cbegin(); it != klucze_.cend(); ++it)
    if (it.key() != identyfikator && it.key().startsWith(identyfikator, Qt::CaseInsensitive))
      suma += *it;
  return suma;
}
