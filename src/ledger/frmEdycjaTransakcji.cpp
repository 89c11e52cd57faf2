#include "ledger/frmEdycjaTransakcji.h"

#include <QDateEdit>
#include <QGridLayout>
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
#include "ledger/transakcje.h"
#include "masterdata/kategorie.h"
#include "masterdata/konta.h"
#include "masterdata/kontrahenci.h"
#include "store/baza.h"
#include "store/kwota.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"
#include "ui/nawigacja_gui.h"

frmEdycjaTransakcji::frmEdycjaTransakcji(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmEdycjaTransakcji"));
  sesja.pubEdytorOtwarty = true;
  OtworzBaze();
  zbuduj();

  // A browser behind the editor has fixed its own record.
  if (sesja.pubWidokZrodlowy == 1) cmdWybierzKonto_->setEnabled(false);
  if (sesja.pubWidokZrodlowy == 2) cmdWybierzKategorie_->setEnabled(false);
  if (sesja.pubWidokZrodlowy == 3) cmdWybierzKontrahenta_->setEnabled(false);
  const bool przedefiniowany = sesja.pubPrzedefiniowanyKontrahent == -1;
  if (przedefiniowany) {
    cmdWybierzKontrahenta_->setEnabled(false);
    lblKontrahent_->setText(sesja.pubKontrahent.skrocona);
  }
  // A template fills a new entry only, and never the counterparty fixed by its browser.
  cmdWybierzSzablon_->setEnabled(!przedefiniowany && sesja.pubTransakcja.id == 0 &&
                                 Nawigacja::Dostepny(QStringLiteral("frmSzablonyZewnetrzne")));
  cmdRealizuj_->setVisible(sesja.pubTryb != 2 && sesja.pubTransakcja.id != 0);

  if (sesja.pubTransakcja.id == 0) {
    dtpData_->setDate(sesja.pubPrzedefiniowanaData.isValid() ? sesja.pubPrzedefiniowanaData
                                                             : sesja.pubFiltrCzasowy.pozycja);
    sesja.pubKategoria.identyfikator.clear();
    sesja.pubKonto.id = 0;
    if (!przedefiniowany) sesja.pubKontrahent.id = 0;
    txtKwota_->setText(QStringLiteral("0"));
    ustawTytul(true, sesja.pubKategoria.rodzaj);
  } else {
    if (const auto w = CzytajTransakcje(sesja.pubTryb, sesja.pubTransakcja.id)) {
      // Blanks the save appended to the description are not part of what the user typed.
      QString opis = w->opis;
      while (opis.endsWith(QLatin1Char(' '))) opis.chop(1);
      // A longer description from before the limit opens whole: nothing is cut unasked.
      txtOpis_->setMaxLength(std::max(DlugoscOpisu, int(opis.size())));
      txtOpis_->setText(opis);
      sesja.pubTransakcja.rodzaj = w->rodzaj;
      sesja.pubKontrahent.id = w->kontrahent;
      sesja.pubKontrahent.skrocona = w->nazwaKontrahenta;
      sesja.pubKategoria.identyfikator = w->kategoria;
      sesja.pubKategoria.nazwa = w->nazwaKategorii;
      sesja.pubKategoria.rodzaj = w->rodzaj;
      sesja.pubKonto.id = w->konto;
      sesja.pubKonto.nazwa = w->nazwaKonta;
      sesja.pubKonto.rodzaj = w->rodzajKonta;
      dtpData_->setDate(w->data);
      txtKwota_->setText(FormatKwotyEdycja(w->rodzaj == 1 ? w->przychod : w->wydatek));
    }
    ustawTytul(false, sesja.pubTransakcja.rodzaj);
    OdswiezEtykiety();
    sesja.pubKonto.datautworzenia = DataUtworzeniaKonta(sesja.pubKonto.id);
  }
  if (sesja.pubTryb == 1 || sesja.pubTryb == 3)
    setWindowTitle(windowTitle() + QLatin1Char(' ') +
                   Napis(QStringLiteral("frmEdycjaTransakcji60")));
  PoleKwoty::Z(txtKwota_)->Formatuj();
  txtKwota_->setFocus();
  txtKwota_->selectAll();
}

frmEdycjaTransakcji::~frmEdycjaTransakcji() { sesja.pubEdytorOtwarty = false; }

void frmEdycjaTransakcji::zbuduj() {
  const RamkaDaty data = NowaRamkaDaty(
      {Napis(QStringLiteral("frmEdycjaTransakcji1")), Napis(QStringLiteral("frmEdycjaTransakcji2")),
       Napis(QStringLiteral("frmEdycjaTransakcji3")), Napis(QStringLiteral("frmEdycjaTransakcji4")),
       Napis(QStringLiteral("frmEdycjaTransakcji5"))},
      this);
  auto* fraData = data.ramka;
  dtpData_ = data.data;
  txtKwota_ = data.kwota;
  cmdKalkulator_ = data.kalkulator;

  auto* lblOpis = new QLabel(Napis(QStringLiteral("frmEdycjaTransakcji6")), this);
  lblOpis->setObjectName(QStringLiteral("lblOpis"));
  txtOpis_ = new QLineEdit(this);
  txtOpis_->setObjectName(QStringLiteral("txtOpis"));
  txtOpis_->setMaxLength(DlugoscOpisu);
  txtOpis_->setToolTip(Napis(QStringLiteral("frmEdycjaTransakcji7")));
  lblOpis->setBuddy(txtOpis_);
  auto* opis = new QHBoxLayout;
  opis->addWidget(lblOpis);
  opis->addWidget(txtOpis_, 1);

  cmdWybierzKonto_ = NowyPrzycisk(QStringLiteral("cmdWybierzKonto"),
                                  Napis(QStringLiteral("frmEdycjaTransakcji10")), this);
  cmdWybierzKonto_->setToolTip(Napis(QStringLiteral("frmEdycjaTransakcji11")));
  fraKonto_ =
      NowaRamkaWyboru(QStringLiteral("fraKonto"), Napis(QStringLiteral("frmEdycjaTransakcji8")),
                      lblKonto_, QStringLiteral("lblKonto"),
                      Napis(QStringLiteral("frmEdycjaTransakcji9")), cmdWybierzKonto_, this);
  cmdWybierzKategorie_ = NowyPrzycisk(QStringLiteral("cmdWybierzKategorie"),
                                      Napis(QStringLiteral("frmEdycjaTransakcji14")), this);
  cmdWybierzKategorie_->setToolTip(Napis(QStringLiteral("frmEdycjaTransakcji15")));
  fraKategoria_ = NowaRamkaWyboru(
      QStringLiteral("fraKategoria"), Napis(QStringLiteral("frmEdycjaTransakcji12")), lblKategoria_,
      QStringLiteral("lblKategoria"), Napis(QStringLiteral("frmEdycjaTransakcji13")),
      cmdWybierzKategorie_, this);
  cmdWybierzKontrahenta_ = NowyPrzycisk(QStringLiteral("cmdWybierzKontrahenta"),
                                        Napis(QStringLiteral("frmEdycjaTransakcji18")), this);
  cmdWybierzKontrahenta_->setToolTip(Napis(QStringLiteral("frmEdycjaTransakcji19")));
  fraKontrahent_ = NowaRamkaWyboru(
      QStringLiteral("fraKontrahent"), Napis(QStringLiteral("frmEdycjaTransakcji16")),
      lblKontrahent_, QStringLiteral("lblKontrahent"),
      Napis(QStringLiteral("frmEdycjaTransakcji17")), cmdWybierzKontrahenta_, this);
  connect(cmdWybierzKonto_, &QPushButton::clicked, this,
          &frmEdycjaTransakcji::cmdWybierzKonto_Click);
  connect(cmdWybierzKategorie_, &QPushButton::clicked, this,
          &frmEdycjaTransakcji::cmdWybierzKategorie_Click);
  connect(cmdWybierzKontrahenta_, &QPushButton::clicked, this,
          &frmEdycjaTransakcji::cmdWybierzKontrahenta_Click);

  cmdWybierzSzablon_ = NowyPrzycisk(QStringLiteral("cmdWybierzSzablon"),
                                    Napis(QStringLiteral("frmEdycjaTransakcji20")), this);
  cmdRealizuj_ = NowyPrzycisk(QStringLiteral("cmdRealizuj"),
                              Napis(QStringLiteral("frmEdycjaTransakcji21")), this);
  cmdRealizuj_->setToolTip(Napis(QStringLiteral("frmEdycjaTransakcji25")));
  cmdOk_ =
      NowyPrzycisk(QStringLiteral("cmdOk"), Napis(QStringLiteral("frmEdycjaTransakcji22")), this);
  cmdOk_->setDefault(true);
  cmdOk_->setAutoDefault(true);
  auto* cmdAnuluj = NowyPrzycisk(QStringLiteral("cmdAnuluj"),
                                 Napis(QStringLiteral("frmEdycjaTransakcji23")), this);
  // The help file is not part of this build.
  auto* cmdPomoc = NowyPrzycisk(QStringLiteral("cmdPomoc"),
                                Napis(QStringLiteral("frmEdycjaTransakcji24")), this);
  cmdPomoc->setEnabled(false);
  cmdPomoc->setToolTip(Napis(QStringLiteral("frmEdycjaTransakcji64")));
  connect(cmdWybierzSzablon_, &QPushButton::clicked, this,
          &frmEdycjaTransakcji::cmdWybierzSzablon_Click);
  connect(cmdRealizuj_, &QPushButton::clicked, this, &frmEdycjaTransakcji::cmdRealizuj_Click);
  connect(cmdOk_, &QPushButton::clicked, this, &frmEdycjaTransakcji::cmdOk_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);
  auto* dol = new QHBoxLayout;
  dol->addWidget(cmdWybierzSzablon_);
  dol->addWidget(cmdRealizuj_);
  dol->addStretch();
  dol->addWidget(cmdOk_);
  dol->addWidget(cmdAnuluj);
  dol->addWidget(cmdPomoc);

  auto* uklad = new QVBoxLayout(this);
  uklad->addWidget(fraData);
  uklad->addLayout(opis);
  uklad->addWidget(fraKonto_);
  uklad->addWidget(fraKategoria_);
  uklad->addWidget(fraKontrahent_);
  uklad->addSpacing(4);
  uklad->addLayout(dol);

  setTabOrder(dtpData_, txtKwota_);
  setTabOrder(txtKwota_, cmdKalkulator_);
  setTabOrder(cmdKalkulator_, txtOpis_);
  setTabOrder(txtOpis_, cmdWybierzKonto_);
  setTabOrder(cmdWybierzKonto_, cmdWybierzKategorie_);
  setTabOrder(cmdWybierzKategorie_, cmdWybierzKontrahenta_);
  setTabOrder(cmdWybierzKontrahenta_, cmdWybierzSzablon_);
  setTabOrder(cmdWybierzSzablon_, cmdRealizuj_);
  setTabOrder(cmdRealizuj_, cmdOk_);
  setTabOrder(cmdOk_, cmdAnuluj);
  resize(600, sizeHint().height());
}

void frmEdycjaTransakcji::ustawTytul(bool nowa, int rodzaj) {
  const bool przychod = rodzaj == 1;
  setWindowIcon(IkonaWpisu(przychod ? 1 : 2));
  if (nowa) {
    setWindowTitle(przychod ? Napis(QStringLiteral("frmEdycjaTransakcji48"))
                            : Napis(QStringLiteral("frmEdycjaTransakcji51")));
    fraKonto_->setTitle(przychod ? Napis(QStringLiteral("frmEdycjaTransakcji49"))
                                 : Napis(QStringLiteral("frmEdycjaTransakcji52")));
    fraKategoria_->setTitle(przychod ? Napis(QStringLiteral("frmEdycjaTransakcji50"))
                                     : Napis(QStringLiteral("frmEdycjaTransakcji53")));
  } else {
    setWindowTitle(przychod ? Napis(QStringLiteral("frmEdycjaTransakcji54"))
                            : Napis(QStringLiteral("frmEdycjaTransakcji57")));
    fraKonto_->setTitle(przychod ? Napis(QStringLiteral("frmEdycjaTransakcji55"))
                                 : Napis(QStringLiteral("frmEdycjaTransakcji58")));
    fraKategoria_->setTitle(przychod ? Napis(QStringLiteral("frmEdycjaTransakcji56"))
                                     : Napis(QStringLiteral("frmEdycjaTransakcji59")));
  }
}

void frmEdycjaTransakcji::OdswiezEtykiety() {
  // Every caption passes through its lookup, which also keeps pubKonto.limit fresh.
  lblKonto_->setText(sesja.pubKonto.id != 0 ? OpisKonta(sesja.pubKonto)
                                            : Napis(QStringLiteral("frmEdycjaTransakcji9")));
  lblKategoria_->setText(
      !sesja.pubKategoria.identyfikator.isEmpty()
          ? SciezkaKategorii(sesja.pubKategoria.identyfikator, sesja.pubKategoria.rodzaj)
          : Napis(QStringLiteral("frmEdycjaTransakcji13")));
  lblKontrahent_->setText(sesja.pubKontrahent.id != 0
                              ? OpisKontrahenta(sesja.pubKontrahent)
                              : Napis(QStringLiteral("frmEdycjaTransakcji17")));
}

void frmEdycjaTransakcji::cmdWybierzKonto_Click() {
  PokazWybor(QStringLiteral("frmPrzegladKont"), lblKonto_, this);
  OdswiezEtykiety();
}

void frmEdycjaTransakcji::cmdWybierzKategorie_Click() {
  PokazWybor(QStringLiteral("frmPrzegladKategorii"), lblKategoria_, this);
  OdswiezEtykiety();
}

void frmEdycjaTransakcji::cmdWybierzKontrahenta_Click() {
  PokazWybor(QStringLiteral("frmPrzegladKontrahentow"), lblKontrahent_, this);
  OdswiezEtykiety();
}

void frmEdycjaTransakcji::cmdWybierzSzablon_Click() {
  sesja.pubSzablonId = 0;
  sesja.pubSzablonRodzaj = sesja.pubTransakcja.rodzaj;
  sesja.pubSzablonWybor = 1;
  Nawigacja::Pokaz(QStringLiteral("frmSzablonyZewnetrzne"), this);
  sesja.pubSzablonWybor = 2;
  if (sesja.pubSzablonId <= 0) return;
  const auto s = SzablonDlaWpisu(sesja.pubSzablonId);
  sesja.pubSzablonId = 0;
  if (!s) return;
  // A template carries no amount and no date: both stay as typed.
  txtOpis_->setMaxLength(std::max(DlugoscOpisu, int(s->opis.size())));
  txtOpis_->setText(s->opis);
  sesja.pubKontrahent = s->kontrahent;
  sesja.pubKategoria.identyfikator = s->kategoria.identyfikator;
  sesja.pubKategoria.nazwa = s->kategoria.nazwa;
  sesja.pubKategoria.rodzaj = sesja.pubTransakcja.rodzaj;
  sesja.pubKonto.id = s->konto.id;
  sesja.pubKonto.nazwa = s->konto.nazwa;
  sesja.pubKonto.rodzaj = s->konto.rodzaj;
  sesja.pubKonto.datautworzenia = DataUtworzeniaKonta(sesja.pubKonto.id);
  OdswiezEtykiety();
  sesja.pubKonto.saldo = SaldoKonta(sesja.pubKonto.id);
}

DaneTransakcji frmEdycjaTransakcji::Dane() const {
  DaneTransakcji d;
  d.tryb = sesja.pubTryb;
  d.id = sesja.pubTransakcja.id;
  d.rodzaj = sesja.pubTransakcja.rodzaj;
  d.data = dtpData_->date();
  d.kwota = txtKwota_->text();
  d.opis = txtOpis_->text();
  d.konto = sesja.pubKonto;
  d.kategoria = sesja.pubKategoria.identyfikator;
  d.kontrahent = sesja.pubKontrahent.id;
  return d;
}

void frmEdycjaTransakcji::cmdOk_Click() {
  switch (ZapiszTransakcje(Dane())) {
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

void frmEdycjaTransakcji::cmdRealizuj_Click() {
  sesja.pubTryb = 3;
  cmdOk_Click();
}
