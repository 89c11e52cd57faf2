// Names as long as the store allows, in the widest letters, on the master-data screens: the
// lists, trees and name fields show them whole, and the browsers, also as narrow pickers, show
// every command of their strip in both editions.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLineEdit>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <memory>

#include "common/magazyn_testowy.h"
#include "ekrany_pomoc.h"
#include "common/widocznosc.h"
#include "konta_pomoc.h"
#include "masterdata/frmEdycjaKategorii.h"
#include "masterdata/frmEdycjaKonta.h"
#include "masterdata/frmEdycjaKontrahenta.h"
#include "masterdata/frmPrzegladKategorii.h"
#include "masterdata/frmPrzegladKont.h"
#include "masterdata/frmPrzegladKontrahentow.h"
#include "store/baza.h"
#include "store/session.h"

namespace {

const QString kW = QString(16, QLatin1Char('W'));
const QString kZ = QString(16, QChar(u'Ż'));
const QString kM = QStringLiteral("MWMWMWMWŚĆŻŹŁÓĘĄ");

void Zapisz(const QString& sql) { ASSERT_TRUE(pubBaza().Wykonaj(sql).ok) << sql.toStdString(); }

void Kategoria(const QString& id, const QString& nazwa) {
  const QString rodzic = id.size() == 1 ? QStringLiteral("-") : id.left(id.size() - 1);
  Zapisz(QStringLiteral("INSERT INTO kategorie (identyfikator,kategoria,nazwa,opis,rodzaj) VALUES "
                        "(%1,%2,%3,'',2)")
             .arg(SqlTekst(id), SqlTekst(rodzic), SqlTekst(nazwa)));
}

// Accounts, a category path four levels deep with two children of the top category that have
// entries, and counterparties, all with the longest names.
void Nazwy() {
  const qint64 konto = NoweKontoTestowe(kW, 2, QStringLiteral("2026-01-01"));
  NoweKontoTestowe(kZ, 1, QStringLiteral("2026-01-01"));
  NoweKontoTestowe(kM, 5, QStringLiteral("2026-01-01"));
  Kategoria(QStringLiteral("a"), kW);
  Kategoria(QStringLiteral("aa"), kZ);
  Kategoria(QStringLiteral("aaa"), kM);
  Kategoria(QStringLiteral("aaaa"), kW);
  Kategoria(QStringLiteral("ab"), kW);
  Kategoria(QStringLiteral("ac"), kM);
  for (const char* k : {"aaaa", "ab", "ac"})
    Zapisz(QStringLiteral("INSERT INTO transakcje (data,rodzaj,przychod,wydatek,opis,kategoria,"
                          "konto) VALUES ('2026-11-10',2,0,123456.78,'','%1',%2)")
               .arg(QLatin1String(k))
               .arg(konto));
  for (const QString& n : {kW, kZ, kM})
    Zapisz(
        QStringLiteral("INSERT INTO kontrahent (skrocona,opis) VALUES (%1,'')").arg(SqlTekst(n)));
}

// Every line of the list that carries one of the long names shows it whole.
void WszystkieCale(const QTreeWidget* lista, int oczekiwane, const char* ekran) {
  int sprawdzone = 0;
  for (QTreeWidgetItemIterator it(const_cast<QTreeWidget*>(lista)); *it; ++it) {
    const QString t = (*it)->text(0);
    if (t != kW && t != kZ && t != kM) continue;
    ++sprawdzone;
    EXPECT_TRUE(widocznosc::CalaNazwa(lista, *it))
        << ekran << ": " << t.toStdString() << " in a column of " << lista->columnWidth(0);
  }
  EXPECT_EQ(sprawdzone, oczekiwane) << ekran;
}

// No command of the window's strips hides behind the "more" button.
void PaskiCale(const QWidget* okno, const char* ekran) {
  const auto paski = okno->findChildren<QToolBar*>();
  EXPECT_FALSE(paski.isEmpty()) << ekran;
  for (const QToolBar* pasek : paski) {
    const auto* wiecej = pasek->findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
    ASSERT_NE(wiecej, nullptr) << ekran;
    EXPECT_FALSE(wiecej->isVisible()) << ekran << " in a window of " << okno->width();
  }
  for (const QAbstractButton* b : okno->findChildren<QAbstractButton*>()) {
    if (!b->objectName().startsWith(QLatin1String("cmdMenu("))) continue;
    EXPECT_TRUE(b->isVisible()) << ekran << " " << b->objectName().toStdString();
  }
}

}  // namespace

TEST(SzerokosciEkranow, LongestNamesShowWholeInTreesListsAndNameFields) {
  MagazynTestowy m;
  Nazwy();
  sesja.pubFiltrCzasowy.rodzaj = 3;
  // The three browsers as narrow pickers.
  sesja.pubTrybPrzegladu = 2;
  sesja.pubSzczegoly = 0;
  {
    frmPrzegladKont f;
    f.show();
    WszystkieCale(Kontrolka<QTreeWidget>(&f, "tvwKonta"), 3, "frmPrzegladKont");
  }
  {
    sesja.pubKategoria = {QStringLiteral("aaaa"), QString(), QString(), 2};
    frmPrzegladKategorii f;
    f.show();
    auto* drzewo = Kontrolka<QTreeWidget>(&f, "tvwKategorie");
    drzewo->expandAll();
    WszystkieCale(drzewo, 6, "frmPrzegladKategorii");
  }
  {
    frmPrzegladKontrahentow f;
    f.show();
    WszystkieCale(Kontrolka<QTreeWidget>(&f, "lvwKontrahenci"), 3, "frmPrzegladKontrahentow");
  }
  // The breakdown of the top category over its three children, beside its chart.
  sesja.pubTrybPrzegladu = 1;
  sesja.pubSzczegoly = 1;
  {
    sesja.pubKategoria = {QStringLiteral("a"), QString(), QString(), 2};
    frmPrzegladKategorii f;
    f.show();
    WszystkieCale(Kontrolka<QTreeWidget>(&f, "lvwPodkategorie"), 3, "lvwPodkategorie");
  }
  {
    frmPrzegladKontrahentow f;
    f.show();
    WszystkieCale(Kontrolka<QTreeWidget>(&f, "lvwKontrahenci"), 3, "frmPrzegladKontrahentow");
  }
  // The name fields of the three editors.
  for (const QString& n : {kW, kZ, kM}) {
    sesja.pubKontrahent.id = 0;
    frmEdycjaKontrahenta k;
    k.show();
    Kontrolka<QLineEdit>(&k, "txtNazwaSkrocona")->setText(n);
    EXPECT_TRUE(widocznosc::CalyWidoczny(Kontrolka<QLineEdit>(&k, "txtNazwaSkrocona")))
        << n.toStdString();
    sesja.pubKonto.id = 0;
    frmEdycjaKonta a;
    a.show();
    Kontrolka<QLineEdit>(&a, "txtNazwa")->setText(n);
    EXPECT_TRUE(widocznosc::CalyWidoczny(Kontrolka<QLineEdit>(&a, "txtNazwa"))) << n.toStdString();
    sesja.pubKategoria = {QString(), QString(), QStringLiteral("Root"), 2};
    frmEdycjaKategorii c;
    c.show();
    Kontrolka<QLineEdit>(&c, "txtNazwa")->setText(n);
    EXPECT_TRUE(widocznosc::CalyWidoczny(Kontrolka<QLineEdit>(&c, "txtNazwa"))) << n.toStdString();
  }
}

TEST(SzerokosciEkranow, BrowsersShowEveryCommandAsPickersAndWithDetails) {
  for (int jezyk : {1, 2}) {
    MagazynTestowy m(jezyk);
    for (int tryb : {2, 1}) {
      sesja.pubTrybPrzegladu = tryb;
      sesja.pubEdytorOtwarty = tryb == 2;
      for (int szczegoly : {0, 1}) {
        SCOPED_TRACE(QStringLiteral("edition %1, mode %2, details %3")
                         .arg(jezyk)
                         .arg(tryb)
                         .arg(szczegoly)
                         .toStdString());
        sesja.pubSzczegoly = szczegoly;
        {
          frmPrzegladKont f;
          f.show();
          PaskiCale(&f, "frmPrzegladKont");
        }
        for (int rodzaj : {1, 2}) {
          sesja.pubKategoria = {QString(), QString(), QString(), rodzaj};
          frmPrzegladKategorii f;
          f.show();
          PaskiCale(&f, "frmPrzegladKategorii");
        }
        {
          frmPrzegladKontrahentow f;
          f.show();
          PaskiCale(&f, "frmPrzegladKontrahentow");
        }
      }
    }
    sesja.pubEdytorOtwarty = false;
  }
}
