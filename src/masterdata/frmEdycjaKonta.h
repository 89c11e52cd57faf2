#pragma once
// The account editor: a new account (pubKonto.id 0, the kind proposed in pubKonto.rodzaj) or an
// existing one (pubKonto.id). Saving follows konta.h; the caller refreshes its own screens.

#include <QDialog>

class QLabel;
class QLineEdit;
class QRadioButton;
class QToolButton;

class frmEdycjaKonta : public QDialog {
  Q_OBJECT
 public:
  explicit frmEdycjaKonta(QWidget* parent = nullptr);

  // The kind whose radio button is set (the first one set, 1..6).
  int Rodzaj() const;

 private:
  void UstawPola();  // which amount fields the chosen kind uses
  void cmdOK_Click();

  QLineEdit* txtNazwa_;
  QLineEdit* txtOpis_;
  QLineEdit* txtNumer_;  // the bank account number (NRB), shown grouped
  QRadioButton* optRodzaj_[7] = {};  // 1..6
  QLineEdit* txtWinien_;
  QLineEdit* txtMa_;
  QLineEdit* txtLimit_;
  QLabel* lblWinien_;
  QLabel* lblMa_;
  QLabel* lblLimit_;
  QToolButton* cmdKalkulatorWn_;
  QToolButton* cmdKalkulatorMa_;
  QToolButton* cmdKalkulatorLimit_;
  QLabel* lblDataUtworzenia_;
  qint64 id_ = 0;
};

// An account number of 26 digits grouped as banks print it ("61 1090 1014 ..."); any other
// text as it is.
QString NumerGrupami(const QString& cyfry);
