#include "setup/frmKreatorKonta.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"
#include "ui/nawigacja_gui.h"

namespace {
QString napis(int i) { return Napis(QStringLiteral("frmKreatorKonta%1").arg(i)); }
}  // namespace

frmKreatorKonta::frmKreatorKonta(QWidget* rodzic)
    : KrokKreatora(QStringLiteral("frmKreatorKonta"), 2, QStringLiteral("frmKreatorKontrahenci"),
                   rodzic) {
  auto* lblOpis = new QLabel(napis(3), this);
  lblOpis->setWordWrap(true);
  Tresc()->addWidget(lblOpis);

  auto* fraDodaj = new QGroupBox(napis(4), this);
  fraDodaj->setObjectName(QStringLiteral("fraDodaj"));
  auto* ukladDodaj = new QVBoxLayout(fraDodaj);
  for (int i = 0; i < 6; ++i) {
    auto* cmd = PrzyciskKreatora(QStringLiteral("cmdDodajKonto(%1)").arg(i), napis(10 + i), fraDodaj);
    ukladDodaj->addWidget(cmd);
    connect(cmd, &QPushButton::clicked, this, [this, i] {
      sesja.pubKonto = KontoRekord{};
      sesja.pubKonto.rodzaj = i + 1;
      Nawigacja::Pokaz(QStringLiteral("frmEdycjaKonta"), this);
      Odswiez();
    });
  }
  ukladDodaj->addStretch();

  tvwKonta_ = new QTreeWidget(this);
  tvwKonta_->setObjectName(QStringLiteral("tvwKonta"));
  tvwKonta_->setHeaderHidden(true);
  auto* srodek = new QHBoxLayout;
  srodek->addWidget(fraDodaj, 2);
  srodek->addWidget(tvwKonta_, 3);
  Tresc()->addLayout(srodek, 1);
  Odswiez();
}

void frmKreatorKonta::Odswiez() {
  tvwKonta_->clear();
  auto* korzen = new QTreeWidgetItem(tvwKonta_, {napis(5)});
  korzen->setData(0, Qt::UserRole, QStringLiteral("Root"));
  QTreeWidgetItem* rodzaje[7] = {};
  for (int r = 1; r <= 6; ++r) {
    rodzaje[r] = new QTreeWidgetItem(korzen, {napis(19 + r)});
    rodzaje[r]->setData(0, Qt::UserRole, QStringLiteral("r%1").arg(r));
  }
  QTreeWidgetItem* ostatni = korzen;
  if (OtworzBaze()) {
    Rekordy rs =
        pubBaza().Czytaj(QStringLiteral("SELECT id,nazwa,rodzaj FROM konta ORDER BY rodzaj,id"));
    for (; !rs.Eof(); rs.MoveNext()) {
      const int r = int(PoleRekordu(rs, QStringLiteral("rodzaj")));
      auto* w = new QTreeWidgetItem(rodzaje[r >= 1 && r <= 6 ? r : 6],
                                    {rs.Tekst(QStringLiteral("nazwa")).trimmed()});
      w->setData(0, Qt::UserRole, QStringLiteral("q%1").arg(rs.Tekst(QStringLiteral("id"))));
      ostatni = w;
    }
  }
  tvwKonta_->expandAll();
  tvwKonta_->setCurrentItem(ostatni);
  tvwKonta_->scrollToItem(ostatni);
}
