// The entry editor's save followed by the balance of its account (what the dashboard and the
// account browser show next), beside the same write and balance written by hand for SQLite:
//  - a change of an existing income, confirmed: one UPDATE, one commit;
//  - a new income: the INSERT, and the row removed again (a second commit) so that the store
//    stays as generated.
// Each commit is synchronous, so the disk's flush sets both sides' pace.

#include <QDate>

#include "ledger/transakcje.h"
#include "masterdata/konta.h"
#include "rejestr.h"
#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/kwota.h"
#include "store/session.h"
#include "surowa.h"

namespace {

const QDate kDzien(2026, 6, 17);
qint64 konto = 0;
QString kategoria;
DaneTransakcji zmiana;  // an existing income of the account, saved again as it is

// The editor's confirmation of a change, answered Tak.
class Tak : public HostKomunikatow {
 public:
  int Pokaz(const Komunikat&) override { return WynikTak; }
};
Tak tak;

// The busiest account of the sample and an income category in use.
void przygotuj() {
  OtworzBaze();
  sesja.pubFiltrCzasowy.pozycja = kDzien;
  konto = qint64(
      Surowo(QStringLiteral(
                 "SELECT konto FROM transakcje GROUP BY konto ORDER BY COUNT(*) DESC LIMIT 1"))
          .toDouble());
  kategoria = Surowo(QStringLiteral("SELECT kategoria FROM transakcje WHERE rodzaj=1 LIMIT 1"));
  const qint64 id = qint64(
      Surowo(
          QStringLiteral("SELECT MIN(id) FROM transakcje WHERE rodzaj=1 AND konto=%1").arg(konto))
          .toDouble());
  const std::optional<WierszTransakcji> w = CzytajTransakcje(2, id);
  if (!w) return;
  zmiana.tryb = 2;
  zmiana.id = id;
  zmiana.rodzaj = 1;
  zmiana.data = w->data;
  zmiana.kwota = QString::number(w->przychod, 'f', 2);
  zmiana.opis = w->opis.trimmed();
  zmiana.konto.id = w->konto;
  zmiana.kategoria = w->kategoria;
  zmiana.kontrahent = w->kontrahent;
  UstawHostKomunikatow(&tak);
}

QString kwota(double v) { return QString::number(ZaokraglijDoGroszy(v), 'f', 2); }

QString zapis() {
  DaneTransakcji d;
  d.tryb = 2;
  d.rodzaj = 1;
  d.data = kDzien;
  d.kwota = QStringLiteral("123.45");
  d.opis = QStringLiteral("bench");
  d.konto.id = konto;
  d.kategoria = kategoria;
  if (ZapiszTransakcje(d) != WynikEdycji::Zapisano) return QStringLiteral("not saved");
  const qint64 nowy = pubBaza().OstatnieId();
  const double saldo = SaldoKonta(konto);
  pubBaza().Wykonaj(QStringLiteral("DELETE FROM transakcje WHERE id=") + QString::number(nowy));
  return kwota(saldo);
}

QString zapisSurowy() {
  QString blad;
  sqlite3* db = Kontekst().surowa;
  if (!WykonajSurowo(
          db,
          QStringLiteral(
              "INSERT INTO transakcje (data,rodzaj,przychod,wydatek,opis,kategoria,konto,"
              "kontrahent) VALUES ('%1',1,123.45,0,'bench  ','%2',%3,0)")
              .arg(kDzien.toString(Qt::ISODate), kategoria)
              .arg(konto),
          &blad))
    return blad;
  const QString k = QString::number(konto);
  const QString saldo = Surowo(
      QStringLiteral("SELECT (SELECT bowinien-boma FROM konta WHERE id=%1)"
                     "+(SELECT TOTAL(przychod)-TOTAL(wydatek) FROM transakcje WHERE konto=%1)"
                     "+(SELECT TOTAL(kwota) FROM wewnetrzne WHERE nakonto=%1)"
                     "-(SELECT TOTAL(kwota) FROM wewnetrzne WHERE zkonta=%1)")
          .arg(k));
  WykonajSurowo(db,
                QStringLiteral("DELETE FROM transakcje WHERE id=(SELECT MAX(id) FROM transakcje)"),
                &blad);
  return saldo;
}

QString zmianaNasza() {
  if (ZapiszTransakcje(zmiana) != WynikEdycji::Zapisano) return QStringLiteral("not saved");
  return kwota(SaldoKonta(konto));
}

QString zmianaSurowa() {
  QString blad;
  if (!WykonajSurowo(
          Kontekst().surowa,
          QStringLiteral("UPDATE transakcje SET data='%1', przychod=%2, wydatek=0, opis='%3 ', "
                         "kategoria='%4', konto=%5, kontrahent=%6 WHERE id=%7")
              .arg(zmiana.data.toString(Qt::ISODate), zmiana.kwota, zmiana.opis, zmiana.kategoria)
              .arg(zmiana.konto.id)
              .arg(zmiana.kontrahent)
              .arg(zmiana.id),
          &blad))
    return blad;
  return Surowo(
      QStringLiteral("SELECT (SELECT bowinien-boma FROM konta WHERE id=%1)"
                     "+(SELECT TOTAL(przychod)-TOTAL(wydatek) FROM transakcje WHERE konto=%1)"
                     "+(SELECT TOTAL(kwota) FROM wewnetrzne WHERE nakonto=%1)"
                     "-(SELECT TOTAL(kwota) FROM wewnetrzne WHERE zkonta=%1)")
          .arg(konto));
}

Przypadki wpisy(60,
                {PrzypadekBench(QStringLiteral("entry save, edit + its account's balance"),
                                zmianaNasza)
                     .Podloga(zmianaSurowa)
                     .Limit(50)
                     .Przygotuj(przygotuj),
                 PrzypadekBench(QStringLiteral("entry save, new income + balance + delete"), zapis)
                     .Podloga(zapisSurowy)
                     .Limit(50)
                     .Przygotuj(przygotuj)});

}  // namespace
