#include "store/jet_zakresy.h"

#include <gtest/gtest.h>

#include <QDate>
#include <functional>

#include "common/magazyn_testowy.h"
#include "store/baza.h"
#include "store/filtr.h"

namespace {
// One entry a day over three New Years, so that every period edge has rows on both sides.
void dzienPoDniu(const QDate& od, const QDate& doDnia) {
  pubBaza().Transakcja([&] {
    for (QDate d = od; d <= doDnia; d = d.addDays(1))
      pubBaza().Wykonaj(
          QStringLiteral(
              "INSERT INTO transakcje (data, rodzaj, przychod, wydatek) VALUES ('%1', 1, 1, 0)")
              .arg(d.toString(Qt::ISODate)));
    return true;
  });
}

qint64 ileWBazie(const QString& warunek) {
  const Rekordy rs = pubBaza().Czytaj(
      QStringLiteral("SELECT COUNT(*) AS ile FROM transakcje WHERE 1=1") + warunek);
  EXPECT_TRUE(rs.Ok()) << warunek.toStdString();
  return rs.Pole(0).toLongLong();
}

qint64 ileDni(const QDate& od, const QDate& doDnia,
              const std::function<bool(const QDate&)>& warunek) {
  qint64 n = 0;
  for (QDate d = od; d <= doDnia; d = d.addDays(1)) n += warunek(d);
  return n;
}
}  // namespace

// The period conditions become date ranges; every week, month, quarter and year, and each of
// their "before" forms, must still pick exactly the days the calendar rule picks.
TEST(ZakresyDat, RangesSelectTheSameDaysAsTheCalendarRule) {
  MagazynTestowy m;
  const QDate od(2020, 12, 20), doDnia(2024, 1, 10);
  dzienPoDniu(od, doDnia);
  for (int y = 2021; y <= 2023; ++y) {
    for (int w = 0; w <= 54; ++w) {
      const QString w_ = QString::number(w), y_ = QString::number(y);
      const QString wTyg =
          QStringLiteral(" AND (DATEPART ('ww',data,2)=%1 AND YEAR(data)=%2) ").arg(w_, y_);
      const QString wPrzed =
          QStringLiteral(" AND ((DATEPART ('ww',data,2)<%1 AND YEAR(data)=%2) OR (YEAR(data)<%2)) ")
              .arg(w_, y_);
      ASSERT_NE(ZakresyDat(wTyg), wTyg);
      EXPECT_EQ(ileWBazie(wTyg),
                ileDni(od, doDnia,
                       [&](const QDate& d) { return d.year() == y && NumerTygodnia(d) == w; }))
          << "week " << w << " of " << y;
      EXPECT_EQ(ileWBazie(wPrzed), ileDni(od, doDnia,
                                          [&](const QDate& d) {
                                            return (d.year() == y && NumerTygodnia(d) < w) ||
                                                   d.year() < y;
                                          }))
          << "before week " << w << " of " << y;
    }
    for (int mc = 0; mc <= 13; ++mc) {
      const QString m_ = QString::number(mc), y_ = QString::number(y);
      EXPECT_EQ(
          ileWBazie(QStringLiteral(" AND (MONTH(data)=%1 AND YEAR(data)=%2) ").arg(m_, y_)),
          ileDni(od, doDnia, [&](const QDate& d) { return d.year() == y && d.month() == mc; }));
      EXPECT_EQ(
          ileWBazie(QStringLiteral(" AND ((MONTH(data)<%1 AND YEAR(data)=%2) OR (YEAR(data)<%2)) ")
                        .arg(m_, y_)),
          ileDni(od, doDnia, [&](const QDate& d) {
            return (d.year() == y && d.month() < mc) || d.year() < y;
          }));
    }
    for (int q = 0; q <= 5; ++q) {
      const QString q_ = QString::number(q), y_ = QString::number(y);
      EXPECT_EQ(
          ileWBazie(QStringLiteral(" AND (DATEPART ('q',data)=%1 AND YEAR(data)=%2) ").arg(q_, y_)),
          ileDni(od, doDnia,
                 [&](const QDate& d) { return d.year() == y && (d.month() + 2) / 3 == q; }));
      EXPECT_EQ(
          ileWBazie(QStringLiteral(
                        " AND ((DATEPART ('q',data)<%1 AND YEAR(data)=%2) OR (YEAR(data)<%2)) ")
                        .arg(q_, y_)),
          ileDni(od, doDnia, [&](const QDate& d) {
            return (d.year() == y && (d.month() + 2) / 3 < q) || d.year() < y;
          }));
    }
    EXPECT_EQ(ileWBazie(QStringLiteral(" AND YEAR(data)=%1 ").arg(y)), QDate(y, 1, 1).daysInYear());
    EXPECT_EQ(ileWBazie(QStringLiteral(" AND YEAR(data)<%1 ").arg(y)),
              ileDni(od, doDnia, [&](const QDate& d) { return d.year() < y; }));
  }
  // Forms that are not the filter's stay as they are: different years, other comparisons.
  const QString inny =
      QStringLiteral(" AND ((MONTH(data)<3 AND YEAR(data)=2022) OR (YEAR(data)<2021)) ");
  EXPECT_EQ(ZakresyDat(inny).count(QStringLiteral("MONTH")), 1);
  EXPECT_EQ(ZakresyDat(QStringLiteral(" AND YEAR(data)>=2022 ")),
            QStringLiteral(" AND YEAR(data)>=2022 "));
  EXPECT_EQ(ZakresyDat(QStringLiteral("SELECT opis FROM transakcje WHERE opis='YEAR(data)=2022'"))
                .count(QStringLiteral("YEAR")),
            1);
}
