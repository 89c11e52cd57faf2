#include "masterdata/frmLimitDlaKategorii.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "calculator/PoleKwoty_gui.h"
#include "masterdata/kategorie.h"
#include "store/MsgBoxModule.h"
#include "store/napis.h"
#include "store/session.h"

frmLimitDlaKategorii::frmLimitDlaKategorii(QWidget* parent)
    : QDialog(parent),
      identyfikator_(sesja.pubKategoria.identyfikator),
      rodzaj_(sesja.pubKategoria.rodzaj) {
  setObjectName(QStringLiteral("frmLimitDlaKategorii"));
  setWindowTitle(Napis(QStringLiteral("frmLimitDlaKategorii1")));

  auto* lblKategoria = new QLabel(Napis(QStringLiteral("frmLimitDlaKategorii7")), this);
  lblKategoria->setObjectName(QStringLiteral("lblKategoria"));
  auto* lblNazwaKategorii = new QLabel(sesja.pubKategoria.nazwa, this);
  lblNazwaKategorii->setObjectName(QStringLiteral("lblNazwaKategorii"));
  QFont gruba = lblNazwaKategorii->font();
  gruba.setBold(true);
  lblNazwaKategorii->setFont(gruba);

  auto* lblLimit = new QLabel(Napis(QStringLiteral("frmLimitDlaKategorii2")), this);
  lblLimit->setObjectName(QStringLiteral("lblLimit"));
  txtLimit_ = new QLineEdit(this);
  txtLimit_->setObjectName(QStringLiteral("txtLimit"));
  txtLimit_->setAlignment(Qt::AlignRight);
  lblLimit->setBuddy(txtLimit_);
  PoleKwoty* kwota = PoleKwoty::Podlacz(txtLimit_);
  txtLimit_->setFixedWidth(PoleKwoty::Szerokosc(txtLimit_));
  kwota->UstawWartosc(CzytajLimit(identyfikator_, rodzaj_));
  auto* cmdKalkulator = new QToolButton(this);
  cmdKalkulator->setObjectName(QStringLiteral("cmdKalkulator"));
  cmdKalkulator->setText(QStringLiteral("..."));
  cmdKalkulator->setToolTip(Napis(QStringLiteral("frmLimitDlaKategorii8")));
  connect(cmdKalkulator, &QToolButton::clicked, kwota, &PoleKwoty::OtworzKalkulator);

  auto* cmdOK = new QPushButton(Napis(QStringLiteral("frmLimitDlaKategorii3")), this);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setDefault(true);
  auto* cmdAnuluj = new QPushButton(Napis(QStringLiteral("frmLimitDlaKategorii4")), this);
  cmdAnuluj->setObjectName(QStringLiteral("cmdAnuluj"));
  auto* przyciski = new QDialogButtonBox(this);
  przyciski->addButton(cmdOK, QDialogButtonBox::AcceptRole);
  przyciski->addButton(cmdAnuluj, QDialogButtonBox::RejectRole);
  connect(cmdOK, &QPushButton::clicked, this, &frmLimitDlaKategorii::cmdOK_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);

  auto* siatka = new QGridLayout;
  siatka->addWidget(lblKategoria, 0, 0);
  siatka->addWidget(lblNazwaKategorii, 0, 1, 1, 2);
  siatka->addWidget(lblLimit, 1, 0);
  siatka->addWidget(txtLimit_, 1, 1);
  siatka->addWidget(cmdKalkulator, 1, 2);
  siatka->setColumnStretch(3, 1);
  auto* uklad = new QVBoxLayout(this);
  uklad->addLayout(siatka);
  uklad->addStretch();
  uklad->addWidget(przyciski);
  resize(400, sizeHint().height());
  txtLimit_->setFocus();
  txtLimit_->selectAll();
}

void frmLimitDlaKategorii::cmdOK_Click() {
  const double limit = PoleKwoty::Z(txtLimit_)->Wartosc();
  if (!UstawLimit(identyfikator_, rodzaj_, limit)) {
    MyMsgbox(Napis(QStringLiteral("frmLimitDlaKategorii5")),
             Napis(QStringLiteral("frmLimitDlaKategorii6")), MsgOK, IkonaOstrzezenie);
    txtLimit_->setFocus();
    return;
  }
  accept();
}
