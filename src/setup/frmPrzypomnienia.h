#pragma once
// The reminder companion's window: a greeting with today's name days, the planned entries and
// transfers that are due with their sums, and a button that opens Zorvik. It reads only the
// reminder file, never the store; a missing or damaged file is told in plain words.

#include <QDialog>

#include "setup/przypominacz.h"

class QLabel;
class QTreeWidget;

class frmPrzypomnienia : public QDialog {
  Q_OBJECT
 public:
  // plik: the reminder file; program: Zorvik's executable, started by the button.
  frmPrzypomnienia(const QString& plik, const QString& program, QWidget* rodzic = nullptr);
  StanPlikuPrzypomnien Stan() const { return stan_; }

 private:
  void cmdOtworz_Click();
  QString program_;
  StanPlikuPrzypomnien stan_ = StanPlikuPrzypomnien::Brak;
};
