// The counterparty browser's click with the details open: the planned entries with their four
// totals, and the executed sums of the month, for the counterparty with the most rows, beside
// the same reads written by hand for SQLite.

#include <QDate>

#include "masterdata/kontrahenci.h"
#include "rejestr.h"
#include "store/baza.h"
#include "store/filtr.h"
#include "store/kwota.h"
#include "store/session.h"
#include "surowa.h"

namespace {

const QDate kDzien(2026, 6, 17);
qint64 kontrahent = 0;

void przygotuj() {
  OtworzBaze();
  sesja.pubFiltrCzasowy.pozycja = kDzien;
  kontrahent =
      qint64(Surowo(QStringLiteral("SELECT kontrahent FROM zaplanowane WHERE kontrahent>0 GROUP BY "
                                   "kontrahent ORDER BY COUNT(*) DESC LIMIT 1"))
                 .toDouble());
}

QString g(qint64 grosze) { return QString::number(double(grosze) / 100.0, 'f', 2); }

QString klik() {
  const PanelZaplanowanych p = CzytajZaplanowane(kontrahent, sesja.pubFiltrCzasowy.pozycja);
  FiltrCzasowyRekord f;
  f.rodzaj = 3;
  const SumyKontrahenta s = SumyDokonanych(kontrahent, false, FiltrCzasowy(f).warunek);
  return QStringList{QString::number(s.ile),           g(WGroszach(s.przychod)),
                     g(WGroszach(s.wydatek)),          QString::number(p.wiersze.size()),
                     g(WGroszach(p.przychody)),        g(WGroszach(p.wydatki)),
                     g(WGroszach(p.zaleglePrzychody)), g(WGroszach(p.zalegleWydatki))}
      .join(QStringLiteral(" | "));
}

QString klikSurowy() {
  const QDate od(kDzien.year(), kDzien.month(), 1);
  const QStringList dokonane =
      Surowo(
          QStringLiteral("SELECT COUNT(*), TOTAL(przychod), TOTAL(wydatek) FROM transakcje WHERE "
                         "kontrahent=%1 AND data>='%2' AND data<'%3'")
              .arg(kontrahent)
              .arg(od.toString(Qt::ISODate), od.addMonths(1).toString(Qt::ISODate)))
          .split(QStringLiteral(" | "));
  Polecenie p(
      Kontekst().surowa,
      QStringLiteral("SELECT id,data,przychod,wydatek,opis FROM zaplanowane WHERE kontrahent=%1 "
                     "ORDER BY data, id DESC")
          .arg(kontrahent));
  const QString dzis = kDzien.toString(Qt::ISODate);
  qint64 ile = 0, przychody = 0, wydatki = 0, zp = 0, zw = 0;
  while (p.Wiersz()) {
    ++ile;
    const qint64 pr = WGroszach(p.Rzeczywista(2)), wy = WGroszach(p.Rzeczywista(3));
    przychody += pr;
    wydatki += wy;
    if (p.Tekst(1) < dzis) {
      zp += pr;
      zw += wy;
    }
    p.Tekst(4);
  }
  return QStringList{QString::number(qint64(dokonane.value(0).toDouble())),
                     dokonane.value(1),
                     dokonane.value(2),
                     QString::number(ile),
                     g(przychody),
                     g(wydatki),
                     g(zp),
                     g(zw)}
      .join(QStringLiteral(" | "));
}

Przypadki kontrahenci(50, {PrzypadekBench(QStringLiteral("counterparty browser click, month"), klik)
                               .Podloga(klikSurowy)
                               .Limit(50)
                               .Przygotuj(przygotuj)});

}  // namespace
