#pragma once
// Step 4 of the wizard: one of the six colour profiles, shown at once in the sample. The finish
// writes the chosen category set and the colours in one go.

#include "setup/krokkreatora_gui.h"

class PodgladKolorow;
class QRadioButton;

class frmKreatorKolory : public KrokKreatora {
  Q_OBJECT
 public:
  explicit frmKreatorKolory(QWidget* rodzic = nullptr);

 private:
  void Wybierz(int profil);
  QRadioButton* optProfil_[6] = {};
  PodgladKolorow* picPodglad_ = nullptr;
};
