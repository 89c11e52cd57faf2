#include "mainwindow/panelstanu_gui.h"

#include <QChartView>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include "mainwindow/etykieta_gui.h"
#include "mainwindow/obrazki_pulpitu_gui.h"
#include "mainwindow/polecenia_gui.h"
#include "mainwindow/pulpit.h"
#include "store/dzis.h"
#include "store/filtr.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"
#include "ui/wykresy_gui.h"

namespace {
QString napis(int numer) { return Napis(QStringLiteral("frmMain%1").arg(numer)); }

QLabel* kwota(const QString& nazwa, QWidget* rodzic) {
  auto* l = new QLabel(FormatKwoty(0), rodzic);
  l->setObjectName(nazwa);
  l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  l->setTextInteractionFlags(Qt::TextSelectableByMouse);
  // Wide enough for 999 999 999 999.99 in the panel's font.
  l->setMinimumWidth(l->fontMetrics().horizontalAdvance(FormatKwoty(-999999999999.99)) + 4);
  return l;
}

QFont pogrubiona(QFont f) {
  f.setBold(true);
  return f;
}
}  // namespace

PanelStanu::PanelStanu(QWidget* rodzic) : QWidget(rodzic) {
  setObjectName(QStringLiteral("fraStanKont"));
  auto* uklad = new QHBoxLayout(this);
  uklad->setContentsMargins(0, 0, 0, 0);
  uklad->setSpacing(10);
  uklad->addWidget(zbudujStan());
  uklad->addWidget(zbudujWykres(), 1);
}

QWidget* PanelStanu::zbudujStan() {
  auto* ramka = new QFrame(this);
  ramka->setObjectName(QStringLiteral("fraStan"));
  ramka->setFrameShape(QFrame::StyledPanel);
  auto* g = new QGridLayout(ramka);
  g->setContentsMargins(8, 6, 8, 6);
  g->setHorizontalSpacing(12);
  g->setVerticalSpacing(2);
  int w = 0;
  auto* tytul = new QLabel(napis(146), ramka);
  tytul->setFont(pogrubiona(tytul->font()));
  g->addWidget(tytul, w++, 0, 1, 2);
  for (int i = 0; i < 6; ++i) {
    lblStanKont_[size_t(i)] = new EtykietaPolecenia(QStringLiteral("lblStanKont(%1)").arg(i),
                                                    NazwaRodzajuKonta(i + 1), ramka);
    // The entries of this kind of account in the month of the working date.
    lblStanKont_[size_t(i)]->UstawPolecenie([i] {
      if (!MaPrzegladTransakcji()) return;
      PokazPrzegladTransakcji(2,
                              QStringLiteral(" AND (transakcje.konto=konta.id AND konta.rodzaj=") +
                                  QString::number(i + 1) + QStringLiteral(")"),
                              napis(182) + QLatin1Char(' ') + NazwaRodzajuKonta(i + 1), 3);
    });
    lblKonto_[size_t(i + 1)] = kwota(QStringLiteral("lblKonto(%1)").arg(i + 1), ramka);
    g->addWidget(lblStanKont_[size_t(i)], w, 0);
    g->addWidget(lblKonto_[size_t(i + 1)], w++, 1);
  }
  auto* kreska = new QFrame(ramka);
  kreska->setFrameShape(QFrame::HLine);
  kreska->setFrameShadow(QFrame::Sunken);
  g->addWidget(kreska, w++, 0, 1, 2);
  auto* razem = new QLabel(napis(153), ramka);
  razem->setFont(pogrubiona(razem->font()));
  lblSuma_ = kwota(QStringLiteral("lblSuma"), ramka);
  lblSuma_->setFont(pogrubiona(lblSuma_->font()));
  g->addWidget(razem, w, 0);
  g->addWidget(lblSuma_, w++, 1);
  g->setRowMinimumHeight(w++, 8);

  lblMiesiac_ = new QLabel(ramka);
  lblMiesiac_->setObjectName(QStringLiteral("lblMiesiac"));
  lblMiesiac_->setFont(pogrubiona(lblMiesiac_->font()));
  g->addWidget(lblMiesiac_, w++, 0, 1, 2);
  const char* kwoty[2] = {"lblPrzychody", "lblWydatki"};
  QLabel** pola[2] = {&lblPrzychody_, &lblWydatki_};
  for (int i = 0; i < 2; ++i) {
    lblStanObrotow_[size_t(i)] = new EtykietaPolecenia(QStringLiteral("lblStanObrotow(%1)").arg(i),
                                                       napis(154 + i), ramka);
    lblStanObrotow_[size_t(i)]->UstawPolecenie([i] {
      if (!MaPrzegladTransakcji()) return;
      PokazPrzegladTransakcji(2,
                              i == 0 ? QStringLiteral(" AND transakcje.konto=konta.id AND wydatek=0 ")
                                     : QStringLiteral(" AND transakcje.konto=konta.id AND przychod=0 "),
                              napis(178), 3);
    });
    *pola[i] = kwota(QLatin1String(kwoty[i]), ramka);
    g->addWidget(lblStanObrotow_[size_t(i)], w, 0);
    g->addWidget(*pola[i], w++, 1);
  }
  auto* bilans = new QLabel(napis(156), ramka);
  lblBilans_ = kwota(QStringLiteral("lblBilans"), ramka);
  lblBilans_->setFont(pogrubiona(lblBilans_->font()));
  g->addWidget(bilans, w, 0);
  g->addWidget(lblBilans_, w++, 1);
  g->setRowStretch(w, 1);
  return ramka;
}

QWidget* PanelStanu::zbudujWykres() {
  auto* ramka = new QFrame(this);
  ramka->setObjectName(QStringLiteral("fraWykres"));
  ramka->setFrameShape(QFrame::StyledPanel);
  auto* v = new QVBoxLayout(ramka);
  v->setContentsMargins(6, 6, 6, 6);
  v->setSpacing(4);
  lblWykres_ = new EtykietaPolecenia(QStringLiteral("lblWykres"), QString(), ramka);
  lblWykres_->setFont(pogrubiona(lblWykres_->font()));
  lblWykres_->UstawPolecenie([this] { NastepnyWykres(); });
  v->addWidget(lblWykres_);
  chartWykres_ = NowyWykres(QStringLiteral("chartWykres"), ramka);
  chartWykres_->setMinimumSize(240, 140);
  chartWykres_->setCursor(Qt::PointingHandCursor);
  chartWykres_->viewport()->installEventFilter(this);
  v->addWidget(chartWykres_, 1);
  auto* przyciski = new QHBoxLayout;
  przyciski->setSpacing(3);
  for (int i = 0; i < 5; ++i) {
    auto* b = new QPushButton(ramka);
    b->setObjectName(QStringLiteral("cmdWykres(%1)").arg(i));
    b->setIcon(QIcon(ObrazekWykresu(i, 20)));
    b->setIconSize(QSize(20, 20));
    b->setToolTip(napis(157 + i));
    b->setAutoDefault(false);
    b->setCheckable(true);
    connect(b, &QPushButton::clicked, this, [this, i] { WybierzWykres(i); });
    cmdWykres_[size_t(i)] = b;
    przyciski->addWidget(b);
  }
  przyciski->addStretch(1);
  // Takes the focus after a chart command, so that no button keeps it.
  chowacz_ = new QWidget(ramka);
  chowacz_->setObjectName(QStringLiteral("chowacz"));
  chowacz_->setFocusPolicy(Qt::StrongFocus);
  chowacz_->setFixedSize(1, 1);
  przyciski->addWidget(chowacz_);
  v->addLayout(przyciski);
  return ramka;
}

void PanelStanu::StanKont() {
  const QDate dzis = Dzis();
  const StanKontPulpitu s = ObliczStanKont(dzis);
  for (int i = 1; i <= 6; ++i) {
    saldaKont_[size_t(i)] = s.salda[size_t(i)];
    lblKonto_[size_t(i)]->setText(FormatKwoty(s.salda[size_t(i)]));
  }
  lblSuma_->setText(FormatKwoty(s.suma));
  lblPrzychody_->setText(FormatKwoty(s.przychody));
  lblWydatki_->setText(FormatKwoty(s.wydatki));
  lblBilans_->setText(FormatKwoty(s.bilans));
  lblMiesiac_->setText(TytulMiesiaca(dzis));
  const QString koniec = lblMiesiac_->text() + QStringLiteral(" )");
  for (EtykietaPolecenia* l : lblStanKont_) l->setToolTip(napis(200) + koniec);
  lblStanObrotow_[0]->setToolTip(napis(201) + koniec);
  lblStanObrotow_[1]->setToolTip(napis(202) + koniec);
  RysujWykres();
}

void PanelStanu::RysujWykres() {
  const int tryb = std::clamp(sesja.pubUstawienia.pubWykres, 0, 4);
  lblWykres_->setText(napis(203 + tryb) + QLatin1Char(' '));
  for (int i = 0; i < 5; ++i) cmdWykres_[size_t(i)]->setChecked(i == tryb);
  const std::vector<double> salda(saldaKont_.begin() + 1, saldaKont_.end());
  QStringList rodzaje;
  for (int i = 1; i <= 6; ++i) rodzaje << NazwaRodzajuKonta(i);
  switch (tryb) {
    case 0:
      ::WykresMiesiecy(chartWykres_, salda, rodzaje);
      break;
    case 1: {
      // With nothing above zero there is nothing to divide: the pie stays empty.
      const bool cos = std::any_of(salda.begin(), salda.end(), [](double v) { return v > 0; });
      ::WykresKolowy(chartWykres_, cos ? salda : std::vector<double>{}, cos ? rodzaje : QStringList{});
      break;
    }
    default:
      ::WykresBilansu(chartWykres_, tryb - 1, Dzis());
      break;
  }
}

void PanelStanu::WybierzWykres(int tryb) {
  if (tryb != sesja.pubUstawienia.pubWykres) {
    sesja.pubUstawienia.pubWykres = tryb;
    RysujWykres();
  } else {
    cmdWykres_[size_t(tryb)]->setChecked(true);
  }
  chowacz_->setFocus();
}

void PanelStanu::NastepnyWykres() {
  sesja.pubUstawienia.pubWykres = (std::clamp(sesja.pubUstawienia.pubWykres, 0, 4) + 1) % 5;
  RysujWykres();
  chowacz_->setFocus();
}

bool PanelStanu::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
  if (obiekt == chartWykres_->viewport() && zdarzenie->type() == QEvent::MouseButtonRelease &&
      static_cast<QMouseEvent*>(zdarzenie)->button() == Qt::LeftButton) {
    NastepnyWykres();
    return true;
  }
  return QWidget::eventFilter(obiekt, zdarzenie);
}
