#include "mainwindow/frmMain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>

#include "mainwindow/listapulpitu_gui.h"
#include "mainwindow/notatnik_gui.h"
#include "mainwindow/panelstanu_gui.h"
#include "mainwindow/polecenia_gui.h"
#include "mainwindow/przegladdnia_gui.h"
#include "mainwindow/zaplanowane_gui.h"
#include "store/MsgBoxModule.h"
#include "ui/obrazki_gui.h"
#include "ui/pasujliste_gui.h"
#include "store/baza.h"
#include "store/dzis.h"
#include "store/filtr.h"
#include "store/napis.h"
#include "store/przypomnienia.h"
#include "store/session.h"
#include "store/tekst.h"
#include "store/zmiany.h"

namespace {
frmMain*& instancja() {
  static frmMain* f = nullptr;
  return f;
}

// Shares of the window's width for the first five status panels; the sixth takes the rest.
constexpr int kUdzialyPaneli[6] = {200, 260, 80, 165, 205, 90};

// The order of the command buttons on screen, in groups: new items, planned items, templates,
// master data, dates and tools, settings, help and exit.
const std::vector<std::vector<int>>& grupyPrzyciskow() {
  static const std::vector<std::vector<int>> g = {{0, 1, 2, 22},   {3, 4, 5},        {6, 7, 8},
                                                  {11, 9, 10, 12}, {20, 14, 13, 17}, {15, 16},
                                                  {19, 21, 18}};
  return g;
}

QString zWielkiej(QString s) {
  if (!s.isEmpty()) s[0] = s[0].toUpper();
  return s;
}
}  // namespace

frmMain::frmMain(QWidget* rodzic) : QMainWindow(rodzic) {
  instancja() = this;
  setObjectName(QStringLiteral("frmMain"));
  setWindowTitle(Napis(QStringLiteral("frmMain1")));
  setWindowIcon(IkonaProgramu());

  zbudujMenu();
  auto* srodek = new QWidget(this);
  auto* uklad = new QHBoxLayout(srodek);
  uklad->setContentsMargins(6, 6, 6, 4);
  uklad->setSpacing(8);
  uklad->addWidget(zbudujPrzyciski());
  uklad->addWidget(zbudujPulpit(), 1);
  setCentralWidget(srodek);
  zbudujStatus();

  setMinimumSize(800, 600);
  QSize rozmiar(1240, 820);
  if (const QScreen* ekran = QGuiApplication::primaryScreen())
    rozmiar = rozmiar.boundedTo(ekran->availableGeometry().size() - QSize(16, 48));
  resize(rozmiar.expandedTo(minimumSize()));

  notatnik_->Wczytaj();
  OdswiezMain();
  OdswiezMainWewnetrzne();
  OdswiezMainZaplanowane();
  OdswiezMainWewnetrzneZaplanowane();
  StanKont();
  przeglad_->PrzegladDnia();
  OdswiezStatus();
  connect(Zmiany::Instancja(), &Zmiany::DaneZmienione, this, &frmMain::DaneZmienione);
}

void frmMain::DaneZmienione(unsigned tabele) {
  using namespace Tabele;
  // Names of accounts, categories and counterparties show in every list.
  const unsigned nazwy = Konta | Kategorie | Kontrahent;
  if (tabele & (Transakcje | nazwy)) OdswiezMain();
  if (tabele & (Zaplanowane | nazwy)) OdswiezMainZaplanowane();
  if (tabele & (Wewnetrzne | Konta)) OdswiezMainWewnetrzne();
  if (tabele & (ZaplanowaneWewnetrzne | Konta)) OdswiezMainWewnetrzneZaplanowane();
  if (tabele & (Transakcje | Wewnetrzne | Konta)) StanKont();
}

frmMain::~frmMain() {
  if (instancja() == this) instancja() = nullptr;
}

frmMain* frmMain::Instancja() { return instancja(); }

void frmMain::zbudujMenu() {
  QMenuBar* pasek = menuBar();
  auto menu = [this](QWidget* nad, const char* nazwa, const QString& napis) {
    auto* m = new QMenu(napis, nad);
    m->setObjectName(QLatin1String(nazwa));
    if (auto* p = qobject_cast<QMenuBar*>(nad))
      p->addMenu(m);
    else
      static_cast<QMenu*>(nad)->addMenu(m);
    return m;
  };
  auto polecenie = [this](QMenu* m, const QString& nazwa, const QString& napis) {
    QAction* a = m->addAction(napis);
    a->setObjectName(nazwa);
    a->setEnabled(MaPolecenie(nazwa));
    connect(a, &QAction::triggered, this, [nazwa] { UruchomPolecenie(nazwa); });
    return a;
  };
  auto okresy = [&](QMenu* m, const char* rdzen) {
    const QString klucze[6] = {
        Napis(QStringLiteral("frmMain23")), Napis(QStringLiteral("frmMain24")),
        Napis(QStringLiteral("frmMain25")), Napis(QStringLiteral("frmMain26")),
        Napis(QStringLiteral("frmMain27")), Napis(QStringLiteral("frmMain28"))};
    for (int i = 0; i < 6; ++i) {
      polecenie(m, QStringLiteral("%1(%2)").arg(QLatin1String(rdzen)).arg(i), klucze[i]);
      if (i == 0) m->addSeparator();
    }
  };

  QMenu* m = menu(pasek, "mnuTransakcjeGlowne", Napis(QStringLiteral("frmMain2")));
  polecenie(m, QStringLiteral("mnuPrzychod"), Napis(QStringLiteral("frmMain3")));
  polecenie(m, QStringLiteral("mnuWydatek"), Napis(QStringLiteral("frmMain4")));
  polecenie(m, QStringLiteral("mnuTransakcjaWewnetrzna"), Napis(QStringLiteral("frmMain5")));
  m->addSeparator();
  polecenie(m, QStringLiteral("mnuPrzychodZaplanowany"), Napis(QStringLiteral("frmMain6")));
  polecenie(m, QStringLiteral("mnuWydatekZaplanowany"), Napis(QStringLiteral("frmMain7")));
  polecenie(m, QStringLiteral("mnuTransakcjaWewnetrznaZaplanowana"),
            Napis(QStringLiteral("frmMain8")));
  m->addSeparator();
  QMenu* s = menu(m, "mnuSzablony", Napis(QStringLiteral("frmMain9")));
  polecenie(s, QStringLiteral("mnuSzablonyPrzychody"), Napis(QStringLiteral("frmMain10")));
  polecenie(s, QStringLiteral("mnuSzablonyWydatki"), Napis(QStringLiteral("frmMain11")));
  polecenie(s, QStringLiteral("mnuSzablonyWewnetrzne"), Napis(QStringLiteral("frmMain12")));
  // The payment slip is a Polish form: the English edition hides it.
  QAction* przelew = polecenie(m, QStringLiteral("mnuPrzelew"), Napis(QStringLiteral("frmMain13")));
  przelew->setVisible(sesja.pubJezyk == 1);
  m->addSeparator();
  polecenie(m, QStringLiteral("mnuImportWyciagu"), Napis(QStringLiteral("frmMainImport")));
  polecenie(m, QStringLiteral("mnuPrzywrocKopie"), Napis(QStringLiteral("frmMainKopie")));
  m->addSeparator();
  QAction* koniec =
      polecenie(m, QStringLiteral("mnuKoniecPracy"), Napis(QStringLiteral("frmMain14")));
  koniec->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));

  m = menu(pasek, "mnuKartoteki", Napis(QStringLiteral("frmMain15")));
  polecenie(m, QStringLiteral("mnuKonta"), Napis(QStringLiteral("frmMain16")));
  polecenie(m, QStringLiteral("mnuKategoriePrzychodow"), Napis(QStringLiteral("frmMain17")));
  polecenie(m, QStringLiteral("mnuKategorieWydatkow"), Napis(QStringLiteral("frmMain18")));
  polecenie(m, QStringLiteral("mnuKontrahent"), Napis(QStringLiteral("frmMain20")));

  m = menu(pasek, "mnuRaporty", Napis(QStringLiteral("frmMain21")));
  okresy(menu(m, "mnuRaportyTransakcji", Napis(QStringLiteral("frmMain22"))),
         "mnuTransakcjeBiezacy");
  okresy(menu(m, "mnuRaportyTransferow", Napis(QStringLiteral("frmMain29"))),
         "mnuTransferyBiezacy");
  s = menu(m, "mnuRaportyKont", Napis(QStringLiteral("frmMain30")));
  polecenie(s, QStringLiteral("mnuKontaBiezace"), Napis(QStringLiteral("frmMain31")));
  polecenie(s, QStringLiteral("mnuWydrukKontWCzasie"), Napis(QStringLiteral("frmMain32")));
  s = menu(m, "mnuRaportyKategorii", Napis(QStringLiteral("frmMain33")));
  polecenie(s, QStringLiteral("mnuKategoriePrzychodowBiezace"), Napis(QStringLiteral("frmMain34")));
  polecenie(s, QStringLiteral("mnuKategorieWydatkowBiezace"), Napis(QStringLiteral("frmMain35")));
  s->addSeparator();
  polecenie(s, QStringLiteral("mnuKategoriePrzychodowWCzasie"), Napis(QStringLiteral("frmMain36")));
  polecenie(s, QStringLiteral("mnuKategorieWydatkowWCzasie"), Napis(QStringLiteral("frmMain37")));
  s->addSeparator();
  polecenie(s, QStringLiteral("mnuKategoriePrzychodowSumaryczny"),
            Napis(QStringLiteral("frmMain900")));
  polecenie(s, QStringLiteral("mnuKategorieWydatkowSumaryczny"), Napis(QStringLiteral("frmMain901")));
  s = menu(m, "mnuRaportyKontrahentow", Napis(QStringLiteral("frmMain38")));
  polecenie(s, QStringLiteral("mnuKontrahenciBiezace"), Napis(QStringLiteral("frmMain39")));
  polecenie(s, QStringLiteral("mnuKontrahenciWCzasie"), Napis(QStringLiteral("frmMain40")));

  m = menu(pasek, "mnuNarzedzia", Napis(QStringLiteral("frmMain41")));
  polecenie(m, QStringLiteral("mnuKalendarz"), Napis(QStringLiteral("frmMain42")));
  polecenie(m, QStringLiteral("mnuZmianaDaty"), Napis(QStringLiteral("frmMain43")));
  polecenie(m, QStringLiteral("mnuOkresowe"), Napis(QStringLiteral("frmMain44")));
  polecenie(m, QStringLiteral("mnuSymulacjaOszczednosciKategorii"),
            Napis(QStringLiteral("frmMain45")));

  m = menu(pasek, "mnuUstawienia", Napis(QStringLiteral("frmMain46")));
  polecenie(m, QStringLiteral("mnuUstawieniaUzytkownika"), Napis(QStringLiteral("frmMain47")));
  polecenie(m, QStringLiteral("mnuUstawieniaKolorow"), Napis(QStringLiteral("frmMain48")));
  polecenie(m, QStringLiteral("mnuKonfiguracja"), Napis(QStringLiteral("frmMain49")));
  polecenie(m, QStringLiteral("mnuUstawieniaInternetowe"), Napis(QStringLiteral("frmMain50")));
  m->addSeparator();
  polecenie(m, QStringLiteral("mnuKreator"), Napis(QStringLiteral("frmMain51")));

  m = menu(pasek, "mnuPomocGlowne", Napis(QStringLiteral("frmMain52")));
  QAction* pomoc = polecenie(m, QStringLiteral("mnuPomoc"), Napis(QStringLiteral("frmMain53")));
  pomoc->setShortcut(QKeySequence(Qt::Key_F1));
  polecenie(m, QStringLiteral("mnuPomocPodstawowa"), Napis(QStringLiteral("frmMain54")));
  polecenie(m, QStringLiteral("mnuZadajPytanie"), Napis(QStringLiteral("frmMain55")));
  m->addSeparator();
  polecenie(m, QStringLiteral("mnuOProgramie"), Napis(QStringLiteral("frmMain56")));
}

QWidget* frmMain::zbudujPrzyciski() {
  // Captions and tool tips of cmdMenu(i) are keys frmMain(60 + i) and frmMain(90 + i).
  const QString podpisy[23] = {
      Napis(QStringLiteral("frmMain60")), Napis(QStringLiteral("frmMain61")),
      Napis(QStringLiteral("frmMain62")), Napis(QStringLiteral("frmMain63")),
      Napis(QStringLiteral("frmMain64")), Napis(QStringLiteral("frmMain65")),
      Napis(QStringLiteral("frmMain66")), Napis(QStringLiteral("frmMain67")),
      Napis(QStringLiteral("frmMain68")), Napis(QStringLiteral("frmMain69")),
      Napis(QStringLiteral("frmMain70")), Napis(QStringLiteral("frmMain71")),
      Napis(QStringLiteral("frmMain72")), Napis(QStringLiteral("frmMain73")),
      Napis(QStringLiteral("frmMain74")), Napis(QStringLiteral("frmMain75")),
      Napis(QStringLiteral("frmMain76")), Napis(QStringLiteral("frmMain77")),
      Napis(QStringLiteral("frmMain78")), Napis(QStringLiteral("frmMain79")),
      Napis(QStringLiteral("frmMain80")), Napis(QStringLiteral("frmMain81")),
      Napis(QStringLiteral("frmMain82"))};
  const QString podpowiedzi[23] = {
      Napis(QStringLiteral("frmMain90")),  Napis(QStringLiteral("frmMain91")),
      Napis(QStringLiteral("frmMain92")),  Napis(QStringLiteral("frmMain93")),
      Napis(QStringLiteral("frmMain94")),  Napis(QStringLiteral("frmMain95")),
      Napis(QStringLiteral("frmMain96")),  Napis(QStringLiteral("frmMain97")),
      Napis(QStringLiteral("frmMain98")),  Napis(QStringLiteral("frmMain99")),
      Napis(QStringLiteral("frmMain100")), Napis(QStringLiteral("frmMain101")),
      Napis(QStringLiteral("frmMain102")), Napis(QStringLiteral("frmMain103")),
      Napis(QStringLiteral("frmMain104")), Napis(QStringLiteral("frmMain105")),
      Napis(QStringLiteral("frmMain106")), Napis(QStringLiteral("frmMain107")),
      Napis(QStringLiteral("frmMain108")), Napis(QStringLiteral("frmMain109")),
      Napis(QStringLiteral("frmMain110")), Napis(QStringLiteral("frmMain111")),
      Napis(QStringLiteral("frmMain112"))};

  auto* kolumna = new QWidget;
  kolumna->setObjectName(QStringLiteral("fraMenu"));
  auto* uklad = new QVBoxLayout(kolumna);
  uklad->setContentsMargins(2, 2, 2, 2);
  uklad->setSpacing(2);
  QWidget* poprzedni = nullptr;
  bool pierwsza = true;
  for (const auto& grupa : grupyPrzyciskow()) {
    if (!pierwsza) uklad->addSpacing(8);
    pierwsza = false;
    for (int i : grupa) {
      const QString nazwa = QStringLiteral("cmdMenu(%1)").arg(i);
      auto* b = new QPushButton(podpisy[i], kolumna);
      b->setObjectName(nazwa);
      b->setToolTip(podpowiedzi[i]);
      b->setEnabled(MaPolecenie(nazwa));
      b->setAutoDefault(false);
      b->setMinimumHeight(24);
      b->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
      connect(b, &QPushButton::clicked, this, [nazwa] { UruchomPolecenie(nazwa); });
      if (poprzedni) setTabOrder(poprzedni, b);
      poprzedni = b;
      uklad->addWidget(b);
    }
  }
  uklad->addStretch(1);

  // On a low screen the column scrolls rather than squeezing its buttons.
  auto* przewijanie = new QScrollArea;
  przewijanie->setObjectName(QStringLiteral("scrMenu"));
  przewijanie->setWidget(kolumna);
  przewijanie->setWidgetResizable(true);
  przewijanie->setFrameShape(QFrame::NoFrame);
  przewijanie->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  przewijanie->setFixedWidth(kolumna->sizeHint().width() + 24);
  return przewijanie;
}

QWidget* frmMain::zbudujPulpit() {
  pulpit_ = new QFrame;
  pulpit_->setObjectName(QStringLiteral("fraPulpit"));
  static_cast<QFrame*>(pulpit_)->setFrameShape(QFrame::StyledPanel);
  ukladPulpitu_ = new QVBoxLayout(pulpit_);
  ukladPulpitu_->setContentsMargins(10, 6, 10, 8);
  ukladPulpitu_->setSpacing(8);

  // The date line and the search.
  auto* gora = new QHBoxLayout;
  gora->setSpacing(6);
  auto* lblImieniny = new QLabel(LiniaDaty(), pulpit_);
  lblImieniny->setObjectName(QStringLiteral("lblImieniny"));
  QFont f = lblImieniny->font();
  f.setBold(true);
  f.setPointSizeF(f.pointSizeF() * 1.15);
  lblImieniny->setFont(f);
  gora->addWidget(lblImieniny, 1);
  txtSzukaj_ = new QLineEdit(pulpit_);
  txtSzukaj_->setObjectName(QStringLiteral("txtSzukaj"));
  txtSzukaj_->setPlaceholderText(Napis(QStringLiteral("frmMain172")));
  txtSzukaj_->setToolTip(Napis(QStringLiteral("frmMain172")));
  txtSzukaj_->setClearButtonEnabled(true);
  txtSzukaj_->setMinimumWidth(200);
  auto* cmdSzukaj = new QPushButton(Napis(QStringLiteral("frmMain171")), pulpit_);
  cmdSzukaj->setObjectName(QStringLiteral("cmdSzukaj"));
  cmdSzukaj->setAutoDefault(false);
  // Only executed entries are searched, in their browser.
  const bool przeglad = MaPrzegladTransakcji();
  txtSzukaj_->setEnabled(przeglad);
  cmdSzukaj->setEnabled(przeglad);
  connect(txtSzukaj_, &QLineEdit::returnPressed, this, &frmMain::cmdSzukaj_Click);
  connect(cmdSzukaj, &QPushButton::clicked, this, &frmMain::cmdSzukaj_Click);
  gora->addWidget(txtSzukaj_);
  gora->addWidget(cmdSzukaj);
  ukladPulpitu_->addLayout(gora);

  // The balance panel with its chart, and the daily overview over the notepad.
  auto* srodek = new QHBoxLayout;
  srodek->setSpacing(10);
  panel_ = new PanelStanu(pulpit_);
  srodek->addWidget(panel_, 3);
  auto* boczna = new QVBoxLayout;
  boczna->setSpacing(6);
  przeglad_ = new PrzegladDniaGui(pulpit_);
  notatnik_ = new NotatnikGui(pulpit_);
  boczna->addWidget(przeglad_, 3);
  boczna->addWidget(notatnik_, 2);
  srodek->addLayout(boczna, 2);
  ukladPulpitu_->addLayout(srodek, 1);

  // The lists: entries on the left with the planned sums, transfers on the right.
  auto* dol = new QHBoxLayout;
  dol->setSpacing(10);
  const ListaPulpitu rodzaje[4] = {ListaPulpitu::Transakcje, ListaPulpitu::Zaplanowane,
                                   ListaPulpitu::Wewnetrzne, ListaPulpitu::WewnetrzneZaplanowane};
  for (int i = 0; i < 4; ++i) listy_[size_t(i)] = new ListaPulpituGui(rodzaje[i], pulpit_);
  sumy_ = new SumyZaplanowanychGui(pulpit_);
  auto* lewa = new QVBoxLayout;
  lewa->setSpacing(4);
  lewa->addWidget(listy_[0], 10);
  lewa->addWidget(listy_[1], 5);
  lewa->addWidget(sumy_);
  auto* prawa = new QVBoxLayout;
  prawa->setSpacing(4);
  prawa->addWidget(listy_[2], 10);
  prawa->addWidget(listy_[3], 5);
  prawa->addSpacing(sumy_->sizeHint().height());
  dol->addLayout(lewa, 3);
  dol->addLayout(prawa, 2);
  ukladPulpitu_->addLayout(dol, 3);

  // On a small screen the dashboard scrolls rather than squeezing its lists to nothing.
  auto* przewijanie = new QScrollArea;
  przewijanie->setObjectName(QStringLiteral("scrPulpit"));
  przewijanie->setWidget(pulpit_);
  przewijanie->setWidgetResizable(true);
  przewijanie->setFrameShape(QFrame::NoFrame);
  pulpit_->setMinimumSize(840, 540);
  return przewijanie;
}

void frmMain::zbudujStatus() {
  QStatusBar* pasek = statusBar();
  pasek->setObjectName(QStringLiteral("StatusBar1"));
  for (int i = 0; i < 6; ++i) {
    auto* p = new QLabel(pasek);
    p->setObjectName(QStringLiteral("Panel(%1)").arg(i + 1));
    p->setFrameShape(QFrame::StyledPanel);
    p->setFrameShadow(QFrame::Sunken);
    p->setContentsMargins(4, 0, 4, 0);
    // Widths follow the window, not the texts.
    p->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    pasek->addWidget(p, kUdzialyPaneli[i]);
    panele_[i] = p;
  }
  panele_[0]->setText(Napis(QStringLiteral("frmMain57")));
  panele_[2]->setAlignment(Qt::AlignCenter);
  zegar_ = new QTimer(this);
  zegar_->setInterval(15000);
  connect(zegar_, &QTimer::timeout, this, &frmMain::odswiezZegar);
  zegar_->start();
  odswiezZegar();
}

void frmMain::odswiezZegar() {
  panele_[2]->setText(Teraz().time().toString(QStringLiteral("HH:mm")));
}

void frmMain::OdswiezStatus() {
  panele_[1]->setText(Napis(QStringLiteral("Module11")) + QLatin1Char(' ') +
                      FormatDaty(sesja.pubFiltrCzasowy.pozycja, sesja.pubFormatDaty_ddpmmmpyy));
  panele_[3]->setText(Napis(QStringLiteral("Module12")) + QLatin1Char(' ') +
                      FormatDaty(Dzis(), sesja.pubFormatDaty_ddpmmmpyy));
  panele_[4]->setText(Napis(QStringLiteral("Module13")) + QLatin1Char(' ') +
                      FiltrCzasowy(sesja.pubFiltrCzasowy).opisDlugi);
  // A text wider than its panel is cut: the tool tip keeps it whole.
  for (QLabel* p : panele_) p->setToolTip(p->text());
}

void frmMain::OdswiezMain() { listy_[0]->Odswiez(); }

void frmMain::OdswiezMainZaplanowane() {
  listy_[1]->Odswiez();
  sumy_->Odswiez();
}

void frmMain::OdswiezMainWewnetrzne() { listy_[2]->Odswiez(); }
void frmMain::OdswiezMainWewnetrzneZaplanowane() { listy_[3]->Odswiez(); }
void frmMain::StanKont() { panel_->StanKont(); }

void frmMain::PokolorujListy() {
  for (ListaPulpituGui* l : listy_)
    PasujListe(l->Lista(), sesja.pubUstawienia.listajeden, sesja.pubUstawienia.listadwa);
}

void frmMain::cmdSzukaj_Click() {
  if (MaPrzegladTransakcji()) Szukaj(txtSzukaj_->text());
}

void frmMain::Przywroc() {
  setWindowState((windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
  show();
  raise();
  activateWindow();
}

void frmMain::changeEvent(QEvent* e) {
  if (e->type() == QEvent::ActivationChange && isActiveWindow()) {
    OdswiezStatus();
    odswiezZegar();
    przeglad_->Wznow();
  }
  QMainWindow::changeEvent(e);
}

void frmMain::resizeEvent(QResizeEvent* e) {
  QMainWindow::resizeEvent(e);
  OdswiezStatus();
}

void frmMain::showEvent(QShowEvent* e) { QMainWindow::showEvent(e); }

void frmMain::ZapiszNotatnik() {
  // At the end of the session a note that could not be kept is said, not lost in silence.
  if (!notatnik_->Zapisz())
    MyMsgbox(Napis(QStringLiteral("frmMain173")), Napis(QStringLiteral("frmMain174")), MsgOK,
             IkonaOstrzezenie);
}

void frmMain::closeEvent(QCloseEvent* e) {
  if (!zamkniety_) {
    zamkniety_ = true;
    zegar_->stop();
    ZapiszNotatnik();
    ZapiszPrzypomnieniaIPowiadom();
    // No screen outlives the main window.
    for (QWidget* w : QApplication::topLevelWidgets())
      if (w != this && w->isVisible()) w->close();
  }
  e->accept();
}

void OdswiezMain() {
  if (frmMain* f = frmMain::Instancja()) f->OdswiezMain();
}
void OdswiezMainZaplanowane() {
  if (frmMain* f = frmMain::Instancja()) f->OdswiezMainZaplanowane();
}
void OdswiezMainWewnetrzne() {
  if (frmMain* f = frmMain::Instancja()) f->OdswiezMainWewnetrzne();
}
void OdswiezMainWewnetrzneZaplanowane() {
  if (frmMain* f = frmMain::Instancja()) f->OdswiezMainWewnetrzneZaplanowane();
}
void StanKont() {
  if (frmMain* f = frmMain::Instancja()) f->StanKont();
}
void OdswiezStatus() {
  if (frmMain* f = frmMain::Instancja()) f->OdswiezStatus();
}
void PokolorujListy() {
  if (frmMain* f = frmMain::Instancja()) f->PokolorujListy();
}

void ZakonczProgram() {
  if (frmMain* f = frmMain::Instancja())
    f->close();
  else
    QApplication::quit();
}

QString LiniaDaty() {
  const QDate dzis = Dzis();
  QString linia = zWielkiej(FormatDaty(dzis, QStringLiteral("dddd"))) + QStringLiteral(", ") +
                  FormatDaty(dzis, QStringLiteral("y")) + QLatin1Char(' ') +
                  Napis(QStringLiteral("Module142"));
  // Name days are Polish names: only the Polish edition shows them.
  if (sesja.pubJezyk == 1) linia += QLatin1Char(' ') + sesja.pubUstawienia.imieniny;
  return linia;
}
