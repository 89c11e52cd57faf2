#pragma once
// Drawing the charts of wykresy.h on a chart view (Qt Charts).

#include "ui/wykresy.h"

class QChartView;
class QWidget;

// A chart view for small panels: no legend, no animation, tight margins.
QChartView* NowyWykres(const QString& nazwa, QWidget* rodzic);
// Replaces whatever the view showed with the chart of the data.
void RysujWykres(QChartView* wykres, const DaneWykresu& dane);
// Bars: one row, two columns; column 1 holds wartosc1, column 2 wartosc2.
void WykresDwaSlupki(QChartView* wykres, double wartosc1, double wartosc2);
