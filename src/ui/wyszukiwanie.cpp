#include "ui/wyszukiwanie.h"

namespace {
bool pasuje(const QString& tekstWezla, const QString& klucz) {
  return tekstWezla.contains(klucz, Qt::CaseInsensitive);
}
}  // namespace

Wyszukiwanie::Wynik Wyszukiwanie::Zmiana(const QString& klucz, int ostatni,
                                         const TekstWezla& tekst) {
  Wynik w;
  const QString k = klucz.trimmed();
  if (k.isEmpty()) return w;
  for (int i = pierwszy_; i <= ostatni; ++i)
    if (pasuje(tekst(i), k)) {
      w.trafienie = i;
      pozycja_ = i + 1;
      break;
    }
  // With no hit the position stays where it was; then nothing lies behind it either.
  for (int i = pozycja_; i <= ostatni && w.trafienie; ++i)
    if (pasuje(tekst(i), k)) {
      w.nastepny = true;
      break;
    }
  return w;
}

int Wyszukiwanie::Nastepny(const QString& klucz, int ostatni, const TekstWezla& tekst) {
  const QString k = klucz.trimmed();
  if (pozycja_ > ostatni) pozycja_ = pierwszy_;
  for (int i = pozycja_; i <= ostatni; ++i) {
    if (!k.isEmpty() && pasuje(tekst(i), k)) {
      pozycja_ = i + 1;
      return i;
    }
    pozycja_ = pierwszy_;
  }
  return 0;
}
