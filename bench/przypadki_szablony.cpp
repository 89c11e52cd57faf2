// Templates, the receipt and recurring rules:
//  - the template list refilled for a typed letter over 1 000 templates, beside the same
//    statement on the raw connection;
//  - a receipt of nine lines saved (one transaction) and its rows removed again, beside the same
//    inserts in one raw transaction;
//  - a year of 50 daily recurring rules planned (18 250 rows) and removed again, beside the same
//    rows written by hand with prepared statements;
//  - the start-up's look at the rules when nothing is left to plan.

#include <QDate>

#include "ledger/okresowe.h"
#include "ledger/paragon.h"
#include "ledger/szablony.h"
#include "masterdata/konta.h"
#include "rejestr.h"
#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/session.h"
#include "surowa.h"

namespace {

const QDate kDzien(2026, 6, 17);
constexpr int kSzablonow = 1000;
constexpr int kRegul = 50;
qint64 konto = 0;
QString kategoria;

class Tak : public HostKomunikatow {
 public:
  int Pokaz(const Komunikat&) override { return WynikTak; }
};
Tak tak;

void podstawy() {
  OtworzBaze();
  UstawHostKomunikatow(&tak);
  konto = qint64(
      Surowo(QStringLiteral("SELECT id FROM konta WHERE rodzaj=2 ORDER BY id LIMIT 1")).toDouble());
  kategoria = Surowo(QStringLiteral(
      "SELECT identyfikator FROM kategorie AS k WHERE rodzaj=2 AND NOT EXISTS (SELECT 1 FROM "
      "kategorie AS d WHERE d.rodzaj=2 AND d.kategoria=k.identyfikator) ORDER BY identyfikator "
      "LIMIT 1"));
}

// 1 000 expense templates over the sample's accounts, categories and counterparties (made once;
// the bench store keeps them).
void szablony() {
  podstawy();
  QString blad;
  if (Surowo(QStringLiteral("SELECT COUNT(*) FROM szablony WHERE rodzaj=2")).toDouble() >=
      kSzablonow)
    return;
  WykonajSurowo(
      Kontekst().surowa,
      QStringLiteral(
          "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<%1) INSERT INTO "
          "szablony (rodzaj,nazwa,konto,kategoria,kontrahent,opis) SELECT 2, 'Szablon ' || i, "
          "(SELECT id FROM konta ORDER BY id LIMIT 1 OFFSET i % 40), (SELECT identyfikator FROM "
          "kategorie WHERE rodzaj=2 ORDER BY id LIMIT 1 OFFSET i % 100), (SELECT id FROM "
          "kontrahent ORDER BY id LIMIT 1 OFFSET i % 500), 'zakupy numer ' || i FROM n")
          .arg(kSzablonow),
      &blad);
}

QString listaNasza() {
  const auto w = ListaSzablonow(2, QStringLiteral("szablon 1"));
  return QString::number(double(w.size()), 'f', 2);
}
QString listaSurowa() {
  return Surowo(QStringLiteral(
      "SELECT COUNT(*) FROM ((szablony INNER JOIN konta ON szablony.konto = konta.id) INNER JOIN "
      "kategorie ON (szablony.rodzaj= kategorie.rodzaj AND szablony.kategoria = "
      "kategorie.identyfikator)) LEFT JOIN kontrahent ON szablony.kontrahent = kontrahent.id "
      "WHERE szablony.rodzaj=2 AND (kontrahent.skrocona LIKE '%szablon 1%' OR szablony.nazwa LIKE "
      "'%szablon 1%' OR szablony.opis LIKE '%szablon 1%' OR konta.nazwa LIKE '%szablon 1%' OR kategorie.nazwa LIKE "
      "'%szablon 1%')"));
}

QString paragonNasz() {
  DaneParagonu d;
  d.data = kDzien;
  d.konto.id = konto;
  d.konto.rodzaj = 2;
  d.konto.saldo = 1e12;
  for (int n = 1; n <= LiczbaPozycjiParagonu; ++n)
    d.pozycje[size_t(n - 1)] = {QString::number(n) + QStringLiteral(".25"), kategoria,
                                QStringLiteral("bench")};
  const qint64 przed =
      pubBaza().Czytaj(QStringLiteral("SELECT MAX(id) AS m FROM transakcje")).Pole(0).toLongLong();
  if (!ZapiszParagon(d)) return QStringLiteral("not saved");
  pubBaza().Wykonaj(QStringLiteral("DELETE FROM transakcje WHERE id>") + QString::number(przed));
  return QStringLiteral("9");
}
QString paragonSurowy() {
  QString blad;
  sqlite3* db = Kontekst().surowa;
  WykonajSurowo(db, QStringLiteral("BEGIN"), &blad);
  const qint64 przed = qint64(Surowo(QStringLiteral("SELECT MAX(id) FROM transakcje")).toDouble());
  {
    Polecenie p(
        db, QStringLiteral("INSERT INTO transakcje (data,rodzaj,przychod,wydatek,opis,kategoria,"
                           "konto,kontrahent) VALUES (?,2,0,?,'bench ',?,?,0)"));
    for (int n = 9; n >= 1; --n)
      p.Tekst(1, kDzien.toString(Qt::ISODate))
          .Kwota(2, n * 100 + 25)
          .Tekst(3, kategoria)
          .Liczba(4, konto)
          .Wykonaj();
  }
  WykonajSurowo(db, QStringLiteral("COMMIT"), &blad);
  WykonajSurowo(db, QStringLiteral("DELETE FROM transakcje WHERE id>%1").arg(przed), &blad);
  return QStringLiteral("9");
}

// 50 daily expense rules over one year from kDzien (made once; marked as fully planned between
// runs, so that the program's start on the bench store plans nothing).
void reguly(bool zaplanowane) {
  podstawy();
  QString blad;
  if (Surowo(QStringLiteral("SELECT COUNT(*) FROM okresowe WHERE opis='bench'")).toDouble() <
      kRegul)
    WykonajSurowo(
        Kontekst().surowa,
        QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<%1) "
                       "INSERT INTO okresowe (rodzaj,konto,nakonto,kategoria,kontrahent,opis,kwota,"
                       "oddaty,dodaty,czestotliwosc,weekend) SELECT 2,%2,0,'%3',0,'bench',i+0.5,"
                       "'%4','%5',1,0 FROM n")
            .arg(kRegul)
            .arg(konto)
            .arg(kategoria, kDzien.toString(Qt::ISODate),
                 kDzien.addDays(364).toString(Qt::ISODate)),
        &blad);
  WykonajSurowo(Kontekst().surowa,
                zaplanowane ? QStringLiteral("UPDATE okresowe SET wygenerowanodo=dodaty WHERE "
                                             "opis='bench'")
                            : QStringLiteral("UPDATE okresowe SET wygenerowanodo=NULL WHERE "
                                             "opis='bench'"),
                &blad);
}

// Takes the planned year back out and marks the rules as planned again.
void cofnij() {
  QString blad;
  WykonajSurowo(
      Kontekst().surowa,
      QStringLiteral("DELETE FROM zaplanowane WHERE id IN (SELECT wiersz FROM okresowedni "
                     "WHERE okresowa IN (SELECT id FROM okresowe WHERE opis='bench')); "
                     "DELETE FROM okresowedni WHERE okresowa IN (SELECT id FROM okresowe "
                     "WHERE opis='bench'); UPDATE okresowe SET wygenerowanodo=NULL "
                     "WHERE opis='bench'"),
      &blad);
}

QString rokNasz() {
  const WynikGenerowania w = GenerujOkresowe(kDzien, 365);
  cofnij();
  return QString::number(w.wiersze);
}
QString rokSurowy() {
  QString blad;
  sqlite3* db = Kontekst().surowa;
  WykonajSurowo(db, QStringLiteral("BEGIN"), &blad);
  qint64 wiersze = 0;
  {
    Polecenie ids(db, QStringLiteral("SELECT id FROM okresowe WHERE opis='bench'"));
    std::vector<qint64> reguly;
    while (ids.Wiersz()) reguly.push_back(ids.Liczba(0));
    Polecenie wpis(
        db, QStringLiteral("INSERT INTO zaplanowane (data,rodzaj,przychod,wydatek,opis,kategoria,"
                           "konto,kontrahent) VALUES (?,2,0,?,'bench  ',?,?,0)"));
    Polecenie dzien(db, QStringLiteral("INSERT INTO okresowedni (okresowa,data,wiersz) VALUES (?,?,"
                                       "last_insert_rowid())"));
    for (qint64 r : reguly)
      for (int i = 0; i < 365; ++i) {
        const QString d = kDzien.addDays(i).toString(Qt::ISODate);
        wpis.Tekst(1, d).Kwota(2, 150).Tekst(3, kategoria).Liczba(4, konto).Wykonaj();
        dzien.Liczba(1, r).Tekst(2, d).Wykonaj();
        ++wiersze;
      }
  }
  WykonajSurowo(db, QStringLiteral("COMMIT"), &blad);
  cofnij();
  return QString::number(wiersze);
}

Przypadki przypadki(
    95, {PrzypadekBench(QStringLiteral("template list, 1 000 templates, a typed key"), listaNasza)
             .Podloga(listaSurowa)
             .Limit(20)
             .Przygotuj(szablony),
         PrzypadekBench(QStringLiteral("receipt save, nine lines (and removed)"), paragonNasz)
             .Podloga(paragonSurowy)
             .Limit(50)
             .Przygotuj(podstawy),
         PrzypadekBench(QStringLiteral("recurring: 50 daily rules, a year planned (and removed)"),
                        rokNasz)
             .Podloga(rokSurowy)
             .Limit(1000)
             .Przygotuj([] { reguly(false); }),
         PrzypadekBench(QStringLiteral("recurring: start-up with nothing to plan"),
                        [] { return QString::number(GenerujOkresowe(kDzien, 365).wiersze); })
             .Limit(10)
             .Przygotuj([] { reguly(true); })});

}  // namespace
