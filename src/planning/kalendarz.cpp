#include "planning/kalendarz.h"

#include "store/baza.h"
#include "store/kwota.h"

int MiesiacKalendarza::Dzien(int komorka) const {
  if (komorka < pierwszyDzien - 1 || komorka > pierwszyDzien + ileDni - 2) return 0;
  return komorka - pierwszyDzien + 2;
}

QDate MiesiacKalendarza::Data(int komorka) const {
  const int d = Dzien(komorka);
  return d ? QDate(rok, miesiac, d) : QDate();
}

MiesiacKalendarza UkladMiesiaca(int miesiac, int rok) {
  MiesiacKalendarza m;
  m.miesiac = miesiac;
  m.rok = rok;
  const QDate pierwszy(rok, miesiac, 1);
  m.pierwszyDzien = pierwszy.dayOfWeek();  // ISO: Monday 1 ... Sunday 7
  m.ileDni = pierwszy.daysInMonth();
  return m;
}

MiesiacKalendarza CzytajMiesiac(int miesiac, int rok) {
  MiesiacKalendarza m = UkladMiesiaca(miesiac, rok);
  OtworzBaze();
  Baza& baza = pubBaza();
  const auto dzien = [&m](const Rekordy& rs) -> DzienKalendarza* {
    const int d = int(PoleRekordu(rs, QStringLiteral("dzien")));
    return d >= 1 && d <= m.ileDni ? &m.dni[size_t(d)] : nullptr;
  };
  for (Rekordy rs = baza.Czytaj(
           QStringLiteral(
               "SELECT MAX(DAY(zaplanowane.data)) AS dzien, COUNT(zaplanowane.id) AS ile, "
               "SUM(zaplanowane.przychod) AS sumprzychod, SUM(zaplanowane.wydatek) AS sumwydatek "
               "FROM Zaplanowane WHERE MONTH (zaplanowane.data) = %1 AND "
               "YEAR(zaplanowane.data)=%2 GROUP BY DAY(zaplanowane.data)")
               .arg(miesiac)
               .arg(rok));
       !rs.Eof(); rs.MoveNext()) {
    if (DzienKalendarza* d = dzien(rs)) {
      d->ile = int(PoleRekordu(rs, QStringLiteral("ile")));
      d->przychod = WGroszach(PoleRekordu(rs, QStringLiteral("sumprzychod")));
      d->wydatek = WGroszach(PoleRekordu(rs, QStringLiteral("sumwydatek")));
    }
  }
  for (Rekordy rs = baza.Czytaj(QStringLiteral("SELECT MAX(DAY(data)) AS dzien, COUNT(id) AS ile, "
                                               "SUM(kwota) AS sumkwota FROM zaplanowanewewnetrzne "
                                               "WHERE MONTH (data) = %1 AND YEAR(data)=%2 GROUP BY "
                                               "DAY(data)")
                                    .arg(miesiac)
                                    .arg(rok));
       !rs.Eof(); rs.MoveNext()) {
    if (DzienKalendarza* d = dzien(rs)) {
      d->ile += int(PoleRekordu(rs, QStringLiteral("ile")));
      d->wewnetrzne = WGroszach(PoleRekordu(rs, QStringLiteral("sumkwota")));
    }
  }
  return m;
}

int KomorkaDzisiaj(const MiesiacKalendarza& m, const QDate& dzis) {
  if (dzis.month() != m.miesiac || dzis.year() != m.rok) return -1;
  return m.Komorka(dzis.day());
}

void NastepnyMiesiac(int& miesiac, int& rok) {
  if (++miesiac == 13) {
    miesiac = 1;
    ++rok;
  }
}

void PoprzedniMiesiac(int& miesiac, int& rok) {
  if (--miesiac == 0) {
    miesiac = 12;
    --rok;
  }
}
