#pragma once
// The entry browser: income and expense entries, executed (pubTryb 2) or planned, narrowed by
// the caller's condition (pubFiltrTransakcji, titled pubTytulTransakcji) and the time filter.

#include "ledger/przegladwpisow_gui.h"

class frmPrzegladTransakcji : public PrzegladWpisowGui {
  Q_OBJECT
 public:
  explicit frmPrzegladTransakcji(QWidget* parent = nullptr);
};
