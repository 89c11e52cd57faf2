#include "setup/frmHaslo.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "setup/haslo.h"
#include "store/MsgBoxModule.h"
#include "store/napis.h"
#include "store/session.h"
#include "ui/obrazki_gui.h"

frmHaslo::frmHaslo(QWidget* rodzic) : QDialog(rodzic) {
  setObjectName(QStringLiteral("frmHaslo"));
  setWindowTitle(Napis(QStringLiteral("frmHaslo1")));
  setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
  setWindowIcon(IkonaProgramu());

  auto* obrazek = new QLabel(this);
  obrazek->setObjectName(QStringLiteral("imgObrazek"));
  obrazek->setPixmap(ObrazekProgramu(40));
  auto* lblHaslo = new QLabel(Napis(QStringLiteral("frmHaslo2")), this);
  lblHaslo->setObjectName(QStringLiteral("lblHaslo"));
  txtHaslo_ = new QLineEdit(this);
  txtHaslo_->setObjectName(QStringLiteral("txtHaslo"));
  txtHaslo_->setEchoMode(QLineEdit::Password);
  txtHaslo_->setMinimumWidth(260);
  lblHaslo->setBuddy(txtHaslo_);

  auto* cmdOK = new QPushButton(Napis(QStringLiteral("frmHaslo3")), this);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setDefault(true);
  auto* cmdAnuluj = new QPushButton(Napis(QStringLiteral("frmHaslo8")), this);
  cmdAnuluj->setObjectName(QStringLiteral("cmdAnuluj"));
  auto* przyciski = new QDialogButtonBox(this);
  przyciski->addButton(cmdOK, QDialogButtonBox::AcceptRole);
  przyciski->addButton(cmdAnuluj, QDialogButtonBox::RejectRole);

  auto* uklad = new QGridLayout(this);
  uklad->setContentsMargins(16, 16, 16, 12);
  uklad->setHorizontalSpacing(14);
  uklad->addWidget(obrazek, 0, 0, 2, 1, Qt::AlignTop);
  uklad->addWidget(lblHaslo, 0, 1);
  uklad->addWidget(txtHaslo_, 1, 1);
  uklad->setRowMinimumHeight(2, 8);
  uklad->addWidget(przyciski, 3, 0, 1, 2);
  uklad->setSizeConstraint(QLayout::SetFixedSize);

  connect(cmdOK, &QPushButton::clicked, this, &frmHaslo::cmdOK_Click);
  // Cancel, Esc and the close box leave the password set, which ends the program.
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);
  txtHaslo_->setFocus();
}

void frmHaslo::cmdOK_Click() {
  // The check derives keys on purpose slowly, and the first entry also locks the store.
  QApplication::setOverrideCursor(Qt::WaitCursor);
  QString bladZamka;
  const bool wpuszczony = WpuscHaslem(txtHaslo_->text(), &bladZamka);
  QApplication::restoreOverrideCursor();
  if (wpuszczony) {
    sesja.pubUstawienia.haslo.clear();
    if (!bladZamka.isEmpty())
      MyMsgbox(Napis(QStringLiteral("frmHaslo9")).arg(bladZamka),
               Napis(QStringLiteral("frmHaslo10")), MsgOK, IkonaOstrzezenie);
    accept();
    return;
  }
  // Every wrong try is told; the third also ends the gate.
  MyMsgbox(Napis(QStringLiteral("frmHaslo4")), Napis(QStringLiteral("frmHaslo5")), MsgOK,
           IkonaInformacja);
  ++bledy_;
  if (bledy_ >= 3) {
    MyMsgbox(Napis(QStringLiteral("frmHaslo6")), Napis(QStringLiteral("frmHaslo7")), MsgOK,
             IkonaOstrzezenie);
    reject();
    return;
  }
  txtHaslo_->clear();
  txtHaslo_->setFocus();
}
