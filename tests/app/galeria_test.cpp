// The gallery over a generated sample store: the screens of existing records show those records,
// not empty forms, and every screen is drawn in both editions.

#include <gtest/gtest.h>

#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <memory>

#include "app/galeria_gui.h"
#include "common/magazyn_testowy.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"

namespace {

std::unique_ptr<QWidget> Ekran(const QString& nazwa) {
  for (const WpisGalerii& w : WpisyGalerii())
    if (w.nazwa == nazwa) {
      std::unique_ptr<QWidget> okno = w.zbuduj();
      okno->show();
      return okno;
    }
  ADD_FAILURE() << "no gallery screen " << nazwa.toStdString();
  return std::make_unique<QWidget>();
}

QString Tekst(const QWidget* okno, const char* nazwa) {
  if (const auto* p = okno->findChild<QLineEdit*>(QLatin1String(nazwa))) return p->text();
  if (const auto* l = okno->findChild<QLabel*>(QLatin1String(nazwa))) return l->text();
  ADD_FAILURE() << "no field " << nazwa << " on " << okno->objectName().toStdString();
  return QString();
}

// How many rows of the table hold the text in the column (byte for byte).
qint64 Wierszy(const MagazynTestowy& m, const char* tabela, const char* kolumna,
               const QString& tekst) {
  return m.Licz(QStringLiteral("SELECT COUNT(*) FROM %1 WHERE hex(trim(%2))=hex(%3)")
                    .arg(QLatin1String(tabela), QLatin1String(kolumna), SqlTekst(tekst)));
}

int Linii(const QWidget* okno, const char* lista) {
  const auto* l = okno->findChild<QTreeWidget*>(QLatin1String(lista));
  EXPECT_NE(l, nullptr) << lista;
  int n = 0;
  if (l)
    for (QTreeWidgetItemIterator it(const_cast<QTreeWidget*>(l)); *it; ++it) ++n;
  return n;
}

}  // namespace

TEST(Galeria, ScreensOfExistingRecordsShowTheSamplesRecords) {
  const RozmiarProbki rozmiar = RozmiarDlaWpisow(600);
  MagazynTestowy m(1, &rozmiar);

  auto konto = Ekran(QStringLiteral("frmEdycjaKonta-existing"));
  EXPECT_EQ(konto->windowTitle(), Napis(QStringLiteral("frmEdycjaKonta31")));
  EXPECT_EQ(Wierszy(m, "konta", "nazwa", Tekst(konto.get(), "txtNazwa")), 1);

  auto limit = Ekran(QStringLiteral("frmLimitDlaKategorii"));
  const QString kategoria = Tekst(limit.get(), "lblNazwaKategorii");
  EXPECT_GE(Wierszy(m, "kategorie", "nazwa", kategoria), 1) << kategoria.toStdString();
  EXPECT_NE(Tekst(limit.get(), "txtLimit"), FormatKwotyEdycja(0));

  for (const char* nazwa : {"frmPrzegladKategorii-przychody", "frmPrzegladKategorii-wydatki"}) {
    auto drzewo = Ekran(QLatin1String(nazwa));
    EXPECT_GT(Linii(drzewo.get(), "tvwKategorie"), 10) << nazwa;
    EXPECT_GT(Linii(drzewo.get(), "lvwPodkategorie"), 1) << nazwa;
  }

  auto kontrahenci = Ekran(QStringLiteral("frmPrzegladKontrahentow-browse"));
  EXPECT_EQ(Linii(kontrahenci.get(), "lvwKontrahenci"),
            m.Licz(QStringLiteral("SELECT COUNT(*) FROM kontrahent")));
  EXPECT_GT(Linii(kontrahenci.get(), "lvwZaplanowane"), 0);
  auto kontrahent = Ekran(QStringLiteral("frmEdycjaKontrahenta"));
  EXPECT_EQ(Wierszy(m, "kontrahent", "skrocona", Tekst(kontrahent.get(), "txtNazwaSkrocona")), 1);
  EXPECT_FALSE(Tekst(kontrahent.get(), "txtNazwa").isEmpty());

  auto wpis = Ekran(QStringLiteral("frmEdycjaTransakcji-zaplanowany"));
  EXPECT_NE(Tekst(wpis.get(), "txtKwota"), FormatKwotyEdycja(0));
  EXPECT_NE(Tekst(wpis.get(), "lblKonto"), Napis(QStringLiteral("frmEdycjaTransakcji9")));
  EXPECT_NE(Tekst(wpis.get(), "lblKontrahent"), Napis(QStringLiteral("frmEdycjaTransakcji17")));
  auto transfer = Ekran(QStringLiteral("frmEdycjaTransakcjiWewnetrznej-zaplanowany"));
  EXPECT_NE(Tekst(transfer.get(), "txtKwota"), FormatKwotyEdycja(0));
  EXPECT_NE(Tekst(transfer.get(), "lblZKonta"),
            Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej9")));
}

TEST(Galeria, DrawsEveryScreenInBothEditions) {
  const RozmiarProbki rozmiar = RozmiarDlaWpisow(300);
  MagazynTestowy m(1, &rozmiar);
  QTemporaryDir folder;
  QStringList zapisane;
  QString blad;
  ASSERT_TRUE(ZapiszGalerie(folder.path(), &zapisane, &blad)) << blad.toStdString();
  EXPECT_EQ(zapisane.size(), 2 * int(WpisyGalerii().size()));
  for (const QString& plik : zapisane) {
    const QImage obraz(plik);
    EXPECT_FALSE(obraz.isNull()) << plik.toStdString();
    EXPECT_GT(obraz.width(), 150) << plik.toStdString();
  }
  EXPECT_EQ(sesja.pubJezyk, 1);
}
