// The amount field on a real QLineEdit and the two calculator windows, driven by key events.

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <functional>

#include "calculator/PoleKwoty_gui.h"
#include "calculator/frmKalkulatorCaly.h"
#include "common/magazyn_testowy.h"
#include "store/session.h"

namespace {

int KodKlawisza(QChar c) {
  if (c.isDigit()) return Qt::Key_0 + (c.unicode() - u'0');
  if (c.isLetter()) return Qt::Key_A + (c.toUpper().unicode() - u'A');
  static const QString znaki = QStringLiteral(",.+-*/%=");
  static const int kody[] = {Qt::Key_Comma,    Qt::Key_Period, Qt::Key_Plus,    Qt::Key_Minus,
                             Qt::Key_Asterisk, Qt::Key_Slash,  Qt::Key_Percent, Qt::Key_Equal};
  const qsizetype i = znaki.indexOf(c);
  return i < 0 ? int(Qt::Key_Space) : kody[i];
}

void Klawisz(QWidget* w, int kod, const QString& tekst = {},
             Qt::KeyboardModifiers mod = Qt::NoModifier) {
  QKeyEvent wcisniety(QEvent::KeyPress, kod, mod, tekst);
  QApplication::sendEvent(w, &wcisniety);
  QKeyEvent puszczony(QEvent::KeyRelease, kod, mod, tekst);
  QApplication::sendEvent(w, &puszczony);
}

void Pisz(QWidget* w, const QString& tekst) {
  for (QChar c : tekst)
    Klawisz(w, KodKlawisza(c), QString(c), c.isUpper() ? Qt::ShiftModifier : Qt::NoModifier);
}

template <typename T>
T* Kontrolka(QWidget* okno, const char* nazwa) {
  T* w = okno->findChild<T*>(QString::fromLatin1(nazwa));
  EXPECT_NE(w, nullptr) << nazwa;
  return w;
}

// Runs `kroki` on the modal window once it is up, while `otworz` shows it. A window still open
// after a few seconds is closed and the test fails instead of hanging.
void ZOknem(const std::function<void()>& otworz, const std::function<void(QDialog*)>& kroki) {
  bool wykonane = false;
  QTimer::singleShot(0, [&] {
    auto* okno = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(okno, nullptr);
    wykonane = true;
    kroki(okno);
  });
  QTimer straz;
  straz.setSingleShot(true);
  QObject::connect(&straz, &QTimer::timeout, [] {
    if (auto* okno = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
      ADD_FAILURE() << "window left open: " << okno->objectName().toStdString();
      okno->reject();
    }
  });
  straz.start(5000);
  otworz();
  EXPECT_TRUE(wykonane);
}

struct Formularz {
  QWidget okno;
  QLineEdit* kwota = new QLineEdit(&okno);
  QLineEdit* opis = new QLineEdit(&okno);
  Formularz() {
    auto* uklad = new QVBoxLayout(&okno);
    kwota->setObjectName(QStringLiteral("txtKwota"));
    uklad->addWidget(kwota);
    uklad->addWidget(opis);
    okno.resize(300, 120);
  }
};

TEST(PoleKwotyEkran, RealKeysOnAnAmountField) {
  sesja.pubSeparator = QStringLiteral(",");
  Formularz f;
  PoleKwoty* pole = PoleKwoty::Podlacz(f.kwota);
  EXPECT_EQ(PoleKwoty::Podlacz(f.kwota), pole);
  EXPECT_EQ(PoleKwoty::Z(f.kwota), pole);
  EXPECT_EQ(PoleKwoty::Z(f.opis), nullptr);
  f.kwota->setText(QStringLiteral("0"));
  f.okno.show();
  f.okno.activateWindow();
  QApplication::setActiveWindow(&f.okno);
  QApplication::processEvents();
  // Activation puts the amount into shape.
  EXPECT_EQ(f.kwota->text(), QStringLiteral("0,00"));

  int enter = 0;
  QObject::connect(f.kwota, &QLineEdit::returnPressed, [&] { ++enter; });
  f.opis->setFocus();
  f.kwota->setFocus(Qt::TabFocusReason);  // selects all, as a Tab does
  Pisz(f.kwota, QStringLiteral("1234,5"));
  EXPECT_EQ(f.kwota->text(), QStringLiteral("1234,50"));
  EXPECT_EQ(f.kwota->cursorPosition(), 6);
  // Refused keys, and a paste of free text.
  QGuiApplication::clipboard()->setText(QStringLiteral("abc 999"));
  Pisz(f.kwota, QStringLiteral("xC -*"));
  Klawisz(f.kwota, Qt::Key_V, QStringLiteral("\x16"), Qt::ControlModifier);
  EXPECT_EQ(f.kwota->text(), QStringLiteral("1234,50"));
  // Enter belongs to the window: the field passes it on.
  Klawisz(f.kwota, Qt::Key_Return, QStringLiteral("\r"));
  EXPECT_EQ(enter, 1);
  EXPECT_EQ(f.kwota->text(), QStringLiteral("1234,50"));

  // Backspace edits; leaving the field restores the shape.
  Klawisz(f.kwota, Qt::Key_Backspace, QStringLiteral("\b"));
  EXPECT_EQ(f.kwota->text(), QStringLiteral("1234,0"));
  EXPECT_EQ(pole->Wartosc(), 1234.0);
  f.opis->setFocus();
  EXPECT_EQ(f.kwota->text(), QStringLiteral("1234,00"));

  // Keys that type nothing move the caret as usual; a digit then goes where it stands.
  f.kwota->setFocus(Qt::MouseFocusReason);
  f.kwota->setCursorPosition(7);
  Klawisz(f.kwota, Qt::Key_Home);
  EXPECT_EQ(f.kwota->cursorPosition(), 0);
  Pisz(f.kwota, QStringLiteral("9"));
  EXPECT_EQ(f.kwota->text(), QStringLiteral("91234,00"));
  Pisz(f.kwota, QStringLiteral("c"));
  EXPECT_EQ(f.kwota->text(), QStringLiteral("0"));
  f.opis->setFocus();
  EXPECT_EQ(f.kwota->text(), QStringLiteral("0,00"));

  pole->UstawWartosc(0.1 + 0.2);
  EXPECT_EQ(f.kwota->text(), QStringLiteral("0,30"));
  EXPECT_EQ(pole->Wartosc(), 0.3);
  pole->UstawWartosc(1234.565);
  EXPECT_EQ(f.kwota->text(), QStringLiteral("1234,57"));
  sesja.pubSeparator = QStringLiteral(".");
}

TEST(KalkulatorEkran, OpenedBesideFieldReturnsItsResult) {
  MagazynTestowy magazyn;
  sesja.pubSeparator = QStringLiteral(",");
  Formularz f;
  PoleKwoty* pole = PoleKwoty::Podlacz(f.kwota);
  f.kwota->setText(QStringLiteral("100,00"));
  f.okno.show();
  QApplication::processEvents();

  // Keyboard: 100 + 25 % Enter gives 125, and cmdZamknij hands it back.
  ZOknem([&] { pole->OtworzKalkulator(); },
         [&](QDialog* okno) {
           EXPECT_EQ(okno->objectName(), QStringLiteral("frmKalkulator"));
           EXPECT_EQ(okno->windowTitle(), QStringLiteral("Kalkulator"));
           auto* ekran = Kontrolka<QLineEdit>(okno, "txtWyswietlacz");
           EXPECT_EQ(ekran->text(), QStringLiteral("100,00"));
           Pisz(ekran, QStringLiteral("+25%"));
           EXPECT_EQ(ekran->text(), QStringLiteral("25,00"));
           Klawisz(ekran, Qt::Key_Return, QStringLiteral("\r"));
           EXPECT_EQ(ekran->text(), QStringLiteral("125,00"));
           Kontrolka<QPushButton>(okno, "cmdZamknij")->click();
         });
  EXPECT_EQ(f.kwota->text(), QStringLiteral("125,00"));
  const QPoint rog = f.kwota->mapToGlobal(QPoint(f.kwota->width(), f.kwota->height()));
  EXPECT_GT(sesja.pubKalkLewa, rog.x());
  EXPECT_EQ(sesja.pubKalkGora, rog.y());

  // Esc closes and hands nothing over.
  ZOknem([&] { pole->OtworzKalkulator(); },
         [&](QDialog* okno) {
           auto* ekran = Kontrolka<QLineEdit>(okno, "txtWyswietlacz");
           Pisz(ekran, QStringLiteral("7"));
           EXPECT_EQ(ekran->text(), QStringLiteral("7,00"));
           Klawisz(ekran, Qt::Key_Escape, QStringLiteral("\x1b"));
         });
  EXPECT_EQ(f.kwota->text(), QStringLiteral("125,00"));

  // Buttons: 5 / 0 = leaves the display and shows no message; Delete clears the display.
  ZOknem([&] { pole->OtworzKalkulator(); },
         [&](QDialog* okno) {
           auto klik = [&](const char* nazwa) { Kontrolka<QPushButton>(okno, nazwa)->click(); };
           auto* ekran = Kontrolka<QLineEdit>(okno, "txtWyswietlacz");
           klik("cmdLiczba(5)");
           klik("cmdLiczba(1)");
           klik("cmdDzialanie(3)");
           Pisz(ekran, QStringLiteral("0"));
           klik("cmdOblicz");
           EXPECT_EQ(ekran->text(), QStringLiteral("0,00"));
           klik("cmdDzialanie(0)");
           klik("cmdLiczba(8)");
           klik("cmdOblicz");
           EXPECT_EQ(ekran->text(), QStringLiteral("8,00"));  // nothing left of 51 / 0
           Klawisz(ekran, Qt::Key_Delete);
           EXPECT_EQ(ekran->text(), QStringLiteral("0"));
           klik("cmdLiczba(4)");
           klik("cmdKoma");
           klik("cmdLiczba(2)");
           klik("cmdPlusMinus");
           EXPECT_EQ(ekran->text(), QStringLiteral("4,20"));
           klik("cmdZamknij");
         });
  EXPECT_EQ(f.kwota->text(), QStringLiteral("4,20"));

  // "=" right behind an operator works it out with the memory: 200 - = gives -200,00.
  ZOknem([&] { pole->OtworzKalkulator(); },
         [&](QDialog* okno) {
           auto klik = [&](const char* nazwa) { Kontrolka<QPushButton>(okno, nazwa)->click(); };
           auto* ekran = Kontrolka<QLineEdit>(okno, "txtWyswietlacz");
           Pisz(ekran, QStringLiteral("200"));
           klik("cmdDzialanie(1)");
           klik("cmdOblicz");
           EXPECT_EQ(ekran->text(), QStringLiteral("-200,00"));
           klik("cmdC");
           Pisz(ekran, QStringLiteral("200*="));
           EXPECT_EQ(ekran->text(), QStringLiteral("0,00"));
           Klawisz(ekran, Qt::Key_Escape, QStringLiteral("\x1b"));
         });
  EXPECT_EQ(f.kwota->text(), QStringLiteral("4,20"));
  EXPECT_TRUE(magazyn.host.pokazane.empty());
}

TEST(KalkulatorEkran, FreeStandingCalculatorInBothEditions) {
  for (int jezyk : {1, 2}) {
    MagazynTestowy magazyn(jezyk);
    sesja.pubSeparator = jezyk == 1 ? QStringLiteral(",") : QStringLiteral(".");
    sesja.pubKalkWartosc = QStringLiteral("left by someone else");
    QWidget glowne;
    glowne.setGeometry(100, 100, 900, 600);
    glowne.show();
    ZOknem([&] { frmKalkulatorCaly::Pokaz(&glowne); },
           [&](QDialog* okno) {
             EXPECT_EQ(okno->objectName(), QStringLiteral("frmKalkulatorCaly"));
             EXPECT_EQ(okno->windowTitle(),
                       jezyk == 1 ? QStringLiteral("Kalkulator") : QStringLiteral("Calculator"));
             EXPECT_EQ(Kontrolka<QPushButton>(okno, "cmdZamknij")->text(),
                       jezyk == 1 ? QStringLiteral("&Zamknij") : QStringLiteral("&Close"));
             EXPECT_EQ(Kontrolka<QPushButton>(okno, "cmdKoma")->text(), sesja.pubSeparator);
             EXPECT_TRUE(glowne.frameGeometry().contains(okno->frameGeometry().topLeft()));
             auto* ekran = Kontrolka<QLineEdit>(okno, "txtWyswietlacz");
             EXPECT_EQ(ekran->text(), jezyk == 1 ? QStringLiteral("0,00") : QStringLiteral("0.00"));
             Pisz(ekran, QStringLiteral("6*7="));
             Kontrolka<QPushButton>(okno, "cmdZamknij")->click();
           });
    EXPECT_EQ(sesja.pubKalkWartosc, jezyk == 1 ? QStringLiteral("42,00") : QStringLiteral("42.00"));
  }
}

}  // namespace
