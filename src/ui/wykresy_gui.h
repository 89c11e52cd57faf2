#pragma once
// Drawing the charts of wykresy.h on a chart view (Qt Charts), or into a picture for a report.

#include <QImage>
#include <QSize>

#include "ui/wykresy.h"

class QChartView;
class QWidget;

// A chart view for small panels: no animation, tight margins.
QChartView* NowyWykres(const QString& nazwa, QWidget* rodzic);
// Replaces whatever the view showed with the chart of the data. A bar shows its amount when the
// pointer rests on it.
void RysujWykres(QChartView* wykres, const DaneWykresu& dane);
// Bars: one row, two columns; column 1 holds wartosc1, column 2 wartosc2.
void WykresDwaSlupki(QChartView* wykres, double wartosc1, double wartosc2);
// Six values as green bars, and as a pie.
void WykresMiesiecy(QChartView* wykres, const std::vector<double>& szesc,
                    const QStringList& etykiety = {});
void WykresKolowy(QChartView* wykres, const std::vector<double>& szesc,
                  const QStringList& etykiety = {});
// The last six months up to today's: kind 1 income, 2 expense, 3 both.
void WykresBilansu(QChartView* wykres, int rodzaj, const QDate& dzis);

// The chart as a picture of the given size, white behind it, for a report.
QImage ObrazWykresu(const DaneWykresu& dane, const QSize& rozmiar);
