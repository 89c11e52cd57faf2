#pragma once
// The counterparty editor: a new counterparty (pubKontrahent.id 0) or an existing one. Saving
// follows kontrahenci.h; the caller refreshes its own list. The bank fields exist for the payment
// slip, which only the Polish edition prints, so only that edition shows them.

#include <QDialog>

class QGroupBox;
class QLineEdit;

class frmEdycjaKontrahenta : public QDialog {
  Q_OBJECT
 public:
  explicit frmEdycjaKontrahenta(QWidget* parent = nullptr);

  // The id of the row saved last (the new row's id after an insert).
  qint64 Zapisany() const { return zapisany_; }

 private:
  void cmdOk_Click();
  QLineEdit* pole(const QString& nazwa, int dlugosc, QWidget* rodzic);

  QLineEdit* txtNazwaSkrocona_ = nullptr;
  QLineEdit* txtOpis_ = nullptr;
  QLineEdit* txtNazwa_ = nullptr;
  QLineEdit* txtAdres_ = nullptr;
  QLineEdit* txtMiasto_ = nullptr;
  QLineEdit* txtTelefon_ = nullptr;
  QLineEdit* txtLk_ = nullptr;
  QLineEdit* txtBank_ = nullptr;
  QLineEdit* txtKonto_ = nullptr;
  QGroupBox* fraBank_ = nullptr;
  qint64 id_ = 0;
  qint64 zapisany_ = 0;
};
