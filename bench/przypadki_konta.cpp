// The account browser's node click: the balance over all time and the eight sums of the period
// (month of the working date) for one account, one kind and all accounts, beside the same
// figures written by hand for SQLite with date ranges the indexes serve.

#include <QDate>
#include <array>

#include "masterdata/konta.h"
#include "rejestr.h"
#include "store/baza.h"
#include "store/filtr.h"
#include "store/kwota.h"
#include "store/session.h"

namespace {

const QDate kDzien(2026, 6, 17);
qint64 konto = 0;
int rodzaj = 0;

// The busiest account of the sample and its kind.
void przygotuj() {
  OtworzBaze();
  sesja.pubFiltrCzasowy.pozycja = kDzien;
  konto = Surowo(QStringLiteral(
                     "SELECT konto FROM transakcje GROUP BY konto ORDER BY COUNT(*) DESC LIMIT 1"))
              .toDouble();
  rodzaj =
      int(Surowo(QStringLiteral("SELECT rodzaj FROM konta WHERE id=%1").arg(konto)).toDouble());
}

QString kwota(double v) { return QString::number(ZaokraglijDoGroszy(v), 'f', 2); }

// What a click on the node computes with the details open: the balance over all time for an
// account, and the period's opening balance, start, income, expense, transfers in and out, end.
QString klik(const WezelKont& wezel) {
  FiltrCzasowyRekord f;
  f.rodzaj = 3;
  const Okres okres = FiltrCzasowy(f);
  const StanWezla s = CzytajStanWezla(wezel, &okres);
  const BilansOkresu& b = s.bilans;
  QStringList w;
  if (s.maSaldo) w << kwota(s.saldo);
  w << kwota(b.bilansOtwarcia) << kwota(b.poczatek) << kwota(b.wOkresie.przychod)
    << kwota(b.wOkresie.wydatek) << kwota(b.wOkresie.przychodzace) << kwota(b.wOkresie.wychodzace)
    << kwota(b.koniec);
  return w.join(QStringLiteral(" | "));
}

// The floor: one pass over each table with the sums of the period and of the time before it
// side by side, dates as ISO text.
QString podloga(char typ) {
  const QString od = QDate(kDzien.year(), kDzien.month(), 1).toString(Qt::ISODate);
  const QString do_ = QDate(kDzien.year(), kDzien.month(), 1).addMonths(1).toString(Qt::ISODate);
  QString konta, wpisy, na, z;
  if (typ == 'q') {
    konta = QStringLiteral("id=%1").arg(konto);
    wpisy = QStringLiteral("konto=%1").arg(konto);
    na = QStringLiteral("nakonto=%1").arg(konto);
    z = QStringLiteral("zkonta=%1").arg(konto);
  } else if (typ == 'r') {
    const QString w = QStringLiteral(" IN (SELECT id FROM konta WHERE rodzaj=%1)").arg(rodzaj);
    // As the program reads a kind: the table through once, not row by row through an index.
    konta = QStringLiteral("rodzaj=%1").arg(rodzaj);
    wpisy = QStringLiteral("+konto") + w;
    na = QStringLiteral("+nakonto") + w;
    z = QStringLiteral("+zkonta") + w;
  } else {
    konta = wpisy = na = z = QStringLiteral("1=1");
  }
  // Columns: all time, before the period, in the period.
  const auto trzy = [&](const QString& wartosc, const QString& kolumna, const QString& tabela,
                        const QString& gdzie) {
    const QStringList l =
        Surowo(QStringLiteral("SELECT TOTAL(%1), TOTAL(CASE WHEN %2<'%5' THEN %1 END), "
                              "TOTAL(CASE WHEN %2>='%5' AND %2<'%6' THEN %1 END) FROM %3 WHERE %4")
                   .arg(wartosc, kolumna, tabela, gdzie, od, do_))
            .split(QStringLiteral(" | "));
    return std::array<qint64, 3>{WGroszach(l.value(0).toDouble()), WGroszach(l.value(1).toDouble()),
                                 WGroszach(l.value(2).toDouble())};
  };
  const auto bo = trzy(QStringLiteral("bowinien-boma"), QStringLiteral("datautworzenia"),
                       QStringLiteral("konta"), konta);
  const auto p =
      trzy(QStringLiteral("przychod"), QStringLiteral("data"), QStringLiteral("transakcje"), wpisy);
  const auto w =
      trzy(QStringLiteral("wydatek"), QStringLiteral("data"), QStringLiteral("transakcje"), wpisy);
  const auto in =
      trzy(QStringLiteral("kwota"), QStringLiteral("data"), QStringLiteral("wewnetrzne"), na);
  const auto out =
      trzy(QStringLiteral("kwota"), QStringLiteral("data"), QStringLiteral("wewnetrzne"), z);
  const auto g = [](qint64 grosze) { return QString::number(double(grosze) / 100.0, 'f', 2); };
  const qint64 przed = bo[1] + p[1] - w[1] + in[1] - out[1];
  const qint64 koniec = przed + bo[2] + p[2] - w[2] + in[2] - out[2];
  QStringList wynik;
  if (typ == 'q') wynik << g(bo[0] + p[0] - w[0] + in[0] - out[0]);
  wynik << g(bo[1] + bo[2]) << g(przed) << g(p[2]) << g(w[2]) << g(in[2]) << g(out[2]) << g(koniec);
  return wynik.join(QStringLiteral(" | "));
}

Przypadki konta(40, {
                        PrzypadekBench(QStringLiteral("account browser click, account, month"),
                                       [] { return klik(WezelKont::Konto(konto)); })
                            .Podloga([] { return podloga('q'); })
                            .Limit(50)
                            .Przygotuj(przygotuj),
                        PrzypadekBench(QStringLiteral("account browser click, kind, month"),
                                       [] { return klik(WezelKont::Rodzaj(rodzaj)); })
                            .Podloga([] { return podloga('r'); })
                            .Limit(50)
                            .Przygotuj(przygotuj),
                        PrzypadekBench(QStringLiteral("account browser click, all accounts, month"),
                                       [] { return klik(WezelKont{}); })
                            .Podloga([] { return podloga('R'); })
                            .Limit(50)
                            .Przygotuj(przygotuj),
                    });

}  // namespace
