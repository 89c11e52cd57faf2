#include "ui/wykresy_gui.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QPieSeries>
#include <QPieSlice>
#include <QValueAxis>
#include <algorithm>

namespace {
QColor kolorDomyslny(int i) {
  static const QColor zestaw[] = {QColor(0x2f, 0x6f, 0xb5), QColor(0xe0, 0x8a, 0x1e),
                                  QColor(0x3a, 0x9a, 0x4a), QColor(0xc0, 0x39, 0x2b),
                                  QColor(0x8e, 0x5c, 0xb0), QColor(0x1a, 0xa3, 0xa3)};
  return zestaw[i % 6];
}
QColor kolor(const DaneWykresu& d, int i) {
  return i < int(d.kolory.size()) && d.kolory[size_t(i)].isValid() ? d.kolory[size_t(i)]
                                                                   : kolorDomyslny(i);
}

void slupki(QChart* chart, const DaneWykresu& d) {
  auto* seria = new QBarSeries;
  double najmniej = 0, najwiecej = 0;
  for (int k = 1; k <= d.kolumny; ++k) {
    auto* zestaw = new QBarSet(d.etykietyKolumn.value(k - 1));
    zestaw->setColor(kolor(d, k - 1));
    zestaw->setBorderColor(kolor(d, k - 1).darker(130));
    for (int w = 1; w <= d.wiersze; ++w) {
      const double v = d.Wartosc(w, k);
      zestaw->append(v);
      najmniej = std::min(najmniej, v);
      najwiecej = std::max(najwiecej, v);
    }
    seria->append(zestaw);
  }
  chart->addSeries(seria);
  auto* osX = new QBarCategoryAxis;
  QStringList kategorie;
  for (int w = 1; w <= d.wiersze; ++w) kategorie << d.etykietyWierszy.value(w - 1);
  osX->append(kategorie);
  osX->setVisible(!d.etykietyWierszy.isEmpty());
  chart->addAxis(osX, Qt::AlignBottom);
  seria->attachAxis(osX);
  auto* osY = new QValueAxis;
  // Zero always shows, so that a negative balance hangs below the line.
  if (najmniej == najwiecej) najwiecej = najmniej + 1;
  osY->setRange(najmniej, najwiecej);
  osY->applyNiceNumbers();
  // Small charts have no room for a scale: the figures stand beside them; the grid stays.
  osY->setLabelsVisible(false);
  chart->addAxis(osY, Qt::AlignLeft);
  seria->attachAxis(osY);
}

void kolowy(QChart* chart, const DaneWykresu& d) {
  auto* seria = new QPieSeries;
  for (int w = 1; w <= d.wiersze; ++w) {
    QPieSlice* s = seria->append(d.etykietyWierszy.value(w - 1), std::max(0.0, d.Wartosc(w, 1)));
    s->setColor(kolor(d, w - 1));
  }
  chart->addSeries(seria);
}
}  // namespace

QChartView* NowyWykres(const QString& nazwa, QWidget* rodzic) {
  auto* v = new QChartView(rodzic);
  v->setObjectName(nazwa);
  v->setRenderHint(QPainter::Antialiasing);
  v->setMinimumSize(120, 110);
  RysujWykres(v, DaneWykresu{});
  return v;
}

void RysujWykres(QChartView* wykres, const DaneWykresu& dane) {
  auto* chart = new QChart;
  chart->setAnimationOptions(QChart::NoAnimation);
  chart->legend()->setVisible(dane.typ == DaneWykresu::Kolowy && !dane.etykietyWierszy.isEmpty());
  chart->setMargins(QMargins(2, 2, 2, 2));
  chart->setBackgroundRoundness(0);
  chart->setTitle(dane.tytul);
  if (dane.typ == DaneWykresu::Kolowy)
    kolowy(chart, dane);
  else if (dane.wiersze > 0 && dane.kolumny > 0)
    slupki(chart, dane);
  QChart* dawny = wykres->chart();
  wykres->setChart(chart);
  delete dawny;
}

void WykresDwaSlupki(QChartView* wykres, double wartosc1, double wartosc2) {
  RysujWykres(wykres, DwaSlupki(wartosc1, wartosc2));
}
