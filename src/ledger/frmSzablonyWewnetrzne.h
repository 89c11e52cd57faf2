#pragma once
// The transfer templates, for maintenance from the main window or as the transfer editor's picker
// (pubSzablonWybor 1).

#include "ledger/listaszablonow_gui.h"

class frmSzablonyWewnetrzne : public ListaSzablonowGui {
  Q_OBJECT
 public:
  explicit frmSzablonyWewnetrzne(QWidget* parent = nullptr);
};
