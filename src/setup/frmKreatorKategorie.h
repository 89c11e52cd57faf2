#pragma once
// Step 1 of the wizard: one of the five ready category sets, with a preview of its expense and
// income trees. The choice stays in the session until the finish.

#include "setup/krokkreatora_gui.h"

class QRadioButton;
class QTreeWidget;

class frmKreatorKategorie : public KrokKreatora {
  Q_OBJECT
 public:
  explicit frmKreatorKategorie(QWidget* rodzic = nullptr);

 private:
  void Wybierz(int typ);
  QRadioButton* optTyp1_[5] = {};
  QTreeWidget* tvwKategorie_ = nullptr;
};
