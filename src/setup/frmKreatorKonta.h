#pragma once
// Step 2 of the wizard: the user's accounts, one button per account kind, in a tree by kind.
// Accounts are written at once by the account editor; an aborted wizard deletes them.

#include "setup/krokkreatora_gui.h"

class QTreeWidget;

class frmKreatorKonta : public KrokKreatora {
  Q_OBJECT
 public:
  explicit frmKreatorKonta(QWidget* rodzic = nullptr);
  void Odswiez();

 private:
  QTreeWidget* tvwKonta_ = nullptr;
};
