#include "questions/frmZadajPytanieEdycja.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "questions/pytania.h"
#include "store/napis.h"

frmZadajPytanieEdycja::frmZadajPytanieEdycja(QWidget* parent) : QDialog(parent), id_(pubPytanie) {
  setObjectName(QStringLiteral("frmZadajPytanieEdycja"));
  setWindowTitle(id_ != 0 ? Napis(QStringLiteral("frmZadajPytanieEdycja2"))
                          : Napis(QStringLiteral("frmZadajPytanieEdycja1")));

  txtPytanie_ = new QPlainTextEdit(this);
  txtPytanie_->setObjectName(QStringLiteral("txtPytanie"));
  txtPytanie_->setTabChangesFocus(true);
  txtPytanie_->installEventFilter(this);
  auto* lblPytanie = new QLabel(Napis(QStringLiteral("frmZadajPytanieEdycja5")), this);
  lblPytanie->setBuddy(txtPytanie_);
  lblZnaki_ = new QLabel(this);
  lblZnaki_->setObjectName(QStringLiteral("lblZnaki"));
  connect(txtPytanie_, &QPlainTextEdit::textChanged, this, &frmZadajPytanieEdycja::policzZnaki);

  auto* cmdOK = new QPushButton(Napis(QStringLiteral("frmZadajPytanieEdycja6")), this);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  auto* cmdAnuluj = new QPushButton(Napis(QStringLiteral("frmZadajPytanieEdycja7")), this);
  cmdAnuluj->setObjectName(QStringLiteral("cmdAnuluj"));
  cmdOK->setAutoDefault(false);
  cmdAnuluj->setAutoDefault(false);
  connect(cmdOK, &QPushButton::clicked, this, &frmZadajPytanieEdycja::cmdOK_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);

  auto* przyciski = new QHBoxLayout;
  przyciski->addWidget(lblZnaki_);
  przyciski->addStretch();
  przyciski->addWidget(cmdOK);
  przyciski->addWidget(cmdAnuluj);
  auto* uklad = new QVBoxLayout(this);
  uklad->addWidget(lblPytanie);
  uklad->addWidget(txtPytanie_, 1);
  uklad->addLayout(przyciski);

  if (id_ != 0) {
    QString t = CzytajPytanie(id_).pytanie;
    t.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    txtPytanie_->setPlainText(t);
    txtPytanie_->moveCursor(QTextCursor::End);
  }
  policzZnaki();
  resize(520, 320);
  txtPytanie_->setFocus();
}

// Enter starts a new line of the question; Ctrl+Enter saves it, as OK does.
bool frmZadajPytanieEdycja::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
  if (obiekt == txtPytanie_ && zdarzenie->type() == QEvent::KeyPress) {
    const auto* k = static_cast<QKeyEvent*>(zdarzenie);
    if ((k->key() == Qt::Key_Return || k->key() == Qt::Key_Enter) &&
        (k->modifiers() & Qt::ControlModifier)) {
      cmdOK_Click();
      return true;
    }
  }
  return QDialog::eventFilter(obiekt, zdarzenie);
}

void frmZadajPytanieEdycja::policzZnaki() {
  const int ile = int(txtPytanie_->toPlainText().size());
  lblZnaki_->setText(Napis(QStringLiteral("frmZadajPytanieEdycja11")) + QLatin1Char(' ') +
                     QString::number(ile) + QLatin1Char('/') + QString::number(NajdluzszePytanie));
}

void frmZadajPytanieEdycja::cmdOK_Click() {
  qint64 zapisany = 0;
  if (!ZapiszPytanie(id_, txtPytanie_->toPlainText(), &zapisany)) {
    txtPytanie_->setFocus();
    return;
  }
  pubPytanie = zapisany;
  accept();
}
