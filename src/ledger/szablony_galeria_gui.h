#pragma once
// Gallery pictures of the template lists and editors, the receipt and the recurring rules, over
// the sample store.

#include <QWidget>
#include <memory>

std::unique_ptr<QWidget> GaleriaSzablonow(bool wybor);
std::unique_ptr<QWidget> GaleriaSzablonowWewnetrznych();
std::unique_ptr<QWidget> GaleriaEdycjiSzablonu();
std::unique_ptr<QWidget> GaleriaEdycjiSzablonuWewnetrznego();
std::unique_ptr<QWidget> GaleriaParagonu();
std::unique_ptr<QWidget> GaleriaOkresowych();
std::unique_ptr<QWidget> GaleriaEdycjiOkresowej();
