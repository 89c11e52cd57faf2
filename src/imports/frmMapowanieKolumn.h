#pragma once
// The column mapping of a CSV statement: the file's first lines in a table, and for each thing
// the import needs (date, amount or income and expense, description, counterparty, its
// account, the bank's id) the column that holds it. Saved under a profile name when one is
// given, so that the next statement of the same bank reads at once.

#include <QDialog>

#include "imports/wyciag.h"

class QComboBox;
class QLineEdit;
class QSpinBox;
class QTableWidget;

class frmMapowanieKolumn : public QDialog {
  Q_OBJECT
 public:
  frmMapowanieKolumn(const QString& tekst, const MapowanieCsv& mapowanie, Kodowanie kodowanie,
                     QWidget* parent = nullptr);
  MapowanieCsv Mapowanie() const;
  QString Profil() const;

 private:
  void odswiez();
  void cmdOK_Click();
  QString tekst_;
  Kodowanie kodowanie_;
  QComboBox* cboSeparator_;
  QSpinBox* spnNaglowek_;
  QComboBox* kolumny_[8];
  QTableWidget* tblPodglad_;
  QLineEdit* txtProfil_;
};
