// The SELECTs of a statement and their clauses; names compared and sorted in the Polish order,
// blind to case; TOP n with the rows tied with the n-th.

#include <algorithm>

#include "store/jet_tlumacz.h"
#include "store/porzadek.h"

namespace {

QString kolacja() { return QStringLiteral(" COLLATE ") + QLatin1String(NazwaPorzadku); }

// A character as an SQLite text literal.
QString literal(char32_t c) {
  if (c == U'\'') return QStringLiteral("''''");
  return QLatin1Char('\'') + QString::fromUcs4(&c, 1) + QLatin1Char('\'');
}

}  // namespace

// ---- the SELECTs -----------------------------------------------------------------------------

// One pass with a frame per parenthesis: which clause every token stands in, and for every
// SELECT where its parts begin and end, its select list and its ORDER BY and GROUP BY terms.
void TlumaczJetu::zbierzZapytania() {
  struct Ramka {
    Klauzula klauzula = Klauzula::Brak;
    int zapytanie = -1;
    int poczatek = -1;  // first token of the list item or term being read
  };
  QVarLengthArray<Ramka, 16> stos(1);
  klauzula_.resize(z_.size());

  const auto zamknijElement = [&](Ramka& r, int k) {
    if (r.zapytanie >= 0 && r.poczatek >= 0 && r.poczatek < k) {
      Zapytanie& q = zapytania_[r.zapytanie];
      if (r.klauzula == Klauzula::Lista) {
        // "expression AS name": the name can stand for the expression in ORDER BY.
        if (k - r.poczatek >= 3 && slowo(k - 2, Slowo::As) && nazwa(k - 1))
          q.aliasy.dodaj(tresc(tok(k - 1)), int(q.lista.size()));
        q.lista.append({r.poczatek, k});
      } else if (r.klauzula == Klauzula::Order) {
        q.kolejnosc.append({r.poczatek, k});
        q.malejaco.append(false);
      } else if (r.klauzula == Klauzula::Group) {
        q.grupy.append({r.poczatek, k});
      }
    }
    r.poczatek = -1;
  };
  const auto zamknijZapytanie = [&](Ramka& r, int k) {
    zamknijElement(r, k);
    if (r.zapytanie >= 0 && zapytania_[r.zapytanie].koniec < 0) zapytania_[r.zapytanie].koniec = k;
    r.zapytanie = -1;
  };
  const auto klauzula = [&](Ramka& r, int k, Klauzula nowa, int poczatek = -1) {
    zamknijElement(r, k);
    r.klauzula = nowa;
    r.poczatek = poczatek;
  };

  for (int k = 0; k < z_.size(); ++k) {
    if (znak(k, "(")) {
      klauzula_[k] = stos.last().klauzula;
      stos.append(Ramka{});
      continue;
    }
    if (znak(k, ")")) {
      if (stos.size() > 1) {
        zamknijZapytanie(stos.last(), k);
        stos.removeLast();
      }
      klauzula_[k] = stos.last().klauzula;
      continue;
    }
    Ramka& r = stos.last();
    if (znak(k, ";")) {
      zamknijZapytanie(r, k);
      r.klauzula = Klauzula::Brak;
    } else if (znak(k, ",")) {
      if (r.klauzula == Klauzula::Lista || r.klauzula == Klauzula::Order ||
          r.klauzula == Klauzula::Group) {
        zamknijElement(r, k);
        r.poczatek = k + 1;
      }
    } else if (tok(k).rodzaj == Rodzaj::Nazwa && tok(k).slowo != Slowo::Brak) {
      switch (tok(k).slowo) {
        case Slowo::Select: {
          zamknijZapytanie(r, k);
          Zapytanie q;
          q.select = k;
          q.glebokosc = int(stos.size() - 1);
          int j = k + 1;
          for (; slowo(j, Slowo::Distinct) || slowo(j, Slowo::Distinctrow) || slowo(j, Slowo::All);
               ++j)
            q.distinct = q.distinct || slowo(j, Slowo::Distinct);
          if (slowo(j, Slowo::Top) && istnieje(j + 1) && tok(j + 1).rodzaj == Rodzaj::Liczba) {
            q.top = j;
            j += 2;
          }
          r.zapytanie = int(zapytania_.size());
          zapytania_.append(std::move(q));
          for (int i = k; i < j && i < z_.size(); ++i) klauzula_[i] = Klauzula::Lista;
          klauzula(r, k, Klauzula::Lista, j);
          k = j - 1;
          continue;
        }
        case Slowo::From:
          if (r.zapytanie >= 0 && r.klauzula == Klauzula::Lista) zapytania_[r.zapytanie].from = k;
          klauzula(r, k, Klauzula::From);
          break;
        case Slowo::Where:
          klauzula(r, k, Klauzula::Where);
          break;
        case Slowo::Having:
          klauzula(r, k, Klauzula::Having);
          break;
        case Slowo::Group:
        case Slowo::Order:
          if (slowo(k + 1, Slowo::By)) {
            const bool order = tok(k).slowo == Slowo::Order;
            if (order && r.zapytanie >= 0) zapytania_[r.zapytanie].order = k;
            klauzula(r, k, order ? Klauzula::Order : Klauzula::Group, k + 2);
            klauzula_[k] = r.klauzula;
            ++k;
          }
          break;
        case Slowo::Asc:
        case Slowo::Desc:
          if (r.klauzula == Klauzula::Order && r.zapytanie >= 0 && r.poczatek >= 0 &&
              r.poczatek < k) {
            zamknijElement(r, k);
            zapytania_[r.zapytanie].malejaco.last() = tok(k).slowo == Slowo::Desc;
          }
          break;
        case Slowo::Set:
          klauzula(r, k, Klauzula::Set);
          break;
        case Slowo::Values:
          klauzula(r, k, Klauzula::Values);
          break;
        case Slowo::Union:
        case Slowo::Except:
        case Slowo::Intersect:
          zamknijZapytanie(r, k);
          r.klauzula = Klauzula::Brak;
          break;
        case Slowo::Limit:
          if (istnieje(k + 1) && tok(k + 1).rodzaj == Rodzaj::Liczba)
            klauzula(r, k, Klauzula::Brak);
          break;
        default:
          break;
      }
    }
    klauzula_[k] = r.klauzula;
  }
  while (!stos.isEmpty()) {
    zamknijZapytanie(stos.last(), int(z_.size()));
    stos.removeLast();
  }
}

int TlumaczJetu::alias(const Zapytanie& q, int k) const {
  if (!nazwa(k)) return -1;
  const int* i = q.aliasy.znajdz(tresc(tok(k)));
  return i ? *i : -1;
}

// What an ORDER BY term stands for: the expression of the select-list item it names by its
// alias or its place, or else itself.
TlumaczJetu::Zakres TlumaczJetu::wyrazenie(const Zapytanie& q, const Zakres& termin) const {
  if (termin.second - termin.first != 1) return termin;
  int i = alias(q, termin.first);
  if (i < 0 && tok(termin.first).rodzaj == Rodzaj::Liczba) {
    bool ok = false;
    const int miejsce = tekst(tok(termin.first)).toInt(&ok);
    if (ok && miejsce >= 1 && miejsce <= q.lista.size()) i = miejsce - 1;
  }
  if (i < 0) return termin;
  const Zakres element = q.lista[i];
  if (element.second - element.first >= 3 && slowo(element.second - 2, Slowo::As))
    return {element.first, element.second - 2};
  return element;
}

// ---- names in the Polish order ---------------------------------------------------------------

void TlumaczJetu::porzadek() {
  for (const Zapytanie& q : zapytania_) {
    kolacjaTerminow(q, q.kolejnosc);
    kolacjaTerminow(q, q.grupy);
  }
  for (int k = 0; k < z_.size(); ++k) {
    const int ostatni = kolumnaOd(k);
    if (ostatni < 0) continue;
    porownanieTekstow(k, ostatni + 1);
    k = ostatni;
  }
}

// ORDER BY and GROUP BY terms that are names (or aliases of names) sort and group in the
// Polish order.
void TlumaczJetu::kolacjaTerminow(const Zapytanie& q, const QVarLengthArray<Zakres, 4>& terminy) {
  for (const Zakres& t : terminy) {
    if (slowo(t.second, Slowo::Collate)) continue;  // the statement names its own order
    const Zakres w = wyrazenie(q, t);
    if (kolumnaOd(w.first) != w.second - 1) continue;
    if (rodzajOdwolania(w.first, w.second) == RodzajKolumny::Tekst)
      dopiszPo(tokZ(t.second - 1), kolacja());
  }
}

// A name column [od, do) as one side of a comparison, of IN or BETWEEN, or the argument of MIN
// or MAX compares in the Polish order. "nazwa = 'x'" also gets a condition on the first letter
// in any of its cases, which the column's own index serves: the index is in plain binary
// order, as the sqlcipher shell must be able to read and check it.
void TlumaczJetu::porownanieTekstow(int od, int do_) {
  const int przed = od - 1, po = do_;
  if (slowo(po, Slowo::Collate)) return;
  if (klauzula_[od] == Klauzula::Set && (slowo(przed, Slowo::Set) || znak(przed, ",")) &&
      znak(po, "="))
    return;  // the column written to
  const bool minmax = znak(przed, "(") &&
                      (slowo(przed - 1, Slowo::Min) || slowo(przed - 1, Slowo::Max)) &&
                      znak(po, ")");
  const bool argument =
      porownanie(po) || porownanie(przed) || slowo(po, Slowo::In) || slowo(po, Slowo::Between) ||
      (slowo(po, Slowo::Not) && (slowo(po + 1, Slowo::In) || slowo(po + 1, Slowo::Between)));
  if (!minmax && !argument) return;
  if (rodzajOdwolania(od, do_) != RodzajKolumny::Tekst) return;
  const QString kolumna = renderuj(od, do_);
  dopiszPo(tokZ(do_ - 1), kolacja());

  // nazwa = 'x' or 'x' = nazwa, standing alone between AND, OR, WHERE, brackets.
  int lit = -1, pierwszy = -1, ostatni = -1;
  if (znak(po, "=") && tekstowy(po + 1)) {
    lit = po + 1, pierwszy = od, ostatni = po + 1;
  } else if (znak(przed, "=") && tekstowy(przed - 1)) {
    lit = przed - 1, pierwszy = przed - 1, ostatni = do_ - 1;
  }
  if (lit < 0) return;
  const auto granicaPrzed = [&](int k) {
    return !istnieje(k) || znak(k, "(") || znak(k, ",") || slowo(k, Slowo::Where) ||
           slowo(k, Slowo::And) || slowo(k, Slowo::Or) || slowo(k, Slowo::Not) ||
           slowo(k, Slowo::On) || slowo(k, Slowo::Having) || slowo(k, Slowo::When) ||
           slowo(k, Slowo::Then) || slowo(k, Slowo::Else);
  };
  const auto granicaPo = [&](int k) {
    return !istnieje(k) || znak(k, ")") || znak(k, ",") || znak(k, ";") || slowo(k, Slowo::And) ||
           slowo(k, Slowo::Or) || slowo(k, Slowo::Order) || slowo(k, Slowo::Group) ||
           slowo(k, Slowo::Having) || slowo(k, Slowo::Then) || slowo(k, Slowo::Else) ||
           slowo(k, Slowo::End) || slowo(k, Slowo::When) || slowo(k, Slowo::Union) ||
           slowo(k, Slowo::Except) || slowo(k, Slowo::Intersect) || slowo(k, Slowo::Limit);
  };
  if (!granicaPrzed(pierwszy - 1) || !granicaPo(ostatni + 1)) return;
  QStringView tabela;
  if (do_ - od == 3) {
    tabela = tabelaAliasu(tresc(tok(od)));
  } else {
    for (const QStringView t : tabele_)
      if (JetRodzajKolumny(t, tresc(tok(od))) != RodzajKolumny::Nieznana) {
        tabela = t;
        break;
      }
  }
  if (!JetTekstZIndeksem(tabela, tresc(tok(do_ - 1)))) return;

  const Token& t = tok(lit);
  QStringView tresc = tekst(t).sliced(1);
  if (tresc.isEmpty()) return;
  const QChar cudzyslow = tekst(t).front();
  char32_t c = tresc.front().unicode();
  if (c == cudzyslow.unicode()) {
    // A doubled quote is the quote itself; a lone one closes an empty text.
    if (tresc.size() < 2 || tresc[1] != cudzyslow) return;
  } else if (tresc.front().isHighSurrogate() && tresc.size() > 1 && tresc[1].isLowSurrogate()) {
    c = QChar::surrogateToUcs4(tresc[0], tresc[1]);
  }
  QString zakresy;
  for (const char32_t v : WariantyWielkosci(c)) {
    if (!zakresy.isEmpty()) zakresy += QStringLiteral(" OR ");
    zakresy += kolumna + QStringLiteral(">=") + literal(v);
    if (v < 0x10FFFF) {
      const char32_t nastepny = v + 1 == 0xD800 ? 0xE000 : v + 1;
      zakresy += QStringLiteral(" AND ") + kolumna + QLatin1Char('<') + literal(nastepny);
    }
  }
  dopiszPrzed(tokZ(pierwszy), QStringLiteral("((") + zakresy + QStringLiteral(") AND "));
  dopiszPo(tokZ(ostatni), QStringLiteral(")"));
}

// ---- TOP n -----------------------------------------------------------------------------------

// Inner SELECTs first: an outer TOP that repeats its FROM part repeats them as translated.
void TlumaczJetu::topy() {
  QVarLengthArray<int, 8> kolej;
  for (int i = 0; i < zapytania_.size(); ++i)
    if (zapytania_[i].top >= 0) kolej.append(i);
  std::stable_sort(kolej.begin(), kolej.end(),
                   [&](int a, int b) { return zapytania_[a].glebokosc > zapytania_[b].glebokosc; });
  int numer = 0;
  for (const int i : kolej) top(zapytania_[i], ++numer);
}

bool TlumaczJetu::kluczWiersza(const Zakres& r) const {
  if (kolumnaOd(r.first) != r.second - 1) return false;
  const QStringView kolumna = tresc(tok(r.second - 1));
  if (r.second - r.first == 3) {
    return JetKluczWiersza(tabelaAliasu(tresc(tok(r.first))), kolumna);
  }
  for (const QStringView t : tabele_)
    if (JetKluczWiersza(t, kolumna)) return true;
  return false;
}

// Jet's TOP n gives every row tied with the n-th on the ORDER BY values. The SELECT keeps its
// ORDER BY and gets a LIMIT of the count of rows up to the last tie: the rows before the n-th
// that differ from it, and all rows equal to it. The keys are read by a WITH part over the same
// FROM ... WHERE ... GROUP BY. When the last term is the row's own key there can be no tie and
// LIMIT n stays; so also without ORDER BY.
void TlumaczJetu::top(const Zapytanie& q, int numer) {
  const int k = q.top;
  const QString liczba = tekst(tok(k + 1)).toString();
  bool ok = false;
  const qint64 n = liczba.toLongLong(&ok);
  const bool poUnii = slowo(q.select - 1, Slowo::Union) || slowo(q.select - 1, Slowo::All) ||
                      slowo(q.select - 1, Slowo::Except) || slowo(q.select - 1, Slowo::Intersect);
  QString limit, with;
  if (!ok || n <= 0 || q.order < 0 || q.from < 0 || q.kolejnosc.isEmpty() || poUnii ||
      q.lista.isEmpty() || kluczWiersza(wyrazenie(q, q.kolejnosc.last()))) {
    limit = QStringLiteral(" LIMIT ") + liczba;
  } else {
    // Nested TOPs repeat what they hold; past a budget the TOP is left as Jet wrote it, and
    // the store refuses the statement rather than the translator working without end.
    const qsizetype budzet = 4 * s_.size() + 65536;
    const qsizetype surowy = tok(q.order).od - tok(q.from).od;
    if (dodane_ + surowy > budzet) return;
    const QString tabela = QStringLiteral("top%1").arg(numer);
    const QString nty = tabela + QLatin1Char('n');
    QString klucze, kolejnosc, rowne;
    for (int i = 0; i < q.kolejnosc.size(); ++i) {
      const Zakres t = q.kolejnosc[i];
      const Zakres w = wyrazenie(q, t);
      QString klucz = renderuj(w.first, w.second);
      if (w != t && kolumnaOd(w.first) == w.second - 1 &&
          rodzajOdwolania(w.first, w.second) == RodzajKolumny::Tekst)
        klucz += kolacja();
      const QString k_ = QStringLiteral("k%1").arg(i + 1);
      const QString przecinek = i ? QStringLiteral(", ") : QString();
      klucze += przecinek + klucz + QStringLiteral(" AS ") + k_;
      kolejnosc += przecinek + k_ + (q.malejaco[i] ? QStringLiteral(" DESC") : QString());
      rowne += (i ? QStringLiteral(" AND ") : QString()) + k_ + QStringLiteral(" IS ") + nty +
               QLatin1Char('.') + k_;
    }
    QString lista;
    if (q.distinct)
      lista = QStringLiteral("DISTINCT ") + renderuj(q.lista.first().first, q.lista.last().second) +
              QStringLiteral(", ");
    with = QStringLiteral("WITH ") + tabela + QStringLiteral(" AS (SELECT ") + lista + klucze +
           QLatin1Char(' ') + renderuj(q.from, q.order) + QStringLiteral(") ");
    const QString posortowane = QStringLiteral("SELECT * FROM ") + tabela +
                                QStringLiteral(" ORDER BY ") + kolejnosc +
                                QStringLiteral(" LIMIT ");
    limit = QStringLiteral(" LIMIT coalesce((SELECT (SELECT count(*) FROM ") + tabela +
            QStringLiteral(" WHERE ") + rowne + QStringLiteral(") + (SELECT count(*) FROM (") +
            posortowane + liczba + QStringLiteral(") WHERE NOT (") + rowne +
            QStringLiteral(")) FROM (") + posortowane + QStringLiteral("1 OFFSET ") +
            QString::number(n - 1) + QStringLiteral(") AS ") + nty + QStringLiteral("), ") +
            liczba + QLatin1Char(')');
    dodane_ += with.size() + limit.size();
    if (dodane_ > budzet) {
      dodane_ = budzet + 1;  // no more of them
      return;
    }
  }
  // TOP and its number go, with the blank behind them.
  for (int i = z_[k]; i <= z_[k + 1]; ++i) zamien(t_[i], QString());
  if (z_[k + 1] + 1 < t_.size() && t_[z_[k + 1] + 1].rodzaj == Rodzaj::Spacja)
    zamien(t_[z_[k + 1] + 1], QString());
  if (q.koniec < z_.size() && (znak(q.koniec, ")") || znak(q.koniec, ";")))
    dopiszPrzed(tokZ(q.koniec), limit);
  else
    koniec_ += limit;
  if (!with.isEmpty()) dopiszPrzed(tokZ(q.select), with);
}
