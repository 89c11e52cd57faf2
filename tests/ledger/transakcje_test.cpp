// The entry editor driven as a user does: the six situations of its callers and realising, every
// check of OK in its order with the questions answered, the cover of each account kind, the rows
// as stored, and the move of a realised entry as one change.

#include "ledger/transakcje.h"

#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

#include <QDateEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <memory>

#include "common/magazyn_testowy.h"
#include "ledger/frmEdycjaTransakcji.h"
#include "ledger/transakcje_pomoc.h"
#include "store/filtr.h"
#include "store/tekst.h"

using namespace testy_wpisow;

namespace {

class EdytorWpisu : public ::testing::Test {
 protected:
  void SetUp() override {
    for (int r = 1; r <= 6; ++r) konto[r] = KontoT(QStringLiteral("Konto%1").arg(r), r, 100.0);
    KategoriaT(QStringLiteral("a"), 1, QStringLiteral("Pensja"));
    KategoriaT(QStringLiteral("a"), 2, QStringLiteral("Dom"));
    KategoriaT(QStringLiteral("aa"), 2, QStringLiteral("Czynsz"));
    sklep = KontrahentT(QStringLiteral("Sklep"));
  }

  std::unique_ptr<frmEdycjaTransakcji> Otworz(int tryb, qint64 id, int rodzaj) {
    sesja.pubTryb = tryb;
    sesja.pubTransakcja.id = id;
    sesja.pubTransakcja.rodzaj = rodzaj;
    sesja.pubKategoria.rodzaj = rodzaj;
    auto f = std::make_unique<frmEdycjaTransakcji>();
    f->show();
    return f;
  }
  // What the three pickers leave behind.
  void Wybierz(frmEdycjaTransakcji& f, qint64 k, const QString& kategoria, qint64 kontrahent = 0) {
    sesja.pubKonto = WybraneKonto(k);
    sesja.pubKategoria.identyfikator = kategoria;
    sesja.pubKontrahent.id = kontrahent;
    f.OdswiezEtykiety();
  }
  static void Kwota(QWidget* f, const QString& t) {
    Kontrolka<QLineEdit>(f, "txtKwota")->setText(t);
  }
  static void Ok(QWidget* f) { Kontrolka<QPushButton>(f, "cmdOk")->click(); }
  QString Pole(const QString& sql) { return pubBaza().Czytaj(sql).Pole(0).toString(); }
  static void Zmien(const QString& sql) {
    ASSERT_TRUE(pubBaza().Wykonaj(sql).ok) << sql.toStdString();
  }

  MagazynTestowy m;
  qint64 konto[7] = {};
  qint64 sklep = 0;
};

const QStringList kTytuly = {
    QStringLiteral("frmEdycjaTransakcji30"), QStringLiteral("frmEdycjaTransakcji32"),
    QStringLiteral("frmEdycjaTransakcji34"), QStringLiteral("frmEdycjaTransakcji36"),
    QStringLiteral("frmEdycjaTransakcji38"), QStringLiteral("frmEdycjaTransakcji41"),
    QStringLiteral("frmEdycjaTransakcji47"), QStringLiteral("frmEdycjaTransakcji62")};

}  // namespace

// New executed and planned income and expense, then an executed and a planned one edited, and a
// planned one realised: each with its title, its frames, its table and its row.
TEST_F(EdytorWpisu, CallerSituationsWriteTheirRows) {
  sesja.pubPrzedefiniowanaData = QDate(2026, 11, 3);
  auto f = Otworz(2, 0, 1);
  EXPECT_EQ(f->windowTitle(), Napis(QStringLiteral("frmEdycjaTransakcji48")));
  EXPECT_EQ(Kontrolka<QGroupBox>(f.get(), "fraKonto")->title(),
            Napis(QStringLiteral("frmEdycjaTransakcji49")));
  EXPECT_FALSE(Kontrolka<QPushButton>(f.get(), "cmdRealizuj")->isVisible());
  EXPECT_TRUE(Kontrolka<QPushButton>(f.get(), "cmdWybierzSzablon")->isEnabled());
  EXPECT_EQ(Kontrolka<QDateEdit>(f.get(), "dtpData")->date(), QDate(2026, 11, 3));
  EXPECT_EQ(Kontrolka<QLineEdit>(f.get(), "txtKwota")->text(), QStringLiteral("0.00"));
  EXPECT_EQ(Kontrolka<QLabel>(f.get(), "lblKonto")->text(),
            Napis(QStringLiteral("frmEdycjaTransakcji9")));
  EXPECT_TRUE(sesja.pubEdytorOtwarty);
  Wybierz(*f, konto[2], QStringLiteral("a"), sklep);
  EXPECT_EQ(Kontrolka<QLabel>(f.get(), "lblKonto")->text(),
            QStringLiteral("Konto2 (") + NazwaRodzajuKonta(2) + ')');
  EXPECT_EQ(Kontrolka<QLabel>(f.get(), "lblKontrahent")->text(), QStringLiteral("Sklep"));
  Kwota(f.get(), QStringLiteral("2500.50"));
  Kontrolka<QLineEdit>(f.get(), "txtOpis")->setText(QStringLiteral("Pensja"));
  Ok(f.get());
  EXPECT_EQ(f->result(), QDialog::Accepted);
  EXPECT_TRUE(m.host.pokazane.empty());
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje WHERE rodzaj=1 AND "
                                  "przychod=2500.5 AND wydatek=0 AND "
                                  "data='2026-11-03' AND kategoria='a' AND konto=%1 AND "
                                  "kontrahent=%2 AND opis='Pensja  '")
                       .arg(konto[2])
                       .arg(sklep)),
            1);
  f.reset();
  EXPECT_FALSE(sesja.pubEdytorOtwarty);

  sesja.pubPrzedefiniowanaData = QDate();
  f = Otworz(2, 0, 2);
  EXPECT_EQ(f->windowTitle(), Napis(QStringLiteral("frmEdycjaTransakcji51")));
  EXPECT_EQ(Kontrolka<QGroupBox>(f.get(), "fraKategoria")->title(),
            Napis(QStringLiteral("frmEdycjaTransakcji53")));
  EXPECT_EQ(Kontrolka<QDateEdit>(f.get(), "dtpData")->date(), sesja.pubFiltrCzasowy.pozycja);
  EXPECT_EQ(sesja.pubKontrahent.id, 0);  // a new entry starts with no counterparty
  Wybierz(*f, konto[1], QStringLiteral("aa"));
  EXPECT_EQ(Kontrolka<QLabel>(f.get(), "lblKategoria")->text(), QStringLiteral("Czynsz (Dom)"));
  Kwota(f.get(), QStringLiteral("40.25"));
  Ok(f.get());
  const QString wydatek = Pole(QStringLiteral("SELECT MAX(id) FROM transakcje WHERE rodzaj=2"));
  EXPECT_EQ(
      m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje WHERE id=%1 AND wydatek=40.25 AND "
                            "przychod=0 AND kontrahent=0 AND opis='  '")
                 .arg(wydatek)),
      1);

  // Planned: no cover check however large, and the title says so.
  for (int rodzaj : {1, 2}) {
    f = Otworz(1, 0, rodzaj);
    EXPECT_EQ(f->windowTitle(), (rodzaj == 1 ? Napis(QStringLiteral("frmEdycjaTransakcji48"))
                                             : Napis(QStringLiteral("frmEdycjaTransakcji51"))) +
                                    ' ' + Napis(QStringLiteral("frmEdycjaTransakcji60")));
    Wybierz(*f, konto[1], rodzaj == 1 ? QStringLiteral("a") : QStringLiteral("aa"));
    Kwota(f.get(), QStringLiteral("999999.99"));
    Ok(f.get());
    EXPECT_EQ(f->result(), QDialog::Accepted);
  }
  EXPECT_TRUE(m.host.pokazane.empty());
  EXPECT_EQ(
      m.Licz(QStringLiteral("SELECT COUNT(*) FROM zaplanowane WHERE przychod+wydatek=999999.99")),
      2);

  // An executed entry edited: read back, confirmed, updated in place, kind unchanged.
  m.host.odpowiedzi = {WynikTak};
  f = Otworz(2, wydatek.toLongLong(), 2);
  EXPECT_EQ(f->windowTitle(), Napis(QStringLiteral("frmEdycjaTransakcji57")));
  EXPECT_EQ(Kontrolka<QLineEdit>(f.get(), "txtKwota")->text(), QStringLiteral("40.25"));
  EXPECT_EQ(Kontrolka<QLabel>(f.get(), "lblKonto")->text(),
            QStringLiteral("Konto1 (") + NazwaRodzajuKonta(1) + ')');
  EXPECT_EQ(sesja.pubKonto.datautworzenia, QDate(2026, 1, 1));
  EXPECT_FALSE(Kontrolka<QPushButton>(f.get(), "cmdRealizuj")->isVisible());
  Kwota(f.get(), QStringLiteral("41.00"));
  Ok(f.get());
  EXPECT_EQ(TytulyKomunikatow(m.host, kTytuly),
            QStringList{QStringLiteral("frmEdycjaTransakcji30")});
  EXPECT_EQ(m.host.pokazane[0].tekst, Napis(QStringLiteral("frmEdycjaTransakcji29")));
  EXPECT_EQ(
      Pole(QStringLiteral("SELECT wydatek||'/'||rodzaj||'/'||opis FROM transakcje WHERE id=") +
           wydatek),
      QStringLiteral("41.0/2/ "));

  // A planned one edited stays planned and offers realising.
  const qint64 plan = WpisT(QStringLiteral("zaplanowane"), 1, 70, QStringLiteral("2026-12-01"),
                            konto[2], QStringLiteral("a"), sklep, QStringLiteral("Zwrot"));
  m.host.pokazane.clear();
  m.host.odpowiedzi = {WynikTak};
  f = Otworz(1, plan, 1);
  EXPECT_EQ(f->windowTitle(), Napis(QStringLiteral("frmEdycjaTransakcji54")) + ' ' +
                                  Napis(QStringLiteral("frmEdycjaTransakcji60")));
  EXPECT_TRUE(Kontrolka<QPushButton>(f.get(), "cmdRealizuj")->isVisible());
  EXPECT_EQ(Kontrolka<QLineEdit>(f.get(), "txtOpis")->text(), QStringLiteral("Zwrot"));
  Kwota(f.get(), QStringLiteral("75.00"));
  Ok(f.get());
  EXPECT_EQ(
      m.Licz(QStringLiteral(
                 "SELECT COUNT(*) FROM zaplanowane WHERE id=%1 AND przychod=75 AND kontrahent=%2")
                 .arg(plan)
                 .arg(sklep)),
      1);

  // Realising it: the date in the question, then the executed row takes its place.
  m.host.pokazane.clear();
  m.host.odpowiedzi = {WynikTak};
  f = Otworz(1, plan, 1);
  Kontrolka<QDateEdit>(f.get(), "dtpData")->setDate(QDate(2026, 11, 20));
  Kontrolka<QPushButton>(f.get(), "cmdRealizuj")->click();
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_EQ(m.host.pokazane[0].tekst,
            Napis(QStringLiteral("frmEdycjaTransakcji28")) + ' ' +
                FormatDaty(QDate(2026, 11, 20), sesja.pubFormatDaty_ddpmmmmpyy) +
                QStringLiteral(" ?"));
  EXPECT_EQ(f->result(), QDialog::Accepted);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM zaplanowane WHERE id=%1").arg(plan)), 0);
  EXPECT_EQ(
      m.Licz(QStringLiteral(
                 "SELECT COUNT(*) FROM transakcje WHERE przychod=75 AND data='2026-11-20' AND "
                 "kontrahent=%1 AND opis='Zwrot  '")
                 .arg(sklep)),
      1);
}

// OK checks in a fixed order and stops at the first that says so; Nie to the first question
// closes the form, Nie to a later one returns to it with nothing written.
TEST_F(EdytorWpisu, ChecksRunInOrderAndNieDecidesBetweenClosingAndReturning) {
  Zmien(QStringLiteral("UPDATE konta SET datautworzenia='2026-11-10' WHERE id=%1").arg(konto[1]));
  auto f = Otworz(2, 0, 2);
  Ok(f.get());  // amount 0
  Kwota(f.get(), QStringLiteral("150.00"));
  Ok(f.get());  // no account
  sesja.pubKonto = WybraneKonto(konto[1]);
  Ok(f.get());  // no category
  sesja.pubKategoria.identyfikator = QStringLiteral("aa");
  Kontrolka<QDateEdit>(f.get(), "dtpData")->setDate(QDate(2026, 11, 9));
  m.host.odpowiedzi = {WynikNie};  // before the account's creation: Nie
  Ok(f.get());
  m.host.odpowiedzi = {WynikTak, WynikNie};  // ...Tak; the cover (100 < 150): Nie
  Ok(f.get());
  EXPECT_TRUE(f->isVisible());
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje")), 0);
  m.host.odpowiedzi = {WynikTak, WynikTak};
  Ok(f.get());
  EXPECT_EQ(TytulyKomunikatow(m.host, kTytuly),
            (QStringList{"frmEdycjaTransakcji34", "frmEdycjaTransakcji36", "frmEdycjaTransakcji38",
                         "frmEdycjaTransakcji41", "frmEdycjaTransakcji41", "frmEdycjaTransakcji47",
                         "frmEdycjaTransakcji41", "frmEdycjaTransakcji47"}));
  EXPECT_EQ(m.host.pokazane[3].tekst, Napis(QStringLiteral("frmEdycjaTransakcji39")) +
                                          QStringLiteral("\r\n") +
                                          Napis(QStringLiteral("frmEdycjaTransakcji40")));
  EXPECT_EQ(m.host.pokazane[0].przyciski, int(MsgOK));
  EXPECT_EQ(m.host.pokazane[3].przyciski, int(MsgTakNie));
  EXPECT_EQ(f->result(), QDialog::Accepted);
  EXPECT_EQ(m.Licz(QStringLiteral(
                "SELECT COUNT(*) FROM transakcje WHERE data='2026-11-09' AND wydatek=150")),
            1);

  // An income's zero amount has its own message; "", "0,00" and "0.00" are all zero.
  for (const QString& zero : {QString(), QStringLiteral("0,00"), QStringLiteral("0.00")}) {
    m.host.pokazane.clear();
    auto g = Otworz(2, 0, 1);
    Wybierz(*g, konto[2], QStringLiteral("a"));
    Kwota(g.get(), zero);
    Ok(g.get());
    EXPECT_EQ(TytulyKomunikatow(m.host, kTytuly),
              QStringList{QStringLiteral("frmEdycjaTransakcji32")});
    EXPECT_TRUE(g->isVisible());
  }

  // Nie to the confirmation of an edit closes the form and leaves the row as it was.
  const qint64 id = WpisT(QStringLiteral("transakcje"), 2, 10, QStringLiteral("2026-11-20"),
                          konto[1], QStringLiteral("aa"));
  m.host.pokazane.clear();
  m.host.odpowiedzi = {WynikNie};
  f = Otworz(2, id, 2);
  Kwota(f.get(), QStringLiteral("0.00"));
  Ok(f.get());
  EXPECT_EQ(f->result(), QDialog::Rejected);
  EXPECT_FALSE(f->isVisible());
  EXPECT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_EQ(
      m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje WHERE id=%1 AND wydatek=10").arg(id)),
      1);
}

// The cover of each account kind, with balance 50 and limit 100: equality is covered, one grosz
// more asks. Cash and deposits ignore the limit; loans and "other" with limit 0 never ask. An edit
// of an executed entry never asks; realising does.
TEST_F(EdytorWpisu, CoverCheckByAccountKindAtEqualityAndAbove) {
  for (int r = 1; r <= 6; ++r)
    Zmien(QStringLiteral("UPDATE konta SET bowinien=50, limit=100 WHERE id=%1").arg(konto[r]));
  for (int r = 1; r <= 6; ++r) {
    const double rowna = (r == 1 || r == 4) ? 50.0 : 150.0;
    for (double kwota : {rowna, rowna + 0.01}) {
      Zmien(QStringLiteral("DELETE FROM transakcje"));  // the balance stays 50 for each try
      m.host.pokazane.clear();
      m.host.odpowiedzi = {WynikNie};
      auto f = Otworz(2, 0, 2);
      Wybierz(*f, konto[r], QStringLiteral("aa"));
      Kwota(f.get(), FormatKwotyEdycja(kwota));
      Ok(f.get());
      const bool pyta = kwota > rowna;
      EXPECT_EQ(m.host.pokazane.size(), pyta ? 1u : 0u) << "kind " << r << " amount " << kwota;
      EXPECT_EQ(f->result(), pyta ? 0 : int(QDialog::Accepted)) << "kind " << r;
      if (pyta) {
        EXPECT_EQ(m.host.pokazane[0].tekst.toStdString(),
                  (Napis(QStringLiteral("frmEdycjaTransakcji42")) +
                   QStringLiteral(" 'Konto%1'\r\n").arg(r) +
                   Napis(QStringLiteral("frmEdycjaTransakcji43")) + ' ' + KwotaWaluty(100) + ' ' +
                   Napis(QStringLiteral("frmEdycjaTransakcji44")) + QStringLiteral("\r\n") +
                   Napis(QStringLiteral("frmEdycjaTransakcji45")) + ' ' +
                   KwotaWaluty(std::abs(150 - kwota)) + QStringLiteral(", \r\n") +
                   Napis(QStringLiteral("frmEdycjaTransakcji46")))
                      .toStdString());
      }
    }
  }
  m.host.pokazane.clear();
  for (int r : {5, 6}) {
    Zmien(QStringLiteral("UPDATE konta SET limit=0 WHERE id=%1").arg(konto[r]));
    auto f = Otworz(2, 0, 2);
    Wybierz(*f, konto[r], QStringLiteral("aa"));
    Kwota(f.get(), QStringLiteral("9999999.00"));
    Ok(f.get());
    EXPECT_EQ(f->result(), QDialog::Accepted);
  }
  EXPECT_TRUE(m.host.pokazane.empty());

  // Editing an executed expense far over the cover: only the confirmation.
  const qint64 id = WpisT(QStringLiteral("transakcje"), 2, 10, QStringLiteral("2026-11-20"),
                          konto[1], QStringLiteral("aa"));
  m.host.odpowiedzi = {WynikTak};
  auto f = Otworz(2, id, 2);
  sesja.pubKonto = WybraneKonto(konto[1]);
  Kwota(f.get(), QStringLiteral("5000.00"));
  Ok(f.get());
  EXPECT_EQ(TytulyKomunikatow(m.host, kTytuly),
            QStringList{QStringLiteral("frmEdycjaTransakcji30")});
  // Realising a planned one over the cover asks, although the row exists.
  const qint64 plan = WpisT(QStringLiteral("zaplanowane"), 2, 5000, QStringLiteral("2026-11-20"),
                            konto[1], QStringLiteral("aa"));
  m.host.pokazane.clear();
  m.host.odpowiedzi = {WynikTak, WynikNie};
  f = Otworz(1, plan, 2);
  sesja.pubKonto.saldo = SaldoKonta(konto[1]);
  Kontrolka<QPushButton>(f.get(), "cmdRealizuj")->click();
  EXPECT_EQ(TytulyKomunikatow(m.host, kTytuly),
            (QStringList{"frmEdycjaTransakcji30", "frmEdycjaTransakcji47"}));
  EXPECT_TRUE(f->isVisible());
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM zaplanowane WHERE id=%1").arg(plan)), 1);
}

// "Realise", Nie to the cover, then OK: the editor is still realising, so OK asks the realising
// question again and moves the row; it never quietly updates the planned row instead.
TEST_F(EdytorWpisu, AfterNieToTheCoverOkStillRealises) {
  const qint64 plan = WpisT(QStringLiteral("zaplanowane"), 2, 5000, QStringLiteral("2026-11-20"),
                            konto[1], QStringLiteral("aa"), 0, QStringLiteral("Rata"));
  m.host.odpowiedzi = {WynikTak, WynikNie};
  auto f = Otworz(1, plan, 2);
  sesja.pubKonto.saldo = SaldoKonta(konto[1]);
  Kwota(f.get(), QStringLiteral("4000.00"));
  Kontrolka<QPushButton>(f.get(), "cmdRealizuj")->click();
  EXPECT_EQ(TytulyKomunikatow(m.host, kTytuly),
            (QStringList{"frmEdycjaTransakcji30", "frmEdycjaTransakcji47"}));
  EXPECT_TRUE(f->isVisible());
  EXPECT_EQ(sesja.pubTryb, 3);

  m.host.pokazane.clear();
  m.host.odpowiedzi = {WynikTak, WynikTak};
  Ok(f.get());
  EXPECT_EQ(TytulyKomunikatow(m.host, kTytuly),
            (QStringList{"frmEdycjaTransakcji30", "frmEdycjaTransakcji47"}));
  ASSERT_FALSE(m.host.pokazane.empty());
  EXPECT_TRUE(m.host.pokazane[0].tekst.startsWith(Napis(QStringLiteral("frmEdycjaTransakcji28"))));
  EXPECT_EQ(f->result(), QDialog::Accepted);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM zaplanowane")), 0);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje WHERE wydatek=4000 AND "
                                  "opis='Rata  ' AND data='2026-11-20'")),
            1);
}

// The statements in the store's dialect, and what they store: any description exactly, with two
// trailing blanks on insert and one on update; amounts to the cent; no counterparty as 0.
TEST_F(EdytorWpisu, StatementsAndStoredValues) {
  DaneTransakcji d;
  d.tryb = 2;
  d.rodzaj = 2;
  d.data = QDate(2026, 3, 7);
  d.kwota = QStringLiteral("12,50");
  d.opis = QStringLiteral("Ala");
  d.konto.id = 7;
  d.kategoria = QStringLiteral("ab");
  EXPECT_EQ(
      SqlWstawTransakcje(QStringLiteral("transakcje"), d),
      QStringLiteral(
          "INSERT INTO transakcje (data,rodzaj,przychod,wydatek,opis,kategoria,konto,kontrahent) "
          "Values (#03/07/2026#,'2','0','12,50','Ala  ','ab',' 7',' 0')"));
  d.id = 12;
  d.rodzaj = 1;
  d.kontrahent = 3;
  EXPECT_EQ(
      SqlZmienTransakcje(QStringLiteral("zaplanowane"), d),
      QStringLiteral("UPDATE zaplanowane SET data=#03/07/2026#, przychod='12,50', wydatek='0', "
                     "opis='Ala ',kategoria='ab', konto=' 7',kontrahent=' 3' WHERE id= 12"));

  const QString opis = QStringLiteral("O'Brien's \"bar\"; -- 100% ąę_*?");
  m.host.odpowiedzi = {WynikTak};  // over the cover of the bank account: save anyway
  auto f = Otworz(2, 0, 2);
  Wybierz(*f, konto[2], QStringLiteral("aa"));
  Kwota(f.get(), QStringLiteral("1234567.89"));
  Kontrolka<QLineEdit>(f.get(), "txtOpis")->setText(opis);
  Ok(f.get());
  ASSERT_EQ(f->result(), QDialog::Accepted);
  const QString id = Pole(QStringLiteral("SELECT MAX(id) FROM transakcje"));
  EXPECT_EQ(Pole(QStringLiteral("SELECT opis FROM transakcje WHERE id=") + id),
            opis + QStringLiteral("  "));
  EXPECT_EQ(Pole(QStringLiteral(
                     "SELECT typeof(wydatek)||typeof(przychod)||typeof(konto)||typeof(kontrahent)||"
                     "kontrahent FROM transakcje WHERE id=") +
                 id),
            QStringLiteral("realrealintegerinteger0"));
  EXPECT_EQ(
      m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje WHERE wydatek=1234567.89 AND id=") +
             id),
      1);

  m.host.odpowiedzi = {WynikTak};
  f = Otworz(2, id.toLongLong(), 2);
  EXPECT_EQ(Kontrolka<QLineEdit>(f.get(), "txtOpis")->text(), opis);
  Ok(f.get());
  EXPECT_EQ(Pole(QStringLiteral("SELECT opis FROM transakcje WHERE id=") + id), opis + ' ');
}

// Realising is one change: when the insert fails the planned row stays, the user is told, and the
// editor keeps what was typed.
TEST_F(EdytorWpisu, RealisingIsAtomicAndAFailedWriteKeepsTheEditorOpen) {
  const qint64 plan = WpisT(QStringLiteral("zaplanowane"), 1, 30, QStringLiteral("2026-11-25"),
                            konto[2], QStringLiteral("a"));
  char* blad = nullptr;
  ASSERT_EQ(
      sqlite3_exec(
          pubBaza().Uchwyt(),
          "CREATE TRIGGER stop BEFORE INSERT ON transakcje BEGIN SELECT RAISE(ABORT,'stop'); END",
          nullptr, nullptr, &blad),
      SQLITE_OK);
  m.host.odpowiedzi = {WynikTak};
  auto f = Otworz(1, plan, 1);
  Kwota(f.get(), QStringLiteral("31.00"));
  Kontrolka<QLineEdit>(f.get(), "txtOpis")->setText(QStringLiteral("nie zginie"));
  Kontrolka<QPushButton>(f.get(), "cmdRealizuj")->click();
  EXPECT_EQ(TytulyKomunikatow(m.host, kTytuly),
            (QStringList{"frmEdycjaTransakcji30", "frmEdycjaTransakcji62"}));
  EXPECT_TRUE(f->isVisible());
  EXPECT_EQ(Kontrolka<QLineEdit>(f.get(), "txtOpis")->text(), QStringLiteral("nie zginie"));
  EXPECT_EQ(
      m.Licz(
          QStringLiteral("SELECT COUNT(*) FROM zaplanowane WHERE id=%1 AND przychod=30").arg(plan)),
      1);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje")), 0);

  ASSERT_EQ(sqlite3_exec(pubBaza().Uchwyt(), "DROP TRIGGER stop", nullptr, nullptr, &blad),
            SQLITE_OK);
  m.host.pokazane.clear();
  m.host.odpowiedzi = {WynikTak};
  Kontrolka<QPushButton>(f.get(), "cmdRealizuj")->click();
  EXPECT_EQ(f->result(), QDialog::Accepted);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM zaplanowane")), 0);
  EXPECT_EQ(m.Licz(QStringLiteral(
                "SELECT COUNT(*) FROM transakcje WHERE przychod=31 AND opis='nie zginie  '")),
            1);
}

// The pickers are the real browsers: the account and counterparty come back through the session,
// the captions follow, and a cancelled picker leaves the choice as it was.
TEST_F(EdytorWpisu, PickersReturnThroughTheSession) {
  auto f = Otworz(2, 0, 2);
  ZOknem([&] { Kontrolka<QPushButton>(f.get(), "cmdWybierzKonto")->click(); },
         [](QDialog* d) {
           auto* drzewo = Kontrolka<QTreeWidget>(d, "tvwKonta");
           const auto w =
               drzewo->findItems(QStringLiteral("Konto1"), Qt::MatchExactly | Qt::MatchRecursive);
           ASSERT_EQ(w.size(), 1);
           drzewo->setCurrentItem(w[0]);
           Kontrolka<QPushButton>(d, "cmdWybierz")->click();
         });
  EXPECT_EQ(sesja.pubKonto.id, konto[1]);
  EXPECT_EQ(sesja.pubKonto.saldo, 100.0);
  EXPECT_EQ(Kontrolka<QLabel>(f.get(), "lblKonto")->text(),
            QStringLiteral("Konto1 (") + NazwaRodzajuKonta(1) + ')');
  ZOknem([&] { Kontrolka<QPushButton>(f.get(), "cmdWybierzKontrahenta")->click(); },
         [](QDialog* d) {
           auto* lista = Kontrolka<QTreeWidget>(d, "lvwKontrahenci");
           ASSERT_EQ(lista->topLevelItemCount(), 1);
           lista->setCurrentItem(lista->topLevelItem(0));
           Kontrolka<QPushButton>(d, "cmdWybierz")->click();
         });
  EXPECT_EQ(sesja.pubKontrahent.id, sklep);
  EXPECT_EQ(Kontrolka<QLabel>(f.get(), "lblKontrahent")->text(), QStringLiteral("Sklep"));
  ZOknem([&] { Kontrolka<QPushButton>(f.get(), "cmdWybierzKonto")->click(); },
         [&](QDialog* d) {
           auto* drzewo = Kontrolka<QTreeWidget>(d, "tvwKonta");
           drzewo->setCurrentItem(drzewo->findItems(QStringLiteral("Konto3"),
                                                    Qt::MatchExactly | Qt::MatchRecursive)[0]);
           d->reject();
         });
  EXPECT_EQ(sesja.pubKonto.id, konto[1]);
  EXPECT_EQ(Kontrolka<QLabel>(f.get(), "lblKonto")->text(),
            QStringLiteral("Konto1 (") + NazwaRodzajuKonta(1) + ')');
}
