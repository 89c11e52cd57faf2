#include "ledger/listaszablonow_gui.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "ledger/edytorwpisu_gui.h"
#include "store/session.h"
#include "ui/nawigacja_gui.h"
#include "ui/pasujliste_gui.h"
#include "ui/przegladarka_gui.h"

namespace {
constexpr int RolaKlucza = Qt::UserRole;
}

ListaSzablonowGui::ListaSzablonowGui(bool wewnetrzny, const NapisyListySzablonow& napisy,
                                     QWidget* parent)
    : QDialog(parent), wewnetrzny_(wewnetrzny) {
  zbuduj(napisy);
  // A picker shows its take button; the maintenance list opens the editor instead.
  cmdWybierz_->setVisible(sesja.pubSzablonWybor == 1);
  sesja.pubSzablonId = 0;
  OdswiezListe();
  txtKlucz_->setFocus();
}

ListaSzablonowGui::~ListaSzablonowGui() = default;

void ListaSzablonowGui::zbuduj(const NapisyListySzablonow& n) {
  setWindowTitle(n.tytul);
  setWindowIcon(IkonaWpisu(wewnetrzny_ ? 3 : sesja.pubSzablonRodzaj));
  auto* lblTytul = new QLabel(n.podtytul, this);
  lblTytul->setObjectName(QStringLiteral("lblTytul"));
  QFont f = lblTytul->font();
  f.setBold(true);
  lblTytul->setFont(f);

  auto* lblKlucz = new QLabel(n.klucz, this);
  lblKlucz->setObjectName(QStringLiteral("lblKlucz"));
  txtKlucz_ = new QLineEdit(this);
  txtKlucz_->setObjectName(QStringLiteral("txtKlucz"));
  txtKlucz_->setToolTip(n.podpowiedzKlucza);
  txtKlucz_->setClearButtonEnabled(true);
  lblKlucz->setBuddy(txtKlucz_);
  connect(txtKlucz_, &QLineEdit::textChanged, this, &ListaSzablonowGui::OdswiezListe);

  lvw_ = new QTreeWidget(this);
  lvw_->setObjectName(QStringLiteral("lvwSzablonyTransakcji"));
  lvw_->setRootIsDecorated(false);
  lvw_->setUniformRowHeights(true);
  lvw_->setAllColumnsShowFocus(true);
  lvw_->setHeaderLabels(n.kolumny);
  lvw_->setContextMenuPolicy(Qt::CustomContextMenu);
  const QList<int> szerokosci =
      wewnetrzny_ ? QList<int>{150, 190, 190, 220} : QList<int>{150, 140, 190, 120, 200};
  for (int i = 0; i < szerokosci.size(); ++i) lvw_->setColumnWidth(i, szerokosci[i]);
  lvw_->setMinimumHeight(300);
  new KlawiszePrzegladarki(
      lvw_, [this] { cmdKasuj_Click(); }, [this] { cmdWybierz_Click(); });
  connect(lvw_, &QTreeWidget::itemDoubleClicked, this, [this] { cmdWybierz_Click(); });

  mnuOpcje_ = new QMenu(this);
  mnuOpcje_->setObjectName(QStringLiteral("mnuNiewidSzablonyOpcje"));
  mnuOpcje_->addAction(n.menuEdytuj, this, &ListaSzablonowGui::cmdEdytuj_Click)
      ->setObjectName(QStringLiteral("mnuEdytujSzablon"));
  mnuOpcje_->addAction(n.menuKasuj, this, &ListaSzablonowGui::cmdKasuj_Click)
      ->setObjectName(QStringLiteral("mnuKasujSzablon"));
  mnuOpcje_->addAction(n.menuNowy, this, &ListaSzablonowGui::cmdNowySzablon_Click)
      ->setObjectName(QStringLiteral("mnuNowySzablon"));
  connect(lvw_, &QTreeWidget::customContextMenuRequested, this, [this](const QPoint& p) {
    if (QTreeWidgetItem* w = lvw_->itemAt(p)) lvw_->setCurrentItem(w);
    mnuOpcje_->popup(lvw_->viewport()->mapToGlobal(p));
  });

  cmdWybierz_ = PrzyciskPrzegladarki(QStringLiteral("cmdWybierz"), n.wybierz, this);
  cmdWybierz_->setDefault(true);
  auto* cmdEdytuj = PrzyciskPrzegladarki(QStringLiteral("cmdEdytuj"), n.edytuj, this);
  auto* cmdNowy = PrzyciskPrzegladarki(QStringLiteral("cmdNowySzablon"), n.nowy, this);
  auto* cmdKasuj = PrzyciskPrzegladarki(QStringLiteral("cmdKasuj"), n.kasuj, this);
  auto* cmdAnuluj = PrzyciskPrzegladarki(QStringLiteral("cmdAnuluj"), n.zamknij, this);
  // The help file is not part of this build.
  auto* cmdPomoc = PrzyciskPrzegladarki(QStringLiteral("cmdPomoc"), n.pomoc, this);
  cmdPomoc->setEnabled(false);
  cmdPomoc->setToolTip(n.podpowiedzPomocy);
  connect(cmdWybierz_, &QPushButton::clicked, this, &ListaSzablonowGui::cmdWybierz_Click);
  connect(cmdEdytuj, &QPushButton::clicked, this, &ListaSzablonowGui::cmdEdytuj_Click);
  connect(cmdNowy, &QPushButton::clicked, this, &ListaSzablonowGui::cmdNowySzablon_Click);
  connect(cmdKasuj, &QPushButton::clicked, this, &ListaSzablonowGui::cmdKasuj_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);

  auto* szukanie = new QHBoxLayout;
  szukanie->addWidget(lblKlucz);
  szukanie->addWidget(txtKlucz_, 1);
  auto* dol = new QHBoxLayout;
  dol->addWidget(cmdEdytuj);
  dol->addWidget(cmdNowy);
  dol->addWidget(cmdKasuj);
  dol->addStretch();
  dol->addWidget(cmdWybierz_);
  dol->addWidget(cmdAnuluj);
  dol->addWidget(cmdPomoc);
  auto* uklad = new QVBoxLayout(this);
  uklad->addWidget(lblTytul);
  uklad->addLayout(szukanie);
  uklad->addWidget(lvw_, 1);
  uklad->addLayout(dol);
  int szer = 0;
  for (int s : szerokosci) szer += s;
  resize(szer + 40, 460);
}

void ListaSzablonowGui::OdswiezListe() {
  const QString klucz = txtKlucz_->text();
  std::vector<WierszSzablonu> nowe = wewnetrzny_ ? ListaSzablonowWewnetrznych(klucz)
                                                 : ListaSzablonow(sesja.pubSzablonRodzaj, klucz);
  // A letter that leaves the same rows (the first letters of a word often do) leaves the list
  // and the line the user stands on alone.
  if (nowe == wiersze_ && lvw_->topLevelItemCount() == int(wiersze_.size())) return;
  wiersze_ = std::move(nowe);
  lvw_->setUpdatesEnabled(false);
  lvw_->clear();
  QList<QTreeWidgetItem*> linie;
  linie.reserve(qsizetype(wiersze_.size()));
  for (const WierszSzablonu& s : wiersze_) {
    const QStringList kolumny =
        wewnetrzny_ ? QStringList{s.nazwa, s.zKonta, s.naKonto, s.opis}
                    : QStringList{s.nazwa, s.kategoria, s.konto, s.kontrahent, s.opis};
    auto* w = new QTreeWidgetItem(kolumny);
    w->setData(0, RolaKlucza, QStringLiteral("a") + QString::number(s.id));
    linie << w;
  }
  lvw_->addTopLevelItems(linie);
  if (!linie.isEmpty()) lvw_->setCurrentItem(linie.first());
  PasujListe(lvw_, sesja.pubUstawienia.listajeden, sesja.pubUstawienia.listadwa);
  lvw_->setUpdatesEnabled(true);
}

bool ListaSzablonowGui::wezLinie() {
  QTreeWidgetItem* w = lvw_->currentItem();
  if (!w) return false;
  sesja.pubSzablonWiersz = lvw_->indexOfTopLevelItem(w) + 1;
  sesja.pubSzablonId = w->data(0, RolaKlucza).toString().mid(1).toLongLong();
  sesja.pubSzablonNazwa = w->text(0);
  return true;
}

void ListaSzablonowGui::cmdWybierz_Click() {
  if (!wezLinie()) return;
  if (sesja.pubSzablonWybor == 1) {
    accept();
    return;
  }
  pokazEdytor();
}

void ListaSzablonowGui::cmdEdytuj_Click() {
  if (wezLinie()) pokazEdytor();
}

void ListaSzablonowGui::cmdNowySzablon_Click() {
  sesja.pubSzablonId = 0;
  sesja.pubSzablonWiersz = 0;
  pokazEdytor();
}

void ListaSzablonowGui::pokazEdytor() {
  // The template editor works on the session's records; an entry editor behind a picker keeps
  // its own choices in them, so they come back as they were.
  const KontoRekord konto = sesja.pubKonto;
  const KategoriaRekord kategoria = sesja.pubKategoria;
  const KontrahentRekord kontrahent = sesja.pubKontrahent;
  if (sesja.pubSzablonId == 0) {
    sesja.pubKontrahent.id = 0;
    sesja.pubKonto.id = 0;
    sesja.pubKategoria.identyfikator.clear();
  }
  sesja.pubKategoria.rodzaj = sesja.pubSzablonRodzaj;
  Nawigacja::Pokaz(wewnetrzny_ ? QStringLiteral("frmEdycjaSzablonuWewnetrznego")
                               : QStringLiteral("frmEdycjaSzablonuZewnetrznego"),
                   this);
  sesja.pubKonto = konto;
  sesja.pubKategoria = kategoria;
  sesja.pubKontrahent = kontrahent;
  const int wiersz = sesja.pubSzablonWiersz;
  // In a picker only a take counts as a choice.
  sesja.pubSzablonId = 0;
  OdswiezListe();
  zaznacz(wiersz);
}

void ListaSzablonowGui::zaznacz(int wiersz) {
  if (wiersz < 1 || wiersz > lvw_->topLevelItemCount()) return;
  QTreeWidgetItem* w = lvw_->topLevelItem(wiersz - 1);
  lvw_->setCurrentItem(w);
  lvw_->scrollToItem(w);
}

void ListaSzablonowGui::cmdKasuj_Click() {
  if (!wezLinie()) return;
  const int wiersz = sesja.pubSzablonWiersz;
  if (UsunSzablonZPytaniem(sesja.pubSzablonId, sesja.pubSzablonNazwa, wewnetrzny_)) {
    OdswiezListe();
    zaznacz(std::min(wiersz, lvw_->topLevelItemCount()));
  }
  sesja.pubSzablonId = 0;
}
