#pragma once
// The monthly limit of the category pubKategoria (identyfikator, rodzaj; the name is shown).
// An empty or zero amount removes the limit.

#include <QDialog>

class QLineEdit;

class frmLimitDlaKategorii : public QDialog {
  Q_OBJECT
 public:
  explicit frmLimitDlaKategorii(QWidget* parent = nullptr);

 private:
  void cmdOK_Click();

  QLineEdit* txtLimit_ = nullptr;
  QString identyfikator_;
  int rodzaj_ = 0;
};
