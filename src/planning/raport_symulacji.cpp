#include "planning/raport_symulacji.h"

#include "reports/wspolne.h"
#include "store/napis.h"
#include "store/tekst.h"

namespace {

const Symulacja* gSymulacja = nullptr;
QString gWybrany;
constexpr int kSzerokosc = 100;

}  // namespace

void UstawSymulacjeRaportu(const Symulacja* symulacja, const QString& wybrany) {
  gSymulacja = symulacja;
  gWybrany = wybrany;
}

void TworzRaportSymulacji(Raport& r) {
  r.pubSzerokoscRaportu = kSzerokosc;
  r.dok.szerokosc = kSzerokosc;
  PoleRaportu(r, Napis(QStringLiteral("frmRaportOszczednosciKategorie8")), 45, 0);
  NowaLinia(r, 1);
  const QString glowki[2][5] = {{Napis(QStringLiteral("frmRaportOszczednosciKategorie9")),
                                 Napis(QStringLiteral("frmRaportOszczednosciKategorie10")),
                                 Napis(QStringLiteral("frmRaportOszczednosciKategorie11")),
                                 Napis(QStringLiteral("frmRaportOszczednosciKategorie12")),
                                 Napis(QStringLiteral("frmRaportOszczednosciKategorie13"))},
                                {Napis(QStringLiteral("frmRaportOszczednosciKategorie14")),
                                 Napis(QStringLiteral("frmRaportOszczednosciKategorie15")),
                                 Napis(QStringLiteral("frmRaportOszczednosciKategorie16")),
                                 Napis(QStringLiteral("frmRaportOszczednosciKategorie17")),
                                 Napis(QStringLiteral("frmRaportOszczednosciKategorie18"))}};
  for (const auto& wiersz : glowki) {
    PoleRaportu(r, QString(), 45, 0);
    for (const QString& g : wiersz) PoleRaportu(r, g, -11, 0);
    NowaLinia(r, 1);
  }
  LiniaRaportu(r, kSzerokosc, false);
  r.dok.ZakonczNaglowek();
  QStringList naglowek{Napis(QStringLiteral("frmRaportOszczednosciKategorie8"))};
  for (int k = 0; k < 5; ++k)
    naglowek << (glowki[0][k].trimmed() + QLatin1Char(' ') + glowki[1][k].trimmed()).trimmed();
  r.dok.tabela.push_back(naglowek);

  if (gSymulacja) {
    const QString korzen = QStringLiteral("Root");
    const QString& k = gWybrany;
    r.Maksimum(int(gSymulacja->wezly.size()));
    int licznik = 1;
    for (const WezelSymulacji& w : gSymulacja->wezly) {
      if (r.Przerwij(licznik++)) break;
      if (!(w.klucz.startsWith(k) || k == korzen)) continue;
      const int wciecie = w.klucz == korzen ? 0 : 2 * int(w.klucz.size());
      PoleRaportu(r, QString(), wciecie, 0);
      PoleRaportu(r, w.tekst, 27, 0);
      if (18 - wciecie >= 0) PoleRaportu(r, QString(), 18 - wciecie, 0);
      const qint64 d = w.b - w.a;
      const qint64 kolumny[5] = {w.a, w.b, d, d * 3, d * 12};
      QStringList wiersz{w.tekst};
      for (qint64 g : kolumny) {
        // A column wider than its 11 places still keeps a blank from the one before it.
        const QString t = KwotaTabeli(g);
        PoleRaportu(r, t.size() >= 11 ? QLatin1Char(' ') + t : t, -11, 0);
        wiersz << KwotaTabeli(g);
      }
      NowaLinia(r, 1);
      r.dok.tabela.push_back(wiersz);
    }
  }
  LiniaRaportu(r, kSzerokosc, false);
  StopkaRaportu(r);
}

const FormularzRaportu& FormularzRaportuSymulacji() {
  static const FormularzRaportu f = {"frmRaportOszczednosciKategorie",
                                     "frmRaportOszczednosciKategorie",
                                     "frmRaportOszczednosciKategorie19",
                                     kSzerokosc,
                                     0,
                                     TworzRaportSymulacji};
  return f;
}
