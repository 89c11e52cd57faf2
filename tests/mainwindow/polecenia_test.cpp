// The main window's commands as a user runs them: search, the wizard again, editing from the
// lists, the daily overview, the notepad, the chart modes, and commands that wait for screens.

#include <gtest/gtest.h>

#include <QAction>
#include <QBarSeries>
#include <QBarSet>
#include <QChartView>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPieSeries>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

#include "common/magazyn_testowy.h"
#include "ui/nawigacja_gui.h"
#include "mainwindow/listapulpitu_gui.h"
#include "mainwindow/panelstanu_gui.h"
#include "mainwindow/polecenia_gui.h"
#include "mainwindow/przegladdnia_gui.h"
#include "mainwindow/pulpit.h"
#include "pulpit_pomoc.h"
#include "store/dzis.h"
#include "store/napis.h"
#include "store/start.h"
#include "store/tekst.h"
#include "ui/wykresy_gui.h"

using namespace testy_pulpitu;

namespace {
QString napis(int n) { return Napis(QStringLiteral("frmMain%1").arg(n)); }

void Czekaj(int ms) {
  QElapsedTimer t;
  t.start();
  while (t.elapsed() < ms) QApplication::processEvents(QEventLoop::AllEvents, 5);
}

void Klik(QWidget* w) {
  ASSERT_NE(w, nullptr);
  const QPointF p(w->width() / 2.0, w->height() / 2.0);
  QMouseEvent nacisk(QEvent::MouseButtonPress, p, w->mapToGlobal(p), Qt::LeftButton,
                     Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(w, &nacisk);
  QMouseEvent puszczenie(QEvent::MouseButtonRelease, p, w->mapToGlobal(p), Qt::LeftButton,
                         Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(w, &puszczenie);
}

void DwuKlik(QTreeWidget* l, int wiersz) {
  const QPointF p = l->visualItemRect(l->topLevelItem(wiersz)).center();
  QWidget* v = l->viewport();
  for (auto typ : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                   QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
    QMouseEvent e(typ, p, v->mapToGlobal(p), Qt::LeftButton,
                  typ == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(v, &e);
  }
}

qint64 WszystkieWiersze(const MagazynTestowy& m) {
  qint64 n = 0;
  for (const char* t : {"kategorie", "konta", "kontrahent", "szablony", "szablonywewnetrzne",
                        "transakcje", "wewnetrzne", "zaplanowane", "zaplanowanewewnetrzne"})
    n += m.Licz(QStringLiteral("SELECT COUNT(*) FROM %1").arg(QLatin1String(t)));
  return n;
}

QBarSeries* Slupki(PanelStanu* p) {
  const auto serie = p->Wykres()->chart()->series();
  return serie.isEmpty() ? nullptr : qobject_cast<QBarSeries*>(serie.first());
}
}  // namespace

// Only executed entries are searched, in every period: the text anywhere in the description,
// the amounts read as text, the names, blind to case and with Polish letters; an apostrophe is
// searched for, not a broken statement; an empty search says so and opens nothing.
TEST(Polecenia, SearchFindsTextsAmountsAndApostrophes) {
  MagazynTestowy m(1);
  WczytajSetup();
  const qint64 konto = Konto(QStringLiteral("Konto"), 2);
  Kategoria(QStringLiteral("A"), 1, QStringLiteral("Pensja"));
  Kategoria(QStringLiteral("B"), 2, QStringLiteral("Jedzenie"));
  const qint64 sklep = Kontrahent(QStringLiteral("Łódź Sklep"));
  Wpis(QStringLiteral("transakcje"), konto, QStringLiteral("2020-01-05"), 0, 112.5, QStringLiteral("obiad"));
  Wpis(QStringLiteral("transakcje"), konto, QStringLiteral("2026-11-05"), 0, 45, QStringLiteral("pokój 12"));
  Wpis(QStringLiteral("transakcje"), konto, QStringLiteral("2026-11-06"), 0, 45, QStringLiteral("kino"), sklep);
  Wpis(QStringLiteral("transakcje"), konto, QStringLiteral("2026-11-07"), 3000, 0, QStringLiteral("Kolacja u O'Briena"));
  Wpis(QStringLiteral("zaplanowane"), konto, QStringLiteral("2026-11-07"), 0, 12, QStringLiteral("plan 12"));

  std::vector<Wywolanie> wywolania;
  ZastepczyEkran przeglad(QStringLiteral("frmPrzegladTransakcji"),
                          [&](QWidget*) { wywolania.push_back(PrzegladTransakcji()); });
  sesja.pubFiltrCzasowy.rodzaj = 2;
  frmMain f;
  f.show();
  auto* pole = f.findChild<QLineEdit*>(QStringLiteral("txtSzukaj"));
  ASSERT_NE(pole, nullptr);
  ASSERT_TRUE(pole->isEnabled());
  const auto szukaj = [&](const QString& tekst) {
    pole->setText(tekst);
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(pole, &enter);
  };

  szukaj(QStringLiteral("   "));
  EXPECT_TRUE(wywolania.empty());
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_EQ(m.host.pokazane[0].tekst, napis(179));
  EXPECT_EQ(m.host.pokazane[0].tytul, QLatin1Char(' ') + napis(180));

  szukaj(QStringLiteral(" 12 "));
  ASSERT_EQ(wywolania.size(), 1u);
  EXPECT_EQ(wywolania[0].tryb, 2);
  EXPECT_EQ(wywolania[0].rodzajFiltra, 0);
  EXPECT_EQ(wywolania[0].tytul, napis(181) + QStringLiteral(" \"12\""));
  EXPECT_EQ(wywolania[0].opisy, QStringList({"pokój 12", "obiad"}));
  EXPECT_EQ(sesja.pubFiltrCzasowy.rodzaj, 0) << "the filter stays on every period";

  szukaj(QStringLiteral("o'briena"));
  EXPECT_EQ(wywolania.back().opisy, QStringList({"Kolacja u O'Briena"}));
  szukaj(QStringLiteral("ŁÓDŹ"));
  EXPECT_EQ(wywolania.back().opisy, QStringList({"kino"}));
  Klik(f.findChild<QPushButton*>(QStringLiteral("cmdSzukaj")));
  EXPECT_EQ(wywolania.back().opisy, QStringList({"kino"})) << "the button searches the same";
  szukaj(QStringLiteral("pensja"));
  EXPECT_EQ(wywolania.back().opisy, QStringList({"Kolacja u O'Briena"}));
  EXPECT_EQ(wywolania.size(), 5u);
}

// The wizard again asks three times; a Nie at any of them leaves every row. Three times Tak
// empties every table of the user's at once, and the dashboard shows an empty store. An empty
// store asks nothing. An abandoned wizard takes its accounts and counterparties with it.
TEST(Polecenia, WizardAgainAsksThreeTimesAndWipesEverything) {
  MagazynTestowy m(1);
  WczytajSetup();
  const qint64 konto = Konto(QStringLiteral("Konto"), 2, 500);
  const qint64 drugie = Konto(QStringLiteral("Drugie"), 1);
  Kategoria(QStringLiteral("B"), 2, QStringLiteral("Jedzenie"));
  Kontrahent(QStringLiteral("Sklep"));
  Wpis(QStringLiteral("transakcje"), konto, QStringLiteral("2026-11-05"), 0, 45);
  Wpis(QStringLiteral("zaplanowane"), konto, QStringLiteral("2026-11-25"), 0, 45);
  Transfer(QStringLiteral("wewnetrzne"), konto, drugie, QStringLiteral("2026-11-05"), 5);
  Transfer(QStringLiteral("zaplanowanewewnetrzne"), konto, drugie, QStringLiteral("2026-11-25"), 5);
  Zapisz(QStringLiteral("INSERT INTO szablony (rodzaj,nazwa,konto,kategoria,opis) VALUES (2,'s',1,'B','')"));
  Zapisz(QStringLiteral("INSERT INTO szablonywewnetrzne (nazwa,zkonta,nakonto,opis) VALUES ('s',1,2,'')"));
  const qint64 wszystkie = WszystkieWiersze(m);
  ASSERT_EQ(wszystkie, 10);

  frmMain f;
  // The wizard's own windows are not driven here: after the wipe it closes at once.
  ZastepczyEkran bezKreatora(QStringLiteral("frmKreatorKategorie"), [](QWidget*) {});
  auto* kreator = f.findChild<QAction*>(QStringLiteral("mnuKreator"));
  ASSERT_TRUE(kreator->isEnabled());
  const int klucze[3] = {192, 194, 196};
  for (int nie = 0; nie < 3; ++nie) {
    m.host.pokazane.clear();
    m.host.odpowiedzi.assign(size_t(nie), WynikTak);
    m.host.odpowiedzi.push_back(WynikNie);
    kreator->trigger();
    ASSERT_EQ(m.host.pokazane.size(), size_t(nie + 1));
    for (int i = 0; i <= nie; ++i) EXPECT_EQ(m.host.pokazane[size_t(i)].tekst, napis(klucze[i]));
    EXPECT_EQ(WszystkieWiersze(m), wszystkie) << "a Nie at question " << nie + 1;
  }
  EXPECT_EQ(Lista(f, "lvwTransakcje")->topLevelItemCount(), 1);

  m.host.pokazane.clear();
  m.host.odpowiedzi = {WynikTak, WynikTak, WynikTak};
  kreator->trigger();
  EXPECT_EQ(m.host.pokazane.size(), 3u);
  EXPECT_EQ(WszystkieWiersze(m), 0);
  EXPECT_TRUE(CzyPustaBaza());
  EXPECT_EQ(Lista(f, "lvwTransakcje")->topLevelItemCount(), 0);
  EXPECT_EQ(Lista(f, "lvwWewnetrzneZaplanowane")->topLevelItemCount(), 0);
  EXPECT_EQ(Tekst(f, "lblSuma"), FormatKwoty(0));
  EXPECT_EQ(Tekst(f, "lblZaplanowaneWydatki"), FormatKwoty(0));

  // On an empty store the wizard starts at once; abandoned, it leaves no account behind.
  bool pokazany = false;
  ZastepczyEkran porzucony(QStringLiteral("frmKreatorKategorie"), [&](QWidget*) {
    pokazany = true;
    EXPECT_FALSE(sesja.pubKreatorZakonczony);
    Konto(QStringLiteral("Z kreatora"), 1);
    Kontrahent(QStringLiteral("Z kreatora"));
  });
  m.host.pokazane.clear();
  kreator->trigger();
  EXPECT_TRUE(pokazany);
  EXPECT_TRUE(m.host.pokazane.empty());
  EXPECT_EQ(WszystkieWiersze(m), 0);

  ZastepczyEkran ukonczony(QStringLiteral("frmKreatorKategorie"), [&](QWidget*) {
    Konto(QStringLiteral("Z kreatora"), 1);
    sesja.pubKreatorZakonczony = true;
  });
  kreator->trigger();
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta")), 1);
}

// A double-click edits the row in the editor of its list and mode, and the row of the same
// number is selected again, wherever the edit moved the item. The popup menu's commands run
// after the menu has closed.
TEST(Polecenia, EditingFromTheListsSelectsTheRowAgain) {
  MagazynTestowy m(1);
  WczytajSetup();
  const qint64 konto = Konto(QStringLiteral("Konto"), 2);
  const qint64 drugie = Konto(QStringLiteral("Drugie"), 1);
  Kategoria(QStringLiteral("A"), 1, QStringLiteral("Pensja"));
  Kategoria(QStringLiteral("B"), 2, QStringLiteral("Jedzenie"));
  for (int i = 1; i <= 5; ++i)
    Wpis(QStringLiteral("transakcje"), konto, QStringLiteral("2026-11-1%1").arg(i), i == 2 ? 10 : 0,
         i == 2 ? 0 : i, QStringLiteral("w%1").arg(i));
  Wpis(QStringLiteral("zaplanowane"), konto, QStringLiteral("2026-11-25"), 0, 9, QStringLiteral("plan"));
  const qint64 przelew = Transfer(QStringLiteral("wewnetrzne"), konto, drugie, QStringLiteral("2026-11-05"), 5);

  struct Stan {
    int tryb = 0, rodzaj = 0, rodzajKategorii = 0, wiersz = 0;
    qint64 id = 0;
  };
  std::vector<Stan> edycje;
  ZastepczyEkran edytor(QStringLiteral("frmEdycjaTransakcji"), [&](QWidget*) {
    edycje.push_back({sesja.pubTryb, sesja.pubTransakcja.rodzaj, sesja.pubKategoria.rodzaj,
                      sesja.pubWierszTransakcji, sesja.pubTransakcja.id});
    // The edit moves the entry to the bottom of the list.
    if (sesja.pubTryb == 2)
      Zapisz(QStringLiteral("UPDATE transakcje SET data='2026-01-01' WHERE id=%1").arg(sesja.pubTransakcja.id));
  });
  frmMain f;
  f.show();
  QApplication::processEvents();
  QTreeWidget* lista = Lista(f, "lvwTransakcje");
  ASSERT_EQ(Kolumna(lista, 6), QStringList({"w5", "w4", "w3", "w2", "w1"}));
  DwuKlik(lista, 3);
  ASSERT_EQ(edycje.size(), 1u);
  EXPECT_EQ(edycje[0].tryb, 2);
  EXPECT_EQ(edycje[0].rodzaj, 1) << "an income";
  EXPECT_EQ(edycje[0].rodzajKategorii, 1);
  EXPECT_EQ(edycje[0].wiersz, 4);
  EXPECT_EQ(Kolumna(lista, 6), QStringList({"w5", "w4", "w3", "w1", "w2"}));
  ASSERT_NE(lista->currentItem(), nullptr);
  EXPECT_EQ(lista->indexOfTopLevelItem(lista->currentItem()), 3);
  EXPECT_TRUE(lista->currentItem()->isSelected());

  DwuKlik(Lista(f, "lvwZaplanowane"), 0);
  ASSERT_EQ(edycje.size(), 2u);
  EXPECT_EQ(edycje[1].tryb, 1);
  EXPECT_EQ(edycje[1].rodzaj, 2);

  // Enter on a row edits it too; the menu's edit waits for the menu to close.
  QMenu* menu = f.Lista(0)->Menu();
  const QPoint p = lista->visualItemRect(lista->topLevelItem(0)).center();
  QContextMenuEvent prawy(QContextMenuEvent::Mouse, p, lista->viewport()->mapToGlobal(p));
  QApplication::sendEvent(lista->viewport(), &prawy);
  EXPECT_EQ(lista->indexOfTopLevelItem(lista->currentItem()), 0) << "the right button selects";
  menu->actions().at(0)->trigger();
  menu->hide();
  EXPECT_EQ(edycje.size(), 2u);
  Czekaj(30);
  ASSERT_EQ(edycje.size(), 3u);
  EXPECT_EQ(edycje[2].wiersz, 1);

  // New items from the planned list's menu are planned.
  int nowyTryb = 0, nowyRodzaj = 0;
  qint64 noweId = -1;
  ZastepczyEkran nowy(QStringLiteral("frmEdycjaTransakcji"), [&](QWidget*) {
    nowyTryb = sesja.pubTryb;
    nowyRodzaj = sesja.pubTransakcja.rodzaj;
    noweId = sesja.pubTransakcja.id;
  });
  f.Lista(1)->Menu()->actions().at(4)->trigger();
  Czekaj(30);
  EXPECT_EQ(nowyTryb, 1);
  EXPECT_EQ(nowyRodzaj, 2);
  EXPECT_EQ(noweId, 0);

  // Transfers go to their editor with their id.
  qint64 transfer = 0;
  int trybTransferu = 0, wierszTransferu = 0;
  ZastepczyEkran edytorTransferu(QStringLiteral("frmEdycjaTransakcjiWewnetrznej"), [&](QWidget*) {
    transfer = sesja.pubTransfer;
    trybTransferu = sesja.pubTryb;
    wierszTransferu = sesja.pubWierszTransferu;
  });
  DwuKlik(Lista(f, "lvwWewnetrzne"), 0);
  EXPECT_EQ(transfer, przelew);
  EXPECT_EQ(trybTransferu, 2);
  EXPECT_EQ(wierszTransferu, 1);
}

// With nothing due the overview says so with today's date; otherwise it lists what is due up to
// today by group (income, expense, transfers) with counts and sums, and nothing of tomorrow.
// Its buttons pause, stop and hide, and bring it back; the text scrolls up while it runs.
TEST(Polecenia, DailyOverview) {
  MagazynTestowy m(1);
  WczytajSetup();
  const QDate dzis = Dzis();
  const QString data = FormatDaty(dzis, sesja.pubFormatDaty_ddpmmmmpyyyy);
  EXPECT_EQ(PrzegladDnia(dzis), Napis(QStringLiteral("frmMain217")) + data + napis(218) +
                                    QStringLiteral("\n") + napis(219) + QStringLiteral("\n\n") +
                                    napis(220));
  const qint64 konto = Konto(QStringLiteral("Konto"), 2);
  const qint64 drugie = Konto(QStringLiteral("Skarbonka"), 1);
  Kategoria(QStringLiteral("A"), 1, QStringLiteral("Pensja"));
  Kategoria(QStringLiteral("B"), 2, QStringLiteral("Czynsz"));
  Wpis(QStringLiteral("zaplanowane"), konto, QStringLiteral("2026-11-23"), 0, 99, QStringLiteral("jutro"));
  EXPECT_TRUE(PrzegladDnia(dzis).startsWith(napis(217))) << "tomorrow is not due";
  Wpis(QStringLiteral("zaplanowane"), konto, QStringLiteral("2026-11-22"), 4500, 0, QStringLiteral("wypłata"));
  Wpis(QStringLiteral("zaplanowane"), konto, QStringLiteral("2026-11-01"), 0, 1200, QStringLiteral("za mieszkanie"));
  Wpis(QStringLiteral("zaplanowane"), konto, QStringLiteral("2026-11-20"), 0, 0.5, QStringLiteral("drobne"));
  Transfer(QStringLiteral("zaplanowanewewnetrzne"), konto, drugie, QStringLiteral("2026-11-22"), 250,
           QStringLiteral("oszczędności"));
  const QString tekst = PrzegladDnia(dzis);
  const QString oczekiwany =
      napis(216) + data + QStringLiteral(") :\n") + napis(221) + QStringLiteral("1") + napis(222) +
      QStringLiteral(" 4 500.00 :\n") + FormatKwoty(4500) +
      QStringLiteral(" Pensja wypłata\n") + napis(223) + QStringLiteral("2") + napis(224) +
      QStringLiteral(" 1 200.50 :\n") + FormatKwoty(1200) +
      QStringLiteral(" Czynsz za mieszkanie\n") + FormatKwoty(0.5) + QStringLiteral(" Czynsz drobne\n") +
      napis(225) + QStringLiteral("1") + napis(226) + QStringLiteral(" 250.00 :\n") +
      FormatKwoty(250) + QLatin1Char(' ') + napis(214) + QStringLiteral(" Konto ") + napis(215) +
      QStringLiteral(" Skarbonka oszczędności\n");
  EXPECT_EQ(tekst, oczekiwany);

  frmMain f;
  f.show();
  PrzegladDniaGui* p = f.Przeglad();
  EXPECT_EQ(p->Tekst()->text(), tekst);
  EXPECT_TRUE(p->Zegar()->isActive());
  const int y = p->Tekst()->y();
  Czekaj(200);
  EXPECT_LT(p->Tekst()->y(), y) << "the text moves up";
  QPushButton* b[4];
  for (int i = 0; i < 4; ++i) b[i] = f.findChild<QPushButton*>(QStringLiteral("cmdPorada(%1)").arg(i));
  b[1]->click();
  EXPECT_FALSE(p->Zegar()->isActive());
  p->Wznow();
  EXPECT_TRUE(p->Zegar()->isActive()) << "activation resumes a paused overview";
  b[2]->click();
  EXPECT_FALSE(p->Zegar()->isActive());
  EXPECT_FALSE(f.findChild<QWidget*>(QStringLiteral("fraPoradaDnia"))->isVisible());
  EXPECT_FALSE(b[0]->isEnabled());
  EXPECT_FALSE(b[2]->isEnabled());
  EXPECT_TRUE(b[3]->isEnabled());
  p->Wznow();
  EXPECT_FALSE(p->Zegar()->isActive()) << "a stopped overview stays stopped";
  b[3]->click();
  EXPECT_TRUE(p->Zegar()->isActive());
  EXPECT_TRUE(f.findChild<QWidget*>(QStringLiteral("fraPoradaDnia"))->isVisible());
  EXPECT_TRUE(b[0]->isEnabled());
  EXPECT_FALSE(b[3]->isEnabled());
}

// The notepad comes from the setup row, its three buttons work on the text and the clipboard,
// and the close writes back exactly what stands there: apostrophes, tabs, Polish letters.
TEST(Polecenia, NotepadKeepsItsTextExactly) {
  MagazynTestowy m(1);
  WczytajSetup();
  Zapisz(QStringLiteral("UPDATE setup SET notatnik='Zapłacić ''czynsz''\tdo 10.'"));
  WczytajSetup();
  frmMain f;
  f.show();
  auto* pole = f.findChild<QPlainTextEdit*>(QStringLiteral("txtNotatnik"));
  ASSERT_NE(pole, nullptr);
  EXPECT_EQ(pole->toPlainText(), QStringLiteral("Zapłacić 'czynsz'\tdo 10."));
  EXPECT_TRUE(sesja.pubUstawienia.notatnik.isEmpty());

  f.findChild<QPushButton*>(QStringLiteral("cmdNotatnik(1)"))->click();
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Zapłacić 'czynsz'\tdo 10."));
  f.findChild<QPushButton*>(QStringLiteral("cmdNotatnik(0)"))->click();
  EXPECT_TRUE(pole->toPlainText().isEmpty());
  EXPECT_TRUE(m.host.pokazane.empty()) << "emptied with no question";
  pole->setPlainText(QStringLiteral("abcd"));
  QTextCursor c = pole->textCursor();
  c.setPosition(2);
  pole->setTextCursor(c);
  QGuiApplication::clipboard()->setText(QStringLiteral("Ż'\n"));
  f.findChild<QPushButton*>(QStringLiteral("cmdNotatnik(2)"))->click();
  EXPECT_EQ(pole->toPlainText(), QStringLiteral("abŻ'\ncd"));
  EXPECT_TRUE(pole->hasFocus() || !f.isActiveWindow());

  pole->setPlainText(QStringLiteral("O'Brien ''; DROP TABLE setup; --\n\tźdźbło"));
  f.close();
  EXPECT_EQ(pubBaza().Czytaj(QStringLiteral("SELECT notatnik FROM setup")).Tekst(QStringLiteral("notatnik")),
            QStringLiteral("O'Brien ''; DROP TABLE setup; --\n\tźdźbło"));
}

// Five chart modes: a button draws its own mode and a second press changes nothing; a click on
// the chart or its caption goes to the next, 4 wrapping to 0. The six months stand in their
// columns, oldest first, across the turn of the year, and the month before them stays out.
TEST(Polecenia, ChartModesAndTheSixMonths) {
  MagazynTestowy m(1);
  WczytajSetup();
  const qint64 konto = Konto(QStringLiteral("Konto"), 2, 300);
  Konto(QStringLiteral("Kredyt"), 5, -1000);
  for (int miesiac = 5; miesiac <= 11; ++miesiac) {
    Wpis(QStringLiteral("transakcje"), konto, QStringLiteral("2026-%1-03").arg(miesiac, 2, 10, QLatin1Char('0')),
         100 * miesiac, 0);
    Wpis(QStringLiteral("transakcje"), konto, QStringLiteral("2026-%1-04").arg(miesiac, 2, 10, QLatin1Char('0')),
         0, miesiac);
  }
  Wpis(QStringLiteral("transakcje"), konto, QStringLiteral("2025-11-04"), 0, 77);
  sesja.pubUstawienia.pubWykres = 0;
  frmMain f;
  f.show();
  PanelStanu* p = f.Panel();
  QBarSeries* s = Slupki(p);
  ASSERT_NE(s, nullptr);
  ASSERT_EQ(s->count(), 1);
  EXPECT_EQ(s->barSets()[0]->count(), 6);
  EXPECT_DOUBLE_EQ(s->barSets()[0]->at(1), 300 + 5600 - 56 - 77) << "the bank kind";
  EXPECT_DOUBLE_EQ(s->barSets()[0]->at(4), -1000) << "a loan hangs below zero";

  auto przycisk = [&](int i) { return f.findChild<QPushButton*>(QStringLiteral("cmdWykres(%1)").arg(i)); };
  przycisk(2)->click();
  EXPECT_EQ(sesja.pubUstawienia.pubWykres, 2);
  EXPECT_EQ(Tekst(f, "lblWykres"), napis(205) + QLatin1Char(' '));
  s = Slupki(p);
  ASSERT_NE(s, nullptr);
  QList<double> przychody;
  for (int i = 0; i < 6; ++i) przychody << s->barSets()[0]->at(i);
  EXPECT_EQ(przychody, QList<double>({600, 700, 800, 900, 1000, 1100})) << "June to November";
  EXPECT_TRUE(f.findChild<QWidget*>(QStringLiteral("chowacz"))->hasFocus() || !f.isActiveWindow());
  QChart* wykres = p->Wykres()->chart();
  przycisk(2)->click();
  EXPECT_EQ(p->Wykres()->chart(), wykres) << "the same mode draws nothing";

  Klik(p->Wykres()->viewport());
  EXPECT_EQ(sesja.pubUstawienia.pubWykres, 3);
  s = Slupki(p);
  EXPECT_DOUBLE_EQ(s->barSets()[0]->at(5), 11);
  Klik(f.findChild<QWidget*>(QStringLiteral("lblWykres")));
  EXPECT_EQ(sesja.pubUstawienia.pubWykres, 4);
  s = Slupki(p);
  ASSERT_EQ(s->count(), 2);
  EXPECT_DOUBLE_EQ(s->barSets()[1]->at(0), 6);
  Klik(p->Wykres()->viewport());
  EXPECT_EQ(sesja.pubUstawienia.pubWykres, 0);
  przycisk(1)->click();
  auto* kolo = qobject_cast<QPieSeries*>(p->Wykres()->chart()->series().value(0));
  ASSERT_NE(kolo, nullptr);
  EXPECT_DOUBLE_EQ(kolo->sum(), 300 + 5600 - 56 - 77) << "only what is above zero";

  // Across the turn of the year: October 2026 to March 2027; September stays out.
  Wpis(QStringLiteral("transakcje"), konto, QStringLiteral("2027-03-10"), 33, 0);
  Wpis(QStringLiteral("transakcje"), konto, QStringLiteral("2026-12-10"), 12, 0);
  Wpis(QStringLiteral("transakcje"), konto, QStringLiteral("2026-09-10"), 9, 0);
  const DaneWykresu d = WykresBilansu(1, QDate(2027, 3, 15));
  EXPECT_EQ(d.etykietyWierszy.size(), 6);
  EXPECT_DOUBLE_EQ(d.Wartosc(1, 1), 1000) << "October";
  EXPECT_DOUBLE_EQ(d.Wartosc(2, 1), 1100) << "November";
  EXPECT_DOUBLE_EQ(d.Wartosc(3, 1), 12) << "December";
  EXPECT_DOUBLE_EQ(d.Wartosc(6, 1), 33) << "March";

  // The picture for a report shows the bars.
  const QImage obraz = ObrazWykresu(WykresMiesiecy({100, 200, 300, 0, 50, 10}), QSize(300, 200));
  int zielone = 0;
  for (int y = 0; y < obraz.height(); ++y)
    for (int x = 0; x < obraz.width(); ++x)
      if (obraz.pixelColor(x, y) == QColor(0, 255, 0)) ++zielone;
  EXPECT_GT(zielone, 500);
}

// Commands run when their screen is there and stay disabled until it is registered; a report
// command hands the report its period.
TEST(Polecenia, CommandsFollowTheirScreens) {
  MagazynTestowy m(2);
  WczytajSetup();
  EXPECT_TRUE(MaPolecenie(QStringLiteral("mnuKreator")));
  Okres okres;
  QString fragment;
  ZastepczyEkran raport(QStringLiteral("frmRaportTransakcji"), [&](QWidget*) {
    okres = sesja.pubOkres;
    fragment = sesja.pubFiltrTransakcji;
  });
  frmMain f;
  auto* miesiac = f.findChild<QAction*>(QStringLiteral("mnuTransakcjeBiezacy(3)"));
  ASSERT_TRUE(miesiac->isEnabled());
  sesja.pubFiltrCzasowy.rodzaj = 1;
  miesiac->trigger();
  FiltrCzasowyRekord k;
  k.rodzaj = 3;
  EXPECT_EQ(okres.warunek, FiltrCzasowy(k).warunek);
  EXPECT_EQ(fragment, QStringLiteral(" AND transakcje.konto=konta.id "));
  EXPECT_EQ(sesja.pubFiltrCzasowy.rodzaj, 1) << "a report leaves the filter alone";
  // In English the thirteenth button is this week's report.
  auto* b13 = f.findChild<QPushButton*>(QStringLiteral("cmdMenu(13)"));
  ASSERT_TRUE(b13->isEnabled());
  b13->click();
  k.rodzaj = 2;
  EXPECT_EQ(okres.warunek, FiltrCzasowy(k).warunek);
  // A command whose screen is not registered stays off.
  EXPECT_TRUE(f.findChild<QPushButton*>(QStringLiteral("cmdMenu(22)"))->isEnabled());
  const Nawigacja::Ekran paragon = Nawigacja::Zarejestruj(QStringLiteral("frmParagon"), {});
  {
    frmMain bez;
    EXPECT_FALSE(bez.findChild<QPushButton*>(QStringLiteral("cmdMenu(22)"))->isEnabled());
  }
  Nawigacja::Zarejestruj(QStringLiteral("frmParagon"), paragon);
}

// Every numbered key the dashboard builds has a Polish and an English text.
TEST(Polecenia, EveryDashboardKeyHasBothTexts) {
  MagazynTestowy m(1);
  QList<int> numery;
  for (const auto& [od, do_] : {std::pair{113, 128}, {130, 138}, {140, 146}, {153, 174}, {176, 186},
                                {192, 229}})
    for (int i = od; i <= do_; ++i) numery << i;
  for (int n : numery) {
    const Rekordy rs = pubBaza().Czytaj(
        QStringLiteral("SELECT polski, angielski FROM jezyki WHERE kontrolka='frmMain%1'").arg(n));
    EXPECT_FALSE(rs.Tekst(QStringLiteral("polski")).trimmed().isEmpty()) << "frmMain" << n;
    EXPECT_FALSE(rs.Tekst(QStringLiteral("angielski")).trimmed().isEmpty()) << "frmMain" << n;
  }
}
