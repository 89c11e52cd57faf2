#include "planning/frmKategorieOszczednosci.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHash>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "planning/raport_symulacji.h"
#include "store/dzis.h"
#include "store/kwota.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"
#include "ui/nawigacja_gui.h"
#include "ui/wyszukiwanie_gui.h"

namespace {

const QString kKorzen = QStringLiteral("Root");
constexpr int kRolaKlucza = Qt::UserRole;

QString kwota(qint64 grosze) { return FormatKwoty(ZGroszy(grosze)).trimmed(); }
QString kwotaListy(qint64 grosze) { return FormatKwotyEdycja(ZGroszy(grosze)); }

// picIkony: the tree's pointer while a change is set: minus for a cut, a ring for none, plus
// for a rise.
QCursor wskaznik(int znak) {
  QPixmap p(24, 24);
  p.fill(Qt::transparent);
  QPainter g(&p);
  g.setRenderHint(QPainter::Antialiasing);
  g.setPen(QPen(Qt::black, 1));
  g.setBrush(Qt::white);
  g.drawPolygon(QPolygonF({QPointF(1, 1), QPointF(1, 15), QPointF(5, 11), QPointF(8, 17),
                           QPointF(10, 16), QPointF(7, 10), QPointF(12, 10)}));
  const QColor kolor = znak < 0 ? QColor(0x2e, 0x8b, 0x3a)
                                : (znak > 0 ? QColor(0xc0, 0x39, 0x2b) : QColor(0x60, 0x60, 0x60));
  g.setPen(Qt::NoPen);
  g.setBrush(kolor);
  g.drawEllipse(QRectF(12, 12, 11, 11));
  g.setPen(QPen(Qt::white, 2));
  if (znak == 0) {
    g.setBrush(Qt::NoBrush);
    g.drawEllipse(QRectF(15, 15, 5, 5));
  } else {
    g.drawLine(QPointF(14.5, 17.5), QPointF(20.5, 17.5));
    if (znak > 0) g.drawLine(QPointF(17.5, 14.5), QPointF(17.5, 20.5));
  }
  return QCursor(p, 1, 1);
}

}  // namespace

frmKategorieOszczednosci::frmKategorieOszczednosci(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmKategorieOszczednosci"));
  setWindowTitle(Napis(QStringLiteral("frmKategorieOszczednosci1")));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  sesja.pubKategoria.rodzaj = 2;

  // The tree and its search.
  auto* lblKlucz = new QLabel(Napis(QStringLiteral("frmKategorieOszczednosci23")), this);
  auto* txtKlucz = new QLineEdit(this);
  txtKlucz->setObjectName(QStringLiteral("txtKlucz"));
  txtKlucz->setClearButtonEnabled(true);
  lblKlucz->setBuddy(txtKlucz);
  auto* cmdNastepny = new QPushButton(Napis(QStringLiteral("frmKategorieOszczednosci24")), this);
  cmdNastepny->setObjectName(QStringLiteral("cmdNastepny"));
  cmdNastepny->setAutoDefault(false);
  tvwKategorie_ = new QTreeWidget(this);
  tvwKategorie_->setObjectName(QStringLiteral("tvwKategorie"));
  tvwKategorie_->setHeaderHidden(true);
  tvwKategorie_->setExpandsOnDoubleClick(false);
  tvwKategorie_->setMinimumSize(340, 360);
  wyszukiwanie_ = new WyszukiwanieGui(txtKlucz, cmdNastepny, tvwKategorie_, 2);
  auto* cmdRozwin = new QPushButton(Napis(QStringLiteral("frmKategorieOszczednosci25")), this);
  cmdRozwin->setObjectName(QStringLiteral("cmdRozwin"));
  cmdRozwin->setAutoDefault(false);
  auto* cmdZwin = new QPushButton(Napis(QStringLiteral("frmKategorieOszczednosci26")), this);
  cmdZwin->setObjectName(QStringLiteral("cmdZwin"));
  cmdZwin->setAutoDefault(false);
  auto* szukanie = new QHBoxLayout;
  szukanie->addWidget(lblKlucz);
  szukanie->addWidget(txtKlucz, 1);
  szukanie->addWidget(cmdNastepny);
  auto* przyciskiDrzewa = new QHBoxLayout;
  przyciskiDrzewa->addWidget(cmdRozwin);
  przyciskiDrzewa->addWidget(cmdZwin);
  przyciskiDrzewa->addStretch();
  auto* lewa = new QVBoxLayout;
  lewa->addLayout(szukanie);
  lewa->addWidget(tvwKategorie_, 1);
  lewa->addLayout(przyciskiDrzewa);

  // The base month.
  auto* fraBazowy = new QGroupBox(Napis(QStringLiteral("frmKategorieOszczednosci2")), this);
  fraBazowy->setObjectName(QStringLiteral("fraBazowy"));
  optBazowy_[0] = new QRadioButton(Napis(QStringLiteral("frmKategorieOszczednosci3")), fraBazowy);
  optBazowy_[1] = new QRadioButton(Napis(QStringLiteral("frmKategorieOszczednosci4")), fraBazowy);
  auto* ukladBazowy = new QHBoxLayout(fraBazowy);
  for (int i = 0; i < 2; ++i) {
    optBazowy_[i]->setObjectName(QStringLiteral("optBazowy(%1)").arg(i));
    ukladBazowy->addWidget(optBazowy_[i]);
  }
  ukladBazowy->addStretch();
  optBazowy_[1]->setChecked(true);  // the last whole month

  // The change to apply.
  auto* fraZmiana = new QGroupBox(Napis(QStringLiteral("frmKategorieOszczednosci5")), this);
  fraZmiana->setObjectName(QStringLiteral("fraZmiana"));
  auto* lblProcent = new QLabel(Napis(QStringLiteral("frmKategorieOszczednosci6")), fraZmiana);
  txtProcent_ = new QLineEdit(QStringLiteral("0"), fraZmiana);
  txtProcent_->setObjectName(QStringLiteral("txtProcent"));
  txtProcent_->setMaxLength(8);
  txtProcent_->setAlignment(Qt::AlignRight);
  txtProcent_->setFixedWidth(
      txtProcent_->fontMetrics().horizontalAdvance(QStringLiteral("-100,000")) + 16);
  lblProcent->setBuddy(txtProcent_);
  const auto updown = [&](const char* nazwa, const QString& podpowiedz, int krok) {
    auto* ramka = new QWidget(fraZmiana);
    ramka->setObjectName(QLatin1String(nazwa));
    ramka->setToolTip(podpowiedz);
    auto* u = new QVBoxLayout(ramka);
    u->setContentsMargins(0, 0, 0, 0);
    u->setSpacing(0);
    for (int kierunek : {1, -1}) {
      auto* b = new QToolButton(ramka);
      b->setObjectName(
          QStringLiteral("%1(%2)").arg(QLatin1String(nazwa)).arg(kierunek > 0 ? 0 : 1));
      b->setArrowType(kierunek > 0 ? Qt::UpArrow : Qt::DownArrow);
      b->setToolTip(podpowiedz);
      b->setAutoRepeat(true);
      b->setFixedSize(22, 13);
      u->addWidget(b);
      connect(b, &QToolButton::clicked, this,
              [this, krok, kierunek] { ZmienProcent(krok * kierunek); });
    }
    return ramka;
  };
  auto* updDziesiatki =
      updown("updDziesiatki", Napis(QStringLiteral("frmKategorieOszczednosci7")), 10);
  auto* updJednostki =
      updown("updJednostki", Napis(QStringLiteral("frmKategorieOszczednosci8")), 1);
  cmdUstawOszczednosc_ = new QPushButton(fraZmiana);
  cmdUstawOszczednosc_->setObjectName(QStringLiteral("cmdUstawOszczednosc"));
  cmdUstawOszczednosc_->setDefault(true);
  auto* lblWskazowka = new QLabel(Napis(QStringLiteral("frmKategorieOszczednosci27")), fraZmiana);
  lblWskazowka->setWordWrap(true);
  auto* ukladZmiany = new QGridLayout(fraZmiana);
  auto* wierszProcentu = new QHBoxLayout;
  wierszProcentu->addWidget(lblProcent);
  wierszProcentu->addWidget(txtProcent_);
  wierszProcentu->addWidget(new QLabel(QStringLiteral("%"), fraZmiana));
  wierszProcentu->addWidget(updDziesiatki);
  wierszProcentu->addWidget(updJednostki);
  wierszProcentu->addSpacing(8);
  wierszProcentu->addWidget(cmdUstawOszczednosc_, 1);
  ukladZmiany->addLayout(wierszProcentu, 0, 0);
  ukladZmiany->addWidget(lblWskazowka, 1, 0);

  // The selected category's figures.
  fraOszczednosc_ = new QGroupBox(this);
  fraOszczednosc_->setObjectName(QStringLiteral("fraOszczednosc"));
  auto* ukladWyniku = new QGridLayout(fraOszczednosc_);
  const QString opisy[3] = {Napis(QStringLiteral("frmKategorieOszczednosci9")),
                            Napis(QStringLiteral("frmKategorieOszczednosci10")),
                            Napis(QStringLiteral("frmKategorieOszczednosci11"))};
  QFont pogrubiona = font();
  pogrubiona.setBold(true);
  for (int i = 0; i < 3; ++i) {
    ukladWyniku->addWidget(new QLabel(opisy[i], fraOszczednosc_), i, 0);
    lblWykonanie_[i] = new QLabel(fraOszczednosc_);
    lblWykonanie_[i]->setObjectName(QStringLiteral("lblWykonanie(%1)").arg(i));
    lblWykonanie_[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblWykonanie_[i]->setFont(pogrubiona);
    ukladWyniku->addWidget(lblWykonanie_[i], i, 1);
  }
  lvwPodkategorie_ = new QTreeWidget(fraOszczednosc_);
  lvwPodkategorie_->setObjectName(QStringLiteral("lvwPodkategorie"));
  lvwPodkategorie_->setRootIsDecorated(false);
  lvwPodkategorie_->setHeaderLabels({Napis(QStringLiteral("frmKategorieOszczednosci12")),
                                     Napis(QStringLiteral("frmKategorieOszczednosci13")),
                                     Napis(QStringLiteral("frmKategorieOszczednosci14")),
                                     Napis(QStringLiteral("frmKategorieOszczednosci15"))});
  lvwPodkategorie_->header()->setStretchLastSection(false);
  lvwPodkategorie_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  const int kolumnaKwoty =
      lvwPodkategorie_->fontMetrics().horizontalAdvance(QStringLiteral("-000000000.00")) + 16;
  for (int k = 1; k < 4; ++k) {
    lvwPodkategorie_->setColumnWidth(k, kolumnaKwoty);
    lvwPodkategorie_->headerItem()->setTextAlignment(k, Qt::AlignRight | Qt::AlignVCenter);
  }
  lvwPodkategorie_->setMinimumSize(kolumnaKwoty * 3 + 200, 150);
  ukladWyniku->addWidget(lvwPodkategorie_, 3, 0, 1, 2);

  auto* fraCzas =
      new QGroupBox(Napis(QStringLiteral("frmKategorieOszczednosci16")), fraOszczednosc_);
  fraCzas->setObjectName(QStringLiteral("fraCzas"));
  auto* ukladCzasu = new QGridLayout(fraCzas);
  lblOpisZmiany_ = new QLabel(fraCzas);
  lblOpisZmiany_->setObjectName(QStringLiteral("lblOpisZmiany"));
  ukladCzasu->addWidget(lblOpisZmiany_, 0, 0, 1, 6);
  const QString okresy[3] = {Napis(QStringLiteral("frmKategorieOszczednosci17")),
                             Napis(QStringLiteral("frmKategorieOszczednosci18")),
                             Napis(QStringLiteral("frmKategorieOszczednosci19"))};
  for (int i = 0; i < 3; ++i) {
    ukladCzasu->addWidget(new QLabel(okresy[i], fraCzas), 1, i * 2);
    lblOszczednosc_[i] = new QLabel(fraCzas);
    lblOszczednosc_[i]->setObjectName(QStringLiteral("lblOszczednosc(%1)").arg(i));
    lblOszczednosc_[i]->setFont(pogrubiona);
    lblOszczednosc_[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    ukladCzasu->addWidget(lblOszczednosc_[i], 1, i * 2 + 1);
    ukladCzasu->setColumnStretch(i * 2 + 1, 1);
  }
  ukladWyniku->addWidget(fraCzas, 4, 0, 1, 2);
  ukladWyniku->setColumnStretch(1, 1);

  pbrPasek_ = new QProgressBar(this);
  pbrPasek_->setObjectName(QStringLiteral("pbrPasek"));
  pbrPasek_->setTextVisible(false);
  lblCzekac_ = new QLabel(Napis(QStringLiteral("frmKategorieOszczednosci20")), this);
  lblCzekac_->setObjectName(QStringLiteral("lblCzekac"));
  QSizePolicy zasady = pbrPasek_->sizePolicy();
  zasady.setRetainSizeWhenHidden(true);
  pbrPasek_->setSizePolicy(zasady);
  pbrPasek_->hide();
  lblCzekac_->hide();
  auto* cmdDrukuj = new QPushButton(Napis(QStringLiteral("frmKategorieOszczednosci21")), this);
  cmdDrukuj->setObjectName(QStringLiteral("cmdDrukuj"));
  cmdDrukuj->setAutoDefault(false);
  cmdDrukuj->setEnabled(Nawigacja::Dostepny(QStringLiteral("frmRaportOszczednosciKategorie")));
  auto* cmdAnuluj = new QPushButton(Napis(QStringLiteral("frmKategorieOszczednosci22")), this);
  cmdAnuluj->setObjectName(QStringLiteral("cmdAnuluj"));
  cmdAnuluj->setAutoDefault(false);
  auto* dol = new QHBoxLayout;
  dol->addWidget(lblCzekac_);
  dol->addWidget(pbrPasek_, 1);
  dol->addWidget(cmdDrukuj);
  dol->addWidget(cmdAnuluj);

  auto* prawa = new QVBoxLayout;
  prawa->addWidget(fraBazowy);
  prawa->addWidget(fraZmiana);
  prawa->addWidget(fraOszczednosc_, 1);
  auto* srodek = new QHBoxLayout;
  srodek->addLayout(lewa, 2);
  srodek->addLayout(prawa, 3);
  auto* uklad = new QVBoxLayout(this);
  uklad->addLayout(srodek, 1);
  uklad->addLayout(dol);

  for (QRadioButton* o : optBazowy_)
    connect(o, &QRadioButton::toggled, this, [this](bool wlaczony) {
      if (!wlaczony) return;
      PrzeliczSymulacje();
      PokazSymulacje();
    });
  connect(txtProcent_, &QLineEdit::textChanged, this, &frmKategorieOszczednosci::procentZmieniony);
  connect(cmdUstawOszczednosc_, &QPushButton::clicked, this,
          &frmKategorieOszczednosci::UstawOszczednosc);
  connect(tvwKategorie_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* w) {
    if (wypelnianie_ || !w) return;
    wybrany_ = w->data(0, kRolaKlucza).toString();
    PokazSymulacje();
  });
  connect(tvwKategorie_, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* w) {
    if (!w) return;
    wybrany_ = w->data(0, kRolaKlucza).toString();
    UstawOszczednosc();
  });
  connect(tvwKategorie_, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* w) {
    if (!wypelnianie_) rozwiniete_.insert(w->data(0, kRolaKlucza).toString());
  });
  connect(tvwKategorie_, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem* w) {
    if (!wypelnianie_) rozwiniete_.remove(w->data(0, kRolaKlucza).toString());
  });
  connect(cmdRozwin, &QPushButton::clicked, tvwKategorie_, &QTreeWidget::expandAll);
  connect(cmdZwin, &QPushButton::clicked, this, [this] {
    tvwKategorie_->collapseAll();
    if (QTreeWidgetItem* r = tvwKategorie_->topLevelItem(0)) r->setExpanded(true);
  });
  connect(cmdDrukuj, &QPushButton::clicked, this, &frmKategorieOszczednosci::cmdDrukuj_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);

  rozwiniete_.insert(kKorzen);
  procentZmieniony();
  PrzeliczSymulacje();
  PokazSymulacje();
  resize(sizeHint().width() + 40, std::max(560, sizeHint().height()));
  tvwKategorie_->setFocus();
}

frmKategorieOszczednosci::~frmKategorieOszczednosci() { UstawSymulacjeRaportu(nullptr, {}); }

QTreeWidgetItem* frmKategorieOszczednosci::wezel(const QString& klucz) const {
  for (QTreeWidgetItem* w : WyszukiwanieGui::WszystkieWezly(tvwKategorie_))
    if (w->data(0, kRolaKlucza).toString() == klucz) return w;
  return nullptr;
}

void frmKategorieOszczednosci::PrzeliczSymulacje() {
  wypelnianie_ = true;
  pbrPasek_->show();
  lblCzekac_->show();
  tvwKategorie_->setUpdatesEnabled(false);
  tvwKategorie_->clear();
  symulacja_ = ::PrzeliczSymulacje(2, optBazowy_[0]->isChecked(), Dzis());
  pbrPasek_->setRange(0, int(symulacja_.wezly.size()));
  QHash<QString, QTreeWidgetItem*> wezly;
  int krok = 0;
  for (const WezelSymulacji& w : symulacja_.wezly) {
    QTreeWidgetItem* rodzic = wezly.value(w.rodzic, nullptr);
    auto* item = rodzic ? new QTreeWidgetItem(rodzic) : new QTreeWidgetItem(tvwKategorie_);
    item->setText(0, w.tekst);
    item->setData(0, kRolaKlucza, w.klucz);
    wezly.insert(w.klucz, item);
    pbrPasek_->setValue(++krok);
  }
  for (auto it = wezly.cbegin(); it != wezly.cend(); ++it)
    if (rozwiniete_.contains(it.key())) it.value()->setExpanded(true);
  QTreeWidgetItem* wybrany = wezly.value(wybrany_, nullptr);
  if (!wybrany) {
    wybrany_ = kKorzen;
    wybrany = wezly.value(kKorzen);
  }
  for (QTreeWidgetItem* p = wybrany ? wybrany->parent() : nullptr; p; p = p->parent())
    p->setExpanded(true);
  tvwKategorie_->setCurrentItem(wybrany);
  if (wybrany) tvwKategorie_->scrollToItem(wybrany);
  tvwKategorie_->setUpdatesEnabled(true);
  wyszukiwanie_->Wyczysc();
  pbrPasek_->hide();
  lblCzekac_->hide();
  wypelnianie_ = false;
}

void frmKategorieOszczednosci::PokazSymulacje() {
  const WezelSymulacji* w = symulacja_.Wezel(wybrany_);
  if (!w) return;
  sesja.pubKategoria.identyfikator = w->klucz;
  lblWykonanie_[0]->setText(kwota(w->a));
  lblWykonanie_[1]->setText(kwota(w->b));
  lblWykonanie_[2]->setText(kwota(w->b - w->a));
  lvwPodkategorie_->clear();
  for (const WezelSymulacji& d : symulacja_.wezly) {
    if (d.rodzic != w->klucz) continue;
    auto* linia = new QTreeWidgetItem(
        lvwPodkategorie_, {d.tekst, kwotaListy(d.a), kwotaListy(d.b), kwotaListy(d.b - d.a)});
    for (int k = 1; k < 4; ++k) linia->setTextAlignment(k, Qt::AlignRight | Qt::AlignVCenter);
  }
  fraOszczednosc_->setTitle(w->klucz == kKorzen
                                ? Napis(QStringLiteral("frmKategorieOszczednosci28"))
                                : Napis(QStringLiteral("frmKategorieOszczednosci29")) +
                                      QLatin1Char(' ') + w->tekst);
  const ZmianaWCzasie z = ZmianaWezla(*w);
  lblOszczednosc_[0]->setText(kwota(z.miesiecznie));
  lblOszczednosc_[1]->setText(kwota(z.kwartalnie));
  lblOszczednosc_[2]->setText(kwota(z.rocznie));
  lblOpisZmiany_->setText(z.opis == 30   ? Napis(QStringLiteral("frmKategorieOszczednosci30"))
                          : z.opis == 31 ? Napis(QStringLiteral("frmKategorieOszczednosci31"))
                                         : Napis(QStringLiteral("frmKategorieOszczednosci32")));
}

void frmKategorieOszczednosci::Wybierz(const QString& klucz) {
  if (QTreeWidgetItem* w = wezel(klucz)) tvwKategorie_->setCurrentItem(w);
}

void frmKategorieOszczednosci::UstawOszczednosc() {
  if (!::UstawOszczednosc(symulacja_, wybrany_, txtProcent_->text(), 2)) {
    txtProcent_->setFocus();
    txtProcent_->selectAll();
    return;
  }
  PrzeliczSymulacje();
  PokazSymulacje();
}

void frmKategorieOszczednosci::ZmienProcent(int krok) {
  QString t = txtProcent_->text();
  t.replace(QLatin1Char(','), QLatin1Char('.'));
  const double p = std::clamp(LiczbaZTekstu(t) + krok, -100.0, 100.0);
  QString nowy = QString::number(p, 'f', 3);
  while (nowy.contains(QLatin1Char('.')) &&
         (nowy.endsWith(QLatin1Char('0')) || nowy.endsWith(QLatin1Char('.'))))
    nowy.chop(1);
  txtProcent_->setText(nowy.replace(QLatin1Char('.'), sesja.pubSeparator));
}

void frmKategorieOszczednosci::procentZmieniony() {
  double p = 0;
  const bool ok = CzytajProcent(txtProcent_->text(), &p);
  QString wartosc = txtProcent_->text().trimmed();
  if (wartosc.startsWith(QLatin1Char('-')) || wartosc.startsWith(QLatin1Char('+')))
    wartosc.remove(0, 1);
  if (!ok || p == 0) {
    cmdUstawOszczednosc_->setText(Napis(QStringLiteral("frmKategorieOszczednosci37")));
    tvwKategorie_->setToolTip(Napis(QStringLiteral("frmKategorieOszczednosci35")));
    tvwKategorie_->viewport()->setCursor(wskaznik(0));
    return;
  }
  const bool wiecej = p > 0;
  cmdUstawOszczednosc_->setText((wiecej ? Napis(QStringLiteral("frmKategorieOszczednosci38"))
                                        : Napis(QStringLiteral("frmKategorieOszczednosci39"))) +
                                QLatin1Char(' ') + wartosc + QStringLiteral(" %"));
  tvwKategorie_->setToolTip((wiecej ? Napis(QStringLiteral("frmKategorieOszczednosci36"))
                                    : Napis(QStringLiteral("frmKategorieOszczednosci34"))) +
                            QLatin1Char(' ') + wartosc + QStringLiteral(" %"));
  tvwKategorie_->viewport()->setCursor(wskaznik(wiecej ? 1 : -1));
}

void frmKategorieOszczednosci::cmdDrukuj_Click() {
  UstawSymulacjeRaportu(&symulacja_, wybrany_);
  Nawigacja::Pokaz(QStringLiteral("frmRaportOszczednosciKategorie"), this);
  UstawSymulacjeRaportu(nullptr, {});
}
