#pragma once
// The window of the four-function calculator, shared by frmKalkulator (opened beside an amount
// field) and frmKalkulatorCaly (opened from the main window). On load the display takes
// pubKalkWartosc; cmdZamknij hands the display back through pubKalkWartosc; Esc closes and
// hands nothing over. The buttons take no focus, so the keyboard always reaches the display.

#include <QDialog>
#include <functional>

#include "calculator/Kalkulator.h"

class QLineEdit;
class QPushButton;

class OknoKalkulatora : public QDialog {
  Q_OBJECT
 public:
  Kalkulator& Stan() { return kalk_; }

 protected:
  // nazwa: the form's name (objectName); tytul and podpowiedzZamknij come from its own keys.
  OknoKalkulatora(QWidget* rodzic, const QString& nazwa, const QString& tytul,
                  const QString& podpowiedzZamknij);
  bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;
  void showEvent(QShowEvent* zdarzenie) override;

 private:
  QPushButton* Przycisk(const QString& nazwa, const QString& napis,
                        const std::function<void(Kalkulator&)>& polecenie);
  // Runs a command on the calculator with the display's state as the user left it.
  void Wykonaj(const std::function<void(Kalkulator&)>& polecenie);
  void Zamknij();

  Kalkulator kalk_;
  QLineEdit* wyswietlacz_ = nullptr;
  bool ustawione_ = false;
};
