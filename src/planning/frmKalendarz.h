#pragma once
// The calendar: one month of planned money in a grid of 37 day cells from Monday. A right click
// on a day opens the menu that adds a planned income, expense or transfer on that day or lists
// the day's planned entries or transfers; a double click lists the day's planned entries.

#include <QDialog>
#include <array>
#include <functional>

#include "planning/kalendarz.h"

class QAction;
class QFrame;
class QLabel;
class QMenu;

class frmKalendarz : public QDialog {
  Q_OBJECT
 public:
  explicit frmKalendarz(QWidget* parent = nullptr);

  // Draws the month of miesiac() and rok().
  void Rysuj();
  // Resets the cell last highlighted to the list colours and, when the month shown is today's,
  // paints today's cell in the highlight colours.
  void PrzekolorujBiezacyDzien();
  void cmdNastepnyMiesiac_Click();
  void cmdPoprzedniMiesiac_Click();
  // An item of the day menu (0 to 4, in the menu's order) for the cell wybranyDzien().
  void WykonajOpcje(int opcja);

  int miesiac() const { return miesiac_; }
  int rok() const { return rok_; }
  int biezacyDzien() const { return biezacyDzien_; }
  int wybranyDzien() const { return wybranyDzien_; }
  const MiesiacKalendarza& Miesiac() const { return dane_; }
  QMenu* Menu() const { return mnuNiewidKalendarzOpcja_; }

  // Shows the day menu at a screen point and returns the item chosen (tests answer it).
  std::function<QAction*(QMenu*, const QPoint&)> pokazMenu;

 protected:
  bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

 private:
  struct Komorka {
    QFrame* picDzien;
    QLabel *lblDzien, *lblIleZaplanowanych, *lblPrzychod, *lblWydatki, *lblWewnetrzne;
    QLabel *imgPrz, *imgWyd, *imgWew;
  };
  void pokolorujKomorke(int i, bool dzisiaj);
  void przegladaj(bool transfery);

  int miesiac_ = 1, rok_ = 2000;
  int biezacyDzien_ = 0;
  int wybranyDzien_ = 0;
  MiesiacKalendarza dane_;
  std::array<Komorka, KomorekKalendarza> komorki_{};
  QLabel* lblWybranyMiesiac_ = nullptr;
  QMenu* mnuNiewidKalendarzOpcja_ = nullptr;
  std::array<QAction*, 5> opcje_{};
};
