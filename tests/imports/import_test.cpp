// The preview, the write and its undo over the fixture statements, and zorvik-import.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "common/magazyn_testowy.h"
#include "imports/import.h"
#include "imports/wiersz_polecen.h"
#include "store/baza.h"

namespace {
QString fixture(const char* nazwa) {
  return QStringLiteral(ZORVIK_SRC_DIR "/tests/imports/dane/") + QLatin1String(nazwa);
}

void sql(const QString& s) { ASSERT_TRUE(pubBaza().Wykonaj(s)) << s.toStdString(); }

// Two bank accounts with their numbers, a counterparty known by account number and one by name
// with past entries in a category, and the salary already entered by hand.
struct Dom {
  qint64 glowne = 0, oszczednosci = 0;
  Dom() {
    sql(QStringLiteral("INSERT INTO konta (nazwa, rodzaj, numer) VALUES ('Główne', 2, "
                       "'61109010140000071219812874')"));
    glowne = pubBaza().OstatnieId();
    sql(QStringLiteral("INSERT INTO konta (nazwa, rodzaj, numer) VALUES ('Oszczędności', 2, "
                       "'27114020040000300201355387')"));
    oszczednosci = pubBaza().OstatnieId();
    sql(QStringLiteral("INSERT INTO kategorie (identyfikator, kategoria, nazwa, rodzaj) VALUES "
                       "('a', 'Root', 'Jedzenie', 2), ('b', 'Root', 'Mieszkanie', 2), "
                       "('a', 'Root', 'Pensja', 1)"));
    sql(QStringLiteral("INSERT INTO kontrahent (skrocona, nazwa, konto) VALUES ('Żabka', 'Żabka', ''), "
                       "('Spółdzielnia', 'SM Śródmieście', '12 1020 1026 0000 1502 0123 4567')"));
    sql(QStringLiteral("INSERT INTO transakcje (data, rodzaj, przychod, wydatek, opis, kategoria, "
                       "konto, kontrahent) VALUES ('2026-10-03', 2, 0, 9.99, 'Zakupy', 'a', %1, "
                       "(SELECT id FROM kontrahent WHERE skrocona='Żabka')), "
                       "('2026-11-10', 1, 8500, 0, 'wynagrodzenie 11/2026  ', 'a', %1, 0)")
            .arg(glowne));
  }
};

Podglad podglad(const char* nazwa, qint64 konto) {
  BladWyciagu b;
  const auto w = CzytajWyciag(fixture(nazwa), {}, &b);
  EXPECT_TRUE(w.has_value()) << TekstBledu(b).toStdString();
  return PrzygotujPodglad(w.value_or(Wyciag{}), konto);
}
}  // namespace

TEST(Import, PreviewMatchesDuplicatesTransfersAndWritesWithUndo) {
  MagazynTestowy m;
  Dom dom;
  BladWyciagu b;
  const auto w = CzytajWyciag(fixture("wyciag_cp1250.sta"), {}, &b);
  ASSERT_TRUE(w);
  EXPECT_EQ(KontoDlaRachunku(w->rachunek), dom.glowne);  // the statement picks its account
  const Podglad g = PrzygotujPodglad(*w, dom.glowne);
  ASSERT_EQ(g.pozycje.size(), 4u);
  // Matched by name (the bank's longer form), with the category of past entries.
  EXPECT_FALSE(g.pozycje[0].nowyKontrahent);
  EXPECT_EQ(g.pozycje[0].nazwaKontrahenta, QStringLiteral("Żabka"));
  EXPECT_EQ(g.pozycje[0].kategoria, QStringLiteral("a"));
  EXPECT_EQ(g.pozycje[0].stan, StanPozycji::Nowy);
  // Matched by account number though the names differ.
  EXPECT_EQ(g.pozycje[1].nazwaKontrahenta, QStringLiteral("Spółdzielnia"));
  // Already entered by hand: a duplicate, left out by default.
  EXPECT_EQ(g.pozycje[2].stan, StanPozycji::Duplikat);
  EXPECT_FALSE(g.pozycje[2].wybrana);
  // To the user's other account: a transfer.
  EXPECT_EQ(g.pozycje[3].stan, StanPozycji::Transfer);
  EXPECT_EQ(g.pozycje[3].kontoTransferu, dom.oszczednosci);

  const qint64 wpisyPrzed = m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje"));
  const qint64 obrotyPrzed =
      m.Licz(QStringLiteral("SELECT wydatek FROM obrotykont WHERE konto=%1").arg(dom.glowne));
  WynikImportu r = ZapiszImport(g);
  ASSERT_TRUE(r.ok) << r.blad.toStdString();
  EXPECT_EQ(r.wpisy, 2);
  EXPECT_EQ(r.transfery, 1);
  EXPECT_EQ(r.kontrahenci, 0);
  EXPECT_EQ(WierszeOstatniegoImportu(), 3);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM wewnetrzne WHERE zkonta=%1 AND nakonto=%2 "
                                  "AND kwota=500")
                       .arg(dom.glowne)
                       .arg(dom.oszczednosci)),
            1);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT wydatek FROM obrotykont WHERE konto=%1").arg(dom.glowne)),
            obrotyPrzed + 1250 + 123456);

  // The other account's statement: the transfer is already there, the rest is new, and a new
  // counterparty is created once.
  const Podglad g2 = podglad("mbank_utf8.csv", dom.oszczednosci);
  ASSERT_EQ(g2.pozycje.size(), 3u);
  EXPECT_EQ(g2.pozycje[0].stan, StanPozycji::Duplikat);
  // The same statement again: everything is a duplicate.
  const Podglad g3 = podglad("wyciag_cp1250.sta", dom.glowne);
  EXPECT_EQ(g3.ile(StanPozycji::Duplikat), 4);

  // The CSV of the same account (other format, no bank ids): its lines are known too, and its
  // new counterparties are to be created.
  const Podglad g4 = podglad("pko_cp1250.csv", dom.glowne);
  ASSERT_EQ(g4.pozycje.size(), 5u);
  EXPECT_EQ(g4.ile(StanPozycji::Duplikat), 4);
  EXPECT_TRUE(g4.pozycje[4].nowyKontrahent);
  EXPECT_EQ(g4.pozycje[4].nazwaKontrahenta, QStringLiteral("Zdzisław O'Brien"));  // 16 characters: whole
  r = ZapiszImport(g4);
  ASSERT_TRUE(r.ok);
  EXPECT_EQ(r.wpisy, 1);
  EXPECT_EQ(r.kontrahenci, 1);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje WHERE opis='Zwrot za bilet - O''Brien'")), 1);

  // Undo removes exactly the last import, then the one before it.
  r = CofnijImport();
  ASSERT_TRUE(r.ok);
  EXPECT_EQ(r.wpisy, 1);
  EXPECT_EQ(r.kontrahenci, 1);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kontrahent WHERE skrocona LIKE 'Zdzis%'")), 0);
  EXPECT_EQ(WierszeOstatniegoImportu(), 3);
  r = CofnijImport();
  ASSERT_TRUE(r.ok);
  EXPECT_EQ(r.wpisy + r.transfery, 3);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje")), wpisyPrzed);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM wewnetrzne")), 0);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT wydatek FROM obrotykont WHERE konto=%1").arg(dom.glowne)),
            obrotyPrzed);
  EXPECT_EQ(WierszeOstatniegoImportu(), 0);
}

// Long payee names as banks give them: shown whole, kept whole as the full name with a short
// name cut after a word, two payees alike in their first words stay two, and the next statement
// finds them again by the whole name.
TEST(Import, LongCounterpartyNamesStayWholeAndApart) {
  MagazynTestowy m;
  Dom dom;
  const QString dlugi1 =
      QStringLiteral("Przedsiębiorstwo Handlowe Łukasz Żółć Spółka Jawna Kraków");
  const QString dlugi2 =
      QStringLiteral("Przedsiębiorstwo Handlowe Łukasz Żółć Spółka Jawna Gdańsk");
  const QString bezSpacji = QStringLiteral("Zakładprzetwórstwamięsnego");
  Wyciag w;
  int i = 0;
  for (const QString& kto : {dlugi1, dlugi2, bezSpacji, QStringLiteral("  ") + dlugi1.toUpper()})
    w.pozycje.push_back(
        {0, QDate(2026, 11, 1).addDays(i++), -1000 - i, QStringLiteral("Faktura"), kto, {}, {}});
  const Podglad g = PrzygotujPodglad(w, dom.glowne);
  ASSERT_EQ(g.pozycje.size(), 4u);
  EXPECT_EQ(g.pozycje[0].nazwaKontrahenta, dlugi1);
  EXPECT_EQ(g.pozycje[1].nazwaKontrahenta, dlugi2);
  EXPECT_TRUE(g.pozycje[0].nowyKontrahent && g.pozycje[1].nowyKontrahent);
  const WynikImportu r = ZapiszImport(g);
  ASSERT_TRUE(r.ok) << r.blad.toStdString();
  EXPECT_EQ(r.kontrahenci, 3);  // the upper-case line is the first payee again
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kontrahent WHERE nazwa='%1'").arg(dlugi1)),
            1);
  EXPECT_EQ(
      m.Licz(QStringLiteral("SELECT COUNT(*) FROM kontrahent WHERE skrocona='Przedsiębiorstwo'")),
      2);
  EXPECT_EQ(
      m.Licz(QStringLiteral("SELECT COUNT(*) FROM kontrahent WHERE skrocona='Zakładprzetwórst'")),
      1);
  EXPECT_EQ(m.Licz(QStringLiteral(
                "SELECT COUNT(DISTINCT kontrahent) FROM transakcje WHERE opis='Faktura'")),
            3);
  const Podglad g2 = PrzygotujPodglad(w, dom.glowne);
  for (const PozycjaPodgladu& z : g2.pozycje)
    EXPECT_FALSE(z.nowyKontrahent) << z.p.kontrahent.toStdString();
  EXPECT_NE(g2.pozycje[0].kontrahent, g2.pozycje[1].kontrahent);
}

TEST(Import, CommandLinePreviewWriteAndBadInput) {
  MagazynTestowy m;
  Dom dom;
  auto uruchom = [&](QStringList a, QString* wyjscie, QString* bledy) {
    QString o, e;
    QTextStream so(&o), se(&e);
    a.prepend(m.Folder());
    a.prepend(QStringLiteral("--dane"));
    const int kod = UruchomImport(a, so, se);
    so.flush();
    se.flush();
    *wyjscie = o;
    *bledy = e;
    return kod;
  };
  QString o, e;
  ASSERT_EQ(uruchom({QStringLiteral("--konto"), QString::number(dom.glowne),
                     fixture("wyciag_cp1250.sta")},
                    &o, &e),
            0)
      << e.toStdString();
  const QStringList linie = o.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
  ASSERT_EQ(linie.size(), 4);
  EXPECT_EQ(linie[0], QStringLiteral("2026-11-03\t12.50\twydatek\tZakup kartą: Żabka Łódź ul. "
                                     "Piotrkowska 1\tŻabka\ta\tnowy"));
  EXPECT_TRUE(linie[1].startsWith(QStringLiteral("2026-11-05\t1234.56\twydatek\t")));
  EXPECT_TRUE(linie[2].endsWith(QStringLiteral("\tduplikat")));
  EXPECT_TRUE(linie[3].endsWith(QStringLiteral("\ttransfer")));
  const qint64 przed = m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje"));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje")), przed);  // nothing written

  ASSERT_EQ(uruchom({QStringLiteral("--konto"), QString::number(dom.glowne), QStringLiteral("--zapisz"),
                     QStringLiteral("--format"), QStringLiteral("mt940"), fixture("wyciag_cp1250.sta")},
                    &o, &e),
            0);
  EXPECT_EQ(o.trimmed(), QStringLiteral("3"));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje")), przed + 2);

  // Bad input: exit 2, the message with the line, nothing written.
  QTemporaryDir d;
  const QString zly = d.filePath(QStringLiteral("zly.csv"));
  QFile f(zly);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write("Data operacji;Opis;Kwota\n03.11.2026;Kawa;-3,00\n04.11.2026;Chleb;-1.234,5x\n");
  f.close();
  EXPECT_EQ(uruchom({QStringLiteral("--konto"), QString::number(dom.glowne), QStringLiteral("--zapisz"), zly},
                    &o, &e),
            2);
  EXPECT_TRUE(e.contains(QStringLiteral("3"))) << e.toStdString();
  EXPECT_TRUE(e.contains(QStringLiteral("-1.234,5x"))) << e.toStdString();
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje")), przed + 2);
  EXPECT_EQ(uruchom({QStringLiteral("--konto"), QStringLiteral("x"), zly}, &o, &e), 2);
  EXPECT_EQ(uruchom({QStringLiteral("--konto"), QStringLiteral("999"), zly}, &o, &e), 1);
  EXPECT_EQ(uruchom({QStringLiteral("--konto"), QString::number(dom.glowne), QStringLiteral("--kodowanie"),
                     QStringLiteral("utf-8"), fixture("pko_cp1250.csv")},
                    &o, &e),
            2);
}
