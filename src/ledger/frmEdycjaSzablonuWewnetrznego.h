#pragma once
// The editor of one transfer template (pubSzablonId, 0 for a new one): its name, description and
// the two accounts, which the form keeps in records of its own and fills through the account
// browser, as the transfer editor does.

#include <QDialog>

#include "store/session.h"

class QLabel;
class QLineEdit;
struct Szablon;

class frmEdycjaSzablonuWewnetrznego : public QDialog {
  Q_OBJECT
 public:
  explicit frmEdycjaSzablonuWewnetrznego(QWidget* parent = nullptr);
  ~frmEdycjaSzablonuWewnetrznego() override;

  void cmdOk_Click();
  void OdswiezEtykiety();
  KontoRekord& ZKonta() { return zKonta_; }
  KontoRekord& NaKonto() { return naKonto_; }
  Szablon Dane() const;

 private:
  void wybierz(KontoRekord& konto, QLabel* etykieta);

  QLineEdit* txtNazwa_ = nullptr;
  QLineEdit* txtOpis_ = nullptr;
  QLabel* lblZKonta_ = nullptr;
  QLabel* lblNaKonto_ = nullptr;
  KontoRekord zKonta_, naKonto_;
  bool edytorOtwarty_ = false;
};
