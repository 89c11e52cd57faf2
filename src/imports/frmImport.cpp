#include "imports/frmImport.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHash>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "imports/frmMapowanieKolumn.h"
#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"
#include "ui/nawigacja_gui.h"

namespace {
frmImport::WyborPliku& wyborPliku() {
  static frmImport::WyborPliku w;
  return w;
}

enum Kolumna { kData, kKwota, kOpis, kKontrahent, kKategoria, kStan };

QString kwota(qint64 grosze) { return FormatKwoty(double(grosze) / 100.0).trimmed(); }
}  // namespace

frmImport::WyborPliku frmImport::UstawWyborPliku(WyborPliku wybor) {
  return std::exchange(wyborPliku(), std::move(wybor));
}

frmImport::frmImport(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmImport"));
  setWindowTitle(Napis(QStringLiteral("frmImport1")));
  auto etykieta = [this](const QString& napis, QWidget* dla) {
    auto* l = new QLabel(napis, this);
    l->setBuddy(dla);
    return l;
  };
  txtPlik_ = new QLineEdit(this);
  txtPlik_->setObjectName(QStringLiteral("txtPlik"));
  txtPlik_->setReadOnly(true);
  auto* cmdWybierz = new QPushButton(Napis(QStringLiteral("frmImport3")), this);
  cmdWybierz->setObjectName(QStringLiteral("cmdWybierz"));
  cboKonto_ = new QComboBox(this);
  cboKonto_->setObjectName(QStringLiteral("cboKonto"));
  OtworzBaze();
  for (Rekordy rs = pubBaza().Czytaj(QStringLiteral("SELECT id, nazwa, numer FROM konta ORDER BY nazwa"));
       !rs.Eof(); rs.MoveNext()) {
    const QString numer = rs.Tekst(QStringLiteral("numer"));
    cboKonto_->addItem(rs.Tekst(QStringLiteral("nazwa")) +
                           (numer.isEmpty() ? QString() : QStringLiteral("  (") + RachunekGrupami(numer) + QLatin1Char(')')),
                       rs.Pole(QStringLiteral("id")).toLongLong());
  }
  cboFormat_ = new QComboBox(this);
  cboFormat_->setObjectName(QStringLiteral("cboFormat"));
  cboFormat_->addItems({Napis(QStringLiteral("frmImport6")), QStringLiteral("CSV"),
                        QStringLiteral("MT940"), QStringLiteral("OFX / QFX"), QStringLiteral("QIF")});
  cboKodowanie_ = new QComboBox(this);
  cboKodowanie_->setObjectName(QStringLiteral("cboKodowanie"));
  cboKodowanie_->addItems({Napis(QStringLiteral("frmImport6")), QStringLiteral("Windows-1250"),
                           QStringLiteral("UTF-8")});
  cboProfil_ = new QComboBox(this);
  cboProfil_->setObjectName(QStringLiteral("cboProfil"));
  cboProfil_->addItem(Napis(QStringLiteral("frmImport9")));
  cboProfil_->addItems(ProfileImportu());
  cmdMapowanie_ = new QPushButton(Napis(QStringLiteral("frmImport10")), this);
  cmdMapowanie_->setObjectName(QStringLiteral("cmdMapowanie"));

  auto* gora = new QGridLayout;
  gora->addWidget(etykieta(Napis(QStringLiteral("frmImport2")), txtPlik_), 0, 0);
  gora->addWidget(txtPlik_, 0, 1, 1, 3);
  gora->addWidget(cmdWybierz, 0, 4);
  gora->addWidget(etykieta(Napis(QStringLiteral("frmImport4")), cboKonto_), 1, 0);
  gora->addWidget(cboKonto_, 1, 1);
  gora->addWidget(etykieta(Napis(QStringLiteral("frmImport5")), cboFormat_), 1, 2);
  gora->addWidget(cboFormat_, 1, 3);
  gora->addWidget(etykieta(Napis(QStringLiteral("frmImport7")), cboKodowanie_), 2, 0);
  gora->addWidget(cboKodowanie_, 2, 1);
  gora->addWidget(etykieta(Napis(QStringLiteral("frmImport8")), cboProfil_), 2, 2);
  gora->addWidget(cboProfil_, 2, 3);
  gora->addWidget(cmdMapowanie_, 2, 4);
  gora->setColumnStretch(1, 1);
  gora->setColumnStretch(3, 1);

  lvwPodglad_ = new QTreeWidget(this);
  lvwPodglad_->setObjectName(QStringLiteral("lvwPodglad"));
  lvwPodglad_->setRootIsDecorated(false);
  lvwPodglad_->setAlternatingRowColors(true);
  lvwPodglad_->setHeaderLabels(
      {Napis(QStringLiteral("frmImport11")), Napis(QStringLiteral("frmImport12")),
       Napis(QStringLiteral("frmImport13")), Napis(QStringLiteral("frmImport14")),
       Napis(QStringLiteral("frmImport15")), Napis(QStringLiteral("frmImport16"))});
  lvwPodglad_->setColumnWidth(kData, 110);
  lvwPodglad_->setColumnWidth(kKwota, 110);
  lvwPodglad_->setColumnWidth(kOpis, 300);
  lvwPodglad_->setColumnWidth(kKontrahent, 190);
  lvwPodglad_->setColumnWidth(kKategoria, 150);
  lblPodsumowanie_ = new QLabel(this);
  lblPodsumowanie_->setObjectName(QStringLiteral("lblPodsumowanie"));
  lblPodsumowanie_->setWordWrap(true);

  cmdKategoria_ = new QPushButton(Napis(QStringLiteral("frmImport17")), this);
  cmdKategoria_->setObjectName(QStringLiteral("cmdKategoria"));
  cmdImportuj_ = new QPushButton(Napis(QStringLiteral("frmImport18")), this);
  cmdImportuj_->setObjectName(QStringLiteral("cmdImportuj"));
  cmdImportuj_->setDefault(true);
  cmdCofnijImport_ = new QPushButton(Napis(QStringLiteral("frmImport19")), this);
  cmdCofnijImport_->setObjectName(QStringLiteral("cmdCofnijImport"));
  auto* cmdZamknij = new QPushButton(Napis(QStringLiteral("frmImport20")), this);
  cmdZamknij->setObjectName(QStringLiteral("cmdZamknij"));
  auto* przyciski = new QHBoxLayout;
  przyciski->addWidget(cmdKategoria_);
  przyciski->addWidget(cmdCofnijImport_);
  przyciski->addStretch();
  przyciski->addWidget(cmdImportuj_);
  przyciski->addWidget(cmdZamknij);

  auto* uklad = new QVBoxLayout(this);
  uklad->addLayout(gora);
  uklad->addWidget(lvwPodglad_, 1);
  uklad->addWidget(lblPodsumowanie_);
  uklad->addLayout(przyciski);

  connect(cmdWybierz, &QPushButton::clicked, this, &frmImport::cmdWybierz_Click);
  connect(cmdMapowanie_, &QPushButton::clicked, this, &frmImport::cmdMapowanie_Click);
  connect(cmdKategoria_, &QPushButton::clicked, this, &frmImport::cmdKategoria_Click);
  connect(cmdImportuj_, &QPushButton::clicked, this, &frmImport::cmdImportuj_Click);
  connect(cmdCofnijImport_, &QPushButton::clicked, this, &frmImport::cmdCofnijImport_Click);
  connect(cmdZamknij, &QPushButton::clicked, this, &QDialog::reject);
  connect(lvwPodglad_, &QTreeWidget::itemChanged, this, &frmImport::zaznaczenie);
  connect(lvwPodglad_, &QTreeWidget::itemDoubleClicked, this, &frmImport::cmdKategoria_Click);
  for (QComboBox* c : {cboFormat_, cboKodowanie_, cboProfil_})
    connect(c, &QComboBox::currentIndexChanged, this, [this] {
      if (!plik_.isEmpty()) Wczytaj(plik_);
    });
  connect(cboKonto_, &QComboBox::currentIndexChanged, this, &frmImport::przelicz);
  resize(1000, 560);
  podsumuj();
}

OpcjeWyciagu frmImport::opcje() const {
  OpcjeWyciagu o;
  o.format = FormatWyciagu(cboFormat_->currentIndex());
  o.kodowanie = Kodowanie(cboKodowanie_->currentIndex());
  o.mapowanie = mapowanie_;
  if (cboProfil_->currentIndex() > 0)
    if (const auto p = CzytajProfil(cboProfil_->currentText())) {
      o.mapowanie = p->mapowanie;
      if (o.kodowanie == Kodowanie::Auto) o.kodowanie = p->kodowanie;
    }
  return o;
}

qint64 frmImport::konto() const { return cboKonto_->currentData().toLongLong(); }

bool frmImport::Wczytaj(const QString& plik) {
  plik_ = plik;
  txtPlik_->setText(QDir::toNativeSeparators(plik));
  BladWyciagu b;
  FormatWyciagu f = FormatWyciagu::Auto;
  QApplication::setOverrideCursor(Qt::WaitCursor);
  wyciag_ = CzytajWyciag(plik, opcje(), &b, &f);
  QApplication::restoreOverrideCursor();
  cmdMapowanie_->setEnabled(f == FormatWyciagu::Csv);
  if (!wyciag_) {
    podglad_ = Podglad{};
    wypelnij();
    MyMsgbox(QFileInfo(plik).fileName() + QStringLiteral(":\r\n") + TekstBledu(b),
             Napis(QStringLiteral("frmImport1")), MsgOK, IkonaOstrzezenie);
    return false;
  }
  // The statement's own account number picks the account.
  if (const qint64 k = KontoDlaRachunku(wyciag_->rachunek)) {
    const int i = cboKonto_->findData(k);
    if (i >= 0 && i != cboKonto_->currentIndex()) {
      cboKonto_->setCurrentIndex(i);  // recounts the preview
      return true;
    }
  }
  przelicz();
  return true;
}

void frmImport::przelicz() {
  if (!wyciag_ || konto() == 0) return;
  QApplication::setOverrideCursor(Qt::WaitCursor);
  podglad_ = PrzygotujPodglad(*wyciag_, konto());
  QApplication::restoreOverrideCursor();
  wypelnij();
}

void frmImport::wypelnij() {
  wypelnianie_ = true;
  lvwPodglad_->clear();
  // Duplicates dimmed towards the list's background, readable on dark stripes as on light ones.
  const QPalette lp = lvwPodglad_->palette();
  const QColor t = lp.color(QPalette::Text), b = lp.color(QPalette::Base);
  const QColor szary((t.red() * 3 + b.red() * 2) / 5, (t.green() * 3 + b.green() * 2) / 5,
                     (t.blue() * 3 + b.blue() * 2) / 5);
  // Names of categories and accounts, read once for the whole list.
  QHash<QString, QString> kategorie;
  QHash<qint64, QString> konta;
  QList<QTreeWidgetItem*> wiersze;
  for (const PozycjaPodgladu& z : podglad_.pozycje) {
    auto* w = new QTreeWidgetItem;
    w->setFlags(w->flags() | Qt::ItemIsUserCheckable);
    w->setCheckState(kData, z.wybrana ? Qt::Checked : Qt::Unchecked);
    w->setText(kData, z.p.data.toString(QStringLiteral("yyyy-MM-dd")));
    w->setText(kKwota, kwota(z.p.grosze));
    w->setTextAlignment(kKwota, Qt::AlignRight | Qt::AlignVCenter);
    w->setText(kOpis, z.p.opis.isEmpty() ? z.p.kontrahent : z.p.opis);
    w->setToolTip(kOpis, z.p.opis);
    QString kto = z.nazwaKontrahenta;
    if (z.jakoTransfer) {
      if (!konta.contains(z.kontoTransferu))
        konta.insert(
            z.kontoTransferu,
            pubBaza()
                .Czytaj(QStringLiteral("SELECT nazwa FROM konta WHERE id=%1").arg(z.kontoTransferu))
                .Tekst(QStringLiteral("nazwa")));
      kto = (z.p.grosze < 0 ? QStringLiteral("→ ") : QStringLiteral("← ")) +
            konta.value(z.kontoTransferu);
    } else if (z.nowyKontrahent) {
      kto += QLatin1Char(' ') + Napis(QStringLiteral("frmImport21"));
    }
    w->setText(kKontrahent, kto);
    if (!z.jakoTransfer && !z.kategoria.isEmpty()) {
      const QString klucz = QString::number(z.rodzaj()) + QLatin1Char('|') + z.kategoria;
      if (!kategorie.contains(klucz))
        kategorie.insert(klucz, NazwaKategorii(z.kategoria, z.rodzaj()));
      w->setText(kKategoria, kategorie.value(klucz));
    }
    w->setText(kStan, z.stan == StanPozycji::Duplikat   ? Napis(QStringLiteral("frmImport22"))
                      : z.stan == StanPozycji::Transfer ? Napis(QStringLiteral("frmImport23"))
                                                        : Napis(QStringLiteral("frmImport24")));
    if (z.stan == StanPozycji::Duplikat)
      for (int k = 0; k <= kStan; ++k) w->setForeground(k, szary);
    if (z.nowyKontrahent) {
      QFont f = w->font(kKontrahent);
      f.setItalic(true);
      w->setFont(kKontrahent, f);
    }
    wiersze << w;
  }
  lvwPodglad_->addTopLevelItems(wiersze);
  if (!wiersze.isEmpty()) lvwPodglad_->setCurrentItem(wiersze.first());
  wypelnianie_ = false;
  podsumuj();
}

void frmImport::podsumuj() {
  int wybrane = 0, nowi = 0;
  QSet<QString> nowe;
  for (const PozycjaPodgladu& z : podglad_.pozycje) {
    wybrane += z.wybrana;
    if (z.wybrana && z.nowyKontrahent && !z.jakoTransfer) nowe.insert(z.nazwaKontrahenta.toLower());
  }
  nowi = int(nowe.size());
  lblPodsumowanie_->setText(
      podglad_.pozycje.empty()
          ? Napis(QStringLiteral("frmImport25"))
          : Napis(QStringLiteral("frmImport26"))
                .arg(podglad_.pozycje.size())
                .arg(podglad_.ile(StanPozycji::Duplikat))
                .arg(podglad_.ile(StanPozycji::Transfer))
                .arg(wybrane)
                .arg(nowi));
  cmdImportuj_->setEnabled(wybrane > 0);
  cmdKategoria_->setEnabled(!podglad_.pozycje.empty());
  cmdCofnijImport_->setEnabled(WierszeOstatniegoImportu() > 0);
}

void frmImport::zaznaczenie(QTreeWidgetItem* w, int kolumna) {
  if (wypelnianie_ || kolumna != kData) return;
  const int i = lvwPodglad_->indexOfTopLevelItem(w);
  if (i < 0 || size_t(i) >= podglad_.pozycje.size()) return;
  podglad_.pozycje[size_t(i)].wybrana = w->checkState(kData) == Qt::Checked;
  podsumuj();
}

void frmImport::cmdWybierz_Click() {
  QString plik;
  if (wyborPliku()) {
    plik = wyborPliku()(this);
  } else {
    plik = QFileDialog::getOpenFileName(this, Napis(QStringLiteral("frmImport1")), QString(),
                                        Napis(QStringLiteral("frmImport27")) +
                                            QStringLiteral(" (*.csv *.txt *.sta *.mt940 *.940 *.ofx *.qfx *.qif);;") +
                                            Napis(QStringLiteral("frmImport28")) + QStringLiteral(" (*)"));
  }
  if (!plik.isEmpty()) Wczytaj(plik);
}

void frmImport::cmdMapowanie_Click() {
  if (plik_.isEmpty()) return;
  QFile f(plik_);
  if (!f.open(QIODevice::ReadOnly)) return;
  const OpcjeWyciagu o = opcje();
  frmMapowanieKolumn m(Dekoduj(f.read(NajwiekszyWyciag), o.kodowanie), o.mapowanie, o.kodowanie, this);
  if (m.exec() != QDialog::Accepted) return;
  mapowanie_ = m.Mapowanie();
  const QString profil = m.Profil();
  {
    const QSignalBlocker blokada(cboProfil_);
    cboProfil_->clear();
    cboProfil_->addItem(Napis(QStringLiteral("frmImport9")));
    cboProfil_->addItems(ProfileImportu());
    cboProfil_->setCurrentIndex(profil.isEmpty() ? 0 : std::max(0, cboProfil_->findText(profil)));
  }
  if (profil.isEmpty()) cboProfil_->setCurrentIndex(0);
  cboFormat_->setCurrentIndex(int(FormatWyciagu::Csv));
  Wczytaj(plik_);
}

void frmImport::cmdKategoria_Click() {
  const int i = lvwPodglad_->indexOfTopLevelItem(lvwPodglad_->currentItem());
  if (i < 0 || size_t(i) >= podglad_.pozycje.size()) return;
  PozycjaPodgladu& z = podglad_.pozycje[size_t(i)];
  if (z.jakoTransfer) return;
  sesja.pubTrybPrzegladu = 2;
  sesja.pubSzczegoly = 0;
  sesja.pubKategoria.rodzaj = z.rodzaj();
  sesja.pubKategoria.identyfikator = z.kategoria;
  sesja.pubKategoria.nazwa = NazwaKategorii(z.kategoria, z.rodzaj());
  Nawigacja::Pokaz(QStringLiteral("frmPrzegladKategorii"), this);
  sesja.pubTrybPrzegladu = 1;
  if (sesja.pubKategoria.rodzaj == z.rodzaj()) z.kategoria = sesja.pubKategoria.identyfikator;
  lvwPodglad_->currentItem()->setText(kKategoria, NazwaKategorii(z.kategoria, z.rodzaj()));
}

void frmImport::cmdImportuj_Click() {
  QApplication::setOverrideCursor(Qt::WaitCursor);
  const WynikImportu w = ZapiszImport(podglad_);
  QApplication::restoreOverrideCursor();
  if (!w.ok) {
    MyMsgbox(Napis(QStringLiteral("frmImport29")) + QStringLiteral("\r\n") + w.blad,
             Napis(QStringLiteral("frmImport1")), MsgOK, IkonaOstrzezenie);
    return;
  }
  MyMsgbox(Napis(QStringLiteral("frmImport30")).arg(w.wpisy).arg(w.transfery).arg(w.kontrahenci),
           Napis(QStringLiteral("frmImport1")), MsgOK, IkonaInformacja);
  przelicz();  // what was written now shows as duplicates
}

void frmImport::cmdCofnijImport_Click() {
  const int ile = WierszeOstatniegoImportu();
  if (ile == 0) return;
  if (MyMsgbox(Napis(QStringLiteral("frmImport31")).arg(ile), Napis(QStringLiteral("frmImport1")),
               MsgTakNie, IkonaPytanie) != WynikTak)
    return;
  const WynikImportu w = CofnijImport();
  if (!w.ok) {
    MyMsgbox(Napis(QStringLiteral("frmImport29")) + QStringLiteral("\r\n") + w.blad,
             Napis(QStringLiteral("frmImport1")), MsgOK, IkonaOstrzezenie);
    return;
  }
  przelicz();
  podsumuj();
}
