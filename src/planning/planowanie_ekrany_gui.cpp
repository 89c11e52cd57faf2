#include "planning/planowanie_ekrany_gui.h"

#include "planning/frmKalendarz.h"
#include "planning/frmKategorieOszczednosci.h"
#include "planning/raport_symulacji.h"
#include "reports/frmRaport.h"
#include "ui/nawigacja_gui.h"

void ZarejestrujEkranyPlanowania() {
  Nawigacja::Zarejestruj(QStringLiteral("frmKalendarz"),
                         [](QWidget* rodzic) { frmKalendarz(rodzic).exec(); });
  Nawigacja::Zarejestruj(QStringLiteral("frmKategorieOszczednosci"),
                         [](QWidget* rodzic) { frmKategorieOszczednosci(rodzic).exec(); });
  // The report reads the simulation the screen behind it has handed over.
  Nawigacja::Zarejestruj(QStringLiteral("frmRaportOszczednosciKategorie"), [](QWidget* rodzic) {
    frmRaport okno(FormularzRaportuSymulacji(), rodzic);
    okno.exec();
  });
}
