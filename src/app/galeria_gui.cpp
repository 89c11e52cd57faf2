#include "app/galeria_gui.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>

#include "calculator/frmKalkulator.h"
#include "calculator/frmKalkulatorCaly.h"
#include "ledger/edytory_galeria_gui.h"
#include "ledger/przeglad_galeria_gui.h"
#include "ledger/szablony_galeria_gui.h"
#include "ui/frmZakresDat.h"
#include "ui/frmZmianaDaty.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/panelstanu_gui.h"
#include "masterdata/frmEdycjaKonta.h"
#include "masterdata/frmPrzegladKont.h"
#include "masterdata/kategorie_galeria_gui.h"
#include "imports/import_galeria_gui.h"
#include "masterdata/kontrahenci_galeria_gui.h"
#include "planning/planowanie_galeria_gui.h"
#include "questions/pytania_galeria_gui.h"
#include "reports/raporty_galeria_gui.h"
#include "setup/frmHaslo.h"
#include "ui/frmMsgBox.h"
#include "setup/frmStart.h"
#include "slips/przelewy_galeria_gui.h"
#include "setup/start_gui.h"
#include "setup/ustawienia_galeria_gui.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/plik.h"
#include "store/session.h"
#include "store/start.h"
#include "store/tekst.h"

namespace {
std::unique_ptr<QWidget> komunikat(const QString& tekst, const QString& tytul, int przyciski,
                                   int ikona) {
  return std::make_unique<frmMsgBox>(Komunikat{tekst, QLatin1Char(' ') + tytul, przyciski, ikona});
}

std::unique_ptr<QWidget> oknoGlowne() {
  auto f = std::make_unique<frmMain>();
  f->resize(1100, 720);
  return f;
}
// The main window with the balance chart in another of its five modes; later windows open with
// the first mode again, as at a start.
std::unique_ptr<QWidget> oknoZWykresem(int tryb) {
  auto f = std::make_unique<frmMain>();
  f->resize(1100, 720);
  f->Panel()->WybierzWykres(tryb);
  sesja.pubUstawienia.pubWykres = 0;
  return f;
}
// Every menu of the main window opened side by side, submenus included, to read the captions.
std::unique_ptr<QWidget> menuGlowne() {
  frmMain glowne;
  auto plansza = std::make_unique<QWidget>();
  plansza->setWindowTitle(glowne.windowTitle());
  plansza->setWindowIcon(glowne.windowIcon());
  auto* uklad = new QGridLayout(plansza.get());
  uklad->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  int kolumna = 0;
  for (QAction* glowna : glowne.menuBar()->actions()) {
    std::vector<QMenu*> menu = {glowna->menu()};
    for (QAction* a : glowna->menu()->actions())
      if (a->menu()) menu.push_back(a->menu());
    int wiersz = 0;
    for (QMenu* m : menu) {
      auto* tytul =
          new QLabel(QStringLiteral("<b>%1</b>").arg(m->title().remove(QLatin1Char('&'))));
      m->ensurePolished();
      m->resize(m->sizeHint());
      auto* obraz = new QLabel;
      obraz->setPixmap(m->grab());
      uklad->addWidget(tytul, wiersz++, kolumna, Qt::AlignLeft);
      uklad->addWidget(obraz, wiersz++, kolumna, Qt::AlignLeft | Qt::AlignTop);
    }
    ++kolumna;
  }
  return plansza;
}

// The account browser on the store's first bank account (or none), browsing with the details
// open or as a picker.
std::unique_ptr<QWidget> przegladKont(int tryb) {
  sesja.pubTrybPrzegladu = tryb;
  sesja.pubSzczegoly = tryb == 1 ? 1 : 0;
  sesja.pubEdytorOtwarty = tryb == 2;
  sesja.pubFiltrCzasowy.rodzaj = 3;
  sesja.pubKonto.id =
      pubBaza()
          .Czytaj(QStringLiteral("SELECT TOP 1 id FROM konta WHERE rodzaj=2 ORDER BY id"))
          .Pole(QStringLiteral("id"))
          .toLongLong();
  auto f = std::make_unique<frmPrzegladKont>();
  sesja.pubEdytorOtwarty = false;
  return f;
}
std::unique_ptr<QWidget> edycjaKonta(bool nowe) {
  sesja.pubKonto.id =
      nowe ? 0
           : pubBaza()
                 .Czytaj(QStringLiteral("SELECT TOP 1 id FROM konta WHERE rodzaj=2 ORDER BY id"))
                 .Pole(QStringLiteral("id"))
                 .toLongLong();
  sesja.pubKonto.rodzaj = 1;
  return std::make_unique<frmEdycjaKonta>();
}
}  // namespace

const std::vector<WpisGalerii>& WpisyGalerii() {
  static const std::vector<WpisGalerii> w = [] {
  std::vector<WpisGalerii> w = {
      {QStringLiteral("frmStart"), [] { return std::make_unique<frmStart>(); }},
      {QStringLiteral("frmMain"), oknoGlowne},
      {QStringLiteral("frmMain-menu"), menuGlowne},
      {QStringLiteral("frmMain-wykres1"), [] { return oknoZWykresem(1); }},
      {QStringLiteral("frmMain-wykres2"), [] { return oknoZWykresem(2); }},
      {QStringLiteral("frmMain-wykres3"), [] { return oknoZWykresem(3); }},
      {QStringLiteral("frmMain-wykres4"), [] { return oknoZWykresem(4); }},
      {QStringLiteral("frmMsgBox-information"),
       [] {
         return komunikat(Napis(QStringLiteral("frmHaslo4")), Napis(QStringLiteral("frmHaslo5")),
                          MsgOK, IkonaInformacja);
       }},
      {QStringLiteral("frmMsgBox-warning"),
       [] {
         return komunikat(Napis(QStringLiteral("frmHaslo6")), Napis(QStringLiteral("frmHaslo7")),
                          MsgOK, IkonaOstrzezenie);
       }},
      {QStringLiteral("frmMsgBox-question"),
       [] {
         return komunikat(Napis(QStringLiteral("frmMain208")), Napis(QStringLiteral("frmMain209")),
                          MsgTakNie, IkonaPytanie);
       }},
      {QStringLiteral("frmHaslo"), [] { return std::make_unique<frmHaslo>(); }},
      {QStringLiteral("frmKalkulator"),
       [] {
         sesja.pubKalkWartosc = FormatKwotyEdycja(1234.5);
         return std::make_unique<frmKalkulator>();
       }},
      {QStringLiteral("frmPrzegladKategorii-przychody"),
       [] { return GaleriaPrzegladuKategorii(1, false); }},
      {QStringLiteral("frmPrzegladKategorii-wydatki"),
       [] { return GaleriaPrzegladuKategorii(2, false); }},
      {QStringLiteral("frmPrzegladKategorii-limit"),
       [] { return GaleriaPrzegladuKategorii(2, true); }},
      {QStringLiteral("frmPrzegladKategorii-wybor"), GaleriaWyboruKategorii},
      {QStringLiteral("frmEdycjaKategorii"), [] { return GaleriaEdycjiKategorii(false); }},
      {QStringLiteral("frmEdycjaKategorii-nowa"), [] { return GaleriaEdycjiKategorii(true); }},
      {QStringLiteral("frmLimitDlaKategorii"), GaleriaLimituKategorii},
      {QStringLiteral("frmKalkulatorCaly"),
       [] {
         sesja.pubKalkWartosc = FormatKwotyEdycja(0);
         return std::make_unique<frmKalkulatorCaly>();
       }},
      {QStringLiteral("frmPrzegladKont-browse"), [] { return przegladKont(1); }},
      {QStringLiteral("frmPrzegladKont-picker"), [] { return przegladKont(2); }},
      {QStringLiteral("frmEdycjaKonta-new"), [] { return edycjaKonta(true); }},
      {QStringLiteral("frmEdycjaKonta-existing"), [] { return edycjaKonta(false); }},
      {QStringLiteral("frmEdycjaTransakcji-nowy-przychod"), GaleriaNowegoPrzychodu},
      {QStringLiteral("frmEdycjaTransakcji-nowy-wydatek"), GaleriaNowegoWydatku},
      {QStringLiteral("frmEdycjaTransakcji-zaplanowany"), GaleriaZaplanowanegoWpisu},
      {QStringLiteral("frmEdycjaTransakcjiWewnetrznej-nowy"), GaleriaNowegoTransferu},
      {QStringLiteral("frmEdycjaTransakcjiWewnetrznej-zaplanowany"), GaleriaZaplanowanegoTransferu},
      {QStringLiteral("frmPrzegladTransakcji"), [] { return GaleriaPrzegladuTransakcji(2, -1); }},
      {QStringLiteral("frmPrzegladTransakcji-zaplanowane"),
       [] { return GaleriaPrzegladuTransakcji(1, -1); }},
      {QStringLiteral("frmPrzegladTransakcji-wg-wydatku"),
       [] { return GaleriaPrzegladuTransakcji(2, 2); }},
      {QStringLiteral("frmPrzegladTransakcjiWewnetrznych"),
       [] { return GaleriaPrzegladuTransferow(2, -1); }},
      {QStringLiteral("frmPrzegladTransakcjiWewnetrznych-zaplanowane"),
       [] { return GaleriaPrzegladuTransferow(1, -1); }},
      {QStringLiteral("frmPrzegladTransakcjiWewnetrznych-wg-konta"),
       [] { return GaleriaPrzegladuTransferow(2, 2); }},
      {QStringLiteral("frmSzablonyZewnetrzne"), [] { return GaleriaSzablonow(false); }},
      {QStringLiteral("frmSzablonyZewnetrzne-wybor"), [] { return GaleriaSzablonow(true); }},
      {QStringLiteral("frmSzablonyWewnetrzne"), GaleriaSzablonowWewnetrznych},
      {QStringLiteral("frmEdycjaSzablonuZewnetrznego"), GaleriaEdycjiSzablonu},
      {QStringLiteral("frmEdycjaSzablonuWewnetrznego"), GaleriaEdycjiSzablonuWewnetrznego},
      {QStringLiteral("frmParagon"), GaleriaParagonu},
      {QStringLiteral("frmOkresowe"), GaleriaOkresowych},
      {QStringLiteral("frmEdycjaOkresowych"), GaleriaEdycjiOkresowej},
      {QStringLiteral("frmEdycjaKontrahenta"), [] { return GaleriaEdycjiKontrahenta(false); }},
      {QStringLiteral("frmEdycjaKontrahenta-nowy"), [] { return GaleriaEdycjiKontrahenta(true); }},
      {QStringLiteral("frmPrzegladKontrahentow-browse"),
       [] { return GaleriaPrzegladuKontrahentow(false); }},
      {QStringLiteral("frmPrzegladKontrahentow-picker"),
       [] { return GaleriaPrzegladuKontrahentow(true); }},
      {QStringLiteral("frmRaportKont-trwa"),
       [] { return GaleriaRaportu(QStringLiteral("frmRaportKont"), true); }},
      {QStringLiteral("frmRaportKont"),
       [] { return GaleriaRaportu(QStringLiteral("frmRaportKont"), false); }},
      {QStringLiteral("frmRaportKategorii-szczegoly"),
       [] { return GaleriaRaportu(QStringLiteral("frmRaportKategorii"), false); }},
      {QStringLiteral("frmRaportKontrahenta"),
       [] { return GaleriaRaportu(QStringLiteral("frmRaportKontrahenta"), false); }},
      {QStringLiteral("frmRaportSumaryczny"),
       [] { return GaleriaRaportu(QStringLiteral("frmRaportSumaryczny"), false); }},
      {QStringLiteral("frmRaportTransakcji"),
       [] { return GaleriaRaportu(QStringLiteral("frmRaportTransakcji"), false); }},
      {QStringLiteral("frmRaportTransakcjiWewnetrznych"),
       [] { return GaleriaRaportu(QStringLiteral("frmRaportTransakcjiWewnetrznych"), false); }},
      {QStringLiteral("frmRaportKontaWCzasie"),
       [] { return GaleriaRaportu(QStringLiteral("frmRaportKontaWCzasie"), false); }},
      {QStringLiteral("frmRaportKategorieWCzasie"),
       [] { return GaleriaRaportu(QStringLiteral("frmRaportKategorieWCzasie"), false); }},
      {QStringLiteral("frmRaportKategorieWCzasie-pdf"),
       [] { return GaleriaPdfRaportu(QStringLiteral("frmRaportKategorieWCzasie")); }},
      {QStringLiteral("frmRaportKontrahentaWCzasie"),
       [] { return GaleriaRaportu(QStringLiteral("frmRaportKontrahentaWCzasie"), false); }},
      {QStringLiteral("frmZmianaDaty"), [] { return std::make_unique<frmZmianaDaty>(); }},
      {QStringLiteral("frmZakresDat"),
       [] {
         sesja.pubFiltrCzasowy.od = QDate(2026, 11, 1);
         sesja.pubFiltrCzasowy.do_ = QDate(2026, 11, 22);
         return std::make_unique<frmZakresDat>();
       }},
      {QStringLiteral("frmZadajPytanie"), GaleriaPytan},
      {QStringLiteral("frmZadajPytanieEdycja"), GaleriaEdycjiPytania},
      {QStringLiteral("frmUstawieniaInternetowe"), GaleriaUstawienInternetowych},
      {QStringLiteral("frmKalendarz"), GaleriaKalendarza},
      {QStringLiteral("frmKalendarz-menu"), GaleriaMenuKalendarza},
      {QStringLiteral("frmKategorieOszczednosci"), GaleriaSymulacji},
      {QStringLiteral("frmRaportOszczednosciKategorie"), GaleriaRaportuSymulacji},
      {QStringLiteral("frmEdycjaPrzelewu"), GaleriaEdycjiPrzelewu},
      {QStringLiteral("frmWydrukPrzelewu-kartka"), [] { return GaleriaWydrukuPrzelewu(false); }},
      {QStringLiteral("frmWydrukPrzelewu-formularz"), [] { return GaleriaWydrukuPrzelewu(true); }},
      {QStringLiteral("frmWydrukPrzelewu-pdf"), GaleriaPdfPrzelewu},
      {QStringLiteral("frmImport"), GaleriaImportu},
      {QStringLiteral("frmMapowanieKolumn"), GaleriaMapowaniaKolumn},
      {QStringLiteral("frmPrzywrocKopie"), GaleriaPrzywracaniaKopii},
  };
  for (auto& [nazwa, zbuduj] : GaleriaUstawien()) w.push_back({nazwa, zbuduj});
  return w;
  }();
  return w;
}

QImage ObrazOkna(QWidget* okno) {
  const QPixmap srodek = okno->grab();
  const bool ramka = !(okno->windowFlags() & Qt::FramelessWindowHint);
  const int pasek = ramka ? 26 : 0;
  QImage obraz(srodek.width() + (ramka ? 2 : 0), srodek.height() + pasek + (ramka ? 1 : 0),
               QImage::Format_ARGB32);
  obraz.fill(QColor(0x5a, 0x6e, 0x82));
  QPainter g(&obraz);
  if (ramka) {
    g.fillRect(QRect(0, 0, obraz.width(), pasek), QColor(0x34, 0x4a, 0x5e));
    const QPixmap ikona = okno->windowIcon().pixmap(16, 16);
    int x = 6;
    if (!ikona.isNull()) {
      g.drawPixmap(x, (pasek - 16) / 2, ikona);
      x += 22;
    }
    g.setPen(Qt::white);
    // The title as given, blanks and all: the leading blank of messages shows.
    g.drawText(QRect(x, 0, obraz.width() - x - 6, pasek), Qt::AlignVCenter | Qt::AlignLeft,
               okno->windowTitle());
  }
  g.drawPixmap(ramka ? 1 : 0, pasek, srodek);
  return obraz;
}

bool ZapiszGalerie(const QString& folder, QStringList* zapisane, QString* blad) {
  if (!QDir().mkpath(folder)) {
    if (blad) *blad = QStringLiteral("cannot make %1").arg(folder);
    return false;
  }
  const int dawnyJezyk = sesja.pubJezyk;
  bool ok = true;
  for (const auto& [jezyk, przyrostek] : {std::pair{1, "pl"}, std::pair{2, "en"}}) {
    sesja.pubJezyk = jezyk;
    AktualizujBaze();
    PrzygotujSesje();
    for (const WpisGalerii& wpis : WpisyGalerii()) {
      std::unique_ptr<QWidget> okno = wpis.zbuduj();
      if (!okno) continue;  // a picture that needs a missing tool; the entry logged why
      okno->setAttribute(Qt::WA_DontShowOnScreen);
      okno->show();
      QApplication::processEvents();
      const QString plik = QDir(folder).filePath(
          QStringLiteral("%1-%2.png").arg(wpis.nazwa, QLatin1String(przyrostek)));
      QByteArray png;
      QBuffer bufor(&png);
      bufor.open(QIODevice::WriteOnly);
      QString powod;
      if (!ObrazOkna(okno.get()).save(&bufor, "PNG") || !ZapiszPlik(plik, png, &powod)) {
        ok = false;
        if (blad) *blad = QStringLiteral("cannot write %1: %2").arg(plik, powod);
      } else if (zapisane) {
        *zapisane << plik;
      }
      okno->hide();
    }
  }
  sesja.pubJezyk = dawnyJezyk;
  return ok;
}
