#include "setup/pomoc.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextDocumentFragment>

#include "store/session.h"

namespace {
// Form names by prefix, the longest first where two overlap.
const std::pair<const char*, const char*> kStrony[] = {
    {"frmKreator", "kreator"},
    {"frmUstawienia", "ustawienia"},
    {"frmKolory", "ustawienia"},
    {"frmKonfiguracja", "ustawienia"},
    {"frmHaslo", "ustawienia"},
    {"frmEdycjaPrzelewu", "przelewy"},
    {"frmPrzelew", "przelewy"},
    {"frmRaport", "raporty"},
    {"frmKalendarz", "kalendarz"},
    {"frmKategorieOszczednosci", "symulacja"},
    {"frmSymulacja", "symulacja"},
    {"frmPrzeglad", "przegladarki"},
    {"frmEdycja", "edytory"},
    {"frmSzablony", "edytory"},
    {"frmParagon", "edytory"},
    {"frmLimitDlaKategorii", "edytory"},
    {"frmOkresowe", "edytory"},
};

QString jezyk() { return sesja.pubJezyk == 1 ? QStringLiteral("pl") : QStringLiteral("en"); }
}  // namespace

const QStringList& StronyPomocy() {
  static const QStringList s = {
      QStringLiteral("glowne"),    QStringLiteral("edytory"),   QStringLiteral("przegladarki"),
      QStringLiteral("raporty"),   QStringLiteral("kalendarz"), QStringLiteral("symulacja"),
      QStringLiteral("przelewy"),  QStringLiteral("ustawienia"), QStringLiteral("kreator")};
  return s;
}

QString StronaOkna(const QString& formularz) {
  for (const auto& [przedrostek, strona] : kStrony)
    if (formularz.startsWith(QLatin1String(przedrostek))) return QLatin1String(strona);
  return QStringLiteral("glowne");
}

QString TrescStrony(const QString& strona) {
  QFile f(QStringLiteral(":/pomoc/%1/%2.html").arg(jezyk(), strona));
  if (!f.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(f.readAll());
}

QString TytulStrony(const QString& strona) {
  static const QRegularExpression tytul(QStringLiteral("<title>(.*)</title>"));
  return tytul.match(TrescStrony(strona)).captured(1).trimmed();
}

QStringList SzukajWPomocy(const QString& zapytanie) {
  const QStringList slowa = zapytanie.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
  QStringList wynik;
  for (const QString& s : StronyPomocy()) {
    const QString tekst = QTextDocumentFragment::fromHtml(TrescStrony(s)).toPlainText();
    bool wszystkie = true;
    for (const QString& w : slowa) wszystkie = wszystkie && tekst.contains(w, Qt::CaseInsensitive);
    if (wszystkie) wynik << s;
  }
  return wynik;
}
