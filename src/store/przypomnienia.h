#pragma once
// The reminder file: what the companion reminder program needs to know, written to
// <data folder>/cont.rmd, since the companion has no access to the store.

#include <QByteArray>
#include <QString>

// Writes cont.rmd afresh: today's names, the user's first name, then one line per planned entry
// and per planned transfer due today or earlier. Seven fields a line joined by the byte 174,
// CR LF line ends, Windows-1250 text. False with the reason when the store or the file fails;
// the old file then stays as it was.
bool ZapiszPrzypomnienia(QString* blad = nullptr);
// The same at the end of a run with a window: a failure is logged and also told to the user.
bool ZapiszPrzypomnieniaIPowiadom();


// Starts the companion (timer, or timer.exe, in the data folder) on its own, from the program's
// folder; without one there, zorvik-przypomnienia beside the program, told the file's path and
// the edition. False when none is there or it would not start.
bool UruchomPrzypominacz();

// The reminder file's path: <data folder>/cont.rmd.
QString SciezkaPrzypomnien();

// Text in Windows-1250; characters the code page lacks become '?'. Empty when Qt was built
// without the code page (KodowanieWindows1250() tells).
QByteArray DoWindows1250(const QString& tekst);
bool KodowanieWindows1250();
