#pragma once
// The category change simulation on the expense tree: the base month, a percent change applied
// to any category (stored on its leaves), and what the selected category would cost after it,
// per month, quarter and year; the report of the selected branch.

#include <QDialog>
#include <QSet>

#include "planning/symulacja.h"

class QGroupBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;
class WyszukiwanieGui;

class frmKategorieOszczednosci : public QDialog {
  Q_OBJECT
 public:
  explicit frmKategorieOszczednosci(QWidget* parent = nullptr);
  ~frmKategorieOszczednosci() override;

  // PrzeliczSymulacje: the tree again from the store, the selected node kept.
  void PrzeliczSymulacje();
  // PokazSymulacje: the labels and the list of the selected node.
  void PokazSymulacje();
  // cmdUstawOszczednosc and a double click: the percent onto the selected node's leaves.
  void UstawOszczednosc();
  // The up-down buttons: krok +-10 or +-1, held between -100 and 100.
  void ZmienProcent(int krok);
  void cmdDrukuj_Click();

  const Symulacja& symulacja() const { return symulacja_; }
  QString Wybrany() const { return wybrany_; }
  // Selects the node of a key (as a click does).
  void Wybierz(const QString& klucz);

 private:
  void procentZmieniony();
  QTreeWidgetItem* wezel(const QString& klucz) const;

  Symulacja symulacja_;
  QString wybrany_ = QStringLiteral("Root");
  QSet<QString> rozwiniete_;
  bool wypelnianie_ = false;

  QTreeWidget* tvwKategorie_ = nullptr;
  QTreeWidget* lvwPodkategorie_ = nullptr;
  QRadioButton* optBazowy_[2] = {};
  QLineEdit* txtProcent_ = nullptr;
  QPushButton* cmdUstawOszczednosc_ = nullptr;
  QGroupBox* fraOszczednosc_ = nullptr;
  QLabel* lblWykonanie_[3] = {};
  QLabel* lblOszczednosc_[3] = {};
  QLabel* lblOpisZmiany_ = nullptr;
  QProgressBar* pbrPasek_ = nullptr;
  QLabel* lblCzekac_ = nullptr;
  WyszukiwanieGui* wyszukiwanie_ = nullptr;
};
