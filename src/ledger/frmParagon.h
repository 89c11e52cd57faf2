#pragma once
// The receipt: one date, account and counterparty for up to nine expense lines, each with its
// category, amount (with the calculator) and description; a common description copied into a
// line when its amount is left, and the running total. OK saves through paragon.h.

#include <QDialog>
#include <array>

#include "ledger/paragon.h"

class QCheckBox;
class QDateEdit;
class QLabel;
class QLineEdit;

class frmParagon : public QDialog {
  Q_OBJECT
 public:
  explicit frmParagon(QWidget* parent = nullptr);
  ~frmParagon() override;

  void cmdOk_Click();
  void cmdWybierzKonto_Click();
  void cmdWybierzKontrahenta_Click();
  void cmdWybierzKategorie_Click(int n);
  void cmdKasuj_Click(int n);
  // What leaving line n's amount does: the shape, the common description, the total.
  void txtKwota_LostFocus(int n);
  // Line n's category as a picker leaves it (empty: none).
  void UstawKategorie(int n, const QString& identyfikator);
  void OdswiezEtykiety();
  DaneParagonu Dane() const;

 protected:
  bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

 private:
  void zbuduj();
  void przeliczSume();

  QDateEdit* dtpData_ = nullptr;
  QLabel* lblKonto_ = nullptr;
  QLabel* lblKontrahent_ = nullptr;
  QCheckBox* chkOpis_ = nullptr;
  QLineEdit* txtOpisWspolny_ = nullptr;
  QLabel* lblSuma_ = nullptr;
  std::array<QLineEdit*, LiczbaPozycjiParagonu> txtKwota_{};
  std::array<QLineEdit*, LiczbaPozycjiParagonu> txtOpis_{};
  std::array<QLabel*, LiczbaPozycjiParagonu> lblKategoria_{};
  // Identifiers of lines 1..9 at 1..9; 0 and 10 stay empty.
  std::array<QString, LiczbaPozycjiParagonu + 2> identyfikatory_{};
  bool edytorOtwarty_ = false;
};
