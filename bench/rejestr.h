#pragma once
// The bench's cases. A case times the program's own code beside the same work done as raw SQL
// on the same file (the floor). To add cases, write a bench/*.cpp with a static Przypadki object:
//
//   static Przypadki p(40, {PrzypadekBench("account browser, month", [] { ...; return wynik; })
//                               .Podloga([] { return Surowo("SELECT ..."); })
//                               .Limit(50)});
//
// The returned texts of the two sides are compared, so a case also checks that the program's
// query gives the floor's answer.

#include <QString>
#include <functional>
#include <vector>

struct sqlite3;

struct PrzypadekBench {
  PrzypadekBench(QString n, std::function<QString()> f) : nazwa(std::move(n)), nasz(std::move(f)) {}
  PrzypadekBench& Podloga(std::function<QString()> f) {
    surowy = std::move(f);
    return *this;
  }
  PrzypadekBench& Limit(double ms) {
    celMs = ms;
    return *this;
  }
  // The limit on the 1 000 000-entry store, where it differs.
  PrzypadekBench& LimitDuzy(double ms) {
    celMsDuzy = ms;
    return *this;
  }
  PrzypadekBench& Przygotuj(std::function<void()> f) {
    przygotuj = std::move(f);
    return *this;
  }
  // Undoes a call's writes off the clock, after every call of either side (each call then timed
  // alone): a write is timed without the removal that lets the next call write it again.
  PrzypadekBench& Cofnij(std::function<void()> f) {
    cofnij = std::move(f);
    return *this;
  }

  QString nazwa;
  std::function<QString()> nasz;    // timed: the program's code; its result as text
  std::function<QString()> surowy;  // timed: the raw-SQL floor; empty when there is none
  double celMs = 0;                 // the design's limit for this step; 0: none
  double celMsDuzy = 0;             // the limit on the 1 000 000-entry store; 0: as celMs
  std::function<void()> przygotuj;  // once before timing, untimed
  std::function<void()> cofnij;     // after every call, untimed; empty: none
};

// Registers cases; kolejnosc orders groups of cases in the table (files register in any order).
struct Przypadki {
  Przypadki(int kolejnosc, std::vector<PrzypadekBench> przypadki);
};

struct WpisRejestru {
  int kolejnosc;
  PrzypadekBench przypadek;
};
std::vector<WpisRejestru>& RejestrBench();

// What the cases work on.
struct KontekstBench {
  QString folder;             // data folder holding money.fns (the program's store)
  QString plik;               // its money.fns
  sqlite3* surowa = nullptr;  // a raw connection to the same file, for the floors
};
const KontekstBench& Kontekst();
void UstawKontekst(const KontekstBench& k);

// The floor of a read: prepare, step through every row, finalize on the raw connection. The
// result is the first row, numbers rounded to cents, joined by " | ".
QString Surowo(const QString& sql);
// A floor that reads several statements and works its result out: each row of sql handed over in
// turn (columns from 0, numbers as doubles), and an amount in grosze in the form Surowo gives.
void SurowoWiersze(const QString& sql, const std::function<void(const class Polecenie&)>& wiersz);
qint64 SurowoGrosze(const class Polecenie& p, int kolumna);
QString SurowaKwota(qint64 grosze);
// The same form of result for a row of the program's recordset.
QString Wiersz(const class Rekordy& rs);
