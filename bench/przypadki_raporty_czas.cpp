// The entry and transfer reports and the three reports over six months, written whole with no
// window, beside plain SQL that reads what the report needs and works out one of its figures.

#include <QDate>

#include "rejestr.h"
#include "reports/raporty.h"
#include "store/baza.h"
#include "store/filtr.h"
#include "store/kwota.h"
#include "store/session.h"
#include "store/tekst.h"
#include "surowa.h"

namespace {

const QDate kDzien(2026, 6, 17);

void okres(int rodzaj) {
  OtworzBaze();
  sesja.pubSeparator = QStringLiteral(".");
  sesja.pubFiltrCzasowy.pozycja = kDzien;
  sesja.pubFiltrCzasowy.rodzaj = rodzaj;
  sesja.pubOkres = FiltrCzasowy(sesja.pubFiltrCzasowy);
  sesja.pubRaportDetaliczny = false;
  sesja.pubWezelKont = QStringLiteral("R");
  sesja.pubKategoria.identyfikator = QStringLiteral("Root");
  sesja.pubKategoria.rodzaj = 2;
  sesja.pubKontrahent.id = 0;
  // As the main window's report commands hand them over.
  sesja.pubTryb = 2;
  sesja.pubZapytanieRaportu.clear();
  sesja.pubFiltrTransakcji = QStringLiteral(" AND transakcje.konto=konta.id ");
  sesja.pubFiltrTransferow.clear();
}

Raport napisz(const char* ekran) {
  Raport r;
  TworzRaport(*ZnajdzFormularz(QLatin1String(ekran)), r);
  return r;
}

QString komorki(const char* ekran, int wiersz, QList<int> ktore) {
  const Raport r = napisz(ekran);
  const QStringList& w = r.dok.tabela.at(wiersz < 0 ? r.dok.tabela.size() + wiersz : wiersz);
  QStringList wynik;
  for (int k : ktore) wynik << w.value(k);
  return wynik.join(QStringLiteral(" | "));
}

// The sum of one column over every row of the table (the head row left out).
QString sumaKolumny(const char* ekran, int kolumna) {
  const Raport r = napisz(ekran);
  qint64 suma = 0;
  for (size_t i = 1; i < r.dok.tabela.size(); ++i)
    suma += WGroszach(LiczbaZTekstu(r.dok.tabela[i].value(kolumna)));
  return FormatKwotyEdycja(ZGroszy(suma));
}

const char* const kCzerwiec = "data>='2026-06-01' AND data<'2026-07-01'";

// What the entry report walks: the browser's rows with their names, newest first; the result is
// the sums under them.
QString wpisySurowo(const QString& okres) {
  qint64 przychody = 0, wydatki = 0;
  SurowoWiersze(
      QStringLiteral("SELECT t.id, t.data, t.przychod, t.wydatek, t.opis, k.nazwa, c.skrocona, "
                     "a.nazwa FROM transakcje t JOIN konta a ON t.konto=a.id JOIN kategorie k ON "
                     "k.rodzaj=t.rodzaj AND k.identyfikator=t.kategoria LEFT JOIN kontrahent c ON "
                     "c.id=t.kontrahent WHERE t.%1 ORDER BY t.data DESC, t.id DESC")
          .arg(okres),
      [&](const Polecenie& p) {
        przychody += SurowoGrosze(p, 2);
        wydatki += SurowoGrosze(p, 3);
      });
  return SurowaKwota(przychody) + QStringLiteral(" | ") + SurowaKwota(wydatki);
}

Przypadki raportyWCzasie(
    71,
    {
        PrzypadekBench(QStringLiteral("entry report, all accounts, month"),
                       [] { return komorki("frmRaportTransakcji", -1, {3, 4}); })
            .Podloga([] { return wpisySurowo(QLatin1String(kCzerwiec)); })
            .Limit(1000)
            .Przygotuj([] { okres(3); }),
        PrzypadekBench(QStringLiteral("entry report, all accounts, year"),
                       [] { return komorki("frmRaportTransakcji", -1, {3, 4}); })
            .Podloga([] {
              return wpisySurowo(QStringLiteral("data>='2026-01-01' AND data<'2027-01-01'"));
            })
            .Limit(3000)
            .Przygotuj([] { okres(5); }),
        PrzypadekBench(QStringLiteral("transfer report, year"),
                       [] {
                         return QString::number(napisz("frmRaportTransakcjiWewnetrznych")
                                                    .dok.tabela.size() -
                                                1);
                       })
            .Podloga([] {
              return Surowo(QStringLiteral(
                  "SELECT CAST(count(*) AS TEXT) FROM wewnetrzne w JOIN konta a ON a.id=w.zkonta "
                  "JOIN konta b ON b.id=w.nakonto WHERE data>='2026-01-01' AND "
                  "data<'2027-01-01'"));
            })
            .Limit(1000)
            .Przygotuj([] { okres(5); }),
        PrzypadekBench(QStringLiteral("accounts over time, all accounts"),
                       [] { return komorki("frmRaportKontaWCzasie", 1, {6}); })
            .Podloga([] {
              // What the report reads: the flows by account before the window and by account
              // and month in it, and the opening balances.
              qint64 suma = 0;
              SurowoWiersze(QStringLiteral("SELECT sum(bowinien)-sum(boma) FROM konta"),
                            [&](const Polecenie& p) { suma += SurowoGrosze(p, 0); });
              for (const char* w : {"data<'2026-01-01' GROUP BY konto",
                                    "data>='2026-01-01' AND data<'2026-07-01' GROUP BY konto, "
                                    "substr(data,6,2)"})
                SurowoWiersze(QStringLiteral("SELECT sum(przychod), sum(wydatek) FROM transakcje "
                                             "WHERE ") +
                                  QLatin1String(w),
                              [&](const Polecenie& p) {
                                suma += SurowoGrosze(p, 0) - SurowoGrosze(p, 1);
                              });
              for (const char* w : {"data<'2026-01-01' GROUP BY zkonta, nakonto",
                                    "data>='2026-01-01' AND data<'2026-07-01' GROUP BY zkonta, "
                                    "nakonto, substr(data,6,2)"})
                SurowoWiersze(QStringLiteral("SELECT sum(kwota) FROM wewnetrzne WHERE ") +
                                  QLatin1String(w),
                              [](const Polecenie&) {});
              return SurowaKwota(suma);
            })
            .Limit(1000)
            .LimitDuzy(5000)
            .Przygotuj([] { okres(3); }),
        PrzypadekBench(QStringLiteral("categories over time, expense tree"),
                       [] { return komorki("frmRaportKategorieWCzasie", 1, {7}); })
            .Podloga([] {
              // The sums of the window by category and month; the first main category's June.
              qint64 suma = 0;
              SurowoWiersze(QStringLiteral("SELECT kategoria, substr(data,6,2), "
                                           "sum(przychod)+sum(wydatek) FROM transakcje WHERE "
                                           "rodzaj=2 AND data>='2026-01-01' AND data<'2026-07-01' "
                                           "GROUP BY kategoria, substr(data,6,2)"),
                            [&](const Polecenie& p) {
                              if (p.Tekst(0).startsWith(QLatin1Char('a')) &&
                                  p.Tekst(1) == QLatin1String("06"))
                                suma += SurowoGrosze(p, 2);
                            });
              return SurowaKwota(suma);
            })
            .Limit(1000)
            .LimitDuzy(5000)
            .Przygotuj([] { okres(3); }),
        PrzypadekBench(QStringLiteral("counterparties over time, all"),
                       [] { return sumaKolumny("frmRaportKontrahentaWCzasie", 6); })
            .Podloga([] {
              // The sums of the window by counterparty and month; June of all of them.
              qint64 suma = 0;
              SurowoWiersze(QStringLiteral("SELECT kontrahent, substr(data,6,2), "
                                           "sum(przychod)+sum(wydatek) FROM transakcje WHERE "
                                           "kontrahent>0 AND data>='2026-01-01' AND "
                                           "data<'2026-07-01' GROUP BY kontrahent, substr(data,6,2)"),
                            [&](const Polecenie& p) {
                              if (p.Tekst(1) == QLatin1String("06")) suma += SurowoGrosze(p, 2);
                            });
              return SurowaKwota(suma);
            })
            .Limit(1000)
            .LimitDuzy(5000)
            .Przygotuj([] { okres(3); }),
    });

}  // namespace
