#pragma once
// The password gate at start-up: three tries; the password in memory is emptied only when the
// right one is typed, which is the sign that the gate is passed. On a store locked by the
// password the typed text is tried as its key; the store is open afterwards.

#include <QDialog>

class QLineEdit;

class frmHaslo : public QDialog {
  Q_OBJECT
 public:
  explicit frmHaslo(QWidget* rodzic = nullptr);
  int Bledy() const { return bledy_; }

 private:
  void cmdOK_Click();
  QLineEdit* txtHaslo_ = nullptr;
  int bledy_ = 0;
};
