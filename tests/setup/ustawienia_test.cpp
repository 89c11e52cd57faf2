// The user's settings as the user fills them in: data kept exactly, the password typed twice
// with its three messages, and the password locking the store, kept, and removed again.

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>

#include "common/magazyn_testowy.h"
#include "setup/frmUstawienia.h"
#include "setup/haslo.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"

namespace {
void wpisz(QWidget* f, const char* nazwa, const QString& tekst) {
  auto* p = f->findChild<QLineEdit*>(QLatin1String(nazwa));
  ASSERT_NE(p, nullptr) << nazwa;
  p->setText(tekst);
  emit p->textEdited(tekst);
}
QString tekst(QWidget* f, const char* nazwa) {
  return f->findChild<QLineEdit*>(QLatin1String(nazwa))->text();
}
void ok(QWidget* f) { f->findChild<QPushButton*>(QStringLiteral("cmdOK"))->click(); }

// Opens the file as another program would; "" is the program's own key.
bool otwieraSie(const QString& plik, const QString& klucz) {
  Baza b;
  return b.Otworz(plik, nullptr, klucz.toUtf8(), true) &&
         b.Czytaj(QStringLiteral("SELECT COUNT(*) AS ile FROM setup")).Ok();
}
}  // namespace

TEST(Ustawienia, DataAndPasswordMessages) {
  MagazynTestowy m;
  const QString nazwisko = QStringLiteral("O'Brien-Żółkiewska ąćęłńóśźż");
  {
    frmUstawienia f;
    wpisz(&f, "txtImie", QStringLiteral("Łucja"));
    wpisz(&f, "txtNazwisko", nazwisko);
    wpisz(&f, "txtUlica", QStringLiteral("ul. Świętego Marcina 12/3"));
    wpisz(&f, "txtMiasto", QStringLiteral("61-806 Poznań"));
    wpisz(&f, "txtLk", QStringLiteral("12"));
    wpisz(&f, "txtKonto", QStringLiteral("1020 4027 0000 1102 0123 4567"));
    wpisz(&f, "txtBank", QStringLiteral("PKO BP"));
    // The three disagreements, each with its own message; nothing is stored meanwhile.
    const std::pair<const char*, const char*> zle[] = {{"", "abc"}, {"abc", ""}, {"Abc", "abc"}};
    int klucz = 15;
    for (const auto& [h1, h2] : zle) {
      wpisz(&f, "txtHaslo", QString::fromLatin1(h1));
      wpisz(&f, "txtHaslo2", QString::fromLatin1(h2));
      ok(&f);
      ASSERT_FALSE(m.host.pokazane.empty());
      EXPECT_EQ(m.host.pokazane.back().tekst, Napis(QStringLiteral("frmUstawienia%1").arg(klucz)));
      klucz += 2;
      EXPECT_NE(f.result(), QDialog::Accepted);
      EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM setup WHERE imie IS NOT NULL")), 0);
    }
    // Eleven characters are one too many: the message, and the field keeps ten.
    wpisz(&f, "txtHaslo", QStringLiteral("12345678901"));
    EXPECT_EQ(m.host.pokazane.back().tekst, Napis(QStringLiteral("frmUstawienia21")));
    EXPECT_EQ(tekst(&f, "txtHaslo"), QStringLiteral("1234567890"));
    wpisz(&f, "txtHaslo", QString());
    wpisz(&f, "txtHaslo2", QString());
    ok(&f);
    EXPECT_EQ(f.result(), QDialog::Accepted);
  }
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM setup WHERE nazwisko='O''Brien-Żółkiewska "
                                  "ąćęłńóśźż' AND miasto='61-806 Poznań' AND lk='12' AND "
                                  "(haslo IS NULL OR haslo='')")),
            1);
  frmUstawienia znowu;
  EXPECT_EQ(tekst(&znowu, "txtNazwisko"), nazwisko);
  EXPECT_EQ(tekst(&znowu, "txtHaslo"), QString());
}

// A password set in the settings locks the store under it and keeps only its hash; OK with the
// stars untouched keeps it; two emptied fields give the store back the program's key.
TEST(Ustawienia, PasswordLocksKeepsAndRemoves) {
  MagazynTestowy m;
  const QString haslo = QStringLiteral("Źdź'bło 7");
  {
    frmUstawienia f;
    wpisz(&f, "txtImie", QStringLiteral("Jan"));
    wpisz(&f, "txtHaslo", haslo);
    wpisz(&f, "txtHaslo2", haslo);
    ok(&f);
    ASSERT_EQ(f.result(), QDialog::Accepted) << (m.host.pokazane.empty() ? std::string()
                                                 : m.host.pokazane.back().tekst.toStdString());
  }
  EXPECT_TRUE(otwieraSie(m.Plik(), haslo));
  EXPECT_FALSE(otwieraSie(m.Plik(), QString()));
  const QString zapisane =
      pubBaza().Czytaj(QStringLiteral("SELECT haslo FROM setup")).Tekst(QStringLiteral("haslo"));
  EXPECT_TRUE(CzyHashHasla(zapisane));
  EXPECT_TRUE(SprawdzHaslo(haslo, zapisane));
  EXPECT_FALSE(SprawdzHaslo(QStringLiteral("źdź'bło 7"), zapisane));
  {
    frmUstawienia f;
    EXPECT_FALSE(tekst(&f, "txtHaslo").isEmpty()) << "a set password shows as stars";
    wpisz(&f, "txtImie", QStringLiteral("Janina"));
    ok(&f);
    EXPECT_EQ(f.result(), QDialog::Accepted);
  }
  EXPECT_TRUE(otwieraSie(m.Plik(), haslo));
  EXPECT_EQ(pubBaza().Czytaj(QStringLiteral("SELECT haslo, imie FROM setup")).Tekst(QStringLiteral("imie")),
            QStringLiteral("Janina"));
  {
    frmUstawienia f;
    wpisz(&f, "txtHaslo", QString());
    wpisz(&f, "txtHaslo2", QString());
    ok(&f);
    EXPECT_EQ(f.result(), QDialog::Accepted);
  }
  EXPECT_TRUE(otwieraSie(m.Plik(), QString()));
  EXPECT_TRUE(pubBaza().Czytaj(QStringLiteral("SELECT haslo FROM setup")).Tekst(QStringLiteral("haslo")).isEmpty());
}
