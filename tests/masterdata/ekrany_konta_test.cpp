// The account browser, the picker protocol, its search and filter buttons, and the account
// editor, driven offscreen by their controls' names.

#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <functional>

#include "common/magazyn_testowy.h"
#include "ekrany_pomoc.h"
#include "konta_pomoc.h"
#include "masterdata/frmEdycjaKonta.h"
#include "masterdata/frmPrzegladKont.h"
#include "masterdata/konta.h"
#include "ui/przyciskifiltra_gui.h"
#include "store/filtr.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"

namespace {

// A key pressed and released on a widget, as the keyboard sends it.
void Klawisz(QWidget* w, int klawisz) {
  QKeyEvent wcisniety(QEvent::KeyPress, klawisz, Qt::NoModifier);
  QApplication::sendEvent(w, &wcisniety);
  QKeyEvent puszczony(QEvent::KeyRelease, klawisz, Qt::NoModifier);
  QApplication::sendEvent(w, &puszczony);
}

// Typing into a line edit, one character at a time.
void Pisz(QLineEdit* pole, const QString& tekst) {
  for (const QChar c : tekst) pole->insert(QString(c));
}

QTreeWidgetItem* Wezel(QTreeWidget* t, const QString& klucz) {
  for (QTreeWidgetItemIterator it(t); *it; ++it)
    if ((*it)->data(0, Qt::UserRole).toString() == klucz) return *it;
  ADD_FAILURE() << "no node " << klucz.toStdString();
  return nullptr;
}

QString Klucz(QTreeWidget* t) {
  return t->currentItem() ? t->currentItem()->data(0, Qt::UserRole).toString() : QString();
}

struct Konta {
  qint64 portfel, ing, mbank, kredyt, skarbonka;
  Konta() {
    portfel = NoweKontoTestowe(QStringLiteral("Portfel"), 1, QStringLiteral("2026-01-10"), 100.10);
    ing = NoweKontoTestowe(QStringLiteral("Konto ING"), 2, QStringLiteral("2026-11-15"), 1234567.89,
                           0.01);
    mbank = NoweKontoTestowe(QStringLiteral("mBank"), 2, QStringLiteral("2025-05-01"), 0, 50, 100);
    kredyt = NoweKontoTestowe(QStringLiteral("Kredyt"), 5, QStringLiteral("2026-12-01"), 0, 1000);
    skarbonka = NoweKontoTestowe(QStringLiteral("Skarbonka"), 6, QStringLiteral("2026-01-01"), 5);
    WpisTestowy(portfel, QStringLiteral("2026-11-20"), 20.05, 0);
    WpisTestowy(mbank, QStringLiteral("2026-11-02"), 0, 60);
    TransferTestowy(ing, mbank, QStringLiteral("2026-11-18"), 100);
    pubBaza().Wykonaj(
        QStringLiteral("INSERT INTO szablony (rodzaj,nazwa,konto,kategoria) VALUES (2,'s',%1,'A')")
            .arg(skarbonka));
  }
};

}  // namespace

// The tree of a store, the balance and limit panel of each kind of node, the details of the
// period under the filter buttons, and the details toggle.
TEST(PrzegladKont, TreeBalancePanelAndDetails) {
  MagazynTestowy m;
  const Konta k;
  sesja.pubKonto.id = k.mbank;
  sesja.pubTrybPrzegladu = 1;
  sesja.pubSzczegoly = 1;
  sesja.pubFiltrCzasowy.rodzaj = 0;
  frmPrzegladKont f;
  f.show();
  auto* tvw = Kontrolka<QTreeWidget>(&f, QStringLiteral("tvwKonta"));
  ASSERT_EQ(tvw->topLevelItemCount(), 1);
  QTreeWidgetItem* root = tvw->topLevelItem(0);
  EXPECT_EQ(root->text(0), Napis(QStringLiteral("frmPrzegladKont80")));
  ASSERT_EQ(root->childCount(), 6);
  EXPECT_EQ(root->child(1)->childCount(), 2);
  EXPECT_EQ(root->child(3)->childCount(), 0);
  EXPECT_EQ(sesja.pubWidokZrodlowy, 1);

  // The account of pubKonto is selected: within its overdraft.
  EXPECT_EQ(Klucz(tvw), QStringLiteral("q%1").arg(k.mbank));
  EXPECT_EQ(sesja.pubWezelKont, QStringLiteral("q"));
  EXPECT_FALSE(Kontrolka(&f, QStringLiteral("fraLimityMain"))->isHidden());
  EXPECT_TRUE(Kontrolka(&f, QStringLiteral("imgLimit(0)"))->isHidden());
  EXPECT_FALSE(Kontrolka(&f, QStringLiteral("imgLimit(1)"))->isHidden());
  EXPECT_TRUE(Kontrolka(&f, QStringLiteral("imgLimit(2)"))->isHidden());
  EXPECT_EQ(Kontrolka<QLabel>(&f, QStringLiteral("lblMainSaldo"))->text(),
            Napis(QStringLiteral("frmPrzegladKont60")) + QLatin1Char(' ') + FormatKwoty(-10));
  EXPECT_EQ(sesja.pubKonto.saldo, -10.0);

  // An account with limit 0 shows the panel too; a balance in order shows imgLimit(0). Every
  // cent of a large balance shows.
  tvw->setCurrentItem(Wezel(tvw, QStringLiteral("q%1").arg(k.ing)));
  EXPECT_FALSE(Kontrolka(&f, QStringLiteral("fraLimityMain"))->isHidden());
  EXPECT_FALSE(Kontrolka(&f, QStringLiteral("imgLimit(0)"))->isHidden());
  EXPECT_TRUE(Kontrolka<QLabel>(&f, QStringLiteral("lblMainLimit"))->text().endsWith(FormatKwoty(0)));
  EXPECT_EQ(Kontrolka<QLabel>(&f, QStringLiteral("lblBZ"))->text(), FormatKwoty(1234467.88));
  EXPECT_TRUE(FormatKwoty(1234467.88).contains(QStringLiteral("467")));

  // A kind: no limit panel; pubKonto.id takes the kind's number.
  tvw->setCurrentItem(Wezel(tvw, QStringLiteral("r2")));
  EXPECT_TRUE(Kontrolka(&f, QStringLiteral("fraLimityMain"))->isHidden());
  EXPECT_EQ(sesja.pubKonto.id, 2);
  EXPECT_EQ(sesja.pubWezelKont, QStringLiteral("r2"));
  EXPECT_EQ(Kontrolka<QLabel>(&f, QStringLiteral("lblPoczatek"))->text(),
            FormatKwoty(0));  // "all": nothing before
  EXPECT_EQ(Kontrolka<QLabel>(&f, QStringLiteral("lblBO"))->text(), FormatKwoty(1234517.88));
  EXPECT_EQ(Kontrolka<QLabel>(&f, QStringLiteral("lblBZ"))->text(), FormatKwoty(1234457.88));
  EXPECT_EQ(Kontrolka<QLabel>(&f, QStringLiteral("lblProcent"))->text(),
            FormatKwoty(100) + QStringLiteral(" %"));

  // The month of the working date: ING's opening balance and the transfer inside the kind fall
  // into it, mBank's opening balance before it.
  Kontrolka<QPushButton>(&f, QStringLiteral("cmdFiltr(3)"))->click();
  EXPECT_EQ(sesja.pubFiltrCzasowy.rodzaj, 3);
  // Beside the balance before the period stands its caption, not the period's name.
  EXPECT_EQ(Kontrolka<QLabel>(&f, QStringLiteral("lblKiedy"))->text(),
            Napis(QStringLiteral("frmPrzegladKont35")));
  EXPECT_EQ(Kontrolka<QLabel>(&f, QStringLiteral("lblOkres"))->text(),
            FiltrCzasowy(sesja.pubFiltrCzasowy).opisDlugi);
  EXPECT_EQ(Kontrolka<QLabel>(&f, QStringLiteral("lblPoczatek"))->text(), FormatKwoty(-50));
  EXPECT_EQ(Kontrolka<QLabel>(&f, QStringLiteral("lblBO"))->text(), FormatKwoty(1234517.88));
  EXPECT_EQ(Kontrolka<QLabel>(&f, QStringLiteral("lblWydatki"))->text(), FormatKwoty(60));
  EXPECT_EQ(Kontrolka<QLabel>(&f, QStringLiteral("lblWewnetrznePrzychody"))->text(), FormatKwoty(100));
  EXPECT_EQ(Kontrolka<QLabel>(&f, QStringLiteral("lblWewnetrzneWydatki"))->text(), FormatKwoty(100));
  EXPECT_EQ(Kontrolka<QLabel>(&f, QStringLiteral("lblZmiana"))->text(), FormatKwoty(1234507.88));

  // A kind without accounts reads zero everywhere.
  tvw->setCurrentItem(Wezel(tvw, QStringLiteral("r4")));
  EXPECT_EQ(Kontrolka<QLabel>(&f, QStringLiteral("lblBZ"))->text(), FormatKwoty(0));
  EXPECT_EQ(Kontrolka<QLabel>(&f, QStringLiteral("lblProcent"))->text(),
            FormatKwoty(0) + QStringLiteral(" %"));

  // The details close and open again; the state is the session's.
  auto* szczegoly = Kontrolka<QPushButton>(&f, QStringLiteral("cmdSzczegoly"));
  EXPECT_EQ(szczegoly->text(), QStringLiteral("<<  ") + Napis(QStringLiteral("frmPrzegladKont69")));
  const int szeroki = f.width();
  szczegoly->click();
  EXPECT_EQ(sesja.pubSzczegoly, 0);
  EXPECT_TRUE(Kontrolka(&f, QStringLiteral("frmSzczegoly"))->isHidden());
  EXPECT_EQ(szczegoly->text(), Napis(QStringLiteral("frmPrzegladKont70")) + QStringLiteral(" >>"));
  EXPECT_LT(f.width(), szeroki);
  szczegoly->click();
  EXPECT_EQ(sesja.pubSzczegoly, 1);
  EXPECT_FALSE(Kontrolka(&f, QStringLiteral("frmSzczegoly"))->isHidden());

  // The context menu follows the node under it.
  tvw->setCurrentItem(Wezel(tvw, QStringLiteral("q%1").arg(k.portfel)));
  emit tvw->customContextMenuRequested(
      tvw->visualItemRect(Wezel(tvw, QStringLiteral("r5"))).center());
  EXPECT_EQ(Klucz(tvw), QStringLiteral("r5"));
  auto* mnuEdytuj = f.findChild<QAction*>(QStringLiteral("mnuEdytujKonto"));
  ASSERT_NE(mnuEdytuj, nullptr);
  EXPECT_FALSE(mnuEdytuj->isEnabled());
  EXPECT_EQ(f.findChild<QAction*>(QStringLiteral("mnuNoweKonto"))->text(),
            Napis(QStringLiteral("frmPrzegladKont87")) +
                Napis(QStringLiteral("frmPrzegladKont85")) + QLatin1Char(')'));
}

// The picker: only an account can be taken; the root opens the way instead and a kind without
// accounts says so; Cancel and Esc put the record back although clicks changed pubKonto.id.
TEST(PrzegladKont, PickerProtocol) {
  MagazynTestowy m;
  const Konta k;
  sesja.pubTrybPrzegladu = 2;
  sesja.pubSzczegoly = 0;
  sesja.pubEdytorOtwarty = true;
  sesja.pubKonto.id = k.portfel;
  sesja.pubKonto.nazwa = QStringLiteral("Portfel");
  sesja.pubKonto.rodzaj = 1;
  {
    frmPrzegladKont f;
    f.show();
    auto* tvw = Kontrolka<QTreeWidget>(&f, QStringLiteral("tvwKonta"));
    auto* wybierz = Kontrolka<QPushButton>(&f, QStringLiteral("cmdWybierz"));
    EXPECT_EQ(wybierz->text(), Napis(QStringLiteral("frmPrzegladKont78")));
    EXPECT_TRUE(Kontrolka(&f, QStringLiteral("frmSzczegoly"))->isHidden());

    tvw->collapseAll();
    tvw->setCurrentItem(tvw->topLevelItem(0));
    wybierz->click();
    EXPECT_TRUE(f.isVisible());
    EXPECT_TRUE(tvw->topLevelItem(0)->child(0)->isExpanded());
    EXPECT_TRUE(m.host.pokazane.empty());

    tvw->setCurrentItem(Wezel(tvw, QStringLiteral("r4")));
    EXPECT_EQ(sesja.pubKonto.id, 4);
    wybierz->click();
    EXPECT_TRUE(f.isVisible());
    ASSERT_EQ(m.host.pokazane.size(), 1u);
    EXPECT_EQ(m.host.pokazane[0].tekst, Napis(QStringLiteral("frmPrzegladKont76")));

    Kontrolka<QPushButton>(&f, QStringLiteral("cmdAnuluj"))->click();
    EXPECT_FALSE(f.isVisible());
    EXPECT_EQ(f.result(), int(QDialog::Rejected));
    EXPECT_EQ(sesja.pubKonto.id, k.portfel);
    EXPECT_EQ(sesja.pubKonto.nazwa, QStringLiteral("Portfel"));
  }
  EXPECT_EQ(sesja.pubWidokZrodlowy, 0);

  {
    frmPrzegladKont f;
    f.show();
    auto* tvw = Kontrolka<QTreeWidget>(&f, QStringLiteral("tvwKonta"));
    tvw->setCurrentItem(Wezel(tvw, QStringLiteral("q%1").arg(k.kredyt)));
    Klawisz(&f, Qt::Key_Escape);
    EXPECT_FALSE(f.isVisible());
    EXPECT_EQ(sesja.pubKonto.id, k.portfel);
  }
  {
    frmPrzegladKont f;
    f.show();
    auto* tvw = Kontrolka<QTreeWidget>(&f, QStringLiteral("tvwKonta"));
    tvw->setCurrentItem(Wezel(tvw, QStringLiteral("q%1").arg(k.ing)));
    Klawisz(tvw, Qt::Key_Return);
    EXPECT_FALSE(f.isVisible());
    EXPECT_EQ(f.result(), int(QDialog::Accepted));
    EXPECT_EQ(sesja.pubKonto.id, k.ing);
    EXPECT_EQ(sesja.pubKonto.nazwa, QStringLiteral("Konto ING"));
    EXPECT_EQ(sesja.pubKonto.rodzaj, 2);
    EXPECT_EQ(sesja.pubKonto.datautworzenia, QDate(2026, 11, 15));
  }
}

// The search box on the tree: the first hit from the first account on, "next" through the
// other hits and round again, a kind's name alone finds nothing, Enter takes the hit.
TEST(PrzegladKont, IncrementalSearchOnTheTree) {
  MagazynTestowy m;
  const Konta k;
  sesja.pubTrybPrzegladu = 2;
  sesja.pubSzczegoly = 0;
  sesja.pubKonto.id = 0;
  frmPrzegladKont f;
  f.show();
  auto* tvw = Kontrolka<QTreeWidget>(&f, QStringLiteral("tvwKonta"));
  auto* klucz = Kontrolka<QLineEdit>(&f, QStringLiteral("txtKlucz"));
  auto* nastepny = Kontrolka<QPushButton>(&f, QStringLiteral("cmdNastepny"));
  EXPECT_FALSE(nastepny->isVisible());

  Pisz(klucz, QStringLiteral("K"));
  EXPECT_EQ(Klucz(tvw),
            QStringLiteral("q%1").arg(k.ing));  // "Konto ING", then mBank, Kredyt, Skarbonka
  EXPECT_TRUE(nastepny->isVisible());
  nastepny->click();
  EXPECT_EQ(Klucz(tvw), QStringLiteral("q%1").arg(k.mbank));
  nastepny->click();
  EXPECT_EQ(Klucz(tvw), QStringLiteral("q%1").arg(k.kredyt));
  nastepny->click();
  EXPECT_EQ(Klucz(tvw), QStringLiteral("q%1").arg(k.skarbonka));
  nastepny->click();  // the last node was a hit: round again from the first account
  EXPECT_EQ(Klucz(tvw), QStringLiteral("q%1").arg(k.ing));

  klucz->setText(QStringLiteral("Gotówkowe"));  // only the kind's name
  EXPECT_EQ(Klucz(tvw), QStringLiteral("q%1").arg(k.ing));
  EXPECT_FALSE(nastepny->isVisible());

  klucz->clear();
  Pisz(klucz, QStringLiteral("bank"));
  EXPECT_EQ(Klucz(tvw), QStringLiteral("q%1").arg(k.mbank));
  EXPECT_FALSE(nastepny->isVisible());
  Klawisz(klucz, Qt::Key_Return);
  EXPECT_EQ(f.result(), int(QDialog::Accepted));
  EXPECT_EQ(sesja.pubKonto.id, k.mbank);
}

// Browsing: a new account from a kind's node through the editor is selected after the refill;
// Delete on the tree refuses an account with entries and deletes one that only templates use.
TEST(PrzegladKont, NewAndDeleteFromTheBrowser) {
  MagazynTestowy m;
  const Konta k;
  sesja.pubTrybPrzegladu = 1;
  sesja.pubSzczegoly = 0;
  sesja.pubFiltrCzasowy.pozycja = QDate(2026, 2, 3);
  frmPrzegladKont f;
  f.show();
  auto* tvw = Kontrolka<QTreeWidget>(&f, QStringLiteral("tvwKonta"));

  tvw->setCurrentItem(Wezel(tvw, QStringLiteral("r6")));
  bool edytor = false;
  NaModalnym([&](QWidget* d) {
    edytor = d->objectName() == QLatin1String("frmEdycjaKonta");
    EXPECT_TRUE(Kontrolka<QRadioButton>(d, QStringLiteral("optRodzaj(6)"))->isChecked());
    Kontrolka<QLineEdit>(d, QStringLiteral("txtNazwa"))->setText(QStringLiteral("Złoto"));
    Kontrolka<QPushButton>(d, QStringLiteral("cmdOK"))->click();
  });
  Kontrolka<QAbstractButton>(&f, QStringLiteral("cmdMenu(0)"))->click();
  EXPECT_TRUE(edytor);
  ASSERT_NE(tvw->currentItem(), nullptr);
  EXPECT_EQ(tvw->currentItem()->text(0), QStringLiteral("Złoto"));
  EXPECT_EQ(Klucz(tvw).left(1), QStringLiteral("q"));
  EXPECT_EQ(tvw->currentItem()->parent()->data(0, Qt::UserRole).toString(), QStringLiteral("r6"));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta WHERE nazwa='Złoto' AND rodzaj=6 AND "
                                  "datautworzenia='2026-02-03'")),
            1);

  tvw->setCurrentItem(Wezel(tvw, QStringLiteral("q%1").arg(k.portfel)));
  Klawisz(tvw, Qt::Key_Delete);
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_EQ(m.host.pokazane[0].przyciski, int(MsgOK));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta WHERE id=%1").arg(k.portfel)), 1);

  Kontrolka<QLineEdit>(&f, QStringLiteral("txtKlucz"))->setText(QStringLiteral("Skarb"));
  EXPECT_EQ(Klucz(tvw), QStringLiteral("q%1").arg(k.skarbonka));
  m.host.odpowiedzi = {WynikTak};
  Klawisz(tvw, Qt::Key_Delete);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta WHERE id=%1").arg(k.skarbonka)), 0);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM szablony")), 0);
  EXPECT_EQ(Wezel(tvw, QStringLiteral("r6"))->childCount(), 1);
  EXPECT_EQ(Klucz(tvw), QStringLiteral("r6"));  // the kind it stood under
  EXPECT_TRUE(Kontrolka<QLineEdit>(&f, QStringLiteral("txtKlucz"))->text().isEmpty());
}

// The editor: the kind decides which amount fields are usable, a value in a field switched off
// is kept and saved; an existing account loads; a refusal and a failed save keep it open with
// what was typed.
TEST(EdycjaKonta, KindsFieldsSaveAndFailure) {
  MagazynTestowy m;
  sesja.pubFiltrCzasowy.pozycja = QDate(2026, 4, 1);
  sesja.pubKonto.id = 0;
  sesja.pubKonto.rodzaj = 3;
  qint64 id = 0;
  {
    frmEdycjaKonta e;
    e.show();
    EXPECT_EQ(e.windowTitle(), Napis(QStringLiteral("frmEdycjaKonta30")));
    EXPECT_TRUE(Kontrolka<QRadioButton>(&e, QStringLiteral("optRodzaj(3)"))->isChecked());
    EXPECT_FALSE(Kontrolka(&e, QStringLiteral("txtWinien"))->isEnabled());
    EXPECT_FALSE(Kontrolka(&e, QStringLiteral("lblWinien"))->isEnabled());
    EXPECT_FALSE(Kontrolka(&e, QStringLiteral("cmdKalkulatorWn"))->isEnabled());
    EXPECT_TRUE(Kontrolka(&e, QStringLiteral("txtMa"))->isEnabled());
    EXPECT_EQ(Kontrolka<QLineEdit>(&e, QStringLiteral("txtMa"))->text(), QStringLiteral("0"));

    Kontrolka<QRadioButton>(&e, QStringLiteral("optRodzaj(2)"))->click();
    Kontrolka<QLineEdit>(&e, QStringLiteral("txtLimit"))->setText(QStringLiteral("250.00"));
    Kontrolka<QRadioButton>(&e, QStringLiteral("optRodzaj(1)"))->click();
    EXPECT_FALSE(Kontrolka(&e, QStringLiteral("txtLimit"))->isEnabled());
    EXPECT_FALSE(Kontrolka(&e, QStringLiteral("txtMa"))->isEnabled());
    EXPECT_TRUE(Kontrolka(&e, QStringLiteral("txtWinien"))->isEnabled());
    EXPECT_EQ(Kontrolka<QLineEdit>(&e, QStringLiteral("txtLimit"))->text(), QStringLiteral("250.00"));

    Kontrolka<QPushButton>(&e, QStringLiteral("cmdOK"))->click();  // no name yet
    EXPECT_TRUE(e.isVisible());
    ASSERT_EQ(m.host.pokazane.size(), 1u);
    EXPECT_EQ(m.host.pokazane[0].tytul,
              QLatin1Char(' ') + Napis(QStringLiteral("frmEdycjaKonta26")));

    Kontrolka<QLineEdit>(&e, QStringLiteral("txtNazwa"))->setText(QStringLiteral("Gotówka"));
    Kontrolka<QLineEdit>(&e, QStringLiteral("txtWinien"))->setText(QStringLiteral("12.30"));
    Kontrolka<QPushButton>(&e, QStringLiteral("cmdOK"))->click();
    EXPECT_EQ(e.result(), int(QDialog::Accepted));
    id = sesja.pubKonto.id;
  }
  ASSERT_GT(id, 0);
  Rekordy rs = pubBaza().Czytaj(QStringLiteral("SELECT * FROM konta WHERE id=%1").arg(id));
  EXPECT_EQ(rs.Tekst(QStringLiteral("nazwa")), QStringLiteral("Gotówka"));
  EXPECT_EQ(PoleRekordu(rs, QStringLiteral("rodzaj")), 1.0);
  EXPECT_EQ(PoleRekordu(rs, QStringLiteral("limit")), 250.0);
  EXPECT_EQ(PoleRekordu(rs, QStringLiteral("bowinien")), 12.3);
  EXPECT_EQ(rs.Tekst(QStringLiteral("datautworzenia")), QStringLiteral("2026-04-01"));

  // The existing account loads; a store failure on save keeps the window and the text.
  char* blad = nullptr;
  ASSERT_EQ(sqlite3_exec(
                pubBaza().Uchwyt(),
                "CREATE TRIGGER psuj BEFORE UPDATE ON konta BEGIN SELECT RAISE(ABORT, 'busy'); END",
                nullptr, nullptr, &blad),
            SQLITE_OK);
  sesja.pubKonto.id = id;
  frmEdycjaKonta e;
  e.show();
  EXPECT_EQ(e.windowTitle(), Napis(QStringLiteral("frmEdycjaKonta31")));
  EXPECT_TRUE(Kontrolka<QRadioButton>(&e, QStringLiteral("optRodzaj(1)"))->isChecked());
  EXPECT_EQ(Kontrolka<QLineEdit>(&e, QStringLiteral("txtLimit"))->text(), FormatKwotyEdycja(250));
  EXPECT_TRUE(
      Kontrolka<QLabel>(&e, QStringLiteral("lblDataUtworzenia"))->text().contains(QStringLiteral("2026")));
  Kontrolka<QLineEdit>(&e, QStringLiteral("txtNazwa"))->setText(QStringLiteral("Nowa nazwa"));
  Kontrolka<QPushButton>(&e, QStringLiteral("cmdOK"))->click();
  EXPECT_TRUE(e.isVisible());
  EXPECT_NE(e.result(), int(QDialog::Accepted));
  EXPECT_TRUE(m.host.pokazane.back().tekst.startsWith(Napis(QStringLiteral("frmEdycjaKonta33"))));
  EXPECT_EQ(Kontrolka<QLineEdit>(&e, QStringLiteral("txtNazwa"))->text(), QStringLiteral("Nowa nazwa"));
}

// The filter buttons: exactly one pressed, the kind in the session, captions by OpisOkresu,
// and "zakres" through the range dialog.
TEST(PrzyciskiFiltra, OnePressedSharedKindAndTheRange) {
  MagazynTestowy m;
  sesja.pubFiltrCzasowy.rodzaj = 2;
  PrzyciskiFiltra p;
  int odswiezenia = 0;
  QObject::connect(&p, &PrzyciskiFiltra::zmieniony, [&] { ++odswiezenia; });
  const auto wcisniete = [&] {
    QList<int> w;
    for (int i = 0; i < 7; ++i)
      if (Kontrolka<QPushButton>(&p, QStringLiteral("cmdFiltr(%1)").arg(i))->isChecked()) w << i;
    return w;
  };
  EXPECT_EQ(wcisniete(), QList<int>{2});
  for (int i : {5, 0, 5, 1}) {
    Kontrolka<QPushButton>(&p, QStringLiteral("cmdFiltr(%1)").arg(i))->click();
    EXPECT_EQ(wcisniete(), QList<int>{i});
    EXPECT_EQ(sesja.pubFiltrCzasowy.rodzaj, i);
  }
  EXPECT_EQ(odswiezenia, 4);
  for (int i = 0; i < 7; ++i)
    EXPECT_EQ(Kontrolka<QPushButton>(&p, QStringLiteral("cmdFiltr(%1)").arg(i))->text(), OpisOkresu(i));

  NaModalnym([](QWidget* d) {
    EXPECT_EQ(d->objectName(), QStringLiteral("frmZakresDat"));
    Kontrolka<QPushButton>(d, QStringLiteral("cmdOK"))->click();
  });
  sesja.pubFiltrCzasowy.od = QDate(2026, 3, 1);
  sesja.pubFiltrCzasowy.do_ = QDate(2026, 3, 31);
  Kontrolka<QPushButton>(&p, QStringLiteral("cmdZakres"))->click();
  EXPECT_EQ(sesja.pubFiltrCzasowy.rodzaj, 6);
  EXPECT_EQ(wcisniete(), QList<int>{6});
  EXPECT_EQ(odswiezenia, 5);
  EXPECT_TRUE(Kontrolka<QPushButton>(&p, QStringLiteral("cmdFiltr(6)"))
                  ->text()
                  .contains(FormatDatyOkresu(QDate(2026, 3, 31))));
}
