// Long amounts and long descriptions in the entry and transfer editors, as a user meets them:
// rows of ten million and more opened and saved again, a calculator result past ten characters,
// and descriptions typed past what the store holds.

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <memory>

#include "common/magazyn_testowy.h"
#include "common/widocznosc.h"
#include "ledger/frmEdycjaTransakcji.h"
#include "ledger/frmEdycjaTransakcjiWewnetrznej.h"
#include "ledger/transakcje_pomoc.h"
#include "store/tekst.h"

using namespace testy_wpisow;

namespace {

const double kKwoty[] = {12345678.91, 123456789.12, 999999999999.99};
const char* const kTeksty[] = {"12345678.91", "123456789.12", "999999999999.99"};

QString Wartosc(const QString& sql) { return pubBaza().Czytaj(sql).Pole(0).toString(); }

std::unique_ptr<frmEdycjaTransakcji> Wpis(int tryb, qint64 id, int rodzaj) {
  sesja.pubTryb = tryb;
  sesja.pubTransakcja.id = id;
  sesja.pubTransakcja.rodzaj = rodzaj;
  sesja.pubKategoria.rodzaj = rodzaj;
  auto f = std::make_unique<frmEdycjaTransakcji>();
  f->show();
  return f;
}

std::unique_ptr<frmEdycjaTransakcjiWewnetrznej> Transfer(int tryb, qint64 id) {
  sesja.pubTryb = tryb;
  sesja.pubTransfer = id;
  auto f = std::make_unique<frmEdycjaTransakcjiWewnetrznej>();
  f->show();
  return f;
}

// Types the text into the field key by key, as the keyboard sends it.
void Pisz(QLineEdit* pole, const QString& tekst) {
  for (const QChar c : tekst) {
    QKeyEvent wcisniety(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(c));
    QApplication::sendEvent(pole, &wcisniety);
  }
}

// n characters of Polish text.
QString Tekst(int n) {
  QString t;
  while (t.size() < n) t += QStringLiteral("Zażółć gęślą jaźń, O'Brien 100% ");
  return t.left(n);
}

}  // namespace

// Executed and planned entries and transfers of each amount, opened again to change only the
// description: the field shows the amount whole and OK stores it to the cent, with either
// decimal mark.
TEST(DlugieKwotyEdytorow, RowsOfTenMillionAndMoreOpenAndSaveUnchanged) {
  for (const char* separator : {".", ","}) {
    MagazynTestowy m;
    sesja.pubSeparator = QLatin1String(separator);
    const qint64 bank = KontoT(QStringLiteral("Bank"), 2);
    const qint64 portfel = KontoT(QStringLiteral("Portfel"), 1);
    KategoriaT(QStringLiteral("a"), 1, QStringLiteral("Premia"));
    KategoriaT(QStringLiteral("a"), 2, QStringLiteral("Dom"));
    for (int i = 0; i < 3; ++i) {
      const QString kwota = QLatin1String(kTeksty[i]);
      for (const auto& [tabela, tryb, rodzaj] :
           {std::tuple{"transakcje", 2, 1}, std::tuple{"zaplanowane", 1, 2}}) {
        const qint64 id = WpisT(QLatin1String(tabela), rodzaj, kKwoty[i],
                                QStringLiteral("2026-11-10"), bank, QStringLiteral("a"));
        m.host.odpowiedzi = {WynikTak};  // the change is confirmed
        auto f = Wpis(tryb, id, rodzaj);
        auto* pole = Kontrolka<QLineEdit>(f.get(), "txtKwota");
        EXPECT_EQ(pole->text(), FormatKwotyEdycja(kKwoty[i])) << tabela << " " << separator;
        EXPECT_TRUE(widocznosc::CalyWidoczny(pole)) << kTeksty[i];
        Kontrolka<QLineEdit>(f.get(), "txtOpis")->setText(QStringLiteral("nowy opis"));
        Kontrolka<QPushButton>(f.get(), "cmdOk")->click();
        ASSERT_EQ(f->result(), int(QDialog::Accepted)) << tabela << " " << kTeksty[i];
        EXPECT_EQ(Wartosc(QStringLiteral("SELECT printf('%.2f', przychod+wydatek) FROM %1 "
                                         "WHERE opis='nowy opis ' AND id=%2")
                              .arg(QLatin1String(tabela))
                              .arg(id)),
                  kwota)
            << tabela << " " << separator;
      }
      for (const auto& [tabela, tryb] :
           {std::pair{"wewnetrzne", 2}, std::pair{"zaplanowanewewnetrzne", 1}}) {
        const qint64 id = TransferT(QLatin1String(tabela), kKwoty[i], QStringLiteral("2026-11-10"),
                                    bank, portfel);
        // The change is confirmed; an executed one is also over the bank's cover: save anyway.
        m.host.odpowiedzi = {WynikTak, WynikTak};
        auto f = Transfer(tryb, id);
        auto* pole = Kontrolka<QLineEdit>(f.get(), "txtKwota");
        EXPECT_EQ(pole->text(), FormatKwotyEdycja(kKwoty[i])) << tabela << " " << separator;
        EXPECT_TRUE(widocznosc::CalyWidoczny(pole)) << kTeksty[i];
        Kontrolka<QLineEdit>(f.get(), "txtOpis")->setText(QStringLiteral("nowy opis"));
        Kontrolka<QPushButton>(f.get(), "cmdOK")->click();
        ASSERT_EQ(f->result(), int(QDialog::Accepted)) << tabela << " " << kTeksty[i];
        EXPECT_EQ(Wartosc(QStringLiteral("SELECT printf('%.2f', kwota) FROM %1 WHERE "
                                         "opis='nowy opis ' AND id=%2")
                              .arg(QLatin1String(tabela))
                              .arg(id)),
                  kwota)
            << tabela << " " << separator;
      }
    }
  }
}

// 1 234 567.89 times 10 000 in the calculator of a new expense: the result of fourteen
// characters comes back into the field whole and is stored whole.
TEST(DlugieKwotyEdytorow, CalculatorResultPastTenCharactersIsHandedBackWhole) {
  for (const char* separator : {".", ","}) {
    MagazynTestowy m;
    sesja.pubSeparator = QLatin1String(separator);
    const qint64 bank = KontoT(QStringLiteral("Bank"), 2);
    KategoriaT(QStringLiteral("a"), 2, QStringLiteral("Dom"));
    auto f = Wpis(2, 0, 2);
    sesja.pubKonto = WybraneKonto(bank);
    sesja.pubKategoria.identyfikator = QStringLiteral("a");
    f->OdswiezEtykiety();
    ZOknem([&] { Kontrolka<QToolButton>(f.get(), "cmdKalkulator")->click(); },
           [](QDialog* d) {
             auto klik = [d](const QString& nazwa) {
               Kontrolka<QPushButton>(d, nazwa.toLatin1().constData())->click();
             };
             for (QChar c : QStringLiteral("1234567")) klik(QStringLiteral("cmdLiczba(%1)").arg(c));
             klik(QStringLiteral("cmdKoma"));
             klik(QStringLiteral("cmdLiczba(8)"));
             klik(QStringLiteral("cmdLiczba(9)"));
             klik(QStringLiteral("cmdDzialanie(2)"));
             for (QChar c : QStringLiteral("10000")) klik(QStringLiteral("cmdLiczba(%1)").arg(c));
             klik(QStringLiteral("cmdOblicz"));
             klik(QStringLiteral("cmdZamknij"));
           });
    auto* pole = Kontrolka<QLineEdit>(f.get(), "txtKwota");
    EXPECT_EQ(pole->text(), QStringLiteral("12345678900") + sesja.pubSeparator + "00");
    EXPECT_TRUE(widocznosc::CalyWidoczny(pole));
    m.host.odpowiedzi = {WynikTak};  // far over the bank's cover: save anyway
    Kontrolka<QPushButton>(f.get(), "cmdOk")->click();
    ASSERT_EQ(f->result(), int(QDialog::Accepted));
    EXPECT_EQ(Wartosc(QStringLiteral("SELECT printf('%.2f', wydatek) FROM transakcje")),
              QStringLiteral("12345678900.00"));
  }
}

// Typing a description stops at the 150 characters the store holds, in both editors; what was
// typed is stored whole. A longer description saved before opens whole and is not cut either.
TEST(DlugieKwotyEdytorow, DescriptionsStopAt150CharactersInBothEditors) {
  MagazynTestowy m;
  const qint64 bank = KontoT(QStringLiteral("Bank"), 2, 1000);
  const qint64 portfel = KontoT(QStringLiteral("Portfel"), 1);
  KategoriaT(QStringLiteral("a"), 2, QStringLiteral("Dom"));
  const QString sto60 = Tekst(160);

  auto f = Wpis(2, 0, 2);
  sesja.pubKonto = WybraneKonto(bank);
  sesja.pubKategoria.identyfikator = QStringLiteral("a");
  Kontrolka<QLineEdit>(f.get(), "txtKwota")->setText(QStringLiteral("10.00"));
  auto* opis = Kontrolka<QLineEdit>(f.get(), "txtOpis");
  EXPECT_EQ(opis->maxLength(), 150);
  opis->setFocus();
  Pisz(opis, sto60);
  EXPECT_EQ(opis->text(), sto60.left(150));
  Kontrolka<QPushButton>(f.get(), "cmdOk")->click();
  ASSERT_EQ(f->result(), int(QDialog::Accepted));
  EXPECT_EQ(Wartosc(QStringLiteral("SELECT opis FROM transakcje")), sto60.left(150) + "  ");

  auto t = Transfer(2, 0);
  t->ZKonta() = WybraneKonto(bank);
  t->NaKonto() = WybraneKonto(portfel);
  Kontrolka<QLineEdit>(t.get(), "txtKwota")->setText(QStringLiteral("10.00"));
  opis = Kontrolka<QLineEdit>(t.get(), "txtOpis");
  EXPECT_EQ(opis->maxLength(), 150);
  opis->setFocus();
  Pisz(opis, sto60);
  EXPECT_EQ(opis->text(), sto60.left(150));
  Kontrolka<QPushButton>(t.get(), "cmdOK")->click();
  ASSERT_EQ(t->result(), int(QDialog::Accepted));
  EXPECT_EQ(Wartosc(QStringLiteral("SELECT opis FROM wewnetrzne")), sto60.left(150) + "  ");

  // Rows with 170 characters from before the limit: opened and saved as they are.
  const QString sto70 = Tekst(170);
  const qint64 wpis = WpisT(QStringLiteral("transakcje"), 2, 5, QStringLiteral("2026-11-10"), bank,
                            QStringLiteral("a"), 0, sto70);
  m.host.odpowiedzi = {WynikTak};
  f = Wpis(2, wpis, 2);
  EXPECT_EQ(Kontrolka<QLineEdit>(f.get(), "txtOpis")->text(), sto70);
  Kontrolka<QPushButton>(f.get(), "cmdOk")->click();
  EXPECT_EQ(Wartosc(QStringLiteral("SELECT opis FROM transakcje WHERE id=%1").arg(wpis)),
            sto70 + ' ');
  const qint64 transfer = TransferT(QStringLiteral("zaplanowanewewnetrzne"), 5,
                                    QStringLiteral("2026-11-10"), bank, portfel, sto70);
  m.host.odpowiedzi = {WynikTak};
  t = Transfer(1, transfer);
  EXPECT_EQ(Kontrolka<QLineEdit>(t.get(), "txtOpis")->text(), sto70);
  Kontrolka<QPushButton>(t.get(), "cmdOK")->click();
  EXPECT_EQ(
      Wartosc(QStringLiteral("SELECT opis FROM zaplanowanewewnetrzne WHERE id=%1").arg(transfer)),
      sto70 + ' ');
}
