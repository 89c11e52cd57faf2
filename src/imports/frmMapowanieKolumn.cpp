#include "imports/frmMapowanieKolumn.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

#include "imports/profile.h"
#include "store/MsgBoxModule.h"
#include "store/napis.h"

namespace {
const char* const nazwyKolumn[8] = {"cboData",       "cboKwota",      "cboPrzychod",
                                    "cboWydatek",    "cboOpis",       "cboKontrahent",
                                    "cboRachunek",   "cboIdBanku"};
int* pole(MapowanieCsv& m, int i) {
  int* p[8] = {&m.data, &m.kwota, &m.przychod, &m.wydatek,
               &m.opis, &m.kontrahent, &m.rachunek, &m.idBanku};
  return p[i];
}
}  // namespace

frmMapowanieKolumn::frmMapowanieKolumn(const QString& tekst, const MapowanieCsv& mapowanie,
                                       Kodowanie kodowanie, QWidget* parent)
    : QDialog(parent), tekst_(tekst), kodowanie_(kodowanie) {
  setObjectName(QStringLiteral("frmMapowanieKolumn"));
  setWindowTitle(Napis(QStringLiteral("frmMapowanieKolumn1")));
  const PodgladCsv p = PodejrzyjCsv(tekst, mapowanie);

  cboSeparator_ = new QComboBox(this);
  cboSeparator_->setObjectName(QStringLiteral("cboSeparator"));
  cboSeparator_->addItem(Napis(QStringLiteral("frmMapowanieKolumn2")), QStringLiteral(";"));
  cboSeparator_->addItem(Napis(QStringLiteral("frmMapowanieKolumn3")), QStringLiteral(","));
  cboSeparator_->addItem(Napis(QStringLiteral("frmMapowanieKolumn4")), QStringLiteral("\t"));
  cboSeparator_->setCurrentIndex(std::max(0, cboSeparator_->findData(QString(p.separator))));
  spnNaglowek_ = new QSpinBox(this);
  spnNaglowek_->setObjectName(QStringLiteral("spnNaglowek"));
  spnNaglowek_->setRange(0, 60);
  spnNaglowek_->setSpecialValueText(Napis(QStringLiteral("frmMapowanieKolumn5")));
  spnNaglowek_->setValue(p.mapowanie.naglowek + 1);

  const QString etykiety[8] = {
      Napis(QStringLiteral("frmMapowanieKolumn6")),  Napis(QStringLiteral("frmMapowanieKolumn7")),
      Napis(QStringLiteral("frmMapowanieKolumn8")),  Napis(QStringLiteral("frmMapowanieKolumn9")),
      Napis(QStringLiteral("frmMapowanieKolumn10")), Napis(QStringLiteral("frmMapowanieKolumn11")),
      Napis(QStringLiteral("frmMapowanieKolumn12")), Napis(QStringLiteral("frmMapowanieKolumn13"))};
  auto* formularz = new QFormLayout;
  formularz->addRow(Napis(QStringLiteral("frmMapowanieKolumn14")), cboSeparator_);
  formularz->addRow(Napis(QStringLiteral("frmMapowanieKolumn15")), spnNaglowek_);
  for (int i = 0; i < 8; ++i) {
    kolumny_[i] = new QComboBox(this);
    kolumny_[i]->setObjectName(QLatin1String(nazwyKolumn[i]));
    formularz->addRow(etykiety[i], kolumny_[i]);
  }
  txtProfil_ = new QLineEdit(this);
  txtProfil_->setObjectName(QStringLiteral("txtProfil"));
  txtProfil_->setMaxLength(40);
  txtProfil_->setPlaceholderText(Napis(QStringLiteral("frmMapowanieKolumn16")));
  formularz->addRow(Napis(QStringLiteral("frmMapowanieKolumn17")), txtProfil_);

  tblPodglad_ = new QTableWidget(this);
  tblPodglad_->setObjectName(QStringLiteral("tblPodglad"));
  tblPodglad_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tblPodglad_->setMinimumWidth(420);

  auto* cmdOK = new QPushButton(Napis(QStringLiteral("frmMapowanieKolumn18")), this);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setDefault(true);
  auto* cmdAnuluj = new QPushButton(Napis(QStringLiteral("frmMapowanieKolumn19")), this);
  cmdAnuluj->setObjectName(QStringLiteral("cmdAnuluj"));
  auto* przyciski = new QHBoxLayout;
  przyciski->addStretch();
  przyciski->addWidget(cmdOK);
  przyciski->addWidget(cmdAnuluj);
  auto* srodek = new QHBoxLayout;
  srodek->addLayout(formularz);
  srodek->addWidget(tblPodglad_, 1);
  auto* uklad = new QVBoxLayout(this);
  uklad->addLayout(srodek, 1);
  uklad->addLayout(przyciski);

  odswiez();
  MapowanieCsv m = p.mapowanie;
  for (int i = 0; i < 8; ++i) kolumny_[i]->setCurrentIndex(*pole(m, i) + 1);
  connect(cboSeparator_, &QComboBox::currentIndexChanged, this, &frmMapowanieKolumn::odswiez);
  connect(spnNaglowek_, &QSpinBox::valueChanged, this, &frmMapowanieKolumn::odswiez);
  connect(cmdOK, &QPushButton::clicked, this, &frmMapowanieKolumn::cmdOK_Click);
  connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);
  resize(900, 420);
}

void frmMapowanieKolumn::odswiez() {
  MapowanieCsv m;
  m.separator = cboSeparator_->currentData().toString().at(0);
  m.naglowek = spnNaglowek_->value() - 1;
  const PodgladCsv p = PodejrzyjCsv(tekst_, m);
  int szerokosc = 0;
  for (const QStringList& w : p.wiersze) szerokosc = std::max(szerokosc, int(w.size()));
  tblPodglad_->clear();
  tblPodglad_->setRowCount(int(p.wiersze.size()));
  tblPodglad_->setColumnCount(szerokosc);
  QStringList naglowki;
  const QStringList zPliku = m.naglowek >= 0 && size_t(m.naglowek) < p.wiersze.size()
                                 ? p.wiersze[size_t(m.naglowek)]
                                 : QStringList();
  for (int k = 0; k < szerokosc; ++k) {
    const QString n = zPliku.value(k).trimmed();
    naglowki << (n.isEmpty() ? Napis(QStringLiteral("frmMapowanieKolumn20")).arg(k + 1)
                             : QStringLiteral("%1: %2").arg(k + 1).arg(n.left(24)));
  }
  tblPodglad_->setHorizontalHeaderLabels(naglowki);
  for (int r = 0; r < int(p.wiersze.size()); ++r)
    for (int k = 0; k < int(p.wiersze[size_t(r)].size()); ++k) {
      auto* z = new QTableWidgetItem(p.wiersze[size_t(r)][k]);
      // The header line stands out.
      if (r == m.naglowek) {
        QFont f = z->font();
        f.setBold(true);
        z->setFont(f);
      }
      tblPodglad_->setItem(r, k, z);
    }
  tblPodglad_->resizeColumnsToContents();
  for (int k = 0; k < szerokosc; ++k)
    tblPodglad_->setColumnWidth(k, std::min(tblPodglad_->columnWidth(k), 220));
  for (QComboBox* c : kolumny_) {
    const int byl = c->currentIndex();
    c->clear();
    c->addItem(Napis(QStringLiteral("frmMapowanieKolumn21")));
    c->addItems(naglowki);
    c->setCurrentIndex(byl >= 0 && byl < c->count() ? byl : 0);
  }
}

MapowanieCsv frmMapowanieKolumn::Mapowanie() const {
  MapowanieCsv m;
  m.separator = cboSeparator_->currentData().toString().at(0);
  m.naglowek = spnNaglowek_->value() - 1;
  for (int i = 0; i < 8; ++i) *pole(m, i) = kolumny_[i]->currentIndex() - 1;
  return m;
}

QString frmMapowanieKolumn::Profil() const { return txtProfil_->text().trimmed(); }

void frmMapowanieKolumn::cmdOK_Click() {
  const MapowanieCsv m = Mapowanie();
  if (m.data < 0 || (m.kwota < 0 && m.przychod < 0 && m.wydatek < 0)) {
    MyMsgbox(Napis(QStringLiteral("import7")), Napis(QStringLiteral("frmMapowanieKolumn1")), MsgOK,
             IkonaOstrzezenie);
    return;
  }
  if (!Profil().isEmpty()) {
    QString blad;
    if (!ZapiszProfil(Profil(), {m, kodowanie_}, &blad)) {
      MyMsgbox(blad, Napis(QStringLiteral("frmMapowanieKolumn1")), MsgOK, IkonaOstrzezenie);
      return;
    }
  }
  accept();
}
