#include "setup/frmKreatorWitamy.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "setup/krokkreatora_gui.h"
#include "store/napis.h"

namespace {
QString napis(int i) { return Napis(QStringLiteral("frmKreatorWitamy%1").arg(i)); }

QLabel* etykieta(const QString& nazwa, const QString& tekst, QWidget* rodzic) {
  auto* l = new QLabel(tekst, rodzic);
  l->setObjectName(nazwa);
  l->setWordWrap(true);
  return l;
}
}  // namespace

frmKreatorWitamy::frmKreatorWitamy(QWidget* rodzic) : QDialog(rodzic) {
  setObjectName(QStringLiteral("frmKreatorWitamy"));
  setWindowTitle(napis(1));
  auto* lblNaglowek = etykieta(QStringLiteral("lblNaglowek"), napis(2), this);
  lblNaglowek->setProperty("Tag", QStringLiteral("e"));
  lblNaglowek->setMargin(8);
  QFont f = lblNaglowek->font();
  f.setBold(true);
  f.setPointSizeF(f.pointSizeF() * 1.3);
  lblNaglowek->setFont(f);

  auto* kroki = new QGridLayout;
  kroki->setColumnStretch(1, 1);
  kroki->setVerticalSpacing(10);
  for (int i = 0; i < 4; ++i) {
    auto* lblKrok = etykieta(QStringLiteral("lblKrok(%1)").arg(i), napis(4 + 2 * i), this);
    QFont b = lblKrok->font();
    b.setBold(true);
    lblKrok->setFont(b);
    lblKrok->setWordWrap(false);
    kroki->addWidget(lblKrok, i, 0, Qt::AlignTop);
    kroki->addWidget(etykieta(QStringLiteral("lblOpisKroku(%1)").arg(i), napis(5 + 2 * i), this),
                     i, 1);
  }
  auto* lblOstrzezenie = etykieta(QStringLiteral("lblOstrzezenie"), napis(12), this);
  lblOstrzezenie->setFrameShape(QFrame::StyledPanel);
  lblOstrzezenie->setMargin(6);

  auto* cmdDalej = PrzyciskKreatora(QStringLiteral("cmdDalej"), Napis(QStringLiteral("frmKreator2")), this);
  cmdDalej->setDefault(true);
  connect(cmdDalej, &QPushButton::clicked, this, &QDialog::accept);
  auto* przyciski = new QHBoxLayout;
  przyciski->addStretch();
  przyciski->addWidget(cmdDalej);

  auto* uklad = new QVBoxLayout(this);
  uklad->addWidget(lblNaglowek);
  uklad->addWidget(etykieta(QStringLiteral("lblWitamy"), napis(3), this));
  uklad->addSpacing(6);
  uklad->addLayout(kroki);
  uklad->addSpacing(6);
  uklad->addWidget(lblOstrzezenie);
  uklad->addStretch();
  uklad->addLayout(przyciski);
  resize(620, heightForWidth(620) > 0 ? heightForWidth(620) : sizeHint().height());
  cmdDalej->setFocus();
}
