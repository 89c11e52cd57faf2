// The Jet functions the translated statements call, registered on the store's connection:
// dates (stored as ISO text 'YYYY-MM-DD'), text pieces counted in characters, a LIKE that is
// blind to case in every alphabet (as Jet is: "żywność" finds "Żywność"), and a sum that is
// exact to the cent.

#include <sqlcipher/sqlite3.h>

#include <QChar>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

#include "store/dzis.h"
#include "store/jet.h"
#include "store/porzadek.h"

namespace {

// ---- dates ----------------------------------------------------------------------------------

struct Chwila {
  int r = 0, m = 0, d = 0, g = 0, min = 0, s = 0;
};

// Days since 1970-01-01 of a civil date.
qint64 dniOdEpoki(qint64 r, int m, int d) {
  r -= m <= 2;
  const qint64 era = (r >= 0 ? r : r - 399) / 400;
  const qint64 ry = r - era * 400;
  const qint64 dr = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const qint64 de = ry * 365 + ry / 4 - ry / 100 + dr;
  return era * 146097 + de - 719468;
}

void zDni(qint64 z, Chwila& c) {
  z += 719468;
  const qint64 era = (z >= 0 ? z : z - 146096) / 146097;
  const qint64 de = z - era * 146097;
  const qint64 ry = (de - de / 1460 + de / 36524 - de / 146096) / 365;
  const qint64 dr = de - (365 * ry + ry / 4 - ry / 100);
  const qint64 mp = (5 * dr + 2) / 153;
  c.d = int(dr - (153 * mp + 2) / 5 + 1);
  c.m = int(mp < 10 ? mp + 3 : mp - 9);
  c.r = int(ry + era * 400 + (c.m <= 2));
}

bool dniMiesiaca(int r, int m, int d) {
  static const int dni[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (m < 1 || m > 12 || d < 1) return false;
  const bool przestepny = (r % 4 == 0 && r % 100 != 0) || r % 400 == 0;
  return d <= dni[m - 1] + (m == 2 && przestepny ? 1 : 0);
}

int dwieCyfry(const unsigned char* p) {
  if (p[0] < '0' || p[0] > '9' || p[1] < '0' || p[1] > '9') return -1;
  return (p[0] - '0') * 10 + (p[1] - '0');
}

// A date as the store keeps it ('YYYY-MM-DD', optionally ' HH:MM[:SS]'), or a Jet date
// serial number (days since 1899-12-30). Anything else is no date.
bool czytajDate(sqlite3_value* v, Chwila& c) {
  const int typ = sqlite3_value_type(v);
  if (typ == SQLITE_NULL) return false;
  if (typ == SQLITE_INTEGER || typ == SQLITE_FLOAT) {
    const double x = sqlite3_value_double(v);
    if (!std::isfinite(x) || std::fabs(x) > 3e6) return false;
    const double dni = std::floor(x);
    zDni(qint64(dni) + dniOdEpoki(1899, 12, 30), c);
    const int sekundy = int(std::lround((x - dni) * 86400.0));
    c.g = sekundy / 3600, c.min = sekundy / 60 % 60, c.s = sekundy % 60;
    return true;
  }
  const auto* t = sqlite3_value_text(v);
  const int n = sqlite3_value_bytes(v);
  if (!t || n < 10 || t[4] != '-' || t[7] != '-') return false;
  const int w = dwieCyfry(t), y = dwieCyfry(t + 2);
  c.m = dwieCyfry(t + 5), c.d = dwieCyfry(t + 8);
  if (w < 0 || y < 0 || c.m < 0 || c.d < 0) return false;
  c.r = w * 100 + y;
  if (!dniMiesiaca(c.r, c.m, c.d)) return false;
  if (n >= 16 && (t[10] == ' ' || t[10] == 'T') && t[13] == ':') {
    c.g = std::max(0, dwieCyfry(t + 11));
    c.min = std::max(0, dwieCyfry(t + 14));
    if (n >= 19 && t[16] == ':') c.s = std::max(0, dwieCyfry(t + 17));
  }
  return true;
}

// Weekday 1 (Sunday) to 7 (Saturday), as Jet counts them.
int dzienTygodnia(qint64 dni) { return int(((dni + 4) % 7 + 7) % 7) + 1; }

// Place of a day in its week: 0 for the first day of the week.
int miejsceWTygodniu(qint64 dni, int pierwszyDzien) {
  return (dzienTygodnia(dni) - pierwszyDzien + 7) % 7;
}

// Jet's week of the year. pierwszyDzien: 1 Sunday ... 7 Saturday. pierwszyTydzien: 1 the
// week holding 1 January, 2 the first week with four days of the year, 3 the first full week.
// A day before week 1 belongs to the last week of the year before.
int tydzienRoku(qint64 dni, int rok, int pierwszyDzien, int pierwszyTydzien) {
  const qint64 nowyRok = dniOdEpoki(rok, 1, 1);
  const int przesuniecie = miejsceWTygodniu(nowyRok, pierwszyDzien);
  qint64 poczatek = nowyRok - przesuniecie;
  if (pierwszyTydzien == 2 && 7 - przesuniecie < 4) poczatek += 7;
  if (pierwszyTydzien == 3 && przesuniecie != 0) poczatek += 7;
  if (dni < poczatek)
    return tydzienRoku(dniOdEpoki(rok - 1, 12, 31), rok - 1, pierwszyDzien, pierwszyTydzien);
  return int((dni - poczatek) / 7) + 1;
}

enum Czesc { kRok, kMiesiac, kDzien };

void fnCzescDaty(sqlite3_context* ctx, int, sqlite3_value** argv) {
  Chwila c;
  if (!czytajDate(argv[0], c)) return sqlite3_result_null(ctx);
  const auto czesc = Czesc(reinterpret_cast<quintptr>(sqlite3_user_data(ctx)));
  sqlite3_result_int(ctx, czesc == kRok ? c.r : czesc == kMiesiac ? c.m : c.d);
}

// DATEPART(interval, date [, first day of week [, first week of year]])
void fnDatePart(sqlite3_context* ctx, int argc, sqlite3_value** argv) {
  Chwila c;
  const auto* interwal = reinterpret_cast<const char*>(sqlite3_value_text(argv[0]));
  if (!interwal || !czytajDate(argv[1], c)) return sqlite3_result_null(ctx);
  int pierwszyDzien =
      argc > 2 && sqlite3_value_type(argv[2]) != SQLITE_NULL ? sqlite3_value_int(argv[2]) : 1;
  if (pierwszyDzien < 1 || pierwszyDzien > 7) pierwszyDzien = 1;
  int pierwszyTydzien =
      argc > 3 && sqlite3_value_type(argv[3]) != SQLITE_NULL ? sqlite3_value_int(argv[3]) : 1;
  if (pierwszyTydzien < 1 || pierwszyTydzien > 3) pierwszyTydzien = 1;
  const qint64 dni = dniOdEpoki(c.r, c.m, c.d);
  const auto jest = [&](const char* s) { return sqlite3_stricmp(interwal, s) == 0; };
  int wynik;
  if (jest("yyyy")) {
    wynik = c.r;
  } else if (jest("q")) {
    wynik = (c.m - 1) / 3 + 1;
  } else if (jest("m")) {
    wynik = c.m;
  } else if (jest("d")) {
    wynik = c.d;
  } else if (jest("y")) {
    wynik = int(dni - dniOdEpoki(c.r, 1, 1)) + 1;
  } else if (jest("w")) {
    wynik = miejsceWTygodniu(dni, pierwszyDzien) + 1;
  } else if (jest("ww")) {
    wynik = tydzienRoku(dni, c.r, pierwszyDzien, pierwszyTydzien);
  } else if (jest("h")) {
    wynik = c.g;
  } else if (jest("n")) {
    wynik = c.min;
  } else if (jest("s")) {
    wynik = c.s;
  } else {
    return sqlite3_result_error(ctx, "DATEPART: unknown interval", -1);
  }
  sqlite3_result_int(ctx, wynik);
}

void fnTeraz(sqlite3_context* ctx, int, sqlite3_value**) {
  const QByteArray t = Teraz().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")).toLatin1();
  sqlite3_result_text(ctx, t.constData(), int(t.size()), SQLITE_TRANSIENT);
}

void fnDzis(sqlite3_context* ctx, int, sqlite3_value**) {
  const QByteArray t = Dzis().toString(QStringLiteral("yyyy-MM-dd")).toLatin1();
  sqlite3_result_text(ctx, t.constData(), int(t.size()), SQLITE_TRANSIENT);
}

// ---- text, counted in characters ------------------------------------------------------------

// Byte offset of the character number ile (0-based) in UTF-8 text; n when the text is shorter.
int bajtZnaku(const unsigned char* t, int n, qint64 ile) {
  int i = 0;
  while (i < n && ile > 0) {
    ++i;
    while (i < n && (t[i] & 0xC0) == 0x80) ++i;
    --ile;
  }
  return i;
}

int liczZnaki(const unsigned char* t, int n) {
  int ile = 0;
  for (int i = 0; i < n; ++i) ile += (t[i] & 0xC0) != 0x80;
  return ile;
}

void fnLeft(sqlite3_context* ctx, int, sqlite3_value** argv) {
  if (sqlite3_value_type(argv[0]) == SQLITE_NULL || sqlite3_value_type(argv[1]) == SQLITE_NULL)
    return sqlite3_result_null(ctx);
  const qint64 ile = sqlite3_value_int64(argv[1]);
  if (ile < 0) return sqlite3_result_error(ctx, "LEFT: negative length", -1);
  const auto* t = sqlite3_value_text(argv[0]);
  const int n = sqlite3_value_bytes(argv[0]);
  sqlite3_result_text(ctx, reinterpret_cast<const char*>(t), bajtZnaku(t, n, ile),
                      SQLITE_TRANSIENT);
}

// MID(text, start [, length]), start counted from 1.
void fnMid(sqlite3_context* ctx, int argc, sqlite3_value** argv) {
  for (int i = 0; i < argc; ++i)
    if (sqlite3_value_type(argv[i]) == SQLITE_NULL) return sqlite3_result_null(ctx);
  const qint64 start = sqlite3_value_int64(argv[1]);
  const qint64 ile = argc > 2 ? sqlite3_value_int64(argv[2]) : -1;
  if (start < 1 || (argc > 2 && ile < 0))
    return sqlite3_result_error(ctx, "MID: invalid start or length", -1);
  const auto* t = sqlite3_value_text(argv[0]);
  const int n = sqlite3_value_bytes(argv[0]);
  const int od = bajtZnaku(t, n, start - 1);
  const int do_ = argc > 2 ? od + bajtZnaku(t + od, n - od, ile) : n;
  sqlite3_result_text(ctx, reinterpret_cast<const char*>(t) + od, do_ - od, SQLITE_TRANSIENT);
}

void fnLen(sqlite3_context* ctx, int, sqlite3_value** argv) {
  if (sqlite3_value_type(argv[0]) == SQLITE_NULL) return sqlite3_result_null(ctx);
  const auto* t = sqlite3_value_text(argv[0]);
  sqlite3_result_int(ctx, liczZnaki(t, sqlite3_value_bytes(argv[0])));
}

// ---- LIKE, blind to case in every alphabet --------------------------------------------------

// Next code point of UTF-8 text; a broken byte is taken as it is.
char32_t nastepny(const unsigned char* t, int n, int& i) {
  const unsigned char b = t[i++];
  if (b < 0x80) return b;
  int dalej = b >= 0xF0 ? 3 : b >= 0xE0 ? 2 : b >= 0xC0 ? 1 : 0;
  char32_t c = b & (0x3F >> dalej);
  while (dalej-- > 0 && i < n && (t[i] & 0xC0) == 0x80) c = (c << 6) | (t[i++] & 0x3F);
  return c;
}

char32_t zloz(char32_t c) {
  if (c < 0x80) return c >= 'A' && c <= 'Z' ? c + 32 : c;
  if (c > 0x10FFFF) return c;  // a broken sequence: no character to fold
  return QChar::toCaseFolded(c);
}

constexpr qint32 kJedenZnak = -1;     // _
constexpr qint32 kDowolneZnaki = -2;  // %

struct Wzorzec {
  std::vector<qint32> kody;
  char32_t ucieczka = 0;
};

void kompiluj(const unsigned char* t, int n, char32_t ucieczka, Wzorzec& w) {
  w.kody.clear();
  w.ucieczka = ucieczka;
  int i = 0;
  while (i < n) {
    const char32_t c = nastepny(t, n, i);
    if (ucieczka && c == ucieczka && i < n) {
      w.kody.push_back(qint32(zloz(nastepny(t, n, i))));
    } else if (c == '%') {
      if (w.kody.empty() || w.kody.back() != kDowolneZnaki) w.kody.push_back(kDowolneZnaki);
    } else if (c == '_') {
      w.kody.push_back(kJedenZnak);
    } else {
      w.kody.push_back(qint32(zloz(c)));
    }
  }
}

// Matches the folded text against the pattern, reading the UTF-8 text as it goes; a % that
// failed is retried one character further on.
bool pasuje(const std::vector<qint32>& p, const unsigned char* s, int n) {
  size_t ip = 0, gwiazdaP = SIZE_MAX;
  int is = 0, gwiazdaS = 0;
  while (is < n) {
    int dalej = is;
    const qint32 c = qint32(zloz(nastepny(s, n, dalej)));
    if (ip < p.size() && (p[ip] == kJedenZnak || p[ip] == c)) {
      ++ip;
      is = dalej;
    } else if (ip < p.size() && p[ip] == kDowolneZnaki) {
      gwiazdaP = ip++;
      gwiazdaS = is;
    } else if (gwiazdaP != SIZE_MAX) {
      ip = gwiazdaP + 1;
      nastepny(s, n, gwiazdaS);
      is = gwiazdaS;
    } else {
      return false;
    }
  }
  while (ip < p.size() && p[ip] == kDowolneZnaki) ++ip;
  return ip == p.size();
}

// like(pattern, text [, escape]): what "text LIKE pattern [ESCAPE e]" calls.
void fnLike(sqlite3_context* ctx, int argc, sqlite3_value** argv) {
  if (sqlite3_value_type(argv[0]) == SQLITE_NULL || sqlite3_value_type(argv[1]) == SQLITE_NULL)
    return sqlite3_result_null(ctx);
  char32_t ucieczka = 0;
  if (argc > 2) {
    const auto* e = sqlite3_value_text(argv[2]);
    const int n = sqlite3_value_bytes(argv[2]);
    int i = 0;
    if (e && n > 0) ucieczka = nastepny(e, n, i);
    if (!e || n == 0 || i != n)
      return sqlite3_result_error(ctx, "ESCAPE expression must be a single character", -1);
  }
  // The compiled pattern is kept with the statement while the pattern stays the same.
  auto* w = static_cast<Wzorzec*>(sqlite3_get_auxdata(ctx, 0));
  std::unique_ptr<Wzorzec> nowy;
  if (!w || w->ucieczka != ucieczka) {
    nowy = std::make_unique<Wzorzec>();
    const auto* p = sqlite3_value_text(argv[0]);
    kompiluj(p, sqlite3_value_bytes(argv[0]), ucieczka, *nowy);
    w = nowy.get();
  }
  const auto* t = sqlite3_value_text(argv[1]);
  sqlite3_result_int(ctx, pasuje(w->kody, t, sqlite3_value_bytes(argv[1])) ? 1 : 0);
  if (nowy)
    sqlite3_set_auxdata(ctx, 0, nowy.release(), [](void* p) { delete static_cast<Wzorzec*>(p); });
}

// ---- the exact sum of money -----------------------------------------------------------------

// Cents are summed in 128 bits: 100 000 rows of a trillion already pass 64 bits. A single
// amount may reach 2^126 cents, and a sum that would leave 128 bits is an error, as is an
// amount that is no finite number: never a wrong sum.
using Grosze = __int128;

const long double kNajwiecejGroszy = std::ldexp(1.0L, 126);

// Whole cents of an amount, half away from zero on its decimal form: 1.005 (held as
// 1.00499999...) gives 101, as the rounding of the amounts themselves does. This is every
// amount a user types; false for the rest.
inline bool groszeMale(double v, qint64& g) {
  if (!(std::fabs(v) < 9e13)) return false;
  const double a = std::fabs(v) * 100.0;
  const double calosc = std::floor(a);
  const qint64 c = qint64(calosc) + (a - calosc >= 0.5 - 5e-5 ? 1 : 0);
  g = v < 0 ? -c : c;
  return true;
}

// The same for any amount. Past 2^53 cents every double is a whole number of cents, and 64
// bits of mantissa hold it times 100 exactly. False when it is out of range or no number.
bool naGrosze(double v, Grosze& g) {
  qint64 maly;
  if (groszeMale(v, maly)) {
    g = maly;
    return true;
  }
  if (!std::isfinite(v)) return false;
  const long double a = std::fabs(static_cast<long double>(v)) * 100.0L;
  if (a >= kNajwiecejGroszy) return false;
  const long double calosc = std::floor(a);
  const Grosze c = Grosze(calosc) + (a - calosc >= 0.5L - 5e-5L ? 1 : 0);
  g = v < 0 ? -c : c;
  return true;
}

enum class Odczyt { Liczba, NieLiczba, PozaZakresem };

// The cents of a plain decimal text ("-12,505", " 7 ") read digit by digit, so that no digit
// is lost to a double; anything else is no plain decimal.
Odczyt groszeZTekstu(const unsigned char* t, int n, Grosze& g) {
  const auto cyfra = [](unsigned char c) { return c >= '0' && c <= '9'; };
  int i = 0;
  while (i < n && t[i] == ' ') ++i;
  bool minus = false;
  if (i < n && (t[i] == '+' || t[i] == '-')) minus = t[i++] == '-';
  Grosze calosc = 0;
  int cyfry = 0;
  bool zaDuzo = false;
  for (; i < n && cyfra(t[i]); ++i, ++cyfry) {
    if (calosc >= Grosze(1000000000000000000LL) * Grosze(100000000000000000LL)) zaDuzo = true;
    if (!zaDuzo) calosc = calosc * 10 + (t[i] - '0');
  }
  int ulamek[3] = {0, 0, 0};
  if (i < n && (t[i] == '.' || t[i] == ',')) {
    for (int j = ++i; i < n && cyfra(t[i]); ++i, ++cyfry)
      if (i - j < 3) ulamek[i - j] = t[i] - '0';
  }
  while (i < n && t[i] == ' ') ++i;
  if (i != n || cyfry == 0) return Odczyt::NieLiczba;
  if (zaDuzo) return Odczyt::PozaZakresem;
  const Grosze c = calosc * 100 + ulamek[0] * 10 + ulamek[1] + (ulamek[2] >= 5 ? 1 : 0);
  if (static_cast<long double>(c) >= kNajwiecejGroszy) return Odczyt::PozaZakresem;
  g = minus ? -c : c;
  return Odczyt::Liczba;
}

double liczbaZTekstu(const unsigned char* t, int n) {
  char bufor[64];
  int j = 0;
  for (int i = 0; i < n && j < 63; ++i) {
    const char c = char(t[i]);
    if (c == ' ' && j == 0) continue;
    bufor[j++] = c == ',' ? '.' : c;
  }
  double x = 0;
  const char* p = bufor;
  if (j > 0 && *p == '+') ++p;
  std::from_chars(p, bufor + j, x);
  return x;
}

// Rows add up in 64 bits, and what would overflow them moves to 128 bits. The state lives in
// memory SQLite gives with 8-byte alignment: the 128-bit part is copied in and out rather than
// read in place.
struct StanSumy {
  qint64 grosze;
  unsigned char reszta[sizeof(Grosze)];
  qint64 wiersze;
  bool blad;
};

bool dodajDoReszty(StanSumy& s, Grosze g) {
  Grosze r;
  std::memcpy(&r, s.reszta, sizeof r);
  if (__builtin_add_overflow(r, g, &r)) return false;
  std::memcpy(s.reszta, &r, sizeof r);
  return true;
}

void sumaKrok(sqlite3_context* ctx, int, sqlite3_value** argv) {
  auto* s = static_cast<StanSumy*>(sqlite3_aggregate_context(ctx, sizeof(StanSumy)));
  if (!s || s->blad) return;
  Grosze g = 0;
  bool ok = true;
  switch (sqlite3_value_type(argv[0])) {
    case SQLITE_NULL:
      return;
    case SQLITE_INTEGER:
      g = Grosze(sqlite3_value_int64(argv[0])) * 100;
      break;
    case SQLITE_FLOAT: {
      // The common case stays in 64 bits.
      const double v = sqlite3_value_double(argv[0]);
      qint64 maly, nowa;
      if (groszeMale(v, maly) && !__builtin_add_overflow(s->grosze, maly, &nowa)) {
        s->grosze = nowa;
        ++s->wiersze;
        return;
      }
      ok = naGrosze(v, g);
      break;
    }
    default: {
      const auto* t = sqlite3_value_text(argv[0]);
      const int n = sqlite3_value_bytes(argv[0]);
      switch (groszeZTekstu(t, n, g)) {
        case Odczyt::Liczba:
          break;
        case Odczyt::PozaZakresem:
          ok = false;
          break;
        case Odczyt::NieLiczba:
          ok = naGrosze(liczbaZTekstu(t, n), g);
          break;
      }
    }
  }
  const qint64 maly = qint64(g);
  qint64 nowa;
  if (ok && maly == g && !__builtin_add_overflow(s->grosze, maly, &nowa))
    s->grosze = nowa;
  else if (ok)
    ok = dodajDoReszty(*s, g);
  if (!ok) {
    s->blad = true;
    return;
  }
  ++s->wiersze;
}

// NULL without rows, as SUM gives; the double nearest the exact sum.
void sumaKoniec(sqlite3_context* ctx) {
  auto* s = static_cast<StanSumy*>(sqlite3_aggregate_context(ctx, 0));
  if (s && s->blad) return sqlite3_result_error(ctx, "SUM: amount out of range", -1);
  if (!s || s->wiersze == 0) return sqlite3_result_null(ctx);
  if (!dodajDoReszty(*s, s->grosze))
    return sqlite3_result_error(ctx, "SUM: amount out of range", -1);
  Grosze g;
  std::memcpy(&g, s->reszta, sizeof g);
  constexpr Grosze kDokladnie = Grosze(1) << 53;
  if (g > -kDokladnie && g < kDokladnie)
    return sqlite3_result_double(ctx, double(qint64(g)) / 100.0);
  // Written out in decimal and read back: one rounding, to the nearest double.
  char cyfry[48];
  int n = 0;
  for (Grosze r = g < 0 ? -g : g; r > 0 || n < 3; r /= 10) {
    cyfry[n++] = char('0' + int(r % 10));
    if (n == 2) cyfry[n++] = '.';
  }
  if (g < 0) cyfry[n++] = '-';
  std::reverse(cyfry, cyfry + n);
  double x = 0;
  std::from_chars(cyfry, cyfry + n, x);
  sqlite3_result_double(ctx, x);
}

// ---- small Jet helpers ----------------------------------------------------------------------

void fnIif(sqlite3_context* ctx, int, sqlite3_value** argv) {
  const bool prawda =
      sqlite3_value_type(argv[0]) != SQLITE_NULL && sqlite3_value_double(argv[0]) != 0.0;
  sqlite3_result_value(ctx, argv[prawda ? 1 : 2]);
}

void fnNz(sqlite3_context* ctx, int argc, sqlite3_value** argv) {
  if (sqlite3_value_type(argv[0]) != SQLITE_NULL) return sqlite3_result_value(ctx, argv[0]);
  if (argc > 1) return sqlite3_result_value(ctx, argv[1]);
  sqlite3_result_text(ctx, "", 0, SQLITE_STATIC);
}

void fnInt(sqlite3_context* ctx, int, sqlite3_value** argv) {
  switch (sqlite3_value_type(argv[0])) {
    case SQLITE_NULL:
      return sqlite3_result_null(ctx);
    case SQLITE_INTEGER:
      return sqlite3_result_value(ctx, argv[0]);
    default: {
      const double x = std::floor(sqlite3_value_double(argv[0]));
      if (std::fabs(x) < 9e18) return sqlite3_result_int64(ctx, qint64(x));
      return sqlite3_result_double(ctx, x);
    }
  }
}

int porownajPolsko(void*, int na, const void* a, int nb, const void* b) {
  return PorownajPolskoUtf8(static_cast<const unsigned char*>(a), na,
                            static_cast<const unsigned char*>(b), nb);
}

using Funkcja = void (*)(sqlite3_context*, int, sqlite3_value**);

void zarejestruj(sqlite3* db, const char* nazwa, int argumenty, Funkcja f, bool stala = true,
                 void* dane = nullptr) {
  const int flagi = SQLITE_UTF8 | (stala ? SQLITE_DETERMINISTIC : 0);
  sqlite3_create_function_v2(db, nazwa, argumenty, flagi, dane, f, nullptr, nullptr, nullptr);
}

}  // namespace

void ZarejestrujFunkcjeJet(sqlite3* db) {
  if (!db) return;
  zarejestruj(db, "YEAR", 1, fnCzescDaty, true, reinterpret_cast<void*>(quintptr(kRok)));
  zarejestruj(db, "MONTH", 1, fnCzescDaty, true, reinterpret_cast<void*>(quintptr(kMiesiac)));
  zarejestruj(db, "DAY", 1, fnCzescDaty, true, reinterpret_cast<void*>(quintptr(kDzien)));
  for (int n = 2; n <= 4; ++n) zarejestruj(db, "DATEPART", n, fnDatePart);
  zarejestruj(db, "JETNOW", 0, fnTeraz, false);
  zarejestruj(db, "JETDATE", 0, fnDzis, false);
  zarejestruj(db, "JETLEFT", 2, fnLeft);
  zarejestruj(db, "MID", 2, fnMid);
  zarejestruj(db, "MID", 3, fnMid);
  zarejestruj(db, "LEN", 1, fnLen);
  zarejestruj(db, "LIKE", 2, fnLike);
  zarejestruj(db, "LIKE", 3, fnLike);
  zarejestruj(db, "IIF", 3, fnIif);
  zarejestruj(db, "NZ", 1, fnNz);
  zarejestruj(db, "NZ", 2, fnNz);
  zarejestruj(db, "INT", 1, fnInt);
  sqlite3_create_collation_v2(db, NazwaPorzadku, SQLITE_UTF8, nullptr, porownajPolsko, nullptr);
  sqlite3_create_function_v2(db, "SUMA", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, nullptr,
                             sumaKrok, sumaKoniec, nullptr);
}
