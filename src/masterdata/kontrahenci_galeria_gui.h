#pragma once
// The counterparty screens for the gallery, each in a state worth looking at, on the store that
// is open (the gallery's sample): nothing is written.

#include <QWidget>
#include <memory>

// The editor on the counterparty with the most planned entries, and on a new one.
std::unique_ptr<QWidget> GaleriaEdycjiKontrahenta(bool nowy);
// The browser with the details open on the counterparty with the most planned entries; the
// narrow picker as an editor opens it.
std::unique_ptr<QWidget> GaleriaPrzegladuKontrahentow(bool wybor);
