// zorvik-przypomnienia: the reminder companion. It reads the reminder file the program writes
// (never the store) and shows what is due in one small window with a button that opens Zorvik.
//
//   zorvik-przypomnienia [--edition pl|en] [--program PATH] [FILE]
//
// FILE defaults to cont.rmd in the data folder beside it (dane/cont.rmd next to the program, or
// the folder it lies in when it lies in dane/); PATH defaults to zorvik in the program's folder.

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <cstdio>

#include "setup/frmPrzypomnienia.h"
#include "setup/kolorowanie_gui.h"
#include "setup/kolory.h"
#include "setup/start_gui.h"
#include "store/session.h"
#include "ui/frmMsgBox.h"
#include "ui/obrazki_gui.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Zorvik"));
  QApplication::setWindowIcon(IkonaProgramu());
  const QStringList a = QCoreApplication::arguments().mid(1);
  const QDir tutaj(QCoreApplication::applicationDirPath());
  // Started as dane/timer the program lies one folder up; beside it otherwise.
  const bool wDanych = tutaj.dirName() == QLatin1String("dane");
  QString plik = wDanych ? tutaj.filePath(QStringLiteral("cont.rmd"))
                         : tutaj.filePath(QStringLiteral("dane/cont.rmd"));
  QString program = wDanych ? QDir(tutaj.filePath(QStringLiteral(".."))).filePath(QStringLiteral("zorvik"))
                            : tutaj.filePath(QStringLiteral("zorvik"));
  sesja.pubJezyk = JezykSystemu();
  for (int i = 0; i < a.size(); ++i) {
    if (a[i] == QLatin1String("--edition") && i + 1 < a.size())
      sesja.pubJezyk = a[++i] == QLatin1String("pl") ? 1 : 2;
    else if (a[i] == QLatin1String("--program") && i + 1 < a.size())
      program = a[++i];
    else if (!a[i].startsWith(QLatin1String("--")))
      plik = a[i];
    else {
      std::fprintf(stderr,
                   "usage: zorvik-przypomnienia [--edition pl|en] [--program PATH] [FILE]\n");
      return 2;
    }
  }
  HostOkienkowy host;
  UstawHostKomunikatow(&host);
  // The standard colours: the companion can't read the user's theme from the store.
  UstawKoloryUstawien(sesja.pubUstawienia, ProfilKolorow(0));
  frmPrzypomnienia okno(QDir::cleanPath(QFileInfo(plik).absoluteFilePath()), program);
  okno.show();
  okno.raise();
  okno.activateWindow();
  const int kod = okno.exec();
  UstawHostKomunikatow(nullptr);
  return kod == QDialog::Accepted || okno.Stan() == StanPlikuPrzypomnien::Dobry ? 0 : 1;
}
