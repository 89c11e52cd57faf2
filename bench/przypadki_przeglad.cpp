// The entry browser over every row ("Wszystko"): the screen built and filled with the whole
// table, beside the fastest plain SQL for the same rows in the same order stepped to its end on
// the raw connection, reading every column; and the sort of all rows by a header click (amount,
// Polish text, date) beside the store sorting the same rows with the same ties (the statement's
// order: newest first).

#include <sqlcipher/sqlite3.h>

#include <QApplication>
#include <QDate>
#include <memory>

#include "ledger/frmPrzegladTransakcji.h"
#include "ledger/przeglad.h"
#include "rejestr.h"
#include "store/filtr.h"
#include "store/jet.h"
#include "store/session.h"

namespace {

// Rows, income and expense in cents: what both sides must agree on.
QString wynik(qint64 ile, qint64 suma1, qint64 suma2) {
  return QStringLiteral("%1 rows | %2 | %3").arg(ile).arg(suma1).arg(suma2);
}

// The fastest plain SQL for the same rows in the same order: the table read straight through,
// joined to the names, sorted by the store (the key given first, then newest first).
QString statementSurowy(const QString& klucz = QString()) {
  FiltrCzasowyRekord f;
  f.rodzaj = 0;
  return ZapytanieCalegoPrzegladu(RodzajPrzegladu::Transakcje, 2, QString(),
                                  FiltrCzasowy(f).warunek) +
         QStringLiteral("ORDER BY ") + (klucz.isEmpty() ? QString() : klucz + QLatin1Char(',')) +
         QStringLiteral("transakcje.data DESC,transakcje.id DESC");
}

// Steps a translated statement on the raw connection to its end, reading every column as the
// browser reads it; ids of the first and last rows, or the count and sums.
struct Przejscie {
  qint64 ile = 0, suma1 = 0, suma2 = 0, pierwszy = 0, ostatni = 0;
};
Przejscie przejdz(const QString& jetSql) {
  Przejscie p;
  const QByteArray sql = TlumaczJet(jetSql).toUtf8();
  sqlite3_stmt* st = nullptr;
  if (sqlite3_prepare_v2(Kontekst().surowa, sql.constData(), int(sql.size()), &st, nullptr) !=
      SQLITE_OK)
    return p;
  const int n = sqlite3_column_count(st);
  while (sqlite3_step(st) == SQLITE_ROW) {
    const qint64 id = sqlite3_column_int64(st, 0);
    if (p.ile == 0) p.pierwszy = id;
    p.ostatni = id;
    ++p.ile;
    p.suma1 += qint64(std::llround(sqlite3_column_double(st, 2) * 100.0));
    p.suma2 += qint64(std::llround(sqlite3_column_double(st, 3) * 100.0));
    for (int i = 4; i < n; ++i) sqlite3_column_text(st, i);
    sqlite3_column_text(st, 1);
  }
  sqlite3_finalize(st);
  return p;
}

QString ekran() {
  sesja.pubTryb = 2;
  sesja.pubFiltrCzasowy.rodzaj = 0;
  sesja.pubFiltrTransakcji.clear();
  sesja.pubTytulTransakcji.clear();
  auto p = std::make_unique<frmPrzegladTransakcji>();
  p->show();
  QApplication::processEvents();
  const DanePrzegladu& d = p->Dane();
  return wynik(d.Ile(), d.Suma1(), d.Suma2());
}

QString surowyEkran() {
  const Przejscie p = przejdz(statementSurowy());
  return wynik(p.ile, p.suma1, p.suma2);
}

// The rows loaded once; each sort starts from the statement's order.
std::unique_ptr<DanePrzegladu> dane;
void wczytaj() {
  if (!dane) {
    dane = std::make_unique<DanePrzegladu>(RodzajPrzegladu::Transakcje);
    dane->Wczytaj(
        ZapytanieCalegoPrzegladu(RodzajPrzegladu::Transakcje, 2, QString(), QStringLiteral(" ")));
    dane->UporzadkujOdNajnowszych();
  }
}

QString sortuj(int kolumna) {
  dane->BezSortowania();
  dane->Sortuj(kolumna, true);
  return QStringLiteral("%1 .. %2").arg(dane->Wiersz(0).id).arg(dane->Wiersz(dane->Ile() - 1).id);
}

// The same rows ordered by the store; ties by the statement's order.
QString sortujSurowo(const QString& klucz) {
  const Przejscie p = przejdz(statementSurowy(klucz));
  return QStringLiteral("%1 .. %2").arg(p.pierwszy).arg(p.ostatni);
}

Przypadki przeglad(
    70,
    {PrzypadekBench(QStringLiteral("entry browser, Wszystko, screen ready"), ekran)
         .Podloga(surowyEkran)
         .Limit(500)
         .LimitDuzy(4000),
     PrzypadekBench(QStringLiteral("entry browser, sort by expense"), [] { return sortuj(2); })
         .Podloga([] { return sortujSurowo(QStringLiteral("transakcje.wydatek")); })
         .Przygotuj(wczytaj)
         .Limit(300),
     PrzypadekBench(QStringLiteral("entry browser, sort by description"), [] { return sortuj(6); })
         .Podloga([] { return sortujSurowo(QStringLiteral("transakcje.opis COLLATE PL")); })
         .Przygotuj(wczytaj)
         .Limit(300),
     PrzypadekBench(QStringLiteral("entry browser, sort by date"), [] { return sortuj(0); })
         .Podloga([] { return sortujSurowo(QStringLiteral("transakcje.data")); })
         .Przygotuj(wczytaj)
         .Limit(300)});

}  // namespace
