#include "ledger/frmParagon.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "calculator/PoleKwoty_gui.h"
#include "ledger/edytorwpisu_gui.h"
#include "ledger/transakcje.h"
#include "masterdata/kategorie.h"
#include "masterdata/konta.h"
#include "masterdata/kontrahenci.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"
#include "ui/nawigacja_gui.h"

namespace {
QString tablicowa(const char* nazwa, int n) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(nazwa)).arg(n);
}
}  // namespace

frmParagon::frmParagon(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmParagon"));
  edytorOtwarty_ = sesja.pubEdytorOtwarty;
  sesja.pubEdytorOtwarty = true;
  // Every line of a receipt is an expense.
  sesja.pubTransakcja.rodzaj = 2;
  sesja.pubKategoria.rodzaj = 2;
  sesja.pubKonto = KontoRekord();
  if (sesja.pubPrzedefiniowanyKontrahent != -1) sesja.pubKontrahent.id = 0;
  OtworzBaze();
  zbuduj();
  OdswiezEtykiety();
  przeliczSume();
  txtKwota_[0]->setFocus();
}

frmParagon::~frmParagon() { sesja.pubEdytorOtwarty = edytorOtwarty_; }

void frmParagon::zbuduj() {
  setWindowTitle(Napis(QStringLiteral("frmParagon1")));
  setWindowIcon(IkonaWpisu(2));

  auto* lblInfo = new QLabel(Napis(QStringLiteral("frmParagon27")), this);
  lblInfo->setObjectName(QStringLiteral("lblInfo"));
  lblInfo->setWordWrap(true);

  auto* fraData = new QGroupBox(Napis(QStringLiteral("frmParagon2")), this);
  fraData->setObjectName(QStringLiteral("fraData"));
  dtpData_ = NowePoleDaty(QStringLiteral("dtpData"), sesja.pubFiltrCzasowy.pozycja, fraData);
  dtpData_->setToolTip(Napis(QStringLiteral("frmParagon3")));
  (new QHBoxLayout(fraData))->addWidget(dtpData_);

  auto* cmdWybierzKonto =
      NowyPrzycisk(QStringLiteral("cmdWybierzKonto"), Napis(QStringLiteral("frmParagon6")), this);
  cmdWybierzKonto->setToolTip(Napis(QStringLiteral("frmParagon7")));
  auto* fraKonto = NowaRamkaWyboru(QStringLiteral("fraKonto"), Napis(QStringLiteral("frmParagon4")),
                                   lblKonto_, QStringLiteral("lblKonto"),
                                   Napis(QStringLiteral("frmParagon5")), cmdWybierzKonto, this);
  auto* cmdWybierzKontrahenta = NowyPrzycisk(QStringLiteral("cmdWybierzKontrahenta"),
                                             Napis(QStringLiteral("frmParagon10")), this);
  cmdWybierzKontrahenta->setToolTip(Napis(QStringLiteral("frmParagon11")));
  auto* fraKontrahent =
      NowaRamkaWyboru(QStringLiteral("fraKontrahent"), Napis(QStringLiteral("frmParagon8")),
                      lblKontrahent_, QStringLiteral("lblKontrahent"),
                      Napis(QStringLiteral("frmParagon9")), cmdWybierzKontrahenta, this);
  lblKonto_->setMinimumWidth(220);
  lblKontrahent_->setMinimumWidth(220);
  if (sesja.pubPrzedefiniowanyKontrahent == -1) cmdWybierzKontrahenta->setEnabled(false);
  connect(cmdWybierzKonto, &QPushButton::clicked, this, &frmParagon::cmdWybierzKonto_Click);
  connect(cmdWybierzKontrahenta, &QPushButton::clicked, this,
          &frmParagon::cmdWybierzKontrahenta_Click);
  auto* gora = new QHBoxLayout;
  gora->addWidget(fraData);
  gora->addWidget(fraKonto, 1);
  gora->addWidget(fraKontrahent, 1);

  chkOpis_ = new QCheckBox(this);
  chkOpis_->setObjectName(QStringLiteral("chkOpis"));
  auto* lblKopiuj = new QLabel(Napis(QStringLiteral("frmParagon12")), this);
  lblKopiuj->setObjectName(QStringLiteral("lblKopiuj"));
  lblKopiuj->installEventFilter(this);
  txtOpisWspolny_ = new QLineEdit(this);
  txtOpisWspolny_->setObjectName(QStringLiteral("txtOpisWspolny"));
  txtOpisWspolny_->setMaxLength(DlugoscOpisu - 1);
  txtOpisWspolny_->setToolTip(Napis(QStringLiteral("frmParagon13")));
  lblKopiuj->setBuddy(txtOpisWspolny_);
  auto* wspolny = new QHBoxLayout;
  wspolny->addWidget(chkOpis_);
  wspolny->addWidget(lblKopiuj);
  wspolny->addWidget(txtOpisWspolny_, 1);

  auto* siatka = new QGridLayout;
  siatka->setHorizontalSpacing(6);
  const int kolumnyNaglowkow[] = {0, 1, 3, 5};
  const QString napisyNaglowkow[] = {
      Napis(QStringLiteral("frmParagon14")), Napis(QStringLiteral("frmParagon15")),
      Napis(QStringLiteral("frmParagon16")), Napis(QStringLiteral("frmParagon17"))};
  for (int i = 0; i < 4; ++i) {
    auto* l = new QLabel(napisyNaglowkow[i], this);
    l->setObjectName(tablicowa("lblNaglowek", i));
    QFont f = l->font();
    f.setBold(true);
    l->setFont(f);
    siatka->addWidget(l, 0, kolumnyNaglowkow[i]);
  }
  for (int n = 1; n <= LiczbaPozycjiParagonu; ++n) {
    const size_t i = size_t(n - 1);
    auto* lp = new QLabel(QStringLiteral("%1.").arg(n), this);
    lp->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* kat = new QLabel(Napis(QStringLiteral("frmParagon67")), this);
    kat->setObjectName(tablicowa("lblKategoria", n));
    kat->setMinimumWidth(200);
    lblKategoria_[i] = kat;
    auto* wybierz = NowyPrzycisk(tablicowa("cmdWybierzKategorie", n),
                                 Napis(QStringLiteral("frmParagon18")), this);
    wybierz->setToolTip(Napis(QStringLiteral("frmParagon19")));
    connect(wybierz, &QPushButton::clicked, this, [this, n] { cmdWybierzKategorie_Click(n); });
    const PoleZKalkulatorem kwota =
        PoleKwoty::NowePole(tablicowa("txtKwota", n), tablicowa("cmdKalkulator", n),
                            Napis(QStringLiteral("frmParagon28")), this);
    kwota.pole->setFixedWidth(PoleKwoty::Szerokosc(kwota.pole));
    kwota.pole->setText(QStringLiteral("0"));
    PoleKwoty::Z(kwota.pole)->Formatuj();
    kwota.pole->installEventFilter(this);
    txtKwota_[i] = kwota.pole;
    auto* opis = new QLineEdit(this);
    opis->setObjectName(tablicowa("txtOpis", n));
    opis->setMaxLength(DlugoscOpisu - 1);
    opis->setMinimumWidth(220);
    txtOpis_[i] = opis;
    auto* kasuj =
        NowyPrzycisk(tablicowa("cmdKasuj", n), Napis(QStringLiteral("frmParagon20")), this);
    kasuj->setToolTip(Napis(QStringLiteral("frmParagon21")));
    connect(kasuj, &QPushButton::clicked, this, [this, n] { cmdKasuj_Click(n); });
    siatka->addWidget(lp, n, 0);
    siatka->addWidget(kat, n, 1);
    siatka->addWidget(wybierz, n, 2);
    siatka->addWidget(kwota.pole, n, 3);
    siatka->addWidget(kwota.kalkulator, n, 4);
    siatka->addWidget(opis, n, 5);
    siatka->addWidget(kasuj, n, 6);
  }
  siatka->setColumnStretch(1, 1);
  siatka->setColumnStretch(5, 2);

  auto* lblSumaOpis = new QLabel(Napis(QStringLiteral("frmParagon22")), this);
  lblSumaOpis->setObjectName(QStringLiteral("lblSumaOpis"));
  lblSuma_ = new QLabel(this);
  lblSuma_->setObjectName(QStringLiteral("lblSuma"));
  QFont f = lblSuma_->font();
  f.setBold(true);
  lblSuma_->setFont(f);
  lblSuma_->setTextInteractionFlags(Qt::TextSelectableByMouse);

  auto* cmdOk = NowyPrzycisk(QStringLiteral("cmdOk"), Napis(QStringLiteral("frmParagon23")), this);
  cmdOk->setDefault(true);
  cmdOk->setAutoDefault(true);
  auto* cmdAnuluj =
      NowyPrzycisk(QStringLiteral("cmdAnuluj"), Napis(QStringLiteral("frmParagon24")), this);
  auto* cmdPomoc =
      NowyPrzycisk(QStringLiteral("cmdPomoc"), Napis(QStringLiteral("frmParagon25")), this);
  // The help file is not part of this build.
  cmdPomoc->setEnabled(false);
  cmdPomoc->setToolTip(Napis(QStringLiteral("frmParagon26")));
  connect(cmdOk, &QPushButton::clicked, this, &frmParagon::cmdOk_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);
  auto* dol = new QHBoxLayout;
  dol->addWidget(lblSumaOpis);
  dol->addWidget(lblSuma_);
  dol->addStretch();
  dol->addWidget(cmdOk);
  dol->addWidget(cmdAnuluj);
  dol->addWidget(cmdPomoc);

  auto* uklad = new QVBoxLayout(this);
  uklad->addWidget(lblInfo);
  uklad->addLayout(gora);
  uklad->addLayout(wspolny);
  uklad->addLayout(siatka);
  uklad->addSpacing(4);
  uklad->addLayout(dol);
  resize(sizeHint().width(), sizeHint().height());
}

bool frmParagon::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
  if (zdarzenie->type() == QEvent::FocusOut) {
    for (int n = 1; n <= LiczbaPozycjiParagonu; ++n)
      if (obiekt == txtKwota_[size_t(n - 1)]) txtKwota_LostFocus(n);
  } else if (zdarzenie->type() == QEvent::MouseButtonRelease &&
             obiekt->objectName() == QLatin1String("lblKopiuj")) {
    chkOpis_->toggle();
  }
  return QDialog::eventFilter(obiekt, zdarzenie);
}

void frmParagon::txtKwota_LostFocus(int n) {
  QLineEdit* kwota = txtKwota_[size_t(n - 1)];
  PoleKwoty::Z(kwota)->Formatuj();
  QLineEdit* opis = txtOpis_[size_t(n - 1)];
  if (KwotaPola(kwota->text()) > 0 && opis->text().isEmpty() && chkOpis_->isChecked())
    opis->setText(txtOpisWspolny_->text());
  przeliczSume();
}

void frmParagon::przeliczSume() { lblSuma_->setText(FormatKwoty(SumaParagonu(Dane()))); }

void frmParagon::cmdKasuj_Click(int n) {
  const size_t i = size_t(n - 1);
  txtKwota_[i]->setText(QStringLiteral("0"));
  PoleKwoty::Z(txtKwota_[i])->Formatuj();
  UstawKategorie(n, QString());
  txtOpis_[i]->clear();
  przeliczSume();
}

void frmParagon::UstawKategorie(int n, const QString& identyfikator) {
  identyfikatory_[size_t(n)] = identyfikator;
  lblKategoria_[size_t(n - 1)]->setText(identyfikator.isEmpty()
                                            ? Napis(QStringLiteral("frmParagon67"))
                                            : SciezkaKategorii(identyfikator, 2));
}

void frmParagon::cmdWybierzKategorie_Click(int n) {
  sesja.pubKategoria.identyfikator = identyfikatory_[size_t(n)];
  sesja.pubKategoria.rodzaj = 2;
  PokazWybor(QStringLiteral("frmPrzegladKategorii"), lblKategoria_[size_t(n - 1)], this);
  UstawKategorie(n, sesja.pubKategoria.identyfikator);
}

void frmParagon::OdswiezEtykiety() {
  lblKonto_->setText(sesja.pubKonto.id != 0 ? OpisKonta(sesja.pubKonto)
                                            : Napis(QStringLiteral("frmParagon5")));
  lblKontrahent_->setText(sesja.pubKontrahent.id != 0 ? OpisKontrahenta(sesja.pubKontrahent)
                                                      : Napis(QStringLiteral("frmParagon9")));
}

void frmParagon::cmdWybierzKonto_Click() {
  PokazWybor(QStringLiteral("frmPrzegladKont"), lblKonto_, this);
  sesja.pubKonto.datautworzenia = DataUtworzeniaKonta(sesja.pubKonto.id);
  OdswiezEtykiety();
}

void frmParagon::cmdWybierzKontrahenta_Click() {
  PokazWybor(QStringLiteral("frmPrzegladKontrahentow"), lblKontrahent_, this);
  OdswiezEtykiety();
}

DaneParagonu frmParagon::Dane() const {
  DaneParagonu d;
  d.data = dtpData_->date();
  d.konto = sesja.pubKonto;
  d.kontrahent = sesja.pubKontrahent.id;
  for (int n = 1; n <= LiczbaPozycjiParagonu; ++n) {
    PozycjaParagonu& p = d.pozycje[size_t(n - 1)];
    p.kwota = txtKwota_[size_t(n - 1)]->text();
    p.kategoria = identyfikatory_[size_t(n)];
    p.opis = txtOpis_[size_t(n - 1)]->text();
  }
  return d;
}

void frmParagon::cmdOk_Click() {
  if (ZapiszParagon(Dane())) accept();
}
