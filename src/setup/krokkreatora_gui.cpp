#include "setup/krokkreatora_gui.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "setup/kolorowanie_gui.h"
#include "setup/kreator.h"
#include "store/MsgBoxModule.h"
#include "store/napis.h"
#include "store/session.h"
#include "ui/nawigacja_gui.h"

namespace {
QString napis(int i) { return Napis(QStringLiteral("frmKreator%1").arg(i)); }
}  // namespace

QPushButton* PrzyciskKreatora(const QString& nazwa, const QString& tekst, QWidget* rodzic) {
  auto* p = new QPushButton(tekst, rodzic);
  p->setObjectName(nazwa);
  p->setAutoDefault(false);
  return p;
}

KrokKreatora::KrokKreatora(const QString& nazwa, int krok, const QString& nastepny,
                           QWidget* rodzic)
    : QDialog(rodzic), nastepny_(nastepny) {
  setObjectName(nazwa);
  setWindowTitle(Napis(nazwa + QLatin1Char('1')));
  auto* lblNaglowek = new QLabel(Napis(nazwa + QLatin1Char('2')), this);
  lblNaglowek->setObjectName(QStringLiteral("lblNaglowek"));
  lblNaglowek->setProperty("Tag", QStringLiteral("e"));
  lblNaglowek->setWordWrap(true);
  lblNaglowek->setMargin(8);
  QFont f = lblNaglowek->font();
  f.setBold(true);
  lblNaglowek->setFont(f);

  auto* cmdPrzerwij = PrzyciskKreatora(QStringLiteral("cmdPrzerwij"), napis(3), this);
  auto* cmdWstecz = PrzyciskKreatora(QStringLiteral("cmdWstecz"), napis(1), this);
  auto* cmdDalej =
      PrzyciskKreatora(QStringLiteral("cmdDalej"), nastepny.isEmpty() ? napis(4) : napis(2), this);
  cmdDalej->setDefault(true);
  // The first step has no way back.
  cmdWstecz->setEnabled(krok > 1);
  connect(cmdDalej, &QPushButton::clicked, this, &KrokKreatora::cmdDalej_Click);
  connect(cmdWstecz, &QPushButton::clicked, this, &KrokKreatora::cmdWstecz_Click);
  connect(cmdPrzerwij, &QPushButton::clicked, this, &KrokKreatora::cmdPrzerwij_Click);

  auto* przyciski = new QHBoxLayout;
  przyciski->addWidget(cmdPrzerwij);
  przyciski->addStretch();
  przyciski->addWidget(cmdWstecz);
  przyciski->addWidget(cmdDalej);

  auto* uklad = new QVBoxLayout(this);
  uklad->addWidget(lblNaglowek);
  tresc_ = new QVBoxLayout;
  uklad->addLayout(tresc_, 1);
  uklad->addLayout(przyciski);

  // Every step opens at the size the user gave the one before.
  if (sesja.pubKreatorSzerokosc > 0 && sesja.pubKreatorWysokosc > 0)
    resize(sesja.pubKreatorSzerokosc, sesja.pubKreatorWysokosc);
  else
    resize(620, 480);
}

void KrokKreatora::zapamietajRozmiar() {
  sesja.pubKreatorSzerokosc = width();
  sesja.pubKreatorWysokosc = height();
}

void KrokKreatora::cmdDalej_Click() {
  zapamietajRozmiar();
  if (nastepny_.isEmpty()) {
    if (!ZakonczKreator(sesja.pubTypKreatora, sesja.pubProfilKreatora)) {
      MyMsgbox(napis(5), napis(6), MsgOK, IkonaOstrzezenie);
      return;
    }
    sesja.pubKreatorZakonczony = true;
    sesja.pubKreatorPrzerwany = true;
    // The chosen colours show at once on every window.
    KolorujWszystkieOkna();
    accept();
    return;
  }
  Nawigacja::Pokaz(nastepny_, this);
  // Finished or aborted above: this step goes too, and so the stack unwinds.
  if (sesja.pubKreatorPrzerwany) {
    done(sesja.pubKreatorZakonczony ? Accepted : Rejected);
    return;
  }
  if (sesja.pubKreatorSzerokosc > 0) resize(sesja.pubKreatorSzerokosc, sesja.pubKreatorWysokosc);
}

void KrokKreatora::cmdWstecz_Click() {
  zapamietajRozmiar();
  reject();
}

void KrokKreatora::cmdPrzerwij_Click() {
  if (MyMsgbox(napis(7), napis(8), MsgTakNie, IkonaPytanie) != WynikTak) return;
  zapamietajRozmiar();
  sesja.pubKreatorPrzerwany = true;
  reject();
}

void KrokKreatora::closeEvent(QCloseEvent* e) {
  zapamietajRozmiar();
  QDialog::closeEvent(e);
}
