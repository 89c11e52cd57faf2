// The transfer editor driven as a user does: new, edited, planned and realised transfers, the
// checks of OK in their order, the cover of the source account, and the rows as stored.

#include "ledger/transfery.h"

#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <memory>

#include "common/magazyn_testowy.h"
#include "ledger/frmEdycjaTransakcjiWewnetrznej.h"
#include "ledger/transakcje_pomoc.h"
#include "store/dzis.h"
#include "store/filtr.h"
#include "store/tekst.h"

using namespace testy_wpisow;

namespace {

class EdytorTransferu : public ::testing::Test {
 protected:
  void SetUp() override {
    portfel = KontoT(QStringLiteral("Portfel"), 1, 100.0);
    bank = KontoT(QStringLiteral("Bank"), 2, 0.0, 500.0);
  }
  std::unique_ptr<frmEdycjaTransakcjiWewnetrznej> Otworz(int tryb, qint64 id) {
    sesja.pubTryb = tryb;
    sesja.pubTransfer = id;
    auto f = std::make_unique<frmEdycjaTransakcjiWewnetrznej>();
    f->show();
    return f;
  }
  static void Konta(frmEdycjaTransakcjiWewnetrznej& f, qint64 z, qint64 na) {
    if (z) f.ZKonta() = WybraneKonto(z);
    if (na) f.NaKonto() = WybraneKonto(na);
    f.OdswiezEtykiety();
  }
  static void Kwota(QWidget* f, const QString& t) {
    Kontrolka<QLineEdit>(f, "txtKwota")->setText(t);
  }
  static void Ok(QWidget* f) { Kontrolka<QPushButton>(f, "cmdOK")->click(); }
  QString Pole(const QString& sql) { return pubBaza().Czytaj(sql).Pole(0).toString(); }

  MagazynTestowy m;
  qint64 portfel = 0, bank = 0;
};

QStringList Tytuly(const SkryptowanyHost& host) {
  QStringList klucze;
  for (int i : {22, 24, 26, 28, 30, 33, 36, 42, 45})
    klucze << QStringLiteral("frmEdycjaTransakcjiWewnetrznej%1").arg(i);
  QStringList w = TytulyKomunikatow(host, klucze);
  for (QString& t : w) t.remove(QStringLiteral("frmEdycjaTransakcjiWewnetrznej"));
  return w;
}

}  // namespace

TEST_F(EdytorTransferu, NewPlannedEditedAndRealisedTransfers) {
  auto f = Otworz(2, 0);
  EXPECT_EQ(f->windowTitle(), Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej48")));
  EXPECT_FALSE(Kontrolka<QPushButton>(f.get(), "cmdRealizuj")->isVisible());
  EXPECT_TRUE(sesja.pubEdytorTransferuOtwarty);
  EXPECT_EQ(Kontrolka<QLabel>(f.get(), "lblZKonta")->text(),
            Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej9")));
  Konta(*f, portfel, bank);
  EXPECT_EQ(Kontrolka<QLabel>(f.get(), "lblNaKonto")->text(),
            QStringLiteral("Bank (") + NazwaRodzajuKonta(2) + ')');
  Kwota(f.get(), QStringLiteral("100.00"));  // the whole balance: covered
  Kontrolka<QLineEdit>(f.get(), "txtOpis")->setText(QStringLiteral("Wpłata 'do banku'"));
  Ok(f.get());
  EXPECT_EQ(f->result(), QDialog::Accepted);
  EXPECT_TRUE(m.host.pokazane.empty());
  const QString id = Pole(QStringLiteral("SELECT MAX(id) FROM wewnetrzne"));
  EXPECT_EQ(
      Pole(QStringLiteral(
               "SELECT data||'|'||kwota||'|'||opis||'|'||typeof(zkonta)||zkonta||'|'||nakonto "
               "FROM wewnetrzne WHERE id=") +
           id),
      QStringLiteral("2026-11-22|100.0|Wpłata 'do banku'  |integer%1|%2").arg(portfel).arg(bank));
  f.reset();
  EXPECT_FALSE(sesja.pubEdytorTransferuOtwarty);

  // A planned transfer is never stopped by the cover, however large.
  f = Otworz(1, 0);
  EXPECT_EQ(f->windowTitle(), Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej48")) + ' ' +
                                  Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej43")));
  Konta(*f, portfel, bank);
  Kwota(f.get(), QStringLiteral("9999999.99"));
  Ok(f.get());
  EXPECT_EQ(f->result(), QDialog::Accepted);
  EXPECT_TRUE(m.host.pokazane.empty());
  const QString plan = Pole(QStringLiteral("SELECT MAX(id) FROM zaplanowanewewnetrzne"));

  // An executed one edited without picking the account again is judged against a balance of 0:
  // on a cash account the warning comes although the balance would cover it.
  m.host.odpowiedzi = {WynikTak, WynikTak};
  f = Otworz(2, id.toLongLong());
  EXPECT_EQ(Kontrolka<QLineEdit>(f.get(), "txtKwota")->text(), QStringLiteral("100.00"));
  EXPECT_EQ(Kontrolka<QLineEdit>(f.get(), "txtOpis")->text(), QStringLiteral("Wpłata 'do banku'"));
  EXPECT_EQ(f->ZKonta().saldo, 0.0);
  EXPECT_EQ(f->ZKonta().datautworzenia, QDate(2026, 1, 1));
  Kwota(f.get(), QStringLiteral("20.00"));
  Ok(f.get());
  EXPECT_EQ(Tytuly(m.host), (QStringList{"22", "42"}));
  EXPECT_EQ(Pole(QStringLiteral("SELECT kwota||'|'||opis FROM wewnetrzne WHERE id=") + id),
            QStringLiteral("20.0|Wpłata 'do banku' "));

  // Realising the planned one: the date in the question, the row moved.
  m.host.pokazane.clear();
  m.host.odpowiedzi = {WynikTak, WynikTak};
  f = Otworz(1, plan.toLongLong());
  EXPECT_TRUE(Kontrolka<QPushButton>(f.get(), "cmdRealizuj")->isVisible());
  Kwota(f.get(), QStringLiteral("50.00"));
  Kontrolka<QPushButton>(f.get(), "cmdRealizuj")->click();
  ASSERT_FALSE(m.host.pokazane.empty());
  EXPECT_EQ(m.host.pokazane[0].tekst, Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej20")) +
                                          ' ' + FormatDaty(Dzis(), sesja.pubFormatDaty_ddpmmmmpyy) +
                                          QStringLiteral(" ?"));
  EXPECT_EQ(f->result(), QDialog::Accepted);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM zaplanowanewewnetrzne")), 0);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM wewnetrzne WHERE kwota=50 AND zkonta=%1")
                       .arg(portfel)),
            1);
}

TEST_F(EdytorTransferu, ChecksRunInOrder) {
  ASSERT_TRUE(pubBaza().Wykonaj(
      QStringLiteral("UPDATE konta SET datautworzenia='2026-11-20' WHERE id=%1").arg(bank)));
  ASSERT_TRUE(pubBaza().Wykonaj(
      QStringLiteral("UPDATE konta SET datautworzenia='2026-11-15' WHERE id=%1").arg(portfel)));
  auto f = Otworz(2, 0);
  Ok(f.get());  // amount 0 comes before the accounts
  Kwota(f.get(), QStringLiteral("150.00"));
  Ok(f.get());  // neither account: the source first
  Konta(*f, 0, bank);
  Ok(f.get());  // still no source
  Konta(*f, bank, 0);
  Ok(f.get());  // the same account on both sides
  Konta(*f, portfel, bank);
  Kontrolka<QDateEdit>(f.get(), "dtpData")->setDate(QDate(2026, 11, 10));
  m.host.odpowiedzi = {WynikNie};
  Ok(f.get());  // before the source's creation: Nie returns
  m.host.odpowiedzi = {WynikTak, WynikNie};
  Ok(f.get());  // ... and before the target's
  m.host.odpowiedzi = {WynikTak, WynikTak, WynikNie};
  Ok(f.get());  // the cover of 100 against 150
  EXPECT_TRUE(f->isVisible());
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM wewnetrzne")), 0);
  m.host.odpowiedzi = {WynikTak, WynikTak, WynikTak};
  Ok(f.get());
  EXPECT_EQ(Tytuly(m.host), (QStringList{"24", "26", "26", "30", "33", "33", "36", "33", "36", "42",
                                         "33", "36", "42"}));
  EXPECT_EQ(
      m.host.pokazane[9].tekst,
      Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej37")) + QStringLiteral(" 'Portfel'\r\n") +
          Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej38")) + ' ' + KwotaWaluty(0) + ' ' +
          Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej39")) + QStringLiteral("\r\n") +
          Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej40")) + ' ' + KwotaWaluty(50) +
          QStringLiteral(" , \r\n") + Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej41")));
  EXPECT_EQ(f->result(), QDialog::Accepted);
  EXPECT_EQ(m.Licz(QStringLiteral(
                "SELECT COUNT(*) FROM wewnetrzne WHERE data='2026-11-10' AND kwota=150")),
            1);

  // Nie to the confirmation of an edit closes without a change.
  m.host.pokazane.clear();
  m.host.odpowiedzi = {WynikNie};
  f = Otworz(2, pubBaza().OstatnieId());
  Kwota(f.get(), QStringLiteral("1.00"));
  Ok(f.get());
  EXPECT_EQ(f->result(), QDialog::Rejected);
  EXPECT_FALSE(f->isVisible());
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM wewnetrzne WHERE kwota=150")), 1);
}

// The source account's cover by kind (balance 50, limit 100): equality passes, a grosz more asks.
TEST_F(EdytorTransferu, CoverOfTheSourceByKind) {
  for (int r = 1; r <= 6; ++r) {
    const double rowna = (r == 1 || r == 4) ? 50.0 : 150.0;
    for (double kwota : {rowna, rowna + 0.01}) {
      m.host.pokazane.clear();
      DaneTransferu d;
      d.data = Dzis();
      d.kwota = FormatKwotyEdycja(kwota);
      d.zKonta = {1, QStringLiteral("Z"), r, 100.0, 50.0, QDate(2026, 1, 1)};
      d.naKonto = {2, QStringLiteral("Na"), 1, 0.0, 0.0, QDate(2026, 1, 1)};
      EXPECT_EQ(ZapiszTransfer(d), kwota > rowna ? WynikEdycji::Zostan : WynikEdycji::Zapisano)
          << r;
      EXPECT_EQ(m.host.pokazane.size(), kwota > rowna ? 1u : 0u) << r;
    }
  }
  // Loans and "other" with no limit: never.
  for (int r : {5, 6}) {
    DaneTransferu d;
    d.data = Dzis();
    d.kwota = QStringLiteral("9999999.00");
    d.zKonta = {1, QStringLiteral("Z"), r, 0.0, 0.0, QDate()};
    d.naKonto = {2, QStringLiteral("Na"), 1, 0.0, 0.0, QDate()};
    EXPECT_EQ(ZapiszTransfer(d), WynikEdycji::Zapisano) << r;
  }
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM wewnetrzne")), 8);
}

TEST_F(EdytorTransferu, StatementsAndAtomicRealising) {
  DaneTransferu d;
  d.data = QDate(2026, 12, 24);
  d.kwota = QStringLiteral("10.05");
  d.opis = QStringLiteral("x");
  d.zKonta.id = 3;
  d.naKonto.id = 4;
  EXPECT_EQ(SqlWstawTransfer(QStringLiteral("zaplanowanewewnetrzne"), d),
            QStringLiteral("INSERT INTO zaplanowanewewnetrzne (data,kwota,opis,zkonta,nakonto) "
                           "Values (#12/24/2026#,'10.05','x  ',' 3',' 4')"));
  d.id = 9;
  EXPECT_EQ(SqlZmienTransfer(QStringLiteral("wewnetrzne"), d),
            QStringLiteral(
                "UPDATE wewnetrzne SET data=#12/24/2026#, kwota='10.05', opis='x ',zkonta=' 3',"
                "nakonto=' 4' WHERE id= 9"));

  const qint64 plan = TransferT(QStringLiteral("zaplanowanewewnetrzne"), 40,
                                QStringLiteral("2026-11-30"), bank, portfel);
  char* blad = nullptr;
  ASSERT_EQ(
      sqlite3_exec(
          pubBaza().Uchwyt(),
          "CREATE TRIGGER stop BEFORE INSERT ON wewnetrzne BEGIN SELECT RAISE(ABORT,'stop'); END",
          nullptr, nullptr, &blad),
      SQLITE_OK);
  m.host.odpowiedzi = {WynikTak};
  auto f = Otworz(1, plan);
  Kontrolka<QPushButton>(f.get(), "cmdRealizuj")->click();
  EXPECT_EQ(Tytuly(m.host), (QStringList{"22", "45"}));
  EXPECT_TRUE(f->isVisible());
  EXPECT_EQ(
      m.Licz(QStringLiteral("SELECT COUNT(*) FROM zaplanowanewewnetrzne WHERE id=%1").arg(plan)),
      1);
  // Still realising: once the store takes the write, OK moves the row.
  EXPECT_EQ(sesja.pubTryb, 3);
  ASSERT_EQ(sqlite3_exec(pubBaza().Uchwyt(), "DROP TRIGGER stop", nullptr, nullptr, &blad),
            SQLITE_OK);
  m.host.odpowiedzi = {WynikTak, WynikTak};
  Ok(f.get());
  EXPECT_EQ(f->result(), QDialog::Accepted);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM zaplanowanewewnetrzne")), 0);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM wewnetrzne WHERE kwota=40")), 1);
}

// "Realise", Nie to the cover, then OK: still realising, the row is moved, not updated in place.
TEST_F(EdytorTransferu, AfterNieToTheCoverOkStillRealises) {
  const qint64 plan =
      TransferT(QStringLiteral("zaplanowanewewnetrzne"), 500, QStringLiteral("2026-11-30"), portfel,
                bank, QStringLiteral("Wpłata"));
  m.host.odpowiedzi = {WynikTak, WynikNie};
  auto f = Otworz(1, plan);
  Kontrolka<QPushButton>(f.get(), "cmdRealizuj")->click();
  EXPECT_EQ(Tytuly(m.host), (QStringList{"22", "42"}));
  EXPECT_TRUE(f->isVisible());
  EXPECT_EQ(sesja.pubTryb, 3);

  m.host.pokazane.clear();
  m.host.odpowiedzi = {WynikTak, WynikTak};
  Ok(f.get());
  EXPECT_EQ(Tytuly(m.host), (QStringList{"22", "42"}));
  ASSERT_FALSE(m.host.pokazane.empty());
  EXPECT_TRUE(m.host.pokazane[0].tekst.startsWith(
      Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej20"))));
  EXPECT_EQ(f->result(), QDialog::Accepted);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM zaplanowanewewnetrzne")), 0);
  EXPECT_EQ(
      m.Licz(QStringLiteral("SELECT COUNT(*) FROM wewnetrzne WHERE kwota=500 AND opis='Wpłata  '")),
      1);
}
