#include "store/jet_tokeny.h"

#include <QLatin1StringView>
#include <algorithm>

namespace {

constexpr struct {
  const char* tekst;
  int dlugosc;
  Slowo slowo;
} kSlowa[] = {
    {"ALL", 3, Slowo::All},
    {"ALTER", 5, Slowo::Alter},
    {"AND", 3, Slowo::And},
    {"AS", 2, Slowo::As},
    {"ASC", 3, Slowo::Asc},
    {"BETWEEN", 7, Slowo::Between},
    {"BY", 2, Slowo::By},
    {"COLLATE", 7, Slowo::Collate},
    {"COLUMN", 6, Slowo::Column},
    {"CREATE", 6, Slowo::Create},
    {"DATE", 4, Slowo::Date},
    {"DELETE", 6, Slowo::Delete},
    {"DESC", 4, Slowo::Desc},
    {"DISTINCT", 8, Slowo::Distinct},
    {"DISTINCTROW", 11, Slowo::Distinctrow},
    {"ELSE", 4, Slowo::Else},
    {"END", 3, Slowo::End},
    {"EXCEPT", 6, Slowo::Except},
    {"FALSE", 5, Slowo::False},
    {"FROM", 4, Slowo::From},
    {"GROUP", 5, Slowo::Group},
    {"HAVING", 6, Slowo::Having},
    {"IN", 2, Slowo::In},
    {"INSERT", 6, Slowo::Insert},
    {"INTERSECT", 9, Slowo::Intersect},
    {"INTO", 4, Slowo::Into},
    {"JOIN", 4, Slowo::Join},
    {"LEFT", 4, Slowo::Left},
    {"LIKE", 4, Slowo::Like},
    {"LIMIT", 5, Slowo::Limit},
    {"MAX", 3, Slowo::Max},
    {"MIN", 3, Slowo::Min},
    {"NOT", 3, Slowo::Not},
    {"NOW", 3, Slowo::Now},
    {"ON", 2, Slowo::On},
    {"OR", 2, Slowo::Or},
    {"ORDER", 5, Slowo::Order},
    {"SELECT", 6, Slowo::Select},
    {"SET", 3, Slowo::Set},
    {"SUM", 3, Slowo::Sum},
    {"TABLE", 5, Slowo::Table},
    {"THEN", 4, Slowo::Then},
    {"TOP", 3, Slowo::Top},
    {"TRUE", 4, Slowo::True},
    {"UNION", 5, Slowo::Union},
    {"UPDATE", 6, Slowo::Update},
    {"VALUES", 6, Slowo::Values},
    {"WHEN", 4, Slowo::When},
    {"WHERE", 5, Slowo::Where},
};

Slowo rozpoznaj(QStringView n) {
  if (n.size() < 2 || n.size() > 11) return Slowo::Brak;
  const auto duza = [](char16_t c) { return c >= u'a' && c <= u'z' ? char16_t(c - 32) : c; };
  const char16_t pierwsza = duza(n[0].unicode());
  for (const auto& w : kSlowa) {
    if (w.dlugosc != n.size() || char16_t(w.tekst[0]) != pierwsza) continue;
    int i = 1;
    while (i < w.dlugosc && duza(n[i].unicode()) == char16_t(w.tekst[i])) ++i;
    if (i == w.dlugosc) return w.slowo;
  }
  return Slowo::Brak;
}

// Characters of a name: letters and digits of any alphabet, "_" and "$".
inline bool litera(QChar c) {
  const char16_t u = c.unicode();
  if (u < 128)
    return char16_t((u | 32) - u'a') < 26 || char16_t(u - u'0') < 10 || u == u'_' || u == u'$';
  return c.isLetterOrNumber();
}
inline bool cyfra(QChar c) { return char16_t(c.unicode() - u'0') < 10; }
inline bool spacja(QChar c) {
  const char16_t u = c.unicode();
  return u == u' ' || (u < 128 ? char16_t(u - u'\t') < 5 : c.isSpace());
}

// The next place of one character after a position, remembered so that a statement full of
// unclosed "[" is searched once, not once per "[".
class Nastepny {
 public:
  explicit Nastepny(QChar znak) : znak_(znak) {}
  qsizetype po(QStringView s, qsizetype i) {
    if (poz_ == -1) return -1;  // none left in the statement
    if (poz_ <= i) poz_ = s.indexOf(znak_, i + 1);
    return poz_;
  }

 private:
  QChar znak_;
  qsizetype poz_ = -2;
};

// A quoted text ('...' or "...", a doubled quote inside), a date (#...#) or a [name] beginning
// at i: its end, and its kind. i when none begins there. None of these characters belongs to
// any other token, so this holds wherever the scan stands.
int literal(QStringView s, int i, Nastepny& hash, Nastepny& nawias, Rodzaj& rodzaj) {
  const int n = int(s.size());
  const QChar c = s[i];
  if (c == QLatin1Char('\'') || c == QLatin1Char('"')) {
    rodzaj = c == QLatin1Char('\'') ? Rodzaj::Tekst : Rodzaj::TekstJet;
    int j = i + 1;
    while (j < n) {
      if (s[j] == c) {
        if (j + 1 < n && s[j + 1] == c) {
          j += 2;
          continue;
        }
        return j + 1;
      }
      ++j;
    }
    return n;
  }
  if (c == QLatin1Char('#') && hash.po(s, i) > i) {
    rodzaj = Rodzaj::Data;
    return int(hash.po(s, i)) + 1;
  }
  if (c == QLatin1Char('[') && nawias.po(s, i) > i) {
    rodzaj = Rodzaj::NazwaUjeta;
    return int(nawias.po(s, i)) + 1;
  }
  return i;
}

}  // namespace

void LiteralyJet(QStringView s, const std::function<void(Rodzaj, int, int)>& f) {
  Nastepny hash(QLatin1Char('#')), nawias(QLatin1Char(']'));
  Rodzaj rodzaj;
  for (int i = 0; i < s.size();) {
    const QChar c = s[i];
    if (c != QLatin1Char('\'') && c != QLatin1Char('"') && c != QLatin1Char('#') &&
        c != QLatin1Char('[')) {
      ++i;
      continue;
    }
    const int koniec = literal(s, i, hash, nawias, rodzaj);
    if (koniec > i) f(rodzaj, i, koniec - i);
    i = std::max(koniec, i + 1);
  }
}

void TnijJet(QStringView s, Tokeny& t) {
  const int n = int(s.size());
  int i = 0;
  int glebokosc = 0;
  Rodzaj ostatni = Rodzaj::Spacja;  // last token that is not a blank
  Nastepny hash(QLatin1Char('#')), nawias(QLatin1Char(']'));
  while (i < n) {
    Token k;
    k.od = i;
    const QChar c = s[i];
    if (spacja(c)) {
      k.rodzaj = Rodzaj::Spacja;
      while (i < n && spacja(s[i])) ++i;
    } else if (const int koniec = literal(s, i, hash, nawias, k.rodzaj); koniec > i) {
      i = koniec;
    } else if (cyfra(c) || (c == QLatin1Char('.') && i + 1 < n && cyfra(s[i + 1]) &&
                            ostatni != Rodzaj::Nazwa && ostatni != Rodzaj::NazwaUjeta)) {
      k.rodzaj = Rodzaj::Liczba;
      while (i < n && cyfra(s[i])) ++i;
      if (i < n && s[i] == QLatin1Char('.')) {
        ++i;
        while (i < n && cyfra(s[i])) ++i;
      }
      // 1E3, 2.5e-1
      if (i + 1 < n && (s[i] == QLatin1Char('e') || s[i] == QLatin1Char('E'))) {
        int j = i + 1;
        if (s[j] == QLatin1Char('+') || s[j] == QLatin1Char('-')) ++j;
        if (j < n && cyfra(s[j])) {
          i = j;
          while (i < n && cyfra(s[i])) ++i;
        }
      }
    } else if (litera(c)) {
      k.rodzaj = Rodzaj::Nazwa;
      while (i < n && litera(s[i])) ++i;
      k.slowo = rozpoznaj(s.sliced(k.od, i - k.od));
    } else {
      k.rodzaj = Rodzaj::Znak;
      ++i;
      if (i < n) {
        const QChar d = s[i];
        if ((c == QLatin1Char('<') && (d == QLatin1Char('=') || d == QLatin1Char('>'))) ||
            (c == QLatin1Char('>') && d == QLatin1Char('=')) ||
            (c == QLatin1Char('!') && d == QLatin1Char('=')) ||
            (c == QLatin1Char('|') && d == QLatin1Char('|')))
          ++i;
      }
      if (c == QLatin1Char('(')) {
        k.glebokosc = glebokosc++;
        k.dl = i - k.od;
        t.append(std::move(k));
        ostatni = Rodzaj::Znak;
        continue;
      }
      if (c == QLatin1Char(')') && glebokosc > 0) --glebokosc;
    }
    k.dl = i - k.od;
    k.glebokosc = glebokosc;
    if (k.rodzaj != Rodzaj::Spacja) ostatni = k.rodzaj;
    t.append(std::move(k));
  }
}
