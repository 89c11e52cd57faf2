// The category browser: what one click on a node costs (the limit strip, the node's own sum and
// the breakdown over its children for the time filter), on Root and on the main expense
// category with the most children.

#include <QDate>
#include <QStringList>

#include "masterdata/kategorie.h"
#include "rejestr.h"
#include "store/baza.h"
#include "store/filtr.h"
#include "store/kwota.h"
#include "store/session.h"

namespace {

const QDate kDzien(2026, 6, 17);
QString glowna;  // the main expense category with the most children, found once

void przygotuj(int filtr) {
  OtworzBaze();
  sesja.pubFiltrCzasowy.pozycja = kDzien;
  sesja.pubFiltrCzasowy.rodzaj = filtr;
  if (glowna.isEmpty())
    glowna = Surowo(QStringLiteral(
        "SELECT kategoria FROM kategorie WHERE rodzaj=2 AND length(kategoria)=1 AND kategoria<>'-' "
        "GROUP BY kategoria ORDER BY count(*) DESC, kategoria LIMIT 1"));
}

// One click on a parent: the strip (hidden for a parent), then the details with the filter in
// force. The result is the first row of the breakdown, as the floor gives it.
QString klik(const QString& klucz) {
  LimitWezla(klucz, 2, true);
  const Okres o = FiltrCzasowy(sesja.pubFiltrCzasowy);
  const Rozbicie r = RozbicieKategorii(klucz, 2, o.warunek);
  if (r.wiersze.empty()) return QStringLiteral("none");
  return r.wiersze.front().identyfikator + QStringLiteral(" | ") +
         QString::number(ZaokraglijDoGroszy(r.wiersze.front().kwota), 'f', 2);
}

// The floor: the grouped sum written by hand for SQLite, with a range for the subtree and dates
// the index serves.
QString podloga(const QString& klucz, const QDate& od, const QDate& do_) {
  const int L = klucz == KluczKorzenia ? 0 : int(klucz.size());
  QString sql =
      QStringLiteral(
          "SELECT substr(kategoria,1,%1) AS d, SUM(przychod)+SUM(wydatek) FROM transakcje "
          "WHERE rodzaj=2 AND data>='%2' AND data<='%3'")
          .arg(L + 1)
          .arg(od.toString(Qt::ISODate), do_.toString(Qt::ISODate));
  if (L > 0) sql += QStringLiteral(" AND kategoria>'%1' AND kategoria<'%1{'").arg(klucz);
  return Surowo(sql + QStringLiteral(" GROUP BY d ORDER BY d"));
}

const QDate kPoczatekRoku(kDzien.year(), 1, 1);
const QDate kKoniecRoku(kDzien.year(), 12, 31);
// The week of the working date (Monday to Sunday; it lies inside one year).
const QDate kPoczatekTygodnia = kDzien.addDays(1 - kDzien.dayOfWeek());
const QDate kKoniecTygodnia = kPoczatekTygodnia.addDays(6);
const QDate kPoczatekMiesiaca(kDzien.year(), kDzien.month(), 1);
const QDate kKoniecMiesiaca = kPoczatekMiesiaca.addMonths(1).addDays(-1);

Przypadki kategorie(
    40, {
            PrzypadekBench(QStringLiteral("category browser click, Root, week"),
                           [] { return klik(KluczKorzenia); })
                .Podloga([] { return podloga(KluczKorzenia, kPoczatekTygodnia, kKoniecTygodnia); })
                .Limit(50)
                .Przygotuj([] { przygotuj(2); }),
            PrzypadekBench(QStringLiteral("category browser click, main category, week"),
                           [] { return klik(glowna); })
                .Podloga([] { return podloga(glowna, kPoczatekTygodnia, kKoniecTygodnia); })
                .Limit(50)
                .Przygotuj([] { przygotuj(2); }),
            PrzypadekBench(QStringLiteral("category browser click, Root, year"),
                           [] { return klik(KluczKorzenia); })
                .Podloga([] { return podloga(KluczKorzenia, kPoczatekRoku, kKoniecRoku); })
                .Limit(50)
                .Przygotuj([] { przygotuj(5); }),
            PrzypadekBench(QStringLiteral("category browser click, Root, month"),
                           [] { return klik(KluczKorzenia); })
                .Podloga([] { return podloga(KluczKorzenia, kPoczatekMiesiaca, kKoniecMiesiaca); })
                .Limit(50)
                .Przygotuj([] { przygotuj(3); }),
            PrzypadekBench(QStringLiteral("category browser click, main category, year"),
                           [] { return klik(glowna); })
                .Podloga([] { return podloga(glowna, kPoczatekRoku, kKoniecRoku); })
                .Limit(50)
                .Przygotuj([] { przygotuj(5); }),
            PrzypadekBench(QStringLiteral("category browser click, main category, month"),
                           [] { return klik(glowna); })
                .Podloga([] { return podloga(glowna, kPoczatekMiesiaca, kKoniecMiesiaca); })
                .Limit(50)
                .Przygotuj([] { przygotuj(3); }),
        });

}  // namespace
