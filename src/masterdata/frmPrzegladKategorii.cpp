#include "masterdata/frmPrzegladKategorii.h"

#include <QAction>
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
#include <vector>

#include "ui/nawigacja_gui.h"
#include "masterdata/frmEdycjaKategorii.h"
#include "masterdata/frmLimitDlaKategorii.h"
#include "masterdata/kategorie.h"
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
// The search walks the categories: every node behind Root.
constexpr int PierwszyDoSzukania = 2;
constexpr int SzerokoscSzczegolow = 440;
constexpr WymiarySzczegolow Wymiary{380, SzerokoscSzczegolow, 600};

// Screens of other parts that this browser opens are reached by name; a button whose screen is
// not in the program stays off.
const QString EkranWpisow = QStringLiteral("frmPrzegladTransakcji");
const QString EkranRaportu = QStringLiteral("frmRaportKategorii");
const QString EkranWCzasie = QStringLiteral("frmRaportKategorieWCzasie");
const QString EkranPomocy = QStringLiteral("frmPomoc");

// The colours of the breakdown, shared by the list's icons and the chart, in this order.
QColor kolorRozbicia(int i) {
  static const QColor kolory[LiczbaKolorowRozbicia] = {
      QColor(0x2f, 0x6f, 0xb5), QColor(0xe0, 0x8a, 0x1e), QColor(0x3a, 0x9a, 0x4a),
      QColor(0xc0, 0x39, 0x2b), QColor(0x8e, 0x5c, 0xb0), QColor(0x1a, 0xa3, 0xa3),
      QColor(0xd4, 0xb1, 0x06), QColor(0x7f, 0x4f, 0x24), QColor(0xe3, 0x6f, 0xa8),
      QColor(0x5a, 0x6b, 0x7d), QColor(0x9c, 0xc3, 0x3b), QColor(0x10, 0x3f, 0x7a),
      QColor(0xf0, 0x5a, 0x28), QColor(0x6d, 0x2e, 0x5b)};
  return kolory[(std::max(i, 1) - 1) % LiczbaKolorowRozbicia];
}

QIcon ikonaKoloru(int i) {
  QPixmap p(12, 12);
  p.fill(kolorRozbicia(i));
  QPainter g(&p);
  g.setPen(kolorRozbicia(i).darker(150));
  g.drawRect(0, 0, 11, 11);
  return QIcon(p);
}

// The two states of a leaf's limit: within it, or over it.
QPixmap obrazekLimitu(bool przekroczony) {
  const qreal dpr = 2.0;
  QPixmap p(QSize(20, 20) * dpr);
  p.setDevicePixelRatio(dpr);
  p.fill(Qt::transparent);
  QPainter g(&p);
  g.setRenderHint(QPainter::Antialiasing);
  const QColor kolor = przekroczony ? QColor(0xcc, 0x2a, 0x24) : QColor(0x2e, 0x9d, 0x3c);
  g.setPen(QPen(kolor.darker(140), 1));
  g.setBrush(kolor);
  g.drawEllipse(QRectF(1.5, 1.5, 17, 17));
  g.setPen(QPen(Qt::white, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  if (przekroczony) {
    g.drawLine(QPointF(10, 5.5), QPointF(10, 11));
    g.drawPoint(QPointF(10, 14.5));
  } else {
    g.drawPolyline(QPolygonF({QPointF(6, 10.5), QPointF(9, 13.5), QPointF(14.5, 7)}));
  }
  return p;
}

QAction* akcja(QMenu* menu, const QString& nazwa, const QKeySequence& skrot) {
  QAction* a = menu->addAction(QString());
  a->setObjectName(nazwa);
  a->setShortcut(skrot);
  a->setShortcutContext(Qt::WidgetShortcut);
  return a;
}
}  // namespace

frmPrzegladKategorii::frmPrzegladKategorii(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmPrzegladKategorii"));
  OtworzBaze();
  rodzaj_ = sesja.pubKategoria.rodzaj == 1 ? 1 : 2;
  zbuduj();
  if (sesja.pubPrzegladOtwarty == -1 || !Nawigacja::Dostepny(EkranWpisow)) {
    // The entry browser already stands behind this form (or is not in the program).
    cmdPrzeglad_->setEnabled(false);
    cmdMenu_[3]->setEnabled(false);
  }
  sesja.pubWidokZrodlowy = 2;
  kopia_ = sesja.pubKategoria;
  cmdWybierz_->setText(sesja.pubEdytorOtwarty ? Napis(QStringLiteral("frmPrzegladKategorii64"))
                                              : Napis(QStringLiteral("frmPrzegladKategorii65")));
  ustawSzczegoly();
  UstawPozycjePrzegladarki(this);
  WypelnijDrzewo();
  tvwKategorie_->setFocus();
}

frmPrzegladKategorii::~frmPrzegladKategorii() { sesja.pubWidokZrodlowy = 0; }

void frmPrzegladKategorii::Przegladaj(int rodzaj, QWidget* rodzic) {
  sesja.pubKategoria.rodzaj = rodzaj;
  sesja.pubTrybPrzegladu = 1;
  sesja.pubSzczegoly = 1;
  sesja.pubPozycjaX = sesja.pubPozycjaY = -1;
  frmPrzegladKategorii(rodzic).exec();
}

void frmPrzegladKategorii::zbuduj() {
  setWindowTitle(Napis(rodzaj_ == 1 ? QStringLiteral("frmPrzegladKategorii1")
                                    : QStringLiteral("frmPrzegladKategorii2")));

  // The command strip in two rows: the tree's upkeep and help; the node's entries and reports.
  auto* pasek = new QWidget(this);
  pasek->setObjectName(QStringLiteral("tbrMenu"));
  auto* wiersze = new QVBoxLayout(pasek);
  wiersze->setContentsMargins(0, 0, 0, 0);
  wiersze->setSpacing(0);
  const QString napisy[9] = {Napis(QStringLiteral("frmPrzegladKategorii25")),
                             Napis(QStringLiteral("frmPrzegladKategorii26")),
                             Napis(QStringLiteral("frmPrzegladKategorii27")),
                             Napis(QStringLiteral("frmPrzegladKategorii28")),
                             Napis(QStringLiteral("frmPrzegladKategorii29")),
                             Napis(QStringLiteral("frmPrzegladKategorii30")),
                             Napis(QStringLiteral("frmPrzegladKategorii31")),
                             Napis(QStringLiteral("frmPrzegladKategorii32")),
                             Napis(QStringLiteral("frmPrzegladKategorii33"))};
  const QString podpowiedzi[9] = {Napis(QStringLiteral("frmPrzegladKategorii34")),
                                  Napis(QStringLiteral("frmPrzegladKategorii35")),
                                  Napis(QStringLiteral("frmPrzegladKategorii36")),
                                  Napis(QStringLiteral("frmPrzegladKategorii37")),
                                  Napis(QStringLiteral("frmPrzegladKategorii38")),
                                  Napis(QStringLiteral("frmPrzegladKategorii39")),
                                  Napis(QStringLiteral("frmPrzegladKategorii40")),
                                  Napis(QStringLiteral("frmPrzegladKategorii41")),
                                  Napis(QStringLiteral("frmPrzegladKategorii42"))};
  const std::vector<std::vector<int>> kolejnosc = {{0, 8, 1, 2, -1, 7}, {3, 4, 5, 6}};
  for (const std::vector<int>& rzad : kolejnosc) {
    auto* wiersz = new QToolBar(pasek);
    wiersz->setToolButtonStyle(Qt::ToolButtonTextOnly);
    for (int i : rzad) {
      if (i < 0) {
        wiersz->addSeparator();
        continue;
      }
      auto* b = new QToolButton(wiersz);
      b->setObjectName(QStringLiteral("cmdMenu(%1)").arg(i));
      b->setText(napisy[i]);
      b->setToolTip(podpowiedzi[i]);
      b->setAutoRaise(true);
      wiersz->addWidget(b);
      cmdMenu_[i] = b;
    }
    wiersze->addWidget(wiersz);
  }
  connect(cmdMenu_[0], &QToolButton::clicked, this, &frmPrzegladKategorii::NowaKategoria);
  connect(cmdMenu_[1], &QToolButton::clicked, this, &frmPrzegladKategorii::EdytujKategorie);
  connect(cmdMenu_[2], &QToolButton::clicked, this, &frmPrzegladKategorii::SkasujKategorie);
  connect(cmdMenu_[3], &QToolButton::clicked, this, &frmPrzegladKategorii::cmdPrzeglad_Click);
  connect(cmdMenu_[4], &QToolButton::clicked, this, [this] { cmdRaport_Click(true); });
  connect(cmdMenu_[5], &QToolButton::clicked, this, [this] { cmdRaport_Click(false); });
  connect(cmdMenu_[6], &QToolButton::clicked, this, &frmPrzegladKategorii::cmdWCzasie_Click);
  connect(cmdMenu_[7], &QToolButton::clicked, this, [this] { Nawigacja::Pokaz(EkranPomocy, this); });
  connect(cmdMenu_[8], &QToolButton::clicked, this, &frmPrzegladKategorii::NowaPodkategoria);
  cmdMenu_[4]->setEnabled(Nawigacja::Dostepny(EkranRaportu));
  cmdMenu_[5]->setEnabled(Nawigacja::Dostepny(EkranRaportu));
  cmdMenu_[6]->setEnabled(Nawigacja::Dostepny(EkranWCzasie));
  cmdMenu_[7]->setEnabled(Nawigacja::Dostepny(EkranPomocy));

  // The search.
  auto* lblKlucz = EtykietaPrzegladarki(QStringLiteral("lblKlucz"),
                                        Napis(QStringLiteral("frmPrzegladKategorii3")), this);
  txtKlucz_ = new QLineEdit(this);
  txtKlucz_->setObjectName(QStringLiteral("txtKlucz"));
  txtKlucz_->setClearButtonEnabled(true);
  lblKlucz->setBuddy(txtKlucz_);
  cmdNastepny_ = PrzyciskPrzegladarki(QStringLiteral("cmdNastepny"),
                                      Napis(QStringLiteral("frmPrzegladKategorii4")), this);

  // The tree.
  tvwKategorie_ = new QTreeWidget(this);
  tvwKategorie_->setObjectName(QStringLiteral("tvwKategorie"));
  tvwKategorie_->setHeaderHidden(true);
  tvwKategorie_->setColumnCount(1);
  tvwKategorie_->setExpandsOnDoubleClick(false);
  tvwKategorie_->setContextMenuPolicy(Qt::CustomContextMenu);
  new KlawiszePrzegladarki(
      tvwKategorie_, [this] { SkasujKategorie(); }, [this] { cmdWybierz_Click(); });
  tvwKategorie_->setMinimumHeight(260);
  // A category of the fourth level stands four levels below the root; its name shows whole.
  tvwKategorie_->setMinimumWidth(SzerokoscKolumnyNazwy(tvwKategorie_, false, 4) +
                                 tvwKategorie_->verticalScrollBar()->sizeHint().width() +
                                 2 * tvwKategorie_->frameWidth());
  connect(tvwKategorie_, &QTreeWidget::currentItemChanged, this, [this] { PokazWezel(); });
  connect(tvwKategorie_, &QTreeWidget::itemDoubleClicked, this, [this] { cmdWybierz_Click(); });
  connect(tvwKategorie_, &QTreeWidget::customContextMenuRequested, this,
          &frmPrzegladKategorii::menuKontekstowe);
  wyszukiwanie_ = new WyszukiwanieGui(txtKlucz_, cmdNastepny_, tvwKategorie_, PierwszyDoSzukania);
  connect(wyszukiwanie_, &WyszukiwanieGui::wybierz, this, &frmPrzegladKategorii::cmdWybierz_Click);

  // The limit of a leaf in the month of the working date.
  fraLimityMain_ = new QGroupBox(Napis(QStringLiteral("frmPrzegladKategorii8")), this);
  fraLimityMain_->setObjectName(QStringLiteral("fraLimityMain"));
  auto* ukladLimitu = new QGridLayout(fraLimityMain_);
  for (int i = 0; i < 2; ++i) {
    imgLimit_[i] =
        EtykietaPrzegladarki(QStringLiteral("imgLimit(%1)").arg(i), QString(), fraLimityMain_);
    imgLimit_[i]->setPixmap(obrazekLimitu(i == 1));
    ukladLimitu->addWidget(imgLimit_[i], 0, 0, 2, 1, Qt::AlignTop);
  }
  ukladLimitu->addWidget(
      EtykietaPrzegladarki(QString(), Napis(QStringLiteral("frmPrzegladKategorii9")),
                           fraLimityMain_),
      0, 1);
  lblWykorzystanoMain_ =
      EtykietaPrzegladarki(QStringLiteral("lblWykorzystanoMain"), QString(), fraLimityMain_);
  ukladLimitu->addWidget(lblWykorzystanoMain_, 0, 2);
  lblKomentarzLimit_ =
      EtykietaPrzegladarki(QStringLiteral("lblKomentarzLimit"), QString(), fraLimityMain_);
  ukladLimitu->addWidget(lblKomentarzLimit_, 1, 1, 1, 2);
  ukladLimitu->setColumnStretch(2, 1);

  auto* cmdRozwin = PrzyciskPrzegladarki(QStringLiteral("cmdRozwin"),
                                         Napis(QStringLiteral("frmPrzegladKategorii5")), this);
  auto* cmdZwin = PrzyciskPrzegladarki(QStringLiteral("cmdZwin"),
                                       Napis(QStringLiteral("frmPrzegladKategorii6")), this);
  connect(cmdRozwin, &QPushButton::clicked, this, &frmPrzegladKategorii::cmdRozwin_Click);
  connect(cmdZwin, &QPushButton::clicked, this, &frmPrzegladKategorii::cmdZwin_Click);
  cmdWybierz_ = PrzyciskPrzegladarki(QStringLiteral("cmdWybierz"), QString(), this);
  cmdWybierz_->setDefault(true);
  cmdAnuluj_ = PrzyciskPrzegladarki(QStringLiteral("cmdAnuluj"),
                                    Napis(QStringLiteral("frmPrzegladKategorii7")), this);
  cmdSzczegoly_ = PrzyciskPrzegladarki(QStringLiteral("cmdSzczegoly"), QString(), this);
  connect(cmdWybierz_, &QPushButton::clicked, this, &frmPrzegladKategorii::cmdWybierz_Click);
  connect(cmdAnuluj_, &QPushButton::clicked, this, &frmPrzegladKategorii::reject);
  connect(cmdSzczegoly_, &QPushButton::clicked, this, &frmPrzegladKategorii::cmdSzczegoly_Click);

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
  lewa->addWidget(tvwKategorie_, 1);
  lewa->addLayout(drzewo);
  lewa->addWidget(fraLimityMain_);
  lewa->addLayout(dol);
  auto* srodek = new QHBoxLayout;
  srodek->addLayout(lewa, 1);
  srodek->addWidget(zbudujSzczegoly());
  auto* uklad = new QVBoxLayout(this);
  uklad->setMenuBar(pasek);
  uklad->addLayout(srodek, 1);

  // The tree's context menu; its items also answer their keys in the tree.
  menu_ = new QMenu(this);
  mnuNowaKategoria_ =
      akcja(menu_, QStringLiteral("mnuNowaKategoria"), QKeySequence(Qt::Key_Insert));
  mnuNowaPodKategoria_ =
      akcja(menu_, QStringLiteral("mnuNowaPodKategoria"), QKeySequence(Qt::CTRL | Qt::Key_Insert));
  mnuEdytujKategorie_ =
      akcja(menu_, QStringLiteral("mnuEdytujKategorie"), QKeySequence(Qt::Key_F2));
  mnuSkasujKategorie_ =
      akcja(menu_, QStringLiteral("mnuSkasujKategorie"), QKeySequence(Qt::Key_Delete));
  for (QAction* a : {mnuNowaKategoria_, mnuNowaPodKategoria_, mnuEdytujKategorie_})
    tvwKategorie_->addAction(a);
  connect(mnuNowaKategoria_, &QAction::triggered, this, &frmPrzegladKategorii::NowaKategoria);
  connect(mnuNowaPodKategoria_, &QAction::triggered, this, &frmPrzegladKategorii::NowaPodkategoria);
  connect(mnuEdytujKategorie_, &QAction::triggered, this, &frmPrzegladKategorii::EdytujKategorie);
  connect(mnuSkasujKategorie_, &QAction::triggered, this, &frmPrzegladKategorii::SkasujKategorie);

  // The names show whole, and every command of the strip shows, in either edition, also in
  // the narrow picker.
  const QMargins m = uklad->contentsMargins();
  najwezsza_ = std::max(Wymiary.waska, lewa->minimumSize().width() + m.left() + m.right());
  pasek_ = SzerokoscPaska(pasek) + m.left() + m.right();
  szerokoscWaska_ = std::max(420, najwezsza_);
}

QWidget* frmPrzegladKategorii::zbudujSzczegoly() {
  frmSzczegoly_ = new QGroupBox(this);
  frmSzczegoly_->setObjectName(QStringLiteral("frmSzczegoly"));
  QWidget* s = frmSzczegoly_;

  filtr_ = new PrzyciskiFiltra(s, 2);
  filtr_->Zakres()->setText(Napis(QStringLiteral("frmPrzegladKategorii24")));
  connect(filtr_, &PrzyciskiFiltra::zmieniony, this, &frmPrzegladKategorii::PokazWezel);
  lblOkres_ = EtykietaPrzegladarki(QStringLiteral("lblOkres"), QString(), s);
  lblOkres_->setWordWrap(true);
  QFont pogrubiona = lblOkres_->font();
  pogrubiona.setBold(true);
  lblOkres_->setFont(pogrubiona);

  auto* suma = new QGridLayout;
  lblSuma_ = WartoscPrzegladarki(QStringLiteral("lblSuma"), s);
  suma->addWidget(
      EtykietaPrzegladarki(QString(), Napis(QStringLiteral("frmPrzegladKategorii10")), s), 0, 0);
  suma->addWidget(lblSuma_, 0, 1);
  suma->setColumnStretch(0, 1);

  // A leaf: its limit.
  fraLimity_ = new QGroupBox(Napis(QStringLiteral("frmPrzegladKategorii11")), s);
  fraLimity_->setObjectName(QStringLiteral("fraLimity"));
  auto* lbl1 = EtykietaPrzegladarki(QStringLiteral("lbl1"),
                                    Napis(QStringLiteral("frmPrzegladKategorii12")), fraLimity_);
  lbl2_ = EtykietaPrzegladarki(QStringLiteral("lbl2"),
                               Napis(QStringLiteral("frmPrzegladKategorii13")), fraLimity_);
  lbl3_ = EtykietaPrzegladarki(QStringLiteral("lbl3"),
                               Napis(QStringLiteral("frmPrzegladKategorii14")), fraLimity_);
  lbl4_ = EtykietaPrzegladarki(QStringLiteral("lbl4"), QString(), fraLimity_);
  lblLimit_ = WartoscPrzegladarki(QStringLiteral("lblLimit"), fraLimity_);
  lblWykorzystano_ = WartoscPrzegladarki(QStringLiteral("lblWykorzystano"), fraLimity_);
  lblPozostajeDoWykorzystania_ =
      WartoscPrzegladarki(QStringLiteral("lblPozostajeDoWykorzystania"), fraLimity_);
  lblProcentWykorzystania_ =
      WartoscPrzegladarki(QStringLiteral("lblProcentWykorzystania"), fraLimity_);
  cmdZmienLimit_ = PrzyciskPrzegladarki(QStringLiteral("cmdZmienLimit"), QString(), fraLimity_);
  connect(cmdZmienLimit_, &QPushButton::clicked, this, &frmPrzegladKategorii::cmdZmienLimit_Click);
  auto* ukladLimitow = new QGridLayout(fraLimity_);
  const std::pair<QLabel*, QLabel*> wiersze[] = {{lbl1, lblLimit_},
                                                 {lbl2_, lblWykorzystano_},
                                                 {lbl3_, lblPozostajeDoWykorzystania_},
                                                 {lbl4_, lblProcentWykorzystania_}};
  int w = 0;
  for (const auto& [opis, liczba] : wiersze) {
    ukladLimitow->addWidget(opis, w, 0);
    ukladLimitow->addWidget(liczba, w, 1);
    ++w;
  }
  ukladLimitow->addWidget(cmdZmienLimit_, w, 0, 1, 2, Qt::AlignRight);
  ukladLimitow->setColumnStretch(0, 1);

  // A parent: the breakdown over its children.
  fraPodkategorie_ = new QWidget(s);
  fraPodkategorie_->setObjectName(QStringLiteral("fraPodkategorie"));
  lvwPodkategorie_ = new QTreeWidget(fraPodkategorie_);
  lvwPodkategorie_->setObjectName(QStringLiteral("lvwPodkategorie"));
  lvwPodkategorie_->setRootIsDecorated(false);
  lvwPodkategorie_->setColumnCount(3);
  lvwPodkategorie_->setHeaderLabels({Napis(QStringLiteral("frmPrzegladKategorii15")),
                                     Napis(QStringLiteral("frmPrzegladKategorii16")),
                                     Napis(QStringLiteral("frmPrzegladKategorii17"))});
  // The name column holds the longest name whole; the amount takes what it needs, the share the
  // rest.
  lvwPodkategorie_->header()->setStretchLastSection(true);
  lvwPodkategorie_->header()->setSectionResizeMode(0, QHeaderView::Fixed);
  lvwPodkategorie_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  lvwPodkategorie_->header()->setSectionResizeMode(2, QHeaderView::Stretch);
  lvwPodkategorie_->setIconSize(QSize(12, 12));
  const int kolumnaNazwy = SzerokoscKolumnyNazwy(lvwPodkategorie_, true);
  lvwPodkategorie_->header()->resizeSection(0, kolumnaNazwy);
  {
    // Room beside the names for an amount of millions and a share, and the scroll bar.
    const QFontMetrics fm = lvwPodkategorie_->fontMetrics();
    const int margines =
        2 * (lvwPodkategorie_->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1) + 8;
    const int kwota =
        std::max(fm.horizontalAdvance(FormatKwoty(9999999.99)),
                 fm.horizontalAdvance(Napis(QStringLiteral("frmPrzegladKategorii16"))));
    const int udzial =
        std::max(fm.horizontalAdvance(QStringLiteral("100.00")),
                 fm.horizontalAdvance(Napis(QStringLiteral("frmPrzegladKategorii17"))));
    lvwPodkategorie_->setMinimumWidth(kolumnaNazwy + kwota + udzial + 2 * margines +
                                      lvwPodkategorie_->verticalScrollBar()->sizeHint().width() +
                                      2 * lvwPodkategorie_->frameWidth());
  }
  lvwPodkategorie_->headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
  lvwPodkategorie_->headerItem()->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
  mscWykres_ = NowyWykres(QStringLiteral("mscWykres"), fraPodkategorie_);
  mscWykres_->setMinimumSize(150, 150);
  auto* ukladPodkategorii = new QHBoxLayout(fraPodkategorie_);
  ukladPodkategorii->setContentsMargins(0, 0, 0, 0);
  ukladPodkategorii->addWidget(lvwPodkategorie_, 3);
  ukladPodkategorii->addWidget(mscWykres_, 2);

  auto* razem = new QGridLayout;
  lblSumaPod_ = WartoscPrzegladarki(QStringLiteral("lblSumaPod"), s);
  lblRazem_ = WartoscPrzegladarki(QStringLiteral("lblRazem"), s);
  lblRazem_->setFont(pogrubiona);
  razem->addWidget(
      EtykietaPrzegladarki(QString(), Napis(QStringLiteral("frmPrzegladKategorii18")), s), 0, 0);
  razem->addWidget(lblSumaPod_, 0, 1);
  razem->addWidget(
      EtykietaPrzegladarki(QString(), Napis(QStringLiteral("frmPrzegladKategorii19")), s), 1, 0);
  razem->addWidget(lblRazem_, 1, 1);
  razem->setColumnStretch(0, 1);

  cmdPrzeglad_ = PrzyciskPrzegladarki(QStringLiteral("cmdPrzeglad"),
                                      Napis(QStringLiteral("frmPrzegladKategorii20")), s);
  cmdRaportDetaliczny_ = PrzyciskPrzegladarki(QStringLiteral("cmdRaportDetaliczny"),
                                              Napis(QStringLiteral("frmPrzegladKategorii21")), s);
  cmdRaportZbiorczy_ = PrzyciskPrzegladarki(QStringLiteral("cmdRaportZbiorczy"),
                                            Napis(QStringLiteral("frmPrzegladKategorii22")), s);
  cmdWCzasie_ = PrzyciskPrzegladarki(QStringLiteral("cmdWCzasie"),
                                     Napis(QStringLiteral("frmPrzegladKategorii23")), s);
  connect(cmdPrzeglad_, &QPushButton::clicked, this, &frmPrzegladKategorii::cmdPrzeglad_Click);
  connect(cmdRaportDetaliczny_, &QPushButton::clicked, this, [this] { cmdRaport_Click(true); });
  connect(cmdRaportZbiorczy_, &QPushButton::clicked, this, [this] { cmdRaport_Click(false); });
  connect(cmdWCzasie_, &QPushButton::clicked, this, &frmPrzegladKategorii::cmdWCzasie_Click);
  cmdRaportDetaliczny_->setEnabled(Nawigacja::Dostepny(EkranRaportu));
  cmdRaportZbiorczy_->setEnabled(Nawigacja::Dostepny(EkranRaportu));
  cmdWCzasie_->setEnabled(Nawigacja::Dostepny(EkranWCzasie));
  auto* polecenia = new QGridLayout;
  polecenia->addWidget(cmdPrzeglad_, 0, 0);
  polecenia->addWidget(cmdWCzasie_, 0, 1);
  polecenia->addWidget(cmdRaportDetaliczny_, 1, 0);
  polecenia->addWidget(cmdRaportZbiorczy_, 1, 1);

  auto* uklad = new QVBoxLayout(s);
  uklad->addWidget(filtr_);
  uklad->addWidget(lblOkres_);
  uklad->addLayout(suma);
  uklad->addWidget(fraLimity_);
  uklad->addWidget(fraPodkategorie_, 1);
  uklad->addLayout(razem);
  uklad->addStretch();
  uklad->addLayout(polecenia);
  // As wide as the breakdown with its chart beside it needs.
  panel_ = std::max(SzerokoscSzczegolow, uklad->minimumSize().width());
  frmSzczegoly_->setFixedWidth(panel_);
  return s;
}

QTreeWidgetItem* frmPrzegladKategorii::wybrany() const { return tvwKategorie_->currentItem(); }

QString frmPrzegladKategorii::klucz(QTreeWidgetItem* w) const {
  return w ? w->data(0, RolaKlucza).toString() : QString();
}

QTreeWidgetItem* frmPrzegladKategorii::wezel(const QString& k) const {
  for (QTreeWidgetItem* w : WyszukiwanieGui::WszystkieWezly(tvwKategorie_))
    if (klucz(w) == k) return w;
  return nullptr;
}

// ---- filling and showing ---------------------------------------------------------------------

void frmPrzegladKategorii::WypelnijDrzewo() {
  {
    const QSignalBlocker cisza(tvwKategorie_);
    tvwKategorie_->setUpdatesEnabled(false);
    tvwKategorie_->clear();
    auto* root =
        new QTreeWidgetItem(tvwKategorie_, {Napis(QStringLiteral("frmPrzegladKategorii66"))});
    root->setData(0, RolaKlucza, KluczKorzenia);
    QHash<QString, QTreeWidgetItem*> wezly;
    QTreeWidgetItem* doWybrania = root;
    // Identifier order puts every parent before its children.
    for (const WierszKategorii& k : WierszeKategorii(rodzaj_)) {
      QTreeWidgetItem* rodzic = k.kategoria == QLatin1String("-") ? root : wezly.value(k.kategoria);
      if (!rodzic) continue;  // a row whose parent is gone has no place in the tree
      auto* w = new QTreeWidgetItem(rodzic, {k.nazwa});
      w->setData(0, RolaKlucza, k.identyfikator);
      wezly.insert(k.identyfikator, w);
      if (k.identyfikator == sesja.pubKategoria.identyfikator) doWybrania = w;
    }
    tvwKategorie_->expandAll();
    tvwKategorie_->setCurrentItem(doWybrania);
    tvwKategorie_->setUpdatesEnabled(true);
    tvwKategorie_->scrollToItem(doWybrania);
  }
  filtr_->NacisnijBiezacy();
}

void frmPrzegladKategorii::PokazWezel() {
  QTreeWidgetItem* item = wybrany();
  if (!item) return;
  const QString k = klucz(item);
  ustawPolecenia();

  const StanLimitu s = LimitWezla(k, rodzaj_, item->childCount() > 0);
  fraLimityMain_->setVisible(s.widoczny);
  if (s.widoczny) {
    imgLimit_[0]->setVisible(!s.przekroczony);
    imgLimit_[1]->setVisible(s.przekroczony);
    lblWykorzystanoMain_->setText(s.wykorzystanoMain);
    lblKomentarzLimit_->setText(s.komentarz);
  }
  if (sesja.pubSzczegoly != 1) return;

  frmSzczegoly_->setTitle(Napis(QStringLiteral("frmPrzegladKategorii96")) + QLatin1Char(' ') +
                          item->text(0));
  const bool lisc = item->childCount() == 0;
  fraLimity_->setVisible(lisc);
  fraPodkategorie_->setVisible(!lisc);
  if (lisc) {
    lblLimit_->setText(s.lblLimit);
    for (QWidget* w : {static_cast<QWidget*>(lbl2_), static_cast<QWidget*>(lbl3_),
                       static_cast<QWidget*>(lbl4_), static_cast<QWidget*>(lblWykorzystano_),
                       static_cast<QWidget*>(lblPozostajeDoWykorzystania_),
                       static_cast<QWidget*>(lblProcentWykorzystania_)})
      w->setVisible(s.widoczny);
    cmdZmienLimit_->setText(Napis(s.widoczny ? QStringLiteral("frmPrzegladKategorii101")
                                             : QStringLiteral("frmPrzegladKategorii98")));
    if (s.widoczny) {
      lblWykorzystano_->setText(s.lblWykorzystano);
      lblPozostajeDoWykorzystania_->setText(s.lblPozostaje);
      lblProcentWykorzystania_->setText(s.lblProcent);
      lbl4_->setText(s.lbl4);
      // Used up (remaining 0 included) reads in red; otherwise the theme's text colour.
      lbl4_->setStyleSheet(s.wyczerpany ? QStringLiteral("color: #ff0000;") : QString());
      lblProcentWykorzystania_->setStyleSheet(lbl4_->styleSheet());
    }
  }
  pokazSzczegoly(item, k);
}

void frmPrzegladKategorii::pokazSzczegoly(QTreeWidgetItem* item, const QString& k) {
  sesja.pubOkres = FiltrCzasowy(sesja.pubFiltrCzasowy);
  lblOkres_->setText(sesja.pubOkres.opisDlugi);
  Rozbicie r;
  if (item->childCount() == 0) {
    // A leaf has nothing below it: its own entries are all there is.
    r.suma = r.razem = SumaWezla(k, rodzaj_, sesja.pubOkres.warunek).Razem();
  } else {
    r = RozbicieKategorii(k, rodzaj_, sesja.pubOkres.warunek);
  }
  lblSuma_->setText(FormatKwoty(r.suma));

  lvwPodkategorie_->clear();
  DaneWykresu wykres;
  wykres.typ = DaneWykresu::Kolowy;
  wykres.Rozmiar(int(r.wiersze.size()), 1);
  int n = 0;
  for (const WierszRozbicia& w : r.wiersze) {
    ++n;
    auto* linia = new QTreeWidgetItem(lvwPodkategorie_, {w.nazwa, FormatKwoty(w.kwota), w.udzial});
    linia->setData(0, RolaKlucza, QStringLiteral("a%1").arg(n));
    linia->setIcon(0, ikonaKoloru(w.kolor));
    linia->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    linia->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
    wykres.Ustaw(n, 1, w.kwota);
    wykres.kolory.push_back(kolorRozbicia(w.kolor));
  }
  RysujWykres(mscWykres_, wykres);
  lblSumaPod_->setText(FormatKwoty(r.sumaPod));
  lblRazem_->setText(FormatKwoty(r.razem));
}

WymiarySzczegolow frmPrzegladKategorii::wymiary() const {
  // Open, the details widen the window under the strip; closed, the list alone must hold it.
  const int panel = panel_;
  const int waska = std::max(najwezsza_, sesja.pubSzczegoly == 1 ? pasek_ - panel : pasek_);
  return {waska, panel_, Wymiary.wysokosc};
}

void frmPrzegladKategorii::ustawSzczegoly() {
  PokazSzczegolyPrzegladarki(
      this, frmSzczegoly_, cmdSzczegoly_, Napis(QStringLiteral("frmPrzegladKategorii51")),
      Napis(QStringLiteral("frmPrzegladKategorii52")), wymiary(), szerokoscWaska_);
}

void frmPrzegladKategorii::ustawPolecenia() {
  QTreeWidgetItem* item = wybrany();
  if (!item) return;
  const QString k = klucz(item);
  const bool korzen = k == KluczKorzenia;
  const QString nazwa = QLatin1Char(' ') + item->text(0);
  mnuEdytujKategorie_->setEnabled(!korzen);
  mnuSkasujKategorie_->setEnabled(!korzen);
  mnuEdytujKategorie_->setText(Napis(QStringLiteral("frmPrzegladKategorii68")) +
                               (korzen ? QString() : nazwa));
  mnuSkasujKategorie_->setText(Napis(QStringLiteral("frmPrzegladKategorii69")) +
                               (korzen ? QString() : nazwa));
  if (korzen)
    mnuNowaKategoria_->setText(Napis(QStringLiteral("frmPrzegladKategorii67")));
  else if (k.size() == 1)
    mnuNowaKategoria_->setText(Napis(QStringLiteral("frmPrzegladKategorii70")));
  else
    mnuNowaKategoria_->setText(Napis(QStringLiteral("frmPrzegladKategorii71")) + QLatin1Char(' ') +
                               item->parent()->text(0));
  const bool podkategoria = !korzen && k.size() < MaksPoziomow;
  // Root takes new main categories through mnuNowaKategoria; a level-4 node takes no children.
  mnuNowaPodKategoria_->setEnabled(podkategoria);
  mnuNowaPodKategoria_->setText(podkategoria
                                    ? Napis(QStringLiteral("frmPrzegladKategorii73")) + nazwa
                                    : Napis(QStringLiteral("frmPrzegladKategorii72")));
  cmdMenu_[1]->setEnabled(!korzen);
  cmdMenu_[2]->setEnabled(!korzen);
}

// ---- commands --------------------------------------------------------------------------------

void frmPrzegladKategorii::cmdWybierz_Click() {
  QTreeWidgetItem* item = wybrany();
  if (!item) return;
  if (sesja.pubTrybPrzegladu != 2) {
    EdytujKategorie();
    return;
  }
  if (klucz(item) == KluczKorzenia) {
    MyMsgbox(Napis(QStringLiteral("frmPrzegladKategorii62")),
             Napis(QStringLiteral("frmPrzegladKategorii63")), MsgOK, IkonaInformacja);
  } else if (item->childCount() > 0) {
    // Entries sit on leaves only: open the way down instead of taking a parent.
    item->setExpanded(true);
    tvwKategorie_->scrollToItem(item->child(0));
  } else {
    sesja.pubKategoria.identyfikator = klucz(item);
    sesja.pubKategoria.nazwa = item->text(0);
    sesja.pubKategoria.nadkategoria = klucz(item->parent());
    sesja.pubKategoria.rodzaj = rodzaj_;
    accept();
  }
}

void frmPrzegladKategorii::reject() {
  sesja.pubKategoria = kopia_;
  QDialog::reject();
}

void frmPrzegladKategorii::otworzEdytor() {
  sesja.pubKategoria.rodzaj = rodzaj_;
  frmEdycjaKategorii edytor(this);
  if (edytor.exec() == QDialog::Accepted) {
    if (edytor.Nowa()) {
      dodajWezel(sesja.pubKategoria.nadkategoria, edytor.Zapisany(), edytor.Nazwa());
    } else if (QTreeWidgetItem* w = wezel(edytor.Zapisany())) {
      w->setText(0, edytor.Nazwa());
    }
  }
  PokazWezel();
}

QTreeWidgetItem* frmPrzegladKategorii::dodajWezel(const QString& rodzic, const QString& k,
                                                  const QString& nazwa) {
  QTreeWidgetItem* r = wezel(rodzic.isEmpty() ? KluczKorzenia : rodzic);
  if (!r) return nullptr;
  int poz = 0;
  while (poz < r->childCount() && klucz(r->child(poz)) < k) ++poz;
  auto* w = new QTreeWidgetItem(QStringList{nazwa});
  w->setData(0, RolaKlucza, k);
  r->insertChild(poz, w);
  r->setExpanded(true);
  tvwKategorie_->setCurrentItem(w);
  tvwKategorie_->scrollToItem(w);
  return w;
}

void frmPrzegladKategorii::NowaKategoria() {
  QTreeWidgetItem* item = wybrany();
  if (!item) return;
  const QString k = klucz(item);
  const std::optional<QString> nad =
      PrzygotujNowaKategorie(k, item->parent() ? klucz(item->parent()) : KluczKorzenia, rodzaj_);
  if (!nad) return;
  sesja.pubKategoria.identyfikator.clear();
  sesja.pubKategoria.nadkategoria = *nad;
  otworzEdytor();
}

void frmPrzegladKategorii::NowaPodkategoria() {
  QTreeWidgetItem* item = wybrany();
  if (!item) return;
  const QString k = klucz(item);
  const ::NowaPodkategoria p = PrzygotujNowaPodkategorie(k, rodzaj_);
  if (!p.automatyczna.isEmpty())
    dodajWezel(k, p.automatyczna, Napis(QStringLiteral("frmPrzegladKategorii89")));
  if (!p.otworzEdytor) return;
  sesja.pubKategoria.identyfikator.clear();
  sesja.pubKategoria.nadkategoria = p.nadkategoria;
  otworzEdytor();
}

void frmPrzegladKategorii::EdytujKategorie() {
  QTreeWidgetItem* item = wybrany();
  const QString k = klucz(item);
  if (!item || k == KluczKorzenia) return;
  sesja.pubKategoria.identyfikator = k;
  sesja.pubKategoria.nazwa = item->text(0);
  sesja.pubKategoria.nadkategoria = klucz(item->parent());
  otworzEdytor();
}

void frmPrzegladKategorii::SkasujKategorie() {
  QTreeWidgetItem* item = wybrany();
  const QString k = klucz(item);
  if (!item || k == KluczKorzenia) return;
  const QString rodzic = klucz(item->parent());
  if (!::SkasujKategorie(k, item->text(0), rodzaj_)) return;
  sesja.pubKategoria.identyfikator = rodzic;
  WypelnijDrzewo();
  wyszukiwanie_->Wyczysc();
  txtKlucz_->setFocus();
}

void frmPrzegladKategorii::cmdZmienLimit_Click() {
  QTreeWidgetItem* item = wybrany();
  if (!item) return;
  sesja.pubKategoria.identyfikator = klucz(item);
  sesja.pubKategoria.nazwa = item->text(0);
  sesja.pubKategoria.rodzaj = rodzaj_;
  frmLimitDlaKategorii dialog(this);
  dialog.exec();
  PokazWezel();
}

void frmPrzegladKategorii::cmdSzczegoly_Click() {
  szerokoscWaska_ = PrzelaczSzczegolyPrzegladarki(this, wymiary());
  ustawSzczegoly();
  PokazWezel();
}

void frmPrzegladKategorii::cmdRozwin_Click() { tvwKategorie_->expandAll(); }

void frmPrzegladKategorii::cmdZwin_Click() {
  // Back to the main categories: Root stays open, everything below it closes.
  tvwKategorie_->collapseAll();
  if (QTreeWidgetItem* root = tvwKategorie_->topLevelItem(0)) root->setExpanded(true);
  if (QTreeWidgetItem* item = wybrany()) {
    QTreeWidgetItem* widoczny = item;
    while (widoczny->parent() && widoczny->parent()->parent()) widoczny = widoczny->parent();
    tvwKategorie_->setCurrentItem(widoczny);
    tvwKategorie_->scrollToItem(widoczny);
  }
}

void frmPrzegladKategorii::menuKontekstowe(const QPoint& gdzie) {
  if (QTreeWidgetItem* item = tvwKategorie_->itemAt(gdzie)) tvwKategorie_->setCurrentItem(item);
  QTreeWidgetItem* item = wybrany();
  if (!item) return;
  ustawPolecenia();
  // From the keyboard (the menu key) the menu opens at the selected node.
  QPoint punkt = gdzie;
  if (!tvwKategorie_->itemAt(gdzie)) punkt = tvwKategorie_->visualItemRect(item).bottomLeft();
  menu_->popup(tvwKategorie_->viewport()->mapToGlobal(punkt));
}

// ---- the entries and reports of a node -------------------------------------------------------

void frmPrzegladKategorii::cmdPrzeglad_Click() {
  QTreeWidgetItem* item = wybrany();
  if (!item) return;
  const QString k = klucz(item);
  QString warunek = QStringLiteral(" AND transakcje.rodzaj=") + QString::number(rodzaj_);
  // A parent shows its whole subtree.
  if (k != KluczKorzenia)
    warunek += QStringLiteral(" AND LEFT(transakcje.kategoria,") + QString::number(k.size()) +
               QStringLiteral(")=") + SqlTekst(k) + QLatin1Char(' ');
  sesja.pubFiltrTransakcji = warunek;
  sesja.pubTytulTransakcji.clear();
  sesja.pubWierszTransakcji = 0;
  sesja.pubTryb = 2;
  Nawigacja::Pokaz(EkranWpisow, this);
  filtr_->NacisnijBiezacy();
}

void frmPrzegladKategorii::cmdRaport_Click(bool detaliczny) {
  QTreeWidgetItem* item = wybrany();
  if (!item) return;
  sesja.pubRaportDetaliczny = detaliczny;
  sesja.pubKategoria.identyfikator = klucz(item);
  sesja.pubKategoria.rodzaj = rodzaj_;
  sesja.pubOkres = FiltrCzasowy(sesja.pubFiltrCzasowy);
  Nawigacja::Pokaz(EkranRaportu, this);
}

void frmPrzegladKategorii::cmdWCzasie_Click() {
  QTreeWidgetItem* item = wybrany();
  if (!item) return;
  sesja.pubKategoria.identyfikator = klucz(item);
  sesja.pubKategoria.rodzaj = rodzaj_;
  Nawigacja::Pokaz(EkranWCzasie, this);
}
