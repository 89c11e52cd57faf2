// The report window as the user drives it: the report written on opening, stopped on its first
// row or half-way, saved through the file dialog and printed with a selection.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFrame>
#include <QPrinter>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextEdit>

#include "common/magazyn_testowy.h"
#include "raport_pomoc.h"
#include "reports/frmRaport.h"
#include "store/napis.h"
#include "ui/dialogi_gui.h"
#include "ui/nawigacja_gui.h"

using namespace testy_raportow;

namespace {

class OknoRaportu : public ::testing::Test {
 protected:
  void SetUp() override {
    sesja.pubSeparator = QStringLiteral(",");
    Gospodarstwo();
    UstawOkres(QDate(2026, 3, 15), 3);
    sesja.pubKategoria.rodzaj = 2;
  }
  void TearDown() override {
    Dialogi::UstawDialogZapisu({});
    Dialogi::UstawDialogDruku({});
  }
  template <typename T>
  static T* znajdz(QWidget* okno, const char* nazwa) {
    T* w = okno->findChild<T*>(QLatin1String(nazwa));
    EXPECT_NE(w, nullptr) << nazwa;
    return w;
  }
  MagazynTestowy m;
};

}  // namespace

TEST_F(OknoRaportu, WrittenOnOpeningThenSavedInEveryFormat) {
  // The screen is reached by its name; it writes itself as soon as it shows.
  EXPECT_TRUE(Nawigacja::Dostepny(QStringLiteral("frmRaportSumaryczny")));
  frmRaport okno(*ZnajdzFormularz(QStringLiteral("frmRaportSumaryczny")));
  okno.show();
  for (int i = 0; i < 50 && !okno.Gotowy(); ++i) QCoreApplication::processEvents();
  ASSERT_TRUE(okno.Gotowy());
  EXPECT_FALSE(znajdz<QFrame>(&okno, "fraCzekac")->isVisible());
  EXPECT_TRUE(znajdz<QPushButton>(&okno, "cmdZapisz")->isEnabled());
  auto* rtb = znajdz<QTextEdit>(&okno, "rtbRaport");
  EXPECT_TRUE(rtb->isReadOnly());
  EXPECT_EQ(rtb->toPlainText(), okno.raport().dok.Tekst());
  EXPECT_TRUE(rtb->toPlainText().contains(QLatin1String("Razem")));

  QTemporaryDir dir;
  QString proponowana;
  std::optional<Dialogi::WybranyPlik> odpowiedz;
  Dialogi::UstawDialogZapisu([&](QWidget*, const QString&, const QString& nazwa, const QStringList&) {
    proponowana = nazwa;
    return odpowiedz;
  });
  // Cancelled: nothing written, nothing said.
  znajdz<QPushButton>(&okno, "cmdZapisz")->click();
  EXPECT_EQ(proponowana, QStringLiteral("Raport_sumaryczny_15_mar_26"));
  EXPECT_TRUE(QDir(dir.path()).isEmpty());

  const auto zapisz = [&](const QString& nazwa, int filtr) {
    odpowiedz = Dialogi::WybranyPlik{dir.filePath(nazwa), filtr};
    znajdz<QPushButton>(&okno, "cmdZapisz")->click();
    QFile f(dir.filePath(nazwa));
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
  };
  EXPECT_TRUE(zapisz(QStringLiteral("a.rtf"), 0).startsWith("{\\rtf1"));
  EXPECT_TRUE(zapisz(QStringLiteral("b.RTF"), 0).startsWith("okres  miesiąc (marzec)"));
  EXPECT_TRUE(zapisz(QStringLiteral("c.pdf"), 2).startsWith("%PDF"));
  EXPECT_TRUE(zapisz(QStringLiteral("d.csv"), 3).contains("Razem;320,00;1334,56;1014,56;317,05"));
  odpowiedz = Dialogi::WybranyPlik{dir.filePath(QStringLiteral("e")), 0};
  znajdz<QPushButton>(&okno, "cmdZapisz")->click();
  EXPECT_TRUE(QFile::exists(dir.filePath(QStringLiteral("e.rtf"))));
  EXPECT_TRUE(m.host.pokazane.empty());

  // A save that fails says why and keeps the report.
  odpowiedz = Dialogi::WybranyPlik{QStringLiteral("/nie/ma/folderu/r.txt"), 1};
  znajdz<QPushButton>(&okno, "cmdZapisz")->click();
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_TRUE(m.host.pokazane[0].tekst.startsWith(Napis(QStringLiteral("drukowanie8"))));
  EXPECT_EQ(rtb->toPlainText(), okno.raport().dok.Tekst());
}

TEST_F(OknoRaportu, StoppedOnTheFirstRowOrHalfWayKeepsHeadTotalsAndClosingLine) {
  {
    frmRaport okno(*ZnajdzFormularz(QStringLiteral("frmRaportSumaryczny")));
    znajdz<QPushButton>(&okno, "cmdPrzerwij")->click();
    EXPECT_FALSE(okno.TworzRaport());
    const QStringList linie = Linie(okno.raport().dok);
    TakieSame(linie.mid(3), {D(107), "", D(107),
                             "Razem" + S(53) + "0,00" + S(11) + "0,00" + S(11) + "0,00", D(107),
                             "", "Zorvik - raport sporządzony 15 marca 2026"});
    EXPECT_TRUE(znajdz<QPushButton>(&okno, "cmdDrukuj")->isEnabled());
  }
  // Stopped while the bar stands at the second row: the first row and its totals stay.
  frmRaport okno(*ZnajdzFormularz(QStringLiteral("frmRaportSumaryczny")));
  auto* pasek = znajdz<QProgressBar>(&okno, "pbrPasek");
  std::vector<int> kroki;
  okno.poKroku = [&](int k) {
    kroki.push_back(k);
    EXPECT_TRUE(znajdz<QFrame>(&okno, "fraCzekac")->isVisibleTo(&okno));
    EXPECT_EQ(pasek->maximum(), 3);
    if (k == 2) znajdz<QPushButton>(&okno, "cmdPrzerwij")->click();
  };
  EXPECT_FALSE(okno.TworzRaport());
  EXPECT_EQ(kroki, (std::vector<int>{1, 2}));
  const QStringList linie = Linie(okno.raport().dok);
  EXPECT_TRUE(linie[5].startsWith(QLatin1String("Dom (93,75 %)")));
  EXPECT_EQ(linie[6], D(107));
  EXPECT_EQ(linie[7], "Razem" + S(51) + "300,00" + S(7) + "1 334,51" + S(7) + "1 034,51" + S(6) +
                          "344,84 %");
}

TEST_F(OknoRaportu, PrintsTheWholeReportOrTheSelection) {
  frmRaport okno(*ZnajdzFormularz(QStringLiteral("frmRaportSumaryczny")));
  ASSERT_TRUE(okno.TworzRaport());
  QTemporaryDir dir;
  bool oferowano = false;
  bool wybrac = true;
  Dialogi::UstawDialogDruku([&](QWidget*, QPrinter& p, bool zaznaczenie, bool* tylko) {
    oferowano = zaznaczenie;
    p.setOutputFormat(QPrinter::PdfFormat);
    p.setOutputFileName(dir.filePath(QStringLiteral("druk.pdf")));
    *tylko = zaznaczenie && wybrac;
    return true;
  });
  const auto wydruk = [&] {
    znajdz<QPushButton>(&okno, "cmdDrukuj")->click();
    QProcess p;
    p.start(QStringLiteral("pdftotext"),
            {QStringLiteral("-layout"), dir.filePath(QStringLiteral("druk.pdf")), QStringLiteral("-")});
    p.waitForFinished();
    return QString::fromUtf8(p.readAllStandardOutput());
  };
  EXPECT_TRUE(wydruk().contains(QLatin1String("Razem")));
  EXPECT_FALSE(oferowano);

  // The line of Jedzenie selected: the dialog opens with the selection chosen, and only it is
  // printed.
  auto* rtb = znajdz<QTextEdit>(&okno, "rtbRaport");
  const QString tekst = rtb->toPlainText();
  QTextCursor k = rtb->textCursor();
  k.setPosition(int(tekst.indexOf(QLatin1String("Jedzenie"))));
  k.setPosition(int(tekst.indexOf(QLatin1String("- 99,75 %")) + 9), QTextCursor::KeepAnchor);
  rtb->setTextCursor(k);
  const QString wybrane = wydruk();
  EXPECT_TRUE(oferowano);
  EXPECT_TRUE(wybrane.contains(QLatin1String("Jedzenie (6,25 %)")));
  EXPECT_FALSE(wybrane.contains(QLatin1String("Razem")));
  EXPECT_FALSE(wybrane.contains(QLatin1String("Dom")));
  // The user may choose the whole report again in the dialog.
  wybrac = false;
  EXPECT_TRUE(wydruk().contains(QLatin1String("Razem")));
}
