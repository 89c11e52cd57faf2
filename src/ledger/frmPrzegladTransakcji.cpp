#include "ledger/frmPrzegladTransakcji.h"

namespace {
TekstyPrzegladu teksty() {
  TekstyPrzegladu t;
  t.forma = QStringLiteral("frmPrzegladTransakcji");
  t.tytul = QStringLiteral("frmPrzegladTransakcji1");
  t.tytulPlanowanych = QStringLiteral("frmPrzegladTransakcji24");
  t.kolumny = {QStringLiteral("frmPrzegladTransakcji2"), QStringLiteral("frmPrzegladTransakcji3"),
               QStringLiteral("frmPrzegladTransakcji4"), QStringLiteral("frmPrzegladTransakcji5"),
               QStringLiteral("frmPrzegladTransakcji6"), QStringLiteral("frmPrzegladTransakcji7"),
               QStringLiteral("frmPrzegladTransakcji8")};
  t.suma1 = QStringLiteral("frmPrzegladTransakcji9");
  t.suma2 = QStringLiteral("frmPrzegladTransakcji10");
  t.raport = QStringLiteral("frmPrzegladTransakcji11");
  t.zamknij = QStringLiteral("frmPrzegladTransakcji12");
  t.edytuj = QStringLiteral("frmPrzegladTransakcji13");
  t.kasuj = QStringLiteral("frmPrzegladTransakcji14");
  t.zakres = QStringLiteral("frmPrzegladTransakcji15");
  t.podpowiedzRaportu = QStringLiteral("frmPrzegladTransakcji16");
  t.pytanie = QStringLiteral("frmPrzegladTransakcji22");
  t.tytulPytania = QStringLiteral("frmPrzegladTransakcji23");
  t.ilosc = QStringLiteral("frmPrzegladTransakcji25");
  t.okres = QStringLiteral("frmPrzegladTransakcji26");
  t.bladKasowania = QStringLiteral("frmPrzegladTransakcji27");
  t.edytor = QStringLiteral("frmEdycjaTransakcji");
  t.raportEkran = QStringLiteral("frmRaportTransakcji");
  return t;
}
}  // namespace

frmPrzegladTransakcji::frmPrzegladTransakcji(QWidget* parent)
    : PrzegladWpisowGui(RodzajPrzegladu::Transakcje, teksty(), parent) {}
