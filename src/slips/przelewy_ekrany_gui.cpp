#include "slips/przelewy_ekrany_gui.h"

#include "slips/frmEdycjaPrzelewu.h"
#include "slips/frmWydrukPrzelewu.h"
#include "ui/nawigacja_gui.h"

void ZarejestrujEkranyPrzelewow() {
  Nawigacja::Zarejestruj(QStringLiteral("frmEdycjaPrzelewu"),
                         [](QWidget* rodzic) { frmEdycjaPrzelewu(rodzic).exec(); });
  Nawigacja::Zarejestruj(QStringLiteral("frmWydrukPrzelewu"),
                         [](QWidget* rodzic) { frmWydrukPrzelewu(rodzic).exec(); });
}
