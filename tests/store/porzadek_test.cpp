// Names and descriptions compare blind to case and sort in the Polish order in every statement
// the program runs, in both editions; keys, dates and numbers keep their exact order; the
// indexes stay in use; and the store stays readable by the plain sqlcipher shell.

#include "store/porzadek.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>

#include "common/magazyn_testowy.h"
#include "store/baza.h"
#include "store/strony.h"
#include "store/jet.h"

// Texts in failure messages as text.
inline void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }

namespace {

void wykonaj(const QString& jet) {
  const WynikZapisu w = pubBaza().Wykonaj(jet);
  ASSERT_TRUE(w.ok) << w.blad.toStdString() << " | " << TlumaczJet(jet).toStdString();
}

QStringList kolumna(const QString& jet, const QString& pole) {
  Rekordy rs = pubBaza().Czytaj(jet);
  EXPECT_TRUE(rs.Ok()) << rs.Blad().toStdString() << " | " << TlumaczJet(jet).toStdString();
  QStringList w;
  for (; !rs.Eof(); rs.MoveNext()) w << rs.Tekst(pole);
  return w;
}

QString plan(const QString& jet) {
  return kolumna(QStringLiteral("EXPLAIN QUERY PLAN ") + jet, QStringLiteral("detail"))
      .join(QStringLiteral(" | "));
}

QStringList U(std::initializer_list<const char*> l) {
  QStringList w;
  for (const char* s : l) w << QString::fromUtf8(s);
  return w;
}

}  // namespace

TEST(Porzadek, NamesSortInPolishOrderAndCompareBlindToCase) {
  for (const int jezyk : {1, 2}) {
    SCOPED_TRACE(jezyk == 1 ? "Polish edition" : "English edition");
    MagazynTestowy m(jezyk);
    // The counterparty browser's list, typed in any order and case.
    const QStringList kontrahenci =
        U({"Zoo", "Łukasz", "apteka", "Ćma", "Cyryl", "Biedronka", "Dom", "Lody"});
    for (const QString& k : kontrahenci)
      wykonaj(
          QStringLiteral("INSERT INTO kontrahent (skrocona,opis) VALUES (%1,'')").arg(SqlTekst(k)));
    EXPECT_EQ(kolumna(QStringLiteral("SELECT id,skrocona,opis FROM kontrahent ORDER BY skrocona"),
                      QStringLiteral("skrocona")),
              U({"apteka", "Biedronka", "Cyryl", "Ćma", "Dom", "Lody", "Łukasz", "Zoo"}));

    // Every letter of the Polish alphabet, each word's case drawn at random, inserted shuffled.
    const QStringList alfabet =
        U({"a", "ą", "b", "c", "ć", "d", "e", "ę", "f", "g", "h", "i", "j", "k", "l", "ł", "m", "n",
           "ń", "o", "ó", "p", "q", "r", "s", "ś", "t", "u", "v", "w", "x", "y", "z", "ź", "ż"});
    QStringList oczekiwane;
    QRandomGenerator los(7);
    for (const QString& l : alfabet)
      oczekiwane << (los.bounded(2) ? l.toUpper() : l) + QStringLiteral("ebra");
    QStringList slowa = oczekiwane;
    for (qsizetype i = slowa.size() - 1; i > 0; --i)
      slowa.swapItemsAt(i, qsizetype(los.bounded(quint32(i + 1))));
    for (const QString& s : slowa)
      wykonaj(QStringLiteral("INSERT INTO szablony (rodzaj,nazwa,konto,kategoria,kontrahent,opis) "
                             "VALUES ('2',%1,'1','a','0','')")
                  .arg(SqlTekst(s)));
    EXPECT_EQ(kolumna(QStringLiteral("SELECT szablony.nazwa FROM szablony ORDER BY szablony.nazwa"),
                      QStringLiteral("nazwa")),
              oczekiwane);
    // Lists sorted in memory follow the same order.
    std::sort(slowa.begin(), slowa.end(),
              [](const QString& a, const QString& b) { return PorownajPolsko(a, b) < 0; });
    EXPECT_EQ(slowa, oczekiwane);
    // Inside a word too, and the longer word after its own beginning; descending reverses it.
    wykonaj(QStringLiteral("DELETE FROM szablony"));
    for (const char* s : {"Kot", "kąt", "KOTA", "Kąpiel", "Żaba", "źrebię", "zebra", "Zając"})
      wykonaj(QStringLiteral("INSERT INTO szablony (rodzaj,nazwa,konto,kategoria,kontrahent,opis) "
                             "VALUES ('2',%1,'1','a','0','')")
                  .arg(SqlTekst(QString::fromUtf8(s))));
    EXPECT_EQ(kolumna(QStringLiteral("SELECT nazwa FROM szablony ORDER BY nazwa DESC"),
                      QStringLiteral("nazwa")),
              U({"Żaba", "źrebię", "zebra", "Zając", "KOTA", "Kot", "kąt", "Kąpiel"}));

    // The editors' duplicate checks: another case is the same name; other letters are not.
    wykonaj(QStringLiteral("INSERT INTO konta (nazwa,opis,rodzaj) VALUES ('Portfel','','1')"));
    wykonaj(
        QStringLiteral("INSERT INTO kategorie (identyfikator,kategoria,nazwa,opis,rodzaj) "
                       "VALUES ('a','-','Żywność','','2')"));
    const auto ile = [](const char* tabela, const char* kolumna, const char* nazwa) {
      return PoliczIle(QStringLiteral("SELECT COUNT(*) AS ile FROM %1 WHERE %2=%3")
                           .arg(QLatin1String(tabela), QLatin1String(kolumna),
                                SqlTekst(QString::fromUtf8(nazwa))));
    };
    EXPECT_EQ(ile("konta", "nazwa", "portfel"), 1);
    EXPECT_EQ(ile("konta", "nazwa", "PORTFEL"), 1);
    EXPECT_EQ(ile("kategorie", "nazwa", "ŻYWNOŚĆ"), 1);
    EXPECT_EQ(ile("kategorie", "nazwa", "żywność"), 1);
    EXPECT_EQ(ile("kontrahent", "skrocona", "ZOO"), 1);
    EXPECT_EQ(ile("kontrahent", "skrocona", "łukasz"), 1);
    EXPECT_EQ(ile("kontrahent", "skrocona", "ćMA"), 1);
    EXPECT_EQ(ile("kategorie", "nazwa", "Zywnosc"), 0);  // letters without their marks differ
    EXPECT_EQ(ile("kontrahent", "skrocona", "Lukasz"), 0);
    EXPECT_EQ(ile("kontrahent", "skrocona", "Zoo "), 0);
    EXPECT_EQ(ile("konta", "nazwa", "Portfe"), 0);
    // Case-blind beyond Polish, and the other comparisons by the same order.
    wykonaj(QStringLiteral("INSERT INTO kontrahent (skrocona,opis) VALUES ('Müller','Ölmühle')"));
    EXPECT_EQ(ile("kontrahent", "skrocona", "MÜLLER"), 1);
    EXPECT_EQ(ile("kontrahent", "opis", "ÖLMÜHLE"), 1);
    EXPECT_EQ(
        PoliczIle(QStringLiteral("SELECT COUNT(*) AS ile FROM kontrahent WHERE skrocona<'ĆMA'")),
        3);  // apteka, Biedronka, Cyryl
    EXPECT_EQ(PoliczIle(QStringLiteral(
                  "SELECT COUNT(*) AS ile FROM kontrahent WHERE skrocona IN ('zoo','DOM','x')")),
              2);
    EXPECT_EQ(
        PoliczIle(QStringLiteral("SELECT COUNT(*) AS ile FROM kontrahent WHERE 'LODY'=skrocona "
                                 "OR NOT skrocona<>'cyryl'")),
        2);
    EXPECT_EQ(
        kolumna(QStringLiteral("SELECT MAX(skrocona) AS m FROM kontrahent"), QStringLiteral("m")),
        U({"Zoo"}));
  }
}

TEST(Porzadek, KeysDatesAndNumbersKeepTheirExactOrder) {
  MagazynTestowy m;
  // Category keys are compared exactly: "{" is what follows "z" when a parent has had 26
  // children, and it must stay after "z".
  for (const char* id : {"b", "{", "a", "z"})
    wykonaj(QStringLiteral("INSERT INTO kategorie (identyfikator,kategoria,nazwa,opis,rodzaj) "
                           "VALUES ('%1','-','K%1','','2')")
                .arg(QLatin1String(id)));
  EXPECT_EQ(kolumna(QStringLiteral("SELECT identyfikator FROM kategorie WHERE rodzaj=2 ORDER BY "
                                   "identyfikator"),
                    QStringLiteral("identyfikator")),
            U({"a", "b", "z", "{"}));
  EXPECT_EQ(kolumna(QStringLiteral("SELECT TOP 1 identyfikator FROM kategorie WHERE kategoria='-' "
                                   "AND rodzaj=2 ORDER BY identyfikator DESC"),
                    QStringLiteral("identyfikator")),
            U({"{"}));
  EXPECT_EQ(PoliczIle(QStringLiteral(
                "SELECT COUNT(*) AS ile FROM kategorie WHERE identyfikator='A' AND rodzaj=2")),
            0);
  // The language table's keys too.
  EXPECT_EQ(
      PoliczIle(QStringLiteral("SELECT COUNT(*) AS ile FROM jezyki WHERE kontrolka='MODULE140'")),
      0);
  EXPECT_EQ(
      PoliczIle(QStringLiteral("SELECT COUNT(*) AS ile FROM jezyki WHERE kontrolka='Module140'")),
      1);
  // Dates in date order, amounts by value, not as text.
  for (const char* w : {"('2026-02-01','9')", "('2026-01-15','10')", "('2025-12-31','100,5')"})
    wykonaj(QStringLiteral("INSERT INTO wewnetrzne (data,kwota) VALUES %1").arg(QLatin1String(w)));
  EXPECT_EQ(
      kolumna(QStringLiteral("SELECT data FROM wewnetrzne ORDER BY data"), QStringLiteral("data")),
      U({"2025-12-31", "2026-01-15", "2026-02-01"}));
  EXPECT_EQ(kolumna(QStringLiteral("SELECT kwota FROM wewnetrzne ORDER BY kwota DESC"),
                    QStringLiteral("kwota")),
            U({"100.5", "10", "9"}));
}

TEST(Porzadek, IndexesStayInUse) {
  MagazynTestowy m;
  // The editors' duplicate checks on the two indexed names, and the period and key reads.
  EXPECT_NE(plan(QStringLiteral("SELECT COUNT(*) AS ile FROM kategorie WHERE nazwa='Żywność'"))
                .indexOf(QLatin1String("INDEX kategorie_nazwa")),
            -1);
  EXPECT_NE(plan(QStringLiteral("SELECT COUNT(*) AS ile FROM kontrahent WHERE skrocona='zoo'"))
                .indexOf(QLatin1String("INDEX kontrahent_skrocona")),
            -1);
  EXPECT_NE(
      plan(QStringLiteral("SELECT SUM(przychod) AS p FROM transakcje WHERE data>=#01/01/2026# "
                          "AND data<#02/01/2026#"))
          .indexOf(QLatin1String("INDEX transakcje_data")),
      -1);
  EXPECT_NE(plan(QStringLiteral("SELECT COUNT(id) AS ile FROM transakcje WHERE rodzaj=2 AND "
                                "kategoria='ab'"))
                .indexOf(QLatin1String("INDEX transakcje_kategoria")),
            -1);
  EXPECT_NE(
      plan(QStringLiteral("SELECT nazwa FROM kategorie WHERE rodzaj=2 AND identyfikator='ab'"))
          .indexOf(QLatin1String("INDEX kategorie_klucz")),
      -1);
  EXPECT_NE(plan(QStringLiteral("SELECT polski FROM jezyki WHERE kontrolka='Module140'"))
                .indexOf(QLatin1String("INDEX")),
            -1);
  // The dashboard's latest entries are read backwards along the date index.
  const QString ostatnie = plan(QStringLiteral(
      "SELECT TOP 10 transakcje.id AS id, transakcje.data AS data, transakcje.opis AS opis FROM "
      "transakcje ORDER BY transakcje.data DESC,transakcje.id DESC"));
  EXPECT_NE(ostatnie.indexOf(QLatin1String("INDEX transakcje_data")), -1) << ostatnie.toStdString();
  EXPECT_EQ(ostatnie.indexOf(QLatin1String("TEMP B-TREE FOR ORDER BY")), -1)
      << ostatnie.toStdString();
}

// What the program writes can be read, checked and changed with the plain sqlcipher shell,
// which knows nothing of the program's own order.
TEST(Porzadek, StoreStaysReadableByThePlainShell) {
  const QString shell = QStandardPaths::findExecutable(QStringLiteral("sqlcipher"));
  if (shell.isEmpty()) GTEST_SKIP() << "the sqlcipher shell is not installed";
  MagazynTestowy m;
  wykonaj(QStringLiteral("INSERT INTO kontrahent (skrocona,opis) VALUES ('Żabka','sklep')"));
  wykonaj(
      QStringLiteral("INSERT INTO kategorie (identyfikator,kategoria,nazwa,opis,rodzaj) VALUES "
                     "('a','-','Łódź','','2')"));
  ZamknijBaze();
  QProcess p;
  p.start(shell, {m.Plik()});
  ASSERT_TRUE(p.waitForStarted());
  p.write(
      QStringLiteral("PRAGMA key='%1';\n"
                     "PRAGMA cipher_page_size=%2;\n"
                     "SELECT count(*) FROM kontrahent;\n"
                     "SELECT skrocona FROM kontrahent WHERE skrocona='Żabka' ORDER BY skrocona;\n"
                     "SELECT nazwa FROM kategorie ORDER BY nazwa;\n"
                     "INSERT INTO kontrahent (skrocona) VALUES ('Zoo');\n"
                     "UPDATE kategorie SET nazwa='Kraków';\n"
                     "PRAGMA integrity_check;\n")
          .arg(QLatin1String(KluczBazy))
          .arg(RozmiarStronyBazy)
          .toUtf8());
  p.closeWriteChannel();
  ASSERT_TRUE(p.waitForFinished(20000));
  const QString wynik = QString::fromUtf8(p.readAllStandardOutput()).trimmed();
  EXPECT_EQ(QString::fromUtf8(p.readAllStandardError()), QString());
  EXPECT_EQ(wynik, QString::fromUtf8("1\nŻabka\nŁódź\nok"));
  ASSERT_TRUE(OtworzBaze());
  EXPECT_EQ(
      PoliczIle(QStringLiteral("SELECT COUNT(*) AS ile FROM kontrahent WHERE skrocona='ZOO'")), 1);
  EXPECT_EQ(PoliczIle(QStringLiteral("SELECT COUNT(*) AS ile FROM kategorie WHERE nazwa='KRAKÓW'")),
            1);
}
