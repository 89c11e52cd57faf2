#include "setup/frmKreatorKontrahenci.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"
#include "ui/nawigacja_gui.h"
#include "ui/pasujliste_gui.h"

namespace {
QString napis(int i) { return Napis(QStringLiteral("frmKreatorKontrahenci%1").arg(i)); }
}  // namespace

frmKreatorKontrahenci::frmKreatorKontrahenci(QWidget* rodzic)
    : KrokKreatora(QStringLiteral("frmKreatorKontrahenci"), 3, QStringLiteral("frmKreatorKolory"),
                   rodzic) {
  auto* lblOpis = new QLabel(napis(3), this);
  lblOpis->setWordWrap(true);
  Tresc()->addWidget(lblOpis);
  lvwKontrahenci_ = new QTreeWidget(this);
  lvwKontrahenci_->setObjectName(QStringLiteral("lvwKontrahenci"));
  lvwKontrahenci_->setRootIsDecorated(false);
  lvwKontrahenci_->setHeaderLabels({napis(4), napis(5)});
  lvwKontrahenci_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  Tresc()->addWidget(lvwKontrahenci_, 1);
  auto* cmdDodaj = PrzyciskKreatora(QStringLiteral("cmdDodajKontrahenta"), napis(6), this);
  connect(cmdDodaj, &QPushButton::clicked, this, [this] {
    sesja.pubKontrahent = KontrahentRekord{};
    Nawigacja::Pokaz(QStringLiteral("frmEdycjaKontrahenta"), this);
    Odswiez();
  });
  auto* wiersz = new QHBoxLayout;
  wiersz->addWidget(cmdDodaj);
  wiersz->addStretch();
  Tresc()->addLayout(wiersz);
  Odswiez();
}

void frmKreatorKontrahenci::Odswiez() {
  lvwKontrahenci_->clear();
  if (OtworzBaze()) {
    Rekordy rs = pubBaza().Czytaj(
        QStringLiteral("SELECT id,skrocona,opis FROM kontrahent ORDER BY skrocona"));
    for (; !rs.Eof(); rs.MoveNext()) {
      auto* w = new QTreeWidgetItem(lvwKontrahenci_, {rs.Tekst(QStringLiteral("skrocona")).trimmed(),
                                                      rs.Tekst(QStringLiteral("opis")).trimmed()});
      w->setData(0, Qt::UserRole, QStringLiteral("a%1").arg(rs.Tekst(QStringLiteral("id"))));
    }
  }
  PasujListe(lvwKontrahenci_, sesja.pubUstawienia.listajeden, sesja.pubUstawienia.listadwa);
}
