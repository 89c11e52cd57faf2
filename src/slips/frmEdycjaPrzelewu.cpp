#include "slips/frmEdycjaPrzelewu.h"

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
#include "slips/przelew.h"
#include "store/MsgBoxModule.h"
#include "store/napis.h"
#include "store/session.h"
#include "ui/nawigacja_gui.h"

namespace {
// The counterparty editor's labels serve here too; their mnemonics would clash between the
// recipient's and the sender's frames, so they are left out.
QString etykieta(QString tekst) { return tekst.remove(QLatin1Char('&')); }
}  // namespace

QLineEdit* frmEdycjaPrzelewu::pole(const char* nazwa, int dlugosc) {
  auto* p = new QLineEdit(this);
  p->setObjectName(QLatin1String(nazwa));
  p->setMaxLength(dlugosc);
  return p;
}

frmEdycjaPrzelewu::frmEdycjaPrzelewu(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmEdycjaPrzelewu"));
  setWindowTitle(Napis(QStringLiteral("frmEdycjaPrzelewu1")));

  auto* fraTyp = new QGroupBox(Napis(QStringLiteral("frmEdycjaPrzelewu2")), this);
  fraTyp->setObjectName(QStringLiteral("fraTyp"));
  optTyp_[0] = new QRadioButton(Napis(QStringLiteral("frmEdycjaPrzelewu3")), fraTyp);
  optTyp_[1] = new QRadioButton(Napis(QStringLiteral("frmEdycjaPrzelewu4")), fraTyp);
  auto* ukladTyp = new QHBoxLayout(fraTyp);
  for (int i = 0; i < 2; ++i) {
    optTyp_[i]->setObjectName(QStringLiteral("optTyp(%1)").arg(i));
    ukladTyp->addWidget(optTyp_[i]);
  }
  ukladTyp->addStretch();
  optTyp_[0]->setChecked(true);

  txtNazwaOdbiorcy_ = pole("txtNazwaOdbiorcy", 50);
  txtNazwaOdbiorcyCd_ = pole("txtNazwaOdbiorcyCd", 50);
  txtLkOdbiorcy_ = pole("txtLkOdbiorcy", 2);
  txtBankOdbiorcy_ = pole("txtBankOdbiorcy", 8);
  txtKontoOdbiorcy_ = pole("txtKontoOdbiorcy", 25);
  txtNazwaNadawcy_ = pole("txtNazwaNadawcy", 50);
  txtNazwaNadawcyCd_ = pole("txtNazwaNadawcyCd", 50);
  txtLkNadawcy_ = pole("txtLkNadawcy", 2);
  txtBankNadawcy_ = pole("txtBankNadawcy", 8);
  txtKontoNadawcy_ = pole("txtKontoNadawcy", 25);
  txtTytulem_ = pole("txtTytulem", 50);
  txtTytulemCd_ = pole("txtTytulemCd", 50);

  const int znak = txtLkOdbiorcy_->fontMetrics().horizontalAdvance(QLatin1Char('0'));
  const int szerokoscNazwy =
      txtNazwaOdbiorcy_->fontMetrics().horizontalAdvance(QLatin1Char('x')) * 52 + 16;

  // A frame of name, its second line and the account in its three pieces, with a button that
  // empties it.
  const auto osoba = [&](const QString& tytul, const char* nazwa, QLineEdit* n, QLineEdit* cd,
                         QLineEdit* lk, QLineEdit* bank, QLineEdit* konto, const char* przycisk,
                         const QString& podpowiedz) {
    auto* fra = new QGroupBox(tytul, this);
    fra->setObjectName(QLatin1String(nazwa));
    for (QLineEdit* p : {n, cd, lk, bank, konto}) p->setParent(fra);
    n->setMinimumWidth(szerokoscNazwy);
    lk->setFixedWidth(znak * 4 + 12);
    bank->setFixedWidth(znak * 10 + 12);
    konto->setMinimumWidth(znak * 27 + 12);
    auto* wytnij = new QPushButton(Napis(QStringLiteral("frmEdycjaPrzelewu24")), fra);
    wytnij->setObjectName(QLatin1String(przycisk));
    wytnij->setToolTip(podpowiedz);
    wytnij->setAutoDefault(false);
    auto* u = new QGridLayout(fra);
    u->addWidget(new QLabel(etykieta(Napis(QStringLiteral("frmEdycjaKontrahenta6"))), fra), 0, 0);
    u->addWidget(n, 0, 1, 1, 6);
    u->addWidget(new QLabel(etykieta(Napis(QStringLiteral("frmEdycjaKontrahenta5"))), fra), 1, 0);
    u->addWidget(cd, 1, 1, 1, 6);
    u->addWidget(new QLabel(etykieta(Napis(QStringLiteral("frmEdycjaKontrahenta11"))), fra), 2, 0);
    u->addWidget(lk, 2, 1);
    u->addWidget(new QLabel(etykieta(Napis(QStringLiteral("frmEdycjaKontrahenta12"))), fra), 2, 2);
    u->addWidget(bank, 2, 3);
    u->addWidget(new QLabel(etykieta(Napis(QStringLiteral("frmEdycjaKontrahenta13"))), fra), 2, 4);
    u->addWidget(konto, 2, 5, 1, 2);
    u->addWidget(wytnij, 3, 6, Qt::AlignRight);
    u->setColumnStretch(5, 1);
    return std::pair{fra, wytnij};
  };
  auto [fraOdbiorca, cmdWytnijOdbiorce] =
      osoba(Napis(QStringLiteral("frmEdycjaPrzelewu5")), "fraOdbiorca", txtNazwaOdbiorcy_,
            txtNazwaOdbiorcyCd_, txtLkOdbiorcy_, txtBankOdbiorcy_, txtKontoOdbiorcy_,
            "cmdWytnijOdbiorce", Napis(QStringLiteral("frmEdycjaPrzelewu16")));
  auto [fraNadawca, cmdWytnijNadawce] =
      osoba(Napis(QStringLiteral("frmEdycjaPrzelewu6")), "fraNadawca", txtNazwaNadawcy_,
            txtNazwaNadawcyCd_, txtLkNadawcy_, txtBankNadawcy_, txtKontoNadawcy_,
            "cmdWytnijNadawce", Napis(QStringLiteral("frmEdycjaPrzelewu17")));

  auto* fraPrzelew = new QGroupBox(Napis(QStringLiteral("frmEdycjaPrzelewu7")), this);
  fraPrzelew->setObjectName(QStringLiteral("fraPrzelew"));
  const PoleZKalkulatorem kwota =
      PoleKwoty::NowePole(QStringLiteral("txtKwota"), QStringLiteral("cmdKalkulator"),
                          Napis(QStringLiteral("frmEdycjaPrzelewu19")), fraPrzelew);
  txtKwota_ = kwota.pole;
  txtKwota_->setFixedWidth(PoleKwoty::Szerokosc(txtKwota_));
  Text1_ = new QLineEdit(QStringLiteral("PLN"), fraPrzelew);
  Text1_->setObjectName(QStringLiteral("Text1"));
  Text1_->setReadOnly(true);
  Text1_->setFocusPolicy(Qt::NoFocus);
  Text1_->setFixedWidth(znak * 5 + 12);
  txtTytulem_->setParent(fraPrzelew);
  txtTytulemCd_->setParent(fraPrzelew);
  auto* cmdWytnijPrzelew =
      new QPushButton(Napis(QStringLiteral("frmEdycjaPrzelewu24")), fraPrzelew);
  cmdWytnijPrzelew->setObjectName(QStringLiteral("cmdWytnijPrzelew"));
  cmdWytnijPrzelew->setToolTip(Napis(QStringLiteral("frmEdycjaPrzelewu18")));
  cmdWytnijPrzelew->setAutoDefault(false);
  auto* lblKwota = new QLabel(Napis(QStringLiteral("frmEdycjaPrzelewu8")), fraPrzelew);
  lblKwota->setBuddy(txtKwota_);
  auto* wierszKwoty = new QHBoxLayout;
  wierszKwoty->addWidget(txtKwota_);
  wierszKwoty->addWidget(kwota.kalkulator);
  wierszKwoty->addSpacing(8);
  wierszKwoty->addWidget(new QLabel(Napis(QStringLiteral("frmEdycjaPrzelewu23")), fraPrzelew));
  wierszKwoty->addWidget(Text1_);
  wierszKwoty->addStretch();
  auto* lblTytulem = new QLabel(Napis(QStringLiteral("frmEdycjaPrzelewu9")), fraPrzelew);
  lblTytulem->setBuddy(txtTytulem_);
  auto* uPrzelew = new QGridLayout(fraPrzelew);
  uPrzelew->addWidget(lblKwota, 0, 0);
  uPrzelew->addLayout(wierszKwoty, 0, 1);
  uPrzelew->addWidget(lblTytulem, 1, 0);
  uPrzelew->addWidget(txtTytulem_, 1, 1);
  uPrzelew->addWidget(new QLabel(Napis(QStringLiteral("frmEdycjaPrzelewu10")), fraPrzelew), 2, 0);
  uPrzelew->addWidget(txtTytulemCd_, 2, 1);
  uPrzelew->addWidget(cmdWytnijPrzelew, 3, 1, Qt::AlignRight);

  auto* cmdDrukujNaFormularzu = new QPushButton(Napis(QStringLiteral("frmEdycjaPrzelewu11")), this);
  cmdDrukujNaFormularzu->setObjectName(QStringLiteral("cmdDrukujNaFormularzu"));
  cmdDrukujNaFormularzu->setToolTip(Napis(QStringLiteral("frmEdycjaPrzelewu12")));
  auto* cmdDrukujNaKartce = new QPushButton(Napis(QStringLiteral("frmEdycjaPrzelewu13")), this);
  cmdDrukujNaKartce->setObjectName(QStringLiteral("cmdDrukujNaKartce"));
  cmdDrukujNaKartce->setToolTip(Napis(QStringLiteral("frmEdycjaPrzelewu14")));
  cmdDrukujNaKartce->setDefault(true);
  auto* cmdAnuluj = new QPushButton(Napis(QStringLiteral("frmEdycjaPrzelewu15")), this);
  cmdAnuluj->setObjectName(QStringLiteral("cmdAnuluj"));
  cmdAnuluj->setAutoDefault(false);
  auto* przyciski = new QHBoxLayout;
  przyciski->addWidget(cmdDrukujNaFormularzu);
  przyciski->addWidget(cmdDrukujNaKartce);
  przyciski->addStretch();
  przyciski->addWidget(cmdAnuluj);

  auto* uklad = new QVBoxLayout(this);
  uklad->addWidget(fraTyp);
  uklad->addWidget(fraOdbiorca);
  uklad->addWidget(fraNadawca);
  uklad->addWidget(fraPrzelew);
  uklad->addLayout(przyciski);

  connect(cmdWytnijOdbiorce, &QPushButton::clicked, this,
          &frmEdycjaPrzelewu::cmdWytnijOdbiorce_Click);
  connect(cmdWytnijNadawce, &QPushButton::clicked, this,
          &frmEdycjaPrzelewu::cmdWytnijNadawce_Click);
  connect(cmdWytnijPrzelew, &QPushButton::clicked, this,
          &frmEdycjaPrzelewu::cmdWytnijPrzelew_Click);
  connect(cmdDrukujNaFormularzu, &QPushButton::clicked, this, [this] { Drukuj(true); });
  connect(cmdDrukujNaKartce, &QPushButton::clicked, this, [this] { Drukuj(false); });
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);

  // The fields from the planned entry, the counterparty and the user's own data.
  const PrzelewRekord d = DanePrzelewu(sesja.pubPrzelewKontrahent, sesja.pubPrzelewZaplanowana);
  txtNazwaOdbiorcy_->setText(d.nazwaOdbiorcy);
  txtNazwaOdbiorcyCd_->setText(d.nazwaOdbiorcyCd);
  txtLkOdbiorcy_->setText(d.lkOdbiorcy);
  txtBankOdbiorcy_->setText(d.bankOdbiorcy);
  txtKontoOdbiorcy_->setText(d.kontoOdbiorcy);
  txtNazwaNadawcy_->setText(d.nazwaNadawcy);
  txtNazwaNadawcyCd_->setText(d.nazwaNadawcyCd);
  txtLkNadawcy_->setText(d.lkNadawcy);
  txtBankNadawcy_->setText(d.bankNadawcy);
  txtKontoNadawcy_->setText(d.kontoNadawcy);
  txtTytulemCd_->setText(d.tytulemCd);
  txtKwota_->setText(d.kwota);
  PoleKwoty::Z(txtKwota_)->Formatuj();

  resize(sizeHint());
  (d.nazwaOdbiorcy.isEmpty() ? txtNazwaOdbiorcy_ : txtKwota_)->setFocus();
}

void frmEdycjaPrzelewu::cmdWytnijOdbiorce_Click() {
  for (QLineEdit* p : {txtNazwaOdbiorcy_, txtNazwaOdbiorcyCd_, txtLkOdbiorcy_, txtBankOdbiorcy_,
                       txtKontoOdbiorcy_})
    p->clear();
  txtNazwaOdbiorcy_->setFocus();
}

void frmEdycjaPrzelewu::cmdWytnijNadawce_Click() {
  for (QLineEdit* p :
       {txtNazwaNadawcy_, txtNazwaNadawcyCd_, txtLkNadawcy_, txtBankNadawcy_, txtKontoNadawcy_})
    p->clear();
  txtNazwaNadawcy_->setFocus();
}

void frmEdycjaPrzelewu::cmdWytnijPrzelew_Click() {
  txtTytulem_->clear();
  txtTytulemCd_->clear();
  txtKwota_->setText(QStringLiteral("0"));
  PoleKwoty::Z(txtKwota_)->Formatuj();
  txtKwota_->setFocus();
}

void frmEdycjaPrzelewu::ZbierzDanePrzelewu() {
  PrzelewRekord& p = sesja.pubPrzelew;
  p.wplata = optTyp_[0]->isChecked() ? 0 : -1;
  p.nazwaOdbiorcy = txtNazwaOdbiorcy_->text();
  p.nazwaOdbiorcyCd = txtNazwaOdbiorcyCd_->text();
  p.lkOdbiorcy = txtLkOdbiorcy_->text();
  p.bankOdbiorcy = txtBankOdbiorcy_->text();
  p.kontoOdbiorcy = txtKontoOdbiorcy_->text();
  p.kwota = txtKwota_->text();
  p.nazwaNadawcy = txtNazwaNadawcy_->text();
  p.nazwaNadawcyCd = txtNazwaNadawcyCd_->text();
  p.lkNadawcy = txtLkNadawcy_->text();
  p.bankNadawcy = txtBankNadawcy_->text();
  p.kontoNadawcy = txtKontoNadawcy_->text();
  p.tytulem = txtTytulem_->text();
  p.tytulemCd = txtTytulemCd_->text();
  p.waluta = QStringLiteral("PLN");
}

void frmEdycjaPrzelewu::Drukuj(bool naFormularzu) {
  if (KwotaPrzelewuZerowa(txtKwota_->text()) &&
      MyMsgbox(Napis(QStringLiteral("frmEdycjaPrzelewu22")),
               Napis(QStringLiteral("frmEdycjaPrzelewu21")), MsgTakNie, IkonaPytanie) != WynikTak) {
    txtKwota_->setFocus();
    return;
  }
  ZbierzDanePrzelewu();
  sesja.pubPrzelew.naFormularzu = naFormularzu ? -1 : 0;
  Nawigacja::Pokaz(QStringLiteral("frmWydrukPrzelewu"), this);
}
