#include "setup/frmUstawienia.h"

#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "setup/ustawienia.h"
#include "store/MsgBoxModule.h"
#include "store/napis.h"
#include "ui/nawigacja_gui.h"

namespace {
QString napis(int i) { return Napis(QStringLiteral("frmUstawienia%1").arg(i)); }
constexpr int kMaksHasla = 10;

QLabel* etykieta(const QString& tekst, QWidget* pole, QWidget* rodzic) {
  auto* l = new QLabel(tekst, rodzic);
  l->setBuddy(pole);
  return l;
}
}  // namespace

QLineEdit* frmUstawienia::pole(const QString& nazwa) {
  auto* p = new QLineEdit(this);
  p->setObjectName(nazwa);
  p->setMaxLength(255);
  return p;
}

frmUstawienia::frmUstawienia(QWidget* rodzic) : QDialog(rodzic) {
  setObjectName(QStringLiteral("frmUstawienia"));
  setWindowTitle(napis(1));
  txtImie_ = pole(QStringLiteral("txtImie"));
  txtNazwisko_ = pole(QStringLiteral("txtNazwisko"));
  txtMiasto_ = pole(QStringLiteral("txtMiasto"));
  txtUlica_ = pole(QStringLiteral("txtUlica"));
  txtLk_ = pole(QStringLiteral("txtLk"));
  txtLk_->setMaxLength(2);
  txtBank_ = pole(QStringLiteral("txtBank"));
  txtKonto_ = pole(QStringLiteral("txtKonto"));
  txtHaslo_ = pole(QStringLiteral("txtHaslo"));
  txtHaslo2_ = pole(QStringLiteral("txtHaslo2"));
  for (QLineEdit* h : {txtHaslo_, txtHaslo2_}) h->setEchoMode(QLineEdit::Password);

  auto* fraDane = new QGroupBox(napis(2), this);
  auto* ukladDanych = new QFormLayout(fraDane);
  ukladDanych->addRow(etykieta(napis(3), txtImie_, fraDane), txtImie_);
  ukladDanych->addRow(etykieta(napis(4), txtNazwisko_, fraDane), txtNazwisko_);
  ukladDanych->addRow(etykieta(napis(5), txtUlica_, fraDane), txtUlica_);
  ukladDanych->addRow(etykieta(napis(6), txtMiasto_, fraDane), txtMiasto_);

  auto* fraBank = new QGroupBox(napis(7), this);
  auto* ukladBanku = new QFormLayout(fraBank);
  ukladBanku->addRow(etykieta(napis(8), txtBank_, fraBank), txtBank_);
  auto* wierszKonta = new QHBoxLayout;
  txtLk_->setFixedWidth(txtLk_->fontMetrics().horizontalAdvance(QStringLiteral("000")) + 16);
  wierszKonta->addWidget(txtLk_);
  wierszKonta->addWidget(txtKonto_, 1);
  auto* lblKonto = new QLabel(napis(9), fraBank);
  lblKonto->setBuddy(txtLk_);
  ukladBanku->addRow(lblKonto, wierszKonta);

  auto* fraHaslo = new QGroupBox(napis(10), this);
  auto* ukladHasla = new QFormLayout(fraHaslo);
  ukladHasla->addRow(etykieta(napis(11), txtHaslo_, fraHaslo), txtHaslo_);
  ukladHasla->addRow(etykieta(napis(12), txtHaslo2_, fraHaslo), txtHaslo2_);
  auto* lblUwagi = new QLabel(napis(13) + QLatin1Char('\n') + napis(14), fraHaslo);
  lblUwagi->setObjectName(QStringLiteral("lblUwagi"));
  lblUwagi->setWordWrap(true);
  ukladHasla->addRow(lblUwagi);

  auto* cmdOK = new QPushButton(napis(23), this);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setDefault(true);
  auto* cmdAnuluj = new QPushButton(napis(24), this);
  cmdAnuluj->setObjectName(QStringLiteral("cmdAnuluj"));
  auto* cmdPomoc = new QPushButton(napis(25), this);
  cmdPomoc->setObjectName(QStringLiteral("cmdPomoc"));
  cmdPomoc->setEnabled(Nawigacja::Dostepny(QStringLiteral("frmPomoc")));
  connect(cmdOK, &QPushButton::clicked, this, &frmUstawienia::cmdOK_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);
  connect(cmdPomoc, &QPushButton::clicked, this,
          [this] { Nawigacja::Pokaz(QStringLiteral("frmPomoc"), this); });
  auto* przyciski = new QHBoxLayout;
  przyciski->addWidget(cmdPomoc);
  przyciski->addStretch();
  przyciski->addWidget(cmdOK);
  przyciski->addWidget(cmdAnuluj);

  auto* uklad = new QVBoxLayout(this);
  uklad->addWidget(fraDane);
  uklad->addWidget(fraBank);
  uklad->addWidget(fraHaslo);
  uklad->addStretch();
  uklad->addLayout(przyciski);

  const DaneUzytkownika d = CzytajDaneUzytkownika();
  txtImie_->setText(d.imie);
  txtNazwisko_->setText(d.nazwisko);
  txtMiasto_->setText(d.miasto);
  txtUlica_->setText(d.ulica);
  txtLk_->setText(d.lk);
  txtBank_->setText(d.bank);
  txtKonto_->setText(d.konto);
  // Only a hash of the password is kept: a set password shows as a row of stars that means
  // "leave it as it is" until the user types over it.
  if (JestHaslo()) bezZmian_ = QString(kMaksHasla, QChar(0x2022));
  txtHaslo_->setText(bezZmian_);
  txtHaslo2_->setText(bezZmian_);
  connect(txtHaslo_, &QLineEdit::textEdited, this, &frmUstawienia::txtHaslo_Change);
  for (QLineEdit* h : {txtHaslo_, txtHaslo2_}) h->installEventFilter(this);
  connect(txtHaslo2_, &QLineEdit::textEdited, this, [this] {
    if (txtHaslo_->text() == bezZmian_ && !bezZmian_.isEmpty()) txtHaslo_->clear();
  });
  resize(520, sizeHint().height());
  txtImie_->setFocus();
}

// A password field that gets the focus has its content selected, so that typing replaces it.
bool frmUstawienia::eventFilter(QObject* o, QEvent* e) {
  if (e->type() == QEvent::FocusIn)
    if (auto* h = qobject_cast<QLineEdit*>(o)) QTimer::singleShot(0, h, &QLineEdit::selectAll);
  return QDialog::eventFilter(o, e);
}

void frmUstawienia::txtHaslo_Change() {
  // Typing over the stars starts a new password in both fields.
  if (!bezZmian_.isEmpty() && txtHaslo2_->text() == bezZmian_) txtHaslo2_->clear();
  if (txtHaslo_->text().size() > kMaksHasla) {
    MyMsgbox(napis(21), napis(22), MsgOK, IkonaOstrzezenie);
    txtHaslo_->setText(txtHaslo_->text().left(kMaksHasla));
  }
}

void frmUstawienia::cmdOK_Click() {
  const QString h1 = txtHaslo_->text(), h2 = txtHaslo2_->text();
  if (const int k = KontrolaHasel(h1, h2)) {
    MyMsgbox(napis(k), napis(k + 1), MsgOK, IkonaOstrzezenie);
    (k == 15 ? txtHaslo_ : txtHaslo2_)->setFocus();
    return;
  }
  DaneUzytkownika d;
  d.imie = txtImie_->text();
  d.nazwisko = txtNazwisko_->text();
  d.miasto = txtMiasto_->text();
  d.ulica = txtUlica_->text();
  d.lk = txtLk_->text();
  d.bank = txtBank_->text();
  d.konto = txtKonto_->text();
  const bool zmienHaslo = bezZmian_.isEmpty() ? !h1.isEmpty() : h1 != bezZmian_;
  QString blad;
  if (!ZapiszUstawienia(d, zmienHaslo, h1, &blad)) {
    MyMsgbox(napis(26) + QStringLiteral("\r\n") + blad, napis(27), MsgOK, IkonaOstrzezenie);
    return;
  }
  accept();
}
