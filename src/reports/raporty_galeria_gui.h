#pragma once
// The report windows for the gallery, on the store that is open (the gallery's sample), for the
// month of the working date: nothing is written to the store.

#include <QWidget>
#include <memory>

// The window of a report form, its report written, or caught while it is being written (the
// wait frame up, the bar part-way).
std::unique_ptr<QWidget> GaleriaRaportu(const QString& ekran, bool wTrakcie);
// The first page of the report's PDF, read back through pdftoppm; nullptr (and a line in the
// log) when pdftoppm is missing or fails, so the gallery goes on without it.
std::unique_ptr<QWidget> GaleriaPdfRaportu(const QString& ekran);
