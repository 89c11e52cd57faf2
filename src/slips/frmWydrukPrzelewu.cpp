#include "slips/frmWydrukPrzelewu.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPrinter>
#include <QPushButton>
#include <QVBoxLayout>

#include "slips/przelew.h"
#include "store/MsgBoxModule.h"
#include "store/napis.h"
#include "store/plik.h"
#include "store/session.h"
#include "ui/dialogi_gui.h"

namespace {
// The preview shows the whole sheet at a size that fits a laptop screen.
constexpr int kSzerokoscPodgladu = 1000;
}  // namespace

frmWydrukPrzelewu::frmWydrukPrzelewu(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmWydrukPrzelewu"));
  setWindowTitle(Napis(QStringLiteral("frmWydrukPrzelewu1")));

  pic_ = new QLabel(this);
  pic_->setObjectName(QStringLiteral("pic"));
  pic_->setFrameShape(QFrame::Box);
  pic_->setPixmap(QPixmap::fromImage(PodgladArkusza(sesja.pubPrzelew, kSzerokoscPodgladu)));
  pic_->setFixedSize(pic_->pixmap().size() + QSize(2, 2));

  auto* lblOpis = new QLabel(Napis(QStringLiteral("frmWydrukPrzelewu4")), this);
  lblOpis->setObjectName(QStringLiteral("lblOpis"));
  auto* cmdDrukuj = new QPushButton(Napis(QStringLiteral("frmWydrukPrzelewu2")), this);
  cmdDrukuj->setObjectName(QStringLiteral("cmdDrukuj"));
  cmdDrukuj->setDefault(true);
  auto* cmdPdf = new QPushButton(Napis(QStringLiteral("frmWydrukPrzelewu17")), this);
  cmdPdf->setObjectName(QStringLiteral("cmdPdf"));
  cmdPdf->setAutoDefault(false);
  auto* cmdOK = new QPushButton(Napis(QStringLiteral("frmWydrukPrzelewu3")), this);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setAutoDefault(false);
  auto* przyciski = new QHBoxLayout;
  przyciski->addWidget(lblOpis, 1);
  przyciski->addWidget(cmdDrukuj);
  przyciski->addWidget(cmdPdf);
  przyciski->addWidget(cmdOK);
  auto* uklad = new QVBoxLayout(this);
  uklad->addWidget(pic_, 0, Qt::AlignCenter);
  uklad->addLayout(przyciski);

  connect(cmdDrukuj, &QPushButton::clicked, this, &frmWydrukPrzelewu::cmdDrukuj_Click);
  connect(cmdPdf, &QPushButton::clicked, this, &frmWydrukPrzelewu::cmdPdf_Click);
  connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
  cmdDrukuj->setFocus();
}

void frmWydrukPrzelewu::cmdDrukuj_Click() {
  QPrinter drukarka(QPrinter::HighResolution);
  drukarka.setFullPage(true);
  drukarka.setPageOrientation(QPageLayout::Landscape);
  if (!Dialogi::Drukuj(this, drukarka, false, nullptr)) return;
  QString blad;
  if (!RysujArkusz(sesja.pubPrzelew, drukarka, &blad))
    MyMsgbox(Napis(QStringLiteral("frmWydrukPrzelewu18")) + QLatin1Char(' ') + blad,
             Napis(QStringLiteral("frmWydrukPrzelewu19")), MsgOK, IkonaOstrzezenie);
}

void frmWydrukPrzelewu::cmdPdf_Click() {
  const auto wybor = Dialogi::Zapisz(this, Napis(QStringLiteral("frmWydrukPrzelewu22")),
                                     Napis(QStringLiteral("frmWydrukPrzelewu23")),
                                     {Napis(QStringLiteral("drukowanie5"))});
  if (!wybor) return;
  QString sciezka = wybor->sciezka;
  if (!sciezka.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive))
    sciezka += QStringLiteral(".pdf");
  QString blad;
  const QByteArray pdf = PrzelewDoPdf(sesja.pubPrzelew, &blad);
  if (pdf.isEmpty() || !ZapiszPlik(sciezka, pdf, &blad))
    MyMsgbox(TekstBleduZapisu(sciezka, blad), Napis(QStringLiteral("frmWydrukPrzelewu21")), MsgOK,
             IkonaOstrzezenie);
}
