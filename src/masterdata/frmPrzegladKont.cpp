#include "masterdata/frmPrzegladKont.h"

#include <QChartView>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "masterdata/frmEdycjaKonta.h"
#include "masterdata/konta.h"
#include "ui/nawigacja_gui.h"
#include "ui/przegladarka_gui.h"
#include "ui/przyciskifiltra_gui.h"
#include "ui/wyszukiwanie_gui.h"
#include "ui/wykresy_gui.h"
#include "store/MsgBoxModule.h"
#include "masterdata/szerokosci_gui.h"
#include "store/baza.h"
#include "store/filtr.h"
#include "store/napis.h"
#include "store/tekst.h"

namespace {
constexpr int RolaKlucza = Qt::UserRole;
constexpr int RolaLimitu = Qt::UserRole + 1;  // the Tag: the account's limit; empty elsewhere
// The walk of the search starts at the first account: behind the root and the six kinds.
constexpr int PierwszyDoSzukania = 8;
constexpr int SzerokoscSzczegolow = 430;
constexpr WymiarySzczegolow Wymiary{360, SzerokoscSzczegolow, 560};

// The screens this browser opens for a node: the entry and transfer lists and the two account
// reports. They belong to other parts of the program, reached by name; a button whose screen
// is not in the program stays off.
const QString EkranTransakcji = QStringLiteral("frmPrzegladTransakcji");
const QString EkranTransferow = QStringLiteral("frmPrzegladTransakcjiWewnetrznych");
const QString EkranRaportu = QStringLiteral("frmRaportKont");
const QString EkranWCzasie = QStringLiteral("frmRaportKontaWCzasie");

// The three states of the over-limit test: in order, within the overdraft, over the limit.
QPixmap obrazekLimitu(int stan) {
  const qreal dpr = 2.0;
  QPixmap p(QSize(20, 20) * dpr);
  p.setDevicePixelRatio(dpr);
  p.fill(Qt::transparent);
  QPainter g(&p);
  g.setRenderHint(QPainter::Antialiasing);
  const QColor kolory[] = {QColor(0x2e, 0x9d, 0x3c), QColor(0xe6, 0xa1, 0x17),
                           QColor(0xcc, 0x2a, 0x24)};
  g.setPen(QPen(kolory[stan].darker(140), 1));
  g.setBrush(kolory[stan]);
  g.drawEllipse(QRectF(1.5, 1.5, 17, 17));
  g.setPen(QPen(Qt::white, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  if (stan == 0) {
    g.drawPolyline(QPolygonF({QPointF(6, 10.5), QPointF(9, 13.5), QPointF(14.5, 7)}));
  } else if (stan == 1) {
    g.drawLine(QPointF(10, 5.5), QPointF(10, 11));
    g.drawPoint(QPointF(10, 14.5));
  } else {
    g.drawLine(QPointF(6.5, 6.5), QPointF(13.5, 13.5));
    g.drawLine(QPointF(13.5, 6.5), QPointF(6.5, 13.5));
  }
  return p;
}

}  // namespace

frmPrzegladKont::frmPrzegladKont(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmPrzegladKont"));
  OtworzBaze();
  zbuduj();
  if (sesja.pubPrzegladOtwarty == -1) {
    // The entry browser already stands behind this form.
    cmdPrzeglad_->setEnabled(false);
    cmdPrzegladWewnetrznych_->setEnabled(false);
    cmdMenu_[3]->setEnabled(false);
  }
  // A command whose screen this build doesn't have stays off.
  for (auto [ekran, polecenia] :
       {std::pair{EkranTransakcji,
                  QStringList{QStringLiteral("cmdPrzeglad"), QStringLiteral("cmdMenu(3)")}},
        std::pair{EkranTransferow, QStringList{QStringLiteral("cmdPrzegladWewnetrznych")}},
        std::pair{
            EkranRaportu,
            QStringList{QStringLiteral("cmdRaportDetaliczny"), QStringLiteral("cmdRaportZbiorczy"),
                        QStringLiteral("cmdMenu(4)"), QStringLiteral("cmdMenu(5)")}},
        std::pair{EkranWCzasie,
                  QStringList{QStringLiteral("cmdWCzasie"), QStringLiteral("cmdMenu(6)")}}})
    if (!Nawigacja::Dostepny(ekran))
      for (const QString& nazwa : polecenia)
        if (auto* w = findChild<QWidget*>(nazwa)) w->setEnabled(false);
  sesja.pubWidokZrodlowy = 1;
  kopia_ = sesja.pubKonto;
  cmdWybierz_->setText(sesja.pubEdytorOtwarty || sesja.pubEdytorTransferuOtwarty
                           ? Napis(QStringLiteral("frmPrzegladKont78"))
                           : Napis(QStringLiteral("frmPrzegladKont79")));
  ustawSzczegoly();
  UstawPozycjePrzegladarki(this);
  WypelnijDrzewo();
  tvwKonta_->setFocus();
}

frmPrzegladKont::~frmPrzegladKont() { sesja.pubWidokZrodlowy = 0; }

void frmPrzegladKont::zbuduj() {
  setWindowTitle(Napis(QStringLiteral("frmPrzegladKont1")));

  // The command strip: new, edit, delete, entries, the two reports, over time.
  auto* pasek = new QToolBar(this);
  pasek->setObjectName(QStringLiteral("tbrMenu"));
  pasek->setToolButtonStyle(Qt::ToolButtonTextOnly);
  const QString menu[] = {
      Napis(QStringLiteral("frmPrzegladKont12")), Napis(QStringLiteral("frmPrzegladKont13")),
      Napis(QStringLiteral("frmPrzegladKont14")), Napis(QStringLiteral("frmPrzegladKont15")),
      Napis(QStringLiteral("frmPrzegladKont16")), Napis(QStringLiteral("frmPrzegladKont17")),
      Napis(QStringLiteral("frmPrzegladKont18"))};
  const QString podpowiedzi[] = {
      Napis(QStringLiteral("frmPrzegladKont19")), Napis(QStringLiteral("frmPrzegladKont20")),
      Napis(QStringLiteral("frmPrzegladKont21")), Napis(QStringLiteral("frmPrzegladKont22")),
      Napis(QStringLiteral("frmPrzegladKont23")), Napis(QStringLiteral("frmPrzegladKont24")),
      Napis(QStringLiteral("frmPrzegladKont25"))};
  for (int i = 0; i < 7; ++i) {
    auto* b = new QToolButton(pasek);
    b->setObjectName(QStringLiteral("cmdMenu(%1)").arg(i));
    b->setText(menu[i]);
    b->setToolTip(podpowiedzi[i]);
    b->setAutoRaise(true);
    pasek->addWidget(b);
    if (i == 2 || i == 3) pasek->addSeparator();
    cmdMenu_[i] = b;
  }
  connect(cmdMenu_[0], &QToolButton::clicked, this, &frmPrzegladKont::NoweKonto);
  connect(cmdMenu_[1], &QToolButton::clicked, this, &frmPrzegladKont::EdytujKonto);
  connect(cmdMenu_[2], &QToolButton::clicked, this, &frmPrzegladKont::SkasujKonto);
  connect(cmdMenu_[3], &QToolButton::clicked, this, &frmPrzegladKont::cmdPrzeglad_Click);
  connect(cmdMenu_[4], &QToolButton::clicked, this, [this] { cmdRaport_Click(true); });
  connect(cmdMenu_[5], &QToolButton::clicked, this, [this] { cmdRaport_Click(false); });
  connect(cmdMenu_[6], &QToolButton::clicked, this, &frmPrzegladKont::cmdWCzasie_Click);

  // The search.
  auto* lblKlucz = EtykietaPrzegladarki(QStringLiteral("lblKlucz"),
                                        Napis(QStringLiteral("frmPrzegladKont2")), this);
  txtKlucz_ = new QLineEdit(this);
  txtKlucz_->setObjectName(QStringLiteral("txtKlucz"));
  txtKlucz_->setClearButtonEnabled(true);
  lblKlucz->setBuddy(txtKlucz_);
  cmdNastepny_ = PrzyciskPrzegladarki(QStringLiteral("cmdNastepny"),
                                      Napis(QStringLiteral("frmPrzegladKont3")), this);

  // The tree.
  tvwKonta_ = new QTreeWidget(this);
  tvwKonta_->setObjectName(QStringLiteral("tvwKonta"));
  tvwKonta_->setHeaderHidden(true);
  tvwKonta_->setColumnCount(1);
  tvwKonta_->setContextMenuPolicy(Qt::CustomContextMenu);
  new KlawiszePrzegladarki(
      tvwKonta_, [this] { SkasujKonto(); }, [this] { cmdWybierz_Click(); });
  tvwKonta_->setMinimumHeight(240);
  // An account stands two levels below the root; its longest name shows whole.
  tvwKonta_->setMinimumWidth(SzerokoscKolumnyNazwy(tvwKonta_, false, 2) +
                             tvwKonta_->verticalScrollBar()->sizeHint().width() +
                             2 * tvwKonta_->frameWidth());
  connect(tvwKonta_, &QTreeWidget::currentItemChanged, this, [this] { PokazWezel(); });
  connect(tvwKonta_, &QTreeWidget::itemDoubleClicked, this, [this] { cmdWybierz_Click(); });
  connect(tvwKonta_, &QTreeWidget::customContextMenuRequested, this,
          &frmPrzegladKont::menuKontekstowe);
  wyszukiwanie_ = new WyszukiwanieGui(txtKlucz_, cmdNastepny_, tvwKonta_, PierwszyDoSzukania,
                                      [this] { return wezly_; });
  connect(wyszukiwanie_, &WyszukiwanieGui::wybierz, this, &frmPrzegladKont::cmdWybierz_Click);

  // The balance and the limit of an account.
  fraLimityMain_ = new QGroupBox(Napis(QStringLiteral("frmPrzegladKont26")), this);
  fraLimityMain_->setObjectName(QStringLiteral("fraLimityMain"));
  lblMainLimit_ = EtykietaPrzegladarki(QStringLiteral("lblMainLimit"), QString(), fraLimityMain_);
  lblMainSaldo_ = EtykietaPrzegladarki(QStringLiteral("lblMainSaldo"), QString(), fraLimityMain_);
  auto* ukladLimitu = new QGridLayout(fraLimityMain_);
  for (int i = 0; i < 3; ++i) {
    imgLimit_[i] =
        EtykietaPrzegladarki(QStringLiteral("imgLimit(%1)").arg(i), QString(), fraLimityMain_);
    imgLimit_[i]->setPixmap(obrazekLimitu(i));
    ukladLimitu->addWidget(imgLimit_[i], 1, 0);
  }
  ukladLimitu->addWidget(lblMainLimit_, 0, 1);
  ukladLimitu->addWidget(lblMainSaldo_, 1, 1);
  ukladLimitu->setColumnStretch(1, 1);

  auto* cmdRozwin = PrzyciskPrzegladarki(QStringLiteral("cmdRozwin"),
                                         Napis(QStringLiteral("frmPrzegladKont5")), this);
  auto* cmdZwin = PrzyciskPrzegladarki(QStringLiteral("cmdZwin"),
                                       Napis(QStringLiteral("frmPrzegladKont6")), this);
  connect(cmdRozwin, &QPushButton::clicked, this, &frmPrzegladKont::cmdRozwin_Click);
  connect(cmdZwin, &QPushButton::clicked, this, &frmPrzegladKont::cmdZwin_Click);
  cmdWybierz_ = PrzyciskPrzegladarki(QStringLiteral("cmdWybierz"), QString(), this);
  cmdWybierz_->setDefault(true);
  cmdAnuluj_ = PrzyciskPrzegladarki(QStringLiteral("cmdAnuluj"),
                                    Napis(QStringLiteral("frmPrzegladKont4")), this);
  cmdSzczegoly_ = PrzyciskPrzegladarki(QStringLiteral("cmdSzczegoly"), QString(), this);
  connect(cmdWybierz_, &QPushButton::clicked, this, &frmPrzegladKont::cmdWybierz_Click);
  connect(cmdAnuluj_, &QPushButton::clicked, this, &frmPrzegladKont::reject);
  connect(cmdSzczegoly_, &QPushButton::clicked, this, &frmPrzegladKont::cmdSzczegoly_Click);

  // The details: the period's figures, the filter, two charts and the lists and reports.
  frmSzczegoly_ = new QGroupBox(this);
  frmSzczegoly_->setObjectName(QStringLiteral("frmSzczegoly"));
  frmSzczegoly_->setFixedWidth(SzerokoscSzczegolow);
  lblOkres_ = EtykietaPrzegladarki(QStringLiteral("lblOkres"), QString(), frmSzczegoly_);
  lblOkres_->setWordWrap(true);
  QFont pogrubiona = lblOkres_->font();
  pogrubiona.setBold(true);
  lblOkres_->setFont(pogrubiona);
  filtr_ = new PrzyciskiFiltra(frmSzczegoly_, 2);
  filtr_->Zakres()->setText(Napis(QStringLiteral("frmPrzegladKont38")));
  connect(filtr_, &PrzyciskiFiltra::zmieniony, this, &frmPrzegladKont::PokazWezel);

  auto* sumy = new QGridLayout;
  lblKiedy_ = EtykietaPrzegladarki(QStringLiteral("lblKiedy"),
                                   Napis(QStringLiteral("frmPrzegladKont35")), frmSzczegoly_);
  lblBO_ = WartoscPrzegladarki(QStringLiteral("lblBO"), frmSzczegoly_);
  lblPoczatek_ = WartoscPrzegladarki(QStringLiteral("lblPoczatek"), frmSzczegoly_);
  lblPrzychody_ = WartoscPrzegladarki(QStringLiteral("lblPrzychody"), frmSzczegoly_);
  lblWydatki_ = WartoscPrzegladarki(QStringLiteral("lblWydatki"), frmSzczegoly_);
  lblWewnetrznePrzychody_ =
      WartoscPrzegladarki(QStringLiteral("lblWewnetrznePrzychody"), frmSzczegoly_);
  lblWewnetrzneWydatki_ =
      WartoscPrzegladarki(QStringLiteral("lblWewnetrzneWydatki"), frmSzczegoly_);
  lblBZ_ = WartoscPrzegladarki(QStringLiteral("lblBZ"), frmSzczegoly_);
  lblZmiana_ = WartoscPrzegladarki(QStringLiteral("lblZmiana"), frmSzczegoly_);
  lblProcent_ = WartoscPrzegladarki(QStringLiteral("lblProcent"), frmSzczegoly_);
  const std::pair<QLabel*, QLabel*> wiersze[] = {
      {EtykietaPrzegladarki(QString(), Napis(QStringLiteral("frmPrzegladKont27")), frmSzczegoly_),
       lblBO_},
      {lblKiedy_, lblPoczatek_},
      {EtykietaPrzegladarki(QString(), Napis(QStringLiteral("frmPrzegladKont28")), frmSzczegoly_),
       lblPrzychody_},
      {EtykietaPrzegladarki(QString(), Napis(QStringLiteral("frmPrzegladKont29")), frmSzczegoly_),
       lblWydatki_},
      {EtykietaPrzegladarki(QString(), Napis(QStringLiteral("frmPrzegladKont30")), frmSzczegoly_),
       lblWewnetrznePrzychody_},
      {EtykietaPrzegladarki(QString(), Napis(QStringLiteral("frmPrzegladKont31")), frmSzczegoly_),
       lblWewnetrzneWydatki_},
      {EtykietaPrzegladarki(QString(), Napis(QStringLiteral("frmPrzegladKont32")), frmSzczegoly_),
       lblBZ_},
      {EtykietaPrzegladarki(QString(), Napis(QStringLiteral("frmPrzegladKont33")), frmSzczegoly_),
       lblZmiana_},
      {EtykietaPrzegladarki(QString(), Napis(QStringLiteral("frmPrzegladKont34")), frmSzczegoly_),
       lblProcent_}};
  int w = 0;
  for (const auto& [opis, liczba] : wiersze) {
    sumy->addWidget(opis, w, 0);
    sumy->addWidget(liczba, w, 1);
    ++w;
  }
  // The balance after the period stands out.
  lblBZ_->setFont(pogrubiona);
  sumy->setColumnStretch(0, 1);

  chartBilanse_ = NowyWykres(QStringLiteral("chartBilanse"), frmSzczegoly_);
  chartObroty_ = NowyWykres(QStringLiteral("chartObroty"), frmSzczegoly_);
  auto* wykresy = new QGridLayout;
  auto* lblBilanse = EtykietaPrzegladarki(
      QStringLiteral("lblBilanse"), Napis(QStringLiteral("frmPrzegladKont36")), frmSzczegoly_);
  auto* lblObroty = EtykietaPrzegladarki(QStringLiteral("lblObroty"),
                                         Napis(QStringLiteral("frmPrzegladKont37")), frmSzczegoly_);
  lblBilanse->setAlignment(Qt::AlignCenter);
  lblObroty->setAlignment(Qt::AlignCenter);
  wykresy->addWidget(lblBilanse, 0, 0);
  wykresy->addWidget(lblObroty, 0, 1);
  wykresy->addWidget(chartBilanse_, 1, 0);
  wykresy->addWidget(chartObroty_, 1, 1);
  wykresy->setRowStretch(1, 1);

  cmdPrzeglad_ = PrzyciskPrzegladarki(QStringLiteral("cmdPrzeglad"),
                                      Napis(QStringLiteral("frmPrzegladKont7")), frmSzczegoly_);
  cmdPrzegladWewnetrznych_ =
      PrzyciskPrzegladarki(QStringLiteral("cmdPrzegladWewnetrznych"),
                           Napis(QStringLiteral("frmPrzegladKont8")), frmSzczegoly_);
  auto* cmdRaportDetaliczny =
      PrzyciskPrzegladarki(QStringLiteral("cmdRaportDetaliczny"),
                           Napis(QStringLiteral("frmPrzegladKont9")), frmSzczegoly_);
  auto* cmdRaportZbiorczy =
      PrzyciskPrzegladarki(QStringLiteral("cmdRaportZbiorczy"),
                           Napis(QStringLiteral("frmPrzegladKont10")), frmSzczegoly_);
  auto* cmdWCzasie = PrzyciskPrzegladarki(
      QStringLiteral("cmdWCzasie"), Napis(QStringLiteral("frmPrzegladKont11")), frmSzczegoly_);
  connect(cmdPrzeglad_, &QPushButton::clicked, this, &frmPrzegladKont::cmdPrzeglad_Click);
  connect(cmdPrzegladWewnetrznych_, &QPushButton::clicked, this,
          &frmPrzegladKont::cmdPrzegladWewnetrznych_Click);
  connect(cmdRaportDetaliczny, &QPushButton::clicked, this, [this] { cmdRaport_Click(true); });
  connect(cmdRaportZbiorczy, &QPushButton::clicked, this, [this] { cmdRaport_Click(false); });
  connect(cmdWCzasie, &QPushButton::clicked, this, &frmPrzegladKont::cmdWCzasie_Click);
  auto* polecenia = new QGridLayout;
  polecenia->addWidget(cmdPrzeglad_, 0, 0);
  polecenia->addWidget(cmdPrzegladWewnetrznych_, 0, 1);
  polecenia->addWidget(cmdWCzasie, 0, 2);
  polecenia->addWidget(cmdRaportDetaliczny, 1, 0, 1, 2);
  polecenia->addWidget(cmdRaportZbiorczy, 1, 2);

  auto* ukladSzczegolow = new QVBoxLayout(frmSzczegoly_);
  ukladSzczegolow->addWidget(filtr_);
  ukladSzczegolow->addWidget(lblOkres_);
  ukladSzczegolow->addLayout(sumy);
  ukladSzczegolow->addLayout(wykresy, 1);
  ukladSzczegolow->addLayout(polecenia);

  // The narrow part: search, tree, balance, commands.
  auto* szukanie = new QHBoxLayout;
  szukanie->addWidget(lblKlucz);
  szukanie->addWidget(txtKlucz_, 1);
  szukanie->addWidget(cmdNastepny_);
  auto* drzewo = new QHBoxLayout;
  drzewo->addWidget(cmdRozwin);
  drzewo->addWidget(cmdZwin);
  drzewo->addStretch();
  auto* dol = new QHBoxLayout;
  dol->addWidget(cmdSzczegoly_);
  dol->addStretch();
  dol->addWidget(cmdWybierz_);
  dol->addWidget(cmdAnuluj_);
  auto* lewa = new QVBoxLayout;
  lewa->addLayout(szukanie);
  lewa->addWidget(tvwKonta_, 1);
  lewa->addLayout(drzewo);
  lewa->addWidget(fraLimityMain_);
  lewa->addLayout(dol);
  auto* srodek = new QHBoxLayout;
  srodek->addLayout(lewa, 1);
  srodek->addWidget(frmSzczegoly_);
  auto* uklad = new QVBoxLayout(this);
  uklad->setMenuBar(pasek);
  uklad->addLayout(srodek, 1);

  // The tree's context menu.
  menu_ = new QMenu(this);
  mnuNoweKonto_ = menu_->addAction(QString());
  mnuNoweKonto_->setObjectName(QStringLiteral("mnuNoweKonto"));
  mnuEdytujKonto_ = menu_->addAction(QString());
  mnuEdytujKonto_->setObjectName(QStringLiteral("mnuEdytujKonto"));
  mnuSkasujKonto_ = menu_->addAction(QString());
  mnuSkasujKonto_->setObjectName(QStringLiteral("mnuSkasujKonto"));
  connect(mnuNoweKonto_, &QAction::triggered, this, &frmPrzegladKont::NoweKonto);
  connect(mnuEdytujKonto_, &QAction::triggered, this, &frmPrzegladKont::EdytujKonto);
  connect(mnuSkasujKonto_, &QAction::triggered, this, &frmPrzegladKont::SkasujKonto);

  // The names show whole, and every command of the strip shows, in either edition, also in
  // the narrow picker.
  const QMargins m = uklad->contentsMargins();
  najwezsza_ = std::max(Wymiary.waska, lewa->minimumSize().width() + m.left() + m.right());
  pasek_ = SzerokoscPaska(pasek) + m.left() + m.right();
  szerokoscWaska_ = std::max(400, najwezsza_);
}

QTreeWidgetItem* frmPrzegladKont::wybrany() const { return tvwKonta_->currentItem(); }

QString frmPrzegladKont::klucz(QTreeWidgetItem* w) const {
  return w ? w->data(0, RolaKlucza).toString() : QString();
}

// ---- filling and showing ---------------------------------------------------------------------

void frmPrzegladKont::WypelnijDrzewo() { wypelnij(QString()); }

void frmPrzegladKont::wypelnij(const QString& kluczWezla) {
  const QSignalBlocker cisza(tvwKonta_);
  tvwKonta_->setUpdatesEnabled(false);
  tvwKonta_->clear();
  wezly_.clear();
  auto* root = new QTreeWidgetItem(tvwKonta_, {Napis(QStringLiteral("frmPrzegladKont80"))});
  root->setData(0, RolaKlucza, QStringLiteral("Root"));
  wezly_ << root;
  const QString nazwyRodzajow[] = {
      Napis(QStringLiteral("frmPrzegladKont81")), Napis(QStringLiteral("frmPrzegladKont82")),
      Napis(QStringLiteral("frmPrzegladKont83")), Napis(QStringLiteral("frmPrzegladKont84")),
      Napis(QStringLiteral("frmPrzegladKont85")), Napis(QStringLiteral("frmPrzegladKont86"))};
  QTreeWidgetItem* rodzaje[7] = {};
  for (int r = 1; r <= 6; ++r) {
    rodzaje[r] = new QTreeWidgetItem(root, {nazwyRodzajow[r - 1]});
    rodzaje[r]->setData(0, RolaKlucza, QStringLiteral("r%1").arg(r));
    wezly_ << rodzaje[r];
  }
  QTreeWidgetItem* doWybrania = root;
  Rekordy rs = pubBaza().Czytaj(
      QStringLiteral("SELECT id,nazwa,rodzaj,limit FROM konta ORDER BY rodzaj,id"));
  for (; !rs.Eof(); rs.MoveNext()) {
    const int r = int(PoleRekordu(rs, QStringLiteral("rodzaj")));
    if (r < 1 || r > 6) continue;  // a row of no known kind has no place in the tree
    const qint64 id = rs.Pole(QStringLiteral("id")).toLongLong();
    auto* w = new QTreeWidgetItem(rodzaje[r], {rs.Tekst(QStringLiteral("nazwa"))});
    w->setData(0, RolaKlucza, QStringLiteral("q%1").arg(id));
    w->setData(0, RolaLimitu, PoleRekordu(rs, QStringLiteral("limit")));
    wezly_ << w;
    if (id == sesja.pubKonto.id) doWybrania = w;
  }
  if (!kluczWezla.isEmpty())
    for (QTreeWidgetItem* w : std::as_const(wezly_))
      if (klucz(w) == kluczWezla) doWybrania = w;
  tvwKonta_->expandAll();
  tvwKonta_->setCurrentItem(doWybrania);
  tvwKonta_->setUpdatesEnabled(true);
  tvwKonta_->scrollToItem(doWybrania);
  filtr_->NacisnijBiezacy();
}

void frmPrzegladKont::PokazWezel() {
  QTreeWidgetItem* item = wybrany();
  if (!item) return;
  const WezelKont wezel = WezelKont::ZKlucza(klucz(item));
  sesja.pubKonto.id = wezel.numer;
  sesja.pubKonto.nazwa = item->text(0);
  sesja.pubWezelKont = wezel.Zakres();

  const bool szczegoly = sesja.pubSzczegoly == 1;
  if (szczegoly) sesja.pubOkres = FiltrCzasowy(sesja.pubFiltrCzasowy);
  const StanWezla stan = CzytajStanWezla(wezel, szczegoly ? &sesja.pubOkres : nullptr);
  const double saldo = stan.saldo;
  const QVariant tag = item->data(0, RolaLimitu);
  if (!tag.isValid() || !stan.maSaldo) {
    fraLimityMain_->hide();
  } else {
    const double limit = tag.toDouble();
    lblMainLimit_->setText(Napis(QStringLiteral("frmPrzegladKont58")) + QLatin1Char(' ') +
                           FormatKwoty(limit));
    const int stanLimitu = StanLimitu(saldo, limit);
    for (int i = 0; i < 3; ++i) imgLimit_[i]->setVisible(i == stanLimitu - 1);
    const QString opisy[] = {Napis(QStringLiteral("frmPrzegladKont59")),
                             Napis(QStringLiteral("frmPrzegladKont60")),
                             Napis(QStringLiteral("frmPrzegladKont61"))};
    lblMainSaldo_->setText(opisy[stanLimitu - 1] + QLatin1Char(' ') + FormatKwoty(saldo));
    sesja.pubKonto.saldo = saldo;
    fraLimityMain_->show();
  }

  if (!szczegoly) return;
  frmSzczegoly_->setTitle(Napis(QStringLiteral("frmPrzegladKont62")) + QLatin1Char(' '));
  lblOkres_->setText(sesja.pubOkres.opisDlugi);
  const BilansOkresu& b = stan.bilans;
  lblBO_->setText(FormatKwoty(b.bilansOtwarcia));
  lblPoczatek_->setText(FormatKwoty(b.poczatek));
  lblPrzychody_->setText(FormatKwoty(b.wOkresie.przychod));
  lblWydatki_->setText(FormatKwoty(b.wOkresie.wydatek));
  lblWewnetrznePrzychody_->setText(FormatKwoty(b.wOkresie.przychodzace));
  lblWewnetrzneWydatki_->setText(FormatKwoty(b.wOkresie.wychodzace));
  lblBZ_->setText(FormatKwoty(b.koniec));
  lblZmiana_->setText(FormatKwoty(b.zmiana));
  lblProcent_->setText(FormatKwoty(b.procent) + QStringLiteral(" %"));
  WykresDwaSlupki(chartBilanse_, b.poczatek, b.koniec);
  WykresDwaSlupki(chartObroty_, b.wOkresie.przychod, b.wOkresie.wydatek);
}

WymiarySzczegolow frmPrzegladKont::wymiary() const {
  // Open, the details widen the window under the strip; closed, the list alone must hold it.
  const int panel = Wymiary.panel;
  const int waska = std::max(najwezsza_, sesja.pubSzczegoly == 1 ? pasek_ - panel : pasek_);
  return {waska, Wymiary.panel, Wymiary.wysokosc};
}

void frmPrzegladKont::ustawSzczegoly() {
  PokazSzczegolyPrzegladarki(
      this, frmSzczegoly_, cmdSzczegoly_, Napis(QStringLiteral("frmPrzegladKont69")),
      Napis(QStringLiteral("frmPrzegladKont70")), wymiary(), szerokoscWaska_);
}

// ---- commands --------------------------------------------------------------------------------

void frmPrzegladKont::cmdWybierz_Click() {
  QTreeWidgetItem* item = wybrany();
  if (!item) return;
  if (sesja.pubTrybPrzegladu != 2) {
    EdytujKonto();
    return;
  }
  const QString k = klucz(item);
  if (k.startsWith(QLatin1Char('q'))) {
    sesja.pubKonto.id = k.mid(1).toLongLong();
    sesja.pubKonto.nazwa = item->text(0);
    sesja.pubKonto.rodzaj = klucz(item->parent()).right(1).toInt();
    sesja.pubKonto.datautworzenia = DataUtworzeniaKonta(sesja.pubKonto.id);
    accept();
  } else if (item->childCount() > 0) {
    // Not an account: open the way to one instead of taking it.
    item->setExpanded(true);
    item->child(0)->setExpanded(true);
  } else {
    MyMsgbox(Napis(QStringLiteral("frmPrzegladKont76")), Napis(QStringLiteral("frmPrzegladKont77")),
             MsgOK, IkonaInformacja);
  }
}

void frmPrzegladKont::reject() {
  sesja.pubKonto = kopia_;
  QDialog::reject();
}

void frmPrzegladKont::EdytujKonto() {
  QTreeWidgetItem* item = wybrany();
  const QString k = klucz(item);
  if (!k.startsWith(QLatin1Char('q'))) return;
  sesja.pubKonto.id = k.mid(1).toLongLong();
  sesja.pubKonto.nazwa = item->text(0);
  sesja.pubKonto.rodzaj = klucz(item->parent()).right(1).toInt();
  frmEdycjaKonta edytor(this);
  edytor.exec();
  wypelnij(k);
}

void frmPrzegladKont::NoweKonto() {
  QTreeWidgetItem* item = wybrany();
  if (!item) return;
  const QString k = klucz(item);
  const qint64 dawny = sesja.pubKonto.id;
  if (k.startsWith(QLatin1Char('q')))
    sesja.pubKonto.rodzaj = klucz(item->parent()).right(1).toInt();
  else if (k.startsWith(QLatin1Char('r')))
    sesja.pubKonto.rodzaj = k.mid(1).toInt();
  else
    sesja.pubKonto.rodzaj = 1;
  sesja.pubKonto.id = 0;
  frmEdycjaKonta edytor(this);
  // A saved account is selected after the refill; on Cancel the node stays where it was.
  if (edytor.exec() == QDialog::Accepted) {
    WypelnijDrzewo();
  } else {
    sesja.pubKonto.id = dawny;
    wypelnij(k);
  }
}

void frmPrzegladKont::SkasujKonto() {
  QTreeWidgetItem* item = wybrany();
  const QString k = klucz(item);
  if (!k.startsWith(QLatin1Char('q'))) return;
  if (!UsunKontoZPytaniami(k.mid(1).toLongLong(), item->text(0))) return;
  wypelnij(klucz(item->parent()));  // the kind the account stood under
  wyszukiwanie_->Wyczysc();
}

void frmPrzegladKont::cmdSzczegoly_Click() {
  szerokoscWaska_ = PrzelaczSzczegolyPrzegladarki(this, wymiary());
  ustawSzczegoly();
  PokazWezel();
}

void frmPrzegladKont::cmdRozwin_Click() {
  tvwKonta_->expandAll();
  if (!wezly_.isEmpty()) {
    tvwKonta_->setCurrentItem(wezly_.first());
    tvwKonta_->scrollToItem(wezly_.first());
  }
}

void frmPrzegladKont::cmdZwin_Click() {
  for (QTreeWidgetItem* w : std::as_const(wezly_))
    if (w->parent()) w->setExpanded(false);
  if (QTreeWidgetItem* item = wybrany()) {
    for (QTreeWidgetItem* p = item->parent(); p; p = p->parent()) p->setExpanded(true);
    tvwKonta_->scrollToItem(item);
  }
}

void frmPrzegladKont::menuKontekstowe(const QPoint& gdzie) {
  QTreeWidgetItem* item = tvwKonta_->itemAt(gdzie);
  if (item) tvwKonta_->setCurrentItem(item);
  item = wybrany();
  if (!item) return;
  const QString k = klucz(item);
  const bool konto = k.startsWith(QLatin1Char('q'));
  if (konto)
    mnuNoweKonto_->setText(Napis(QStringLiteral("frmPrzegladKont89")) + item->parent()->text(0) +
                           QLatin1Char(')'));
  else if (k.startsWith(QLatin1Char('r')))
    mnuNoweKonto_->setText(Napis(QStringLiteral("frmPrzegladKont87")) + item->text(0) +
                           QLatin1Char(')'));
  else
    mnuNoweKonto_->setText(Napis(QStringLiteral("frmPrzegladKont88")));
  mnuEdytujKonto_->setEnabled(konto);
  mnuSkasujKonto_->setEnabled(konto);
  const QString nazwa = konto ? QLatin1Char(' ') + item->text(0) : QString();
  mnuEdytujKonto_->setText(Napis(QStringLiteral("frmPrzegladKont90")) + nazwa);
  mnuSkasujKonto_->setText(Napis(QStringLiteral("frmPrzegladKont91")) + nazwa);
  menu_->popup(tvwKonta_->viewport()->mapToGlobal(gdzie));
}

// ---- the lists and reports of a node ---------------------------------------------------------

void frmPrzegladKont::cmdPrzeglad_Click() {
  QTreeWidgetItem* item = wybrany();
  if (!item) return;
  const FiltrListy f = FiltrTransakcjiWezla(WezelKont::ZKlucza(klucz(item)), item->text(0));
  sesja.pubFiltrTransakcji = f.warunek;
  sesja.pubTytulTransakcji = f.tytul;
  sesja.pubWierszTransakcji = 0;
  sesja.pubTryb = 2;
  Nawigacja::Pokaz(EkranTransakcji, this);
  filtr_->NacisnijBiezacy();
}

void frmPrzegladKont::cmdPrzegladWewnetrznych_Click() {
  QTreeWidgetItem* item = wybrany();
  if (!item) return;
  const FiltrListy f = FiltrTransferowWezla(WezelKont::ZKlucza(klucz(item)), item->text(0));
  sesja.pubFiltrTransferow = f.warunek;
  sesja.pubTytulTransferow = f.tytul;
  sesja.pubFiltrTransferowRodzaj = f.rodzaj;
  sesja.pubFiltrTransferowKonto = f.konto;
  sesja.pubWierszTransferu = 0;
  sesja.pubTryb = 2;
  Nawigacja::Pokaz(EkranTransferow, this);
  PokazWezel();
}

void frmPrzegladKont::cmdRaport_Click(bool detaliczny) {
  sesja.pubRaportDetaliczny = detaliczny;
  sesja.pubOkres = FiltrCzasowy(sesja.pubFiltrCzasowy);
  Nawigacja::Pokaz(EkranRaportu, this);
}

void frmPrzegladKont::cmdWCzasie_Click() {
  sesja.pubOkres = FiltrCzasowy(sesja.pubFiltrCzasowy);
  Nawigacja::Pokaz(EkranWCzasie, this);
}
