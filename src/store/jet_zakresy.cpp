#include "store/jet_zakresy.h"

#include <QDate>
#include <QRegularExpression>

namespace {

QString lit(const QDate& d) { return d.toString(QStringLiteral("#MM/dd/yyyy#")); }

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

// Applies one pattern throughout the text; zamiana returns "" to leave a match as it stands.
template <typename F>
QString zastap(const QString& tekst, const QRegularExpression& re, F zamiana) {
  QString wynik;
  qsizetype poz = 0;
  auto it = re.globalMatch(tekst);
  while (it.hasNext()) {
    const auto m = it.next();
    const QString nowy = zamiana(m);
    if (nowy.isEmpty()) continue;
    wynik += QStringView(tekst).mid(poz, m.capturedStart() - poz);
    wynik += nowy;
    poz = m.capturedEnd();
  }
  if (poz == 0) return tekst;
  wynik += QStringView(tekst).mid(poz);
  return wynik;
}

}  // namespace

QString ZakresyDat(const QString& jet) {
  if (!jet.contains(QLatin1String("(data)"), Qt::CaseInsensitive) &&
      !jet.contains(QLatin1String(".data)"), Qt::CaseInsensitive) &&
      !jet.contains(QLatin1String(",data"), Qt::CaseInsensitive))
    return jet;
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

  QString t = jet;
  t = zastap(t, tydzien, [](const QRegularExpressionMatch& m) {
    const int w = m.captured(2).toInt(), y = m.captured(3).toInt();
    if (!rokOk(y) || w > 60) return QString();
    const QDate od = maks(poczatekTygodnia(w, y), QDate(y, 1, 1));
    const QDate doWyl = min(poczatekTygodnia(w, y).addDays(7), QDate(y + 1, 1, 1));
    return wZakresie(m.captured(1), od, doWyl);
  });
  t = zastap(t, tydzienPrzed, [](const QRegularExpressionMatch& m) {
    const int w = m.captured(2).toInt(), y = m.captured(3).toInt();
    if (!rokOk(y) || y != m.captured(4).toInt() || w > 60) return QString();
    const QDate granica = min(maks(poczatekTygodnia(w, y), QDate(y, 1, 1)), QDate(y + 1, 1, 1));
    return przed(m.captured(1), granica);
  });
  t = zastap(t, miesiac, [](const QRegularExpressionMatch& m) {
    const int mc = m.captured(2).toInt(), y = m.captured(3).toInt();
    if (!rokOk(y)) return QString();
    if (mc < 1 || mc > 12) return QStringLiteral("(1=0)");
    return wZakresie(m.captured(1), QDate(y, mc, 1), QDate(y, mc, 1).addMonths(1));
  });
  t = zastap(t, miesiacPrzed, [](const QRegularExpressionMatch& m) {
    const int mc = m.captured(2).toInt(), y = m.captured(3).toInt();
    if (!rokOk(y) || y != m.captured(4).toInt()) return QString();
    return przed(m.captured(1), QDate(y, 1, 1).addMonths(std::clamp(mc, 1, 13) - 1));
  });
  t = zastap(t, kwartal, [](const QRegularExpressionMatch& m) {
    const int q = m.captured(2).toInt(), y = m.captured(3).toInt();
    if (!rokOk(y)) return QString();
    if (q < 1 || q > 4) return QStringLiteral("(1=0)");
    const QDate od(y, 3 * q - 2, 1);
    return wZakresie(m.captured(1), od, od.addMonths(3));
  });
  t = zastap(t, kwartalPrzed, [](const QRegularExpressionMatch& m) {
    const int q = m.captured(2).toInt(), y = m.captured(3).toInt();
    if (!rokOk(y) || y != m.captured(4).toInt()) return QString();
    return przed(m.captured(1), QDate(y, 1, 1).addMonths(3 * (std::clamp(q, 1, 5) - 1)));
  });
  t = zastap(t, rok, [](const QRegularExpressionMatch& m) {
    const int y = m.captured(2).toInt();
    if (!rokOk(y)) return QString();
    return wZakresie(m.captured(1), QDate(y, 1, 1), QDate(y + 1, 1, 1));
  });
  t = zastap(t, rokPrzed, [](const QRegularExpressionMatch& m) {
    const int y = m.captured(2).toInt();
    if (!rokOk(y)) return QString();
    return przed(m.captured(1), QDate(y, 1, 1));
  });
  return t;
}
