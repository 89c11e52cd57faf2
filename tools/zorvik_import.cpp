// zorvik-import --dane DIR --konto ID [--format auto|csv|mt940|ofx|qif] [--profil NAME]
//               [--kodowanie auto|cp1250|utf-8] [--zapisz] FILE
// The statement import without a window (see imports/wiersz_polecen.h).

#include <QCoreApplication>
#include <QLocale>
#include <QTextStream>
#include <cstdio>

#include "imports/wiersz_polecen.h"
#include "store/baza.h"
#include "store/session.h"

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  // The edition of the messages: Polish on a Polish system, English otherwise.
  sesja.pubJezyk = QLocale::system().language() == QLocale::Polish ? 1 : 2;
  QTextStream wyjscie(stdout), bledy(stderr);
  const int kod = UruchomImport(app.arguments().mid(1), wyjscie, bledy);
  wyjscie.flush();
  bledy.flush();
  ZamknijBaze();
  return kod;
}
