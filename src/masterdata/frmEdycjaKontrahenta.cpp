#include "masterdata/frmEdycjaKontrahenta.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "masterdata/kontrahenci.h"
#include "masterdata/szerokosci_gui.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"

namespace {
QLabel* etykieta(const QString& tekst, QLineEdit* pole, QWidget* rodzic) {
  auto* l = new QLabel(tekst, rodzic);
  l->setBuddy(pole);
  return l;
}
}  // namespace

QLineEdit* frmEdycjaKontrahenta::pole(const QString& nazwa, int dlugosc, QWidget* rodzic) {
  auto* p = new QLineEdit(rodzic);
  p->setObjectName(nazwa);
  p->setMaxLength(dlugosc);
  return p;
}

frmEdycjaKontrahenta::frmEdycjaKontrahenta(QWidget* parent)
    : QDialog(parent), id_(sesja.pubKontrahent.id) {
  setObjectName(QStringLiteral("frmEdycjaKontrahenta"));
  OtworzBaze();

  auto* fraPodstawowe = new QGroupBox(Napis(QStringLiteral("frmEdycjaKontrahenta1")), this);
  fraPodstawowe->setObjectName(QStringLiteral("fraPodstawowe"));
  txtNazwaSkrocona_ = pole(QStringLiteral("txtNazwaSkrocona"), 16, fraPodstawowe);
  txtOpis_ = pole(QStringLiteral("txtOpis"), 150, fraPodstawowe);
  auto* nazwa = new QHBoxLayout;
  nazwa->addWidget(txtNazwaSkrocona_);
  nazwa->addWidget(new QLabel(Napis(QStringLiteral("frmEdycjaKontrahenta3")), fraPodstawowe));
  nazwa->addStretch();
  txtNazwaSkrocona_->setFixedWidth(SzerokoscPolaNazwy(txtNazwaSkrocona_));
  auto* ukladPodstawowe = new QFormLayout(fraPodstawowe);
  ukladPodstawowe->addRow(
      etykieta(Napis(QStringLiteral("frmEdycjaKontrahenta2")), txtNazwaSkrocona_, fraPodstawowe),
      nazwa);
  ukladPodstawowe->addRow(
      etykieta(Napis(QStringLiteral("frmEdycjaKontrahenta4")), txtOpis_, fraPodstawowe), txtOpis_);

  auto* fraAdres = new QGroupBox(Napis(QStringLiteral("frmEdycjaKontrahenta5")), this);
  fraAdres->setObjectName(QStringLiteral("fraAdres"));
  txtNazwa_ = pole(QStringLiteral("txtNazwa"), 30, fraAdres);
  txtAdres_ = pole(QStringLiteral("txtAdres"), 30, fraAdres);
  txtMiasto_ = pole(QStringLiteral("txtMiasto"), 30, fraAdres);
  txtTelefon_ = pole(QStringLiteral("txtTelefon"), 30, fraAdres);
  auto* ukladAdres = new QFormLayout(fraAdres);
  const std::pair<QString, QLineEdit*> adres[] = {
      {Napis(QStringLiteral("frmEdycjaKontrahenta6")), txtNazwa_},
      {Napis(QStringLiteral("frmEdycjaKontrahenta7")), txtAdres_},
      {Napis(QStringLiteral("frmEdycjaKontrahenta8")), txtMiasto_},
      {Napis(QStringLiteral("frmEdycjaKontrahenta9")), txtTelefon_}};
  for (const auto& [tekst, p] : adres) ukladAdres->addRow(etykieta(tekst, p, fraAdres), p);

  // The three pieces of the account number, as the payment slip prints them.
  fraBank_ = new QGroupBox(Napis(QStringLiteral("frmEdycjaKontrahenta10")), this);
  fraBank_->setObjectName(QStringLiteral("fraBank"));
  fraBank_->setToolTip(Napis(QStringLiteral("frmEdycjaKontrahenta14")));
  txtLk_ = pole(QStringLiteral("txtLk"), 2, fraBank_);
  txtBank_ = pole(QStringLiteral("txtBank"), 8, fraBank_);
  txtKonto_ = pole(QStringLiteral("txtKonto"), 25, fraBank_);
  const int znak = txtLk_->fontMetrics().horizontalAdvance(QLatin1Char('0'));
  txtLk_->setFixedWidth(znak * 4 + 12);
  txtBank_->setFixedWidth(znak * 10 + 12);
  txtKonto_->setMinimumWidth(znak * 27 + 12);
  auto* ukladBank = new QHBoxLayout(fraBank_);
  ukladBank->addWidget(etykieta(Napis(QStringLiteral("frmEdycjaKontrahenta11")), txtLk_, fraBank_));
  ukladBank->addWidget(txtLk_);
  ukladBank->addSpacing(8);
  ukladBank->addWidget(
      etykieta(Napis(QStringLiteral("frmEdycjaKontrahenta12")), txtBank_, fraBank_));
  ukladBank->addWidget(txtBank_);
  ukladBank->addSpacing(8);
  ukladBank->addWidget(
      etykieta(Napis(QStringLiteral("frmEdycjaKontrahenta13")), txtKonto_, fraBank_));
  ukladBank->addWidget(txtKonto_, 1);
  fraBank_->setVisible(sesja.pubJezyk == 1);

  auto* cmdOk = new QPushButton(Napis(QStringLiteral("frmEdycjaKontrahenta22")), this);
  cmdOk->setObjectName(QStringLiteral("cmdOk"));
  cmdOk->setDefault(true);
  auto* cmdAnuluj = new QPushButton(Napis(QStringLiteral("frmEdycjaKontrahenta23")), this);
  cmdAnuluj->setObjectName(QStringLiteral("cmdAnuluj"));
  connect(cmdOk, &QPushButton::clicked, this, &frmEdycjaKontrahenta::cmdOk_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);
  auto* przyciski = new QHBoxLayout;
  przyciski->addStretch();
  przyciski->addWidget(cmdOk);
  przyciski->addWidget(cmdAnuluj);

  auto* uklad = new QVBoxLayout(this);
  uklad->addWidget(fraPodstawowe);
  uklad->addWidget(fraAdres);
  uklad->addWidget(fraBank_);
  uklad->addLayout(przyciski);

  if (id_ != 0) {
    setWindowTitle(Napis(QStringLiteral("frmEdycjaKontrahenta21")));
    const DaneKontrahenta d = CzytajKontrahenta(id_);
    txtNazwaSkrocona_->setText(d.skrocona);
    txtOpis_->setText(d.opis);
    txtNazwa_->setText(d.nazwa);
    txtAdres_->setText(d.adres);
    txtMiasto_->setText(d.miasto);
    txtTelefon_->setText(d.telefon);
    txtLk_->setText(d.lk);
    txtBank_->setText(d.bank);
    txtKonto_->setText(d.konto);
  } else {
    setWindowTitle(Napis(QStringLiteral("frmEdycjaKontrahenta20")));
  }
  resize(560, sizeHint().height());
  txtNazwaSkrocona_->setFocus();
}

void frmEdycjaKontrahenta::cmdOk_Click() {
  DaneKontrahenta d;
  d.id = id_;
  d.skrocona = txtNazwaSkrocona_->text();
  d.opis = txtOpis_->text();
  d.nazwa = txtNazwa_->text();
  d.adres = txtAdres_->text();
  d.miasto = txtMiasto_->text();
  d.telefon = txtTelefon_->text();
  d.lk = txtLk_->text();
  d.bank = txtBank_->text();
  d.konto = txtKonto_->text();
  qint64 nowy = 0;
  if (!ZapiszKontrahenta(d, &nowy)) {
    txtNazwaSkrocona_->setFocus();
    return;
  }
  zapisany_ = id_ != 0 ? id_ : nowy;
  accept();
}
