#include "setup/frmStart.h"

#include <QApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QLinearGradient>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QVBoxLayout>

#include "ui/obrazki_gui.h"
#include "store/napis.h"

namespace {
QPointer<frmStart>& okno() {
  static QPointer<frmStart> o;
  return o;
}
}  // namespace

frmStart::frmStart(QWidget* rodzic) : QWidget(rodzic, Qt::SplashScreen | Qt::FramelessWindowHint) {
  setObjectName(QStringLiteral("frmStart"));
  setWindowIcon(IkonaProgramu());
  setFixedSize(480, 270);

  auto* obrazek = new QLabel(this);
  obrazek->setObjectName(QStringLiteral("imgLogo"));
  obrazek->setPixmap(ObrazekProgramu(72));

  // Four labels: the name, what it is, the version and the request to wait.
  QLabel* etykiety[4];
  for (int i = 0; i < 4; ++i) {
    etykiety[i] = new QLabel(this);
    etykiety[i]->setObjectName(QStringLiteral("lblNapis(%1)").arg(i));
    QPalette p = etykiety[i]->palette();
    p.setColor(QPalette::WindowText, Qt::white);
    etykiety[i]->setPalette(p);
  }
  etykiety[0]->setText(Napis(QStringLiteral("frmStart1")));
  etykiety[1]->setText(Napis(QStringLiteral("frmStart2")));
  etykiety[2]->setText(Napis(QStringLiteral("frmStart3")));
  etykiety[3]->setText(Napis(QStringLiteral("frmStart4")));
  QFont f = font();
  f.setPointSizeF(f.pointSizeF() * 2.6);
  f.setBold(true);
  etykiety[0]->setFont(f);
  f = font();
  f.setPointSizeF(f.pointSizeF() * 1.25);
  etykiety[1]->setFont(f);
  etykiety[1]->setWordWrap(true);
  f = font();
  f.setItalic(true);
  etykiety[3]->setFont(f);

  auto* naglowek = new QHBoxLayout;
  naglowek->setSpacing(18);
  naglowek->addWidget(obrazek, 0, Qt::AlignTop);
  auto* tytuly = new QVBoxLayout;
  tytuly->setSpacing(4);
  tytuly->addWidget(etykiety[0]);
  tytuly->addWidget(etykiety[1]);
  tytuly->addWidget(etykiety[2]);
  naglowek->addLayout(tytuly, 1);

  auto* uklad = new QVBoxLayout(this);
  uklad->setContentsMargins(30, 30, 30, 22);
  uklad->addLayout(naglowek);
  uklad->addStretch(1);
  uklad->addWidget(etykiety[3]);
}

void frmStart::paintEvent(QPaintEvent*) {
  QPainter g(this);
  QLinearGradient tlo(0, 0, width(), height());
  tlo.setColorAt(0, QColor(0x1d, 0x8f, 0x7a));
  tlo.setColorAt(1, QColor(0x0b, 0x3d, 0x55));
  g.fillRect(rect(), tlo);
  g.setPen(QPen(QColor(0x07, 0x2a, 0x3a), 2));
  g.drawRect(rect().adjusted(1, 1, -1, -1));
}

void PokazStart() {
  if (okno()) return;
  okno() = new frmStart;
  okno()->setAttribute(Qt::WA_DeleteOnClose);
  if (const QScreen* ekran = QGuiApplication::primaryScreen())
    okno()->move(ekran->availableGeometry().center() - okno()->rect().center());
  okno()->show();
  okno()->repaint();
  QApplication::processEvents();
}

void UkryjStart() {
  if (okno()) okno()->close();
  okno() = nullptr;
}

frmStart* OknoStartowe() { return okno(); }

void NapisStartu(const QString& tekst) {
  if (!okno()) return;
  if (auto* l = okno()->findChild<QLabel*>(QStringLiteral("lblNapis(3)"))) {
    l->setWordWrap(true);
    l->setText(tekst);
  }
  okno()->repaint();
  QApplication::processEvents();
}
