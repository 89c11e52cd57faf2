#include "ledger/przeglad_galeria_gui.h"

#include "ledger/frmPrzegladTransakcji.h"
#include "ledger/frmPrzegladTransakcjiWewnetrznych.h"
#include "store/napis.h"
#include "store/session.h"

namespace {

// Executed rows over a month of entries, or a year of the fewer transfers; planned rows over
// every period.
template <typename Forma>
std::unique_ptr<QWidget> przeglad(int tryb, int kolumna, int okres) {
  sesja.pubTryb = tryb;
  sesja.pubFiltrCzasowy.rodzaj = tryb == 2 ? okres : 0;
  sesja.pubWierszTransakcji = sesja.pubWierszTransferu = 0;
  sesja.pubFiltrTransakcji.clear();
  sesja.pubFiltrTransferow.clear();
  // The titles the main window's captions hand over.
  sesja.pubTytulTransakcji = Napis(QStringLiteral("frmMain176"));
  sesja.pubTytulTransferow = Napis(QStringLiteral("frmMain177"));
  auto f = std::make_unique<Forma>();
  if (kolumna >= 0) f->KliknijNaglowek(kolumna);
  f->ZaznaczWiersz(3);
  return f;
}

}  // namespace

std::unique_ptr<QWidget> GaleriaPrzegladuTransakcji(int tryb, int kolumna) {
  return przeglad<frmPrzegladTransakcji>(tryb, kolumna, 3);
}

std::unique_ptr<QWidget> GaleriaPrzegladuTransferow(int tryb, int kolumna) {
  return przeglad<frmPrzegladTransakcjiWewnetrznych>(tryb, kolumna, 5);
}
