// Rotating backups: before an upgrade, at start once a day in the background, rotation, damaged
// copies never offered, a restore that keeps the current file.
#include <gtest/gtest.h>

#include <QDir>
#include <algorithm>
#include <QFile>
#include <QTemporaryDir>

#include "budowa.h"
#include "common/magazyn_testowy.h"
#include "imports/kopie.h"
#include "store/baza.h"
#include "store/start.h"

namespace {
qint64 ileKont(const QString& plik) {
  Baza b;
  if (!b.Otworz(plik, nullptr, {}, true)) return -1;
  return b.Czytaj(QStringLiteral("SELECT COUNT(*) AS ile FROM konta")).Pole(0).toLongLong();
}

void dodajKonto(const QString& nazwa) {
  ASSERT_TRUE(pubBaza().Wykonaj(
      QStringLiteral("INSERT INTO konta (nazwa, rodzaj) VALUES (%1, 1)").arg(SqlTekst(nazwa))));
}
}  // namespace

TEST(Kopie, TakenBeforeAnUpgradeAndOnlyThen) {
  QTemporaryDir d;
  const QString plik = d.filePath(QStringLiteral("money.fns"));
  QString blad;
  ASSERT_TRUE(ZbudujBaze(QStringLiteral(ZORVIK_DATA_DIR), plik, &blad)) << blad.toStdString();
  UstawFolderDanych(d.path());
  ASSERT_TRUE(OtworzBaze());
  WlaczKopiePrzedAktualizacja();
  ASSERT_TRUE(AktualizujBaze());
  std::vector<Kopia> k = ListaKopii();
  ASSERT_EQ(k.size(), 1u);
  EXPECT_EQ(k[0].powod, PowodKopii::Aktualizacja);
  EXPECT_GT(k[0].rozmiar, 0);
  EXPECT_TRUE(SprawdzKopie(k[0].plik));
  // The copy is the store as it was: the old two-column version table, still encrypted.
  Baza kopia;
  ASSERT_TRUE(kopia.Otworz(k[0].plik, nullptr, {}, true));
  EXPECT_EQ(kopia.Czytaj(QStringLiteral("SELECT * FROM wersjabazy")).LiczbaPol(), 2);
  QFile f(k[0].plik);
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  EXPECT_FALSE(f.read(16).startsWith("SQLite format 3"));
  // The store now has the upgrade's columns; a second start changes nothing and copies nothing.
  EXPECT_TRUE(pubBaza().Czytaj(QStringLiteral("SELECT numer FROM konta")).Ok());
  ASSERT_TRUE(AktualizujBaze());
  EXPECT_EQ(ListaKopii().size(), 1u);
  UstawPrzedAktualizacja({});
  ZamknijBaze();
}

TEST(Kopie, RotatedAtTheSettingAndTakenOnceADayInTheBackground) {
  MagazynTestowy m;
  EXPECT_EQ(LiczbaKopiiDoZachowania(), 10);
  for (int i = 0; i < 12; ++i) {
    dodajKonto(QStringLiteral("Konto %1 żółć").arg(i));
    ASSERT_TRUE(ZrobKopie(PowodKopii::Reczna));
  }
  std::vector<Kopia> k = ListaKopii();
  ASSERT_EQ(k.size(), 10u);
  // The newest first; the two oldest (one and two accounts) are gone.
  EXPECT_EQ(ileKont(k.front().plik), ileKont(m.Plik()));
  EXPECT_EQ(ileKont(k.back().plik), ileKont(m.Plik()) - 9);
  ASSERT_TRUE(UstawLiczbeKopii(3));
  EXPECT_FALSE(UstawLiczbeKopii(0));
  UsunNadmiarKopii();
  EXPECT_EQ(ListaKopii().size(), 3u);

  EXPECT_FALSE(JestKopiaZDzisiaj());
  ASSERT_TRUE(ZrobKopieStartuWTle());
  dodajKonto(QStringLiteral("W trakcie kopii"));  // the window goes on meanwhile
  CzekajNaKopie();
  EXPECT_TRUE(JestKopiaZDzisiaj());
  EXPECT_FALSE(ZrobKopieStartuWTle());  // once a day
  k = ListaKopii();
  EXPECT_EQ(k.size(), 3u);
  const auto start = std::find_if(k.begin(), k.end(), [](const Kopia& x) { return x.powod == PowodKopii::Start; });
  ASSERT_NE(start, k.end());
  EXPECT_TRUE(SprawdzKopie(start->plik));
}

TEST(Kopie, DamagedCopyNeverOfferedAndRestoreKeepsTheCurrentFile) {
  MagazynTestowy m;
  ASSERT_TRUE(ZrobKopie(PowodKopii::Reczna));
  const QString dobra = ListaKopii().front().plik;
  dodajKonto(QStringLiteral("Oszczędności O'Neill"));
  ASSERT_TRUE(ZrobKopie(PowodKopii::Reczna));
  ASSERT_TRUE(ZrobKopie(PowodKopii::Reczna));
  std::vector<Kopia> k = ListaKopii();
  ASSERT_EQ(k.size(), 3u);
  // One copy with a page overwritten, one cut short.
  {
    QFile f(k[0].plik);
    ASSERT_TRUE(f.open(QIODevice::ReadWrite));
    f.seek(3 * 4096 + 100);
    f.write(QByteArray(200, 'x'));
  }
  QFile::resize(k[1].plik, k[1].rozmiar / 2);
  EXPECT_FALSE(SprawdzKopie(k[0].plik));
  EXPECT_FALSE(SprawdzKopie(k[1].plik));
  const std::vector<Kopia> oferowane = KopieDoPrzywrocenia();
  ASSERT_EQ(oferowane.size(), 1u);
  EXPECT_EQ(oferowane[0].plik, dobra);
  // A damaged copy never replaces anything.
  const qint64 przed = ileKont(m.Plik());
  QString blad;
  EXPECT_FALSE(PrzywrocKopie(k[0].plik, &blad));
  EXPECT_FALSE(blad.isEmpty());
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta")), przed);

  ASSERT_TRUE(PrzywrocKopie(dobra, &blad)) << blad.toStdString();
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta WHERE nazwa='Oszczędności O''Neill'")), 0);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta")), przed - 1);
  // The file replaced is one more copy, holding what the user had.
  k = ListaKopii();
  ASSERT_FALSE(k.empty());
  EXPECT_EQ(k.front().powod, PowodKopii::Przywracanie);
  EXPECT_EQ(ileKont(k.front().plik), przed);
  // The restored store is upgraded and in use.
  dodajKonto(QStringLiteral("Po przywróceniu"));
}
