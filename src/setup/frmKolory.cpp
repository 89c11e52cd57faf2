#include "setup/frmKolory.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "setup/kolorowanie_gui.h"
#include "setup/kolory.h"
#include "setup/podgladkolorow_gui.h"
#include "store/MsgBoxModule.h"
#include "store/napis.h"
#include "store/session.h"
#include "ui/pasujliste_gui.h"

namespace {
QString napis(int i) { return Napis(QStringLiteral("frmKolory%1").arg(i)); }

const char* const przyciski[9] = {
    "cmdKolorTlaAktywnego", "cmdKolorNapisuAktywnego", "cmdKolorPrzyciskuAktywnego",
    "cmdKolorEtykiety",     "cmdKolorNapisowEtykiet",  "cmdListaJeden",
    "cmdListaDwa",          "cmdKolorTlaNieAktywnego", "cmdKolorNapisuNieAktywnego"};
}  // namespace

frmKolory::frmKolory(QWidget* rodzic)
    : QDialog(rodzic), kolory_(KoloryUstawien(sesja.pubUstawienia)) {
  setObjectName(QStringLiteral("frmKolory"));
  setWindowTitle(napis(1));

  auto* fraKolory = new QGroupBox(napis(2), this);
  auto* siatka = new QGridLayout(fraKolory);
  siatka->setColumnStretch(0, 1);
  for (int i = 0; i < LiczbaKolorow; ++i) {
    auto* cmd = new QPushButton(napis(16), fraKolory);
    cmd->setObjectName(QLatin1String(przyciski[i]));
    cmd->setAutoDefault(false);
    auto* lbl = new QLabel(napis(3 + i), fraKolory);
    lbl->setBuddy(cmd);
    picKolor_[i] = new QLabel(fraKolory);
    picKolor_[i]->setObjectName(QStringLiteral("picKolor(%1)").arg(i));
    picKolor_[i]->setFixedSize(48, 20);
    picKolor_[i]->setFrameShape(QFrame::Box);
    picKolor_[i]->setAutoFillBackground(true);
    siatka->addWidget(lbl, i, 0);
    siatka->addWidget(picKolor_[i], i, 1);
    siatka->addWidget(cmd, i, 2);
    connect(cmd, &QPushButton::clicked, this, [this, i] { cmdKolor_Click(i); });
  }

  auto* fraProfil = new QGroupBox(napis(12), this);
  auto* ukladProfili = new QVBoxLayout(fraProfil);
  for (int i = 0; i < LiczbaProfili; ++i) {
    optProfil_[i] = new QRadioButton(napis(20 + i), fraProfil);
    optProfil_[i]->setObjectName(QStringLiteral("optProfil(%1)").arg(i));
    ukladProfili->addWidget(optProfil_[i]);
    connect(optProfil_[i], &QRadioButton::clicked, this, [this, i] {
      kolory_ = ProfilKolorow(i);
      Pokaz();
    });
  }
  ukladProfili->addStretch();

  auto* fraPodglad = new QGroupBox(napis(15), this);
  picPodglad_ = new PodgladKolorow(fraPodglad);
  (new QVBoxLayout(fraPodglad))->addWidget(picPodglad_);

  auto* cmdOK = new QPushButton(napis(13), this);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setDefault(true);
  auto* cmdAnuluj = new QPushButton(napis(14), this);
  cmdAnuluj->setObjectName(QStringLiteral("cmdAnuluj"));
  connect(cmdOK, &QPushButton::clicked, this, &frmKolory::cmdOK_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);
  auto* dol = new QHBoxLayout;
  dol->addStretch();
  dol->addWidget(cmdOK);
  dol->addWidget(cmdAnuluj);

  auto* gora = new QHBoxLayout;
  gora->addWidget(fraKolory, 3);
  gora->addWidget(fraProfil, 2);
  auto* uklad = new QVBoxLayout(this);
  uklad->addLayout(gora);
  uklad->addWidget(fraPodglad, 1);
  uklad->addLayout(dol);
  Pokaz();
  resize(760, 620);
}

// The swatches, the profile they make up (if any) and the sample, from the colours in hand.
void frmKolory::Pokaz() {
  for (int i = 0; i < LiczbaKolorow; ++i) {
    QPalette p = picKolor_[i]->palette();
    const QColor c = KolorUstawienia(kolory_.value(i));
    p.setColor(QPalette::Window, c.isValid() ? c : palette().color(QPalette::Window));
    picKolor_[i]->setPalette(p);
    picKolor_[i]->setToolTip(kolory_.value(i));
  }
  const int profil = KtoryProfil(kolory_);
  for (int i = 0; i < LiczbaProfili; ++i) {
    optProfil_[i]->setAutoExclusive(false);
    optProfil_[i]->setChecked(i == profil);
    optProfil_[i]->setAutoExclusive(true);
  }
  picPodglad_->Ustaw(kolory_);
}

void frmKolory::cmdKolor_Click(int i) {
  // Black is what the dialog gives for a cancel too: it changes nothing.
  const QString wybrany = TekstKoloru(WybierzKolor(this, KolorUstawienia(kolory_.value(i))));
  if (wybrany.isEmpty()) return;
  kolory_[i] = wybrany;
  Pokaz();
}

void frmKolory::cmdOK_Click() {
  if (!ZapiszKoloryWBazie(kolory_)) {
    MyMsgbox(napis(17), napis(18), MsgOK, IkonaOstrzezenie);
    return;
  }
  UstawKoloryUstawien(sesja.pubUstawienia, kolory_);
  accept();
  // Every open window takes the new colours at once.
  KolorujWszystkieOkna();
}
