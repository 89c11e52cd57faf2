#pragma once
// One copy of the program per data folder. The first copy listens on a local socket named after
// the folder; a later one asks it to bring its window forward and ends. The socket lies in a
// folder of this user's alone, and a listener counts only when it answers as a copy of this
// program, so nobody else can keep the program from starting.

#include <QString>

// True when a copy of the program with the same data folder is running and answers as one; it
// is then asked to bring its window forward. blad is set when the check itself could not be
// made.
bool CzyJuzUruchomiony(bool& blad);
// Starts listening for later copies (a stale listener left by a crash is replaced). The
// listener answers from a thread of its own, so that a copy busy with long work still answers.
bool NasluchujKopii();
void ZakonczNasluch();
// The folder of the single-copy socket: $XDG_RUNTIME_DIR, else <temp>/zorvik-<uid> made 0700;
// either only when it is this user's alone. "" when there is no such folder.
QString FolderGniazda();
// The local socket for the data folder (by its canonical path), inside FolderGniazda().
QString NazwaGniazda();
