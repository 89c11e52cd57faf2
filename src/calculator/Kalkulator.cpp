#include "calculator/Kalkulator.h"

#include <algorithm>

#include "store/kwota.h"
#include "store/session.h"
#include "store/tekst.h"

namespace {

bool cyfra(QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }

// Results beyond a trillion are refused: the display keeps what it shows.
constexpr qint64 kNajwiecejGroszy = 100'000'000'000'000LL;

// licznik / mianownik rounded to the nearest whole number, a half going to the even one.
qint64 DzielZZaokragleniem(__int128 licznik, __int128 mianownik) {
  if (mianownik < 0) {
    licznik = -licznik;
    mianownik = -mianownik;
  }
  __int128 iloraz = licznik / mianownik;
  __int128 reszta = licznik % mianownik;
  if (reszta < 0) reszta = -reszta;
  if (2 * reszta > mianownik || (2 * reszta == mianownik && iloraz % 2 != 0))
    iloraz += licznik < 0 ? -1 : 1;
  if (iloraz > kNajwiecejGroszy) return kNajwiecejGroszy;
  if (iloraz < -kNajwiecejGroszy) return -kNajwiecejGroszy;
  return qint64(iloraz);
}

qint64 Grosze(const QString& tekst) {
  QString kopia = tekst;
  return WGroszach(KwotaZTekstu(kopia));
}

// Puts the field back into shape when Backspace or a reset left it out of shape.
void DoKsztaltu(PoleTekstowe& pole) {
  if (kalkWKsztalcie(pole.tekst)) return;
  const int koniec = pole.selStart + pole.selLength;
  pole.tekst = kalkFormatuj(pole.tekst);
  const int n = int(pole.tekst.size());
  pole.selStart = std::clamp(pole.selStart, 0, n);
  pole.selLength = std::clamp(koniec, pole.selStart, n) - pole.selStart;
}

// A selection is cleared as a typed digit replaces it: its integer digits go, its decimals
// become 0, and the caret stands where the selection began.
void UsunZaznaczenie(PoleTekstowe& pole) {
  if (pole.selLength <= 0) {
    pole.selLength = 0;
    return;
  }
  const int a = pole.selStart;
  const int b = pole.selStart + pole.selLength;
  QString& t = pole.tekst;
  const int n = int(t.size());
  for (int i = std::max(a, n - 2); i < std::min(b, n); ++i) t[i] = QLatin1Char('0');
  const int doZnaku = std::min(b, n - 3);
  if (a < doZnaku) {
    t.remove(a, doZnaku - a);
    const int poczatek = t.startsWith(QLatin1Char('-')) ? 1 : 0;
    if (int(t.size()) - 3 == poczatek) t.insert(poczatek, QLatin1Char('0'));
  }
  pole.selStart = std::min(a, int(t.size()));
  pole.selLength = 0;
}

}  // namespace

bool kalkWKsztalcie(const QString& tekst) {
  const int n = int(tekst.size());
  const int poczatek = tekst.startsWith(QLatin1Char('-')) ? 1 : 0;
  const int znak = n - 3;
  if (znak <= poczatek || tekst.mid(znak, 1) != sesja.pubSeparator) return false;
  for (int i = poczatek; i < n; ++i)
    if (i != znak && !cyfra(tekst[i])) return false;
  return true;
}

QString kalkFormatuj(const QString& tekst) {
  QString kopia = tekst;
  return FormatKwotyEdycja(KwotaZTekstu(kopia));
}

void kalkFormatuj(PoleTekstowe& pole) {
  pole.tekst = kalkFormatuj(pole.tekst);
  pole.selStart = std::clamp(pole.selStart, 0, int(pole.tekst.size()));
  pole.selLength = 0;
}

void kalkDoGroszy(PoleTekstowe& pole) {
  DoKsztaltu(pole);
  pole.selStart = int(pole.tekst.size()) - 2;
  pole.selLength = 2;
}

void kalkLiczba(QChar c, PoleTekstowe& pole) {
  DoKsztaltu(pole);
  UsunZaznaczenie(pole);
  const QString t = pole.tekst;
  const int L = int(t.size());
  const int s = pole.selStart;
  QString lewa = t.left(L - 3);
  const QString prawa = t.right(2);
  if (s < L - 2) {
    // The integer part: the digit is inserted, a lone "0" gives way to it.
    if (lewa == QLatin1String("0")) lewa.clear();
    if (L >= 10) return;
    const int p = std::min(s, int(lewa.size()));
    pole.tekst = lewa.left(p) + c + lewa.mid(p) + sesja.pubSeparator + prawa;
    pole.selStart = p + 1;
  } else if (s == L - 2) {
    pole.tekst = lewa + sesja.pubSeparator + c + prawa.right(1);
    pole.selStart = L - 1;
  } else {
    pole.tekst = lewa + sesja.pubSeparator + prawa.left(1) + c;
    pole.selStart = L;
  }
}

bool kalkKeyPress(QChar klawisz, PoleTekstowe& pole) {
  const char16_t k = klawisz.unicode();
  if (k == u',' || k == u'.') {
    kalkDoGroszy(pole);
    return false;
  }
  if (cyfra(klawisz)) {
    kalkLiczba(klawisz, pole);
    return false;
  }
  // Backspace edits the field; Enter, Tab and Esc belong to the window; Delete is not a typed
  // character either and deletes as in any field.
  if (k == u'\b' || k == u'\r' || k == u'\n' || k == u'\t' || k == 0x1b || k == 0x7f) return true;
  if (k == u'c') pole = {QStringLiteral("0"), 1, 0};
  return false;
}

Kalkulator::Kalkulator(const QString& wartosc) {
  wyswietlacz.tekst = wartosc;
  wyswietlacz.selStart = 0;
  wyswietlacz.selLength = int(wartosc.size());
}

void Kalkulator::ZacznijLiczbe() {
  if (!nowaLiczba) return;
  pamiec = wyswietlacz.tekst;
  wyswietlacz = {QStringLiteral("0"), 1, 0};
  nowaLiczba = false;
  czekaDzialanie = dzialanie != Brak;
}

void Kalkulator::Liczba(int c) {
  ZacznijLiczbe();
  kalkLiczba(QChar(u'0' + char16_t(c)), wyswietlacz);
}

void Kalkulator::Koma() {
  ZacznijLiczbe();
  kalkDoGroszy(wyswietlacz);
}

void Kalkulator::WykonajDzialanie() {
  const __int128 a = Grosze(pamiec);
  const __int128 b = Grosze(wyswietlacz.tekst);
  bool policzone = true;
  qint64 wynik = 0;
  switch (dzialanie) {
    case Dodaj:
      wynik = DzielZZaokragleniem(a + b, 1);
      break;
    case Odejmij:
      wynik = DzielZZaokragleniem(a - b, 1);
      break;
    case Mnoz:
      wynik = DzielZZaokragleniem(a * b, 100);
      break;
    case Dziel:
      // Dividing by 0 leaves the display as it is, with no message.
      policzone = b != 0;
      if (policzone) wynik = DzielZZaokragleniem(a * 100, b);
      break;
    default:
      policzone = false;
  }
  if (policzone && wynik > -kNajwiecejGroszy && wynik < kNajwiecejGroszy) {
    wyswietlacz.tekst = FormatKwotyEdycja(double(wynik) / 100.0);
    wyswietlacz.selStart = int(wyswietlacz.tekst.size());
    wyswietlacz.selLength = 0;
  }
  pamiec = QStringLiteral("0");
  dzialanie = Brak;
}

void Kalkulator::Dzialanie(int n) {
  if (czekaDzialanie) {
    WykonajDzialanie();
    czekaDzialanie = false;
  }
  dzialanie = n;
  nowaLiczba = true;
}

void Kalkulator::Oblicz() {
  // "=" always works out the pending operation with the memory, also before a second number
  // is typed: "200 - =" takes 200 from the memory's 0 and gives -200.00.
  WykonajDzialanie();
  czekaDzialanie = false;
  nowaLiczba = true;
}

void Kalkulator::Procent() {
  const qint64 wynik =
      DzielZZaokragleniem(__int128(Grosze(pamiec)) * Grosze(wyswietlacz.tekst), 10000);
  if (wynik <= -kNajwiecejGroszy || wynik >= kNajwiecejGroszy) return;
  wyswietlacz.tekst = FormatKwotyEdycja(double(wynik) / 100.0);
  wyswietlacz.selStart = int(wyswietlacz.tekst.size());
  wyswietlacz.selLength = 0;
}

void Kalkulator::C() {
  pamiec = QStringLiteral("0");
  wyswietlacz = {QStringLiteral("0"), 1, 0};
}

void Kalkulator::Usun() { wyswietlacz = {QStringLiteral("0"), 1, 0}; }

bool Kalkulator::Klawisz(QChar klawisz) {
  switch (klawisz.unicode()) {
    case u'\r':
    case u'\n':
    case u'=':
      Oblicz();
      return false;
    case u'%':
      Procent();
      return false;
    case u'+':
      Dzialanie(Dodaj);
      return false;
    case u'-':
      Dzialanie(Odejmij);
      return false;
    case u'*':
      Dzialanie(Mnoz);
      return false;
    case u'/':
      Dzialanie(Dziel);
      return false;
    case u',':
    case u'.':
      Koma();
      return false;
    case 0x7f:
      Usun();
      return false;
    default:
      break;
  }
  if (cyfra(klawisz)) ZacznijLiczbe();
  return kalkKeyPress(klawisz, wyswietlacz);
}
