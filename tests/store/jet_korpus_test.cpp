// Every statement the program runs (tests/store/korpus_jet.txt) translates and runs on a store
// holding a small sample, and finds what it should find there.

#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

#include <QFile>
#include <QRegularExpression>
#include <ctime>
#include <memory>

#include "common/magazyn_testowy.h"
#include "store/baza.h"
#include "store/jet.h"

namespace {

// Written straight in SQLite, so that the sample does not depend on the translator under test.
// Today is 2026-11-22, a Sunday of week 47; wersjabazy is put back into its old two-column form.
const char* const kProbka = R"(
DROP TABLE wersjabazy;
CREATE TABLE wersjabazy (wersja TEXT, data TEXT);
INSERT INTO wersjabazy VALUES ('1', '2003-01-01');
INSERT INTO konta (id, datautworzenia, nazwa, opis, rodzaj, bowinien, boma, "limit") VALUES
 (1, '2026-01-01', 'Portfel', 'Gotówka w portfelu', 1, 100, 0, 0),
 (2, '2025-06-01', 'Bank', 'Rachunek bieżący', 2, 1000, 0, 500),
 (3, '2026-03-15', 'Karta', 'Karta kredytowa', 3, 0, 200, 1000),
 (4, '2024-01-10', 'Lokata', 'Lokata roczna', 4, 5000, 0, 0),
 (5, '2026-11-20', 'Kredyt', 'Kredyt ratalny', 5, 0, 10000, 0),
 (6, '2026-12-01', 'Inne', 'Obrazy', 6, 300, 0, 0);
INSERT INTO kategorie (id, identyfikator, kategoria, nazwa, opis, rodzaj, "limit", oszczednosc) VALUES
 (1, 'a', '-', 'Żywność', 'Jedzenie', 2, 0, 0),
 (2, 'aa', 'a', 'Pieczywo', '', 2, 0, 0),
 (3, 'aaa', 'aa', 'Bułki', '', 2, 50, 0),
 (4, 'ab', 'a', 'Nabiał', '', 2, 0, -10),
 (5, 'b', '-', 'Transport', '', 2, 0, 0),
 (6, 'ba', 'b', 'Paliwo', '', 2, 300, 0),
 (7, 'a', '-', 'Pensja', '', 1, 0, 0),
 (8, 'aa', 'a', 'Podstawa', '', 1, 0, 0),
 (9, 'ab', 'a', 'Premia', '', 1, 0, 0),
 (10, 'aba', 'ab', 'Kwartalna', '', 1, 0, 0),
 (11, 'b', '-', 'Odsetki', '', 1, 0, 0);
INSERT INTO kontrahent (id, skrocona, opis, nazwa, adres, miasto, telefon, konto, bank, lk) VALUES
 (1, 'Sklep', 'Sklep osiedlowy', 'Sklep Sp. z o.o.', 'ul. Polna 1', '00-001 Warszawa', '221234567',
  '0000111122223333', '10501234', '12'),
 (2, 'Pracodawca', 'Firma', 'Firma SA', 'ul. Długa 5', '00-002 Warszawa', '', '', '', ''),
 (3, 'O''Neil', 'Sąsiad z 100% pewnością', 'Jan O''Neil', 'ul. Krótka 3', '00-003 Warszawa', '', '', '', '');
INSERT INTO transakcje (id, data, rodzaj, przychod, wydatek, opis, kategoria, konto, kontrahent) VALUES
 (1, '2026-11-22', 2, 0, 12.5, 'Bułki  ', 'aaa', 1, 1),
 (2, '2026-11-16', 2, 0, 30.1, 'Mleko 100% tłuste  ', 'ab', 2, 1),
 (3, '2026-11-15', 2, 0, 100, 'Paliwo  ', 'ba', 3, 0),
 (4, '2026-11-10', 1, 5000, 0, 'Pensja listopad  ', 'aa', 2, 2),
 (5, '2026-10-10', 1, 4900, 0, 'Pensja październik  ', 'aa', 2, 2),
 (6, '2025-12-31', 2, 0, 45.99, 'Sylwester  ', 'aaa', 1, 0),
 (7, '2026-01-01', 2, 0, 10, 'Nowy rok  ', 'aaa', 1, 0),
 (8, '2026-08-05', 1, 300.33, 0, 'Odsetki_kwartał  ', 'b', 4, 0),
 (9, '2026-11-20', 2, 0, 0.1, 'Guma  ', 'aaa', 1, 3),
 (10, '2026-11-21', 2, 0, 0.2, 'Cukierek  ', 'aaa', 1, 3),
 (11, '2026-07-15', 1, 1200, 0, 'Premia kwartalna  ', 'aba', 2, 2);
INSERT INTO zaplanowane (id, data, rodzaj, przychod, wydatek, opis, kategoria, konto, kontrahent) VALUES
 (1, '2026-11-21', 2, 0, 200, 'Czynsz  ', 'ba', 2, 1),
 (2, '2026-11-22', 1, 150, 0, 'Zwrot  ', 'b', 2, 3),
 (3, '2026-12-10', 2, 0, 60, 'Gaz  ', 'ab', 2, 0);
INSERT INTO wewnetrzne (id, data, kwota, opis, zkonta, nakonto) VALUES
 (1, '2026-11-18', 250, 'Bankomat  ', 2, 1),
 (2, '2026-11-01', 1000, 'Spłata karty  ', 2, 3),
 (3, '2025-05-05', 500, 'Na lokatę  ', 2, 4);
INSERT INTO zaplanowanewewnetrzne (id, data, kwota, opis, zkonta, nakonto) VALUES
 (1, '2026-11-20', 300, 'Na lokatę  ', 2, 4),
 (2, '2026-12-01', 100, 'Spłata  ', 2, 3);
INSERT INTO szablony (id, rodzaj, nazwa, konto, kategoria, kontrahent, opis) VALUES
 (1, 2, 'Zakupy', 1, 'aaa', 1, 'Zakupy spożywcze'),
 (2, 1, 'Wypłata', 2, 'aa', 2, 'Pensja'),
 (3, 2, 'Paliwo', 3, 'ba', 0, 'Tankowanie');
INSERT INTO szablonywewnetrzne (id, nazwa, zkonta, nakonto, opis) VALUES
 (1, 'Bankomat', 2, 1, 'Gotówka'),
 (2, 'Lokata', 2, 4, 'Oszczędności');
DELETE FROM setup;
INSERT INTO setup (tloaktywne, napisyaktywne, przyciskiaktywne, etykietyaktywne,
 napisyetykietaktywne, listajeden, listadwa, tlonieaktywne, napisynieaktywne, haslo, notatnik,
 userid, hasloserwisu, imie, nazwisko, ulica, miasto, lk, bank, konto, autostart,
 autostartprzypominacz) VALUES ('12303359', '986895', '16777139', '8454143', '4194304', '16777215',
 '10812380', '15724527', '986895', '', '', '', '', 'Jan', 'Kowalski', 'ul. Polna 2',
 '00-001 Warszawa', '07', '10501234', '0000111122223333', 0, 1);
INSERT INTO imieniny (dzien, miesiac, imiona) SELECT 22, 11, 'Cecylii, Marka'
 WHERE NOT EXISTS (SELECT 1 FROM imieniny WHERE dzien = 22 AND miesiac = 11);
INSERT INTO kreatorkategorie (typ, identyfikator, kategoria, opis, polski, angielski) VALUES
 (9, 'x', '-', '', 'Dom', 'Home'), (9, 'xa', 'x', '', 'Czynsz', 'Rent'), (9, 'y', '-', '', 'Auto', 'Car');
INSERT INTO pytania (id, pytanie, datawyslania, idpytania) VALUES
 (1, 'Jak dodać konto?', NULL, NULL), (2, 'Czy działa?', '2026-11-01', '0042');
)";

struct Wpis {
  int linia = 0;
  QString sql;
  QStringList oczekiwania;
  bool swiezy = false;  // "@@ fresh": a new store with the sample
};

QList<Wpis> wczytajKorpus() {
  QFile f(QStringLiteral(ZORVIK_SRC_DIR "/tests/store/korpus_jet.txt"));
  EXPECT_TRUE(f.open(QIODevice::ReadOnly | QIODevice::Text)) << f.fileName().toStdString();
  const QStringList linie = QString::fromUtf8(f.readAll()).split(QLatin1Char('\n'));
  QList<Wpis> wpisy;
  Wpis w;
  auto zamknij = [&] {
    if (!w.sql.isEmpty() || w.swiezy) wpisy << w;
    w = Wpis{};
  };
  // Expectations are blank-separated; a 'quoted text' may hold blanks and doubled apostrophes.
  static const QRegularExpression element(QStringLiteral("(\\S+?='(?:[^']|'')*'|\\S+)"));
  for (int i = 0; i < linie.size(); ++i) {
    const QString l = linie[i].trimmed();
    if (l.isEmpty()) {
      zamknij();
    } else if (l.startsWith(QLatin1String("--"))) {
      continue;
    } else if (l == QLatin1String("@@ fresh")) {
      zamknij();
      w.swiezy = true;
      w.linia = i + 1;
      zamknij();
    } else if (l.startsWith(QLatin1String("=>"))) {
      auto it = element.globalMatch(l.mid(2));
      while (it.hasNext()) w.oczekiwania << it.next().captured(1);
    } else {
      if (w.sql.isEmpty()) w.linia = i + 1;
      w.sql += (w.sql.isEmpty() ? QString() : QStringLiteral(" ")) + linie[i];
    }
  }
  zamknij();
  return wpisy;
}

void wypelnijProbke() {
  char* blad = nullptr;
  ASSERT_EQ(sqlite3_exec(pubBaza().Uchwyt(), kProbka, nullptr, nullptr, &blad), SQLITE_OK)
      << (blad ? blad : "");
}

// Checks one expectation ("rows=2", "ile=3", "nazwa[1]='Bułki'", "suma=null") against a result.
void sprawdz(const QString& o, const Rekordy* rs, const WynikZapisu* w) {
  SCOPED_TRACE(o.toStdString());
  static const QRegularExpression wzor(QStringLiteral("^(\\w+)(?:\\[(\\d+)\\])?(=|>=)(.*)$"));
  const auto m = wzor.match(o);
  ASSERT_TRUE(m.hasMatch());
  const QString nazwa = m.captured(1), wartosc = m.captured(4);
  const int indeks = m.captured(2).isEmpty() ? 0 : m.captured(2).toInt();
  if (nazwa == QLatin1String("changes")) {
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->zmienione, wartosc.toLongLong());
    return;
  }
  ASSERT_NE(rs, nullptr);
  if (nazwa == QLatin1String("rows")) {
    if (m.captured(3) == QLatin1String(">="))
      EXPECT_GE(rs->RecordCount(), wartosc.toLongLong());
    else
      EXPECT_EQ(rs->RecordCount(), wartosc.toLongLong());
    return;
  }
  if (nazwa == QLatin1String("cols")) {
    EXPECT_EQ(rs->LiczbaPol(), wartosc.toInt());
    return;
  }
  ASSERT_TRUE(rs->NazwyPol().contains(nazwa, Qt::CaseInsensitive)) << "no such field";
  ASSERT_LT(indeks, rs->RecordCount()) << "no such row";
  Rekordy r = *rs;
  r.MoveFirst();
  for (int i = 0; i < indeks; ++i) r.MoveNext();
  const QVariant v = r.Pole(nazwa);
  if (wartosc == QLatin1String("null")) {
    EXPECT_TRUE(v.isNull()) << v.toString().toStdString();
  } else if (wartosc.startsWith(QLatin1Char('\''))) {
    QString tekst = wartosc.mid(1, wartosc.size() - 2);
    tekst.replace(QLatin1String("''"), QLatin1String("'"));
    EXPECT_EQ(v.typeId(), QMetaType::QString) << "a text field came back as a number";
    EXPECT_EQ(v.toString().toStdString(), tekst.toStdString());
  } else {
    EXPECT_TRUE(v.typeId() == QMetaType::LongLong || v.typeId() == QMetaType::Double)
        << "a number field came back as " << v.typeName() << " " << v.toString().toStdString();
    // Sums are exact to the cent, so they must equal the literal exactly.
    EXPECT_EQ(v.toDouble(), wartosc.toDouble());
  }
}

}  // namespace

TEST(KorpusJet, EveryStatementTranslatesRunsAndFindsTheSample) {
  const QList<Wpis> wpisy = wczytajKorpus();
  int instrukcje = 0, sprawdzone = 0;
  for (const Wpis& w : wpisy) instrukcje += !w.swiezy;
  ASSERT_GT(instrukcje, 300);

  auto magazyn = std::make_unique<MagazynTestowy>();
  wypelnijProbke();
  for (const Wpis& w : wpisy) {
    if (w.swiezy) {
      magazyn.reset();
      magazyn = std::make_unique<MagazynTestowy>();
      wypelnijProbke();
      continue;
    }
    SCOPED_TRACE(QStringLiteral("korpus_jet.txt:%1: %2\n  -> %3")
                     .arg(w.linia)
                     .arg(w.sql, TlumaczJet(w.sql))
                     .toStdString());
    if (w.sql.startsWith(QLatin1String("SELECT"), Qt::CaseInsensitive)) {
      const Rekordy rs = pubBaza().Czytaj(w.sql);
      EXPECT_TRUE(rs.Ok()) << rs.Blad().toStdString();
      for (const QString& o : w.oczekiwania) sprawdz(o, &rs, nullptr);
    } else {
      const WynikZapisu wynik = pubBaza().Wykonaj(w.sql);
      EXPECT_TRUE(wynik.ok) << wynik.blad.toStdString();
      for (const QString& o : w.oczekiwania) sprawdz(o, nullptr, &wynik);
    }
    sprawdzone += !w.oczekiwania.isEmpty();
  }
  EXPECT_GT(sprawdzone, instrukcje * 3 / 4) << "most statements carry an expected outcome";
  RecordProperty("statements", instrukcje);
  std::printf("[ corpus   ] %d statements, %d with expected outcomes\n", instrukcje, sprawdzone);

  // Time of one translation: every statement made unique, so that no remembered translation is
  // reused, and then the same statements again, as the program repeats them.
  QStringList nowe, powtorzone;
  for (int runda = 0; runda < 20; ++runda)
    for (const Wpis& w : wpisy)
      if (!w.swiezy) {
        nowe << w.sql + QStringLiteral(" -- %1").arg(runda);
        powtorzone << w.sql;
      }
  // Processor time of this thread, so that other work on the machine does not count.
  auto teraz = [] {
    timespec ts{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
    return double(ts.tv_sec) * 1e6 + double(ts.tv_nsec) / 1e3;
  };
  qint64 ile = 0;
  double t = teraz();
  for (const QString& s : nowe) ile += TlumaczJet(s).size();
  const double zimne = (teraz() - t) / double(nowe.size());
  t = teraz();
  for (const QString& s : powtorzone) ile += TlumaczJet(s).size();
  const double cieple = (teraz() - t) / double(powtorzone.size());
  std::printf(
      "[ corpus   ] translation: %.2f us per new statement, %.2f us per repeated one (%lld "
      "chars)\n",
      zimne, cieple, static_cast<long long>(ile));
}
