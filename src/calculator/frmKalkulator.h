#pragma once
// The calculator opened beside an amount field (PoleKwoty::OtworzKalkulator): it starts from
// pubKalkWartosc, stands at pubKalkLewa/pubKalkGora, and cmdZamknij hands its display back
// through pubKalkWartosc.

#include "calculator/OknoKalkulatora_gui.h"

class frmKalkulator : public OknoKalkulatora {
  Q_OBJECT
 public:
  explicit frmKalkulator(QWidget* rodzic = nullptr);
};
