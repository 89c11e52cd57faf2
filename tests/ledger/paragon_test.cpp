// The receipt as a user fills it: the common description copied when an amount is left, the running
// total, "Kasuj pozycję", every refusal of OK in its order with its message, the cover judged on
// the whole sum, the rows written from the last line to the first, and nothing at all written
// when one line fails.

#include "ledger/paragon.h"

#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "common/magazyn_testowy.h"
#include "ledger/frmParagon.h"
#include "ledger/transakcje_pomoc.h"
#include "store/tekst.h"

using namespace testy_wpisow;

namespace {

class Paragon : public ::testing::Test {
 protected:
  void SetUp() override {
    portfel = KontoT(QStringLiteral("Portfel"), 1, 100.0);
    KategoriaT(QStringLiteral("a"), 2, QStringLiteral("Żywność"));
    KategoriaT(QStringLiteral("b"), 2, QStringLiteral("Chemia"));
    sklep = KontrahentT(QStringLiteral("Społem"));
    sesja.pubFiltrCzasowy.pozycja = QDate(2026, 3, 14);
    sesja.pubPrzedefiniowanyKontrahent = 0;
  }
  static QLineEdit* Kwota(QWidget* f, int n) {
    return f->findChild<QLineEdit*>(QStringLiteral("txtKwota(%1)").arg(n));
  }
  static QLineEdit* Opis(QWidget* f, int n) {
    return f->findChild<QLineEdit*>(QStringLiteral("txtOpis(%1)").arg(n));
  }
  void Linia(frmParagon& f, int n, const QString& kwota, const QString& kategoria) {
    Kwota(&f, n)->setText(kwota);
    f.txtKwota_LostFocus(n);
    f.UstawKategorie(n, kategoria);
  }
  void Ok(frmParagon& f) { Kontrolka<QPushButton>(&f, "cmdOk")->click(); }
  QString Ostatni() const {
    return m.host.pokazane.empty() ? QString() : m.host.pokazane.back().tekst;
  }

  MagazynTestowy m;
  qint64 portfel = 0, sklep = 0;
};

}  // namespace

// The lines, the total and the common description, as typed.
TEST_F(Paragon, LinesTotalAndCommonDescription) {
  frmParagon f;
  EXPECT_EQ(sesja.pubTransakcja.rodzaj, 2);
  EXPECT_TRUE(sesja.pubEdytorOtwarty);
  EXPECT_EQ(Kontrolka<QLabel>(&f, "lblKategoria(9)")->text(),
            Napis(QStringLiteral("frmParagon67")));
  Opis(&f, 2)->setText(QStringLiteral("własny"));
  Kontrolka<QLineEdit>(&f, "txtOpisWspolny")->setText(QStringLiteral("zakupy u Kowalskiej'"));
  Kontrolka<QCheckBox>(&f, "chkOpis")->setChecked(true);
  Linia(f, 1, QStringLiteral("12.5"), QStringLiteral("a"));
  Linia(f, 2, QStringLiteral("0.49"), QStringLiteral("b"));
  Linia(f, 5, QStringLiteral("999999999999.99"), QStringLiteral("a"));
  EXPECT_EQ(Kwota(&f, 1)->text(), QStringLiteral("12.50"));
  EXPECT_EQ(Opis(&f, 1)->text(), QStringLiteral("zakupy u Kowalskiej'"));
  EXPECT_EQ(Opis(&f, 2)->text(), QStringLiteral("własny"));  // a line's own stays
  EXPECT_EQ(Opis(&f, 3)->text(), QString());                 // no amount, nothing copied
  EXPECT_EQ(Kontrolka<QLabel>(&f, "lblSuma")->text(), FormatKwoty(1000000000012.98));
  // Changing the common text later changes no line already filled.
  Kontrolka<QLineEdit>(&f, "txtOpisWspolny")->setText(QStringLiteral("inne"));
  EXPECT_EQ(Opis(&f, 5)->text(), QStringLiteral("zakupy u Kowalskiej'"));

  Kontrolka<QPushButton>(&f, "cmdKasuj(5)")->click();
  EXPECT_EQ(Kontrolka<QLabel>(&f, "lblSuma")->text(), FormatKwoty(12.99));
  EXPECT_EQ(Opis(&f, 5)->text(), QString());
  EXPECT_EQ(Kontrolka<QLabel>(&f, "lblKategoria(5)")->text(),
            Napis(QStringLiteral("frmParagon67")));
  EXPECT_EQ(Kwota(&f, 1)->text(), QStringLiteral("12.50"));  // other lines do not move
}

// Every refusal in its order, then the cover of the whole sum, then the rows: the last line gets
// the lowest id, amounts and texts stored exactly.
TEST_F(Paragon, ChecksInOrderCoverOnTheSumAndRowOrder) {
  frmParagon f;
  f.UstawKategorie(4, QStringLiteral("a"));  // a category and no amount is no error
  Ok(f);
  EXPECT_EQ(m.host.pokazane.back().tytul.trimmed(), Napis(QStringLiteral("frmParagon69")));

  Linia(f, 2, QStringLiteral("60"), QString());
  Linia(f, 5, QStringLiteral("50"), QString());
  Ok(f);
  EXPECT_EQ(Ostatni(), Napis(QStringLiteral("frmParagon70")) + QStringLiteral(" 2,5"));
  f.UstawKategorie(2, QStringLiteral("b"));
  Ok(f);
  EXPECT_EQ(Ostatni(), Napis(QStringLiteral("frmParagon70")) + QStringLiteral(" 5"));
  f.UstawKategorie(5, QStringLiteral("a"));
  Ok(f);
  EXPECT_EQ(Ostatni(), Napis(QStringLiteral("frmParagon74")));

  // Each line is within the 100 of the cash account; the sum of 110 is not.
  sesja.pubKonto = WybraneKonto(portfel);
  sesja.pubKontrahent.id = sklep;
  f.OdswiezEtykiety();
  m.host.odpowiedzi = {WynikNie};
  Ok(f);
  EXPECT_EQ(m.host.pokazane.back().tytul.trimmed(), Napis(QStringLiteral("frmParagon84")));
  EXPECT_TRUE(Ostatni().contains(QStringLiteral("'Portfel'")));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje")), 0);
  EXPECT_NE(f.result(), QDialog::Accepted);

  Linia(f, 7, QStringLiteral("0.01"), QStringLiteral("b"));
  Opis(&f, 7)->setText(QStringLiteral("d'Artagnan ąćęłńóśźż"));
  m.host.odpowiedzi = {WynikTak};
  const size_t przed = m.host.pokazane.size();
  Ok(f);
  EXPECT_EQ(m.host.pokazane.size(), przed + 1);
  EXPECT_EQ(f.result(), QDialog::Accepted);

  const Rekordy rs = pubBaza().Czytaj(
      QStringLiteral("SELECT wydatek, kategoria, opis, data, konto, kontrahent, rodzaj FROM "
                     "transakcje ORDER BY id"));
  ASSERT_EQ(rs.RecordCount(), 3);
  QStringList kwoty;
  for (Rekordy r = rs; !r.Eof(); r.MoveNext()) {
    kwoty << FormatKwotyEdycja(PoleRekordu(r, QStringLiteral("wydatek")));
    EXPECT_EQ(r.Tekst(QStringLiteral("data")), QStringLiteral("2026-03-14"));
    EXPECT_EQ(r.Pole(QStringLiteral("konto")).toLongLong(), portfel);
    EXPECT_EQ(r.Pole(QStringLiteral("kontrahent")).toLongLong(), sklep);
    EXPECT_EQ(r.Pole(QStringLiteral("rodzaj")).toInt(), 2);
  }
  EXPECT_EQ(kwoty, (QStringList{"0.01", "50.00", "60.00"}));  // lines 7, 5, 2
  EXPECT_EQ(Oczysc(rs.Pole(QStringLiteral("opis"))), QStringLiteral("d'Artagnan ąćęłńóśźż"));
}

// A line the store refuses takes the others with it: nothing is written, the user is told and
// the receipt stays as typed.
TEST_F(Paragon, AFailedLineWritesNothing) {
  ASSERT_EQ(sqlite3_exec(pubBaza().Uchwyt(),
                         "CREATE TRIGGER odmowa BEFORE INSERT ON transakcje WHEN NEW.opis LIKE "
                         "'zepsuty%' BEGIN SELECT RAISE(ABORT, 'refused'); END",
                         nullptr, nullptr, nullptr),
            SQLITE_OK);
  frmParagon f;
  sesja.pubKonto = WybraneKonto(portfel);
  Linia(f, 1, QStringLiteral("5"), QStringLiteral("a"));
  Linia(f, 3, QStringLiteral("6"), QStringLiteral("b"));
  Linia(f, 8, QStringLiteral("7"), QStringLiteral("a"));
  Opis(&f, 3)->setText(QStringLiteral("zepsuty"));
  Ok(f);
  EXPECT_EQ(m.host.pokazane.back().tytul.trimmed(), Napis(QStringLiteral("frmParagon73")));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje")), 0);
  EXPECT_NE(f.result(), QDialog::Accepted);
  EXPECT_EQ(Kwota(&f, 8)->text(), QStringLiteral("7.00"));
}
