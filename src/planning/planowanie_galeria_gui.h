#pragma once
// The planning screens for the gallery, on the store that is open (the gallery's sample). What
// they need beyond the sample (plans on many days, changes set) is written inside a change that
// is rolled back once the screen has read it: the store is left as it was.

#include <QWidget>
#include <memory>

// The calendar of today's month with planned items on many days.
std::unique_ptr<QWidget> GaleriaKalendarza();
// The same with its day menu opened over a day.
std::unique_ptr<QWidget> GaleriaMenuKalendarza();
// The simulation with changes set, a main category selected.
std::unique_ptr<QWidget> GaleriaSymulacji();
// The simulation report of the whole tree.
std::unique_ptr<QWidget> GaleriaRaportuSymulacji();
