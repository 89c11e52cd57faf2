#include "setup/frmPrzypomnienia.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QProcess>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "store/MsgBoxModule.h"
#include "store/napis.h"
#include "store/session.h"
#include "ui/obrazki_gui.h"
#include "ui/pasujliste_gui.h"

namespace {
QString napis(int i) { return Napis(QStringLiteral("frmPrzypomnienia%1").arg(i)); }

QLabel* etykieta(const QString& nazwa, const QString& tekst, QWidget* rodzic) {
  auto* l = new QLabel(tekst, rodzic);
  l->setObjectName(nazwa);
  l->setWordWrap(true);
  return l;
}
}  // namespace

frmPrzypomnienia::frmPrzypomnienia(const QString& plik, const QString& program, QWidget* rodzic)
    : QDialog(rodzic), program_(program) {
  setObjectName(QStringLiteral("frmPrzypomnienia"));
  setWindowTitle(napis(1));
  setWindowIcon(IkonaProgramu());
  Przypomnienia p;
  stan_ = CzytajPlikPrzypomnien(plik, &p);
  const QString separator = QLocale().decimalPoint();

  auto* uklad = new QVBoxLayout(this);
  auto* lblPowitanie = etykieta(QStringLiteral("lblPowitanie"),
                                p.imie.isEmpty() ? napis(3) : napis(2).arg(p.imie), this);
  QFont f = lblPowitanie->font();
  f.setBold(true);
  f.setPointSizeF(f.pointSizeF() * 1.3);
  lblPowitanie->setFont(f);
  uklad->addWidget(lblPowitanie);
  if (!p.imieniny.isEmpty())
    uklad->addWidget(etykieta(QStringLiteral("lblImieniny"), napis(4).arg(p.imieniny), this));

  const QString sciezka = QDir::toNativeSeparators(plik);
  if (stan_ != StanPlikuPrzypomnien::Dobry) {
    const int klucz = stan_ == StanPlikuPrzypomnien::Brak          ? 22
                      : stan_ == StanPlikuPrzypomnien::Nieczytelny ? 23
                                                                   : 24;
    auto* lblBlad = etykieta(QStringLiteral("lblBlad"), napis(klucz).arg(sciezka), this);
    lblBlad->setFrameShape(QFrame::StyledPanel);
    lblBlad->setMargin(8);
    uklad->addWidget(lblBlad);
  } else if (p.pozycje.empty()) {
    uklad->addWidget(etykieta(QStringLiteral("lblNic"), napis(5), this));
  } else {
    uklad->addWidget(etykieta(QStringLiteral("lblZaplanowane"), napis(6), this));
    QStringList sumy;
    const std::tuple<int, int, qint64> grupy[] = {{7, p.ilePrzychodow, p.sumaPrzychodow},
                                                  {8, p.ileWydatkow, p.sumaWydatkow},
                                                  {9, p.ileTransferow, p.sumaTransferow}};
    for (const auto& [klucz, ile, suma] : grupy)
      if (ile > 0) sumy << napis(klucz).arg(ile).arg(KwotaPrzypomnienia(suma, separator));
    auto* lblSumy = etykieta(QStringLiteral("lblSumy"), sumy.join(QLatin1Char('\n')), this);
    uklad->addWidget(lblSumy);
    auto* lvw = new QTreeWidget(this);
    lvw->setObjectName(QStringLiteral("lvwPozycje"));
    lvw->setRootIsDecorated(false);
    lvw->setHeaderLabels({napis(10), napis(11), napis(12), napis(13), napis(14), napis(15), napis(16)});
    for (const PozycjaPrzypomnienia& z : p.pozycje) {
      auto* w = new QTreeWidgetItem(
          lvw, {z.dzien, napis(17 + int(z.rodzaj)), KwotaPrzypomnienia(z.grosze, separator), z.konto,
                z.kategoria, z.kontrahent, z.opis});
      w->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
    }
    for (int k = 0; k < 6; ++k) lvw->resizeColumnToContents(k);
    PasujListe(lvw, QStringLiteral("16777215"), QStringLiteral("15724527"));
    uklad->addWidget(lvw, 1);
  }
  if (p.uszkodzone > 0)
    uklad->addWidget(etykieta(QStringLiteral("lblUszkodzone"), napis(25).arg(p.uszkodzone), this));
  uklad->addStretch();

  auto* cmdOtworz = new QPushButton(napis(20), this);
  cmdOtworz->setObjectName(QStringLiteral("cmdOtworz"));
  cmdOtworz->setDefault(true);
  auto* cmdZamknij = new QPushButton(napis(21), this);
  cmdZamknij->setObjectName(QStringLiteral("cmdZamknij"));
  connect(cmdOtworz, &QPushButton::clicked, this, &frmPrzypomnienia::cmdOtworz_Click);
  connect(cmdZamknij, &QPushButton::clicked, this, &QDialog::reject);
  auto* dol = new QHBoxLayout;
  dol->addStretch();
  dol->addWidget(cmdOtworz);
  dol->addWidget(cmdZamknij);
  uklad->addLayout(dol);
  resize(p.pozycje.empty() ? 460 : 760, p.pozycje.empty() ? 220 : 420);
}

void frmPrzypomnienia::cmdOtworz_Click() {
  const QFileInfo program(program_);
  if (!program.isFile() || !program.isExecutable() ||
      !QProcess::startDetached(program.absoluteFilePath(), {}, program.absolutePath())) {
    MyMsgbox(napis(26).arg(QDir::toNativeSeparators(program_)), napis(27), MsgOK, IkonaOstrzezenie);
    return;
  }
  accept();
}
