// zorvik-sql [--dane DIR] "statement"
// Runs one statement on the store through the program's own store code (so the Jet dialect is
// translated as the program translates it). A read prints a header line and the rows as
// tab-separated text; a write prints the number of rows changed; an error goes to stderr.

#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QStringList>
#include <cstdio>

#include "store/baza.h"

namespace {
int blad(const QString& tekst) {
  std::fprintf(stderr, "%s\n", qPrintable(tekst));
  return 1;
}

// One value on one line: tabs and line breaks inside a text are shown escaped.
QString pole(const QVariant& v) {
  if (v.isNull()) return {};
  if (v.typeId() == QMetaType::Double)
    return QString::number(v.toDouble(), 'g', QLocale::FloatingPointShortest);
  QString t = v.toString();
  t.replace(QLatin1Char('\\'), QStringLiteral("\\\\"))
      .replace(QLatin1Char('\t'), QStringLiteral("\\t"))
      .replace(QLatin1Char('\r'), QStringLiteral("\\r"))
      .replace(QLatin1Char('\n'), QStringLiteral("\\n"));
  return t;
}

bool czyOdczyt(const QString& sql) {
  const QString slowo =
      sql.trimmed().section(QRegularExpression(QStringLiteral("[\\s(]")), 0, 0).toUpper();
  return slowo == QLatin1String("SELECT") || slowo == QLatin1String("WITH") ||
         slowo == QLatin1String("PRAGMA") || slowo == QLatin1String("EXPLAIN") ||
         sql.trimmed().startsWith(QLatin1Char('('));
}
}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  QStringList args = app.arguments().mid(1);
  const qsizetype i = args.indexOf(QStringLiteral("--dane"));
  if (i >= 0) {
    if (i + 1 >= args.size()) return blad(QStringLiteral("usage: zorvik-sql [--dane DIR] \"SQL\""));
    UstawFolderDanych(args[i + 1]);
    args.remove(i, 2);
  }
  const QString sql = args.join(QLatin1Char(' ')).trimmed();
  if (sql.isEmpty()) return blad(QStringLiteral("usage: zorvik-sql [--dane DIR] \"SQL\""));
  if (!QFile::exists(PlikBazy())) return blad(QStringLiteral("no store at %1").arg(PlikBazy()));
  if (!OtworzBaze()) return blad(QStringLiteral("cannot open the store %1").arg(PlikBazy()));

  if (!czyOdczyt(sql)) {
    const WynikZapisu w = pubBaza().Wykonaj(sql);
    if (!w) return blad(w.blad);
    std::printf("%lld\n", static_cast<long long>(w.zmienione));
    return 0;
  }
  Rekordy rs = pubBaza().Czytaj(sql);
  if (!rs.Ok()) return blad(rs.Blad());
  std::printf("%s\n", rs.NazwyPol().join(QLatin1Char('\t')).toUtf8().constData());
  for (; !rs.Eof(); rs.MoveNext()) {
    QStringList w;
    for (int k = 0; k < rs.LiczbaPol(); ++k) w << pole(rs.Pole(k));
    std::printf("%s\n", w.join(QLatin1Char('\t')).toUtf8().constData());
  }
  return 0;
}
