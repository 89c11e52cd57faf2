#include "store/tekst.h"

#include <QLocale>
#include <algorithm>
#include <cmath>

#include "store/kwota.h"
#include "store/napis.h"
#include "store/session.h"

namespace {

// A non-negative number as decimal digits: the whole part and the fraction, as text.
struct Dziesietna {
  QString calosc;
  QString ulamek;
};

// The shortest decimal text that reads back as the same double: rounding works on what the
// user typed or the store summed (2.675 is 2.675 here, not 2.67499999...).
Dziesietna rozloz(double wartosc) {
  if (!std::isfinite(wartosc)) wartosc = 0.0;
  const QString t = QString::number(std::fabs(wartosc), 'f', QLocale::FloatingPointShortest);
  const qsizetype kropka = t.indexOf(QLatin1Char('.'));
  if (kropka < 0) return {t, QString()};
  return {t.left(kropka), t.mid(kropka + 1)};
}

// Adds one unit in the last place of a text of digits.
QString dodajJeden(QString cyfry) {
  for (qsizetype i = cyfry.size() - 1; i >= 0; --i) {
    if (cyfry[i] == QLatin1Char('9')) {
      cyfry[i] = QLatin1Char('0');
    } else {
      cyfry[i] = QChar(cyfry[i].unicode() + 1);
      return cyfry;
    }
  }
  return QLatin1Char('1') + cyfry;
}

// Rounds to `miejsca` decimals: half away from zero, or half to the even digit.
Dziesietna zaokraglij(Dziesietna d, int miejsca, bool doParzystej) {
  if (d.ulamek.size() <= miejsca) {
    d.ulamek += QString(miejsca - d.ulamek.size(), QLatin1Char('0'));
    return d;
  }
  const QString zachowane = d.calosc + d.ulamek.left(miejsca);
  const int rozstrzyga = d.ulamek[miejsca].digitValue();
  const QString reszta = d.ulamek.mid(miejsca + 1);
  const bool resztaZero =
      std::all_of(reszta.begin(), reszta.end(), [](QChar c) { return c == QLatin1Char('0'); });
  bool wGore = rozstrzyga > 5 || (rozstrzyga == 5 && !resztaZero);
  if (rozstrzyga == 5 && resztaZero) wGore = !doParzystej || zachowane.back().digitValue() % 2 == 1;
  const QString wynik = wGore ? dodajJeden(zachowane) : zachowane;
  return {wynik.left(wynik.size() - miejsca), wynik.right(miejsca)};
}

bool zero(const Dziesietna& d) {
  for (const QString* s : {&d.calosc, &d.ulamek})
    for (QChar c : *s)
      if (c != QLatin1Char('0')) return false;
  return true;
}

bool cyfraMaski(QChar c) { return c == QLatin1Char('#') || c == QLatin1Char('0'); }

QString separatorDziesietny() {
  return sesja.pubSeparator.isEmpty() ? QStringLiteral(".") : sesja.pubSeparator;
}

// The whole part of a mask filled from the right; digits beyond the mask go in front of its
// first placeholder, and literals stay where they stand.
QString czescCalkowita(const QString& maska, QString cyfry) {
  qsizetype pierwszy = -1;
  for (qsizetype i = 0; i < maska.size(); ++i)
    if (cyfraMaski(maska[i])) {
      pierwszy = i;
      break;
    }
  if (pierwszy < 0) return maska + cyfry;
  QString wynik;
  for (qsizetype i = maska.size() - 1; i >= 0; --i) {
    const QChar c = maska[i];
    if (!cyfraMaski(c)) {
      wynik.prepend(c);
      continue;
    }
    if (!cyfry.isEmpty()) {
      wynik.prepend(cyfry.back());
      cyfry.chop(1);
    } else if (c == QLatin1Char('0')) {
      wynik.prepend(QLatin1Char('0'));
    }
    if (i == pierwszy) {
      wynik.prepend(cyfry);
      cyfry.clear();
    }
  }
  return wynik;
}

// The fraction part of a mask: "0" writes its digit always, "#" only while a significant digit
// follows it.
QString czescUlamkowa(const QString& maska, const QString& cyfry) {
  qsizetype ostatniaZnaczaca = -1;  // index into cyfry of the last digit that must be written
  int k = 0;
  for (QChar c : maska) {
    if (!cyfraMaski(c)) continue;
    if (c == QLatin1Char('0') || cyfry[k] != QLatin1Char('0')) ostatniaZnaczaca = k;
    ++k;
  }
  QString wynik;
  k = 0;
  for (QChar c : maska) {
    if (!cyfraMaski(c)) {
      wynik += c;
      continue;
    }
    if (k <= ostatniaZnaczaca) wynik += cyfry[k];
    ++k;
  }
  return wynik;
}

QString formatLiczby(double wartosc, const QString& maska, bool doParzystej) {
  const qsizetype kropka = maska.indexOf(QLatin1Char('.'));
  const QString maskaCal = kropka < 0 ? maska : maska.left(kropka);
  const QString maskaUl = kropka < 0 ? QString() : maska.mid(kropka + 1);
  const int miejsca = int(std::count_if(maskaUl.begin(), maskaUl.end(), cyfraMaski));
  const Dziesietna d = zaokraglij(rozloz(wartosc), miejsca, doParzystej);
  QString cyfry = d.calosc;
  while (cyfry.startsWith(QLatin1Char('0'))) cyfry.remove(0, 1);
  QString wynik = czescCalkowita(maskaCal, cyfry);
  if (kropka >= 0) wynik += separatorDziesietny() + czescUlamkowa(maskaUl, d.ulamek);
  if (wartosc < 0 && !zero(d)) wynik.prepend(QLatin1Char('-'));
  return wynik;
}

// ---- dates ---------------------------------------------------------------------------------

QLocale lokalJezyka() {
  return sesja.pubJezyk == 1 ? QLocale(QLocale::Polish, QLocale::Poland)
                             : QLocale(QLocale::English, QLocale::UnitedStates);
}

// Names come from the language table ("nazwydat1" onwards), the locale of the edition standing
// in while the store is not open:
//   1-12 short month names, 13-24 full month names, 25-36 full month names as they follow a day
//   number (the Polish genitive), 37-43 short day names Monday first, 44-50 full day names.
QString nazwa(int numer, const QString& zastepcza) {
  const QString t = Napis(QStringLiteral("nazwydat%1").arg(numer));
  return t.isEmpty() ? zastepcza : t;
}

QString miesiacKrotko(int m) {
  return nazwa(m, lokalJezyka().monthName(m, QLocale::ShortFormat).remove(QLatin1Char('.')));
}
QString miesiacPelny(int m, bool poDniu) {
  if (poDniu) return nazwa(24 + m, lokalJezyka().monthName(m, QLocale::LongFormat));
  return nazwa(12 + m, lokalJezyka().standaloneMonthName(m, QLocale::LongFormat));
}
QString dzienKrotko(int d) {
  return nazwa(36 + d, lokalJezyka().dayName(d, QLocale::ShortFormat).remove(QLatin1Char('.')));
}
QString dzienPelny(int d) { return nazwa(43 + d, lokalJezyka().dayName(d, QLocale::LongFormat)); }

QString dwieCyfry(int n) { return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0')); }

int dlugoscSerii(const QString& maska, qsizetype i) {
  const QChar c = maska[i].toLower();
  int n = 0;
  while (i + n < maska.size() && maska[i + n].toLower() == c) ++n;
  return n;
}

// A day number ("d" or "dd") in the mask puts a full month name in the form that follows it.
bool maskaZDniem(const QString& maska) {
  for (qsizetype i = 0; i < maska.size();) {
    if (maska[i].toLower() == QLatin1Char('d')) {
      const int n = dlugoscSerii(maska, i);
      if (n <= 2) return true;
      i += n;
    } else {
      ++i;
    }
  }
  return false;
}

}  // namespace

// ---- numbers -------------------------------------------------------------------------------

QString FormatLiczby(double wartosc, const QString& maska) {
  return formatLiczby(wartosc, maska, false);
}

QString FormatKwoty(double wartosc) { return FormatLiczby(wartosc, QStringLiteral("#### ##0.00")); }
QString FormatKwotyEdycja(double wartosc) {
  return FormatLiczby(wartosc, QStringLiteral("######0.00"));
}
// A count is a whole number: a half goes to the even number, as the integer conversion does.
QString FormatCalkowita(double wartosc) {
  return formatLiczby(wartosc, QStringLiteral("###0"), true);
}
QString FormatProcentu(double wartosc) { return FormatLiczby(wartosc, QStringLiteral("###.00")); }

QString KropkaNaSeparator(QString& tekst) {
  if (tekst.isEmpty()) tekst = QStringLiteral("0");
  QString wynik = tekst;
  return wynik.replace(QLatin1Char('.'), separatorDziesietny());
}

QString PrzecinekNaKropke(QString& tekst) {
  if (tekst.isEmpty()) tekst = QStringLiteral("0");
  QString wynik = tekst;
  return wynik.replace(QLatin1Char(','), QLatin1Char('.'));
}

double KwotaZTekstu(QString& tekst) {
  if (tekst.isEmpty()) tekst = QStringLiteral("0");
  QString t = tekst;
  if (sesja.pubSeparator == QLatin1String(",")) t.replace(QLatin1Char(','), QLatin1Char('.'));
  const double liczba = LiczbaZTekstu(t);
  // Money is exact in this program: the amount stays a double holding whole cents, never a
  // 32-bit float.
  const Dziesietna d = zaokraglij(rozloz(liczba), 2, true);
  const double wynik = QLocale::c().toDouble(d.calosc + QLatin1Char('.') + d.ulamek);
  return liczba < 0 ? -wynik : wynik;
}

QString FormatWaluty(QVariant& wartosc) {
  QString t = wartosc.toString();
  t.replace(QLatin1Char(','), QLatin1Char('.'));
  const double liczba = LiczbaZTekstu(t);
  wartosc = liczba;
  return QLocale::system().toCurrencyString(ZaokraglijDoGroszy(liczba));
}

// ---- dates ---------------------------------------------------------------------------------

QString SeparatorDaty() { return sesja.pubJezyk == 1 ? QStringLiteral(".") : QStringLiteral("/"); }

QString FormatDaty(const QDate& data, const QString& maska) {
  const QDate d = data.isValid() ? data : QDate(1899, 12, 30);
  const bool poDniu = sesja.pubJezyk == 1 && maskaZDniem(maska);
  QString wynik;
  for (qsizetype i = 0; i < maska.size();) {
    const QChar c = maska[i].toLower();
    const int seria = (c == QLatin1Char('d') || c == QLatin1Char('m') || c == QLatin1Char('y'))
                          ? dlugoscSerii(maska, i)
                          : 1;
    int n = 1;
    if (c == QLatin1Char('d')) {
      n = std::min(seria, 4);
      if (n == 1) wynik += QString::number(d.day());
      if (n == 2) wynik += dwieCyfry(d.day());
      if (n == 3) wynik += dzienKrotko(d.dayOfWeek());
      if (n == 4) wynik += dzienPelny(d.dayOfWeek());
    } else if (c == QLatin1Char('m')) {
      n = std::min(seria, 4);
      if (n == 1) wynik += QString::number(d.month());
      if (n == 2) wynik += dwieCyfry(d.month());
      if (n == 3) wynik += miesiacKrotko(d.month());
      if (n == 4) wynik += miesiacPelny(d.month(), poDniu);
    } else if (c == QLatin1Char('y')) {
      n = seria >= 4 ? 4 : seria >= 2 ? 2 : 1;
      if (n == 1) wynik += QString::number(d.dayOfYear());
      if (n == 2) wynik += dwieCyfry(d.year() % 100);
      if (n == 4) wynik += QStringLiteral("%1").arg(d.year(), 4, 10, QLatin1Char('0'));
    } else if (c == QLatin1Char('/')) {
      wynik += SeparatorDaty();
    } else {
      wynik += maska[i];
    }
    i += n;
  }
  return wynik;
}

QString FormatDatyOkresu(const QDate& data) {
  return FormatDaty(data, sesja.pubFormatDaty_ddlmmmlyyyy);
}

QString ZapisDaty(const QDate& data) {
  QString t = FormatDaty(data, QStringLiteral("mm/dd/yyyy"));
  for (QChar& c : t)
    if (!c.isDigit()) c = QLatin1Char('/');
  return t;
}

// ---- month names ---------------------------------------------------------------------------

QString NazwaMiesiaca(int miesiac) {
  switch (miesiac) {
    case 1:
      return Napis(QStringLiteral("Module127"));
    case 2:
      return Napis(QStringLiteral("Module128"));
    case 3:
      return Napis(QStringLiteral("Module129"));
    case 4:
      return Napis(QStringLiteral("Module130"));
    case 5:
      return QStringLiteral("maj");  // May has no text of its own, in any edition
    case 6:
      return Napis(QStringLiteral("Module131"));
    case 7:
      return Napis(QStringLiteral("Module132"));
    case 8:
      return Napis(QStringLiteral("Module133"));
    case 9:
      return Napis(QStringLiteral("Module134"));
    case 10:
      return Napis(QStringLiteral("Module135"));
    case 11:
      return Napis(QStringLiteral("Module136"));
    case 12:
      return Napis(QStringLiteral("Module137"));
    default:
      return QString();
  }
}

QString NazwaMiesiaca(const QDate& data) {
  return data.isValid() ? NazwaMiesiaca(data.month()) : QString();
}

QString NazwaMiesiaca(const QString& tekst) {
  if (tekst.size() < 3) return NazwaMiesiaca(int(LiczbaZTekstu(tekst)));
  // A date as the store keeps it, or as the editions write it.
  const QString t = tekst.trimmed();
  QDate d = QDate::fromString(t.left(10), Qt::ISODate);
  if (!d.isValid()) d = QDate::fromString(t, QStringLiteral("d.M.yyyy"));
  if (!d.isValid()) d = QDate::fromString(t, QStringLiteral("M/d/yyyy"));
  return NazwaMiesiaca(d);
}

QByteArray KomorkaCsv(const QString& t) {
  const bool ujmij = t.contains(QLatin1Char(';')) || t.contains(QLatin1Char('"')) ||
                     t.contains(QLatin1Char('\n')) || t.contains(QLatin1Char('\r')) ||
                     t != t.trimmed();
  if (!ujmij) return t.toUtf8();
  QString w = t;
  w.replace(QLatin1Char('"'), QLatin1String("\"\""));
  return '"' + w.toUtf8() + '"';
}
