#include "ui/wykresy_gui.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QFontMetrics>
#include <QPieSeries>
#include <QPieSlice>
#include <QCursor>
#include <QGraphicsScene>
#include <QPainter>
#include <QToolTip>
#include <QValueAxis>
#include <algorithm>

#include "store/tekst.h"

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

QFont mniejsza(QFont f) {
  if (f.pointSizeF() > 0)
    f.setPointSizeF(f.pointSizeF() * 0.8);
  else
    f.setPixelSize(std::max(8, f.pixelSize() * 4 / 5));
  return f;
}

void slupki(QChart* chart, const DaneWykresu& d) {
  auto* seria = new QBarSeries;
  QStringList kategorie;
  for (int w = 1; w <= d.wiersze; ++w) kategorie << d.etykietyWierszy.value(w - 1);
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
    // Small charts have no scale: a bar tells its name and amount when the pointer rests on it.
    QObject::connect(zestaw, &QBarSet::hovered, zestaw, [zestaw, kategorie](bool nad, int i) {
      if (!nad) return QToolTip::hideText();
      QString t = kategorie.value(i);
      if (!zestaw->label().isEmpty()) t += (t.isEmpty() ? QString() : QStringLiteral(" - ")) + zestaw->label();
      if (!t.isEmpty()) t += QStringLiteral(": ");
      QToolTip::showText(QCursor::pos(), t + FormatKwoty(zestaw->at(i)).trimmed());
    });
    seria->append(zestaw);
  }
  chart->addSeries(seria);
  auto* osX = new QBarCategoryAxis;
  osX->append(kategorie);
  // Month names of three letters must fit under bars of a small chart, not turn into "...".
  osX->setLabelsFont(mniejsza(osX->labelsFont()));
  // Short names (months) stand under their bars; longer ones (kinds of account) would be cut to
  // "...", so they are left to the tool tips and the figures beside the chart.
  int najdluzsza = 0;
  for (const QString& k : kategorie) najdluzsza = std::max(najdluzsza, int(k.size()));
  osX->setVisible(!kategorie.isEmpty() && najdluzsza > 0 && najdluzsza <= 5);
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
    s->setBorderColor(Qt::white);
  }
  seria->setPieSize(0.9);
  // The six names of the kinds of account beside a small pie: a smaller letter cuts fewer.
  chart->legend()->setFont(mniejsza(chart->legend()->font()));
  // The legend would take no more than a third of the chart and cut the names; the pie gives way.
  const QFontMetrics miara(chart->legend()->font());
  int szerokosc = 0;
  for (const QString& e : d.etykietyWierszy) szerokosc = std::max(szerokosc, miara.horizontalAdvance(e));
  chart->legend()->setMinimumWidth(szerokosc + 4 * miara.height() + 10);
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

namespace {
QChart* zbudujWykres(const DaneWykresu& dane) {
  auto* chart = new QChart;
  chart->setAnimationOptions(QChart::NoAnimation);
  // The pie names its slices, and bars of two series name the series; one series needs none.
  const bool legenda = dane.typ == DaneWykresu::Kolowy ? !dane.etykietyWierszy.isEmpty()
                                                       : dane.kolumny > 1 && !dane.etykietyKolumn.isEmpty();
  chart->legend()->setVisible(legenda);
  if (dane.typ == DaneWykresu::Kolowy) chart->legend()->setAlignment(Qt::AlignRight);
  chart->setMargins(QMargins(2, 2, 2, 2));
  chart->setBackgroundRoundness(0);
  chart->setTitle(dane.tytul);
  if (dane.typ == DaneWykresu::Kolowy)
    kolowy(chart, dane);
  else if (dane.wiersze > 0 && dane.kolumny > 0)
    slupki(chart, dane);
  return chart;
}
}  // namespace

void RysujWykres(QChartView* wykres, const DaneWykresu& dane) {
  QChart* dawny = wykres->chart();
  wykres->setChart(zbudujWykres(dane));
  delete dawny;
}

void WykresMiesiecy(QChartView* wykres, const std::vector<double>& szesc,
                    const QStringList& etykiety) {
  RysujWykres(wykres, WykresMiesiecy(szesc, etykiety));
}

void WykresKolowy(QChartView* wykres, const std::vector<double>& szesc,
                  const QStringList& etykiety) {
  RysujWykres(wykres, WykresKolowy(szesc, etykiety));
}

void WykresBilansu(QChartView* wykres, int rodzaj, const QDate& dzis) {
  RysujWykres(wykres, WykresBilansu(rodzaj, dzis));
}

QImage ObrazWykresu(const DaneWykresu& dane, const QSize& rozmiar) {
  QImage obraz(rozmiar, QImage::Format_ARGB32_Premultiplied);
  obraz.fill(Qt::white);
  QGraphicsScene scena;
  QChart* chart = zbudujWykres(dane);
  scena.addItem(chart);  // the scene owns the chart from here
  chart->setGeometry(QRectF(QPointF(0, 0), QSizeF(rozmiar)));
  QPainter g(&obraz);
  g.setRenderHint(QPainter::Antialiasing);
  scena.render(&g, QRectF(QPointF(0, 0), QSizeF(rozmiar)), QRectF(QPointF(0, 0), QSizeF(rozmiar)));
  return obraz;
}

void WykresDwaSlupki(QChartView* wykres, double wartosc1, double wartosc2) {
  RysujWykres(wykres, DwaSlupki(wartosc1, wartosc2));
}
