#pragma once
// The login to the support service (identifier and password) and the service's address.
// On OK they go into the session and the store; an empty identifier is refused.

#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;

class frmUstawieniaInternetowe : public QDialog {
  Q_OBJECT
 public:
  explicit frmUstawieniaInternetowe(QWidget* parent = nullptr);

 private:
  void cmdOK_Click();
  void pokazOstrzezenie();

  QLineEdit* txtUserId_ = nullptr;
  QLineEdit* txtHasloSerwisu_ = nullptr;
  QLineEdit* txtAdresSerwisu_ = nullptr;
  QCheckBox* chkPokazHaslo_ = nullptr;
  QLabel* lblOstrzezenie_ = nullptr;
};
