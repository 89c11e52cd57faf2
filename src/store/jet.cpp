#include "store/jet.h"

#include "store/jet_przedrostki.h"
#include "store/jet_tlumacz.h"
#include "store/jet_zakresy.h"

// The translator changes single tokens of the statement (jet_tlumacz.h):
//   #mm/dd/yyyy#            -> 'yyyy-mm-dd' (dates are stored as ISO text)
//   x LIKE 'a*b?'           -> x LIKE 'a%b_' (a literal % or _ is escaped with ESCAPE '\')
//   SELECT TOP n ...        -> SELECT ... LIMIT n, with the rows tied with the n-th
//   SUM( / LEFT(            -> SUMA( (exact to the cent) / JETLEFT( (LEFT is a keyword here)
//   Now() / Date()          -> JETNOW() / JETDATE() (the program's own clock)
//   limit                   -> "limit" (a column; a keyword in SQLite, none in Jet)
//   '12,50' into or against a number column -> 12.50
//   nazwa = 'x', ORDER BY nazwa -> ... COLLATE PL (names compare blind to case, Polish order)
//   & / True / False / [name] / "text" / DISTINCTROW, and the Jet types of ALTER TABLE.
// MONTH, YEAR, DAY, DATEPART, MID, LEN and the case-blind LIKE are functions registered on the
// connection (jet_funkcje.cpp), so their names pass through unchanged.

namespace {

bool cyfra(QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }

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

}  // namespace

TlumaczJetu::TlumaczJetu(QStringView s) : s_(s) {
  TnijJet(s_, t_);
  for (int i = 0; i < t_.size(); ++i)
    if (t_[i].rodzaj != Rodzaj::Spacja) z_.append(i);
}

QString TlumaczJetu::wynik() {
  zbierzTabele();
  zbierzZapytania();
  const bool insert = slowo(0, Slowo::Insert);
  const bool struktura = slowo(0, Slowo::Alter) || slowo(0, Slowo::Create);
  if (insert) wartosciInsert();
  for (int k = 0; k < z_.size(); ++k) {
    Token& tk = tokZ(k);
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
          dopiszPo(tk, QStringLiteral(" "));
        break;
      case Rodzaj::NazwaUjeta: {
        QString w = tresc(tk).toString();
        w.replace(QLatin1Char('"'), QLatin1String("\"\""));
        zamien(tk, QLatin1Char('"') + w + QLatin1Char('"'));
        break;
      }
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
  if (!struktura) porzadek();
  topy();
  QString out;
  out.reserve(s_.size() + dodane_ + 32);
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

// ---- tokens ----------------------------------------------------------------------------------

// A name as written: [name] without its brackets.
QStringView TlumaczJetu::tresc(const Token& tk) const {
  return tk.rodzaj == Rodzaj::NazwaUjeta ? s_.sliced(tk.od + 1, tk.dl - 2) : tekst(tk);
}

bool TlumaczJetu::nazwa(int k) const {
  return istnieje(k) && (tok(k).rodzaj == Rodzaj::Nazwa || tok(k).rodzaj == Rodzaj::NazwaUjeta);
}

bool TlumaczJetu::slowo(int k, const char* s) const {
  return istnieje(k) && tok(k).rodzaj == Rodzaj::Nazwa &&
         tekst(tok(k)).compare(QLatin1StringView(s), Qt::CaseInsensitive) == 0;
}

bool TlumaczJetu::tekstowy(int k) const {
  return istnieje(k) && (tok(k).rodzaj == Rodzaj::Tekst || tok(k).rodzaj == Rodzaj::TekstJet);
}

bool TlumaczJetu::porownanie(int k) const {
  return znak(k, "=") || znak(k, "<>") || znak(k, "<") || znak(k, ">") || znak(k, "<=") ||
         znak(k, ">=") || znak(k, "!=");
}

int TlumaczJetu::dodaj(const QString& z) {
  teksty_.append(z);
  return int(teksty_.size() - 1);
}

void TlumaczJetu::dopiszPrzed(Token& tk, const QString& z) {
  if (tk.przed < 0)
    tk.przed = dodaj(z);
  else
    teksty_[tk.przed] += z;
}

void TlumaczJetu::dopiszPo(Token& tk, const QString& z) {
  if (tk.po < 0)
    tk.po = dodaj(z);
  else
    teksty_[tk.po] += z;
}

QString TlumaczJetu::renderuj(int od, int do_) const {
  QString w;
  if (od >= do_) return w;
  for (int i = z_[od]; i <= z_[do_ - 1]; ++i) {
    const Token& tk = t_[i];
    if (tk.przed >= 0) w += teksty_[tk.przed];
    w += tk.zamiana >= 0 ? QStringView(teksty_[tk.zamiana]) : tekst(tk);
    if (tk.po >= 0) w += teksty_[tk.po];
  }
  return w;
}

// "text" is a text literal in Jet and a name in SQLite.
QString TlumaczJetu::tekstJet(const Token& tk) const {
  QString w = tekst(tk).sliced(1, tk.dl - 2).toString();
  w.replace(QLatin1String("\"\""), QLatin1String("\""));
  w.replace(QLatin1Char('\''), QLatin1String("''"));
  return QLatin1Char('\'') + w + QLatin1Char('\'');
}

// ---- the store's columns ---------------------------------------------------------------------

// Tables named after FROM, JOIN, INTO, UPDATE, TABLE (and in a FROM list after "," or "("),
// with their "AS alias". Only the store's own tables count, each once.
void TlumaczJetu::zbierzTabele() {
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
    if (!nazwa(k) || znak(k + 1, ".") || (znak(k + 1, "(") && !slowo(k - 1, Slowo::Into))) continue;
    const bool miejsce = slowo(k - 1, Slowo::From) || slowo(k - 1, Slowo::Join) ||
                         slowo(k - 1, Slowo::Into) || slowo(k - 1, Slowo::Update) ||
                         slowo(k - 1, Slowo::Table) ||
                         (wFrom && (znak(k - 1, ",") || znak(k - 1, "(")));
    if (!miejsce) continue;
    const QStringView tabela = tresc(tok(k));
    if (!JetZnanaTabela(tabela)) continue;
    bool jest = false;
    for (const QStringView t : tabele_) jest = jest || t.compare(tabela, Qt::CaseInsensitive) == 0;
    if (!jest) tabele_.append(tabela);
    if (slowo(k + 1, Slowo::As) && nazwa(k + 2)) aliasy_.dodaj(tresc(tok(k + 2)), tabela);
  }
}

RodzajKolumny TlumaczJetu::rodzajKolumny(QStringView kwalifikator, QStringView kolumna) const {
  if (!kwalifikator.isEmpty()) {
    return JetRodzajKolumny(tabelaAliasu(kwalifikator), kolumna);
  }
  for (const QStringView tabela : tabele_) {
    const RodzajKolumny r = JetRodzajKolumny(tabela, kolumna);
    if (r != RodzajKolumny::Nieznana) return r;
  }
  return RodzajKolumny::Nieznana;
}

int TlumaczJetu::kolumnaOd(int k) const {
  if (!nazwa(k) || znak(k - 1, ".") || znak(k + 1, "(")) return -1;
  if (!znak(k + 1, ".")) return tok(k).slowo == Slowo::Brak || slowo(k, Slowo::Limit) ? k : -1;
  if (!nazwa(k + 2) || znak(k + 3, "(") || znak(k + 3, ".")) return -1;
  return k + 2;
}

RodzajKolumny TlumaczJetu::rodzajOdwolania(int od, int do_) const {
  if (do_ - od == 1) return rodzajKolumny({}, tresc(tok(od)));
  if (do_ - od == 3 && znak(od + 1, ".")) return rodzajKolumny(tresc(tok(od)), tresc(tok(od + 2)));
  return RodzajKolumny::Nieznana;
}

// A column reference ending at k ("col" or "table.col"); not a call.
bool TlumaczJetu::liczbowaKonczacaSie(int k) const {
  if (!nazwa(k) || znak(k + 1, "(")) return false;
  if (znak(k - 1, ".") && nazwa(k - 2))
    return rodzajOdwolania(k - 2, k + 1) == RodzajKolumny::Liczba;
  return rodzajOdwolania(k, k + 1) == RodzajKolumny::Liczba;
}

// A column reference starting at k.
bool TlumaczJetu::liczbowaZaczynajacaSie(int k) const {
  if (!nazwa(k)) return false;
  if (znak(k + 1, ".") && nazwa(k + 2)) {
    if (znak(k + 3, "(")) return false;
    return rodzajOdwolania(k, k + 3) == RodzajKolumny::Liczba;
  }
  if (znak(k + 1, "(")) return false;
  return rodzajOdwolania(k, k + 1) == RodzajKolumny::Liczba;
}

// ---- literals, LIKE, Jet's words -------------------------------------------------------------

// Turns the quoted literal k into a number when it holds one.
void TlumaczJetu::naLiczbe(int k) {
  Token& tk = tokZ(k);
  QString liczba;
  if (liczbaZTekstu(tekst(tk).sliced(1, tk.dl - 2), liczba)) zamien(tk, liczba);
}

// col = '12,50', col <> ' 7', '3' = col, SET col='1'
void TlumaczJetu::porownanieZLiczba(int k) {
  if (porownanie(k - 1) && liczbowaKonczacaSie(k - 2)) {
    naLiczbe(k);
  } else if (porownanie(k + 1) && liczbowaZaczynajacaSie(k + 2)) {
    naLiczbe(k);
  }
}

// INSERT INTO t (c1, c2, ...) VALUES (v1, v2, ...): quoted numbers going to number columns.
void TlumaczJetu::wartosciInsert() {
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
void TlumaczJetu::wzorzecLike(int k, bool liczbowa) {
  Token& tk = tokZ(k);
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
  if (ucieczka) dopiszPo(tk, QStringLiteral(" ESCAPE '\\'"));
}

void TlumaczJetu::nazwaJet(int k, bool struktura) {
  Token& tk = tokZ(k);
  const bool wywolanie = znak(k + 1, "(");
  const bool poKropce = znak(k - 1, ".");
  if (slowo(k, Slowo::Like) && tekstowy(k + 1)) {
    const int lewy = slowo(k - 1, Slowo::Not) ? k - 2 : k - 1;
    wzorzecLike(k + 1, liczbowaKonczacaSie(lewy));
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
  } else if (slowo(k, Slowo::Limit) && !(istnieje(k + 1) && tok(k + 1).rodzaj == Rodzaj::Liczba)) {
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

// Jet's column types in ALTER TABLE / CREATE TABLE.
void TlumaczJetu::typKolumny(int k) {
  static const char* const calkowite[] = {"BYTE", "SHORT", "LONG", "COUNTER", "YESNO", "BIT"};
  static const char* const rzeczywiste[] = {"SINGLE", "DOUBLE", "CURRENCY"};
  static const char* const tekstowe[] = {"MEMO", "DATETIME"};
  Token& tk = tokZ(k);
  for (const char* s : calkowite)
    if (slowo(k, s)) return zamien(tk, QStringLiteral("INTEGER"));
  for (const char* s : rzeczywiste)
    if (slowo(k, s)) return zamien(tk, QStringLiteral("REAL"));
  for (const char* s : tekstowe)
    if (slowo(k, s)) return zamien(tk, QStringLiteral("TEXT"));
}

namespace {

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
  return pamiec.dodaj(jet, TlumaczJetu(ZakresyDat(ZakresyPrzedrostkow(jet))).wynik());
}
