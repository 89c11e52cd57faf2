#include "ui/frmMsgBox.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include "ui/obrazki_gui.h"
#include "store/napis.h"

namespace {
int px(int twipy) { return (twipy + frmMsgBox::TwipowNaPiksel / 2) / frmMsgBox::TwipowNaPiksel; }

// Positions inside the window, in twips: the picture at the left, the text beside it.
constexpr int kLewyObrazka = 180, kGornyObrazka = 240, kRozmiarObrazka = 480;
constexpr int kLewyTekstu = 840, kGornyTekstu = 240;
constexpr int kSzerokoscPrzycisku = 1600, kWysokoscPrzycisku = 375;
// The window's height in twips counts its title bar, which the window system draws.
constexpr int kPaskTytulu = 360;

// The letter a caption answers to with Alt: the one behind "&".
QChar litera(const QString& napis) {
  const qsizetype i = napis.indexOf(QLatin1Char('&'));
  return i >= 0 && i + 1 < napis.size() ? napis.at(i + 1).toUpper() : QChar();
}
}  // namespace

frmMsgBox::frmMsgBox(const Komunikat& k, QWidget* rodzic) : QDialog(rodzic) {
  setObjectName(QStringLiteral("frmMsgBox"));
  setWindowTitle(k.tytul);
  setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
  rozmiar_ = ObliczRozmiarMsgBox(k.tekst, k.przyciski);

  for (int i = 0; i < 3; ++i) {
    auto* obrazek = new QLabel(this);
    obrazek->setObjectName(QStringLiteral("imgObrazek(%1)").arg(i));
    obrazek->setPixmap(ObrazekKomunikatu(i, px(kRozmiarObrazka)));
    obrazek->setGeometry(px(kLewyObrazka), px(kGornyObrazka), px(kRozmiarObrazka),
                         px(kRozmiarObrazka));
    obrazek->setVisible(i == k.ikona);
  }

  lblTekst_ = new QLabel(this);
  lblTekst_->setObjectName(QStringLiteral("lblTekst"));
  lblTekst_->setTextFormat(Qt::PlainText);
  lblTekst_->setWordWrap(true);
  lblTekst_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  lblTekst_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  QString tekst = k.tekst;
  lblTekst_->setText(tekst.replace(QStringLiteral("\r\n"), QStringLiteral("\n")));

  const int szerokoscTekstu = px(rozmiar_.szerokoscEtykiety);
  int wysokoscTekstu = px(rozmiar_.wysokoscEtykiety);
  // The rule gives one extra line for wrapping however long the text; a longer text still
  // must not be cut off, so the dialog grows by what the wrapped text really needs.
  const int potrzebna = lblTekst_->heightForWidth(szerokoscTekstu);
  const int dodatek = std::max(0, potrzebna - wysokoscTekstu);
  wysokoscTekstu += dodatek;
  lblTekst_->setGeometry(px(kLewyTekstu), px(kGornyTekstu), szerokoscTekstu, wysokoscTekstu);

  const int gora = px(rozmiar_.goraPrzyciskow) + dodatek;
  auto przycisk = [&](const char* nazwa, const QString& napis, int lewy, int wynik) {
    auto* b = new QPushButton(napis, this);
    b->setObjectName(QLatin1String(nazwa));
    b->setGeometry(px(lewy), gora, px(kSzerokoscPrzycisku), px(kWysokoscPrzycisku));
    connect(b, &QPushButton::clicked, this, [this, wynik] { odpowiedz(wynik); });
    return b;
  };
  if (k.przyciski == MsgTakNie) {
    cmdTak_ = przycisk("cmdTak", Napis(QStringLiteral("frmMsgBox1")), rozmiar_.lewyTak, WynikTak);
    cmdNie_ = przycisk("cmdNie", Napis(QStringLiteral("frmMsgBox2")), rozmiar_.lewyNie, WynikNie);
    cmdTak_->setDefault(true);
    cmdTak_->setFocus();
  } else {
    cmdOK_ = przycisk("cmdOK", Napis(QStringLiteral("frmMsgBox3")), rozmiar_.lewyOK, WynikOK);
    cmdOK_->setDefault(true);
    cmdOK_->setFocus();
  }
  setFixedSize(px(rozmiar_.szerokoscOkna), px(rozmiar_.wysokoscOkna - kPaskTytulu) + dodatek);
}

void frmMsgBox::odpowiedz(int wynik) {
  wynik_ = wynik;
  accept();
}

// T, N and Y answer as their Alt combinations do, so that Yes and No need no Alt key.
void frmMsgBox::keyPressEvent(QKeyEvent* e) {
  const Qt::KeyboardModifiers m = e->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
  if (m == Qt::NoModifier &&
      (e->key() == Qt::Key_T || e->key() == Qt::Key_N || e->key() == Qt::Key_Y)) {
    const QChar klawisz = QChar(e->key());
    for (QPushButton* b : {cmdOK_, cmdTak_, cmdNie_})
      if (b && b->isEnabled() && litera(b->text()) == klawisz) {
        b->click();
        return;
      }
  }
  QDialog::keyPressEvent(e);
}

int HostOkienkowy::Pokaz(const Komunikat& k) {
  QWidget* rodzic = QApplication::activeModalWidget();
  if (!rodzic) rodzic = QApplication::activeWindow();
  frmMsgBox okno(k, rodzic);
  okno.exec();
  return okno.Wynik();
}
