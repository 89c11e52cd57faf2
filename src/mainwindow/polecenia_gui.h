#pragma once
// The commands of the main window: one table from a command's name ("mnuKonta", "cmdMenu(17)")
// to what it does. The main window enables exactly the commands that have an entry here.

#include <QString>
#include <functional>

using Polecenie = std::function<void()>;

// The name a command button stands for: most cmdMenu buttons repeat a menu command
// ("cmdMenu(11)" -> "mnuKonta"); any other name comes back as it is.
QString NazwaPolecenia(const QString& nazwa);
// True when the command (or the menu command its button stands for) has a handler.
bool MaPolecenie(const QString& nazwa);
// Runs the command; false when it has no handler.
bool UruchomPolecenie(const QString& nazwa);
