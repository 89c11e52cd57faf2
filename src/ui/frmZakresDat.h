#pragma once
// The range of the time filter's "zakres": the first and the last day.

#include <QDialog>

class QCalendarWidget;

class frmZakresDat : public QDialog {
  Q_OBJECT
 public:
  explicit frmZakresDat(QWidget* parent = nullptr);

 private:
  void cmdOK_Click();
  QCalendarWidget* mvwDataOd_;
  QCalendarWidget* mvwDataDo_;
};
