#pragma once
// The editor of one income or expense template (pubSzablonId, 0 for a new one of the kind
// pubSzablonRodzaj): its name, description, account, category and counterparty, chosen through
// the browsers into pubKonto, pubKategoria and pubKontrahent as the entry editor does.

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
struct Szablon;

class frmEdycjaSzablonuZewnetrznego : public QDialog {
  Q_OBJECT
 public:
  explicit frmEdycjaSzablonuZewnetrznego(QWidget* parent = nullptr);
  ~frmEdycjaSzablonuZewnetrznego() override;

  void cmdOk_Click();
  void OdswiezEtykiety();
  Szablon Dane() const;

 private:
  void wybierz(const QString& przegladarka, QLabel* etykieta);

  QLineEdit* txtNazwa_ = nullptr;
  QLineEdit* txtOpis_ = nullptr;
  QLabel* lblKonto_ = nullptr;
  QLabel* lblKategoria_ = nullptr;
  QLabel* lblKontrahent_ = nullptr;
  bool edytorOtwarty_ = false;
};
