#include "ui/przegladarka_gui.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QWidget>

#include "store/session.h"

void UstawPozycjePrzegladarki(QWidget* okno) {
  if (sesja.pubPozycjaX < 0 || sesja.pubPozycjaY < 0) return;
  QRect r(QPoint(sesja.pubPozycjaX, sesja.pubPozycjaY), okno->size());
  if (QScreen* ekran = okno->screen()) {
    const QRect dostepne = ekran->availableGeometry();
    r.moveRight(std::min(r.right(), dostepne.right()));
    r.moveBottom(std::min(r.bottom(), dostepne.bottom()));
    r.moveLeft(std::max(r.left(), dostepne.left()));
    r.moveTop(std::max(r.top(), dostepne.top()));
  }
  okno->move(r.topLeft());
}

void PokazSzczegolyPrzegladarki(QWidget* okno, QWidget* panel, QPushButton* przelacznik,
                                const QString& ukryj, const QString& pokaz,
                                const WymiarySzczegolow& wymiary, int szerokoscWaska) {
  const bool otwarte = sesja.pubSzczegoly == 1;
  panel->setVisible(otwarte);
  przelacznik->setText(otwarte ? QStringLiteral("<<  ") + ukryj : pokaz + QStringLiteral(" >>"));
  okno->setMinimumWidth(otwarte ? wymiary.waska + wymiary.panel : wymiary.waska);
  okno->resize(szerokoscWaska + (otwarte ? wymiary.panel + 10 : 0),
               std::max(okno->height(), wymiary.wysokosc));
}

int PrzelaczSzczegolyPrzegladarki(const QWidget* okno, const WymiarySzczegolow& wymiary) {
  sesja.pubSzczegoly = sesja.pubSzczegoly == 1 ? 0 : 1;
  return sesja.pubSzczegoly == 1 ? okno->width()
                                 : std::max(wymiary.waska, okno->width() - wymiary.panel - 10);
}

KlawiszePrzegladarki::KlawiszePrzegladarki(QWidget* lista, std::function<void()> usun,
                                           std::function<void()> wybierz)
    : QObject(lista), usun_(std::move(usun)), wybierz_(std::move(wybierz)) {
  lista->installEventFilter(this);
}

bool KlawiszePrzegladarki::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
  if (obiekt != parent() || zdarzenie->type() != QEvent::KeyPress) return false;
  switch (static_cast<QKeyEvent*>(zdarzenie)->key()) {
    case Qt::Key_Delete:
      if (!usun_) return false;
      usun_();
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!wybierz_) return false;
      wybierz_();
      return true;
    default:
      return false;
  }
}

QPushButton* PrzyciskPrzegladarki(const QString& nazwa, const QString& tekst, QWidget* rodzic) {
  auto* b = new QPushButton(tekst, rodzic);
  b->setObjectName(nazwa);
  b->setAutoDefault(false);
  return b;
}

QLabel* EtykietaPrzegladarki(const QString& nazwa, const QString& tekst, QWidget* rodzic) {
  auto* l = new QLabel(tekst, rodzic);
  if (!nazwa.isEmpty()) l->setObjectName(nazwa);
  return l;
}

QLabel* WartoscPrzegladarki(const QString& nazwa, QWidget* rodzic) {
  auto* l = EtykietaPrzegladarki(nazwa, QString(), rodzic);
  l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  l->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return l;
}
