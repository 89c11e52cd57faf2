#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QMap>
#include <QRegularExpression>

#include "common/magazyn_testowy.h"
#include "store/baza.h"

// Every key the code names, and the keys it builds from a number, has a Polish and an English
// text in the delivered store.
TEST(Klucze, EveryKeyInTheCodeHasBothTexts) {
  MagazynTestowy m;
  QHash<QString, std::pair<QString, QString>> tabela;
  for (Rekordy rs =
           pubBaza().Czytaj(QStringLiteral("SELECT kontrolka, polski, angielski FROM jezyki"));
       !rs.Eof(); rs.MoveNext())
    tabela.insert(rs.Tekst(QStringLiteral("kontrolka")),
                  {rs.Tekst(QStringLiteral("polski")), rs.Tekst(QStringLiteral("angielski"))});
  ASSERT_FALSE(tabela.isEmpty());

  QMap<QString, QString> klucze;  // key -> where it is used
  const QRegularExpression wzor(QStringLiteral(
      R"re(Napis\(\s*(?:QStringLiteral|QLatin1String|QString)\(\s*"([^"]+)"\s*\)\s*\))re"));
  int pliki = 0;
  QDirIterator it(QStringLiteral(ZORVIK_SRC_DIR "/src"),
                  {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                  QDirIterator::Subdirectories);
  while (it.hasNext()) {
    QFile f(it.next());
    if (!f.open(QIODevice::ReadOnly)) continue;
    ++pliki;
    const QString tekst = QString::fromUtf8(f.readAll());
    for (auto m = wzor.globalMatch(tekst); m.hasNext();)
      klucze.insert(m.next().captured(1), f.fileName());
  }
  ASSERT_GT(pliki, 0);
  EXPECT_TRUE(klucze.contains(QStringLiteral("Module111")));  // the scan finds literal keys

  // Keys the code builds from a number.
  for (int i = 1; i <= 55; ++i)
    if (i != 26 && i != 45)
      klucze.insert(QStringLiteral("Module1%1").arg(i), QStringLiteral("Module1"));
  for (int i = 1; i <= 50; ++i)
    klucze.insert(QStringLiteral("nazwydat%1").arg(i), QStringLiteral("date masks"));
  for (const char* k : {"OgolneRok", "OgolneLp", "OgolneJezyk"})
    klucze.insert(QLatin1String(k), QStringLiteral("general"));

  QStringList braki;
  for (auto k = klucze.cbegin(); k != klucze.cend(); ++k) {
    const auto w = tabela.constFind(k.key());
    if (w == tabela.constEnd())
      braki << k.key() + QStringLiteral(" (missing, used in ") + k.value() + QStringLiteral(")");
    else if (w->first.trimmed().isEmpty() || w->second.trimmed().isEmpty())
      braki << k.key() + QStringLiteral(" (a language is empty)");
  }
  EXPECT_TRUE(braki.isEmpty()) << braki.join(QStringLiteral("\n")).toStdString();
  EXPECT_EQ(tabela.value(QStringLiteral("OgolneJezyk")),
            std::make_pair(QStringLiteral("polski"), QStringLiteral("angielski")));
}
