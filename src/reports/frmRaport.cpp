#include "reports/frmRaport.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFontDatabase>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrinter>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QTextEdit>
#include <QTimer>
#include <QVBoxLayout>

#include "reports/widok.h"
#include "reports/zapis.h"
#include "store/MsgBoxModule.h"
#include "store/napis.h"
#include "store/session.h"
#include "ui/dialogi_gui.h"
#include "ui/nawigacja_gui.h"

// The bar moves with every row; waiting events (the stop button above all) are let in at least
// every 30 ms, so that a long report keeps the window alive without paying for a turn per row.
class frmRaport::Postep : public PostepRaportu {
 public:
  explicit Postep(frmRaport* okno) : okno_(okno) { zegar_.start(); }
  void Maksimum(int maksimum) override {
    okno_->pbrPasek_->setRange(0, std::max(1, maksimum));
    okno_->pbrPasek_->setValue(0);
  }
  bool Krok(int wartosc) override {
    okno_->pbrPasek_->setValue(std::min(wartosc, okno_->pbrPasek_->maximum()));
    if (okno_->poKroku) okno_->poKroku(wartosc);
    if (zegar_.elapsed() >= 30 || pierwszy_) {
      pierwszy_ = false;
      QApplication::processEvents();
      zegar_.restart();
    }
    return przerwano;
  }
  void Opis(const QString& tekst) override { okno_->lblCzekac_->setText(tekst); }
  bool przerwano = false;

 private:
  frmRaport* okno_;
  QElapsedTimer zegar_;
  bool pierwszy_ = true;
};

QString frmRaport::klucz(int n) const {
  return Napis(QLatin1String(formularz_.klucze) + QString::number(n));
}

frmRaport::frmRaport(const FormularzRaportu& formularz, QWidget* parent)
    : QDialog(parent), formularz_(formularz), raport_(std::make_unique<Raport>()) {
  setObjectName(QLatin1String(formularz.ekran));
  setWindowTitle(Napis(QLatin1String(formularz.tytul)));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  postep_ = std::make_unique<Postep>(this);

  rtbRaport_ = new QTextEdit(this);
  rtbRaport_->setObjectName(QStringLiteral("rtbRaport"));
  rtbRaport_->setReadOnly(true);
  rtbRaport_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  rtbRaport_->setLineWrapMode(QTextEdit::NoWrap);
  QFont staly(sesja.pubCzcionka);
  staly.setStyleHint(QFont::TypeWriter);
  staly.setFixedPitch(true);
  staly.setPointSize(8);
  rtbRaport_->document()->setDefaultFont(staly);

  fraCzekac_ = new QFrame(this);
  fraCzekac_->setObjectName(QStringLiteral("fraCzekac"));
  fraCzekac_->setFrameShape(QFrame::StyledPanel);
  lblCzekac_ = new QLabel(klucz(1), fraCzekac_);
  lblCzekac_->setObjectName(QStringLiteral("lblCzekac"));
  pbrPasek_ = new QProgressBar(fraCzekac_);
  pbrPasek_->setObjectName(QStringLiteral("pbrPasek"));
  pbrPasek_->setTextVisible(false);
  pbrPasek_->setMinimumWidth(260);
  cmdPrzerwij_ = new QPushButton(klucz(2), fraCzekac_);
  cmdPrzerwij_->setObjectName(QStringLiteral("cmdPrzerwij"));
  auto* czekaj = new QHBoxLayout(fraCzekac_);
  czekaj->addWidget(lblCzekac_);
  czekaj->addWidget(pbrPasek_, 1);
  czekaj->addWidget(cmdPrzerwij_);
  fraCzekac_->hide();

  const auto przycisk = [this](const char* nazwa, int n) {
    auto* b = new QPushButton(klucz(n), this);
    b->setObjectName(QLatin1String(nazwa));
    b->setAutoDefault(false);
    return b;
  };
  cmdZapisz_ = przycisk("cmdZapisz", 3);
  cmdDrukuj_ = przycisk("cmdDrukuj", 4);
  cmdAnuluj_ = przycisk("cmdAnuluj", 5);
  cmdPomoc_ = przycisk("cmdPomoc", 6);
  cmdPomoc_->setEnabled(Nawigacja::Dostepny(QStringLiteral("frmPomoc")));

  auto* dol = new QHBoxLayout;
  dol->addWidget(cmdZapisz_);
  dol->addWidget(cmdDrukuj_);
  dol->addStretch();
  dol->addWidget(cmdPomoc_);
  dol->addWidget(cmdAnuluj_);
  auto* uklad = new QVBoxLayout(this);
  uklad->addWidget(rtbRaport_, 1);
  uklad->addWidget(fraCzekac_);
  uklad->addLayout(dol);

  connect(cmdZapisz_, &QPushButton::clicked, this, &frmRaport::cmdZapisz_Click);
  connect(cmdDrukuj_, &QPushButton::clicked, this, &frmRaport::cmdDrukuj_Click);
  connect(cmdPrzerwij_, &QPushButton::clicked, this, &frmRaport::cmdPrzerwij_Click);
  connect(cmdAnuluj_, &QPushButton::clicked, this, &frmRaport::reject);
  connect(cmdPomoc_, &QPushButton::clicked, this,
          [this] { Nawigacja::Pokaz(QStringLiteral("frmPomoc"), this); });
  auto* f1 = new QShortcut(QKeySequence::HelpContents, this);
  connect(f1, &QShortcut::activated, cmdPomoc_, &QPushButton::click);

  // Wide enough for the widest report line at 8 points, at least 400 by 133 (6000 by 2000 twips).
  setMinimumSize(400, 133);
  const int znak = QFontMetrics(staly).horizontalAdvance(QLatin1Char('M'));
  resize(std::max(640, znak * 112 + 60), 560);
}

frmRaport::~frmRaport() = default;

void frmRaport::showEvent(QShowEvent* e) {
  QDialog::showEvent(e);
  if (!pierwszeWejscie_) return;
  pierwszeWejscie_ = false;
  QTimer::singleShot(0, this, [this] { TworzRaport(); });
}

bool frmRaport::TworzRaport() {
  if (trwa_ || gotowy_) return gotowy_ && !raport_->przerwano;
  pierwszeWejscie_ = false;
  trwa_ = true;
  cmdZapisz_->setEnabled(false);
  cmdDrukuj_->setEnabled(false);
  rtbRaport_->viewport()->setCursor(Qt::WaitCursor);
  fraCzekac_->show();
  fraCzekac_->repaint();
  cmdPrzerwij_->setFocus();

  raport_ = std::make_unique<Raport>();
  raport_->postep = postep_.get();
  ::TworzRaport(formularz_, *raport_);
  raport_->postep = nullptr;
  WypelnijWidok(raport_->dok, *rtbRaport_->document());
  rtbRaport_->moveCursor(QTextCursor::Start);

  fraCzekac_->hide();
  rtbRaport_->viewport()->unsetCursor();
  cmdZapisz_->setEnabled(true);
  cmdDrukuj_->setEnabled(true);
  cmdAnuluj_->setFocus();
  trwa_ = false;
  gotowy_ = true;
  if (zamknijPoBudowie_) QTimer::singleShot(0, this, &QDialog::reject);
  return !raport_->przerwano;
}

void frmRaport::cmdPrzerwij_Click() { postep_->przerwano = true; }

void frmRaport::reject() {
  if (trwa_) {
    // Closing while the report is written stops it first; the window goes once it has.
    postep_->przerwano = true;
    zamknijPoBudowie_ = true;
    return;
  }
  QDialog::reject();
}

void frmRaport::cmdZapisz_Click() {
  if (!gotowy_) return;
  const auto wybor =
      Dialogi::Zapisz(this, Napis(QStringLiteral("drukowanie12")),
                      NazwaDomyslna(QLatin1String(formularz_.klucze)), FiltryZapisu());
  if (!wybor) return;
  const QString nazwa = NazwaZFiltrem(wybor->sciezka, wybor->filtr);
  QString blad;
  if (!ZapiszRaport(raport_->dok, nazwa, FormatDlaNazwy(nazwa, wybor->filtr), &blad))
    MyMsgbox(Napis(QStringLiteral("drukowanie8")) + QLatin1Char(' ') + blad,
             Napis(QStringLiteral("drukowanie9")), MsgOK, IkonaOstrzezenie);
}

void frmRaport::cmdDrukuj_Click() {
  if (!gotowy_) return;
  QPrinter drukarka(QPrinter::HighResolution);
  const QTextCursor k = rtbRaport_->textCursor();
  bool tylkoZaznaczenie = false;
  if (!Dialogi::Drukuj(this, drukarka, k.hasSelection(), &tylkoZaznaczenie)) return;
  const DokumentRaportu dok = tylkoZaznaczenie && k.hasSelection()
                                  ? raport_->dok.Wycinek(k.selectionStart(), k.selectionEnd())
                                  : raport_->dok;
  QString blad;
  if (!RysujStrony(dok, drukarka, &blad))
    MyMsgbox(Napis(QStringLiteral("drukowanie10")) + QLatin1Char(' ') + blad,
             Napis(QStringLiteral("drukowanie11")), MsgOK, IkonaOstrzezenie);
}

void ZarejestrujRaporty() {
  int ile = 0;
  const FormularzRaportu* f = FormularzeRaportow(&ile);
  for (int i = 0; i < ile; ++i) {
    const FormularzRaportu* formularz = &f[i];
    Nawigacja::Zarejestruj(QLatin1String(formularz->ekran), [formularz](QWidget* rodzic) {
      frmRaport okno(*formularz, rodzic);
      okno.exec();
    });
  }
  Nawigacja::Zarejestruj(QStringLiteral("frmRaport"), [](QWidget* rodzic) {
    frmRaport okno(*ZnajdzFormularz(QStringLiteral("frmRaport")), rodzic);
    okno.exec();
  });
}
