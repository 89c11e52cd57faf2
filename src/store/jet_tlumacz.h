#pragma once
// The translator of one Jet statement into SQLite (see jet.h). It cuts the statement into
// tokens, works out its SELECTs and their clauses, and then changes single tokens or adds text
// before or after them; a quoted text is only ever replaced as a whole by the same text in
// SQLite's form (or the number it holds, beside a number column). Every step is one pass over
// the tokens.
//   jet.cpp           dates, quoted numbers, LIKE patterns, Jet's names and functions, types
//   jet_porzadek.cpp  the SELECTs' clauses, the Polish order of names, TOP n with its ties

#include <QHash>
#include <QString>
#include <QVarLengthArray>
#include <utility>

#include "store/jet_schemat.h"
#include "store/jet_tokeny.h"

// Names, blind to case, to values: a short list searched in order, and a hash as well once
// the list grows long (a statement naming thousands of aliases stays linear). The first of
// two equal names holds.
template <typename T>
class SlownikNazw {
 public:
  void dodaj(QStringView nazwa, const T& wartosc) {
    if (znajdz(nazwa)) return;
    lista_.append({nazwa, wartosc});
    if (lista_.size() == kKrotka + 1) {
      for (const auto& [n, w] : lista_) hash_.insert(n.toString().toLower(), w);
    } else if (lista_.size() > kKrotka) {
      hash_.insert(nazwa.toString().toLower(), wartosc);
    }
  }
  const T* znajdz(QStringView nazwa) const {
    if (lista_.size() > kKrotka) {
      const auto it = hash_.constFind(nazwa.toString().toLower());
      return it == hash_.constEnd() ? nullptr : &*it;
    }
    for (const auto& p : lista_)
      if (p.first.compare(nazwa, Qt::CaseInsensitive) == 0) return &p.second;
    return nullptr;
  }

 private:
  static constexpr qsizetype kKrotka = 16;
  QVarLengthArray<std::pair<QStringView, T>, 8> lista_;
  QHash<QString, T> hash_;
};

class TlumaczJetu {
 public:
  explicit TlumaczJetu(QStringView s);
  QString wynik();

 private:
  enum class Klauzula : quint8 { Brak, Lista, From, Where, Group, Having, Order, Set, Values };
  using Zakres = std::pair<int, int>;  // tokens [od, do) counted in z_

  // One SELECT of the statement.
  struct Zapytanie {
    int select = -1;
    int top = -1;  // TOP, followed by its number
    bool distinct = false;
    int from = -1;
    int order = -1;
    int koniec = -1;  // ")" that closes it, ";", UNION..., or z_.size()
    int glebokosc = 0;
    QVarLengthArray<Zakres, 8> lista;      // the items of the select list
    SlownikNazw<int> aliasy;               // "AS name" -> item
    QVarLengthArray<Zakres, 4> kolejnosc;  // ORDER BY terms, without ASC/DESC
    QVarLengthArray<bool, 4> malejaco;
    QVarLengthArray<Zakres, 4> grupy;  // GROUP BY terms
  };

  QStringView s_;
  Tokeny t_;
  QVarLengthArray<int, 256> z_;              // tokens that are not blanks
  QVarLengthArray<Klauzula, 256> klauzula_;  // clause each of them stands in
  QVarLengthArray<Zapytanie, 4> zapytania_;
  QVarLengthArray<QStringView, 8> tabele_;  // the store's tables the statement names
  SlownikNazw<QStringView> aliasy_;         // alias -> table
  QStringView tabelaAliasu(QStringView nazwa) const {
    const QStringView* t = aliasy_.znajdz(nazwa);
    return t ? *t : nazwa;
  }
  QString koniec_;
  QVarLengthArray<QString, 16> teksty_;
  qsizetype dodane_ = 0;  // length of the text added by TOP, kept within a budget

  // ---- tokens (jet.cpp) ----
  QStringView tekst(const Token& tk) const { return s_.sliced(tk.od, tk.dl); }
  QStringView tresc(const Token& tk) const;
  bool istnieje(int k) const { return k >= 0 && k < z_.size(); }
  const Token& tok(int k) const { return t_[z_[k]]; }
  Token& tokZ(int k) { return t_[z_[k]]; }
  bool nazwa(int k) const;
  bool slowo(int k, Slowo s) const { return istnieje(k) && tok(k).slowo == s; }
  bool slowo(int k, const char* s) const;
  template <size_t N>
  bool znak(int k, const char (&s)[N]) const {
    if (!istnieje(k)) return false;
    const Token& t = tok(k);
    if (t.rodzaj != Rodzaj::Znak || t.dl != int(N - 1)) return false;
    for (size_t i = 0; i + 1 < N; ++i)
      if (s_[t.od + qsizetype(i)] != QLatin1Char(s[i])) return false;
    return true;
  }
  bool tekstowy(int k) const;
  bool porownanie(int k) const;
  int dodaj(const QString& z);
  void zamien(Token& tk, const QString& z) { tk.zamiana = dodaj(z); }
  void dopiszPrzed(Token& tk, const QString& z);
  void dopiszPo(Token& tk, const QString& z);
  // The text of tokens [od, do) with every change made so far.
  QString renderuj(int od, int do_) const;

  // ---- the store's columns (jet.cpp) ----
  void zbierzTabele();
  RodzajKolumny rodzajKolumny(QStringView kwalifikator, QStringView kolumna) const;
  // A column reference starting at k ("col" or "table.col", not a call): its last token, or -1.
  int kolumnaOd(int k) const;
  RodzajKolumny rodzajOdwolania(int od, int do_) const;
  bool liczbowaKonczacaSie(int k) const;
  bool liczbowaZaczynajacaSie(int k) const;

  // ---- literals, LIKE, Jet's words (jet.cpp) ----
  void naLiczbe(int k);
  void porownanieZLiczba(int k);
  void wartosciInsert();
  void wzorzecLike(int k, bool liczbowa);
  void nazwaJet(int k, bool struktura);
  void typKolumny(int k);
  QString tekstJet(const Token& tk) const;

  // ---- SELECTs, order, TOP (jet_porzadek.cpp) ----
  void zbierzZapytania();
  void porzadek();
  void kolacjaTerminow(const Zapytanie& q, const QVarLengthArray<Zakres, 4>& terminy);
  int alias(const Zapytanie& q, int k) const;  // select-list item named by token k, or -1
  Zakres wyrazenie(const Zapytanie& q, const Zakres& termin) const;
  void porownanieTekstow(int od, int do_);
  void topy();
  void top(const Zapytanie& q, int numer);
  bool kluczWiersza(const Zakres& r) const;
};
