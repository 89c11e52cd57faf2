#include "ledger/ekrany_ksiegi_gui.h"

#include "ledger/frmEdycjaOkresowych.h"
#include "ledger/frmEdycjaSzablonuWewnetrznego.h"
#include "ledger/frmEdycjaSzablonuZewnetrznego.h"
#include "ledger/frmOkresowe.h"
#include "ledger/frmParagon.h"
#include "ledger/frmSzablonyWewnetrzne.h"
#include "ledger/frmSzablonyZewnetrzne.h"
#include "ui/nawigacja_gui.h"

namespace {
template <typename Ekran>
void modalny(const char* nazwa) {
  Nawigacja::Zarejestruj(QLatin1String(nazwa), [](QWidget* rodzic) { Ekran(rodzic).exec(); });
}
}  // namespace

void ZarejestrujSzablonyParagonOkresowe() {
  modalny<frmSzablonyZewnetrzne>("frmSzablonyZewnetrzne");
  modalny<frmSzablonyWewnetrzne>("frmSzablonyWewnetrzne");
  modalny<frmEdycjaSzablonuZewnetrznego>("frmEdycjaSzablonuZewnetrznego");
  modalny<frmEdycjaSzablonuWewnetrznego>("frmEdycjaSzablonuWewnetrznego");
  modalny<frmParagon>("frmParagon");
  modalny<frmOkresowe>("frmOkresowe");
  modalny<frmEdycjaOkresowych>("frmEdycjaOkresowych");
}
