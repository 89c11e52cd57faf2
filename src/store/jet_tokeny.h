#pragma once
// A Jet statement cut into tokens (texts, dates, numbers, names, signs, blanks), so that the
// translator's steps look at whole tokens and never inside a quoted text.

#include <QStringView>
#include <QVarLengthArray>
#include <functional>

enum class Rodzaj : quint8 { Spacja, Tekst, TekstJet, Data, Liczba, Nazwa, NazwaUjeta, Znak };

// The words the translator looks at, recognised once per token.
enum class Slowo : quint8 {
  Brak,
  All,
  Alter,
  And,
  As,
  Asc,
  Between,
  By,
  Collate,
  Column,
  Create,
  Date,
  Delete,
  Desc,
  Distinct,
  Distinctrow,
  Else,
  End,
  Except,
  False,
  From,
  Group,
  Having,
  In,
  Insert,
  Intersect,
  Into,
  Join,
  Left,
  Like,
  Limit,
  Max,
  Min,
  Not,
  Now,
  On,
  Or,
  Order,
  Select,
  Set,
  Sum,
  Table,
  Then,
  Top,
  True,
  Union,
  Update,
  Values,
  When,
  Where
};

struct Token {
  Rodzaj rodzaj = Rodzaj::Znak;
  Slowo slowo = Slowo::Brak;
  int od = 0;
  int dl = 0;
  int glebokosc = 0;  // depth of parentheses; a ")" carries the depth after it
  // Texts written instead of, before and after the token: indexes into the translator's
  // texts, -1 for none.
  int zamiana = -1;
  int przed = -1;
  int po = -1;
};

using Tokeny = QVarLengthArray<Token, 256>;

// Cuts s into tokens, in one pass over it.
void TnijJet(QStringView s, Tokeny& t);
// The quoted texts, dates and [names] of s, as TnijJet cuts them: kind, start, length.
void LiteralyJet(QStringView s, const std::function<void(Rodzaj, int, int)>& f);
