#include "masterdata/kategorie_galeria_gui.h"

#include "masterdata/frmEdycjaKategorii.h"
#include "masterdata/frmLimitDlaKategorii.h"
#include "masterdata/frmPrzegladKategorii.h"
#include "masterdata/kategorie.h"
#include "store/baza.h"
#include "store/session.h"

namespace {

// The main category of the tree with the most children.
QString glownaZDziecmi(int rodzaj) {
  const Rekordy rs = pubBaza().Czytaj(
      QStringLiteral("SELECT kategoria, COUNT(id) AS ile FROM kategorie WHERE rodzaj=") +
      QString::number(rodzaj) +
      QStringLiteral(" AND LEN(kategoria)=1 AND kategoria<>'-' GROUP BY kategoria ORDER BY "
                     "COUNT(id) DESC, kategoria"));
  return Oczysc(rs.Pole(QStringLiteral("kategoria")));
}

// A leaf below a main category that has a limit, else any leaf: its identifier and name.
KategoriaRekord lisc(int rodzaj) {
  const Rekordy rs = pubBaza().Czytaj(
      QStringLiteral("SELECT identyfikator, nazwa, kategoria FROM kategorie AS k WHERE rodzaj=") +
      QString::number(rodzaj) +
      QStringLiteral(
          " AND LEN(identyfikator)>1 AND NOT EXISTS (SELECT id FROM kategorie AS d WHERE "
          "d.rodzaj=k.rodzaj AND d.kategoria=k.identyfikator) ORDER BY limit DESC, identyfikator"));
  KategoriaRekord k;
  k.identyfikator = Oczysc(rs.Pole(QStringLiteral("identyfikator")));
  k.nazwa = Oczysc(rs.Pole(QStringLiteral("nazwa")));
  k.nadkategoria = Oczysc(rs.Pole(QStringLiteral("kategoria")));
  k.rodzaj = rodzaj;
  return k;
}

}  // namespace

std::unique_ptr<QWidget> GaleriaPrzegladuKategorii(int rodzaj, bool naLisciu) {
  OtworzBaze();
  const int filtr = sesja.pubFiltrCzasowy.rodzaj;
  sesja.pubFiltrCzasowy.rodzaj = 5;  // the year: enough entries for a breakdown
  sesja.pubTrybPrzegladu = 1;
  sesja.pubSzczegoly = 1;
  sesja.pubEdytorOtwarty = false;
  sesja.pubPozycjaX = sesja.pubPozycjaY = -1;
  sesja.pubKategoria =
      naLisciu ? lisc(rodzaj) : KategoriaRekord{glownaZDziecmi(rodzaj), {}, {}, rodzaj};
  auto f = std::make_unique<frmPrzegladKategorii>();
  sesja.pubFiltrCzasowy.rodzaj = filtr;
  return f;
}

std::unique_ptr<QWidget> GaleriaWyboruKategorii() {
  OtworzBaze();
  sesja.pubTrybPrzegladu = 2;
  sesja.pubSzczegoly = 0;
  sesja.pubEdytorOtwarty = true;
  sesja.pubPozycjaX = sesja.pubPozycjaY = -1;
  sesja.pubKategoria = lisc(2);
  auto f = std::make_unique<frmPrzegladKategorii>();
  sesja.pubEdytorOtwarty = false;
  sesja.pubTrybPrzegladu = 1;
  return f;
}

std::unique_ptr<QWidget> GaleriaEdycjiKategorii(bool nowa) {
  OtworzBaze();
  sesja.pubKategoria = lisc(2);
  if (nowa) {
    sesja.pubKategoria.identyfikator.clear();
    sesja.pubKategoria.nadkategoria = KluczKorzenia;
  }
  return std::make_unique<frmEdycjaKategorii>();
}

std::unique_ptr<QWidget> GaleriaLimituKategorii() {
  OtworzBaze();
  sesja.pubKategoria = lisc(2);
  return std::make_unique<frmLimitDlaKategorii>();
}
