#pragma once
// The time-filter buttons of every browser: cmdFiltr(0) to cmdFiltr(6), one per filter kind,
// and cmdZakres. The kind in force lives in sesja.pubFiltrCzasowy.rodzaj, so it is shared by
// all screens and stays in force when a screen closes.

#include <QWidget>

class QPushButton;

class PrzyciskiFiltra : public QWidget {
  Q_OBJECT
 public:
  // kolumny: how many buttons stand in a row (7 puts them all in one row).
  explicit PrzyciskiFiltra(QWidget* parent = nullptr, int kolumny = 7);

  QPushButton* Przycisk(int rodzaj) const { return cmdFiltr_[rodzaj]; }
  QPushButton* Zakres() const { return cmdZakres_; }

  // What a click on cmdFiltr(rodzaj) does: the kind becomes the session's, the captions are
  // set afresh, this one button stays pressed, and the screen reloads (zmieniony).
  void Nacisnij(int rodzaj);
  // The same for the kind in force: how a screen refreshes after a change.
  void NacisnijBiezacy();
  // Sets the captions and the pressed button for the kind in force, without reloading.
  void Ustaw();

 signals:
  void zmieniony();

 private:
  void cmdZakres_Click();

  QPushButton* cmdFiltr_[7] = {};
  QPushButton* cmdZakres_ = nullptr;
};
