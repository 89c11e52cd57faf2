#include "setup/frmKonfiguracja.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QDir>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "setup/autostart.h"
#include "store/MsgBoxModule.h"
#include "store/napis.h"

namespace {
QString napis(int i) { return Napis(QStringLiteral("frmKonfiguracja%1").arg(i)); }

// A frame with the two exclusive options "Nie" and "Tak" of one choice.
QGroupBox* grupa(const QString& tytul, const QString& nazwa, QRadioButton* opcje[2],
                 QWidget* rodzic) {
  auto* fra = new QGroupBox(tytul, rodzic);
  auto* uklad = new QHBoxLayout(fra);
  auto* grupa = new QButtonGroup(fra);
  for (int i = 0; i < 2; ++i) {
    opcje[i] = new QRadioButton(napis(3 + i), fra);
    opcje[i]->setObjectName(QStringLiteral("%1(%2)").arg(nazwa).arg(i));
    grupa->addButton(opcje[i], i);
    uklad->addWidget(opcje[i]);
  }
  uklad->addStretch();
  return fra;
}
}  // namespace

frmKonfiguracja::frmKonfiguracja(QWidget* rodzic) : QDialog(rodzic) {
  setObjectName(QStringLiteral("frmKonfiguracja"));
  setWindowTitle(napis(1));
  auto* fraProgram = grupa(napis(2), QStringLiteral("optAutoStart"), optAutoStart_, this);
  auto* fraPrzypominacz =
      grupa(napis(5), QStringLiteral("optAutoStartPrzypominacz"), optAutoStartPrzypominacz_, this);
  auto* lblZasada = new QLabel(napis(6), this);
  lblZasada->setWordWrap(true);
  // Tak in one group is Nie in the other; Nie changes nothing else.
  connect(optAutoStart_[1], &QRadioButton::toggled, this, [this](bool tak) {
    if (tak) optAutoStartPrzypominacz_[0]->setChecked(true);
  });
  connect(optAutoStartPrzypominacz_[1], &QRadioButton::toggled, this, [this](bool tak) {
    if (tak) optAutoStart_[0]->setChecked(true);
  });

  auto* fraSkrot = new QGroupBox(napis(10), this);
  auto* lblSkrot = new QLabel(napis(17), fraSkrot);
  lblSkrot->setWordWrap(true);
  auto* cmdUtworzSkrot = new QPushButton(napis(7), fraSkrot);
  cmdUtworzSkrot->setObjectName(QStringLiteral("cmdUtworzSkrot"));
  cmdUtworzSkrot->setAutoDefault(false);
  connect(cmdUtworzSkrot, &QPushButton::clicked, this, &frmKonfiguracja::cmdUtworzSkrot_Click);
  auto* ukladSkrotu = new QVBoxLayout(fraSkrot);
  ukladSkrotu->addWidget(lblSkrot);
  ukladSkrotu->addWidget(cmdUtworzSkrot, 0, Qt::AlignLeft);

  auto* cmdOK = new QPushButton(napis(8), this);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setDefault(true);
  auto* cmdAnuluj = new QPushButton(napis(9), this);
  cmdAnuluj->setObjectName(QStringLiteral("cmdAnuluj"));
  connect(cmdOK, &QPushButton::clicked, this, &frmKonfiguracja::cmdOK_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);
  auto* przyciski = new QHBoxLayout;
  przyciski->addStretch();
  przyciski->addWidget(cmdOK);
  przyciski->addWidget(cmdAnuluj);

  auto* uklad = new QVBoxLayout(this);
  uklad->addWidget(fraProgram);
  uklad->addWidget(fraPrzypominacz);
  uklad->addWidget(lblZasada);
  uklad->addWidget(fraSkrot);
  uklad->addStretch();
  uklad->addLayout(przyciski);

  const UstawieniaAutostartu u = CzytajAutostart();
  optAutoStart_[u.program ? 1 : 0]->setChecked(true);
  optAutoStartPrzypominacz_[u.przypominacz && !u.program ? 1 : 0]->setChecked(true);
  resize(480, sizeHint().height());
}

void frmKonfiguracja::cmdOK_Click() {
  UstawieniaAutostartu u;
  u.program = optAutoStart_[1]->isChecked();
  u.przypominacz = optAutoStartPrzypominacz_[1]->isChecked();
  if (!TestPisaniaAutostartu()) {
    MyMsgbox(napis(11).arg(QDir::toNativeSeparators(FolderAutostartu())), napis(12), MsgOK,
             IkonaOstrzezenie);
    return;
  }
  QString blad;
  if (!ZapiszAutostart(u, QCoreApplication::applicationFilePath(), &blad)) {
    MyMsgbox(napis(11).arg(blad), napis(12), MsgOK, IkonaOstrzezenie);
    return;
  }
  accept();
}

void frmKonfiguracja::cmdUtworzSkrot_Click() {
  QString blad;
  if (UtworzSkrot(QCoreApplication::applicationFilePath(), &blad))
    MyMsgbox(napis(13).arg(QDir::toNativeSeparators(FolderPulpitu())), napis(14), MsgOK,
             IkonaInformacja);
  else
    MyMsgbox(napis(15) + QStringLiteral("\r\n") + blad, napis(16), MsgOK, IkonaOstrzezenie);
}
