// A report out of the program: which format a chosen name gives, RTF that a real reader reads
// back, CSV that parses back into the report's rows, and PDF pages with the head repeated and
// every line printed once.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "common/magazyn_testowy.h"
#include "raport_pomoc.h"
#include "reports/zapis.h"
#include "store/napis.h"

using namespace testy_raportow;

namespace {

// Runs a tool of the machine; its standard output, or a failure.
QByteArray uruchom(const QString& program, const QStringList& argumenty, const QString& folder = {}) {
  QProcess p;
  if (!folder.isEmpty()) p.setWorkingDirectory(folder);
  p.start(program, argumenty);
  if (!p.waitForFinished(60000) || p.exitCode() != 0) {
    ADD_FAILURE() << program.toStdString() << " failed: " << p.readAllStandardError().toStdString();
    return {};
  }
  return p.readAllStandardOutput();
}

// The text of unrtf's HTML: line breaks, characters by number and by name, tags dropped.
QString tekstZHtml(QString html) {
  html = html.mid(html.indexOf(QLatin1String("<body>")) + 6);
  html = html.left(html.indexOf(QLatin1String("</body>")));
  html.remove(QLatin1Char('\n'));
  html.replace(QLatin1String("<br>"), QLatin1String("\n"));
  html.remove(QRegularExpression(QStringLiteral("<[^>]*>")));
  static const QRegularExpression liczba(QStringLiteral("&#(\\d+);"));
  QString w;
  qsizetype od = 0;
  for (auto it = liczba.globalMatch(html); it.hasNext();) {
    const auto m = it.next();
    w += html.mid(od, m.capturedStart() - od) + QChar(m.captured(1).toInt());
    od = m.capturedEnd();
  }
  w += html.mid(od);
  const std::pair<const char*, const char*> nazwy[] = {
      {"&oacute;", "ó"}, {"&Oacute;", "Ó"}, {"&nbsp;", " "}, {"&lt;", "<"},
      {"&gt;", ">"},     {"&quot;", "\""},  {"&amp;", "&"}};
  for (const auto& [n, z] : nazwy) w.replace(QLatin1String(n), QString::fromUtf8(z));
  return w;
}

// A minimal reader of our CSV: ";" between cells, quoted cells with doubled quotes.
std::vector<QStringList> czytajCsv(const QString& t) {
  std::vector<QStringList> wiersze;
  QStringList wiersz;
  QString komorka;
  bool cytat = false;
  for (qsizetype i = 0; i < t.size(); ++i) {
    const QChar c = t[i];
    if (cytat) {
      if (c == QLatin1Char('"') && i + 1 < t.size() && t[i + 1] == QLatin1Char('"')) {
        komorka += c;
        ++i;
      } else if (c == QLatin1Char('"')) {
        cytat = false;
      } else {
        komorka += c;
      }
    } else if (c == QLatin1Char('"')) {
      cytat = true;
    } else if (c == QLatin1Char(';')) {
      wiersz << komorka;
      komorka.clear();
    } else if (c == QLatin1Char('\r') && i + 1 < t.size() && t[i + 1] == QLatin1Char('\n')) {
      wiersz << komorka;
      wiersze.push_back(wiersz);
      wiersz.clear();
      komorka.clear();
      ++i;
    } else {
      komorka += c;
    }
  }
  return wiersze;
}

}  // namespace

TEST(ZapisRaportu, TheChosenNameDecidesTheFormat) {
  MagazynTestowy m;
  // A day below ten keeps its zero.
  UstawDzis(QDate(2026, 3, 5));
  EXPECT_EQ(NazwaDomyslna(QStringLiteral("frmRaportKategorii")),
            QStringLiteral("Raport_kategorii_05_mar_26"));
  // The window's save covers "a.rtf", "b.RTF" and a name with no extension;
  // here the rest: RTF only when the last three letters are exactly "rtf", a dot not needed;
  // the PDF and CSV filters win over the name; an extension the user typed stays.
  EXPECT_EQ(FormatDlaNazwy(QStringLiteral("/tmp/raportrtf"), 1), FormatZapisu::Rtf);
  EXPECT_EQ(FormatDlaNazwy(QStringLiteral("/tmp/raport.txt"), 0), FormatZapisu::Tekst);
  EXPECT_EQ(FormatDlaNazwy(QStringLiteral("/tmp/raport.rtf"), 2), FormatZapisu::Pdf);
  EXPECT_EQ(FormatDlaNazwy(QStringLiteral("/tmp/raport.rtf"), 3), FormatZapisu::Csv);
  EXPECT_EQ(NazwaZFiltrem(QStringLiteral("/tmp/r.RTF"), 0), QStringLiteral("/tmp/r.RTF"));
  EXPECT_EQ(NazwaZFiltrem(QStringLiteral("/tmp/r"), 3), QStringLiteral("/tmp/r.csv"));
  EXPECT_EQ(FiltryZapisu().size(), 4);

  // A folder that is not there: nothing written, and the reason comes back.
  Raport r;
  PoleRaportu(r, QStringLiteral("x"), 0, 0);
  QString blad;
  EXPECT_FALSE(ZapiszRaport(r.dok, QStringLiteral("/nie/ma/takiego/folderu/r.txt"),
                            FormatZapisu::Tekst, &blad));
  EXPECT_FALSE(blad.isEmpty());
}

TEST(ZapisRaportu, RtfReadBackByARealReader) {
  MagazynTestowy m;
  sesja.pubSeparator = QStringLiteral(",");
  Gospodarstwo();
  Sql(QStringLiteral("INSERT INTO kontrahent (skrocona,opis,nazwa) VALUES "
                     "('{Klamry} \\ i ; \"cudzysłów\"','','')"));
  Sql(QStringLiteral("INSERT INTO transakcje (data,rodzaj,przychod,wydatek,opis,kategoria,konto,"
                     "kontrahent) VALUES ('2026-03-10',2,0,999999999999.99,'','b',2,3)"));
  UstawOkres(QDate(2026, 3, 15), 3);
  sesja.pubKontrahent.id = 0;
  sesja.pubRaportDetaliczny = true;
  Raport r;
  TworzRaport(*ZnajdzFormularz(QStringLiteral("frmRaportKontrahenta")), r);
  QImage obraz(40, 20, QImage::Format_RGB32);
  obraz.fill(Qt::green);
  r.dok.Wstaw(obraz);
  PoleRaportu(r, QStringLiteral(" Zażółć gęślą jaźń ŻÓŁW "), 0, 2);

  QTemporaryDir dir;
  const QString plik = dir.filePath(QStringLiteral("raport.rtf"));
  ASSERT_TRUE(ZapiszRaport(r.dok, plik, FormatZapisu::Rtf));
  EXPECT_EQ(QFile(plik).permissions() & (QFile::ReadGroup | QFile::ReadOther), 0);
  const QString html =
      QString::fromUtf8(uruchom(QStringLiteral("unrtf"), {QStringLiteral("--html"), plik}, dir.path()));
  // Every line comes back as written, padding blanks, Polish letters and braces included.
  TakieSame(tekstZHtml(html).split(QLatin1Char('\n')), r.dok.Tekst().split(QLatin1Char('\n')));
  EXPECT_TRUE(html.contains(QLatin1String("<b> Za&#380;&oacute;&#322;&#263;")));
  // The picture is a PNG the reader took out whole.
  const QStringList obrazki = QDir(dir.path()).entryList({QStringLiteral("*.png")});
  ASSERT_EQ(obrazki.size(), 1);
  EXPECT_EQ(QImage(dir.filePath(obrazki.first())).size(), QSize(40, 20));
  // Plain text is the same lines, in UTF-8.
  ASSERT_TRUE(ZapiszRaport(r.dok, dir.filePath(QStringLiteral("r.RTF")), FormatZapisu::Tekst));
  QFile t(dir.filePath(QStringLiteral("r.RTF")));
  ASSERT_TRUE(t.open(QIODevice::ReadOnly));
  EXPECT_EQ(QString::fromUtf8(t.readAll()), r.dok.Tekst());
}

TEST(ZapisRaportu, CsvParsesBackIntoTheRows) {
  MagazynTestowy m;
  sesja.pubSeparator = QStringLiteral(",");
  Gospodarstwo();
  Sql(QStringLiteral("INSERT INTO kontrahent (skrocona,opis,nazwa) VALUES "
                     "('Sklep; \"Pod Dębem\"','','')"));
  Sql(QStringLiteral("INSERT INTO transakcje (data,rodzaj,przychod,wydatek,opis,kategoria,konto,"
                     "kontrahent) VALUES ('2026-03-10',1,12345678.91,0,'','a',2,3)"));
  UstawOkres(QDate(2026, 3, 15), 3);
  sesja.pubKontrahent.id = 0;
  Raport r;
  TworzRaport(*ZnajdzFormularz(QStringLiteral("frmRaportKontrahenta")), r);
  QTemporaryDir dir;
  const QString plik = dir.filePath(QStringLiteral("r.csv"));
  ASSERT_TRUE(ZapiszRaport(r.dok, plik, FormatZapisu::Csv));
  QFile f(plik);
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  const QByteArray dane = f.readAll();
  ASSERT_TRUE(dane.startsWith("\xEF\xBB\xBF"));
  const auto wiersze = czytajCsv(QString::fromUtf8(dane.mid(3)));
  EXPECT_EQ(wiersze, (std::vector<QStringList>{
                         {"Lp.", "Kontrahent", "Przychody", "Wydatki"},
                         {"2", "O'Brien", "0,00", "1334,51"},
                         {"3", "Żabka", "0,00", "0,05"},
                         {"4", "Sklep; \"Pod Dębem\"", "12345678,91", "0,00"}}));
}

TEST(ZapisRaportu, PdfPagesRepeatTheHeadAndLoseNoLine) {
  MagazynTestowy m;
  Raport r;
  r.pubSzerokoscRaportu = r.dok.szerokosc = 85;
  TytulRaportu(r, QStringLiteral("Raport próbny"));
  NowaLinia(r, 1);
  PoleRaportu(r, QStringLiteral("Kolumna"), 20, 0);
  NowaLinia(r, 1);
  LiniaRaportu(r, 85, false);
  r.dok.ZakonczNaglowek();
  for (int i = 1; i <= 300; ++i) {
    PoleRaportu(r, QStringLiteral("wiersz %1").arg(i), 20, i % 2 ? 1 : 2);
    // One line longer than the page is wide goes on in the next.
    if (i == 150) PoleRaportu(r, QString(200, QLatin1Char('x')), 0, 0);
    NowaLinia(r, 1);
  }
  StopkaRaportu(r);
  QTemporaryDir dir;
  const QString plik = dir.filePath(QStringLiteral("r.pdf"));
  ASSERT_TRUE(ZapiszRaport(r.dok, plik, FormatZapisu::Pdf));
  const QString info = QString::fromUtf8(uruchom(QStringLiteral("pdfinfo"), {plik}));
  const auto strony = QRegularExpression(QStringLiteral("Pages:\\s+(\\d+)")).match(info);
  ASSERT_TRUE(strony.hasMatch());
  const int ile = strony.captured(1).toInt();
  EXPECT_GE(ile, 3);
  EXPECT_LE(ile, 5);
  int wiersze = 0;
  for (int s = 1; s <= ile; ++s) {
    const QString tekst = QString::fromUtf8(uruchom(
        QStringLiteral("pdftotext"), {QStringLiteral("-layout"), QStringLiteral("-f"),
                                      QString::number(s), QStringLiteral("-l"), QString::number(s),
                                      plik, QStringLiteral("-")}));
    const QStringList linie = tekst.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    ASSERT_GE(linie.size(), 5);
    // Every page begins with the head and ends with its number.
    EXPECT_TRUE(linie[0].trimmed() == QStringLiteral("Raport próbny")) << s;
    EXPECT_TRUE(linie[1].trimmed() == QLatin1String("Kolumna")) << s;
    QString ostatnia = linie.last();
    if (ostatnia.trimmed().isEmpty() || ostatnia.startsWith(QLatin1Char('\f')))
      ostatnia = linie[linie.size() - 2];
    EXPECT_EQ(ostatnia.trimmed(), QStringLiteral("Strona %1").arg(s));
    for (const QString& l : linie)
      if (l.trimmed().startsWith(QLatin1String("wiersz "))) ++wiersze;
    if (s == ile) {
      EXPECT_TRUE(tekst.contains(Napis(QStringLiteral("drukowanie2"))));
    }
  }
  EXPECT_EQ(wiersze, 300);
}
