#include "store/filtr.h"

#include <gtest/gtest.h>

#include "common/magazyn_testowy.h"
#include "store/baza.h"
#include "store/jet.h"
#include "store/napis.h"
#include "store/session.h"

namespace {
QString N(const char* klucz) { return Napis(QLatin1String(klucz)); }

Okres filtr(int rodzaj) {
  FiltrCzasowyRekord f;
  f.rodzaj = rodzaj;
  return FiltrCzasowy(f);
}
}  // namespace

// Monday starts a week and week 1 holds 1 January, whatever day that is.
TEST(Filtr, WeekNumbers) {
  EXPECT_EQ(NumerTygodnia(QDate(2023, 1, 1)), 1);  // a Sunday
  EXPECT_EQ(NumerTygodnia(QDate(2023, 1, 2)), 2);
  EXPECT_EQ(NumerTygodnia(QDate(2022, 12, 31)), 53);
  EXPECT_EQ(NumerTygodnia(QDate(2024, 1, 7)), 1);  // the year begins on a Monday
  EXPECT_EQ(NumerTygodnia(QDate(2024, 1, 8)), 2);
  EXPECT_EQ(NumerTygodnia(QDate(2024, 12, 30)), 53);
  EXPECT_EQ(NumerTygodnia(QDate(2026, 11, 22)), 47);
  // Over many years: 1 January is week 1, and the number grows by one exactly on Mondays.
  for (QDate d(1999, 12, 31); d < QDate(2031, 1, 1); d = d.addDays(1)) {
    const QDate jutro = d.addDays(1);
    const int oczekiwany = jutro.dayOfYear() == 1   ? 1
                           : jutro.dayOfWeek() == 1 ? NumerTygodnia(d) + 1
                                                    : NumerTygodnia(d);
    ASSERT_EQ(NumerTygodnia(jutro), oczekiwany) << jutro.toString(Qt::ISODate).toStdString();
  }
}

// Every kind's two conditions, blank for blank, and its two texts; only the argument's kind
// counts, and a kind outside 0..6 gives nothing.
TEST(Filtr, ConditionsAndTextsOfEveryKind) {
  MagazynTestowy m(1);
  sesja.pubFiltrCzasowy = {3, QDate(2026, 11, 22), QDate(2026, 11, 1), QDate(2026, 11, 22)};
  const QString A = N("Module111") + QStringLiteral(" ");
  const QString B = N("Module112") + QStringLiteral(" ");
  const QString F = QStringLiteral("22.lis.2026");

  Okres o = filtr(0);
  EXPECT_EQ(o.warunek, QStringLiteral(" "));
  EXPECT_EQ(o.warunekPrzed, QStringLiteral(" AND 1=0 "));
  EXPECT_EQ(o.opis, A);
  EXPECT_EQ(o.opisDlugi, B + N("Module113"));

  o = filtr(1);
  EXPECT_EQ(o.warunek, QStringLiteral(" AND data=#11/22/2026# "));
  EXPECT_EQ(o.warunekPrzed, QStringLiteral(" AND data<#11/22/2026# "));
  EXPECT_EQ(o.opis, A + N("Module114") + F + QStringLiteral(")"));
  EXPECT_EQ(o.opisDlugi, B + QStringLiteral(" ") + N("Module115") + F + QStringLiteral(")"));

  o = filtr(2);
  EXPECT_EQ(o.warunek, QStringLiteral(" AND (DATEPART ('ww',data,2)=47 AND YEAR(data)=2026) "));
  EXPECT_EQ(o.warunekPrzed,
            QStringLiteral(
                " AND ((DATEPART ('ww',data,2)<47 AND YEAR(data)=2026) OR (YEAR(data)<2026)) "));
  EXPECT_EQ(o.opis, A + N("Module116") + QStringLiteral("47)"));
  EXPECT_EQ(o.opisDlugi, B + QStringLiteral(" ") + N("Module117") + QStringLiteral("47)"));

  o = filtr(3);
  EXPECT_EQ(o.warunek, QStringLiteral(" AND (MONTH(data)=11 AND YEAR(data)=2026) "));
  EXPECT_EQ(o.warunekPrzed,
            QStringLiteral(" AND ((MONTH(data)<11 AND YEAR(data)=2026) OR (YEAR(data)<2026)) "));
  EXPECT_EQ(o.opis, A + N("Module118") + QStringLiteral("listopad)"));
  EXPECT_EQ(o.opisDlugi, B + QStringLiteral(" ") + N("Module119") + QStringLiteral("listopad)"));

  o = filtr(4);
  EXPECT_EQ(o.warunek, QStringLiteral(" AND (DATEPART ('q',data)=4 AND YEAR(data)=2026) "));
  EXPECT_EQ(
      o.warunekPrzed,
      QStringLiteral(" AND ((DATEPART ('q',data)<4 AND YEAR(data)=2026) OR (YEAR(data)<2026)) "));
  EXPECT_EQ(o.opis, A + N("Module120") + QStringLiteral("4)"));
  EXPECT_EQ(o.opisDlugi, B + QStringLiteral(" ") + N("Module121") + QStringLiteral("4)"));

  o = filtr(5);
  EXPECT_EQ(o.warunek, QStringLiteral(" AND YEAR(data)=2026 "));
  EXPECT_EQ(o.warunekPrzed, QStringLiteral(" AND YEAR(data)<2026 "));
  EXPECT_EQ(o.opis, A + N("Module122") + QStringLiteral("2026)"));
  EXPECT_EQ(o.opisDlugi, B + QStringLiteral(" ") + N("Module123") + QStringLiteral("2026)"));

  o = filtr(6);
  EXPECT_EQ(o.warunek, QStringLiteral(" AND data>=#11/01/2026# AND data<=#11/22/2026# "));
  EXPECT_EQ(o.warunekPrzed, QStringLiteral(" AND data<#11/01/2026# "));
  EXPECT_EQ(o.opis, A + N("Module124") + QStringLiteral(" 01.lis.2026"));
  EXPECT_EQ(o.opisDlugi, B + N("Module125") + QStringLiteral(" 01.lis.2026 ") + N("Module155") +
                             QStringLiteral(" 22.lis.2026"));
  EXPECT_EQ(o.opisDlugi, QStringLiteral("okres od 01.lis.2026 do 22.lis.2026"));

  for (int zly : {-1, 7, 255}) {
    o = filtr(zly);
    EXPECT_TRUE(o.warunek.isEmpty() && o.warunekPrzed.isEmpty() && o.opis.isEmpty() &&
                o.opisDlugi.isEmpty())
        << zly;
  }

  // Button captions.
  const QString C = N("Module112") + QStringLiteral(" ");
  EXPECT_EQ(OpisOkresu(0), C + N("Module146"));
  EXPECT_EQ(OpisOkresu(1), C + N("Module147") + F + QStringLiteral(")"));
  EXPECT_EQ(OpisOkresu(2), C + N("Module148") + QStringLiteral("47)"));
  EXPECT_EQ(OpisOkresu(3), C + N("Module149") + QStringLiteral("listopad)"));
  EXPECT_EQ(OpisOkresu(4), C + N("Module150") + QStringLiteral("4)"));
  EXPECT_EQ(OpisOkresu(5), C + N("Module151") + QStringLiteral("2026)"));
  EXPECT_EQ(OpisOkresu(6), C + N("Module152") + QStringLiteral(" 01.lis.2026 ") + N("Module155") +
                               QStringLiteral(" 22.lis.2026"));

  EXPECT_EQ(NazwaRodzajuKonta(1), QStringLiteral("Gotówkowe"));
  EXPECT_EQ(NazwaRodzajuKonta(3), QStringLiteral("Karty kredytowe"));
  EXPECT_EQ(NazwaRodzajuKonta(6), QStringLiteral("Inne"));
  EXPECT_EQ(NazwaRodzajuKonta(0), N("Module110"));
  EXPECT_EQ(NazwaRodzajuKonta(7), N("Module110"));
}

// The English edition: its names and separators in the texts, "maj" for May all the same.
TEST(Filtr, EnglishTexts) {
  MagazynTestowy m(2);
  sesja.pubFiltrCzasowy = {2, QDate(2026, 5, 4), QDate(2026, 5, 1), QDate(2026, 5, 4)};
  EXPECT_EQ(filtr(1).opis, QStringLiteral("Period: day (04/May/2026)"));
  EXPECT_EQ(filtr(3).opisDlugi, QStringLiteral("period  month (maj)"));
  EXPECT_EQ(filtr(6).opisDlugi, QStringLiteral("period from 01/May/2026 to 04/May/2026"));
  EXPECT_EQ(filtr(1).warunek, QStringLiteral(" AND data=#05/04/2026# "));
  EXPECT_EQ(NazwaRodzajuKonta(5), QStringLiteral("Loans"));
}

// The conditions run against the store pick exactly the rows of the period and of before it,
// edge days included.
TEST(Filtr, ConditionsSelectTheRightRows) {
  if (TlumaczJet(QStringLiteral("SELECT #01/02/2003#")) == QStringLiteral("SELECT #01/02/2003#"))
    GTEST_SKIP() << "the Jet translator does not translate dates yet";
  MagazynTestowy m(1);
  for (const char* dzien : {"2021-06-01", "2022-12-26", "2022-12-31", "2023-01-01", "2023-01-02"})
    ASSERT_TRUE(pubBaza().Wykonaj(
        QStringLiteral(
            "INSERT INTO transakcje (data, rodzaj, wydatek, konto) VALUES ('%1', 2, 1, 1)")
            .arg(QLatin1String(dzien))));
  auto ile = [](const QString& warunek) {
    return PoleRekordu(
        pubBaza().Czytaj(QStringLiteral("SELECT COUNT(*) AS ile FROM transakcje WHERE 1=1 ") +
                         warunek),
        QStringLiteral("ile"));
  };
  struct Przypadek {
    int rodzaj;
    QDate pozycja, od, do_;
    int wOkresie, przed;
  };
  const QDate d1(2023, 1, 1), d2(2023, 1, 2), s31(2022, 12, 31);
  const Przypadek przypadki[] = {
      {0, d1, d1, d1, 5, 0},
      {1, d1, d1, d1, 1, 3},
      {2, d1, d1, d1, 1, 3},
      {2, s31, d1, d1, 2, 1},
      {2, d2, d1, d1, 1, 4},
      {3, d1, d1, d1, 2, 3},
      {4, d1, d1, d1, 2, 3},
      {5, s31, d1, d1, 2, 1},
      {6, d1, s31, d1, 2, 2},
      {6, d1, d2, d2, 1, 4},
      {6, d1, QDate(2021, 6, 1), QDate(2022, 12, 26), 2, 0},
  };
  for (const Przypadek& p : przypadki) {
    sesja.pubFiltrCzasowy = {p.rodzaj, p.pozycja, p.od, p.do_};
    const Okres o = filtr(p.rodzaj);
    EXPECT_EQ(ile(o.warunek), p.wOkresie) << p.rodzaj << " " << o.warunek.toStdString();
    EXPECT_EQ(ile(o.warunekPrzed), p.przed) << p.rodzaj << " " << o.warunekPrzed.toStdString();
  }
}
