#pragma once
// The editor of one recurring rule (pubOkresowaId, 0 for a new one): income, expense or transfer,
// its accounts, category, counterparty, description and amount, the period dtpOdDaty..dtpDoDaty
// (the end may stay open), the frequency and what a weekend day does. The form keeps its choices
// in records of its own; the pickers fill them through the session as the other editors do.

#include <QDialog>
#include <array>

#include "store/session.h"

class QButtonGroup;
class QCheckBox;
class QDateEdit;
class QGroupBox;
class QLabel;
class QLineEdit;
struct RegulaOkresowa;

class frmEdycjaOkresowych : public QDialog {
  Q_OBJECT
 public:
  explicit frmEdycjaOkresowych(QWidget* parent = nullptr);
  ~frmEdycjaOkresowych() override;

  void cmdOk_Click();
  void OdswiezEtykiety();
  // The choices as a picker would leave them.
  KontoRekord& Konto() { return konto_; }
  KontoRekord& NaKonto() { return naKonto_; }
  KategoriaRekord& Kategoria() { return kategoria_; }
  KontrahentRekord& Kontrahent() { return kontrahent_; }
  RegulaOkresowa Dane() const;

 private:
  void zbuduj();
  void zmianaRodzaju();
  void wybierzKonto(KontoRekord& konto, QLabel* etykieta);
  void wybierzKategorie();
  void wybierzKontrahenta();

  QButtonGroup* optRodzaj_ = nullptr;
  QButtonGroup* optCzestotliwosc_ = nullptr;
  QButtonGroup* optWeekend_ = nullptr;
  QGroupBox* fraKonto_ = nullptr;
  QGroupBox* fraNaKonto_ = nullptr;
  QGroupBox* fraKategoria_ = nullptr;
  QGroupBox* fraKontrahent_ = nullptr;
  QLabel* lblKonto_ = nullptr;
  QLabel* lblNaKonto_ = nullptr;
  QLabel* lblKategoria_ = nullptr;
  QLabel* lblKontrahent_ = nullptr;
  QLineEdit* txtKwota_ = nullptr;
  QLineEdit* txtOpis_ = nullptr;
  QDateEdit* dtpOdDaty_ = nullptr;
  QDateEdit* dtpDoDaty_ = nullptr;
  QCheckBox* chkDoDaty_ = nullptr;
  KontoRekord konto_, naKonto_;
  KategoriaRekord kategoria_;
  KontrahentRekord kontrahent_;
  bool edytorOtwarty_ = false;
};
