#include "questions/frmZadajPytanie.h"

#include <QCollator>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "questions/frmZadajPytanieEdycja.h"
#include "questions/logowanie.h"
#include "questions/pytania.h"
#include "store/MsgBoxModule.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"
#include "ui/nawigacja_gui.h"
#include "ui/przegladarka_gui.h"

namespace {
constexpr int RolaKlucza = Qt::UserRole;
constexpr int RolaSortowania = Qt::UserRole + 1;

// A line sorts by its value: dates by date, texts in the Polish order.
class Linia : public QTreeWidgetItem {
 public:
  using QTreeWidgetItem::QTreeWidgetItem;
  bool operator<(const QTreeWidgetItem& inna) const override {
    const int k = treeWidget() ? treeWidget()->header()->sortIndicatorSection() : 0;
    const QVariant a = data(k, RolaSortowania), b = inna.data(k, RolaSortowania);
    if (k == 1 || k == 2) return a.toString() < b.toString();
    static const QCollator polski{QLocale(QLocale::Polish, QLocale::Poland)};
    return polski.compare(text(k), inna.text(k)) < 0;
  }
};

QString dataListy(const QDate& d) {
  return d.isNull() ? QString() : FormatDaty(d, sesja.pubFormatDaty_ddpmmmpyy);
}

// The list shows a question on one line.
QString wJednejLinii(QString t) {
  t.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
  t.replace(QLatin1Char('\n'), QLatin1Char(' '));
  t.replace(QLatin1Char('\r'), QLatin1Char(' '));
  return t;
}

QPlainTextEdit* tekst(const QString& nazwa, QWidget* rodzic) {
  auto* t = new QPlainTextEdit(rodzic);
  t->setObjectName(nazwa);
  t->setReadOnly(true);
  t->setMinimumHeight(70);
  return t;
}
}  // namespace

frmZadajPytanie::frmZadajPytanie(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmZadajPytanie"));
  setWindowTitle(Napis(QStringLiteral("frmZadajPytanie1")));

  lvwPytania_ = new QTreeWidget(this);
  lvwPytania_->setObjectName(QStringLiteral("lvwPytania"));
  lvwPytania_->setRootIsDecorated(false);
  lvwPytania_->setUniformRowHeights(true);
  lvwPytania_->setAllColumnsShowFocus(true);
  lvwPytania_->setHeaderLabels(
      {Napis(QStringLiteral("frmZadajPytanie3")), Napis(QStringLiteral("frmZadajPytanie4")),
       Napis(QStringLiteral("frmZadajPytanie5")), Napis(QStringLiteral("frmZadajPytanie6"))});
  lvwPytania_->setColumnWidth(0, 110);
  lvwPytania_->setColumnWidth(1, 95);
  lvwPytania_->setColumnWidth(2, 95);
  // The order of writing until the user clicks a heading; a second click turns the order round.
  lvwPytania_->header()->setSectionsClickable(true);
  connect(lvwPytania_->header(), &QHeaderView::sectionClicked, this, [this](int kolumna) {
    porzadek_ = kolumna == kolumnaSortowania_ && porzadek_ == Qt::AscendingOrder
                    ? Qt::DescendingOrder
                    : Qt::AscendingOrder;
    kolumnaSortowania_ = kolumna;
    lvwPytania_->header()->setSortIndicatorShown(true);
    lvwPytania_->header()->setSortIndicator(kolumna, porzadek_);
    lvwPytania_->sortItems(kolumna, porzadek_);
  });
  lvwPytania_->setMinimumHeight(200);
  connect(lvwPytania_, &QTreeWidget::currentItemChanged, this, [this] { pokazWybrane(); });
  connect(lvwPytania_, &QTreeWidget::itemDoubleClicked, this, [this] { cmdEdytuj_Click(); });
  new KlawiszePrzegladarki(
      lvwPytania_, [this] { cmdKasuj_Click(); }, [this] { cmdEdytuj_Click(); });

  lblNieWyslane_ = new QLabel(this);
  lblNieWyslane_->setObjectName(QStringLiteral("lblNieWyslane"));
  lblBezOdpowiedzi_ = new QLabel(this);
  lblBezOdpowiedzi_->setObjectName(QStringLiteral("lblBezOdpowiedzi"));
  lblStan_ = new QLabel(this);
  lblStan_->setObjectName(QStringLiteral("lblStan"));
  QFont pogrubiona = lblStan_->font();
  pogrubiona.setBold(true);
  lblStan_->setFont(pogrubiona);
  txtPytanie_ = tekst(QStringLiteral("txtPytanie"), this);
  txtOdpowiedz_ = tekst(QStringLiteral("txtOdpowiedz"), this);
  auto* lblPytanie = new QLabel(Napis(QStringLiteral("frmZadajPytanie14")), this);
  lblPytanie->setBuddy(txtPytanie_);
  auto* lblOdpowiedz = new QLabel(Napis(QStringLiteral("frmZadajPytanie15")), this);
  lblOdpowiedz->setBuddy(txtOdpowiedz_);

  const auto przycisk = [this](const char* nazwa, const QString& napis) {
    return PrzyciskPrzegladarki(QLatin1String(nazwa), napis, this);
  };
  auto* cmdDodaj = przycisk("cmdDodaj", Napis(QStringLiteral("frmZadajPytanie7")));
  cmdEdytuj_ = przycisk("cmdEdytuj", Napis(QStringLiteral("frmZadajPytanie8")));
  cmdKasuj_ = przycisk("cmdKasuj", Napis(QStringLiteral("frmZadajPytanie9")));
  cmdWyslijPytania_ = przycisk("cmdWyslijPytania", Napis(QStringLiteral("frmZadajPytanie10")));
  cmdPobierzOdpowiedzi_ =
      przycisk("cmdPobierzOdpowiedzi", Napis(QStringLiteral("frmZadajPytanie11")));
  auto* cmdUstawienia = przycisk("cmdUstawienia", Napis(QStringLiteral("frmZadajPytanie13")));
  auto* cmdZamknij = przycisk("cmdZamknij", Napis(QStringLiteral("frmZadajPytanie12")));
  connect(cmdDodaj, &QPushButton::clicked, this, &frmZadajPytanie::cmdDodaj_Click);
  connect(cmdEdytuj_, &QPushButton::clicked, this, &frmZadajPytanie::cmdEdytuj_Click);
  connect(cmdKasuj_, &QPushButton::clicked, this, &frmZadajPytanie::cmdKasuj_Click);
  connect(cmdWyslijPytania_, &QPushButton::clicked, this, [this] { wymien(true); });
  connect(cmdPobierzOdpowiedzi_, &QPushButton::clicked, this, [this] { wymien(false); });
  connect(cmdUstawienia, &QPushButton::clicked, this, &frmZadajPytanie::cmdUstawienia_Click);
  connect(cmdZamknij, &QPushButton::clicked, this, &frmZadajPytanie::reject);

  auto* prawa = new QVBoxLayout;
  for (QPushButton* b : {cmdDodaj, cmdEdytuj_, cmdKasuj_}) prawa->addWidget(b);
  prawa->addSpacing(16);
  for (QPushButton* b : {cmdWyslijPytania_, cmdPobierzOdpowiedzi_}) prawa->addWidget(b);
  prawa->addSpacing(16);
  prawa->addWidget(cmdUstawienia);
  prawa->addStretch();
  prawa->addWidget(cmdZamknij);

  auto* liczniki = new QHBoxLayout;
  liczniki->addWidget(lblNieWyslane_);
  liczniki->addSpacing(24);
  liczniki->addWidget(lblBezOdpowiedzi_);
  liczniki->addStretch();

  auto* lewa = new QVBoxLayout;
  lewa->addWidget(lvwPytania_, 3);
  lewa->addLayout(liczniki);
  lewa->addWidget(lblStan_);
  lewa->addWidget(lblPytanie);
  lewa->addWidget(txtPytanie_, 1);
  lewa->addWidget(lblOdpowiedz);
  lewa->addWidget(txtOdpowiedz_, 2);

  auto* uklad = new QHBoxLayout(this);
  uklad->addLayout(lewa, 1);
  uklad->addLayout(prawa);

  connect(&wymiana_, &WymianaPytan::Postep, this, [this](int zrobione, int wszystkie) {
    if (!postep_) return;
    postep_->setMaximum(wszystkie);
    postep_->setValue(zrobione);
  });

  resize(780, 560);
  Odswiez();
  lvwPytania_->setFocus();
}

void frmZadajPytanie::showEvent(QShowEvent* e) {
  QDialog::showEvent(e);
  if (pokazany_) return;
  pokazany_ = true;
  // Once the window stands, so that the message and the login screen show over it.
  QTimer::singleShot(0, this, [this] { SprawdzLogowanie(); });
}

void frmZadajPytanie::reject() {
  // Closing during an exchange stops it first; what has been stored stays.
  if (wymiana_.Trwa()) {
    wymiana_.Przerwij();
    return;
  }
  QDialog::reject();
}

bool frmZadajPytanie::SprawdzLogowanie() {
  if (!sesja.pubUstawienia.userid.isEmpty()) return true;
  MyMsgbox(Napis(QStringLiteral("frmZadajPytanie36")) + Napis(QStringLiteral("frmZadajPytanie37")) +
               Napis(QStringLiteral("frmZadajPytanie38")),
           Napis(QStringLiteral("frmZadajPytanie39")), MsgOK, IkonaInformacja);
  Nawigacja::Pokaz(QStringLiteral("frmUstawieniaInternetowe"), this);
  return !sesja.pubUstawienia.userid.isEmpty();
}

void frmZadajPytanie::Odswiez() {
  const qint64 wybrane = wybraneId();
  const std::vector<Pytanie> pytania = CzytajPytania();
  lvwPytania_->clear();
  QTreeWidgetItem* doWybrania = nullptr;
  for (const Pytanie& p : pytania) {
    auto* w = new Linia(lvwPytania_, QStringList{SlowoStanu(p.Stan()), dataListy(p.datawyslania),
                                                 dataListy(p.dataodpowiedzi),
                                                 wJednejLinii(SkroconyTekst(p.pytanie))});
    w->setData(0, RolaKlucza, p.Klucz());
    w->setData(1, RolaSortowania, p.datawyslania.toString(Qt::ISODate));
    w->setData(2, RolaSortowania, p.dataodpowiedzi.toString(Qt::ISODate));
    w->setToolTip(3, p.pytanie);
    if (p.id == wybrane) doWybrania = w;
  }
  if (kolumnaSortowania_ >= 0) lvwPytania_->sortItems(kolumnaSortowania_, porzadek_);
  if (!doWybrania && lvwPytania_->topLevelItemCount() > 0)
    doWybrania = lvwPytania_->topLevelItem(0);
  lvwPytania_->setCurrentItem(doWybrania);
  const LicznikiPytan l = Policz(pytania);
  lblNieWyslane_->setText(Napis(QStringLiteral("frmZadajPytanie42")) + QLatin1Char(' ') +
                          QString::number(l.nieWyslane));
  lblBezOdpowiedzi_->setText(Napis(QStringLiteral("frmZadajPytanie43")) + QLatin1Char(' ') +
                             QString::number(l.bezOdpowiedzi));
  pokazWybrane();
}

qint64 frmZadajPytanie::wybraneId() const {
  const QTreeWidgetItem* w = lvwPytania_->currentItem();
  return w ? IdZKlucza(w->data(0, RolaKlucza).toString()) : 0;
}

char frmZadajPytanie::wybranyStan() const {
  const QTreeWidgetItem* w = lvwPytania_->currentItem();
  return w ? StanZKlucza(w->data(0, RolaKlucza).toString()) : '\0';
}

void frmZadajPytanie::pokazWybrane() {
  const char stan = wybranyStan();
  const Pytanie p = stan ? CzytajPytanie(wybraneId()) : Pytanie{};
  txtPytanie_->setPlainText(p.pytanie);
  txtOdpowiedz_->setPlainText(p.odpowiedz);
  switch (stan) {
    case StanPytania::NieWyslane:
      lblStan_->setText(Napis(QStringLiteral("frmZadajPytanie32")));
      break;
    case StanPytania::Wyslane:
      lblStan_->setText(Napis(QStringLiteral("frmZadajPytanie33")));
      break;
    case StanPytania::ZOdpowiedzia:
      lblStan_->setText(Napis(QStringLiteral("frmZadajPytanie34")));
      break;
    default:
      lblStan_->clear();
  }
  cmdEdytuj_->setEnabled(stan != '\0');
  cmdKasuj_->setEnabled(stan != '\0');
}

void frmZadajPytanie::edytuj(qint64 id) {
  pubPytanie = id;
  frmZadajPytanieEdycja edycja(this);
  if (edycja.exec() == QDialog::Accepted) {
    Odswiez();
    // The question just written is the one to look at.
    for (int i = 0; i < lvwPytania_->topLevelItemCount(); ++i) {
      QTreeWidgetItem* w = lvwPytania_->topLevelItem(i);
      if (IdZKlucza(w->data(0, RolaKlucza).toString()) == pubPytanie)
        lvwPytania_->setCurrentItem(w);
    }
  }
}

void frmZadajPytanie::cmdDodaj_Click() { edytuj(0); }

void frmZadajPytanie::cmdEdytuj_Click() {
  const char stan = wybranyStan();
  if (stan == '\0') return;
  if (stan != StanPytania::NieWyslane) {
    MyMsgbox(
        Napis(QStringLiteral("frmZadajPytanie18")) + Napis(QStringLiteral("frmZadajPytanie19")),
        Napis(QStringLiteral("frmZadajPytanie20")), MsgOK, IkonaInformacja);
    return;
  }
  edytuj(wybraneId());
}

void frmZadajPytanie::cmdKasuj_Click() {
  const qint64 id = wybraneId();
  if (id == 0) return;
  // The next line takes the place of the deleted one.
  const int wiersz = lvwPytania_->indexOfTopLevelItem(lvwPytania_->currentItem());
  if (!UsunPytanie(id)) return;
  Odswiez();
  const int ile = lvwPytania_->topLevelItemCount();
  if (ile > 0) lvwPytania_->setCurrentItem(lvwPytania_->topLevelItem(std::min(wiersz, ile - 1)));
}

void frmZadajPytanie::cmdUstawienia_Click() {
  Nawigacja::Pokaz(QStringLiteral("frmUstawieniaInternetowe"), this);
}

void frmZadajPytanie::wymien(bool wysylanie) {
  if (wymiana_.Trwa() || !SprawdzLogowanie()) return;
  QProgressDialog postep(this);
  postep.setObjectName(QStringLiteral("prgWymiana"));
  postep.setWindowTitle(Napis(QStringLiteral("frmZadajPytanie1")));
  postep.setLabelText(wysylanie ? Napis(QStringLiteral("frmZadajPytanie61"))
                                : Napis(QStringLiteral("frmZadajPytanie62")));
  postep.setCancelButtonText(Napis(QStringLiteral("frmZadajPytanie63")));
  postep.setWindowModality(Qt::WindowModal);
  postep.setAutoReset(false);
  postep.setAutoClose(false);
  postep.setMinimumDuration(300);
  postep.setMinimumWidth(360);
  connect(&postep, &QProgressDialog::canceled, &wymiana_, &WymianaPytan::Przerwij);
  postep_ = &postep;
  for (QPushButton* b : {cmdWyslijPytania_, cmdPobierzOdpowiedzi_}) b->setEnabled(false);
  if (wysylanie)
    wymiana_.WyslijPytania();
  else
    wymiana_.PobierzOdpowiedzi();
  postep_ = nullptr;
  postep.close();
  for (QPushButton* b : {cmdWyslijPytania_, cmdPobierzOdpowiedzi_}) b->setEnabled(true);
  Odswiez();
}
