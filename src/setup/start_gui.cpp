#include "setup/start_gui.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLocale>
#include <QMessageBox>
#include <QScreen>
#include <memory>

#include "mainwindow/frmMain.h"
#include "mainwindow/polecenia_gui.h"
#include "store/MsgBoxModule.h"
#include "setup/frmHaslo.h"
#include "setup/frmStart.h"
#include "store/baza.h"
#include "store/dzis.h"
#include "store/napis.h"
#include "store/przypomnienia.h"
#include "store/session.h"
#include "store/start.h"

namespace {
const QByteArray kProsbaOPokazanie = QByteArrayLiteral("pokaz\n");

std::unique_ptr<QLocalServer>& serwer() {
  static std::unique_ptr<QLocalServer> s;
  return s;
}

// A later copy asked for the window: the main window if it stands, else whatever is in front
// (the password gate, the splash).
void pokazOkno() {
  if (frmMain* f = frmMain::Instancja()) {
    f->Przywroc();
    return;
  }
  QWidget* w = QApplication::activeModalWidget();
  if (!w) w = OknoStartowe();
  if (w) {
    w->raise();
    w->activateWindow();
  }
}

void przyjmijPolaczenie() {
  while (QLocalSocket* gniazdo = serwer()->nextPendingConnection()) {
    QObject::connect(gniazdo, &QLocalSocket::disconnected, gniazdo, &QObject::deleteLater);
    auto czytaj = [gniazdo] {
      if (gniazdo->bytesAvailable() && gniazdo->readAll().contains(kProsbaOPokazanie.trimmed()))
        pokazOkno();
    };
    QObject::connect(gniazdo, &QLocalSocket::readyRead, gniazdo, czytaj);
    czytaj();
  }
}

// The store is missing or won't open: no language table, so the one text written here.
void brakBazy(const SrodowiskoStartu& s) {
  QString tekst = Napis(QStringLiteral("Module138"));
  QString tytul = Napis(QStringLiteral("Module139"));
  if (tekst.isEmpty())
    tekst =
        (sesja.pubJezyk == 1 ? QStringLiteral("Nie można otworzyć pliku danych programu:\n%1\n\n"
                                              "Program zostanie zamknięty.")
                             : QStringLiteral("The program's data file cannot be opened:\n%1\n\n"
                                              "The program will close."))
            .arg(QDir::toNativeSeparators(PlikBazy()));
  if (tytul.isEmpty()) tytul = QStringLiteral("Zorvik");
  tekst.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  if (s.komunikatBrakuBazy)
    s.komunikatBrakuBazy(tekst, tytul);
  else
    QMessageBox::critical(nullptr, tytul, tekst);
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

QString NazwaGniazda() {
  // One copy per user and data folder: two users, or two data folders, never meet.
  const QString folder = QFileInfo(FolderDanych()).absoluteFilePath();
  const QByteArray klucz = (QDir::homePath() + QLatin1Char('|') + folder).toUtf8();
  return QStringLiteral("zorvik-") +
         QString::fromLatin1(
             QCryptographicHash::hash(klucz, QCryptographicHash::Sha1).toHex().left(20));
}

bool CzyJuzUruchomiony(bool& blad) {
  blad = false;
  QLocalSocket gniazdo;
  gniazdo.connectToServer(NazwaGniazda());
  if (!gniazdo.waitForConnected(1000)) {
    // No listener, or a stale one left by a crash: no copy is running.
    const auto e = gniazdo.error();
    blad = e != QLocalSocket::ServerNotFoundError && e != QLocalSocket::ConnectionRefusedError;
    return false;
  }
  gniazdo.write(kProsbaOPokazanie);
  if (!gniazdo.waitForBytesWritten(1000)) blad = true;
  gniazdo.disconnectFromServer();
  return true;
}

bool NasluchujKopii() {
  ZakonczNasluch();
  auto s = std::make_unique<QLocalServer>();
  s->setSocketOptions(QLocalServer::UserAccessOption);
  if (!s->listen(NazwaGniazda())) {
    // A crashed copy leaves its socket behind; nobody answered on it, so it can go.
    QLocalServer::removeServer(NazwaGniazda());
    if (!s->listen(NazwaGniazda())) {
      ZapiszLog(QStringLiteral("single-instance listener failed: %1").arg(s->errorString()));
      return false;
    }
  }
  QObject::connect(s.get(), &QLocalServer::newConnection, przyjmijPolaczenie);
  serwer() = std::move(s);
  return true;
}

void ZakonczNasluch() {
  if (serwer()) serwer()->close();
  serwer().reset();
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
}

Start Main(const ParametryStartu& p, const SrodowiskoStartu& srodowisko) {
  // The edition is fixed for the whole run.
  sesja.pubJezyk = p.jezyk ? p.jezyk : JezykSystemu();
  if (!p.folderDanych.isEmpty()) UstawFolderDanych(p.folderDanych);

  // Bring the store up to date; a missing store is told further on.
  const bool jestBaza = QFileInfo::exists(PlikBazy()) && AktualizujBaze();

  bool blad = false;
  if (CzyJuzUruchomiony(blad) && !blad) return {WynikStartu::Koniec, 0};

  if (!jestBaza) {
    // The reminder run starts unattended: it ends without a word.
    if (!p.przypomnienie) brakBazy(srodowisko);
    return {WynikStartu::Koniec, 1};
  }

  sesja.pubSeparator = QLocale::system().decimalPoint();

  if (p.przypomnienie) {
    QString bladPliku;
    if (!ZapiszPrzypomnienia(&bladPliku)) ZapiszLog(QStringLiteral("reminder file: ") + bladPliku);
    UruchomPrzypominacz();
    return {WynikStartu::Koniec, 0};
  }

  NasluchujKopii();
  PokazStart();

  PrzygotujSesje();

  if (!sesja.pubUstawienia.haslo.isEmpty()) {
    frmHaslo brama;
    brama.exec();
    // Emptied only by the right password: Cancel and three failures end the run here.
    if (!sesja.pubUstawienia.haslo.isEmpty()) {
      UkryjStart();
      ZakonczNasluch();
      return {WynikStartu::Koniec, 0};
    }
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
  if (sesja.pubPierwszyStart && MaPolecenie(QStringLiteral("mnuPomocPodstawowa")))
    UruchomPolecenie(QStringLiteral("mnuPomocPodstawowa"));
  return {WynikStartu::Dziala, 0};
}
