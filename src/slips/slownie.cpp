#include "slips/slownie.h"

qint64 GroszeKwotySlownie(const QString& kwota) {
  QString t = kwota;
  t.replace(QLatin1Char(','), QLatin1Char('.'));
  // Thousands written with blanks ("1 234.50") read as one number.
  t.remove(QLatin1Char(' '));
  t.remove(QChar(0x00a0));
  int i = 0;
  if (i < t.size() && (t[i] == QLatin1Char('-') || t[i] == QLatin1Char('+'))) ++i;
  qint64 zlote = 0;
  bool zaDuzo = false;
  for (; i < t.size() && t[i].isDigit(); ++i) {
    if (zlote > 99'999'999'999'999LL) zaDuzo = true;  // past what a slip can hold: kept as is
    if (!zaDuzo) zlote = zlote * 10 + t[i].digitValue();
  }
  // The decimals: two kept, the rest decides the rounding (a half exactly goes to the even digit).
  int grosze = 0;
  int cyfry = 0;
  int nastepna = -1;
  bool resztaNiezerowa = false;
  if (i < t.size() && t[i] == QLatin1Char('.')) {
    for (++i; i < t.size() && t[i].isDigit(); ++i, ++cyfry) {
      const int c = t[i].digitValue();
      if (cyfry < 2)
        grosze = grosze * 10 + c;
      else if (cyfry == 2)
        nastepna = c;
      else if (c != 0)
        resztaNiezerowa = true;
    }
  }
  if (cyfry == 1) grosze *= 10;
  qint64 wynik = zlote * 100 + grosze;
  if (nastepna > 5 || (nastepna == 5 && (resztaNiezerowa || wynik % 2 == 1))) ++wynik;
  return wynik;
}

QString KwotaSlownie(const QString& kwota) {
  static const char* const kSlowa[10] = {"zer*", "jed*", "dwa*", "trz*", "czt*",
                                         "pie*", "sze*", "sie*", "osi*", "dzi*"};
  const qint64 grosze = GroszeKwotySlownie(kwota);
  QString wynik;
  for (const QChar c : QString::number(grosze / 100))
    wynik += QLatin1String(kSlowa[c.digitValue()]);
  // Always two digits of grosze: 5 groszy is "05", never "50".
  wynik += QLatin1Char(' ') + QStringLiteral("%1").arg(grosze % 100, 2, 10, QLatin1Char('0')) +
           QStringLiteral("/100");
  return wynik;
}
