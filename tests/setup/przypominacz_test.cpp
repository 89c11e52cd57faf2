// The reminder companion reading the reminder file by its contract: every kind of line, long
// amounts and Polish letters, an empty file, damaged lines, a file with nothing due, a missing
// file, and the file the program itself writes.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>

#include "common/magazyn_testowy.h"
#include "setup/frmPrzypomnienia.h"
#include "setup/przypominacz.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/dzis.h"
#include "store/przypomnienia.h"
#include "store/session.h"

namespace {
QByteArray linia(const QStringList& pola) {
  QByteArray w;
  for (qsizetype i = 0; i < pola.size(); ++i) {
    if (i) w += char(0xAE);
    w += DoWindows1250(pola[i]);
  }
  return w + "\r\n";
}

QString zapisz(const QTemporaryDir& d, const QByteArray& dane) {
  const QString plik = d.filePath(QStringLiteral("cont.rmd"));
  QFile f(plik);
  f.open(QIODevice::WriteOnly | QIODevice::Truncate);
  f.write(dane);
  return plik;
}

QString tekstEtykiety(QWidget* f, const char* nazwa) {
  auto* l = f->findChild<QLabel*>(QLatin1String(nazwa));
  return l ? l->text() : QString();
}
}  // namespace

TEST(Przypominacz, EveryFieldKindDamagedLinesAndSums) {
  ASSERT_TRUE(KodowanieWindows1250());
  const QByteArray dane =
      linia({QStringLiteral("Andrzeja, Justyny")}) + linia({QStringLiteral("Łucja")}) +
      linia({QStringLiteral("15-mar"), QStringLiteral("Przychód"), QStringLiteral("1234 567.50"),
             QStringLiteral("Konto Główne"), QStringLiteral("Wynagrodzenie"),
             QStringLiteral("Firma O'Brien"), QStringLiteral("Premia za źdźbło")}) +
      linia({QStringLiteral("16-mar"), QStringLiteral("Wydatek"), QStringLiteral("  120.00"),
             QStringLiteral("Gotówka"), QStringLiteral("Żywność"), QString(), QStringLiteral("Obiad")}) +
      linia({QStringLiteral("17-mar"), QStringLiteral("Wydatek"), QStringLiteral("0,05"),
             QStringLiteral("Gotówka"), QStringLiteral("Opłaty"), QString(), QString()}) +
      linia({QStringLiteral("20-mar"), QStringLiteral("Transfer"),
             QStringLiteral("999 999 999 999.99"), QStringLiteral("Bank"), QStringLiteral("Gotówka"),
             QString(), QStringLiteral("Wypłata")}) +
      // Damaged: too few fields (a separator inside a description splits too many), an unknown
      // kind, an amount that is no amount.
      linia({QStringLiteral("18-mar"), QStringLiteral("Wydatek"), QStringLiteral("5.00")}) +
      linia({QStringLiteral("18-mar"), QStringLiteral("Zwrot"), QStringLiteral("5.00"),
             QStringLiteral("a"), QStringLiteral("b"), QString(), QString()}) +
      linia({QStringLiteral("18-mar"), QStringLiteral("Wydatek"), QStringLiteral("pięć"),
             QStringLiteral("a"), QStringLiteral("b"), QString(), QString()});
  const Przypomnienia p = CzytajPrzypomnienia(dane);
  EXPECT_EQ(p.imieniny, QStringLiteral("Andrzeja, Justyny"));
  EXPECT_EQ(p.imie, QStringLiteral("Łucja"));
  ASSERT_EQ(p.pozycje.size(), 4u);
  EXPECT_EQ(p.uszkodzone, 3);
  const PozycjaPrzypomnienia& z = p.pozycje[0];
  EXPECT_EQ(z.rodzaj, PozycjaPrzypomnienia::Przychod);
  EXPECT_EQ(z.konto, QStringLiteral("Konto Główne"));
  EXPECT_EQ(z.kontrahent, QStringLiteral("Firma O'Brien"));
  EXPECT_EQ(z.opis, QStringLiteral("Premia za źdźbło"));
  EXPECT_EQ(p.pozycje[3].rodzaj, PozycjaPrzypomnienia::Transfer);
  EXPECT_EQ(p.pozycje[3].kategoria, QStringLiteral("Gotówka"));
  EXPECT_EQ(p.sumaPrzychodow, 123456750);
  EXPECT_EQ(p.sumaWydatkow, 12005);
  EXPECT_EQ(p.ileWydatkow, 2);
  EXPECT_EQ(p.sumaTransferow, 99999999999999LL);
  EXPECT_EQ(KwotaPrzypomnienia(p.sumaTransferow, QStringLiteral(",")),
            QStringLiteral("999 999 999 999,99"));
  EXPECT_EQ(KwotaPrzypomnienia(5, QStringLiteral(".")), QStringLiteral("0.05"));

  // The window over that file: greeting, name days, the sums, the rows, the damaged count.
  MagazynTestowy m;
  QTemporaryDir d;
  frmPrzypomnienia f(zapisz(d, dane), d.filePath(QStringLiteral("brak-programu")));
  EXPECT_EQ(f.Stan(), StanPlikuPrzypomnien::Dobry);
  EXPECT_TRUE(tekstEtykiety(&f, "lblPowitanie").contains(QStringLiteral("Łucja")));
  EXPECT_TRUE(tekstEtykiety(&f, "lblImieniny").contains(QStringLiteral("Justyny")));
  EXPECT_TRUE(tekstEtykiety(&f, "lblSumy").contains(QStringLiteral("1 234 567")));
  EXPECT_EQ(f.findChild<QTreeWidget*>(QStringLiteral("lvwPozycje"))->topLevelItemCount(), 4);
  EXPECT_TRUE(tekstEtykiety(&f, "lblUszkodzone").contains(QStringLiteral("3")));
  // Zorvik missing where it should be: a message, and the window stays.
  f.findChild<QPushButton*>(QStringLiteral("cmdOtworz"))->click();
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_TRUE(m.host.pokazane[0].tekst.contains(QStringLiteral("brak-programu")));
}

// An empty file, a missing one, and one with nothing due: each a clear word, never a crash.
TEST(Przypominacz, EmptyMissingAndNothingDue) {
  MagazynTestowy m;
  QTemporaryDir d;
  const QString plik = zapisz(d, QByteArray());
  {
    frmPrzypomnienia f(plik, QString());
    EXPECT_EQ(f.Stan(), StanPlikuPrzypomnien::Pusty);
    EXPECT_EQ(tekstEtykiety(&f, "lblBlad"),
              Napis(QStringLiteral("frmPrzypomnienia24")).arg(QDir::toNativeSeparators(plik)));
  }
  {
    frmPrzypomnienia f(d.filePath(QStringLiteral("nie-ma.rmd")), QString());
    EXPECT_EQ(f.Stan(), StanPlikuPrzypomnien::Brak);
    EXPECT_FALSE(tekstEtykiety(&f, "lblBlad").isEmpty());
  }
  {
    frmPrzypomnienia f(zapisz(d, "\r\n\r\n"), QString());
    EXPECT_EQ(f.Stan(), StanPlikuPrzypomnien::Pusty);
  }
  // The program's own file with nothing due: two lines; the greeting has no name.
  sesja.pubSeparator = QStringLiteral(",");
  m.Licz(QStringLiteral("DELETE FROM setup"));
  ASSERT_TRUE(ZapiszPrzypomnienia());
  Przypomnienia p;
  ASSERT_EQ(CzytajPlikPrzypomnien(SciezkaPrzypomnien(), &p), StanPlikuPrzypomnien::Dobry);
  EXPECT_TRUE(p.pozycje.empty());
  EXPECT_EQ(p.uszkodzone, 0);
  frmPrzypomnienia f(SciezkaPrzypomnien(), QString());
  EXPECT_EQ(tekstEtykiety(&f, "lblPowitanie"), Napis(QStringLiteral("frmPrzypomnienia3")));
  EXPECT_EQ(tekstEtykiety(&f, "lblNic"), Napis(QStringLiteral("frmPrzypomnienia5")));
}

// What the program writes for a due planned entry, the companion reads back field for field.
TEST(Przypominacz, ReadsWhatTheProgramWrites) {
  MagazynTestowy m;
  sesja.pubSeparator = QStringLiteral(",");
  UstawDzis(QDate(2026, 11, 22));
  m.Licz(QStringLiteral("INSERT INTO setup (imie) VALUES ('Zdzisław')"));
  m.Licz(QStringLiteral("INSERT INTO konta (id, nazwa, rodzaj) VALUES (7, 'Portfel', 1)"));
  m.Licz(QStringLiteral("INSERT INTO kategorie (rodzaj, identyfikator, kategoria, nazwa) VALUES "
                        "(2, 'a', '-', 'Żywność')"));
  m.Licz(QStringLiteral("INSERT INTO zaplanowane (data, konto, rodzaj, kategoria, wydatek, "
                        "przychod, opis) VALUES ('2026-11-20', 7, 2, 'a', 987654321098.76, 0, "
                        "'Zakupy u O''Briena')"));
  ASSERT_TRUE(ZapiszPrzypomnienia());
  Przypomnienia p;
  ASSERT_EQ(CzytajPlikPrzypomnien(SciezkaPrzypomnien(), &p), StanPlikuPrzypomnien::Dobry);
  EXPECT_EQ(p.imie, QStringLiteral("Zdzisław"));
  ASSERT_EQ(p.pozycje.size(), 1u);
  EXPECT_EQ(p.pozycje[0].grosze, 98765432109876LL);
  EXPECT_EQ(p.pozycje[0].kategoria, QStringLiteral("Żywność"));
  EXPECT_EQ(p.pozycje[0].opis, QStringLiteral("Zakupy u O'Briena"));
  EXPECT_EQ(p.uszkodzone, 0);
}
