#include "ledger/frmEdycjaSzablonuZewnetrznego.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "ledger/edytorwpisu_gui.h"
#include "ledger/szablony.h"
#include "masterdata/kategorie.h"
#include "masterdata/konta.h"
#include "masterdata/kontrahenci.h"
#include "store/napis.h"
#include "store/session.h"
#include "ui/nawigacja_gui.h"

frmEdycjaSzablonuZewnetrznego::frmEdycjaSzablonuZewnetrznego(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmEdycjaSzablonuZewnetrznego"));
  edytorOtwarty_ = sesja.pubEdytorOtwarty;
  sesja.pubEdytorOtwarty = true;
  const bool przychod = sesja.pubSzablonRodzaj == 1;
  setWindowTitle(przychod ? Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego1"))
                          : Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego2")));
  setWindowIcon(IkonaWpisu(przychod ? 1 : 2));

  txtNazwa_ = new QLineEdit(this);
  txtNazwa_->setObjectName(QStringLiteral("txtNazwa"));
  txtNazwa_->setMaxLength(DlugoscNazwySzablonu);
  txtNazwa_->setToolTip(Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego4")));
  txtOpis_ = new QLineEdit(this);
  txtOpis_->setObjectName(QStringLiteral("txtOpis"));
  txtOpis_->setMaxLength(DlugoscOpisu);
  txtOpis_->setToolTip(Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego6")));
  auto* pola = new QFormLayout;
  pola->addRow(Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego3")), txtNazwa_);
  pola->addRow(Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego5")), txtOpis_);

  auto* cmdKonto = NowyPrzycisk(QStringLiteral("cmdKonto"),
                                Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego9")), this);
  auto* fraKonto = NowaRamkaWyboru(
      QStringLiteral("fraKonto"), Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego7")),
      lblKonto_, QStringLiteral("lblKonto"),
      Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego8")), cmdKonto, this);
  auto* cmdKategoria = NowyPrzycisk(QStringLiteral("cmdKategoria"),
                                    Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego12")), this);
  auto* fraKategoria = NowaRamkaWyboru(
      QStringLiteral("fraKategoria"), Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego10")),
      lblKategoria_, QStringLiteral("lblKategoria"),
      Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego11")), cmdKategoria, this);
  auto* cmdKontrahent =
      NowyPrzycisk(QStringLiteral("cmdKontrahent"),
                   Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego23")), this);
  auto* fraKontrahent = NowaRamkaWyboru(
      QStringLiteral("fraKontrahent"), Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego13")),
      lblKontrahent_, QStringLiteral("lblKontrahent"),
      Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego22")), cmdKontrahent, this);
  connect(cmdKonto, &QPushButton::clicked, this,
          [this] { wybierz(QStringLiteral("frmPrzegladKont"), lblKonto_); });
  connect(cmdKategoria, &QPushButton::clicked, this,
          [this] { wybierz(QStringLiteral("frmPrzegladKategorii"), lblKategoria_); });
  connect(cmdKontrahent, &QPushButton::clicked, this,
          [this] { wybierz(QStringLiteral("frmPrzegladKontrahentow"), lblKontrahent_); });

  auto* cmdOk = NowyPrzycisk(QStringLiteral("cmdOk"),
                             Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego24")), this);
  cmdOk->setDefault(true);
  cmdOk->setAutoDefault(true);
  auto* cmdAnuluj = NowyPrzycisk(QStringLiteral("cmdAnuluj"),
                                 Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego25")), this);
  auto* cmdPomoc = NowyPrzycisk(QStringLiteral("cmdPomoc"),
                                Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego26")), this);
  // The help file is not part of this build.
  cmdPomoc->setEnabled(false);
  cmdPomoc->setToolTip(Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego27")));
  connect(cmdOk, &QPushButton::clicked, this, &frmEdycjaSzablonuZewnetrznego::cmdOk_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);
  auto* dol = new QHBoxLayout;
  dol->addStretch();
  dol->addWidget(cmdOk);
  dol->addWidget(cmdAnuluj);
  dol->addWidget(cmdPomoc);

  auto* uklad = new QVBoxLayout(this);
  uklad->addLayout(pola);
  uklad->addWidget(fraKonto);
  uklad->addWidget(fraKategoria);
  uklad->addWidget(fraKontrahent);
  uklad->addSpacing(4);
  uklad->addLayout(dol);

  sesja.pubKategoria.rodzaj = sesja.pubSzablonRodzaj;
  if (sesja.pubSzablonId > 0) {
    if (const auto s = CzytajSzablon(sesja.pubSzablonId)) {
      txtNazwa_->setMaxLength(std::max(DlugoscNazwySzablonu, int(s->nazwa.size())));
      txtNazwa_->setText(s->nazwa);
      txtOpis_->setMaxLength(std::max(DlugoscOpisu, int(s->opis.size())));
      txtOpis_->setText(s->opis);
      sesja.pubKonto.id = s->konto.id;
      sesja.pubKategoria.identyfikator = s->kategoria.identyfikator;
      sesja.pubKategoria.nazwa = s->kategoria.nazwa;
      sesja.pubKontrahent = s->kontrahent;
    }
  }
  OdswiezEtykiety();
  resize(560, sizeHint().height());
  txtNazwa_->setFocus();
}

frmEdycjaSzablonuZewnetrznego::~frmEdycjaSzablonuZewnetrznego() {
  sesja.pubEdytorOtwarty = edytorOtwarty_;
}

void frmEdycjaSzablonuZewnetrznego::OdswiezEtykiety() {
  lblKonto_->setText(sesja.pubKonto.id != 0
                         ? OpisKonta(sesja.pubKonto)
                         : Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego8")));
  lblKategoria_->setText(
      !sesja.pubKategoria.identyfikator.isEmpty()
          ? SciezkaKategorii(sesja.pubKategoria.identyfikator, sesja.pubSzablonRodzaj)
          : Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego11")));
  lblKontrahent_->setText(sesja.pubKontrahent.id != 0
                              ? OpisKontrahenta(sesja.pubKontrahent)
                              : Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego22")));
}

void frmEdycjaSzablonuZewnetrznego::wybierz(const QString& przegladarka, QLabel* etykieta) {
  sesja.pubKategoria.rodzaj = sesja.pubSzablonRodzaj;
  PokazWybor(przegladarka, etykieta, this);
  OdswiezEtykiety();
}

Szablon frmEdycjaSzablonuZewnetrznego::Dane() const {
  Szablon s;
  s.id = sesja.pubSzablonId;
  s.rodzaj = sesja.pubSzablonRodzaj;
  s.nazwa = txtNazwa_->text();
  s.opis = txtOpis_->text();
  s.konto = sesja.pubKonto;
  s.kategoria = sesja.pubKategoria;
  s.kontrahent = sesja.pubKontrahent;
  return s;
}

void frmEdycjaSzablonuZewnetrznego::cmdOk_Click() {
  if (ZapiszSzablon(Dane()))
    accept();
  else
    txtNazwa_->setFocus();
}
