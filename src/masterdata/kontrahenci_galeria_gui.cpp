#include "masterdata/kontrahenci_galeria_gui.h"

#include "masterdata/frmEdycjaKontrahenta.h"
#include "masterdata/frmPrzegladKontrahentow.h"
#include "store/baza.h"
#include "store/session.h"

namespace {
// The counterparty with the most planned entries: its panel has something to show.
qint64 najwiecejZaplanowanych() {
  OtworzBaze();
  return pubBaza()
      .Czytaj(QStringLiteral(
          "SELECT TOP 1 kontrahent, COUNT(id) AS ile FROM zaplanowane WHERE kontrahent>0 "
          "GROUP BY kontrahent ORDER BY COUNT(id) DESC, kontrahent"))
      .Pole(0)
      .toLongLong();
}
}  // namespace

std::unique_ptr<QWidget> GaleriaEdycjiKontrahenta(bool nowy) {
  sesja.pubKontrahent.id = nowy ? 0 : najwiecejZaplanowanych();
  return std::make_unique<frmEdycjaKontrahenta>();
}

std::unique_ptr<QWidget> GaleriaPrzegladuKontrahentow(bool wybor) {
  const int filtr = sesja.pubFiltrCzasowy.rodzaj;
  sesja.pubFiltrCzasowy.rodzaj = 5;  // the year: enough entries for the sums
  sesja.pubTrybPrzegladu = wybor ? 2 : 1;
  sesja.pubSzczegoly = wybor ? 0 : 1;
  sesja.pubEdytorOtwarty = wybor;
  sesja.pubPozycjaX = sesja.pubPozycjaY = -1;
  sesja.pubKontrahent.id = najwiecejZaplanowanych();
  auto f = std::make_unique<frmPrzegladKontrahentow>();
  sesja.pubEdytorOtwarty = false;
  sesja.pubTrybPrzegladu = 1;
  sesja.pubFiltrCzasowy.rodzaj = filtr;
  return f;
}
