// Sending questions and fetching answers against a local server of ours: each kind of answer
// with its message and what the store keeps, the exact request, network failures, stopping,
// and fifty questions going out with the window alive.

#include "questions/wymiana.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressDialog>
#include <QPushButton>
#include <QStringEncoder>
#include <QTimer>
#include <QTreeWidget>
#include <iostream>

#include "pytania_pomoc.h"
#include "questions/frmZadajPytanie.h"
#include "questions/kodowanie.h"
#include "questions/logowanie.h"
#include "serwer_testowy.h"
#include "store/session.h"
#include "store/start.h"

using namespace testy_pytan;

namespace {
const QString Haslo = QStringLiteral("Tajne&Hasło 1");

QByteArray Cp1250(const QString& t) { return QStringEncoder("windows-1250").encode(t); }

class Wymiana : public ::testing::Test {
 protected:
  void SetUp() override {
    WczytajSetup();
    ASSERT_TRUE(ZapiszLogowanie({QStringLiteral("jan.kowalski"), Haslo, serwer.Adres()}));
    UstawLimitCzasuSerwisu(3000);
  }
  void TearDown() override {
    UstawLimitCzasuSerwisu(20000);
    // Not a message, not a line of the log carries the password.
    for (const Komunikat& k : m.host.pokazane)
      EXPECT_FALSE(k.tekst.contains(QStringLiteral("Tajne")));
    EXPECT_FALSE(Log(m).contains(QStringLiteral("Tajne")));
  }
  QString Dzisiaj() const { return QStringLiteral("2026-11-22"); }

  MagazynTestowy m;
  SerwerTestowy serwer;
  WymianaPytan wymiana;
};
}  // namespace

TEST_F(Wymiana, SendingTakesEachKindOfAnswer) {
  const qint64 ok17 = Wstaw(QStringLiteral("Pierwsze pytanie"), 'a');
  const qint64 brak = Wstaw(QStringLiteral("Drugie"), 'a');
  const qint64 pusta =
      Wstaw(QStringLiteral("Trzecie pytanie o rzecz, która ma bardzo wiele słów"), 'a');
  const qint64 bezOdstepu = Wstaw(QStringLiteral("Czwarte"), 'a');
  const qint64 pusteId = Wstaw(QStringLiteral("Piąte"), 'a');
  Wstaw(QStringLiteral("Już wysłane"), 'b');
  Wstaw(QStringLiteral("Z odpowiedzią"), 'c');
  OdpowiedzTestowa kawalki = Cialo("ok ");
  kawalki.ramka = OdpowiedzTestowa::Kawalki;
  serwer.skrypt = {Cialo("ok 17"), Cialo("brak"), Cialo(""), Cialo("ok"), kawalki};

  const WynikWymiany w = wymiana.WyslijPytania();
  ASSERT_EQ(serwer.cele.size(), 5);
  for (const QByteArray& c : serwer.cele)
    EXPECT_TRUE(c.startsWith("/zorvik/question.php?userid=jan.kowalski&haslo="));
  EXPECT_EQ(Kolumna(ok17, "datawyslania"), Dzisiaj());
  EXPECT_EQ(Kolumna(ok17, "idpytania"), QStringLiteral("17"));
  // "ok " with nothing behind it: sent, with an empty identifier.
  EXPECT_EQ(Kolumna(pusteId, "datawyslania"), Dzisiaj());
  EXPECT_EQ(Kolumna(pusteId, "idpytania"), QString());
  for (qint64 id : {brak, pusta, bezOdstepu})
    EXPECT_EQ(Kolumna(id, "datawyslania"), QString()) << id;
  EXPECT_EQ(w.udane, 2);
  EXPECT_EQ(w.odmowy, 1);
  EXPECT_EQ(w.bledne, 2);

  const QString tytul = Napis(QStringLiteral("frmZadajPytanie1"));
  ASSERT_EQ(Tytuly(m.host), (QStringList{Napis(QStringLiteral("frmZadajPytanie27")),
                                         Napis(QStringLiteral("frmZadajPytanie30")),
                                         Napis(QStringLiteral("frmZadajPytanie30")), tytul}));
  EXPECT_EQ(m.host.pokazane[0].tekst, Napis(QStringLiteral("frmZadajPytanie26")));
  EXPECT_EQ(m.host.pokazane[1].tekst, Napis(QStringLiteral("frmZadajPytanie28")) +
                                          QStringLiteral("\"Trzecie pytanie o rzecz, która ...\"") +
                                          Napis(QStringLiteral("frmZadajPytanie29")));
  EXPECT_TRUE(m.host.pokazane[3].tekst.startsWith(Napis(QStringLiteral("frmZadajPytanie31"))));
  EXPECT_TRUE(m.host.pokazane[3].tekst.endsWith(Napis(QStringLiteral("frmZadajPytanie64")) + " 2" +
                                                Napis(QStringLiteral("frmZadajPytanie66")) + "5."));

  // Nothing is retried by itself: the next press sends the three left, and only them.
  serwer.cele.clear();
  serwer.domyslna = [](const QByteArray&) { return Cialo("ok 20"); };
  wymiana.WyslijPytania();
  EXPECT_EQ(serwer.cele.size(), 3);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM pytania WHERE datawyslania IS NULL")), 0);
  m.host.pokazane.clear();
  wymiana.WyslijPytania();
  ASSERT_EQ(Tytuly(m.host), QStringList{tytul});
  EXPECT_EQ(m.host.pokazane[0].tekst, Napis(QStringLiteral("frmZadajPytanie48")));
}

TEST_F(Wymiana, FetchingStoresTheAnswerExactly) {
  const qint64 ok = Wstaw(QStringLiteral("Jak zapisać ratę?"), 'b', QStringLiteral("17"));
  const qint64 brak =
      Wstaw(QStringLiteral("Czy program działa w sieci?"), 'b', QStringLiteral("A-5"));
  const qint64 bledna = Wstaw(QStringLiteral("Trzecie"), 'b', QStringLiteral("99"));
  const qint64 utf8 = Wstaw(QStringLiteral("Czwarte"), 'b', QStringLiteral("100"));
  Wstaw(QStringLiteral("Nie wysłane"), 'a');
  const QString odpowiedz =
      QStringLiteral("Odpowiedź: użyj 'Kopii' - zażółć gęślą jaźń ŁÓDŹ\r\nDruga linia. ");
  OdpowiedzTestowa kodowana = Cialo("ok " + Cp1250(odpowiedz));
  kodowana.ramka = OdpowiedzTestowa::DoZamkniecia;
  kodowana.typ = "";
  OdpowiedzTestowa wUtf8 = Cialo(QStringLiteral("ok Źdźbło – „cytat”").toUtf8());
  wUtf8.typ = "text/plain; charset=UTF-8";
  serwer.skrypt = {kodowana, Cialo("brak"), Cialo("OK tak"), wUtf8};

  wymiana.PobierzOdpowiedzi();
  ASSERT_EQ(serwer.cele.size(), 4);
  const QByteArray poczatek =
      "/zorvik/answer.php?userid=jan.kowalski&haslo=Tajne%26Has%B3o%201&question=";
  EXPECT_EQ(serwer.cele[0], poczatek + "17");
  EXPECT_EQ(serwer.cele[1], poczatek + "A-5");  // the identifier goes as it stands
  EXPECT_EQ(Kolumna(ok, "odpowiedz"), odpowiedz);
  EXPECT_EQ(Kolumna(ok, "dataodpowiedzi"), Dzisiaj());
  EXPECT_EQ(Kolumna(utf8, "odpowiedz"), QStringLiteral("Źdźbło – „cytat”"));
  for (qint64 id : {brak, bledna}) EXPECT_EQ(Kolumna(id, "dataodpowiedzi"), QString()) << id;
  EXPECT_EQ(Kolumna(brak, "datawyslania"), QStringLiteral("2026-11-02"));

  ASSERT_EQ(Tytuly(m.host), (QStringList{Napis(QStringLiteral("frmZadajPytanie23")),
                                         Napis(QStringLiteral("frmZadajPytanie44")),
                                         Napis(QStringLiteral("frmZadajPytanie1"))}));
  EXPECT_EQ(m.host.pokazane[0].tekst, Napis(QStringLiteral("frmZadajPytanie21")) +
                                          QStringLiteral("\"Czy program działa w sieci?\"") +
                                          Napis(QStringLiteral("frmZadajPytanie22")));
  EXPECT_EQ(m.host.pokazane[1].tekst, Napis(QStringLiteral("frmZadajPytanie24")));
  EXPECT_TRUE(m.host.pokazane[2].tekst.startsWith(Napis(QStringLiteral("frmZadajPytanie25"))));
}

TEST_F(Wymiana, QuestionTravelsInTheServicesEncoding) {
  Wstaw(QStringLiteral("Zażółć gęślą-jaźń_1.5\r\nOK? 100%"), 'a');
  serwer.skrypt = {Cialo("ok 1")};
  wymiana.WyslijPytania();
  ASSERT_EQ(serwer.cele.size(), 1);
  EXPECT_EQ(serwer.cele[0],
            QByteArray("/zorvik/question.php?userid=jan.kowalski&haslo=Tajne%26Has%B3o%201"
                       "&question=Za%BF%F3%B3%E6+g%EA%9Cl%B9%2Dja%9F%F1_1.5%D%AOK%3F+100%25"));
  EXPECT_EQ(KodujPytanie(QStringLiteral("a\tb €~")), QByteArray("a%9b+%80%7E"));
  // The address may carry a path of its own in front of the service's.
  serwer.skrypt = {Cialo("ok 2")};
  ASSERT_TRUE(
      ZapiszLogowanie({QStringLiteral("jan.kowalski"), Haslo, serwer.Adres() + "/wsparcie/"}));
  Wstaw(QStringLiteral("Drugie"), 'a');
  wymiana.WyslijPytania();
  ASSERT_EQ(serwer.cele.size(), 2);
  EXPECT_TRUE(serwer.cele[1].startsWith("/wsparcie/zorvik/question.php?"));
}

TEST_F(Wymiana, NetworkFailuresLeaveEverythingAsItWas) {
  for (const char* t : {"Pierwsze", "Drugie", "Trzecie"}) Wstaw(QString::fromUtf8(t), 'a');
  const auto nicSieNieZmienilo = [&] {
    EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM pytania WHERE datawyslania IS NULL "
                                    "AND idpytania IS NULL")),
              3);
  };
  const auto ostatni = [&] { return m.host.pokazane.back(); };
  const QString tytul = Napis(QStringLiteral("frmZadajPytanie60"));

  // A server error stops the walk at once: one call, one message.
  serwer.skrypt = {Cialo("<html>Internal error</html>", 500)};
  WynikWymiany w = wymiana.WyslijPytania();
  EXPECT_TRUE(w.awaria);
  EXPECT_EQ(serwer.cele.size(), 1);
  ASSERT_EQ(Tytuly(m.host), QStringList{tytul});
  EXPECT_TRUE(ostatni().tekst.contains(Napis(QStringLiteral("frmZadajPytanie58")) + " 500."));
  EXPECT_TRUE(ostatni().tekst.contains(serwer.Adres()));
  nicSieNieZmienilo();

  // An answer that does not come in time.
  UstawLimitCzasuSerwisu(300);
  OdpowiedzTestowa wolna = Cialo("ok 5");
  wolna.zwloka = 3000;
  serwer.skrypt = {wolna};
  QElapsedTimer czas;
  czas.start();
  wymiana.WyslijPytania();
  EXPECT_GE(czas.elapsed(), 250);  // a coarse timer may fire up to 5 % early
  EXPECT_LT(czas.elapsed(), 2500);
  EXPECT_TRUE(ostatni().tekst.contains(Napis(QStringLiteral("frmZadajPytanie54"))));
  nicSieNieZmienilo();

  // A secure address where the host speaks no TLS.
  UstawLimitCzasuSerwisu(3000);
  ASSERT_TRUE(ZapiszLogowanie(
      {QStringLiteral("jan.kowalski"), Haslo, QString(serwer.Adres()).replace("http:", "https:")}));
  wymiana.WyslijPytania();
  EXPECT_TRUE(ostatni().tekst.contains(Napis(QStringLiteral("frmZadajPytanie55"))));
  nicSieNieZmienilo();

  // The host is down.
  ASSERT_TRUE(ZapiszLogowanie({QStringLiteral("jan.kowalski"), Haslo, serwer.Adres()}));
  serwer.Zatrzymaj();
  czas.restart();
  w = wymiana.PobierzOdpowiedzi();  // nothing is waiting for an answer: no call at all
  EXPECT_FALSE(w.awaria);
  w = wymiana.WyslijPytania();
  EXPECT_TRUE(w.awaria);
  EXPECT_LT(czas.elapsed(), 2000);
  EXPECT_TRUE(ostatni().tekst.contains(Napis(QStringLiteral("frmZadajPytanie53"))));
  EXPECT_EQ(ostatni().tytul.mid(1), tytul);
  nicSieNieZmienilo();
  EXPECT_TRUE(Log(m).contains(QStringLiteral("/zorvik/question.php")));
}

TEST_F(Wymiana, StoreThatRefusesTheMarkStopsTheWalk) {
  const qint64 id = Wstaw(QStringLiteral("Pierwsze"), 'a');
  Wstaw(QStringLiteral("Drugie"), 'a');
  Surowo(
      "CREATE TRIGGER pelny BEFORE UPDATE ON pytania BEGIN SELECT RAISE(ABORT, 'disk is full'); "
      "END");
  serwer.domyslna = [](const QByteArray&) { return Cialo("ok 1"); };
  const WynikWymiany w = wymiana.WyslijPytania();
  EXPECT_TRUE(w.awaria);
  EXPECT_EQ(serwer.cele.size(), 1);
  ASSERT_EQ(Tytuly(m.host), QStringList{Napis(QStringLiteral("frmZadajPytanie69"))});
  EXPECT_TRUE(m.host.pokazane[0].tekst.contains(QStringLiteral("disk is full")));
  EXPECT_EQ(Kolumna(id, "datawyslania"), QString());
}

TEST_F(Wymiana, FiftyQuestionsGoOutQuicklyWithTheWindowAlive) {
  for (int i = 1; i <= 50; ++i)
    Wstaw(QStringLiteral("Pytanie numer %1 - zażółć gęślą jaźń").arg(i), 'a');
  int licznik = 0;
  serwer.domyslna = [&](const QByteArray&) {
    OdpowiedzTestowa o = Cialo("ok " + QByteArray::number(++licznik));
    o.ramka = OdpowiedzTestowa::Ramka(licznik % 3);
    return o;
  };
  // A timer stands for the window: it must keep ticking while the questions go out.
  int tykniecia = 0;
  QTimer zegar;
  zegar.setInterval(1);
  QObject::connect(&zegar, &QTimer::timeout, [&] { ++tykniecia; });
  std::vector<std::pair<int, int>> postep;
  QObject::connect(&wymiana, &WymianaPytan::Postep,
                   [&](int z, int n) { postep.emplace_back(z, n); });
  zegar.start();
  QElapsedTimer czas;
  czas.start();
  const WynikWymiany w = wymiana.WyslijPytania();
  const qint64 ms = czas.elapsed();
  zegar.stop();
  std::cout << "[ figures  ] 50 questions sent in " << ms << " ms; the window's timer ticked "
            << tykniecia << " times meanwhile\n";
  EXPECT_EQ(w.udane, 50);
  EXPECT_LT(ms, 2000);
  EXPECT_GE(tykniecia, 10);
  ASSERT_EQ(postep.size(), 51u);
  EXPECT_EQ(postep.front(), std::make_pair(0, 50));
  EXPECT_EQ(postep.back(), std::make_pair(50, 50));
  EXPECT_EQ(m.Licz(QStringLiteral(
                "SELECT COUNT(DISTINCT idpytania) FROM pytania WHERE datawyslania='2026-11-22'")),
            50);
}

TEST_F(Wymiana, ScreenShowsProgressCanStopAndRefreshes) {
  sesja.pubUstawienia.userid = QStringLiteral("jan.kowalski");
  for (const char* t : {"Pierwsze", "Drugie", "Trzecie"}) Wstaw(QString::fromUtf8(t), 'a');
  serwer.domyslna = [](const QByteArray&) {
    OdpowiedzTestowa o = Cialo("ok 8");
    o.zwloka = 150;
    return o;
  };
  frmZadajPytanie f;
  f.show();
  QApplication::processEvents();
  auto* lista = f.findChild<QTreeWidget*>(QStringLiteral("lvwPytania"));
  auto* lblNieWyslane = f.findChild<QLabel*>(QStringLiteral("lblNieWyslane"));
  // The user presses Stop in the progress window once the first question has gone.
  bool postepWidac = false;
  auto polaczenie = QObject::connect(&f.Wymiana(), &WymianaPytan::Postep, [&](int z, int) {
    auto* p = f.findChild<QProgressDialog*>(QStringLiteral("prgWymiana"));
    if (!p) return;
    postepWidac = true;
    if (z == 1) p->findChild<QPushButton*>()->click();
  });
  f.findChild<QPushButton*>(QStringLiteral("cmdWyslijPytania"))->click();
  QObject::disconnect(polaczenie);
  EXPECT_TRUE(postepWidac);
  EXPECT_EQ(serwer.cele.size(), 1);
  EXPECT_EQ(lblNieWyslane->text(), Napis(QStringLiteral("frmZadajPytanie42")) + " 2");
  EXPECT_EQ(lista->topLevelItem(0)->text(0), Napis(QStringLiteral("frmZadajPytanie41")));
  EXPECT_EQ(lista->topLevelItem(1)->text(0), Napis(QStringLiteral("frmZadajPytanie40")));
  ASSERT_FALSE(m.host.pokazane.empty());
  EXPECT_TRUE(m.host.pokazane.back().tekst.startsWith(Napis(QStringLiteral("frmZadajPytanie67"))));
  EXPECT_TRUE(f.findChild<QPushButton*>(QStringLiteral("cmdWyslijPytania"))->isEnabled());

  serwer.domyslna = [](const QByteArray&) { return Cialo("ok 9"); };
  f.findChild<QPushButton*>(QStringLiteral("cmdWyslijPytania"))->click();
  EXPECT_EQ(lblNieWyslane->text(), Napis(QStringLiteral("frmZadajPytanie42")) + " 0");
  serwer.domyslna = [](const QByteArray&) { return Cialo("ok Proszę bardzo."); };
  f.findChild<QPushButton*>(QStringLiteral("cmdPobierzOdpowiedzi"))->click();
  lista->setCurrentItem(lista->topLevelItem(2));
  EXPECT_EQ(lista->topLevelItem(2)->text(0), Napis(QStringLiteral("frmZadajPytanie45")));
  EXPECT_EQ(f.findChild<QLabel*>(QStringLiteral("lblBezOdpowiedzi"))->text(),
            Napis(QStringLiteral("frmZadajPytanie43")) + " 0");
  f.hide();
}
