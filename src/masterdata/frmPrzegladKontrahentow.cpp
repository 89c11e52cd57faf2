#include "masterdata/frmPrzegladKontrahentow.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/nawigacja_gui.h"
#include "masterdata/frmEdycjaKontrahenta.h"
#include "masterdata/kontrahenci.h"
#include "ui/przegladarka_gui.h"
#include "ui/przyciskifiltra_gui.h"
#include "ui/wyszukiwanie_gui.h"
#include "masterdata/szerokosci_gui.h"
#include "store/baza.h"
#include "store/filtr.h"
#include "store/napis.h"
#include "store/tekst.h"

namespace {
// A line's key is "a" and the row's id; the id is the key without its first character.
constexpr int RolaKlucza = Qt::UserRole;
constexpr int RolaWydatku = Qt::UserRole + 1;  // planned lines: the expense, to tell the kind
constexpr int SzerokoscSzczegolow = 560;
constexpr WymiarySzczegolow Wymiary{340, SzerokoscSzczegolow, 600};

qint64 idZKlucza(const QTreeWidgetItem* w) {
  return w ? w->data(0, RolaKlucza).toString().mid(1).toLongLong() : 0;
}

QLabel* wartosc(const QString& nazwa, QWidget* rodzic) {
  QLabel* l = WartoscPrzegladarki(nazwa, rodzic);
  l->setMinimumWidth(110);
  return l;
}

QTreeWidget* lista(const QString& nazwa, const QStringList& naglowki, QWidget* rodzic) {
  auto* l = new QTreeWidget(rodzic);
  l->setObjectName(nazwa);
  l->setRootIsDecorated(false);
  l->setUniformRowHeights(true);
  l->setAllColumnsShowFocus(true);
  l->setHeaderLabels(naglowki);
  return l;
}
}  // namespace

frmPrzegladKontrahentow::frmPrzegladKontrahentow(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmPrzegladKontrahentow"));
  OtworzBaze();
  zbuduj();
  const auto jest = [](const char* ekran) { return Nawigacja::Dostepny(QLatin1String(ekran)); };
  // The entry browser may already stand behind this form.
  cmdPrzegladDokonanych_->setEnabled(sesja.pubPrzegladOtwarty != -1 &&
                                     jest("frmPrzegladTransakcji"));
  cmdMenu_[3]->setEnabled(cmdPrzegladDokonanych_->isEnabled());
  for (const char* nazwa : {"cmdRaportDetaliczny", "cmdRaportZbiorczy", "cmdMenu(4)", "cmdMenu(5)"})
    findChild<QWidget*>(QLatin1String(nazwa))->setEnabled(jest("frmRaportKontrahenta"));
  for (const char* nazwa : {"cmdPrzegladKontrahentawCzasie", "cmdMenu(6)"})
    findChild<QWidget*>(QLatin1String(nazwa))->setEnabled(jest("frmRaportKontrahentaWCzasie"));
  cmdPrzelew_->setEnabled(jest("frmEdycjaPrzelewu"));
  // The payment slip is a Polish form: the English edition has no such button.
  if (sesja.pubJezyk != 1) {
    delete cmdPrzelew_;
    cmdPrzelew_ = nullptr;
  }
  // An editor behind this form: a second one may not be opened.
  if (sesja.pubEdytorOtwarty)
    for (QPushButton* b : {cmdDodajZaplanowanyPrzychod_, cmdDodajZaplanowanyWydatek_,
                           cmdRealizujZaplanowana_, cmdEdytuj_})
      b->setEnabled(false);
  sesja.pubWidokZrodlowy = 3;
  cmdWybierz_->setText(sesja.pubEdytorOtwarty ? Napis(QStringLiteral("frmPrzegladKontrahentow75"))
                                              : Napis(QStringLiteral("frmPrzegladKontrahentow76")));
  kopia_ = sesja.pubKontrahent;
  ustawSzczegoly();
  UstawPozycjePrzegladarki(this);
  WypelnijListe();
  lvwKontrahenci_->setFocus();
}

frmPrzegladKontrahentow::~frmPrzegladKontrahentow() { sesja.pubWidokZrodlowy = 0; }

void frmPrzegladKontrahentow::zbuduj() {
  setWindowTitle(Napis(QStringLiteral("frmPrzegladKontrahentow1")));

  auto* pasek = new QToolBar(this);
  pasek->setObjectName(QStringLiteral("tbrMenu"));
  pasek->setToolButtonStyle(Qt::ToolButtonTextOnly);
  const QString menu[] = {Napis(QStringLiteral("frmPrzegladKontrahentow7")),
                          Napis(QStringLiteral("frmPrzegladKontrahentow8")),
                          Napis(QStringLiteral("frmPrzegladKontrahentow9")),
                          Napis(QStringLiteral("frmPrzegladKontrahentow10")),
                          Napis(QStringLiteral("frmPrzegladKontrahentow11")),
                          Napis(QStringLiteral("frmPrzegladKontrahentow12")),
                          Napis(QStringLiteral("frmPrzegladKontrahentow13")),
                          Napis(QStringLiteral("frmPrzegladKontrahentow14"))};
  const QString podpowiedzi[] = {Napis(QStringLiteral("frmPrzegladKontrahentow15")),
                                 Napis(QStringLiteral("frmPrzegladKontrahentow16")),
                                 Napis(QStringLiteral("frmPrzegladKontrahentow17")),
                                 Napis(QStringLiteral("frmPrzegladKontrahentow18")),
                                 Napis(QStringLiteral("frmPrzegladKontrahentow19")),
                                 Napis(QStringLiteral("frmPrzegladKontrahentow20")),
                                 Napis(QStringLiteral("frmPrzegladKontrahentow21")),
                                 Napis(QStringLiteral("frmPrzegladKontrahentow22"))};
  for (int i = 0; i < 8; ++i) {
    auto* b = new QToolButton(pasek);
    b->setObjectName(QStringLiteral("cmdMenu(%1)").arg(i));
    b->setText(menu[i]);
    b->setToolTip(podpowiedzi[i]);
    b->setAutoRaise(true);
    pasek->addWidget(b);
    if (i == 2 || i == 3 || i == 6) pasek->addSeparator();
    cmdMenu_[i] = b;
  }
  // The help file is not part of this build.
  cmdMenu_[7]->setEnabled(false);
  connect(cmdMenu_[0], &QToolButton::clicked, this, &frmPrzegladKontrahentow::NowyKontrahent);
  connect(cmdMenu_[1], &QToolButton::clicked, this, &frmPrzegladKontrahentow::EdytujKontrahenta);
  connect(cmdMenu_[2], &QToolButton::clicked, this, &frmPrzegladKontrahentow::SkasujKontrahenta);
  connect(cmdMenu_[3], &QToolButton::clicked, this,
          &frmPrzegladKontrahentow::cmdPrzegladDokonanych_Click);
  connect(cmdMenu_[4], &QToolButton::clicked, this, [this] { cmdRaport_Click(true); });
  connect(cmdMenu_[5], &QToolButton::clicked, this, [this] { cmdRaport_Click(false); });
  connect(cmdMenu_[6], &QToolButton::clicked, this,
          &frmPrzegladKontrahentow::cmdPrzegladKontrahentawCzasie_Click);

  auto* lblKlucz = new QLabel(Napis(QStringLiteral("frmPrzegladKontrahentow2")), this);
  lblKlucz->setObjectName(QStringLiteral("lblKlucz"));
  txtKlucz_ = new QLineEdit(this);
  txtKlucz_->setObjectName(QStringLiteral("txtKlucz"));
  txtKlucz_->setClearButtonEnabled(true);
  lblKlucz->setBuddy(txtKlucz_);
  cmdNastepny_ = PrzyciskPrzegladarki(QStringLiteral("cmdNastepny"),
                                      Napis(QStringLiteral("frmPrzegladKontrahentow3")), this);

  lvwKontrahenci_ = lista(QStringLiteral("lvwKontrahenci"),
                          {Napis(QStringLiteral("frmPrzegladKontrahentow5")),
                           Napis(QStringLiteral("frmPrzegladKontrahentow6"))},
                          this);
  // The longest short name shows whole; the description gets the rest.
  const int kolumnaNazwy = SzerokoscKolumnyNazwy(lvwKontrahenci_, false);
  lvwKontrahenci_->setColumnWidth(0, kolumnaNazwy);
  lvwKontrahenci_->setMinimumWidth(
      kolumnaNazwy + lvwKontrahenci_->fontMetrics().horizontalAdvance(QLatin1Char('x')) * 12 +
      lvwKontrahenci_->verticalScrollBar()->sizeHint().width() + 2 * lvwKontrahenci_->frameWidth());
  lvwKontrahenci_->setContextMenuPolicy(Qt::CustomContextMenu);
  new KlawiszePrzegladarki(
      lvwKontrahenci_, [this] { SkasujKontrahenta(); }, [this] { cmdWybierz_Click(); });
  lvwKontrahenci_->setMinimumHeight(260);
  connect(lvwKontrahenci_, &QTreeWidget::currentItemChanged, this, [this] { PokazKontrahenta(); });
  connect(lvwKontrahenci_, &QTreeWidget::itemDoubleClicked, this, [this] { cmdWybierz_Click(); });
  connect(lvwKontrahenci_, &QTreeWidget::customContextMenuRequested, this,
          &frmPrzegladKontrahentow::menuKontekstowe);
  wyszukiwanie_ = new WyszukiwanieGui(txtKlucz_, cmdNastepny_, lvwKontrahenci_, 1);
  connect(wyszukiwanie_, &WyszukiwanieGui::wybierz, this,
          &frmPrzegladKontrahentow::cmdWybierz_Click);

  cmdWybierz_ = PrzyciskPrzegladarki(QStringLiteral("cmdWybierz"), QString(), this);
  cmdWybierz_->setDefault(true);
  cmdAnuluj_ = PrzyciskPrzegladarki(QStringLiteral("cmdAnuluj"),
                                    Napis(QStringLiteral("frmPrzegladKontrahentow4")), this);
  cmdSzczegoly_ = PrzyciskPrzegladarki(QStringLiteral("cmdSzczegoly"), QString(), this);
  connect(cmdWybierz_, &QPushButton::clicked, this, &frmPrzegladKontrahentow::cmdWybierz_Click);
  connect(cmdAnuluj_, &QPushButton::clicked, this, &frmPrzegladKontrahentow::reject);
  connect(cmdSzczegoly_, &QPushButton::clicked, this, &frmPrzegladKontrahentow::cmdSzczegoly_Click);

  szczegoly_ = new QWidget(this);
  szczegoly_->setObjectName(QStringLiteral("fraSzczegoly"));
  szczegoly_->setFixedWidth(SzerokoscSzczegolow);
  auto* ukladSzczegolow = new QVBoxLayout(szczegoly_);
  ukladSzczegolow->setContentsMargins(0, 0, 0, 0);
  ukladSzczegolow->addWidget(zbudujDokonane());
  ukladSzczegolow->addWidget(zbudujZaplanowane(), 1);

  auto* szukanie = new QHBoxLayout;
  szukanie->addWidget(lblKlucz);
  szukanie->addWidget(txtKlucz_, 1);
  szukanie->addWidget(cmdNastepny_);
  auto* dol = new QHBoxLayout;
  dol->addWidget(cmdSzczegoly_);
  dol->addStretch();
  dol->addWidget(cmdWybierz_);
  dol->addWidget(cmdAnuluj_);
  auto* lewa = new QVBoxLayout;
  lewa->addLayout(szukanie);
  lewa->addWidget(lvwKontrahenci_, 1);
  lewa->addLayout(dol);
  auto* srodek = new QHBoxLayout;
  srodek->addLayout(lewa, 1);
  srodek->addWidget(szczegoly_);
  auto* uklad = new QVBoxLayout(this);
  uklad->setMenuBar(pasek);
  uklad->addLayout(srodek, 1);

  menu_ = new QMenu(this);
  mnuNowyKontrahent_ = menu_->addAction(Napis(QStringLiteral("frmPrzegladKontrahentow55")));
  mnuNowyKontrahent_->setObjectName(QStringLiteral("mnuNowyKontrahent"));
  mnuEdytujKontrahenta_ = menu_->addAction(Napis(QStringLiteral("frmPrzegladKontrahentow56")));
  mnuEdytujKontrahenta_->setObjectName(QStringLiteral("mnuEdytujKontrahenta"));
  mnuSkasujKontrahenta_ = menu_->addAction(Napis(QStringLiteral("frmPrzegladKontrahentow57")));
  mnuSkasujKontrahenta_->setObjectName(QStringLiteral("mnuSkasujKontrahenta"));
  connect(mnuNowyKontrahent_, &QAction::triggered, this, &frmPrzegladKontrahentow::NowyKontrahent);
  connect(mnuEdytujKontrahenta_, &QAction::triggered, this,
          &frmPrzegladKontrahentow::EdytujKontrahenta);
  connect(mnuSkasujKontrahenta_, &QAction::triggered, this,
          &frmPrzegladKontrahentow::SkasujKontrahenta);
  // The names show whole, and every command of the strip shows, in either edition, also in
  // the narrow picker.
  const QMargins m = uklad->contentsMargins();
  najwezsza_ = std::max(Wymiary.waska, lewa->minimumSize().width() + m.left() + m.right());
  pasek_ = SzerokoscPaska(pasek) + m.left() + m.right();
  szerokoscWaska_ = std::max(szerokoscWaska_, najwezsza_);
}

QWidget* frmPrzegladKontrahentow::zbudujDokonane() {
  frmDokonane_ = new QGroupBox(Napis(QStringLiteral("frmPrzegladKontrahentow23")), this);
  frmDokonane_->setObjectName(QStringLiteral("frmDokonane"));
  filtr_ = new PrzyciskiFiltra(frmDokonane_, 2);
  filtr_->Zakres()->setText(Napis(QStringLiteral("frmPrzegladKontrahentow33")));
  connect(filtr_, &PrzyciskiFiltra::zmieniony, this, &frmPrzegladKontrahentow::PokazKontrahenta);
  lblOkres_ = new QLabel(frmDokonane_);
  lblOkres_->setObjectName(QStringLiteral("lblOkres"));
  lblOkres_->setWordWrap(true);
  QFont pogrubiona = lblOkres_->font();
  pogrubiona.setBold(true);
  lblOkres_->setFont(pogrubiona);

  auto* opcje = new QHBoxLayout;
  for (int i = 0; i < 2; ++i) {
    optWszyscy_[i] = new QRadioButton(i == 0 ? Napis(QStringLiteral("frmPrzegladKontrahentow24"))
                                             : Napis(QStringLiteral("frmPrzegladKontrahentow25")),
                                      frmDokonane_);
    optWszyscy_[i]->setObjectName(QStringLiteral("optWszyscy(%1)").arg(i));
    optWszyscy_[i]->setChecked(i == 0);
    opcje->addWidget(optWszyscy_[i]);
    connect(optWszyscy_[i], &QRadioButton::toggled, this, [this](bool wlaczony) {
      if (wlaczony) PokazKontrahenta();
    });
  }
  opcje->addStretch();

  lblIlosc_ = wartosc(QStringLiteral("lblIlosc"), frmDokonane_);
  lblPrzychod_ = wartosc(QStringLiteral("lblPrzychod"), frmDokonane_);
  lblWydatek_ = wartosc(QStringLiteral("lblWydatek"), frmDokonane_);
  auto* sumy = new QGridLayout;
  sumy->addWidget(new QLabel(Napis(QStringLiteral("frmPrzegladKontrahentow26")), frmDokonane_), 0,
                  0);
  sumy->addWidget(lblIlosc_, 0, 1);
  sumy->addWidget(new QLabel(Napis(QStringLiteral("frmPrzegladKontrahentow27")), frmDokonane_), 1,
                  0);
  sumy->addWidget(lblPrzychod_, 1, 1);
  sumy->addWidget(new QLabel(Napis(QStringLiteral("frmPrzegladKontrahentow28")), frmDokonane_), 2,
                  0);
  sumy->addWidget(lblWydatek_, 2, 1);
  sumy->setColumnStretch(2, 1);

  cmdPrzegladDokonanych_ =
      PrzyciskPrzegladarki(QStringLiteral("cmdPrzegladDokonanych"),
                           Napis(QStringLiteral("frmPrzegladKontrahentow29")), frmDokonane_);
  auto* cmdRaportDetaliczny =
      PrzyciskPrzegladarki(QStringLiteral("cmdRaportDetaliczny"),
                           Napis(QStringLiteral("frmPrzegladKontrahentow30")), frmDokonane_);
  auto* cmdRaportZbiorczy =
      PrzyciskPrzegladarki(QStringLiteral("cmdRaportZbiorczy"),
                           Napis(QStringLiteral("frmPrzegladKontrahentow31")), frmDokonane_);
  auto* cmdWCzasie =
      PrzyciskPrzegladarki(QStringLiteral("cmdPrzegladKontrahentawCzasie"),
                           Napis(QStringLiteral("frmPrzegladKontrahentow32")), frmDokonane_);
  connect(cmdPrzegladDokonanych_, &QPushButton::clicked, this,
          &frmPrzegladKontrahentow::cmdPrzegladDokonanych_Click);
  connect(cmdRaportDetaliczny, &QPushButton::clicked, this, [this] { cmdRaport_Click(true); });
  connect(cmdRaportZbiorczy, &QPushButton::clicked, this, [this] { cmdRaport_Click(false); });
  connect(cmdWCzasie, &QPushButton::clicked, this,
          &frmPrzegladKontrahentow::cmdPrzegladKontrahentawCzasie_Click);
  auto* polecenia = new QHBoxLayout;
  for (QPushButton* b :
       {cmdPrzegladDokonanych_, cmdRaportDetaliczny, cmdRaportZbiorczy, cmdWCzasie})
    polecenia->addWidget(b);

  auto* uklad = new QVBoxLayout(frmDokonane_);
  uklad->addWidget(filtr_);
  uklad->addWidget(lblOkres_);
  uklad->addLayout(opcje);
  uklad->addLayout(sumy);
  uklad->addLayout(polecenia);
  return frmDokonane_;
}

QWidget* frmPrzegladKontrahentow::zbudujZaplanowane() {
  frmZaplanowane_ = new QGroupBox(Napis(QStringLiteral("frmPrzegladKontrahentow34")), this);
  frmZaplanowane_->setObjectName(QStringLiteral("frmZaplanowane"));
  lvwZaplanowane_ = lista(QStringLiteral("lvwZaplanowane"),
                          {Napis(QStringLiteral("frmPrzegladKontrahentow35")),
                           Napis(QStringLiteral("frmPrzegladKontrahentow36")),
                           Napis(QStringLiteral("frmPrzegladKontrahentow37")),
                           Napis(QStringLiteral("frmPrzegladKontrahentow38"))},
                          frmZaplanowane_);
  lvwZaplanowane_->setColumnWidth(0, 90);
  lvwZaplanowane_->setColumnWidth(1, 95);
  lvwZaplanowane_->setColumnWidth(2, 95);
  lvwZaplanowane_->headerItem()->setTextAlignment(1, Qt::AlignRight);
  lvwZaplanowane_->headerItem()->setTextAlignment(2, Qt::AlignRight);
  new KlawiszePrzegladarki(
      lvwZaplanowane_, [this] { cmdUsunZaplanowana_Click(); }, nullptr);
  connect(lvwZaplanowane_, &QTreeWidget::itemDoubleClicked, this, [this] {
    if (!sesja.pubEdytorOtwarty) cmdEdytuj_Click();
  });

  lblSumaZaplanowanychPrzychodow_ =
      wartosc(QStringLiteral("lblSumaZaplanowanychPrzychodow"), frmZaplanowane_);
  lblSumaZaplanowanychWydatkow_ =
      wartosc(QStringLiteral("lblSumaZaplanowanychWydatkow"), frmZaplanowane_);
  lblSumaZaleglychPrzychodow_ =
      wartosc(QStringLiteral("lblSumaZaleglychPrzychodow"), frmZaplanowane_);
  lblSumaZaleglychWydatkow_ = wartosc(QStringLiteral("lblSumaZaleglychWydatkow"), frmZaplanowane_);
  auto* sumy = new QGridLayout;
  auto* naglowekPrzychody =
      new QLabel(Napis(QStringLiteral("frmPrzegladKontrahentow41")), frmZaplanowane_);
  auto* naglowekWydatki =
      new QLabel(Napis(QStringLiteral("frmPrzegladKontrahentow42")), frmZaplanowane_);
  naglowekPrzychody->setAlignment(Qt::AlignRight);
  naglowekWydatki->setAlignment(Qt::AlignRight);
  sumy->addWidget(naglowekPrzychody, 0, 1);
  sumy->addWidget(naglowekWydatki, 0, 2);
  sumy->addWidget(new QLabel(Napis(QStringLiteral("frmPrzegladKontrahentow39")), frmZaplanowane_),
                  1, 0);
  sumy->addWidget(lblSumaZaplanowanychPrzychodow_, 1, 1);
  sumy->addWidget(lblSumaZaplanowanychWydatkow_, 1, 2);
  sumy->addWidget(new QLabel(Napis(QStringLiteral("frmPrzegladKontrahentow40")), frmZaplanowane_),
                  2, 0);
  sumy->addWidget(lblSumaZaleglychPrzychodow_, 2, 1);
  sumy->addWidget(lblSumaZaleglychWydatkow_, 2, 2);
  sumy->setColumnStretch(3, 1);

  const auto b = [this](const char* nazwa, const QString& tekst, const QString& podpowiedz) {
    QPushButton* p = PrzyciskPrzegladarki(QLatin1String(nazwa), tekst, frmZaplanowane_);
    p->setToolTip(podpowiedz);
    return p;
  };
  cmdDodajZaplanowanyPrzychod_ =
      b("cmdDodajZaplanowanyPrzychod", Napis(QStringLiteral("frmPrzegladKontrahentow43")),
        Napis(QStringLiteral("frmPrzegladKontrahentow49")));
  cmdDodajZaplanowanyWydatek_ =
      b("cmdDodajZaplanowanyWydatek", Napis(QStringLiteral("frmPrzegladKontrahentow44")),
        Napis(QStringLiteral("frmPrzegladKontrahentow50")));
  cmdEdytuj_ = b("cmdEdytuj", Napis(QStringLiteral("frmPrzegladKontrahentow45")),
                 Napis(QStringLiteral("frmPrzegladKontrahentow51")));
  cmdRealizujZaplanowana_ =
      b("cmdRealizujZaplanowana", Napis(QStringLiteral("frmPrzegladKontrahentow46")),
        Napis(QStringLiteral("frmPrzegladKontrahentow52")));
  cmdUsunZaplanowana_ = b("cmdUsunZaplanowana", Napis(QStringLiteral("frmPrzegladKontrahentow47")),
                          Napis(QStringLiteral("frmPrzegladKontrahentow53")));
  cmdPrzelew_ = b("cmdPrzelew", Napis(QStringLiteral("frmPrzegladKontrahentow48")),
                  Napis(QStringLiteral("frmPrzegladKontrahentow54")));
  connect(cmdDodajZaplanowanyPrzychod_, &QPushButton::clicked, this,
          [this] { DodajZaplanowany(1); });
  connect(cmdDodajZaplanowanyWydatek_, &QPushButton::clicked, this,
          [this] { DodajZaplanowany(2); });
  connect(cmdEdytuj_, &QPushButton::clicked, this, &frmPrzegladKontrahentow::cmdEdytuj_Click);
  connect(cmdRealizujZaplanowana_, &QPushButton::clicked, this,
          &frmPrzegladKontrahentow::cmdRealizujZaplanowana_Click);
  connect(cmdUsunZaplanowana_, &QPushButton::clicked, this,
          &frmPrzegladKontrahentow::cmdUsunZaplanowana_Click);
  connect(cmdPrzelew_, &QPushButton::clicked, this, &frmPrzegladKontrahentow::cmdPrzelew_Click);
  auto* polecenia = new QGridLayout;
  polecenia->addWidget(cmdDodajZaplanowanyPrzychod_, 0, 0);
  polecenia->addWidget(cmdDodajZaplanowanyWydatek_, 0, 1);
  polecenia->addWidget(cmdPrzelew_, 0, 2);
  polecenia->addWidget(cmdEdytuj_, 1, 0);
  polecenia->addWidget(cmdRealizujZaplanowana_, 1, 1);
  polecenia->addWidget(cmdUsunZaplanowana_, 1, 2);

  auto* uklad = new QVBoxLayout(frmZaplanowane_);
  uklad->addWidget(lvwZaplanowane_, 1);
  uklad->addLayout(sumy);
  uklad->addLayout(polecenia);
  return frmZaplanowane_;
}

QTreeWidgetItem* frmPrzegladKontrahentow::wybrany() const { return lvwKontrahenci_->currentItem(); }

QTreeWidgetItem* frmPrzegladKontrahentow::wybranaZaplanowana() const {
  return lvwZaplanowane_->currentItem();
}

// ---- filling and showing ---------------------------------------------------------------------

void frmPrzegladKontrahentow::WypelnijListe() {
  {
    const QSignalBlocker cisza(lvwKontrahenci_);
    lvwKontrahenci_->clear();
    QTreeWidgetItem* doWybrania = nullptr;
    for (Rekordy rs = pubBaza().Czytaj(
             QStringLiteral("SELECT id,skrocona,opis FROM kontrahent ORDER BY skrocona"));
         !rs.Eof(); rs.MoveNext()) {
      const qint64 id = rs.Pole(QStringLiteral("id")).toLongLong();
      auto* w = new QTreeWidgetItem(lvwKontrahenci_, {Oczysc(rs.Pole(QStringLiteral("skrocona"))),
                                                      Oczysc(rs.Pole(QStringLiteral("opis")))});
      w->setData(0, RolaKlucza, QStringLiteral("a%1").arg(id));
      if (id == sesja.pubKontrahent.id) doWybrania = w;
    }
    if (!doWybrania) doWybrania = lvwKontrahenci_->topLevelItem(0);
    lvwKontrahenci_->setCurrentItem(doWybrania);
    if (doWybrania) lvwKontrahenci_->scrollToItem(doWybrania);
  }
  filtr_->NacisnijBiezacy();
}

void frmPrzegladKontrahentow::PokazKontrahenta() {
  QTreeWidgetItem* item = wybrany();
  if (!item) {
    OdswiezZaplanowane();
    return;
  }
  sesja.pubKontrahent.id = idZKlucza(item);
  sesja.pubKontrahent.skrocona = item->text(0);
  OdswiezZaplanowane();
  if (sesja.pubSzczegoly != 1) return;
  sesja.pubOkres = FiltrCzasowy(sesja.pubFiltrCzasowy);
  lblOkres_->setText(sesja.pubOkres.opisDlugi);
  const SumyKontrahenta s =
      SumyDokonanych(sesja.pubKontrahent.id, !optWszyscy_[0]->isChecked(), sesja.pubOkres.warunek);
  lblIlosc_->setText(QString::number(s.ile));
  lblPrzychod_->setText(FormatKwoty(s.przychod));
  lblWydatek_->setText(FormatKwoty(s.wydatek));
}

void frmPrzegladKontrahentow::OdswiezZaplanowane() {
  const QSignalBlocker cisza(lvwZaplanowane_);
  lvwZaplanowane_->clear();
  // With no counterparty the panel is empty (id 0 would read the entries that name none).
  const PanelZaplanowanych p =
      wybrany() ? CzytajZaplanowane(idZKlucza(wybrany()), sesja.pubFiltrCzasowy.pozycja)
                : PanelZaplanowanych{};
  for (const ZaplanowanaKontrahenta& z : p.wiersze) {
    auto* w = new QTreeWidgetItem(lvwZaplanowane_,
                                  {FormatDaty(z.data, sesja.pubFormatDaty_ddpmmmpyy),
                                   FormatKwoty(z.przychod), FormatKwoty(z.wydatek), z.opis});
    w->setData(0, RolaKlucza, QStringLiteral("a%1").arg(z.id));
    w->setData(0, RolaWydatku, z.wydatek);
    w->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    w->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
  }
  if (lvwZaplanowane_->topLevelItemCount() > 0)
    lvwZaplanowane_->setCurrentItem(lvwZaplanowane_->topLevelItem(0));
  lblSumaZaplanowanychPrzychodow_->setText(LiczbaBezMaski(p.przychody));
  lblSumaZaplanowanychWydatkow_->setText(LiczbaBezMaski(p.wydatki));
  lblSumaZaleglychPrzychodow_->setText(LiczbaBezMaski(p.zaleglePrzychody));
  lblSumaZaleglychWydatkow_->setText(LiczbaBezMaski(p.zalegleWydatki));
}

WymiarySzczegolow frmPrzegladKontrahentow::wymiary() const {
  // Open, the details widen the window under the strip; closed, the list alone must hold it.
  const int panel = Wymiary.panel;
  const int waska = std::max(najwezsza_, sesja.pubSzczegoly == 1 ? pasek_ - panel : pasek_);
  return {waska, Wymiary.panel, Wymiary.wysokosc};
}

void frmPrzegladKontrahentow::ustawSzczegoly() {
  PokazSzczegolyPrzegladarki(
      this, szczegoly_, cmdSzczegoly_, Napis(QStringLiteral("frmPrzegladKontrahentow68")),
      Napis(QStringLiteral("frmPrzegladKontrahentow69")), wymiary(), szerokoscWaska_);
}

// ---- commands on counterparties --------------------------------------------------------------

void frmPrzegladKontrahentow::cmdWybierz_Click() {
  if (sesja.pubTrybPrzegladu != 2) {
    EdytujKontrahenta();
    return;
  }
  // The picker closes in any case: with an empty list the record stays as it was.
  if (QTreeWidgetItem* item = wybrany()) {
    sesja.pubKontrahent.id = idZKlucza(item);
    sesja.pubKontrahent.skrocona = item->text(0);
  }
  accept();
}

void frmPrzegladKontrahentow::reject() {
  sesja.pubKontrahent = kopia_;
  QDialog::reject();
}

void frmPrzegladKontrahentow::NowyKontrahent() {
  const qint64 dawny = sesja.pubKontrahent.id;
  sesja.pubKontrahent.id = 0;
  frmEdycjaKontrahenta edytor(this);
  // The new counterparty is selected after the refill; on Cancel the line stays where it was.
  sesja.pubKontrahent.id = edytor.exec() == QDialog::Accepted ? edytor.Zapisany() : dawny;
  WypelnijListe();
}

void frmPrzegladKontrahentow::EdytujKontrahenta() {
  QTreeWidgetItem* item = wybrany();
  if (!item) return;
  sesja.pubKontrahent.id = idZKlucza(item);
  {
    frmEdycjaKontrahenta edytor(this);
    edytor.exec();
  }
  WypelnijListe();
}

void frmPrzegladKontrahentow::SkasujKontrahenta() {
  QTreeWidgetItem* item = wybrany();
  if (!item) return;
  if (!UsunKontrahenta(idZKlucza(item), item->text(0))) return;
  WypelnijListe();
  wyszukiwanie_->Wyczysc();
}

void frmPrzegladKontrahentow::cmdSzczegoly_Click() {
  szerokoscWaska_ = PrzelaczSzczegolyPrzegladarki(this, wymiary());
  ustawSzczegoly();
  PokazKontrahenta();
}

void frmPrzegladKontrahentow::menuKontekstowe(const QPoint& gdzie) {
  if (QTreeWidgetItem* item = lvwKontrahenci_->itemAt(gdzie)) lvwKontrahenci_->setCurrentItem(item);
  const bool jest = wybrany() != nullptr;
  mnuEdytujKontrahenta_->setEnabled(jest);
  mnuSkasujKontrahenta_->setEnabled(jest);
  menu_->popup(lvwKontrahenci_->viewport()->mapToGlobal(gdzie));
}

// ---- planned entries -------------------------------------------------------------------------

void frmPrzegladKontrahentow::otworzEdytor(int tryb, qint64 id, int rodzaj) {
  sesja.pubTryb = tryb;
  sesja.pubTransakcja.id = id;
  sesja.pubTransakcja.rodzaj = rodzaj;
  sesja.pubKategoria.rodzaj = rodzaj;
  sesja.pubKontrahent.id = idZKlucza(wybrany());
  sesja.pubKontrahent.skrocona = wybrany()->text(0);
  sesja.pubPrzedefiniowanyKontrahent = -1;
  Nawigacja::Pokaz(QStringLiteral("frmEdycjaTransakcji"), this);
  sesja.pubPrzedefiniowanyKontrahent = 0;
  // The editor's pickers have cleared it: this form still stands behind.
  sesja.pubWidokZrodlowy = 3;
}

void frmPrzegladKontrahentow::DodajZaplanowany(int rodzaj) {
  if (!wybrany() || sesja.pubEdytorOtwarty) return;
  otworzEdytor(1, 0, rodzaj);
  OdswiezZaplanowane();
  sesja.pubSzczegoly = 1;
}

void frmPrzegladKontrahentow::cmdEdytuj_Click() {
  QTreeWidgetItem* z = wybranaZaplanowana();
  if (!z || !wybrany() || sesja.pubEdytorOtwarty) return;
  sesja.pubWierszTransakcji = lvwZaplanowane_->indexOfTopLevelItem(z) + 1;
  const int rodzaj = z->data(0, RolaWydatku).toDouble() == 0.0 ? 1 : 2;
  otworzEdytor(1, idZKlucza(z), rodzaj);
  OdswiezZaplanowane();
  sesja.pubSzczegoly = 1;
}

void frmPrzegladKontrahentow::cmdRealizujZaplanowana_Click() {
  QTreeWidgetItem* z = wybranaZaplanowana();
  if (!z || !wybrany() || sesja.pubEdytorOtwarty) return;
  sesja.pubWierszTransakcji = lvwZaplanowane_->indexOfTopLevelItem(z) + 1;
  const int rodzaj = z->data(0, RolaWydatku).toDouble() == 0.0 ? 1 : 2;
  otworzEdytor(3, idZKlucza(z), rodzaj);
  // The executed sums change too: everything is read again.
  WypelnijListe();
  sesja.pubSzczegoly = 1;
}

void frmPrzegladKontrahentow::cmdUsunZaplanowana_Click() {
  QTreeWidgetItem* z = wybranaZaplanowana();
  if (!z) return;
  if (UsunZaplanowanaKontrahenta(idZKlucza(z))) {
    OdswiezZaplanowane();
  }
  sesja.pubSzczegoly = 1;
}

void frmPrzegladKontrahentow::cmdPrzelew_Click() {
  QTreeWidgetItem* z = wybranaZaplanowana();
  if (!z || !wybrany()) return;
  // A slip pays an expense; on an income there is nothing to pay.
  if (z->data(0, RolaWydatku).toDouble() != 0.0 && Nawigacja::Dostepny(QStringLiteral("frmEdycjaPrzelewu"))) {
    sesja.pubPrzelewKontrahent = idZKlucza(wybrany());
    sesja.pubPrzelewZaplanowana = idZKlucza(z);
    Nawigacja::Pokaz(QStringLiteral("frmEdycjaPrzelewu"), this);
  }
  sesja.pubSzczegoly = 1;
}

// ---- executed entries and reports ------------------------------------------------------------

void frmPrzegladKontrahentow::cmdPrzegladDokonanych_Click() {
  QTreeWidgetItem* item = wybrany();
  if (!item || !Nawigacja::Dostepny(QStringLiteral("frmPrzegladTransakcji"))) return;
  if (optWszyscy_[0]->isChecked()) {
    sesja.pubFiltrTransakcji = QStringLiteral(" AND transakcje.kontrahent=") +
                               QString::number(idZKlucza(item)) + QLatin1Char(' ');
    sesja.pubTytulTransakcji =
        Napis(QStringLiteral("frmPrzegladKontrahentow64")) + QLatin1Char(' ') + item->text(0);
  } else {
    sesja.pubFiltrTransakcji = QStringLiteral(" AND transakcje.kontrahent>0 ");
    sesja.pubTytulTransakcji = Napis(QStringLiteral("frmPrzegladKontrahentow65"));
  }
  sesja.pubWierszTransakcji = 0;
  sesja.pubTryb = 2;
  Nawigacja::Pokaz(QStringLiteral("frmPrzegladTransakcji"), this);
  filtr_->NacisnijBiezacy();
}

void frmPrzegladKontrahentow::kontrahentRaportu() {
  sesja.pubKontrahent.id = optWszyscy_[0]->isChecked() ? idZKlucza(wybrany()) : 0;
  sesja.pubOkres = FiltrCzasowy(sesja.pubFiltrCzasowy);
}

void frmPrzegladKontrahentow::cmdRaport_Click(bool detaliczny) {
  if (!wybrany() || !Nawigacja::Dostepny(QStringLiteral("frmRaportKontrahenta"))) return;
  kontrahentRaportu();
  sesja.pubRaportDetaliczny = detaliczny;
  Nawigacja::Pokaz(QStringLiteral("frmRaportKontrahenta"), this);
  PokazKontrahenta();
}

void frmPrzegladKontrahentow::cmdPrzegladKontrahentawCzasie_Click() {
  if (!wybrany() || !Nawigacja::Dostepny(QStringLiteral("frmRaportKontrahentaWCzasie"))) return;
  kontrahentRaportu();
  Nawigacja::Pokaz(QStringLiteral("frmRaportKontrahentaWCzasie"), this);
  PokazKontrahenta();
}
