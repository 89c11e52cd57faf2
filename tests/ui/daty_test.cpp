// The working date and the date range dialogs.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QPushButton>

#include "common/magazyn_testowy.h"
#include "ui/frmZakresDat.h"
#include "ui/frmZmianaDaty.h"
#include "store/napis.h"
#include "store/session.h"

namespace {

// A key pressed and released on a widget, as the keyboard sends it.
void Klawisz(QWidget* w, int klawisz) {
  QKeyEvent wcisniety(QEvent::KeyPress, klawisz, Qt::NoModifier);
  QApplication::sendEvent(w, &wcisniety);
  QKeyEvent puszczony(QEvent::KeyRelease, klawisz, Qt::NoModifier);
  QApplication::sendEvent(w, &puszczony);
}

template <class T = QWidget>
T* W(const QObject* o, const char* nazwa) {
  T* w = o->findChild<T*>(QLatin1String(nazwa));
  EXPECT_NE(w, nullptr) << nazwa;
  return w;
}
}  // namespace

// The working date opens at the session's, OK takes the picked day, Cancel and Esc change
// nothing.
TEST(ZmianaDaty, OkTakesThePickedDayCancelKeepsIt) {
  MagazynTestowy m;
  sesja.pubFiltrCzasowy.pozycja = QDate(2026, 5, 20);
  {
    frmZmianaDaty d;
    auto* kal = W<QCalendarWidget>(&d, "mvwData");
    EXPECT_EQ(kal->selectedDate(), QDate(2026, 5, 20));
    EXPECT_EQ(kal->firstDayOfWeek(), Qt::Monday);
    kal->setSelectedDate(QDate(2025, 12, 31));
    W<QPushButton>(&d, "cmdAnuluj")->click();
    EXPECT_EQ(sesja.pubFiltrCzasowy.pozycja, QDate(2026, 5, 20));
  }
  frmZmianaDaty d;
  d.show();
  W<QCalendarWidget>(&d, "mvwData")->setSelectedDate(QDate(2025, 12, 31));
  Klawisz(&d, Qt::Key_Escape);
  EXPECT_EQ(sesja.pubFiltrCzasowy.pozycja, QDate(2026, 5, 20));
  frmZmianaDaty e;
  W<QCalendarWidget>(&e, "mvwData")->setSelectedDate(QDate(2025, 12, 31));
  W<QPushButton>(&e, "cmdOK")->click();
  EXPECT_EQ(e.result(), int(QDialog::Accepted));
  EXPECT_EQ(sesja.pubFiltrCzasowy.pozycja, QDate(2025, 12, 31));
  EXPECT_EQ(sesja.pubFiltrCzasowy.od, QDate(2026, 11, 22));  // the range is another thing
}

// The range: a reversed range is told and keeps the dialog open (the session has already taken
// it); one day is a valid range; Cancel changes nothing.
TEST(ZakresDat, ReversedRangeKeepsTheDialogOpen) {
  MagazynTestowy m;
  sesja.pubFiltrCzasowy.od = QDate(2026, 1, 1);
  sesja.pubFiltrCzasowy.do_ = QDate(2026, 1, 31);
  frmZakresDat d;
  d.show();
  auto* od = W<QCalendarWidget>(&d, "mvwDataOd");
  auto* do_ = W<QCalendarWidget>(&d, "mvwDataDo");
  EXPECT_EQ(od->selectedDate(), QDate(2026, 1, 1));
  EXPECT_EQ(do_->selectedDate(), QDate(2026, 1, 31));

  od->setSelectedDate(QDate(2026, 3, 2));
  do_->setSelectedDate(QDate(2026, 3, 1));
  W<QPushButton>(&d, "cmdOK")->click();
  EXPECT_TRUE(d.isVisible());
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_EQ(m.host.pokazane[0].tekst, Napis(QStringLiteral("frmZakresDat7")));
  EXPECT_EQ(m.host.pokazane[0].tytul, QLatin1Char(' ') + Napis(QStringLiteral("frmZakresDat8")));
  EXPECT_EQ(sesja.pubFiltrCzasowy.od, QDate(2026, 3, 2));
  EXPECT_EQ(sesja.pubFiltrCzasowy.do_, QDate(2026, 3, 1));

  do_->setSelectedDate(QDate(2026, 3, 2));
  W<QPushButton>(&d, "cmdOK")->click();
  EXPECT_FALSE(d.isVisible());
  EXPECT_EQ(d.result(), int(QDialog::Accepted));
  EXPECT_EQ(sesja.pubFiltrCzasowy.do_, QDate(2026, 3, 2));

  frmZakresDat e;
  W<QCalendarWidget>(&e, "mvwDataOd")->setSelectedDate(QDate(2020, 1, 1));
  W<QPushButton>(&e, "cmdAnuluj")->click();
  EXPECT_EQ(sesja.pubFiltrCzasowy.od, QDate(2026, 3, 2));
  EXPECT_EQ(m.host.pokazane.size(), 1u);
}
