// What the user types is stored and found exactly, whatever it looks like to the translator;
// and no statement, however malformed, keeps the translator busy.

#include <gtest/gtest.h>

#include <ctime>

#include "common/magazyn_testowy.h"
#include "store/baza.h"
#include "store/jet.h"

namespace {

std::string S(const QString& s) { return s.toStdString(); }

// Processor time of this thread, so that other work on the machine does not count.
double sekundy() {
  timespec ts{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
  return double(ts.tv_sec) + double(ts.tv_nsec) / 1e9;
}

QVariant jedno(const QString& jet) {
  const Rekordy rs = pubBaza().Czytaj(jet);
  EXPECT_TRUE(rs.Ok()) << rs.Blad().toStdString() << " | " << TlumaczJet(jet).toStdString();
  return rs.Pole(0);
}

// Jet's other way of writing a text: in double quotes, a quote doubled.
QString wCudzyslowach(QString t) {
  return QLatin1Char('"') + t.replace(QLatin1Char('"'), QStringLiteral("\"\"")) + QLatin1Char('"');
}

}  // namespace

TEST(JetTeksty, TypedTextIsStoredAndFoundExactly) {
  MagazynTestowy m;
  const QStringList opisy = {
      QStringLiteral("YEAR(data)=2024 x"),
      QStringLiteral("(MONTH(data)=3 AND YEAR(data)=2024)"),
      QStringLiteral("MONTH(data)=3 AND YEAR(data)=2024) OR (YEAR(data)<2024 x"),
      QStringLiteral("((MONTH(data)<3 AND YEAR(data)=2024) OR (YEAR(data)<2024))"),
      QStringLiteral("(DATEPART('ww',data,2)=3 AND YEAR(data)=2024)"),
      QStringLiteral("(DATEPART ('q',transakcje.data)=1 AND YEAR(transakcje.data)=2024) y"),
      QStringLiteral("YEAR(data)<2024 OR 1"),
      QStringLiteral("#01/02/2024#"),
      QStringLiteral("SELECT TOP 5 * FROM konta ORDER BY nazwa"),
      QStringLiteral("* ? % _ [a] [*] \\"),
      QStringLiteral("LEFT(opis,2) SUM(kwota) Now() Date() DISTINCTROW"),
      QStringLiteral("12,50"),
      QStringLiteral(" 7 "),
      QStringLiteral("limit LIMIT 5 & True False"),
      QStringLiteral("O'Neil '' ' \"cytat\" \"\""),
      QStringLiteral("Żółw ĄĘ ŁÓDŹ"),
  };
  int id = 0;
  for (const QString& opis : opisy) {
    SCOPED_TRACE(opis.toStdString());
    ++id;
    // Written by INSERT, read back, found by equality and by LIKE, also written the Jet way.
    ASSERT_TRUE(pubBaza().Wykonaj(
        QStringLiteral("INSERT INTO transakcje (data,rodzaj,przychod,wydatek,opis,kategoria,konto,"
                       "kontrahent) VALUES (#11/22/2026#,'2','0','1,5',%1,'a','1','0')")
            .arg(SqlTekst(opis))));
    EXPECT_EQ(
        S(jedno(QStringLiteral("SELECT opis FROM transakcje WHERE id=%1").arg(id)).toString()),
        S(opis));
    EXPECT_EQ(jedno(QStringLiteral("SELECT COUNT(*) AS ile FROM transakcje WHERE opis=%1 AND "
                                   "YEAR(data)=2026")
                        .arg(SqlTekst(opis)))
                  .toInt(),
              1);
    EXPECT_EQ(
        jedno(QStringLiteral("SELECT id FROM transakcje WHERE opis=%1").arg(wCudzyslowach(opis)))
            .toInt(),
        id);
    EXPECT_TRUE(TlumaczJet(QStringLiteral("SELECT id FROM transakcje WHERE (MONTH(data)=3 AND "
                                          "YEAR(data)=2024) AND opis=%1")
                               .arg(SqlTekst(opis)))
                    .contains(SqlTekst(opis)));
    // Changed by UPDATE, and a counterparty's name: both come back as typed.
    const QString zmieniony = opis + QStringLiteral(" 2");
    ASSERT_TRUE(pubBaza().Wykonaj(QStringLiteral("UPDATE transakcje SET opis=%1 WHERE id=%2")
                                      .arg(SqlTekst(zmieniony))
                                      .arg(id)));
    EXPECT_EQ(
        S(jedno(QStringLiteral("SELECT opis FROM transakcje WHERE id=%1").arg(id)).toString()),
        S(zmieniony));
    ASSERT_TRUE(pubBaza().Wykonaj(
        QStringLiteral("INSERT INTO kontrahent (skrocona,opis,nazwa) "
                       "VALUES (%1,%2,%3)")
            .arg(SqlTekst(opis.left(16)), SqlTekst(opis), wCudzyslowach(opis.left(30)))));
    const Rekordy k = pubBaza().Czytaj(
        QStringLiteral("SELECT skrocona, opis, nazwa FROM kontrahent WHERE skrocona=%1")
            .arg(SqlTekst(opis.left(16))));
    ASSERT_FALSE(k.Eof());
    EXPECT_EQ(S(k.Tekst(QStringLiteral("skrocona"))), S(opis.left(16)));
    EXPECT_EQ(S(k.Tekst(QStringLiteral("opis"))), S(opis));
    EXPECT_EQ(S(k.Tekst(QStringLiteral("nazwa"))), S(opis.left(30)));
  }
}

// Unbalanced brackets, parentheses, quotes and hashes, long runs of the words the translator
// rewrites, and deep nesting: each a megabyte, each done (or refused by the store) in well under
// a second.
TEST(JetTeksty, MalformedStatementsTakeLinearTime) {
  MagazynTestowy m;
  const int megabajt = 1 << 20;
  auto powtorz = [&](const QString& poczatek, const QString& kawalek, const QString& koniec = {}) {
    QString s = poczatek;
    s.reserve(megabajt + koniec.size() + kawalek.size());
    while (s.size() < megabajt) s += kawalek;
    return s + koniec;
  };
  // n levels of otwarcie ... zamkniecie around srodek, about a megabyte in all.
  auto zagniezdz = [&](const QString& poczatek, const QString& otwarcie, const QString& srodek,
                       const QString& zamkniecie) {
    const qsizetype n = megabajt / (otwarcie.size() + zamkniecie.size());
    return poczatek + otwarcie.repeated(n) + srodek + zamkniecie.repeated(n);
  };
  const QString zapytanie = QStringLiteral("SELECT opis FROM transakcje WHERE opis=");
  const struct {
    const char* opis;
    QString sql;
  } przypadki[] = {
      {"[", powtorz(zapytanie, QStringLiteral("["))},
      {"[x", powtorz(zapytanie, QStringLiteral("[x "))},
      {"(", powtorz(zapytanie, QStringLiteral("("))},
      {"'", zapytanie + powtorz(QStringLiteral("'"), QStringLiteral("x"))},
      {"#", powtorz(zapytanie, QStringLiteral("#"))},
      {"# x", powtorz(zapytanie, QStringLiteral("x #"))},
      {"\"", powtorz(zapytanie, QStringLiteral("\"x"))},
      {"LIKE [", powtorz(QStringLiteral("SELECT opis FROM transakcje WHERE opis LIKE '"),
                         QStringLiteral("[*"), QStringLiteral("'"))},
      {"SELECT TOP",
       powtorz({}, QStringLiteral("SELECT TOP 1 "), QStringLiteral("opis FROM konta"))},
      {"nested TOP", zagniezdz(QStringLiteral("SELECT opis FROM transakcje WHERE id IN "),
                               QStringLiteral("(SELECT TOP 1 id FROM transakcje WHERE id IN "),
                               QStringLiteral("(1)"), QStringLiteral(" ORDER BY data)"))},
      {"nested (", zagniezdz(QStringLiteral("SELECT opis FROM transakcje WHERE "),
                             QStringLiteral("(YEAR(data)=2024 AND "), QStringLiteral("1=1"),
                             QStringLiteral(")"))},
      {"tables", powtorz(QStringLiteral("SELECT * FROM konta"), QStringLiteral(", konta AS k"),
                         QStringLiteral(" WHERE nazwa='x'"))},
      {"comparisons", powtorz(QStringLiteral("SELECT * FROM konta, kontrahent WHERE 1=1"),
                              QStringLiteral(" AND nazwa='x' AND limit='1,5' AND skrocona='y'"))},
      {"aliases", powtorz(QStringLiteral("SELECT TOP 1 k.nazwa AS n FROM konta AS k"),
                          QStringLiteral(", konta AS a"), QStringLiteral(" ORDER BY n"))},
      {"years", powtorz(QStringLiteral("SELECT opis FROM transakcje WHERE 1=1"),
                        QStringLiteral(" AND YEAR(data)=2024"))},
      {"weeks", powtorz(QStringLiteral("SELECT opis FROM transakcje WHERE 1=1"),
                        QStringLiteral(" AND (DATEPART('ww',data,2)=3 AND YEAR(data)=2024)"))},
      {"long word", powtorz(QStringLiteral("SELECT opis FROM transakcje WHERE YEAR("),
                            QStringLiteral("aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa"),
                            QStringLiteral(".data)=2024"))},
  };
  for (const auto& p : przypadki) {
    SCOPED_TRACE(p.opis);
    double t = sekundy();
    const QString sql = TlumaczJet(p.sql);
    const double tlumaczenie = sekundy() - t;
    EXPECT_LT(tlumaczenie, 1.0);
    EXPECT_FALSE(sql.isEmpty());
    t = sekundy();
    pubBaza().Czytaj(p.sql);  // may well fail: it must not hang or crash
    const double baza = sekundy() - t;
    EXPECT_LT(baza, 5.0);
    std::printf("[ malformed] %-12s translated in %.3f s, run by the store in %.3f s\n", p.opis,
                tlumaczenie, baza);
  }
}
