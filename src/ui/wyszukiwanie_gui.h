#pragma once
// The search box and its "next" button as one piece that every browser wires to its tree or
// list: txtKlucz, cmdNastepny and the walk of Wyszukiwanie.

#include <QObject>
#include <functional>

#include "ui/wyszukiwanie.h"

class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

class WyszukiwanieGui : public QObject {
  Q_OBJECT
 public:
  // The nodes in the order they were added: their count and the node of a 1-based index.
  using Wezly = std::function<QList<QTreeWidgetItem*>()>;

  // pierwszy: the first index the walk looks at. wezly: null walks the tree top to bottom
  // (every node, expanded or not), which is the order of adding for trees filled parents first.
  WyszukiwanieGui(QLineEdit* txtKlucz, QPushButton* cmdNastepny, QTreeWidget* drzewo, int pierwszy,
                  Wezly wezly = nullptr);

  // Clears the box (after a refill of the tree) and hides the button.
  void Wyczysc();

  // Every node of a tree in pre-order.
  static QList<QTreeWidgetItem*> WszystkieWezly(QTreeWidget* drzewo);

 signals:
  // Enter in a non-empty box: the browser acts as on its "take" button.
  void wybierz();

 protected:
  bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

 private:
  void zmiana();
  void nastepny();
  void pokaz(const QList<QTreeWidgetItem*>& lista, int indeks);

  QLineEdit* txtKlucz_;
  QPushButton* cmdNastepny_;
  QTreeWidget* drzewo_;
  Wezly wezly_;
  Wyszukiwanie walk_;
};
