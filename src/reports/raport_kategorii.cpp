// The category report: one row per category of a tree, in the tree's depth-first order, with
// the sum of the category and all below it in the period and that sum's share of its parent's
// branch; the detailed report lists each category's own entries under its row.

#include "reports/raporty.h"
#include "reports/wspolne.h"
#include "store/baza.h"
#include "store/filtr.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"

namespace {

QString udzial(qint64 suma, qint64 galaz) {
  if (galaz == 0) return QString();
  return FormatLiczby(double(suma) / double(galaz) * 100.0, QStringLiteral("##0.00"));
}

}  // namespace

void TworzRaportKategorii(Raport& r) {
  const QString wybrana = sesja.pubKategoria.identyfikator;
  const int rodzaj = sesja.pubKategoria.rodzaj;
  const Okres& o = sesja.pubOkres;

  TytulRaportu(r, o.opisDlugi);
  NowaLinia(r, 1);
  PoleRaportu(r, QString(), 48, 0);
  PoleRaportu(r, Napis(QStringLiteral("frmRaportKategorii9")), 11, 0);
  NowaLinia(r, 1);
  PoleRaportu(r, Napis(QStringLiteral("frmRaportKategorii10")), 46, 0);
  PoleRaportu(r, Napis(QStringLiteral("frmRaportKategorii11")), 11, 0);
  NowaLinia(r, 1);
  LiniaRaportu(r, 59, false);
  NowaLinia(r, 1);
  r.dok.ZakonczNaglowek();
  r.dok.tabela.push_back({Napis(QStringLiteral("frmRaportKategorii12")),
                          Napis(QStringLiteral("frmRaportKategorii10")),
                          Napis(QStringLiteral("frmRaportKategorii13")),
                          (Napis(QStringLiteral("frmRaportKategorii9")) + QLatin1Char(' ') +
                           Napis(QStringLiteral("frmRaportKategorii11")))
                              .trimmed()});

  Rekordy rs = pubBaza().Czytaj(
      wybrana == QLatin1String("Root")
          ? QStringLiteral("SELECT nazwa,identyfikator FROM kategorie WHERE rodzaj=%1 ORDER BY "
                           "identyfikator ")
                .arg(rodzaj)
          : QStringLiteral("SELECT nazwa,identyfikator FROM kategorie WHERE identyfikator LIKE %1 "
                           "AND rodzaj=%2 ORDER BY identyfikator ")
                .arg(SqlTekst(wybrana + QLatin1Char('*')))
                .arg(rodzaj));
  r.Maksimum(int(rs.RecordCount()));
  const SumyWedlugKategorii sumy(rodzaj, o.warunek);
  int licznik = 1;
  for (; !rs.Eof(); rs.MoveNext()) {
    if (r.Przerwij(licznik++)) break;
    const QString x = rs.Tekst(QStringLiteral("identyfikator"));
    const QString nazwa = rs.Tekst(QStringLiteral("nazwa"));
    const qint64 wlasna = sumy.Wlasna(x);
    const qint64 podrzedne = sumy.Podrzednych(x);
    const qint64 galaz = sumy.Podrzednych(x.left(x.size() - 1));
    const QString procent = udzial(wlasna + podrzedne, galaz);
    const int wciecie = int(x.size() - 1) * 4;
    PoleRaportu(r, QString(), wciecie, 0);
    PoleRaportu(r, nazwa + QStringLiteral(" (") + procent + QStringLiteral(" %)"), 26, 0);
    PoleRaportu(r, QString(), 18 - wciecie, 0);
    PoleRaportu(r, KwotaRaportu(wlasna + podrzedne), -12, 0);
    NowaLinia(r, 1);
    r.dok.tabela.push_back({x, nazwa.trimmed(), procent, KwotaTabeli(wlasna + podrzedne)});

    if (sesja.pubRaportDetaliczny) {
      r.pubWarunekListy = QStringLiteral("transakcje.kategoria=%1 AND transakcje.rodzaj=%2 ")
                              .arg(SqlTekst(x))
                              .arg(rodzaj) +
                          FiltrCzasowy(sesja.pubFiltrCzasowy).warunek;
      r.pubOkresListy = o.warunek;
      r.pubKolumnaData = r.pubKolumnaKontrahent = r.pubKolumnaOpis = r.pubKolumnaKonto = true;
      r.pubKolumnaKategoria = false;
      r.pubKolumnaPrzychod = rodzaj == 1;
      r.pubKolumnaWydatek = rodzaj != 1;
      ListaTransakcji(r, Napis(QStringLiteral("frmRaportKategorii8")) + QLatin1Char(' ') + nazwa,
                      12);
    }
  }
  StopkaRaportu(r);
}
