#pragma once
// The data of the entry and transfer browsers: the statement a browser runs, its rows read into
// a compact form (numbers, and indexes into one table of the texts, each distinct text kept
// once), the totals and the count, and the order of the rows when the user sorts by a column.
// Cells become text only when a row is shown, so a list of a million rows stays small and fast.

#include <QByteArray>
#include <QString>
#include <functional>
#include <vector>

// Entries (income and expense) or transfers.
enum class RodzajPrzegladu { Transakcje, Transfery };

// The columns as the lists show them.
namespace KolumnyTransakcji {
enum { Data, Przychod, Wydatek, Kategoria, Konto, Kontrahent, Opis, Ile };
}
namespace KolumnyTransferow {
enum { Data, Kwota, ZKonta, NaKonto, Opis, Ile };
}

// One row. Amounts in whole cents; the date as a Julian day number (0: none); texts as indexes
// into the browser's table of texts (-1: none).
struct WierszPrzegladu {
  qint64 id = 0;
  qint64 kwota1 = 0;  // entries: income; transfers: the amount
  qint64 kwota2 = 0;  // entries: expense; transfers: 0
  qint32 data = 0;
  // Entries: category, account, counterparty, description; transfers: from account, to account,
  // description, and -1.
  qint32 tekst[4] = {-1, -1, -1, -1};
};

// The table a browser works on: executed for pubTryb 2, planned for anything else.
QString TabelaPrzegladu(RodzajPrzegladu rodzaj, int tryb);

// The statement of the browser: the caller's fragment and the period's condition behind
// "WHERE 1=1 " (entries) or behind the join of the accounts (transfers), newest first and,
// within a day, highest id first.
QString ZapytaniePrzegladu(RodzajPrzegladu rodzaj, int tryb, const QString& fragment,
                           const QString& warunekOkresu);

// The same rows for the whole period (the time filter "Wszystko"), read in the table's own order:
// on a large store one pass over the table costs a fraction of a walk of the date index with a
// lookup of every row. UporzadkujOdNajnowszych then gives the statement's order.
QString ZapytanieCalegoPrzegladu(RodzajPrzegladu rodzaj, int tryb, const QString& fragment,
                                 const QString& warunekOkresu);

class DanePrzegladu {
 public:
  explicit DanePrzegladu(RodzajPrzegladu rodzaj) : rodzaj_(rodzaj) {}

  RodzajPrzegladu Rodzaj() const { return rodzaj_; }
  int LiczbaKolumn() const;
  bool KolumnaKwoty(int kolumna) const;

  // Reads the rows of a statement of ZapytaniePrzegladu's form on the program's store, in the
  // statement's order. postep, when given, hears the number of rows read so far now and then.
  // A failed read leaves no rows, is logged and returns false.
  bool Wczytaj(const QString& jetSql, const std::function<void(qint64)>& postep = {});
  void Wyczysc();
  // Puts the rows read in the statement's order: newest first, within a day highest id first.
  void UporzadkujOdNajnowszych();

  qsizetype Ile() const { return qsizetype(wiersze_.size()); }
  // The row shown at a position (0-based) in the current order.
  const WierszPrzegladu& Wiersz(qsizetype pozycja) const;
  // The text of a cell, formatted as the list shows it (the date by the list's mask, amounts by
  // FormatKwoty).
  QString Komorka(qsizetype pozycja, int kolumna) const;
  QString Tekst(qint32 indeks) const;

  // Sums of the rows in whole cents: income and expense (transfers: the amounts and 0).
  qint64 Suma1() const { return suma1_; }
  qint64 Suma2() const { return suma2_; }

  // Orders the rows by a column's value: dates by date, amounts by amount, texts in the Polish
  // order (an empty cell first). Rows of equal value keep the statement's order.
  void Sortuj(int kolumna, bool rosnaco);
  // Back to the statement's order.
  void BezSortowania() { kolejnosc_.clear(); }
  // The column sorted by now, -1 for the statement's order.
  int Posortowana() const { return kolejnosc_.empty() ? -1 : kolumnaSortu_; }

 private:
  qint32 zapamietaj(const char* tekst, int dlugosc);
  void ustalRangi();

  RodzajPrzegladu rodzaj_;
  std::vector<WierszPrzegladu> wiersze_;  // in the statement's order
  std::vector<quint32> kolejnosc_;        // shown position -> row; empty: the statement's order
  int kolumnaSortu_ = -1;
  qint64 suma1_ = 0, suma2_ = 0;

  // The texts: one UTF-8 pool, text i from poczatki_[i] to poczatki_[i + 1].
  QByteArray pula_;
  std::vector<quint32> poczatki_{0};
  std::vector<qint32> szuflady_;  // open-addressing hash of the texts: their indexes, -1 free
  std::vector<qint32> rangi_;     // the Polish-order rank of each text; empty until a text sort
};
