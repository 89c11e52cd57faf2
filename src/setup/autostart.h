#pragma once
// Links to the Linux desktop: starting the program, or its reminder run, at log-on through an
// XDG autostart entry, and the program's entry on the desktop and in the applications menu.

#include <QString>

// $XDG_CONFIG_HOME/autostart (~/.config/autostart when the variable is unset or not absolute).
QString FolderAutostartu();
// The autostart entry: <FolderAutostartu()>/zorvik.desktop.
QString PlikAutostartu();
// The user's desktop folder as the desktop names it in user-dirs.dirs (in any language), else
// ~/Desktop.
QString FolderPulpitu();
// $XDG_DATA_HOME/applications (~/.local/share/applications).
QString FolderAplikacji();

// A real test of the autostart folder: a file is written there, read back and removed. False
// when the user may not write there (nothing is left behind).
bool TestPisaniaAutostartu();

// The desktop entry that starts the program (with "a" behind the command: the reminder run).
// program: the executable's path.
QByteArray WpisPulpitu(const QString& program, bool przypomnienie, bool autostart);

struct UstawieniaAutostartu {
  bool program = false;        // setup.autostart
  bool przypominacz = false;   // setup.autostartprzypominacz
};
UstawieniaAutostartu CzytajAutostart();

// The two exclusive options applied: the old entry removed, a new one written for the program or
// for its reminder run, and the choice stored in setup. False with the reason when the folder or
// the store refused; nothing is stored then.
bool ZapiszAutostart(const UstawieniaAutostartu& u, const QString& program, QString* blad = nullptr);

// The program's entry on the desktop and in the applications menu. False with the reason.
bool UtworzSkrot(const QString& program, QString* blad = nullptr);
