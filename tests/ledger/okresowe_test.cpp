// Recurring rules: the days of each frequency across month ends, 29 February and the turn of the
// year, the weekend choices and an open end; planning that never makes a day twice, also when it
// runs again or was interrupted; a rule changed or deleted; the upgrade of an older store.

#include "ledger/okresowe.h"

#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

#include <QDateEdit>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>

#include "common/magazyn_testowy.h"
#include "ledger/frmEdycjaOkresowych.h"
#include "ledger/frmEdycjaTransakcji.h"
#include "ledger/frmOkresowe.h"
#include "ledger/transakcje_pomoc.h"
#include "store/baza.h"
#include "store/dzis.h"
#include "store/start.h"

using namespace testy_wpisow;

namespace {

QDate D(int r, int m, int d) { return QDate(r, m, d); }

QList<QDate> Daty(const RegulaOkresowa& r, const QDate& od, const QDate& do_, bool przesuniete) {
  QList<QDate> w;
  for (const Termin& t : TerminyReguly(r, od, do_)) w << (przesuniete ? t.data : t.dzien);
  return w;
}

RegulaOkresowa Regula(int czestotliwosc, const QDate& od, const QDate& do_ = QDate(),
                      int weekend = WeekendZostaw) {
  RegulaOkresowa r;
  r.czestotliwosc = czestotliwosc;
  r.od = od;
  r.do_ = do_;
  r.weekend = weekend;
  return r;
}

void Sql(const char* sql) {
  char* blad = nullptr;
  EXPECT_EQ(sqlite3_exec(pubBaza().Uchwyt(), sql, nullptr, nullptr, &blad), SQLITE_OK)
      << (blad ? blad : "");
  sqlite3_free(blad);
}

}  // namespace

TEST(Okresowe, DaysOfEachFrequency) {
  // Monthly from the 31st: the last day of shorter months, back to the 31st; over the year turn.
  EXPECT_EQ(Daty(Regula(CoMiesiac, D(2025, 10, 31)), D(2025, 10, 1), D(2026, 4, 30), false),
            (QList<QDate>{D(2025, 10, 31), D(2025, 11, 30), D(2025, 12, 31), D(2026, 1, 31),
                          D(2026, 2, 28), D(2026, 3, 31), D(2026, 4, 30)}));
  // The same rule asked for a window far from its start still finds its days.
  EXPECT_EQ(Daty(Regula(CoMiesiac, D(2025, 10, 31)), D(2028, 2, 1), D(2028, 3, 31), false),
            (QList<QDate>{D(2028, 2, 29), D(2028, 3, 31)}));
  // Yearly from 29 February: the 28th in common years, the 29th in leap years.
  EXPECT_EQ(Daty(Regula(CoRok, D(2024, 2, 29)), D(2024, 1, 1), D(2028, 12, 31), false),
            (QList<QDate>{D(2024, 2, 29), D(2025, 2, 28), D(2026, 2, 28), D(2027, 2, 28),
                          D(2028, 2, 29)}));
  EXPECT_EQ(Daty(Regula(CoKwartal, D(2025, 11, 30)), D(2025, 1, 1), D(2026, 9, 1), false),
            (QList<QDate>{D(2025, 11, 30), D(2026, 2, 28), D(2026, 5, 30), D(2026, 8, 30)}));
  EXPECT_EQ(Daty(Regula(CoPolRoku, D(2025, 8, 31)), D(2025, 1, 1), D(2026, 12, 31), false),
            (QList<QDate>{D(2025, 8, 31), D(2026, 2, 28), D(2026, 8, 31)}));
  // Weekly and daily across the year turn; the period's end is kept.
  EXPECT_EQ(
      Daty(Regula(CoTydzien, D(2025, 12, 17), D(2026, 1, 7)), D(2025, 1, 1), D(2027, 1, 1), false),
      (QList<QDate>{D(2025, 12, 17), D(2025, 12, 24), D(2025, 12, 31), D(2026, 1, 7)}));
  EXPECT_EQ(Daty(Regula(Codziennie, D(2025, 12, 30)), D(2026, 1, 1), D(2026, 1, 2), false),
            (QList<QDate>{D(2026, 1, 1), D(2026, 1, 2)}));
  // Weekdays: 2 January 2026 is a Friday, the 5th a Monday.
  EXPECT_EQ(
      Daty(Regula(DniPowszednie, D(2025, 12, 31)), D(2025, 12, 31), D(2026, 1, 6), false),
      (QList<QDate>{D(2025, 12, 31), D(2026, 1, 1), D(2026, 1, 2), D(2026, 1, 5), D(2026, 1, 6)}));
  // An open end runs as far as asked.
  EXPECT_EQ(TerminyReguly(Regula(CoMiesiac, D(2026, 1, 10)), D(2026, 1, 1), D(2036, 1, 9)).size(),
            120u);
  // Weekends: 31 January 2026 is a Saturday, 1 March a Sunday.
  const QDate od = D(2026, 1, 31), do_ = D(2026, 3, 31);
  EXPECT_EQ(Daty(Regula(CoMiesiac, od, QDate(), WeekendZostaw), od, do_, true),
            (QList<QDate>{D(2026, 1, 31), D(2026, 2, 28), D(2026, 3, 31)}));
  EXPECT_EQ(Daty(Regula(CoMiesiac, od, QDate(), WeekendPiatek), od, do_, true),
            (QList<QDate>{D(2026, 1, 30), D(2026, 2, 27), D(2026, 3, 31)}));
  EXPECT_EQ(Daty(Regula(CoMiesiac, od, QDate(), WeekendPoniedzialek), od, do_, true),
            (QList<QDate>{D(2026, 2, 2), D(2026, 3, 2), D(2026, 3, 31)}));
  EXPECT_EQ(PrzesunZWeekendu(D(2026, 3, 1), WeekendPiatek), D(2026, 2, 27));
  EXPECT_EQ(DzienReguly(Regula(CoMiesiac, D(2026, 1, 31)), 2), D(2026, 3, 31));
}

class OkresoweWMagazynie : public ::testing::Test {
 protected:
  void SetUp() override {
    UstawDzis(D(2026, 1, 15));
    WczytajSetup();  // the setup row, as at start-up
    bank = KontoT(QStringLiteral("Bank"), 2, 1000.0);
    portfel = KontoT(QStringLiteral("Portfel"), 1, 10.0);
    KategoriaT(QStringLiteral("a"), 2, QStringLiteral("Czynsz"));
    KategoriaT(QStringLiteral("a"), 1, QStringLiteral("Pensja"));
  }
  void TearDown() override { UstawDzis(QDate()); }
  qint64 Zapisz(RegulaOkresowa r) {
    qint64 id = 0;
    EXPECT_TRUE(ZapiszOkresowa(r, &id));
    return id;
  }
  qint64 Ile(const char* tabela) {
    return m.Licz(QStringLiteral("SELECT COUNT(*) FROM %1").arg(QLatin1String(tabela)));
  }
  MagazynTestowy m;
  qint64 bank = 0, portfel = 0;
};

// A daily expense and a monthly transfer planned to the horizon as ordinary rows; a second run
// adds nothing; an interrupted run leaves nothing and the next one makes every row once; a day
// realised or deleted by hand never comes back; a longer horizon adds only the new days.
TEST_F(OkresoweWMagazynie, PlanningIsOnceAndAllOrNothing) {
  EXPECT_EQ(HoryzontOkresowych(), 60);
  Sql("CREATE TRIGGER przerwa BEFORE INSERT ON zaplanowane WHEN NEW.data = '2026-02-20' BEGIN "
      "SELECT RAISE(ABORT, 'power cut'); END");
  RegulaOkresowa czynsz;
  czynsz.rodzaj = 2;
  czynsz.konto = bank;
  czynsz.kategoria = QStringLiteral("a");
  czynsz.opis = QStringLiteral("czynsz 'mieszkanie' ąę");
  czynsz.kwota = 999999999999.99;
  czynsz.czestotliwosc = Codziennie;
  czynsz.od = D(2026, 1, 10);
  // Saving plans at once; the cut in the middle leaves neither rows nor the rule.
  EXPECT_FALSE(ZapiszOkresowa(czynsz));
  EXPECT_EQ(Ile("zaplanowane"), 0);
  EXPECT_EQ(Ile("okresowe"), 0);
  EXPECT_EQ(m.host.pokazane.back().tytul.trimmed(), Napis(QStringLiteral("frmEdycjaOkresowych43")));
  Sql("DROP TRIGGER przerwa");

  const qint64 id = Zapisz(czynsz);
  // 10 January .. 16 March (15 January + 60 days).
  EXPECT_EQ(Ile("zaplanowane"), 66);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(DISTINCT data) FROM zaplanowane WHERE "
                                  "wydatek=999999999999.99 AND kategoria='a' AND opis='czynsz "
                                  "''mieszkanie'' ąę  '")),
            66);
  RegulaOkresowa przelew;
  przelew.rodzaj = 3;
  przelew.konto = bank;
  przelew.naKonto = portfel;
  przelew.kwota = 200;
  przelew.czestotliwosc = CoMiesiac;
  przelew.od = D(2026, 1, 31);
  przelew.weekend = WeekendPiatek;
  Zapisz(przelew);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM zaplanowanewewnetrzne WHERE data IN "
                                  "('2026-01-30','2026-02-27')")),
            2);

  EXPECT_EQ(GenerujOkresowe().wiersze, 0);
  EXPECT_EQ(Ile("zaplanowane"), 66);

  // A day the user realised or deleted stays done.
  Sql("DELETE FROM zaplanowane WHERE data='2026-01-20'");
  UstawDzis(D(2026, 1, 16));
  EXPECT_EQ(GenerujOkresowe().wiersze, 1 + 0);  // only 17 March is new
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM zaplanowane WHERE data='2026-01-20'")), 0);

  // A crash in the middle of a run (here: the store refuses one row) rolls the run back.
  ASSERT_TRUE(UstawHoryzontOkresowych(120));
  Sql("CREATE TRIGGER przerwa BEFORE INSERT ON zaplanowane WHEN NEW.data = '2026-04-20' BEGIN "
      "SELECT RAISE(ABORT, 'power cut'); END");
  EXPECT_FALSE(GenerujOkresowe().ok);
  EXPECT_EQ(Ile("zaplanowane"), 66);
  Sql("DROP TRIGGER przerwa");
  EXPECT_EQ(GenerujOkresowe().wiersze, 60 + 2);  // 18 March .. 16 May; two more transfers
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM (SELECT data FROM zaplanowane GROUP BY "
                                  "data HAVING COUNT(*)>1)")),
            0);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM okresowedni WHERE okresowa=%1").arg(id)),
            127);
}

// A change re-plans from today and keeps the past; deleting asks twice and takes the waiting rows
// only when told; the screens list, search and edit the rules.
TEST_F(OkresoweWMagazynie, ChangeDeleteAndScreens) {
  RegulaOkresowa r;
  r.rodzaj = 1;
  r.konto = bank;
  r.kategoria = QStringLiteral("a");
  r.opis = QStringLiteral("Pensja");
  r.kwota = 5000;
  r.czestotliwosc = CoMiesiac;
  r.od = D(2025, 12, 10);
  r.do_ = D(2026, 12, 10);
  const qint64 id = Zapisz(r);
  // 10 December, 10 January, 10 February, 10 March.
  EXPECT_EQ(m.Licz("SELECT COUNT(*) FROM zaplanowane WHERE przychod=5000"), 4);

  // The editor: the checks, then a change of amount and day.
  sesja.pubOkresowaId = id;
  {
    frmEdycjaOkresowych f;
    EXPECT_EQ(Kontrolka<QLineEdit>(&f, "txtKwota")->text(), QStringLiteral("5000.00"));
    EXPECT_TRUE(Kontrolka<QRadioButton>(&f, "optCzestotliwosc(3)")->isChecked());
    Kontrolka<QLineEdit>(&f, "txtKwota")->setText(QStringLiteral("0"));
    f.cmdOk_Click();
    EXPECT_EQ(m.host.pokazane.back().tytul.trimmed(),
              Napis(QStringLiteral("frmEdycjaOkresowych31")));
    Kontrolka<QRadioButton>(&f, "optRodzaj(2)")->click();  // a transfer: needs its target
    Kontrolka<QLineEdit>(&f, "txtKwota")->setText(QStringLiteral("5100"));
    f.cmdOk_Click();
    EXPECT_EQ(m.host.pokazane.back().tytul.trimmed(),
              Napis(QStringLiteral("frmEdycjaOkresowych37")));
    Kontrolka<QRadioButton>(&f, "optRodzaj(0)")->click();
    f.Kategoria().identyfikator = QStringLiteral("a");
    Kontrolka<QRadioButton>(&f, "optCzestotliwosc(4)")->click();  // quarterly
    f.cmdOk_Click();
    EXPECT_EQ(f.result(), QDialog::Accepted);
  }
  // The rows before today stay at 5000; from today on: 10 March only (quarterly).
  EXPECT_EQ(m.Licz("SELECT COUNT(*) FROM zaplanowane WHERE przychod=5000"), 2);
  EXPECT_EQ(m.Licz("SELECT COUNT(*) FROM zaplanowane WHERE przychod=5100 AND data='2026-03-10'"),
            1);
  EXPECT_EQ(m.Licz("SELECT COUNT(*) FROM zaplanowane"), 3);

  frmOkresowe lista;
  auto* lvw = Kontrolka<QTreeWidget>(&lista, "lvwOkresowe");
  ASSERT_EQ(lvw->topLevelItemCount(), 1);
  EXPECT_EQ(lvw->topLevelItem(0)->text(6), Napis(QStringLiteral("frmEdycjaOkresowych14")));
  Kontrolka<QLineEdit>(&lista, "txtKlucz")->setText(QStringLiteral("BANK"));
  EXPECT_EQ(lvw->topLevelItemCount(), 1);
  Kontrolka<QLineEdit>(&lista, "txtKlucz")->setText(QStringLiteral("portfel"));
  EXPECT_EQ(lvw->topLevelItemCount(), 0);
  Kontrolka<QLineEdit>(&lista, "txtKlucz")->clear();

  m.host.odpowiedzi = {WynikTak, WynikNie};
  Kontrolka<QPushButton>(&lista, "cmdKasuj")->click();
  EXPECT_EQ(lvw->topLevelItemCount(), 0);
  EXPECT_EQ(m.Licz("SELECT COUNT(*) FROM okresowe"), 0);
  EXPECT_EQ(m.Licz("SELECT COUNT(*) FROM zaplanowane"), 3);  // kept on Nie
  const qint64 drugi = Zapisz(r);
  m.host.odpowiedzi = {WynikTak, WynikTak};
  EXPECT_TRUE(UsunOkresowaZPytaniem(drugi, r.opis));
  // The rule's waiting rows from today (February, March) go; its past rows and the first
  // rule's rows stay.
  EXPECT_EQ(m.Licz("SELECT COUNT(*) FROM zaplanowane"), 3 + 2);
  EXPECT_EQ(m.Licz("SELECT COUNT(*) FROM okresowedni"), 0);
}

// The user pays a weekly rent early from its planned row and deletes the week after by hand, then
// raises the rent and later moves it to another weekday: those two weeks stay done each time, the
// rows still waiting take the new amount and day, the past keeps the old ones, and later weeks
// come at the new amount.
TEST_F(OkresoweWMagazynie, ADayRealisedEarlyStaysDoneWhenTheRuleChanges) {
  RegulaOkresowa r;
  r.rodzaj = 2;
  r.konto = bank;
  r.kategoria = QStringLiteral("a");
  r.opis = QStringLiteral("Czynsz Łódź");
  r.kwota = 800;
  r.czestotliwosc = CoTydzien;
  r.od = D(2026, 1, 6);  // Tuesdays: 6, 13, 20, 27 January, 3, 10 ... 10 March
  const qint64 id = Zapisz(r);
  ASSERT_EQ(m.Licz("SELECT COUNT(*) FROM zaplanowane"), 10);
  const qint64 wczesny = m.Licz("SELECT id FROM zaplanowane WHERE data='2026-02-03'");
  m.host.odpowiedzi = {WynikTak, WynikTak};  // the date, then the cover the editor asks about
  sesja.pubTryb = 1;
  sesja.pubTransakcja.id = wczesny;
  sesja.pubTransakcja.rodzaj = 2;
  {
    frmEdycjaTransakcji f;
    f.show();
    Kontrolka<QDateEdit>(&f, "dtpData")->setDate(D(2026, 1, 15));
    Kontrolka<QPushButton>(&f, "cmdRealizuj")->click();
    ASSERT_EQ(f.result(), QDialog::Accepted);
  }
  ASSERT_EQ(m.Licz("SELECT COUNT(*) FROM transakcje WHERE data='2026-01-15' AND wydatek=800"), 1);
  Sql("DELETE FROM zaplanowane WHERE data='2026-02-10'");

  sesja.pubOkresowaId = id;
  {
    frmEdycjaOkresowych f;
    Kontrolka<QLineEdit>(&f, "txtKwota")->setText(QStringLiteral("950"));
    f.cmdOk_Click();
    ASSERT_EQ(f.result(), QDialog::Accepted);
  }
  EXPECT_EQ(m.Licz("SELECT COUNT(*) FROM zaplanowane WHERE data IN ('2026-02-03','2026-02-10')"),
            0);
  EXPECT_EQ(m.Licz("SELECT COUNT(*) FROM zaplanowane WHERE wydatek=800"), 2);  // 6 and 13 January
  EXPECT_EQ(m.Licz("SELECT COUNT(*) FROM zaplanowane WHERE wydatek=950"), 6);
  EXPECT_EQ(m.Licz("SELECT COUNT(*) FROM (SELECT data FROM zaplanowane GROUP BY data HAVING "
                   "COUNT(*)>1)"),
            0);
  // Moving the rule to Thursdays re-plans what waits; the two weeks already taken care of stay
  // done (their Thursdays 5 and 12 February are not planned), the others move.
  sesja.pubOkresowaId = id;
  {
    frmEdycjaOkresowych f;
    Kontrolka<QDateEdit>(&f, "dtpOdDaty")->setDate(D(2026, 1, 8));
    f.cmdOk_Click();
    ASSERT_EQ(f.result(), QDialog::Accepted);
  }
  // 22, 29 January, 19, 26 February, 5, 12 March; this week has its Tuesday the 13th already.
  EXPECT_EQ(m.Licz("SELECT COUNT(*) FROM zaplanowane WHERE data>='2026-01-15' AND wydatek=950 AND "
                   "strftime('%w',data)='4'"),
            6);
  EXPECT_EQ(m.Licz("SELECT COUNT(*) FROM zaplanowane WHERE data>='2026-01-15'"), 6);
  // A month on, the next run plans only the new weeks, at the new amount.
  UstawDzis(D(2026, 2, 15));
  EXPECT_EQ(GenerujOkresowe().wiersze, 5);  // 19, 26 March, 2, 9, 16 April
  EXPECT_EQ(m.Licz("SELECT COUNT(*) FROM zaplanowane WHERE wydatek=950"), 11);
  EXPECT_EQ(m.Licz("SELECT COUNT(*) FROM zaplanowane WHERE data IN ('2026-02-05','2026-02-12')"),
            0);

  // A monthly rule of the 10th whose March row the user deleted, moved to the 28th: February
  // (planned on the 10th) and March stay done, April comes on the 28th.
  ASSERT_TRUE(UstawHoryzontOkresowych(90));  // to 16 May
  RegulaOkresowa media = r;
  media.opis = QStringLiteral("Prąd");
  media.czestotliwosc = CoMiesiac;
  media.od = D(2026, 1, 10);
  media.kwota = 120;
  media.id = Zapisz(media);
  Sql("DELETE FROM zaplanowane WHERE data='2026-03-10' AND wydatek=120");
  media.od = D(2026, 1, 28);
  Zapisz(media);
  EXPECT_EQ(m.Licz("SELECT COUNT(*) FROM zaplanowane WHERE wydatek=120 AND data<'2026-02-15'"), 2);
  EXPECT_EQ(m.Licz("SELECT COUNT(*) FROM zaplanowane WHERE wydatek=120 AND data>='2026-02-15'"), 1);
  EXPECT_EQ(m.Licz("SELECT COUNT(*) FROM zaplanowane WHERE wydatek=120 AND data='2026-04-28'"), 1);
}

// A store made before recurring rules gets their tables and the horizon, and keeps its rows.
TEST_F(OkresoweWMagazynie, UpgradeOfAnOlderStoreKeepsEveryRow) {
  WpisT(QStringLiteral("transakcje"), 2, 12.5, QStringLiteral("2026-01-02"), bank,
        QStringLiteral("a"));
  WpisT(QStringLiteral("zaplanowane"), 1, 7, QStringLiteral("2026-02-02"), bank,
        QStringLiteral("a"));
  // The store as it was before: no rule tables, setup without the horizon.
  QStringList kolumny =
      pubBaza().Czytaj(QStringLiteral("SELECT * FROM setup WHERE 1=0")).NazwyPol();
  kolumny.removeAll(QStringLiteral("horyzontokresowych"));
  Sql(QStringLiteral("DROP TABLE okresowe; DROP TABLE okresowedni; CREATE TABLE dawny AS SELECT "
                     "%1 FROM setup; DROP TABLE setup; ALTER TABLE dawny RENAME TO setup")
          .arg(kolumny.join(QLatin1Char(',')))
          .toUtf8()
          .constData());
  ASSERT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM pragma_table_info('setup') WHERE "
                                  "name='horyzontokresowych'")),
            0);
  const qint64 setup = Ile("setup"), konta = Ile("konta");
  ASSERT_TRUE(AktualizujBaze());
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM sqlite_master WHERE name IN "
                                  "('okresowe','okresowedni')")),
            2);
  EXPECT_EQ(Ile("transakcje"), 1);
  EXPECT_EQ(Ile("zaplanowane"), 1);
  EXPECT_EQ(Ile("setup"), setup);
  EXPECT_EQ(Ile("konta"), konta);
  EXPECT_EQ(HoryzontOkresowych(), 60);
  ASSERT_TRUE(AktualizujBaze());  // a second start changes nothing
  RegulaOkresowa r;
  r.konto = bank;
  r.kategoria = QStringLiteral("a");
  r.kwota = 1;
  r.od = D(2026, 1, 15);
  EXPECT_NE(Zapisz(r), 0);
}
