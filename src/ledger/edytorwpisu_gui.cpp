#include "ledger/edytorwpisu_gui.h"

#include <QCalendarWidget>
#include <QDateEdit>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QToolButton>

#include "calculator/PoleKwoty_gui.h"
#include "store/session.h"
#include "ui/nawigacja_gui.h"

QDateEdit* NowePoleDaty(const QString& nazwa, const QDate& data, QWidget* rodzic) {
  auto* p = new QDateEdit(rodzic);
  p->setObjectName(nazwa);
  const bool polski = sesja.pubJezyk == 1;
  p->setLocale(polski ? QLocale(QLocale::Polish, QLocale::Poland)
                      : QLocale(QLocale::English, QLocale::UnitedStates));
  p->setDisplayFormat(polski ? QStringLiteral("dd.MM.yyyy") : QStringLiteral("MM/dd/yyyy"));
  p->setCalendarPopup(true);
  p->calendarWidget()->setFirstDayOfWeek(Qt::Monday);
  p->setMinimumDate(QDate(1900, 1, 1));
  p->setDate(data.isValid() ? data : QDate::currentDate());
  return p;
}

RamkaDaty NowaRamkaDaty(const NapisyRamkiDaty& napisy, QWidget* rodzic) {
  auto* ramka = new QGroupBox(napisy.tytul, rodzic);
  ramka->setObjectName(QStringLiteral("fraData"));
  QDateEdit* data = NowePoleDaty(QStringLiteral("dtpData"), sesja.pubFiltrCzasowy.pozycja, ramka);
  data->setToolTip(napisy.podpowiedzDaty);
  auto* lblKwota = new QLabel(napisy.kwota, ramka);
  lblKwota->setObjectName(QStringLiteral("lblKwota"));
  const PoleZKalkulatorem kwota =
      PoleKwoty::NowePole(QStringLiteral("txtKwota"), QStringLiteral("cmdKalkulator"),
                          napisy.podpowiedzKalkulatora, ramka);
  kwota.pole->setFixedWidth(PoleKwoty::Szerokosc(kwota.pole));
  kwota.pole->setToolTip(napisy.podpowiedzKwoty);
  lblKwota->setBuddy(kwota.pole);
  auto* uklad = new QHBoxLayout(ramka);
  uklad->addWidget(data);
  uklad->addStretch();
  uklad->addWidget(lblKwota);
  uklad->addWidget(kwota.pole);
  uklad->addWidget(kwota.kalkulator);
  return {ramka, data, kwota.pole, kwota.kalkulator};
}

QGroupBox* NowaRamkaWyboru(const QString& nazwa, const QString& tytul, QLabel*& etykieta,
                           const QString& nazwaEtykiety, const QString& tekstEtykiety,
                           QPushButton* przycisk, QWidget* rodzic) {
  auto* ramka = new QGroupBox(tytul, rodzic);
  ramka->setObjectName(nazwa);
  etykieta = new QLabel(tekstEtykiety, ramka);
  etykieta->setObjectName(nazwaEtykiety);
  etykieta->setMinimumWidth(320);
  QFont f = etykieta->font();
  f.setBold(true);
  etykieta->setFont(f);
  przycisk->setParent(ramka);
  auto* uklad = new QHBoxLayout(ramka);
  uklad->addWidget(etykieta, 1);
  uklad->addWidget(przycisk);
  return ramka;
}

QIcon IkonaWpisu(int rodzaj) {
  QIcon ikona;
  const QColor kolor = rodzaj == 1   ? QColor(0x2e, 0x8b, 0x3c)
                       : rodzaj == 2 ? QColor(0xc0, 0x39, 0x2b)
                                     : QColor(0x2c, 0x6f, 0xb5);
  for (int rozmiar : {16, 24, 32, 48}) {
    QPixmap obraz(rozmiar, rozmiar);
    obraz.fill(Qt::transparent);
    QPainter g(&obraz);
    g.setRenderHint(QPainter::Antialiasing);
    g.scale(rozmiar / 32.0, rozmiar / 32.0);
    g.setPen(QPen(kolor.darker(130), 1.5));
    g.setBrush(kolor);
    g.drawEllipse(QRectF(1.5, 1.5, 29, 29));
    g.setPen(QPen(Qt::white, 3.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    g.setBrush(Qt::NoBrush);
    if (rodzaj == 1) {  // money coming in: an arrow up
      g.drawLine(QPointF(16, 24), QPointF(16, 9));
      g.drawPolyline(QPolygonF({QPointF(10, 14.5), QPointF(16, 8.5), QPointF(22, 14.5)}));
    } else if (rodzaj == 2) {  // money going out: an arrow down
      g.drawLine(QPointF(16, 8), QPointF(16, 23));
      g.drawPolyline(QPolygonF({QPointF(10, 17.5), QPointF(16, 23.5), QPointF(22, 17.5)}));
    } else {  // from one account to another: two arrows
      g.drawLine(QPointF(8, 12), QPointF(23, 12));
      g.drawPolyline(QPolygonF({QPointF(19, 8), QPointF(23.5, 12), QPointF(19, 16)}));
      g.drawLine(QPointF(24, 20), QPointF(9, 20));
      g.drawPolyline(QPolygonF({QPointF(13, 16), QPointF(8.5, 20), QPointF(13, 24)}));
    }
    g.end();
    ikona.addPixmap(obraz);
  }
  return ikona;
}

void PozycjaPrzy(const QWidget* etykieta) {
  const QPoint p = etykieta->mapToGlobal(QPoint(0, etykieta->height()));
  sesja.pubPozycjaX = p.x();
  sesja.pubPozycjaY = p.y();
}

QPushButton* NowyPrzycisk(const QString& nazwa, const QString& tekst, QWidget* rodzic) {
  auto* b = new QPushButton(tekst, rodzic);
  b->setObjectName(nazwa);
  b->setAutoDefault(false);
  return b;
}

void PokazWybor(const QString& przegladarka, const QWidget* etykieta, QWidget* rodzic) {
  PozycjaPrzy(etykieta);
  sesja.pubTrybPrzegladu = 2;
  sesja.pubSzczegoly = 0;
  Nawigacja::Pokaz(przegladarka, rodzic);
}
