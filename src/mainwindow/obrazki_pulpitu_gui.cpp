#include "mainwindow/obrazki_pulpitu_gui.h"

#include <QGuiApplication>
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

const QColor kZielony(0x2e, 0xa0, 0x43);
const QColor kCzerwony(0xd0, 0x36, 0x2a);
const QColor kNiebieski(0x2f, 0x6f, 0xb5);

void slupek(QPainter& g, qreal x, qreal wysokosc, const QColor& kolor) {
  g.setPen(QPen(kolor.darker(140), 3));
  g.setBrush(kolor);
  g.drawRect(QRectF(x, 92 - wysokosc, 18, wysokosc));
}
}  // namespace

QPixmap ObrazekAlarmu(int rozmiar) {
  return namaluj(rozmiar, [](QPainter& g) {
    QRadialGradient grad(QPointF(38, 32), 70);
    grad.setColorAt(0, QColor(0xff, 0x7a, 0x66));
    grad.setColorAt(1, QColor(0xc0, 0x1c, 0x10));
    g.setPen(QPen(QColor(0x8a, 0x10, 0x08), 4));
    g.setBrush(grad);
    g.drawEllipse(QRectF(4, 4, 92, 92));
    g.setPen(Qt::NoPen);
    g.setBrush(Qt::white);
    QPainterPath kreska;
    kreska.moveTo(42, 18);
    kreska.lineTo(58, 18);
    kreska.lineTo(54, 62);
    kreska.lineTo(46, 62);
    kreska.closeSubpath();
    g.drawPath(kreska);
    g.drawEllipse(QRectF(42, 68, 16, 16));
  });
}

QPixmap ObrazekWiecej(int rozmiar) {
  return namaluj(rozmiar, [](QPainter& g) {
    g.setPen(QPen(kNiebieski.darker(130), 4));
    g.setBrush(kNiebieski);
    g.drawRoundedRect(QRectF(6, 6, 88, 88), 18, 18);
    g.setPen(QPen(Qt::white, 11, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    g.setBrush(Qt::NoBrush);
    for (qreal x : {28.0, 52.0}) {
      QPainterPath s;
      s.moveTo(x, 28);
      s.lineTo(x + 20, 50);
      s.lineTo(x, 72);
      g.drawPath(s);
    }
  });
}

QPixmap ObrazekLupki(int rozmiar) {
  return namaluj(rozmiar, [](QPainter& g) {
    g.setPen(QPen(QColor(0x5a, 0x3a, 0x1a), 14, Qt::SolidLine, Qt::RoundCap));
    g.drawLine(QPointF(62, 62), QPointF(90, 90));
    QRadialGradient grad(QPointF(34, 32), 40);
    grad.setColorAt(0, QColor(0xe8, 0xf4, 0xff));
    grad.setColorAt(1, QColor(0x9c, 0xc8, 0xf0));
    g.setPen(QPen(QColor(0x44, 0x44, 0x44), 8));
    g.setBrush(grad);
    g.drawEllipse(QRectF(8, 8, 60, 60));
  });
}

QPixmap ObrazekWykresu(int tryb, int rozmiar) {
  return namaluj(rozmiar, [tryb](QPainter& g) {
    g.setPen(QPen(QColor(0x44, 0x44, 0x44), 4));
    if (tryb != 1) g.drawLine(QPointF(6, 94), QPointF(94, 94));
    switch (tryb) {
      case 0:
        slupek(g, 10, 50, kNiebieski);
        slupek(g, 32, 78, kNiebieski);
        slupek(g, 54, 34, kNiebieski);
        slupek(g, 76, 62, kNiebieski);
        break;
      case 1: {
        const QRectF kolo(6, 6, 88, 88);
        const QColor kolory[3] = {kNiebieski, QColor(0xe0, 0x8a, 0x1e), kZielony};
        const int katy[4] = {90, 250, 330, 450};
        for (int i = 0; i < 3; ++i) {
          g.setPen(QPen(Qt::white, 3));
          g.setBrush(kolory[i]);
          g.drawPie(kolo, katy[i] * 16, (katy[i + 1] - katy[i]) * 16);
        }
        break;
      }
      case 2:
      case 3: {
        const QColor k = tryb == 2 ? kZielony : kCzerwony;
        slupek(g, 10, 40, k);
        slupek(g, 32, 66, k);
        slupek(g, 54, 52, k);
        slupek(g, 76, 80, k);
        break;
      }
      default:
        slupek(g, 8, 70, kZielony);
        slupek(g, 27, 48, kCzerwony);
        slupek(g, 54, 58, kZielony);
        slupek(g, 73, 80, kCzerwony);
        break;
    }
  });
}
