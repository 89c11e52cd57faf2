#include "calculator/PoleKwoty_gui.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolButton>
#include <algorithm>

#include "calculator/frmKalkulator.h"
#include "store/kwota.h"
#include "store/session.h"
#include "store/tekst.h"

namespace {
const char* const kWlasciwosc = "zorvikPoleKwoty";
// Where the calculator opens: right of the field, its top at the field's bottom edge.
constexpr int kOdstepKalkulatora = 22;
// The blank a line edit keeps on each side of its text, inside the frame.
constexpr int kMarginesPola = 2;
}  // namespace

PoleTekstowe StanPola(const QLineEdit* pole) {
  PoleTekstowe stan;
  stan.tekst = pole->text();
  if (pole->hasSelectedText()) {
    stan.selStart = pole->selectionStart();
    stan.selLength = pole->selectionLength();
  } else {
    stan.selStart = pole->cursorPosition();
  }
  return stan;
}

void UstawStanPola(QLineEdit* pole, const PoleTekstowe& stan) {
  if (pole->text() != stan.tekst) pole->setText(stan.tekst);
  if (stan.selLength > 0)
    pole->setSelection(stan.selStart, stan.selLength);
  else
    pole->setCursorPosition(stan.selStart);
}

bool FiltrujKlawisz(QLineEdit* pole, QKeyEvent* k,
                    const std::function<bool(QChar, PoleTekstowe&)>& regula) {
  if (k->matches(QKeySequence::Copy) || k->matches(QKeySequence::SelectAll)) return false;
  QChar znak;
  switch (k->key()) {
    case Qt::Key_Backspace:
      znak = QChar(u'\b');
      break;
    case Qt::Key_Delete:
      znak = QChar(char16_t(0x7f));
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      znak = QChar(u'\r');
      break;
    case Qt::Key_Escape:
      znak = QChar(char16_t(0x1b));
      break;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return false;
    default: {
      const QString tekst = k->text();
      if (tekst.isEmpty()) return false;
      // Paste, cut, undo and other shortcuts would put free text into the field.
      if (k->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return true;
      znak = tekst.at(0);
    }
  }
  PoleTekstowe stan = StanPola(pole);
  if (regula(znak, stan)) return false;
  UstawStanPola(pole, stan);
  return true;
}

PoleKwoty::PoleKwoty(QLineEdit* pole) : QObject(pole) {
  pole->setProperty(kWlasciwosc, QVariant::fromValue(static_cast<QObject*>(this)));
  pole->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  // Nothing but keys reaches the field: no pasting or dropping of free text.
  pole->setContextMenuPolicy(Qt::NoContextMenu);
  pole->setAcceptDrops(false);
  // The typing rule limits what is typed; what the program writes (an amount read from the
  // store, a calculator's result) is never cut, whatever its length.
  pole->setMaxLength(32767);
  pole->installEventFilter(this);
}

PoleKwoty* PoleKwoty::Podlacz(QLineEdit* pole) {
  if (PoleKwoty* juz = Z(pole)) return juz;
  return new PoleKwoty(pole);
}

PoleKwoty* PoleKwoty::Z(const QLineEdit* pole) {
  if (!pole) return nullptr;
  return qobject_cast<PoleKwoty*>(pole->property(kWlasciwosc).value<QObject*>());
}

PoleZKalkulatorem PoleKwoty::NowePole(const QString& nazwaPola, const QString& nazwaPrzycisku,
                                      const QString& podpowiedzPrzycisku, QWidget* rodzic) {
  auto* pole = new QLineEdit(rodzic);
  pole->setObjectName(nazwaPola);
  PoleKwoty* kwota = Podlacz(pole);
  auto* przycisk = new QToolButton(rodzic);
  przycisk->setObjectName(nazwaPrzycisku);
  przycisk->setText(QStringLiteral("..."));
  przycisk->setToolTip(podpowiedzPrzycisku);
  connect(przycisk, &QToolButton::clicked, kwota, &PoleKwoty::OtworzKalkulator);
  return {pole, przycisk};
}

int PoleKwoty::Szerokosc(const QLineEdit* pole) {
  // The widest amount the program holds, with its sign, and the field's frame and margins.
  const QString najszersza =
      QStringLiteral("-999999999999") + sesja.pubSeparator + QStringLiteral("99");
  const QMargins marginesy = pole->textMargins();
  QStyleOptionFrame opcje;
  opcje.initFrom(pole);
  opcje.lineWidth =
      pole->hasFrame() ? pole->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &opcje, pole) : 0;
  const QFontMetrics fm = pole->fontMetrics();
  // Letters may reach beyond their advance at either end; the caret takes a pixel.
  const int wystajace = std::max(0, -fm.minLeftBearing()) + std::max(0, -fm.minRightBearing());
  const QSize tekst(fm.horizontalAdvance(najszersza) + wystajace + marginesy.left() +
                        marginesy.right() + 2 * kMarginesPola + 1,
                    fm.height());
  return pole->style()->sizeFromContents(QStyle::CT_LineEdit, &opcje, tekst, pole).width();
}

QLineEdit* PoleKwoty::Pole() const { return static_cast<QLineEdit*>(parent()); }

double PoleKwoty::Wartosc() const {
  QString tekst = kalkFormatuj(Pole()->text());
  return KwotaZTekstu(tekst);
}

void PoleKwoty::UstawWartosc(double wartosc) {
  Pole()->setText(FormatKwotyEdycja(ZaokraglijDoGroszy(wartosc)));
}

void PoleKwoty::Formatuj() {
  QLineEdit* pole = Pole();
  const QString tekst = kalkFormatuj(pole->text());
  if (tekst != pole->text()) pole->setText(tekst);
}

void PoleKwoty::OtworzKalkulator() {
  QLineEdit* pole = Pole();
  Formatuj();
  const QPoint rog = pole->mapToGlobal(QPoint(pole->width() + kOdstepKalkulatora, pole->height()));
  sesja.pubKalkLewa = rog.x();
  sesja.pubKalkGora = rog.y();
  sesja.pubKalkWartosc = pole->text();
  {
    frmKalkulator okno(pole->window());
    okno.exec();
  }
  pole->setText(sesja.pubKalkWartosc);
  pole->setFocus();
}

bool PoleKwoty::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
  if (obiekt != parent()) return false;
  switch (zdarzenie->type()) {
    case QEvent::KeyPress:
      return FiltrujKlawisz(Pole(), static_cast<QKeyEvent*>(zdarzenie), &kalkKeyPress);
    case QEvent::FocusOut:
    case QEvent::WindowActivate:
      Formatuj();
      break;
    default:
      break;
  }
  return false;
}
