#include "setup/start_gui.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLocale>
#include <QMessageBox>
#include <QScreen>

#include "ledger/okresowe.h"
#include "imports/kopie.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/polecenia_gui.h"
#include "setup/frmHaslo.h"
#include "setup/frmStart.h"
#include "setup/kreator.h"
#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/dzis.h"
#include "store/napis.h"
#include "store/przypomnienia.h"
#include "store/session.h"
#include "store/strony.h"
#include "store/start.h"
#include "store/zamek.h"
#include "ui/nawigacja_gui.h"

namespace {
// The store can't be used: the plain message of the reason (the store's own texts can't be
// read, so the program's copy of them serves).
void bazaNiedostepna(StanBazy stan, const SrodowiskoStartu& s) {
  const QString plik = QDir::toNativeSeparators(PlikBazy());
  const QString folder = QDir::toNativeSeparators(FolderDanych());
  QString tekst, tytul;
  switch (stan) {
    case StanBazy::TylkoDoOdczytu:
      tekst = Napis(QStringLiteral("Module156")).arg(plik, folder);
      tytul = Napis(QStringLiteral("Module157"));
      break;
    case StanBazy::Nieczytelna:
      tekst = Napis(QStringLiteral("Module158"))
                  .arg(plik, QDir::toNativeSeparators(
                                 QDir(FolderDanych()).filePath(QStringLiteral("zorvik.log"))));
      tytul = Napis(QStringLiteral("Module159"));
      break;
    default:
      tekst = Napis(QStringLiteral("Module138")).arg(folder);
      tytul = Napis(QStringLiteral("Module139"));
  }
  tekst.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  if (s.komunikatBrakuBazy)
    s.komunikatBrakuBazy(tekst, tytul);
  else
    QMessageBox::critical(nullptr, tytul, tekst);
}

// The reminder run: the file afresh and the companion, no window. A store that may only be read
// still serves; a locked one can't be read without its password, so the file of the last run
// stays for the companion.
Start przypomnienie(StanBazy stan) {
  switch (stan) {
    case StanBazy::Otwarta:
      break;
    case StanBazy::TylkoDoOdczytu:
      if (OtworzBazeDoOdczytu()) {
        AktualizujBaze();
        break;
      }
      return {WynikStartu::Koniec, 1};
    case StanBazy::Zablokowana:
      ZapiszLog(QStringLiteral(
          "reminder run: the store is locked by a password; the reminder file of the last run "
          "stays"));
      UruchomPrzypominacz();
      return {WynikStartu::Koniec, 0};
    default:
      // Started unattended: it ends without a word (the log has the reason).
      return {WynikStartu::Koniec, 1};
  }
  sesja.pubSeparator = QLocale::system().decimalPoint();
  if (stan == StanBazy::Otwarta) GenerujOkresowe();
  ZapiszPrzypomnienia();
  UruchomPrzypominacz();
  return {WynikStartu::Koniec, 0};
}

void ustawKoloryDomyslne(Ustawienia& u) {
  const QStringList& k = DomyslneKolory();
  QString* pola[] = {&u.tloaktywne,      &u.napisyaktywne,        &u.przyciskiaktywne,
                     &u.etykietyaktywne, &u.napisyetykietaktywne, &u.listajeden,
                     &u.listadwa,        &u.tlonieaktywne,        &u.napisynieaktywne};
  for (int i = 0; i < 9; ++i) *pola[i] = k.value(i);
}
}  // namespace

ParametryStartu CzytajWierszPolecen(const QStringList& argumenty) {
  ParametryStartu p;
  QStringList pozostale;
  for (int i = 0; i < argumenty.size(); ++i) {
    QString a = argumenty[i];
    QString wartosc;
    bool maWartosc = false;
    if (a.startsWith(QStringLiteral("--")) && a.contains(QLatin1Char('='))) {
      wartosc = a.section(QLatin1Char('='), 1);
      a = a.section(QLatin1Char('='), 0, 0);
      maWartosc = true;
    }
    auto wez = [&]() -> bool {
      if (maWartosc) return true;
      if (i + 1 >= argumenty.size()) {
        p.blad = QStringLiteral("%1 needs a value").arg(a);
        return false;
      }
      wartosc = argumenty[++i];
      return true;
    };
    if (a == QStringLiteral("--edition")) {
      if (!wez()) return p;
      if (wartosc == QStringLiteral("pl"))
        p.jezyk = 1;
      else if (wartosc == QStringLiteral("en"))
        p.jezyk = 2;
      else {
        p.blad = QStringLiteral("--edition takes pl or en, not \"%1\"").arg(wartosc);
        return p;
      }
    } else if (a == QStringLiteral("--dane")) {
      if (!wez()) return p;
      p.folderDanych = wartosc;
    } else if (a == QStringLiteral("--gallery")) {
      if (!wez()) return p;
      p.galeria = wartosc;
    } else if (a.startsWith(QStringLiteral("--"))) {
      p.blad = QStringLiteral("unknown option %1").arg(a);
      return p;
    } else {
      pozostale << a;
    }
  }
  if (pozostale == QStringList{QStringLiteral("a")})
    p.przypomnienie = true;
  else if (!pozostale.isEmpty())
    p.blad = QStringLiteral("unexpected argument \"%1\"").arg(pozostale.join(QLatin1Char(' ')));
  return p;
}

int JezykSystemu() { return QLocale::system().language() == QLocale::Polish ? 1 : 2; }

void KreatorPierwszegoUruchomienia() {
  sesja.pubTypKreatora = 0;
  sesja.pubProfilKreatora = 0;
  sesja.pubKreatorPrzerwany = false;
  sesja.pubKreatorZakonczony = false;
  sesja.pubKreatorSzerokosc = sesja.pubKreatorWysokosc = 0;
  if (!Nawigacja::Dostepny(QStringLiteral("frmKreatorKategorie"))) return;
  UkryjStart();
  Nawigacja::Pokaz(QStringLiteral("frmKreatorWitamy"));
  Nawigacja::Pokaz(QStringLiteral("frmKreatorKategorie"));
  // Unfinished: what the wizard made goes, and the next start is again a first run.
  if (!sesja.pubKreatorZakonczony) PosprzatajPoKreatorze();
}

void PierwszeUruchomienie() {
  sesja.pubPierwszyStart = CzyPustaBaza();
  // The first-run wizard comes with its own screens; until then an empty store starts with the
  // default colours and nothing is deleted.
  if (sesja.pubPierwszyStart) ustawKoloryDomyslne(sesja.pubUstawienia);
}

void PrzygotujSesje() {
  sesja.pubPrzedefiniowanyKontrahent = 0;
  sesja.pubPrzedefiniowanaData = QDate();
  sesja.pubFiltrCzasowy.rodzaj = 2;
  sesja.pubFiltrCzasowy.pozycja = sesja.pubFiltrCzasowy.od = sesja.pubFiltrCzasowy.do_ = Dzis();
  PierwszeUruchomienie();
  WczytajSetup();
  sesja.pubUstawienia.imieniny = ImionaDnia();
  // Recurring rules are planned up to their horizon before anything shows planned rows.
  GenerujOkresowe();
}

Start Main(const ParametryStartu& p, const SrodowiskoStartu& srodowisko) {
  // The edition is fixed for the whole run.
  sesja.pubJezyk = p.jezyk ? p.jezyk : JezykSystemu();
  if (!p.folderDanych.isEmpty()) UstawFolderDanych(p.folderDanych);
  // An upgrade of the store's structure is preceded by a copy of the store as it was.
  WlaczKopiePrzedAktualizacja();

  // Open the store and bring it up to date; a store that can't be used is told further on.
  const StanBazy stan = OtworzBazeIZbadaj();
  if (stan == StanBazy::Otwarta) {
    UsunResztkiPrzekluczenia();
    AktualizujBaze();
  }

  bool blad = false;
  if (CzyJuzUruchomiony(blad) && !blad) return {WynikStartu::Koniec, 0};

  if (p.przypomnienie) return przypomnienie(stan);
  if (stan != StanBazy::Otwarta && stan != StanBazy::Zablokowana) {
    bazaNiedostepna(stan, srodowisko);
    return {WynikStartu::Koniec, 1};
  }

  sesja.pubSeparator = QLocale::system().decimalPoint();

  NasluchujKopii();
  PokazStart();

  auto koniec = [] {
    UkryjStart();
    ZakonczNasluch();
    return Start{WynikStartu::Koniec, 0};
  };
  // A store locked by a password opens only with it: the gate comes before anything is read.
  if (stan == StanBazy::Zablokowana) {
    frmHaslo brama;
    brama.exec();
    if (!pubBaza().Otwarta()) return koniec();
    UsunResztkiPrzekluczenia();
    AktualizujBaze();
  }
  // A store of an earlier version moves to larger pages once, while this is its only user; with
  // years of entries that takes a while, so the splash says what is going on.
  if (pubBaza().Otwarta() && pubBaza().RozmiarStrony() < RozmiarStronyBazy)
    NapisStartu(Napis(QStringLiteral("frmStart5")));
  AktualizujStrony();

  // An empty store: the first-run wizard (when its screens are there), before the setup row is
  // read, so that the colours chosen in it are the ones read.
  const bool pierwszy = CzyPustaBaza();
  if (pierwszy) KreatorPierwszegoUruchomienia();

  PrzygotujSesje();
  sesja.pubPierwszyStart = pierwszy;

  if (stan == StanBazy::Zablokowana) {
    // Passed already: the store opened with the password.
    sesja.pubUstawienia.haslo.clear();
  } else if (!sesja.pubUstawienia.haslo.isEmpty()) {
    frmHaslo brama;
    brama.exec();
    // Emptied only by the right password: Cancel and three failures end the run here.
    if (!sesja.pubUstawienia.haslo.isEmpty()) return koniec();
  }

  int szerokosc = srodowisko.szerokoscEkranu;
  if (szerokosc <= 0 && QGuiApplication::primaryScreen())
    szerokosc = QGuiApplication::primaryScreen()->geometry().width();
  if (szerokosc < 800) {
    UkryjStart();
    MyMsgbox(Napis(QStringLiteral("Module140")), Napis(QStringLiteral("Module141")), MsgOK,
             IkonaOstrzezenie);
    ZakonczNasluch();
    return {WynikStartu::Koniec, 0};
  }

  // The copy of the day's first start, taken while the window is already in use.
  ZrobKopieStartuWTle();
  auto* okno = new frmMain;
  okno->setAttribute(Qt::WA_DeleteOnClose);
  QObject::connect(okno, &QObject::destroyed, [] { ZakonczNasluch(); });
  // The smallest screen that works gets the whole of it.
  if (szerokosc == 800)
    okno->showMaximized();
  else
    okno->show();
  // The splash has done its work once the main window stands.
  UkryjStart();

  // On a first run the basic help comes up, once its screen exists.
  if (sesja.pubPierwszyStart && sesja.pubKreatorZakonczony &&
      MaPolecenie(QStringLiteral("mnuPomocPodstawowa")))
    UruchomPolecenie(QStringLiteral("mnuPomocPodstawowa"));
  return {WynikStartu::Dziala, 0};
}
