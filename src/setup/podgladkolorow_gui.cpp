#include "setup/podgladkolorow_gui.h"

#include <QApplication>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "setup/kolorowanie_gui.h"
#include "store/napis.h"
#include "store/tekst.h"

namespace {
QString napis(int i) { return Napis(QStringLiteral("podgladKolorow%1").arg(i)); }

// One sample window; its caption in the system's colours of an active or inactive title.
QWidget* probka(bool aktywne, QWidget* rodzic) {
  auto* okno = new QFrame(rodzic);
  okno->setObjectName(aktywne ? QStringLiteral("fraAktywne") : QStringLiteral("fraNieaktywne"));
  okno->setProperty("bezKolorow", true);
  okno->setFrameShape(QFrame::Box);
  okno->setAutoFillBackground(true);
  auto* lblFormularz = new QLabel(aktywne ? napis(1) : napis(2), okno);
  lblFormularz->setObjectName(aktywne ? QStringLiteral("lblFormularz")
                                      : QStringLiteral("lblFormularzNie"));
  lblFormularz->setMargin(3);
  lblFormularz->setAutoFillBackground(true);
  const QPalette sys = QApplication::palette();
  QPalette pasek = sys;
  for (auto g : {QPalette::Active, QPalette::Inactive}) {
    pasek.setColor(g, QPalette::Window,
                   aktywne ? sys.color(QPalette::Active, QPalette::Highlight) : QColor(0x80, 0x80, 0x80));
    pasek.setColor(g, QPalette::WindowText,
                   aktywne ? sys.color(QPalette::Active, QPalette::HighlightedText) : QColor(0xd4, 0xd0, 0xc8));
  }
  lblFormularz->setPalette(pasek);
  auto* lblNaglowek = new QLabel(napis(3), okno);
  lblNaglowek->setProperty("Tag", QStringLiteral("e"));
  lblNaglowek->setMargin(3);
  auto* pole = new QLineEdit(napis(4), okno);
  pole->setReadOnly(true);
  auto* opt = new QRadioButton(napis(5), okno);
  opt->setChecked(true);
  auto* chk = new QCheckBox(napis(6), okno);
  chk->setChecked(true);
  auto* cmd = new QPushButton(napis(7), okno);
  cmd->setFocusPolicy(Qt::NoFocus);
  auto* lista = new QTreeWidget(okno);
  lista->setRootIsDecorated(false);
  lista->setHeaderLabels({napis(8), napis(9)});
  lista->setFocusPolicy(Qt::NoFocus);
  const double kwoty[] = {1250, 89.99, 2400, 35.5, 412.1};
  for (int i = 0; i < 5; ++i)
    new QTreeWidgetItem(lista, {napis(10 + i), FormatKwoty(kwoty[i]).trimmed()});
  lista->setMinimumHeight(100);

  auto* uklad = new QVBoxLayout(okno);
  uklad->setContentsMargins(0, 0, 0, 6);
  uklad->addWidget(lblFormularz);
  auto* wnetrze = new QVBoxLayout;
  wnetrze->setContentsMargins(6, 0, 6, 0);
  wnetrze->addWidget(lblNaglowek);
  wnetrze->addWidget(new QLabel(napis(15), okno));
  wnetrze->addWidget(pole);
  auto* opcje = new QHBoxLayout;
  opcje->addWidget(opt);
  opcje->addWidget(chk);
  opcje->addStretch();
  opcje->addWidget(cmd);
  wnetrze->addLayout(opcje);
  wnetrze->addWidget(lista, 1);
  uklad->addLayout(wnetrze, 1);
  return okno;
}
}  // namespace

PodgladKolorow::PodgladKolorow(QWidget* rodzic) : QWidget(rodzic) {
  setObjectName(QStringLiteral("picPodglad"));
  aktywne_ = probka(true, this);
  nieaktywne_ = probka(false, this);
  auto* uklad = new QHBoxLayout(this);
  uklad->setContentsMargins(0, 0, 0, 0);
  uklad->addWidget(aktywne_);
  uklad->addWidget(nieaktywne_);
}

void PodgladKolorow::Ustaw(const QStringList& kolory) {
  PomalujOkno(aktywne_, kolory, StanOkna::Aktywne);
  PomalujOkno(nieaktywne_, kolory, StanOkna::Nieaktywne);
}
