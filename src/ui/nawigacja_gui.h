#pragma once
// How one screen opens another without knowing its class: every screen is registered once,
// under its form name, at start-up (app/ekrany_gui.cpp), and shown by that name. The caller
// sets the session values the screen reads first and reads its results from the session
// afterwards, as for any modal screen.

#include <QString>
#include <functional>

class QWidget;

namespace Nawigacja {

using Ekran = std::function<void(QWidget* rodzic)>;

// Registers (or replaces) the screen of that name; it shows itself modally over rodzic. An
// empty function removes the name. Returns what was registered before (tests put it back).
Ekran Zarejestruj(const QString& ekran, Ekran pokaz);
// True when a screen of that name is registered.
bool Dostepny(const QString& ekran);
// Shows the screen modally; false, with nothing shown, when no screen has that name.
bool Pokaz(const QString& ekran, QWidget* rodzic = nullptr);

}  // namespace Nawigacja
