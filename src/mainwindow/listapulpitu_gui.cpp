#include "mainwindow/listapulpitu_gui.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "mainwindow/etykieta_gui.h"
#include "mainwindow/obrazki_pulpitu_gui.h"
#include "mainwindow/polecenia_gui.h"
#include "store/MsgBoxModule.h"
#include "store/napis.h"
#include "store/session.h"
#include "ui/nawigacja_gui.h"
#include "ui/pasujliste_gui.h"

namespace {
QString napis(int numer) { return Napis(QStringLiteral("frmMain%1").arg(numer)); }

struct Opis {
  const char* lista;
  const char* tytul;
  int kluczTytulu;
  int wiecej;  // index of picWiecej
};

Opis opis(ListaPulpitu l) {
  switch (l) {
    case ListaPulpitu::Transakcje:
      return {"lvwTransakcje", "lblTransakcje", 113, 0};
    case ListaPulpitu::Zaplanowane:
      return {"lvwZaplanowane", "lblZaplanowane", 114, 1};
    case ListaPulpitu::Wewnetrzne:
      return {"lvwWewnetrzne", "lblWewnetrzne", 115, 2};
    case ListaPulpitu::WewnetrzneZaplanowane:
      break;
  }
  return {"lvwWewnetrzneZaplanowane", "lblWewnetrzneZaplanowane", 116, 3};
}

constexpr int RolaKlucza = Qt::UserRole;
}  // namespace

ListaPulpituGui::ListaPulpituGui(ListaPulpitu lista, QWidget* rodzic)
    : QWidget(rodzic), lista_(lista) {
  const Opis o = opis(lista);
  const bool transfery = ListaTransferow(lista);
  auto* uklad = new QVBoxLayout(this);
  uklad->setContentsMargins(0, 0, 0, 0);
  uklad->setSpacing(2);

  auto* glowa = new QHBoxLayout;
  glowa->setSpacing(4);
  wiecej_ = PrzyciskObrazka(QStringLiteral("picWiecej(%1)").arg(o.wiecej), ObrazekWiecej(16),
                            napis(transfery ? 128 : 127), this);
  tytul_ = new EtykietaPolecenia(QLatin1String(o.tytul), napis(o.kluczTytulu), this);
  QFont f = tytul_->font();
  f.setBold(true);
  tytul_->setFont(f);
  tytul_->setToolTip(wiecej_->toolTip());
  glowa->addWidget(wiecej_);
  glowa->addWidget(tytul_, 1);
  uklad->addLayout(glowa);

  lvw_ = new QTreeWidget(this);
  lvw_->setObjectName(QLatin1String(o.lista));
  lvw_->setRootIsDecorated(false);
  lvw_->setUniformRowHeights(true);
  lvw_->setAllColumnsShowFocus(true);
  lvw_->setSelectionMode(QAbstractItemView::SingleSelection);
  lvw_->setContextMenuPolicy(Qt::CustomContextMenu);
  QStringList naglowki;
  if (transfery)
    naglowki << napis(117) << napis(124) << napis(125) << napis(126) << napis(123);
  else
    for (int k = 117; k <= 123; ++k) naglowki << napis(k);
  lvw_->setHeaderLabels(naglowki);
  QHeaderView* h = lvw_->header();
  h->setStretchLastSection(true);
  h->setSectionsMovable(false);
  for (int k = 0; k < naglowki.size(); ++k) {
    if (KolumnaKwoty(lista, k)) {
      lvw_->headerItem()->setTextAlignment(k, Qt::AlignRight | Qt::AlignVCenter);
      h->setSectionResizeMode(k, QHeaderView::ResizeToContents);
    } else if (k == 0) {
      h->setSectionResizeMode(k, QHeaderView::ResizeToContents);
    } else if (k + 1 < naglowki.size()) {
      h->setSectionResizeMode(k, QHeaderView::Interactive);
      lvw_->setColumnWidth(k, fontMetrics().horizontalAdvance(QLatin1Char('x')) * 14);
    }
  }
  // Room for the rows the list holds (10 or 3) without a scroll bar, and no more.
  const int wiersze = ListaZaplanowanych(lista) ? 3 : 10;
  auto* wzor = new QTreeWidgetItem(lvw_, naglowki);
  const int wysokosc = lvw_->sizeHintForRow(0);
  delete wzor;
  lvw_->setMinimumHeight(lvw_->header()->sizeHint().height() + wiersze * wysokosc +
                         2 * lvw_->frameWidth() + 2);
  uklad->addWidget(lvw_, 1);

  const auto przegladaj = [this] { Przegladaj(); };
  connect(wiecej_, &QToolButton::clicked, this, przegladaj);
  tytul_->UstawPolecenie(przegladaj);
  connect(lvw_, &QTreeWidget::itemDoubleClicked, this, [this] { Edytuj(); });
  connect(lvw_, &QTreeWidget::customContextMenuRequested, this,
          [this](const QPoint& p) { pokazMenu(p); });
  lvw_->installEventFilter(this);
  zbudujMenu();
}

void ListaPulpituGui::zbudujMenu() {
  menu_ = new QMenu(this);
  menu_->setObjectName(ListaTransferow(lista_) ? QStringLiteral("mnuNiewidTransfery")
                                               : QStringLiteral("mnuNiewidTransakcje"));
  // The command is kept and run a moment later, when the menu has closed: an editor or a
  // question must not open inside the menu's click.
  const auto dodaj = [this](int indeks, int klucz, std::function<void()> polecenie) {
    QAction* a = menu_->addAction(napis(klucz));
    a->setObjectName(menu_->objectName() + QStringLiteral("(%1)").arg(indeks));
    connect(a, &QAction::triggered, this,
            [this, polecenie] { QTimer::singleShot(1, this, polecenie); });
  };
  if (ListaTransferow(lista_)) {
    dodaj(0, 135, [this] { Edytuj(); });
    dodaj(1, 136, [this] { Usun(); });
    dodaj(2, 137, [this] { Przegladaj(); });
    dodaj(3, 138, [this] { Nowy(0); });
  } else {
    dodaj(0, 130, [this] { Edytuj(); });
    dodaj(1, 131, [this] { Usun(); });
    dodaj(2, 132, [this] { Przegladaj(); });
    dodaj(3, 133, [this] { Nowy(1); });
    dodaj(4, 134, [this] { Nowy(2); });
  }
}

void ListaPulpituGui::pokazMenu(const QPoint& gdzie) {
  // The right button selects the row under it first.
  if (QTreeWidgetItem* w = lvw_->itemAt(gdzie)) lvw_->setCurrentItem(w);
  const bool wiersz = wybranyIndeks() >= 0;
  const QList<QAction*> akcje = menu_->actions();
  akcje[0]->setEnabled(wiersz && Nawigacja::Dostepny(ListaTransferow(lista_)
                                                         ? QStringLiteral("frmEdycjaTransakcjiWewnetrznej")
                                                         : QStringLiteral("frmEdycjaTransakcji")));
  akcje[1]->setEnabled(wiersz);
  akcje[2]->setEnabled(Nawigacja::Dostepny(ListaTransferow(lista_)
                                               ? QStringLiteral("frmPrzegladTransakcjiWewnetrznych")
                                               : QStringLiteral("frmPrzegladTransakcji")));
  menu_->popup(lvw_->viewport()->mapToGlobal(gdzie));
}

int ListaPulpituGui::wybranyIndeks() const {
  QTreeWidgetItem* w = lvw_->currentItem();
  if (!w || !w->isSelected()) return -1;
  return lvw_->indexOfTopLevelItem(w);
}

int ListaPulpituGui::tryb() const { return ListaZaplanowanych(lista_) ? 1 : 2; }

void ListaPulpituGui::Odswiez() {
  wiersze_ = CzytajListe(lista_);
  lvw_->setUpdatesEnabled(false);
  lvw_->clear();
  QList<QTreeWidgetItem*> pozycje;
  pozycje.reserve(qsizetype(wiersze_.size()));
  for (const WierszPulpitu& w : wiersze_) {
    auto* p = new QTreeWidgetItem(w.kolumny);
    p->setData(0, RolaKlucza, QStringLiteral("a%1").arg(w.id));
    for (int k = 0; k < w.kolumny.size(); ++k)
      if (KolumnaKwoty(lista_, k)) p->setTextAlignment(k, Qt::AlignRight | Qt::AlignVCenter);
    pozycje << p;
  }
  lvw_->addTopLevelItems(pozycje);
  PasujListe(lvw_, sesja.pubUstawienia.listajeden, sesja.pubUstawienia.listadwa);
  lvw_->setUpdatesEnabled(true);
}

void ListaPulpituGui::Edytuj() {
  const int i = wybranyIndeks();
  if (i < 0 || i >= int(wiersze_.size())) return;
  const WierszPulpitu w = wiersze_[size_t(i)];
  sesja.pubTryb = tryb();
  int* wiersz = nullptr;
  if (ListaTransferow(lista_)) {
    sesja.pubWierszTransferu = i + 1;
    sesja.pubTransfer = w.id;
    wiersz = &sesja.pubWierszTransferu;
    Nawigacja::Pokaz(QStringLiteral("frmEdycjaTransakcjiWewnetrznej"), window());
  } else {
    sesja.pubWierszTransakcji = i + 1;
    sesja.pubTransakcja.id = w.id;
    sesja.pubTransakcja.rodzaj = w.wydatek != 0 ? 2 : 1;
    sesja.pubKategoria.rodzaj = sesja.pubTransakcja.rodzaj;
    wiersz = &sesja.pubWierszTransakcji;
    Nawigacja::Pokaz(QStringLiteral("frmEdycjaTransakcji"), window());
  }
  // The row of the same number is selected again, wherever the edit moved the item.
  if (*wiersz > 0 && *wiersz <= lvw_->topLevelItemCount()) {
    QTreeWidgetItem* p = lvw_->topLevelItem(*wiersz - 1);
    lvw_->setCurrentItem(p);
    p->setSelected(true);
    lvw_->scrollToItem(p);
  }
}

void ListaPulpituGui::Usun() {
  const int i = wybranyIndeks();
  if (i < 0 || i >= int(wiersze_.size())) return;
  const WierszPulpitu w = wiersze_[size_t(i)];
  if (MyMsgbox(napis(183) + QLatin1Char(' ') + OpisWiersza(w) + napis(184) + QStringLiteral(" ?"),
               napis(185), MsgTakNie, IkonaPytanie) != WynikTak)
    return;
  // The store announces the delete: the list and, for executed items, the balances refill.
  if (!UsunWierszListy(lista_, w.id))
    MyMsgbox(napis(186), napis(185), MsgOK, IkonaOstrzezenie);
}

void ListaPulpituGui::Przegladaj() {
  if (ListaTransferow(lista_))
    PokazPrzegladTransferow(tryb(), QString(), napis(177), -1);
  else
    PokazPrzegladTransakcji(tryb(), QString(), napis(176), -1);
}

void ListaPulpituGui::Nowy(int rodzaj) {
  if (ListaTransferow(lista_))
    NowyTransfer(tryb());
  else
    NowaTransakcja(tryb(), rodzaj);
}

bool ListaPulpituGui::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
  if (obiekt == lvw_ && zdarzenie->type() == QEvent::KeyPress) {
    const int k = static_cast<QKeyEvent*>(zdarzenie)->key();
    if (k == Qt::Key_Delete) {
      Usun();
      return true;
    }
    if (k == Qt::Key_Return || k == Qt::Key_Enter) {
      Edytuj();
      return true;
    }
  }
  return QWidget::eventFilter(obiekt, zdarzenie);
}
