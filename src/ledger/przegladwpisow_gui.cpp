#include "ledger/przegladwpisow_gui.h"

#include <QAction>
#include <QApplication>
#include <QFontMetrics>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QStatusBar>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

#include "ledger/eksportprzegladu_gui.h"
#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/filtr.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"
#include "store/zmiany.h"
#include "ui/nawigacja_gui.h"
#include "ui/pasujliste_gui.h"
#include "ui/przegladarka_gui.h"
#include "ui/przyciskifiltra_gui.h"

// ---- the model ------------------------------------------------------------------------------

ModelPrzegladu::ModelPrzegladu(DanePrzegladu* dane, QStringList naglowki, QObject* rodzic)
    : QAbstractTableModel(rodzic), dane_(dane), naglowki_(std::move(naglowki)) {}

int ModelPrzegladu::rowCount(const QModelIndex& rodzic) const {
  return rodzic.isValid() ? 0 : int(dane_->Ile());
}

int ModelPrzegladu::columnCount(const QModelIndex& rodzic) const {
  return rodzic.isValid() ? 0 : dane_->LiczbaKolumn();
}

QVariant ModelPrzegladu::data(const QModelIndex& indeks, int rola) const {
  if (!indeks.isValid() || indeks.row() >= dane_->Ile()) return {};
  if (rola == Qt::DisplayRole) return dane_->Komorka(indeks.row(), indeks.column());
  if (rola == Qt::TextAlignmentRole && dane_->KolumnaKwoty(indeks.column()))
    return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  if (rola == Qt::UserRole) return dane_->Wiersz(indeks.row()).id;
  return {};
}

QVariant ModelPrzegladu::headerData(int sekcja, Qt::Orientation kierunek, int rola) const {
  if (kierunek != Qt::Horizontal) return {};
  if (rola == Qt::DisplayRole) return naglowki_.value(sekcja);
  if (rola == Qt::TextAlignmentRole && dane_->KolumnaKwoty(sekcja))
    return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  return {};
}

// ---- the browser ----------------------------------------------------------------------------

PrzegladWpisowGui::PrzegladWpisowGui(RodzajPrzegladu rodzaj, const TekstyPrzegladu& teksty,
                                     QWidget* rodzic)
    : QDialog(rodzic), rodzaj_(rodzaj), t_(teksty), dane_(rodzaj) {
  setObjectName(t_.forma);
  tryb_ = sesja.pubTryb;
  const bool transfery = rodzaj_ == RodzajPrzegladu::Transfery;
  fragment_ = transfery ? sesja.pubFiltrTransferow : sesja.pubFiltrTransakcji;
  sesja.pubPrzegladOtwarty = -1;
  OtworzBaze();
  zbuduj();
  const QString tytul = transfery ? sesja.pubTytulTransferow : sesja.pubTytulTransakcji;
  lblTytul_->setText(tytul.trimmed());
  lblTytul_->setVisible(!tytul.trimmed().isEmpty());
  connect(Zmiany::Instancja(), &Zmiany::DaneZmienione, this, &PrzegladWpisowGui::daneZmienione);
  OdswiezMain();
  const int wiersz = wierszSesji();
  if (wiersz > 0) ZaznaczWiersz(wiersz);
  wierszSesji() = 0;
}

PrzegladWpisowGui::~PrzegladWpisowGui() { sesja.pubPrzegladOtwarty = 0; }

int& PrzegladWpisowGui::wierszSesji() const {
  return rodzaj_ == RodzajPrzegladu::Transfery ? sesja.pubWierszTransferu
                                               : sesja.pubWierszTransakcji;
}

void PrzegladWpisowGui::zbuduj() {
  setWindowTitle(Napis(tryb_ == 2 ? t_.tytul : t_.tytulPlanowanych));
  setSizeGripEnabled(true);

  lblTytul_ = new QLabel(this);
  lblTytul_->setObjectName(QStringLiteral("lblTytul"));
  QFont gruby = lblTytul_->font();
  gruby.setBold(true);
  gruby.setPointSizeF(gruby.pointSizeF() * 1.15);
  lblTytul_->setFont(gruby);

  filtr_ = new PrzyciskiFiltra(this, 4);
  filtr_->Zakres()->setText(Napis(t_.zakres));
  connect(filtr_, &PrzyciskiFiltra::zmieniony, this, &PrzegladWpisowGui::OdswiezMain);

  QStringList naglowki;
  for (const QString& k : t_.kolumny) naglowki << Napis(k);
  model_ = new ModelPrzegladu(&dane_, naglowki, this);
  lvw_ = new QTreeView(this);
  lvw_->setObjectName(rodzaj_ == RodzajPrzegladu::Transfery ? QStringLiteral("lvwTransfery")
                                                            : QStringLiteral("lvwTransakcje"));
  lvw_->setModel(model_);
  lvw_->setRootIsDecorated(false);
  lvw_->setItemsExpandable(false);
  lvw_->setUniformRowHeights(true);  // a million rows scroll without measuring each
  lvw_->setAllColumnsShowFocus(true);
  lvw_->setSelectionMode(QAbstractItemView::SingleSelection);
  lvw_->setSelectionBehavior(QAbstractItemView::SelectRows);
  lvw_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lvw_->setContextMenuPolicy(Qt::CustomContextMenu);
  lvw_->header()->setSectionsClickable(true);
  lvw_->header()->setSortIndicatorShown(false);
  lvw_->header()->setStretchLastSection(true);
  lvw_->header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  connect(lvw_->header(), &QHeaderView::sectionClicked, this, &PrzegladWpisowGui::KliknijNaglowek);
  connect(lvw_, &QTreeView::doubleClicked, this, [this] { EdytujWiersz(); });
  connect(lvw_, &QTreeView::customContextMenuRequested, this, &PrzegladWpisowGui::pokazMenu);
  new KlawiszePrzegladarki(
      lvw_, [this] { UsunWiersz(); }, [this] { EdytujWiersz(); });
  ustawKolumny();

  menu_ = new QMenu(this);
  menu_->setObjectName(QStringLiteral("mnuNiewidTransakcjeOpcje"));
  mnuEdytuj_ = menu_->addAction(Napis(t_.edytuj));
  mnuEdytuj_->setObjectName(QStringLiteral("mnuEdytuj"));
  mnuKasuj_ = menu_->addAction(Napis(t_.kasuj));
  mnuKasuj_->setObjectName(QStringLiteral("mnuKasuj"));
  // The command runs after the menu has closed, as every popup command of the program.
  connect(mnuEdytuj_, &QAction::triggered, this,
          [this] { QTimer::singleShot(1, this, &PrzegladWpisowGui::EdytujWiersz); });
  connect(mnuKasuj_, &QAction::triggered, this,
          [this] { QTimer::singleShot(1, this, &PrzegladWpisowGui::UsunWiersz); });

  // The totals and the count under the list.
  lblSuma1_ =
      WartoscPrzegladarki(rodzaj_ == RodzajPrzegladu::Transfery ? QStringLiteral("lblSuma")
                                                                : QStringLiteral("lblPrzychody"),
                          this);
  auto* sumy = new QHBoxLayout;
  sumy->addWidget(EtykietaPrzegladarki(QString(), Napis(t_.suma1), this));
  sumy->addWidget(lblSuma1_);
  if (!t_.suma2.isEmpty()) {
    lblSuma2_ = WartoscPrzegladarki(QStringLiteral("lblWydatki"), this);
    sumy->addSpacing(16);
    sumy->addWidget(EtykietaPrzegladarki(QString(), Napis(t_.suma2), this));
    sumy->addWidget(lblSuma2_);
  }
  sumy->addSpacing(16);
  lblIloscZapisow_ = new QLabel(this);
  lblIloscZapisow_->setObjectName(QStringLiteral("lblIloscZapisow"));
  sumy->addWidget(lblIloscZapisow_);
  sumy->addStretch();
  cmdRaport_ = PrzyciskPrzegladarki(QStringLiteral("cmdRaport"), Napis(t_.raport), this);
  cmdRaport_->setToolTip(Napis(t_.podpowiedzRaportu));
  cmdRaport_->setEnabled(Nawigacja::Dostepny(t_.raportEkran));
  cmdAnuluj_ = PrzyciskPrzegladarki(QStringLiteral("cmdAnuluj"), Napis(t_.zamknij), this);
  connect(cmdRaport_, &QPushButton::clicked, this, &PrzegladWpisowGui::cmdRaport_Click);
  connect(cmdAnuluj_, &QPushButton::clicked, this, &PrzegladWpisowGui::reject);
  auto* cmdEksport =
      PrzyciskPrzegladarki(QStringLiteral("cmdEksport"), Napis(QStringLiteral("eksport13")), this);
  cmdEksport->setToolTip(Napis(QStringLiteral("eksport14")));
  connect(cmdEksport, &QPushButton::clicked, this, [this] { EksportujPrzeglad(this, dane_); });
  sumy->addWidget(cmdEksport);
  sumy->addWidget(cmdRaport_);
  sumy->addWidget(cmdAnuluj_);

  sbrStatus_ = new QStatusBar(this);
  sbrStatus_->setObjectName(QStringLiteral("sbrStatus"));
  sbrStatus_->setSizeGripEnabled(false);
  lblOkres_ = new QLabel(sbrStatus_);
  lblOkres_->setObjectName(QStringLiteral("lblOkres"));
  sbrStatus_->addWidget(lblOkres_, 1);
  pbrPasek_ = new QProgressBar(sbrStatus_);
  pbrPasek_->setObjectName(QStringLiteral("pbrPasek"));
  pbrPasek_->setMaximumWidth(220);
  pbrPasek_->setTextVisible(false);
  pbrPasek_->hide();
  sbrStatus_->addPermanentWidget(pbrPasek_);

  auto* uklad = new QVBoxLayout(this);
  uklad->setContentsMargins(8, 8, 8, 0);
  uklad->addWidget(lblTytul_);
  uklad->addWidget(filtr_);
  uklad->addWidget(lvw_, 1);
  uklad->addLayout(sumy);
  uklad->addWidget(sbrStatus_);

  // Wide enough for every column; no taller than the screen leaves room for.
  int szerokosc = 0;
  for (int k = 0; k < model_->columnCount(); ++k) szerokosc += lvw_->columnWidth(k);
  szerokosc += lvw_->verticalScrollBar()->sizeHint().width() + 2 * lvw_->frameWidth() + 16;
  QSize rozmiar(std::max(szerokosc, 940), 620);
  if (const QScreen* s = screen()) rozmiar = rozmiar.boundedTo(s->availableSize());
  resize(rozmiar);
}

void PrzegladWpisowGui::ustawKolumny() {
  const QFontMetrics m(lvw_->font());
  const int margines = 2 * m.horizontalAdvance(QLatin1Char('x')) + 8;
  const int data =
      m.horizontalAdvance(FormatDaty(QDate(2028, 12, 28), sesja.pubFormatDaty_ddpmmmpyy));
  const int kwota = m.horizontalAdvance(FormatKwoty(9999999.99));
  const int nazwa = m.horizontalAdvance(QLatin1Char('x')) * 16;
  for (int k = 0; k < model_->columnCount(); ++k) {
    const int naglowek =
        m.horizontalAdvance(model_->headerData(k, Qt::Horizontal, Qt::DisplayRole).toString()) +
        margines + 12;  // room for the sort arrow
    int w = k == 0 ? data : dane_.KolumnaKwoty(k) ? kwota : nazwa;
    lvw_->setColumnWidth(k, std::max(w + margines, naglowek));
  }
}

void PrzegladWpisowGui::OdswiezMain() {
  if (wczytuje_) return;
  wczytuje_ = true;
  czeka_ = false;
  const int biezacy = WybranyWiersz();
  OtworzBaze();
  sesja.pubOkres = FiltrCzasowy(sesja.pubFiltrCzasowy);
  const QString tabela = TabelaPrzegladu(rodzaj_, tryb_);
  // The bar runs up to the highest id of the table, which the store knows at once: the rows of
  // the list are at most as many.
  const qint64 najwiecej = PoliczIle(QStringLiteral("SELECT MAX(id) AS ile FROM ") + tabela);
  pbrPasek_->setRange(0, int(std::clamp<qint64>(najwiecej, 1, INT_MAX)));
  pbrPasek_->setValue(0);
  pbrPasek_->show();
  model_->Zaczynam();
  lvw_->header()->setSortIndicatorShown(false);
  // Everything: the table read straight through and put in order here; a period: the date
  // index gives its rows in order.
  const bool wszystko = sesja.pubFiltrCzasowy.rodzaj == 0;
  dane_.Wczytaj((wszystko ? ZapytanieCalegoPrzegladu : ZapytaniePrzegladu)(
                    rodzaj_, tryb_, fragment_, sesja.pubOkres.warunek),
                [this](qint64 ile) {
                  pbrPasek_->setValue(int(std::min<qint64>(ile, pbrPasek_->maximum())));
                  if (pbrPasek_->isVisible()) pbrPasek_->repaint();
                });
  if (wszystko) dane_.UporzadkujOdNajnowszych();
  model_->Skonczone();
  PasujListe(lvw_, sesja.pubUstawienia.listajeden, sesja.pubUstawienia.listadwa);
  lblSuma1_->setText(FormatKwoty(double(dane_.Suma1()) / 100.0));
  if (lblSuma2_) lblSuma2_->setText(FormatKwoty(double(dane_.Suma2()) / 100.0));
  lblIloscZapisow_->setText(Napis(t_.ilosc) + QLatin1Char(' ') + QString::number(dane_.Ile()));
  pbrPasek_->hide();
  lblOkres_->setText(Napis(t_.okres) + QLatin1Char(' ') + OpisOkresu(sesja.pubFiltrCzasowy.rodzaj));
  // A refill after a change elsewhere keeps the line number the user stood on.
  if (biezacy > 0) ZaznaczWiersz(std::min<int>(biezacy, int(dane_.Ile())));
  wczytuje_ = false;
}

bool PrzegladWpisowGui::ZaznaczWiersz(int numer) {
  if (numer < 1 || numer > dane_.Ile()) return false;
  const QModelIndex i = model_->index(numer - 1, 0);
  lvw_->setCurrentIndex(i);
  lvw_->selectionModel()->select(i,
                                 QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  lvw_->scrollTo(i);
  return true;
}

int PrzegladWpisowGui::WybranyWiersz() const {
  const QModelIndex i = lvw_->currentIndex();
  if (!i.isValid() || !lvw_->selectionModel()->isRowSelected(i.row(), {})) return 0;
  return i.row() + 1;
}

void PrzegladWpisowGui::KliknijNaglowek(int kolumna) {
  if (kolumna < 0 || kolumna >= dane_.LiczbaKolumn()) return;
  rosnaco_ = dane_.Posortowana() == kolumna ? !rosnaco_ : true;
  const int wiersz = WybranyWiersz();
  const qint64 id = wiersz > 0 ? dane_.Wiersz(wiersz - 1).id : 0;
  model_->Zaczynam();
  dane_.Sortuj(kolumna, rosnaco_);
  model_->Skonczone();
  lvw_->header()->setSortIndicatorShown(true);
  lvw_->header()->setSortIndicator(kolumna, rosnaco_ ? Qt::AscendingOrder : Qt::DescendingOrder);
  // The selected row stays selected wherever the order puts it.
  if (id != 0)
    for (qsizetype i = 0; i < dane_.Ile(); ++i)
      if (dane_.Wiersz(i).id == id) {
        ZaznaczWiersz(int(i) + 1);
        break;
      }
}

void PrzegladWpisowGui::EdytujWiersz() {
  const int numer = WybranyWiersz();
  if (numer <= 0 || !Nawigacja::Dostepny(t_.edytor)) return;
  const WierszPrzegladu w = dane_.Wiersz(numer - 1);
  wierszSesji() = numer;
  sesja.pubTryb = tryb_;
  if (rodzaj_ == RodzajPrzegladu::Transfery) {
    sesja.pubTransfer = w.id;
  } else {
    sesja.pubTransakcja.id = w.id;
    sesja.pubTransakcja.rodzaj = w.kwota1 != 0 ? 1 : 2;
    sesja.pubKategoria.rodzaj = sesja.pubTransakcja.rodzaj;
  }
  const int widok = sesja.pubWidokZrodlowy;
  sesja.pubWidokZrodlowy = 0;
  Nawigacja::Pokaz(t_.edytor, this);
  sesja.pubWidokZrodlowy = widok;
  sesja.pubTryb = tryb_;
  // The saved change has been announced: the list refills now, in the statement's order, and
  // the line of the same number is selected again, wherever the edit moved the row.
  odswiezJesliCzeka();
  const int ponownie = wierszSesji() > 0 ? wierszSesji() : numer;
  ZaznaczWiersz(std::min<int>(ponownie, int(dane_.Ile())));
  wierszSesji() = 0;
}

QString PrzegladWpisowGui::opisWiersza(const WierszPrzegladu& w) const {
  QStringList czesci;
  czesci << FormatDaty(QDate::fromJulianDay(w.data), sesja.pubFormatDaty_ddpmmmpyy);
  const bool transfery = rodzaj_ == RodzajPrzegladu::Transfery;
  czesci << FormatKwoty(double(transfery || w.kwota1 != 0 ? w.kwota1 : w.kwota2) / 100.0).trimmed();
  for (int i = 0; i < (transfery ? 2 : 1); ++i) czesci << dane_.Tekst(w.tekst[i]).trimmed();
  const QString opis = dane_.Tekst(w.tekst[transfery ? 2 : 3]).trimmed();
  if (!opis.isEmpty()) czesci << QLatin1Char('"') + opis + QLatin1Char('"');
  return czesci.join(QStringLiteral("  "));
}

void PrzegladWpisowGui::UsunWiersz() {
  const int numer = WybranyWiersz();
  if (numer <= 0) return;
  const WierszPrzegladu w = dane_.Wiersz(numer - 1);
  if (MyMsgbox(Napis(t_.pytanie) + QStringLiteral("\n\n") + opisWiersza(w), Napis(t_.tytulPytania),
               MsgTakNie, IkonaPytanie) != WynikTak)
    return;
  OtworzBaze();
  const WynikZapisu z =
      pubBaza().Wykonaj(QStringLiteral("DELETE FROM %1 WHERE id=%2")
                            .arg(TabelaPrzegladu(rodzaj_, tryb_), QString::number(w.id)));
  if (!z) {
    MyMsgbox(Napis(t_.bladKasowania), Napis(t_.tytulPytania), MsgOK, IkonaOstrzezenie);
    return;
  }
  // The store announced the delete; the list, its totals and the main window refill from it.
  odswiezJesliCzeka();
}

void PrzegladWpisowGui::cmdRaport_Click() {
  if (!Nawigacja::Dostepny(t_.raportEkran)) return;
  // The report walks the same statement: the table by pubTryb, the caller's fragment, and the
  // period of the filter in force, whose long text is its title.
  sesja.pubTryb = tryb_;
  if (rodzaj_ == RodzajPrzegladu::Transfery)
    sesja.pubFiltrTransferow = fragment_;
  else
    sesja.pubFiltrTransakcji = fragment_;
  sesja.pubOkres = FiltrCzasowy(sesja.pubFiltrCzasowy);
  sesja.pubZapytanieRaportu.clear();  // the report builds the same statement itself
  Nawigacja::Pokaz(t_.raportEkran, this);
  sesja.pubTryb = tryb_;
}

void PrzegladWpisowGui::pokazMenu(const QPoint& gdzie) {
  // The right button selects the row under it first.
  const QModelIndex i = lvw_->indexAt(gdzie);
  if (i.isValid()) ZaznaczWiersz(i.row() + 1);
  const bool wiersz = WybranyWiersz() > 0;
  mnuEdytuj_->setEnabled(wiersz && Nawigacja::Dostepny(t_.edytor));
  mnuKasuj_->setEnabled(wiersz);
  menu_->popup(lvw_->viewport()->mapToGlobal(gdzie));
}

void PrzegladWpisowGui::daneZmienione(unsigned tabele) {
  const unsigned moje = (rodzaj_ == RodzajPrzegladu::Transfery
                             ? (tryb_ == 2 ? Tabele::Wewnetrzne : Tabele::ZaplanowaneWewnetrzne)
                             : (tryb_ == 2 ? Tabele::Transakcje : Tabele::Zaplanowane) |
                                   Tabele::Kategorie | Tabele::Kontrahent) |
                        Tabele::Konta | Tabele::Inne;
  if (!(tabele & moje) || czeka_) return;
  // Several writes of one change come as several announcements: the list refills once, when
  // the program is idle again.
  czeka_ = true;
  QTimer::singleShot(0, this, &PrzegladWpisowGui::odswiezJesliCzeka);
}

void PrzegladWpisowGui::odswiezJesliCzeka() {
  if (czeka_) OdswiezMain();
}

void PrzegladWpisowGui::showEvent(QShowEvent* zdarzenie) {
  QDialog::showEvent(zdarzenie);
  lvw_->setFocus();
  // A line chosen before the window showed is scrolled to once the list has its final size.
  lvw_->scrollToTop();
  QTimer::singleShot(0, this, [this] {
    if (lvw_->currentIndex().isValid()) lvw_->scrollTo(lvw_->currentIndex());
  });
}
