#include "ledger/frmEdycjaSzablonuWewnetrznego.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "ledger/edytorwpisu_gui.h"
#include "ledger/szablony.h"
#include "masterdata/konta.h"
#include "store/napis.h"
#include "ui/nawigacja_gui.h"

frmEdycjaSzablonuWewnetrznego::frmEdycjaSzablonuWewnetrznego(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmEdycjaSzablonuWewnetrznego"));
  edytorOtwarty_ = sesja.pubEdytorOtwarty;
  sesja.pubEdytorOtwarty = true;
  setWindowTitle(Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego1")));
  setWindowIcon(IkonaWpisu(3));

  txtNazwa_ = new QLineEdit(this);
  txtNazwa_->setObjectName(QStringLiteral("txtNazwa"));
  txtNazwa_->setMaxLength(DlugoscNazwySzablonu);
  txtNazwa_->setToolTip(Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego3")));
  txtOpis_ = new QLineEdit(this);
  txtOpis_->setObjectName(QStringLiteral("txtOpis"));
  txtOpis_->setMaxLength(DlugoscOpisu);
  txtOpis_->setToolTip(Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego25")));
  auto* pola = new QFormLayout;
  pola->addRow(Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego2")), txtNazwa_);
  pola->addRow(Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego4")), txtOpis_);

  auto* cmdZKonta = NowyPrzycisk(QStringLiteral("cmdZKonta"),
                                 Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego7")), this);
  auto* fraZKonta = NowaRamkaWyboru(
      QStringLiteral("fraZKonta"), Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego5")),
      lblZKonta_, QStringLiteral("lblZKonta"),
      Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego6")), cmdZKonta, this);
  auto* cmdNaKonto = NowyPrzycisk(QStringLiteral("cmdNaKonto"),
                                  Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego10")), this);
  auto* fraNaKonto = NowaRamkaWyboru(
      QStringLiteral("fraNaKonto"), Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego8")),
      lblNaKonto_, QStringLiteral("lblNaKonto"),
      Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego9")), cmdNaKonto, this);
  connect(cmdZKonta, &QPushButton::clicked, this, [this] { wybierz(zKonta_, lblZKonta_); });
  connect(cmdNaKonto, &QPushButton::clicked, this, [this] { wybierz(naKonto_, lblNaKonto_); });

  auto* cmdOk = NowyPrzycisk(QStringLiteral("cmdOk"),
                             Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego21")), this);
  cmdOk->setDefault(true);
  cmdOk->setAutoDefault(true);
  auto* cmdAnuluj = NowyPrzycisk(QStringLiteral("cmdAnuluj"),
                                 Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego22")), this);
  auto* cmdPomoc = NowyPrzycisk(QStringLiteral("cmdPomoc"),
                                Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego23")), this);
  // The help file is not part of this build.
  cmdPomoc->setEnabled(false);
  cmdPomoc->setToolTip(Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego24")));
  connect(cmdOk, &QPushButton::clicked, this, &frmEdycjaSzablonuWewnetrznego::cmdOk_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);
  auto* dol = new QHBoxLayout;
  dol->addStretch();
  dol->addWidget(cmdOk);
  dol->addWidget(cmdAnuluj);
  dol->addWidget(cmdPomoc);

  auto* uklad = new QVBoxLayout(this);
  uklad->addLayout(pola);
  uklad->addWidget(fraZKonta);
  uklad->addWidget(fraNaKonto);
  uklad->addSpacing(4);
  uklad->addLayout(dol);

  if (sesja.pubSzablonId > 0) {
    if (const auto s = CzytajSzablonWewnetrzny(sesja.pubSzablonId)) {
      txtNazwa_->setMaxLength(std::max(DlugoscNazwySzablonu, int(s->nazwa.size())));
      txtNazwa_->setText(s->nazwa);
      txtOpis_->setMaxLength(std::max(DlugoscOpisu, int(s->opis.size())));
      txtOpis_->setText(s->opis);
      zKonta_.id = s->konto.id;
      naKonto_.id = s->naKonto.id;
    }
  }
  OdswiezEtykiety();
  resize(560, sizeHint().height());
  txtNazwa_->setFocus();
}

frmEdycjaSzablonuWewnetrznego::~frmEdycjaSzablonuWewnetrznego() {
  sesja.pubEdytorOtwarty = edytorOtwarty_;
}

void frmEdycjaSzablonuWewnetrznego::OdswiezEtykiety() {
  lblZKonta_->setText(zKonta_.id != 0 ? OpisKonta(zKonta_)
                                      : Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego6")));
  lblNaKonto_->setText(naKonto_.id != 0 ? OpisKonta(naKonto_)
                                        : Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego9")));
}

void frmEdycjaSzablonuWewnetrznego::wybierz(KontoRekord& konto, QLabel* etykieta) {
  const KontoRekord dawne = sesja.pubKonto;
  sesja.pubKonto = konto;
  PokazWybor(QStringLiteral("frmPrzegladKont"), etykieta, this);
  konto = sesja.pubKonto;
  sesja.pubKonto = dawne;
  OdswiezEtykiety();
}

Szablon frmEdycjaSzablonuWewnetrznego::Dane() const {
  Szablon s;
  s.id = sesja.pubSzablonId;
  s.rodzaj = 3;
  s.nazwa = txtNazwa_->text();
  s.opis = txtOpis_->text();
  s.konto = zKonta_;
  s.naKonto = naKonto_;
  return s;
}

void frmEdycjaSzablonuWewnetrznego::cmdOk_Click() {
  if (ZapiszSzablonWewnetrzny(Dane()))
    accept();
  else
    txtNazwa_->setFocus();
}
