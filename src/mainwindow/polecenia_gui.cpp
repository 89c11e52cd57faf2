#include "mainwindow/polecenia_gui.h"

#include <QHash>

#include "calculator/frmKalkulatorCaly.h"
#include "ledger/frmEdycjaTransakcji.h"
#include "ledger/frmEdycjaTransakcjiWewnetrznej.h"
#include "ledger/frmZmianaDaty.h"
#include "mainwindow/frmMain.h"
#include "masterdata/frmPrzegladKategorii.h"
#include "masterdata/frmPrzegladKont.h"
#include "masterdata/frmPrzegladKontrahentow.h"
#include "setup/MsgBoxModule.h"
#include "store/napis.h"
#include "store/session.h"

namespace {
// A new income (1) or expense (2) entry, executed (tryb 2) or planned (tryb 1).
void NowaTransakcja(int tryb, int rodzaj) {
  sesja.pubTryb = tryb;
  sesja.pubTransakcja.id = 0;
  sesja.pubTransakcja.rodzaj = rodzaj;
  sesja.pubKategoria.rodzaj = rodzaj;
  frmEdycjaTransakcji(frmMain::Instancja()).exec();
}

// A new transfer, executed (tryb 2) or planned (tryb 1).
void NowyTransfer(int tryb) {
  sesja.pubTryb = tryb;
  sesja.pubTransakcja.id = 0;
  sesja.pubTransakcja.rodzaj = 3;
  sesja.pubTransfer = 0;
  frmEdycjaTransakcjiWewnetrznej(frmMain::Instancja()).exec();
}

// Every command with a handler, one line each. A screen that comes later adds its line here,
// and its menu item and button are enabled from then on.
const QHash<QString, Polecenie>& tabela() {
  static const QHash<QString, Polecenie> t = {
      {QStringLiteral("mnuKoniecPracy"), [] { ZakonczProgram(); }},
      {QStringLiteral("cmdMenu(17)"), [] { frmKalkulatorCaly::Pokaz(frmMain::Instancja()); }},
      {QStringLiteral("mnuKonta"),
       [] {
         // Browsing with the details open, centred over the main window.
         sesja.pubTrybPrzegladu = 1;
         sesja.pubSzczegoly = 1;
         sesja.pubPozycjaX = sesja.pubPozycjaY = -1;
         frmPrzegladKont(frmMain::Instancja()).exec();
         StanKont();
         OdswiezStatus();
       }},
      {QStringLiteral("mnuKategoriePrzychodow"),
       [] {
         frmPrzegladKategorii::Przegladaj(1, frmMain::Instancja());
         OdswiezMain();
       }},
      {QStringLiteral("mnuKategorieWydatkow"),
       [] {
         frmPrzegladKategorii::Przegladaj(2, frmMain::Instancja());
         OdswiezMain();
       }},
      {QStringLiteral("mnuPrzychod"), [] { NowaTransakcja(2, 1); }},
      {QStringLiteral("mnuWydatek"), [] { NowaTransakcja(2, 2); }},
      {QStringLiteral("mnuPrzychodZaplanowany"), [] { NowaTransakcja(1, 1); }},
      {QStringLiteral("mnuWydatekZaplanowany"), [] { NowaTransakcja(1, 2); }},
      {QStringLiteral("mnuTransakcjaWewnetrzna"), [] { NowyTransfer(2); }},
      {QStringLiteral("mnuTransakcjaWewnetrznaZaplanowana"), [] { NowyTransfer(1); }},
      {QStringLiteral("mnuKontrahent"),
       [] {
         sesja.pubTrybPrzegladu = 1;
         sesja.pubSzczegoly = 1;
         sesja.pubPozycjaX = sesja.pubPozycjaY = -1;
         frmPrzegladKontrahentow(frmMain::Instancja()).exec();
         OdswiezMain();
         OdswiezMainZaplanowane();
         StanKont();
       }},
      {QStringLiteral("mnuZmianaDaty"),
       [] {
         frmZmianaDaty(frmMain::Instancja()).exec();
         OdswiezStatus();
       }},
      {QStringLiteral("cmdMenu(18)"),
       [] {
         if (MyMsgbox(Napis(QStringLiteral("frmMain208")), Napis(QStringLiteral("frmMain209")),
                      MsgTakNie, IkonaPytanie) == WynikTak)
           ZakonczProgram();
       }},
  };
  return t;
}

// The menu command behind each cmdMenu button; "" where the button has a command of its own.
QString poleceniePrzycisku(int i) {
  switch (i) {
    case 0:
      return QStringLiteral("mnuPrzychod");
    case 1:
      return QStringLiteral("mnuWydatek");
    case 2:
      return QStringLiteral("mnuTransakcjaWewnetrzna");
    case 3:
      return QStringLiteral("mnuPrzychodZaplanowany");
    case 4:
      return QStringLiteral("mnuWydatekZaplanowany");
    case 5:
      return QStringLiteral("mnuTransakcjaWewnetrznaZaplanowana");
    case 6:
      return QStringLiteral("mnuSzablonyPrzychody");
    case 7:
      return QStringLiteral("mnuSzablonyWydatki");
    case 8:
      return QStringLiteral("mnuSzablonyWewnetrzne");
    case 9:
      return QStringLiteral("mnuKategoriePrzychodow");
    case 10:
      return QStringLiteral("mnuKategorieWydatkow");
    case 11:
      return QStringLiteral("mnuKonta");
    case 12:
      return QStringLiteral("mnuKontrahent");
    // The payment slip exists only in the Polish edition; elsewhere: this week's entries.
    case 13:
      return sesja.pubJezyk == 1 ? QStringLiteral("mnuPrzelew")
                                 : QStringLiteral("mnuTransakcjeBiezacy(2)");
    case 14:
      return QStringLiteral("mnuZmianaDaty");
    case 15:
      return QStringLiteral("mnuUstawieniaUzytkownika");
    case 16:
      return QStringLiteral("mnuUstawieniaKolorow");
    case 19:
      return QStringLiteral("mnuPomoc");
    case 20:
      return QStringLiteral("mnuKalendarz");
    // There is no web page to open: the button shows the program's about box instead.
    case 21:
      return QStringLiteral("mnuOProgramie");
    default:
      return {};  // 17 calculator, 18 exit with a question, 22 receipt
  }
}
}  // namespace

QString NazwaPolecenia(const QString& nazwa) {
  static const QString przedrostek = QStringLiteral("cmdMenu(");
  if (nazwa.startsWith(przedrostek) && nazwa.endsWith(QLatin1Char(')'))) {
    bool ok = false;
    const int i = nazwa.mid(przedrostek.size(), nazwa.size() - przedrostek.size() - 1).toInt(&ok);
    if (ok) {
      const QString menu = poleceniePrzycisku(i);
      if (!menu.isEmpty()) return menu;
    }
  }
  return nazwa;
}

bool MaPolecenie(const QString& nazwa) { return tabela().contains(NazwaPolecenia(nazwa)); }

bool UruchomPolecenie(const QString& nazwa) {
  const auto it = tabela().constFind(NazwaPolecenia(nazwa));
  if (it == tabela().constEnd()) return false;
  (*it)();
  return true;
}
