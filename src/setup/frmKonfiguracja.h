#pragma once
// Links to the desktop: the program or its reminder run started at log-on (only one of them),
// and the program's entry on the desktop and in the applications menu.

#include <QDialog>

class QRadioButton;

class frmKonfiguracja : public QDialog {
  Q_OBJECT
 public:
  explicit frmKonfiguracja(QWidget* rodzic = nullptr);

 private:
  void cmdOK_Click();
  void cmdUtworzSkrot_Click();
  QRadioButton* optAutoStart_[2] = {};
  QRadioButton* optAutoStartPrzypominacz_[2] = {};
};
