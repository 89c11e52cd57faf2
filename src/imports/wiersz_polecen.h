#pragma once
// zorvik-import: the import without a window. Prints the preview as tab-separated lines, or with
// --zapisz writes the lines that are not duplicates and prints how many.

#include <QStringList>
#include <QTextStream>

// Exit codes: 0 done, 1 the store or the account can't be used, 2 bad input (the statement or
// the command line).
int UruchomImport(const QStringList& argumenty, QTextStream& wyjscie, QTextStream& bledy);
