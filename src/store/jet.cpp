#include "store/jet.h"

#include <QHash>
#include <QVarLengthArray>

#include "store/jet_przedrostki.h"
#include "store/jet_schemat.h"
#include "store/jet_zakresy.h"

// The translator cuts a statement into tokens (texts, dates, numbers, names, signs, blanks), so
// that nothing inside a quoted text is ever rewritten, and then changes single tokens:
//   #mm/dd/yyyy#            -> 'yyyy-mm-dd' (dates are stored as ISO text)
//   x LIKE 'a*b?'           -> x LIKE 'a%b_' (a literal % or _ is escaped with ESCAPE '\')
//   SELECT TOP n ...        -> SELECT ... LIMIT n, at the end of the same SELECT
//   SUM( / LEFT(            -> SUMA( (exact to the cent) / JETLEFT( (LEFT is a keyword here)
//   Now() / Date()          -> JETNOW() / JETDATE() (the program's own clock)
//   limit                   -> "limit" (a column; a keyword in SQLite, none in Jet)
//   '12,50' into or against a number column -> 12.50
//   & / True / False / [name] / "text" / DISTINCTROW, and the Jet types of ALTER TABLE.
// MONTH, YEAR, DAY, DATEPART, MID, LEN and the case-blind LIKE are functions registered on the
// connection (jet_funkcje.cpp), so their names pass through unchanged.

namespace {

enum class Rodzaj : quint8 { Spacja, Tekst, TekstJet, Data, Liczba, Nazwa, NazwaUjeta, Znak };

enum class Slowo : quint8 {
  Brak,
  All,
  Alter,
  As,
  Column,
  Create,
  Date,
  Distinct,
  Distinctrow,
  False,
  From,
  Group,
  Having,
  Insert,
  Into,
  Join,
  Left,
  Like,
  Limit,
  Not,
  Now,
  Order,
  Select,
  Set,
  Sum,
  Table,
  Top,
  True,
  Union,
  Update,
  Values,
  Where
};

constexpr struct {
  const char* tekst;
  int dlugosc;
  Slowo slowo;
} kSlowa[] = {
    {"ALL", 3, Slowo::All},
    {"ALTER", 5, Slowo::Alter},
    {"AS", 2, Slowo::As},
    {"COLUMN", 6, Slowo::Column},
    {"CREATE", 6, Slowo::Create},
    {"DATE", 4, Slowo::Date},
    {"DISTINCT", 8, Slowo::Distinct},
    {"DISTINCTROW", 11, Slowo::Distinctrow},
    {"FALSE", 5, Slowo::False},
    {"FROM", 4, Slowo::From},
    {"GROUP", 5, Slowo::Group},
    {"HAVING", 6, Slowo::Having},
    {"INSERT", 6, Slowo::Insert},
    {"INTO", 4, Slowo::Into},
    {"JOIN", 4, Slowo::Join},
    {"LEFT", 4, Slowo::Left},
    {"LIKE", 4, Slowo::Like},
    {"LIMIT", 5, Slowo::Limit},
    {"NOT", 3, Slowo::Not},
    {"NOW", 3, Slowo::Now},
    {"ORDER", 5, Slowo::Order},
    {"SELECT", 6, Slowo::Select},
    {"SET", 3, Slowo::Set},
    {"SUM", 3, Slowo::Sum},
    {"TABLE", 5, Slowo::Table},
    {"TOP", 3, Slowo::Top},
    {"TRUE", 4, Slowo::True},
    {"UNION", 5, Slowo::Union},
    {"UPDATE", 6, Slowo::Update},
    {"VALUES", 6, Slowo::Values},
    {"WHERE", 5, Slowo::Where},
};

// The words the translator looks at, recognised once per token.
Slowo rozpoznaj(QStringView n) {
  if (n.size() < 2 || n.size() > 11) return Slowo::Brak;
  char16_t pierwsza = n[0].unicode();
  if (pierwsza >= u'a' && pierwsza <= u'z') pierwsza -= 32;
  for (const auto& w : kSlowa) {
    if (w.dlugosc != n.size() || char16_t(w.tekst[0]) != pierwsza) continue;
    if (n.compare(QLatin1StringView(w.tekst, w.dlugosc), Qt::CaseInsensitive) == 0) return w.slowo;
  }
  return Slowo::Brak;
}

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
using Indeksy = QVarLengthArray<int, 256>;

bool litera(QChar c) {
  const char16_t u = c.unicode();
  if (u < 128)
    return char16_t((u | 32) - u'a') < 26 || char16_t(u - u'0') < 10 || u == u'_' || u == u'$';
  return c.isLetterOrNumber();
}
bool cyfra(QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }

void tnij(QStringView s, Tokeny& t) {
  const int n = int(s.size());
  int i = 0;
  int glebokosc = 0;
  Rodzaj ostatni = Rodzaj::Spacja;  // last token that is not a blank
  while (i < n) {
    Token k;
    k.od = i;
    const QChar c = s[i];
    if (c.isSpace()) {
      k.rodzaj = Rodzaj::Spacja;
      while (i < n && s[i].isSpace()) ++i;
    } else if (c == QLatin1Char('\'') || c == QLatin1Char('"')) {
      k.rodzaj = c == QLatin1Char('\'') ? Rodzaj::Tekst : Rodzaj::TekstJet;
      ++i;
      while (i < n) {
        if (s[i] == c) {
          if (i + 1 < n && s[i + 1] == c) {
            i += 2;
            continue;
          }
          ++i;
          break;
        }
        ++i;
      }
    } else if (c == QLatin1Char('#') && s.indexOf(QLatin1Char('#'), i + 1) > i) {
      k.rodzaj = Rodzaj::Data;
      i = int(s.indexOf(QLatin1Char('#'), i + 1)) + 1;
    } else if (c == QLatin1Char('[') && s.indexOf(QLatin1Char(']'), i + 1) > i) {
      k.rodzaj = Rodzaj::NazwaUjeta;
      i = int(s.indexOf(QLatin1Char(']'), i + 1)) + 1;
    } else if (cyfra(c) || (c == QLatin1Char('.') && i + 1 < n && cyfra(s[i + 1]) &&
                            ostatni != Rodzaj::Nazwa && ostatni != Rodzaj::NazwaUjeta)) {
      k.rodzaj = Rodzaj::Liczba;
      while (i < n && cyfra(s[i])) ++i;
      if (i < n && s[i] == QLatin1Char('.')) {
        ++i;
        while (i < n && cyfra(s[i])) ++i;
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

// Jet's #m/d/yyyy[ h:mm[:ss]]# (or an ISO date between hashes) as an SQLite text literal.
bool dataIso(QStringView tresc, QString& wynik) {
  int liczby[6] = {0, 0, 0, 0, 0, 0};
  int ile = 0, cyfr = 0;
  int dlugosci[6] = {0, 0, 0, 0, 0, 0};
  bool iso = false;
  for (const QChar c : tresc.trimmed()) {
    if (cyfra(c)) {
      if (ile >= 6 || ++cyfr > 4) return false;
      liczby[ile] = liczby[ile] * 10 + (c.unicode() - '0');
      dlugosci[ile] = cyfr;
    } else if (c == QLatin1Char('/') || c == QLatin1Char('-') || c == QLatin1Char(':') ||
               c == QLatin1Char(' ') || c == QLatin1Char('T')) {
      if (cyfr == 0) return false;
      if (ile == 0 && c == QLatin1Char('-')) iso = true;
      ++ile;
      cyfr = 0;
    } else {
      return false;
    }
  }
  if (cyfr > 0) ++ile;
  if (ile != 3 && ile != 5 && ile != 6) return false;
  int r, m, d;
  if (iso) {
    r = liczby[0], m = liczby[1], d = liczby[2];
  } else {
    m = liczby[0], d = liczby[1], r = liczby[2];
    if (dlugosci[2] <= 2) r += r < 30 ? 2000 : 1900;
  }
  static const int dni[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (m < 1 || m > 12 || d < 1 || d > dni[m - 1] || r < 100) return false;
  if (m == 2 && d == 29 && !((r % 4 == 0 && r % 100 != 0) || r % 400 == 0)) return false;
  wynik = QStringLiteral("'%1-%2-%3")
              .arg(r, 4, 10, QLatin1Char('0'))
              .arg(m, 2, 10, QLatin1Char('0'))
              .arg(d, 2, 10, QLatin1Char('0'));
  if (ile > 3) {
    if (liczby[3] > 23 || liczby[4] > 59 || liczby[5] > 59) return false;
    wynik += QStringLiteral(" %1:%2:%3")
                 .arg(liczby[3], 2, 10, QLatin1Char('0'))
                 .arg(liczby[4], 2, 10, QLatin1Char('0'))
                 .arg(liczby[5], 2, 10, QLatin1Char('0'));
  }
  wynik += QLatin1Char('\'');
  return true;
}

// The number a quoted text holds, written as an SQLite number: blanks around it, a sign, and
// "." or "," as the decimal mark ("1.234,50" and "1,234.50" read as 1234.50). Anything else is
// not a number and is left alone.
bool liczbaZTekstu(QStringView tresc, QString& wynik) {
  QStringView t = tresc.trimmed();
  if (t.isEmpty()) return false;
  bool minus = false;
  if (t[0] == QLatin1Char('+') || t[0] == QLatin1Char('-')) {
    minus = t[0] == QLatin1Char('-');
    t = t.sliced(1);
  }
  int kropki = 0, przecinki = 0, cyfry = 0, ostatni = -1;
  for (int i = 0; i < t.size(); ++i) {
    const QChar c = t[i];
    if (cyfra(c)) {
      ++cyfry;
    } else if (c == QLatin1Char('.') || c == QLatin1Char(',')) {
      (c == QLatin1Char('.') ? kropki : przecinki)++;
      ostatni = i;
    } else {
      return false;
    }
  }
  if (cyfry == 0) return false;
  if (ostatni >= 0) {
    const QChar znak = t[ostatni];
    const int tegoZnaku = znak == QLatin1Char('.') ? kropki : przecinki;
    if (tegoZnaku > 1) return false;  // "1.234.567": not a form the program writes
  }
  wynik.clear();
  if (minus) wynik += QLatin1Char('-');
  for (int i = 0; i < t.size(); ++i) {
    if (i == ostatni) {
      wynik += QLatin1Char('.');
    } else if (cyfra(t[i])) {
      wynik += t[i];
    }
  }
  if (wynik.endsWith(QLatin1Char('.'))) wynik.chop(1);
  if (wynik.isEmpty() || wynik == QLatin1String("-")) return false;
  if (wynik.startsWith(QLatin1Char('.')) || wynik.startsWith(QLatin1String("-.")))
    wynik.insert(minus ? 1 : 0, QLatin1Char('0'));
  return true;
}

class Tlumacz {
 public:
  explicit Tlumacz(QStringView s) : s_(s) {
    tnij(s_, t_);
    for (int i = 0; i < t_.size(); ++i)
      if (t_[i].rodzaj != Rodzaj::Spacja) z_.append(i);
  }

  QString wynik() {
    zbierzTabele();
    const bool insert = slowo(0, Slowo::Insert);
    const bool struktura = slowo(0, Slowo::Alter) || slowo(0, Slowo::Create);
    if (insert) wartosciInsert();
    for (int k = 0; k < z_.size(); ++k) {
      Token& tk = t_[z_[k]];
      switch (tk.rodzaj) {
        case Rodzaj::Data: {
          QString iso;
          if (dataIso(tekst(tk).sliced(1, tk.dl - 2), iso)) zamien(tk, iso);
          break;
        }
        case Rodzaj::Tekst:
        case Rodzaj::TekstJet:
          if (tk.zamiana < 0) porownanieZLiczba(k);
          if (tk.zamiana < 0 && tk.rodzaj == Rodzaj::TekstJet) zamien(tk, tekstJet(tk));
          break;
        case Rodzaj::Liczba:
          if (k + 1 < z_.size() && z_[k + 1] == z_[k] + 1 && nazwa(k + 1))
            tk.po = dodaj(QStringLiteral(" "));
          break;
        case Rodzaj::NazwaUjeta:
          zamien(tk, ujmij(tresc(tk)));
          break;
        case Rodzaj::Nazwa:
          nazwaJet(k, struktura);
          break;
        case Rodzaj::Znak:
          if (tekst(tk) == QLatin1String("&")) zamien(tk, QStringLiteral("||"));
          break;
        case Rodzaj::Spacja:
          break;
      }
    }
    QString out;
    out.reserve(s_.size() + 32);
    // Unchanged stretches of the statement are copied whole.
    qsizetype od = 0;
    for (const Token& tk : t_) {
      if (tk.przed < 0 && tk.zamiana < 0 && tk.po < 0) continue;
      out += s_.sliced(od, tk.od - od);
      if (tk.przed >= 0) out += teksty_[tk.przed];
      if (tk.zamiana >= 0)
        out += teksty_[tk.zamiana];
      else
        out += tekst(tk);
      if (tk.po >= 0) out += teksty_[tk.po];
      od = tk.od + tk.dl;
    }
    out += s_.sliced(od);
    out += koniec_;
    return out;
  }

 private:
  QStringView s_;
  Tokeny t_;
  Indeksy z_;  // tokens that are not blanks
  QVarLengthArray<QStringView, 8> tabele_;
  QVarLengthArray<std::pair<QStringView, QStringView>, 4> aliasy_;
  QString koniec_;
  QVarLengthArray<QString, 16> teksty_;

  QStringView tekst(const Token& tk) const { return s_.sliced(tk.od, tk.dl); }
  // A name as written: [name] without its brackets.
  QStringView tresc(const Token& tk) const {
    return tk.rodzaj == Rodzaj::NazwaUjeta ? s_.sliced(tk.od + 1, tk.dl - 2) : tekst(tk);
  }
  int dodaj(const QString& z) {
    teksty_.append(z);
    return int(teksty_.size() - 1);
  }
  void zamien(Token& tk, const QString& z) { tk.zamiana = dodaj(z); }
  static QString ujmij(QStringView nazwa) {
    QString w = nazwa.toString();
    w.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + w + QLatin1Char('"');
  }
  // "text" is a text literal in Jet and a name in SQLite.
  QString tekstJet(const Token& tk) const {
    QString w = tekst(tk).sliced(1, tk.dl - 2).toString();
    w.replace(QLatin1String("\"\""), QLatin1String("\""));
    w.replace(QLatin1Char('\''), QLatin1String("''"));
    return QLatin1Char('\'') + w + QLatin1Char('\'');
  }

  bool istnieje(int k) const { return k >= 0 && k < z_.size(); }
  const Token& tok(int k) const { return t_[z_[k]]; }
  bool nazwa(int k) const {
    return istnieje(k) && (tok(k).rodzaj == Rodzaj::Nazwa || tok(k).rodzaj == Rodzaj::NazwaUjeta);
  }
  bool slowo(int k, Slowo s) const { return istnieje(k) && tok(k).slowo == s; }
  bool slowo(int k, const char* s) const {
    return istnieje(k) && tok(k).rodzaj == Rodzaj::Nazwa &&
           tekst(tok(k)).compare(QLatin1StringView(s), Qt::CaseInsensitive) == 0;
  }
  template <size_t N>
  bool znak(int k, const char (&s)[N]) const {
    if (!istnieje(k)) return false;
    const Token& t = tok(k);
    if (t.rodzaj != Rodzaj::Znak || t.dl != int(N - 1)) return false;
    for (size_t i = 0; i + 1 < N; ++i)
      if (s_[t.od + qsizetype(i)] != QLatin1Char(s[i])) return false;
    return true;
  }
  bool tekstowy(int k) const {
    return istnieje(k) && (tok(k).rodzaj == Rodzaj::Tekst || tok(k).rodzaj == Rodzaj::TekstJet);
  }
  bool porownanie(int k) const {
    return znak(k, "=") || znak(k, "<>") || znak(k, "<") || znak(k, ">") || znak(k, "<=") ||
           znak(k, ">=") || znak(k, "!=");
  }

  // Tables named after FROM, JOIN, INTO, UPDATE, TABLE (and in a FROM list after "," or "("),
  // with their "AS alias".
  void zbierzTabele() {
    bool wFrom = false;
    for (int k = 0; k < z_.size(); ++k) {
      if (slowo(k, Slowo::From)) {
        wFrom = true;
        continue;
      }
      if (slowo(k, Slowo::Where) || slowo(k, Slowo::Group) || slowo(k, Slowo::Order) ||
          slowo(k, Slowo::Having) || slowo(k, Slowo::Select) || slowo(k, Slowo::Set) ||
          slowo(k, Slowo::Values) || slowo(k, Slowo::Union))
        wFrom = false;
      if (!nazwa(k) || znak(k + 1, ".") || (znak(k + 1, "(") && !slowo(k - 1, Slowo::Into)))
        continue;
      const bool miejsce = slowo(k - 1, Slowo::From) || slowo(k - 1, Slowo::Join) ||
                           slowo(k - 1, Slowo::Into) || slowo(k - 1, Slowo::Update) ||
                           slowo(k - 1, Slowo::Table) ||
                           (wFrom && (znak(k - 1, ",") || znak(k - 1, "(")));
      if (!miejsce) continue;
      tabele_.append(tresc(tok(k)));
      if (slowo(k + 1, Slowo::As) && nazwa(k + 2))
        aliasy_.append({tresc(tok(k + 2)), tresc(tok(k))});
    }
  }

  bool kolumnaLiczbowa(QStringView kwalifikator, QStringView kolumna) const {
    if (!kwalifikator.isEmpty()) {
      QStringView tabela = kwalifikator;
      for (const auto& a : aliasy_)
        if (a.first.compare(kwalifikator, Qt::CaseInsensitive) == 0) tabela = a.second;
      return JetKolumnaLiczbowa(tabela, kolumna) == 1;
    }
    for (const QStringView tabela : tabele_) {
      const int r = JetKolumnaLiczbowa(tabela, kolumna);
      if (r >= 0) return r == 1;
    }
    return false;
  }
  // A column reference ending at k ("col" or "table.col"); not a call.
  bool liczbowaKonczacaSie(int k) const {
    if (!nazwa(k) || znak(k + 1, "(")) return false;
    if (znak(k - 1, ".") && nazwa(k - 2)) return kolumnaLiczbowa(tresc(tok(k - 2)), tresc(tok(k)));
    return kolumnaLiczbowa({}, tresc(tok(k)));
  }
  // A column reference starting at k.
  bool liczbowaZaczynajacaSie(int k) const {
    if (!nazwa(k)) return false;
    if (znak(k + 1, ".") && nazwa(k + 2)) {
      if (znak(k + 3, "(")) return false;
      return kolumnaLiczbowa(tresc(tok(k)), tresc(tok(k + 2)));
    }
    if (znak(k + 1, "(")) return false;
    return kolumnaLiczbowa({}, tresc(tok(k)));
  }

  // Turns the quoted literal k into a number when it holds one.
  void naLiczbe(int k) {
    Token& tk = t_[z_[k]];
    QString liczba;
    if (liczbaZTekstu(tekst(tk).sliced(1, tk.dl - 2), liczba)) zamien(tk, liczba);
  }

  // col = '12,50', col <> ' 7', '3' = col, SET col='1'
  void porownanieZLiczba(int k) {
    if (porownanie(k - 1) && liczbowaKonczacaSie(k - 2)) {
      naLiczbe(k);
    } else if (porownanie(k + 1) && liczbowaZaczynajacaSie(k + 2)) {
      naLiczbe(k);
    }
  }

  // INSERT INTO t (c1, c2, ...) VALUES (v1, v2, ...): quoted numbers going to number columns.
  void wartosciInsert() {
    int k = 1;
    if (!slowo(k, Slowo::Into) || !nazwa(k + 1)) return;
    const QStringView tabela = tresc(tok(k + 1));
    k += 2;
    if (!znak(k, "(")) return;
    const int g = tok(k).glebokosc + 1;
    QVarLengthArray<QStringView, 16> kolumny;
    for (++k; istnieje(k) && !(znak(k, ")") && tok(k).glebokosc < g); ++k)
      if (nazwa(k) && tok(k).glebokosc == g) kolumny.append(tresc(tok(k)));
    ++k;
    if (!slowo(k, Slowo::Values) || !znak(k + 1, "(")) return;
    k += 2;
    int pole = 0;
    int poczatek = k;
    for (; istnieje(k); ++k) {
      const bool konczy = znak(k, ")") && tok(k).glebokosc < g;
      if (konczy || (znak(k, ",") && tok(k).glebokosc == g)) {
        if (k - poczatek == 1 && tekstowy(poczatek) && pole < kolumny.size() &&
            JetKolumnaLiczbowa(tabela, kolumny[pole]) == 1)
          naLiczbe(poczatek);
        ++pole;
        poczatek = k + 1;
        if (konczy) break;
      }
    }
  }

  // Jet's * and ? become % and _; a % or _ meant literally is escaped. [c] is Jet's way of
  // writing a wildcard literally. Against a number column "," is read as the decimal mark,
  // since the store writes numbers as text with ".".
  void wzorzecLike(int k, bool liczbowa) {
    Token& tk = t_[z_[k]];
    const QStringView w = tekst(tk).sliced(1, tk.dl - 2);
    const bool ucieczka = w.contains(QLatin1Char('%')) || w.contains(QLatin1Char('_'));
    QString out;
    out.reserve(w.size() + 4);
    out += QLatin1Char('\'');
    for (int i = 0; i < w.size(); ++i) {
      QChar c = w[i];
      if (c == QLatin1Char('[') && i + 2 < w.size() && w[i + 2] == QLatin1Char(']')) {
        c = w[i + 1];
        i += 2;
      } else if (c == QLatin1Char('*')) {
        out += QLatin1Char('%');
        continue;
      } else if (c == QLatin1Char('?')) {
        out += QLatin1Char('_');
        continue;
      }
      if (ucieczka && (c == QLatin1Char('%') || c == QLatin1Char('_') || c == QLatin1Char('\\')))
        out += QLatin1Char('\\');
      if (tk.rodzaj == Rodzaj::TekstJet && c == QLatin1Char('"') && i + 1 < w.size() &&
          w[i + 1] == QLatin1Char('"'))
        ++i;
      if (liczbowa && c == QLatin1Char(','))
        out += QLatin1Char('.');
      else if (tk.rodzaj == Rodzaj::TekstJet && c == QLatin1Char('\''))
        out += QLatin1String("''");
      else
        out += c;
    }
    out += QLatin1Char('\'');
    zamien(tk, out);
    if (ucieczka) tk.po = dodaj(QStringLiteral(" ESCAPE '\\'"));
  }

  void nazwaJet(int k, bool struktura) {
    Token& tk = t_[z_[k]];
    const bool wywolanie = znak(k + 1, "(");
    const bool poKropce = znak(k - 1, ".");
    if (slowo(k, Slowo::Like) && tekstowy(k + 1)) {
      const int lewy = slowo(k - 1, Slowo::Not) ? k - 2 : k - 1;
      wzorzecLike(k + 1, liczbowaKonczacaSie(lewy));
    } else if (slowo(k, Slowo::Top) && istnieje(k + 1) && tok(k + 1).rodzaj == Rodzaj::Liczba &&
               (slowo(k - 1, Slowo::Select) || slowo(k - 1, Slowo::Distinct) ||
                slowo(k - 1, Slowo::All) || slowo(k - 1, Slowo::Distinctrow))) {
      top(k);
    } else if (slowo(k, Slowo::Distinctrow)) {
      zamien(tk, QString());
    } else if (wywolanie && !poKropce) {
      if (slowo(k, Slowo::Sum)) {
        zamien(tk, QStringLiteral("SUMA"));
      } else if (slowo(k, Slowo::Left)) {
        zamien(tk, QStringLiteral("JETLEFT"));
      } else if (znak(k + 2, ")") && slowo(k, Slowo::Now)) {
        zamien(tk, QStringLiteral("JETNOW"));
      } else if (znak(k + 2, ")") && slowo(k, Slowo::Date)) {
        zamien(tk, QStringLiteral("JETDATE"));
      }
    } else if (slowo(k, Slowo::Limit) &&
               !(istnieje(k + 1) && tok(k + 1).rodzaj == Rodzaj::Liczba)) {
      // Jet has no LIMIT: the word is the column. "LIMIT 5" can only be SQLite's own clause.
      zamien(tk, QStringLiteral("\"limit\""));
    } else if (!poKropce && slowo(k, Slowo::True)) {
      zamien(tk, QStringLiteral("-1"));
    } else if (!poKropce && slowo(k, Slowo::False)) {
      zamien(tk, QStringLiteral("0"));
    } else if (struktura && nazwa(k - 1) && !slowo(k - 1, Slowo::Table) &&
               !slowo(k - 1, Slowo::Column)) {
      typKolumny(k);
    }
  }

  // TOP n goes; LIMIT n comes at the end of the same SELECT (before the ")" that closes a
  // subquery, or before a final ";").
  void top(int k) {
    Token& tk = t_[z_[k]];
    const int g = tk.glebokosc;
    const QString limit = QStringLiteral(" LIMIT ") + tekst(tok(k + 1)).toString();
    // The words go with the blanks behind them.
    for (int i = z_[k]; i <= z_[k + 1]; ++i) zamien(t_[i], QString());
    if (z_[k + 1] + 1 < t_.size() && t_[z_[k + 1] + 1].rodzaj == Rodzaj::Spacja)
      zamien(t_[z_[k + 1] + 1], QString());
    for (int j = k + 2; j < z_.size(); ++j) {
      if ((znak(j, ")") && tok(j).glebokosc < g) || (znak(j, ";") && tok(j).glebokosc == g)) {
        t_[z_[j]].przed = dodaj(limit);
        return;
      }
    }
    koniec_ += limit;
  }

  // Jet's column types in ALTER TABLE / CREATE TABLE.
  void typKolumny(int k) {
    static const char* const calkowite[] = {"BYTE", "SHORT", "LONG", "COUNTER", "YESNO", "BIT"};
    static const char* const rzeczywiste[] = {"SINGLE", "DOUBLE", "CURRENCY"};
    static const char* const tekstowe[] = {"MEMO", "DATETIME"};
    Token& tk = t_[z_[k]];
    for (const char* s : calkowite)
      if (slowo(k, s)) return zamien(tk, QStringLiteral("INTEGER"));
    for (const char* s : rzeczywiste)
      if (slowo(k, s)) return zamien(tk, QStringLiteral("REAL"));
    for (const char* s : tekstowe)
      if (slowo(k, s)) return zamien(tk, QStringLiteral("TEXT"));
  }
};

// Recent translations: the program repeats the same statements (language texts, lists).
// Two generations make a cheap LRU: a hit in the old one is carried over to the new one.
class Pamiec {
 public:
  const QString* znajdz(const QString& jet) {
    auto it = nowe_.constFind(jet);
    if (it != nowe_.constEnd()) return &it.value();
    auto st = stare_.constFind(jet);
    if (st == stare_.constEnd()) return nullptr;
    const QString sqlite = st.value();  // the old generation may go away in dodaj
    return &dodaj(jet, sqlite);
  }
  const QString& dodaj(const QString& jet, const QString& sqlite) {
    if (nowe_.size() >= kPojemnosc) {
      stare_ = std::move(nowe_);
      nowe_ = {};
    }
    return nowe_.insert(jet, sqlite).value();
  }

 private:
  static constexpr qsizetype kPojemnosc = 512;
  QHash<QString, QString> nowe_, stare_;
};

}  // namespace

QString TlumaczJet(const QString& jet) {
  thread_local Pamiec pamiec;
  if (const QString* znany = pamiec.znajdz(jet)) return *znany;
  return pamiec.dodaj(jet, Tlumacz(ZakresyDat(ZakresyPrzedrostkow(jet))).wynik());
}
