// Colour themes: the two forms of a colour, the window painted in both focus states, headings,
// stripes, the standard profile leaving the window native, and the colour screen from the
// dialog's answer to every open window.

#include "setup/kolory.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "common/magazyn_testowy.h"
#include "mainwindow/frmMain.h"
#include "setup/frmKolory.h"
#include "setup/kolorowanie_gui.h"
#include "store/session.h"
#include "store/start.h"
#include "ui/pasujliste_gui.h"

namespace {
struct Okno {
  QDialog okno;
  QLabel* etykieta = new QLabel(QStringLiteral("Saldo"), &okno);
  QLabel* naglowek = new QLabel(QStringLiteral("Nagłówek"), &okno);
  QLineEdit* pole = new QLineEdit(&okno);
  QTreeWidget* lista = new QTreeWidget(&okno);
  QTreeWidget* drzewo = new QTreeWidget(&okno);
  Okno() {
    naglowek->setProperty("Tag", QStringLiteral("e"));
    lista->setRootIsDecorated(false);
  }
};

QColor kolor(QWidget* w, QPalette::ColorGroup g, QPalette::ColorRole r) {
  return w->palette().color(g, r);
}
}  // namespace

TEST(Kolory, BothFormsFocusStatesHeadingsAndStripes) {
  // Decimal with blue in the high byte, hexadecimal of the same form, and the system's own.
  EXPECT_EQ(KolorUstawienia(QStringLiteral("12303359")), QColor(0xFF, 0xBB, 0xBB));
  EXPECT_EQ(KolorUstawienia(QStringLiteral("&H00FFFFFF")), QColor(Qt::white));
  EXPECT_EQ(KolorUstawienia(QStringLiteral("&H47D9E4")), QColor(0xE4, 0xD9, 0x47));
  EXPECT_EQ(KolorUstawienia(QStringLiteral("&H8000000F")),
            QApplication::palette().color(QPalette::Button));
  EXPECT_EQ(KolorUstawienia(QStringLiteral("&h80000012")),
            QApplication::palette().color(QPalette::ButtonText));
  EXPECT_FALSE(KolorUstawienia(QStringLiteral("niebieski")).isValid());
  EXPECT_EQ(TekstKoloru(QColor(0xFF, 0xBB, 0xBB)), QStringLiteral("12303359"));
  EXPECT_EQ(TekstKoloru(Qt::black), QString()) << "black is a cancel";

  Okno o;
  const QStringList niebieski = ProfilKolorow(2);
  PomalujOkno(&o.okno, niebieski);
  EXPECT_EQ(kolor(&o.okno, QPalette::Active, QPalette::Window), QColor(0x47, 0xD9, 0xE4));
  EXPECT_EQ(kolor(&o.okno, QPalette::Inactive, QPalette::Window), QColor(0x40, 0x80, 0x80));
  EXPECT_EQ(kolor(o.etykieta, QPalette::Active, QPalette::WindowText), QColor(0x0F, 0x0F, 0x0F));
  EXPECT_EQ(kolor(o.etykieta, QPalette::Inactive, QPalette::WindowText), QColor(0xFF, 0xFF, 0x00));
  EXPECT_EQ(kolor(&o.okno, QPalette::Active, QPalette::Button), QColor(0x00, 0x80, 0xFF));
  // Headings keep their colours when the window loses the focus.
  for (auto g : {QPalette::Active, QPalette::Inactive}) {
    EXPECT_EQ(kolor(o.naglowek, g, QPalette::Window), QColor(0x00, 0x00, 0xA0));
    EXPECT_EQ(kolor(o.naglowek, g, QPalette::WindowText), QColor(Qt::white));
  }
  EXPECT_TRUE(o.naglowek->autoFillBackground());
  // A flat list is striped, the first row in the first colour; text boxes and trees keep the
  // system's colours.
  EXPECT_TRUE(o.lista->alternatingRowColors());
  EXPECT_EQ(kolor(o.lista, QPalette::Active, QPalette::Base), QColor(Qt::white));
  EXPECT_EQ(kolor(o.lista, QPalette::Active, QPalette::AlternateBase), QColor(0xC4, 0xF7, 0xFF));
  EXPECT_FALSE(o.drzewo->alternatingRowColors());
  EXPECT_EQ(kolor(o.pole, QPalette::Active, QPalette::Base),
            QApplication::palette().color(QPalette::Active, QPalette::Base));

  // The standard profile: the window's colours are the system's, as in any other program.
  PomalujOkno(&o.okno, ProfilKolorow(0));
  for (auto g : {QPalette::Active, QPalette::Inactive})
    for (auto r : {QPalette::Window, QPalette::WindowText, QPalette::Button})
      EXPECT_EQ(kolor(&o.okno, g, r), QApplication::palette().color(QPalette::Active, r));
  EXPECT_EQ(kolor(o.lista, QPalette::Active, QPalette::Base), QColor(Qt::white));
}

// Every profile's stripes carry readable text, in the main window's own lists as in any striped
// list (the black profile's dark stripes once had dark text); a list striped dark and then light
// again gets its dark text back.
TEST(Kolory, ListTextReadsOnEveryProfilesStripes) {
  MagazynTestowy m(1);
  WczytajSetup();
  const QStringList dawne = KoloryUstawien(sesja.pubUstawienia);
  for (int p = 0; p < LiczbaProfili; ++p) {
    UstawKoloryUstawien(sesja.pubUstawienia, ProfilKolorow(p));
    frmMain f;
    f.setAttribute(Qt::WA_DontShowOnScreen);
    f.show();
    KolorujFormularz(&f);
    f.OdswiezMain();
    f.OdswiezMainZaplanowane();
    f.OdswiezMainWewnetrzne();
    f.OdswiezMainWewnetrzneZaplanowane();
    int paski = 0;
    for (QAbstractItemView* l : f.findChildren<QAbstractItemView*>()) {
      if (!l->alternatingRowColors()) continue;
      ++paski;
      for (auto g : {QPalette::Active, QPalette::Inactive}) {
        const QPalette k = l->palette();
        // 4.0: the most the black profile's lighter stripe allows any text colour.
        EXPECT_GE(Kontrast(k.color(g, QPalette::Text), k.color(g, QPalette::Base)), 4.0)
            << "profile " << p << " " << l->objectName().toStdString();
        EXPECT_GE(Kontrast(k.color(g, QPalette::Text), k.color(g, QPalette::AlternateBase)), 4.0)
            << "profile " << p << " " << l->objectName().toStdString();
      }
    }
    EXPECT_GE(paski, 4) << "profile " << p;
    // The menu's titles too, on the window's background.
    auto* menu = f.findChild<QMenuBar*>();
    ASSERT_NE(menu, nullptr);
    EXPECT_GE(Kontrast(menu->palette().color(QPalette::Active, QPalette::ButtonText),
                       f.palette().color(QPalette::Active, QPalette::Window)),
              4.5)
        << "profile " << p;
  }
  UstawKoloryUstawien(sesja.pubUstawienia, dawne);

  Okno o;
  PomalujOkno(&o.okno, ProfilKolorow(5));
  EXPECT_EQ(kolor(o.lista, QPalette::Active, QPalette::Text), QColor(Qt::white));
  PomalujOkno(&o.okno, ProfilKolorow(1));
  EXPECT_EQ(kolor(o.lista, QPalette::Active, QPalette::Text),
            QApplication::palette().color(QPalette::Active, QPalette::Text));
  EXPECT_NEAR(Kontrast(Qt::black, Qt::white), 21.0, 0.01);
}

// The colour screen: a profile loads all nine, the dialog's black is refused, another colour goes
// in as its decimal text and leaves no profile chosen; OK stores them and repaints the windows
// that are open; Cancel changes nothing.
TEST(Kolory, ScreenStoresAndRepaintsOpenWindows) {
  MagazynTestowy m;
  UstawKoloryUstawien(sesja.pubUstawienia, ProfilKolorow(1));
  QWidget otwarte;
  otwarte.show();
  KolorujFormularz(&otwarte);
  QColor odpowiedz = Qt::black;
  UstawDialogKoloru([&](QWidget*, const QColor&) { return odpowiedz; });
  {
    frmKolory f;
    EXPECT_TRUE(f.findChild<QRadioButton*>(QStringLiteral("optProfil(1)"))->isChecked());
    f.findChild<QRadioButton*>(QStringLiteral("optProfil(5)"))->click();
    EXPECT_EQ(f.Kolory(), ProfilKolorow(5));
    f.findChild<QPushButton*>(QStringLiteral("cmdListaDwa"))->click();
    EXPECT_EQ(f.Kolory(), ProfilKolorow(5));
    odpowiedz = QColor(0x12, 0x34, 0x56);
    f.findChild<QPushButton*>(QStringLiteral("cmdListaDwa"))->click();
    EXPECT_EQ(f.Kolory().value(6), QStringLiteral("5649426"));
    EXPECT_FALSE(f.findChild<QRadioButton*>(QStringLiteral("optProfil(5)"))->isChecked());
    f.findChild<QPushButton*>(QStringLiteral("cmdAnuluj"))->click();
  }
  EXPECT_EQ(KoloryUstawien(sesja.pubUstawienia), ProfilKolorow(1));
  {
    frmKolory f;
    f.findChild<QRadioButton*>(QStringLiteral("optProfil(3)"))->click();
    f.findChild<QPushButton*>(QStringLiteral("cmdOK"))->click();
  }
  UstawDialogKoloru({});
  EXPECT_EQ(KoloryUstawien(sesja.pubUstawienia), ProfilKolorow(3));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM setup WHERE tloaktywne='11583073' AND "
                                  "listadwa='13827985' AND napisynieaktywne='986895'")),
            1);
  EXPECT_EQ(otwarte.palette().color(QPalette::Active, QPalette::Window), QColor(0x61, 0xBE, 0xB0));
}
