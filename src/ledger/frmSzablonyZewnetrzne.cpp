#include "ledger/frmSzablonyZewnetrzne.h"

#include "store/napis.h"
#include "store/session.h"

namespace {
NapisyListySzablonow napisy() {
  NapisyListySzablonow n;
  const bool przychody = sesja.pubSzablonRodzaj == 1;
  n.tytul = przychody ? Napis(QStringLiteral("frmSzablonyZewnetrzne16"))
                      : Napis(QStringLiteral("frmSzablonyZewnetrzne18"));
  n.podtytul = przychody ? Napis(QStringLiteral("frmSzablonyZewnetrzne17"))
                         : Napis(QStringLiteral("frmSzablonyZewnetrzne19"));
  n.klucz = Napis(QStringLiteral("frmSzablonyZewnetrzne1"));
  n.podpowiedzKlucza = Napis(QStringLiteral("frmSzablonyZewnetrzne2"));
  n.kolumny = {Napis(QStringLiteral("frmSzablonyZewnetrzne3")),
               Napis(QStringLiteral("frmSzablonyZewnetrzne4")),
               Napis(QStringLiteral("frmSzablonyZewnetrzne5")),
               Napis(QStringLiteral("frmSzablonyZewnetrzne6")),
               Napis(QStringLiteral("frmSzablonyZewnetrzne7"))};
  n.wybierz = Napis(QStringLiteral("frmSzablonyZewnetrzne8"));
  n.edytuj = Napis(QStringLiteral("frmSzablonyZewnetrzne9"));
  n.nowy = Napis(QStringLiteral("frmSzablonyZewnetrzne10"));
  n.kasuj = Napis(QStringLiteral("frmSzablonyZewnetrzne11"));
  n.zamknij = Napis(QStringLiteral("frmSzablonyZewnetrzne12"));
  n.pomoc = Napis(QStringLiteral("frmSzablonyZewnetrzne13"));
  n.podpowiedzPomocy = Napis(QStringLiteral("frmSzablonyZewnetrzne25"));
  n.menuEdytuj = Napis(QStringLiteral("frmSzablonyZewnetrzne14"));
  n.menuKasuj = Napis(QStringLiteral("frmSzablonyZewnetrzne15"));
  n.menuNowy = Napis(QStringLiteral("frmSzablonyZewnetrzne24"));
  return n;
}
}  // namespace

frmSzablonyZewnetrzne::frmSzablonyZewnetrzne(QWidget* parent)
    : ListaSzablonowGui(false, napisy(), parent) {
  setObjectName(QStringLiteral("frmSzablonyZewnetrzne"));
}
