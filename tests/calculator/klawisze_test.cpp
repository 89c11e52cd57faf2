// The keystroke rules of amount fields and the calculator's arithmetic, as pure functions.

#include <gtest/gtest.h>

#include "calculator/Kalkulator.h"
#include "store/session.h"

namespace {

class Klawisze : public ::testing::Test {
 protected:
  void SetUp() override {
    dawny_ = sesja.pubSeparator;
    sesja.pubSeparator = QStringLiteral(",");
  }
  void TearDown() override { sesja.pubSeparator = dawny_; }

  // Types a text key by key; returns how many keys the field let through to the edit control.
  static int Wpisz(PoleTekstowe& pole, const QString& klawisze) {
    int przepuszczone = 0;
    for (QChar k : klawisze) przepuszczone += kalkKeyPress(k, pole) ? 1 : 0;
    return przepuszczone;
  }
  static int Wpisz(Kalkulator& k, const QString& klawisze) {
    int przepuszczone = 0;
    for (QChar z : klawisze) przepuszczone += k.Klawisz(z) ? 1 : 0;
    return przepuszczone;
  }

 private:
  QString dawny_;
};

TEST_F(Klawisze, TypingIntoAmountFieldWritesPositionByPosition) {
  // The field as a Tab leaves it: all selected. Typing replaces it, the decimal mark jumps.
  PoleTekstowe pole{QStringLiteral("0,00"), 0, 4};
  EXPECT_EQ(Wpisz(pole, QStringLiteral("1234,5")), 0);
  EXPECT_EQ(pole.tekst, QStringLiteral("1234,50"));
  EXPECT_EQ(pole.selStart, 6);
  EXPECT_EQ(Wpisz(pole, QStringLiteral("7")), 0);
  EXPECT_EQ(pole.tekst, QStringLiteral("1234,57"));
  EXPECT_EQ(pole.selStart, 7);
  // At the end the last decimal is overwritten again and again.
  Wpisz(pole, QStringLiteral("9"));
  EXPECT_EQ(pole.tekst, QStringLiteral("1234,59"));

  // "." jumps as well, whatever the system's mark, and selects the two decimals.
  pole = {QStringLiteral("12,34"), 0, 0};
  Wpisz(pole, QStringLiteral("."));
  EXPECT_EQ(pole.selStart, 3);
  EXPECT_EQ(pole.selLength, 2);
  Wpisz(pole, QStringLiteral("5"));  // the selected decimals go: 12,50, not 12,54
  EXPECT_EQ(pole.tekst, QStringLiteral("12,50"));
  Wpisz(pole, QStringLiteral("7"));
  EXPECT_EQ(pole.tekst, QStringLiteral("12,57"));

  // A caret at the start of "0,00": the lone zero gives way, digits are inserted.
  pole = {QStringLiteral("0,00"), 0, 0};
  Wpisz(pole, QStringLiteral("123"));
  EXPECT_EQ(pole.tekst, QStringLiteral("123,00"));
  EXPECT_EQ(pole.selStart, 3);
  // A caret behind the zero behaves the same: the digit takes the zero's place.
  pole = {QStringLiteral("0,00"), 1, 0};
  Wpisz(pole, QStringLiteral("12"));
  EXPECT_EQ(pole.tekst, QStringLiteral("12,00"));

  // Inserted in the middle of the integer part; the decimals overwritten in place.
  pole = {QStringLiteral("1234,56"), 2, 0};
  Wpisz(pole, QStringLiteral("9"));
  EXPECT_EQ(pole.tekst, QStringLiteral("12934,56"));
  EXPECT_EQ(pole.selStart, 3);
  pole.selStart = 6;  // right behind the mark
  Wpisz(pole, QStringLiteral("1"));
  EXPECT_EQ(pole.tekst, QStringLiteral("12934,16"));
  EXPECT_EQ(pole.selStart, 7);

  // A selection inside the integer part is replaced by the digit.
  pole = {QStringLiteral("1234,50"), 1, 2};
  Wpisz(pole, QStringLiteral("9"));
  EXPECT_EQ(pole.tekst, QStringLiteral("194,50"));
  EXPECT_EQ(pole.selStart, 2);

  // Ten characters: no eleventh in the integer part, the decimals still take digits.
  pole = {QStringLiteral("1234567,00"), 0, 0};
  Wpisz(pole, QStringLiteral("9"));
  EXPECT_EQ(pole.tekst, QStringLiteral("1234567,00"));
  pole.selStart = 9;
  Wpisz(pole, QStringLiteral("5"));
  EXPECT_EQ(pole.tekst, QStringLiteral("1234567,05"));
}

TEST_F(Klawisze, ResetSwallowedKeysAndBrokenShape) {
  PoleTekstowe pole{QStringLiteral("1234,50"), 2, 0};
  // Refused: capital C, letters, blanks, a minus, the signs.
  EXPECT_EQ(Wpisz(pole, QStringLiteral("CxZ -+*/%=a")), 0);
  EXPECT_EQ(pole.tekst, QStringLiteral("1234,50"));
  EXPECT_EQ(pole.selStart, 2);
  // Backspace, Enter, Tab and Esc are the edit control's and the window's business.
  EXPECT_EQ(Wpisz(pole, QStringLiteral("\b\r\t\x1b")), 4);
  EXPECT_EQ(pole.tekst, QStringLiteral("1234,50"));

  // Lower-case "c" resets; the next digit starts a fresh amount.
  Wpisz(pole, QStringLiteral("c"));
  EXPECT_EQ(pole.tekst, QStringLiteral("0"));
  Wpisz(pole, QStringLiteral("7"));
  EXPECT_EQ(pole.tekst, QStringLiteral("7,00"));
  Wpisz(pole, QStringLiteral(",3"));
  EXPECT_EQ(pole.tekst, QStringLiteral("7,30"));

  // Backspace took the last decimal: the next digit finds the shape repaired and keeps 1234.
  pole = {QStringLiteral("1234,5"), 6, 0};
  Wpisz(pole, QStringLiteral("7"));
  EXPECT_EQ(pole.tekst, QStringLiteral("1234,57"));
  // Everything deleted: typing starts from 0.
  pole = {QString(), 0, 0};
  Wpisz(pole, QStringLiteral("45"));
  EXPECT_EQ(pole.tekst, QStringLiteral("45,00"));

  // Focus loss restores the shape; a comma is read as the decimal mark only where it is one.
  EXPECT_EQ(kalkFormatuj(QStringLiteral("12,5")), QStringLiteral("12,50"));
  EXPECT_EQ(kalkFormatuj(QString()), QStringLiteral("0,00"));
  EXPECT_EQ(kalkFormatuj(QStringLiteral("1234")), QStringLiteral("1234,00"));
  EXPECT_EQ(kalkFormatuj(QStringLiteral(" 007,1")), QStringLiteral("7,10"));
  EXPECT_TRUE(kalkWKsztalcie(QStringLiteral("7,10")));
  EXPECT_FALSE(kalkWKsztalcie(QStringLiteral("7.10")));
  sesja.pubSeparator = QStringLiteral(".");
  EXPECT_EQ(kalkFormatuj(QStringLiteral("12,50")), QStringLiteral("12.00"));
  EXPECT_EQ(kalkFormatuj(QStringLiteral("12.345")), QStringLiteral("12.34"));  // half to even
  pole = {QStringLiteral("0.00"), 0, 4};
  Wpisz(pole, QStringLiteral("99,5"));
  EXPECT_EQ(pole.tekst, QStringLiteral("99.50"));
}

TEST_F(Klawisze, PendingOperationChainsAndKeyboard) {
  Kalkulator k(QStringLiteral("0,00"));
  EXPECT_EQ(k.dzialanie, Kalkulator::Brak);
  // 2 + 3 + 4 = : the second "+" works out the waiting sum.
  k.Liczba(2);
  k.Dzialanie(Kalkulator::Dodaj);
  k.Liczba(3);
  k.Dzialanie(Kalkulator::Dodaj);
  EXPECT_EQ(k.Wynik(), QStringLiteral("5,00"));
  k.Liczba(4);
  k.Oblicz();
  EXPECT_EQ(k.Wynik(), QStringLiteral("9,00"));
  EXPECT_EQ(k.pamiec, QStringLiteral("0"));
  // A digit after "=" starts a new number; a second "=" changes nothing.
  k.Liczba(6);
  EXPECT_EQ(k.Wynik(), QStringLiteral("6,00"));
  k.Oblicz();
  EXPECT_EQ(k.Wynik(), QStringLiteral("6,00"));

  // The same from the keyboard, with decimals, Enter and the last of two signs winning.
  Kalkulator m(QStringLiteral("0,00"));
  EXPECT_EQ(Wpisz(m, QStringLiteral("12,5+*4\r")), 0);
  EXPECT_EQ(m.Wynik(), QStringLiteral("50,00"));
  Wpisz(m, QStringLiteral("-0,75="));
  EXPECT_EQ(m.Wynik(), QStringLiteral("49,25"));
  Wpisz(m, QStringLiteral("-50="));
  EXPECT_EQ(m.Wynik(), QStringLiteral("-0,75"));
  // A value handed in is all selected: typing replaces it, a sign computes with it.
  Kalkulator n(QStringLiteral("100,00"));
  Wpisz(n, QStringLiteral("/8\r"));
  EXPECT_EQ(n.Wynik(), QStringLiteral("12,50"));
  Kalkulator r(QStringLiteral("100,00"));
  Wpisz(r, QStringLiteral("3"));
  EXPECT_EQ(r.Wynik(), QStringLiteral("3,00"));
  // Delete and "c" clear the display only; cmdC clears the memory as well.
  Wpisz(r, QStringLiteral("+5"));
  r.Usun();
  EXPECT_EQ(r.Wynik(), QStringLiteral("0"));
  Wpisz(r, QStringLiteral("7\r"));
  EXPECT_EQ(r.Wynik(), QStringLiteral("10,00"));
  Wpisz(r, QStringLiteral("-3\r"));
  EXPECT_EQ(r.Wynik(), QStringLiteral("7,00"));
  // "," after an operator starts the second number at its decimals.
  Wpisz(r, QStringLiteral("+,5\r"));
  EXPECT_EQ(r.Wynik(), QStringLiteral("7,50"));
  r.PlusMinus();
  EXPECT_EQ(r.Wynik(), QStringLiteral("7,50"));
}

// "=" right behind an operator works the operation out with the memory, which holds 0 until a
// second number is begun: "200 - =" gives -200.00, "200 * =" 0.00, "200 + =" 200.00, and a
// second "=" changes nothing. A division by the display's own value is no division by zero.
TEST_F(Klawisze, EqualsRightAfterAnOperatorUsesTheMemory) {
  struct Przyklad {
    const char* klawisze;
    const char* wynik;
  } przyklady[] = {
      {"200-=", "-200,00"},  {"200*=", "0,00"},     {"200+=", "200,00"}, {"200/=", "0,00"},
      {"200-==", "-200,00"}, {"200-\r", "-200,00"}, {"5+3-=", "-8,00"},  {"200-=+1=", "-199,00"},
  };
  for (const auto& p : przyklady) {
    Kalkulator k(QStringLiteral("0,00"));
    Wpisz(k, QString::fromUtf8(p.klawisze));
    EXPECT_EQ(k.Wynik(), QString::fromUtf8(p.wynik)) << p.klawisze;
    EXPECT_EQ(k.dzialanie, Kalkulator::Brak) << p.klawisze;
  }
  // 5 then 3 behind the lone 0 of "0,00" is 53,00.
  Kalkulator z(QStringLiteral("0,00"));
  z.wyswietlacz.selStart = 1;
  z.wyswietlacz.selLength = 0;
  Wpisz(z, QStringLiteral("53"));
  EXPECT_EQ(z.Wynik(), QStringLiteral("53,00"));
}

TEST_F(Klawisze, PercentDivisionByZeroAndExactCents) {
  Kalkulator k(QStringLiteral("0,00"));
  Wpisz(k, QStringLiteral("200+10%"));
  EXPECT_EQ(k.Wynik(), QStringLiteral("20,00"));
  EXPECT_EQ(k.dzialanie, Kalkulator::Dodaj);  // the operation stays pending
  Wpisz(k, QStringLiteral("\r"));
  EXPECT_EQ(k.Wynik(), QStringLiteral("220,00"));
  Wpisz(k, QStringLiteral("80-15%="));
  EXPECT_EQ(k.Wynik(), QStringLiteral("68,00"));

  // Dividing by zero: the display keeps what it shows, the operation is gone.
  Wpisz(k, QStringLiteral("5/0"));
  const QString przed = k.Wynik();
  Wpisz(k, QStringLiteral("\r"));
  EXPECT_EQ(k.Wynik(), przed);
  EXPECT_EQ(k.dzialanie, Kalkulator::Brak);
  EXPECT_EQ(k.pamiec, QStringLiteral("0"));
  Wpisz(k, QStringLiteral("+3\r"));
  EXPECT_EQ(k.Wynik(), QStringLiteral("3,00"));

  // Results are whole cents, a half going to the even cent; no binary error creeps in.
  struct Przyklad {
    const char* klawisze;
    const char* wynik;
  } przyklady[] = {
      {"0,1+0,2=", "0,30"},
      {"10/3=", "3,33"},
      {"2/3=", "0,67"},
      {"0,05*0,5=", "0,02"},
      {"0,15*0,5=", "0,08"},
      {"1/8=", "0,12"},
      {"3/8=", "0,38"},
      {"33,33*7%", "2,33"},
      {"7/2=", "3,50"},
      {"9999999,99*100000=", "999999999000,00"},
      {"0,01-9999999,99=", "-9999999,98"},
  };
  for (const auto& p : przyklady) {
    Kalkulator c(QStringLiteral("0,00"));
    Wpisz(c, QString::fromUtf8(p.klawisze));
    EXPECT_EQ(c.Wynik(), QString::fromUtf8(p.wynik)) << p.klawisze;
  }
  // Beyond a trillion the display stays as it was.
  Kalkulator duzo(QStringLiteral("0,00"));
  Wpisz(duzo, QStringLiteral("9999999*9999999="));
  EXPECT_EQ(duzo.Wynik(), QStringLiteral("9999999,00"));
}

}  // namespace
