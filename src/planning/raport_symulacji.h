#pragma once
// The simulation report: the table of the simulation's tree from the selected node down, with the
// amount before, after, and the change per month, quarter and year (signs kept). It reads no
// table: its figures are those of the simulation the user is looking at.

#include "planning/symulacja.h"
#include "reports/raporty.h"

// The simulation and the selected key the report is written from (null: an empty report). The
// simulation screen sets it while the report window is open.
void UstawSymulacjeRaportu(const Symulacja* symulacja, const QString& wybrany);

void TworzRaportSymulacji(Raport& r);

// The report form, shown in the report window (save, print, PDF, CSV).
const FormularzRaportu& FormularzRaportuSymulacji();
