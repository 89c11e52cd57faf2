// The folders of src/ stand in layers: no folder includes a folder that includes it back, so
// that a screen can be built and tested with only what lies below it.
#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <functional>

namespace {

// folder -> folder it includes -> one file that does it (for the message).
using Graf = QMap<QString, QMap<QString, QString>>;

Graf GrafFolderow(const QString& zrodla) {
  Graf g;
  static const QRegularExpression wzor(QStringLiteral(R"(^\s*#\s*include\s+"(\w+)/)"),
                                       QRegularExpression::MultilineOption);
  QDirIterator it(zrodla, {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                  QDirIterator::Subdirectories);
  while (it.hasNext()) {
    const QString plik = it.next();
    const QString folder = QDir(zrodla).relativeFilePath(plik).section(QLatin1Char('/'), 0, 0);
    QFile f(plik);
    if (!f.open(QIODevice::ReadOnly)) continue;
    const QString tekst = QString::fromUtf8(f.readAll());
    for (auto m = wzor.globalMatch(tekst); m.hasNext();) {
      const QString cel = m.next().captured(1);
      if (cel != folder && QDir(zrodla).exists(cel))
        g[folder].insert(cel, QDir(zrodla).relativeFilePath(plik));
    }
  }
  return g;
}

// A path that leads from a folder back to itself, or empty when there is none.
QStringList Cykl(const Graf& g) {
  QMap<QString, int> stan;  // 1 on the path, 2 done
  QStringList sciezka;
  std::function<bool(const QString&)> dfs = [&](const QString& w) {
    stan[w] = 1;
    sciezka << w;
    for (const QString& n : g.value(w).keys()) {
      if (stan.value(n) == 1) {
        sciezka << n;
        return true;
      }
      if (stan.value(n) == 0 && dfs(n)) return true;
    }
    stan[w] = 2;
    sciezka.removeLast();
    return false;
  };
  for (const QString& w : g.keys())
    if (stan.value(w) == 0 && dfs(w)) return sciezka;
  return {};
}

}  // namespace

TEST(Warstwy, NoFolderIncludesAFolderThatIncludesItBack) {
  const Graf g = GrafFolderow(QStringLiteral(ZORVIK_SRC_DIR "/src"));
  ASSERT_TRUE(g.contains(QStringLiteral("ledger"))) << "no includes found: wrong source folder";
  const QStringList cykl = Cykl(g);
  QString opis;
  for (int i = 0; i + 1 < cykl.size(); ++i)
    opis += cykl[i] + " -> " + cykl[i + 1] + " (" + g[cykl[i]][cykl[i + 1]] + ")\n";
  EXPECT_TRUE(cykl.isEmpty()) << opis.toStdString();

  // The base pieces stay below every screen, and logic never reaches a screen.
  for (const QString& nizej : {QStringLiteral("store"), QStringLiteral("ui")})
    for (const QString& wyzej : {QStringLiteral("mainwindow"), QStringLiteral("setup"),
                                 QStringLiteral("app"), QStringLiteral("ledger")})
      EXPECT_FALSE(g.value(nizej).contains(wyzej))
          << nizej.toStdString() << " includes " << g[nizej][wyzej].toStdString();
}
