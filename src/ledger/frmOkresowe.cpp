#include "ledger/frmOkresowe.h"

#include <QFontMetrics>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSpinBox>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "ledger/edytorwpisu_gui.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"
#include "ui/nawigacja_gui.h"
#include "ui/pasujliste_gui.h"
#include "ui/przegladarka_gui.h"

namespace {
constexpr int RolaKlucza = Qt::UserRole;
}

frmOkresowe::frmOkresowe(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmOkresowe"));
  zbuduj();
  OdswiezListe();
  txtKlucz_->setFocus();
}

void frmOkresowe::zbuduj() {
  setWindowTitle(Napis(QStringLiteral("frmOkresowe1")));
  setWindowIcon(IkonaWpisu(3));
  auto* lblKlucz = new QLabel(Napis(QStringLiteral("frmOkresowe2")), this);
  txtKlucz_ = new QLineEdit(this);
  txtKlucz_->setObjectName(QStringLiteral("txtKlucz"));
  txtKlucz_->setToolTip(Napis(QStringLiteral("frmOkresowe3")));
  txtKlucz_->setClearButtonEnabled(true);
  lblKlucz->setBuddy(txtKlucz_);
  connect(txtKlucz_, &QLineEdit::textChanged, this, &frmOkresowe::OdswiezListe);

  auto* lblHoryzont = new QLabel(Napis(QStringLiteral("frmOkresowe17")), this);
  txtHoryzont_ = new QSpinBox(this);
  txtHoryzont_->setObjectName(QStringLiteral("txtHoryzont"));
  txtHoryzont_->setRange(1, 3660);
  txtHoryzont_->setValue(HoryzontOkresowych());
  txtHoryzont_->setToolTip(Napis(QStringLiteral("frmOkresowe18")));
  lblHoryzont->setBuddy(txtHoryzont_);
  connect(txtHoryzont_, &QSpinBox::editingFinished, this, &frmOkresowe::UstawHoryzont);

  lvw_ = new QTreeWidget(this);
  lvw_->setObjectName(QStringLiteral("lvwOkresowe"));
  lvw_->setRootIsDecorated(false);
  lvw_->setUniformRowHeights(true);
  lvw_->setAllColumnsShowFocus(true);
  QStringList naglowki;
  for (const QString& k : {QStringLiteral("frmOkresowe4"), QStringLiteral("frmOkresowe5"),
                           QStringLiteral("frmOkresowe6"), QStringLiteral("frmOkresowe7"),
                           QStringLiteral("frmOkresowe8"), QStringLiteral("frmOkresowe9"),
                           QStringLiteral("frmOkresowe10"), QStringLiteral("frmOkresowe11")})
    naglowki << Napis(k);
  lvw_->setHeaderLabels(naglowki);
  // The frequency and the period take the width of their longest text in the edition's language,
  // so that a closed period or "weekdays only" is never cut.
  const QFontMetrics fm(lvw_->font());
  int czestotliwosc = 0;
  for (int c = Codziennie; c <= CoRok; ++c)
    czestotliwosc = std::max(czestotliwosc, fm.horizontalAdvance(NazwaCzestotliwosci(c)));
  RegulaOkresowa wzor;
  wzor.od = QDate(2028, 12, 28);
  wzor.do_ = QDate(2029, 12, 28);
  const int okres = fm.horizontalAdvance(OpisOkresuReguly(wzor));
  const int szerokosci[] = {165, 70, 110, 150, 120, 95, czestotliwosc + 16, okres + 16};
  for (int i = 0; i < 8; ++i) lvw_->setColumnWidth(i, szerokosci[i]);
  lvw_->setMinimumHeight(280);
  lvw_->setContextMenuPolicy(Qt::CustomContextMenu);
  new KlawiszePrzegladarki(
      lvw_, [this] { cmdKasuj_Click(); }, [this] { cmdEdytuj_Click(); });
  connect(lvw_, &QTreeWidget::itemDoubleClicked, this, [this] { cmdEdytuj_Click(); });
  mnuOpcje_ = new QMenu(this);
  mnuOpcje_->setObjectName(QStringLiteral("mnuNiewidOkresoweOpcje"));
  mnuOpcje_->addAction(Napis(QStringLiteral("frmOkresowe30")), this, &frmOkresowe::cmdEdytuj_Click);
  mnuOpcje_->addAction(Napis(QStringLiteral("frmOkresowe31")), this, &frmOkresowe::cmdKasuj_Click);
  mnuOpcje_->addAction(Napis(QStringLiteral("frmOkresowe32")), this,
                       &frmOkresowe::cmdNowySzablon_Click);
  connect(lvw_, &QTreeWidget::customContextMenuRequested, this, [this](const QPoint& p) {
    if (QTreeWidgetItem* w = lvw_->itemAt(p)) lvw_->setCurrentItem(w);
    mnuOpcje_->popup(lvw_->viewport()->mapToGlobal(p));
  });

  auto* cmdEdytuj = PrzyciskPrzegladarki(QStringLiteral("cmdEdytuj"),
                                         Napis(QStringLiteral("frmOkresowe12")), this);
  auto* cmdNowy = PrzyciskPrzegladarki(QStringLiteral("cmdNowySzablon"),
                                       Napis(QStringLiteral("frmOkresowe13")), this);
  auto* cmdKasuj = PrzyciskPrzegladarki(QStringLiteral("cmdKasuj"),
                                        Napis(QStringLiteral("frmOkresowe14")), this);
  auto* cmdAnuluj = PrzyciskPrzegladarki(QStringLiteral("cmdAnuluj"),
                                         Napis(QStringLiteral("frmOkresowe15")), this);
  auto* cmdPomoc = PrzyciskPrzegladarki(QStringLiteral("cmdPomoc"),
                                        Napis(QStringLiteral("frmOkresowe16")), this);
  // The help file is not part of this build.
  cmdPomoc->setEnabled(false);
  cmdPomoc->setToolTip(Napis(QStringLiteral("frmOkresowe29")));
  connect(cmdEdytuj, &QPushButton::clicked, this, &frmOkresowe::cmdEdytuj_Click);
  connect(cmdNowy, &QPushButton::clicked, this, &frmOkresowe::cmdNowySzablon_Click);
  connect(cmdKasuj, &QPushButton::clicked, this, &frmOkresowe::cmdKasuj_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);

  auto* gora = new QHBoxLayout;
  gora->addWidget(lblKlucz);
  gora->addWidget(txtKlucz_, 1);
  gora->addSpacing(16);
  gora->addWidget(lblHoryzont);
  gora->addWidget(txtHoryzont_);
  auto* dol = new QHBoxLayout;
  dol->addWidget(cmdEdytuj);
  dol->addWidget(cmdNowy);
  dol->addWidget(cmdKasuj);
  dol->addStretch();
  dol->addWidget(cmdAnuluj);
  dol->addWidget(cmdPomoc);
  auto* uklad = new QVBoxLayout(this);
  uklad->addLayout(gora);
  uklad->addWidget(lvw_, 1);
  uklad->addLayout(dol);
  int razem = 0;
  for (int w : szerokosci) razem += w;
  resize(std::max(1060, razem + 40), 440);
}

void frmOkresowe::OdswiezListe() {
  const qint64 biezacy = biezacyId();
  lvw_->setUpdatesEnabled(false);
  lvw_->clear();
  for (const WierszOkresowej& w : ListaOkresowych(txtKlucz_->text())) {
    const RegulaOkresowa& r = w.regula;
    const bool przelew = r.rodzaj == 3;
    const QString rodzaj = r.rodzaj == 1   ? Napis(QStringLiteral("frmOkresowe24"))
                           : r.rodzaj == 2 ? Napis(QStringLiteral("frmOkresowe25"))
                                           : Napis(QStringLiteral("frmOkresowe26"));
    auto* l = new QTreeWidgetItem(
        lvw_, {r.opis, rodzaj, w.konto, przelew ? w.naKonto : w.kategoria, w.kontrahent,
               FormatKwoty(r.kwota), NazwaCzestotliwosci(r.czestotliwosc), OpisOkresuReguly(r)});
    l->setTextAlignment(5, Qt::AlignRight | Qt::AlignVCenter);
    l->setData(0, RolaKlucza, QStringLiteral("a") + QString::number(r.id));
  }
  PasujListe(lvw_, sesja.pubUstawienia.listajeden, sesja.pubUstawienia.listadwa);
  lvw_->setUpdatesEnabled(true);
  zaznacz(biezacy);
}

qint64 frmOkresowe::biezacyId() const {
  const QTreeWidgetItem* w = lvw_->currentItem();
  return w ? w->data(0, RolaKlucza).toString().mid(1).toLongLong() : 0;
}

void frmOkresowe::zaznacz(qint64 id) {
  QTreeWidgetItem* wybrany = lvw_->topLevelItemCount() > 0 ? lvw_->topLevelItem(0) : nullptr;
  for (int i = 0; i < lvw_->topLevelItemCount(); ++i)
    if (lvw_->topLevelItem(i)->data(0, RolaKlucza).toString().mid(1).toLongLong() == id)
      wybrany = lvw_->topLevelItem(i);
  if (!wybrany) return;
  lvw_->setCurrentItem(wybrany);
  lvw_->scrollToItem(wybrany);
}

void frmOkresowe::cmdEdytuj_Click() {
  const qint64 id = biezacyId();
  if (id == 0) return;
  sesja.pubOkresowaId = id;
  Nawigacja::Pokaz(QStringLiteral("frmEdycjaOkresowych"), this);
  OdswiezListe();
  zaznacz(id);
}

void frmOkresowe::cmdNowySzablon_Click() {
  sesja.pubOkresowaId = 0;
  Nawigacja::Pokaz(QStringLiteral("frmEdycjaOkresowych"), this);
  const qint64 nowa = sesja.pubOkresowaId;
  OdswiezListe();
  if (nowa) zaznacz(nowa);
}

void frmOkresowe::cmdKasuj_Click() {
  const QTreeWidgetItem* w = lvw_->currentItem();
  if (!w) return;
  if (UsunOkresowaZPytaniem(biezacyId(), w->text(0))) OdswiezListe();
}

void frmOkresowe::UstawHoryzont() {
  if (txtHoryzont_->value() == HoryzontOkresowych()) return;
  UstawHoryzontOkresowych(txtHoryzont_->value());
  GenerujOkresowe();
}
