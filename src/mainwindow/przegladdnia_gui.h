#pragma once
// The daily overview: what is due up to today, scrolling slowly up through its pane and starting
// again from the bottom, with four buttons: run, pause, stop and hide, show again.

#include <QWidget>
#include <array>

class QFrame;
class QLabel;
class QPushButton;
class QTimer;

class PrzegladDniaGui : public QWidget {
  Q_OBJECT
 public:
  explicit PrzegladDniaGui(QWidget* rodzic);

  // Forms the text afresh and starts it from the bottom of the pane.
  void PrzegladDnia();
  // cmdPorada(i).
  void Porada(int i);
  // The window was activated: the scrolling goes on if the overview is on.
  void Wznow();
  QLabel* Tekst() const { return lblPoradaDnia_; }
  QTimer* Zegar() const { return tmrPoradaDnia_; }

 protected:
  bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

 private:
  void krok();
  void ulozTekst();

  QFrame* fraPoradaDnia_ = nullptr;
  QLabel* lblPoradaDnia_ = nullptr;
  QTimer* tmrPoradaDnia_ = nullptr;
  std::array<QPushButton*, 4> cmdPorada_{};
  bool wlaczony_ = true;  // the pane is shown and meant to scroll
  int y_ = 0;
};
