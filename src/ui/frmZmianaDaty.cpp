#include "ui/frmZmianaDaty.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/kalendarz_gui.h"
#include "store/napis.h"
#include "store/session.h"

frmZmianaDaty::frmZmianaDaty(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmZmianaDaty"));
  setWindowTitle(Napis(QStringLiteral("frmZmianaDaty1")));
  auto* lbl = new QLabel(Napis(QStringLiteral("frmZmianaDaty2")), this);
  lbl->setObjectName(QStringLiteral("lblOpis"));
  lbl->setWordWrap(true);
  mvwData_ = NowyKalendarz(QStringLiteral("mvwData"), sesja.pubFiltrCzasowy.pozycja, this);
  lbl->setBuddy(mvwData_);

  auto* cmdOK = new QPushButton(Napis(QStringLiteral("frmZmianaDaty3")), this);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setDefault(true);
  auto* cmdAnuluj = new QPushButton(Napis(QStringLiteral("frmZmianaDaty4")), this);
  cmdAnuluj->setObjectName(QStringLiteral("cmdAnuluj"));

  auto* przyciski = new QHBoxLayout;
  przyciski->addStretch();
  przyciski->addWidget(cmdOK);
  przyciski->addWidget(cmdAnuluj);
  auto* uklad = new QVBoxLayout(this);
  uklad->addWidget(lbl);
  uklad->addWidget(mvwData_);
  uklad->addLayout(przyciski);

  connect(cmdOK, &QPushButton::clicked, this, &frmZmianaDaty::cmdOK_Click);
  connect(mvwData_, &QCalendarWidget::activated, this, &frmZmianaDaty::cmdOK_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);
  setMinimumWidth(320);
  mvwData_->setFocus();
}

void frmZmianaDaty::cmdOK_Click() {
  sesja.pubFiltrCzasowy.pozycja = mvwData_->selectedDate();
  accept();
}
