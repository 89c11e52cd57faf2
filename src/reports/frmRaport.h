#pragma once
// The report window of every report form: the report is written on first showing while a wait
// frame shows its progress and offers to stop it, then it is shown read-only in the fixed font,
// and can be saved (RTF, text, PDF, CSV) and printed, whole or the selected part.

#include <QDialog>
#include <functional>
#include <memory>

#include "reports/raporty.h"

class QFrame;
class QLabel;
class QProgressBar;
class QPushButton;
class QTextEdit;

class frmRaport : public QDialog {
  Q_OBJECT
 public:
  frmRaport(const FormularzRaportu& formularz, QWidget* parent = nullptr);
  ~frmRaport() override;

  // Writes the report now (the first showing does it by itself); true when it ran to its end.
  bool TworzRaport();
  bool Gotowy() const { return gotowy_; }
  const Raport& raport() const { return *raport_; }

  // Called at every row of the walk, after the bar has moved (the gallery takes its picture of
  // a report being written here).
  std::function<void(int krok)> poKroku;

  void cmdZapisz_Click();
  void cmdDrukuj_Click();
  void cmdPrzerwij_Click();

 protected:
  void showEvent(QShowEvent* e) override;
  void reject() override;

 private:
  class Postep;
  const FormularzRaportu& formularz_;
  std::unique_ptr<Raport> raport_;
  std::unique_ptr<Postep> postep_;
  QTextEdit* rtbRaport_;
  QFrame* fraCzekac_;
  QLabel* lblCzekac_;
  QProgressBar* pbrPasek_;
  QPushButton *cmdPrzerwij_, *cmdZapisz_, *cmdDrukuj_, *cmdAnuluj_, *cmdPomoc_;
  bool pierwszeWejscie_ = true;
  bool trwa_ = false;
  bool gotowy_ = false;
  bool zamknijPoBudowie_ = false;

  QString klucz(int n) const;
};

// Registers the report windows under their form names with the navigation seam.
void ZarejestrujRaporty();
