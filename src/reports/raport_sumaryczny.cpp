// The summary report: the main categories of one kind, the month before the working date's month
// against that month, each with the sums of its whole subtree, the difference and its per cent,
// and a total line.

#include "reports/raporty.h"
#include "reports/wspolne.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"

namespace {

const int kSzerokosc = 107;

double procentZmiany(qint64 biezacy, qint64 poprzedni) {
  return double(biezacy - poprzedni) / double(poprzedni) * 100.0;
}

}  // namespace

void TworzRaportSumaryczny(Raport& r) {
  const int rodzaj = sesja.pubKategoria.rodzaj;
  const QDate dzien = sesja.pubFiltrCzasowy.pozycja;
  const int m = dzien.month(), y = dzien.year();
  const auto p = [&r](const char* klucz, int szerokosc) {
    PoleRaportu(r, klucz ? Napis(QLatin1String(klucz)) : QString(), szerokosc, 0);
  };

  TytulRaportu(r, sesja.pubOkres.opisDlugi);
  NowaLinia(r, 1);
  p(nullptr, 53), p("frmRaportSumaryczny9", 17), p("frmRaportSumaryczny10", 28);
  p("frmRaportSumaryczny11", 15);
  NowaLinia(r, 1);
  p("frmRaportSumaryczny12", 54), p("frmRaportSumaryczny13", 16), p("frmRaportSumaryczny14", 15);
  p("frmRaportSumaryczny15", 11), p("frmRaportSumaryczny16", 11);
  NowaLinia(r, 1);
  LiniaRaportu(r, kSzerokosc, false);
  NowaLinia(r, 1);
  r.dok.ZakonczNaglowek();
  r.dok.szerokosc = kSzerokosc;
  const auto dwie = [](const char* a, const char* b) {
    return (Napis(QLatin1String(a)).trimmed() + QLatin1Char(' ') +
            Napis(QLatin1String(b)).trimmed())
        .trimmed();
  };
  r.dok.tabela.push_back({Napis(QStringLiteral("frmRaportSumaryczny12")),
                          dwie("frmRaportSumaryczny9", "frmRaportSumaryczny13"),
                          dwie("frmRaportSumaryczny10", "frmRaportSumaryczny14"),
                          Napis(QStringLiteral("frmRaportSumaryczny15")),
                          dwie("frmRaportSumaryczny11", "frmRaportSumaryczny16")});

  // In brackets the month and year read as one range of days, which the date index serves.
  const QString poprzedniWarunek =
      m == 1 ? QStringLiteral(" AND (MONTH(data)=12 AND YEAR(data)=%1)").arg(y - 1)
             : QStringLiteral(" AND (MONTH(data)=%1 AND YEAR(data)=%2)").arg(m - 1).arg(y);
  const QString biezacyWarunek =
      QStringLiteral(" AND (MONTH(data)=%1 AND YEAR(data)=%2)").arg(m).arg(y);

  Rekordy rs = pubBaza().Czytaj(
      QStringLiteral("SELECT nazwa,identyfikator FROM kategorie WHERE rodzaj=%1 AND "
                     "LEN(identyfikator)<2 ORDER BY identyfikator ")
          .arg(rodzaj));
  r.Maksimum(int(rs.RecordCount()));
  const SumyWedlugKategorii poprzednie(rodzaj, poprzedniWarunek);
  const SumyWedlugKategorii biezace(rodzaj, biezacyWarunek);
  qint64 sumaPoprzednia = 0, sumaBiezaca = 0;
  int licznik = 1;
  for (; !rs.Eof(); rs.MoveNext()) {
    if (r.Przerwij(licznik++)) break;
    const QString x = rs.Tekst(QStringLiteral("identyfikator"));
    const QString nazwa = rs.Tekst(QStringLiteral("nazwa"));
    const qint64 poprzedni = poprzednie.Wlasna(x) + poprzednie.Podrzednych(x);
    const qint64 galaz = poprzednie.Podrzednych(QString());
    const QString udzial = galaz != 0 ? FormatLiczby(double(poprzedni) / double(galaz) * 100.0,
                                                     QStringLiteral("##0.00"))
                                      : QString();
    const int wciecie = int(x.size() - 1) * 4;
    PoleRaportu(r, QString(), wciecie, 0);
    PoleRaportu(r, nazwa + QStringLiteral(" (") + udzial + QStringLiteral(" %)"), 30, 0);
    PoleRaportu(r, QString(), 20 - wciecie, 0);
    PoleRaportu(r, KwotaRaportu(poprzedni), -12, 0);
    sumaPoprzednia += poprzedni;

    const qint64 biezacy = biezace.Wlasna(x) + biezace.Podrzednych(x);
    sumaBiezaca += biezacy;
    PoleRaportu(r, KwotaRaportu(biezacy), -15, 0);
    PoleRaportu(r, KwotaRaportu(biezacy - poprzedni), -15, 0);
    QStringList wiersz{nazwa.trimmed(), KwotaTabeli(poprzedni), KwotaTabeli(biezacy),
                       KwotaTabeli(biezacy - poprzedni), QString()};
    if (poprzedni != 0) {
      PoleRaportu(r, FormatKwoty(procentZmiany(biezacy, poprzedni)), -12, 0);
      PoleRaportu(r, QStringLiteral(" %"), 0, 0);
      wiersz.last() = FormatKwotyEdycja(procentZmiany(biezacy, poprzedni));
    }
    NowaLinia(r, 1);
    r.dok.tabela.push_back(wiersz);
  }

  LiniaRaportu(r, kSzerokosc, false);
  PoleRaportu(r, Napis(QStringLiteral("frmRaportSumaryczny8")), 50, 0);
  PoleRaportu(r, KwotaRaportu(sumaPoprzednia), -12, 0);
  PoleRaportu(r, KwotaRaportu(sumaBiezaca), -15, 0);
  PoleRaportu(r, KwotaRaportu(sumaBiezaca - sumaPoprzednia), -15, 0);
  QStringList razem{Napis(QStringLiteral("frmRaportSumaryczny8")), KwotaTabeli(sumaPoprzednia),
                    KwotaTabeli(sumaBiezaca), KwotaTabeli(sumaBiezaca - sumaPoprzednia), QString()};
  if (sumaPoprzednia != 0) {
    PoleRaportu(r, FormatKwoty(procentZmiany(sumaBiezaca, sumaPoprzednia)), -12, 0);
    PoleRaportu(r, QStringLiteral(" %"), 0, 0);
    razem.last() = FormatKwotyEdycja(procentZmiany(sumaBiezaca, sumaPoprzednia));
  }
  NowaLinia(r, 1);
  r.dok.tabela.push_back(razem);
  LiniaRaportu(r, kSzerokosc, false);
  StopkaRaportu(r);
}
