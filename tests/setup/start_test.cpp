#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include "common/magazyn_testowy.h"
#include "setup/start_pomoc.h"
#include "mainwindow/frmMain.h"
#include "setup/frmHaslo.h"
#include "setup/frmStart.h"
#include "setup/haslo.h"
#include "setup/start_gui.h"
#include "store/baza.h"
#include "store/dzis.h"
#include "store/napis.h"
#include "store/session.h"


TEST(Start, CommandLine) {
  ParametryStartu p = CzytajWierszPolecen({});
  EXPECT_TRUE(p.blad.isEmpty());
  EXPECT_EQ(p.jezyk, 0);
  EXPECT_FALSE(p.przypomnienie);
  p = CzytajWierszPolecen({QStringLiteral("a")});
  EXPECT_TRUE(p.przypomnienie);
  EXPECT_TRUE(p.blad.isEmpty());
  p = CzytajWierszPolecen({QStringLiteral("--edition"), QStringLiteral("en"),
                           QStringLiteral("--dane"), QStringLiteral("/x y"),
                           QStringLiteral("--gallery=/g")});
  EXPECT_EQ(p.jezyk, 2);
  EXPECT_EQ(p.folderDanych, QStringLiteral("/x y"));
  EXPECT_EQ(p.galeria, QStringLiteral("/g"));
  EXPECT_FALSE(p.przypomnienie);
  EXPECT_EQ(CzytajWierszPolecen({QStringLiteral("--edition=pl")}).jezyk, 1);
  for (const QStringList& zle :
       {QStringList{QStringLiteral("--edition"), QStringLiteral("de")},
        QStringList{QStringLiteral("b")}, QStringList{QStringLiteral("a"), QStringLiteral("a")},
        QStringList{QStringLiteral("--dane")}, QStringList{QStringLiteral("--nic")}})
    EXPECT_FALSE(CzytajWierszPolecen(zle).blad.isEmpty()) << zle.join(' ').toStdString();
}

// A missing store ends the run with the one plain message (in the edition's language, as the
// store's texts can't be read); the reminder run ends without a word. Each is logged. A file
// that is no store is not reported as missing but as one that can't be opened.
TEST(Start, MissingStore) {
  QTemporaryDir pusty;
  QStringList teksty;
  SrodowiskoStartu s;
  s.komunikatBrakuBazy = [&](const QString& tekst, const QString& tytul) {
    teksty << tekst << tytul;
  };
  ZamknijBaze();
  Start w = Main(parametry(pusty.path(), 1), s);
  EXPECT_EQ(w.wynik, WynikStartu::Koniec);
  EXPECT_NE(w.kodWyjscia, 0);
  ASSERT_EQ(teksty.size(), 2);
  EXPECT_TRUE(teksty[0].contains(QStringLiteral("Program zostanie zamknięty")))
      << teksty[0].toStdString();
  EXPECT_TRUE(teksty[0].contains(QDir::toNativeSeparators(pusty.path())));
  EXPECT_FALSE(teksty[1].isEmpty());
  teksty.clear();
  Main(parametry(pusty.path(), 2), s);
  ASSERT_EQ(teksty.size(), 2);
  EXPECT_TRUE(teksty[0].contains(QStringLiteral("will close")));

  teksty.clear();
  ParametryStartu p = parametry(pusty.path());
  p.przypomnienie = true;
  EXPECT_EQ(Main(p, s).wynik, WynikStartu::Koniec);
  EXPECT_TRUE(teksty.isEmpty());
  EXPECT_TRUE(widoczneOkna().isEmpty());
  EXPECT_FALSE(QFile::exists(QDir(pusty.path()).filePath(QStringLiteral("money.fns"))))
      << "no store is made where none was";
  const QString plik = QDir(pusty.path()).filePath(QStringLiteral("money.fns"));
  EXPECT_EQ(logDanych(pusty.path()).count(plik + QStringLiteral(": no such file")), 3)
      << logDanych(pusty.path()).toStdString();

  // Not a store: an empty file, a plain database, a cut-off file. (Whole pages of bytes that
  // mean nothing can't be told from a store locked by a password: the gate asks for it.)
  QByteArray smieci(5000, '\0');
  for (int i = 0; i < smieci.size(); ++i) smieci[i] = char((i * 7919) % 251);
  for (const QByteArray& obce : {QByteArray(), QByteArray("SQLite format 3\0", 16) + smieci.left(4080), smieci}) {
    ASSERT_TRUE(zapisz(plik, obce));
    teksty.clear();
    EXPECT_EQ(Main(parametry(pusty.path(), 1), s).kodWyjscia, 1);
    ASSERT_EQ(teksty.size(), 2);
    EXPECT_EQ(teksty[1], Napis(QStringLiteral("Module159")));
    EXPECT_TRUE(teksty[0].contains(QDir::toNativeSeparators(plik))) << teksty[0].toStdString();
    EXPECT_FALSE(teksty[0].contains(QStringLiteral("Nie znaleziono")));
    EXPECT_EQ(zawartosc(plik), obce) << "the file is left as it was";
  }
  EXPECT_EQ(logDanych(pusty.path()).count(plik + QStringLiteral(":")), 6);
}

// The reminder run writes the reminder file afresh and shows nothing.
TEST(Start, ReminderRunWritesTheFileOnly) {
  MagazynTestowy m;
  const QString plik = QDir(m.Folder()).filePath(QStringLiteral("cont.rmd"));
  QFile::remove(plik);
  ParametryStartu p = parametry(m.Folder());
  p.przypomnienie = true;
  const Start w = Main(p, ekran(1024));
  EXPECT_EQ(w.wynik, WynikStartu::Koniec);
  EXPECT_TRUE(QFile::exists(plik));
  EXPECT_TRUE(widoczneOkna().isEmpty());
  EXPECT_TRUE(m.host.pokazane.empty());
  EXPECT_EQ(frmMain::Instancja(), nullptr);
}

// A normal start on an empty store: session defaults, the setup row, the main window at normal
// size, the splash gone. A second start brings the first forward and ends. Closing writes the
// reminder file and frees the single-instance name.
TEST(Start, NormalRunSecondCopyAndShutDown) {
  MagazynTestowy m;
  sesja.pubFiltrCzasowy.rodzaj = 5;
  const Start w = Main(parametry(m.Folder()), ekran(1280));
  ASSERT_EQ(w.wynik, WynikStartu::Dziala);
  frmMain* f = frmMain::Instancja();
  ASSERT_NE(f, nullptr);
  EXPECT_TRUE(f->isVisible());
  EXPECT_FALSE(f->isMaximized());
  EXPECT_EQ(OknoStartowe(), nullptr);
  EXPECT_TRUE(sesja.pubPierwszyStart);
  EXPECT_EQ(sesja.pubFiltrCzasowy.rodzaj, 2);
  EXPECT_EQ(sesja.pubFiltrCzasowy.pozycja, Dzis());
  EXPECT_EQ(sesja.pubFiltrCzasowy.od, Dzis());
  EXPECT_EQ(sesja.pubFiltrCzasowy.do_, Dzis());
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM setup")), 1);
  EXPECT_EQ(sesja.pubUstawienia.tloaktywne, QStringLiteral("12303359"));
  EXPECT_FALSE(sesja.pubUstawienia.imieniny.isEmpty()) << "22 November has names";
  EXPECT_TRUE(m.host.pokazane.empty());

  f->showMinimized();
  bool blad = true;
  EXPECT_TRUE(CzyJuzUruchomiony(blad));
  EXPECT_FALSE(blad);
  EXPECT_EQ(Main(parametry(m.Folder()), ekran(1280)).wynik, WynikStartu::Koniec);
  for (int i = 0; i < 20 && f->isMinimized(); ++i)
    QApplication::processEvents(QEventLoop::AllEvents, 20);
  EXPECT_FALSE(f->isMinimized()) << "the running copy came forward";
  EXPECT_EQ(frmMain::Instancja(), f) << "no second main window";

  const QString plik = QDir(m.Folder()).filePath(QStringLiteral("cont.rmd"));
  QFile::remove(plik);
  zamknijGlowne();
  EXPECT_EQ(frmMain::Instancja(), nullptr);
  EXPECT_TRUE(QFile::exists(plik));
  EXPECT_FALSE(CzyJuzUruchomiony(blad));
}

// A store with a category only is no first run; the screen's width decides: below 800 the
// message and the end, exactly 800 a maximised window.
TEST(Start, ScreenWidthAndFirstRun) {
  MagazynTestowy m;
  pubBaza().Wykonaj(
      QStringLiteral("INSERT INTO kategorie (identyfikator, rodzaj, nazwa, kategoria) VALUES ('a', "
                     "1, 'P', 'Root')"));
  EXPECT_EQ(Main(parametry(m.Folder()), ekran(799)).wynik, WynikStartu::Koniec);
  EXPECT_FALSE(sesja.pubPierwszyStart);
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_EQ(m.host.pokazane[0].tekst, Napis(QStringLiteral("Module140")));
  EXPECT_EQ(frmMain::Instancja(), nullptr);
  EXPECT_TRUE(widoczneOkna().isEmpty());

  ASSERT_EQ(Main(parametry(m.Folder()), ekran(800)).wynik, WynikStartu::Dziala);
  ASSERT_NE(frmMain::Instancja(), nullptr);
  EXPECT_TRUE(frmMain::Instancja()->isMaximized());
  zamknijGlowne();
}

// A store with a password: three wrong tries end the run with nothing changed in the store;
// the right one opens the main window.
TEST(Start, PasswordGate) {
  MagazynTestowy m;
  const QString hash = HashHasla(QStringLiteral("Tajne1"));
  pubBaza().Wykonaj(
      QStringLiteral("INSERT INTO setup (tloaktywne, haslo, notatnik) VALUES ('1', ") +
      SqlTekst(hash) + QStringLiteral(", 'n')"));
  auto wiersz = [] {
    const Rekordy rs = pubBaza().Czytaj(QStringLiteral("SELECT * FROM setup"));
    QStringList w;
    for (int i = 0; i < rs.LiczbaPol(); ++i) w << rs.Pole(i).toString();
    return w.join(QLatin1Char('|'));
  };
  const QString setupPrzed = wiersz();

  odpowiadajBramie({QStringLiteral("tajne1"), QStringLiteral("TAJNE1"), QStringLiteral("Tajne")});
  EXPECT_EQ(Main(parametry(m.Folder()), ekran(1280)).wynik, WynikStartu::Koniec);
  EXPECT_EQ(frmMain::Instancja(), nullptr);
  EXPECT_EQ(sesja.pubUstawienia.haslo, hash);
  EXPECT_EQ(wiersz(), setupPrzed);
  EXPECT_EQ(m.host.pokazane.size(), 4u);
  EXPECT_TRUE(widoczneOkna().isEmpty());
  bool blad = false;
  EXPECT_FALSE(CzyJuzUruchomiony(blad)) << "an ended run leaves no listener";

  m.host.pokazane.clear();
  odpowiadajBramie({QStringLiteral("Tajne1")});
  ASSERT_EQ(Main(parametry(m.Folder()), ekran(1280)).wynik, WynikStartu::Dziala);
  EXPECT_NE(frmMain::Instancja(), nullptr);
  EXPECT_TRUE(sesja.pubUstawienia.haslo.isEmpty());
  EXPECT_TRUE(m.host.pokazane.empty());
  zamknijGlowne();
  EXPECT_EQ(wiersz(), setupPrzed) << "the store keeps its password";
}
