#pragma once
// The program's start-up: the command line, the steps from the edition to the main window, and
// the check for a copy already running.

#include <QString>
#include <QStringList>
#include <functional>

#include "setup/jednakopia_gui.h"

struct ParametryStartu {
  int jezyk = 0;               // 1 Polish, 2 English; 0: by the system's language
  QString folderDanych;        // "" : dane/ beside the program
  QString galeria;             // folder for the pictures of the screens; "": a normal run
  bool przypomnienie = false;  // the single argument "a": write the reminder file and go
  QString blad;                // what was wrong with the command line; "" when all is well
};

// Reads the arguments (without the program's name): --edition pl|en, --dane DIR, --gallery DIR,
// or the single argument "a".
ParametryStartu CzytajWierszPolecen(const QStringList& argumenty);
// The edition the system's language asks for: 1 for Polish, 2 for anything else.
int JezykSystemu();

// What the start-up needs from the world, replaceable in tests.
struct SrodowiskoStartu {
  // The plain message of a store that can't be used (missing, read-only, unreadable). Null: a
  // system message box.
  std::function<void(const QString& tekst, const QString& tytul)> komunikatBrakuBazy;
  int szerokoscEkranu = 0;  // in pixels; 0: the primary screen's
};

enum class WynikStartu {
  Koniec,  // the run is over: end the process with kodWyjscia
  Dziala,  // the main window is shown: run the event loop
};

struct Start {
  WynikStartu wynik = WynikStartu::Koniec;
  int kodWyjscia = 0;
};

// The start-up steps in their order. Installs nothing of its own but the single-instance
// listener; the caller installs the message host first.
Start Main(const ParametryStartu& p, const SrodowiskoStartu& srodowisko = {});

// The session at the start of a run: filter defaults, first-run steps, the setup row, today's
// names.
void PrzygotujSesje();
// The first-run wizard: its state cleared, the welcome and the steps shown; an unfinished
// wizard's accounts and counterparties deleted. Nothing happens while its screens are not
// registered.
void KreatorPierwszegoUruchomienia();
// The first-run steps: pubPierwszyStart and, on an empty store, the default colours.
void PierwszeUruchomienie();
