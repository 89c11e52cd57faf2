// The first-run wizard from the user's side: the ready sets as valid category trees, nothing
// written before the finish, the last choice alone written, an abort taking back the accounts
// and counterparties and nothing else.

#include <gtest/gtest.h>

#include <algorithm>

#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QTreeWidget>

#include "common/magazyn_testowy.h"
#include "masterdata/kategorie.h"
#include "setup/frmKreatorKategorie.h"
#include "setup/frmKreatorKolory.h"
#include "setup/frmKreatorKonta.h"
#include "setup/frmKreatorKontrahenci.h"
#include "setup/kolory.h"
#include "setup/kreator.h"
#include "setup/start_gui.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/start.h"
#include "store/session.h"
#include "ui/nawigacja_gui.h"

namespace {
// Start-up tests run the program on empty stores: there the wizard's windows close at once,
// unfinished, unless a test puts its own in.
class BezKreatora : public ::testing::Environment {
 public:
  void SetUp() override {
    Nawigacja::Zarejestruj(QStringLiteral("frmKreatorWitamy"), [](QWidget*) {});
    Nawigacja::Zarejestruj(QStringLiteral("frmKreatorKategorie"), [](QWidget*) {});
  }
};
[[maybe_unused]] auto* const bezKreatora = ::testing::AddGlobalTestEnvironment(new BezKreatora);

class Zastepczy {
 public:
  Zastepczy(const QString& nazwa, Nawigacja::Ekran ekran) : nazwa_(nazwa) {
    dawny_ = Nawigacja::Zarejestruj(nazwa, std::move(ekran));
  }
  ~Zastepczy() { Nawigacja::Zarejestruj(nazwa_, dawny_); }

 private:
  QString nazwa_;
  Nawigacja::Ekran dawny_;
};

template <typename T = QPushButton>
T* kontrolka(QWidget* f, const QString& nazwa) {
  auto* k = f->findChild<T*>(nazwa);
  EXPECT_NE(k, nullptr) << nazwa.toStdString();
  return k;
}

void kliknij(QWidget* f, const QString& nazwa) {
  if (auto* p = kontrolka(f, nazwa)) p->click();
}

void poczatekKreatora() {
  sesja.pubTypKreatora = sesja.pubProfilKreatora = 0;
  sesja.pubKreatorPrzerwany = sesja.pubKreatorZakonczony = false;
  sesja.pubKreatorSzerokosc = sesja.pubKreatorWysokosc = 0;
}

int dlugosc(int typ) { return int(ZestawKategorii(typ).size()); }
}  // namespace

// Each set, expense and income tree alike, in both editions: identifiers of one lower-case
// letter per level, each parent before its children and named by the key less its last letter,
// letters given in order as the category editor gives them, at most three levels, at most 26
// children, and a name in each language, no two alike under one parent whatever their case.
TEST(Kreator, EveryReadySetIsAValidCategoryTree) {
  MagazynTestowy m;
  for (int jezyk : {1, 2}) {
    sesja.pubJezyk = jezyk;
    WyczyscNapisy();
    for (int typ = 1; typ <= LiczbaZestawow; ++typ)
      for (int zestaw : {typ, typ + PrzesuniecieZestawuPrzychodow}) {
        const auto kategorie = ZestawKategorii(zestaw);
        SCOPED_TRACE(QStringLiteral("set %1, edition %2").arg(zestaw).arg(jezyk).toStdString());
        ASSERT_GE(kategorie.size(), 5u);
        QSet<QString> klucze, nazwy;
        QHash<QString, int> dzieci;
        int glebokosc = 0;
        for (const KategoriaZestawu& k : kategorie) {
          ASSERT_FALSE(k.identyfikator.isEmpty());
          for (QChar c : k.identyfikator) EXPECT_TRUE(c >= u'a' && c <= u'z') << k.identyfikator.toStdString();
          const QString rodzic = k.identyfikator.size() == 1 ? QStringLiteral("-") : k.identyfikator.chopped(1);
          EXPECT_EQ(k.kategoria, rodzic) << k.identyfikator.toStdString();
          EXPECT_TRUE(rodzic == QStringLiteral("-") || klucze.contains(rodzic));
          const int n = dzieci[rodzic]++;
          EXPECT_EQ(k.identyfikator.back(), QChar(u'a' + n)) << k.identyfikator.toStdString();
          EXPECT_LE(dzieci[rodzic], MaksDzieci);
          EXPECT_FALSE(k.nazwa.trimmed().isEmpty()) << k.identyfikator.toStdString();
          EXPECT_FALSE(nazwy.contains(rodzic + k.nazwa.toLower())) << k.nazwa.toStdString();
          nazwy.insert(rodzic + k.nazwa.toLower());
          klucze.insert(k.identyfikator);
          glebokosc = std::max(glebokosc, int(k.identyfikator.size()));
        }
        // The expense trees have two or three levels; a short income tree may be flat.
        EXPECT_GE(glebokosc, zestaw == typ ? 2 : 1);
        EXPECT_LE(glebokosc, 3);
      }
  }
  sesja.pubJezyk = 1;
  WyczyscNapisy();
  // The two editions name the same category differently, in their own language.
  EXPECT_EQ(ZestawKategorii(4).front().nazwa, QStringLiteral("Dom"));
  sesja.pubJezyk = 2;
  WyczyscNapisy();
  EXPECT_EQ(ZestawKategorii(4).front().nazwa, QStringLiteral("Home"));
  sesja.pubJezyk = 1;
  WyczyscNapisy();
}

// Step 1 and step 4 driven as a user does: nothing reaches the store while choosing; back on
// step 1 another set is chosen; the finish writes that set alone, expense and income trees, the
// colours of the profile into setup and the session, and the whole stack closes. The written
// tree works with the category rules: the next new category gets the next free letter.
TEST(Kreator, FinishWritesTheLastChoiceAlone) {
  MagazynTestowy m;
  poczatekKreatora();
  m.Licz(QStringLiteral("INSERT INTO setup (imie) VALUES ('Zażółć O''Brien')"));
  int krokiCzwarte = 0;
  bool wstecz = true;
  Zastepczy konta(QStringLiteral("frmKreatorKonta"), [&](QWidget* rodzic) {
    frmKreatorKolory f(rodzic);
    ++krokiCzwarte;
    EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kategorie")), 0);
    kontrolka<QRadioButton>(&f, QStringLiteral("optProfil(5)"))->click();
    EXPECT_EQ(sesja.pubProfilKreatora, 5);
    if (wstecz) {
      kliknij(&f, QStringLiteral("cmdWstecz"));
      EXPECT_FALSE(sesja.pubKreatorPrzerwany);
      return;
    }
    kliknij(&f, QStringLiteral("cmdDalej"));
    EXPECT_EQ(f.result(), QDialog::Accepted);
  });
  frmKreatorKategorie k;
  EXPECT_FALSE(kontrolka(&k, QStringLiteral("cmdWstecz"))->isEnabled());
  kontrolka<QRadioButton>(&k, QStringLiteral("optTyp1(3)"))->click();
  EXPECT_EQ(sesja.pubTypKreatora, 4);
  auto* drzewo = kontrolka<QTreeWidget>(&k, QStringLiteral("tvwKategorie"));
  const auto para = ZestawKategorii(4);
  EXPECT_EQ(drzewo->topLevelItem(0)->childCount(),
            int(std::count_if(para.begin(), para.end(), [](const KategoriaZestawu& z) {
              return z.kategoria == QStringLiteral("-");
            })));
  kliknij(&k, QStringLiteral("cmdDalej"));
  EXPECT_EQ(krokiCzwarte, 1);
  EXPECT_FALSE(sesja.pubKreatorZakonczony);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kategorie")), 0);

  wstecz = false;
  kontrolka<QRadioButton>(&k, QStringLiteral("optTyp1(1)"))->click();
  kliknij(&k, QStringLiteral("cmdDalej"));
  EXPECT_TRUE(sesja.pubKreatorZakonczony);
  EXPECT_EQ(k.result(), QDialog::Accepted) << "the stack unwound";
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kategorie WHERE rodzaj=2")), dlugosc(2));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kategorie WHERE rodzaj=1")),
            dlugosc(2 + PrzesuniecieZestawuPrzychodow));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kategorie WHERE nazwa='Kaucja' AND rodzaj=2")), 1);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kategorie WHERE nazwa='Dzieci'")), 0);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM setup WHERE tloaktywne='2039583' AND "
                                  "napisynieaktywne='65535' AND imie='Zażółć O''Brien'")),
            1);
  EXPECT_EQ(KoloryUstawien(sesja.pubUstawienia), ProfilKolorow(5));
  EXPECT_EQ(int(WierszeKategorii(2).size()), dlugosc(2));
  EXPECT_EQ(NastepnyIdentyfikator(QStringLiteral("-"), 2), QStringLiteral("k"));
}

// With no set chosen the finish makes no category; the colours still go in, also into a store
// without a setup row.
TEST(Kreator, FinishWithoutASetWritesColoursOnly) {
  MagazynTestowy m;
  m.Licz(QStringLiteral("DELETE FROM setup"));
  ASSERT_TRUE(ZakonczKreator(0, 2));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kategorie")), 0);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM setup WHERE listadwa='16775108'")), 1);
  // A failed finish writes nothing at all: a category already there blocks the set.
  m.Licz(QStringLiteral("INSERT INTO kategorie (rodzaj, identyfikator, kategoria, nazwa) VALUES "
                        "(2, 'bc', 'b', 'Stara')"));
  EXPECT_FALSE(ZakonczKreator(3, 5));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kategorie")), 1);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM setup WHERE listadwa='16775108'")), 1);
}

// A first run aborted in step 3: the account made in step 2 and the counterparty of step 3 go,
// the setup row and the delivered tables stay, no category is written, and the next start is
// again a first run. A No to the abort question keeps the wizard going.
TEST(Kreator, AbortedFirstRunDeletesAccountsAndCounterpartiesOnly) {
  MagazynTestowy m;
  poczatekKreatora();
  m.Licz(QStringLiteral("INSERT INTO setup (imie, tloaktywne) VALUES ('Łucja', '12303359')"));
  const qint64 zestawy = m.Licz(QStringLiteral("SELECT COUNT(*) FROM kreatorkategorie"));
  bool witamy = false;
  Zastepczy w(QStringLiteral("frmKreatorWitamy"), [&](QWidget*) { witamy = true; });
  Zastepczy k(QStringLiteral("frmKreatorKategorie"), [&](QWidget* r) {
    frmKreatorKategorie f(r);
    kontrolka<QRadioButton>(&f, QStringLiteral("optTyp1(4)"))->click();
    kliknij(&f, QStringLiteral("cmdDalej"));
  });
  Zastepczy edytor(QStringLiteral("frmEdycjaKonta"), [&](QWidget*) {
    EXPECT_EQ(sesja.pubKonto.rodzaj, 2);
    m.Licz(QStringLiteral("INSERT INTO konta (nazwa, rodzaj) VALUES ('Konto Żółwia', 2)"));
  });
  Zastepczy konta(QStringLiteral("frmKreatorKonta"), [&](QWidget* r) {
    frmKreatorKonta f(r);
    kliknij(&f, QStringLiteral("cmdDodajKonto(1)"));
    auto* drzewo = kontrolka<QTreeWidget>(&f, QStringLiteral("tvwKonta"));
    EXPECT_EQ(drzewo->currentItem()->text(0), QStringLiteral("Konto Żółwia"));
    EXPECT_EQ(drzewo->currentItem()->parent()->data(0, Qt::UserRole).toString(), QStringLiteral("r2"));
    kliknij(&f, QStringLiteral("cmdDalej"));
  });
  Zastepczy kontrahenci(QStringLiteral("frmKreatorKontrahenci"), [&](QWidget* r) {
    frmKreatorKontrahenci f(r);
    m.Licz(QStringLiteral("INSERT INTO kontrahent (skrocona, opis) VALUES ('Sklep ''U Zenka''', 'x')"));
    f.Odswiez();
    EXPECT_EQ(kontrolka<QTreeWidget>(&f, QStringLiteral("lvwKontrahenci"))->topLevelItemCount(), 1);
    m.host.odpowiedzi = {WynikNie};
    kliknij(&f, QStringLiteral("cmdPrzerwij"));
    EXPECT_FALSE(sesja.pubKreatorPrzerwany);
    m.host.odpowiedzi = {WynikTak};
    kliknij(&f, QStringLiteral("cmdPrzerwij"));
    EXPECT_TRUE(sesja.pubKreatorPrzerwany);
  });
  KreatorPierwszegoUruchomienia();
  EXPECT_TRUE(witamy);
  EXPECT_FALSE(sesja.pubKreatorZakonczony);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta")), 0);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kontrahent")), 0);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kategorie")), 0);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM setup WHERE imie='Łucja'")), 1);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kreatorkategorie")), zestawy);
  EXPECT_TRUE(CzyPustaBaza());
}
