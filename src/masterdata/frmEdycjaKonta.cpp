#include "masterdata/frmEdycjaKonta.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "calculator/PoleKwoty_gui.h"
#include "masterdata/konta.h"
#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"

namespace {
QLabel* etykieta(const QString& nazwa, const QString& tekst, QWidget* rodzic) {
  auto* l = new QLabel(tekst, rodzic);
  l->setObjectName(nazwa);
  l->setWordWrap(true);
  return l;
}

// Which of bowinien, boma and limit a kind uses: cash and deposits hold money only, cards and
// loans only owe, a bank account and "other" may do both.
struct PolaRodzaju {
  bool winien, ma, limit;
};
PolaRodzaju polaRodzaju(int rodzaj) {
  switch (rodzaj) {
    case 1:
    case 4:
      return {true, false, false};
    case 3:
    case 5:
      return {false, true, true};
    default:
      return {true, true, true};
  }
}
}  // namespace

frmEdycjaKonta::frmEdycjaKonta(QWidget* parent) : QDialog(parent), id_(sesja.pubKonto.id) {
  setObjectName(QStringLiteral("frmEdycjaKonta"));
  OtworzBaze();

  // Name and description.
  auto* lblNazwa =
      etykieta(QStringLiteral("lblNazwa"), Napis(QStringLiteral("frmEdycjaKonta1")), this);
  txtNazwa_ = new QLineEdit(this);
  txtNazwa_->setObjectName(QStringLiteral("txtNazwa"));
  txtNazwa_->setMaxLength(16);
  lblNazwa->setBuddy(txtNazwa_);
  auto* lblMax = etykieta(QStringLiteral("lblMax"), Napis(QStringLiteral("frmEdycjaKonta2")), this);
  lblMax->setWordWrap(false);
  auto* lblOpis =
      etykieta(QStringLiteral("lblOpis"), Napis(QStringLiteral("frmEdycjaKonta3")), this);
  txtOpis_ = new QLineEdit(this);
  txtOpis_->setObjectName(QStringLiteral("txtOpis"));
  txtOpis_->setMaxLength(150);
  lblOpis->setBuddy(txtOpis_);
  auto* lblNumer =
      etykieta(QStringLiteral("lblNumer"), Napis(QStringLiteral("frmEdycjaKonta35")), this);
  txtNumer_ = new QLineEdit(this);
  txtNumer_->setObjectName(QStringLiteral("txtNumer"));
  txtNumer_->setMaxLength(40);
  txtNumer_->setPlaceholderText(QStringLiteral("00 0000 0000 0000 0000 0000 0000"));
  lblNumer->setBuddy(txtNumer_);

  // The six kinds, each with its explanation.
  auto* fraRodzaj = new QGroupBox(Napis(QStringLiteral("frmEdycjaKonta4")), this);
  fraRodzaj->setObjectName(QStringLiteral("fraRodzaj"));
  auto* ukladRodzaju = new QGridLayout(fraRodzaj);
  auto* grupa = new QButtonGroup(this);
  const QString rodzaje[] = {
      Napis(QStringLiteral("frmEdycjaKonta13")), Napis(QStringLiteral("frmEdycjaKonta14")),
      Napis(QStringLiteral("frmEdycjaKonta15")), Napis(QStringLiteral("frmEdycjaKonta16")),
      Napis(QStringLiteral("frmEdycjaKonta17")), Napis(QStringLiteral("frmEdycjaKonta18"))};
  const QString objasnienia[] = {
      Napis(QStringLiteral("frmEdycjaKonta19")), Napis(QStringLiteral("frmEdycjaKonta20")),
      Napis(QStringLiteral("frmEdycjaKonta21")), Napis(QStringLiteral("frmEdycjaKonta22")),
      Napis(QStringLiteral("frmEdycjaKonta23")), Napis(QStringLiteral("frmEdycjaKonta24"))};
  for (int r = 1; r <= 6; ++r) {
    auto* opt = new QRadioButton(rodzaje[r - 1], fraRodzaj);
    opt->setObjectName(QStringLiteral("optRodzaj(%1)").arg(r));
    grupa->addButton(opt, r);
    auto* opis = etykieta(QStringLiteral("lblRodzaj(%1)").arg(r), objasnienia[r - 1], fraRodzaj);
    ukladRodzaju->addWidget(opt, r - 1, 0);
    ukladRodzaju->addWidget(opis, r - 1, 1);
    connect(opt, &QRadioButton::toggled, this, [this](bool wlaczony) {
      if (wlaczony) UstawPola();
    });
    optRodzaj_[r] = opt;
  }
  ukladRodzaju->setColumnStretch(1, 1);

  // Opening balance and limit.
  auto* fraKwoty = new QGroupBox(Napis(QStringLiteral("frmEdycjaKonta5")), this);
  fraKwoty->setObjectName(QStringLiteral("fraKwoty"));
  lblWinien_ =
      etykieta(QStringLiteral("lblWinien"), Napis(QStringLiteral("frmEdycjaKonta6")), fraKwoty);
  lblMa_ = etykieta(QStringLiteral("lblMa"), Napis(QStringLiteral("frmEdycjaKonta7")), fraKwoty);
  lblLimit_ =
      etykieta(QStringLiteral("lblLimit"), Napis(QStringLiteral("frmEdycjaKonta8")), fraKwoty);
  const auto kwota = [fraKwoty](const QString& nazwa, const QString& nazwaPrzycisku,
                                QToolButton*& przycisk) {
    const PoleZKalkulatorem p = PoleKwoty::NowePole(
        nazwa, nazwaPrzycisku, Napis(QStringLiteral("frmEdycjaKonta32")), fraKwoty);
    p.pole->setFixedWidth(PoleKwoty::Szerokosc(p.pole));
    przycisk = p.kalkulator;
    return p.pole;
  };
  txtWinien_ =
      kwota(QStringLiteral("txtWinien"), QStringLiteral("cmdKalkulatorWn"), cmdKalkulatorWn_);
  txtMa_ = kwota(QStringLiteral("txtMa"), QStringLiteral("cmdKalkulatorMa"), cmdKalkulatorMa_);
  txtLimit_ =
      kwota(QStringLiteral("txtLimit"), QStringLiteral("cmdKalkulatorLimit"), cmdKalkulatorLimit_);
  // Tab walks the three amounts first, then their calculator buttons.
  setTabOrder(txtWinien_, txtMa_);
  setTabOrder(txtMa_, txtLimit_);
  lblWinien_->setBuddy(txtWinien_);
  lblMa_->setBuddy(txtMa_);
  lblLimit_->setBuddy(txtLimit_);
  auto* ukladKwot = new QGridLayout(fraKwoty);
  ukladKwot->addWidget(lblWinien_, 0, 0);
  ukladKwot->addWidget(txtWinien_, 0, 1);
  ukladKwot->addWidget(cmdKalkulatorWn_, 0, 2);
  ukladKwot->addWidget(lblMa_, 1, 0);
  ukladKwot->addWidget(txtMa_, 1, 1);
  ukladKwot->addWidget(cmdKalkulatorMa_, 1, 2);
  ukladKwot->addWidget(lblLimit_, 2, 0);
  ukladKwot->addWidget(txtLimit_, 2, 1);
  ukladKwot->addWidget(cmdKalkulatorLimit_, 2, 2);
  ukladKwot->setColumnStretch(0, 1);

  auto* lblData =
      etykieta(QStringLiteral("lblData"), Napis(QStringLiteral("frmEdycjaKonta9")), this);
  lblData->setWordWrap(false);
  lblDataUtworzenia_ = etykieta(QStringLiteral("lblDataUtworzenia"), QString(), this);
  lblDataUtworzenia_->setWordWrap(false);

  auto* cmdOK = new QPushButton(Napis(QStringLiteral("frmEdycjaKonta10")), this);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setDefault(true);
  auto* cmdAnuluj = new QPushButton(Napis(QStringLiteral("frmEdycjaKonta11")), this);
  cmdAnuluj->setObjectName(QStringLiteral("cmdAnuluj"));
  connect(cmdOK, &QPushButton::clicked, this, &frmEdycjaKonta::cmdOK_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);

  auto* gora = new QGridLayout;
  gora->addWidget(lblNazwa, 0, 0);
  gora->addWidget(txtNazwa_, 0, 1);
  gora->addWidget(lblMax, 0, 2);
  gora->addWidget(lblOpis, 1, 0);
  gora->addWidget(txtOpis_, 1, 1, 1, 2);
  gora->addWidget(lblNumer, 2, 0);
  gora->addWidget(txtNumer_, 2, 1, 1, 2);
  gora->setColumnStretch(1, 1);
  auto* dol = new QHBoxLayout;
  dol->addWidget(lblData);
  dol->addWidget(lblDataUtworzenia_);
  dol->addStretch();
  dol->addWidget(cmdOK);
  dol->addWidget(cmdAnuluj);
  auto* uklad = new QVBoxLayout(this);
  uklad->addLayout(gora);
  uklad->addWidget(fraRodzaj);
  uklad->addWidget(fraKwoty);
  uklad->addLayout(dol);
  resize(620, sizeHint().height());

  if (id_ != 0) {
    setWindowTitle(Napis(QStringLiteral("frmEdycjaKonta31")));
    const Rekordy rs =
        pubBaza().Czytaj(QStringLiteral("SELECT * FROM konta WHERE id=") + QString::number(id_));
    txtNazwa_->setText(rs.Tekst(QStringLiteral("nazwa")).trimmed());
    txtOpis_->setText(rs.Tekst(QStringLiteral("opis")).trimmed());
    txtNumer_->setText(NumerGrupami(rs.Tekst(QStringLiteral("numer"))));
    txtWinien_->setText(FormatKwotyEdycja(PoleRekordu(rs, QStringLiteral("bowinien"))));
    txtMa_->setText(FormatKwotyEdycja(PoleRekordu(rs, QStringLiteral("boma"))));
    txtLimit_->setText(FormatKwotyEdycja(PoleRekordu(rs, QStringLiteral("limit"))));
    const QDate data =
        QDate::fromString(rs.Tekst(QStringLiteral("datautworzenia")).left(10), Qt::ISODate);
    const QLocale jezyk =
        sesja.pubJezyk == 1 ? QLocale(QLocale::Polish) : QLocale(QLocale::English);
    lblDataUtworzenia_->setText(jezyk.toString(data, QLocale::LongFormat));
    const int rodzaj = int(PoleRekordu(rs, QStringLiteral("rodzaj")));
    optRodzaj_[rodzaj >= 1 && rodzaj <= 6 ? rodzaj : 1]->setChecked(true);
  } else {
    setWindowTitle(Napis(QStringLiteral("frmEdycjaKonta30")));
    const int rodzaj = sesja.pubKonto.rodzaj;
    optRodzaj_[rodzaj >= 1 && rodzaj <= 6 ? rodzaj : 1]->setChecked(true);
    txtWinien_->setText(QStringLiteral("0"));
    txtMa_->setText(QStringLiteral("0"));
    txtLimit_->setText(QStringLiteral("0"));
    lblDataUtworzenia_->setText(
        FormatDaty(sesja.pubFiltrCzasowy.pozycja, sesja.pubFormatDaty_ddsmmmmsyyyy));
  }
  UstawPola();
  txtNazwa_->setFocus();
}

QString NumerGrupami(const QString& cyfry) {
  if (cyfry.size() != 26) return cyfry;
  QString t = cyfry.left(2);
  for (int i = 2; i < 26; i += 4) t += QLatin1Char(' ') + cyfry.mid(i, 4);
  return t;
}

int frmEdycjaKonta::Rodzaj() const {
  for (int r = 1; r <= 6; ++r)
    if (optRodzaj_[r]->isChecked()) return r;
  return 1;
}

void frmEdycjaKonta::UstawPola() {
  // Switching a field off keeps what it holds: saving reads all three whatever their state.
  const PolaRodzaju p = polaRodzaju(Rodzaj());
  for (QWidget* w : {static_cast<QWidget*>(txtWinien_), static_cast<QWidget*>(lblWinien_),
                     static_cast<QWidget*>(cmdKalkulatorWn_)})
    w->setEnabled(p.winien);
  for (QWidget* w : {static_cast<QWidget*>(txtMa_), static_cast<QWidget*>(lblMa_),
                     static_cast<QWidget*>(cmdKalkulatorMa_)})
    w->setEnabled(p.ma);
  for (QWidget* w : {static_cast<QWidget*>(txtLimit_), static_cast<QWidget*>(lblLimit_),
                     static_cast<QWidget*>(cmdKalkulatorLimit_)})
    w->setEnabled(p.limit);
}

void frmEdycjaKonta::cmdOK_Click() {
  DaneKonta d;
  d.id = id_;
  d.nazwa = txtNazwa_->text();
  d.opis = txtOpis_->text();
  d.rodzaj = Rodzaj();
  d.winien = txtWinien_->text();
  d.ma = txtMa_->text();
  d.limit = txtLimit_->text();
  // The account number: empty, or the 26 digits of an NRB (an IBAN's "PL" and blanks aside).
  QString numer;
  for (const QChar z : txtNumer_->text())
    if (z.isDigit()) numer.append(z);
  if (!numer.isEmpty() && numer.size() != 26) {
    MyMsgbox(Napis(QStringLiteral("frmEdycjaKonta36")), Napis(QStringLiteral("frmEdycjaKonta37")),
             MsgOK, IkonaOstrzezenie);
    txtNumer_->setFocus();
    return;
  }
  d.numer = numer;
  qint64 nowy = 0;
  if (!ZapiszKontoZPytaniami(d, &nowy)) {
    txtNazwa_->setFocus();
    return;
  }
  // The browser behind selects the new account after its refill.
  if (id_ == 0 && nowy) sesja.pubKonto.id = nowy;
  accept();
}
