// The category trees: identifiers, moving entries into a first subcategory, deletion, the path
// text, the breakdown over children and the monthly limit.

#include "masterdata/kategorie.h"

#include <gtest/gtest.h>

#include "common/magazyn_testowy.h"
#include "kategorie_pomoc.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"

namespace {

void Wpis(const QString& tabela, const QString& kategoria, int rodzaj, double kwota,
          const QString& data = QStringLiteral("2026-11-05")) {
  ASSERT_TRUE(pubBaza().Wykonaj(
      QStringLiteral("INSERT INTO %1 (data,rodzaj,przychod,wydatek,opis,kategoria,konto) VALUES "
                     "('%2',%3,%4,%5,'',%6,1)")
          .arg(tabela, data, QString::number(rodzaj), QString::number(rodzaj == 1 ? kwota : 0),
               QString::number(rodzaj == 2 ? kwota : 0), SqlTekst(kategoria))));
}

void Szablon(const QString& nazwa, const QString& kategoria, int rodzaj) {
  ASSERT_TRUE(pubBaza().Wykonaj(
      QStringLiteral("INSERT INTO szablony (rodzaj,nazwa,konto,kategoria) VALUES (%1,%2,1,%3)")
          .arg(QString::number(rodzaj), SqlTekst(nazwa), SqlTekst(kategoria))));
}

// A new category through the editor's save, as the browser opens it.
std::optional<QString> Nowa(const QString& nadkategoria, int rodzaj, const QString& nazwa) {
  KategoriaRekord k;
  k.nadkategoria = nadkategoria;
  k.rodzaj = rodzaj;
  return ZapiszKategorie(k, nazwa, QString());
}

QString Ident(const std::optional<QString>& w) { return w.value_or(QStringLiteral("<none>")); }

}  // namespace

// Letters in order of creation; a deleted highest letter is given again, a deleted middle one
// stays a gap until the letters run past "z", which takes the lowest free letter; 26 is the end.
TEST(Kategorie, IdentifierRuleWithGapsPastZAndTheLimitOf26) {
  MagazynTestowy m;
  EXPECT_EQ(Ident(Nowa(KluczKorzenia, 2, QStringLiteral("Dom"))), QStringLiteral("a"));
  EXPECT_EQ(Ident(Nowa(KluczKorzenia, 2, QStringLiteral("Auto"))), QStringLiteral("b"));
  EXPECT_EQ(Ident(Nowa(QStringLiteral("b"), 2, QStringLiteral("Paliwo"))), QStringLiteral("ba"));
  // The other tree numbers on its own.
  EXPECT_EQ(Ident(Nowa(KluczKorzenia, 1, QStringLiteral("Pensja"))), QStringLiteral("a"));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kategorie WHERE identyfikator='ba' AND "
                                  "kategoria='b' AND rodzaj=2")),
            1);

  EXPECT_EQ(Ident(Nowa(KluczKorzenia, 2, QStringLiteral("C"))), QStringLiteral("c"));
  m.host.odpowiedzi = {WynikTak};
  ASSERT_TRUE(SkasujKategorie(QStringLiteral("c"), QStringLiteral("C"), 2));
  EXPECT_EQ(NastepnyIdentyfikator(QStringLiteral("-"), 2), QStringLiteral("c"));
  m.host.odpowiedzi = {WynikTak};
  ASSERT_TRUE(SkasujKategorie(QStringLiteral("b"), QStringLiteral("Auto"), 2));
  EXPECT_EQ(m.Licz(QStringLiteral(
                "SELECT COUNT(*) FROM kategorie WHERE rodzaj=2 AND substr(identyfikator,1,1)='b'")),
            0);
  EXPECT_EQ(NastepnyIdentyfikator(QStringLiteral("-"), 2),
            QStringLiteral("b"));  // "a" is the last now

  // Under "a": children up to "z" with "c" missing; past "z" the gap "c" is taken.
  for (char16_t l = u'a'; l <= u'z'; ++l)
    if (l != u'c') Kategoria(QStringLiteral("a") + QChar(l), 2, QStringLiteral("K") + QChar(l));
  EXPECT_EQ(IleDzieci(QStringLiteral("a"), 2), 25);
  m.host.pokazane.clear();
  const NowaPodkategoria p = PrzygotujNowaPodkategorie(QStringLiteral("a"), 2);
  EXPECT_TRUE(p.otworzEdytor);
  EXPECT_TRUE(m.host.pokazane.empty());
  EXPECT_EQ(Ident(Nowa(QStringLiteral("a"), 2, QStringLiteral("Luka"))), QStringLiteral("ac"));

  // All 26 letters used: both ways of adding refuse, and nothing is written.
  EXPECT_FALSE(PrzygotujNowaPodkategorie(QStringLiteral("a"), 2).otworzEdytor);
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_EQ(m.host.pokazane.back().tekst, Napis(QStringLiteral("frmPrzegladKategorii80")));
  EXPECT_FALSE(PrzygotujNowaKategorie(QStringLiteral("ab"), QStringLiteral("a"), 2).has_value());
  EXPECT_EQ(m.host.pokazane.back().tytul,
            QLatin1Char(' ') + Napis(QStringLiteral("frmPrzegladKategorii75")));
  EXPECT_EQ(NastepnyIdentyfikator(QStringLiteral("a"), 2), QString());
  EXPECT_FALSE(Nowa(QStringLiteral("a"), 2, QStringLiteral("Za duzo")).has_value());
  EXPECT_EQ(
      m.Licz(QStringLiteral("SELECT COUNT(*) FROM kategorie WHERE kategoria='a' AND rodzaj=2")),
      26);

  // The fourth level gets no children, while its parent may still get siblings for it.
  Kategoria(QStringLiteral("aba"), 2, QStringLiteral("L3"));
  Kategoria(QStringLiteral("abaa"), 2, QStringLiteral("L4"));
  m.host.pokazane.clear();
  EXPECT_FALSE(PrzygotujNowaPodkategorie(QStringLiteral("abaa"), 2).otworzEdytor);
  EXPECT_EQ(m.host.pokazane.at(0).tekst, Napis(QStringLiteral("frmPrzegladKategorii78")));
  EXPECT_EQ(Ident(PrzygotujNowaKategorie(QStringLiteral("abaa"), QStringLiteral("aba"), 2)),
            QStringLiteral("aba"));
  EXPECT_EQ(Ident(Nowa(QStringLiteral("aba"), 2, QStringLiteral("L4b"))), QStringLiteral("abab"));
}

// The editor: an empty name keeps it open; a name used anywhere (other tree included) asks;
// Nie writes nothing; a rename has no such question and touches both trees; text is exact.
TEST(Kategorie, EditorNamesQuestionsAndRenameOverBothTrees) {
  MagazynTestowy m;
  Kategoria(QStringLiteral("a"), 1, QStringLiteral("Prezenty"));
  Kategoria(QStringLiteral("a"), 2, QStringLiteral("Dom"));

  EXPECT_FALSE(Nowa(KluczKorzenia, 2, QStringLiteral("   ")).has_value());
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_EQ(m.host.pokazane[0].tytul,
            QLatin1Char(' ') + Napis(QStringLiteral("frmEdycjaKategorii8")));

  m.host.odpowiedzi = {WynikNie};
  EXPECT_FALSE(Nowa(KluczKorzenia, 2, QStringLiteral(" Prezenty ")).has_value());
  ASSERT_EQ(m.host.pokazane.size(), 2u);
  EXPECT_EQ(m.host.pokazane[1].przyciski, int(MsgTakNie));
  EXPECT_TRUE(m.host.pokazane[1].tekst.contains(QStringLiteral(" Prezenty. ")));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kategorie")), 2);
  m.host.odpowiedzi = {WynikTak};
  EXPECT_EQ(Ident(Nowa(KluczKorzenia, 2, QStringLiteral("Prezenty"))), QStringLiteral("b"));

  const QString nazwa = QStringLiteral("Dom 'Marka'");
  const QString opis = QStringLiteral("czynsz, media; O'Neill \"x\"");
  KategoriaRekord k;
  k.identyfikator = QStringLiteral("a");
  k.rodzaj = 2;
  const std::size_t przed = m.host.pokazane.size();
  EXPECT_EQ(Ident(ZapiszKategorie(k, nazwa, QStringLiteral("  ") + opis + QStringLiteral(" "))),
            QStringLiteral("a"));
  EXPECT_EQ(m.host.pokazane.size(), przed);
  // The income category "a" is renamed too: the rename names no tree.
  for (int rodzaj : {1, 2}) {
    const OpisKategorii o = CzytajKategorie(QStringLiteral("a"), rodzaj);
    EXPECT_EQ(o.nazwa, nazwa);
    EXPECT_EQ(o.opis, opis);
  }
}

// A leaf with entries gets a first subcategory only on Tak: then the automatic one takes the
// executed and planned entries and the templates, and the editor's next child follows it.
TEST(Kategorie, NewSubcategoryMovesEntriesAndTemplatesOnlyWhenTheUserAgrees) {
  MagazynTestowy m;
  Kategoria(QStringLiteral("a"), 2, QStringLiteral("Auto"));
  Kategoria(QStringLiteral("a"), 1, QStringLiteral("Auto przychody"));
  Wpis(QStringLiteral("transakcje"), QStringLiteral("a"), 2, 10);
  Wpis(QStringLiteral("zaplanowane"), QStringLiteral("a"), 2, 20);
  Wpis(QStringLiteral("transakcje"), QStringLiteral("a"), 1, 30);  // the other tree stays
  Szablon(QStringLiteral("Tankowanie"), QStringLiteral("a"), 2);
  Szablon(QStringLiteral("Myjnia"), QStringLiteral("a"), 2);
  Szablon(QStringLiteral("Zwrot"), QStringLiteral("a"), 1);

  m.host.odpowiedzi = {WynikNie};
  EXPECT_FALSE(PrzygotujNowaPodkategorie(QStringLiteral("a"), 2).otworzEdytor);
  EXPECT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kategorie")), 2);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje WHERE kategoria='a'")), 2);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM szablony WHERE kategoria='a'")), 3);

  m.host.pokazane.clear();
  m.host.odpowiedzi = {WynikTak};
  const NowaPodkategoria p = PrzygotujNowaPodkategorie(QStringLiteral("a"), 2);
  EXPECT_TRUE(p.otworzEdytor);
  EXPECT_EQ(p.nadkategoria, QStringLiteral("a"));
  EXPECT_EQ(p.automatyczna, QStringLiteral("aa"));
  ASSERT_EQ(m.host.pokazane.size(), 3u);  // question, entries moved, the templates' list
  EXPECT_EQ(m.host.pokazane[1].tekst, Napis(QStringLiteral("frmPrzegladKategorii87")));
  EXPECT_TRUE(m.host.pokazane[2].tekst.contains(QStringLiteral("Tankowanie\r\n")));
  EXPECT_TRUE(m.host.pokazane[2].tekst.contains(QStringLiteral("Myjnia\r\n")));
  EXPECT_FALSE(m.host.pokazane[2].tekst.contains(QStringLiteral("Zwrot")));
  EXPECT_EQ(CzytajKategorie(QStringLiteral("aa"), 2).nazwa,
            Napis(QStringLiteral("frmPrzegladKategorii89")));
  EXPECT_EQ(
      m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje WHERE kategoria='aa' AND rodzaj=2")),
      1);
  EXPECT_EQ(
      m.Licz(QStringLiteral("SELECT COUNT(*) FROM zaplanowane WHERE kategoria='aa' AND rodzaj=2")),
      1);
  EXPECT_EQ(
      m.Licz(QStringLiteral("SELECT COUNT(*) FROM szablony WHERE kategoria='aa' AND rodzaj=2")), 2);
  EXPECT_EQ(
      m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje WHERE kategoria='a' AND rodzaj=1")),
      1);
  EXPECT_EQ(
      m.Licz(QStringLiteral("SELECT COUNT(*) FROM szablony WHERE kategoria='a' AND rodzaj=1")), 1);
  // The editor, opened next (even if cancelled, the move stays).
  EXPECT_EQ(Ident(Nowa(p.nadkategoria, 2, QStringLiteral("Paliwo"))), QStringLiteral("ab"));

  // A leaf without entries: no question; its templates go to key + "a", which the editor makes.
  Kategoria(QStringLiteral("b"), 2, QStringLiteral("Dom"));
  Szablon(QStringLiteral("Czynsz"), QStringLiteral("b"), 2);
  m.host.pokazane.clear();
  const NowaPodkategoria q = PrzygotujNowaPodkategorie(QStringLiteral("b"), 2);
  EXPECT_TRUE(q.otworzEdytor);
  EXPECT_TRUE(q.automatyczna.isEmpty());
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_EQ(m.host.pokazane[0].tytul,
            QLatin1Char(' ') + Napis(QStringLiteral("frmPrzegladKategorii93")));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM szablony WHERE kategoria='ba'")), 1);
  EXPECT_EQ(Ident(Nowa(q.nadkategoria, 2, QStringLiteral("Czynsz"))), QStringLiteral("ba"));
}

// Deletion takes the whole subtree and its templates; any entry below refuses it, executed or
// planned; Nie changes nothing.
TEST(Kategorie, DeletionRefusedByEntriesTakesTemplatesAlong) {
  MagazynTestowy m;
  for (const char* id : {"a", "ab", "aba", "b", "ba"})
    Kategoria(QLatin1String(id), 2, QLatin1String(id));
  Kategoria(QStringLiteral("a"), 1, QStringLiteral("inny"));
  Szablon(QStringLiteral("S1"), QStringLiteral("aba"), 2);
  Szablon(QStringLiteral("S2"), QStringLiteral("aba"), 1);
  Wpis(QStringLiteral("zaplanowane"), QStringLiteral("ba"), 2, 5);

  EXPECT_FALSE(SkasujKategorie(QStringLiteral("b"), QStringLiteral("Bee"), 2));
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_EQ(m.host.pokazane[0].przyciski, int(MsgOK));
  EXPECT_TRUE(m.host.pokazane[0].tekst.contains(QStringLiteral(" Bee ")));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kategorie WHERE rodzaj=2")), 5);

  m.host.odpowiedzi = {WynikNie};
  EXPECT_FALSE(SkasujKategorie(QStringLiteral("a"), QStringLiteral("a"), 2));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kategorie WHERE rodzaj=2")), 5);

  m.host.odpowiedzi = {WynikTak};
  EXPECT_TRUE(SkasujKategorie(QStringLiteral("a"), QStringLiteral("a"), 2));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kategorie WHERE rodzaj=2")), 2);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kategorie WHERE rodzaj=1")), 1);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM szablony")), 1);  // the income one stays

  // Executed entries refuse too, deep down.
  Kategoria(QStringLiteral("baa"), 2, QStringLiteral("baa"));
  ASSERT_TRUE(pubBaza().Wykonaj(QStringLiteral("DELETE FROM zaplanowane")));
  Wpis(QStringLiteral("transakcje"), QStringLiteral("baa"), 2, 5);
  EXPECT_EQ(IleWpisowPoddrzewa(QStringLiteral("b"), 2), 1);
  EXPECT_EQ(IleWpisowPoddrzewa(QStringLiteral("b"), 1), 0);
  EXPECT_FALSE(SkasujKategorie(QStringLiteral("b"), QStringLiteral("b"), 2));
}

// The path text: leaf, then its ancestors in brackets; a main category keeps a trailing blank;
// "-" and a vanished category give their messages and clear the session's choice.
TEST(Kategorie, PathTextAndItsMessages) {
  MagazynTestowy m;
  Kategoria(QStringLiteral("c"), 2, QStringLiteral("Auto"));
  Kategoria(QStringLiteral("cb"), 2, QStringLiteral("Eksploatacja"));
  Kategoria(QStringLiteral("cba"), 2, QStringLiteral("Paliwo"));

  EXPECT_EQ(SciezkaKategorii(QStringLiteral("cba"), 2),
            QStringLiteral("Paliwo (Auto / Eksploatacja)"));
  EXPECT_EQ(SciezkaKategorii(QStringLiteral("cb"), 2), QStringLiteral("Eksploatacja (Auto)"));
  EXPECT_EQ(SciezkaKategorii(QStringLiteral("c"), 2), QStringLiteral("Auto "));

  sesja.pubKategoria.identyfikator = QStringLiteral("x");
  sesja.pubKategoria.nazwa = QStringLiteral("X");
  sesja.pubKategoria.rodzaj = 2;
  EXPECT_EQ(SciezkaKategorii(QStringLiteral("-"), 2), Napis(QStringLiteral("Module143")));
  EXPECT_TRUE(sesja.pubKategoria.identyfikator.isEmpty());
  EXPECT_TRUE(sesja.pubKategoria.nazwa.isEmpty());
  sesja.pubKategoria.identyfikator = QStringLiteral("cb");
  EXPECT_EQ(SciezkaKategorii(QStringLiteral("cb"), 1),
            Napis(QStringLiteral("Module144")));  // not in tree 1
  EXPECT_TRUE(sesja.pubKategoria.identyfikator.isEmpty());
  EXPECT_FALSE(Napis(QStringLiteral("Module143")).isEmpty());
  EXPECT_NE(Napis(QStringLiteral("Module143")), Napis(QStringLiteral("Module144")));
}

// The breakdown: one row per direct child with its whole subtree, down to the fourth level,
// named by the child; shares of the total; the share column empty when the total is 0.
TEST(Kategorie, BreakdownGroupsEachChildsSubtreeDownToTheFourthLevel) {
  MagazynTestowy m;
  Kategoria(QStringLiteral("a"), 2, QStringLiteral("Zycie"));
  Kategoria(QStringLiteral("ab"), 2, QStringLiteral("Mieszkanie"));
  Kategoria(QStringLiteral("aba"), 2, QStringLiteral("Czynsz"));     // leaf on level 3
  Kategoria(QStringLiteral("abb"), 2, QStringLiteral("Aaa media"));  // a name that sorts first
  Kategoria(QStringLiteral("abba"), 2, QStringLiteral("Prad"));      // leaf on level 4
  Kategoria(QStringLiteral("ac"), 2, QStringLiteral("Jedzenie"));    // leaf on level 2
  Kategoria(QStringLiteral("b"), 2, QStringLiteral("Auto"));
  Kategoria(QStringLiteral("ba"), 2, QStringLiteral("Paliwo"));
  Kategoria(QStringLiteral("ab"), 1, QStringLiteral("Obca"));
  Wpis(QStringLiteral("transakcje"), QStringLiteral("aba"), 2, 100.10);
  Wpis(QStringLiteral("transakcje"), QStringLiteral("abba"), 2, 50.05);
  Wpis(QStringLiteral("transakcje"), QStringLiteral("abba"), 2, 49.95);
  Wpis(QStringLiteral("transakcje"), QStringLiteral("ac"), 2, 0.10);
  Wpis(QStringLiteral("transakcje"), QStringLiteral("ac"), 2, 0.20);
  Wpis(QStringLiteral("transakcje"), QStringLiteral("ba"), 2, 99.60);
  Wpis(QStringLiteral("transakcje"), QStringLiteral("ba"), 2, 1000,
       QStringLiteral("2025-11-05"));                               // other year
  Wpis(QStringLiteral("transakcje"), QStringLiteral("ab"), 1, 7);   // the income tree
  Wpis(QStringLiteral("zaplanowane"), QStringLiteral("ac"), 2, 5);  // planned: not a sum

  const QString rok = QStringLiteral(" AND YEAR(data)=2026 ");
  const Rozbicie r = RozbicieKategorii(KluczKorzenia, 2, rok);
  ASSERT_EQ(r.wiersze.size(), 2u);
  EXPECT_EQ(r.wiersze[0].nazwa, QStringLiteral("Zycie"));
  EXPECT_DOUBLE_EQ(r.wiersze[0].kwota, 200.40);
  EXPECT_EQ(r.wiersze[0].udzial, QStringLiteral("66.80"));
  EXPECT_EQ(r.wiersze[1].nazwa, QStringLiteral("Auto"));
  EXPECT_EQ(r.wiersze[1].udzial, QStringLiteral("33.20"));
  EXPECT_DOUBLE_EQ(r.sumaPod, 300.0);
  EXPECT_DOUBLE_EQ(r.suma, 300.0);  // on Root the own sum is the whole tree

  const Rozbicie a = RozbicieKategorii(QStringLiteral("a"), 2, rok);
  ASSERT_EQ(a.wiersze.size(), 2u);
  EXPECT_EQ(a.wiersze[0].identyfikator, QStringLiteral("ab"));
  EXPECT_EQ(a.wiersze[0].nazwa, QStringLiteral("Mieszkanie"));
  EXPECT_DOUBLE_EQ(a.wiersze[0].kwota, 200.10);
  EXPECT_EQ(a.wiersze[1].nazwa, QStringLiteral("Jedzenie"));
  EXPECT_DOUBLE_EQ(a.wiersze[1].kwota, 0.30);  // exact: no 0.30000000000000004
  EXPECT_EQ(a.wiersze[1].udzial, QStringLiteral("0.15"));
  EXPECT_DOUBLE_EQ(a.suma, 0.0);
  EXPECT_DOUBLE_EQ(a.razem, 200.40);

  const Rozbicie ab = RozbicieKategorii(QStringLiteral("ab"), 2, rok);
  ASSERT_EQ(ab.wiersze.size(), 2u);
  EXPECT_EQ(ab.wiersze[0].nazwa, QStringLiteral("Czynsz"));
  EXPECT_EQ(ab.wiersze[1].nazwa, QStringLiteral("Aaa media"));
  EXPECT_DOUBLE_EQ(ab.wiersze[1].kwota, 100.0);

  // A leaf: no children's rows, lblRazem falls back on the own sum.
  const Rozbicie ba = RozbicieKategorii(QStringLiteral("ba"), 2, QStringLiteral(" "));
  EXPECT_TRUE(ba.wiersze.empty());
  EXPECT_DOUBLE_EQ(ba.suma, 1099.60);
  EXPECT_DOUBLE_EQ(ba.razem, 1099.60);

  // Entries that cancel out: the share column stays empty.
  Wpis(QStringLiteral("transakcje"), QStringLiteral("ba"), 2, -1099.60);
  const Rozbicie b = RozbicieKategorii(QStringLiteral("b"), 2, QStringLiteral(" "));
  ASSERT_EQ(b.wiersze.size(), 1u);
  EXPECT_DOUBLE_EQ(b.wiersze[0].kwota, 0.0);
  EXPECT_TRUE(b.wiersze[0].udzial.isEmpty());
  EXPECT_DOUBLE_EQ(b.razem, 0.0);
}

// Colours run 1..14 and start again.
TEST(Kategorie, BreakdownColoursRepeatAfterFourteen) {
  MagazynTestowy m;
  Kategoria(QStringLiteral("a"), 1, QStringLiteral("Dochody"));
  for (char16_t l = u'a'; l <= u'p'; ++l) {
    const QString id = QStringLiteral("a") + QChar(l);
    Kategoria(id, 1, QStringLiteral("D") + QChar(l));
    Wpis(QStringLiteral("transakcje"), id, 1, 1);
  }
  const Rozbicie r = RozbicieKategorii(QStringLiteral("a"), 1, QStringLiteral(" "));
  ASSERT_EQ(r.wiersze.size(), 16u);
  EXPECT_EQ(r.wiersze[13].kolor, 14);
  EXPECT_EQ(r.wiersze[14].kolor, 1);
  EXPECT_EQ(r.wiersze[15].kolor, 2);
  EXPECT_EQ(r.wiersze[15].nazwa, QStringLiteral("Dp"));
  EXPECT_EQ(r.wiersze[0].udzial, QStringLiteral("6.25"));
}

// The limit of the working date's month: below, equal and above. The strip counts remaining 0 as
// still within; the details call it used up. Other months and parents don't count.
TEST(Kategorie, LimitStripAndDetailsAroundZero) {
  MagazynTestowy m;
  sesja.pubFiltrCzasowy.pozycja = QDate(2026, 11, 22);
  Kategoria(QStringLiteral("a"), 2, QStringLiteral("Dom"), 500);  // a parent: never shown
  Kategoria(QStringLiteral("aa"), 2, QStringLiteral("Jedzenie"), 300);
  Wpis(QStringLiteral("transakcje"), QStringLiteral("aa"), 2, 120.5);
  Wpis(QStringLiteral("transakcje"), QStringLiteral("aa"), 2, 1000, QStringLiteral("2026-10-31"));
  Wpis(QStringLiteral("transakcje"), QStringLiteral("aa"), 2, 1000, QStringLiteral("2025-11-05"));
  Wpis(QStringLiteral("zaplanowane"), QStringLiteral("aa"), 2, 1000);

  EXPECT_FALSE(LimitWezla(QStringLiteral("a"), 2, true).widoczny);

  StanLimitu s = LimitWezla(QStringLiteral("aa"), 2, false);
  ASSERT_TRUE(s.widoczny);
  EXPECT_FALSE(s.przekroczony);
  EXPECT_FALSE(s.wyczerpany);
  EXPECT_EQ(s.wykorzystanoMain, QStringLiteral("120.50"));
  EXPECT_EQ(s.komentarz,
            Napis(QStringLiteral("frmPrzegladKategorii95")) + QStringLiteral(" 179.50"));
  EXPECT_EQ(s.lblLimit, QStringLiteral("300.00"));
  EXPECT_EQ(s.lblPozostaje, QStringLiteral("179.50"));
  EXPECT_EQ(s.lblProcent, QStringLiteral("40.17"));
  EXPECT_EQ(s.lbl4, Napis(QStringLiteral("frmPrzegladKategorii99")));

  Wpis(QStringLiteral("transakcje"), QStringLiteral("aa"), 2, 179.5, QStringLiteral("2026-11-30"));
  s = LimitWezla(QStringLiteral("aa"), 2, false);
  EXPECT_FALSE(s.przekroczony);  // remaining exactly 0: still within on the strip
  EXPECT_TRUE(s.wyczerpany);     // ... and used up in the details
  EXPECT_EQ(s.lbl4, Napis(QStringLiteral("frmPrzegladKategorii100")));
  EXPECT_EQ(s.komentarz, Napis(QStringLiteral("frmPrzegladKategorii95")) + QStringLiteral(" 0.00"));
  EXPECT_EQ(s.lblProcent, QStringLiteral("100.00"));

  Wpis(QStringLiteral("transakcje"), QStringLiteral("aa"), 2, 0.01, QStringLiteral("2026-11-01"));
  s = LimitWezla(QStringLiteral("aa"), 2, false);
  EXPECT_TRUE(s.przekroczony);
  EXPECT_TRUE(s.wyczerpany);
  EXPECT_EQ(s.komentarz,
            Napis(QStringLiteral("frmPrzegladKategorii94")) + QStringLiteral(" -0.01"));
  EXPECT_EQ(s.lblPozostaje, QStringLiteral("-0.01"));

  // Set, read back exactly, and removed by 0; a vanished category reads 0.
  ASSERT_TRUE(UstawLimit(QStringLiteral("aa"), 2, 1234567.89));
  EXPECT_DOUBLE_EQ(CzytajLimit(QStringLiteral("aa"), 2), 1234567.89);
  EXPECT_DOUBLE_EQ(CzytajLimit(QStringLiteral("aa"), 1), 0.0);
  ASSERT_TRUE(UstawLimit(QStringLiteral("aa"), 2, 0));
  s = LimitWezla(QStringLiteral("aa"), 2, false);
  EXPECT_FALSE(s.widoczny);
  EXPECT_EQ(s.lblLimit, Napis(QStringLiteral("frmPrzegladKategorii97")));
  EXPECT_FALSE(LimitWezla(QStringLiteral("zz"), 2, false).widoczny);
}
