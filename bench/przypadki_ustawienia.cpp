// Set-up: the wizard's finish with the largest ready set (written and rolled back each time),
// a colour theme applied to the open main window, and the reminder companion reading a
// 1 000-line file and showing its window.

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPixmap>
#include <QTemporaryDir>

#include "mainwindow/frmMain.h"
#include "rejestr.h"
#include "setup/frmPrzypomnienia.h"
#include "setup/kolorowanie_gui.h"
#include "setup/kolory.h"
#include "setup/kreator.h"
#include "store/baza.h"
#include "store/przypomnienia.h"

namespace {
// The set with the most categories, expense and income trees together.
int najwiekszyZestaw() {
  int typ = 1;
  size_t najwiecej = 0;
  for (int t = 1; t <= LiczbaZestawow; ++t) {
    const size_t n = ZestawKategorii(t).size() + ZestawKategorii(t + PrzesuniecieZestawuPrzychodow).size();
    if (n > najwiecej) najwiecej = n, typ = t;
  }
  return typ;
}

QString koniecKreatora() {
  const int typ = najwiekszyZestaw();
  qint64 ile = 0;
  // On the sample store the trees are taken: the finish goes into empty ones and is undone.
  pubBaza().Transakcja([&] {
    pubBaza().Wykonaj(QStringLiteral("DELETE FROM kategorie"));
    ZakonczKreator(typ, 2);
    ile = PoliczIle(QStringLiteral("SELECT COUNT(*) AS ile FROM kategorie"));
    return false;
  });
  return QString::number(double(ile), 'f', 2);
}

QString koniecKreatoraSurowo() {
  const int typ = najwiekszyZestaw();
  return Surowo(QStringLiteral("SELECT COUNT(*) FROM kreatorkategorie WHERE typ IN (%1,%2)")
                    .arg(typ)
                    .arg(typ + PrzesuniecieZestawuPrzychodow));
}

frmMain* okno = nullptr;
int profil = 0;
QString motyw() {
  profil = (profil + 1) % LiczbaProfili;
  PomalujOkno(okno, ProfilKolorow(profil));
  return QStringLiteral("1");
}

// The theme as the user sees it: applied, then the whole window drawn anew in it (the grab
// paints every widget of the window, the lists with their stripes included).
QString motywZRysowaniem() {
  profil = (profil + 1) % LiczbaProfili;
  PomalujOkno(okno, ProfilKolorow(profil));
  const QImage obraz = okno->grab().toImage();
  // A window drawn into nothing says so.
  return obraz.isNull() ? QStringLiteral("none") : QStringLiteral("1");
}

// Its floor: the same window drawn anew with no change of colours.
QString samoRysowanie() {
  const QImage obraz = okno->grab().toImage();
  return obraz.isNull() ? QStringLiteral("none") : QStringLiteral("1");
}

QTemporaryDir* folderPliku = nullptr;
QString plikPrzypomnien() { return folderPliku->filePath(QStringLiteral("cont.rmd")); }
void przygotujPlik() {
  folderPliku = new QTemporaryDir;
  QByteArray dane = DoWindows1250(QStringLiteral("Cecylii, Marka")) + "\r\n" +
                    DoWindows1250(QStringLiteral("Łucja")) + "\r\n";
  for (int i = 0; i < 1000; ++i) {
    const QString l = QStringLiteral("%1-lis\xAEWydatek\xAE%2.%3\xAEKonto bieżące\xAEŻywność\xAESklep "
                                     "nr %4\xAEZakupy tygodniowe %4")
                          .arg(1 + i % 28, 2, 10, QLatin1Char('0'))
                          .arg(100 + i * 37)
                          .arg(i % 100, 2, 10, QLatin1Char('0'))
                          .arg(i);
    dane += DoWindows1250(l) + "\r\n";
  }
  QFile f(plikPrzypomnien());
  f.open(QIODevice::WriteOnly);
  f.write(dane);
}

QString towarzysz() {
  frmPrzypomnienia f(plikPrzypomnien(), QString());
  f.setAttribute(Qt::WA_DontShowOnScreen);
  f.show();
  QApplication::processEvents();
  return QString::number(int(f.Stan()));
}
}  // namespace

static Przypadki p(
    95,
    {PrzypadekBench(QStringLiteral("wizard finish, largest set"), koniecKreatora)
         .Podloga(koniecKreatoraSurowo)
         .Limit(200),
     PrzypadekBench(QStringLiteral("theme applied to the main window"), motyw)
         .Przygotuj([] {
           okno = new frmMain;
           okno->resize(1100, 720);
           okno->setAttribute(Qt::WA_DontShowOnScreen);
           okno->show();
           QApplication::processEvents();
         })
         .Limit(20),
     PrzypadekBench(QStringLiteral("theme applied to the main window, repainted"), motywZRysowaniem)
         .Podloga(samoRysowanie)
         .Limit(20),
     PrzypadekBench(QStringLiteral("companion: 1 000-line file read and shown"), towarzysz)
         .Przygotuj(przygotujPlik)
         .Limit(300)});
