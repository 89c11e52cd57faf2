// Statements read from the fixture files in tests/imports/dane (written for these tests, Polish
// letters in Windows-1250 and UTF-8), and every kind of bad input.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "common/magazyn_testowy.h"
#include "imports/wyciag.h"

namespace {
QString fixture(const char* nazwa) {
  return QStringLiteral(ZORVIK_SRC_DIR "/tests/imports/dane/") + QLatin1String(nazwa);
}

Wyciag czytaj(const char* nazwa, OpcjeWyciagu o = {}) {
  BladWyciagu b;
  const auto w = CzytajWyciag(fixture(nazwa), o, &b);
  EXPECT_TRUE(w.has_value()) << nazwa << ": " << TekstBledu(b).toStdString();
  return w.value_or(Wyciag{});
}

// The error a file of these bytes gives.
BladWyciagu blad(const QByteArray& bajty, OpcjeWyciagu o = {}, const char* nazwa = "plik.txt") {
  QTemporaryDir d;
  const QString p = d.filePath(QLatin1String(nazwa));
  QFile f(p);
  f.open(QIODevice::WriteOnly);
  f.write(bajty);
  f.close();
  BladWyciagu b;
  b.rodzaj = BladImportu::BrakOperacji;
  b.wiersz = -1;
  EXPECT_FALSE(CzytajWyciag(p, o, &b).has_value()) << bajty.left(80).toStdString();
  return b;
}
}  // namespace

TEST(Wyciagi, AmountsAndDatesAsBanksWriteThem) {
  EXPECT_EQ(CzytajKwote(QStringLiteral("1.234,56")), 123456);
  EXPECT_EQ(CzytajKwote(QStringLiteral("-1 234,56 zł")), -123456);
  EXPECT_EQ(CzytajKwote(QStringLiteral("1,234.56")), 123456);
  EXPECT_EQ(CzytajKwote(QStringLiteral("+12.5 PLN")), 1250);
  EXPECT_EQ(CzytajKwote(QStringLiteral("(7,00)")), -700);
  EXPECT_EQ(CzytajKwote(QStringLiteral("999 999 999 999,99")), 99999999999999LL);
  EXPECT_EQ(CzytajKwote(QStringLiteral("-999\u00a0999\u00a0999\u00a0999,99")), -99999999999999LL);
  for (const char* zla : {"", "abc", "1,2,3", "12,345", "1 000 000 000 000,00", "12,5x", "--5"})
    EXPECT_FALSE(CzytajKwote(QString::fromUtf8(zla)).has_value()) << zla;
  EXPECT_EQ(CzytajDate(QStringLiteral("03.11.2026")), QDate(2026, 11, 3));
  EXPECT_EQ(CzytajDate(QStringLiteral("2026-11-03")), QDate(2026, 11, 3));
  EXPECT_EQ(CzytajDate(QStringLiteral("03-11-2026")), QDate(2026, 11, 3));
  EXPECT_FALSE(CzytajDate(QStringLiteral("31.02.2026")).isValid());
  EXPECT_EQ(RachunekGrupami(CyfryRachunku(QStringLiteral("PL61 1090-1014 0000 0712 1981 2874"))),
            QStringLiteral("61 1090 1014 0000 0712 1981 2874"));
}

TEST(Wyciagi, CsvInBothEncodingsWithHeaderLinesAndColumnsFound) {
  MagazynTestowy m;  // the messages' texts
  FormatWyciagu f = FormatWyciagu::Auto;
  BladWyciagu b;
  const auto pko = CzytajWyciag(fixture("pko_cp1250.csv"), {}, &b, &f);
  ASSERT_TRUE(pko) << TekstBledu(b).toStdString();
  EXPECT_EQ(f, FormatWyciagu::Csv);
  EXPECT_EQ(pko->rachunek, QStringLiteral("61109010140000071219812874"));
  ASSERT_EQ(pko->pozycje.size(), 5u);  // the closing-balance line is not an entry
  const PozycjaWyciagu& p0 = pko->pozycje[0];
  EXPECT_EQ(p0.wiersz, 6);
  EXPECT_EQ(p0.data, QDate(2026, 11, 3));
  EXPECT_EQ(p0.grosze, -1250);
  EXPECT_EQ(p0.opis, QStringLiteral("Zakup kartą: Żabka Łódź"));
  EXPECT_EQ(p0.kontrahent, QStringLiteral("ŻABKA POLSKA SP. Z O.O."));
  const PozycjaWyciagu& p1 = pko->pozycje[1];
  EXPECT_EQ(p1.opis, QStringLiteral("Przelew: czynsz za listopad; lokal 5"));
  EXPECT_EQ(p1.kontrahent, QStringLiteral("Spółdzielnia Mieszkaniowa „Śródmieście”"));
  EXPECT_EQ(p1.rachunek, QStringLiteral("12102010260000150201234567"));
  EXPECT_EQ(p1.grosze, -123456);
  EXPECT_EQ(pko->pozycje[2].grosze, 850000);
  EXPECT_EQ(pko->pozycje[4].kontrahent, QStringLiteral("Zdzisław O'Brien"));
  EXPECT_EQ(pko->pozycje[4].grosze, 4500);

  // Read as UTF-8 on purpose, the Windows-1250 file is refused at its first foreign line.
  OpcjeWyciagu utf;
  utf.kodowanie = Kodowanie::Utf8;
  EXPECT_FALSE(CzytajWyciag(fixture("pko_cp1250.csv"), utf, &b));
  EXPECT_EQ(b.rodzaj, BladImportu::Kodowanie);
  EXPECT_EQ(b.wiersz, 6);
  EXPECT_TRUE(TekstBledu(b).contains(QStringLiteral("6")));

  const Wyciag mb = czytaj("mbank_utf8.csv");
  EXPECT_EQ(mb.rachunek, QStringLiteral("27114020040000300201355387"));
  ASSERT_EQ(mb.pozycje.size(), 3u);
  EXPECT_EQ(mb.pozycje[0].grosze, 50000);
  EXPECT_EQ(mb.pozycje[0].idBanku, QStringLiteral("TX-9001"));
  EXPECT_EQ(mb.pozycje[1].opis, QStringLiteral("Odsetki od lokaty – grudzień"));
  EXPECT_EQ(mb.pozycje[2].grosze, -20000);  // an expense column written with a minus
  EXPECT_EQ(mb.pozycje[2].data, QDate(2026, 11, 21));

  // No header: the columns come from the first line with a date and an amount; a mapping
  // given by the user wins.
  const Wyciag bez = czytaj("bez_naglowka.csv");
  ASSERT_EQ(bez.pozycje.size(), 2u);
  EXPECT_EQ(bez.pozycje[1].opis, QStringLiteral("Księgarnia Świat Książki"));
  EXPECT_EQ(bez.pozycje[1].grosze, -5990);
  OpcjeWyciagu o;
  o.mapowanie.separator = QLatin1Char(';');
  o.mapowanie.naglowek = -1;
  o.mapowanie.data = 0;
  o.mapowanie.kwota = 2;
  o.mapowanie.kontrahent = 1;
  const Wyciag zMapa = czytaj("bez_naglowka.csv", o);
  ASSERT_EQ(zMapa.pozycje.size(), 2u);
  EXPECT_EQ(zMapa.pozycje[0].kontrahent, QStringLiteral("Opłata za kartę"));
  EXPECT_TRUE(zMapa.pozycje[0].opis.isEmpty());
}

TEST(Wyciagi, Mt940QifAndOfx) {
  MagazynTestowy m;
  FormatWyciagu f = FormatWyciagu::Auto;
  BladWyciagu b;
  const auto mt = CzytajWyciag(fixture("wyciag_cp1250.sta"), {}, &b, &f);
  ASSERT_TRUE(mt) << TekstBledu(b).toStdString();
  EXPECT_EQ(f, FormatWyciagu::Mt940);
  EXPECT_EQ(mt->rachunek, QStringLiteral("61109010140000071219812874"));
  ASSERT_EQ(mt->pozycje.size(), 4u);
  EXPECT_EQ(mt->pozycje[0].opis, QStringLiteral("Zakup kartą: Żabka Łódź ul. Piotrkowska 1"));
  EXPECT_EQ(mt->pozycje[0].kontrahent, QStringLiteral("ŻABKA POLSKA SP. Z O.O."));
  EXPECT_EQ(mt->pozycje[0].idBanku, QStringLiteral("REF-0001"));
  EXPECT_EQ(mt->pozycje[0].grosze, -1250);
  EXPECT_EQ(mt->pozycje[0].wiersz, 6);
  // A description over three lines, the name split between ~32 and ~33, the IBAN in ~38.
  EXPECT_EQ(mt->pozycje[1].opis, QStringLiteral("Przelew: czynsz za listopad; lokal 5"));
  EXPECT_EQ(mt->pozycje[1].kontrahent, QStringLiteral("Spółdzielnia Mieszkaniowa „Śródmieście”"));
  EXPECT_EQ(mt->pozycje[1].rachunek, QStringLiteral("12102010260000150201234567"));
  EXPECT_EQ(mt->pozycje[2].grosze, 850000);
  EXPECT_EQ(mt->pozycje[3].rachunek, QStringLiteral("27114020040000300201355387"));

  const Wyciag qif = czytaj("konto_utf8.qif");
  ASSERT_EQ(qif.pozycje.size(), 2u);
  EXPECT_EQ(qif.pozycje[0].kontrahent, QStringLiteral("Żabka Łódź"));
  EXPECT_EQ(qif.pozycje[1].data, QDate(2026, 11, 20));
  EXPECT_EQ(qif.pozycje[1].grosze, 123456);
  EXPECT_EQ(qif.pozycje[1].kontrahent, QStringLiteral("Zakład Energetyczny „Światło”"));

  const auto ofx = CzytajWyciag(fixture("wyciag.ofx"), {}, &b, &f);
  ASSERT_TRUE(ofx) << TekstBledu(b).toStdString();
  EXPECT_EQ(f, FormatWyciagu::Ofx);
  EXPECT_EQ(ofx->rachunek, QStringLiteral("61109010140000071219812874"));
  ASSERT_EQ(ofx->pozycje.size(), 2u);
  EXPECT_EQ(ofx->pozycje[0].grosze, -1250);
  EXPECT_EQ(ofx->pozycje[0].data, QDate(2026, 11, 3));
  EXPECT_EQ(ofx->pozycje[0].kontrahent, QStringLiteral("Żabka Łódź"));
  EXPECT_EQ(ofx->pozycje[1].idBanku, QStringLiteral("OFX-2"));
}

TEST(Wyciagi, BadInputSaysWhatAndWhere) {
  MagazynTestowy m(2);
  const QByteArray naglowek = "Data operacji;Opis;Kwota\n";
  struct Przypadek {
    QByteArray bajty;
    BladImportu rodzaj;
    int wiersz;
  };
  const Przypadek przypadki[] = {
      {"", BladImportu::Pusty, 0},
      {"  \n\n", BladImportu::Pusty, 0},
      {naglowek + "03.11.2026;Kawa;1.234,56\n04.11.2026;Chleb;12,5x\n", BladImportu::Kwota, 3},
      {naglowek + "03.11.2026;Kawa;-1 234,56 zł\n31.02.2026;Chleb;3,00\n", BladImportu::Data, 3},
      // The last line cut short: the amount's column is missing.
      {naglowek + "03.11.2026;Kawa;-3,00\n04.11.2026;Chl", BladImportu::ZaMaloKolumn, 3},
      {"Opis;Saldo\nKawa;3,00\n", BladImportu::BrakKolumn, 0},
      {naglowek, BladImportu::BrakOperacji, 0},
      {":20:X\n:25:/PL61109010140000071219812874\n:60F:C261101PLN0,00\n:61:26110X1103D12,50N073\n"
       ":62F:C261130PLN0,00\n",
       BladImportu::Znacznik, 4},
      {":20:X\n:25:/PL61109010140000071219812874\n:60F:C261101PLN0,00\n:6A:zly\n",
       BladImportu::Znacznik, 4},
      {":20:X\n:25:/PL61109010140000071219812874\n:60F:C261101PLN0,00\n"
       ":61:2611031103D12,50N073NONREF\n:86:Kawa\n",
       BladImportu::Urwany, 5},
      {"!Type:Bank\nD03.11.2026\nT-12,50\n^\nD04.11.2026\nT-1,00\n", BladImportu::Urwany, 6},
      {"!Type:Bank\nD03.11.2026\nTdwanaście\n^\n", BladImportu::Kwota, 3},
      {"!Type:Bank\nD03.11.2026\nZ-1\n^\n", BladImportu::LiniaQif, 3},
  };
  for (const Przypadek& p : przypadki) {
    const BladWyciagu b = blad(p.bajty);
    EXPECT_EQ(b.rodzaj, p.rodzaj) << p.bajty.toStdString();
    EXPECT_EQ(b.wiersz, p.wiersz) << p.bajty.toStdString();
    const QString t = TekstBledu(b);
    EXPECT_FALSE(t.isEmpty());
    if (p.wiersz > 0) {
      EXPECT_TRUE(t.contains(QString::number(p.wiersz))) << t.toStdString();
    }
  }
  // The piece at fault is named.
  EXPECT_TRUE(TekstBledu(blad(naglowek + "04.11.2026;Chleb;12,5x\n")).contains(QStringLiteral("12,5x")));
  // OFX that is not one; a file too big to be a statement is refused before it is read.
  OpcjeWyciagu ofx;
  ofx.format = FormatWyciagu::Ofx;
  EXPECT_EQ(blad("to nie jest OFX\n", ofx).rodzaj, BladImportu::Ofx);
  QTemporaryDir d;
  QFile duzy(d.filePath(QStringLiteral("duzy.csv")));
  ASSERT_TRUE(duzy.open(QIODevice::WriteOnly));
  ASSERT_TRUE(duzy.resize(100LL * 1024 * 1024));
  duzy.close();
  BladWyciagu b;
  EXPECT_FALSE(CzytajWyciag(duzy.fileName(), {}, &b));
  EXPECT_EQ(b.rodzaj, BladImportu::ZaDuzy);
  EXPECT_TRUE(TekstBledu(b).contains(QStringLiteral("100")));
  EXPECT_FALSE(CzytajWyciag(d.filePath(QStringLiteral("nie-ma.csv")), {}, &b));
  EXPECT_EQ(b.rodzaj, BladImportu::Otwarcie);
}
