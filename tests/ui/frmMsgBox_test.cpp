#include "ui/frmMsgBox.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "common/magazyn_testowy.h"

namespace {
int px(int twipy) { return (twipy + 7) / 15; }

Komunikat komunikat(const QString& tekst, int przyciski = MsgOK, int ikona = IkonaInformacja) {
  return Komunikat{tekst, QStringLiteral(" Tytuł"), przyciski, ikona};
}

// A key press as the keyboard gives it, to the widget with the focus.
void klawisz(QWidget* cel, int key, const QString& tekst = {}) {
  QKeyEvent wcisniety(QEvent::KeyPress, key, Qt::NoModifier, tekst);
  QApplication::sendEvent(cel, &wcisniety);
  QKeyEvent puszczony(QEvent::KeyRelease, key, Qt::NoModifier, tekst);
  QApplication::sendEvent(cel, &puszczony);
}

QRect ramka(const frmMsgBox& d, const char* nazwa) {
  auto* w = d.findChild<QWidget*>(QLatin1String(nazwa));
  return w ? w->geometry() : QRect();
}
}  // namespace

// The dialog takes the size the text asks for: lines, the 60-character cap with its extra line,
// the 2600-twip minimum, and the buttons' places for one and for two buttons.
TEST(frmMsgBox, SizesItselfToTheText) {
  MagazynTestowy m;
  {
    frmMsgBox d(komunikat(QStringLiteral("Krótko.")));
    EXPECT_EQ(d.Rozmiar().wiersze, 2);
    EXPECT_EQ(ramka(d, "lblTekst").size(), QSize(px(2600), px(510)));
    const QRect ok = ramka(d, "cmdOK");
    EXPECT_EQ(ok.top(), px(510 + 465));
    EXPECT_LE(std::abs(ok.center().x() - d.width() / 2), 1) << "OK alone stands in the middle";
    EXPECT_GE(d.height(), ok.bottom() + 6) << "the button fits in the window";
  }
  {
    const QString dluga(61, QLatin1Char('x'));
    frmMsgBox d(komunikat(dluga));
    EXPECT_EQ(d.Rozmiar().wiersze, 3);
    EXPECT_EQ(d.Rozmiar().szerokoscEtykiety, 7260);
    EXPECT_EQ(ramka(d, "lblTekst").width(), px(7260));
    EXPECT_EQ(d.width(), px(7260 + 1200));
  }
  {
    frmMsgBox d(komunikat(QStringLiteral("a\r\nb\r\nc\r\nd\r\ne"), MsgTakNie, IkonaPytanie));
    EXPECT_EQ(d.Rozmiar().wiersze, 6);
    EXPECT_EQ(ramka(d, "lblTekst").height(), px(1530));
    const QRect tak = ramka(d, "cmdTak"), nie = ramka(d, "cmdNie");
    EXPECT_EQ(tak.top(), px(1530 + 465));
    EXPECT_EQ(nie.top(), tak.top());
    // Three equal gaps: before Tak, between the two, and (within rounding) after Nie.
    const int przed = tak.left(), miedzy = nie.left() - tak.right() - 1,
              po = d.width() - nie.right() - 1;
    EXPECT_LE(std::abs(przed - miedzy), 1);
    EXPECT_LE(std::abs(po - przed), 2);
    EXPECT_EQ(d.findChild<QPushButton*>(QStringLiteral("cmdOK")), nullptr);
    EXPECT_EQ(d.findChild<QPushButton*>(QStringLiteral("cmdTak"))->text(), QStringLiteral("&Tak"));
    EXPECT_EQ(d.findChild<QPushButton*>(QStringLiteral("cmdNie"))->text(), QStringLiteral("&Nie"));
  }
  {
    // A text far longer than the extra line allows still shows whole.
    frmMsgBox d(komunikat(QStringLiteral("słowo ").repeated(80)));
    auto* l = d.findChild<QLabel*>(QStringLiteral("lblTekst"));
    EXPECT_GE(l->height(), l->heightForWidth(l->width()));
    EXPECT_GT(ramka(d, "cmdOK").top(), l->geometry().bottom());
    EXPECT_GT(d.height(), ramka(d, "cmdOK").bottom());
  }
}

// Only the picture asked for shows; the title keeps the blank MyMsgbox puts in front.
TEST(frmMsgBox, ShowsOnePictureAndTheTitle) {
  MagazynTestowy m;
  for (int ikona = 0; ikona < 3; ++ikona) {
    frmMsgBox d(komunikat(QStringLiteral("x"), MsgOK, ikona));
    for (int i = 0; i < 3; ++i) {
      auto* obrazek = d.findChild<QLabel*>(QStringLiteral("imgObrazek(%1)").arg(i));
      ASSERT_NE(obrazek, nullptr);
      EXPECT_EQ(obrazek->isVisibleTo(&d), i == ikona);
      EXPECT_FALSE(obrazek->pixmap().isNull());
    }
  }
  frmMsgBox d(komunikat(QStringLiteral("x")));
  EXPECT_EQ(d.windowTitle(), QStringLiteral(" Tytuł"));
}

// T, N and Y answer like Alt with the letter of a button; a letter no button carries does
// nothing; Enter takes the default; the close box gives 0.
TEST(frmMsgBox, LetterKeysAnswer) {
  auto wynik = [](int jezyk, int przyciski, const QList<int>& klawisze) {
    MagazynTestowy m(jezyk);
    frmMsgBox d(komunikat(QStringLiteral("Pytanie?"), przyciski, IkonaPytanie));
    d.show();
    for (int k : klawisze) {
      QWidget* cel = d.focusWidget() ? d.focusWidget() : &d;
      if (k == 't' || k == 'n' || k == 'y')
        klawisz(cel, QChar(k).toUpper().unicode(), QString(QChar(k)));
      else
        klawisz(cel, k);
    }
    return std::make_pair(d.Wynik(), d.isVisible());
  };
  EXPECT_EQ(wynik(1, MsgTakNie, {Qt::Key_T}), std::make_pair(2, false));
  EXPECT_EQ(wynik(1, MsgTakNie, {'t'}), std::make_pair(2, false));
  EXPECT_EQ(wynik(1, MsgTakNie, {'n'}), std::make_pair(3, false));
  EXPECT_EQ(wynik(1, MsgTakNie, {Qt::Key_N}), std::make_pair(3, false));
  EXPECT_EQ(wynik(1, MsgTakNie, {'y'}), std::make_pair(0, true));
  EXPECT_EQ(wynik(2, MsgTakNie, {'y'}), std::make_pair(2, false));
  EXPECT_EQ(wynik(2, MsgTakNie, {Qt::Key_Y}), std::make_pair(2, false));
  EXPECT_EQ(wynik(2, MsgTakNie, {'n'}), std::make_pair(3, false));
  EXPECT_EQ(wynik(2, MsgTakNie, {'t'}), std::make_pair(0, true));
  EXPECT_EQ(wynik(1, MsgOK, {'t', 'n'}), std::make_pair(0, true));
  EXPECT_EQ(wynik(1, MsgOK, {Qt::Key_Return}), std::make_pair(1, false));
  EXPECT_EQ(wynik(1, MsgTakNie, {Qt::Key_Return}), std::make_pair(2, false));
  EXPECT_EQ(wynik(1, MsgTakNie, {Qt::Key_Escape}), std::make_pair(0, false));

  MagazynTestowy m;
  frmMsgBox d(komunikat(QStringLiteral("x"), MsgTakNie));
  d.show();
  d.close();
  EXPECT_EQ(d.Wynik(), 0);
}

// The real host shows the dialog modally and hands back its answer to MyMsgbox.
TEST(frmMsgBox, RealHostAnswersMyMsgbox) {
  MagazynTestowy m;
  HostOkienkowy prawdziwy;
  HostKomunikatow* dawny = UstawHostKomunikatow(&prawdziwy);
  QString tytul, tekst;
  QTimer::singleShot(0, [&] {
    auto* d = qobject_cast<frmMsgBox*>(QApplication::activeModalWidget());
    if (!d) return;
    tytul = d->windowTitle();
    tekst = d->findChild<QLabel*>(QStringLiteral("lblTekst"))->text();
    klawisz(d->focusWidget(), Qt::Key_N, QStringLiteral("n"));
  });
  const int w = MyMsgbox(QStringLiteral("Usunąć?\r\nNa pewno"), QStringLiteral("Kasowanie"),
                         MsgTakNie, IkonaPytanie);
  UstawHostKomunikatow(dawny);
  EXPECT_EQ(w, WynikNie);
  EXPECT_EQ(tytul, QStringLiteral(" Kasowanie"));
  EXPECT_EQ(tekst, QStringLiteral("Usunąć?\nNa pewno"));
}
