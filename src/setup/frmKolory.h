#pragma once
// The program's colours: the nine colours of the theme, each changed through the colour dialog,
// six ready profiles, and a sample that shows the result at once. OK stores them and paints
// every open window anew.

#include <QDialog>
#include <QStringList>

class PodgladKolorow;
class QLabel;
class QRadioButton;

class frmKolory : public QDialog {
  Q_OBJECT
 public:
  explicit frmKolory(QWidget* rodzic = nullptr);
  const QStringList& Kolory() const { return kolory_; }

 private:
  void Pokaz();
  void cmdKolor_Click(int i);
  void cmdOK_Click();

  QStringList kolory_;
  QLabel* picKolor_[9] = {};
  QRadioButton* optProfil_[6] = {};
  PodgladKolorow* picPodglad_ = nullptr;
};
