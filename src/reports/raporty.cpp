#include "reports/raporty.h"

namespace {

// Summary report: its rules are 107 wide, while 85 is the width it declares; the kind of head its
// pages repeat is its own.
const FormularzRaportu kFormularze[] = {
    {"frmRaportKont", "frmRaport", "frmRaport24", 96, 3, TworzRaportKont},
    {"frmRaportKategorii", "frmRaportKategorii", "frmRaportKategorii14", 85, 2, TworzRaportKategorii},
    {"frmRaportKontrahenta", "frmRaportKontrahenta", "frmRaportKontrahenta12", 96, 1, TworzRaportKontrahenta},
    {"frmRaportSumaryczny", "frmRaportSumaryczny", "frmRaportSumaryczny17", 85, 0, TworzRaportSumaryczny},
};

}  // namespace

const FormularzRaportu* FormularzeRaportow(int* ile) {
  *ile = int(std::size(kFormularze));
  return kFormularze;
}

const FormularzRaportu* ZnajdzFormularz(const QString& ekran) {
  for (const FormularzRaportu& f : kFormularze)
    if (ekran == QLatin1String(f.ekran)) return &f;
  return nullptr;
}

void TworzRaport(const FormularzRaportu& f, Raport& r) {
  r.pubSzerokoscRaportu = f.szerokosc;
  if (f.rodzaj) r.pubRodzajRaportu = f.rodzaj;
  r.dok.szerokosc = f.szerokosc;
  f.tworz(r);
}
