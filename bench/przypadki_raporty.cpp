// The reports over master data, written whole with no window, beside the plain SQL that reads
// what the whole report needs and works out the figure of its first or last row; and a 10 000-line
// report saved in each format.

#include <QDate>
#include <QDir>
#include <QFileInfo>

#include "rejestr.h"
#include "reports/raporty.h"
#include "reports/zapis.h"
#include "store/baza.h"
#include "store/filtr.h"
#include "store/session.h"
#include "surowa.h"

namespace {

const QDate kDzien(2026, 6, 17);

void okres(int rodzaj, bool detaliczny) {
  OtworzBaze();
  sesja.pubSeparator = QStringLiteral(".");
  sesja.pubFiltrCzasowy.pozycja = kDzien;
  sesja.pubFiltrCzasowy.rodzaj = rodzaj;
  sesja.pubOkres = FiltrCzasowy(sesja.pubFiltrCzasowy);
  sesja.pubRaportDetaliczny = detaliczny;
  sesja.pubWezelKont = QStringLiteral("R");
  sesja.pubKategoria.identyfikator = QStringLiteral("Root");
  sesja.pubKategoria.rodzaj = 2;
  sesja.pubKontrahent.id = 0;
}

// Writes the report; the result is the cells of one table row, or the count of lines.
QString raport(const char* ekran, int wiersz, QList<int> komorki) {
  Raport r;
  TworzRaport(*ZnajdzFormularz(QLatin1String(ekran)), r);
  if (komorki.isEmpty()) return QString::number(r.dok.LiczbaLinii());
  const QStringList& w = r.dok.tabela.at(wiersz < 0 ? r.dok.tabela.size() + wiersz : wiersz);
  QStringList wynik;
  for (int k : komorki) wynik << w.value(k);
  return wynik.join(QStringLiteral(" | "));
}

// A report of 10 000 entry lines, and its table, made once.
Raport& duzy() {
  static Raport r;
  if (r.dok.Pusty()) {
    OtworzBaze();
    r.pubSzerokoscRaportu = r.dok.szerokosc = 109;
    TytulRaportu(r, QStringLiteral("10 000"));
    NowaLinia(r, 2);
    r.dok.ZakonczNaglowek();
    r.pubWarunekListy = QStringLiteral("transakcje.id<=10000 ");
    r.pubKolumnaData = r.pubKolumnaOpis = r.pubKolumnaPrzychod = r.pubKolumnaWydatek = true;
    r.pubKolumnaKategoria = r.pubKolumnaKonto = r.pubKolumnaKontrahent = true;
    ListaTransakcji(r, QStringLiteral("lista"), 2);
    Rekordy rs = pubBaza().Czytaj(QStringLiteral(
        "SELECT id,data,opis,przychod,wydatek,kategoria FROM transakcje WHERE id<=10000"));
    for (; !rs.Eof(); rs.MoveNext())
      r.dok.tabela.push_back(
          {rs.Tekst(QStringLiteral("id")), rs.Tekst(QStringLiteral("data")),
           rs.Tekst(QStringLiteral("opis")), rs.Tekst(QStringLiteral("przychod")),
           rs.Tekst(QStringLiteral("wydatek")), rs.Tekst(QStringLiteral("kategoria"))});
    StopkaRaportu(r);
  }
  return r;
}

QString zapisz(FormatZapisu f, const char* rozszerzenie) {
  const QString plik =
      QDir(Kontekst().folder).filePath(QStringLiteral("raport.") + QLatin1String(rozszerzenie));
  QString blad;
  if (!ZapiszRaport(duzy().dok, plik, f, &blad)) return blad;
  return QFileInfo(plik).size() > 0 ? QStringLiteral("written") : QStringLiteral("empty");
}

const QString kKoniecCzerwca = QStringLiteral("'2026-07-01'");

// What the account report reads, as plain SQL: every account's entries and transfers before the
// period and in it, by account, and the opening balances; the result is the end balance of all
// accounts.
QString kontaSurowo(const QString& od, const QString& do_) {
  qint64 suma = 0;
  SurowoWiersze(QStringLiteral("SELECT sum(bowinien)-sum(boma) FROM konta WHERE id<>0"),
          [&](const Polecenie& p) { suma += SurowoGrosze(p, 0); });
  for (const QString& w : {QStringLiteral("data<'%1'").arg(od),
                           QStringLiteral("data>='%1' AND data<'%2'").arg(od, do_)}) {
    SurowoWiersze(QStringLiteral("SELECT konto, sum(przychod), sum(wydatek) FROM transakcje WHERE %1 "
                           "GROUP BY konto")
                .arg(w),
            [&](const Polecenie& p) { suma += SurowoGrosze(p, 1) - SurowoGrosze(p, 2); });
    // Transfers between accounts leave the sum of all accounts as it is.
    SurowoWiersze(QStringLiteral("SELECT zkonta, nakonto, sum(kwota) FROM wewnetrzne WHERE %1 GROUP BY "
                           "zkonta, nakonto")
                .arg(w),
            [&](const Polecenie& p) { suma += SurowoGrosze(p, 2) - SurowoGrosze(p, 2); });
  }
  return SurowaKwota(suma);
}

// What the category report reads: the sums of the kind by category key; the result is the first
// main category's with everything below it.
QString kategorieSurowo(const QString& warunek) {
  SurowoWiersze(QStringLiteral("SELECT nazwa, identyfikator FROM kategorie WHERE rodzaj=2 ORDER BY "
                         "identyfikator"),
          [](const Polecenie&) {});
  qint64 suma = 0;
  SurowoWiersze(QStringLiteral("SELECT kategoria, sum(przychod)+sum(wydatek) FROM transakcje WHERE "
                         "rodzaj=2 %1 GROUP BY kategoria")
              .arg(warunek),
          [&](const Polecenie& p) {
            if (p.Tekst(0).startsWith(QLatin1Char('a'))) suma += SurowoGrosze(p, 1);
          });
  return SurowaKwota(suma);
}

Przypadki raporty(
    70,
    {
        PrzypadekBench(QStringLiteral("account report, all accounts, month"),
                       [] { return raport("frmRaportKont", 1, {1}); })
            .Podloga([] {
              return kontaSurowo(QStringLiteral("2026-06-01"), QStringLiteral("2026-07-01"));
            })
            .Limit(1000)
            .LimitDuzy(5000)
            .Przygotuj([] { okres(3, false); }),
        PrzypadekBench(QStringLiteral("account report, all accounts, detailed, month"),
                       [] { return raport("frmRaportKont", 0, {}); })
            .Limit(3000)
            .Przygotuj([] { okres(3, true); }),
        PrzypadekBench(QStringLiteral("account report, all accounts, detailed, year"),
                       [] { return raport("frmRaportKont", 0, {}); })
            .Limit(3000)
            .Przygotuj([] { okres(5, true); }),
        PrzypadekBench(QStringLiteral("category report, expense tree, year"),
                       [] { return raport("frmRaportKategorii", 1, {3}); })
            .Podloga([] {
              return kategorieSurowo(
                  QStringLiteral("AND data>='2026-01-01' AND data<'2027-01-01'"));
            })
            .Limit(1000)
            .LimitDuzy(5000)
            .Przygotuj([] { okres(5, false); }),
        PrzypadekBench(QStringLiteral("category report, expense tree, all time"),
                       [] { return raport("frmRaportKategorii", 1, {3}); })
            .Podloga([] { return kategorieSurowo(QString()); })
            .Limit(1000)
            .LimitDuzy(5000)
            .Przygotuj([] { okres(0, false); }),
        PrzypadekBench(QStringLiteral("category report with entries, expense, year"),
                       [] { return raport("frmRaportKategorii", 0, {}); })
            .Limit(3000)
            .Przygotuj([] { okres(5, true); }),
        PrzypadekBench(QStringLiteral("counterparty report, all, year"),
                       [] {
                         return raport("frmRaportKontrahenta", 1, {2, 3});
                       })
            .Podloga([] {
              return Surowo(QStringLiteral(
                  "SELECT sum(przychod), sum(wydatek) FROM transakcje WHERE kontrahent>0 AND "
                  "data>='2026-01-01' AND data<'2027-01-01' GROUP BY kontrahent"));
            })
            .Limit(1000)
            .LimitDuzy(5000)
            .Przygotuj([] { okres(5, false); }),
        PrzypadekBench(QStringLiteral("counterparty report, all, detailed, month"),
                       [] { return raport("frmRaportKontrahenta", 0, {}); })
            .Limit(3000)
            .Przygotuj([] { okres(3, true); }),
        PrzypadekBench(QStringLiteral("summary report, expense, month"),
                       [] {
                         return raport("frmRaportSumaryczny", -1, {1, 2});
                       })
            .Podloga([] {
              return Surowo(
                  QStringLiteral(
                      "SELECT sum(CASE WHEN data<'2026-06-01' THEN wydatek+przychod END), "
                      "sum(CASE WHEN data>='2026-06-01' THEN wydatek+przychod END) FROM transakcje "
                      "WHERE rodzaj=2 AND data>='2026-05-01' AND data<%1")
                      .arg(kKoniecCzerwca));
            })
            .Limit(1000)
            .LimitDuzy(5000)
            .Przygotuj([] { okres(3, false); }),
        PrzypadekBench(QStringLiteral("save 10 000 lines as RTF"),
                       [] { return zapisz(FormatZapisu::Rtf, "rtf"); })
            .Limit(2000)
            .Przygotuj([] { duzy(); }),
        PrzypadekBench(QStringLiteral("save 10 000 lines as text"),
                       [] { return zapisz(FormatZapisu::Tekst, "txt"); })
            .Limit(2000)
            .Przygotuj([] { duzy(); }),
        PrzypadekBench(QStringLiteral("save 10 000 lines as PDF"),
                       [] { return zapisz(FormatZapisu::Pdf, "pdf"); })
            .Limit(2000)
            .Przygotuj([] { duzy(); }),
        PrzypadekBench(QStringLiteral("save 10 000 lines as CSV"),
                       [] { return zapisz(FormatZapisu::Csv, "csv"); })
            .Limit(2000)
            .Przygotuj([] { duzy(); }),
    });

}  // namespace
