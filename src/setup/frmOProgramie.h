#pragma once
// About the program: its name and version, the version of this build, the libraries it uses
// with their licences, and a close button.

#include <QDialog>

class frmOProgramie : public QDialog {
  Q_OBJECT
 public:
  explicit frmOProgramie(QWidget* rodzic = nullptr);
};
