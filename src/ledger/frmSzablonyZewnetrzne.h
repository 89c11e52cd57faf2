#pragma once
// The income or expense templates (pubSzablonRodzaj 1 or 2), for maintenance from the main window
// or as the entry editor's picker (pubSzablonWybor 1).

#include "ledger/listaszablonow_gui.h"

class frmSzablonyZewnetrzne : public ListaSzablonowGui {
  Q_OBJECT
 public:
  explicit frmSzablonyZewnetrzne(QWidget* parent = nullptr);
};
