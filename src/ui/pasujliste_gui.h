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
// The rows' text takes the system's text colour while it reads well on both stripes, else black
// or white, whichever reads better on both (dark stripes get light text).
void PasujListe(QAbstractItemView* lista, const QString& kolor1, const QString& kolor2);

// The contrast of two colours as the accessibility guidelines measure it: 1 (equal) to 21
// (black on white); 4.5 reads well as body text.
double Kontrast(const QColor& a, const QColor& b);
// The text colour for rows striped in tlo1 and tlo2: zwykly when it reads well on both, else
// black or white, whichever has the better contrast with the worse of the two stripes.
QColor NapisNaPaskach(const QColor& tlo1, const QColor& tlo2, const QColor& zwykly);
