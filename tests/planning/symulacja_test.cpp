// The category change simulation: a change set on a parent reaches every leaf, the roll-up is
// exact to the grosz, the base month turns at the year's end, a percent out of range is refused;
// the screen driven as a user does, and its report line by line.

#include "planning/symulacja.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QTreeWidget>

#include "common/magazyn_testowy.h"
#include "ledger/transakcje_pomoc.h"
#include "planning/frmKategorieOszczednosci.h"
#include "planning/raport_symulacji.h"
#include "reports/frmRaport.h"
#include "store/dzis.h"
#include "store/kwota.h"
#include "store/tekst.h"
#include "ui/nawigacja_gui.h"

using namespace testy_wpisow;

namespace {
struct Symulacje : ::testing::Test {
  void SetUp() override {
    konto = KontoT(QStringLiteral("Portfel"), 1);
    KategoriaT(QStringLiteral("a"), 2, QStringLiteral("Dom"));
    KategoriaT(QStringLiteral("aa"), 2, QStringLiteral("Czynsz"));
    KategoriaT(QStringLiteral("ab"), 2, QStringLiteral("Media"));
    KategoriaT(QStringLiteral("aba"), 2, QStringLiteral("Prąd"));
    KategoriaT(QStringLiteral("abb"), 2, QStringLiteral("Gaz ziemny"));
    KategoriaT(QStringLiteral("abba"), 2, QStringLiteral("Łódź - O'Hara"));
    KategoriaT(QStringLiteral("b"), 2, QStringLiteral("Samochód"));
    KategoriaT(QStringLiteral("a"), 1, QStringLiteral("Pensja"));
    // Today 22 November 2026: the base month is October (the last whole one) or November.
    wpis(1000.00, "2026-10-03", "aa");
    wpis(123.45, "2026-10-04", "aba");
    wpis(0.05, "2026-10-31", "abba");
    wpis(999999999.99, "2026-10-15", "b");
    wpis(77.00, "2026-11-02", "aa");
    wpis(5.00, "2025-10-02", "aa");
    WpisT(QStringLiteral("transakcje"), 1, 500, QStringLiteral("2026-10-05"), konto,
          QStringLiteral("a"));
    WpisT(QStringLiteral("zaplanowane"), 2, 40, QStringLiteral("2026-10-05"), konto,
          QStringLiteral("aa"));
  }
  void wpis(double kwota, const char* data, const char* kategoria) {
    WpisT(QStringLiteral("transakcje"), 2, kwota, QLatin1String(data), konto,
          QLatin1String(kategoria));
  }
  double oszczednosc(const char* klucz) {
    return pubBaza()
        .Czytaj(QStringLiteral(
                    "SELECT oszczednosc FROM kategorie WHERE rodzaj=2 AND identyfikator='%1'")
                    .arg(QLatin1String(klucz)))
        .Pole(0)
        .toDouble();
  }
  MagazynTestowy m;
  qint64 konto = 0;
};
}  // namespace

TEST(Symulacja, AmountAfterAChangeRoundsHalfToEven) {
  EXPECT_EQ(KwotaPoZmianie(10, -15), 8);   // 0.085 -> 0.08
  EXPECT_EQ(KwotaPoZmianie(30, -15), 26);  // 0.255 -> 0.26
  EXPECT_EQ(KwotaPoZmianie(12345, 0), 12345);
  EXPECT_EQ(KwotaPoZmianie(12345, -100), 0);
  EXPECT_EQ(KwotaPoZmianie(12345, 100), 24690);
  EXPECT_EQ(KwotaPoZmianie(99999999999999LL, 12.5), 112499999999999LL);  // .875 -> up
  EXPECT_EQ(KwotaPoZmianie(99999999999999LL, -33), 66999999999999LL);    // .33 -> down
  double p = 0;
  EXPECT_TRUE(CzytajProcent(QStringLiteral(" -12,5 "), &p));
  EXPECT_EQ(p, -12.5);
  EXPECT_TRUE(CzytajProcent(QStringLiteral(""), &p));
  EXPECT_EQ(p, 0);
  EXPECT_TRUE(CzytajProcent(QStringLiteral("100"), nullptr));
  EXPECT_TRUE(CzytajProcent(QStringLiteral("-100"), nullptr));
  for (const char* zly : {"100.01", "-101", "150", "abc", "1e3", "12%", "inf", "nan"})
    EXPECT_FALSE(CzytajProcent(QLatin1String(zly), nullptr)) << zly;
}

// A change set on a parent is stored on every leaf below it and nowhere else; amounts roll up to
// the root exactly; 0 on the parent clears the leaves again; the year's turn takes December.
TEST_F(Symulacje, ParentChangeReachesLeavesAndRollsUpExactly) {
  Symulacja s = PrzeliczSymulacje(2, false, Dzis());
  ASSERT_TRUE(UstawOszczednosc(s, QStringLiteral("a"), QStringLiteral("-15"), 2));
  for (const char* lisc : {"aa", "aba", "abba"}) EXPECT_EQ(oszczednosc(lisc), -15) << lisc;
  for (const char* inny : {"a", "ab", "abb", "b"}) EXPECT_EQ(oszczednosc(inny), 0) << inny;
  EXPECT_EQ(
      m.Licz(QStringLiteral("SELECT COUNT(*) FROM kategorie WHERE rodzaj=1 AND oszczednosc<>0")),
      0);

  s = PrzeliczSymulacje(2, false, Dzis());
  const auto ab = [&](const char* k) {
    const WezelSymulacji* w = s.Wezel(QLatin1String(k));
    EXPECT_NE(w, nullptr) << k;
    return w ? std::pair(w->a, w->b) : std::pair(qint64(-1), qint64(-1));
  };
  EXPECT_EQ(ab("aa"), std::pair(100000LL, 85000LL));
  EXPECT_EQ(ab("aba"), std::pair(12345LL, 10493LL));  // 104.9325
  EXPECT_EQ(ab("abba"), std::pair(5LL, 4LL));         // 0.0425
  EXPECT_EQ(ab("abb"), std::pair(5LL, 4LL));
  EXPECT_EQ(ab("ab"), std::pair(12350LL, 10497LL));
  EXPECT_EQ(ab("a"), std::pair(112350LL, 95497LL));
  EXPECT_EQ(ab("b"), std::pair(99999999999LL, 99999999999LL));
  EXPECT_EQ(ab("Root"), std::pair(112350LL + 99999999999LL, 95497LL + 99999999999LL));
  // A parent's percent is 0 after the roll-up; texts show the leaf's percent or the effective one.
  EXPECT_EQ(s.Wezel(QStringLiteral("a"))->procent, 0);
  EXPECT_EQ(s.Wezel(QStringLiteral("aa"))->tekst, QStringLiteral("Czynsz  (-15 %)"));
  EXPECT_EQ(s.Wezel(QStringLiteral("abba"))->tekst, QStringLiteral("Łódź - O'Hara  (-15 %)"));
  EXPECT_EQ(s.Wezel(QStringLiteral("ab"))->tekst, QStringLiteral("Media (-15 %)"));
  EXPECT_EQ(s.Wezel(QStringLiteral("b"))->tekst, QStringLiteral("Samochód (0 %)"));
  const ZmianaWCzasie z = ZmianaWezla(*s.Wezel(QStringLiteral("a")));
  EXPECT_EQ(std::tuple(z.miesiecznie, z.kwartalnie, z.rocznie, z.opis),
            std::tuple(16853LL, 50559LL, 202236LL, 30));

  // -100 on a leaf leaves nothing of it; the current month is another base.
  ASSERT_TRUE(UstawOszczednosc(s, QStringLiteral("b"), QStringLiteral("-100"), 2));
  s = PrzeliczSymulacje(2, false, Dzis());
  EXPECT_EQ(ab("b"), std::pair(99999999999LL, 0LL));
  s = PrzeliczSymulacje(2, true, Dzis());
  EXPECT_EQ(ab("aa"), std::pair(7700LL, 6545LL));
  EXPECT_EQ(ab("aba"), std::pair(0LL, 0LL));
  EXPECT_EQ(s.Wezel(QStringLiteral("aba"))->tekst, QStringLiteral("Prąd  (-15 %)"));

  // 0 on the parent clears every leaf below it.
  ASSERT_TRUE(UstawOszczednosc(s, QStringLiteral("ab"), QStringLiteral("0"), 2));
  EXPECT_EQ(oszczednosc("aba"), 0);
  EXPECT_EQ(oszczednosc("abba"), 0);
  EXPECT_EQ(oszczednosc("aa"), -15);

  // Out of range or no number at all: refused with a message, nothing stored.
  m.host.pokazane.clear();
  EXPECT_FALSE(UstawOszczednosc(s, QStringLiteral("a"), QStringLiteral("150"), 2));
  EXPECT_FALSE(UstawOszczednosc(s, QStringLiteral("a"), QStringLiteral("-100,5"), 2));
  EXPECT_FALSE(UstawOszczednosc(s, QStringLiteral("a"), QStringLiteral("dużo"), 2));
  ASSERT_EQ(m.host.pokazane.size(), 3u);
  EXPECT_EQ(m.host.pokazane[0].tekst, Napis(QStringLiteral("frmKategorieOszczednosci40")));
  EXPECT_EQ(oszczednosc("aa"), -15);

  // January's previous month is December of the year before.
  wpis(10.00, "2026-12-31", "aba");
  wpis(20.00, "2027-01-02", "aba");
  s = PrzeliczSymulacje(2, false, QDate(2027, 1, 10));
  EXPECT_EQ(ab("aba"), std::pair(1000LL, 1000LL));
  s = PrzeliczSymulacje(2, true, QDate(2027, 1, 10));
  EXPECT_EQ(ab("aba"), std::pair(2000LL, 2000LL));
}

// The screen: a percent typed, set on a parent with the button, the figures of the selected
// node; the up-down buttons held in range; a bad percent refused; the report of the branch.
TEST_F(Symulacje, ScreenAndReport) {
  sesja.pubSeparator = QStringLiteral(",");
  frmKategorieOszczednosci f;
  f.show();
  auto* procent = Kontrolka<QLineEdit>(&f, "txtProcent");
  auto* ustaw = Kontrolka<QPushButton>(&f, "cmdUstawOszczednosc");
  EXPECT_EQ(ustaw->text(), Napis(QStringLiteral("frmKategorieOszczednosci37")));
  EXPECT_EQ(sesja.pubKategoria.rodzaj, 2);
  for (int i = 0; i < 12; ++i) Kontrolka<QToolButton>(&f, "updDziesiatki(1)")->click();
  EXPECT_EQ(procent->text(), QStringLiteral("-100"));
  Kontrolka<QToolButton>(&f, "updJednostki(0)")->click();
  EXPECT_EQ(procent->text(), QStringLiteral("-99"));
  procent->setText(QStringLiteral("-12,5"));
  EXPECT_EQ(ustaw->text(),
            Napis(QStringLiteral("frmKategorieOszczednosci39")) + QStringLiteral(" 12,5 %"));

  f.Wybierz(QStringLiteral("ab"));
  ustaw->click();
  EXPECT_EQ(oszczednosc("aba"), -12.5);
  EXPECT_EQ(f.Wybrany(), QStringLiteral("ab"));
  // Under a decimal comma only the whole percent acts: 123.45 less 12 % is 108.64 (108.636).
  const WezelSymulacji* aba = f.symulacja().Wezel(QStringLiteral("aba"));
  EXPECT_EQ(aba->b, 10864);
  EXPECT_EQ(aba->tekst, QStringLiteral("Prąd  (-12,5 %)"));
  const QString kwota = FormatKwoty(ZGroszy(12350 - (10864 + 4))).trimmed();
  EXPECT_EQ(Kontrolka<QLabel>(&f, "lblOszczednosc(0)")->text(), kwota);
  EXPECT_EQ(Kontrolka<QLabel>(&f, "lblOszczednosc(1)")->text(),
            FormatKwoty(ZGroszy((12350 - 10868) * 3)).trimmed());
  EXPECT_EQ(Kontrolka<QLabel>(&f, "lblOszczednosc(2)")->text(),
            FormatKwoty(ZGroszy((12350 - 10868) * 12)).trimmed());
  EXPECT_EQ(Kontrolka<QLabel>(&f, "lblOpisZmiany")->text(),
            Napis(QStringLiteral("frmKategorieOszczednosci30")));
  auto* lista = Kontrolka<QTreeWidget>(&f, "lvwPodkategorie");
  ASSERT_EQ(lista->topLevelItemCount(), 2);
  EXPECT_EQ(lista->topLevelItem(0)->text(1), FormatKwotyEdycja(123.45));
  EXPECT_EQ(lista->topLevelItem(0)->text(2), FormatKwotyEdycja(108.64));

  // A percent past 100 typed by hand: the message, the store unchanged.
  procent->setText(QStringLiteral("120"));
  f.Wybierz(QStringLiteral("a"));
  ustaw->click();
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_EQ(m.host.pokazane[0].tytul.trimmed(),
            Napis(QStringLiteral("frmKategorieOszczednosci41")));
  EXPECT_EQ(oszczednosc("aa"), 0);

  // The base month: this month has only the 77.00 of Czynsz.
  Kontrolka<QRadioButton>(&f, "optBazowy(0)")->click();
  f.Wybierz(QStringLiteral("Root"));
  EXPECT_EQ(Kontrolka<QLabel>(&f, "lblWykonanie(0)")->text(), FormatKwoty(77).trimmed());
  EXPECT_EQ(Kontrolka<QLabel>(&f, "lblOpisZmiany")->text(),
            Napis(QStringLiteral("frmKategorieOszczednosci31")));
  Kontrolka<QRadioButton>(&f, "optBazowy(1)")->click();

  // The report of the whole tree: the root with the totals, then every category indented by
  // twice its level, the amounts in the same columns; of a leaf, the leaf alone.
  UstawSymulacjeRaportu(&f.symulacja(), QStringLiteral("Root"));
  Raport r;
  TworzRaport(FormularzRaportuSymulacji(), r);
  const QStringList linie = r.dok.Tekst().split(QLatin1Char('\n'));
  ASSERT_GE(linie.size(), 13);
  EXPECT_TRUE(linie[0].startsWith(Napis(QStringLiteral("frmRaportOszczednosciKategorie8"))));
  EXPECT_EQ(linie[3], QString(100, QLatin1Char('-')));
  const QString glowna = linie[4];
  EXPECT_TRUE(glowna.startsWith(Napis(QStringLiteral("frmKategorieOszczednosci33"))));
  const qint64 a = 12350 + 100000 + 99999999999LL, b = 10868 + 100000 + 99999999999LL;
  EXPECT_EQ(glowna.mid(45).split(QLatin1Char(' '), Qt::SkipEmptyParts),
            (QStringList{FormatKwotyEdycja(ZGroszy(a)), FormatKwotyEdycja(ZGroszy(b)),
                         FormatKwotyEdycja(ZGroszy(b - a)), FormatKwotyEdycja(ZGroszy((b - a) * 3)),
                         FormatKwotyEdycja(ZGroszy((b - a) * 12))}));
  EXPECT_TRUE(linie[5].startsWith(QStringLiteral("  Dom")));
  const QString czwarty = linie[10];
  EXPECT_TRUE(czwarty.startsWith(QStringLiteral("        Łódź - O'Hara  (-12,5 %)")));
  EXPECT_EQ(czwarty.size(), 100);
  EXPECT_EQ(czwarty.mid(45, 11), QStringLiteral("       0,05"));
  EXPECT_EQ(r.dok.tabela.size(), 1u + 8u);
  EXPECT_EQ(r.dok.tabela[1].value(1), FormatKwotyEdycja(ZGroszy(a)));

  UstawSymulacjeRaportu(&f.symulacja(), QStringLiteral("aba"));
  Raport jeden;
  TworzRaport(FormularzRaportuSymulacji(), jeden);
  EXPECT_EQ(jeden.dok.tabela.size(), 2u);
  EXPECT_EQ(jeden.dok.tabela[1].value(0), QStringLiteral("Prąd  (-12,5 %)"));

  // The print button shows the report window over the simulation, with the selected branch.
  f.Wybierz(QStringLiteral("ab"));
  QString tekst;
  Nawigacja::Ekran dawny = Nawigacja::Zarejestruj(
      QStringLiteral("frmRaportOszczednosciKategorie"), [&](QWidget* rodzic) {
        frmRaport okno(FormularzRaportuSymulacji(), rodzic);
        okno.TworzRaport();
        tekst = okno.raport().dok.Tekst();
      });
  Kontrolka<QPushButton>(&f, "cmdDrukuj")->click();
  Nawigacja::Zarejestruj(QStringLiteral("frmRaportOszczednosciKategorie"), std::move(dawny));
  EXPECT_TRUE(tekst.contains(QStringLiteral("    Media")));
  EXPECT_FALSE(tekst.contains(QStringLiteral("Czynsz")));
}
