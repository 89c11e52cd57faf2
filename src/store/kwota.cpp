#include "store/kwota.h"

#include <QLocale>
#include <cmath>

qint64 WGroszach(double wartosc) {
  // Round on the shortest decimal form, so that 1.005 (stored as 1.00499999...) gives 101.
  const QString t = QString::number(wartosc, 'f', 6);
  const bool ujemna = t.startsWith(QLatin1Char('-'));
  const QString cyfry = ujemna ? t.mid(1) : t;
  const int kropka = int(cyfry.indexOf(QLatin1Char('.')));
  qint64 calosc = cyfry.left(kropka).toLongLong();
  const QString ulamek = cyfry.mid(kropka + 1);
  qint64 grosze = calosc * 100 + ulamek.left(2).toLongLong();
  // Six decimals hold the double's own error well below the third digit.
  if (ulamek.mid(2).toLongLong() >= 5000) ++grosze;
  return ujemna ? -grosze : grosze;
}

double ZaokraglijDoGroszy(double wartosc) {
  if (!std::isfinite(wartosc)) return 0.0;
  return ZGroszy(WGroszach(wartosc));
}

double LiczbaZTekstu(const QString& tekst) {
  int i = 0;
  const int n = int(tekst.size());
  while (i < n && tekst[i] == QLatin1Char(' ')) ++i;
  const int start = i;
  if (i < n && (tekst[i] == QLatin1Char('-') || tekst[i] == QLatin1Char('+'))) ++i;
  bool cyfra = false, kropka = false;
  while (i < n) {
    const QChar c = tekst[i];
    if (c.isDigit() && c.unicode() < 128) {
      cyfra = true;
    } else if (c == QLatin1Char('.') && !kropka) {
      kropka = true;
    } else {
      break;
    }
    ++i;
  }
  if (!cyfra) return 0.0;
  return QLocale::c().toDouble(tekst.mid(start, i - start).replace(QLatin1String("+"), QString()));
}
