#include "mainwindow/etykieta_gui.h"

#include <QMouseEvent>
#include <QToolButton>

EtykietaPolecenia::EtykietaPolecenia(const QString& nazwa, const QString& tekst, QWidget* rodzic)
    : QLabel(tekst, rodzic) {
  setObjectName(nazwa);
}

void EtykietaPolecenia::UstawPolecenie(std::function<void()> polecenie) {
  polecenie_ = std::move(polecenie);
  setCursor(polecenie_ ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void EtykietaPolecenia::mouseReleaseEvent(QMouseEvent* e) {
  QLabel::mouseReleaseEvent(e);
  if (e->button() != Qt::LeftButton || !rect().contains(e->position().toPoint())) return;
  emit Klik();
  if (polecenie_) polecenie_();
}

QToolButton* PrzyciskObrazka(const QString& nazwa, const QPixmap& obrazek, const QString& podpowiedz,
                             QWidget* rodzic) {
  auto* b = new QToolButton(rodzic);
  b->setObjectName(nazwa);
  b->setIcon(QIcon(obrazek));
  b->setIconSize(obrazek.deviceIndependentSize().toSize());
  b->setAutoRaise(true);
  b->setToolTip(podpowiedz);
  b->setCursor(Qt::PointingHandCursor);
  return b;
}
