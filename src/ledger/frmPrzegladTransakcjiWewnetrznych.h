#pragma once
// The transfer browser: transfers between accounts, executed (pubTryb 2) or planned, narrowed by
// the caller's condition (pubFiltrTransferow, titled pubTytulTransferow) and the time filter.

#include "ledger/przegladwpisow_gui.h"

class frmPrzegladTransakcjiWewnetrznych : public PrzegladWpisowGui {
  Q_OBJECT
 public:
  explicit frmPrzegladTransakcjiWewnetrznych(QWidget* parent = nullptr);
};
