#pragma once
// Step 3 of the wizard: the counterparties the user deals with most. They are written at once by
// the counterparty editor; an aborted wizard deletes them.

#include "setup/krokkreatora_gui.h"

class QTreeWidget;

class frmKreatorKontrahenci : public KrokKreatora {
  Q_OBJECT
 public:
  explicit frmKreatorKontrahenci(QWidget* rodzic = nullptr);
  void Odswiez();

 private:
  QTreeWidget* lvwKontrahenci_ = nullptr;
};
