#include "reports/zapis.h"

#include <QBuffer>
#include <QFileInfo>
#include <QHash>
#include <QStringEncoder>

#include "store/dzis.h"
#include "store/napis.h"
#include "store/plik.h"
#include "store/session.h"
#include "store/tekst.h"

namespace {

const char* const kRozszerzenia[] = {"rtf", "txt", "pdf", "csv"};

// ---- RTF ---------------------------------------------------------------------------------------

// The Windows-1250 byte of a character, for readers that do not know \u; 0 when it has none.
unsigned char bajt1250(char16_t c) {
  static QStringEncoder koder("windows-1250");
  static const QHash<char16_t, unsigned char> polskie = {
      {u'ą', 0xB9}, {u'ć', 0xE6}, {u'ę', 0xEA}, {u'ł', 0xB3}, {u'ń', 0xF1}, {u'ó', 0xF3},
      {u'ś', 0x9C}, {u'ź', 0x9F}, {u'ż', 0xBF}, {u'Ą', 0xA5}, {u'Ć', 0xC6}, {u'Ę', 0xCA},
      {u'Ł', 0xA3}, {u'Ń', 0xD1}, {u'Ó', 0xD3}, {u'Ś', 0x8C}, {u'Ź', 0x8F}, {u'Ż', 0xAF}};
  if (auto it = polskie.constFind(c); it != polskie.constEnd()) return *it;
  if (!koder.isValid() || (c >= 0xD800 && c <= 0xDFFF)) return 0;
  const QByteArray b = koder.encode(QStringView(&c, 1));
  if (koder.hasError()) {
    koder.resetState();
    return 0;
  }
  return b.size() == 1 && uchar(b[0]) >= 0x80 ? uchar(b[0]) : 0;
}

void tekstRtf(QByteArray& out, const QString& tekst) {
  const qsizetype n = tekst.size();
  for (qsizetype i = 0; i < n; ++i) {
    const char16_t c = tekst[i].unicode();
    if (c == u' ') {
      // A blank between two other characters is written as it is; blanks that pad a column,
      // and one that begins or ends a run, as the character code, which no reader folds
      // together or takes for the end of a control word.
      const bool sam = i > 0 && i + 1 < n && tekst[i - 1] != QLatin1Char(' ') &&
                       tekst[i + 1] != QLatin1Char(' ');
      out += sam ? " " : "\\'20";
    } else if (c == u'\\' || c == u'{' || c == u'}') {
      out += '\\';
      out += char(c);
    } else if (c == u'\t') {
      out += "\\tab ";
    } else if (c >= 0x20 && c < 0x80) {
      out += char(c);
    } else if (c < 0x20) {
      out += ' ';
    } else {
      out += "\\u" + QByteArray::number(qint16(c)) + ' ';
      const unsigned char b = bajt1250(c);
      if (b)
        out += "\\'" + QByteArray::number(b, 16).rightJustified(2, '0');
      else
        out += '?';
    }
  }
}

void obrazekRtf(QByteArray& out, const QImage& obrazek) {
  QByteArray png;
  QBuffer bufor(&png);
  bufor.open(QIODevice::WriteOnly);
  if (!obrazek.save(&bufor, "PNG")) return;
  // Pixels shown at 96 per inch: 15 twips each.
  out += "{\\pict\\pngblip\\picw" + QByteArray::number(obrazek.width()) + "\\pich" +
         QByteArray::number(obrazek.height()) + "\\picwgoal" +
         QByteArray::number(obrazek.width() * 15) + "\\pichgoal" +
         QByteArray::number(obrazek.height() * 15) + "\n";
  const QByteArray hex = png.toHex();
  for (qsizetype i = 0; i < hex.size(); i += 128) out += hex.mid(i, 128) + '\n';
  out += "}";
}

}  // namespace

QStringList FiltryZapisu() {
  QStringList f;
  for (int i = 1; i <= 4; ++i) f << Napis(QStringLiteral("drukowanie%1").arg(i + 2));
  return f;
}

QString NazwaZFiltrem(const QString& nazwa, int filtr) {
  if (filtr < 0 || filtr > 3 || !QFileInfo(nazwa).suffix().isEmpty()) return nazwa;
  return nazwa + QLatin1Char('.') + QLatin1String(kRozszerzenia[filtr]);
}

FormatZapisu FormatDlaNazwy(const QString& nazwa, int filtr) {
  if (filtr == 2) return FormatZapisu::Pdf;
  if (filtr == 3) return FormatZapisu::Csv;
  return nazwa.right(3) == QLatin1String("rtf") ? FormatZapisu::Rtf : FormatZapisu::Tekst;
}

QString NazwaDomyslna(const QString& formularz) {
  return Napis(formularz + QLatin1Char('7')) + FormatDaty(Dzis(), sesja.pubFormatDaty_dd_mmm_yy);
}

QString DoTekstu(const DokumentRaportu& d) { return d.Tekst(); }

QByteArray DoRtf(const DokumentRaportu& d) {
  // The font table: every font the runs name, the report font first.
  QStringList czcionki{sesja.pubCzcionka};
  for (const ElementDokumentu& e : d.Elementy())
    if (e.rodzaj == ElementDokumentu::Tekst && !czcionki.contains(e.przebieg.czcionka))
      czcionki << e.przebieg.czcionka;
  QByteArray out = "{\\rtf1\\ansi\\ansicpg1250\\deff0\\uc1\n{\\fonttbl";
  for (int i = 0; i < czcionki.size(); ++i) {
    out += "{\\f" + QByteArray::number(i) + "\\fmodern\\fprq1\\fcharset238 ";
    tekstRtf(out, czcionki[i]);
    out += "{\\*\\falt Courier New};}";
  }
  out += "}\n\\paperw11906\\paperh16838\\margl600\\margr200\\margt400\\margb600\n"
         "\\pard\\plain\\f0\\fs16\n";
  for (const ElementDokumentu& e : d.Elementy()) {
    switch (e.rodzaj) {
      case ElementDokumentu::Tekst: {
        const Przebieg& p = e.przebieg;
        out += "{\\f" + QByteArray::number(czcionki.indexOf(p.czcionka)) + "\\fs" +
               QByteArray::number(p.rozmiar * 2) + (p.pogrubiony ? "\\b " : " ");
        tekstRtf(out, p.tekst);
        out += '}';
        break;
      }
      case ElementDokumentu::Linia:
        out += "\\par\n";
        break;
      case ElementDokumentu::Obrazek:
        obrazekRtf(out, e.obrazek);
        break;
    }
  }
  out += "}\n";
  return out;
}

QByteArray DoCsv(const DokumentRaportu& d) {
  QByteArray out = "\xEF\xBB\xBF";
  for (const QStringList& wiersz : d.tabela) {
    for (int i = 0; i < wiersz.size(); ++i) {
      if (i) out += ';';
      out += KomorkaCsv(wiersz[i]);
    }
    out += "\r\n";
  }
  return out;
}

bool ZapiszRaport(const DokumentRaportu& d, const QString& sciezka, FormatZapisu format,
                  QString* blad) {
  QByteArray dane;
  switch (format) {
    case FormatZapisu::Rtf:
      dane = DoRtf(d);
      break;
    case FormatZapisu::Tekst:
      dane = DoTekstu(d).toUtf8();
      break;
    case FormatZapisu::Csv:
      dane = DoCsv(d);
      break;
    case FormatZapisu::Pdf:
      dane = DoPdf(d, blad);
      if (dane.isEmpty()) return false;
      break;
  }
  return ZapiszPlik(sciezka, dane, blad);
}
