#pragma once
// The sums under the planned entries: all planned income and expense, and what of them is
// overdue, with an alarm picture beside an overdue sum above zero. Each opens its entries.

#include <QWidget>
#include <array>

class EtykietaPolecenia;
class QLabel;
class QToolButton;

class SumyZaplanowanychGui : public QWidget {
  Q_OBJECT
 public:
  explicit SumyZaplanowanychGui(QWidget* rodzic);
  // StanZaplanowanych: the four sums and the two alarms, as of today.
  void Odswiez();

 private:
  std::array<QLabel*, 4> kwoty_{};  // all income, overdue income, all expense, overdue expense
  std::array<QLabel*, 2> alarmy_{};
};
