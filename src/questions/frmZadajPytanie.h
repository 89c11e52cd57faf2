#pragma once
// The user's questions to the support service: the list in three states with the counts, the
// chosen question and its answer, adding, changing (until sent) and deleting, and the two
// exchanges with the service, which keep the window alive and show their progress.

#include <QDialog>

#include "questions/wymiana.h"

class QLabel;
class QPlainTextEdit;
class QProgressDialog;
class QPushButton;
class QTreeWidget;

class frmZadajPytanie : public QDialog {
  Q_OBJECT
 public:
  explicit frmZadajPytanie(QWidget* parent = nullptr);

  // Fills the list from the store, with the counts; the chosen question stays chosen.
  void Odswiez();
  // With no identifier for the service: says so and opens the login screen. True when an
  // identifier is there afterwards.
  bool SprawdzLogowanie();
  WymianaPytan& Wymiana() { return wymiana_; }

 protected:
  void showEvent(QShowEvent* e) override;
  void reject() override;

 private:
  void pokazWybrane();
  qint64 wybraneId() const;
  char wybranyStan() const;
  void cmdDodaj_Click();
  void cmdEdytuj_Click();
  void cmdKasuj_Click();
  void cmdUstawienia_Click();
  void wymien(bool wysylanie);
  void edytuj(qint64 id);

  QTreeWidget* lvwPytania_ = nullptr;
  QLabel* lblNieWyslane_ = nullptr;
  QLabel* lblBezOdpowiedzi_ = nullptr;
  QLabel* lblStan_ = nullptr;
  QPlainTextEdit* txtPytanie_ = nullptr;
  QPlainTextEdit* txtOdpowiedz_ = nullptr;
  QPushButton* cmdEdytuj_ = nullptr;
  QPushButton* cmdKasuj_ = nullptr;
  QPushButton* cmdWyslijPytania_ = nullptr;
  QPushButton* cmdPobierzOdpowiedzi_ = nullptr;
  QProgressDialog* postep_ = nullptr;
  WymianaPytan wymiana_;
  bool pokazany_ = false;
  int kolumnaSortowania_ = -1;
  Qt::SortOrder porzadek_ = Qt::AscendingOrder;
};
