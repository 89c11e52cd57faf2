#pragma once
// The payment slip screens for the gallery, on the store that is open (the gallery's sample):
// nothing is written.

#include <QWidget>
#include <memory>

// The editor filled from the counterparty with the largest planned expense and that expense.
std::unique_ptr<QWidget> GaleriaEdycjiPrzelewu();
// The print-out of that slip: a deposit on a plain sheet, or a transfer on the ready form.
std::unique_ptr<QWidget> GaleriaWydrukuPrzelewu(bool naFormularzu);
// The plain-sheet deposit as the PDF page comes out, read back through pdftoppm.
std::unique_ptr<QWidget> GaleriaPdfPrzelewu();
