#include "ui/wykresy.h"

#include "store/baza.h"
#include "store/napis.h"
#include "store/tekst.h"

void DaneWykresu::Rozmiar(int w, int k) {
  wiersze = w < 0 ? 0 : w;
  kolumny = k < 0 ? 0 : k;
  wartosci.assign(size_t(wiersze) * size_t(kolumny), 0.0);
}

void DaneWykresu::Ustaw(int wiersz, int kolumna, double wartosc) {
  if (wiersz < 1 || wiersz > wiersze || kolumna < 1 || kolumna > kolumny) return;
  wartosci[size_t(wiersz - 1) * size_t(kolumny) + size_t(kolumna - 1)] = wartosc;
}

double DaneWykresu::Wartosc(int wiersz, int kolumna) const {
  if (wiersz < 1 || wiersz > wiersze || kolumna < 1 || kolumna > kolumny) return 0.0;
  return wartosci[size_t(wiersz - 1) * size_t(kolumny) + size_t(kolumna - 1)];
}

DaneWykresu DwaSlupki(double wartosc1, double wartosc2) {
  DaneWykresu d;
  d.typ = DaneWykresu::Slupki;
  d.Rozmiar(1, 2);
  d.Ustaw(1, 1, wartosc1);
  d.Ustaw(1, 2, wartosc2);
  return d;
}

namespace {
const QColor kZielony(0, 255, 0);
const QColor kCzerwony(255, 0, 0);
}  // namespace

DaneWykresu WykresMiesiecy(const std::vector<double>& szesc, const QStringList& etykiety) {
  DaneWykresu d;
  d.typ = DaneWykresu::Slupki;
  d.Rozmiar(6, 1);
  for (int w = 1; w <= 6 && w <= int(szesc.size()); ++w) d.Ustaw(w, 1, szesc[size_t(w - 1)]);
  d.etykietyWierszy = etykiety;
  d.kolory = {kZielony, kCzerwony};
  return d;
}

DaneWykresu WykresKolowy(const std::vector<double>& szesc, const QStringList& etykiety) {
  DaneWykresu d;
  d.typ = DaneWykresu::Kolowy;
  d.Rozmiar(6, 1);
  for (int w = 1; w <= 6 && w <= int(szesc.size()); ++w) d.Ustaw(w, 1, szesc[size_t(w - 1)]);
  d.etykietyWierszy = etykiety;
  d.tytul.clear();
  return d;
}

QString ZapytanieBilansu(int m, int y) {
  const auto n = [](int v) { return QString::number(v); };
  QString sql = QStringLiteral(
      "SELECT SUM(transakcje.przychod) AS sumprzychod,SUM(transakcje.wydatek) AS sumwydatek, "
      "MAX(MONTH(data)) AS miesiac FROM transakcje WHERE ");
  if (m > 5)
    sql += QStringLiteral("  MONTH(data)>=") + n(m - 6) + QStringLiteral(" AND YEAR(data)=") + n(y);
  else
    sql += QStringLiteral("  ((MONTH(data)<=") + n(m) + QStringLiteral(" AND YEAR(data)=") + n(y) +
           QStringLiteral(") OR (MONTH(data)>") + n(m + 6) + QStringLiteral(" AND YEAR(data)=") +
           n(y - 1) + QStringLiteral("))");
  sql += QStringLiteral(" AND ((YEAR(data)=") + n(y) + QStringLiteral(" AND MONTH(data)<=") + n(m) +
         QStringLiteral(") OR (YEAR(data)<") + n(y) + QStringLiteral("))");
  sql += QStringLiteral(" GROUP BY MONTH(data)");
  return sql;
}

DaneWykresu WykresBilansu(int rodzaj, const QDate& dzis) {
  DaneWykresu d;
  d.typ = DaneWykresu::Slupki;
  const bool oba = rodzaj == 3;
  d.Rozmiar(6, oba ? 2 : 1);
  d.kolory = {rodzaj == 2 ? kCzerwony : kZielony, kCzerwony};
  const QDate pierwszy = QDate(dzis.year(), dzis.month(), 1).addMonths(-5);
  for (int i = 0; i < 6; ++i) d.etykietyWierszy << FormatDaty(pierwszy.addMonths(i), QStringLiteral("mmm"));
  if (oba) d.etykietyKolumn = {Napis(QStringLiteral("wykresy1")), Napis(QStringLiteral("wykresy2"))};
  if (!OtworzBaze()) return d;
  // A month's column: its distance from today's month, counted from the oldest of the six.
  const int wspolczynnik = 6 - dzis.month();
  for (Rekordy rs = pubBaza().Czytaj(ZapytanieBilansu(dzis.month(), dzis.year())); !rs.Eof();
       rs.MoveNext()) {
    int kolumna = int(PoleRekordu(rs, QStringLiteral("miesiac"))) + wspolczynnik;
    if (kolumna > 12) kolumna -= 12;
    if (kolumna < 1 || kolumna > 6) continue;  // the month before the six, fetched with them
    const double przychod = PoleRekordu(rs, QStringLiteral("sumprzychod"));
    const double wydatek = PoleRekordu(rs, QStringLiteral("sumwydatek"));
    if (oba) {
      d.Ustaw(kolumna, 1, przychod);
      d.Ustaw(kolumna, 2, wydatek);
    } else {
      d.Ustaw(kolumna, 1, rodzaj == 1 ? przychod : wydatek);
    }
  }
  return d;
}
