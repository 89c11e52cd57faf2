#include "planning/symulacja.h"

#include <QHash>
#include <cmath>

#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/kwota.h"
#include "store/napis.h"
#include "store/session.h"

namespace {

const QString kKorzen = QStringLiteral("Root");

// A number as the program writes one in text: as many decimals as it has (up to 4), the
// session's decimal mark.
QString liczbaTekstem(double wartosc) {
  QString t = QString::number(wartosc, 'f', 4);
  while (t.contains(QLatin1Char('.')) &&
         (t.endsWith(QLatin1Char('0')) || t.endsWith(QLatin1Char('.'))))
    t.chop(1);
  if (t == QLatin1String("-0")) t = QStringLiteral("0");
  return t.replace(QLatin1Char('.'), sesja.pubSeparator);
}

// Half to the even neighbour, for a quotient of whole numbers (dzielnik > 0).
qint64 dzielParzyscie(__int128 licznik, qint64 dzielnik) {
  const bool ujemny = licznik < 0;
  if (ujemny) licznik = -licznik;
  __int128 q = licznik / dzielnik;
  const __int128 r = licznik % dzielnik;
  if (2 * r > dzielnik || (2 * r == dzielnik && (q % 2) == 1)) ++q;
  return qint64(ujemny ? -q : q);
}

}  // namespace

int Symulacja::Indeks(const QString& klucz) const {
  for (size_t i = 0; i < wezly.size(); ++i)
    if (wezly[i].klucz == klucz) return int(i);
  return -1;
}

const WezelSymulacji* Symulacja::Wezel(const QString& klucz) const {
  const int i = Indeks(klucz);
  return i < 0 ? nullptr : &wezly[size_t(i)];
}

QString WarunekMiesiacaBazowego(bool biezacy, const QDate& dzis) {
  int m = dzis.month(), y = dzis.year();
  if (!biezacy) {
    if (m == 1) {
      m = 12;
      --y;
    } else {
      --m;
    }
  }
  return QStringLiteral(" month(data)=%1 AND year(data)=%2").arg(m).arg(y);
}

qint64 KwotaPoZmianie(qint64 a, double procent) {
  // The percent to thousandths, so that the product is exact: a * (100 000 + p*1000) / 100 000.
  const qint64 tysiaczne = qint64(std::llround(procent * 1000.0));
  return dzielParzyscie(__int128(a) * (100000 + tysiaczne), 100000);
}

bool CzytajProcent(const QString& tekst, double* procent) {
  QString t = tekst.trimmed();
  t.replace(QLatin1Char(','), QLatin1Char('.'));
  if (t.isEmpty()) t = QStringLiteral("0");
  bool ok = false;
  const double p = t.toDouble(&ok);
  if (!ok || !std::isfinite(p) || p < -100.0 || p > 100.0) return false;
  if (procent) *procent = p;
  return true;
}

Symulacja PrzeliczSymulacje(int rodzaj, bool biezacy, const QDate& dzis) {
  Symulacja s;
  OtworzBaze();
  Baza& baza = pubBaza();
  WezelSymulacji korzen;
  korzen.klucz = kKorzen;
  korzen.nazwa = korzen.tekst = Napis(QStringLiteral("frmKategorieOszczednosci33"));
  korzen.lisc = false;
  s.wezly.push_back(korzen);

  QHash<QString, int> indeks;
  for (Rekordy rs =
           baza.Czytaj(QStringLiteral("SELECT id,identyfikator,kategoria,nazwa,oszczednosc "
                                      "FROM kategorie WHERE rodzaj=%1 ORDER BY "
                                      "identyfikator")
                           .arg(rodzaj));
       !rs.Eof(); rs.MoveNext()) {
    WezelSymulacji w;
    w.klucz = Oczysc(rs.Pole(QStringLiteral("identyfikator")));
    const QString rodzic = Oczysc(rs.Pole(QStringLiteral("kategoria")));
    w.rodzic = rodzic == QLatin1String("-") || rodzic.isEmpty() ? kKorzen : rodzic;
    w.nazwa = w.tekst = Oczysc(rs.Pole(QStringLiteral("nazwa")));
    const double osz = rs.Pole(QStringLiteral("oszczednosc")).toDouble();
    if (osz != 0) {
      const QString procent = (osz > 0 ? QStringLiteral("+") : QString()) + liczbaTekstem(osz);
      if (!w.nazwa.endsWith(QLatin1String("%)")))
        w.tekst = w.nazwa + QStringLiteral("  (") + procent + QStringLiteral(" %)");
      // The percent acts as read back from its text: the reading stops at a decimal comma, so
      // under one only whole percents act.
      w.procent = LiczbaZTekstu(procent.mid(procent.startsWith(QLatin1Char('+')) ? 1 : 0));
    }
    indeks.insert(w.klucz, int(s.wezly.size()));
    s.wezly.push_back(w);
  }
  for (const WezelSymulacji& w : s.wezly)
    if (!w.rodzic.isEmpty()) {
      const int r = w.rodzic == kKorzen ? 0 : indeks.value(w.rodzic, -1);
      if (r >= 0) s.wezly[size_t(r)].lisc = false;
    }

  // The base month's sums of every leaf, in one pass over the month's entries.
  QHash<QString, qint64> sumy;
  for (Rekordy rs = baza.Czytaj(
           QStringLiteral("SELECT kategoria, SUM (wydatek) AS sumwydatek,SUM (przychod) AS "
                          "sumprzychod FROM transakcje WHERE rodzaj=%1 AND %2 GROUP BY kategoria")
               .arg(rodzaj)
               .arg(WarunekMiesiacaBazowego(biezacy, dzis)));
       !rs.Eof(); rs.MoveNext())
    sumy.insert(Oczysc(rs.Pole(QStringLiteral("kategoria"))),
                WGroszach(PoleRekordu(rs, QStringLiteral("sumprzychod"))) +
                    WGroszach(PoleRekordu(rs, QStringLiteral("sumwydatek"))));
  for (WezelSymulacji& w : s.wezly) {
    if (!w.lisc || w.klucz == kKorzen) continue;
    w.a = sumy.value(w.klucz, 0);
    w.b = KwotaPoZmianie(w.a, w.procent);
  }

  // The roll-up, the deepest level first: a parent holds the sums of its whole subtree.
  for (int poziom = 4; poziom >= 1; --poziom)
    for (WezelSymulacji& w : s.wezly) {
      if (w.klucz == kKorzen || w.klucz.size() != poziom) continue;
      const int r = w.rodzic == kKorzen ? 0 : indeks.value(w.rodzic, -1);
      if (r < 0) continue;
      WezelSymulacji& rodzic = s.wezly[size_t(r)];
      rodzic.procent = 0;
      rodzic.a += w.a;
      rodzic.b += w.b;
    }

  // The effective percent of every node that took anything.
  for (WezelSymulacji& w : s.wezly) {
    if (w.a == 0 || w.tekst.endsWith(QLatin1String("%)"))) continue;
    const double procent = std::round(double(w.b - w.a) * 100.0 / double(w.a) * 100.0) / 100.0;
    w.tekst += QStringLiteral(" (") + liczbaTekstem(procent) + QStringLiteral(" %)");
  }
  return s;
}

bool UstawOszczednosc(const Symulacja& s, const QString& klucz, const QString& procentTekst,
                      int rodzaj) {
  double procent = 0;
  if (!CzytajProcent(procentTekst, &procent)) {
    MyMsgbox(Napis(QStringLiteral("frmKategorieOszczednosci40")),
             Napis(QStringLiteral("frmKategorieOszczednosci41")), MsgOK, IkonaOstrzezenie);
    return false;
  }
  if (klucz == kKorzen) return true;
  const QString wartosc = QString::number(procent, 'f', 4);
  const bool ok = pubBaza().Transakcja([&] {
    for (const WezelSymulacji& w : s.wezly) {
      if (!w.lisc || w.klucz == kKorzen || !w.klucz.startsWith(klucz)) continue;
      if (!pubBaza().Wykonaj(QStringLiteral("UPDATE kategorie SET oszczednosc=%1 WHERE rodzaj=%2 "
                                            "AND LEFT(identyfikator,%3)=%4")
                                 .arg(SqlTekst(wartosc))
                                 .arg(rodzaj)
                                 .arg(w.klucz.size())
                                 .arg(SqlTekst(w.klucz))))
        return false;
    }
    return true;
  });
  if (!ok)
    MyMsgbox(Napis(QStringLiteral("frmKategorieOszczednosci42")),
             Napis(QStringLiteral("frmKategorieOszczednosci41")), MsgOK, IkonaOstrzezenie);
  return ok;
}

ZmianaWCzasie ZmianaWezla(const WezelSymulacji& w) {
  ZmianaWCzasie z;
  const qint64 d = w.b - w.a;
  z.miesiecznie = d < 0 ? -d : d;
  z.kwartalnie = z.miesiecznie * 3;
  z.rocznie = z.miesiecznie * 12;
  z.opis = d < 0 ? 30 : (d == 0 ? 31 : 32);
  return z;
}
