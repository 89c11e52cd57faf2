#include "ledger/frmSzablonyWewnetrzne.h"

#include "store/napis.h"

namespace {
NapisyListySzablonow napisy() {
  NapisyListySzablonow n;
  n.tytul = Napis(QStringLiteral("frmSzablonyWewnetrzne1"));
  n.podtytul = Napis(QStringLiteral("frmSzablonyWewnetrzne14"));
  n.klucz = Napis(QStringLiteral("frmSzablonyWewnetrzne2"));
  n.podpowiedzKlucza = Napis(QStringLiteral("frmSzablonyWewnetrzne3"));
  n.kolumny = {Napis(QStringLiteral("frmSzablonyWewnetrzne4")),
               Napis(QStringLiteral("frmSzablonyWewnetrzne5")),
               Napis(QStringLiteral("frmSzablonyWewnetrzne6")),
               Napis(QStringLiteral("frmSzablonyWewnetrzne7"))};
  n.wybierz = Napis(QStringLiteral("frmSzablonyWewnetrzne8"));
  n.edytuj = Napis(QStringLiteral("frmSzablonyWewnetrzne9"));
  n.nowy = Napis(QStringLiteral("frmSzablonyWewnetrzne10"));
  n.kasuj = Napis(QStringLiteral("frmSzablonyWewnetrzne11"));
  n.zamknij = Napis(QStringLiteral("frmSzablonyWewnetrzne12"));
  n.pomoc = Napis(QStringLiteral("frmSzablonyWewnetrzne13"));
  n.podpowiedzPomocy = Napis(QStringLiteral("frmSzablonyWewnetrzne22"));
  n.menuEdytuj = Napis(QStringLiteral("frmSzablonyWewnetrzne19"));
  n.menuKasuj = Napis(QStringLiteral("frmSzablonyWewnetrzne20"));
  n.menuNowy = Napis(QStringLiteral("frmSzablonyWewnetrzne21"));
  return n;
}
}  // namespace

frmSzablonyWewnetrzne::frmSzablonyWewnetrzne(QWidget* parent)
    : ListaSzablonowGui(true, napisy(), parent) {
  setObjectName(QStringLiteral("frmSzablonyWewnetrzne"));
}
