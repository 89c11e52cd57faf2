#pragma once
// The entry and transfer editors for the gallery, each in a state worth looking at, on the store
// that is open (the gallery's sample): nothing is written.

#include <QWidget>
#include <memory>

// A new income as it opens; a new expense with account, category, counterparty and amount
// chosen; an existing planned expense (with cmdRealizuj).
std::unique_ptr<QWidget> GaleriaNowegoPrzychodu();
std::unique_ptr<QWidget> GaleriaNowegoWydatku();
std::unique_ptr<QWidget> GaleriaZaplanowanegoWpisu();
// A new transfer with both accounts chosen; an existing planned transfer.
std::unique_ptr<QWidget> GaleriaNowegoTransferu();
std::unique_ptr<QWidget> GaleriaZaplanowanegoTransferu();
