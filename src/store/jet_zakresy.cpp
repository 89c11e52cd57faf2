#include "store/jet_zakresy.h"

#include <QDate>
#include <QRegularExpression>

#include "store/jet_tokeny.h"

namespace {

QString lit(const QDate& d) {
  return QStringLiteral("#%1/%2/%3#")
      .arg(d.month(), 2, 10, QLatin1Char('0'))
      .arg(d.day(), 2, 10, QLatin1Char('0'))
      .arg(d.year(), 4, 10, QLatin1Char('0'));
}

// The first day of each week of year y, counted Monday first with week 1 holding 1 January.
// Week w covers [start, start + 7) cut to the year.
QDate poczatekTygodnia(int w, int y) {
  const QDate nowyRok(y, 1, 1);
  return nowyRok.addDays(7 * (w - 1) - (nowyRok.dayOfWeek() - 1));
}

QDate maks(const QDate& a, const QDate& b) { return a < b ? b : a; }
QDate min(const QDate& a, const QDate& b) { return a < b ? a : b; }

QString wZakresie(const QString& kol, const QDate& od, const QDate& doWyl) {
  if (!(od < doWyl)) return QStringLiteral("(1=0)");
  return QStringLiteral("(%1>=%2 AND %1<%3)").arg(kol, lit(od), lit(doWyl));
}

QString przed(const QString& kol, const QDate& granica) {
  return QStringLiteral("(%1<%2)").arg(kol, lit(granica));
}

bool rokOk(int y) { return y >= 100 && y < 9999; }

// True when the text holds the word (ASCII, upper case), in any case.
bool zawiera(QStringView t, QLatin1StringView slowo) {
  const qsizetype n = slowo.size();
  for (qsizetype i = 0; i + n <= t.size(); ++i) {
    qsizetype j = 0;
    while (j < n && (t[i + j].unicode() & ~char16_t(0x20)) == char16_t(slowo[j].unicode())) ++j;
    if (j == n) return true;
  }
  return false;
}

// The statement and a copy of it in which every quoted text, date and [name] is blotted out
// (but for the 'ww' and 'q' of DATEPART), so that no pattern can match inside one. Both are
// changed at the same places, and what a pattern captures lies outside the blots.
struct Tekst {
  QString jet;
  QString maska;
};

Tekst zamaskuj(const QString& jet) {
  Tekst t{jet, jet};
  constexpr QChar kPlama(0x1);
  LiteralyJet(jet, [&](Rodzaj rodzaj, int od, int dl) {
    const QStringView tresc = QStringView(jet).sliced(od, dl);
    if (rodzaj == Rodzaj::Tekst &&
        (tresc.compare(QLatin1String("'ww'"), Qt::CaseInsensitive) == 0 ||
         tresc.compare(QLatin1String("'q'"), Qt::CaseInsensitive) == 0))
      return;
    for (int i = od; i < od + dl; ++i) t.maska[i] = kPlama;
  });
  return t;
}

// Applies one pattern throughout the text; zamiana returns "" to leave a match as it stands.
template <typename F>
void zastap(Tekst& t, const QRegularExpression& re, F zamiana) {
  QString jet, maska;
  qsizetype poz = 0;
  auto it = re.globalMatch(t.maska);
  while (it.hasNext()) {
    const auto m = it.next();
    const QString nowy = zamiana(m);
    if (nowy.isEmpty()) continue;
    jet += QStringView(t.jet).mid(poz, m.capturedStart() - poz);
    maska += QStringView(t.maska).mid(poz, m.capturedStart() - poz);
    jet += nowy;
    maska += nowy;
    poz = m.capturedEnd();
  }
  if (poz == 0) return;
  jet += QStringView(t.jet).mid(poz);
  maska += QStringView(t.maska).mid(poz);
  t = {std::move(jet), std::move(maska)};
}

}  // namespace

QString ZakresyDat(const QString& jet) {
  // Every form holds YEAR(... data); most statements have none and are done here.
  if (!zawiera(jet, QLatin1StringView("YEAR"))) return jet;
  const bool tygodnieKwartaly = zawiera(jet, QLatin1StringView("DATEPART"));
  const bool miesiace = zawiera(jet, QLatin1StringView("MONTH"));
  static const QString K = QStringLiteral("((?:\\w+\\.)?data)");
  static const auto opt = QRegularExpression::CaseInsensitiveOption;
  auto re = [](const QString& wzor) { return QRegularExpression(wzor, opt); };
  static const QRegularExpression tydzien =
      re(QStringLiteral("\\(\\s*DATEPART\\s*\\(\\s*'ww'\\s*,\\s*%1\\s*,\\s*2\\s*\\)\\s*=\\s*(\\d+)"
                        "\\s+AND\\s+YEAR\\s*\\(\\s*\\1\\s*\\)\\s*=\\s*(\\d+)\\s*\\)")
             .arg(K));
  static const QRegularExpression tydzienPrzed =
      re(QStringLiteral("\\(\\s*\\(\\s*DATEPART\\s*\\(\\s*'ww'\\s*,\\s*%1\\s*,\\s*2\\s*\\)\\s*<\\s*"
                        "(\\d+)\\s+AND\\s+YEAR\\s*\\(\\s*\\1\\s*\\)\\s*=\\s*(\\d+)\\s*\\)\\s+OR\\s+"
                        "\\(\\s*YEAR\\s*\\(\\s*\\1\\s*\\)\\s*<\\s*(\\d+)\\s*\\)\\s*\\)")
             .arg(K));
  static const QRegularExpression miesiac =
      re(QStringLiteral("\\(\\s*MONTH\\s*\\(\\s*%1\\s*\\)\\s*=\\s*(\\d+)\\s+AND\\s+YEAR\\s*\\(\\s*"
                        "\\1\\s*\\)\\s*=\\s*(\\d+)\\s*\\)")
             .arg(K));
  static const QRegularExpression miesiacPrzed =
      re(QStringLiteral("\\(\\s*\\(\\s*MONTH\\s*\\(\\s*%1\\s*\\)\\s*<\\s*(\\d+)\\s+AND\\s+YEAR\\s*"
                        "\\(\\s*\\1\\s*\\)\\s*=\\s*(\\d+)\\s*\\)\\s+OR\\s+\\(\\s*YEAR\\s*\\(\\s*"
                        "\\1\\s*\\)\\s*<\\s*(\\d+)\\s*\\)\\s*\\)")
             .arg(K));
  static const QRegularExpression kwartal =
      re(QStringLiteral("\\(\\s*DATEPART\\s*\\(\\s*'q'\\s*,\\s*%1\\s*\\)\\s*=\\s*(\\d+)\\s+AND\\s+"
                        "YEAR\\s*\\(\\s*\\1\\s*\\)\\s*=\\s*(\\d+)\\s*\\)")
             .arg(K));
  static const QRegularExpression kwartalPrzed =
      re(QStringLiteral("\\(\\s*\\(\\s*DATEPART\\s*\\(\\s*'q'\\s*,\\s*%1\\s*\\)\\s*<\\s*(\\d+)\\s+"
                        "AND\\s+YEAR\\s*\\(\\s*\\1\\s*\\)\\s*=\\s*(\\d+)\\s*\\)\\s+OR\\s+\\(\\s*"
                        "YEAR\\s*\\(\\s*\\1\\s*\\)\\s*<\\s*(\\d+)\\s*\\)\\s*\\)")
             .arg(K));
  // A bare year test, not part of an arithmetic expression.
  static const QRegularExpression rok =
      re(QStringLiteral("YEAR\\s*\\(\\s*%1\\s*\\)\\s*=\\s*(\\d+)(?=\\s|\\)|$)").arg(K));
  static const QRegularExpression rokPrzed =
      re(QStringLiteral("YEAR\\s*\\(\\s*%1\\s*\\)\\s*<\\s*(\\d+)(?=\\s|\\)|$)").arg(K));

  Tekst t = zamaskuj(jet);
  if (tygodnieKwartaly)
    zastap(t, tydzien, [](const QRegularExpressionMatch& m) {
      const int w = m.captured(2).toInt(), y = m.captured(3).toInt();
      if (!rokOk(y) || w > 60) return QString();
      const QDate od = maks(poczatekTygodnia(w, y), QDate(y, 1, 1));
      const QDate doWyl = min(poczatekTygodnia(w, y).addDays(7), QDate(y + 1, 1, 1));
      return wZakresie(m.captured(1), od, doWyl);
    });
  if (tygodnieKwartaly)
    zastap(t, tydzienPrzed, [](const QRegularExpressionMatch& m) {
      const int w = m.captured(2).toInt(), y = m.captured(3).toInt();
      if (!rokOk(y) || y != m.captured(4).toInt() || w > 60) return QString();
      const QDate granica = min(maks(poczatekTygodnia(w, y), QDate(y, 1, 1)), QDate(y + 1, 1, 1));
      return przed(m.captured(1), granica);
    });
  if (miesiace)
    zastap(t, miesiac, [](const QRegularExpressionMatch& m) {
      const int mc = m.captured(2).toInt(), y = m.captured(3).toInt();
      if (!rokOk(y)) return QString();
      if (mc < 1 || mc > 12) return QStringLiteral("(1=0)");
      return wZakresie(m.captured(1), QDate(y, mc, 1), QDate(y, mc, 1).addMonths(1));
    });
  if (miesiace)
    zastap(t, miesiacPrzed, [](const QRegularExpressionMatch& m) {
      const int mc = m.captured(2).toInt(), y = m.captured(3).toInt();
      if (!rokOk(y) || y != m.captured(4).toInt()) return QString();
      return przed(m.captured(1), QDate(y, 1, 1).addMonths(std::clamp(mc, 1, 13) - 1));
    });
  if (tygodnieKwartaly)
    zastap(t, kwartal, [](const QRegularExpressionMatch& m) {
      const int q = m.captured(2).toInt(), y = m.captured(3).toInt();
      if (!rokOk(y)) return QString();
      if (q < 1 || q > 4) return QStringLiteral("(1=0)");
      const QDate od(y, 3 * q - 2, 1);
      return wZakresie(m.captured(1), od, od.addMonths(3));
    });
  if (tygodnieKwartaly)
    zastap(t, kwartalPrzed, [](const QRegularExpressionMatch& m) {
      const int q = m.captured(2).toInt(), y = m.captured(3).toInt();
      if (!rokOk(y) || y != m.captured(4).toInt()) return QString();
      return przed(m.captured(1), QDate(y, 1, 1).addMonths(3 * (std::clamp(q, 1, 5) - 1)));
    });
  zastap(t, rok, [](const QRegularExpressionMatch& m) {
    const int y = m.captured(2).toInt();
    if (!rokOk(y)) return QString();
    return wZakresie(m.captured(1), QDate(y, 1, 1), QDate(y + 1, 1, 1));
  });
  zastap(t, rokPrzed, [](const QRegularExpressionMatch& m) {
    const int y = m.captured(2).toInt();
    if (!rokOk(y)) return QString();
    return przed(m.captured(1), QDate(y, 1, 1));
  });
  return t.jet;
}
