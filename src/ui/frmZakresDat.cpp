#include "ui/frmZakresDat.h"

#include <QCalendarWidget>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/kalendarz_gui.h"
#include "store/MsgBoxModule.h"
#include "store/napis.h"
#include "store/session.h"

frmZakresDat::frmZakresDat(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmZakresDat"));
  setWindowTitle(Napis(QStringLiteral("frmZakresDat1")));
  auto* lblOpis = new QLabel(Napis(QStringLiteral("frmZakresDat6")), this);
  lblOpis->setObjectName(QStringLiteral("lblOpis"));
  lblOpis->setWordWrap(true);
  auto* lblOd = new QLabel(Napis(QStringLiteral("frmZakresDat2")), this);
  lblOd->setObjectName(QStringLiteral("lblOd"));
  auto* lblDo = new QLabel(Napis(QStringLiteral("frmZakresDat3")), this);
  lblDo->setObjectName(QStringLiteral("lblDo"));
  mvwDataOd_ = NowyKalendarz(QStringLiteral("mvwDataOd"), sesja.pubFiltrCzasowy.od, this);
  mvwDataDo_ = NowyKalendarz(QStringLiteral("mvwDataDo"), sesja.pubFiltrCzasowy.do_, this);
  lblOd->setBuddy(mvwDataOd_);
  lblDo->setBuddy(mvwDataDo_);

  auto* cmdOK = new QPushButton(Napis(QStringLiteral("frmZakresDat4")), this);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setDefault(true);
  auto* cmdAnuluj = new QPushButton(Napis(QStringLiteral("frmZakresDat5")), this);
  cmdAnuluj->setObjectName(QStringLiteral("cmdAnuluj"));

  auto* kalendarze = new QGridLayout;
  kalendarze->addWidget(lblOd, 0, 0);
  kalendarze->addWidget(lblDo, 0, 1);
  kalendarze->addWidget(mvwDataOd_, 1, 0);
  kalendarze->addWidget(mvwDataDo_, 1, 1);
  auto* przyciski = new QHBoxLayout;
  przyciski->addStretch();
  przyciski->addWidget(cmdOK);
  przyciski->addWidget(cmdAnuluj);
  auto* uklad = new QVBoxLayout(this);
  uklad->addWidget(lblOpis);
  uklad->addLayout(kalendarze);
  uklad->addLayout(przyciski);

  connect(cmdOK, &QPushButton::clicked, this, &frmZakresDat::cmdOK_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);
  mvwDataOd_->setFocus();
}

void frmZakresDat::cmdOK_Click() {
  // The session takes the range at once; a reversed range only keeps the dialog open.
  sesja.pubFiltrCzasowy.od = mvwDataOd_->selectedDate();
  sesja.pubFiltrCzasowy.do_ = mvwDataDo_->selectedDate();
  if (sesja.pubFiltrCzasowy.od.daysTo(sesja.pubFiltrCzasowy.do_) < 0) {
    MyMsgbox(Napis(QStringLiteral("frmZakresDat7")), Napis(QStringLiteral("frmZakresDat8")), MsgOK,
             IkonaOstrzezenie);
    return;
  }
  accept();
}
