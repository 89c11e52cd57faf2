// zorvik-builder --data DIR --out FILE [--sample N]
// Makes the delivered store from data/; a store that already holds the user's data only gets its
// delivered tables (texts, name days, wizard sets) refreshed. With --sample N it makes a new
// store of N generated entries instead (for the bench and the screenshots).

#include <QElapsedTimer>
#include <QFile>
#include <QStringList>
#include <cstdio>

#include "budowa.h"

namespace {
int blad(const QString& tekst) {
  std::fprintf(stderr, "zorvik-builder: %s\n", qPrintable(tekst));
  return 1;
}
}  // namespace

int main(int argc, char** argv) {
  QString data, out;
  int probka = -1;
  const QString uzycie = QStringLiteral("usage: zorvik-builder --data DIR --out FILE [--sample N]");
  for (int i = 1; i + 1 < argc; i += 2) {
    const QString klucz = QString::fromLocal8Bit(argv[i]);
    const QString wartosc = QString::fromLocal8Bit(argv[i + 1]);
    bool ok = true;
    if (klucz == QLatin1String("--data")) {
      data = wartosc;
    } else if (klucz == QLatin1String("--out")) {
      out = wartosc;
    } else if (klucz == QLatin1String("--sample")) {
      probka = wartosc.toInt(&ok);
      ok = ok && probka > 0;
    } else {
      ok = false;
    }
    if (!ok) return blad(uzycie);
  }
  if (argc % 2 == 0 || data.isEmpty() || out.isEmpty()) return blad(uzycie);

  QString tekst;
  if (probka > 0) {
    // A sample replaces only a store without user data.
    bool ma = false;
    if (QFile::exists(out)) {
      if (!MaDaneUzytkownika(out, &ma, &tekst)) return blad(out + QStringLiteral(": ") + tekst);
      if (ma)
        return blad(out + QStringLiteral(" holds data; remove it first to make a sample there"));
    }
    QElapsedTimer t;
    t.start();
    if (!ZbudujBaze(data, out, &tekst) || !GenerujProbke(out, RozmiarDlaWpisow(probka), &tekst))
      return blad(tekst);
    std::printf("sample store of %d entries at %s (%lld ms)\n", probka, qPrintable(out),
                static_cast<long long>(t.elapsed()));
    return 0;
  }
  SkutekBudowy skutek;
  if (!PrzygotujBaze(data, out, &skutek, &tekst)) return blad(tekst);
  std::printf(
      skutek == SkutekBudowy::Zbudowana ? "built %s\n" : "refreshed the delivered tables of %s\n",
      qPrintable(out));
  return 0;
}
