#pragma once
// The entry editor: one income or expense, new or existing, executed (pubTryb 2) or planned
// (pubTryb 1), and the realising of a planned one (cmdRealizuj, pubTryb 3). The caller sets the
// session values and shows the form modally; the form works on pubKonto, pubKategoria and
// pubKontrahent as the pickers leave them, saves through transakcje.h and refreshes the main
// window itself.

#include <QDialog>

class QDateEdit;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;
struct DaneTransakcji;

class frmEdycjaTransakcji : public QDialog {
  Q_OBJECT
 public:
  explicit frmEdycjaTransakcji(QWidget* parent = nullptr);
  ~frmEdycjaTransakcji() override;

  void cmdOk_Click();
  void cmdRealizuj_Click();
  void cmdWybierzKonto_Click();
  void cmdWybierzKategorie_Click();
  void cmdWybierzKontrahenta_Click();
  // Takes a template's account, category, counterparty and description; a close of the list
  // without a choice leaves the form as it was.
  void cmdWybierzSzablon_Click();
  // The three captions from the chosen records.
  void OdswiezEtykiety();

  // What OK would save, from the fields and the session's records.
  DaneTransakcji Dane() const;

 private:
  void zbuduj();
  void ustawTytul(bool nowa, int rodzaj);

  QDateEdit* dtpData_ = nullptr;
  QLineEdit* txtKwota_ = nullptr;
  QLineEdit* txtOpis_ = nullptr;
  QGroupBox* fraKonto_ = nullptr;
  QGroupBox* fraKategoria_ = nullptr;
  QGroupBox* fraKontrahent_ = nullptr;
  QLabel* lblKonto_ = nullptr;
  QLabel* lblKategoria_ = nullptr;
  QLabel* lblKontrahent_ = nullptr;
  QPushButton* cmdWybierzKonto_ = nullptr;
  QPushButton* cmdWybierzKategorie_ = nullptr;
  QPushButton* cmdWybierzKontrahenta_ = nullptr;
  QPushButton* cmdWybierzSzablon_ = nullptr;
  QToolButton* cmdKalkulator_ = nullptr;
  QPushButton* cmdRealizuj_ = nullptr;
  QPushButton* cmdOk_ = nullptr;
};
