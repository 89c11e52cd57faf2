#include "planning/frmKalendarz.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "store/dzis.h"
#include "store/kwota.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"
#include "store/zmiany.h"
#include "ui/nawigacja_gui.h"
#include "ui/pasujliste_gui.h"

namespace {

const char* const kWlasnosc = "komorka";

// The three small pictures of a day: income (an arrow in), expense (an arrow out), transfer
// (two arrows between accounts).
QPixmap obrazek(int rodzaj, int rozmiar) {
  QPixmap p(rozmiar * 2, rozmiar * 2);
  p.setDevicePixelRatio(2);
  p.fill(Qt::transparent);
  QPainter g(&p);
  g.setRenderHint(QPainter::Antialiasing);
  const QColor kolory[] = {QColor(0x2e, 0x8b, 0x3a), QColor(0xc0, 0x39, 0x2b),
                           QColor(0x2c, 0x62, 0xb4)};
  const QColor kolor = kolory[rodzaj];
  const double r = rozmiar;
  g.setPen(Qt::NoPen);
  g.setBrush(kolor);
  g.drawEllipse(QRectF(0.5, 0.5, r - 1, r - 1));
  QPen pioro(Qt::white, std::max(1.2, r / 8), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  g.setPen(pioro);
  g.setBrush(Qt::NoBrush);
  const double s = r / 2, d = r * 0.27;
  if (rodzaj == 0) {  // up: money coming in
    g.drawLine(QPointF(s, s + d), QPointF(s, s - d));
    g.drawPolyline(QPolygonF(
        {QPointF(s - d * 0.8, s - d * 0.1), QPointF(s, s - d), QPointF(s + d * 0.8, s - d * 0.1)}));
  } else if (rodzaj == 1) {  // down: money going out
    g.drawLine(QPointF(s, s - d), QPointF(s, s + d));
    g.drawPolyline(QPolygonF(
        {QPointF(s - d * 0.8, s + d * 0.1), QPointF(s, s + d), QPointF(s + d * 0.8, s + d * 0.1)}));
  } else {  // both ways
    g.drawLine(QPointF(s - d, s - d * 0.45), QPointF(s + d, s - d * 0.45));
    g.drawPolyline(QPolygonF({QPointF(s + d * 0.4, s - d), QPointF(s + d, s - d * 0.45),
                              QPointF(s + d * 0.4, s + d * 0.1)}));
    g.drawLine(QPointF(s + d, s + d * 0.45), QPointF(s - d, s + d * 0.45));
    g.drawPolyline(QPolygonF({QPointF(s - d * 0.4, s - d * 0.1), QPointF(s - d, s + d * 0.45),
                              QPointF(s - d * 0.4, s + d)}));
  }
  return p;
}

QColor kolor(const QString& ustawienie, QPalette::ColorRole zastepczy) {
  const QColor k = KolorUstawienia(ustawienie);
  return k.isValid() ? k : QPalette().color(zastepczy);
}

QString kwota(qint64 grosze) { return FormatKwoty(ZGroszy(grosze)).trimmed(); }

}  // namespace

frmKalendarz::frmKalendarz(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmKalendarz"));
  setWindowTitle(Napis(QStringLiteral("frmKalendarz1")));
  setWindowFlag(Qt::WindowMaximizeButtonHint);

  auto* cmdPoprzedni = new QPushButton(Napis(QStringLiteral("frmKalendarz9")), this);
  cmdPoprzedni->setObjectName(QStringLiteral("cmdPoprzedniMiesiac"));
  cmdPoprzedni->setToolTip(Napis(QStringLiteral("frmKalendarz17")));
  cmdPoprzedni->setAutoDefault(false);
  auto* cmdNastepny = new QPushButton(Napis(QStringLiteral("frmKalendarz10")), this);
  cmdNastepny->setObjectName(QStringLiteral("cmdNastepnyMiesiac"));
  cmdNastepny->setToolTip(Napis(QStringLiteral("frmKalendarz18")));
  cmdNastepny->setAutoDefault(false);
  lblWybranyMiesiac_ = new QLabel(this);
  lblWybranyMiesiac_->setObjectName(QStringLiteral("lblWybranyMiesiac"));
  lblWybranyMiesiac_->setAlignment(Qt::AlignCenter);
  QFont duza = lblWybranyMiesiac_->font();
  duza.setPointSizeF(duza.pointSizeF() * 1.4);
  duza.setBold(true);
  lblWybranyMiesiac_->setFont(duza);
  int najdluzszy = 0;
  for (int m = 1; m <= 12; ++m)
    najdluzszy =
        std::max(najdluzszy,
                 QFontMetrics(duza).horizontalAdvance(NazwaMiesiaca(m) + QStringLiteral(" 0000")));
  lblWybranyMiesiac_->setMinimumWidth(najdluzszy + 24);
  auto* gora = new QHBoxLayout;
  gora->addStretch();
  gora->addWidget(cmdPoprzedni);
  gora->addWidget(lblWybranyMiesiac_);
  gora->addWidget(cmdNastepny);
  gora->addStretch();

  auto* siatka = new QGridLayout;
  siatka->setSpacing(3);
  const QString dni[7] = {
      Napis(QStringLiteral("frmKalendarz2")), Napis(QStringLiteral("frmKalendarz3")),
      Napis(QStringLiteral("frmKalendarz4")), Napis(QStringLiteral("frmKalendarz5")),
      Napis(QStringLiteral("frmKalendarz6")), Napis(QStringLiteral("frmKalendarz7")),
      Napis(QStringLiteral("frmKalendarz8"))};
  for (int k = 0; k < 7; ++k) {
    auto* glowka = new QLabel(dni[k], this);
    glowka->setObjectName(QStringLiteral("lblDzienTygodnia(%1)").arg(k));
    glowka->setAlignment(Qt::AlignCenter);
    QFont f = glowka->font();
    f.setBold(true);
    glowka->setFont(f);
    siatka->addWidget(glowka, 0, k);
    siatka->setColumnStretch(k, 1);
  }

  const QPixmap obrazki[3] = {obrazek(0, 12), obrazek(1, 12), obrazek(2, 12)};
  QFont pogrubiona = font();
  pogrubiona.setBold(true);
  pogrubiona.setPointSizeF(pogrubiona.pointSizeF() * 1.15);
  QFont mala = font();
  mala.setPointSizeF(mala.pointSizeF() * 0.9);
  const int szerokosc = QFontMetrics(mala).horizontalAdvance(QStringLiteral("000 000.00")) + 34;
  for (int i = 0; i < KomorekKalendarza; ++i) {
    Komorka& c = komorki_[size_t(i)];
    const auto nazwa = [i](const char* n) {
      return QStringLiteral("%1(%2)").arg(QLatin1String(n)).arg(i);
    };
    c.picDzien = new QFrame(this);
    c.picDzien->setObjectName(nazwa("picDzien"));
    c.picDzien->setFrameShape(QFrame::Box);
    c.picDzien->setAutoFillBackground(true);
    c.picDzien->setMinimumSize(szerokosc, 86);
    QSizePolicy zasady = c.picDzien->sizePolicy();
    zasady.setRetainSizeWhenHidden(true);
    c.picDzien->setSizePolicy(zasady);
    const auto etykieta = [&](const char* n, Qt::Alignment a, const QFont& f) {
      auto* l = new QLabel(c.picDzien);
      l->setObjectName(nazwa(n));
      l->setAlignment(a | Qt::AlignVCenter);
      l->setFont(f);
      return l;
    };
    c.lblDzien = etykieta("lblDzien", Qt::AlignLeft, pogrubiona);
    c.lblIleZaplanowanych = etykieta("lblIleZaplanowanych", Qt::AlignRight, mala);
    c.lblPrzychod = etykieta("lblPrzychod", Qt::AlignRight, mala);
    c.lblWydatki = etykieta("lblWydatki", Qt::AlignRight, mala);
    c.lblWewnetrzne = etykieta("lblWewnetrzne", Qt::AlignRight, mala);
    c.imgPrz = etykieta("imgPrz", Qt::AlignLeft, mala);
    c.imgWyd = etykieta("imgWyd", Qt::AlignLeft, mala);
    c.imgWew = etykieta("imgWew", Qt::AlignLeft, mala);
    c.imgPrz->setPixmap(obrazki[0]);
    c.imgWyd->setPixmap(obrazki[1]);
    c.imgWew->setPixmap(obrazki[2]);
    c.lblIleZaplanowanych->setToolTip(Napis(QStringLiteral("frmKalendarz19")));
    auto* u = new QGridLayout(c.picDzien);
    u->setContentsMargins(4, 2, 4, 2);
    u->setHorizontalSpacing(3);
    u->setVerticalSpacing(0);
    u->addWidget(c.lblDzien, 0, 0, 1, 2);
    u->addWidget(c.lblIleZaplanowanych, 0, 2);
    u->addWidget(c.imgPrz, 1, 0);
    u->addWidget(c.lblPrzychod, 1, 1, 1, 2);
    u->addWidget(c.imgWyd, 2, 0);
    u->addWidget(c.lblWydatki, 2, 1, 1, 2);
    u->addWidget(c.imgWew, 3, 0);
    u->addWidget(c.lblWewnetrzne, 3, 1, 1, 2);
    u->setColumnStretch(1, 1);
    u->setRowStretch(4, 1);
    for (QWidget* w : {static_cast<QWidget*>(c.picDzien), static_cast<QWidget*>(c.lblDzien),
                       static_cast<QWidget*>(c.lblIleZaplanowanych),
                       static_cast<QWidget*>(c.lblPrzychod), static_cast<QWidget*>(c.lblWydatki),
                       static_cast<QWidget*>(c.lblWewnetrzne), static_cast<QWidget*>(c.imgPrz),
                       static_cast<QWidget*>(c.imgWyd), static_cast<QWidget*>(c.imgWew)}) {
      w->setProperty(kWlasnosc, i);
      w->installEventFilter(this);
    }
    siatka->addWidget(c.picDzien, 1 + i / 7, i % 7);
  }

  // The day menu: its two browsing items need the browsers.
  mnuNiewidKalendarzOpcja_ = new QMenu(this);
  mnuNiewidKalendarzOpcja_->setObjectName(QStringLiteral("mnuNiewidKalendarzOpcja"));
  const QString pozycje[5] = {
      Napis(QStringLiteral("frmKalendarz12")), Napis(QStringLiteral("frmKalendarz13")),
      Napis(QStringLiteral("frmKalendarz14")), Napis(QStringLiteral("frmKalendarz15")),
      Napis(QStringLiteral("frmKalendarz16"))};
  for (int k = 0; k < 5; ++k) {
    opcje_[size_t(k)] = mnuNiewidKalendarzOpcja_->addAction(pozycje[k].trimmed());
    opcje_[size_t(k)]->setObjectName(QStringLiteral("mnuNiewidKalendarzOpcja(%1)").arg(k));
  }
  opcje_[3]->setEnabled(Nawigacja::Dostepny(QStringLiteral("frmPrzegladTransakcji")));
  opcje_[4]->setEnabled(Nawigacja::Dostepny(QStringLiteral("frmPrzegladTransakcjiWewnetrznych")));
  pokazMenu = [](QMenu* m, const QPoint& p) { return m->exec(p); };

  auto* cmdAnuluj = new QPushButton(Napis(QStringLiteral("frmKalendarz11")), this);
  cmdAnuluj->setObjectName(QStringLiteral("cmdAnuluj"));
  cmdAnuluj->setDefault(true);
  auto* dol = new QHBoxLayout;
  auto* lblPodpowiedz = new QLabel(Napis(QStringLiteral("frmKalendarz20")), this);
  lblPodpowiedz->setObjectName(QStringLiteral("lblPodpowiedz"));
  dol->addWidget(lblPodpowiedz, 1);
  dol->addWidget(cmdAnuluj);

  auto* uklad = new QVBoxLayout(this);
  uklad->addLayout(gora);
  uklad->addLayout(siatka, 1);
  uklad->addLayout(dol);

  connect(cmdPoprzedni, &QPushButton::clicked, this, &frmKalendarz::cmdPoprzedniMiesiac_Click);
  connect(cmdNastepny, &QPushButton::clicked, this, &frmKalendarz::cmdNastepnyMiesiac_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::accept);
  // Plans changed in a browser opened from here (or anywhere) show at once.
  connect(Zmiany::Instancja(), &Zmiany::DaneZmienione, this, [this](unsigned tabele) {
    if (tabele & (Tabele::Zaplanowane | Tabele::ZaplanowaneWewnetrzne)) Rysuj();
  });

  // The month of the system's date, not the working date.
  const QDate dzis = Dzis();
  miesiac_ = dzis.month();
  rok_ = dzis.year();
  Rysuj();
}

void frmKalendarz::Rysuj() {
  for (Komorka& c : komorki_) c.picDzien->hide();
  dane_ = CzytajMiesiac(miesiac_, rok_);
  lblWybranyMiesiac_->setText(NazwaMiesiaca(miesiac_) + QLatin1Char(' ') + QString::number(rok_));
  PrzekolorujBiezacyDzien();
  for (int i = 0; i < KomorekKalendarza; ++i) {
    Komorka& c = komorki_[size_t(i)];
    const int d = dane_.Dzien(i);
    if (d == 0) continue;
    const DzienKalendarza& dzien = dane_.dni[size_t(d)];
    c.lblDzien->setText(QString::number(d));
    c.lblIleZaplanowanych->setText(dzien.CosZaplanowano() ? QString::number(dzien.ile) : QString());
    const auto suma = [](QLabel* l, QLabel* img, qint64 grosze) {
      l->setText(grosze != 0 ? kwota(grosze) : QString());
      l->setVisible(grosze != 0);
      img->setVisible(grosze != 0);
    };
    suma(c.lblPrzychod, c.imgPrz, dzien.przychod);
    suma(c.lblWydatki, c.imgWyd, dzien.wydatek);
    suma(c.lblWewnetrzne, c.imgWew, dzien.wewnetrzne);
    c.picDzien->show();
  }
}

void frmKalendarz::pokolorujKomorke(int i, bool dzisiaj) {
  if (i < 0 || i >= KomorekKalendarza) return;
  const Ustawienia& u = sesja.pubUstawienia;
  const QColor tlo =
      dzisiaj ? kolor(u.etykietyaktywne, QPalette::Highlight) : kolor(u.listajeden, QPalette::Base);
  const QColor napis = dzisiaj ? kolor(u.napisyetykietaktywne, QPalette::HighlightedText)
                               : kolor(u.napisyaktywne, QPalette::Text);
  Komorka& c = komorki_[size_t(i)];
  QPalette p = c.picDzien->palette();
  p.setColor(QPalette::Window, tlo);
  p.setColor(QPalette::WindowText, napis);
  c.picDzien->setPalette(p);
  for (QLabel* l : {c.lblDzien, c.lblIleZaplanowanych, c.lblPrzychod, c.lblWydatki, c.lblWewnetrzne,
                    c.imgPrz, c.imgWyd, c.imgWew}) {
    QPalette lp = l->palette();
    lp.setColor(QPalette::WindowText, napis);
    l->setPalette(lp);
  }
}

void frmKalendarz::PrzekolorujBiezacyDzien() {
  // Every cell first takes the list colours: a theme changed since the last drawing shows too.
  for (int i = 0; i < KomorekKalendarza; ++i) pokolorujKomorke(i, false);
  const int dzisiaj = KomorkaDzisiaj(UkladMiesiaca(miesiac_, rok_), Dzis());
  if (dzisiaj < 0) return;
  biezacyDzien_ = dzisiaj;
  pokolorujKomorke(biezacyDzien_, true);
}

void frmKalendarz::cmdNastepnyMiesiac_Click() {
  NastepnyMiesiac(miesiac_, rok_);
  Rysuj();
}

void frmKalendarz::cmdPoprzedniMiesiac_Click() {
  PoprzedniMiesiac(miesiac_, rok_);
  Rysuj();
}

bool frmKalendarz::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
  const QVariant komorka = obiekt->property(kWlasnosc);
  if (komorka.isValid()) {
    if (zdarzenie->type() == QEvent::MouseButtonPress) {
      auto* m = static_cast<QMouseEvent*>(zdarzenie);
      if (m->button() == Qt::RightButton) {
        wybranyDzien_ = komorka.toInt();
        QAction* a = pokazMenu(mnuNiewidKalendarzOpcja_, m->globalPosition().toPoint());
        for (int k = 0; k < 5; ++k)
          if (a && a == opcje_[size_t(k)]) WykonajOpcje(k);
        return true;
      }
    } else if (zdarzenie->type() == QEvent::MouseButtonDblClick) {
      auto* m = static_cast<QMouseEvent*>(zdarzenie);
      if (m->button() == Qt::LeftButton) {
        wybranyDzien_ = komorka.toInt();
        if (opcje_[3]->isEnabled()) WykonajOpcje(3);
        return true;
      }
    } else if (zdarzenie->type() == QEvent::ContextMenu) {
      return true;  // the press has opened the menu already
    }
  }
  return QDialog::eventFilter(obiekt, zdarzenie);
}

void frmKalendarz::przegladaj(bool transfery) {
  const QDate dzien = dane_.Data(wybranyDzien_);
  const FiltrCzasowyRekord dawny = sesja.pubFiltrCzasowy;
  sesja.pubFiltrCzasowy.od = sesja.pubFiltrCzasowy.do_ = dzien;
  sesja.pubFiltrCzasowy.rodzaj = 6;
  sesja.pubTryb = 1;
  if (transfery) {
    sesja.pubWierszTransferu = 0;
    sesja.pubFiltrTransferow = QStringLiteral(" AND 1=1 ");
    sesja.pubTytulTransferow.clear();
    Nawigacja::Pokaz(QStringLiteral("frmPrzegladTransakcjiWewnetrznych"), this);
  } else {
    sesja.pubWierszTransakcji = 0;
    sesja.pubFiltrTransakcji = QStringLiteral(" AND 1=1 ");
    sesja.pubTytulTransakcji.clear();
    Nawigacja::Pokaz(QStringLiteral("frmPrzegladTransakcji"), this);
  }
  sesja.pubFiltrCzasowy.rodzaj = dawny.rodzaj;
  sesja.pubFiltrCzasowy.od = dawny.od;
  sesja.pubFiltrCzasowy.do_ = dawny.do_;
}

void frmKalendarz::WykonajOpcje(int opcja) {
  const QDate dzien = dane_.Data(wybranyDzien_);
  if (!dzien.isValid() || opcja < 0 || opcja > 4) return;
  switch (opcja) {
    case 0:
    case 1: {
      const int rodzaj = opcja + 1;
      sesja.pubTransakcja.id = 0;
      sesja.pubTransakcja.rodzaj = rodzaj;
      sesja.pubKategoria.rodzaj = rodzaj;
      sesja.pubTryb = 1;
      sesja.pubPrzedefiniowanaData = dzien;
      Nawigacja::Pokaz(QStringLiteral("frmEdycjaTransakcji"), this);
      sesja.pubPrzedefiniowanaData = QDate();
      break;
    }
    case 2:
      sesja.pubTransakcja.id = 0;
      sesja.pubTransakcja.rodzaj = 3;
      sesja.pubTransfer = 0;
      sesja.pubTryb = 1;
      sesja.pubPrzedefiniowanaData = dzien;
      Nawigacja::Pokaz(QStringLiteral("frmEdycjaTransakcjiWewnetrznej"), this);
      sesja.pubPrzedefiniowanaData = QDate();
      break;
    default:
      przegladaj(opcja == 4);
      break;
  }
  Rysuj();
}
