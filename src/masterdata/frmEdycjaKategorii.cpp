#include "masterdata/frmEdycjaKategorii.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "masterdata/kategorie.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"

frmEdycjaKategorii::frmEdycjaKategorii(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmEdycjaKategorii"));
  OtworzBaze();
  const KategoriaRekord k = sesja.pubKategoria;
  nowa_ = k.identyfikator.isEmpty();

  auto* lbl1 = new QLabel(Napis(QStringLiteral("frmEdycjaKategorii1")), this);
  lbl1->setObjectName(QStringLiteral("lbl1"));
  lblNadKategoria_ = new QLabel(this);
  lblNadKategoria_->setObjectName(QStringLiteral("lblNadKategoria"));
  QFont gruba = lblNadKategoria_->font();
  gruba.setBold(true);
  lblNadKategoria_->setFont(gruba);
  auto* lbl2 = new QLabel(Napis(QStringLiteral("frmEdycjaKategorii2")), this);
  lbl2->setObjectName(QStringLiteral("lbl2"));
  txtNazwa_ = new QLineEdit(this);
  txtNazwa_->setObjectName(QStringLiteral("txtNazwa"));
  txtNazwa_->setMaxLength(16);
  lbl2->setBuddy(txtNazwa_);
  auto* lbl3 = new QLabel(Napis(QStringLiteral("frmEdycjaKategorii3")), this);
  lbl3->setObjectName(QStringLiteral("lbl3"));
  txtOpis_ = new QLineEdit(this);
  txtOpis_->setObjectName(QStringLiteral("txtOpis"));
  txtOpis_->setMaxLength(150);
  lbl3->setBuddy(txtOpis_);

  auto* cmdOK = new QPushButton(Napis(QStringLiteral("frmEdycjaKategorii4")), this);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setDefault(true);
  auto* cmdAnuluj = new QPushButton(Napis(QStringLiteral("frmEdycjaKategorii5")), this);
  cmdAnuluj->setObjectName(QStringLiteral("cmdAnuluj"));
  auto* przyciski = new QDialogButtonBox(this);
  przyciski->addButton(cmdOK, QDialogButtonBox::AcceptRole);
  przyciski->addButton(cmdAnuluj, QDialogButtonBox::RejectRole);
  connect(cmdOK, &QPushButton::clicked, this, &frmEdycjaKategorii::cmdOK_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);

  auto* siatka = new QGridLayout;
  siatka->addWidget(lbl1, 0, 0);
  siatka->addWidget(lblNadKategoria_, 0, 1);
  siatka->addWidget(lbl2, 1, 0);
  siatka->addWidget(txtNazwa_, 1, 1);
  siatka->addWidget(lbl3, 2, 0);
  siatka->addWidget(txtOpis_, 2, 1);
  siatka->setColumnStretch(1, 1);
  auto* uklad = new QVBoxLayout(this);
  uklad->addLayout(siatka);
  uklad->addStretch();
  uklad->addWidget(przyciski);

  if (nowa_) {
    setWindowTitle(Napis(QStringLiteral("frmEdycjaKategorii12")));
    // A new main category shows the text for "no parent", not that of a vanished category.
    const QString rodzic = k.nadkategoria == KluczKorzenia || k.nadkategoria.isEmpty()
                               ? QStringLiteral("-")
                               : k.nadkategoria;
    lblNadKategoria_->setText(SciezkaKategorii(rodzic, k.rodzaj));
  } else {
    setWindowTitle(Napis(QStringLiteral("frmEdycjaKategorii13")));
    const OpisKategorii o = CzytajKategorie(k.identyfikator, k.rodzaj);
    txtNazwa_->setText(o.nazwa);
    txtOpis_->setText(o.opis);
    lblNadKategoria_->setText(
        SciezkaKategorii(o.istnieje ? o.kategoria : QStringLiteral("-"), k.rodzaj));
  }
  // SciezkaKategorii clears the session's choice for "-"; the editor keeps what it was given.
  sesja.pubKategoria = k;
  resize(480, sizeHint().height());
  txtNazwa_->setFocus();
}

QString frmEdycjaKategorii::Nazwa() const { return txtNazwa_->text().trimmed(); }

void frmEdycjaKategorii::cmdOK_Click() {
  const std::optional<QString> id =
      ZapiszKategorie(sesja.pubKategoria, txtNazwa_->text(), txtOpis_->text());
  if (!id) {
    txtNazwa_->setFocus();
    return;
  }
  zapisany_ = *id;
  accept();
}
