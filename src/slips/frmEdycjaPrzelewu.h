#pragma once
// The payment slip editor (Polish edition): filled from the user's data, the counterparty
// pubPrzelewKontrahent and the planned entry pubPrzelewZaplanowana; the user adjusts the fields
// and prints on a plain sheet or a ready-printed form. Nothing is stored.

#include <QDialog>

class QLineEdit;
class QRadioButton;
class QPushButton;

class frmEdycjaPrzelewu : public QDialog {
  Q_OBJECT
 public:
  explicit frmEdycjaPrzelewu(QWidget* parent = nullptr);

  // ZbierzDanePrzelewu: the fields into sesja.pubPrzelew.
  void ZbierzDanePrzelewu();
  // Both print buttons: the check of the amount, then the print-out in its mode.
  void Drukuj(bool naFormularzu);

 private:
  QLineEdit* pole(const char* nazwa, int dlugosc);
  void cmdWytnijOdbiorce_Click();
  void cmdWytnijNadawce_Click();
  void cmdWytnijPrzelew_Click();

  QRadioButton* optTyp_[2] = {};
  QLineEdit *txtNazwaOdbiorcy_, *txtNazwaOdbiorcyCd_, *txtLkOdbiorcy_, *txtBankOdbiorcy_,
      *txtKontoOdbiorcy_;
  QLineEdit *txtNazwaNadawcy_, *txtNazwaNadawcyCd_, *txtLkNadawcy_, *txtBankNadawcy_,
      *txtKontoNadawcy_;
  QLineEdit *txtKwota_, *Text1_, *txtTytulem_, *txtTytulemCd_;
};
