// The dashboard: the main window built and shown with its four lists, planned sums, balance
// panel and daily overview, beside the same statements stepped on the raw connection; and the
// balance panel alone (StanKont) beside its statements. "Today" lies inside the sample.

#include <sqlcipher/sqlite3.h>

#include <QApplication>
#include <QDate>
#include <QTreeWidget>
#include <memory>

#include "mainwindow/frmMain.h"
#include "mainwindow/pulpit.h"
#include "rejestr.h"
#include "store/baza.h"
#include "store/dzis.h"
#include "store/jet.h"
#include "store/kwota.h"
#include "store/start.h"
#include "store/tekst.h"
#include "surowa.h"

namespace {

const QDate kDzis(2026, 6, 17);

void przygotuj() {
  UstawDzis(kDzis);
  // The main window's notepad and tips are read as at every start.
}

// Steps a Jet statement (translated, as the program runs it) on the raw connection; the rows.
std::vector<std::vector<double>> surowe(const QString& jetSql, int liczb) {
  std::vector<std::vector<double>> w;
  const QByteArray sql = TlumaczJet(jetSql).toUtf8();
  sqlite3_stmt* st = nullptr;
  if (sqlite3_prepare_v2(Kontekst().surowa, sql.constData(), int(sql.size()), &st, nullptr) !=
      SQLITE_OK)
    return w;
  const int n = sqlite3_column_count(st);
  while (sqlite3_step(st) == SQLITE_ROW) {
    std::vector<double> r;
    for (int i = 0; i < n; ++i) {
      if (i < liczb)
        r.push_back(sqlite3_column_double(st, i));
      else
        sqlite3_column_text(st, i);
    }
    w.push_back(std::move(r));
  }
  sqlite3_finalize(st);
  return w;
}

qint64 grosze(double v) { return qint64(std::llround(v * 100.0)); }

// The balance panel's statements: the opening balances and the kept totals by kind, and the
// calendar month of today.
QString stanKontSurowo() {
  qint64 suma = 0;
  for (const auto& r : surowe(QStringLiteral("SELECT rodzaj, SUM(bowinien) AS wn, SUM(boma) AS ma "
                                             "FROM konta WHERE id<>0 GROUP BY rodzaj"),
                              3))
    if (r[0] >= 1 && r[0] <= 6) suma += grosze(r[1]) - grosze(r[2]);
  for (const auto& r :
       surowe(QStringLiteral("SELECT konta.rodzaj AS rodzaj, obrotykont.przychod AS przychod, "
                             "obrotykont.wydatek AS wydatek, obrotykont.przychodzace AS "
                             "przychodzace, obrotykont.wychodzace AS wychodzace FROM "
                             "obrotykont, konta WHERE obrotykont.konto = konta.id"),
              5))
    if (r[0] >= 1 && r[0] <= 6) suma += qint64(r[1] + r[3]) - qint64(r[2] + r[4]);
  // The month's sums: the fastest plain SQL walks its days in the date index.
  const QDate od(kDzis.year(), kDzis.month(), 1);
  const auto m =
      surowe(QStringLiteral("SELECT SUM(przychod), SUM(wydatek) FROM transakcje WHERE "
                            "data>='%1' AND data<='%2'")
                 .arg(od.toString(Qt::ISODate), od.addMonths(1).addDays(-1).toString(Qt::ISODate)),
             2);
  const double p = m.empty() ? 0 : m[0][0], w = m.empty() ? 0 : m[0][1];
  return QStringLiteral("%1 | %2 | %3").arg(suma).arg(grosze(p)).arg(grosze(w));
}

QString stanKont() {
  const StanKontPulpitu s = ObliczStanKont(Dzis());
  return QStringLiteral("%1 | %2 | %3")
      .arg(WGroszach(s.suma))
      .arg(WGroszach(s.przychody))
      .arg(WGroszach(s.wydatki));
}

// Everything the main window reads at load: its four lists, the planned sums, the balance
// panel and the two statements of the daily overview. The result: rows of the entries list.
QString pulpitSurowo() {
  const QString dzis = ZapisDaty(kDzis);
  size_t wpisy = 0;
  for (ListaPulpitu l : {ListaPulpitu::Transakcje, ListaPulpitu::Zaplanowane,
                         ListaPulpitu::Wewnetrzne, ListaPulpitu::WewnetrzneZaplanowane}) {
    const size_t n = surowe(ZapytanieListy(l), 0).size();
    if (l == ListaPulpitu::Transakcje) wpisy = n;
  }
  const QString planowane = QStringLiteral(
      "SELECT COUNT (id) AS ile, SUM(przychod) AS sumprzychod, SUM(wydatek) AS sumwydatek FROM "
      "zaplanowane ");
  surowe(planowane, 3);
  surowe(planowane + QStringLiteral("WHERE data<#") + dzis + QStringLiteral("# "), 3);
  stanKontSurowo();
  surowe(QStringLiteral(
             "SELECT zaplanowane.data AS data, zaplanowane.przychod AS przychod, "
             "zaplanowane.wydatek AS wydatek, zaplanowane.opis AS opis, kategorie.nazwa AS "
             "kategoria FROM zaplanowane, kategorie WHERE zaplanowane.kategoria = "
             "kategorie.identyfikator AND kategorie.rodzaj = zaplanowane.rodzaj AND data<=#") +
             dzis + QStringLiteral("# ORDER BY zaplanowane.data,zaplanowane.id ASC"),
         0);
  surowe(
      QStringLiteral(
          "SELECT zaplanowanewewnetrzne.kwota AS kwota, zaplanowanewewnetrzne.opis AS opis, "
          "konta.nazwa AS zkonta, kontaprim.nazwa AS nakonto FROM zaplanowanewewnetrzne, "
          "konta, konta AS kontaprim WHERE konta.id=zaplanowanewewnetrzne.zkonta AND "
          "kontaprim.id=zaplanowanewewnetrzne.nakonto AND data<=#") +
          dzis +
          QStringLiteral("# ORDER BY zaplanowanewewnetrzne.data ASC,zaplanowanewewnetrzne.id ASC"),
      0);
  return QStringLiteral("%1 rows").arg(wpisy);
}

QString pulpit() {
  auto f = std::make_unique<frmMain>();
  f->show();
  QApplication::processEvents();
  auto* l = f->findChild<QTreeWidget*>(QStringLiteral("lvwTransakcje"));
  return QStringLiteral("%1 rows").arg(l ? l->topLevelItemCount() : -1);
}

// The start-up from a closed store to the main window shown: the open with its key derivation,
// the upgrade checks, the setup row, the window. The floor opens the file raw and steps the
// window's statements.
QString start() {
  ZamknijBaze();
  if (OtworzBazeIZbadaj() != StanBazy::Otwarta) return QStringLiteral("failed");
  AktualizujBaze();
  // The check for old small pages (the bench's store was moved before the cases).
  AktualizujStrony();
  WczytajSetup();
  return pulpit();
}

// A fresh raw connection, set up as the program's, runs them: both sides start cold.
QString startSurowo() {
  const KontekstBench dawny = Kontekst();
  QString blad;
  sqlite3* db = OtworzSurowo(dawny.plik, false, &blad);
  if (!db) return blad;
  WykonajSurowo(db, QStringLiteral("PRAGMA cache_size=-65536; PRAGMA temp_store=MEMORY;"), nullptr);
  ZarejestrujFunkcjeJet(db);
  UstawKontekst({dawny.folder, dawny.plik, db});
  const QString wynik = pulpitSurowo();
  UstawKontekst(dawny);
  sqlite3_close(db);
  return wynik;
}

Przypadki pulpity(65, {PrzypadekBench(QStringLiteral("start-up to the main window shown"), start)
                           .Podloga(startSurowo)
                           .Przygotuj(przygotuj)
                           .Limit(500),
                       PrzypadekBench(QStringLiteral("main window load, shown"), pulpit)
                           .Podloga(pulpitSurowo)
                           .Przygotuj(przygotuj)
                           .Limit(100),
                       PrzypadekBench(QStringLiteral("main window StanKont"), stanKont)
                           .Podloga(stanKontSurowo)
                           .Przygotuj(przygotuj)
                           .Limit(20)
                           .LimitDuzy(200)});

}  // namespace
