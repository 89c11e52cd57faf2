#pragma once
// One of the four lists of the dashboard with its caption: filled afresh from the store, striped,
// and the way to the whole list, to editing a row (double-click, Enter), to deleting it (the
// Delete key, with a question) and to the list's popup menu.

#include <QWidget>
#include <vector>

#include "mainwindow/pulpit.h"

class EtykietaPolecenia;
class QMenu;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;

class ListaPulpituGui : public QWidget {
  Q_OBJECT
 public:
  ListaPulpituGui(ListaPulpitu lista, QWidget* rodzic);

  ListaPulpitu Rodzaj() const { return lista_; }
  QTreeWidget* Lista() const { return lvw_; }
  const std::vector<WierszPulpitu>& Wiersze() const { return wiersze_; }

  // Refills the list from the store and stripes it.
  void Odswiez();
  // The list's commands on its selected row; nothing without one.
  void Edytuj();
  void Usun();
  // The whole list in its browser.
  void Przegladaj();
  // A new item of the list's kind: income (1) or expense (2) for entries; transfers ignore it.
  void Nowy(int rodzaj);
  // The popup menu as the right button opens it over a row; its command runs after it closed.
  QMenu* Menu() const { return menu_; }

 protected:
  bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

 private:
  void zbudujMenu();
  void pokazMenu(const QPoint& gdzie);
  int wybranyIndeks() const;
  int tryb() const;

  ListaPulpitu lista_;
  EtykietaPolecenia* tytul_ = nullptr;
  QToolButton* wiecej_ = nullptr;
  QTreeWidget* lvw_ = nullptr;
  QMenu* menu_ = nullptr;
  std::vector<WierszPulpitu> wiersze_;
};
