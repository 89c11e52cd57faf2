#include "mainwindow/zaplanowane_gui.h"

#include <QGridLayout>
#include <QLabel>
#include <QToolButton>

#include "mainwindow/etykieta_gui.h"
#include "mainwindow/obrazki_pulpitu_gui.h"
#include "mainwindow/polecenia_gui.h"
#include "mainwindow/pulpit.h"
#include "store/dzis.h"
#include "store/napis.h"
#include "store/tekst.h"

namespace {
QString napis(int numer) { return Napis(QStringLiteral("frmMain%1").arg(numer)); }
}  // namespace

SumyZaplanowanychGui::SumyZaplanowanychGui(QWidget* rodzic) : QWidget(rodzic) {
  setObjectName(QStringLiteral("fraZaplanowane"));
  auto* g = new QGridLayout(this);
  g->setContentsMargins(0, 0, 0, 0);
  g->setHorizontalSpacing(6);
  g->setVerticalSpacing(0);
  const char* nazwyKwot[4] = {"lblZaplanowanePrzychody", "lblZaleglePrzychody",
                              "lblZaplanowaneWydatki", "lblZalegleWydatki"};
  for (int i = 0; i < 4; ++i) {
    const int wiersz = i / 2, kolumna = (i % 2) * 5;
    const auto pokaz = [i] {
      if (MaPrzegladTransakcji()) PokazZaplanowane(i);
    };
    QToolButton* lupa = PrzyciskObrazka(QStringLiteral("picZaplanowane(%1)").arg(i), ObrazekLupki(16),
                                        napis(210 + i), this);
    connect(lupa, &QToolButton::clicked, this, pokaz);
    auto* podpis = new EtykietaPolecenia(QStringLiteral("lblLupka(%1)").arg(i), napis(140 + i), this);
    podpis->setToolTip(napis(210 + i));
    podpis->UstawPolecenie(pokaz);
    auto* kwota = new QLabel(FormatKwoty(0), this);
    kwota->setObjectName(QLatin1String(nazwyKwot[i]));
    kwota->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    kwota->setMinimumWidth(kwota->fontMetrics().horizontalAdvance(FormatKwoty(999999999.99)));
    kwoty_[size_t(i)] = kwota;
    g->addWidget(lupa, wiersz, kolumna);
    g->addWidget(podpis, wiersz, kolumna + 1);
    g->addWidget(kwota, wiersz, kolumna + 3);
    if (i % 2 == 1) {
      auto* alarm = new QLabel(this);
      alarm->setObjectName(QStringLiteral("imgAlarmy(%1)").arg(i / 2));
      alarm->setPixmap(ObrazekAlarmu(16));
      alarm->setToolTip(napis(144 + i / 2));
      alarm->setFixedSize(18, 18);
      alarm->hide();
      alarmy_[size_t(i / 2)] = alarm;
      g->addWidget(alarm, wiersz, kolumna + 2);
    }
  }
  g->setColumnMinimumWidth(2, 18);
  g->setColumnMinimumWidth(7, 18);
  g->setColumnStretch(4, 1);
  g->setColumnMinimumWidth(4, 12);
}

void SumyZaplanowanychGui::Odswiez() {
  const StanZaplanowanych s = CzytajStanZaplanowanych(Dzis());
  const double wartosci[4] = {s.przychody, s.zaleglePrzychody, s.wydatki, s.zalegleWydatki};
  for (int i = 0; i < 4; ++i) kwoty_[size_t(i)]->setText(FormatKwoty(wartosci[i]));
  // An overdue sum above zero rings its alarm; zero hides it.
  alarmy_[0]->setVisible(s.zaleglePrzychody > 0);
  alarmy_[1]->setVisible(s.zalegleWydatki > 0);
}
