#pragma once
// The free-standing calculator of the main window: the same calculator with no field behind it.

#include "calculator/OknoKalkulatora_gui.h"

class frmKalkulatorCaly : public OknoKalkulatora {
  Q_OBJECT
 public:
  explicit frmKalkulatorCaly(QWidget* rodzic = nullptr);
  // The main window's command: the calculator starts from 0 and stands by the main window.
  static void Pokaz(QWidget* glowne);
};
