#include "ledger/frmPrzegladTransakcjiWewnetrznych.h"

namespace {
TekstyPrzegladu teksty() {
  TekstyPrzegladu t;
  t.forma = QStringLiteral("frmPrzegladTransakcjiWewnetrznych");
  t.tytul = QStringLiteral("frmPrzegladTransakcjiWewnetrznych1");
  t.tytulPlanowanych = QStringLiteral("frmPrzegladTransakcjiWewnetrznych20");
  t.kolumny = {QStringLiteral("frmPrzegladTransakcjiWewnetrznych2"),
               QStringLiteral("frmPrzegladTransakcjiWewnetrznych3"),
               QStringLiteral("frmPrzegladTransakcjiWewnetrznych4"),
               QStringLiteral("frmPrzegladTransakcjiWewnetrznych5"),
               QStringLiteral("frmPrzegladTransakcjiWewnetrznych6")};
  t.suma1 = QStringLiteral("frmPrzegladTransakcjiWewnetrznych7");
  t.raport = QStringLiteral("frmPrzegladTransakcjiWewnetrznych8");
  t.zamknij = QStringLiteral("frmPrzegladTransakcjiWewnetrznych9");
  t.edytuj = QStringLiteral("frmPrzegladTransakcjiWewnetrznych10");
  t.kasuj = QStringLiteral("frmPrzegladTransakcjiWewnetrznych11");
  t.zakres = QStringLiteral("frmPrzegladTransakcjiWewnetrznych12");
  t.podpowiedzRaportu = QStringLiteral("frmPrzegladTransakcjiWewnetrznych13");
  t.pytanie = QStringLiteral("frmPrzegladTransakcjiWewnetrznych18");
  t.tytulPytania = QStringLiteral("frmPrzegladTransakcjiWewnetrznych19");
  t.okres = QStringLiteral("frmPrzegladTransakcjiWewnetrznych21");
  t.ilosc = QStringLiteral("frmPrzegladTransakcjiWewnetrznych22");
  t.bladKasowania = QStringLiteral("frmPrzegladTransakcjiWewnetrznych23");
  t.edytor = QStringLiteral("frmEdycjaTransakcjiWewnetrznej");
  t.raportEkran = QStringLiteral("frmRaportTransakcjiWewnetrznych");
  return t;
}
}  // namespace

frmPrzegladTransakcjiWewnetrznych::frmPrzegladTransakcjiWewnetrznych(QWidget* parent)
    : PrzegladWpisowGui(RodzajPrzegladu::Transfery, teksty(), parent) {}
