#pragma once
// The slip print-out: the sheet of four slips of sesja.pubPrzelew in the mode it names, shown as
// a preview and sent to the printer (the system's print dialog) or saved as a PDF page.

#include <QDialog>

class QLabel;

class frmWydrukPrzelewu : public QDialog {
  Q_OBJECT
 public:
  explicit frmWydrukPrzelewu(QWidget* parent = nullptr);

  void cmdDrukuj_Click();
  void cmdPdf_Click();

 private:
  QLabel* pic_;
};
