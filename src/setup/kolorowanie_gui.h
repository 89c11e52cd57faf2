#pragma once
// Windows painted in the user's theme. The window's background, its labels, frames, options and
// check boxes, and its buttons take the colours of the theme; the active set and the inactive
// one go into the two colour groups of the window's palette, so they switch with the focus by
// themselves. Labels marked with the property Tag "e" are headings: they keep the heading
// colours whether the window is active or not. Text boxes and trees keep the system's colours;
// flat lists are striped in the two list colours. Colours of the "&H8000000F" form are the
// system's own, so the standard profile leaves a window looking native.

#include <QColor>
#include <QStringList>
#include <functional>

class QWidget;

enum class StanOkna { Oba, Aktywne, Nieaktywne };

// Paints okno and everything in it with the nine colours (the setup row's order). Oba: the
// active set while it has the focus, the inactive one otherwise; Aktywne or Nieaktywne: that
// set at all times (the samples of the colour screens).
void PomalujOkno(QWidget* okno, const QStringList& kolory, StanOkna stan = StanOkna::Oba);

// Paints okno with the colours of the session.
void KolorujFormularz(QWidget* okno);
// Paints every open window anew with the colours of the session (after they changed).
void KolorujWszystkieOkna();
// From now on every window is painted with the session's colours as it is first shown.
void WlaczKolorowanieOkien();

// The colour dialog, behind one replaceable function: the program shows Qt's, tests answer.
// An invalid colour means the dialog was cancelled.
using DialogKoloru = std::function<QColor(QWidget* rodzic, const QColor& poczatkowy)>;
QColor WybierzKolor(QWidget* rodzic, const QColor& poczatkowy);
// Installs a replacement (an empty function brings back the real dialog); returns the former.
DialogKoloru UstawDialogKoloru(DialogKoloru dialog);
