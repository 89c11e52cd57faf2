#pragma once
// The working date: the date proposed for new entries and given to new accounts. It lives only
// for the session; the next start begins with today again.

#include <QDialog>

class QCalendarWidget;

class frmZmianaDaty : public QDialog {
  Q_OBJECT
 public:
  explicit frmZmianaDaty(QWidget* parent = nullptr);

 private:
  void cmdOK_Click();
  QCalendarWidget* mvwData_;
};
