// The category browser as picker and as maintenance screen, the category editor and the limit
// dialog, built offscreen and driven by their controls' names.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <functional>

#include "calculator/PoleKwoty_gui.h"
#include "common/magazyn_testowy.h"
#include "ekrany_pomoc.h"
#include "kategorie_pomoc.h"
#include "masterdata/frmEdycjaKategorii.h"
#include "masterdata/frmPrzegladKategorii.h"
#include "masterdata/kategorie.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"

namespace {

QTreeWidgetItem* WezelDrzewa(QTreeWidget* t, const QString& klucz) {
  for (QTreeWidgetItemIterator it(t); *it; ++it)
    if ((*it)->data(0, Qt::UserRole).toString() == klucz) return *it;
  return nullptr;
}

QString Wybrany(QTreeWidget* t) {
  return t->currentItem() ? t->currentItem()->data(0, Qt::UserRole).toString() : QString();
}

void Klawisz(QWidget* w, int klawisz) {
  QKeyEvent e(QEvent::KeyPress, klawisz, Qt::NoModifier);
  QApplication::sendEvent(w, &e);
}

void Wpis(const QString& kategoria, double kwota,
          const QString& data = QStringLiteral("2026-11-10")) {
  ASSERT_TRUE(pubBaza().Wykonaj(
      QStringLiteral("INSERT INTO transakcje (data,rodzaj,przychod,wydatek,opis,kategoria,konto) "
                     "VALUES ('%1',2,0,%2,'',%3,1)")
          .arg(data, QString::number(kwota), SqlTekst(kategoria))));
}

// Expense tree: Dom (a) > Czynsz (aa), Media (ab) > Prąd (aba); Auto (b) with entries, leaf.
void Drzewo() {
  Kategoria(QStringLiteral("a"), 2, QStringLiteral("Dom"));
  Kategoria(QStringLiteral("aa"), 2, QStringLiteral("Czynsz"));
  Kategoria(QStringLiteral("ab"), 2, QStringLiteral("Media"));
  Kategoria(QStringLiteral("aba"), 2, QStringLiteral("Prąd"));
  Kategoria(QStringLiteral("b"), 2, QStringLiteral("Auto"));
  Kategoria(QStringLiteral("a"), 1, QStringLiteral("Pensja"));
  Wpis(QStringLiteral("aa"), 600);
  Wpis(QStringLiteral("aba"), 200);
  Wpis(QStringLiteral("aba"), 999, QStringLiteral("2026-10-10"));
  Wpis(QStringLiteral("b"), 150.5);
}

}  // namespace

// The picker takes only a leaf; Root and a parent don't close it; Cancel gives back all four
// fields of the record, whatever clicks and dialogs changed meanwhile.
TEST(KategorieEkrany, PickerTakesOnlyALeafAndCancelRestoresTheRecord) {
  MagazynTestowy m;
  Drzewo();
  sesja.pubTrybPrzegladu = 2;
  sesja.pubSzczegoly = 0;
  sesja.pubEdytorOtwarty = true;
  sesja.pubKategoria = {QStringLiteral("aa"), QStringLiteral("Czynsz"), QStringLiteral("a"), 2};
  {
    frmPrzegladKategorii f;
    auto* tvw = Kontrolka<QTreeWidget>(&f, QStringLiteral("tvwKategorie"));
    auto* cmdWybierz = Kontrolka<QPushButton>(&f, QStringLiteral("cmdWybierz"));
    EXPECT_EQ(Wybrany(tvw), QStringLiteral("aa"));
    EXPECT_EQ(cmdWybierz->text(), Napis(QStringLiteral("frmPrzegladKategorii64")));
    EXPECT_EQ(f.windowTitle(), Napis(QStringLiteral("frmPrzegladKategorii2")));
    EXPECT_FALSE(Kontrolka(&f, QStringLiteral("frmSzczegoly"))->isVisibleTo(&f));

    tvw->setCurrentItem(WezelDrzewa(tvw, QStringLiteral("Root")));
    cmdWybierz->click();
    ASSERT_EQ(m.host.pokazane.size(), 1u);
    EXPECT_EQ(m.host.pokazane[0].tekst, Napis(QStringLiteral("frmPrzegladKategorii62")));
    tvw->setCurrentItem(WezelDrzewa(tvw, QStringLiteral("ab")));
    Klawisz(tvw, Qt::Key_Return);
    EXPECT_NE(f.result(), int(QDialog::Accepted));
    EXPECT_EQ(sesja.pubKategoria.identyfikator, QStringLiteral("aa"));

    tvw->setCurrentItem(WezelDrzewa(tvw, QStringLiteral("aba")));
    Klawisz(tvw, Qt::Key_Return);
    EXPECT_EQ(f.result(), int(QDialog::Accepted));
  }
  EXPECT_EQ(sesja.pubKategoria.identyfikator, QStringLiteral("aba"));
  EXPECT_EQ(sesja.pubKategoria.nazwa, QStringLiteral("Prąd"));
  EXPECT_EQ(sesja.pubKategoria.nadkategoria, QStringLiteral("ab"));
  EXPECT_EQ(sesja.pubKategoria.rodzaj, 2);

  // Cancel after the limit dialog and the editor have rewritten the record.
  const KategoriaRekord przed = {QStringLiteral("b"), QStringLiteral("Auto"),
                                 QStringLiteral("Root"), 2};
  sesja.pubKategoria = przed;
  {
    frmPrzegladKategorii f;
    auto* tvw = Kontrolka<QTreeWidget>(&f, QStringLiteral("tvwKategorie"));
    tvw->setCurrentItem(WezelDrzewa(tvw, QStringLiteral("aba")));
    NaModalnym(
        [](QWidget* d) { EXPECT_EQ(d->objectName(), QStringLiteral("frmLimitDlaKategorii")); });
    f.cmdZmienLimit_Click();
    tvw->setCurrentItem(WezelDrzewa(tvw, QStringLiteral("ab")));
    NaModalnym(
        [](QWidget* d) { EXPECT_EQ(d->objectName(), QStringLiteral("frmEdycjaKategorii")); });
    f.EdytujKategorie();
    EXPECT_EQ(sesja.pubKategoria.identyfikator, QStringLiteral("ab"));
    EXPECT_EQ(sesja.pubKategoria.nadkategoria, QStringLiteral("a"));
    sesja.pubKategoria.rodzaj = 1;
    Kontrolka<QPushButton>(&f, QStringLiteral("cmdAnuluj"))->click();
    EXPECT_EQ(f.result(), int(QDialog::Rejected));
  }
  EXPECT_EQ(sesja.pubKategoria.identyfikator, przed.identyfikator);
  EXPECT_EQ(sesja.pubKategoria.nazwa, przed.nazwa);
  EXPECT_EQ(sesja.pubKategoria.nadkategoria, przed.nadkategoria);
  EXPECT_EQ(sesja.pubKategoria.rodzaj, przed.rodzaj);
  EXPECT_EQ(sesja.pubWidokZrodlowy, 0);
}

// Browsing with the details: a parent shows its breakdown and no limit, a leaf its limit with
// the strip; the limit dialog sets it and the strip turns when it is passed.
TEST(KategorieEkrany, DetailsBreakdownAndLimitOfALeaf) {
  MagazynTestowy m;
  Drzewo();
  ASSERT_TRUE(UstawLimit(QStringLiteral("a"), 2, 50));  // a parent's limit never shows
  sesja.pubFiltrCzasowy.rodzaj = 5;                     // the year 2026
  sesja.pubTrybPrzegladu = 1;
  sesja.pubSzczegoly = 1;
  sesja.pubKategoria = {QStringLiteral("a"), QString(), QString(), 2};
  frmPrzegladKategorii f;
  auto* tvw = Kontrolka<QTreeWidget>(&f, QStringLiteral("tvwKategorie"));
  auto* lvw = Kontrolka<QTreeWidget>(&f, QStringLiteral("lvwPodkategorie"));
  auto* fraLimityMain = Kontrolka(&f, QStringLiteral("fraLimityMain"));
  EXPECT_TRUE(Kontrolka(&f, QStringLiteral("frmSzczegoly"))->isVisibleTo(&f));
  EXPECT_FALSE(fraLimityMain->isVisibleTo(&f));
  ASSERT_EQ(lvw->topLevelItemCount(), 2);
  EXPECT_EQ(lvw->topLevelItem(0)->text(0), QStringLiteral("Czynsz"));
  EXPECT_EQ(lvw->topLevelItem(1)->text(0), QStringLiteral("Media"));
  EXPECT_EQ(lvw->topLevelItem(1)->text(1).trimmed(), QStringLiteral("1 199.00"));
  EXPECT_EQ(lvw->topLevelItem(0)->text(2), QStringLiteral("33.35"));
  EXPECT_EQ(Kontrolka<QLabel>(&f, QStringLiteral("lblRazem"))->text().trimmed(),
            QStringLiteral("1 799.00"));
  EXPECT_EQ(Kontrolka<QGroupBox>(&f, QStringLiteral("frmSzczegoly"))->title(),
            Napis(QStringLiteral("frmPrzegladKategorii96")) + QStringLiteral(" Dom"));

  // A leaf without a limit: the details offer to set one.
  tvw->setCurrentItem(WezelDrzewa(tvw, QStringLiteral("aa")));
  EXPECT_FALSE(fraLimityMain->isVisibleTo(&f));
  EXPECT_FALSE(lvw->isVisibleTo(&f));
  EXPECT_EQ(Kontrolka<QLabel>(&f, QStringLiteral("lblLimit"))->text(),
            Napis(QStringLiteral("frmPrzegladKategorii97")));
  EXPECT_FALSE(Kontrolka(&f, QStringLiteral("lblWykorzystano"))->isVisibleTo(&f));
  auto* cmdZmienLimit = Kontrolka<QPushButton>(&f, QStringLiteral("cmdZmienLimit"));
  EXPECT_EQ(cmdZmienLimit->text(), Napis(QStringLiteral("frmPrzegladKategorii98")));
  EXPECT_EQ(Kontrolka<QLabel>(&f, QStringLiteral("lblSuma"))->text().trimmed(),
            QStringLiteral("600.00"));

  // The limit dialog: exactly the month's use, 600 of 600 — within on the strip, used up in red.
  NaModalnym([](QWidget* d) {
    auto* txt = Kontrolka<QLineEdit>(d, QStringLiteral("txtLimit"));
    EXPECT_EQ(Kontrolka<QLabel>(d, QStringLiteral("lblNazwaKategorii"))->text(),
              QStringLiteral("Czynsz"));
    PoleKwoty::Z(txt)->UstawWartosc(600);
    Kontrolka<QPushButton>(d, QStringLiteral("cmdOK"))->click();
  });
  cmdZmienLimit->click();
  EXPECT_DOUBLE_EQ(CzytajLimit(QStringLiteral("aa"), 2), 600.0);
  EXPECT_TRUE(fraLimityMain->isVisibleTo(&f));
  EXPECT_TRUE(Kontrolka(&f, QStringLiteral("imgLimit(0)"))->isVisibleTo(&f));
  EXPECT_FALSE(Kontrolka(&f, QStringLiteral("imgLimit(1)"))->isVisibleTo(&f));
  auto* lbl4 = Kontrolka<QLabel>(&f, QStringLiteral("lbl4"));
  EXPECT_EQ(lbl4->text(), Napis(QStringLiteral("frmPrzegladKategorii100")));
  EXPECT_TRUE(lbl4->styleSheet().contains(QStringLiteral("#ff0000")));
  EXPECT_EQ(cmdZmienLimit->text(), Napis(QStringLiteral("frmPrzegladKategorii101")));

  Wpis(QStringLiteral("aa"), 0.01, QStringLiteral("2026-11-30"));
  tvw->setCurrentItem(WezelDrzewa(tvw, QStringLiteral("b")));
  tvw->setCurrentItem(WezelDrzewa(tvw, QStringLiteral("aa")));
  EXPECT_TRUE(Kontrolka(&f, QStringLiteral("imgLimit(1)"))->isVisibleTo(&f));
  EXPECT_EQ(Kontrolka<QLabel>(&f, QStringLiteral("lblKomentarzLimit"))->text(),
            Napis(QStringLiteral("frmPrzegladKategorii94")) + QStringLiteral(" -0.01"));

  // The details close: the form narrows, the strip stays.
  const int szeroka = f.width();
  Kontrolka<QPushButton>(&f, QStringLiteral("cmdSzczegoly"))->click();
  EXPECT_EQ(sesja.pubSzczegoly, 0);
  EXPECT_LT(f.width(), szeroka);
  EXPECT_TRUE(fraLimityMain->isVisibleTo(&f));
}

// Maintenance through the context menu and the keyboard: a new subcategory of a leaf with
// entries (Tak) makes the automatic one and the typed one; Delete refuses a subtree with entries
// and deletes an empty one; the editor keeps an empty name open and stores apostrophes exactly.
TEST(KategorieEkrany, MaintenanceThroughMenuKeysAndEditor) {
  MagazynTestowy m;
  Drzewo();
  sesja.pubTrybPrzegladu = 1;
  sesja.pubSzczegoly = 1;
  sesja.pubKategoria = {QStringLiteral("b"), QString(), QString(), 2};
  frmPrzegladKategorii f;
  auto* tvw = Kontrolka<QTreeWidget>(&f, QStringLiteral("tvwKategorie"));
  auto* mnuPod = Kontrolka<QAction>(&f, QStringLiteral("mnuNowaPodKategoria"));
  EXPECT_EQ(mnuPod->text(),
            Napis(QStringLiteral("frmPrzegladKategorii73")) + QStringLiteral(" Auto"));

  m.host.odpowiedzi = {WynikTak};
  NaModalnym([](QWidget* d) {
    EXPECT_EQ(d->windowTitle(), Napis(QStringLiteral("frmEdycjaKategorii12")));
    EXPECT_EQ(Kontrolka<QLabel>(d, QStringLiteral("lblNadKategoria"))->text(),
              QStringLiteral("Auto "));
    Kontrolka<QPushButton>(d, QStringLiteral("cmdOK"))->click();  // empty name: stays open
    EXPECT_TRUE(d->isVisible());
    Kontrolka<QLineEdit>(d, QStringLiteral("txtNazwa"))->setText(QStringLiteral("Opłaty 'OC'"));
    Kontrolka<QPushButton>(d, QStringLiteral("cmdOK"))->click();
  });
  mnuPod->trigger();
  EXPECT_EQ(m.host.pokazane.at(0).przyciski, int(MsgTakNie));
  ASSERT_NE(WezelDrzewa(tvw, QStringLiteral("ba")), nullptr);
  EXPECT_EQ(WezelDrzewa(tvw, QStringLiteral("ba"))->text(0),
            Napis(QStringLiteral("frmPrzegladKategorii89")));
  ASSERT_NE(WezelDrzewa(tvw, QStringLiteral("bb")), nullptr);
  EXPECT_EQ(Wybrany(tvw), QStringLiteral("bb"));
  EXPECT_EQ(CzytajKategorie(QStringLiteral("bb"), 2).nazwa, QStringLiteral("Opłaty 'OC'"));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje WHERE kategoria='ba'")), 1);

  // Level 4 offers no subcategory; its "new" item names the parent.
  Kategoria(QStringLiteral("abaa"), 2, QStringLiteral("Licznik"));
  sesja.pubKategoria.identyfikator = QStringLiteral("abaa");
  f.WypelnijDrzewo();
  EXPECT_FALSE(mnuPod->isEnabled());
  EXPECT_EQ(Kontrolka<QAction>(&f, QStringLiteral("mnuNowaKategoria"))->text(),
            Napis(QStringLiteral("frmPrzegladKategorii71")) + QStringLiteral(" Prąd"));

  // Delete on a parent whose subtree holds entries: refused, nothing goes.
  m.host.pokazane.clear();
  tvw->setCurrentItem(WezelDrzewa(tvw, QStringLiteral("a")));
  Klawisz(tvw, Qt::Key_Delete);
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_EQ(m.host.pokazane[0].przyciski, int(MsgOK));
  EXPECT_NE(WezelDrzewa(tvw, QStringLiteral("a")), nullptr);
  // An empty leaf goes on Tak; its parent is selected after the refill.
  m.host.odpowiedzi = {WynikTak};
  tvw->setCurrentItem(WezelDrzewa(tvw, QStringLiteral("abaa")));
  Kontrolka<QAction>(&f, QStringLiteral("mnuSkasujKategorie"))->trigger();
  EXPECT_EQ(WezelDrzewa(tvw, QStringLiteral("abaa")), nullptr);
  EXPECT_EQ(Wybrany(tvw), QStringLiteral("aba"));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kategorie WHERE identyfikator='abaa'")), 0);

  // Editing through Enter in browsing mode renames the node.
  NaModalnym([](QWidget* d) {
    EXPECT_EQ(Kontrolka<QLineEdit>(d, QStringLiteral("txtNazwa"))->text(), QStringLiteral("Prąd"));
    EXPECT_EQ(Kontrolka<QLabel>(d, QStringLiteral("lblNadKategoria"))->text(),
              QStringLiteral("Media (Dom)"));
    Kontrolka<QLineEdit>(d, QStringLiteral("txtNazwa"))->setText(QStringLiteral("Energia"));
    Kontrolka<QPushButton>(d, QStringLiteral("cmdOK"))->click();
  });
  Klawisz(tvw, Qt::Key_Return);
  EXPECT_EQ(WezelDrzewa(tvw, QStringLiteral("aba"))->text(0), QStringLiteral("Energia"));

  // The search starts behind Root and finds across levels.
  auto* txtKlucz = Kontrolka<QLineEdit>(&f, QStringLiteral("txtKlucz"));
  txtKlucz->setText(QStringLiteral("ENERG"));
  EXPECT_EQ(Wybrany(tvw), QStringLiteral("aba"));
}
