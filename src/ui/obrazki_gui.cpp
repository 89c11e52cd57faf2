#include "ui/obrazki_gui.h"

#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

namespace {
// A pixmap sharp on the screen's pixel ratio, painted in a 100x100 logical square.
template <typename Rysuj>
QPixmap namaluj(int rozmiar, Rysuj rysuj) {
  const qreal dpr = qApp ? qApp->devicePixelRatio() : 1.0;
  QPixmap p(QSize(rozmiar, rozmiar) * dpr);
  p.setDevicePixelRatio(dpr);
  p.fill(Qt::transparent);
  QPainter g(&p);
  g.setRenderHint(QPainter::Antialiasing);
  g.scale(rozmiar / 100.0, rozmiar / 100.0);
  rysuj(g);
  return p;
}

void kolo(QPainter& g, const QColor& jasny, const QColor& ciemny) {
  QRadialGradient grad(QPointF(38, 32), 70);
  grad.setColorAt(0, jasny);
  grad.setColorAt(1, ciemny);
  g.setPen(QPen(ciemny.darker(130), 3));
  g.setBrush(grad);
  g.drawEllipse(QRectF(4, 4, 92, 92));
}

void informacja(QPainter& g) {
  kolo(g, QColor(0x6c, 0xb4, 0xf5), QColor(0x15, 0x5f, 0xb8));
  g.setPen(Qt::NoPen);
  g.setBrush(Qt::white);
  g.drawEllipse(QRectF(42, 18, 16, 16));
  g.drawRoundedRect(QRectF(42.5, 40, 15, 42), 4, 4);
}

void ostrzezenie(QPainter& g) {
  QPainterPath trojkat;
  trojkat.moveTo(50, 6);
  trojkat.lineTo(96, 90);
  trojkat.lineTo(4, 90);
  trojkat.closeSubpath();
  QLinearGradient grad(0, 6, 0, 90);
  grad.setColorAt(0, QColor(0xff, 0xdd, 0x55));
  grad.setColorAt(1, QColor(0xf2, 0xa3, 0x00));
  g.setPen(QPen(QColor(0xa8, 0x6a, 0x00), 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  g.setBrush(grad);
  g.drawPath(trojkat);
  g.setPen(Qt::NoPen);
  g.setBrush(QColor(0x2b, 0x2b, 0x2b));
  QPainterPath kreska;
  kreska.moveTo(43, 32);
  kreska.lineTo(57, 32);
  kreska.lineTo(54, 66);
  kreska.lineTo(46, 66);
  kreska.closeSubpath();
  g.drawPath(kreska);
  g.drawEllipse(QRectF(43, 71, 14, 12));
}

void pytanie(QPainter& g) {
  kolo(g, QColor(0x7d, 0xd8, 0x8a), QColor(0x1f, 0x8a, 0x3c));
  // The hook of the question mark as a thick arc, then its stem and dot.
  g.setPen(QPen(Qt::white, 11, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  g.setBrush(Qt::NoBrush);
  QPainterPath haczyk;
  haczyk.moveTo(35, 38);
  haczyk.cubicTo(35, 20, 66, 18, 66, 37);
  haczyk.cubicTo(66, 50, 50, 50, 50, 62);
  g.drawPath(haczyk);
  g.setPen(Qt::NoPen);
  g.setBrush(Qt::white);
  g.drawEllipse(QRectF(43, 70, 14, 14));
}

void program(QPainter& g) {
  QLinearGradient grad(0, 0, 100, 100);
  grad.setColorAt(0, QColor(0x2e, 0xb8, 0x8a));
  grad.setColorAt(1, QColor(0x0e, 0x5e, 0x6f));
  g.setPen(QPen(QColor(0x0a, 0x45, 0x52), 2.5));
  g.setBrush(grad);
  g.drawRoundedRect(QRectF(3, 3, 94, 94), 20, 20);
  // A "Z" drawn as one path, with a coin in the lower right corner.
  QPainterPath z;
  z.moveTo(22, 22);
  z.lineTo(74, 22);
  z.lineTo(74, 33);
  z.lineTo(40, 67);
  z.lineTo(70, 67);
  z.lineTo(70, 78);
  z.lineTo(22, 78);
  z.lineTo(22, 67);
  z.lineTo(56, 33);
  z.lineTo(22, 33);
  z.closeSubpath();
  g.setPen(Qt::NoPen);
  g.setBrush(Qt::white);
  g.drawPath(z);
  g.setPen(QPen(QColor(0x9a, 0x6b, 0x00), 2.5));
  g.setBrush(QColor(0xff, 0xc8, 0x2e));
  g.drawEllipse(QRectF(66, 62, 26, 26));
  g.setPen(QPen(QColor(0x9a, 0x6b, 0x00), 2));
  g.drawEllipse(QRectF(71.5, 67.5, 15, 15));
}
}  // namespace

QPixmap ObrazekKomunikatu(int ikona, int rozmiar) {
  switch (ikona) {
    case 1:
      return namaluj(rozmiar, ostrzezenie);
    case 2:
      return namaluj(rozmiar, pytanie);
    default:
      return namaluj(rozmiar, informacja);
  }
}

QPixmap ObrazekProgramu(int rozmiar) { return namaluj(rozmiar, program); }

QIcon IkonaProgramu() {
  QIcon ikona;
  for (int r : {16, 24, 32, 48, 64, 128, 256}) ikona.addPixmap(ObrazekProgramu(r));
  return ikona;
}
