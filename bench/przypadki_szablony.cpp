// Templates, the receipt and recurring rules:
//  - the template list refilled for a typed letter over 1 000 templates, beside the same
//    statement on the raw connection; and the list screen refilled and painted per letter;
//  - a receipt of nine lines saved (one transaction), beside the same inserts in one raw
//    transaction (the rows are removed off the clock);
//  - a year of 50 daily recurring rules planned (18 250 rows), beside the same rows written by
//    hand with prepared statements in one transaction (the rows are removed off the clock);
//  - the start-up's look at the rules when nothing is left to plan.

#include <sqlcipher/sqlite3.h>

#include <QApplication>
#include <QDate>
#include <QLineEdit>
#include <QTreeWidget>
#include <cstdio>
#include <utility>

#include "ledger/frmSzablonyZewnetrzne.h"
#include "ledger/okresowe.h"
#include "ledger/paragon.h"
#include "ledger/szablony.h"
#include "masterdata/konta.h"
#include "rejestr.h"
#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/jet.h"
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
  // The n-th account, category and counterparty are picked by their rank: the store's engine
  // allows no correlated OFFSET and has no window functions.
  if (!WykonajSurowo(
          Kontekst().surowa,
          QStringLiteral(
              "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<%1), "
              "k AS (SELECT id, (SELECT COUNT(*) FROM konta AS b WHERE b.id<a.id) AS r FROM konta "
              "AS a), "
              "c AS (SELECT identyfikator, (SELECT COUNT(*) FROM kategorie AS b WHERE b.rodzaj=2 "
              "AND b.id<a.id) AS r FROM kategorie AS a WHERE rodzaj=2), "
              "o AS (SELECT id, (SELECT COUNT(*) FROM kontrahent AS b WHERE b.id<a.id) AS r FROM "
              "kontrahent AS a) "
              "INSERT INTO szablony (rodzaj,nazwa,konto,kategoria,kontrahent,opis) "
              "SELECT 2, 'Szablon ' || i, k.id, c.identyfikator, o.id, 'zakupy numer ' || i "
              "FROM n JOIN k ON k.r = i % (SELECT COUNT(*) FROM k) JOIN c ON c.r = i % (SELECT "
              "COUNT(*) FROM c) JOIN o ON o.r = i % (SELECT COUNT(*) FROM o)")
              .arg(kSzablonow),
          &blad))
    std::fprintf(stderr, "templates: %s\n", qPrintable(blad));
}

QString listaNasza() {
  const auto w = ListaSzablonow(2, QStringLiteral("szablon 1"));
  return QString::number(double(w.size()), 'f', 2);
}
QString sqlListySurowej(const QString& klucz) {
  return QStringLiteral(
             "SELECT COUNT(*) FROM ((szablony INNER JOIN konta ON szablony.konto = konta.id) "
             "INNER JOIN kategorie ON (szablony.rodzaj= kategorie.rodzaj AND szablony.kategoria = "
             "kategorie.identyfikator)) LEFT JOIN kontrahent ON szablony.kontrahent = "
             "kontrahent.id "
             "WHERE szablony.rodzaj=2 AND (kontrahent.skrocona LIKE '%%1%' OR szablony.nazwa LIKE "
             "'%%1%' OR szablony.opis LIKE '%%1%' OR konta.nazwa LIKE '%%1%' OR kategorie.nazwa "
             "LIKE '%%1%')")
      .arg(klucz);
}
QString listaSurowa() { return Surowo(sqlListySurowej(QStringLiteral("szablon 1"))); }

// The expense template list as the user sees it, typing "szablon 12" letter by letter and
// starting again: each call is one letter, the list refilled and painted.
const QStringList kLitery = [] {
  QStringList w;
  const QString slowo = QStringLiteral("szablon 12");
  for (int i = 1; i <= slowo.size(); ++i) w << slowo.left(i);
  return w;
}();
// Kept until the next case (never deleted after the application is gone).
frmSzablonyZewnetrzne* lista = nullptr;
int literaNasza = 0, literaSurowa = 0;

void pokazListe() {
  szablony();
  sesja.pubSzablonRodzaj = 2;
  sesja.pubSzablonWybor = 2;
  lista = new frmSzablonyZewnetrzne();
  lista->show();
  QApplication::processEvents();
}
QString wpisz(const QString& tekst) {
  auto* klucz = lista->findChild<QLineEdit*>(QStringLiteral("txtKlucz"));
  auto* lvw = lista->findChild<QTreeWidget*>(QStringLiteral("lvwSzablonyTransakcji"));
  klucz->setText(tekst);
  lvw->viewport()->repaint();
  return QString::number(double(lvw->topLevelItemCount()), 'f', 2);
}
QString listaEkran() { return wpisz(kLitery[literaNasza++ % kLitery.size()]); }

// The floor: the list's own statement stepped through on the raw connection, every column read.
QString listaSurowaDla(const QString& klucz) {
  const QByteArray sql = TlumaczJet(SqlListySzablonow(2, klucz)).toUtf8();
  sqlite3_stmt* st = nullptr;
  if (sqlite3_prepare_v2(Kontekst().surowa, sql.constData(), int(sql.size()), &st, nullptr) !=
      SQLITE_OK)
    return QStringLiteral("not prepared");
  qint64 ile = 0;
  const int n = sqlite3_column_count(st);
  while (sqlite3_step(st) == SQLITE_ROW) {
    ++ile;
    for (int i = 0; i < n; ++i) sqlite3_column_text(st, i);
  }
  sqlite3_finalize(st);
  return QString::number(double(ile), 'f', 2);
}
QString listaEkranSurowa() { return listaSurowaDla(kLitery[literaSurowa++ % kLitery.size()]); }

// The worst letter: each one changes the rows (over 1 000 and 112 in turns), so that the list is
// always built anew; a letter that leaves the same rows leaves the list alone.
const QStringList kZmiany = {QStringLiteral("s"), QStringLiteral("szablon 1")};
QString listaZmiana() { return wpisz(kZmiany[literaNasza++ % 2]); }
QString listaZmianaSurowa() { return listaSurowaDla(kZmiany[literaSurowa++ % 2]); }

// The connection that wrote last: it takes its rows back out (off the clock), so that each side
// keeps its own page cache warm as a program working alone would.
sqlite3* ktoPisal = nullptr;
qint64 przedParagonem = 0;

QString paragonNasz() {
  ktoPisal = pubBaza().Uchwyt();
  DaneParagonu d;
  d.data = kDzien;
  d.konto.id = konto;
  d.konto.rodzaj = 2;
  d.konto.saldo = 1e12;
  for (int n = 1; n <= LiczbaPozycjiParagonu; ++n)
    d.pozycje[size_t(n - 1)] = {QString::number(n) + QStringLiteral(".25"), kategoria,
                                QStringLiteral("bench")};
  return ZapiszParagon(d) ? QStringLiteral("9") : QStringLiteral("not saved");
}
QString paragonSurowy() {
  QString blad;
  sqlite3* db = ktoPisal = Kontekst().surowa;
  WykonajSurowo(db, QStringLiteral("BEGIN"), &blad);
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
  return QStringLiteral("9");
}
void przedParagonami() {
  delete std::exchange(lista, nullptr);
  podstawy();
  przedParagonem = qint64(Surowo(QStringLiteral("SELECT MAX(id) FROM transakcje")).toDouble());
}
void cofnijParagon() {
  QString blad;
  if (!WykonajSurowo(ktoPisal,
                     QStringLiteral("DELETE FROM transakcje WHERE id>%1").arg(przedParagonem),
                     &blad))
    std::fprintf(stderr, "receipt: %s\n", qPrintable(blad));
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

// Takes the planned year back out and marks the rules as not planned again (off the clock).
void cofnij() {
  QString blad;
  if (!WykonajSurowo(
          ktoPisal ? ktoPisal : Kontekst().surowa,
          QStringLiteral("DELETE FROM zaplanowane WHERE id IN (SELECT wiersz FROM okresowedni "
                         "WHERE okresowa IN (SELECT id FROM okresowe WHERE opis='bench')); "
                         "DELETE FROM okresowedni WHERE okresowa IN (SELECT id FROM okresowe "
                         "WHERE opis='bench'); UPDATE okresowe SET wygenerowanodo=NULL "
                         "WHERE opis='bench'"),
          &blad))
    std::fprintf(stderr, "recurring: %s\n", qPrintable(blad));
}

QString rokNasz() {
  ktoPisal = pubBaza().Uchwyt();
  return QString::number(GenerujOkresowe(kDzien, 365).wiersze);
}
QString rokSurowy() {
  QString blad;
  sqlite3* db = ktoPisal = Kontekst().surowa;
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
  return QString::number(wiersze);
}

Przypadki przypadki(
    95, {PrzypadekBench(QStringLiteral("template list, 1 000 templates, a typed key"), listaNasza)
             .Podloga(listaSurowa)
             .Limit(20)
             .Przygotuj(szablony),
         PrzypadekBench(QStringLiteral("template list screen, a letter typed"), listaEkran)
             .Podloga(listaEkranSurowa)
             .Limit(20)
             .Przygotuj(pokazListe),
         PrzypadekBench(QStringLiteral("template list screen, rows changed"), listaZmiana)
             .Podloga(listaZmianaSurowa)
             .Limit(20)
             .Przygotuj([] {
               if (!lista) pokazListe();
               literaNasza = literaSurowa = 0;
             }),
         PrzypadekBench(QStringLiteral("receipt save, nine lines"), paragonNasz)
             .Podloga(paragonSurowy)
             .Cofnij(cofnijParagon)
             .Limit(50)
             .Przygotuj(przedParagonami),
         PrzypadekBench(QStringLiteral("recurring: 50 daily rules, a year planned"), rokNasz)
             .Podloga(rokSurowy)
             .Cofnij(cofnij)
             .Limit(1000)
             .Przygotuj([] { reguly(false); }),
         PrzypadekBench(QStringLiteral("recurring: start-up with nothing to plan"),
                        [] { return QString::number(GenerujOkresowe(kDzien, 365).wiersze); })
             .Limit(10)
             .Przygotuj([] { reguly(true); })});

}  // namespace
