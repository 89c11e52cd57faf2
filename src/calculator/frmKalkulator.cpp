#include "calculator/frmKalkulator.h"

#include "store/napis.h"

frmKalkulator::frmKalkulator(QWidget* rodzic)
    : OknoKalkulatora(rodzic, QStringLiteral("frmKalkulator"),
                      Napis(QStringLiteral("frmKalkulator1")),
                      Napis(QStringLiteral("frmKalkulator11"))) {}
