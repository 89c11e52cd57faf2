#include "setup/frmPomoc.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSplitter>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "setup/pomoc.h"
#include "store/napis.h"
#include "ui/nawigacja_gui.h"

namespace {
QString napis(int i) { return Napis(QStringLiteral("frmPomoc%1").arg(i)); }
}  // namespace

frmPomoc::frmPomoc(QWidget* rodzic) : QDialog(rodzic) {
  setObjectName(QStringLiteral("frmPomoc"));
  setWindowTitle(napis(1));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  const QWidget* okno = rodzic ? rodzic->window() : QApplication::activeWindow();
  const QString zrodlo = okno ? okno->objectName() : QString();

  txtSzukaj_ = new QLineEdit(this);
  txtSzukaj_->setObjectName(QStringLiteral("txtSzukaj"));
  txtSzukaj_->setPlaceholderText(napis(3));
  txtSzukaj_->setClearButtonEnabled(true);
  auto* lblSzukaj = new QLabel(napis(2), this);
  lblSzukaj->setBuddy(txtSzukaj_);
  lstSpis_ = new QListWidget(this);
  lstSpis_->setObjectName(QStringLiteral("lstSpis"));
  txtStrona_ = new QTextBrowser(this);
  txtStrona_->setObjectName(QStringLiteral("txtStrona"));
  txtStrona_->setOpenLinks(false);
  auto* lblBrak = new QLabel(napis(4), this);
  lblBrak->setObjectName(QStringLiteral("lblBrak"));
  lblBrak->setWordWrap(true);
  lblBrak->hide();
  connect(txtSzukaj_, &QLineEdit::textChanged, this, [this, lblBrak] {
    Szukaj();
    lblBrak->setVisible(lstSpis_->count() == 0);
  });
  connect(lstSpis_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* w) {
    if (w) PokazStrone(w->data(Qt::UserRole).toString());
  });

  auto* lewa = new QWidget(this);
  auto* ukladLewej = new QVBoxLayout(lewa);
  ukladLewej->setContentsMargins(0, 0, 0, 0);
  ukladLewej->addWidget(lblSzukaj);
  ukladLewej->addWidget(txtSzukaj_);
  ukladLewej->addWidget(lstSpis_, 1);
  ukladLewej->addWidget(lblBrak);
  auto* podzial = new QSplitter(this);
  podzial->addWidget(lewa);
  podzial->addWidget(txtStrona_);
  podzial->setStretchFactor(1, 1);
  podzial->setSizes({300, 560});

  auto* cmdZamknij = new QPushButton(napis(5), this);
  cmdZamknij->setObjectName(QStringLiteral("cmdZamknij"));
  cmdZamknij->setAutoDefault(false);
  connect(cmdZamknij, &QPushButton::clicked, this, &QDialog::accept);
  auto* dol = new QHBoxLayout;
  dol->addStretch();
  dol->addWidget(cmdZamknij);
  auto* uklad = new QVBoxLayout(this);
  uklad->addWidget(podzial, 1);
  uklad->addLayout(dol);

  Szukaj();
  PokazStrone(StronaOkna(zrodlo));
  resize(900, 560);
}

void frmPomoc::Szukaj() {
  const QStringList strony = SzukajWPomocy(txtSzukaj_->text());
  lstSpis_->blockSignals(true);
  lstSpis_->clear();
  for (const QString& s : strony) {
    auto* w = new QListWidgetItem(TytulStrony(s), lstSpis_);
    w->setData(Qt::UserRole, s);
    if (s == strona_) lstSpis_->setCurrentItem(w);
  }
  lstSpis_->blockSignals(false);
  // The page shown stays while it holds the words; else the first page found shows.
  if (!strony.contains(strona_) && !strony.isEmpty()) lstSpis_->setCurrentRow(0);
  const QString pierwsze = txtSzukaj_->text().simplified().section(QLatin1Char(' '), 0, 0);
  if (!pierwsze.isEmpty()) {
    txtStrona_->moveCursor(QTextCursor::Start);
    txtStrona_->find(pierwsze);
  }
}

void frmPomoc::PokazStrone(const QString& strona) {
  strona_ = strona;
  txtStrona_->setHtml(TrescStrony(strona));
  for (int i = 0; i < lstSpis_->count(); ++i)
    if (lstSpis_->item(i)->data(Qt::UserRole).toString() == strona) {
      lstSpis_->blockSignals(true);
      lstSpis_->setCurrentRow(i);
      lstSpis_->blockSignals(false);
    }
}

namespace {
class KlawiszF1 : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* o, QEvent* e) override {
    if (e->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(e)->key() != Qt::Key_F1 ||
        static_cast<QKeyEvent*>(e)->modifiers() != Qt::NoModifier || !o->isWidgetType())
      return false;
    QWidget* okno = static_cast<QWidget*>(o)->window();
    // The help window itself needs no help on help.
    if (okno->objectName() == QLatin1String("frmPomoc")) return true;
    Nawigacja::Pokaz(QStringLiteral("frmPomoc"), okno);
    return true;
  }
};
}  // namespace

void WlaczPomocF1() {
  static KlawiszF1* filtr = nullptr;
  if (filtr) return;
  filtr = new KlawiszF1(qApp);
  qApp->installEventFilter(filtr);
}
