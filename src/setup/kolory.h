#pragma once
// The nine colours of the user's theme and the six ready profiles. A colour is kept as the
// setup row holds it: a decimal number with blue in the high byte and red in the low one, or
// "&H8000000F"-style text naming a colour of the system.

#include <QString>
#include <QStringList>

struct Ustawienia;

inline constexpr int LiczbaKolorow = 9;
inline constexpr int LiczbaProfili = 6;

// The setup columns of the nine colours, in their fixed order (tloaktywne ... napisynieaktywne).
const QStringList& KolumnyKolorow();
// The nine colours of profile 0 (standard: the system's own) to 5 (black); an index out of range
// gives profile 1, the default of a new store.
const QStringList& ProfilKolorow(int indeks);
// The index of the profile whose nine colours these are; -1 for colours of the user's own.
int KtoryProfil(const QStringList& kolory);

// The nine colours of the session, and the nine put into it.
QStringList KoloryUstawien(const Ustawienia& u);
void UstawKoloryUstawien(Ustawienia& u, const QStringList& kolory);

// Writes the nine colours into the setup row: an UPDATE, or an INSERT when there is no row yet.
// False when the store refused (it was logged).
bool ZapiszKoloryWBazie(const QStringList& kolory);

class QColor;
// A colour picked by the user as the setup row keeps it (decimal, blue in the high byte); "" for
// none: a cancelled dialog or black, which the colour dialog also gives for a cancel.
QString TekstKoloru(const QColor& kolor);
