#include "reports/raporty.h"

namespace {

// Summary report: its rules are 107 wide, while 85 is the width it declares; the kind of head its
// pages repeat is its own.
const FormularzRaportu kFormularze[] = {
    {"frmRaportKont", "frmRaport", "frmRaport24", 96, 3, TworzRaportKont},
    {"frmRaportKategorii", "frmRaportKategorii", "frmRaportKategorii14", 85, 2, TworzRaportKategorii},
    {"frmRaportKontrahenta", "frmRaportKontrahenta", "frmRaportKontrahenta12", 96, 1, TworzRaportKontrahenta},
    {"frmRaportTransakcji", "frmRaportTransakcji", "frmRaportTransakcji15", 109, 1,
     TworzRaportTransakcji},
    {"frmRaportTransakcjiWewnetrznych", "frmRaportTransakcjiWewnetrznych",
     "frmRaportTransakcjiWewnetrznych13", 109, 1, TworzRaportTransferow},
    {"frmRaportKontaWCzasie", "frmRaportKontaWCzasie", "frmRaportKontaWCzasie12", 92, 3,
     TworzRaportKontWCzasie},
    {"frmRaportKategorieWCzasie", "frmRaportKategorieWCzasie", "frmRaportKategorieWCzasie12", 85, 2,
     TworzRaportKategoriiWCzasie},
    {"frmRaportKontrahentaWCzasie", "frmRaportKontrahentaWCzasie", "frmRaportKontrahentaWCzasie10",
     81, 2, TworzRaportKontrahentaWCzasie},
    {"frmRaportSumaryczny", "frmRaportSumaryczny", "frmRaportSumaryczny17", 85, 0, TworzRaportSumaryczny},
};

}  // namespace

const FormularzRaportu* FormularzeRaportow(int* ile) {
  *ile = int(std::size(kFormularze));
  return kFormularze;
}

const FormularzRaportu* ZnajdzFormularz(const QString& ekran) {
  // The main window knows the account report by the name of the report window itself.
  if (ekran == QLatin1String("frmRaport")) return ZnajdzFormularz(QStringLiteral("frmRaportKont"));
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
