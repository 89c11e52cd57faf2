#include "masterdata/szerokosci_gui.h"

#include <QFontMetrics>
#include <QHeaderView>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolBar>
#include <QTreeWidget>
#include <algorithm>

namespace {
// The blank a line edit keeps on each side of its text inside the frame, and room for the caret.
constexpr int kMarginesPola = 2;
constexpr int kKursor = 1;
}  // namespace

int SzerokoscNazwy(const QFontMetrics& fm) {
  static const QString litery = QStringLiteral(
      "AĄBCĆDEĘFGHIJKLŁMNŃOÓPQRSŚTUVWXYZŹŻaąbcćdeęfghijklłmnńoópqrsśtuvwxyzźż0123456789@%&");
  int najszersza = 0;
  for (const QChar c : litery) najszersza = std::max(najszersza, fm.horizontalAdvance(c));
  // Kerning and the advance of a whole run may differ from the sum of single letters.
  int wynik = najszersza * DlugoscNazwy;
  for (const QChar c : litery)
    if (fm.horizontalAdvance(c) == najszersza)
      wynik = std::max(wynik, fm.horizontalAdvance(QString(DlugoscNazwy, c)));
  return wynik;
}

int SzerokoscPolaNazwy(const QLineEdit* pole) {
  QStyleOptionFrame opcje;
  opcje.initFrom(pole);
  opcje.lineWidth =
      pole->hasFrame() ? pole->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &opcje, pole) : 0;
  const QMargins m = pole->textMargins();
  const QFontMetrics fm = pole->fontMetrics();
  // Letters may reach beyond their advance at either end.
  const int wystajace = std::max(0, -fm.minLeftBearing()) + std::max(0, -fm.minRightBearing());
  const QSize tekst(
      SzerokoscNazwy(fm) + wystajace + m.left() + m.right() + 2 * kMarginesPola + kKursor,
      pole->fontMetrics().height());
  return pole->style()->sizeFromContents(QStyle::CT_LineEdit, &opcje, tekst, pole).width();
}

int SzerokoscKolumnyNazwy(const QTreeWidget* lista, bool zIkona, int poziomy) {
  QStyle* styl = lista->style();
  // An item's text keeps a margin on both sides; an icon takes its size and its own margins.
  const int margines = styl->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, lista) + 1;
  int w = SzerokoscNazwy(lista->fontMetrics()) + 2 * margines;
  if (zIkona) {
    const QSize ikona = lista->iconSize().isValid()
                            ? lista->iconSize()
                            : QSize(styl->pixelMetric(QStyle::PM_SmallIconSize, nullptr, lista),
                                    styl->pixelMetric(QStyle::PM_SmallIconSize, nullptr, lista));
    w += ikona.width() + 2 * margines;
  }
  const int wciecie = lista->indentation();
  return w + wciecie * (poziomy + (lista->rootIsDecorated() ? 1 : 0));
}

int SzerokoscPaska(const QWidget* pasek) {
  int w = pasek->sizeHint().width();
  // A strip of several rows is as wide as its widest row.
  for (const QToolBar* wiersz : pasek->findChildren<QToolBar*>())
    w = std::max(w, wiersz->sizeHint().width());
  return w;
}
