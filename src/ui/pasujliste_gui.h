#pragma once
// Striped lists: rows alternate between the two list colours of the user's theme, the first row
// in the first colour. The colours come as the setup row holds them.

#include <QColor>
#include <QString>

class QAbstractItemView;

// A colour of the setup row: a decimal number with blue in the high byte and red in the low one
// ("12303359" is #FFBBBB), or "&H" and hexadecimal digits of the same form, where a value with
// the top bit set ("&H8000000F") names a colour of the system (button face for 0F, button text
// for 12, window for 05, window text for 08). An empty or unreadable text gives an invalid colour.
QColor KolorUstawienia(const QString& tekst);

// Stripes the list in kolor1 and kolor2 (texts as above); an invalid colour keeps the list's own.
void PasujListe(QAbstractItemView* lista, const QString& kolor1, const QString& kolor2);
