#include "mainwindow/polecenia_gui.h"

#include <QHash>

#include "mainwindow/frmMain.h"
#include "mainwindow/pulpit.h"
#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/dzis.h"
#include "store/filtr.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/start.h"
#include "ui/nawigacja_gui.h"

namespace {
QWidget* glowne() { return frmMain::Instancja(); }
bool pokaz(const QString& ekran) { return Nawigacja::Pokaz(ekran, glowne()); }
QString napis(int numer) { return Napis(QStringLiteral("frmMain%1").arg(numer)); }

const QString kPrzegladTransakcji = QStringLiteral("frmPrzegladTransakcji");
const QString kPrzegladTransferow = QStringLiteral("frmPrzegladTransakcjiWewnetrznych");

// Browsing master data with the details open, centred over the main window.
void Przegladaj(const QString& ekran) {
  sesja.pubTrybPrzegladu = 1;
  sesja.pubSzczegoly = 1;
  sesja.pubPozycjaX = sesja.pubPozycjaY = -1;
  pokaz(ekran);
  OdswiezStatus();
}

// A report over the period of the filter kind, as a report reads it from pubOkres.
void okres(int rodzaj) {
  FiltrCzasowyRekord f;
  f.rodzaj = rodzaj;
  sesja.pubOkres = FiltrCzasowy(f);
}

// The wizard again: everything the user entered goes, after three questions when there is
// anything to lose, and the wizard starts as at the first run.
void KreatorPonownie() {
  if (!CzyPustaBaza()) {
    const int pytania[3][2] = {{192, 193}, {194, 195}, {196, 197}};
    for (const auto& p : pytania)
      if (MyMsgbox(napis(p[0]), napis(p[1]), MsgTakNie, IkonaOstrzezenie) != WynikTak) return;
    if (!WyczyscWszystkieDane()) {
      MyMsgbox(napis(198), napis(199), MsgOK, IkonaOstrzezenie);
      return;
    }
  }
  sesja.pubTypKreatora = 0;
  sesja.pubProfilKreatora = 0;
  sesja.pubKreatorPrzerwany = false;
  sesja.pubKreatorZakonczony = false;
  sesja.pubKreatorSzerokosc = sesja.pubKreatorWysokosc = 0;
  pokaz(QStringLiteral("frmKreatorKategorie"));
  // An abandoned wizard leaves no accounts or counterparties, so the next start is a first run.
  if (!sesja.pubKreatorZakonczony && OtworzBaze())
    pubBaza().Transakcja([] {
      return pubBaza().Wykonaj(QStringLiteral("DELETE FROM konta")).ok &&
             pubBaza().Wykonaj(QStringLiteral("DELETE FROM kontrahent")).ok;
    });
}

// A command and the screen it needs (none: it always runs).
struct Wpis {
  Polecenie polecenie;
  QString ekran;
};

const QHash<QString, Wpis>& tabela() {
  static const QHash<QString, Wpis> t = [] {
    QHash<QString, Wpis> t;
    const auto dodaj = [&t](const QString& nazwa, const QString& ekran, Polecenie p) {
      t.insert(nazwa, Wpis{std::move(p), ekran});
    };
    const auto ekran = [&dodaj](const QString& nazwa, const QString& e) {
      dodaj(nazwa, e, [e] { pokaz(e); });
    };
    const QString edytor = QStringLiteral("frmEdycjaTransakcji");
    const QString edytorTransferu = QStringLiteral("frmEdycjaTransakcjiWewnetrznej");
    dodaj(QStringLiteral("mnuKoniecPracy"), {}, [] { ZakonczProgram(); });
    dodaj(QStringLiteral("cmdMenu(18)"), {}, [] {
      if (MyMsgbox(napis(208), napis(209), MsgTakNie, IkonaPytanie) == WynikTak) ZakonczProgram();
    });
    dodaj(QStringLiteral("mnuKreator"), {}, KreatorPonownie);
    ekran(QStringLiteral("mnuImportWyciagu"), QStringLiteral("frmImport"));
    ekran(QStringLiteral("mnuPrzywrocKopie"), QStringLiteral("frmPrzywrocKopie"));
    dodaj(QStringLiteral("mnuPrzychod"), edytor, [] { NowaTransakcja(2, 1); });
    dodaj(QStringLiteral("mnuWydatek"), edytor, [] { NowaTransakcja(2, 2); });
    dodaj(QStringLiteral("mnuPrzychodZaplanowany"), edytor, [] { NowaTransakcja(1, 1); });
    dodaj(QStringLiteral("mnuWydatekZaplanowany"), edytor, [] { NowaTransakcja(1, 2); });
    dodaj(QStringLiteral("mnuTransakcjaWewnetrzna"), edytorTransferu, [] { NowyTransfer(2); });
    dodaj(QStringLiteral("mnuTransakcjaWewnetrznaZaplanowana"), edytorTransferu,
          [] { NowyTransfer(1); });
    dodaj(QStringLiteral("mnuKonta"), QStringLiteral("frmPrzegladKont"),
          [] { Przegladaj(QStringLiteral("frmPrzegladKont")); });
    for (int rodzaj : {1, 2})
      dodaj(rodzaj == 1 ? QStringLiteral("mnuKategoriePrzychodow")
                        : QStringLiteral("mnuKategorieWydatkow"),
            QStringLiteral("frmPrzegladKategorii"), [rodzaj] {
              sesja.pubKategoria.rodzaj = rodzaj;
              Przegladaj(QStringLiteral("frmPrzegladKategorii"));
            });
    dodaj(QStringLiteral("mnuKontrahent"), QStringLiteral("frmPrzegladKontrahentow"),
          [] { Przegladaj(QStringLiteral("frmPrzegladKontrahentow")); });
    dodaj(QStringLiteral("mnuZmianaDaty"), QStringLiteral("frmZmianaDaty"), [] {
      pokaz(QStringLiteral("frmZmianaDaty"));
      OdswiezStatus();
    });
    dodaj(QStringLiteral("mnuUstawieniaKolorow"), QStringLiteral("frmKolory"), [] {
      pokaz(QStringLiteral("frmKolory"));
      PokolorujListy();
    });
    for (int rodzaj : {1, 2})
      dodaj(rodzaj == 1 ? QStringLiteral("mnuSzablonyPrzychody")
                        : QStringLiteral("mnuSzablonyWydatki"),
            QStringLiteral("frmSzablonyZewnetrzne"), [rodzaj] {
              sesja.pubTransakcja.rodzaj = rodzaj;
              sesja.pubKategoria.rodzaj = rodzaj;
              sesja.pubSzablonRodzaj = rodzaj;
              sesja.pubSzablonWybor = 2;
              pokaz(QStringLiteral("frmSzablonyZewnetrzne"));
            });

    // Reports: the period of the kind named goes to pubOkres, then the report shows.
    for (int i = 0; i < 6; ++i) {
      dodaj(QStringLiteral("mnuTransakcjeBiezacy(%1)").arg(i),
            QStringLiteral("frmRaportTransakcji"), [i] {
              okres(i);
              sesja.pubTryb = 2;
              sesja.pubFiltrTransakcji = QStringLiteral(" AND transakcje.konto=konta.id ");
              sesja.pubTytulTransakcji = Napis(QStringLiteral("frmMain19"));
              sesja.pubZapytanieRaportu.clear();  // the report asks the browser's statement
              pokaz(QStringLiteral("frmRaportTransakcji"));
            });
      dodaj(QStringLiteral("mnuTransferyBiezacy(%1)").arg(i),
            QStringLiteral("frmRaportTransakcjiWewnetrznych"), [i] {
              okres(i);
              sesja.pubTryb = 2;
              sesja.pubFiltrTransferow.clear();
              sesja.pubZapytanieRaportu.clear();
              pokaz(QStringLiteral("frmRaportTransakcjiWewnetrznych"));
            });
    }
    dodaj(QStringLiteral("mnuKontaBiezace"), QStringLiteral("frmRaport"), [] {
      okres(3);
      sesja.pubWezelKont = QStringLiteral("R");
      pokaz(QStringLiteral("frmRaport"));
    });
    dodaj(QStringLiteral("mnuWydrukKontWCzasie"), QStringLiteral("frmRaportKontaWCzasie"), [] {
      sesja.pubWezelKont = QStringLiteral("R");
      pokaz(QStringLiteral("frmRaportKontaWCzasie"));
    });
    for (int rodzaj : {1, 2}) {
      const QString p = rodzaj == 1 ? QStringLiteral("Przychodow") : QStringLiteral("Wydatkow");
      dodaj(QStringLiteral("mnuKategorie") + p + QStringLiteral("Biezace"),
            QStringLiteral("frmRaportKategorii"), [rodzaj] {
              okres(3);
              sesja.pubKategoria.identyfikator = QStringLiteral("Root");
              sesja.pubKategoria.rodzaj = rodzaj;
              pokaz(QStringLiteral("frmRaportKategorii"));
            });
      // The summary report: the month of the working date against the month before.
      dodaj(QStringLiteral("mnuKategorie") + p + QStringLiteral("Sumaryczny"),
            QStringLiteral("frmRaportSumaryczny"), [rodzaj] {
              okres(3);
              sesja.pubKategoria.rodzaj = rodzaj;
              pokaz(QStringLiteral("frmRaportSumaryczny"));
            });
      dodaj(QStringLiteral("mnuKategorie") + p + QStringLiteral("WCzasie"),
            QStringLiteral("frmRaportKategorieWCzasie"), [rodzaj] {
              sesja.pubKategoria.identyfikator = QStringLiteral("Root");
              sesja.pubKategoria.rodzaj = rodzaj;
              pokaz(QStringLiteral("frmRaportKategorieWCzasie"));
            });
    }
    dodaj(QStringLiteral("mnuKontrahenciBiezace"), QStringLiteral("frmRaportKontrahenta"), [] {
      okres(3);
      sesja.pubKontrahent.id = 0;
      pokaz(QStringLiteral("frmRaportKontrahenta"));
    });
    dodaj(QStringLiteral("mnuKontrahenciWCzasie"), QStringLiteral("frmRaportKontrahentaWCzasie"),
          [] {
            sesja.pubKontrahent.id = 0;
            pokaz(QStringLiteral("frmRaportKontrahentaWCzasie"));
          });

    // Commands that only show a screen of their own: each is enabled as soon as its screen is
    // registered (app/ekrany_gui.cpp); that one line is all a new screen needs.
    ekran(QStringLiteral("cmdMenu(17)"), QStringLiteral("frmKalkulatorCaly"));
    ekran(QStringLiteral("cmdMenu(22)"), QStringLiteral("frmParagon"));
    ekran(QStringLiteral("mnuParagon"), QStringLiteral("frmParagon"));
    ekran(QStringLiteral("mnuSzablonyWewnetrzne"), QStringLiteral("frmSzablonyWewnetrzne"));
    ekran(QStringLiteral("mnuOkresowe"), QStringLiteral("frmOkresowe"));
    ekran(QStringLiteral("mnuKalendarz"), QStringLiteral("frmKalendarz"));
    ekran(QStringLiteral("mnuSymulacjaOszczednosciKategorii"),
          QStringLiteral("frmKategorieOszczednosci"));
    ekran(QStringLiteral("mnuPrzelew"), QStringLiteral("frmEdycjaPrzelewu"));
    ekran(QStringLiteral("mnuUstawieniaUzytkownika"), QStringLiteral("frmUstawienia"));
    ekran(QStringLiteral("mnuKonfiguracja"), QStringLiteral("frmKonfiguracja"));
    ekran(QStringLiteral("mnuPomocPodstawowa"), QStringLiteral("frmKreatorPomoc"));
    ekran(QStringLiteral("mnuZadajPytanie"), QStringLiteral("frmZadajPytanie"));
    ekran(QStringLiteral("mnuUstawieniaInternetowe"), QStringLiteral("frmUstawieniaInternetowe"));
    ekran(QStringLiteral("mnuPomoc"), QStringLiteral("frmPomoc"));
    ekran(QStringLiteral("mnuOProgramie"), QStringLiteral("frmOProgramie"));
    return t;
  }();
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
  // The payment slip is a Polish form: no other edition offers it.
  if (NazwaPolecenia(nazwa) == QLatin1String("mnuPrzelew") && sesja.pubJezyk != 1) return false;
  const auto it = tabela().constFind(NazwaPolecenia(nazwa));
  return it != tabela().constEnd() && (it->ekran.isEmpty() || Nawigacja::Dostepny(it->ekran));
}

bool UruchomPolecenie(const QString& nazwa) {
  if (!MaPolecenie(nazwa)) return false;
  tabela().value(NazwaPolecenia(nazwa)).polecenie();
  return true;
}

void NowaTransakcja(int tryb, int rodzaj) {
  sesja.pubTryb = tryb;
  sesja.pubTransakcja.id = 0;
  sesja.pubTransakcja.rodzaj = rodzaj;
  sesja.pubKategoria.rodzaj = rodzaj;
  pokaz(QStringLiteral("frmEdycjaTransakcji"));
}

void NowyTransfer(int tryb) {
  sesja.pubTryb = tryb;
  sesja.pubTransakcja.id = 0;
  sesja.pubTransakcja.rodzaj = 3;
  sesja.pubTransfer = 0;
  pokaz(QStringLiteral("frmEdycjaTransakcjiWewnetrznej"));
}

bool MaPrzegladTransakcji() { return Nawigacja::Dostepny(kPrzegladTransakcji); }
bool MaPrzegladTransferow() { return Nawigacja::Dostepny(kPrzegladTransferow); }

void PokazPrzegladTransakcji(int tryb, const QString& fragment, const QString& tytul,
                             int rodzajFiltra) {
  sesja.pubWierszTransakcji = 0;
  sesja.pubTryb = tryb;
  sesja.pubFiltrTransakcji = fragment;
  sesja.pubTytulTransakcji = tytul;
  if (rodzajFiltra >= 0) sesja.pubFiltrCzasowy.rodzaj = rodzajFiltra;
  pokaz(kPrzegladTransakcji);
  OdswiezStatus();
}

void PokazPrzegladTransferow(int tryb, const QString& fragment, const QString& tytul,
                             int rodzajFiltra) {
  sesja.pubWierszTransferu = 0;
  sesja.pubTryb = tryb;
  sesja.pubFiltrTransferow = fragment;
  sesja.pubTytulTransferow = tytul;
  if (rodzajFiltra >= 0) sesja.pubFiltrCzasowy.rodzaj = rodzajFiltra;
  pokaz(kPrzegladTransferow);
  OdswiezStatus();
}

void PokazZaplanowane(int indeks) {
  if (indeks < 0 || indeks > 3) return;
  const FiltrCzasowyRekord dawny = sesja.pubFiltrCzasowy;
  const QString dawnyFragment = sesja.pubFiltrTransakcji;
  // The overdue ones: from the program's first day to yesterday.
  if (indeks % 2 == 1) {
    sesja.pubFiltrCzasowy.od = QDate(2001, 1, 1);
    sesja.pubFiltrCzasowy.do_ = Dzis().addDays(-1);
  }
  PokazPrzegladTransakcji(
      1, indeks < 2 ? QStringLiteral(" AND przychod<>0") : QStringLiteral(" AND wydatek<>0"),
      napis(210 + indeks), indeks % 2 == 1 ? 6 : 0);
  sesja.pubFiltrCzasowy.rodzaj = dawny.rodzaj;
  sesja.pubFiltrCzasowy.od = dawny.od;
  sesja.pubFiltrCzasowy.do_ = dawny.do_;
  sesja.pubFiltrTransakcji = dawnyFragment;
  OdswiezStatus();
}

bool Szukaj(const QString& tekst) {
  const QString t = tekst.trimmed();
  if (t.isEmpty()) {
    MyMsgbox(napis(179), napis(180), MsgOK, IkonaInformacja);
    return false;
  }
  // Every period: the filter stays on "all" afterwards.
  PokazPrzegladTransakcji(2, FiltrWyszukiwania(t),
                          napis(181) + QStringLiteral(" \"") + t + QLatin1Char('"'), 0);
  return true;
}
