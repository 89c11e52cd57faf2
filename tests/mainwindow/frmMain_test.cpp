#include "mainwindow/frmMain.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QStatusBar>

#include "common/magazyn_testowy.h"
#include "mainwindow/polecenia_gui.h"
#include "store/baza.h"
#include "store/dzis.h"
#include "store/filtr.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/start.h"
#include "store/tekst.h"

namespace {
// Every command of the main window's menu.
QStringList poleceniaMenu() {
  QStringList n = {"mnuPrzychod",
                   "mnuWydatek",
                   "mnuTransakcjaWewnetrzna",
                   "mnuPrzychodZaplanowany",
                   "mnuWydatekZaplanowany",
                   "mnuTransakcjaWewnetrznaZaplanowana",
                   "mnuSzablonyPrzychody",
                   "mnuSzablonyWydatki",
                   "mnuSzablonyWewnetrzne",
                   "mnuKategoriePrzychodow",
                   "mnuKategorieWydatkow",
                   "mnuKonta",
                   "mnuKontrahent",
                   "mnuZmianaDaty",
                   "mnuUstawieniaUzytkownika",
                   "mnuUstawieniaKolorow",
                   "mnuPomoc",
                   "mnuKalendarz",
                   "mnuOkresowe",
                   "mnuSymulacjaOszczednosciKategorii",
                   "mnuPrzelew",
                   "mnuKonfiguracja",
                   "mnuKreator",
                   "mnuPomocPodstawowa",
                   "mnuUstawieniaInternetowe",
                   "mnuZadajPytanie",
                   "mnuOProgramie",
                   "mnuKoniecPracy",
                   "mnuKontaBiezace",
                   "mnuWydrukKontWCzasie",
                   "mnuKategoriePrzychodowBiezace",
                   "mnuKategorieWydatkowBiezace",
                   "mnuKategoriePrzychodowWCzasie",
                   "mnuKategorieWydatkowWCzasie",
                   "mnuKontrahenciBiezace",
                   "mnuKontrahenciWCzasie"};
  for (int i = 0; i < 6; ++i)
    n << QStringLiteral("mnuTransakcjeBiezacy(%1)").arg(i)
      << QStringLiteral("mnuTransferyBiezacy(%1)").arg(i);
  return n;
}

QLabel* panel(frmMain& f, int i) {
  return f.statusBar()->findChild<QLabel*>(QStringLiteral("Panel(%1)").arg(i));
}
}  // namespace

// Every menu command and all 23 buttons are there by name, with a caption, and enabled exactly
// when the command table has a handler for them. The payment slip is Polish only.
TEST(frmMain, EveryCommandPresentAndEnabledByItsHandler) {
  for (int jezyk : {1, 2}) {
    MagazynTestowy m(jezyk);
    WczytajSetup();
    frmMain f;
    for (const QString& nazwa : poleceniaMenu()) {
      auto* a = f.findChild<QAction*>(nazwa);
      ASSERT_NE(a, nullptr) << nazwa.toStdString();
      EXPECT_FALSE(a->text().isEmpty()) << nazwa.toStdString();
      EXPECT_EQ(a->isEnabled(), MaPolecenie(nazwa)) << nazwa.toStdString();
    }
    EXPECT_EQ(f.findChild<QAction*>(QStringLiteral("mnuPrzelew"))->isVisible(), jezyk == 1);
    const auto przyciski =
        f.findChildren<QPushButton*>(QRegularExpression(QStringLiteral("^cmdMenu\\(")));
    EXPECT_EQ(przyciski.size(), 23);
    for (int i = 0; i < 23; ++i) {
      const QString nazwa = QStringLiteral("cmdMenu(%1)").arg(i);
      auto* b = f.findChild<QPushButton*>(nazwa);
      ASSERT_NE(b, nullptr) << nazwa.toStdString();
      EXPECT_FALSE(b->text().isEmpty()) << nazwa.toStdString();
      EXPECT_FALSE(b->toolTip().isEmpty()) << nazwa.toStdString();
      EXPECT_EQ(b->isEnabled(), MaPolecenie(nazwa)) << nazwa.toStdString();
    }
    // Menus open by Alt: each title carries its letter, unique on the bar.
    QSet<QChar> litery;
    for (QAction* a : f.menuBar()->actions()) {
      const qsizetype i = a->text().indexOf(QLatin1Char('&'));
      ASSERT_GE(i, 0) << a->text().toStdString();
      EXPECT_FALSE(litery.contains(a->text().at(i + 1).toLower())) << a->text().toStdString();
      litery.insert(a->text().at(i + 1).toLower());
    }
    EXPECT_EQ(f.windowTitle(), Napis(QStringLiteral("frmMain1")));
    EXPECT_TRUE(f.windowTitle().startsWith(QStringLiteral("Zorvik")));
  }
}

// Buttons stand for their menu commands; 13 follows the edition; the exit commands work today.
TEST(frmMain, CommandTable) {
  MagazynTestowy m(1);
  EXPECT_EQ(NazwaPolecenia(QStringLiteral("cmdMenu(11)")), QStringLiteral("mnuKonta"));
  EXPECT_EQ(NazwaPolecenia(QStringLiteral("cmdMenu(0)")), QStringLiteral("mnuPrzychod"));
  EXPECT_EQ(NazwaPolecenia(QStringLiteral("cmdMenu(13)")), QStringLiteral("mnuPrzelew"));
  EXPECT_EQ(NazwaPolecenia(QStringLiteral("cmdMenu(18)")), QStringLiteral("cmdMenu(18)"));
  EXPECT_EQ(NazwaPolecenia(QStringLiteral("cmdMenu(22)")), QStringLiteral("cmdMenu(22)"));
  sesja.pubJezyk = 2;
  EXPECT_EQ(NazwaPolecenia(QStringLiteral("cmdMenu(13)")),
            QStringLiteral("mnuTransakcjeBiezacy(2)"));
  EXPECT_TRUE(MaPolecenie(QStringLiteral("mnuKoniecPracy")));
  EXPECT_TRUE(MaPolecenie(QStringLiteral("cmdMenu(18)")));
  EXPECT_FALSE(MaPolecenie(QStringLiteral("mnuNieMaTakiego")));
  EXPECT_FALSE(UruchomPolecenie(QStringLiteral("mnuNieMaTakiego")));
}

// cmdMenu(18) asks first and closes only on Yes; mnuKoniecPracy closes without a question. The
// close saves the notepad (exactly, apostrophe and all) and writes the reminder file.
TEST(frmMain, ExitCommandsAndShutDown) {
  MagazynTestowy m(1);
  WczytajSetup();
  const QString plik = QDir(m.Folder()).filePath(QStringLiteral("cont.rmd"));
  QFile::remove(plik);
  frmMain f;
  f.show();
  auto* notatnik = f.findChild<QPlainTextEdit*>(QStringLiteral("txtNotatnik"));
  ASSERT_NE(notatnik, nullptr);
  notatnik->setPlainText(QStringLiteral("Kupić mleko\nO'Brien"));

  m.host.odpowiedzi = {WynikNie};
  f.findChild<QPushButton*>(QStringLiteral("cmdMenu(18)"))->click();
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_EQ(m.host.pokazane[0].tekst, Napis(QStringLiteral("frmMain208")));
  EXPECT_EQ(m.host.pokazane[0].przyciski, MsgTakNie);
  EXPECT_TRUE(f.isVisible());
  EXPECT_FALSE(QFile::exists(plik));

  m.host.odpowiedzi = {WynikTak};
  f.findChild<QPushButton*>(QStringLiteral("cmdMenu(18)"))->click();
  EXPECT_FALSE(f.isVisible());
  EXPECT_TRUE(QFile::exists(plik));
  EXPECT_EQ(pubBaza()
                .Czytaj(QStringLiteral("SELECT notatnik FROM setup"))
                .Tekst(QStringLiteral("notatnik")),
            QStringLiteral("Kupić mleko\nO'Brien"));

  frmMain g;
  g.show();
  m.host.pokazane.clear();
  g.findChild<QAction*>(QStringLiteral("mnuKoniecPracy"))->trigger();
  EXPECT_FALSE(g.isVisible());
  EXPECT_TRUE(m.host.pokazane.empty());
}

// The status bar: working date and today by the short mask, the filter's long description, each
// behind its label; it follows a change of the filter when the window is refreshed, and the
// panels share the width in the fixed proportions.
TEST(frmMain, StatusBar) {
  MagazynTestowy m(1);
  WczytajSetup();
  sesja.pubFiltrCzasowy.rodzaj = 2;
  frmMain f;
  f.resize(1200, 700);
  f.show();
  QApplication::processEvents();
  EXPECT_EQ(panel(f, 2)->text(),
            QStringLiteral("Data robocza: ") + FormatDaty(Dzis(), sesja.pubFormatDaty_ddpmmmpyy));
  EXPECT_EQ(panel(f, 4)->text(),
            QStringLiteral("Dzisiaj: ") + FormatDaty(Dzis(), sesja.pubFormatDaty_ddpmmmpyy));
  EXPECT_TRUE(panel(f, 4)->text().contains(QStringLiteral("22")));
  EXPECT_EQ(panel(f, 5)->text(),
            QStringLiteral("Filtr: ") + FiltrCzasowy(sesja.pubFiltrCzasowy).opisDlugi);

  sesja.pubFiltrCzasowy.rodzaj = 3;
  sesja.pubFiltrCzasowy.pozycja = QDate(2026, 3, 5);
  OdswiezStatus();
  EXPECT_EQ(panel(f, 2)->text(), QStringLiteral("Data robocza: ") +
                                     FormatDaty(QDate(2026, 3, 5), sesja.pubFormatDaty_ddpmmmpyy));
  EXPECT_NE(panel(f, 2)->text(), panel(f, 4)->text());
  EXPECT_EQ(panel(f, 5)->text(),
            QStringLiteral("Filtr: ") + FiltrCzasowy(sesja.pubFiltrCzasowy).opisDlugi);

  const double udzialy[5] = {0.2, 0.26, 0.08, 0.165, 0.205};
  for (int szerokosc : {1200, 900}) {
    f.resize(szerokosc, 700);
    QApplication::processEvents();
    for (int i = 0; i < 5; ++i)
      EXPECT_NEAR(panel(f, i + 1)->width(), udzialy[i] * szerokosc, 0.03 * szerokosc)
          << "panel " << i + 1 << " at " << szerokosc;
  }
  EXPECT_GE(f.minimumSizeHint().width(), 0);
  f.resize(800, 600);
  QApplication::processEvents();
  EXPECT_EQ(f.width(), 800) << "the window shrinks to the smallest screen";
}
