#pragma once
// A small household written straight into a test store, and the report's lines as text.

#include <gtest/gtest.h>

#include <QStringList>

#include "reports/raporty.h"
#include "store/baza.h"
#include "store/dzis.h"
#include "store/filtr.h"
#include "store/session.h"

namespace testy_raportow {

inline void Sql(const QString& sql) {
  const WynikZapisu w = pubBaza().Wykonaj(sql);
  ASSERT_TRUE(w.ok) << w.blad.toStdString() << "\n" << sql.toStdString();
}

inline QString S(int n) { return QString(n, QLatin1Char(' ')); }
inline QString D(int n) { return QString(n, QLatin1Char('-')); }

// Accounts 1 Gotówka (cash, opened with 100.00), 2 Konto osobiste (bank, 12 345 678.91),
// 3 Karta kredytowa; expense categories a Dom (aa Czynsz, ab Prąd), b Jedzenie, income a Pensja;
// counterparties 1 O'Brien, 2 Żabka. Entries in January to March 2026, two transfers.
inline void Gospodarstwo() {
  Sql(QStringLiteral(
      "INSERT INTO konta (datautworzenia,nazwa,opis,rodzaj,bowinien,boma) VALUES "
      "('2026-01-01','Gotówka','',1,'100.00','0'),"
      "('2026-01-01','Konto osobiste','',2,'12345678.91','0'),"
      "('2026-01-01','Karta kredytowa','',3,'0','0')"));
  Sql(QStringLiteral(
      "INSERT INTO kategorie (identyfikator,kategoria,nazwa,opis,rodzaj) VALUES "
      "('a','-','Dom','',2),('aa','a','Czynsz','',2),('ab','a','Prąd','',2),"
      "('b','-','Jedzenie','',2),('a','-','Pensja','',1)"));
  Sql(QStringLiteral("INSERT INTO kontrahent (skrocona,opis,nazwa) VALUES ('O''Brien','',''),"
                     "('Żabka','','')"));
  Sql(QStringLiteral(
      "INSERT INTO transakcje (data,rodzaj,przychod,wydatek,opis,kategoria,konto,kontrahent) "
      "VALUES ('2026-02-10',2,0,20,'Zakupy luty','b',1,2),"
      "('2026-03-05',1,50,0,'Premia','a',1,0),"
      "('2026-03-06',2,0,1234.56,'Czynsz za marzec 2026 r.','aa',2,1),"
      "('2026-03-07',2,0,0.05,'Guma','b',1,2),"
      "('2026-03-09',2,0,99.95,'Prąd','ab',2,1),"
      "('2026-02-20',2,0,300,'Czynsz luty','aa',2,1)"));
  Sql(QStringLiteral("INSERT INTO wewnetrzne (data,kwota,opis,zkonta,nakonto) VALUES "
                     "('2026-03-08',300,'',2,1),('2026-01-15',10,'',1,3)"));
}

// The working date and a period of the time filter, as a browser hands them to a report.
inline void UstawOkres(const QDate& dzien, int rodzaj) {
  UstawDzis(dzien);
  sesja.pubFiltrCzasowy.pozycja = sesja.pubFiltrCzasowy.od = sesja.pubFiltrCzasowy.do_ = dzien;
  sesja.pubFiltrCzasowy.rodzaj = rodzaj;
  sesja.pubOkres = FiltrCzasowy(sesja.pubFiltrCzasowy);
}

// The lines of a report with their trailing blanks cut.
inline QStringList Linie(const DokumentRaportu& d) {
  QStringList w = d.Tekst().split(QLatin1Char('\n'));
  for (QString& l : w) {
    while (l.endsWith(QLatin1Char(' '))) l.chop(1);
  }
  return w;
}

inline QStringList Napisz(const char* ekran, Raport* r = nullptr) {
  Raport wlasny;
  Raport& cel = r ? *r : wlasny;
  TworzRaport(*ZnajdzFormularz(QLatin1String(ekran)), cel);
  return Linie(cel.dok);
}

// Compares line by line, so that a failure names the line.
inline void TakieSame(const QStringList& jest, const QStringList& ma) {
  for (qsizetype i = 0; i < std::max(jest.size(), ma.size()); ++i)
    EXPECT_EQ(jest.value(i).toStdString(), ma.value(i).toStdString()) << "line " << i;
}

}  // namespace testy_raportow
