#include "app/ekrany_gui.h"

#include "calculator/frmKalkulatorCaly.h"
#include "imports/frmImport.h"
#include "imports/frmPrzywrocKopie.h"
#include "ledger/frmEdycjaTransakcji.h"
#include "ledger/frmEdycjaTransakcjiWewnetrznej.h"
#include "ledger/frmPrzegladTransakcji.h"
#include "ledger/frmPrzegladTransakcjiWewnetrznych.h"
#include "ledger/ekrany_ksiegi_gui.h"
#include "masterdata/frmPrzegladKategorii.h"
#include "masterdata/frmPrzegladKont.h"
#include "masterdata/frmPrzegladKontrahentow.h"
#include "planning/planowanie_ekrany_gui.h"
#include "questions/pytania_ekrany_gui.h"
#include "reports/frmRaport.h"
#include "slips/przelewy_ekrany_gui.h"
#include "setup/ustawienia_ekrany_gui.h"
#include "ui/frmZakresDat.h"
#include "ui/frmZmianaDaty.h"
#include "ui/nawigacja_gui.h"

namespace {
// A modal screen whose constructor reads the session and whose result goes back into it.
template <typename Ekran>
void modalny(const char* nazwa) {
  Nawigacja::Zarejestruj(QLatin1String(nazwa), [](QWidget* rodzic) { Ekran(rodzic).exec(); });
}
}  // namespace

void ZarejestrujEkrany() {
  modalny<frmEdycjaTransakcji>("frmEdycjaTransakcji");
  modalny<frmEdycjaTransakcjiWewnetrznej>("frmEdycjaTransakcjiWewnetrznej");
  modalny<frmPrzegladTransakcji>("frmPrzegladTransakcji");
  modalny<frmPrzegladTransakcjiWewnetrznych>("frmPrzegladTransakcjiWewnetrznych");
  modalny<frmPrzegladKont>("frmPrzegladKont");
  modalny<frmPrzegladKategorii>("frmPrzegladKategorii");
  modalny<frmPrzegladKontrahentow>("frmPrzegladKontrahentow");
  modalny<frmZmianaDaty>("frmZmianaDaty");
  modalny<frmZakresDat>("frmZakresDat");
  modalny<frmImport>("frmImport");
  modalny<frmPrzywrocKopie>("frmPrzywrocKopie");
  Nawigacja::Zarejestruj(QStringLiteral("frmKalkulatorCaly"),
                         [](QWidget* rodzic) { frmKalkulatorCaly::Pokaz(rodzic); });
  ZarejestrujRaporty();
  ZarejestrujSzablonyParagonOkresowe();
  ZarejestrujEkranyPytan();
  ZarejestrujEkranyPlanowania();
  ZarejestrujEkranyPrzelewow();
  ZarejestrujEkranyUstawien();
}
