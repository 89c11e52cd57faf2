// Payment slips: the amount in words, the editor filled from the store and driven as a user does,
// and the drawn sheet in both modes compared by the positions of what is drawn.

#include <gtest/gtest.h>

#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>

#include "common/magazyn_testowy.h"
#include "ledger/transakcje_pomoc.h"
#include "slips/frmEdycjaPrzelewu.h"
#include "slips/frmWydrukPrzelewu.h"
#include "slips/przelew.h"
#include "slips/slownie.h"
#include "store/tekst.h"
#include "ui/nawigacja_gui.h"

using namespace testy_wpisow;

TEST(Przelewy, AmountInWords) {
  const std::pair<const char*, const char*> przypadki[] = {
      {"0.05", "zer* 05/100"},
      {"0,05", "zer* 05/100"},
      {"0.5", "zer* 50/100"},
      {"0.07", "zer* 07/100"},
      {"1", "jed* 00/100"},
      {"2", "dwa* 00/100"},
      {"5", "pie* 00/100"},
      {"12", "jed*dwa* 00/100"},
      {"21", "dwa*jed* 00/100"},
      {"100", "jed*zer*zer* 00/100"},
      {"101", "jed*zer*jed* 00/100"},
      {"1000", "jed*zer*zer*zer* 00/100"},
      {"1 001,00", "jed*zer*zer*jed* 00/100"},
      {"2000000", "dwa*zer*zer*zer*zer*zer*zer* 00/100"},
      {"999999999.99", "dzi*dzi*dzi*dzi*dzi*dzi*dzi*dzi*dzi* 99/100"},
      {"125,50", "jed*dwa*pie* 50/100"},
      {"3468.79", "trz*czt*sze*osi* 79/100"},
      // Past two decimals the grosze are rounded, a half to the even grosz.
      {"0.125", "zer* 12/100"},
      {"0.135", "zer* 14/100"},
      {"0.1251", "zer* 13/100"},
      {"9.995", "jed*zer* 00/100"},
      {"", "zer* 00/100"},
      {"12zł", "jed*dwa* 00/100"},
  };
  for (const auto& [kwota, slowa] : przypadki)
    EXPECT_EQ(KwotaSlownie(QString::fromUtf8(kwota)), QString::fromUtf8(slowa)) << kwota;
  EXPECT_EQ(GroszeKwotySlownie(QStringLiteral("999 999 999 999,99")), 99999999999999LL);
}

namespace {
struct PrzelewZDanymi : ::testing::Test {
  void SetUp() override {
    sesja.pubSeparator = QStringLiteral(",");
    if (m.Licz(QStringLiteral("SELECT COUNT(*) FROM setup")) == 0) {
      ASSERT_TRUE(pubBaza().Wykonaj(QStringLiteral("INSERT INTO setup (imie) VALUES ('')")));
    }
    ASSERT_TRUE(pubBaza().Wykonaj(QStringLiteral(
        "UPDATE setup SET imie='Jan', nazwisko='O''Brien-Łęcki', ulica='ul. Źródlana 5 ', "
        "miasto='00-950 Łódź', lk='12', bank='10901014', konto='0000123456789012345678901'")));
    konto = KontoT(QStringLiteral("Portfel"), 1);
    KategoriaT(QStringLiteral("a"), 2, QStringLiteral("Dom"));
    odbiorca = KontrahentT(QStringLiteral("Gazownia"));
    ASSERT_TRUE(pubBaza().Wykonaj(
        QStringLiteral(
            "UPDATE kontrahent SET nazwa='Zakład Gazowniczy ''Żar''', adres='ul. Ćwiczeń "
            "3', miasto='30-001 Kraków', lk='34', bank='12401037', "
            "konto='1111222233334444555566667' WHERE id=%1")
            .arg(odbiorca)));
    plan = WpisT(QStringLiteral("zaplanowane"), 2, 999999999999.99, QStringLiteral("2026-12-01"),
                 konto, QStringLiteral("a"), odbiorca, QStringLiteral("Gaz za listopad  "));
  }
  void TearDown() override {
    Nawigacja::Zarejestruj(QStringLiteral("frmWydrukPrzelewu"), std::move(dawnyWydruk));
  }
  MagazynTestowy m;
  Nawigacja::Ekran dawnyWydruk;
  qint64 konto = 0, odbiorca = 0, plan = 0;
};

const KsztaltPrzelewu* tekstW(const std::vector<KsztaltPrzelewu>& k, char pozycja, int x, int y) {
  for (const KsztaltPrzelewu& s : k)
    if (s.rodzaj == KsztaltPrzelewu::Tekst && s.pozycja == pozycja && s.x1 == x && s.y1 == y)
      return &s;
  return nullptr;
}
QString tekstNa(const std::vector<KsztaltPrzelewu>& k, int x, int y, char pozycja = 'A') {
  const KsztaltPrzelewu* s = tekstW(k, pozycja, x, y);
  return s ? s->tekst : QStringLiteral("<none>");
}
}  // namespace

// The editor fills itself from the planned entry, its counterparty and the user's own data;
// printing checks the amount, gathers the fields and opens the print-out; nothing is stored.
TEST_F(PrzelewZDanymi, EditorFillsChecksAndGathers) {
  const qint64 wierszy = m.Licz(QStringLiteral(
      "SELECT (SELECT COUNT(*) FROM transakcje)+(SELECT COUNT(*) FROM zaplanowane)+(SELECT "
      "COUNT(*) FROM kontrahent)"));
  int wydruki = 0;
  dawnyWydruk =
      Nawigacja::Zarejestruj(QStringLiteral("frmWydrukPrzelewu"), [&](QWidget*) { ++wydruki; });

  sesja.pubPrzelewKontrahent = odbiorca;
  sesja.pubPrzelewZaplanowana = plan;
  {
    frmEdycjaPrzelewu f;
    const auto pole = [&](const char* n) { return Kontrolka<QLineEdit>(&f, n); };
    EXPECT_EQ(pole("txtNazwaOdbiorcy")->text(), QStringLiteral("Zakład Gazowniczy 'Żar'"));
    EXPECT_EQ(pole("txtNazwaOdbiorcyCd")->text(), QStringLiteral("30-001 Kraków ul. Ćwiczeń 3"));
    EXPECT_EQ(pole("txtLkOdbiorcy")->text(), QStringLiteral("34"));
    EXPECT_EQ(pole("txtBankOdbiorcy")->text(), QStringLiteral("12401037"));
    EXPECT_EQ(pole("txtKontoOdbiorcy")->text(), QStringLiteral("1111222233334444555566667"));
    EXPECT_EQ(pole("txtNazwaNadawcy")->text(), QStringLiteral("Jan O'Brien-Łęcki"));
    EXPECT_EQ(pole("txtNazwaNadawcyCd")->text(), QStringLiteral("00-950 Łódź ul. Źródlana 5"));
    EXPECT_EQ(pole("txtKontoNadawcy")->text(), QStringLiteral("0000123456789012345678901"));
    EXPECT_EQ(pole("txtTytulemCd")->text(), QStringLiteral("Gaz za listopad"));
    EXPECT_EQ(pole("txtKwota")->text(), FormatKwotyEdycja(999999999999.99));
    EXPECT_EQ(pole("Text1")->text(), QStringLiteral("PLN"));
    // The fields hold what the printed slip has room for.
    pole("txtTytulem")->setText(QString(80, QChar(0x0179)));
    EXPECT_EQ(pole("txtTytulem")->text().size(), 50);
    pole("txtLkNadawcy")->setText(QStringLiteral("12345"));
    EXPECT_EQ(pole("txtLkNadawcy")->text(), QStringLiteral("12"));

    // A deposit printed on a plain sheet: the fields as they stand.
    Kontrolka<QRadioButton>(&f, "optTyp(1)")->click();
    Kontrolka<QPushButton>(&f, "cmdDrukujNaKartce")->click();
    EXPECT_EQ(wydruki, 1);
    EXPECT_TRUE(m.host.pokazane.empty());
    const PrzelewRekord& p = sesja.pubPrzelew;
    EXPECT_EQ(p.wplata, -1);
    EXPECT_EQ(p.naFormularzu, 0);
    EXPECT_EQ(p.waluta, QStringLiteral("PLN"));
    EXPECT_EQ(p.nazwaOdbiorcy, QStringLiteral("Zakład Gazowniczy 'Żar'"));
    EXPECT_EQ(p.tytulem, QString(50, QChar(0x0179)));
    EXPECT_EQ(p.kwota, FormatKwotyEdycja(999999999999.99));

    // Cleared amount: the question; Nie stays in the editor, Tak prints on the form.
    Kontrolka<QPushButton>(&f, "cmdWytnijPrzelew")->click();
    EXPECT_EQ(pole("txtKwota")->text(), FormatKwotyEdycja(0));
    EXPECT_TRUE(pole("txtTytulem")->text().isEmpty());
    m.host.odpowiedzi = {WynikNie};
    Kontrolka<QPushButton>(&f, "cmdDrukujNaFormularzu")->click();
    EXPECT_EQ(wydruki, 1);
    ASSERT_EQ(m.host.pokazane.size(), 1u);
    EXPECT_EQ(m.host.pokazane[0].tytul.trimmed(), Napis(QStringLiteral("frmEdycjaPrzelewu21")));
    EXPECT_EQ(m.host.pokazane[0].przyciski, MsgTakNie);
    // Half a zloty reads as 0 where the comma is the decimal mark: asked too.
    pole("txtKwota")->setText(QStringLiteral("0,50"));
    m.host.odpowiedzi = {WynikTak};
    Kontrolka<QRadioButton>(&f, "optTyp(0)")->click();
    Kontrolka<QPushButton>(&f, "cmdDrukujNaFormularzu")->click();
    EXPECT_EQ(m.host.pokazane.size(), 2u);
    EXPECT_EQ(wydruki, 2);
    EXPECT_EQ(sesja.pubPrzelew.naFormularzu, -1);
    EXPECT_EQ(sesja.pubPrzelew.wplata, 0);

    Kontrolka<QPushButton>(&f, "cmdWytnijOdbiorce")->click();
    Kontrolka<QPushButton>(&f, "cmdWytnijNadawce")->click();
    for (const char* n : {"txtNazwaOdbiorcy", "txtNazwaOdbiorcyCd", "txtLkOdbiorcy",
                          "txtBankOdbiorcy", "txtKontoOdbiorcy", "txtNazwaNadawcy",
                          "txtNazwaNadawcyCd", "txtLkNadawcy", "txtBankNadawcy", "txtKontoNadawcy"})
      EXPECT_TRUE(pole(n)->text().isEmpty()) << n;
  }

  // With no counterparty and no planned entry only the sender is filled.
  sesja.pubPrzelewKontrahent = 0;
  sesja.pubPrzelewZaplanowana = 0;
  const PrzelewRekord d = DanePrzelewu(0, 0);
  EXPECT_TRUE(d.nazwaOdbiorcy.isEmpty() && d.kontoOdbiorcy.isEmpty() && d.kwota.isEmpty() &&
              d.tytulemCd.isEmpty());
  EXPECT_EQ(d.nazwaNadawcy, QStringLiteral("Jan O'Brien-Łęcki"));
  EXPECT_EQ(m.Licz(QStringLiteral(
                "SELECT (SELECT COUNT(*) FROM transakcje)+(SELECT COUNT(*) FROM zaplanowane)+"
                "(SELECT COUNT(*) FROM kontrahent)")),
            wierszy);
}

// The drawn sheet: every field at its place in both modes, four copies that differ only by their
// offsets, the transfer and the deposit line, and long texts kept inside their cells.
TEST_F(PrzelewZDanymi, SheetPositionsInBothModes) {
  PrzelewRekord p = DanePrzelewu(odbiorca, plan);
  p.tytulem = QStringLiteral("Faktura 12/2026");
  p.kwota = QStringLiteral("1234,05");
  p.naFormularzu = 0;
  p.wplata = 0;

  std::vector<KsztaltPrzelewu> k = UkladArkusza(p);
  EXPECT_EQ(tekstNa(k, 480, 660), p.nazwaOdbiorcy);
  EXPECT_EQ(tekstNa(k, 480, 1110), p.nazwaOdbiorcyCd);
  EXPECT_EQ(tekstNa(k, 480, 1560), QStringLiteral("34"));
  EXPECT_EQ(tekstNa(k, 1100, 1560), QStringLiteral("12401037  1111222233334444555566667"));
  EXPECT_EQ(tekstNa(k, 3500, 2020), QStringLiteral("PLN"));
  EXPECT_EQ(tekstNa(k, 4700, 2020), QStringLiteral("==1234,05="));
  EXPECT_EQ(tekstNa(k, 480, 2490), QStringLiteral("12 10901014  0000123456789012345678901"));
  EXPECT_EQ(tekstNa(k, 480, 2960), QStringLiteral("Jan O'Brien-Łęcki"));
  EXPECT_EQ(tekstNa(k, 480, 3860), QStringLiteral("Faktura 12/2026"));
  EXPECT_EQ(tekstNa(k, 480, 4320), QStringLiteral("Gaz za listopad"));
  EXPECT_EQ(tekstNa(k, 2883, 1955), QStringLiteral("X"));
  EXPECT_EQ(tekstNa(k, 2520, 1955).trimmed(), QString());
  EXPECT_EQ(tekstNa(k, 480, 510), Napis(QStringLiteral("frmWydrukPrzelewu5")));
  EXPECT_EQ(tekstW(k, 'A', 480, 510)->rozmiar, 6);
  EXPECT_EQ(tekstW(k, 'A', 480, 660)->rozmiar, 11);
  EXPECT_EQ(tekstNa(k, 480, 1430), QStringLiteral("L.k"));
  EXPECT_EQ(tekstNa(k, 4400, 5150), Napis(QStringLiteral("frmWydrukPrzelewu15")));
  // B, C and D: the same shapes moved by 7980 across and 5900 down.
  const auto przesuniety = [&](char z, char na, int dx, int dy) {
    std::vector<KsztaltPrzelewu> a, b;
    for (const KsztaltPrzelewu& s : k) {
      if (s.pozycja == z) a.push_back(s);
      if (s.pozycja == na) b.push_back(s);
    }
    if (a.size() != b.size() || a.empty()) return false;
    for (size_t i = 0; i < a.size(); ++i)
      if (a[i].rodzaj != b[i].rodzaj || a[i].tekst != b[i].tekst || a[i].x1 + dx != b[i].x1 ||
          a[i].y1 + dy != b[i].y1 || a[i].x2 + dx != b[i].x2 || a[i].y2 + dy != b[i].y2)
        return false;
    return true;
  };
  EXPECT_TRUE(przesuniety('A', 'B', 7980, 0));
  EXPECT_TRUE(przesuniety('A', 'C', 0, 5900));
  EXPECT_TRUE(przesuniety('A', 'D', 7980, 5900));
  EXPECT_EQ(tekstNa(k, 7980 + 480, 5900 + 660, 'D'), p.nazwaOdbiorcy);
  // The rules of the plain sheet: nine row rules 455 apart, the stamp circle, the cut line.
  int wiersze = 0;
  for (const KsztaltPrzelewu& s : k)
    if (s.pozycja == 'A' && s.rodzaj == KsztaltPrzelewu::Linia && s.x1 == 400 && s.x2 == 7700 &&
        s.y1 == s.y2 && (s.y1 - 500) % 455 == 0)
      ++wiersze;
  EXPECT_EQ(wiersze, 9);
  const auto okrag = std::find_if(k.begin(), k.end(), [](const KsztaltPrzelewu& s) {
    return s.rodzaj == KsztaltPrzelewu::Okrag && s.pozycja == 'A';
  });
  ASSERT_NE(okrag, k.end());
  EXPECT_EQ(std::tuple(okrag->x1, okrag->y1, okrag->promien), std::tuple(6450, 5300, 400));

  // A deposit: the words instead of the sender's account, the cross in the other box.
  p.wplata = -1;
  k = UkladArkusza(p);
  EXPECT_EQ(tekstNa(k, 480, 2490), QStringLiteral("jed*dwa*trz*czt* 05/100"));
  EXPECT_EQ(tekstNa(k, 2520, 1955), QStringLiteral("X"));
  EXPECT_EQ(tekstNa(k, 2883, 1955).trimmed(), QString());

  // The ready-printed form: values only, at the form's places and offsets.
  p.naFormularzu = -1;
  k = UkladArkusza(p);
  EXPECT_TRUE(std::all_of(k.begin(), k.end(), [](const KsztaltPrzelewu& s) {
    return s.rodzaj == KsztaltPrzelewu::Tekst && s.rozmiar == 11;
  }));
  EXPECT_EQ(k.size(), 4u * 13u);
  EXPECT_EQ(tekstNa(k, 600, 0), p.nazwaOdbiorcy);
  EXPECT_EQ(tekstNa(k, 600, 540), p.nazwaOdbiorcyCd);
  EXPECT_EQ(tekstNa(k, 600, 1020), QStringLiteral("34"));
  EXPECT_EQ(tekstNa(k, 1100, 1020), QStringLiteral("12401037"));
  EXPECT_EQ(tekstNa(k, 3400, 1020), QStringLiteral("1111222233334444555566667"));
  EXPECT_EQ(tekstNa(k, 5000, 1530), QStringLiteral("==1234,05="));
  EXPECT_EQ(tekstNa(k, 600, 2120), QStringLiteral("jed*dwa*trz*czt* 05/100"));
  EXPECT_EQ(tekstNa(k, 2700, 1560), QStringLiteral("X"));
  EXPECT_EQ(tekstNa(k, 600, 4150), QStringLiteral("Gaz za listopad"));
  EXPECT_EQ(tekstNa(k, 8650 + 600, 6500 + 3700, 'D'), QStringLiteral("Faktura 12/2026"));

  // The ready form is printed from the paper's corner at its own scale; the plain sheet, which
  // reaches past the bottom of the page, is fitted whole within quarter-inch margins.
  const DopasowanieArkusza naFormularzu = Dopasowanie(p);
  EXPECT_EQ(std::tuple(naFormularzu.skala, naFormularzu.x, naFormularzu.y),
            std::tuple(1.0, 0.0, 0.0));
  p.naFormularzu = 0;
  const DopasowanieArkusza naKartce = Dopasowanie(p);
  EXPECT_LT(naKartce.skala, 1.0);
  EXPECT_GT(naKartce.skala, 0.85);
  for (const KsztaltPrzelewu& s : UkladArkusza(p))
    for (const auto& [x, y] : {std::pair(s.x1, s.y1), std::pair(s.x2, s.y2)}) {
      const double px = naKartce.x + x * naKartce.skala, py = naKartce.y + y * naKartce.skala;
      ASSERT_TRUE(px >= 359 && px <= SzerokoscArkusza - 359 && py >= 359 &&
                  py <= WysokoscArkusza - 359)
          << x << "," << y;
    }

  // Fifty of the widest letter stay inside the name's cell: nothing drawn past its edge.
  p.naFormularzu = 0;
  p.nazwaOdbiorcy = QString(50, QLatin1Char('W'));
  PozycjaPrzelewu a = PozycjePrzelewu(false)[0];
  std::vector<KsztaltPrzelewu> jeden;
  for (const KsztaltPrzelewu& s : UkladPrzelewu(p, a))
    if (s.rodzaj == KsztaltPrzelewu::Tekst && s.y1 == 660) jeden.push_back(s);
  ASSERT_EQ(jeden.size(), 1u);
  const double skala = 0.1;
  QImage obraz(int(9000 * skala), int(1000 * skala), QImage::Format_RGB32);
  obraz.fill(Qt::white);
  {
    QPainter g(&obraz);
    RysujKsztalty(g, jeden, skala);
  }
  int prawy = -1;
  for (int x = 0; x < obraz.width(); ++x)
    for (int y = 0; y < obraz.height(); ++y)
      if (qGray(obraz.pixel(x, y)) < 128) prawy = std::max(prawy, x);
  EXPECT_GT(prawy, int(5000 * skala));
  EXPECT_LE(prawy, int(7700 * skala));

  // The PDF: one landscape page.
  const QByteArray pdf = PrzelewDoPdf(p);
  EXPECT_TRUE(pdf.startsWith("%PDF"));
  EXPECT_TRUE(pdf.contains("/Count 1"));
}
