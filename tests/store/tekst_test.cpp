#include "store/tekst.h"

#include <gtest/gtest.h>

#include <QVariant>

#include "common/magazyn_testowy.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"

// The four number masks, with their blanks, rounding on the decimal form and the signs.
TEST(Tekst, NumberMasksYieldTheirForms) {
  sesja = Session{};
  EXPECT_EQ(FormatKwoty(1234.5), QStringLiteral("1 234.50"));
  EXPECT_EQ(FormatKwoty(1234567.5), QStringLiteral("1234 567.50"));
  EXPECT_EQ(FormatKwoty(12.5), QStringLiteral(" 12.50"));
  EXPECT_EQ(FormatKwoty(0), QStringLiteral(" 0.00"));
  EXPECT_EQ(FormatKwoty(-12.5), QStringLiteral("- 12.50"));
  EXPECT_EQ(FormatKwoty(-1234.5), QStringLiteral("-1 234.50"));
  EXPECT_EQ(FormatKwoty(-0.004), QStringLiteral(" 0.00"));  // no sign on a zero
  EXPECT_EQ(FormatKwotyEdycja(1234.5), QStringLiteral("1234.50"));
  EXPECT_EQ(FormatKwotyEdycja(0), QStringLiteral("0.00"));
  EXPECT_EQ(FormatKwotyEdycja(-7), QStringLiteral("-7.00"));
  EXPECT_EQ(FormatCalkowita(1234.5), QStringLiteral("1234"));
  EXPECT_EQ(FormatCalkowita(0), QStringLiteral("0"));
  EXPECT_EQ(FormatCalkowita(41), QStringLiteral("41"));
  EXPECT_EQ(FormatProcentu(12.5), QStringLiteral("12.50"));
  EXPECT_EQ(FormatProcentu(0.5), QStringLiteral(".50"));
  EXPECT_EQ(FormatProcentu(0), QStringLiteral(".00"));

  // Half away from zero on the decimal form, also where the binary value lies just below.
  EXPECT_EQ(FormatKwotyEdycja(0.005), QStringLiteral("0.01"));
  EXPECT_EQ(FormatKwotyEdycja(2.675), QStringLiteral("2.68"));
  EXPECT_EQ(FormatKwotyEdycja(1.005), QStringLiteral("1.01"));
  EXPECT_EQ(FormatKwotyEdycja(-2.675), QStringLiteral("-2.68"));
  EXPECT_EQ(FormatKwotyEdycja(0.0049), QStringLiteral("0.00"));
  EXPECT_EQ(FormatKwotyEdycja(9.995), QStringLiteral("10.00"));
  EXPECT_EQ(FormatProcentu(99.995), QStringLiteral("100.00"));

  // Other masks: extra digits go in front of the first placeholder; "#" decimals drop zeros.
  EXPECT_EQ(FormatLiczby(12345678, QStringLiteral("#### ##0.00")), QStringLiteral("12345 678.00"));
  EXPECT_EQ(FormatLiczby(1.5, QStringLiteral("0.##")), QStringLiteral("1.5"));
  EXPECT_EQ(FormatLiczby(3, QStringLiteral("000")), QStringLiteral("003"));
  EXPECT_EQ(FormatLiczby(1.25, QStringLiteral("0.0")), QStringLiteral("1.3"));

  // Every cent of amounts up to 10^12 survives.
  EXPECT_EQ(FormatKwoty(999999999999.99), QStringLiteral("999999999 999.99"));
  EXPECT_EQ(FormatKwotyEdycja(1e12), QStringLiteral("1000000000000.00"));
  for (qint64 grosze = 1; grosze <= 100000000000000LL; grosze = grosze * 3 + 7) {
    const QString oczekiwany =
        QStringLiteral("%1.%2").arg(grosze / 100).arg(grosze % 100, 2, 10, QLatin1Char('0'));
    ASSERT_EQ(FormatKwotyEdycja(double(grosze) / 100.0), oczekiwany) << grosze;
  }

  // The system's decimal comma.
  sesja.pubSeparator = QStringLiteral(",");
  EXPECT_EQ(FormatKwoty(1234.5), QStringLiteral("1 234,50"));
  EXPECT_EQ(FormatProcentu(0.5), QStringLiteral(",50"));
  EXPECT_EQ(FormatKwotyEdycja(2.675), QStringLiteral("2,68"));
  sesja = Session{};
}

// Amount texts read back: the caller's empty text becomes "0", the comma is read only where it
// is the system's mark, and the calculator rounds a final 5 to the even cent.
TEST(Tekst, TextToAmount) {
  sesja = Session{};
  QString t;
  EXPECT_EQ(KropkaNaSeparator(t), QStringLiteral("0"));
  EXPECT_EQ(t, QStringLiteral("0"));
  t.clear();
  EXPECT_EQ(PrzecinekNaKropke(t), QStringLiteral("0"));
  EXPECT_EQ(t, QStringLiteral("0"));
  t = QStringLiteral("1,5");
  EXPECT_EQ(PrzecinekNaKropke(t), QStringLiteral("1.5"));
  EXPECT_EQ(t, QStringLiteral("1,5"));

  t = QStringLiteral("12,50");
  EXPECT_EQ(KwotaZTekstu(t), 12.0);  // "." system: the comma ends the number
  t = QStringLiteral("  7.125abc");
  EXPECT_EQ(KwotaZTekstu(t), 7.12);
  t = QStringLiteral("0.015");
  EXPECT_EQ(KwotaZTekstu(t), 0.02);
  t = QStringLiteral("-2.675");
  EXPECT_EQ(KwotaZTekstu(t), -2.68);
  t = QStringLiteral("abc");
  EXPECT_EQ(KwotaZTekstu(t), 0.0);
  t = QStringLiteral("123456789012.34");
  EXPECT_EQ(KwotaZTekstu(t) * 100, 12345678901234.0);
  t = QStringLiteral("999999999999.995");
  EXPECT_EQ(KwotaZTekstu(t), 1e12);
  t.clear();
  EXPECT_EQ(KwotaZTekstu(t), 0.0);
  EXPECT_EQ(t, QStringLiteral("0"));

  sesja.pubSeparator = QStringLiteral(",");
  t = QStringLiteral("12.50");
  EXPECT_EQ(KropkaNaSeparator(t), QStringLiteral("12,50"));
  t = QStringLiteral("1.234,5");
  EXPECT_EQ(KwotaZTekstu(t), 1.23);  // the comma became a second point: 1.234
  t = QStringLiteral("12,345");
  EXPECT_EQ(KwotaZTekstu(t), 12.34);
  t = QStringLiteral("12,355");
  EXPECT_EQ(KwotaZTekstu(t), 12.36);

  QVariant v = QStringLiteral("12,5");
  EXPECT_FALSE(FormatWaluty(v).isEmpty());
  EXPECT_EQ(v.toDouble(), 12.5);
  sesja = Session{};
}

// The seven date masks in both editions, with the names of the language table.
TEST(Tekst, DateMasksByEdition) {
  const QDate d(2026, 11, 22);  // a Sunday, day 326
  {
    MagazynTestowy m(1);
    EXPECT_EQ(FormatDaty(d, sesja.pubFormatDaty_ddpmmm), QStringLiteral("22-lis"));
    EXPECT_EQ(FormatDaty(d, sesja.pubFormatDaty_ddpmmmpyy), QStringLiteral("22-lis-26"));
    EXPECT_EQ(FormatDaty(d, sesja.pubFormatDaty_ddlmmmlyyyy), QStringLiteral("22.lis.2026"));
    EXPECT_EQ(FormatDaty(d, sesja.pubFormatDaty_ddsmmmmsyyyy), QStringLiteral("22 listopada 2026"));
    EXPECT_EQ(FormatDaty(d, sesja.pubFormatDaty_dd_mmm_yy), QStringLiteral("22_lis_26"));
    EXPECT_EQ(FormatDaty(d, sesja.pubFormatDaty_ddpmmmmpyy), QStringLiteral("22-listopada-26"));
    EXPECT_EQ(FormatDaty(d, sesja.pubFormatDaty_ddpmmmmpyyyy), QStringLiteral("22-listopada-2026"));
    EXPECT_EQ(FormatDaty(d, QStringLiteral("dddd, y")), QStringLiteral("niedziela, 326"));
    EXPECT_EQ(FormatDaty(d, QStringLiteral("mmmm yyyy")), QStringLiteral("listopad 2026"));
    EXPECT_EQ(FormatDaty(QDate(2026, 3, 5), QStringLiteral("d.m ddd")), QStringLiteral("5.3 czw"));
    EXPECT_EQ(FormatDatyOkresu(QDate(2026, 9, 1)), QStringLiteral("01.wrz.2026"));
    EXPECT_EQ(FormatDatyOkresu(QDate()), QStringLiteral("30.gru.1899"));
    // SQL dates keep "/" whatever the separator of the edition.
    EXPECT_EQ(ZapisDaty(QDate(2003, 3, 31)), QStringLiteral("03/31/2003"));
    EXPECT_EQ(ZapisDaty(QDate()), QStringLiteral("12/30/1899"));

    // With the store closed the names still come, from the edition's locale.
    ZamknijBaze();
    WyczyscNapisy();
    EXPECT_EQ(FormatDaty(d, QStringLiteral("dd mmmm yyyy")), QStringLiteral("22 listopada 2026"));
    EXPECT_EQ(FormatDaty(d, QStringLiteral("mmmm")), QStringLiteral("listopad"));
  }
  {
    MagazynTestowy m(2);
    EXPECT_EQ(FormatDaty(d, sesja.pubFormatDaty_ddpmmm), QStringLiteral("22-Nov"));
    EXPECT_EQ(FormatDaty(d, sesja.pubFormatDaty_ddlmmmlyyyy), QStringLiteral("22/Nov/2026"));
    EXPECT_EQ(FormatDaty(d, sesja.pubFormatDaty_ddsmmmmsyyyy), QStringLiteral("November 22 2026"));
    EXPECT_EQ(FormatDaty(d, sesja.pubFormatDaty_ddpmmmmpyy), QStringLiteral("November-22-26"));
    EXPECT_EQ(FormatDaty(d, sesja.pubFormatDaty_ddpmmmmpyyyy), QStringLiteral("11-22-2026"));
    EXPECT_EQ(FormatDaty(d, QStringLiteral("dddd ddd")), QStringLiteral("Sunday Sun"));
    EXPECT_EQ(ZapisDaty(QDate(2003, 3, 31)), QStringLiteral("03/31/2003"));
  }
}

// Month names by number or by date; May is "maj" in every edition.
TEST(Tekst, MonthNames) {
  for (int jezyk : {1, 2}) {
    MagazynTestowy m(jezyk);
    const bool pl = jezyk == 1;
    EXPECT_EQ(NazwaMiesiaca(QStringLiteral("5")), QStringLiteral("maj"));
    EXPECT_EQ(NazwaMiesiaca(QStringLiteral("2026-05-14")), QStringLiteral("maj"));
    EXPECT_EQ(NazwaMiesiaca(QStringLiteral("14.05.2026")), QStringLiteral("maj"));
    EXPECT_EQ(NazwaMiesiaca(QDate(2025, 5, 31)), QStringLiteral("maj"));
    EXPECT_EQ(NazwaMiesiaca(QStringLiteral("11")),
              pl ? QStringLiteral("listopad") : QStringLiteral("November"));
    EXPECT_EQ(NazwaMiesiaca(QStringLiteral("2026-01-31")),
              pl ? QStringLiteral("styczeń") : QStringLiteral("January"));
    EXPECT_EQ(NazwaMiesiaca(4), pl ? QStringLiteral("kwiecień") : QStringLiteral("April"));
    EXPECT_EQ(NazwaMiesiaca(6), pl ? QStringLiteral("czerwiec") : QStringLiteral("June"));
    EXPECT_EQ(NazwaMiesiaca(12), pl ? QStringLiteral("grudzień") : QStringLiteral("December"));
    EXPECT_EQ(NazwaMiesiaca(QStringLiteral("13")), QString());
    EXPECT_EQ(NazwaMiesiaca(0), QString());
    EXPECT_EQ(NazwaMiesiaca(QStringLiteral("not a date")), QString());
  }
}
