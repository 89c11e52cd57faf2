#pragma once
// Whether a text shows whole where the user reads it: measured with the widget's font against
// the room the style leaves for the text, as the widget is laid out on the screen.

#include <QFontMetrics>
#include <QHeaderView>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QStyleOptionViewItem>
#include <QTreeWidget>
#include <algorithm>

namespace widocznosc {

// The width the text takes, with the overhang of its first and last letters.
inline int SzerokoscTekstu(const QFontMetrics& fm, const QString& tekst) {
  return fm.horizontalAdvance(tekst) + std::max(0, -fm.minLeftBearing()) +
         std::max(0, -fm.minRightBearing());
}

// The line edit shows its whole text without scrolling: the text fits the line inside the frame,
// the text margins and the edit's own blank of 2 on each side, with a pixel for the caret.
inline bool CalyWidoczny(const QLineEdit* pole) {
  QStyleOptionFrame opcje;
  opcje.initFrom(pole);
  opcje.rect = pole->rect();
  opcje.lineWidth =
      pole->hasFrame() ? pole->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &opcje, pole) : 0;
  const QRect r = pole->style()
                      ->subElementRect(QStyle::SE_LineEditContents, &opcje, pole)
                      .marginsRemoved(pole->textMargins());
  return SzerokoscTekstu(pole->fontMetrics(), pole->text()) + 1 <= r.width() - 2 * 2;
}

// The text of the line's first column shows whole, not cut short with "...": it fits the room
// the style gives the text in the line as the list now stands (indentation, icon and margins
// taken off).
inline bool CalaNazwa(const QTreeWidget* lista, const QTreeWidgetItem* linia) {
  QStyleOptionViewItem opcje;
  opcje.initFrom(lista->viewport());
  // The line's rectangle spans all columns: keep the first column's part of it (behind the
  // indentation of a tree).
  opcje.rect = lista->visualItemRect(linia);
  const QHeaderView* naglowek = lista->header();
  opcje.rect.setRight(naglowek->sectionViewportPosition(0) + naglowek->sectionSize(0) - 1);
  opcje.font = linia->font(0);
  opcje.fontMetrics = QFontMetrics(opcje.font);
  opcje.text = linia->text(0);
  opcje.features = QStyleOptionViewItem::HasDisplay;
  opcje.displayAlignment = Qt::Alignment(linia->textAlignment(0));
  if (!linia->icon(0).isNull()) {
    opcje.features |= QStyleOptionViewItem::HasDecoration;
    opcje.icon = linia->icon(0);
    const int maly = lista->style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, lista);
    opcje.decorationSize = lista->iconSize().isValid() ? lista->iconSize() : QSize(maly, maly);
  }
  const QRect tekst = lista->style()->subElementRect(QStyle::SE_ItemViewItemText, &opcje, lista);
  const int margines =
      lista->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, lista) + 1;
  return opcje.rect.width() > 0 &&
         opcje.fontMetrics.horizontalAdvance(opcje.text) <= tekst.width() - 2 * margines;
}

}  // namespace widocznosc
