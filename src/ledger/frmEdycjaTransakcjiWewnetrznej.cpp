#include "ledger/frmEdycjaTransakcjiWewnetrznej.h"

#include <QDateEdit>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "calculator/PoleKwoty_gui.h"
#include "ledger/edytorwpisu_gui.h"
#include "ledger/szablony.h"
#include "ledger/transfery.h"
#include "masterdata/konta.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/tekst.h"
#include "ui/nawigacja_gui.h"

frmEdycjaTransakcjiWewnetrznej::frmEdycjaTransakcjiWewnetrznej(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmEdycjaTransakcjiWewnetrznej"));
  zbuduj();
  OtworzBaze();
  // The account browser behind the form has fixed the accounts.
  if (sesja.pubWidokZrodlowy == 1) {
    cmdZKonta_->setEnabled(false);
    cmdNaKonto_->setEnabled(false);
  }
  cmdRealizuj_->setVisible(sesja.pubTryb != 2 && sesja.pubTransfer != 0);
  sesja.pubEdytorTransferuOtwarty = true;
  // A template fills a new transfer only.
  cmdSzablon_->setEnabled(sesja.pubTransfer == 0 &&
                          Nawigacja::Dostepny(QStringLiteral("frmSzablonyWewnetrzne")));

  if (sesja.pubTransfer == 0) {
    dtpData_->setDate(sesja.pubPrzedefiniowanaData.isValid() ? sesja.pubPrzedefiniowanaData
                                                             : sesja.pubFiltrCzasowy.pozycja);
    zKonta_.id = 0;
    naKonto_.id = 0;
    txtKwota_->setText(QStringLiteral("0"));
  } else if (const auto w = CzytajTransfer(sesja.pubTryb, sesja.pubTransfer)) {
    QString opis = w->opis;
    while (opis.endsWith(QLatin1Char(' '))) opis.chop(1);
    // A longer description from before the limit opens whole: nothing is cut unasked.
    txtOpis_->setMaxLength(std::max(DlugoscOpisu, int(opis.size())));
    txtOpis_->setText(opis);
    dtpData_->setDate(w->data);
    zKonta_.id = w->zKonta;
    zKonta_.nazwa = w->nazwaZKonta;
    zKonta_.rodzaj = w->rodzajZKonta;
    naKonto_.id = w->naKonto;
    naKonto_.nazwa = w->nazwaNaKonto;
    naKonto_.rodzaj = w->rodzajNaKonto;
    // The balance is not read: it stays 0 until the user picks the account.
    zKonta_.datautworzenia = DataUtworzeniaKonta(zKonta_.id);
    naKonto_.datautworzenia = DataUtworzeniaKonta(naKonto_.id);
    txtKwota_->setText(FormatKwotyEdycja(w->kwota));
  }
  setWindowTitle(Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej48")));
  if (sesja.pubTryb == 1 || sesja.pubTryb == 3)
    setWindowTitle(windowTitle() + QLatin1Char(' ') +
                   Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej43")));
  OdswiezEtykiety();
  PoleKwoty::Z(txtKwota_)->Formatuj();
  txtKwota_->setFocus();
  txtKwota_->selectAll();
}

frmEdycjaTransakcjiWewnetrznej::~frmEdycjaTransakcjiWewnetrznej() {
  sesja.pubEdytorTransferuOtwarty = false;
}

void frmEdycjaTransakcjiWewnetrznej::zbuduj() {
  setWindowIcon(IkonaWpisu(3));
  const RamkaDaty data = NowaRamkaDaty({Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej1")),
                                        Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej2")),
                                        Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej3")),
                                        Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej4")),
                                        Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej5"))},
                                       this);
  auto* fraData = data.ramka;
  dtpData_ = data.data;
  txtKwota_ = data.kwota;
  cmdKalkulator_ = data.kalkulator;

  auto* lblOpis = new QLabel(Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej6")), this);
  lblOpis->setObjectName(QStringLiteral("lblOpis"));
  txtOpis_ = new QLineEdit(this);
  txtOpis_->setObjectName(QStringLiteral("txtOpis"));
  txtOpis_->setMaxLength(DlugoscOpisu);
  txtOpis_->setToolTip(Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej7")));
  lblOpis->setBuddy(txtOpis_);
  auto* opis = new QHBoxLayout;
  opis->addWidget(lblOpis);
  opis->addWidget(txtOpis_, 1);

  cmdZKonta_ = NowyPrzycisk(QStringLiteral("cmdZKonta"),
                            Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej10")), this);
  cmdZKonta_->setToolTip(Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej11")));
  auto* fraZKonta = NowaRamkaWyboru(
      QStringLiteral("fraZKonta"), Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej8")),
      lblZKonta_, QStringLiteral("lblZKonta"),
      Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej9")), cmdZKonta_, this);
  cmdNaKonto_ = NowyPrzycisk(QStringLiteral("cmdNaKonto"),
                             Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej14")), this);
  cmdNaKonto_->setToolTip(Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej15")));
  auto* fraNaKonto = NowaRamkaWyboru(
      QStringLiteral("fraNaKonto"), Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej12")),
      lblNaKonto_, QStringLiteral("lblNaKonto"),
      Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej13")), cmdNaKonto_, this);
  connect(cmdZKonta_, &QPushButton::clicked, this,
          &frmEdycjaTransakcjiWewnetrznej::cmdZKonta_Click);
  connect(cmdNaKonto_, &QPushButton::clicked, this,
          &frmEdycjaTransakcjiWewnetrznej::cmdNaKonto_Click);

  cmdSzablon_ = NowyPrzycisk(QStringLiteral("cmdSzablon"),
                             Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej16")), this);
  cmdRealizuj_ = NowyPrzycisk(QStringLiteral("cmdRealizuj"),
                              Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej17")), this);
  cmdRealizuj_->setToolTip(Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej49")));
  cmdOK_ = NowyPrzycisk(QStringLiteral("cmdOK"),
                        Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej18")), this);
  cmdOK_->setDefault(true);
  cmdOK_->setAutoDefault(true);
  auto* cmdAnuluj = NowyPrzycisk(QStringLiteral("cmdAnuluj"),
                                 Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej19")), this);
  // The help file is not part of this build.
  auto* cmdPomoc = NowyPrzycisk(QStringLiteral("cmdPomoc"),
                                Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej47")), this);
  cmdPomoc->setEnabled(false);
  cmdPomoc->setToolTip(Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej50")));
  connect(cmdSzablon_, &QPushButton::clicked, this,
          &frmEdycjaTransakcjiWewnetrznej::cmdSzablon_Click);
  connect(cmdRealizuj_, &QPushButton::clicked, this,
          &frmEdycjaTransakcjiWewnetrznej::cmdRealizuj_Click);
  connect(cmdOK_, &QPushButton::clicked, this, &frmEdycjaTransakcjiWewnetrznej::cmdOK_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);
  auto* dol = new QHBoxLayout;
  dol->addWidget(cmdSzablon_);
  dol->addWidget(cmdRealizuj_);
  dol->addStretch();
  dol->addWidget(cmdOK_);
  dol->addWidget(cmdAnuluj);
  dol->addWidget(cmdPomoc);

  auto* uklad = new QVBoxLayout(this);
  uklad->addWidget(fraData);
  uklad->addLayout(opis);
  uklad->addWidget(fraZKonta);
  uklad->addWidget(fraNaKonto);
  uklad->addSpacing(4);
  uklad->addLayout(dol);

  setTabOrder(dtpData_, txtKwota_);
  setTabOrder(txtKwota_, cmdKalkulator_);
  setTabOrder(cmdKalkulator_, txtOpis_);
  setTabOrder(txtOpis_, cmdZKonta_);
  setTabOrder(cmdZKonta_, cmdNaKonto_);
  setTabOrder(cmdNaKonto_, cmdSzablon_);
  setTabOrder(cmdSzablon_, cmdRealizuj_);
  setTabOrder(cmdRealizuj_, cmdOK_);
  setTabOrder(cmdOK_, cmdAnuluj);
  resize(600, sizeHint().height());
}

void frmEdycjaTransakcjiWewnetrznej::OdswiezEtykiety() {
  const QString brak = Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej9"));
  // The lookup also loads each account's limit.
  lblZKonta_->setText(zKonta_.id != 0 ? OpisKonta(zKonta_) : brak);
  lblNaKonto_->setText(naKonto_.id != 0
                           ? OpisKonta(naKonto_)
                           : Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej13")));
}

void frmEdycjaTransakcjiWewnetrznej::wybierzKonto(KontoRekord& konto, QLabel* etykieta) {
  // The browser works on pubKonto; its balance is the only source of the record's.
  sesja.pubKonto = konto;
  PokazWybor(QStringLiteral("frmPrzegladKont"), etykieta, this);
  konto = sesja.pubKonto;
  OdswiezEtykiety();
}

void frmEdycjaTransakcjiWewnetrznej::cmdSzablon_Click() {
  sesja.pubSzablonId = 0;
  sesja.pubSzablonWybor = 1;
  Nawigacja::Pokaz(QStringLiteral("frmSzablonyWewnetrzne"), this);
  sesja.pubSzablonWybor = 2;
  if (sesja.pubSzablonId <= 0) return;
  const auto s = SzablonDlaTransferu(sesja.pubSzablonId);
  sesja.pubSzablonId = 0;
  if (!s) return;
  // No amount and no date: both stay as typed. The balances are those of the template's
  // accounts, so that the cover check judges the account the money now leaves.
  txtOpis_->setMaxLength(std::max(DlugoscOpisu, int(s->opis.size())));
  txtOpis_->setText(s->opis);
  for (auto [rekord, z] : {std::pair{&zKonta_, &s->konto}, std::pair{&naKonto_, &s->naKonto}}) {
    *rekord = *z;
    rekord->datautworzenia = DataUtworzeniaKonta(rekord->id);
    rekord->saldo = SaldoKonta(rekord->id);
  }
  OdswiezEtykiety();
}

void frmEdycjaTransakcjiWewnetrznej::cmdZKonta_Click() { wybierzKonto(zKonta_, lblZKonta_); }

void frmEdycjaTransakcjiWewnetrznej::cmdNaKonto_Click() { wybierzKonto(naKonto_, lblNaKonto_); }

DaneTransferu frmEdycjaTransakcjiWewnetrznej::Dane() const {
  DaneTransferu d;
  d.tryb = sesja.pubTryb;
  d.id = sesja.pubTransfer;
  d.data = dtpData_->date();
  d.kwota = txtKwota_->text();
  d.opis = txtOpis_->text();
  d.zKonta = zKonta_;
  d.naKonto = naKonto_;
  return d;
}

void frmEdycjaTransakcjiWewnetrznej::cmdOK_Click() {
  switch (ZapiszTransfer(Dane())) {
    case WynikEdycji::Zapisano:
      // The main window and the browsers refill themselves on the store's announcement.
      accept();
      break;
    case WynikEdycji::Zamknij:
      reject();
      break;
    case WynikEdycji::Zostan:
      // The form stays as the user left it, in its mode: after "realise" the next OK realises.
      txtKwota_->setFocus();
      break;
  }
}

void frmEdycjaTransakcjiWewnetrznej::cmdRealizuj_Click() {
  sesja.pubTryb = 3;
  cmdOK_Click();
}
