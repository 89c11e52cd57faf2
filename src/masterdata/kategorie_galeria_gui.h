#pragma once
// The category screens for the gallery, each in a state worth looking at, on the store that is
// open (the gallery's sample): nothing is written.

#include <QWidget>
#include <memory>

// The browser with the details open: on the main category with the most children (its
// breakdown), or on a leaf with a limit (its strip and limit panel).
std::unique_ptr<QWidget> GaleriaPrzegladuKategorii(int rodzaj, bool lisc);
// The narrow picker, as an editor opens it, on a leaf.
std::unique_ptr<QWidget> GaleriaWyboruKategorii();
// The editor on an existing subcategory, and on a new main category.
std::unique_ptr<QWidget> GaleriaEdycjiKategorii(bool nowa);
// The limit dialog on a leaf with a limit.
std::unique_ptr<QWidget> GaleriaLimituKategorii();
