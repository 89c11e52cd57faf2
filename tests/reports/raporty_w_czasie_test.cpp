// The entry and transfer reports, the three reports over six months and the command-line report
// runner, line by line over the small household of raport_pomoc.h.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QLocale>
#include <QProcess>

#include "common/magazyn_testowy.h"
#include "raport_pomoc.h"
#include "reports/frmRaport.h"
#include "reports/wiersz_raportu.h"
#include "reports/zapis.h"
#include "store/napis.h"

using namespace testy_raportow;

namespace {

const QString kTytul = QStringLiteral("okres  miesiąc (marzec)");
const QString kStopka = QStringLiteral("Zorvik - raport sporządzony 15 marca 2026");

// Cells right-aligned in their width, as the reports over time write them.
QString K(const QStringList& komorki, int szerokosc) {
  QString t;
  for (const QString& k : komorki) t += k.rightJustified(szerokosc);
  return t;
}

class RaportyWCzasie : public ::testing::Test {
 protected:
  void SetUp() override {
    sesja.pubSeparator = QStringLiteral(",");
    Gospodarstwo();
    UstawOkres(QDate(2026, 3, 15), 3);
    sesja.pubTryb = 2;
    sesja.pubZapytanieRaportu.clear();
    sesja.pubFiltrTransakcji = QStringLiteral(" AND transakcje.konto=konta.id ");
    sesja.pubFiltrTransferow.clear();
  }
  MagazynTestowy m;
};

}  // namespace

TEST_F(RaportyWCzasie, EntriesAndTransfersAsTheBrowserListsThem) {
  const QString glowa = QStringLiteral(
      "Lp. Data         Opis                 Przychody    Wydatki      Kategoria        Konto    "
      "        Kontrahent       ");
  TakieSame(Napisz("frmRaportTransakcji"),
            {kTytul, "", glowa + D(109),
             "1   09-mar-26Prąd" + S(17) + S(8) + "0,00" + S(7) + "99,95 Prąd" + S(13) +
                 "Konto osobiste   O'Brien",
             "2   07-mar-26Guma" + S(17) + S(8) + "0,00" + S(8) + "0,05 Jedzenie" + S(9) +
                 "Gotówka" + S(10) + "Żabka",
             // The description is cut to 20 characters, and the 21st column stays blank.
             "3   06-mar-26Czynsz za marzec 202 " + S(8) + "0,00" + S(4) + "1 234,56 Czynsz" +
                 S(11) + "Konto osobiste   O'Brien",
             "4   05-mar-26Premia" + S(15) + S(7) + "50,00" + S(8) + "0,00 Pensja" + S(11) +
                 "Gotówka",
             D(109), S(34) + S(7) + "50,00" + S(4) + "1 334,56", kStopka});

  // A query handed by a browser is walked as it stands; an empty result keeps the zero totals.
  sesja.pubZapytanieRaportu =
      ZapytanieWpisow(2, QStringLiteral(" AND transakcje.kontrahent=2"), QString())
          .replace(QStringLiteral("DESC"), QStringLiteral("ASC"));
  const QStringList zabka = Napisz("frmRaportTransakcji");
  ASSERT_EQ(zabka.size(), 8);
  EXPECT_TRUE(zabka[3].startsWith(QStringLiteral("1   10-")));
  EXPECT_TRUE(zabka[4].startsWith(QStringLiteral("2   07-mar-26Guma")));
  EXPECT_EQ(zabka[6].toStdString(), (S(34) + S(8) + "0,00" + S(7) + "20,05").toStdString());
  sesja.pubZapytanieRaportu.clear();
  sesja.pubTryb = 1;  // nothing planned in this household
  TakieSame(Napisz("frmRaportTransakcji").mid(3),
            {D(109), S(34) + S(8) + "0,00" + S(8) + "0,00", kStopka});

  sesja.pubTryb = 2;
  TakieSame(Napisz("frmRaportTransakcjiWewnetrznych"),
            {kTytul, "",
             "Lp. Data         Opis                 Kwota        Z konta          Na konto", D(109),
             "1   08-mar-26" + S(21) + S(6) + "300,00 Konto osobiste   Gotówka", D(109), "",
             kStopka});
}

TEST_F(RaportyWCzasie, AccountsOverTimeInPlainNumbersOverTheMonthWindow) {
  sesja.pubWezelKont = QStringLiteral("R");
  const QString lata = S(20) + K({"2025", "2025", "2025", "2026", "2026", "2026"}, 12);
  const QString zera = K({"0", "0", "0", "0", "0", "0"}, 12);
  const QString gotowka = K({"0", "0", "0", "90", "70", "419,95"}, 12);
  // Twelve million is written whole, to the grosz: no grouping, no fixed decimals.
  const QString bank = K({"0", "0", "0", "12345678,91", "12345378,91", "12343744,4"}, 12);
  const QString karta = K({"0", "0", "0", "10", "10", "10"}, 12);
  TakieSame(
      Napisz("frmRaportKontaWCzasie"),
      {"Stan kont w czasie", "",
       "Konto" + S(15) +
           K({"październik", "listopad", "grudzień", "styczeń", "luty", "marzec"}, 12),
       lata, D(92),
       "Wszystkie konta" + S(5) + K({"0", "0", "0", "12345778,91", "12345458,91", "12344174,35"}, 12),
       "", D(92), "  Gotówkowe" + S(9) + gotowka, D(92), "    Gotówka" + S(9) + gotowka, D(92),
       "  Bankowe" + S(11) + bank, D(92), "    Konto osobiste" + S(2) + bank, D(92),
       "  Karty kredytowe" + S(3) + karta, D(92), "    Karta kredytowa" + S(1) + karta, D(92),
       "  Lokaty" + S(12) + zera, D(92), "  Kredyty" + S(11) + zera, D(92), "  Inne" + S(14) + zera,
       D(92), "", kStopka});

  // One account at M = 1, 6 and 7. At 7 January is fetched into a column that is never shown
  // and counts through the balance before the window; the account opened in January 2026.
  sesja.pubWezelKont = QStringLiteral("q");
  sesja.pubKonto.id = 1;
  sesja.pubKonto.nazwa = QStringLiteral("Gotówka");
  const auto wiersz = [](int miesiac) {
    UstawOkres(QDate(2026, miesiac, 10), 3);
    return Napisz("frmRaportKontaWCzasie").value(5);
  };
  EXPECT_EQ(wiersz(1).toStdString(),
            ("Gotówka" + S(13) + K({"0", "0", "0", "0", "0", "90"}, 12)).toStdString());
  EXPECT_EQ(wiersz(6).toStdString(),
            ("Gotówka" + S(13) + K({"90", "70", "419,95", "419,95", "419,95", "419,95"}, 12))
                .toStdString());
  EXPECT_EQ(wiersz(7).toStdString(),
            ("Gotówka" + S(13) + K({"70", "419,95", "419,95", "419,95", "419,95", "419,95"}, 12))
                .toStdString());
  EXPECT_EQ(Napisz("frmRaportKontaWCzasie").value(2).toStdString(),
            ("Konto" + S(15) + K({"luty", "marzec", "kwiecień", "maj", "czerwiec", "lipiec"}, 12))
                .toStdString());
}

TEST_F(RaportyWCzasie, CategoriesOverTimeWithAChartUnderEachMainCategory) {
  sesja.pubKategoria.identyfikator = QStringLiteral("Root");
  sesja.pubKategoria.rodzaj = 2;
  Raport r;
  const QString zera = K({"0,00", "0,00", "0,00", "0,00"}, 11);
  TakieSame(Napisz("frmRaportKategorieWCzasie", &r),
            {"Wydatki według kategorii w czasie", "",
             S(28) + K({"październik", "listopad", "grudzień", "styczeń", "luty", "marzec"}, 11),
             "Kategoria" + S(19) + K({"2025", "2025", "2025", "2026", "2026", "2026"}, 11), D(94),
             "Dom" + S(13) + S(12) + zera + K({"300,00", "1 334,51"}, 11), "",
             S(4) + "Czynsz" + S(10) + S(8) + zera + K({"300,00", "1 234,56"}, 11),
             S(4) + "Prąd" + S(12) + S(8) + zera + K({"0,00", "99,95"}, 11),
             "Jedzenie" + S(8) + S(12) + zera + K({"20,00", "0,05"}, 11), "", "", kStopka});
  int obrazki = 0;
  for (const ElementDokumentu& e : r.dok.Elementy())
    if (e.rodzaj == ElementDokumentu::Obrazek) {
      ++obrazki;
      EXPECT_GT(e.obrazek.width(), 200);
    }
  EXPECT_EQ(obrazki, 2);  // Dom and Jedzenie, not their children
  EXPECT_EQ(DoRtf(r.dok).count("\\pict"), 2);

  // Income over time: the whole tree of the other kind.
  sesja.pubKategoria.rodzaj = 1;
  const QStringList przychody = Napisz("frmRaportKategorieWCzasie");
  EXPECT_EQ(przychody.value(0), QStringLiteral("Przychody według kategorii w czasie"));
  EXPECT_EQ(przychody.value(5).toStdString(),
            ("Pensja" + S(10) + S(12) + K({"0,00", "0,00", "0,00", "0,00", "0,00", "50,00"}, 11))
                .toStdString());
}

TEST_F(RaportyWCzasie, CounterpartiesOverTimeEveryOneOrOne) {
  sesja.pubKontrahent.id = 0;
  const QString zera = K({"0,00", "0,00", "0,00", "0,00"}, 12);
  const QString obrien = "O'Brien" + S(9) + S(8) + zera + K({"300,00", "1 334,51"}, 12);
  TakieSame(Napisz("frmRaportKontrahentaWCzasie"),
            {"Obroty z kontrahentami w czasie", "",
             S(24) + K({"październik", "listopad", "grudzień", "styczeń", "luty", "marzec"}, 12),
             "Kontrahent" + S(14) + K({"2025", "2025", "2025", "2026", "2026", "2026"}, 12), D(96),
             obrien, "Żabka" + S(11) + S(8) + zera + K({"20,00", "0,05"}, 12), "", kStopka});
  sesja.pubKontrahent.id = 1;
  EXPECT_EQ(Napisz("frmRaportKontrahentaWCzasie").mid(5, 2), QStringList({obrien, ""}));
}

// The runner builds the very document of the report window, byte for byte, and refuses what it
// does not know.
TEST_F(RaportyWCzasie, CommandLineRunnerWritesTheWindowsDocument) {
  const QString program = QCoreApplication::applicationDirPath() + QStringLiteral("/zorvik-raport");
  const auto uruchom = [&](const QStringList& argumenty, QByteArray* wyjscie, QByteArray* bledy) {
    QProcess p;
    p.start(program, argumenty);
    EXPECT_TRUE(p.waitForFinished(60000));
    *wyjscie = p.readAllStandardOutput();
    *bledy = p.readAllStandardError();
    return p.exitCode();
  };
  // The process has the real clock and the system's decimal mark; so does the window here.
  UstawDzis(QDate());
  sesja.pubSeparator = QLocale::system().decimalPoint();
  for (const auto& [nazwa, ekran] :
       {std::pair{"kategorie-w-czasie", "frmRaportKategorieWCzasie"},
        std::pair{"transakcje", "frmRaportTransakcji"}, std::pair{"konta", "frmRaportKont"}}) {
    QByteArray wyjscie, bledy;
    ASSERT_EQ(uruchom({"--dane", m.Folder(), "--raport", nazwa, "--data", "2026-03-15",
                       "--edition", "pl", "--format", "txt"},
                      &wyjscie, &bledy),
              0)
        << bledy.toStdString();
    // The window, opened as the menus open it.
    UstawOkres(QDate(2026, 3, 15), 3);
    UstawDzis(QDate());
    sesja.pubWezelKont = QStringLiteral("R");
    sesja.pubKategoria = {};
    sesja.pubKategoria.identyfikator = QStringLiteral("Root");
    sesja.pubKategoria.rodzaj = 2;
    sesja.pubRaportDetaliczny = false;
    frmRaport okno(*ZnajdzFormularz(QLatin1String(ekran)));
    ASSERT_TRUE(okno.TworzRaport());
    EXPECT_EQ(wyjscie, DoTekstu(okno.raport().dok).toUtf8()) << nazwa;
    EXPECT_GT(wyjscie.count('\n'), 8);
  }

  QByteArray wyjscie, bledy;
  EXPECT_EQ(uruchom({"--raport", "konta", "--format", "txt", "--miesiac"}, &wyjscie, &bledy), 2);
  EXPECT_TRUE(bledy.contains("unknown argument: --miesiac")) << bledy.toStdString();
  EXPECT_EQ(uruchom({"--raport", "bilans", "--format", "txt"}, &wyjscie, &bledy), 2);
  EXPECT_TRUE(bledy.contains("unknown report: bilans"));
  EXPECT_EQ(uruchom({"--help"}, &wyjscie, &bledy), 0);
  for (const char* n : {"kontrahenci-w-czasie", "sumaryczny", "--rodzaj-kategorii", "zakres"})
    EXPECT_TRUE(wyjscie.contains(n)) << n;

  // A file is written whole; a folder that does not exist is a failure with its reason.
  const QString plik = m.Folder() + QStringLiteral("/kontrahenci.csv");
  EXPECT_EQ(uruchom({"--dane", m.Folder(), "--raport", "kontrahenci-w-czasie", "--data",
                     "2026-03-15", "--format", "csv", "--out", plik},
                    &wyjscie, &bledy),
            0);
  QFile f(plik);
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  const QList<QByteArray> wiersze = f.readAll().split('\n');
  EXPECT_TRUE(wiersze.value(0).startsWith("\xEF\xBB\xBF"));
  EXPECT_TRUE(wiersze.value(1).startsWith("O'Brien;0")) << wiersze.value(1).toStdString();
  EXPECT_EQ(uruchom({"--dane", m.Folder(), "--raport", "konta", "--format", "pdf", "--out",
                     m.Folder() + QStringLiteral("/brak/x.pdf")},
                    &wyjscie, &bledy),
            1);
  EXPECT_FALSE(bledy.isEmpty());
}
