#pragma once
// The recurring rules: the list with its letter-by-letter search, new, edit and delete (button,
// Delete key, pop-up menu), and how many days ahead the rules are planned.

#include <QDialog>
#include <vector>

#include "ledger/okresowe.h"

class QLineEdit;
class QMenu;
class QSpinBox;
class QTreeWidget;

class frmOkresowe : public QDialog {
  Q_OBJECT
 public:
  explicit frmOkresowe(QWidget* parent = nullptr);

  void OdswiezListe();
  void cmdEdytuj_Click();
  void cmdNowySzablon_Click();
  void cmdKasuj_Click();
  // Stores the horizon and plans what it adds.
  void UstawHoryzont();

 private:
  void zbuduj();
  qint64 biezacyId() const;
  void zaznacz(qint64 id);

  QLineEdit* txtKlucz_ = nullptr;
  QTreeWidget* lvw_ = nullptr;
  QSpinBox* txtHoryzont_ = nullptr;
  QMenu* mnuOpcje_ = nullptr;
};
