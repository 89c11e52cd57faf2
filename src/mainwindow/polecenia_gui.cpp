#include "mainwindow/polecenia_gui.h"

#include <QHash>

#include "mainwindow/frmMain.h"
#include "store/MsgBoxModule.h"
#include "store/napis.h"
#include "store/session.h"
#include "ui/nawigacja_gui.h"

namespace {
bool pokaz(const char* ekran) {
  return Nawigacja::Pokaz(QLatin1String(ekran), frmMain::Instancja());
}

// A new income (1) or expense (2) entry, executed (tryb 2) or planned (tryb 1).
void NowaTransakcja(int tryb, int rodzaj) {
  sesja.pubTryb = tryb;
  sesja.pubTransakcja.id = 0;
  sesja.pubTransakcja.rodzaj = rodzaj;
  sesja.pubKategoria.rodzaj = rodzaj;
  pokaz("frmEdycjaTransakcji");
}

// A new transfer, executed (tryb 2) or planned (tryb 1).
void NowyTransfer(int tryb) {
  sesja.pubTryb = tryb;
  sesja.pubTransakcja.id = 0;
  sesja.pubTransakcja.rodzaj = 3;
  sesja.pubTransfer = 0;
  pokaz("frmEdycjaTransakcjiWewnetrznej");
}

// Browsing master data with the details open, centred over the main window.
void Przegladaj(const char* ekran) {
  sesja.pubTrybPrzegladu = 1;
  sesja.pubSzczegoly = 1;
  sesja.pubPozycjaX = sesja.pubPozycjaY = -1;
  pokaz(ekran);
}

// The commands that need more than showing a screen, one line each. The lists and the balance
// panel refill themselves when the store announces a change.
const QHash<QString, Polecenie>& tabela() {
  static const QHash<QString, Polecenie> t = {
      {QStringLiteral("mnuKoniecPracy"), [] { ZakonczProgram(); }},
      {QStringLiteral("mnuKonta"),
       [] {
         Przegladaj("frmPrzegladKont");
         OdswiezStatus();
       }},
      {QStringLiteral("mnuKategoriePrzychodow"),
       [] {
         sesja.pubKategoria.rodzaj = 1;
         Przegladaj("frmPrzegladKategorii");
       }},
      {QStringLiteral("mnuKategorieWydatkow"),
       [] {
         sesja.pubKategoria.rodzaj = 2;
         Przegladaj("frmPrzegladKategorii");
       }},
      {QStringLiteral("mnuPrzychod"), [] { NowaTransakcja(2, 1); }},
      {QStringLiteral("mnuWydatek"), [] { NowaTransakcja(2, 2); }},
      {QStringLiteral("mnuPrzychodZaplanowany"), [] { NowaTransakcja(1, 1); }},
      {QStringLiteral("mnuWydatekZaplanowany"), [] { NowaTransakcja(1, 2); }},
      {QStringLiteral("mnuTransakcjaWewnetrzna"), [] { NowyTransfer(2); }},
      {QStringLiteral("mnuTransakcjaWewnetrznaZaplanowana"), [] { NowyTransfer(1); }},
      {QStringLiteral("mnuKontrahent"), [] { Przegladaj("frmPrzegladKontrahentow"); }},
      {QStringLiteral("mnuZmianaDaty"),
       [] {
         pokaz("frmZmianaDaty");
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

// Commands that only show a screen of their own. Each is enabled as soon as its screen is
// registered (app/ekrany_gui.cpp): that one line is all a new screen needs.
const QHash<QString, QString>& ekranyPolecen() {
  static const QHash<QString, QString> t = {
      {QStringLiteral("cmdMenu(17)"), QStringLiteral("frmKalkulatorCaly")},
      {QStringLiteral("cmdMenu(22)"), QStringLiteral("frmParagon")},
      {QStringLiteral("mnuSzablonyPrzychody"), QStringLiteral("frmSzablonyZewnetrzne")},
      {QStringLiteral("mnuSzablonyWydatki"), QStringLiteral("frmSzablonyZewnetrzne")},
      {QStringLiteral("mnuSzablonyWewnetrzne"), QStringLiteral("frmSzablonyWewnetrzne")},
      {QStringLiteral("mnuParagon"), QStringLiteral("frmParagon")},
      {QStringLiteral("mnuOkresowe"), QStringLiteral("frmOkresowe")},
      {QStringLiteral("mnuKalendarz"), QStringLiteral("frmKalendarz")},
      {QStringLiteral("mnuSymulacjaOszczednosciKategorii"),
       QStringLiteral("frmKategorieOszczednosci")},
      {QStringLiteral("mnuPrzelew"), QStringLiteral("frmEdycjaPrzelewu")},
      {QStringLiteral("mnuUstawieniaUzytkownika"), QStringLiteral("frmUstawienia")},
      {QStringLiteral("mnuUstawieniaKolorow"), QStringLiteral("frmKolory")},
      {QStringLiteral("mnuKonfiguracja"), QStringLiteral("frmKonfiguracja")},
      {QStringLiteral("mnuKreator"), QStringLiteral("frmKreatorWitamy")},
      {QStringLiteral("mnuZadajPytanie"), QStringLiteral("frmZadajPytanie")},
      {QStringLiteral("mnuUstawieniaInternetowe"), QStringLiteral("frmUstawieniaInternetowe")},
      {QStringLiteral("mnuPomoc"), QStringLiteral("frmPomoc")},
      {QStringLiteral("mnuOProgramie"), QStringLiteral("frmOProgramie")},
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

bool MaPolecenie(const QString& nazwa) {
  const QString polecenie = NazwaPolecenia(nazwa);
  if (tabela().contains(polecenie)) return true;
  const auto ekran = ekranyPolecen().constFind(polecenie);
  return ekran != ekranyPolecen().constEnd() && Nawigacja::Dostepny(*ekran);
}

bool UruchomPolecenie(const QString& nazwa) {
  const QString polecenie = NazwaPolecenia(nazwa);
  const auto it = tabela().constFind(polecenie);
  if (it != tabela().constEnd()) {
    (*it)();
    return true;
  }
  const auto ekran = ekranyPolecen().constFind(polecenie);
  return ekran != ekranyPolecen().constEnd() &&
         Nawigacja::Pokaz(*ekran, frmMain::Instancja());
}
