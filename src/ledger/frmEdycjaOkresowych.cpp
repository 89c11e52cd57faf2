#include "ledger/frmEdycjaOkresowych.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "calculator/PoleKwoty_gui.h"
#include "ledger/edytorwpisu_gui.h"
#include "ledger/okresowe.h"
#include "ledger/transakcje.h"
#include "masterdata/kategorie.h"
#include "masterdata/konta.h"
#include "masterdata/kontrahenci.h"
#include "store/dzis.h"
#include "store/napis.h"
#include "store/tekst.h"
#include "ui/nawigacja_gui.h"

namespace {
// A row of radio buttons named nazwa(i), i from 0, with the ids given.
QGroupBox* opcje(const QString& tytul, const QString& nazwa, const QStringList& teksty,
                 const QList<int>& id, QButtonGroup*& grupa, QWidget* rodzic, int kolumn) {
  auto* ramka = new QGroupBox(tytul, rodzic);
  ramka->setObjectName(QStringLiteral("fra") + nazwa.mid(3));
  grupa = new QButtonGroup(ramka);
  auto* siatka = new QGridLayout(ramka);
  for (int i = 0; i < teksty.size(); ++i) {
    auto* o = new QRadioButton(teksty[i], ramka);
    o->setObjectName(QStringLiteral("%1(%2)").arg(nazwa).arg(i));
    grupa->addButton(o, id[i]);
    siatka->addWidget(o, i / kolumn, i % kolumn);
  }
  return ramka;
}
}  // namespace

frmEdycjaOkresowych::frmEdycjaOkresowych(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmEdycjaOkresowych"));
  edytorOtwarty_ = sesja.pubEdytorOtwarty;
  sesja.pubEdytorOtwarty = true;
  zbuduj();
  RegulaOkresowa r;
  r.od = sesja.pubFiltrCzasowy.pozycja.isValid() ? sesja.pubFiltrCzasowy.pozycja : Dzis();
  if (sesja.pubOkresowaId > 0) {
    if (const auto z = CzytajOkresowa(sesja.pubOkresowaId)) r = *z;
  }
  setWindowTitle(r.id ? Napis(QStringLiteral("frmEdycjaOkresowych2"))
                      : Napis(QStringLiteral("frmEdycjaOkresowych1")));
  optRodzaj_->button(r.rodzaj)->setChecked(true);
  optCzestotliwosc_->button(r.czestotliwosc)->setChecked(true);
  optWeekend_->button(r.weekend)->setChecked(true);
  konto_.id = r.konto;
  naKonto_.id = r.naKonto;
  kategoria_.identyfikator = r.kategoria;
  kategoria_.rodzaj = r.rodzaj;
  kontrahent_.id = r.kontrahent;
  txtOpis_->setMaxLength(std::max(DlugoscOpisu - 2, int(r.opis.size())));
  txtOpis_->setText(r.opis);
  txtKwota_->setText(FormatKwotyEdycja(r.kwota));
  dtpOdDaty_->setDate(r.od);
  chkDoDaty_->setChecked(r.do_.isValid());
  dtpDoDaty_->setDate(r.do_.isValid() ? r.do_ : r.od.addYears(1));
  dtpDoDaty_->setEnabled(r.do_.isValid());
  zmianaRodzaju();
  txtKwota_->setFocus();
  txtKwota_->selectAll();
}

frmEdycjaOkresowych::~frmEdycjaOkresowych() { sesja.pubEdytorOtwarty = edytorOtwarty_; }

void frmEdycjaOkresowych::zbuduj() {
  setWindowIcon(IkonaWpisu(3));
  auto* fraRodzaj = opcje(
      Napis(QStringLiteral("frmEdycjaOkresowych3")), QStringLiteral("optRodzaj"),
      {Napis(QStringLiteral("frmEdycjaOkresowych4")), Napis(QStringLiteral("frmEdycjaOkresowych5")),
       Napis(QStringLiteral("frmEdycjaOkresowych6"))},
      {1, 2, 3}, optRodzaj_, this, 3);
  connect(optRodzaj_, &QButtonGroup::idClicked, this, [this] {
    // Another kind has another category tree: the choice made for the old one goes.
    kategoria_.identyfikator.clear();
    zmianaRodzaju();
  });

  auto* lblKwota = new QLabel(Napis(QStringLiteral("frmEdycjaOkresowych45")), this);
  const PoleZKalkulatorem kwota =
      PoleKwoty::NowePole(QStringLiteral("txtKwota"), QStringLiteral("cmdKalkulator"),
                          Napis(QStringLiteral("frmEdycjaOkresowych51")), this);
  txtKwota_ = kwota.pole;
  txtKwota_->setFixedWidth(PoleKwoty::Szerokosc(txtKwota_));
  lblKwota->setBuddy(txtKwota_);
  auto* lblOpis = new QLabel(Napis(QStringLiteral("frmEdycjaOkresowych46")), this);
  txtOpis_ = new QLineEdit(this);
  txtOpis_->setObjectName(QStringLiteral("txtOpis"));
  lblOpis->setBuddy(txtOpis_);
  auto* wiersz = new QHBoxLayout;
  wiersz->addWidget(lblKwota);
  wiersz->addWidget(txtKwota_);
  wiersz->addWidget(kwota.kalkulator);
  wiersz->addSpacing(12);
  wiersz->addWidget(lblOpis);
  wiersz->addWidget(txtOpis_, 1);

  auto* cmdKonto = NowyPrzycisk(QStringLiteral("cmdKonto"),
                                Napis(QStringLiteral("frmEdycjaOkresowych25")), this);
  fraKonto_ = NowaRamkaWyboru(
      QStringLiteral("fraKonto"), Napis(QStringLiteral("frmEdycjaOkresowych22")), lblKonto_,
      QStringLiteral("lblKonto"), Napis(QStringLiteral("frmEdycjaOkresowych24")), cmdKonto, this);
  auto* cmdNaKonto = NowyPrzycisk(QStringLiteral("cmdNaKonto"),
                                  Napis(QStringLiteral("frmEdycjaOkresowych25")), this);
  fraNaKonto_ =
      NowaRamkaWyboru(QStringLiteral("fraNaKonto"), Napis(QStringLiteral("frmEdycjaOkresowych26")),
                      lblNaKonto_, QStringLiteral("lblNaKonto"),
                      Napis(QStringLiteral("frmEdycjaOkresowych24")), cmdNaKonto, this);
  auto* cmdKategoria = NowyPrzycisk(QStringLiteral("cmdKategoria"),
                                    Napis(QStringLiteral("frmEdycjaOkresowych25")), this);
  fraKategoria_ = NowaRamkaWyboru(
      QStringLiteral("fraKategoria"), Napis(QStringLiteral("frmEdycjaOkresowych27")), lblKategoria_,
      QStringLiteral("lblKategoria"), Napis(QStringLiteral("frmEdycjaOkresowych28")), cmdKategoria,
      this);
  auto* cmdKontrahent = NowyPrzycisk(QStringLiteral("cmdKontrahent"),
                                     Napis(QStringLiteral("frmEdycjaOkresowych25")), this);
  fraKontrahent_ = NowaRamkaWyboru(
      QStringLiteral("fraKontrahent"), Napis(QStringLiteral("frmEdycjaOkresowych29")),
      lblKontrahent_, QStringLiteral("lblKontrahent"),
      Napis(QStringLiteral("frmEdycjaOkresowych44")), cmdKontrahent, this);
  connect(cmdKonto, &QPushButton::clicked, this, [this] { wybierzKonto(konto_, lblKonto_); });
  connect(cmdNaKonto, &QPushButton::clicked, this, [this] { wybierzKonto(naKonto_, lblNaKonto_); });
  connect(cmdKategoria, &QPushButton::clicked, this, &frmEdycjaOkresowych::wybierzKategorie);
  connect(cmdKontrahent, &QPushButton::clicked, this, &frmEdycjaOkresowych::wybierzKontrahenta);

  auto* fraOkres = new QGroupBox(Napis(QStringLiteral("frmEdycjaOkresowych7")), this);
  fraOkres->setObjectName(QStringLiteral("fraOkres"));
  auto* lblOdDaty = new QLabel(Napis(QStringLiteral("frmEdycjaOkresowych8")), fraOkres);
  dtpOdDaty_ = NowePoleDaty(QStringLiteral("dtpOdDaty"), Dzis(), fraOkres);
  lblOdDaty->setBuddy(dtpOdDaty_);
  chkDoDaty_ = new QCheckBox(Napis(QStringLiteral("frmEdycjaOkresowych9")), fraOkres);
  chkDoDaty_->setObjectName(QStringLiteral("chkDoDaty"));
  chkDoDaty_->setToolTip(Napis(QStringLiteral("frmEdycjaOkresowych53")));
  dtpDoDaty_ = NowePoleDaty(QStringLiteral("dtpDoDaty"), Dzis(), fraOkres);
  connect(chkDoDaty_, &QCheckBox::toggled, dtpDoDaty_, &QWidget::setEnabled);
  auto* okres = new QHBoxLayout(fraOkres);
  okres->addWidget(lblOdDaty);
  okres->addWidget(dtpOdDaty_);
  okres->addSpacing(16);
  okres->addWidget(chkDoDaty_);
  okres->addWidget(dtpDoDaty_);
  okres->addStretch();

  QStringList czestotliwosci;
  for (int c = Codziennie; c <= CoRok; ++c) czestotliwosci << NazwaCzestotliwosci(c);
  auto* fraCzestotliwosc =
      opcje(Napis(QStringLiteral("frmEdycjaOkresowych17")), QStringLiteral("optCzestotliwosc"),
            czestotliwosci, {1, 2, 3, 4, 5, 6, 7}, optCzestotliwosc_, this, 4);
  auto* fraWeekend =
      opcje(Napis(QStringLiteral("frmEdycjaOkresowych18")), QStringLiteral("optWeekend"),
            {Napis(QStringLiteral("frmEdycjaOkresowych19")),
             Napis(QStringLiteral("frmEdycjaOkresowych20")),
             Napis(QStringLiteral("frmEdycjaOkresowych21"))},
            {0, 1, 2}, optWeekend_, this, 3);
  // Only weekdays never fall on a weekend.
  connect(optCzestotliwosc_, &QButtonGroup::idToggled, this, [fraWeekend, this] {
    fraWeekend->setEnabled(optCzestotliwosc_->checkedId() != DniPowszednie);
  });

  auto* lblInfo = new QLabel(Napis(QStringLiteral("frmEdycjaOkresowych52")), this);
  lblInfo->setObjectName(QStringLiteral("lblInfo"));
  lblInfo->setWordWrap(true);

  auto* cmdOk =
      NowyPrzycisk(QStringLiteral("cmdOk"), Napis(QStringLiteral("frmEdycjaOkresowych47")), this);
  cmdOk->setDefault(true);
  cmdOk->setAutoDefault(true);
  auto* cmdAnuluj = NowyPrzycisk(QStringLiteral("cmdAnuluj"),
                                 Napis(QStringLiteral("frmEdycjaOkresowych48")), this);
  auto* cmdPomoc = NowyPrzycisk(QStringLiteral("cmdPomoc"),
                                Napis(QStringLiteral("frmEdycjaOkresowych49")), this);
  // The help file is not part of this build.
  cmdPomoc->setEnabled(false);
  cmdPomoc->setToolTip(Napis(QStringLiteral("frmEdycjaOkresowych50")));
  connect(cmdOk, &QPushButton::clicked, this, &frmEdycjaOkresowych::cmdOk_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);
  auto* dol = new QHBoxLayout;
  dol->addWidget(lblInfo, 1);
  dol->addWidget(cmdOk);
  dol->addWidget(cmdAnuluj);
  dol->addWidget(cmdPomoc);

  auto* uklad = new QVBoxLayout(this);
  uklad->addWidget(fraRodzaj);
  uklad->addLayout(wiersz);
  uklad->addWidget(fraKonto_);
  uklad->addWidget(fraNaKonto_);
  uklad->addWidget(fraKategoria_);
  uklad->addWidget(fraKontrahent_);
  uklad->addWidget(fraOkres);
  uklad->addWidget(fraCzestotliwosc);
  uklad->addWidget(fraWeekend);
  uklad->addSpacing(4);
  uklad->addLayout(dol);
  resize(640, sizeHint().height());
}

void frmEdycjaOkresowych::zmianaRodzaju() {
  const int rodzaj = optRodzaj_->checkedId();
  const bool przelew = rodzaj == 3;
  fraKonto_->setTitle(przelew ? Napis(QStringLiteral("frmEdycjaOkresowych23"))
                              : Napis(QStringLiteral("frmEdycjaOkresowych22")));
  fraNaKonto_->setVisible(!przelew ? false : true);
  fraKategoria_->setVisible(!przelew);
  fraKontrahent_->setVisible(!przelew);
  kategoria_.rodzaj = przelew ? 2 : rodzaj;
  setWindowIcon(IkonaWpisu(rodzaj));
  OdswiezEtykiety();
}

void frmEdycjaOkresowych::OdswiezEtykiety() {
  const QString brak = Napis(QStringLiteral("frmEdycjaOkresowych24"));
  lblKonto_->setText(konto_.id ? OpisKonta(konto_) : brak);
  lblNaKonto_->setText(naKonto_.id ? OpisKonta(naKonto_) : brak);
  lblKategoria_->setText(!kategoria_.identyfikator.isEmpty()
                             ? SciezkaKategorii(kategoria_.identyfikator, kategoria_.rodzaj)
                             : Napis(QStringLiteral("frmEdycjaOkresowych28")));
  lblKontrahent_->setText(kontrahent_.id ? OpisKontrahenta(kontrahent_)
                                         : Napis(QStringLiteral("frmEdycjaOkresowych44")));
}

void frmEdycjaOkresowych::wybierzKonto(KontoRekord& konto, QLabel* etykieta) {
  const KontoRekord dawne = sesja.pubKonto;
  sesja.pubKonto = konto;
  PokazWybor(QStringLiteral("frmPrzegladKont"), etykieta, this);
  konto = sesja.pubKonto;
  sesja.pubKonto = dawne;
  OdswiezEtykiety();
}

void frmEdycjaOkresowych::wybierzKategorie() {
  const KategoriaRekord dawna = sesja.pubKategoria;
  sesja.pubKategoria = kategoria_;
  PokazWybor(QStringLiteral("frmPrzegladKategorii"), lblKategoria_, this);
  kategoria_.identyfikator = sesja.pubKategoria.identyfikator;
  sesja.pubKategoria = dawna;
  OdswiezEtykiety();
}

void frmEdycjaOkresowych::wybierzKontrahenta() {
  const KontrahentRekord dawny = sesja.pubKontrahent;
  sesja.pubKontrahent = kontrahent_;
  PokazWybor(QStringLiteral("frmPrzegladKontrahentow"), lblKontrahent_, this);
  kontrahent_ = sesja.pubKontrahent;
  sesja.pubKontrahent = dawny;
  OdswiezEtykiety();
}

RegulaOkresowa frmEdycjaOkresowych::Dane() const {
  RegulaOkresowa r;
  r.id = sesja.pubOkresowaId;
  r.rodzaj = optRodzaj_->checkedId();
  r.konto = konto_.id;
  r.naKonto = naKonto_.id;
  r.kategoria = kategoria_.identyfikator;
  r.kontrahent = kontrahent_.id;
  r.opis = txtOpis_->text();
  r.kwota = KwotaPola(txtKwota_->text());
  r.od = dtpOdDaty_->date();
  r.do_ = chkDoDaty_->isChecked() ? dtpDoDaty_->date() : QDate();
  r.czestotliwosc = optCzestotliwosc_->checkedId();
  r.weekend = optWeekend_->checkedId();
  return r;
}

void frmEdycjaOkresowych::cmdOk_Click() {
  qint64 id = 0;
  if (ZapiszOkresowa(Dane(), &id)) {
    sesja.pubOkresowaId = id;
    accept();
  } else {
    txtKwota_->setFocus();
  }
}
