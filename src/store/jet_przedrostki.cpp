#include "store/jet_przedrostki.h"

#include <QRegularExpression>
#include <vector>

namespace {

// For every character of the statement: does it stand inside a quoted text?
std::vector<bool> wCudzyslowie(const QString& s) {
  std::vector<bool> w(size_t(s.size()), false);
  QChar cudzyslow;
  for (qsizetype i = 0; i < s.size(); ++i) {
    const QChar c = s[i];
    if (cudzyslow.isNull()) {
      if (c == QLatin1Char('\'') || c == QLatin1Char('"')) {
        cudzyslow = c;
        w[size_t(i)] = true;
      }
    } else {
      w[size_t(i)] = true;
      // A doubled quote stays inside the text.
      if (c == cudzyslow) {
        if (i + 1 < s.size() && s[i + 1] == cudzyslow)
          w[size_t(++i)] = true;
        else
          cudzyslow = QChar();
      }
    }
  }
  return w;
}

QString zakres(const QString& kolumna, const QString& przedrostek) {
  QString nastepny = przedrostek;
  nastepny.back() = QChar(nastepny.back().unicode() + 1);
  return QStringLiteral("(%1>='%2' AND %1<'%3')").arg(kolumna, przedrostek, nastepny);
}

}  // namespace

QString ZakresyPrzedrostkow(const QString& jet) {
  // Cheap test first: most statements name no category key.
  if (!jet.contains(QLatin1String("kategoria"), Qt::CaseInsensitive) &&
      !jet.contains(QLatin1String("identyfikator"), Qt::CaseInsensitive))
    return jet;
  // The keyword and the column are matched blind to case; the prefix must be lower-case letters.
  static const QRegularExpression like(QStringLiteral(
      R"((?<![\w.$])((?:[A-Za-z_]\w*\.)?(?i:kategoria|identyfikator))\s+(?i:LIKE)\s+'([a-z]+)\*')"));
  static const QRegularExpression left(QStringLiteral(
      R"((?<![\w.$])(?i:LEFT)\s*\(\s*((?:[A-Za-z_]\w*\.)?(?i:kategoria|identyfikator))\s*,\s*(\d+)\s*\)\s*=\s*'([a-z]+)')"));
  static const QRegularExpression nie(QStringLiteral(R"((?i:\bNOT)\s*$)"));

  const std::vector<bool> cytat = wCudzyslowie(jet);
  struct Zmiana {
    qsizetype od, dl;
    QString tekst;
  };
  std::vector<Zmiana> zmiany;
  auto it = like.globalMatch(jet);
  while (it.hasNext()) {
    const auto m = it.next();
    if (cytat[size_t(m.capturedStart())]) continue;
    if (nie.match(QStringView(jet).left(m.capturedStart())).hasMatch()) continue;
    zmiany.push_back({m.capturedStart(), m.capturedLength(), zakres(m.captured(1), m.captured(2))});
  }
  it = left.globalMatch(jet);
  while (it.hasNext()) {
    const auto m = it.next();
    if (cytat[size_t(m.capturedStart())]) continue;
    if (m.captured(2).toInt() != m.captured(3).size()) continue;
    zmiany.push_back({m.capturedStart(), m.capturedLength(), zakres(m.captured(1), m.captured(3))});
  }
  if (zmiany.empty()) return jet;
  std::sort(zmiany.begin(), zmiany.end(), [](const Zmiana& a, const Zmiana& b) { return a.od < b.od; });
  QString wynik;
  qsizetype poz = 0;
  for (const Zmiana& z : zmiany) {
    if (z.od < poz) continue;
    wynik += QStringView(jet).sliced(poz, z.od - poz);
    wynik += z.tekst;
    poz = z.od + z.dl;
  }
  wynik += QStringView(jet).sliced(poz);
  return wynik;
}
