#pragma once
// The incremental search of the browsers (accounts, categories, counterparties, simulation):
// a walk over the nodes of a tree or the lines of a list in the order they were added, by a
// case-insensitive substring test on each node's text. Indexes are 1-based, as the nodes are
// counted; each browser starts its walk at its own first index, past the nodes that are not
// items (the root and the kinds on the account tree).

#include <QString>
#include <functional>

class Wyszukiwanie {
 public:
  using TekstWezla = std::function<QString(int indeks)>;

  explicit Wyszukiwanie(int pierwszy = 1) : pierwszy_(pierwszy), pozycja_(pierwszy) {}

  struct Wynik {
    int trafienie = 0;      // the node to select and show; 0: none
    bool nastepny = false;  // whether the "next" button shows
  };
  // A change of the search box: the first hit, and whether another one lies behind it.
  Wynik Zmiana(const QString& klucz, int ostatni, const TekstWezla& tekst);
  // The "next" button: the next hit from the position on (0: none; the next press then starts
  // from the first index again).
  int Nastepny(const QString& klucz, int ostatni, const TekstWezla& tekst);

  int Pierwszy() const { return pierwszy_; }
  int Pozycja() const { return pozycja_; }

 private:
  int pierwszy_;
  int pozycja_;
};
