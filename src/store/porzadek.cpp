#include "store/porzadek.h"

#include <QChar>
#include <QHash>
#include <QString>
#include <array>

const char* const NazwaPorzadku = "PL";

namespace {

// Each character gets one weight, and texts compare weight by weight; equal weights mean the
// same letter whatever its case. Signs and digits weigh their code point, below every letter.
// A Latin letter weighs its base letter (a to z) and its variant: 0 the bare letter, 1 and 2
// the Polish letters that follow it, 0x100 + code point any other accented form. Letters of
// other alphabets come after z, by code point.
constexpr quint64 kLitera = quint64(1) << 40;
constexpr quint64 kInnaLitera = quint64(2) << 40;

constexpr quint64 litera(char podstawa, quint32 odmiana) {
  return kLitera | (quint64(podstawa - 'a') << 24) | odmiana;
}

char32_t zloz(char32_t c) {
  if (c < 0x80) return c >= 'A' && c <= 'Z' ? c + 32 : c;
  if (c > 0x10FFFF) return c;
  return QChar::toCaseFolded(c);
}

const std::array<quint64, 128>& wagiAscii() {
  static const std::array<quint64, 128> w = [] {
    std::array<quint64, 128> t{};
    for (int c = 0; c < 128; ++c) {
      const char32_t z = zloz(char32_t(c));
      t[size_t(c)] = z >= 'a' && z <= 'z' ? litera(char(z), 0) : z;
    }
    return t;
  }();
  return w;
}

// Weight of a character past ASCII, already folded.
quint64 wagaSzeroka(char32_t c) {
  switch (c) {
    case 0x105:
      return litera('a', 1);  // ą
    case 0x107:
      return litera('c', 1);  // ć
    case 0x119:
      return litera('e', 1);  // ę
    case 0x142:
      return litera('l', 1);  // ł
    case 0x144:
      return litera('n', 1);  // ń
    case 0xF3:
      return litera('o', 1);  // ó
    case 0x15B:
      return litera('s', 1);  // ś
    case 0x17A:
      return litera('z', 1);  // ź
    case 0x17C:
      return litera('z', 2);  // ż
    default:
      break;
  }
  if (c > 0x10FFFF || !QChar::isLetter(c)) return c;
  // é, ü, ř: the letter they are made of, down to its base.
  char32_t baza = c;
  while (QChar::decompositionTag(baza) == QChar::Canonical) {
    const QString d = QChar::decomposition(baza);
    if (d.isEmpty()) break;
    baza = d.at(0).isHighSurrogate() && d.size() > 1 ? QChar::surrogateToUcs4(d.at(0), d.at(1))
                                                     : char32_t(d.at(0).unicode());
  }
  baza = zloz(baza);
  if (baza != c && baza >= 'a' && baza <= 'z') return litera(char(baza), 0x100 + quint32(c));
  return kInnaLitera | c;
}

// The Latin blocks hold nearly every letter a name has; their weights are worked out once.
constexpr char32_t kKoniecTablicy = 0x300;

quint64 waga(char32_t c) {
  c = zloz(c);
  if (c < 0x80) return wagiAscii()[c];
  if (c < kKoniecTablicy) {
    static const std::array<quint64, kKoniecTablicy> t = [] {
      std::array<quint64, kKoniecTablicy> w{};
      for (char32_t z = 0x80; z < kKoniecTablicy; ++z) w[z] = wagaSzeroka(zloz(z));
      return w;
    }();
    return t[c];
  }
  return wagaSzeroka(c);
}

// Next code point of UTF-8 text; a broken byte is taken as it is.
char32_t nastepny(const unsigned char* t, int n, int& i) {
  const unsigned char b = t[i++];
  if (b < 0x80) return b;
  int dalej = b >= 0xF0 ? 3 : b >= 0xE0 ? 2 : b >= 0xC0 ? 1 : 0;
  char32_t c = b & (0x3F >> dalej);
  while (dalej-- > 0 && i < n && (t[i] & 0xC0) == 0x80) c = (c << 6) | (t[i++] & 0x3F);
  return c;
}

char32_t nastepny(QStringView t, qsizetype& i) {
  const QChar c = t[i++];
  if (c.isHighSurrogate() && i < t.size() && t[i].isLowSurrogate())
    return QChar::surrogateToUcs4(c, t[i++]);
  return c.unicode();
}

}  // namespace

int PorownajPolskoUtf8(const unsigned char* a, int na, const unsigned char* b, int nb) {
  const auto& ascii = wagiAscii();
  int i = 0, j = 0;
  while (i < na && j < nb) {
    quint64 wa, wb;
    if (a[i] < 0x80 && b[j] < 0x80) {
      if (a[i] == b[j]) {
        ++i, ++j;
        continue;
      }
      wa = ascii[a[i++]];
      wb = ascii[b[j++]];
    } else {
      wa = waga(nastepny(a, na, i));
      wb = waga(nastepny(b, nb, j));
    }
    if (wa != wb) return wa < wb ? -1 : 1;
  }
  return int(i < na) - int(j < nb);
}

int PorownajPolsko(QStringView a, QStringView b) {
  qsizetype i = 0, j = 0;
  while (i < a.size() && j < b.size()) {
    const quint64 wa = waga(nastepny(a, i)), wb = waga(nastepny(b, j));
    if (wa != wb) return wa < wb ? -1 : 1;
  }
  return int(i < a.size()) - int(j < b.size());
}

QVarLengthArray<char32_t, 4> WariantyWielkosci(char32_t c) {
  // Folded form -> the other characters that fold to it. Case pairs all lie below 0x20000.
  static const QHash<char32_t, QVarLengthArray<char32_t, 3>> odwrotne = [] {
    QHash<char32_t, QVarLengthArray<char32_t, 3>> m;
    for (char32_t v = 0; v < 0x20000; ++v) {
      if (v >= 0xD800 && v < 0xE000) continue;
      const char32_t z = zloz(v);
      if (z != v) m[z].append(v);
    }
    return m;
  }();
  const char32_t z = zloz(c);
  QVarLengthArray<char32_t, 4> w{z};
  const auto it = odwrotne.constFind(z);
  if (it != odwrotne.constEnd()) w.append(it->constData(), it->size());
  return w;
}
