#include "imports/frmPrzywrocKopie.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSpinBox>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "store/MsgBoxModule.h"
#include "store/napis.h"
#include "store/session.h"

namespace {
QString powod(PowodKopii p) {
  switch (p) {
    case PowodKopii::Aktualizacja: return Napis(QStringLiteral("frmPrzywrocKopie10"));
    case PowodKopii::Start: return Napis(QStringLiteral("frmPrzywrocKopie11"));
    case PowodKopii::Koniec: return Napis(QStringLiteral("frmPrzywrocKopie12"));
    case PowodKopii::Przywracanie: return Napis(QStringLiteral("frmPrzywrocKopie13"));
    case PowodKopii::Reczna: break;
  }
  return Napis(QStringLiteral("frmPrzywrocKopie14"));
}

QLocale jezyk() { return QLocale(sesja.pubJezyk == 1 ? QLocale::Polish : QLocale::English); }
}  // namespace

frmPrzywrocKopie::frmPrzywrocKopie(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmPrzywrocKopie"));
  setWindowTitle(Napis(QStringLiteral("frmPrzywrocKopie1")));
  auto* lblOpis = new QLabel(Napis(QStringLiteral("frmPrzywrocKopie2")), this);
  lblOpis->setObjectName(QStringLiteral("lblOpis"));
  lblOpis->setWordWrap(true);
  lvwKopie_ = new QTreeWidget(this);
  lvwKopie_->setObjectName(QStringLiteral("lvwKopie"));
  lvwKopie_->setRootIsDecorated(false);
  lvwKopie_->setHeaderLabels({Napis(QStringLiteral("frmPrzywrocKopie3")),
                              Napis(QStringLiteral("frmPrzywrocKopie4")),
                              Napis(QStringLiteral("frmPrzywrocKopie5"))});
  lvwKopie_->header()->setStretchLastSection(true);
  lblBrak_ = new QLabel(Napis(QStringLiteral("frmPrzywrocKopie6")), this);
  lblBrak_->setObjectName(QStringLiteral("lblBrak"));
  auto* lblLiczba = new QLabel(Napis(QStringLiteral("frmPrzywrocKopie7")), this);
  spnLiczbaKopii_ = new QSpinBox(this);
  spnLiczbaKopii_->setObjectName(QStringLiteral("spnLiczbaKopii"));
  spnLiczbaKopii_->setRange(1, 999);
  spnLiczbaKopii_->setValue(LiczbaKopiiDoZachowania());
  lblLiczba->setBuddy(spnLiczbaKopii_);

  cmdPrzywroc_ = new QPushButton(Napis(QStringLiteral("frmPrzywrocKopie8")), this);
  cmdPrzywroc_->setObjectName(QStringLiteral("cmdPrzywroc"));
  cmdPrzywroc_->setDefault(true);
  auto* cmdZrobKopie = new QPushButton(Napis(QStringLiteral("frmPrzywrocKopie15")), this);
  cmdZrobKopie->setObjectName(QStringLiteral("cmdZrobKopie"));
  auto* cmdZamknij = new QPushButton(Napis(QStringLiteral("frmPrzywrocKopie9")), this);
  cmdZamknij->setObjectName(QStringLiteral("cmdZamknij"));

  auto* liczba = new QHBoxLayout;
  liczba->addWidget(lblLiczba);
  liczba->addWidget(spnLiczbaKopii_);
  liczba->addStretch();
  auto* przyciski = new QHBoxLayout;
  przyciski->addWidget(cmdZrobKopie);
  przyciski->addStretch();
  przyciski->addWidget(cmdPrzywroc_);
  przyciski->addWidget(cmdZamknij);
  auto* uklad = new QVBoxLayout(this);
  uklad->addWidget(lblOpis);
  uklad->addWidget(lvwKopie_, 1);
  uklad->addWidget(lblBrak_);
  uklad->addLayout(liczba);
  uklad->addLayout(przyciski);

  connect(cmdPrzywroc_, &QPushButton::clicked, this, &frmPrzywrocKopie::cmdPrzywroc_Click);
  connect(cmdZrobKopie, &QPushButton::clicked, this, &frmPrzywrocKopie::cmdZrobKopie_Click);
  connect(cmdZamknij, &QPushButton::clicked, this, &QDialog::reject);
  connect(lvwKopie_, &QTreeWidget::itemDoubleClicked, this, &frmPrzywrocKopie::cmdPrzywroc_Click);
  connect(spnLiczbaKopii_, &QSpinBox::valueChanged, this, &frmPrzywrocKopie::spnLiczbaKopii_Change);
  resize(560, 380);
  wypelnij();
}

void frmPrzywrocKopie::wypelnij() {
  QApplication::setOverrideCursor(Qt::WaitCursor);
  CzekajNaKopie();
  kopie_ = KopieDoPrzywrocenia();
  QApplication::restoreOverrideCursor();
  lvwKopie_->clear();
  const QLocale l = jezyk();
  for (const Kopia& k : kopie_) {
    auto* w = new QTreeWidgetItem(lvwKopie_);
    w->setText(0, l.toString(k.kiedy, QStringLiteral("yyyy-MM-dd HH:mm:ss")));
    w->setText(1, l.formattedDataSize(k.rozmiar, 1, QLocale::DataSizeTraditionalFormat));
    w->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    w->setText(2, powod(k.powod));
  }
  lvwKopie_->resizeColumnToContents(0);
  lvwKopie_->setColumnWidth(1, lvwKopie_->columnWidth(1) + 30);
  if (!kopie_.empty()) lvwKopie_->setCurrentItem(lvwKopie_->topLevelItem(0));
  lblBrak_->setVisible(kopie_.empty());
  cmdPrzywroc_->setEnabled(!kopie_.empty());
}

void frmPrzywrocKopie::cmdPrzywroc_Click() {
  const int i = lvwKopie_->indexOfTopLevelItem(lvwKopie_->currentItem());
  if (i < 0 || size_t(i) >= kopie_.size()) return;
  const QString kiedy = lvwKopie_->currentItem()->text(0);
  if (MyMsgbox(Napis(QStringLiteral("frmPrzywrocKopie16")).arg(kiedy) + QStringLiteral("\r\n") +
                   Napis(QStringLiteral("frmPrzywrocKopie20")),
               Napis(QStringLiteral("frmPrzywrocKopie1")), MsgTakNie, IkonaPytanie) != WynikTak)
    return;
  QString blad;
  QApplication::setOverrideCursor(Qt::WaitCursor);
  const bool ok = PrzywrocKopie(kopie_[size_t(i)].plik, &blad);
  QApplication::restoreOverrideCursor();
  if (!ok) {
    MyMsgbox(Napis(QStringLiteral("frmPrzywrocKopie17")) + QStringLiteral("\r\n") + blad,
             Napis(QStringLiteral("frmPrzywrocKopie1")), MsgOK, IkonaOstrzezenie);
    wypelnij();
    return;
  }
  MyMsgbox(Napis(QStringLiteral("frmPrzywrocKopie18")), Napis(QStringLiteral("frmPrzywrocKopie1")),
           MsgOK, IkonaInformacja);
  accept();
}

void frmPrzywrocKopie::cmdZrobKopie_Click() {
  QString blad;
  QApplication::setOverrideCursor(Qt::WaitCursor);
  const bool ok = ZrobKopie(PowodKopii::Reczna, &blad);
  QApplication::restoreOverrideCursor();
  if (!ok)
    MyMsgbox(Napis(QStringLiteral("frmPrzywrocKopie19")) + QStringLiteral("\r\n") + blad,
             Napis(QStringLiteral("frmPrzywrocKopie1")), MsgOK, IkonaOstrzezenie);
  wypelnij();
}

void frmPrzywrocKopie::spnLiczbaKopii_Change(int liczba) { UstawLiczbeKopii(liczba); }
