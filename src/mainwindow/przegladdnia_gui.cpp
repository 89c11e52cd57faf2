#include "mainwindow/przegladdnia_gui.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

#include "mainwindow/pulpit.h"
#include "store/dzis.h"
#include "store/napis.h"

namespace {
QString napis(int numer) { return Napis(QStringLiteral("frmMain%1").arg(numer)); }
// One pixel a tick: slow enough to read.
constexpr int kTakt = 60;
}  // namespace

PrzegladDniaGui::PrzegladDniaGui(QWidget* rodzic) : QWidget(rodzic) {
  setObjectName(QStringLiteral("fraPrzegladDnia"));
  auto* v = new QVBoxLayout(this);
  v->setContentsMargins(0, 0, 0, 0);
  v->setSpacing(2);
  auto* glowa = new QHBoxLayout;
  glowa->setSpacing(2);
  auto* tytul = new QLabel(napis(166), this);
  QFont f = tytul->font();
  f.setBold(true);
  tytul->setFont(f);
  glowa->addWidget(tytul, 1);
  const QStyle::StandardPixmap ikony[4] = {QStyle::SP_MediaPlay, QStyle::SP_MediaPause,
                                           QStyle::SP_MediaStop, QStyle::SP_BrowserReload};
  for (int i = 0; i < 4; ++i) {
    auto* b = new QPushButton(style()->standardIcon(ikony[i]), QString(), this);
    b->setObjectName(QStringLiteral("cmdPorada(%1)").arg(i));
    b->setToolTip(napis(167 + i));
    b->setAutoDefault(false);
    b->setFixedSize(24, 22);
    connect(b, &QPushButton::clicked, this, [this, i] { Porada(i); });
    cmdPorada_[size_t(i)] = b;
    glowa->addWidget(b);
  }
  cmdPorada_[3]->setEnabled(false);
  v->addLayout(glowa);

  fraPoradaDnia_ = new QFrame(this);
  fraPoradaDnia_->setObjectName(QStringLiteral("fraPoradaDnia"));
  fraPoradaDnia_->setFrameShape(QFrame::StyledPanel);
  fraPoradaDnia_->setBackgroundRole(QPalette::Base);
  fraPoradaDnia_->setAutoFillBackground(true);
  fraPoradaDnia_->setMinimumHeight(70);
  fraPoradaDnia_->installEventFilter(this);
  lblPoradaDnia_ = new QLabel(fraPoradaDnia_);
  lblPoradaDnia_->setObjectName(QStringLiteral("lblPoradaDnia"));
  lblPoradaDnia_->setWordWrap(true);
  lblPoradaDnia_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  lblPoradaDnia_->setTextFormat(Qt::PlainText);
  v->addWidget(fraPoradaDnia_, 1);

  tmrPoradaDnia_ = new QTimer(this);
  tmrPoradaDnia_->setObjectName(QStringLiteral("tmrPoradaDnia"));
  tmrPoradaDnia_->setInterval(kTakt);
  connect(tmrPoradaDnia_, &QTimer::timeout, this, [this] { krok(); });
}

void PrzegladDniaGui::PrzegladDnia() {
  lblPoradaDnia_->setText(::PrzegladDnia(Dzis()));
  // The first pass starts at the top, so the text is read at once; later ones come from below.
  y_ = 4;
  ulozTekst();
  if (wlaczony_) tmrPoradaDnia_->start();
}

void PrzegladDniaGui::ulozTekst() {
  const int szerokosc = std::max(40, fraPoradaDnia_->width() - 12);
  lblPoradaDnia_->setGeometry(6, y_, szerokosc, lblPoradaDnia_->heightForWidth(szerokosc));
}

void PrzegladDniaGui::krok() {
  --y_;
  // Wholly past the top: again from the bottom.
  if (y_ + lblPoradaDnia_->height() < 0) y_ = fraPoradaDnia_->height();
  lblPoradaDnia_->move(lblPoradaDnia_->x(), y_);
}

void PrzegladDniaGui::Porada(int i) {
  switch (i) {
    case 0:
      tmrPoradaDnia_->start();
      break;
    case 1:
      tmrPoradaDnia_->stop();
      break;
    case 2:
      tmrPoradaDnia_->stop();
      wlaczony_ = false;
      fraPoradaDnia_->hide();
      for (int k = 0; k < 3; ++k) cmdPorada_[size_t(k)]->setEnabled(false);
      cmdPorada_[3]->setEnabled(true);
      break;
    case 3:
      for (int k = 0; k < 3; ++k) cmdPorada_[size_t(k)]->setEnabled(true);
      cmdPorada_[3]->setEnabled(false);
      wlaczony_ = true;
      tmrPoradaDnia_->start();
      fraPoradaDnia_->show();
      break;
    default:
      break;
  }
}

void PrzegladDniaGui::Wznow() {
  if (wlaczony_) tmrPoradaDnia_->start();
}

bool PrzegladDniaGui::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
  if (obiekt == fraPoradaDnia_ && zdarzenie->type() == QEvent::Resize) ulozTekst();
  return QWidget::eventFilter(obiekt, zdarzenie);
}
