// The counterparty report: income and expense per counterparty over the period, for one or for
// all; the detailed report lists each one's entries. Entries with no counterparty never count,
// and neither do planned ones.

#include "masterdata/kontrahenci.h"
#include "reports/raporty.h"
#include "reports/wspolne.h"
#include "store/baza.h"
#include "store/filtr.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"

void TworzRaportKontrahenta(Raport& r) {
  const qint64 wybrany = sesja.pubKontrahent.id;
  const Okres& o = sesja.pubOkres;

  TytulRaportu(r, o.opisDlugi);
  NowaLinia(r, 2);
  PoleRaportu(r, Napis(QStringLiteral("OgolneLp")), 4, 0);
  PoleRaportu(r, Napis(QStringLiteral("frmRaportKontrahenta8")), 37, 0);
  PoleRaportu(r, Napis(QStringLiteral("frmRaportKontrahenta9")), 13, 0);
  PoleRaportu(r, Napis(QStringLiteral("frmRaportKontrahenta10")), 13, 0);
  NowaLinia(r, 2);
  LiniaRaportu(r, r.pubSzerokoscRaportu, false);
  r.dok.ZakonczNaglowek();
  r.dok.tabela.push_back({Napis(QStringLiteral("OgolneLp")),
                          Napis(QStringLiteral("frmRaportKontrahenta8")),
                          Napis(QStringLiteral("frmRaportKontrahenta9")),
                          Napis(QStringLiteral("frmRaportKontrahenta10"))});

  Rekordy rs = pubBaza().Czytaj(
      QStringLiteral("SELECT COUNT(transakcje.id) AS ile,SUM(transakcje.przychod) AS "
                     "sumprzychod,SUM(transakcje.wydatek) AS sumwydatek, "
                     "MAX(transakcje.kontrahent) AS numerkontrahenta FROM transakcje ") +
      (wybrany != 0 ? QStringLiteral("WHERE transakcje.kontrahent=%1 ").arg(wybrany)
                    : QStringLiteral("WHERE transakcje.kontrahent>0 ")) +
      o.warunek + QStringLiteral(" GROUP BY transakcje.kontrahent"));
  r.Maksimum(int(rs.RecordCount()));
  // The count grows before the row is written and the row shows it as it then stands: the first
  // row of this report bears the number 2.
  int licznik = 1;
  for (; !rs.Eof(); rs.MoveNext()) {
    const int numer = ++licznik;
    if (r.Przerwij(numer - 1)) break;
    KontrahentRekord k;
    const qint64 id = rs.Pole(QStringLiteral("numerkontrahenta")).toLongLong();
    k.id = id;
    // A deleted counterparty keeps its row, with an empty name.
    OpisKontrahenta(k);
    const QString nazwa = k.skrocona;
    const qint64 przychod = Grosze(rs, QStringLiteral("sumprzychod"));
    const qint64 wydatek = Grosze(rs, QStringLiteral("sumwydatek"));
    PoleRaportu(r, QString::number(numer), 4, 0);
    PoleRaportu(r, nazwa, 35, 0);
    PoleRaportu(r, KwotaRaportu(przychod), -11, 0);
    PoleRaportu(r, KwotaRaportu(wydatek), -11, 0);
    NowaLinia(r, 1);
    r.dok.tabela.push_back(
        {QString::number(numer), nazwa.trimmed(), KwotaTabeli(przychod), KwotaTabeli(wydatek)});

    if (sesja.pubRaportDetaliczny) {
      r.pubWarunekListy = QStringLiteral("transakcje.kontrahent=%1 ").arg(id) +
                          FiltrCzasowy(sesja.pubFiltrCzasowy).warunek;
      r.pubOkresListy = o.warunek;
      r.pubKolumnaData = r.pubKolumnaKategoria = r.pubKolumnaOpis = true;
      r.pubKolumnaWydatek = r.pubKolumnaPrzychod = r.pubKolumnaKonto = true;
      r.pubKolumnaKontrahent = false;
      ListaTransakcji(r, Napis(QStringLiteral("frmRaportKontrahenta11")) + QLatin1Char(' ') + nazwa,
                      6);
    }
  }
  StopkaRaportu(r);
}
