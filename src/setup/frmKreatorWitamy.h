#pragma once
// The wizard's welcome: the four steps ahead and the warning that an aborted wizard takes back
// what it made. ">>" closes it; the first step follows.

#include <QDialog>

class frmKreatorWitamy : public QDialog {
  Q_OBJECT
 public:
  explicit frmKreatorWitamy(QWidget* rodzic = nullptr);
};
