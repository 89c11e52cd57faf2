#pragma once
// The import and backup screens for the gallery, over the store that is open (the gallery's
// sample): the import preview of a statement made from the sample (duplicates, known and new
// counterparties, proposed categories, a transfer), the column mapping, the restore dialog.

#include <QWidget>
#include <memory>

std::unique_ptr<QWidget> GaleriaImportu();
std::unique_ptr<QWidget> GaleriaMapowaniaKolumn();
std::unique_ptr<QWidget> GaleriaPrzywracaniaKopii();
