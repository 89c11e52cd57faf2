#include "calculator/OknoKalkulatora_gui.h"

#include <QEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <algorithm>

#include "calculator/PoleKwoty_gui.h"
#include "store/napis.h"
#include "store/session.h"

OknoKalkulatora::OknoKalkulatora(QWidget* rodzic, const QString& nazwa, const QString& tytul,
                                 const QString& podpowiedzZamknij)
    : QDialog(rodzic), kalk_(sesja.pubKalkWartosc) {
  setObjectName(nazwa);
  setWindowTitle(tytul);

  auto* siatka = new QGridLayout(this);
  siatka->setSizeConstraint(QLayout::SetFixedSize);
  siatka->setSpacing(6);

  wyswietlacz_ = new QLineEdit(this);
  wyswietlacz_->setObjectName(QStringLiteral("txtWyswietlacz"));
  wyswietlacz_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  wyswietlacz_->setContextMenuPolicy(Qt::NoContextMenu);
  wyswietlacz_->setAcceptDrops(false);
  wyswietlacz_->setToolTip(Napis(QStringLiteral("frmKalkulator13")));
  QFont duza = wyswietlacz_->font();
  duza.setPointSizeF(duza.pointSizeF() * 1.6);
  wyswietlacz_->setFont(duza);
  wyswietlacz_->setMinimumHeight(QFontMetrics(duza).height() + 14);
  // Any result up to a trillion shows whole.
  wyswietlacz_->setMinimumWidth(PoleKwoty::Szerokosc(wyswietlacz_));
  wyswietlacz_->installEventFilter(this);
  siatka->addWidget(wyswietlacz_, 0, 0, 1, 4);

  auto cyfra = [this](int n) {
    return Przycisk(QStringLiteral("cmdLiczba(%1)").arg(n), QString::number(n),
                    [n](Kalkulator& k) { k.Liczba(n); });
  };
  auto dzialanie = [this](int n, const QString& napis) {
    return Przycisk(QStringLiteral("cmdDzialanie(%1)").arg(n), napis,
                    [n](Kalkulator& k) { k.Dzialanie(n); });
  };

  QPushButton* c = Przycisk(QStringLiteral("cmdC"), Napis(QStringLiteral("frmKalkulator3")),
                            [](Kalkulator& k) { k.C(); });
  c->setToolTip(Napis(QStringLiteral("frmKalkulator12")));
  siatka->addWidget(c, 1, 0);
  siatka->addWidget(Przycisk(QStringLiteral("cmdProcent"), Napis(QStringLiteral("frmKalkulator4")),
                             [](Kalkulator& k) { k.Procent(); }),
                    1, 1);
  siatka->addWidget(
      Przycisk(QStringLiteral("cmdPlusMinus"), Napis(QStringLiteral("frmKalkulator5")),
               [](Kalkulator& k) { k.PlusMinus(); }),
      1, 2);
  siatka->addWidget(dzialanie(Kalkulator::Dziel, Napis(QStringLiteral("frmKalkulator10"))), 1, 3);
  for (int wiersz = 0; wiersz < 3; ++wiersz)
    for (int kolumna = 0; kolumna < 3; ++kolumna)
      siatka->addWidget(cyfra(7 - 3 * wiersz + kolumna), 2 + wiersz, kolumna);
  siatka->addWidget(dzialanie(Kalkulator::Mnoz, Napis(QStringLiteral("frmKalkulator9"))), 2, 3);
  siatka->addWidget(dzialanie(Kalkulator::Odejmij, Napis(QStringLiteral("frmKalkulator8"))), 3, 3);
  siatka->addWidget(dzialanie(Kalkulator::Dodaj, Napis(QStringLiteral("frmKalkulator7"))), 4, 3);
  siatka->addWidget(cyfra(0), 5, 0, 1, 2);
  siatka->addWidget(
      Przycisk(QStringLiteral("cmdKoma"), sesja.pubSeparator, [](Kalkulator& k) { k.Koma(); }), 5,
      2);
  QPushButton* oblicz =
      Przycisk(QStringLiteral("cmdOblicz"), Napis(QStringLiteral("frmKalkulator6")),
               [](Kalkulator& k) { k.Oblicz(); });
  siatka->addWidget(oblicz, 5, 3);

  auto* zamknij = new QPushButton(Napis(QStringLiteral("frmKalkulator2")), this);
  zamknij->setObjectName(QStringLiteral("cmdZamknij"));
  zamknij->setToolTip(podpowiedzZamknij);
  zamknij->setFocusPolicy(Qt::NoFocus);
  zamknij->setAutoDefault(false);
  zamknij->setMinimumHeight(34);
  connect(zamknij, &QPushButton::clicked, this, &OknoKalkulatora::Zamknij);
  siatka->setRowMinimumHeight(6, 8);
  siatka->addWidget(zamknij, 7, 0, 1, 4);

  UstawStanPola(wyswietlacz_, kalk_.wyswietlacz);
  wyswietlacz_->setFocus();
}

QPushButton* OknoKalkulatora::Przycisk(const QString& nazwa, const QString& napis,
                                       const std::function<void(Kalkulator&)>& polecenie) {
  auto* przycisk = new QPushButton(napis, this);
  przycisk->setObjectName(nazwa);
  przycisk->setFocusPolicy(Qt::NoFocus);
  przycisk->setAutoDefault(false);
  przycisk->setMinimumSize(56, 40);
  QFont f = przycisk->font();
  f.setPointSizeF(f.pointSizeF() * 1.25);
  przycisk->setFont(f);
  connect(przycisk, &QPushButton::clicked, this, [this, polecenie] { Wykonaj(polecenie); });
  return przycisk;
}

void OknoKalkulatora::Wykonaj(const std::function<void(Kalkulator&)>& polecenie) {
  kalk_.wyswietlacz = StanPola(wyswietlacz_);
  polecenie(kalk_);
  UstawStanPola(wyswietlacz_, kalk_.wyswietlacz);
  wyswietlacz_->setFocus();
}

void OknoKalkulatora::Zamknij() {
  // The display is put into shape as when it loses the focus, then handed over.
  kalk_.wyswietlacz = StanPola(wyswietlacz_);
  kalkFormatuj(kalk_.wyswietlacz);
  UstawStanPola(wyswietlacz_, kalk_.wyswietlacz);
  sesja.pubKalkWartosc = kalk_.wyswietlacz.tekst;
  accept();
}

bool OknoKalkulatora::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
  if (obiekt == wyswietlacz_) {
    if (zdarzenie->type() == QEvent::KeyPress) {
      return FiltrujKlawisz(wyswietlacz_, static_cast<QKeyEvent*>(zdarzenie),
                            [this](QChar znak, PoleTekstowe& stan) {
                              kalk_.wyswietlacz = stan;
                              const bool przepusc = kalk_.Klawisz(znak);
                              stan = kalk_.wyswietlacz;
                              return przepusc;
                            });
    }
    if (zdarzenie->type() == QEvent::FocusOut) {
      PoleTekstowe stan = StanPola(wyswietlacz_);
      kalkFormatuj(stan);
      if (stan.tekst != wyswietlacz_->text()) UstawStanPola(wyswietlacz_, stan);
    }
  }
  return QDialog::eventFilter(obiekt, zdarzenie);
}

void OknoKalkulatora::showEvent(QShowEvent* zdarzenie) {
  QDialog::showEvent(zdarzenie);
  if (ustawione_ || (sesja.pubKalkLewa == 0 && sesja.pubKalkGora == 0)) return;
  ustawione_ = true;
  // Beside the field as asked, but never off the screen.
  const QPoint chciane(sesja.pubKalkLewa, sesja.pubKalkGora);
  QScreen* ekran = QGuiApplication::screenAt(chciane);
  if (!ekran) ekran = screen();
  const QRect obszar = ekran->availableGeometry();
  const QSize rozmiar = frameGeometry().size();
  move(std::clamp(chciane.x(), obszar.left(),
                  std::max(obszar.left(), obszar.right() - rozmiar.width())),
       std::clamp(chciane.y(), obszar.top(),
                  std::max(obszar.top(), obszar.bottom() - rozmiar.height())));
}
