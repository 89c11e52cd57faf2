#include "setup/ustawienia_ekrany_gui.h"

#include "masterdata/frmEdycjaKonta.h"
#include "masterdata/frmEdycjaKontrahenta.h"
#include "setup/frmKolory.h"
#include "setup/frmKonfiguracja.h"
#include "setup/frmOProgramie.h"
#include "setup/frmPomoc.h"
#include "setup/frmKreatorKategorie.h"
#include "setup/frmKreatorKolory.h"
#include "setup/frmKreatorKonta.h"
#include "setup/frmKreatorKontrahenci.h"
#include "setup/frmKreatorWitamy.h"
#include "setup/frmUstawienia.h"
#include "ui/nawigacja_gui.h"

namespace {
template <typename Ekran>
void modalny(const char* nazwa) {
  Nawigacja::Zarejestruj(QLatin1String(nazwa), [](QWidget* rodzic) { Ekran(rodzic).exec(); });
}
}  // namespace

void ZarejestrujEkranyUstawien() {
  modalny<frmKreatorWitamy>("frmKreatorWitamy");
  modalny<frmKreatorKategorie>("frmKreatorKategorie");
  modalny<frmKreatorKonta>("frmKreatorKonta");
  modalny<frmKreatorKontrahenci>("frmKreatorKontrahenci");
  modalny<frmKreatorKolory>("frmKreatorKolory");
  modalny<frmUstawienia>("frmUstawienia");
  modalny<frmKolory>("frmKolory");
  modalny<frmKonfiguracja>("frmKonfiguracja");
  modalny<frmPomoc>("frmPomoc");
  modalny<frmOProgramie>("frmOProgramie");
  // The wizard's steps open the two editors for new rows.
  if (!Nawigacja::Dostepny(QStringLiteral("frmEdycjaKonta")))
    modalny<frmEdycjaKonta>("frmEdycjaKonta");
  if (!Nawigacja::Dostepny(QStringLiteral("frmEdycjaKontrahenta")))
    modalny<frmEdycjaKontrahenta>("frmEdycjaKontrahenta");
}
