#include "setup/frmKreatorKolory.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include "setup/kolory.h"
#include "setup/podgladkolorow_gui.h"
#include "store/napis.h"
#include "store/session.h"

frmKreatorKolory::frmKreatorKolory(QWidget* rodzic)
    : KrokKreatora(QStringLiteral("frmKreatorKolory"), 4, QString(), rodzic) {
  auto* lblOpis = new QLabel(Napis(QStringLiteral("frmKreatorKolory3")), this);
  lblOpis->setWordWrap(true);
  Tresc()->addWidget(lblOpis);
  auto* fraProfil = new QGroupBox(Napis(QStringLiteral("frmKreatorKolory4")), this);
  fraProfil->setObjectName(QStringLiteral("fraProfil"));
  auto* ukladProfili = new QVBoxLayout(fraProfil);
  for (int i = 0; i < LiczbaProfili; ++i) {
    optProfil_[i] = new QRadioButton(Napis(QStringLiteral("frmKolory%1").arg(20 + i)), fraProfil);
    optProfil_[i]->setObjectName(QStringLiteral("optProfil(%1)").arg(i));
    ukladProfili->addWidget(optProfil_[i]);
    connect(optProfil_[i], &QRadioButton::toggled, this, [this, i](bool tak) {
      if (tak) Wybierz(i);
    });
  }
  ukladProfili->addStretch();
  picPodglad_ = new PodgladKolorow(this);
  auto* srodek = new QHBoxLayout;
  srodek->addWidget(fraProfil);
  srodek->addWidget(picPodglad_, 1);
  Tresc()->addLayout(srodek, 1);
  const int p = sesja.pubProfilKreatora;
  optProfil_[p >= 0 && p < LiczbaProfili ? p : 0]->setChecked(true);
  Wybierz(p >= 0 && p < LiczbaProfili ? p : 0);
}

void frmKreatorKolory::Wybierz(int profil) {
  sesja.pubProfilKreatora = profil;
  picPodglad_->Ustaw(ProfilKolorow(profil));
}
