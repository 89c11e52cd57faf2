#include "setup/frmKreatorKategorie.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHash>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "setup/kreator.h"
#include "store/napis.h"
#include "store/session.h"

namespace {
QString napis(int i) { return Napis(QStringLiteral("frmKreatorKategorie%1").arg(i)); }
}  // namespace

frmKreatorKategorie::frmKreatorKategorie(QWidget* rodzic)
    : KrokKreatora(QStringLiteral("frmKreatorKategorie"), 1, QStringLiteral("frmKreatorKonta"),
                   rodzic) {
  auto* fraTyp = new QGroupBox(napis(3), this);
  fraTyp->setObjectName(QStringLiteral("fraTyp"));
  auto* ukladTypu = new QVBoxLayout(fraTyp);
  // The simplest set heads the list, the most specific ones follow.
  for (int i = LiczbaZestawow - 1; i >= 0; --i) {
    auto* opt = new QRadioButton(napis(10 + i), fraTyp);
    opt->setObjectName(QStringLiteral("optTyp1(%1)").arg(i));
    opt->setToolTip(napis(20 + i));
    optTyp1_[i] = opt;
    ukladTypu->addWidget(opt);
    connect(opt, &QRadioButton::toggled, this, [this, i](bool tak) {
      if (tak) Wybierz(i + 1);
    });
  }
  ukladTypu->addStretch();
  auto* lblUwaga = new QLabel(napis(4), fraTyp);
  lblUwaga->setWordWrap(true);
  ukladTypu->addWidget(lblUwaga);

  tvwKategorie_ = new QTreeWidget(this);
  tvwKategorie_->setObjectName(QStringLiteral("tvwKategorie"));
  tvwKategorie_->setHeaderHidden(true);
  auto* cmdRozwin = PrzyciskKreatora(QStringLiteral("cmdRozwin"), napis(5), this);
  auto* cmdZwin = PrzyciskKreatora(QStringLiteral("cmdZwin"), napis(6), this);
  connect(cmdRozwin, &QPushButton::clicked, tvwKategorie_, &QTreeWidget::expandAll);
  connect(cmdZwin, &QPushButton::clicked, this, [this] {
    tvwKategorie_->collapseAll();
    for (int i = 0; i < tvwKategorie_->topLevelItemCount(); ++i)
      tvwKategorie_->topLevelItem(i)->setExpanded(true);
  });
  auto* przyciskiDrzewa = new QHBoxLayout;
  przyciskiDrzewa->addStretch();
  przyciskiDrzewa->addWidget(cmdRozwin);
  przyciskiDrzewa->addWidget(cmdZwin);
  auto* prawa = new QVBoxLayout;
  prawa->addWidget(tvwKategorie_, 1);
  prawa->addLayout(przyciskiDrzewa);

  auto* srodek = new QHBoxLayout;
  srodek->addWidget(fraTyp, 2);
  srodek->addLayout(prawa, 3);
  Tresc()->addLayout(srodek);

  // Back on this step after "<<" from a later one: the choice made stays.
  if (sesja.pubTypKreatora >= 1 && sesja.pubTypKreatora <= LiczbaZestawow)
    optTyp1_[sesja.pubTypKreatora - 1]->setChecked(true);
  else
    Wybierz(0);
}

void frmKreatorKategorie::Wybierz(int typ) {
  sesja.pubTypKreatora = typ;
  tvwKategorie_->clear();
  for (const auto& [tekst, zestaw] :
       {std::pair{napis(7), typ}, std::pair{napis(8), typ + PrzesuniecieZestawuPrzychodow}}) {
    auto* korzen = new QTreeWidgetItem(tvwKategorie_, {tekst});
    korzen->setData(0, Qt::UserRole, QStringLiteral("Root"));
    if (typ == 0) continue;
    QHash<QString, QTreeWidgetItem*> wezly;
    for (const KategoriaZestawu& k : ZestawKategorii(zestaw)) {
      QTreeWidgetItem* rodzic = wezly.value(k.kategoria, korzen);
      auto* w = new QTreeWidgetItem(rodzic, {k.nazwa});
      w->setData(0, Qt::UserRole, k.identyfikator);
      wezly.insert(k.identyfikator, w);
    }
    korzen->setExpanded(true);
  }
  if (tvwKategorie_->topLevelItemCount() > 0)
    tvwKategorie_->setCurrentItem(tvwKategorie_->topLevelItem(0));
}
