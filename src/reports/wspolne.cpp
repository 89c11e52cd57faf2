#include "reports/wspolne.h"

#include "store/kwota.h"
#include "store/tekst.h"

qint64 Grosze(const Rekordy& rs, const QString& pole) { return WGroszach(PoleRekordu(rs, pole)); }

QString KwotaRaportu(qint64 grosze) { return FormatKwoty(ZGroszy(grosze)); }
QString KwotaTabeli(qint64 grosze) { return FormatKwotyEdycja(ZGroszy(grosze)); }

qint64 SumyKategorii::Suma(const QString& jetSql) {
  if (auto it = znane_.constFind(jetSql); it != znane_.constEnd()) return *it;
  const Rekordy rs = pubBaza().Czytaj(jetSql);
  const qint64 suma =
      Grosze(rs, QStringLiteral("sumprzychod")) + Grosze(rs, QStringLiteral("sumwydatek"));
  znane_.insert(jetSql, suma);
  return suma;
}

QString SumaWlasna(const QString& identyfikator, int rodzaj, const QString& warunek) {
  return QStringLiteral(
             "SELECT SUM(przychod) AS sumprzychod, SUM(wydatek) AS sumwydatek FROM transakcje "
             "WHERE kategoria=%1 AND rodzaj=%2")
             .arg(SqlTekst(identyfikator))
             .arg(rodzaj) +
         warunek;
}

QString SumaPodrzednych(const QString& identyfikator, int rodzaj, const QString& warunek) {
  return QStringLiteral(
             "SELECT SUM(przychod) AS sumprzychod, SUM(wydatek) AS sumwydatek FROM transakcje "
             "WHERE rodzaj=%1 AND kategoria LIKE %2 AND kategoria<>%3")
             .arg(rodzaj)
             .arg(SqlTekst(identyfikator + QLatin1Char('*')), SqlTekst(identyfikator)) +
         warunek;
}
