#pragma once
// "Przywróć kopię…": the copies of the store that pass their check, newest first, with date and
// size; the chosen one replaces the store after a question, the current file kept as a copy.
// The number of copies kept is set here too.

#include <QDialog>
#include <vector>

#include "imports/kopie.h"

class QLabel;
class QPushButton;
class QSpinBox;
class QTreeWidget;

class frmPrzywrocKopie : public QDialog {
  Q_OBJECT
 public:
  explicit frmPrzywrocKopie(QWidget* parent = nullptr);

 private:
  void wypelnij();
  void cmdPrzywroc_Click();
  void cmdZrobKopie_Click();
  void spnLiczbaKopii_Change(int liczba);
  QTreeWidget* lvwKopie_;
  QLabel* lblBrak_;
  QSpinBox* spnLiczbaKopii_;
  QPushButton* cmdPrzywroc_;
  std::vector<Kopia> kopie_;
};
