#include "questions/frmUstawieniaInternetowe.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "questions/logowanie.h"
#include "store/MsgBoxModule.h"
#include "store/napis.h"

namespace {
QLineEdit* pole(const QString& nazwa, QWidget* rodzic) {
  auto* p = new QLineEdit(rodzic);
  p->setObjectName(nazwa);
  p->setMaxLength(255);
  return p;
}

QLabel* etykieta(const QString& tekst, QWidget* pole, QWidget* rodzic) {
  auto* l = new QLabel(tekst, rodzic);
  l->setBuddy(pole);
  return l;
}
}  // namespace

frmUstawieniaInternetowe::frmUstawieniaInternetowe(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmUstawieniaInternetowe"));
  setWindowTitle(Napis(QStringLiteral("frmUstawieniaInternetowe1")));

  auto* fraLogowanie = new QGroupBox(Napis(QStringLiteral("frmUstawieniaInternetowe2")), this);
  fraLogowanie->setObjectName(QStringLiteral("fraLogowanie"));
  txtUserId_ = pole(QStringLiteral("txtUserId"), fraLogowanie);
  txtHasloSerwisu_ = pole(QStringLiteral("txtHasloSerwisu"), fraLogowanie);
  txtHasloSerwisu_->setEchoMode(QLineEdit::Password);
  chkPokazHaslo_ = new QCheckBox(Napis(QStringLiteral("frmUstawieniaInternetowe15")), fraLogowanie);
  chkPokazHaslo_->setObjectName(QStringLiteral("chkPokazHaslo"));
  connect(chkPokazHaslo_, &QCheckBox::toggled, this, [this](bool widac) {
    txtHasloSerwisu_->setEchoMode(widac ? QLineEdit::Normal : QLineEdit::Password);
  });
  auto* ukladLogowania = new QFormLayout(fraLogowanie);
  ukladLogowania->addRow(
      etykieta(Napis(QStringLiteral("frmUstawieniaInternetowe3")), txtUserId_, fraLogowanie),
      txtUserId_);
  ukladLogowania->addRow(
      etykieta(Napis(QStringLiteral("frmUstawieniaInternetowe4")), txtHasloSerwisu_, fraLogowanie),
      txtHasloSerwisu_);
  ukladLogowania->addRow(QString(), chkPokazHaslo_);

  auto* fraSerwis = new QGroupBox(Napis(QStringLiteral("frmUstawieniaInternetowe16")), this);
  fraSerwis->setObjectName(QStringLiteral("fraSerwis"));
  txtAdresSerwisu_ = pole(QStringLiteral("txtAdresSerwisu"), fraSerwis);
  txtAdresSerwisu_->setPlaceholderText(DomyslnyAdresSerwisu());
  auto* lblPodpowiedz = new QLabel(Napis(QStringLiteral("frmUstawieniaInternetowe10")) +
                                       QLatin1Char('\n') + DomyslnyAdresSerwisu(),
                                   fraSerwis);
  lblPodpowiedz->setWordWrap(true);
  lblOstrzezenie_ = new QLabel(Napis(QStringLiteral("frmUstawieniaInternetowe17")), fraSerwis);
  lblOstrzezenie_->setObjectName(QStringLiteral("lblOstrzezenie"));
  lblOstrzezenie_->setWordWrap(true);
  lblOstrzezenie_->setStyleSheet(QStringLiteral("color: #a03000;"));
  connect(txtAdresSerwisu_, &QLineEdit::textChanged, this,
          &frmUstawieniaInternetowe::pokazOstrzezenie);
  auto* ukladSerwisu = new QFormLayout(fraSerwis);
  ukladSerwisu->addRow(
      etykieta(Napis(QStringLiteral("frmUstawieniaInternetowe9")), txtAdresSerwisu_, fraSerwis),
      txtAdresSerwisu_);
  ukladSerwisu->addRow(QString(), lblPodpowiedz);
  ukladSerwisu->addRow(QString(), lblOstrzezenie_);

  auto* cmdOK = new QPushButton(Napis(QStringLiteral("frmUstawieniaInternetowe7")), this);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setDefault(true);
  auto* cmdAnuluj = new QPushButton(Napis(QStringLiteral("frmUstawieniaInternetowe8")), this);
  cmdAnuluj->setObjectName(QStringLiteral("cmdAnuluj"));
  connect(cmdOK, &QPushButton::clicked, this, &frmUstawieniaInternetowe::cmdOK_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);
  auto* przyciski = new QHBoxLayout;
  przyciski->addStretch();
  przyciski->addWidget(cmdOK);
  przyciski->addWidget(cmdAnuluj);

  auto* uklad = new QVBoxLayout(this);
  uklad->addWidget(fraLogowanie);
  uklad->addWidget(fraSerwis);
  uklad->addStretch();
  uklad->addLayout(przyciski);

  const LogowanieSerwisu l = CzytajLogowanie();
  txtUserId_->setText(l.userid);
  txtHasloSerwisu_->setText(l.hasloserwisu);
  txtAdresSerwisu_->setText(l.adres);
  pokazOstrzezenie();
  resize(480, sizeHint().height());
  txtUserId_->setFocus();
}

// A plain http:// address carries the password unencrypted: the user should know.
void frmUstawieniaInternetowe::pokazOstrzezenie() {
  const QString a = txtAdresSerwisu_->text().trimmed();
  lblOstrzezenie_->setVisible(a.startsWith(QLatin1String("http://"), Qt::CaseInsensitive));
}

void frmUstawieniaInternetowe::cmdOK_Click() {
  LogowanieSerwisu l;
  l.userid = txtUserId_->text();
  l.hasloserwisu = txtHasloSerwisu_->text();
  l.adres = txtAdresSerwisu_->text().trimmed();
  if (l.userid.isEmpty()) {
    MyMsgbox(Napis(QStringLiteral("frmUstawieniaInternetowe5")),
             Napis(QStringLiteral("frmUstawieniaInternetowe6")), MsgOK, IkonaOstrzezenie);
    txtUserId_->setFocus();
    return;
  }
  if (!l.adres.isEmpty() && !PoprawnyAdresSerwisu(l.adres)) {
    MyMsgbox(Napis(QStringLiteral("frmUstawieniaInternetowe11")),
             Napis(QStringLiteral("frmUstawieniaInternetowe12")), MsgOK, IkonaOstrzezenie);
    txtAdresSerwisu_->setFocus();
    return;
  }
  QString blad;
  if (!ZapiszLogowanie(l, &blad)) {
    MyMsgbox(Napis(QStringLiteral("frmUstawieniaInternetowe13")) + QStringLiteral("\r\n") + blad,
             Napis(QStringLiteral("frmUstawieniaInternetowe14")), MsgOK, IkonaOstrzezenie);
    return;
  }
  accept();
}
