#include "ui/przyciskifiltra_gui.h"

#include <QGridLayout>
#include <QPushButton>

#include "ui/frmZakresDat.h"
#include "store/filtr.h"
#include "store/session.h"

PrzyciskiFiltra::PrzyciskiFiltra(QWidget* parent, int kolumny) : QWidget(parent) {
  setObjectName(QStringLiteral("PrzyciskiFiltra"));
  auto* uklad = new QGridLayout(this);
  uklad->setContentsMargins(0, 0, 0, 0);
  uklad->setSpacing(3);
  if (kolumny < 1) kolumny = 1;
  for (int i = 0; i < 7; ++i) {
    auto* p = new QPushButton(this);
    p->setObjectName(QStringLiteral("cmdFiltr(%1)").arg(i));
    p->setCheckable(true);
    p->setAutoDefault(false);
    // In a narrow grid the range, the longest caption, takes a row of its own.
    if (i == 6 && kolumny < 7)
      uklad->addWidget(p, (i + kolumny - 1) / kolumny, 0, 1, kolumny);
    else
      uklad->addWidget(p, i / kolumny, i % kolumny);
    // A click always sets the kind, also on the button already pressed: it reloads the list.
    connect(p, &QPushButton::clicked, this, [this, i] { Nacisnij(i); });
    cmdFiltr_[i] = p;
  }
  cmdZakres_ = new QPushButton(this);  // the screen captions it from its own keys
  cmdZakres_->setObjectName(QStringLiteral("cmdZakres"));
  cmdZakres_->setAutoDefault(false);
  if (kolumny < 7)
    uklad->addWidget(cmdZakres_, (6 + kolumny - 1) / kolumny + 1, kolumny - 1);
  else
    uklad->addWidget(cmdZakres_, 0, 7);
  connect(cmdZakres_, &QPushButton::clicked, this, &PrzyciskiFiltra::cmdZakres_Click);
  Ustaw();
}

void PrzyciskiFiltra::Ustaw() {
  const int biezacy = sesja.pubFiltrCzasowy.rodzaj;
  for (int i = 0; i < 7; ++i) {
    cmdFiltr_[i]->setText(OpisOkresu(i));
    cmdFiltr_[i]->setToolTip(cmdFiltr_[i]->text());
    cmdFiltr_[i]->setChecked(i == biezacy);
    QFont f = cmdFiltr_[i]->font();
    f.setBold(i == biezacy);  // the pressed one must be seen at a glance
    cmdFiltr_[i]->setFont(f);
  }
}

void PrzyciskiFiltra::Nacisnij(int rodzaj) {
  if (rodzaj < 0 || rodzaj > 6) return;
  sesja.pubFiltrCzasowy.rodzaj = rodzaj;
  Ustaw();
  emit zmieniony();
}

void PrzyciskiFiltra::cmdZakres_Click() {
  frmZakresDat dialog(window());
  dialog.exec();
  Nacisnij(6);
}

void PrzyciskiFiltra::NacisnijBiezacy() { Nacisnij(sesja.pubFiltrCzasowy.rodzaj); }
