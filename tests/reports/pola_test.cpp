// The fields, lines and rules every report is made of, and the part of a report a selection
// takes for printing.

#include <gtest/gtest.h>

#include "reports/drukowanie.h"
#include "store/session.h"

namespace {

QString tekst(const Raport& r) { return r.dok.Tekst(); }

}  // namespace

TEST(PolaRaportu, PaddingAlignmentAndOverlongTexts) {
  Raport r;
  PoleRaportu(r, QStringLiteral("Lp."), 4, 0);
  PoleRaportu(r, QStringLiteral("ąęł"), -6, 1);
  PoleRaportu(r, QString(), 7, 0);
  PoleRaportu(r, QStringLiteral("x"), 0, 0);
  NowaLinia(r, 1);
  // A text as long as its column, or longer, gets no pad: the next field follows at once.
  PoleRaportu(r, QStringLiteral("Kategoria o długiej nazwie"), 17, 0);
  PoleRaportu(r, QStringLiteral("12345 678,91"), -11, 0);
  PoleRaportu(r, QStringLiteral("abc"), 3, 0);
  PoleRaportu(r, QStringLiteral("|"), 0, 0);
  NowaLinia(r, 2);
  PoleRaportu(r, QStringLiteral("koniec"), -2, 0);
  EXPECT_EQ(tekst(r), QStringLiteral("Lp.    ąęł       x\n"
                                     "Kategoria o długiej nazwie12345 678,91abc|\n\nkoniec"));
}

TEST(PolaRaportu, BoldRulesAndTheLookOfRuns) {
  sesja.pubCzcionka = QStringLiteral("Liberation Mono");
  Raport r;
  PoleRaportu(r, QStringLiteral("Tytuł"), 8, 2);
  // A style other than plain or bold keeps the look of the run before it.
  PoleRaportu(r, QStringLiteral("dalej"), 0, 5);
  PoleRaportu(r, QStringLiteral("zwykły"), 0, 1);
  // A rule has no break in front of it, so it runs on after the last field.
  LiniaRaportu(r, 5, true);
  PoleRaportu(r, QStringLiteral("po"), 0, 3);
  LiniaRaportu(r, 3, false);
  EXPECT_EQ(tekst(r), QStringLiteral("Tytuł   dalejzwykły-----\npo---\n"));
  std::vector<std::pair<QString, bool>> przebiegi;
  for (const ElementDokumentu& e : r.dok.Elementy()) {
    if (e.rodzaj != ElementDokumentu::Tekst) continue;
    przebiegi.emplace_back(e.przebieg.tekst, e.przebieg.pogrubiony);
    EXPECT_EQ(e.przebieg.rozmiar, 8);
    EXPECT_EQ(e.przebieg.czcionka, QStringLiteral("Liberation Mono"));
  }
  // After a bold rule the insertion point is plain again.
  EXPECT_EQ(przebiegi, (std::vector<std::pair<QString, bool>>{{QStringLiteral("Tytuł   dalej"), true},
                                                              {QStringLiteral("zwykły"), false},
                                                              {QStringLiteral("-----"), true},
                                                              {QStringLiteral("po---"), false}}));

  // The part a selection takes: positions count a line break and a picture as one character.
  r.dok.Wstaw(QImage(4, 4, QImage::Format_RGB32));
  PoleRaportu(r, QStringLiteral("za obrazkiem"), 0, 2);
  const DokumentRaportu w = r.dok.Wycinek(10, 26);
  EXPECT_EQ(w.Tekst(), QStringLiteral("lejzwykły-----\np"));
  const DokumentRaportu z = r.dok.Wycinek(28, 40);
  EXPECT_EQ(z.Tekst(), QStringLiteral("--\nza obraz"));
  int obrazki = 0;
  for (const ElementDokumentu& e : z.Elementy()) {
    obrazki += e.rodzaj == ElementDokumentu::Obrazek;
    if (e.rodzaj == ElementDokumentu::Tekst && e.przebieg.tekst == QLatin1String("za obraz")) {
      EXPECT_TRUE(e.przebieg.pogrubiony);
    }
  }
  EXPECT_EQ(obrazki, 1);
}
