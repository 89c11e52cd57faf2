#pragma once
// A bar chart drawn straight into a picture, for a report document. It needs no chart widget, so
// a report with charts is the same picture for picture in the window and with no window.

#include <QImage>
#include <QSize>

#include "ui/wykresy.h"

// The chart's bars (one group per row, one bar per column, coloured by column), a value scale at
// the left with its grid, the row labels under the groups and the column labels as a legend.
QImage ObrazSlupkow(const DaneWykresu& dane, const QSize& rozmiar = QSize(560, 210));
