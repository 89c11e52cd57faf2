// A new account, category or counterparty whose name differs from an existing one only in case,
// Polish letters included, is a duplicate to the user: each editor asks before saving it, Nie
// keeps the editor open with nothing saved, Tak saves the second row.

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <functional>
#include <memory>

#include "common/magazyn_testowy.h"
#include "ekrany_pomoc.h"
#include "masterdata/frmEdycjaKategorii.h"
#include "masterdata/frmEdycjaKonta.h"
#include "masterdata/frmEdycjaKontrahenta.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"

namespace {

struct Edytor {
  const char* nazwa;         // the editor's form name
  const char* poleNazwy;     // its name field
  const char* ok;            // its OK button
  const char* tytulPytania;  // the key of the duplicate question's title
  const char* tabela;
  const char* kolumna;
  std::function<std::unique_ptr<QDialog>()> otworz;
};

const Edytor kEdytory[] = {
    {"frmEdycjaKonta", "txtNazwa", "cmdOK", "frmEdycjaKonta29", "konta", "nazwa",
     [] {
       sesja.pubKonto.id = 0;
       sesja.pubKonto.rodzaj = 1;
       return std::make_unique<frmEdycjaKonta>();
     }},
    {"frmEdycjaKategorii", "txtNazwa", "cmdOK", "frmEdycjaKategorii11", "kategorie", "nazwa",
     [] {
       sesja.pubKategoria = {QString(), QString(), QStringLiteral("Root"), 2};
       return std::make_unique<frmEdycjaKategorii>();
     }},
    {"frmEdycjaKontrahenta", "txtNazwaSkrocona", "cmdOk", "frmEdycjaKontrahenta19", "kontrahent",
     "skrocona",
     [] {
       sesja.pubKontrahent.id = 0;
       return std::make_unique<frmEdycjaKontrahenta>();
     }},
};

// Saves a name through the editor as a user does; answers the duplicate question with
// odpowiedz if it comes. Returns whether the question came.
bool Zapisz(MagazynTestowy& m, const Edytor& e, const QString& nazwa, int odpowiedz) {
  m.host.pokazane.clear();
  m.host.odpowiedzi = {odpowiedz};
  auto okno = e.otworz();
  okno->show();
  Kontrolka<QLineEdit>(okno.get(), e.poleNazwy)->setText(nazwa);
  Kontrolka<QPushButton>(okno.get(), e.ok)->click();
  bool pytanie = false;
  for (const Komunikat& k : m.host.pokazane)
    if (k.tytul.trimmed() == Napis(QLatin1String(e.tytulPytania)).trimmed()) {
      pytanie = true;
      EXPECT_TRUE(k.tekst.contains(nazwa)) << e.nazwa << ": " << k.tekst.toStdString();
    }
  // Nie to the question keeps the editor open; otherwise it closes as saved.
  EXPECT_EQ(okno->isVisible(), pytanie && odpowiedz == WynikNie) << e.nazwa;
  return pytanie;
}

}  // namespace

TEST(DuplikatyNazw, OtherCaseAndPolishLettersAskInAllThreeEditors) {
  for (const Edytor& e : kEdytory) {
    SCOPED_TRACE(e.nazwa);
    MagazynTestowy m;
    const auto ile = [&](const QString& n) {
      // Byte for byte, whatever the store's own comparison of texts.
      return m.Licz(QStringLiteral("SELECT COUNT(*) FROM %1 WHERE hex(%2)=hex('%3')")
                        .arg(QLatin1String(e.tabela), QLatin1String(e.kolumna), n));
    };
    for (const auto& [pierwsza, druga] :
         {std::pair{QStringLiteral("Portfel"), QStringLiteral("portfel")},
          std::pair{QStringLiteral("Żywność"), QStringLiteral("ŻYWNOŚĆ")}}) {
      EXPECT_FALSE(Zapisz(m, e, pierwsza, WynikTak)) << pierwsza.toStdString();
      ASSERT_EQ(ile(pierwsza), 1);
      // The other-case name is the same name: asked, and Nie saves nothing.
      EXPECT_TRUE(Zapisz(m, e, druga, WynikNie)) << druga.toStdString();
      EXPECT_EQ(ile(druga), 0) << druga.toStdString();
      // Tak saves it as typed beside the first.
      EXPECT_TRUE(Zapisz(m, e, druga, WynikTak)) << druga.toStdString();
      EXPECT_EQ(ile(druga), 1) << druga.toStdString();
      EXPECT_EQ(ile(pierwsza), 1) << pierwsza.toStdString();
    }
  }
}
