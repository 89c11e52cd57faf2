// Help and the about box: every page in both languages, the page of each window, the search,
// F1 from any window; and every text of the set-up screens in both languages.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTextBrowser>

#include "common/magazyn_testowy.h"
#include "setup/frmOProgramie.h"
#include "setup/frmPomoc.h"
#include "setup/pomoc.h"
#include "store/napis.h"
#include "store/session.h"
#include "ui/nawigacja_gui.h"

TEST(Pomoc, EveryPageInBothLanguagesAndEveryWindowsPage) {
  MagazynTestowy m;
  QHash<QString, QString> polskie;
  for (int jezyk : {1, 2}) {
    sesja.pubJezyk = jezyk;
    for (const QString& s : StronyPomocy()) {
      const QString tresc = TrescStrony(s);
      EXPECT_TRUE(tresc.contains(QStringLiteral("<h1>"))) << s.toStdString() << jezyk;
      EXPECT_FALSE(TytulStrony(s).isEmpty()) << s.toStdString();
      if (jezyk == 1)
        polskie.insert(s, tresc);
      else
        EXPECT_NE(tresc, polskie.value(s)) << s.toStdString() << " is not translated";
    }
  }
  sesja.pubJezyk = 1;
  EXPECT_EQ(StronaOkna(QStringLiteral("frmKreatorKonta")), QStringLiteral("kreator"));
  EXPECT_EQ(StronaOkna(QStringLiteral("frmEdycjaTransakcjiWewnetrznej")), QStringLiteral("edytory"));
  EXPECT_EQ(StronaOkna(QStringLiteral("frmEdycjaPrzelewu")), QStringLiteral("przelewy"));
  EXPECT_EQ(StronaOkna(QStringLiteral("frmPrzegladKont")), QStringLiteral("przegladarki"));
  EXPECT_EQ(StronaOkna(QStringLiteral("frmRaportKategorii")), QStringLiteral("raporty"));
  EXPECT_EQ(StronaOkna(QStringLiteral("frmMain")), QStringLiteral("glowne"));
  EXPECT_EQ(StronaOkna(QString()), QStringLiteral("glowne"));
  // Search: every word, any case, Polish letters included.
  EXPECT_EQ(SzukajWPomocy(QStringLiteral("HASŁO pulpitu")), QStringList{QStringLiteral("ustawienia")});
  EXPECT_TRUE(SzukajWPomocy(QStringLiteral("xyzzy")).isEmpty());
  EXPECT_EQ(SzukajWPomocy(QString()), StronyPomocy());
}

// The help window opens at the asking window's page, F1 from any window asks for it, the search
// narrows the contents and says when nothing is found; the about box names the program.
TEST(Pomoc, WindowF1SearchAndAboutBox) {
  MagazynTestowy m;
  QDialog ustawienia;
  ustawienia.setObjectName(QStringLiteral("frmUstawienia"));
  auto* pole = new QLineEdit(&ustawienia);
  {
    frmPomoc f(pole);
    EXPECT_EQ(f.Strona(), QStringLiteral("ustawienia"));
    auto* spis = f.findChild<QListWidget*>(QStringLiteral("lstSpis"));
    EXPECT_EQ(spis->count(), StronyPomocy().size());
    EXPECT_EQ(spis->currentItem()->data(Qt::UserRole).toString(), QStringLiteral("ustawienia"));
    auto* szukaj = f.findChild<QLineEdit*>(QStringLiteral("txtSzukaj"));
    szukaj->setText(QStringLiteral("kaucja"));
    EXPECT_EQ(spis->count(), 0);
    EXPECT_FALSE(f.findChild<QLabel*>(QStringLiteral("lblBrak"))->isHidden());
    szukaj->setText(QStringLiteral("transfer"));
    ASSERT_GT(spis->count(), 0);
    EXPECT_TRUE(f.findChild<QTextBrowser*>(QStringLiteral("txtStrona"))
                    ->toPlainText()
                    .contains(QStringLiteral("ransfer")));
  }
  QString zKtorego;
  auto dawny = Nawigacja::Zarejestruj(QStringLiteral("frmPomoc"), [&](QWidget* rodzic) {
    zKtorego = rodzic ? rodzic->window()->objectName() : QString();
  });
  WlaczPomocF1();
  QKeyEvent f1(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
  QApplication::sendEvent(pole, &f1);
  Nawigacja::Zarejestruj(QStringLiteral("frmPomoc"), dawny);
  EXPECT_EQ(zKtorego, QStringLiteral("frmUstawienia"));

  frmOProgramie o;
  EXPECT_EQ(o.findChild<QLabel*>(QStringLiteral("lblNazwa"))->text(), QStringLiteral("Zorvik 2.0"));
  EXPECT_FALSE(o.findChild<QLabel*>(QStringLiteral("lblWersja"))->text().isEmpty());
  auto* zamknij = o.findChild<QPushButton*>(QStringLiteral("cmdZamknij"));
  ASSERT_NE(zamknij, nullptr);
  zamknij->click();
  EXPECT_EQ(o.result(), QDialog::Accepted);
}

// The set-up screens build many keys from a number: every row of their language files has a
// Polish and an English text, and the two differ where a word is to be translated.
TEST(Pomoc, SetUpTextsInBothLanguages) {
  const QDir jezyki(QStringLiteral(ZORVIK_SRC_DIR "/data/jezyki"));
  int wiersze = 0;
  for (const char* plik :
       {"frmKreator", "frmKreatorWitamy", "frmKreatorKategorie", "frmKreatorKonta",
        "frmKreatorKontrahenci", "frmKreatorKolory", "frmKolory", "podgladKolorow", "frmUstawienia",
        "frmKonfiguracja", "frmPomoc", "frmOProgramie", "frmPrzypomnienia"}) {
    QFile f(jezyki.filePath(QLatin1String(plik) + QStringLiteral(".tsv")));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly)) << plik;
    for (const QString& l : QString::fromUtf8(f.readAll()).split(QLatin1Char('\n'))) {
      if (l.isEmpty() || l.startsWith(QLatin1Char('#'))) continue;
      const QStringList p = l.split(QLatin1Char('\t'));
      ASSERT_EQ(p.size(), 3) << l.toStdString();
      EXPECT_FALSE(p[1].trimmed().isEmpty() || p[2].trimmed().isEmpty()) << l.toStdString();
      ++wiersze;
    }
  }
  EXPECT_GT(wiersze, 150);
}
