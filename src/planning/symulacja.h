#pragma once
// The category change simulation: what one month's expenses would be if each expense category
// changed by a percentage. A percent set on a category is stored on every leaf below it
// (kategorie.oszczednosc); the base month's sums are taken on the leaves, changed by their
// percent, and rolled up to the root. Amounts are whole grosze throughout, so the roll-up is
// exact. No entry is touched.

#include <QDate>
#include <QString>
#include <vector>

struct WezelSymulacji {
  QString klucz;   // the identifier, or "Root"
  QString rodzic;  // the parent's key ("Root" for a main category); "" for the root
  QString nazwa;
  QString tekst;       // as the tree shows it: the name with its percent suffix
  double procent = 0;  // the leaf's change; 0 on a parent after the roll-up
  qint64 a = 0;        // what the category took in the base month
  qint64 b = 0;        // after the change
  bool lisc = true;
};

struct Symulacja {
  std::vector<WezelSymulacji> wezly;  // the root first, then the categories in identifier order
  int Indeks(const QString& klucz) const;  // -1 when absent
  const WezelSymulacji* Wezel(const QString& klucz) const;
};

// The base month's condition on entries: the month of dzis (biezacy) or the one before it.
QString WarunekMiesiacaBazowego(bool biezacy, const QDate& dzis);

// PrzeliczSymulacje: the tree of kind rodzaj with its amounts and texts.
Symulacja PrzeliczSymulacje(int rodzaj, bool biezacy, const QDate& dzis);

// The leaf's amount after a change of procent: a + procent/100 * a, rounded to whole grosze
// with a half going to the even grosz.
qint64 KwotaPoZmianie(qint64 a, double procent);

// A percent as typed: "" counts as 0; "," or "." as the decimal mark. False when it is not a
// number or lies outside -100..100.
bool CzytajProcent(const QString& tekst, double* procent);

// Applying a percent on a node: every leaf whose key begins with the node's key gets it, in one
// change (the root names no key: nothing is stored). A text that is no percent between -100 and
// 100 is refused with a message. False when refused or the store failed (and said so).
bool UstawOszczednosc(const Symulacja& s, const QString& klucz, const QString& procentTekst,
                      int rodzaj);

// What the labels under the tree say of a node.
struct ZmianaWCzasie {
  qint64 miesiecznie = 0, kwartalnie = 0, rocznie = 0;  // absolute values
  int opis = 31;  // the key number of lblOpisZmiany: 30 a saving, 31 no change, 32 more spent
};
ZmianaWCzasie ZmianaWezla(const WezelSymulacji& w);
