#pragma once
// The sample of a colour theme: an active and an inactive window side by side, each with a
// caption, a heading, text, options, a button and a striped list, painted with the colours given.

#include <QStringList>
#include <QWidget>

class PodgladKolorow : public QWidget {
  Q_OBJECT
 public:
  explicit PodgladKolorow(QWidget* rodzic = nullptr);
  void Ustaw(const QStringList& kolory);

 private:
  QWidget* aktywne_ = nullptr;
  QWidget* nieaktywne_ = nullptr;
};
