// Questions kept by the user: the short form of the list, the editor, the list with its states,
// counts, selection, changing and deleting, and the login to the service.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>

#include "pytania_pomoc.h"
#include "questions/frmUstawieniaInternetowe.h"
#include "questions/frmZadajPytanie.h"
#include "questions/frmZadajPytanieEdycja.h"
#include "questions/logowanie.h"
#include "store/session.h"
#include "store/start.h"
#include "ui/nawigacja_gui.h"

using namespace testy_pytan;

namespace {

// Runs co on the modal window that opens next (the editor), once it stands.
void PoOtwarciu(std::function<void(QWidget*)> co) {
  QTimer::singleShot(0, [co] {
    if (QWidget* w = QApplication::activeModalWidget()) co(w);
  });
}

void Kliknij(QWidget* okno, const char* nazwa) {
  auto* b = okno->findChild<QPushButton*>(QLatin1String(nazwa));
  ASSERT_NE(b, nullptr) << nazwa;
  b->click();
}

QStringList Kolumna(QTreeWidget* l, int k) {
  QStringList w;
  for (int i = 0; i < l->topLevelItemCount(); ++i) w << l->topLevelItem(i)->text(k);
  return w;
}

QString Tekst(QWidget* okno, const char* nazwa) {
  if (auto* t = okno->findChild<QPlainTextEdit*>(QLatin1String(nazwa))) return t->toPlainText();
  if (auto* l = okno->findChild<QLabel*>(QLatin1String(nazwa))) return l->text();
  return QStringLiteral("<no %1>").arg(QLatin1String(nazwa));
}

}  // namespace

TEST(Pytania, ShortFormAtTheBoundaryOfThirtyCharacters) {
  MagazynTestowy m;
  // 29 characters stay whole, blanks or not.
  EXPECT_EQ(SkroconyTekst(QStringLiteral("Ile kosztuje wersja dla firm?")),
            QStringLiteral("Ile kosztuje wersja dla firm?"));
  // 30, the 30th a blank: cut there.
  EXPECT_EQ(SkroconyTekst(QStringLiteral("Ile kosztuje wersja dla firmy ")),
            QStringLiteral("Ile kosztuje wersja dla firmy ..."));
  // 30 with no blank from the 30th on: nothing to cut at.
  EXPECT_EQ(SkroconyTekst(QStringLiteral("Ile kosztuje wersja dla firmy?")),
            QStringLiteral("Ile kosztuje wersja dla firmy?"));
  EXPECT_EQ(SkroconyTekst(QStringLiteral("Ile kosztuje wersja dla firmy X")),
            QStringLiteral("Ile kosztuje wersja dla firmy ..."));
  // Polish letters count as one character each; a blank before the 30th is not a cut.
  EXPECT_EQ(SkroconyTekst(QStringLiteral("Czy mogę prowadzić w programie dwa budżety domowe?")),
            QStringLiteral("Czy mogę prowadzić w programie ..."));
  EXPECT_EQ(SkroconyTekst(QStringLiteral("Jak przenieść dane zażółć gęś jaźń")),
            QStringLiteral("Jak przenieść dane zażółć gęś ..."));
}

TEST(Pytania, EditorStoresTheTextExactlyAndRefusesBlankOrTooLong) {
  MagazynTestowy m;
  pubPytanie = 0;
  {
    frmZadajPytanieEdycja f;
    f.findChild<QPlainTextEdit*>(QStringLiteral("txtPytanie"))
        ->setPlainText(QStringLiteral(" \n\t "));
    Kliknij(&f, "cmdOK");
    EXPECT_NE(f.result(), QDialog::Accepted);
    ASSERT_EQ(Tytuly(m.host), QStringList{Napis(QStringLiteral("frmZadajPytanieEdycja4"))});
    EXPECT_EQ(m.host.pokazane[0].tekst, Napis(QStringLiteral("frmZadajPytanieEdycja3")));
    EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM pytania")), 0);

    // Apostrophes, Polish letters and a line break are kept; the break as CR LF.
    const QString tekst = QStringLiteral("Czy 'O'Hara' - zażółć gęślą jaźń?\nDruga linia.");
    f.findChild<QPlainTextEdit*>(QStringLiteral("txtPytanie"))->setPlainText(tekst);
    Kliknij(&f, "cmdOK");
    EXPECT_EQ(f.result(), QDialog::Accepted);
    ASSERT_GT(pubPytanie, 0);
    EXPECT_EQ(Kolumna(pubPytanie, "pytanie"),
              QStringLiteral("Czy 'O'Hara' - zażółć gęślą jaźń?\r\nDruga linia."));
    EXPECT_EQ(Kolumna(pubPytanie, "datawyslania"), QString());
  }
  // Changing it: the editor shows the text, OK writes it over the same row.
  const qint64 id = pubPytanie;
  {
    frmZadajPytanieEdycja f;
    auto* t = f.findChild<QPlainTextEdit*>(QStringLiteral("txtPytanie"));
    EXPECT_EQ(t->toPlainText(), QStringLiteral("Czy 'O'Hara' - zażółć gęślą jaźń?\nDruga linia."));
    EXPECT_EQ(f.windowTitle(), Napis(QStringLiteral("frmZadajPytanieEdycja2")));
    // 1999 characters and a line break make 2000, the most there is room for.
    t->setPlainText(QString(1999, QLatin1Char('x')) + QLatin1Char('\n'));
    Kliknij(&f, "cmdOK");
    EXPECT_EQ(f.result(), QDialog::Accepted);
    EXPECT_EQ(pubPytanie, id);
  }
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM pytania")), 1);
  EXPECT_EQ(Kolumna(id, "pytanie").size(), 2001);
  {
    m.host.pokazane.clear();
    frmZadajPytanieEdycja f;
    f.findChild<QPlainTextEdit*>(QStringLiteral("txtPytanie"))->setPlainText(QString(2001, u'ż'));
    Kliknij(&f, "cmdOK");
    EXPECT_NE(f.result(), QDialog::Accepted);
    ASSERT_EQ(m.host.pokazane.size(), 1u);
    EXPECT_TRUE(m.host.pokazane[0].tekst.contains(QStringLiteral("2001")));
    EXPECT_EQ(Kolumna(id, "pytanie").size(), 2001);  // the stored text is untouched
    EXPECT_FALSE(Kolumna(id, "pytanie").contains(u'ż'));
  }
}

TEST(Pytania, ListShowsStatesCountsAndTheChosenQuestion) {
  MagazynTestowy m;
  sesja.pubUstawienia.userid = QStringLiteral("jan");
  Wstaw(QStringLiteral("Czy mogę prowadzić w programie dwa budżety domowe?"), 'a');
  Wstaw(QStringLiteral("Kredyt - rata\r\nz odsetkami?"), 'b');
  Wstaw(QStringLiteral("Ćwiczenie"), 'c', QStringLiteral("17"),
        QStringLiteral("Odpowiedź z 'cudzysłowem'\r\ni drugą linią."));
  Wstaw(QStringLiteral("Apteka"), 'a');

  frmZadajPytanie f;
  auto* lista = f.findChild<QTreeWidget*>(QStringLiteral("lvwPytania"));
  ASSERT_NE(lista, nullptr);
  EXPECT_EQ(Kolumna(lista, 0), (QStringList{Napis(QStringLiteral("frmZadajPytanie40")),
                                            Napis(QStringLiteral("frmZadajPytanie41")),
                                            Napis(QStringLiteral("frmZadajPytanie45")),
                                            Napis(QStringLiteral("frmZadajPytanie40"))}));
  // The unsent state's word is the one that begins with "n" in both editions.
  EXPECT_TRUE(Kolumna(lista, 0)[0].startsWith(u'n'));
  EXPECT_FALSE(Kolumna(lista, 0)[1].startsWith(u'n'));
  EXPECT_EQ(Kolumna(lista, 3),
            (QStringList{QStringLiteral("Czy mogę prowadzić w programie ..."),
                         QStringLiteral("Kredyt - rata z odsetkami?"), QStringLiteral("Ćwiczenie"),
                         QStringLiteral("Apteka")}));
  EXPECT_EQ(Kolumna(lista, 1)[1], QStringLiteral("02-lis-26"));
  EXPECT_EQ(Kolumna(lista, 2)[2], QStringLiteral("05-lis-26"));
  EXPECT_EQ(Tekst(&f, "lblNieWyslane"), Napis(QStringLiteral("frmZadajPytanie42")) + " 2");
  EXPECT_EQ(Tekst(&f, "lblBezOdpowiedzi"), Napis(QStringLiteral("frmZadajPytanie43")) + " 1");

  lista->setCurrentItem(lista->topLevelItem(2));
  EXPECT_EQ(Tekst(&f, "txtPytanie"), QStringLiteral("Ćwiczenie"));
  EXPECT_EQ(Tekst(&f, "txtOdpowiedz"), QStringLiteral("Odpowiedź z 'cudzysłowem'\ni drugą linią."));
  EXPECT_EQ(Tekst(&f, "lblStan"), Napis(QStringLiteral("frmZadajPytanie34")));
  lista->setCurrentItem(lista->topLevelItem(0));
  EXPECT_EQ(Tekst(&f, "txtPytanie"),
            QStringLiteral("Czy mogę prowadzić w programie dwa budżety domowe?"));
  EXPECT_EQ(Tekst(&f, "txtOdpowiedz"), QString());
  EXPECT_EQ(Tekst(&f, "lblStan"), Napis(QStringLiteral("frmZadajPytanie32")));
  lista->setCurrentItem(lista->topLevelItem(1));
  EXPECT_EQ(Tekst(&f, "lblStan"), Napis(QStringLiteral("frmZadajPytanie33")));

  // A click on the question's heading sorts in the Polish order; a second turns it round.
  lista->header()->sectionClicked(3);
  EXPECT_EQ(Kolumna(lista, 3)[0], QStringLiteral("Apteka"));
  EXPECT_EQ(Kolumna(lista, 3)[2], QStringLiteral("Ćwiczenie"));
  lista->header()->sectionClicked(3);
  EXPECT_EQ(Kolumna(lista, 3)[3], QStringLiteral("Apteka"));
}

TEST(Pytania, OnlyUnsentQuestionsChangeAndAnyCanBeDeleted) {
  MagazynTestowy m;
  sesja.pubUstawienia.userid = QStringLiteral("jan");
  const qint64 a = Wstaw(QStringLiteral("Pierwsze"), 'a');
  const qint64 b = Wstaw(QStringLiteral("Wysłane"), 'b');
  const qint64 c = Wstaw(QStringLiteral("Z odpowiedzią"), 'c');
  frmZadajPytanie f;
  auto* lista = f.findChild<QTreeWidget*>(QStringLiteral("lvwPytania"));

  // A sent question: told so, no editor.
  bool edytorOtwarty = false;
  const auto pilnuj = [&] {
    PoOtwarciu([&](QWidget* w) {
      edytorOtwarty = true;
      w->close();
    });
  };
  for (int wiersz : {1, 2}) {
    lista->setCurrentItem(lista->topLevelItem(wiersz));
    pilnuj();
    Kliknij(&f, "cmdEdytuj");
    QApplication::processEvents();
  }
  EXPECT_FALSE(edytorOtwarty);
  ASSERT_EQ(Tytuly(m.host), QStringList(2, Napis(QStringLiteral("frmZadajPytanie20"))));
  EXPECT_EQ(m.host.pokazane[0].tekst, Napis(QStringLiteral("frmZadajPytanie18")) +
                                          Napis(QStringLiteral("frmZadajPytanie19")));

  // The unsent one opens in the editor; the list shows the change and keeps it chosen.
  lista->setCurrentItem(lista->topLevelItem(0));
  PoOtwarciu([](QWidget* w) {
    w->findChild<QPlainTextEdit*>(QStringLiteral("txtPytanie"))
        ->setPlainText(QStringLiteral("Pierwsze, poprawione"));
    w->findChild<QPushButton*>(QStringLiteral("cmdOK"))->click();
  });
  Kliknij(&f, "cmdEdytuj");
  EXPECT_EQ(Kolumna(lista, 3)[0], QStringLiteral("Pierwsze, poprawione"));
  EXPECT_EQ(Kolumna(a, "pytanie"), QStringLiteral("Pierwsze, poprawione"));
  EXPECT_EQ(Tekst(&f, "txtPytanie"), QStringLiteral("Pierwsze, poprawione"));

  // Adding: the new question comes at the end, chosen, unsent.
  PoOtwarciu([](QWidget* w) {
    w->findChild<QPlainTextEdit*>(QStringLiteral("txtPytanie"))
        ->setPlainText(QStringLiteral("Nowe"));
    w->findChild<QPushButton*>(QStringLiteral("cmdOK"))->click();
  });
  Kliknij(&f, "cmdDodaj");
  ASSERT_EQ(lista->topLevelItemCount(), 4);
  EXPECT_EQ(lista->currentItem(), lista->topLevelItem(3));
  EXPECT_EQ(Tekst(&f, "lblNieWyslane"), Napis(QStringLiteral("frmZadajPytanie42")) + " 2");

  // Deleting the answered one with the button and the sent one with the Delete key.
  lista->setCurrentItem(lista->topLevelItem(2));
  Kliknij(&f, "cmdKasuj");
  lista->setCurrentItem(lista->topLevelItem(1));
  QKeyEvent del(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
  QApplication::sendEvent(lista, &del);
  EXPECT_EQ(
      m.Licz(QStringLiteral("SELECT COUNT(*) FROM pytania WHERE id IN (%1,%2)").arg(b).arg(c)), 0);
  EXPECT_EQ(Kolumna(lista, 3),
            (QStringList{QStringLiteral("Pierwsze, poprawione"), QStringLiteral("Nowe")}));
  EXPECT_EQ(Tekst(&f, "lblBezOdpowiedzi"), Napis(QStringLiteral("frmZadajPytanie43")) + " 0");
}

TEST(Pytania, LoginIsAskedForSavedAndItsPasswordNeverShown) {
  MagazynTestowy m;
  WczytajSetup();
  // The store's upgrade gave setup its address column, once.
  const auto kolumny = [] {
    return pubBaza().Czytaj(QStringLiteral("SELECT * FROM setup")).NazwyPol();
  };
  EXPECT_EQ(kolumny().count(QStringLiteral("adresserwisu")), 1);
  EXPECT_TRUE(AktualizujBaze());
  EXPECT_EQ(kolumny().count(QStringLiteral("adresserwisu")), 1);
  EXPECT_EQ(AdresSerwisu(), DomyslnyAdresSerwisu());
  EXPECT_TRUE(DomyslnyAdresSerwisu().startsWith(QLatin1String("https://")));

  // With no identifier the list says so and opens the login screen.
  int otwarcia = 0;
  auto dawny = Nawigacja::Zarejestruj(QStringLiteral("frmUstawieniaInternetowe"),
                                      [&](QWidget*) { ++otwarcia; });
  {
    frmZadajPytanie f;
    f.show();
    QApplication::processEvents();
    EXPECT_EQ(otwarcia, 1);
    EXPECT_EQ(Tytuly(m.host), QStringList{Napis(QStringLiteral("frmZadajPytanie39"))});
    f.hide();
  }
  Nawigacja::Zarejestruj(QStringLiteral("frmUstawieniaInternetowe"), dawny);
  m.host.pokazane.clear();

  const QString haslo = QStringLiteral("Zażółć&Hasło 1");
  frmUstawieniaInternetowe f;
  auto pole = [&](const char* n) { return f.findChild<QLineEdit*>(QLatin1String(n)); };
  EXPECT_EQ(pole("txtHasloSerwisu")->echoMode(), QLineEdit::Password);
  f.findChild<QCheckBox*>(QStringLiteral("chkPokazHaslo"))->setChecked(true);
  EXPECT_EQ(pole("txtHasloSerwisu")->echoMode(), QLineEdit::Normal);
  pole("txtHasloSerwisu")->setText(haslo);
  Kliknij(&f, "cmdOK");
  pole("txtUserId")->setText(QStringLiteral("jan.kowalski"));
  pole("txtAdresSerwisu")->setText(QStringLiteral("ftp://serwer.pl"));
  Kliknij(&f, "cmdOK");
  EXPECT_EQ(Tytuly(m.host), (QStringList{Napis(QStringLiteral("frmUstawieniaInternetowe6")),
                                         Napis(QStringLiteral("frmUstawieniaInternetowe12"))}));
  EXPECT_NE(f.result(), QDialog::Accepted);
  EXPECT_EQ(sesja.pubUstawienia.userid, QString());

  // A store that refuses the write: told, the window keeps what was typed, the password is in
  // neither the message nor the log.
  Surowo(
      "CREATE TRIGGER pelny BEFORE UPDATE ON setup BEGIN SELECT RAISE(ABORT, 'disk is full'); END");
  pole("txtAdresSerwisu")->setText(QStringLiteral("http://127.0.0.1:8080/wsparcie/"));
  EXPECT_TRUE(f.findChild<QLabel*>(QStringLiteral("lblOstrzezenie"))->isVisibleTo(&f));
  Kliknij(&f, "cmdOK");
  ASSERT_EQ(m.host.pokazane.size(), 3u);
  EXPECT_TRUE(m.host.pokazane[2].tekst.contains(QStringLiteral("disk is full")));
  EXPECT_NE(f.result(), QDialog::Accepted);
  EXPECT_EQ(pole("txtHasloSerwisu")->text(), haslo);
  EXPECT_TRUE(Log(m).contains(QStringLiteral("disk is full")));
  Surowo("DROP TRIGGER pelny");

  Kliknij(&f, "cmdOK");
  EXPECT_EQ(f.result(), QDialog::Accepted);
  EXPECT_EQ(sesja.pubUstawienia.userid, QStringLiteral("jan.kowalski"));
  EXPECT_EQ(sesja.pubUstawienia.hasloserwisu, haslo);
  const LogowanieSerwisu l = CzytajLogowanie();
  EXPECT_EQ(l.hasloserwisu, haslo);
  EXPECT_EQ(AdresSerwisu(), QStringLiteral("http://127.0.0.1:8080/wsparcie/"));
  {
    frmUstawieniaInternetowe znowu;
    EXPECT_EQ(znowu.findChild<QLineEdit*>(QStringLiteral("txtUserId"))->text(),
              QStringLiteral("jan.kowalski"));
    EXPECT_EQ(znowu.findChild<QLineEdit*>(QStringLiteral("txtHasloSerwisu"))->text(), haslo);
  }
  for (const Komunikat& k : m.host.pokazane)
    EXPECT_FALSE(k.tekst.contains(QStringLiteral("Hasło 1")));
  EXPECT_FALSE(Log(m).contains(QStringLiteral("Hasło 1")));
  EXPECT_FALSE(Log(m).contains(QStringLiteral("Zażółć")));
}
