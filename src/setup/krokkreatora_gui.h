#pragma once
// A step window of the wizard. The steps are stacked: ">>" opens the next step over this one and
// waits; "<<" closes this one, revealing the step beneath; "Przerwij" ends the whole wizard, and
// every step beneath closes itself as its turn comes back. The last step's button finishes.

#include <QDialog>

class QLabel;
class QPushButton;
class QVBoxLayout;

class KrokKreatora : public QDialog {
  Q_OBJECT
 public:
  // nazwa: the form's name (its texts are nazwa1, nazwa2: title and heading); krok 1 to 4;
  // nastepny: the form of the next step, "" for the last one.
  KrokKreatora(const QString& nazwa, int krok, const QString& nastepny, QWidget* rodzic);

 protected:
  QVBoxLayout* Tresc() const { return tresc_; }
  void closeEvent(QCloseEvent* e) override;

 private:
  void cmdDalej_Click();
  void cmdWstecz_Click();
  void cmdPrzerwij_Click();
  void zapamietajRozmiar();

  QString nastepny_;
  QVBoxLayout* tresc_ = nullptr;
};

// One button of the wizard with its name and text.
QPushButton* PrzyciskKreatora(const QString& nazwa, const QString& tekst, QWidget* rodzic);
