// Store access: opening, the language table, and the period sums every browser and the balance
// panel are built from.

#include <sqlcipher/sqlite3.h>

#include <QDate>

#include "rejestr.h"
#include "store/baza.h"
#include "store/filtr.h"
#include "store/napis.h"
#include "store/session.h"
#include "surowa.h"

namespace {

// The working date of the period cases: a Wednesday inside the sample's years.
const QDate kDzienRoboczy(2026, 6, 17);

QString otwarcie() {
  ZamknijBaze();
  return OtworzBaze() ? QStringLiteral("ok") : QStringLiteral("failed");
}

QString otwarcieSurowe() {
  QString blad;
  sqlite3* db = OtworzSurowo(Kontekst().plik, false, &blad);
  if (!db) return blad;
  sqlite3_close(db);
  return QStringLiteral("ok");
}

// A key the language table holds (any will do: the lookup costs the same for every key).
QString klucz;
void przygotujNapis() {
  OtworzBaze();
  klucz = Surowo(QStringLiteral("SELECT kontrolka FROM jezyki ORDER BY kontrolka LIMIT 1"));
  if (klucz.isEmpty()) klucz = QStringLiteral("Module11");
  Napis(klucz);
}

QString sumaOkresu(int rodzaj) {
  OtworzBaze();
  FiltrCzasowyRekord f;
  f.rodzaj = rodzaj;
  const Okres o = FiltrCzasowy(f);
  return Wiersz(pubBaza().Czytaj(
      QStringLiteral("SELECT SUM(przychod) AS p, SUM(wydatek) AS w FROM transakcje WHERE 1=1") +
      o.warunek));
}

// The same sums written by hand for SQLite: a date range the index serves.
QString sumaOkresuSurowa(const QDate& od, const QDate& do_) {
  return Surowo(QStringLiteral("SELECT SUM(przychod) AS p, SUM(wydatek) AS w FROM transakcje "
                               "WHERE data>='%1' AND data<='%2'")
                    .arg(od.toString(Qt::ISODate), do_.toString(Qt::ISODate)));
}

void dzienRoboczy() {
  OtworzBaze();
  sesja.pubFiltrCzasowy.pozycja = kDzienRoboczy;
}

// Monday to Sunday of the working date's week, cut to its calendar year (the week filter
// compares week number and year).
QDate poczatekTygodnia() {
  const QDate p = kDzienRoboczy.addDays(1 - kDzienRoboczy.dayOfWeek());
  return std::max(p, QDate(kDzienRoboczy.year(), 1, 1));
}
QDate koniecTygodnia() {
  const QDate k = kDzienRoboczy.addDays(7 - kDzienRoboczy.dayOfWeek());
  return std::min(k, QDate(kDzienRoboczy.year(), 12, 31));
}

const QDate poczatekMiesiaca(kDzienRoboczy.year(), kDzienRoboczy.month(), 1);

Przypadki magazyn(
    10, {
            PrzypadekBench(QStringLiteral("store open, first (key derivation)"), otwarcie)
                .Podloga(otwarcieSurowe),
            PrzypadekBench(QStringLiteral("store open, again"),
                           [] {
                             return OtworzBaze() ? QStringLiteral("ok") : QStringLiteral("failed");
                           })
                .Przygotuj([] { OtworzBaze(); }),
            PrzypadekBench(QStringLiteral("Napis lookup (after the first)"),
                           [] { return Napis(klucz); })
                .Podloga([] {
                  return Surowo(
                      QStringLiteral("SELECT polski FROM jezyki WHERE kontrolka='%1'").arg(klucz));
                })
                .Przygotuj(przygotujNapis),
            PrzypadekBench(QStringLiteral("period sum, week"), [] { return sumaOkresu(2); })
                .Podloga([] { return sumaOkresuSurowa(poczatekTygodnia(), koniecTygodnia()); })
                .Limit(50)
                .Przygotuj(dzienRoboczy),
            PrzypadekBench(QStringLiteral("period sum, month"), [] { return sumaOkresu(3); })
                .Podloga([] {
                  return sumaOkresuSurowa(poczatekMiesiaca,
                                          poczatekMiesiaca.addMonths(1).addDays(-1));
                })
                .Limit(50)
                .Przygotuj(dzienRoboczy),
            PrzypadekBench(QStringLiteral("period sum, year"), [] { return sumaOkresu(5); })
                .Podloga([] {
                  return sumaOkresuSurowa(QDate(kDzienRoboczy.year(), 1, 1),
                                          QDate(kDzienRoboczy.year(), 12, 31));
                })
                .Limit(50)
                .Przygotuj(dzienRoboczy),
        });

}  // namespace
