#include "setup/haslo.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "common/magazyn_testowy.h"
#include "setup/frmHaslo.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/start.h"

namespace {
QString wzorzec(int iteracje, const QByteArray& sol, const QByteArray& kluczHex) {
  return QStringLiteral("pbkdf2-sha256$%1$%2$%3")
      .arg(iteracje)
      .arg(QString::fromLatin1(sol.toBase64()),
           QString::fromLatin1(QByteArray::fromHex(kluczHex).toBase64()));
}

// Types the text into the gate and presses OK.
void wpisz(frmHaslo& f, const QString& tekst) {
  f.findChild<QLineEdit*>(QStringLiteral("txtHaslo"))->setText(tekst);
  f.findChild<QPushButton*>(QStringLiteral("cmdOK"))->click();
}

QString hasloWBazie() {
  return pubBaza().Czytaj(QStringLiteral("SELECT haslo FROM setup")).Tekst(QStringLiteral("haslo"));
}
}  // namespace

// The hash is salted PBKDF2-HMAC-SHA256: it matches published test values, never holds the
// password, differs on every save, and the check is exact and case-sensitive. A value that is
// not a hash (an older store) is compared as plain text.
TEST(Haslo, SaltedHashAndExactCheck) {
  EXPECT_TRUE(SprawdzHaslo(
      QStringLiteral("passwd"),
      wzorzec(1, "salt", "55ac046e56e3089fec1691c22544b605f94185216dde0465e68b9d57c20dacbc")));
  EXPECT_TRUE(SprawdzHaslo(
      QStringLiteral("Password"),
      wzorzec(80000, "NaCl", "4ddcd8f60b98be21830cee5ef22701f9641a4418d04c0414aeff08876b34ab56")));
  EXPECT_FALSE(SprawdzHaslo(
      QStringLiteral("password"),
      wzorzec(1, "salt", "55ac046e56e3089fec1691c22544b605f94185216dde0465e68b9d57c20dacbc")));

  const QString a = HashHasla(QStringLiteral("Zażółć'1"));
  const QString b = HashHasla(QStringLiteral("Zażółć'1"));
  EXPECT_TRUE(CzyHashHasla(a));
  EXPECT_NE(a, b) << "each hash has its own salt";
  EXPECT_FALSE(a.contains(QStringLiteral("Zażółć")));
  EXPECT_TRUE(SprawdzHaslo(QStringLiteral("Zażółć'1"), a));
  EXPECT_TRUE(SprawdzHaslo(QStringLiteral("Zażółć'1"), b));
  EXPECT_FALSE(SprawdzHaslo(QStringLiteral("zażółć'1"), a));
  EXPECT_FALSE(SprawdzHaslo(QStringLiteral("Zażółć'1 "), a));
  EXPECT_FALSE(SprawdzHaslo(QString(), a));
  EXPECT_EQ(HashHasla(QString()), QString());

  EXPECT_TRUE(SprawdzHaslo(QStringLiteral("Abc"), QStringLiteral("Abc")));
  EXPECT_FALSE(SprawdzHaslo(QStringLiteral("abc"), QStringLiteral("Abc")));
  // Damaged hash text is no hash: only the very same text opens it.
  const QString zepsuty = QStringLiteral("pbkdf2-sha256$x$c2FsdA==$AAAA");
  EXPECT_FALSE(CzyHashHasla(zepsuty));
  EXPECT_FALSE(SprawdzHaslo(QStringLiteral("x"), zepsuty));
  EXPECT_TRUE(SprawdzHaslo(zepsuty, zepsuty));
}

// Three wrong tries: a message each time, the field cleared, the third closes the gate with the
// password still set and the store as it was. "abc" is not "Abc".
TEST(frmHaslo, ThreeWrongTriesCloseTheGate) {
  MagazynTestowy m;
  WczytajSetup();
  const QString hash = HashHasla(QStringLiteral("Abc"));
  pubBaza().Wykonaj(QStringLiteral("UPDATE setup SET haslo=") + SqlTekst(hash));
  WczytajSetup();
  ASSERT_EQ(sesja.pubUstawienia.haslo, hash);

  frmHaslo f;
  f.show();
  auto* pole = f.findChild<QLineEdit*>(QStringLiteral("txtHaslo"));
  EXPECT_EQ(pole->echoMode(), QLineEdit::Password);
  wpisz(f, QStringLiteral("abc"));
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_EQ(m.host.pokazane[0].tekst, Napis(QStringLiteral("frmHaslo4")));
  EXPECT_EQ(m.host.pokazane[0].tytul, QLatin1Char(' ') + Napis(QStringLiteral("frmHaslo5")));
  EXPECT_TRUE(pole->text().isEmpty());
  EXPECT_TRUE(f.isVisible());
  wpisz(f, QStringLiteral("ABC"));
  EXPECT_TRUE(f.isVisible());
  wpisz(f, QStringLiteral("Abc "));
  EXPECT_FALSE(f.isVisible());
  EXPECT_EQ(f.result(), QDialog::Rejected);
  ASSERT_EQ(m.host.pokazane.size(), 4u);
  EXPECT_EQ(m.host.pokazane[3].tekst, Napis(QStringLiteral("frmHaslo6")));
  EXPECT_EQ(m.host.pokazane[3].ikona, IkonaOstrzezenie);
  EXPECT_EQ(sesja.pubUstawienia.haslo, hash);
  EXPECT_EQ(hasloWBazie(), hash);
}

// The right password empties the one in memory (the gate is passed) but not the store; Cancel
// leaves it set. A plain password of an older store opens once: at that moment it is replaced
// by its salted hash and the store is locked with it, so that the plain text counts no more.
TEST(frmHaslo, RightPasswordCancelAndPlainStore) {
  MagazynTestowy m;
  WczytajSetup();
  const QString hash = HashHasla(QStringLiteral("Abc"));
  sesja.pubUstawienia.haslo = hash;
  {
    frmHaslo f;
    f.show();
    wpisz(f, QStringLiteral("Abc"));
    EXPECT_EQ(f.result(), QDialog::Accepted);
    EXPECT_TRUE(sesja.pubUstawienia.haslo.isEmpty());
    EXPECT_TRUE(m.host.pokazane.empty());
  }
  sesja.pubUstawienia.haslo = hash;
  {
    frmHaslo f;
    f.show();
    f.findChild<QPushButton*>(QStringLiteral("cmdAnuluj"))->click();
    EXPECT_EQ(f.result(), QDialog::Rejected);
    EXPECT_EQ(sesja.pubUstawienia.haslo, hash);
  }

  MagazynTestowy stary;
  WczytajSetup();
  ASSERT_TRUE(pubBaza().Wykonaj(QStringLiteral("UPDATE setup SET haslo='Abc'")));
  WczytajSetup();
  {
    frmHaslo f;
    f.show();
    wpisz(f, QStringLiteral("abc"));
    EXPECT_FALSE(sesja.pubUstawienia.haslo.isEmpty());
    wpisz(f, QStringLiteral("Abc"));
    EXPECT_EQ(f.result(), QDialog::Accepted);
    EXPECT_TRUE(sesja.pubUstawienia.haslo.isEmpty());
  }
  const QString teraz = hasloWBazie();
  EXPECT_TRUE(CzyHashHasla(teraz)) << teraz.toStdString();
  EXPECT_TRUE(SprawdzHaslo(QStringLiteral("Abc"), teraz));
  EXPECT_FALSE(SprawdzHaslo(teraz, teraz)) << "the stored text itself is no password";
  Baza b;
  QString blad;
  EXPECT_FALSE(b.Otworz(stary.Plik(), &blad)) << "no longer under the program's key";
  EXPECT_TRUE(b.Otworz(stary.Plik(), &blad, QByteArrayLiteral("Abc"))) << blad.toStdString();
  ASSERT_EQ(stary.host.pokazane.size(), 1u);
  EXPECT_EQ(stary.host.pokazane[0].tekst, Napis(QStringLiteral("frmHaslo4")));
}
