#pragma once
// A caption that works as a command: a click runs it, the cursor shows it, and a picture
// button beside it gives the keyboard the same command.

#include <QLabel>
#include <functional>

class QToolButton;

class EtykietaPolecenia : public QLabel {
  Q_OBJECT
 public:
  EtykietaPolecenia(const QString& nazwa, const QString& tekst, QWidget* rodzic);
  // What a click runs; none: the caption is plain text.
  void UstawPolecenie(std::function<void()> polecenie);

 signals:
  void Klik();

 protected:
  void mouseReleaseEvent(QMouseEvent* e) override;

 private:
  std::function<void()> polecenie_;
};

// A flat picture button (picWiecej, picZaplanowane) running the command on a click or a key.
QToolButton* PrzyciskObrazka(const QString& nazwa, const QPixmap& obrazek, const QString& podpowiedz,
                             QWidget* rodzic);
