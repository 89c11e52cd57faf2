#pragma once
// The questions screens for the gallery, over sample questions that are not kept: they are
// written inside a transaction that is rolled back once the screen has read them.

#include <QWidget>
#include <memory>

// The list with questions in all three states, an answered one chosen.
std::unique_ptr<QWidget> GaleriaPytan();
// The editor changing a question not sent yet.
std::unique_ptr<QWidget> GaleriaEdycjiPytania();
// The login screen, filled in.
std::unique_ptr<QWidget> GaleriaUstawienInternetowych();
