// The entry and transfer reports and the three reports over six months, written whole with no
// window, beside the figure one of their rows shows computed by hand in SQLite.

#include <QDate>

#include "rejestr.h"
#include "reports/raporty.h"
#include "store/baza.h"
#include "store/filtr.h"
#include "store/kwota.h"
#include "store/session.h"
#include "store/tekst.h"

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

Przypadki raportyWCzasie(
    71,
    {
        PrzypadekBench(QStringLiteral("entry report, all accounts, month"),
                       [] { return komorki("frmRaportTransakcji", -1, {3, 4}); })
            .Podloga([] {
              return Surowo(QStringLiteral("SELECT sum(przychod), sum(wydatek) FROM transakcje "
                                           "WHERE ") +
                            QLatin1String(kCzerwiec));
            })
            .Limit(1000)
            .Przygotuj([] { okres(3); }),
        PrzypadekBench(QStringLiteral("entry report, all accounts, year"),
                       [] { return komorki("frmRaportTransakcji", -1, {3, 4}); })
            .Podloga([] {
              return Surowo(QStringLiteral(
                  "SELECT sum(przychod), sum(wydatek) FROM transakcje WHERE data>='2026-01-01' AND "
                  "data<'2027-01-01'"));
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
              return Surowo(QStringLiteral(
                  "SELECT (SELECT sum(bowinien)-sum(boma) FROM konta) + (SELECT "
                  "sum(przychod)-sum(wydatek) FROM transakcje WHERE data<'2026-07-01')"));
            })
            .Limit(1000)
            .Przygotuj([] { okres(3); }),
        PrzypadekBench(QStringLiteral("categories over time, expense tree"),
                       [] { return komorki("frmRaportKategorieWCzasie", 1, {7}); })
            .Podloga([] {
              return Surowo(QStringLiteral(
                                "SELECT sum(przychod)+sum(wydatek) FROM transakcje WHERE rodzaj=2 "
                                "AND kategoria>='a' AND kategoria<'b' AND ") +
                            QLatin1String(kCzerwiec));
            })
            .Limit(1000)
            .Przygotuj([] { okres(3); }),
        PrzypadekBench(QStringLiteral("counterparties over time, all"),
                       [] { return sumaKolumny("frmRaportKontrahentaWCzasie", 6); })
            .Podloga([] {
              return Surowo(QStringLiteral("SELECT sum(przychod)+sum(wydatek) FROM transakcje WHERE "
                                           "kontrahent>0 AND ") +
                            QLatin1String(kCzerwiec));
            })
            .Limit(1000)
            .Przygotuj([] { okres(3); }),
    });

}  // namespace
