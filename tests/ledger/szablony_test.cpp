// Templates from the user's side: the lists' joins and letter-by-letter search, the editors'
// checks in order and texts stored exactly, delete by the Delete key, and the entry and transfer
// editors taking a template through the picker or keeping their fields when it is closed.

#include "ledger/szablony.h"

#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <memory>

#include "common/magazyn_testowy.h"
#include "ledger/frmEdycjaSzablonuZewnetrznego.h"
#include "ledger/frmEdycjaTransakcji.h"
#include "ledger/frmEdycjaTransakcjiWewnetrznej.h"
#include "ledger/frmSzablonyWewnetrzne.h"
#include "ledger/frmSzablonyZewnetrzne.h"
#include "ledger/transakcje_pomoc.h"
#include "store/filtr.h"
#include "store/tekst.h"

using namespace testy_wpisow;

namespace {

class Szablony : public ::testing::Test {
 protected:
  void SetUp() override {
    bank = KontoT(QStringLiteral("Bank Śląski"), 2, 500.0);
    gotowka = KontoT(QStringLiteral("Portfel"), 1, 80.0);
    KategoriaT(QStringLiteral("a"), 2, QStringLiteral("Żywność"));
    KategoriaT(QStringLiteral("b"), 2, QStringLiteral("Mieszkanie"));
    KategoriaT(QStringLiteral("a"), 1, QStringLiteral("Pensja"));
    sklep = KontrahentT(QStringLiteral("Łódzka Piekarnia"));
  }
  qint64 SzablonT(int rodzaj, const QString& nazwa, qint64 konto, const QString& kategoria,
                  qint64 kontrahent, const QString& opis) {
    EXPECT_TRUE(pubBaza()
                    .Wykonaj(QStringLiteral("INSERT INTO szablony (rodzaj,nazwa,konto,kategoria,"
                                            "kontrahent,opis) VALUES (%1,%2,%3,%4,%5,%6)")
                                 .arg(rodzaj)
                                 .arg(SqlTekst(nazwa))
                                 .arg(konto)
                                 .arg(SqlTekst(kategoria))
                                 .arg(kontrahent)
                                 .arg(SqlTekst(opis)))
                    .ok);
    return pubBaza().OstatnieId();
  }
  static QStringList Nazwy(const std::vector<WierszSzablonu>& w) {
    QStringList n;
    for (const auto& s : w) n << s.nazwa;
    return n;
  }

  MagazynTestowy m;
  qint64 bank = 0, gotowka = 0, sklep = 0;
};

}  // namespace

// What the list shows: the joins drop a template whose account went, the account carries its kind,
// and each of the five fields is searched, blind to case, Polish letters included.
TEST_F(Szablony, ListJoinsAndSearchOverFiveFields) {
  SzablonT(2, QStringLiteral("Chleb"), bank, QStringLiteral("a"), sklep, QStringLiteral("co rano"));
  SzablonT(2, QStringLiteral("Czynsz"), gotowka, QStringLiteral("b"), 0,
           QStringLiteral("za lokal"));
  const qint64 znikajace = KontoT(QStringLiteral("Stare"), 1);
  SzablonT(2, QStringLiteral("Osierocony"), znikajace, QStringLiteral("a"), 0, QString());
  SzablonT(1, QStringLiteral("Wypłata"), bank, QStringLiteral("a"), 0, QString());
  ASSERT_TRUE(pubBaza().Wykonaj(QStringLiteral("DELETE FROM konta WHERE id=%1").arg(znikajace)).ok);

  const auto wszystkie = ListaSzablonow(2, QString());
  EXPECT_EQ(Nazwy(wszystkie), (QStringList{"Chleb", "Czynsz"}));
  EXPECT_EQ(wszystkie[0].konto, QStringLiteral("Bank Śląski (") + NazwaRodzajuKonta(2) + ")");
  EXPECT_EQ(wszystkie[0].kontrahent, QStringLiteral("Łódzka Piekarnia"));
  EXPECT_EQ(Nazwy(ListaSzablonow(1, QString())), QStringList{"Wypłata"});

  EXPECT_EQ(Nazwy(ListaSzablonow(2, QStringLiteral("CHL"))), QStringList{"Chleb"});      // name
  EXPECT_EQ(Nazwy(ListaSzablonow(2, QStringLiteral("LOKAL"))), QStringList{"Czynsz"});   // opis
  EXPECT_EQ(Nazwy(ListaSzablonow(2, QStringLiteral("śląs"))), QStringList{"Chleb"});     // konto
  EXPECT_EQ(Nazwy(ListaSzablonow(2, QStringLiteral("MIESZK"))), QStringList{"Czynsz"});  // kat.
  EXPECT_EQ(Nazwy(ListaSzablonow(2, QStringLiteral("łÓDZKA"))), QStringList{"Chleb"});   // kontr.
  EXPECT_TRUE(ListaSzablonow(2, QStringLiteral("d'Artagnan")).empty());

  // The same through the screen, letter by letter.
  sesja.pubSzablonRodzaj = 2;
  sesja.pubSzablonWybor = 2;
  frmSzablonyZewnetrzne f;
  auto* lista = Kontrolka<QTreeWidget>(&f, "lvwSzablonyTransakcji");
  EXPECT_EQ(lista->topLevelItemCount(), 2);
  EXPECT_FALSE(Kontrolka<QPushButton>(&f, "cmdWybierz")->isVisibleTo(&f));
  // A letter that keeps both rows keeps the line the user stands on; one that narrows moves on.
  lista->setCurrentItem(lista->topLevelItem(1));
  Kontrolka<QLineEdit>(&f, "txtKlucz")->setText(QStringLiteral("c"));
  EXPECT_EQ(lista->currentItem()->text(0), QStringLiteral("Czynsz"));
  Kontrolka<QLineEdit>(&f, "txtKlucz")->setText(QStringLiteral("ch"));
  EXPECT_EQ(lista->currentItem()->text(0), QStringLiteral("Chleb"));
  Kontrolka<QLineEdit>(&f, "txtKlucz")->setText(QStringLiteral("m"));
  EXPECT_EQ(lista->topLevelItemCount(), 1);  // Mieszkanie; "Chleb" has no m anywhere
  Kontrolka<QLineEdit>(&f, "txtKlucz")->setText(QStringLiteral("mx"));
  EXPECT_EQ(lista->topLevelItemCount(), 0);

  // Transfer templates: both accounts must exist.
  ASSERT_TRUE(pubBaza()
                  .Wykonaj(QStringLiteral("INSERT INTO szablonywewnetrzne (nazwa,zkonta,nakonto,"
                                          "opis) VALUES ('Oszczędzanie',%1,%2,'co miesiąc')")
                               .arg(bank)
                               .arg(gotowka))
                  .ok);
  ASSERT_TRUE(pubBaza()
                  .Wykonaj(QStringLiteral("INSERT INTO szablonywewnetrzne (nazwa,zkonta,"
                                          "nakonto,opis) VALUES ('Zły',%1,999,'')")
                               .arg(bank))
                  .ok);
  const auto przelewy = ListaSzablonowWewnetrznych(QStringLiteral("PORTF"));
  ASSERT_EQ(Nazwy(przelewy), QStringList{"Oszczędzanie"});
  EXPECT_EQ(przelewy[0].naKonto, QStringLiteral("Portfel (") + NazwaRodzajuKonta(1) + ")");
}

// The editor refuses in its order (name, account, category), then stores the name and the
// description exactly, apostrophes included; an edit changes the same row. The list deletes with
// the Delete key after its question.
TEST_F(Szablony, EditorChecksStoresExactlyAndListDeletes) {
  sesja.pubSzablonRodzaj = 2;
  sesja.pubSzablonId = 0;
  sesja.pubKonto = KontoRekord();
  sesja.pubKategoria = KategoriaRekord();
  sesja.pubKontrahent = KontrahentRekord();
  auto f = std::make_unique<frmEdycjaSzablonuZewnetrznego>();
  EXPECT_TRUE(sesja.pubEdytorOtwarty);
  auto ok = [&] { Kontrolka<QPushButton>(f.get(), "cmdOk")->click(); };
  Kontrolka<QLineEdit>(f.get(), "txtNazwa")->setText(QStringLiteral("   "));
  ok();
  Kontrolka<QLineEdit>(f.get(), "txtNazwa")->setText(QStringLiteral("O'Brien's"));
  ok();
  sesja.pubKonto.id = bank;
  ok();
  EXPECT_EQ(TytulyKomunikatow(m.host, {QStringLiteral("frmEdycjaSzablonuZewnetrznego15"),
                                       QStringLiteral("frmEdycjaSzablonuZewnetrznego17"),
                                       QStringLiteral("frmEdycjaSzablonuZewnetrznego19")}),
            (QStringList{"frmEdycjaSzablonuZewnetrznego15", "frmEdycjaSzablonuZewnetrznego17",
                         "frmEdycjaSzablonuZewnetrznego19"}));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM szablony")), 0);
  m.host.pokazane.clear();

  sesja.pubKategoria.identyfikator = QStringLiteral("a");
  Kontrolka<QLineEdit>(f.get(), "txtOpis")->setText(QStringLiteral("chleb 'razowy' ąćęłńóśźż"));
  sesja.pubKontrahent.id = sklep;
  ok();
  EXPECT_TRUE(m.host.pokazane.empty());
  f.reset();
  EXPECT_FALSE(sesja.pubEdytorOtwarty);
  const Rekordy rs = pubBaza().Czytaj(QStringLiteral("SELECT * FROM szablony"));
  ASSERT_EQ(rs.RecordCount(), 1);
  EXPECT_EQ(rs.Tekst(QStringLiteral("nazwa")), QStringLiteral("O'Brien's"));
  EXPECT_EQ(rs.Tekst(QStringLiteral("opis")), QStringLiteral("chleb 'razowy' ąćęłńóśźż"));
  EXPECT_EQ(rs.Pole(QStringLiteral("kontrahent")).toLongLong(), sklep);
  const qint64 id = rs.Pole(QStringLiteral("id")).toLongLong();

  sesja.pubSzablonId = id;
  f = std::make_unique<frmEdycjaSzablonuZewnetrznego>();
  EXPECT_EQ(Kontrolka<QLineEdit>(f.get(), "txtNazwa")->text(), QStringLiteral("O'Brien's"));
  EXPECT_EQ(Kontrolka<QLabel>(f.get(), "lblKontrahent")->text(),
            QStringLiteral("Łódzka Piekarnia"));
  Kontrolka<QLineEdit>(f.get(), "txtNazwa")->setText(QStringLiteral("Chleb"));
  ok();
  f.reset();
  EXPECT_EQ(
      m.Licz(QStringLiteral("SELECT COUNT(*) FROM szablony WHERE nazwa='Chleb' AND id=%1").arg(id)),
      1);

  sesja.pubSzablonWybor = 2;
  frmSzablonyZewnetrzne lista;
  auto* lvw = Kontrolka<QTreeWidget>(&lista, "lvwSzablonyTransakcji");
  ASSERT_EQ(lvw->topLevelItemCount(), 1);
  m.host.odpowiedzi = {WynikNie, WynikTak};
  QKeyEvent del(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
  QApplication::sendEvent(lvw, &del);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM szablony")), 1);
  QApplication::sendEvent(lvw, &del);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM szablony")), 0);
  EXPECT_EQ(lvw->topLevelItemCount(), 0);
  ASSERT_EQ(m.host.pokazane.size(), 2u);
  EXPECT_TRUE(m.host.pokazane[0].tekst.contains(QStringLiteral("Chleb ?")));
}

// The picker fills a new entry's account, category, counterparty and description and keeps the
// amount; a picker closed without a choice leaves everything as it was. The same for a transfer.
TEST_F(Szablony, PickerFillsTheEditorAndACancelLeavesIt) {
  SzablonT(2, QStringLiteral("Chleb"), gotowka, QStringLiteral("a"), sklep,
           QStringLiteral("bułki i chleb"));
  sesja.pubTryb = 2;
  sesja.pubTransakcja = {0, 2};
  sesja.pubKategoria.rodzaj = 2;
  sesja.pubWidokZrodlowy = 0;
  sesja.pubPrzedefiniowanyKontrahent = 0;
  frmEdycjaTransakcji f;
  auto* wybierz = Kontrolka<QPushButton>(&f, "cmdWybierzSzablon");
  ASSERT_TRUE(wybierz->isEnabled());
  Kontrolka<QLineEdit>(&f, "txtKwota")->setText(QStringLiteral("12.50"));
  Kontrolka<QLineEdit>(&f, "txtOpis")->setText(QStringLiteral("moje"));
  ZOknem([&] { wybierz->click(); },
         [](QDialog* okno) {
           EXPECT_EQ(okno->objectName(), QStringLiteral("frmSzablonyZewnetrzne"));
           // Picking lines and closing is no choice.
           Kontrolka<QTreeWidget>(okno, "lvwSzablonyTransakcji")
               ->setCurrentItem(
                   Kontrolka<QTreeWidget>(okno, "lvwSzablonyTransakcji")->topLevelItem(0));
           Kontrolka<QPushButton>(okno, "cmdAnuluj")->click();
         });
  EXPECT_EQ(Kontrolka<QLineEdit>(&f, "txtOpis")->text(), QStringLiteral("moje"));
  EXPECT_EQ(sesja.pubKonto.id, 0);
  EXPECT_EQ(Kontrolka<QLabel>(&f, "lblKonto")->text(),
            Napis(QStringLiteral("frmEdycjaTransakcji9")));

  ZOknem([&] { wybierz->click(); },
         [](QDialog* okno) {
           auto* lvw = Kontrolka<QTreeWidget>(okno, "lvwSzablonyTransakcji");
           ASSERT_EQ(lvw->topLevelItemCount(), 1);
           lvw->setCurrentItem(lvw->topLevelItem(0));
           Kontrolka<QPushButton>(okno, "cmdWybierz")->click();
         });
  EXPECT_EQ(Kontrolka<QLineEdit>(&f, "txtOpis")->text(), QStringLiteral("bułki i chleb"));
  EXPECT_EQ(Kontrolka<QLineEdit>(&f, "txtKwota")->text(), QStringLiteral("12.50"));
  EXPECT_EQ(sesja.pubKonto.id, gotowka);
  EXPECT_DOUBLE_EQ(sesja.pubKonto.saldo, 80.0);
  EXPECT_EQ(Kontrolka<QLabel>(&f, "lblKategoria")->text().trimmed(), QStringLiteral("Żywność"));
  EXPECT_EQ(Kontrolka<QLabel>(&f, "lblKontrahent")->text(), QStringLiteral("Łódzka Piekarnia"));
  f.cmdOk_Click();
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje WHERE wydatek=12.5 AND "
                                  "kategoria='a' AND konto=%1 AND kontrahent=%2")
                       .arg(gotowka)
                       .arg(sklep)),
            1);

  // An existing entry takes no template.
  sesja.pubTransakcja.id = pubBaza().OstatnieId();
  frmEdycjaTransakcji istniejaca;
  EXPECT_FALSE(Kontrolka<QPushButton>(&istniejaca, "cmdWybierzSzablon")->isEnabled());

  ASSERT_TRUE(pubBaza()
                  .Wykonaj(QStringLiteral("INSERT INTO szablonywewnetrzne (nazwa,zkonta,nakonto,"
                                          "opis) VALUES ('Wypłata z banku',%1,%2,'bankomat')")
                               .arg(bank)
                               .arg(gotowka))
                  .ok);
  sesja.pubTransfer = 0;
  frmEdycjaTransakcjiWewnetrznej t;
  ZOknem([&] { Kontrolka<QPushButton>(&t, "cmdSzablon")->click(); },
         [](QDialog* okno) { Kontrolka<QPushButton>(okno, "cmdAnuluj")->click(); });
  EXPECT_EQ(t.ZKonta().id, 0);
  ZOknem([&] { Kontrolka<QPushButton>(&t, "cmdSzablon")->click(); },
         [](QDialog* okno) {
           auto* lvw = Kontrolka<QTreeWidget>(okno, "lvwSzablonyTransakcji");
           emit lvw->itemDoubleClicked(lvw->topLevelItem(0), 0);
         });
  EXPECT_EQ(t.ZKonta().id, bank);
  EXPECT_EQ(t.NaKonto().id, gotowka);
  EXPECT_EQ(Kontrolka<QLineEdit>(&t, "txtOpis")->text(), QStringLiteral("bankomat"));
  EXPECT_EQ(sesja.pubSzablonWybor, 2);
}
