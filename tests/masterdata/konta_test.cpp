// Accounts: balances of an account, a kind and all accounts, the figures of a period, the
// over-limit test, the lookups, and the rules of saving and deleting.

#include "masterdata/konta.h"

#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

#include "common/magazyn_testowy.h"
#include "konta_pomoc.h"
#include "ui/wyszukiwanie.h"
#include "store/filtr.h"
#include "store/kwota.h"
#include "store/napis.h"
#include "store/session.h"

namespace {

// Accounts of several kinds, created before, inside and after November 2026, with entries,
// transfers inside one kind and across kinds, and planned rows that must never count.
struct Konta {
  qint64 portfel, ing, mbank, kredyt;
  Konta() {
    portfel = NoweKontoTestowe(QStringLiteral("Portfel"), 1, QStringLiteral("2026-01-10"), 100.10);
    ing = NoweKontoTestowe(QStringLiteral("Konto ING"), 2, QStringLiteral("2026-11-15"), 1234567.89,
                           0.01);
    mbank = NoweKontoTestowe(QStringLiteral("mBank"), 2, QStringLiteral("2025-05-01"), 0, 50, 100);
    kredyt = NoweKontoTestowe(QStringLiteral("Kredyt"), 5, QStringLiteral("2026-12-01"), 0, 1000);
    WpisTestowy(portfel, QStringLiteral("2026-11-20"), 20.05, 0);
    WpisTestowy(portfel, QStringLiteral("2026-10-01"), 0, 5.55);
    WpisTestowy(ing, QStringLiteral("2026-11-21"), 0, 0.10);
    WpisTestowy(mbank, QStringLiteral("2026-11-02"), 0, 60);
    WpisTestowy(kredyt, QStringLiteral("2026-11-05"), 0, 1);
    WpisTestowy(mbank, QStringLiteral("2026-11-22"), 3, 0, QStringLiteral("zaplanowane"));
    TransferTestowy(ing, mbank, QStringLiteral("2026-11-18"), 100);
    TransferTestowy(portfel, ing, QStringLiteral("2026-11-19"), 10.01);
    TransferTestowy(portfel, mbank, QStringLiteral("2026-11-23"), 7,
                    QStringLiteral("zaplanowanewewnetrzne"));
  }
};

Okres okres(int rodzaj) {
  FiltrCzasowyRekord f;
  f.rodzaj = rodzaj;
  return FiltrCzasowy(f);
}

qint64 grosze(double kwota) { return WGroszach(kwota); }

void wykonajSurowo(const char* sql) {
  char* blad = nullptr;
  ASSERT_EQ(sqlite3_exec(pubBaza().Uchwyt(), sql, nullptr, nullptr, &blad), SQLITE_OK)
      << (blad ? blad : "");
}

}  // namespace

// One rule for an account, a kind and all accounts: transfers inside a kind and across all
// accounts cancel, planned rows never count, and every cent is kept.
TEST(Konta, BalancesOfAccountKindAndRoot) {
  MagazynTestowy m;
  const Konta k;
  EXPECT_EQ(grosze(SaldoKonta(k.portfel)), 10459);
  EXPECT_EQ(grosze(SaldoKonta(k.ing)), 123447779);
  EXPECT_EQ(grosze(SaldoKonta(k.mbank)), -1000);
  EXPECT_EQ(grosze(SaldoKonta(k.kredyt)), -100100);
  EXPECT_EQ(grosze(SaldoWezla(WezelKont::Rodzaj(1))), 10459);
  EXPECT_EQ(grosze(SaldoWezla(WezelKont::Rodzaj(2))), 123446779);
  EXPECT_EQ(grosze(SaldoWezla(WezelKont::Rodzaj(4))), 0);  // a kind with no accounts
  EXPECT_EQ(grosze(SaldoWezla(WezelKont::ZKlucza(QStringLiteral("Root")))), 123357138);

  const SumyKont r2 = CzytajSumy(WezelKont::Rodzaj(2));
  EXPECT_EQ(grosze(r2.przychodzace), 11001);  // both transfers arrive in the kind
  EXPECT_EQ(grosze(r2.wychodzace), 10000);    // the one inside the kind leaves it too
  const SumyKont root = CzytajSumy(WezelKont{});
  EXPECT_EQ(grosze(root.przychodzace), grosze(root.wychodzace));

  // Keys and scopes of the tree's nodes.
  EXPECT_EQ(WezelKont::ZKlucza(QStringLiteral("q%1").arg(k.ing)).numer, k.ing);
  EXPECT_EQ(WezelKont::ZKlucza(QStringLiteral("r3")).Zakres(), QStringLiteral("r3"));
  EXPECT_EQ(WezelKont::ZKlucza(QStringLiteral("q12")).Zakres(), QStringLiteral("q"));
  EXPECT_EQ(WezelKont::ZKlucza(QStringLiteral("Root")).numer, 0);
}

// The eight sums of a period: opening balances count by the creation date, "all" puts every
// opening balance inside the period, a period that ends before an account's creation leaves its
// opening balance out of both ends while its entries count by their own dates.
TEST(Konta, PeriodFiguresWithOpeningBalancesByCreationDate) {
  MagazynTestowy m;
  const Konta k;
  sesja.pubFiltrCzasowy.pozycja = QDate(2026, 11, 22);

  const Okres miesiac = okres(3);
  BilansOkresu b = ObliczBilansOkresu(WezelKont::Konto(k.portfel), miesiac);
  EXPECT_EQ(grosze(b.bilansOtwarcia), 10010);
  EXPECT_EQ(grosze(b.poczatek), 9455);
  EXPECT_EQ(grosze(b.wOkresie.przychod), 2005);
  EXPECT_EQ(grosze(b.wOkresie.wychodzace), 1001);
  EXPECT_EQ(grosze(b.koniec), 10459);
  EXPECT_EQ(grosze(b.zmiana), 1004);
  EXPECT_NEAR(b.procent, 1004.0 / 9455.0 * 100.0, 1e-9);

  b = ObliczBilansOkresu(WezelKont::Konto(k.ing), miesiac);  // created inside the month
  EXPECT_EQ(grosze(b.poczatek), 0);
  EXPECT_EQ(grosze(b.bilansOtwarcia), 123456788);
  EXPECT_EQ(grosze(b.koniec), 123447779);
  EXPECT_EQ(b.procent, 100.0);

  b = ObliczBilansOkresu(WezelKont::Konto(k.kredyt), miesiac);  // created after the month
  EXPECT_EQ(grosze(b.bilansOtwarcia), 0);
  EXPECT_EQ(grosze(b.koniec), -100);

  b = ObliczBilansOkresu(WezelKont{}, miesiac);
  EXPECT_EQ(grosze(b.poczatek), 4455);
  EXPECT_EQ(grosze(b.bilansOtwarcia), 123461798);
  EXPECT_EQ(grosze(b.koniec), 123457138);
  EXPECT_EQ(grosze(b.wOkresie.przychodzace), grosze(b.wOkresie.wychodzace));

  // All time: nothing before, every opening balance (the later loan's too) inside.
  b = ObliczBilansOkresu(WezelKont{}, okres(0));
  EXPECT_EQ(grosze(b.poczatek), 0);
  EXPECT_EQ(grosze(b.bilansOtwarcia), 123361798);
  EXPECT_EQ(grosze(b.koniec), 123357138);
  EXPECT_EQ(b.procent, 100.0);

  // The week of Sunday 22 November: ING was created on the Sunday before, so its opening balance
  // lies before the week; the week condition names the date column in three places.
  b = ObliczBilansOkresu(WezelKont::Rodzaj(2), okres(2));
  EXPECT_EQ(grosze(b.poczatek), 123445788);
  EXPECT_EQ(grosze(b.bilansOtwarcia), 123451788);
  EXPECT_EQ(grosze(b.koniec), 123446779);

  // A range that ends before ING was created.
  sesja.pubFiltrCzasowy.od = QDate(2026, 1, 1);
  sesja.pubFiltrCzasowy.do_ = QDate(2026, 11, 10);
  b = ObliczBilansOkresu(WezelKont::Konto(k.ing), okres(6));
  EXPECT_EQ(grosze(b.bilansOtwarcia), 0);
  EXPECT_EQ(grosze(b.poczatek), 0);
  EXPECT_EQ(grosze(b.koniec), 0);
  b = ObliczBilansOkresu(WezelKont::Konto(k.mbank), okres(6));
  EXPECT_EQ(grosze(b.poczatek), -5000);
  EXPECT_EQ(grosze(b.koniec), -11000);
  EXPECT_NEAR(b.procent, 120.0, 1e-9);  // a growing debt reads as growth of the minus
}

// The over-limit states, compared to the cent; the percent change with a zero start and a
// shrinking debt; the account lookups.
TEST(Konta, LimitStatesPercentAndLookups) {
  MagazynTestowy m;
  const Konta k;
  EXPECT_EQ(StanLimitu(0, 0), 1);
  EXPECT_EQ(StanLimitu(-100, 100), 2);
  EXPECT_EQ(StanLimitu(-100, 0), 3);
  EXPECT_EQ(StanLimitu(-100.01, 100), 3);
  EXPECT_EQ(StanLimitu(-(0.1 + 0.2), 0.3), 2);  // equal in cents, though not as doubles
  EXPECT_EQ(StanLimitu(SaldoKonta(k.mbank), 100), 2);

  EXPECT_EQ(ProcentZmiany(-100, -50), -50.0);
  EXPECT_EQ(ProcentZmiany(0, 0), 0.0);
  EXPECT_EQ(ProcentZmiany(0, 500), 100.0);
  EXPECT_EQ(ProcentZmiany(0, -500), 100.0);

  KontoRekord r;
  r.id = k.mbank;
  EXPECT_EQ(OpisKonta(r), QStringLiteral("mBank (") + NazwaRodzajuKonta(2) + QLatin1Char(')'));
  EXPECT_EQ(r.rodzaj, 2);
  EXPECT_EQ(r.limit, 100.0);
  r.id = 9999;
  EXPECT_EQ(OpisKonta(r), Napis(QStringLiteral("Module153")));
  EXPECT_FALSE(Napis(QStringLiteral("Module153")).isEmpty());
  EXPECT_EQ(r.id, 0);
  EXPECT_TRUE(r.nazwa.isEmpty());
  EXPECT_EQ(r.limit, 0.0);
  EXPECT_EQ(DataUtworzeniaKonta(k.ing), QDate(2026, 11, 15));
}

// Saving: an empty name is refused; a taken name is a question for a new account only; the text
// is stored exactly; the creation date is the working date at insert and never changes after;
// an amount in a field the kind switched off is stored all the same; a failed write is told.
TEST(Konta, SavingRulesWithTheQuestionsAnswered) {
  MagazynTestowy m;
  sesja.pubFiltrCzasowy.pozycja = QDate(2026, 3, 5);
  sesja.pubSeparator = QStringLiteral(",");

  DaneKonta d;
  d.nazwa = QStringLiteral("   ");
  EXPECT_FALSE(ZapiszKontoZPytaniami(d));
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_EQ(m.host.pokazane[0].tekst, Napis(QStringLiteral("frmEdycjaKonta25")) + QLatin1Char(' '));
  EXPECT_EQ(m.host.pokazane[0].przyciski, int(MsgOK));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta")), 0);

  d.nazwa = QStringLiteral(" O'Brien's ");
  d.opis = QStringLiteral("  konto 'główne'; -- ");
  d.rodzaj = 1;
  d.winien = QStringLiteral("1234567.89");
  d.ma = QString();
  d.limit = QStringLiteral("5.5");  // typed under another kind; cash switches the field off
  qint64 id = 0;
  ASSERT_TRUE(ZapiszKontoZPytaniami(d, &id));
  EXPECT_EQ(m.host.pokazane.size(), 1u);
  Rekordy rs =
      pubBaza().Czytaj(QStringLiteral("SELECT * FROM konta WHERE id=") + QString::number(id));
  EXPECT_EQ(rs.Tekst(QStringLiteral("nazwa")), QStringLiteral("O'Brien's"));
  EXPECT_EQ(rs.Tekst(QStringLiteral("opis")), QStringLiteral("konto 'główne'; --"));
  EXPECT_EQ(rs.Tekst(QStringLiteral("datautworzenia")), QStringLiteral("2026-03-05"));
  EXPECT_EQ(grosze(PoleRekordu(rs, QStringLiteral("bowinien"))), 123456789);
  EXPECT_EQ(grosze(PoleRekordu(rs, QStringLiteral("boma"))), 0);
  EXPECT_EQ(grosze(PoleRekordu(rs, QStringLiteral("limit"))), 550);

  // The same name again for a new account: Nie keeps the editor open, Tak saves a second row.
  d.nazwa = QStringLiteral("O'Brien's");
  m.host.odpowiedzi = {WynikNie};
  EXPECT_FALSE(ZapiszKontoZPytaniami(d));
  ASSERT_EQ(m.host.pokazane.size(), 2u);
  EXPECT_EQ(m.host.pokazane[1].przyciski, int(MsgTakNie));
  EXPECT_TRUE(m.host.pokazane[1].tekst.contains(QStringLiteral("O'Brien's")));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta")), 1);
  m.host.odpowiedzi = {WynikTak};
  qint64 drugi = 0;
  ASSERT_TRUE(ZapiszKontoZPytaniami(d, &drugi));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta WHERE nazwa='O''Brien''s'")), 2);
  EXPECT_GT(drugi, id);

  // Editing: no question about the name, and the creation date stays.
  sesja.pubFiltrCzasowy.pozycja = QDate(2027, 1, 1);
  d.id = drugi;
  d.nazwa = QStringLiteral("Inne");
  d.rodzaj = 3;
  ASSERT_TRUE(ZapiszKontoZPytaniami(d));
  d.id = id;
  ASSERT_TRUE(ZapiszKontoZPytaniami(d));
  EXPECT_EQ(m.host.pokazane.size(), 3u);
  EXPECT_EQ(m.Licz(QStringLiteral(
                "SELECT COUNT(*) FROM konta WHERE nazwa='Inne' AND datautworzenia='2026-03-05'")),
            2);

  // A write that fails is told and reported as not saved.
  wykonajSurowo(
      "CREATE TRIGGER psuj BEFORE INSERT ON konta BEGIN SELECT RAISE(ABORT, 'disk full'); END");
  d.id = 0;
  d.nazwa = QStringLiteral("Nowe");
  EXPECT_FALSE(ZapiszKontoZPytaniami(d));
  ASSERT_EQ(m.host.pokazane.size(), 4u);
  EXPECT_TRUE(m.host.pokazane[3].tekst.startsWith(Napis(QStringLiteral("frmEdycjaKonta33"))));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta")), 2);
}

// Deleting: refused while executed or planned entries or transfers refer to the account;
// otherwise asked, and the account goes with its templates in one change.
TEST(Konta, DeletionRulesAndTheTemplateCascade) {
  MagazynTestowy m;
  const qint64 zPlanem = NoweKontoTestowe(QStringLiteral("Plan"), 2, QStringLiteral("2026-01-01"));
  const qint64 zWpisem = NoweKontoTestowe(QStringLiteral("Wpis"), 1, QStringLiteral("2026-01-01"));
  const qint64 wolne = NoweKontoTestowe(QStringLiteral("Wolne"), 4, QStringLiteral("2026-01-01"));
  const qint64 psute = NoweKontoTestowe(QStringLiteral("Psute"), 4, QStringLiteral("2026-01-01"));
  TransferTestowy(zWpisem, zPlanem, QStringLiteral("2026-12-01"), 5,
                  QStringLiteral("zaplanowanewewnetrzne"));
  WpisTestowy(zWpisem, QStringLiteral("2026-02-01"), 0, 1);
  for (const auto& [konto, z, na] :
       {std::tuple{wolne, wolne, zWpisem}, std::tuple{psute, zWpisem, psute},
        std::tuple{zWpisem, zWpisem, zPlanem}}) {
    ASSERT_TRUE(pubBaza().Wykonaj(
        QStringLiteral("INSERT INTO szablony (rodzaj,nazwa,konto,kategoria) VALUES (2,'s',%1,'A')")
            .arg(konto)));
    ASSERT_TRUE(pubBaza().Wykonaj(
        QStringLiteral("INSERT INTO szablonywewnetrzne (nazwa,zkonta,nakonto) VALUES ('t',%1,%2)")
            .arg(z)
            .arg(na)));
  }

  // One planned transfer is enough to refuse; so is an executed entry.
  for (const qint64 id : {zPlanem, zWpisem}) {
    EXPECT_EQ(SprawdzUsuniecieKonta(id, QStringLiteral("x")).rodzaj, PytanieKonta::Odmowa);
    EXPECT_FALSE(UsunKontoZPytaniami(id, QStringLiteral("x")));
    EXPECT_EQ(m.host.pokazane.back().tytul,
              QLatin1Char(' ') + Napis(QStringLiteral("frmPrzegladKont73")));
  }
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta")), 4);

  m.host.odpowiedzi = {WynikNie};
  EXPECT_FALSE(UsunKontoZPytaniami(wolne, QStringLiteral("Wolne")));
  EXPECT_EQ(m.host.pokazane.back().tekst,
            Napis(QStringLiteral("frmPrzegladKont74")) + QStringLiteral(" Wolne ?"));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta WHERE id=%1").arg(wolne)), 1);
  m.host.odpowiedzi = {WynikTak};
  EXPECT_TRUE(UsunKontoZPytaniami(wolne, QStringLiteral("Wolne")));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta WHERE id=%1").arg(wolne)), 0);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM szablony")), 2);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM szablonywewnetrzne")), 2);

  // A failure in the cascade undoes the whole deletion, and the user is told.
  wykonajSurowo(
      "CREATE TRIGGER psuj BEFORE DELETE ON szablonywewnetrzne BEGIN SELECT RAISE(ABORT, "
      "'locked'); END");
  m.host.odpowiedzi = {WynikTak};
  EXPECT_FALSE(UsunKontoZPytaniami(psute, QStringLiteral("Psute")));
  EXPECT_EQ(m.host.pokazane.back().tekst.left(20),
            Napis(QStringLiteral("frmPrzegladKont92")).left(20));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta WHERE id=%1").arg(psute)), 1);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM szablony WHERE konto=%1").arg(psute)), 1);
}

// The incremental search walk: the first hit and whether another follows; "next" walks on,
// resets the position at every miss, and after the last hit starts again from the first index.
TEST(Wyszukiwanie, WalkOfTheSearchBoxAndTheNextButton) {
  const QStringList wezly = {QStringLiteral("Wszystkie konta"),
                             QStringLiteral("Gotówkowe"),
                             QStringLiteral("Bankowe"),
                             QStringLiteral("Karty"),
                             QStringLiteral("Lokaty"),
                             QStringLiteral("Kredyty"),
                             QStringLiteral("Inne"),
                             QStringLiteral("Portfel"),
                             QStringLiteral("Bank PKO"),
                             QStringLiteral("PORTFEL 2"),
                             QStringLiteral("Skarbonka")};
  const auto tekst = [&](int i) { return wezly.at(i - 1); };
  const int ostatni = int(wezly.size());
  Wyszukiwanie w(8);

  Wyszukiwanie::Wynik r = w.Zmiana(QStringLiteral("  portfel "), ostatni, tekst);
  EXPECT_EQ(r.trafienie, 8);
  EXPECT_TRUE(r.nastepny);
  EXPECT_EQ(w.Pozycja(), 9);
  EXPECT_EQ(w.Nastepny(QStringLiteral("portfel"), ostatni, tekst), 10);
  EXPECT_EQ(w.Nastepny(QStringLiteral("portfel"), ostatni, tekst), 0);  // a miss at the end
  EXPECT_EQ(w.Pozycja(), 8);
  EXPECT_EQ(w.Nastepny(QStringLiteral("portfel"), ostatni, tekst), 8);

  // Only a kind's name matches: the walk starts behind the kinds, so nothing is found.
  r = w.Zmiana(QStringLiteral("Kredyty"), ostatni, tekst);
  EXPECT_EQ(r.trafienie, 0);
  EXPECT_FALSE(r.nastepny);
  // One hit only: no "next".
  r = w.Zmiana(QStringLiteral("skarb"), ostatni, tekst);
  EXPECT_EQ(r.trafienie, 11);
  EXPECT_FALSE(r.nastepny);
  // "next" past the last node goes back to the first index.
  EXPECT_EQ(w.Nastepny(QStringLiteral("bank"), ostatni, tekst), 9);
  EXPECT_EQ(w.Zmiana(QStringLiteral(""), ostatni, tekst).trafienie, 0);
}
