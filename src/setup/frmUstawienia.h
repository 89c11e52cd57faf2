#pragma once
// The user's settings: name and address, bank data (the sender of payment slips) and the
// program's password, typed twice. Two empty password fields remove the password.

#include <QDialog>

class QLineEdit;

class frmUstawienia : public QDialog {
  Q_OBJECT
 public:
  explicit frmUstawienia(QWidget* rodzic = nullptr);

 protected:
  bool eventFilter(QObject* o, QEvent* e) override;

 private:
  void cmdOK_Click();
  void txtHaslo_Change();
  QLineEdit* pole(const QString& nazwa);

  QLineEdit *txtImie_, *txtNazwisko_, *txtMiasto_, *txtUlica_, *txtLk_, *txtBank_, *txtKonto_;
  QLineEdit *txtHaslo_, *txtHaslo2_;
  QString bezZmian_;  // what both password fields hold while a set password is left as it is
};
