#pragma once
// The transfer editor: money moved from one of the user's accounts to another, new or existing,
// executed (pubTryb 2) or planned (pubTryb 1), and the realising of a planned one (pubTryb 3).
// The row is pubTransfer (0: new). The form keeps its two accounts in records of its own, which
// only the account browser fills; it saves through transfery.h and refreshes the main window.

#include <QDialog>

#include "store/session.h"

class QDateEdit;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;
struct DaneTransferu;

class frmEdycjaTransakcjiWewnetrznej : public QDialog {
  Q_OBJECT
 public:
  explicit frmEdycjaTransakcjiWewnetrznej(QWidget* parent = nullptr);
  ~frmEdycjaTransakcjiWewnetrznej() override;

  void cmdOK_Click();
  void cmdRealizuj_Click();
  // Takes a template's accounts and description; a close without a choice changes nothing.
  void cmdSzablon_Click();
  void cmdZKonta_Click();
  void cmdNaKonto_Click();
  void OdswiezEtykiety();

  // The form's two accounts (what a picker would leave there).
  KontoRekord& ZKonta() { return zKonta_; }
  KontoRekord& NaKonto() { return naKonto_; }
  DaneTransferu Dane() const;

 private:
  void zbuduj();
  void wybierzKonto(KontoRekord& konto, QLabel* etykieta);

  QDateEdit* dtpData_ = nullptr;
  QLineEdit* txtKwota_ = nullptr;
  QLineEdit* txtOpis_ = nullptr;
  QLabel* lblZKonta_ = nullptr;
  QLabel* lblNaKonto_ = nullptr;
  QPushButton* cmdZKonta_ = nullptr;
  QPushButton* cmdNaKonto_ = nullptr;
  QPushButton* cmdSzablon_ = nullptr;
  QToolButton* cmdKalkulator_ = nullptr;
  QPushButton* cmdRealizuj_ = nullptr;
  QPushButton* cmdOK_ = nullptr;
  KontoRekord zKonta_, naKonto_;
};
