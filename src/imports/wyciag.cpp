#include "imports/wyciag.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include "store/napis.h"

namespace {
const char16_t cp1250[128] = {
    0x20AC, 0xFFFD, 0x201A, 0xFFFD, 0x201E, 0x2026, 0x2020, 0x2021,
    0xFFFD, 0x2030, 0x0160, 0x2039, 0x015A, 0x0164, 0x017D, 0x0179,
    0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0xFFFD, 0x2122, 0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A,
    0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6, 0x00A7,
    0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B,
    0x00B0, 0x00B1, 0x02DB, 0x0142, 0x00B4, 0x00B5, 0x00B6, 0x00B7,
    0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C,
    0x0154, 0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7,
    0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD, 0x00CE, 0x010E,
    0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7,
    0x0158, 0x016E, 0x00DA, 0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF,
    0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7,
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F,
    0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4, 0x0151, 0x00F6, 0x00F7,
    0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9,
};

bool poprawneUtf8(const QByteArray& b) {
  const auto* p = reinterpret_cast<const unsigned char*>(b.constData());
  const qsizetype n = b.size();
  for (qsizetype i = 0; i < n;) {
    const unsigned char c = p[i];
    int dalsze;
    unsigned minimum;
    unsigned kod;
    if (c < 0x80) {
      ++i;
      continue;
    } else if ((c & 0xE0) == 0xC0) {
      dalsze = 1, minimum = 0x80, kod = c & 0x1F;
    } else if ((c & 0xF0) == 0xE0) {
      dalsze = 2, minimum = 0x800, kod = c & 0x0F;
    } else if ((c & 0xF8) == 0xF0) {
      dalsze = 3, minimum = 0x10000, kod = c & 0x07;
    } else {
      return false;
    }
    for (int k = 1; k <= dalsze; ++k) {
      if (i + k >= n || (p[i + k] & 0xC0) != 0x80) return false;
      kod = (kod << 6) | (p[i + k] & 0x3F);
    }
    if (kod < minimum || kod > 0x10FFFF || (kod >= 0xD800 && kod <= 0xDFFF)) return false;
    i += dalsze + 1;
  }
  return true;
}

// The first line at which the bytes stop being UTF-8.
int wierszBleduUtf8(const QByteArray& b) {
  int wiersz = 1;
  qsizetype poczatek = 0;
  for (qsizetype i = 0; i <= b.size(); ++i) {
    if (i == b.size() || b[i] == '\n') {
      if (!poprawneUtf8(b.mid(poczatek, i - poczatek))) return wiersz;
      ++wiersz;
      poczatek = i + 1;
    }
  }
  return 0;
}
}  // namespace

QString TekstBledu(const BladWyciagu& b) {
  QString t;
  switch (b.rodzaj) {
    case BladImportu::Pusty: t = Napis(QStringLiteral("import1")); break;
    case BladImportu::ZaDuzy: t = Napis(QStringLiteral("import2")); break;
    case BladImportu::Otwarcie: t = Napis(QStringLiteral("import3")); break;
    case BladImportu::Kwota: t = Napis(QStringLiteral("import4")); break;
    case BladImportu::Data: t = Napis(QStringLiteral("import5")); break;
    case BladImportu::ZaMaloKolumn: t = Napis(QStringLiteral("import6")); break;
    case BladImportu::BrakKolumn: t = Napis(QStringLiteral("import7")); break;
    case BladImportu::Znacznik: t = Napis(QStringLiteral("import8")); break;
    case BladImportu::Urwany: t = Napis(QStringLiteral("import9")); break;
    case BladImportu::BrakOperacji: t = Napis(QStringLiteral("import10")); break;
    case BladImportu::Kodowanie: t = Napis(QStringLiteral("import11")); break;
    case BladImportu::Ofx: t = Napis(QStringLiteral("import12")); break;
    case BladImportu::LiniaQif: t = Napis(QStringLiteral("import13")); break;
  }
  t.replace(QStringLiteral("%2"), b.fragment.left(60));
  if (b.wiersz > 0)
    t = Napis(QStringLiteral("import14")).arg(b.wiersz) + QStringLiteral(" ") + t;
  return t;
}

QString ZCp1250(const QByteArray& bajty) {
  QString t;
  t.reserve(bajty.size());
  for (const char c : bajty) {
    const auto u = static_cast<unsigned char>(c);
    t.append(u < 0x80 ? QChar(u) : QChar(cp1250[u - 0x80]));
  }
  return t;
}

QByteArray DoCp1250(const QString& tekst) {
  QByteArray b;
  b.reserve(tekst.size());
  for (const QChar c : tekst) {
    if (c.unicode() < 0x80) {
      b.append(char(c.unicode()));
      continue;
    }
    char znak = '?';
    for (int i = 0; i < 128; ++i)
      if (cp1250[i] == c.unicode()) znak = char(0x80 + i);
    b.append(znak);
  }
  return b;
}

QString Dekoduj(const QByteArray& bajty, Kodowanie kodowanie) {
  QByteArray b = bajty;
  if (b.startsWith("\xEF\xBB\xBF")) {
    b.remove(0, 3);
    if (kodowanie == Kodowanie::Auto) kodowanie = Kodowanie::Utf8;
  }
  if (kodowanie == Kodowanie::Auto) kodowanie = poprawneUtf8(b) ? Kodowanie::Utf8 : Kodowanie::Cp1250;
  return kodowanie == Kodowanie::Utf8 ? QString::fromUtf8(b) : ZCp1250(b);
}

std::optional<qint64> CzytajKwote(const QString& tekst) {
  QString t = tekst.trimmed();
  bool ujemna = false;
  if (t.startsWith(QLatin1Char('(')) && t.endsWith(QLatin1Char(')'))) {
    ujemna = true;
    t = t.mid(1, t.size() - 2).trimmed();
  }
  // The currency, before or after.
  static const QRegularExpression waluta(
      QStringLiteral(R"(^(?:PLN|zł|zl|EUR|USD|GBP|CHF)\s*|\s*(?:PLN|zł|zl|EUR|USD|GBP|CHF)$)"),
      QRegularExpression::CaseInsensitiveOption);
  t.remove(waluta);
  QString c;
  for (const QChar z : t)
    if (!z.isSpace() && z != QChar(0x00A0) && z != QChar(0x202F) && z != QLatin1Char('\''))
      c.append(z);
  if (c.startsWith(QLatin1Char('-')) || c.startsWith(QChar(0x2212))) {
    ujemna = !ujemna;
    c.remove(0, 1);
  } else if (c.startsWith(QLatin1Char('+'))) {
    c.remove(0, 1);
  } else if (c.endsWith(QLatin1Char('-'))) {
    ujemna = !ujemna;
    c.chop(1);
  }
  if (c.isEmpty()) return std::nullopt;
  const qsizetype przecinek = c.lastIndexOf(QLatin1Char(','));
  const qsizetype kropka = c.lastIndexOf(QLatin1Char('.'));
  qsizetype znak = -1;  // the decimal mark
  if (przecinek >= 0 && kropka >= 0) {
    znak = std::max(przecinek, kropka);
  } else if (przecinek >= 0) {
    znak = przecinek;
    if (c.count(QLatin1Char(',')) > 1) znak = -2;
  } else if (kropka >= 0) {
    // "1.234" with a lone point before three digits groups thousands; "12.50" is a decimal.
    znak = kropka;
    if (c.count(QLatin1Char('.')) > 1 || c.size() - kropka - 1 == 3) znak = -2;
  }
  QString calosc = znak >= 0 ? c.left(znak) : c;
  QString ulamek = znak >= 0 ? c.mid(znak + 1) : QString();
  if (znak >= 0) {
    // Separators of thousands: only the other mark, only between groups of three.
    const QChar grupa = c[znak] == QLatin1Char(',') ? QLatin1Char('.') : QLatin1Char(',');
    const QStringList grupy = calosc.split(grupa);
    for (int i = 1; i < grupy.size(); ++i)
      if (grupy[i].size() != 3) return std::nullopt;
    calosc = grupy.join(QString());
  } else if (znak == -2) {
    const QChar grupa = przecinek >= 0 ? QLatin1Char(',') : QLatin1Char('.');
    const QStringList grupy = calosc.split(grupa);
    for (int i = 1; i < grupy.size(); ++i)
      if (grupy[i].size() != 3 || grupy[0].isEmpty()) return std::nullopt;
    calosc = grupy.join(QString());
  }
  if (calosc.isEmpty()) calosc = QStringLiteral("0");
  if (ulamek.size() > 2 || calosc.size() > 12) return std::nullopt;
  for (const QChar z : calosc + ulamek)
    if (z < QLatin1Char('0') || z > QLatin1Char('9')) return std::nullopt;
  if (znak >= 0 && ulamek.isEmpty()) return std::nullopt;
  while (ulamek.size() < 2) ulamek.append(QLatin1Char('0'));
  const qint64 grosze = calosc.toLongLong() * 100 + ulamek.toLongLong();
  return ujemna ? -grosze : grosze;
}

QDate CzytajDate(const QString& tekst) {
  QString t = tekst.trimmed();
  const qsizetype spacja = t.indexOf(QLatin1Char(' '));
  if (spacja > 0) t = t.left(spacja);
  static const QRegularExpression iso(QStringLiteral(R"(^(\d{4})[-./](\d{1,2})[-./](\d{1,2})$)"));
  static const QRegularExpression pol(QStringLiteral(R"(^(\d{1,2})[-./](\d{1,2})[-./](\d{4})$)"));
  static const QRegularExpression zwarta(QStringLiteral(R"(^(\d{4})(\d{2})(\d{2})$)"));
  QRegularExpressionMatch m = iso.match(t);
  if (m.hasMatch()) return QDate(m.captured(1).toInt(), m.captured(2).toInt(), m.captured(3).toInt());
  m = pol.match(t);
  if (m.hasMatch()) return QDate(m.captured(3).toInt(), m.captured(2).toInt(), m.captured(1).toInt());
  m = zwarta.match(t);
  if (m.hasMatch()) return QDate(m.captured(1).toInt(), m.captured(2).toInt(), m.captured(3).toInt());
  return {};
}

QString CyfryRachunku(const QString& tekst) {
  QString c;
  for (const QChar z : tekst)
    if (z.isDigit()) c.append(z);
  return c;
}

QString RachunekGrupami(const QString& cyfry) {
  if (cyfry.size() != 26) return cyfry;
  QString t = cyfry.left(2);
  for (int i = 2; i < 26; i += 4) t += QLatin1Char(' ') + cyfry.mid(i, 4);
  return t;
}

FormatWyciagu RozpoznajFormat(const QByteArray& bajty) {
  const QByteArray poczatek = bajty.left(4096);
  const QByteArray duze = poczatek.toUpper();
  if (duze.contains("OFXHEADER") || duze.contains("<OFX>")) return FormatWyciagu::Ofx;
  const QByteArray pierwsza = poczatek.trimmed().left(9).toUpper();
  if (pierwsza.startsWith("!TYPE:") || pierwsza.startsWith("!ACCOUNT") ||
      pierwsza.startsWith("!OPTION"))
    return FormatWyciagu::Qif;
  static const QRegularExpression tag(QStringLiteral(R"((^|\n)\s*:(20|25|60F|61):)"));
  if (tag.match(QString::fromLatin1(poczatek)).hasMatch()) return FormatWyciagu::Mt940;
  return FormatWyciagu::Csv;
}

std::optional<Wyciag> CzytajWyciag(const QString& plik, const OpcjeWyciagu& opcje,
                                   BladWyciagu* blad, FormatWyciagu* rozpoznany) {
  BladWyciagu b;
  auto porazka = [&](BladImportu r, int wiersz = 0, const QString& f = {}) {
    b = {r, wiersz, f};
    if (blad) *blad = b;
    return std::optional<Wyciag>();
  };
  const QFileInfo info(plik);
  if (info.exists() && info.size() > NajwiekszyWyciag)
    return porazka(BladImportu::ZaDuzy, 0, QString::number(info.size() / (1024 * 1024)));
  QFile f(plik);
  if (!f.open(QIODevice::ReadOnly)) return porazka(BladImportu::Otwarcie, 0, f.errorString());
  const QByteArray bajty = f.read(NajwiekszyWyciag + 1);
  if (bajty.size() > NajwiekszyWyciag)
    return porazka(BladImportu::ZaDuzy, 0, QString::number(bajty.size() / (1024 * 1024)));
  if (bajty.trimmed().isEmpty()) return porazka(BladImportu::Pusty);
  const FormatWyciagu format =
      opcje.format == FormatWyciagu::Auto ? RozpoznajFormat(bajty) : opcje.format;
  if (rozpoznany) *rozpoznany = format;
  if (format == FormatWyciagu::Ofx) return CzytajOfx(plik, blad);
  if (opcje.kodowanie == Kodowanie::Utf8) {
    const QByteArray bezBom = bajty.startsWith("\xEF\xBB\xBF") ? bajty.mid(3) : bajty;
    if (!poprawneUtf8(bezBom)) return porazka(BladImportu::Kodowanie, wierszBleduUtf8(bezBom));
  }
  const QString tekst = Dekoduj(bajty, opcje.kodowanie);
  std::optional<Wyciag> w;
  switch (format) {
    case FormatWyciagu::Mt940: w = CzytajMt940(tekst, &b); break;
    case FormatWyciagu::Qif: w = CzytajQif(tekst, &b); break;
    default: w = CzytajCsv(tekst, opcje.mapowanie, &b); break;
  }
  if (!w && blad) *blad = b;
  if (w && w->pozycje.empty()) return porazka(BladImportu::BrakOperacji);
  return w;
}
