// zorvik-bench [--dane DIR] [--data DIR] [--nowa] [--wpisy N] [--filtr TEXT] [--czas MS]
// Times the program's store work and screens on a generated store of the design's size (100 000
// entries, 20 000 transfers, 40 accounts, 300 categories, 500 counterparties; --wpisy scales the
// entries and transfers) beside the same queries run as raw SQL on the same file, with the same
// key and page cache as the program's connection, the two sides alternated, and prints the
// medians, their ratio and the peak memory of each case.

#include <sqlcipher/sqlite3.h>
#include <sys/resource.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <algorithm>
#include <cstdio>

#include "budowa.h"
#include "rejestr.h"
#include "store/baza.h"
#include "store/jet.h"
#include "store/session.h"
#include "store/start.h"
#include "surowa.h"

namespace {

struct Opcje {
  QString folder = QDir(QDir::tempPath()).filePath(QStringLiteral("zorvik-bench"));
  QString data = QStringLiteral(ZORVIK_DATA_DIR);
  bool nowa = false;
  QString filtr;
  int wpisy = 0;        // 0: the design's size
  double czasMs = 400;  // time spent on each side of a case, at least five samples
};

int blad(const QString& tekst) {
  std::fprintf(stderr, "zorvik-bench: %s\n", qPrintable(tekst));
  return 1;
}

// Median milliseconds of one call. Calls too short for the clock are timed in batches; a call
// with a clean-up (po) is timed alone and its clean-up runs off the clock.
double zmierz(const std::function<QString()>& f, double budzetMs,
              const std::function<void()>& po = {}) {
  QElapsedTimer t;
  t.start();
  f();
  const double pierwszy = double(t.nsecsElapsed()) / 1e6;
  if (po) po();
  const int partia =
      po || pierwszy >= 0.5 ? 1 : int(std::min(10000.0, 0.5 / std::max(pierwszy, 1e-5)));
  std::vector<double> proby;
  QElapsedTimer calosc;
  calosc.start();
  while (proby.size() < 5 || (double(calosc.elapsed()) < budzetMs && proby.size() < 2000)) {
    t.restart();
    for (int i = 0; i < partia; ++i) f();
    proby.push_back(double(t.nsecsElapsed()) / 1e6 / partia);
    if (po) po();
  }
  std::nth_element(proby.begin(), proby.begin() + qsizetype(proby.size() / 2), proby.end());
  return proby[proby.size() / 2];
}

// Medians of ours and of the floor, timed in turns in one loop so that both see the same state of
// the machine and of the caches.
std::pair<double, double> zmierzNaPrzemian(const std::function<QString()>& nasz,
                                           const std::function<QString()>& surowy, double budzetMs,
                                           const std::function<void()>& po = {}) {
  QElapsedTimer t;
  auto partia = [&t, &po](const std::function<QString()>& f) {
    t.restart();
    f();
    const double pierwszy = double(t.nsecsElapsed()) / 1e6;
    if (po) po();
    return po || pierwszy >= 0.5 ? 1 : int(std::min(10000.0, 0.5 / std::max(pierwszy, 1e-5)));
  };
  const int pn = partia(nasz), ps = partia(surowy);
  std::vector<double> a, b;
  QElapsedTimer calosc;
  calosc.start();
  while (a.size() < 5 || (double(calosc.elapsed()) < 2 * budzetMs && a.size() < 2000)) {
    t.restart();
    for (int i = 0; i < pn; ++i) nasz();
    a.push_back(double(t.nsecsElapsed()) / 1e6 / pn);
    if (po) po();
    t.restart();
    for (int i = 0; i < ps; ++i) surowy();
    b.push_back(double(t.nsecsElapsed()) / 1e6 / ps);
    if (po) po();
  }
  auto mediana = [](std::vector<double>& v) {
    std::nth_element(v.begin(), v.begin() + qsizetype(v.size() / 2), v.end());
    return v[v.size() / 2];
  };
  return {mediana(a), mediana(b)};
}

qint64 ile(sqlite3* db, const char* tabela) {
  Polecenie p(db, QStringLiteral("SELECT count(*) FROM %1").arg(QLatin1String(tabela)));
  return p.Wiersz() ? p.Liczba(0) : -1;
}

// The largest resident size since the last reset, in MB (Linux keeps it in VmHWM).
double szczytPamieciMb() {
  QFile f(QStringLiteral("/proc/self/status"));
  if (f.open(QIODevice::ReadOnly)) {
    for (const QByteArray& linia : f.readAll().split('\n'))
      if (linia.startsWith("VmHWM:"))
        return linia.mid(6).trimmed().split(' ').value(0).toDouble() / 1024.0;
  }
  rusage u{};
  getrusage(RUSAGE_SELF, &u);
  return double(u.ru_maxrss) / 1024.0;
}

// Forgets the peak so far, so that the figure covers the cases and not the generation.
bool wyzerujSzczytPamieci() {
  QFile f(QStringLiteral("/proc/self/clear_refs"));
  return f.open(QIODevice::WriteOnly) && f.write("5") == 1;
}

bool przygotujMagazyn(const Opcje& o, const QString& plik) {
  QDir().mkpath(o.folder);
  if (o.nowa) QFile::remove(plik);
  QString tekst;
  bool ma = false;
  if (QFile::exists(plik)) {
    if (!MaDaneUzytkownika(plik, &ma, &tekst))
      return blad(plik + QStringLiteral(": ") + tekst) == 0;
    if (ma) {
      std::printf("reusing the store %s (--nowa makes a new one)\n", qPrintable(plik));
      // Texts from data/ may have changed since it was made.
      return OdswiezDostarczone(o.data, plik, &tekst) || blad(tekst) == 0;
    }
  }
  QElapsedTimer t;
  t.start();
  if (!ZbudujBaze(o.data, plik, &tekst)) return blad(tekst) == 0;
  const qint64 budowa = t.restart();
  const RozmiarProbki rozmiar = o.wpisy > 0 ? RozmiarDlaWpisow(o.wpisy) : RozmiarProbki();
  if (!GenerujProbke(plik, rozmiar, &tekst)) return blad(tekst) == 0;
  std::printf("made the store %s: delivered tables %lld ms, sample %lld ms\n", qPrintable(plik),
              static_cast<long long>(budowa), static_cast<long long>(t.elapsed()));
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  // Fonts (the PDF of a report) and windows (themes) need a GUI application; no screen is needed.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  Opcje o;
  const QStringList a = app.arguments();
  for (int i = 1; i < a.size(); ++i) {
    const bool wartosc = i + 1 < a.size();
    if (a[i] == QLatin1String("--dane") && wartosc)
      o.folder = a[++i];
    else if (a[i] == QLatin1String("--data") && wartosc)
      o.data = a[++i];
    else if (a[i] == QLatin1String("--filtr") && wartosc)
      o.filtr = a[++i];
    else if (a[i] == QLatin1String("--wpisy") && wartosc)
      o.wpisy = a[++i].toInt();
    else if (a[i] == QLatin1String("--czas") && wartosc)
      o.czasMs = a[++i].toDouble();
    else if (a[i] == QLatin1String("--nowa"))
      o.nowa = true;
    else
      return blad(QStringLiteral(
          "usage: zorvik-bench [--dane DIR] [--data DIR] [--nowa] [--wpisy N] [--filtr TEXT] "
          "[--czas MS]"));
  }
  // Each size has its own store.
  if (o.wpisy > 0 && !a.contains(QLatin1String("--dane")))
    o.folder += QLatin1Char('-') + QString::number(o.wpisy);
  const QString plik = QDir(o.folder).filePath(QStringLiteral("money.fns"));
  if (!przygotujMagazyn(o, plik)) return 1;

  // The program's start: edition, data folder, the store upgrade and the setup row.
  sesja = Session{};
  sesja.pubJezyk = 1;
  UstawFolderDanych(o.folder);
  if (!OtworzBaze() || !AktualizujBaze())
    return blad(QStringLiteral("the store does not open: ") + plik);
  // A store of the old small pages is moved as the program's start moves it, before the floor's
  // connection opens the file.
  if (!AktualizujStrony()) return blad(QStringLiteral("the store could not be moved: ") + plik);
  WczytajSetup();
  QString tekst;
  sqlite3* surowa = OtworzSurowo(plik, false, &tekst);
  if (!surowa) return blad(tekst);
  // The floor's connection is set up as the program's: the same page cache and temporary store,
  // and the functions and order the translated statements call.
  if (!WykonajSurowo(surowa, QStringLiteral("PRAGMA cache_size=-65536; PRAGMA temp_store=MEMORY;"),
                     &tekst))
    return blad(tekst);
  ZarejestrujFunkcjeJet(surowa);
  UstawKontekst({o.folder, plik, surowa});
  std::printf(
      "pages of %d bytes; %lld entries, %lld planned, %lld transfers, %lld accounts, %lld "
      "categories, %lld counterparties\n\n",
      pubBaza().RozmiarStrony(), static_cast<long long>(ile(surowa, "transakcje")),
      static_cast<long long>(ile(surowa, "zaplanowane")),
      static_cast<long long>(ile(surowa, "wewnetrzne")),
      static_cast<long long>(ile(surowa, "konta")),
      static_cast<long long>(ile(surowa, "kategorie")),
      static_cast<long long>(ile(surowa, "kontrahent")));
  const bool szczytOdZera = wyzerujSzczytPamieci();
  double szczytCalosci = 0;

  std::vector<WpisRejestru> przypadki = RejestrBench();
  std::stable_sort(
      przypadki.begin(), przypadki.end(),
      [](const WpisRejestru& x, const WpisRejestru& y) { return x.kolejnosc < y.kolejnosc; });
  // Limits of the 1 000 000-entry store where a case has one.
  const bool duza = ile(surowa, "transakcje") > 500000;
  std::printf("%-44s %12s %12s %8s %8s %8s\n", "case", "ours ms", "floor ms", "ratio", "limit",
              "peak MB");
  int rozne = 0;
  for (const WpisRejestru& w : przypadki) {
    const PrzypadekBench& p = w.przypadek;
    if (!o.filtr.isEmpty() && !p.nazwa.contains(o.filtr, Qt::CaseInsensitive)) continue;
    wyzerujSzczytPamieci();
    if (p.przygotuj) p.przygotuj();
    const QString nasz = p.nasz();
    if (p.cofnij) p.cofnij();
    double czasNasz = 0;
    QString uwaga;
    QString podloga = QStringLiteral("-"), iloraz = QStringLiteral("-");
    if (p.surowy) {
      const QString surowy = p.surowy();
      if (p.cofnij) p.cofnij();
      const auto [n, s] = zmierzNaPrzemian(p.nasz, p.surowy, o.czasMs, p.cofnij);
      czasNasz = n;
      podloga = QString::number(s, 'f', 5);
      iloraz = s > 0 ? QString::number(n / s, 'g', 3) : QStringLiteral("-");
      if (nasz != surowy) {
        ++rozne;
        uwaga = QStringLiteral("  DIFFERENT: ours [%1], floor [%2]").arg(nasz, surowy);
      }
    } else {
      czasNasz = zmierz(p.nasz, o.czasMs, p.cofnij);
    }
    const double cel = duza && p.celMsDuzy > 0 ? p.celMsDuzy : p.celMs;
    const QString limit = cel > 0 ? QString::number(cel, 'f', 0) : QStringLiteral("-");
    if (cel > 0 && czasNasz > cel) uwaga += QStringLiteral("  OVER THE LIMIT");
    const double szczyt = szczytPamieciMb();
    szczytCalosci = std::max(szczytCalosci, szczyt);
    std::printf("%-44s %12.5f %12s %8s %8s %8.1f%s\n", qPrintable(p.nazwa), czasNasz,
                qPrintable(podloga), qPrintable(iloraz), qPrintable(limit), szczyt,
                qPrintable(uwaga));
    std::fflush(stdout);
  }
  sqlite3_close(surowa);
  ZamknijBaze();
  std::printf("\npeak RSS %s: %.1f MB (limit %d MB)\n",
              szczytOdZera ? "during the cases" : "of the process",
              szczytOdZera ? szczytCalosci : szczytPamieciMb(), duza ? 600 : 200);
  return rozne ? 2 : 0;
}
