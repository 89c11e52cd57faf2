// Amounts of ten million and more in the account editor and the monthly limit dialog: they open
// whole, show whole and go back into the store unchanged when only something else was changed,
// with either decimal mark.

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>

#include "common/magazyn_testowy.h"
#include "common/widocznosc.h"
#include "ekrany_pomoc.h"
#include "konta_pomoc.h"
#include "masterdata/frmEdycjaKonta.h"
#include "masterdata/frmLimitDlaKategorii.h"
#include "store/baza.h"
#include "store/session.h"
#include "store/tekst.h"

namespace {

// A stored amount to the cent, as SQLite itself prints it.
QString Grosze(const QString& sql) { return pubBaza().Czytaj(sql).Pole(0).toString(); }

const double kKwoty[] = {12345678.91, 123456789.12, 999999999999.99};
const char* const kTeksty[] = {"12345678.91", "123456789.12", "999999999999.99"};

}  // namespace

// Each of the three amounts in each of the three fields of an existing account: the editor shows
// them whole, and a changed description saves them exactly as they were.
TEST(DlugieKwoty, AccountEditorKeepsOpeningBalancesAndLimitWhole) {
  for (const char* separator : {".", ","}) {
    MagazynTestowy m;
    sesja.pubSeparator = QLatin1String(separator);
    for (int obrot = 0; obrot < 3; ++obrot) {
      const double winien = kKwoty[obrot], ma = kKwoty[(obrot + 1) % 3],
                   limit = kKwoty[(obrot + 2) % 3];
      const qint64 id = NoweKontoTestowe(QStringLiteral("Lokata %1").arg(obrot), 6,
                                         QStringLiteral("2026-01-01"), winien, ma, limit);
      sesja.pubKonto.id = id;
      frmEdycjaKonta e;
      e.show();
      for (const auto& [nazwa, kwota] :
           {std::pair{"txtWinien", winien}, std::pair{"txtMa", ma}, std::pair{"txtLimit", limit}}) {
        auto* pole = Kontrolka<QLineEdit>(&e, nazwa);
        EXPECT_EQ(pole->text(), FormatKwotyEdycja(kwota)) << nazwa << " " << separator;
        EXPECT_TRUE(widocznosc::CalyWidoczny(pole)) << nazwa << " " << separator;
      }
      Kontrolka<QLineEdit>(&e, "txtOpis")->setText(QStringLiteral("tylko opis"));
      Kontrolka<QPushButton>(&e, "cmdOK")->click();
      ASSERT_EQ(e.result(), int(QDialog::Accepted)) << separator;
      EXPECT_EQ(Grosze(QStringLiteral("SELECT printf('%.2f/%.2f/%.2f/', bowinien, boma, limit)||"
                                      "opis FROM konta WHERE id=%1")
                           .arg(id)),
                QStringLiteral("%1/%2/%3/tylko opis")
                    .arg(QLatin1String(kTeksty[obrot]), QLatin1String(kTeksty[(obrot + 1) % 3]),
                         QLatin1String(kTeksty[(obrot + 2) % 3])))
          << separator;
    }
    EXPECT_TRUE(m.host.pokazane.empty());
  }
}

// The monthly limit of a category: any of the three amounts opens whole and OK keeps it.
TEST(DlugieKwoty, CategoryLimitDialogKeepsTheLimitWhole) {
  for (const char* separator : {".", ","}) {
    MagazynTestowy m;
    sesja.pubSeparator = QLatin1String(separator);
    ASSERT_TRUE(pubBaza().Wykonaj(
        QStringLiteral("INSERT INTO kategorie (identyfikator,kategoria,nazwa,opis,rodzaj) VALUES "
                       "('a','-','Dom','',2)")));
    for (int i = 0; i < 3; ++i) {
      ASSERT_TRUE(
          pubBaza().Wykonaj(QStringLiteral("UPDATE kategorie SET limit=%1 WHERE identyfikator='a'")
                                .arg(QLatin1String(kTeksty[i]))));
      sesja.pubKategoria = {QStringLiteral("a"), QStringLiteral("Dom"), QStringLiteral("-"), 2};
      frmLimitDlaKategorii d;
      d.show();
      auto* pole = Kontrolka<QLineEdit>(&d, "txtLimit");
      EXPECT_EQ(pole->text(), FormatKwotyEdycja(kKwoty[i])) << separator;
      EXPECT_TRUE(widocznosc::CalyWidoczny(pole)) << kTeksty[i];
      Kontrolka<QPushButton>(&d, "cmdOK")->click();
      ASSERT_EQ(d.result(), int(QDialog::Accepted));
      EXPECT_EQ(Grosze(QStringLiteral(
                    "SELECT printf('%.2f', limit) FROM kategorie WHERE identyfikator='a'")),
                QLatin1String(kTeksty[i]))
          << separator;
    }
  }
}
