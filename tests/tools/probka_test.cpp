#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "budowa.h"
#include "surowa.h"

namespace {

RozmiarProbki maly() {
  RozmiarProbki r;
  r.transakcje = 3000;
  r.wewnetrzne = 600;
  r.konta = 12;
  r.kategorie = 60;
  r.kontrahenci = 40;
  r.zaplanowane = 300;
  r.zaplanowaneWewnetrzne = 50;
  r.szablony = 6;
  r.szablonyWewnetrzne = 3;
  return r;
}

// A generated store in its own folder, read through a raw connection of its own.
class Probka {
 public:
  explicit Probka(const RozmiarProbki& r) {
    plik_ = dir_.filePath(QStringLiteral("money.fns"));
    QString blad;
    ok_ =
        ZbudujBaze(QStringLiteral(ZORVIK_DATA_DIR), plik_, &blad) && GenerujProbke(plik_, r, &blad);
    EXPECT_TRUE(ok_) << blad.toStdString();
    db_ = OtworzSurowo(plik_, false, &blad);
  }
  ~Probka() { sqlite3_close(db_); }
  qint64 Liczba(const QString& sql) const {
    Polecenie p(db_, sql);
    EXPECT_TRUE(p.Wiersz()) << p.Blad().toStdString();
    return p.Liczba(0);
  }
  // Row counts and sums in cents of every table the generator fills.
  QList<qint64> Odcisk() const {
    QList<qint64> o;
    for (const char* t :
         {"konta", "kategorie", "kontrahent", "transakcje", "zaplanowane", "wewnetrzne",
          "zaplanowanewewnetrzne", "szablony", "szablonywewnetrzne", "setup"})
      o << Liczba(QStringLiteral("SELECT count(*) FROM %1").arg(QLatin1String(t)));
    for (const char* t : {"transakcje", "zaplanowane"})
      o << Liczba(QStringLiteral("SELECT SUM(round(przychod*100)) FROM %1").arg(QLatin1String(t)))
        << Liczba(QStringLiteral("SELECT SUM(round(wydatek*100)) FROM %1").arg(QLatin1String(t)))
        << Liczba(QStringLiteral(
                      "SELECT SUM(konto*kontrahent+length(kategoria)+unicode(data)) FROM %1")
                      .arg(QLatin1String(t)));
    o << Liczba(QStringLiteral("SELECT SUM(round(kwota*100)+zkonta*nakonto) FROM wewnetrzne"))
      << Liczba(QStringLiteral("SELECT SUM(round(bowinien*100)-round(boma*100)+rodzaj) FROM konta"))
      << Liczba(QStringLiteral("SELECT SUM(length(nazwa)*id) FROM kategorie"));
    return o;
  }
  const QString& Plik() const { return plik_; }
  bool ok_ = false;

 private:
  QTemporaryDir dir_;
  QString plik_;
  sqlite3* db_ = nullptr;
};

}  // namespace

// The same seed gives the same store; another seed another one; the sizes asked for are kept.
TEST(Probka, DeterministicAndSized) {
  const RozmiarProbki r = maly();
  Probka a(r), b(r);
  RozmiarProbki inne = r;
  inne.ziarno = 7;
  Probka c(inne);
  ASSERT_TRUE(a.ok_ && b.ok_ && c.ok_);
  EXPECT_EQ(a.Odcisk(), b.Odcisk());
  EXPECT_NE(a.Odcisk().mid(10), c.Odcisk().mid(10));
  const QList<qint64> o = a.Odcisk();
  const QList<qint64> oczekiwane = {r.konta,
                                    r.kategorie,
                                    r.kontrahenci,
                                    r.transakcje,
                                    r.zaplanowane,
                                    r.wewnetrzne,
                                    r.zaplanowaneWewnetrzne,
                                    r.szablony,
                                    r.szablonyWewnetrzne,
                                    1};
  EXPECT_EQ(o.mid(0, 10), oczekiwane);
}

// Every reference in a sample points at a row that exists, of the right kind.
TEST(Probka, ReferencesAndShapesAreValid) {
  Probka p(maly());
  ASSERT_TRUE(p.ok_);
  for (const char* t : {"transakcje", "zaplanowane", "szablony"}) {
    SCOPED_TRACE(t);
    const QString tabela = QLatin1String(t);
    EXPECT_EQ(
        p.Liczba(QStringLiteral("SELECT count(*) FROM %1 WHERE konto NOT IN (SELECT id FROM konta)")
                     .arg(tabela)),
        0);
    EXPECT_EQ(p.Liczba(QStringLiteral(
                           "SELECT count(*) FROM %1 x WHERE NOT EXISTS (SELECT 1 FROM kategorie k "
                           "WHERE k.identyfikator=x.kategoria AND k.rodzaj=x.rodzaj)")
                           .arg(tabela)),
              0);
    EXPECT_EQ(
        p.Liczba(QStringLiteral("SELECT count(*) FROM %1 WHERE kontrahent<>0 AND kontrahent NOT IN "
                                "(SELECT id FROM kontrahent)")
                     .arg(tabela)),
        0);
  }
  for (const char* t : {"transakcje", "zaplanowane"}) {
    SCOPED_TRACE(t);
    const QString tabela = QLatin1String(t);
    // Exactly one amount column holds the amount, the one of the entry's kind, in whole cents.
    EXPECT_EQ(
        p.Liczba(
            QStringLiteral(
                "SELECT count(*) FROM %1 WHERE NOT ((rodzaj=1 AND przychod>0 AND wydatek=0) OR "
                "(rodzaj=2 AND wydatek>0 AND przychod=0))")
                .arg(tabela)),
        0);
    EXPECT_EQ(p.Liczba(QStringLiteral("SELECT count(*) FROM %1 WHERE abs((przychod+wydatek)*100 - "
                                      "round((przychod+wydatek)*100)) > 1e-6")
                           .arg(tabela)),
              0);
    EXPECT_GT(p.Liczba(QStringLiteral(
                           "SELECT count(*) FROM %1 WHERE round((przychod+wydatek)*100) % 100 <> 0")
                           .arg(tabela)),
              0);
    const qint64 bez =
        p.Liczba(QStringLiteral("SELECT count(*) FROM %1 WHERE kontrahent=0").arg(tabela));
    const qint64 wszystkie = p.Liczba(QStringLiteral("SELECT count(*) FROM %1").arg(tabela));
    EXPECT_GT(bez * 100, wszystkie * 25);
    EXPECT_LT(bez * 100, wszystkie * 42);
    EXPECT_EQ(
        p.Liczba(
            QStringLiteral("SELECT count(*) FROM %1 WHERE date(data) IS NOT data").arg(tabela)),
        0);
  }
  // Entries sit on leaves and on inner categories; plans reach past today and years ahead.
  EXPECT_GT(p.Liczba(QStringLiteral(
                "SELECT count(*) FROM transakcje t WHERE EXISTS (SELECT 1 FROM kategorie k "
                "WHERE k.kategoria=t.kategoria AND k.rodzaj=t.rodzaj)")),
            0);
  EXPECT_GT(p.Liczba(QStringLiteral(
                "SELECT count(*) FROM transakcje t WHERE NOT EXISTS (SELECT 1 FROM kategorie k "
                "WHERE k.kategoria=t.kategoria AND k.rodzaj=t.rodzaj)")),
            0);
  EXPECT_GT(p.Liczba(QStringLiteral("SELECT count(*) FROM zaplanowane WHERE data<'2026-11-22'")),
            0);
  EXPECT_GT(p.Liczba(QStringLiteral("SELECT count(*) FROM zaplanowane WHERE data>'2029-01-01'")),
            0);
  for (const char* t : {"wewnetrzne", "zaplanowanewewnetrzne", "szablonywewnetrzne"}) {
    SCOPED_TRACE(t);
    EXPECT_EQ(
        p.Liczba(
            QStringLiteral(
                "SELECT count(*) FROM %1 WHERE zkonta=nakonto OR zkonta NOT IN (SELECT id FROM "
                "konta) OR nakonto NOT IN (SELECT id FROM konta)")
                .arg(QLatin1String(t))),
        0);
  }
  // Category keys: one letter per level, the parent's key plus one letter, four levels in both
  // trees.
  EXPECT_EQ(
      p.Liczba(QStringLiteral(
          "SELECT count(*) FROM kategorie c WHERE NOT (length(identyfikator) BETWEEN 1 AND 4) "
          "OR identyfikator GLOB '*[^a-z]*' OR (length(identyfikator)=1 AND kategoria<>'-') OR "
          "(length(identyfikator)>1 AND "
          "(kategoria<>substr(identyfikator,1,length(identyfikator)-1) "
          "OR NOT EXISTS (SELECT 1 FROM kategorie r WHERE r.identyfikator=c.kategoria AND "
          "r.rodzaj=c.rodzaj)))")),
      0);
  EXPECT_EQ(p.Liczba(QStringLiteral(
                "SELECT count(DISTINCT rodzaj) FROM kategorie WHERE length(identyfikator)=4")),
            2);
  // Names: unique, within the fields' lengths.
  EXPECT_EQ(p.Liczba(QStringLiteral("SELECT count(DISTINCT nazwa) FROM kategorie")), 60);
  EXPECT_EQ(p.Liczba(QStringLiteral("SELECT count(DISTINCT nazwa) FROM konta")), 12);
  EXPECT_EQ(p.Liczba(QStringLiteral("SELECT count(DISTINCT skrocona) FROM kontrahent")), 40);
  EXPECT_EQ(
      p.Liczba(QStringLiteral("SELECT (SELECT max(length(nazwa)) FROM kategorie) <= 16 AND (SELECT "
                              "max(length(nazwa)) FROM konta) <= 16")),
      1);
  EXPECT_EQ(
      p.Liczba(QStringLiteral(
          "SELECT max(length(skrocona)) <= 16 AND max(length(nazwa)) <= 30 AND "
          "max(length(adres)) <= 30 AND max(length(miasto)) <= 30 AND max(length(telefon)) <= 30 "
          "AND max(length(konto)) <= 25 AND max(length(bank)) <= 8 AND max(length(lk)) <= 2 "
          "FROM kontrahent")),
      1);
  EXPECT_EQ(p.Liczba(QStringLiteral(
                "SELECT count(DISTINCT rodzaj) FROM konta WHERE rodzaj BETWEEN 1 AND 6")),
            6);
  EXPECT_GT(p.Liczba(QStringLiteral("SELECT count(*) FROM kontrahent WHERE opis LIKE '%''%'")), 0);
  EXPECT_EQ(p.Liczba(QStringLiteral(
                "SELECT count(*) FROM kontrahent WHERE telefon='' OR konto='' OR miasto=''")),
            0);
}

// A sample never goes into a store that already holds data.
TEST(Probka, RefusesAStoreWithData) {
  Probka p(maly());
  ASSERT_TRUE(p.ok_);
  QString blad;
  EXPECT_FALSE(GenerujProbke(p.Plik(), maly(), &blad));
  EXPECT_FALSE(blad.isEmpty());
  EXPECT_EQ(p.Liczba(QStringLiteral("SELECT count(*) FROM transakcje")), 3000);
}
