#include "slips/przelew.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

#include "slips/slownie.h"
#include "store/baza.h"
#include "store/kwota.h"
#include "store/napis.h"
#include "store/tekst.h"

namespace {
QString tekst(const Rekordy& rs, const char* pole) { return Oczysc(rs.Pole(QLatin1String(pole))); }
}  // namespace

PrzelewRekord DanePrzelewu(qint64 kontrahent, qint64 zaplanowana) {
  PrzelewRekord p;
  OtworzBaze();
  Baza& baza = pubBaza();
  if (zaplanowana != 0) {
    const Rekordy rs =
        baza.Czytaj(QStringLiteral("SELECT przychod,wydatek,opis FROM zaplanowane WHERE id=%1")
                        .arg(zaplanowana));
    if (!rs.Eof()) {
      // One of the two is 0.
      p.kwota = FormatKwotyEdycja(PoleRekordu(rs, QStringLiteral("przychod")) +
                                  PoleRekordu(rs, QStringLiteral("wydatek")));
      p.tytulemCd = tekst(rs, "opis");
    }
  }
  if (kontrahent != 0) {
    const Rekordy rs = baza.Czytaj(
        QStringLiteral("SELECT nazwa,adres,miasto,bank,lk,konto FROM kontrahent WHERE id=%1")
            .arg(kontrahent));
    if (!rs.Eof()) {
      p.nazwaOdbiorcy = tekst(rs, "nazwa");
      p.nazwaOdbiorcyCd = (tekst(rs, "miasto") + QLatin1Char(' ') + tekst(rs, "adres")).trimmed();
      p.lkOdbiorcy = tekst(rs, "lk");
      p.bankOdbiorcy = tekst(rs, "bank");
      p.kontoOdbiorcy = tekst(rs, "konto");
    }
  }
  const Rekordy rs =
      baza.Czytaj(QStringLiteral("SELECT imie,nazwisko,ulica,miasto,bank,lk,konto FROM setup"));
  if (!rs.Eof()) {
    p.nazwaNadawcy = (tekst(rs, "imie") + QLatin1Char(' ') + tekst(rs, "nazwisko")).trimmed();
    p.nazwaNadawcyCd = (tekst(rs, "miasto") + QLatin1Char(' ') + tekst(rs, "ulica")).trimmed();
    p.lkNadawcy = tekst(rs, "lk");
    p.bankNadawcy = tekst(rs, "bank");
    p.kontoNadawcy = tekst(rs, "konto");
  }
  p.waluta = QStringLiteral("PLN");
  return p;
}

bool KwotaPrzelewuZerowa(const QString& kwota) { return LiczbaZTekstu(kwota) == 0.0; }

const std::vector<PozycjaPrzelewu>& PozycjePrzelewu(bool naFormularzu) {
  static const std::vector<PozycjaPrzelewu> kartka = {
      {'A', 0, 0}, {'B', 7980, 0}, {'C', 0, 5900}, {'D', 7980, 5900}};
  static const std::vector<PozycjaPrzelewu> formularz = {
      {'A', 0, 0}, {'B', 8650, 0}, {'C', 0, 6500}, {'D', 8650, 6500}};
  return naFormularzu ? formularz : kartka;
}

std::vector<KsztaltPrzelewu> UkladPrzelewu(const PrzelewRekord& p, const PozycjaPrzelewu& gdzie) {
  std::vector<KsztaltPrzelewu> k;
  const int dx = gdzie.x, dy = gdzie.y;
  const auto ksztalt = [&](KsztaltPrzelewu::Rodzaj r, int x1, int y1, int x2, int y2) {
    KsztaltPrzelewu s;
    s.rodzaj = r;
    s.x1 = x1 + dx, s.y1 = y1 + dy, s.x2 = x2 + dx, s.y2 = y2 + dy;
    s.pozycja = gdzie.litera;
    k.push_back(s);
  };
  const auto linia = [&](int x1, int y1, int x2, int y2) {
    ksztalt(KsztaltPrzelewu::Linia, x1, y1, x2, y2);
  };
  const auto prostokat = [&](int x1, int y1, int x2, int y2) {
    ksztalt(KsztaltPrzelewu::Prostokat, x1, y1, x2, y2);
  };
  // A text at y, x (the order the slip's tables use), with the edge of its cell.
  const auto napis = [&](const QString& t, int y, int x, int krawedz, int rozmiar) {
    ksztalt(KsztaltPrzelewu::Tekst, x, y, krawedz, y);
    k.back().tekst = t;
    k.back().rozmiar = rozmiar;
  };
  const auto etykieta = [&](const QString& t, int y, int x, int krawedz) {
    napis(t, y, x, krawedz, 6);
  };
  const auto wartosc = [&](const QString& t, int y, int x, int krawedz) {
    napis(t, y, x, krawedz, 11);
  };

  const bool wplata = p.wplata != 0;
  const QString kwota = QStringLiteral("==") + p.kwota + QLatin1Char('=');
  const QString kontoNadawcy =
      p.lkNadawcy + QLatin1Char(' ') + p.bankNadawcy + QStringLiteral("  ") + p.kontoNadawcy;
  const QString slowa = wplata ? KwotaSlownie(p.kwota) : kontoNadawcy;
  const QString wplataX = wplata ? QStringLiteral("X") : QStringLiteral(" ");
  const QString przelewX = wplata ? QStringLiteral(" ") : QStringLiteral("X");

  if (p.naFormularzu != 0) {
    // Values only, into the boxes of the printed form.
    const int prawa = 8000;
    wartosc(wplataX, 1560, 2700, 3000);
    wartosc(przelewX, 1550, 3000, 3400);
    wartosc(p.nazwaOdbiorcy, 0, 600, prawa);
    wartosc(p.nazwaOdbiorcyCd, 540, 600, prawa);
    wartosc(p.lkOdbiorcy, 1020, 600, 1100);
    wartosc(p.bankOdbiorcy, 1020, 1100, 3400);
    wartosc(p.kontoOdbiorcy, 1020, 3400, prawa);
    wartosc(kwota, 1530, 5000, prawa);
    wartosc(slowa, 2120, 600, prawa);
    wartosc(p.nazwaNadawcy, 2600, 600, prawa);
    wartosc(p.nazwaNadawcyCd, 3150, 600, prawa);
    wartosc(p.tytulem, 3700, 600, prawa);
    wartosc(p.tytulemCd, 4150, 600, prawa);
    return k;
  }

  linia(20, 350, 8000, 350);
  prostokat(20, 500, 8000, 6100);
  linia(7700, 500, 7700, 5000);
  prostokat(400, 4700, 4000, 5900);
  prostokat(5800, 4700, 7100, 5900);
  linia(4000, 5000, 5800, 5000);
  linia(7100, 5000, 8000, 5000);
  linia(20, 4597, 8000, 4597);
  for (int y = 500; y <= 4140; y += 455) linia(400, y, 7700, y);
  prostokat(400, 1410, 900, 1865);   // L.k
  prostokat(900, 1410, 7700, 1865);  // the account
  prostokat(400, 1865, 2250, 2320);
  prostokat(4400, 1865, 7700, 2320);  // the amount
  prostokat(2450, 1950, 2730, 2230);  // a deposit
  prostokat(2800, 1950, 3080, 2230);  // a transfer
  ksztalt(KsztaltPrzelewu::Okrag, 6450, 5300, 6450, 5300);
  k.back().promien = 400;
  linia(20, 6250, 8000, 6250);
  k.back().przerywana = true;

  const int prawa = 7700;
  etykieta(Napis(QStringLiteral("frmWydrukPrzelewu5")), 510, 480, prawa);
  etykieta(Napis(QStringLiteral("frmWydrukPrzelewu6")), 960, 480, prawa);
  napis(QStringLiteral("L.k"), 1430, 480, 900, 6);
  etykieta(Napis(QStringLiteral("frmWydrukPrzelewu7")), 1430, 1100, prawa);
  etykieta(Napis(QStringLiteral("frmWydrukPrzelewu8")), 1880, 3500, 4400);
  etykieta(Napis(QStringLiteral("frmWydrukPrzelewu9")), 1880, 4700, prawa);
  etykieta(Napis(QStringLiteral("frmWydrukPrzelewu10")), 2340, 480, prawa);
  etykieta(Napis(QStringLiteral("frmWydrukPrzelewu11")), 2790, 480, prawa);
  etykieta(Napis(QStringLiteral("frmWydrukPrzelewu12")), 3240, 480, prawa);
  etykieta(Napis(QStringLiteral("frmWydrukPrzelewu13")), 3690, 480, prawa);
  etykieta(Napis(QStringLiteral("frmWydrukPrzelewu14")), 4150, 480, prawa);
  etykieta(Napis(QStringLiteral("frmWydrukPrzelewu15")), 5150, 4400, 5800);

  wartosc(wplataX, 1955, 2520, 2730);
  wartosc(przelewX, 1955, 2883, 3080);
  wartosc(p.nazwaOdbiorcy, 660, 480, prawa);
  wartosc(p.nazwaOdbiorcyCd, 1110, 480, prawa);
  wartosc(p.lkOdbiorcy, 1560, 480, 900);
  wartosc(p.bankOdbiorcy + QStringLiteral("  ") + p.kontoOdbiorcy, 1560, 1100, prawa);
  wartosc(p.waluta, 2020, 3500, 4400);
  wartosc(kwota, 2020, 4700, prawa);
  wartosc(slowa, 2490, 480, prawa);
  wartosc(p.nazwaNadawcy, 2960, 480, prawa);
  wartosc(p.nazwaNadawcyCd, 3420, 480, prawa);
  wartosc(p.tytulem, 3860, 480, prawa);
  wartosc(p.tytulemCd, 4320, 480, prawa);
  return k;
}

std::vector<KsztaltPrzelewu> UkladArkusza(const PrzelewRekord& p) {
  std::vector<KsztaltPrzelewu> k;
  for (const PozycjaPrzelewu& gdzie : PozycjePrzelewu(p.naFormularzu != 0)) {
    std::vector<KsztaltPrzelewu> jeden = UkladPrzelewu(p, gdzie);
    k.insert(k.end(), jeden.begin(), jeden.end());
  }
  return k;
}

DopasowanieArkusza Dopasowanie(const PrzelewRekord& p) {
  DopasowanieArkusza d;
  if (p.naFormularzu != 0) return d;
  int x1 = SzerokoscArkusza, y1 = WysokoscArkusza, x2 = 0, y2 = 0;
  for (const KsztaltPrzelewu& k : UkladArkusza(p)) {
    const int r = k.promien;
    x1 = std::min({x1, k.x1 - r, k.x2 - r});
    y1 = std::min({y1, k.y1 - r, k.y2 - r});
    x2 = std::max({x2, k.x1 + r, k.x2 + r});
    y2 = std::max({y2, k.y1 + r, k.y2 + r});
  }
  const int margines = 360;
  d.skala = std::min({1.0, double(SzerokoscArkusza - 2 * margines) / (x2 - x1),
                      double(WysokoscArkusza - 2 * margines) / (y2 - y1)});
  d.x = (SzerokoscArkusza - (x2 - x1) * d.skala) / 2 - x1 * d.skala;
  d.y = (WysokoscArkusza - (y2 - y1) * d.skala) / 2 - y1 * d.skala;
  return d;
}

void RysujKsztalty(QPainter& p, const std::vector<KsztaltPrzelewu>& ksztalty, double skala,
                   double przesuniecieX, double przesuniecieY) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  p.setRenderHint(QPainter::TextAntialiasing);
  QPen pioro(Qt::black);
  pioro.setWidthF(std::max(1.0, 12 * skala));
  p.setBrush(Qt::NoBrush);
  const double dpi = p.device() ? p.device()->logicalDpiY() : 96.0;
  const auto punkt = [=](int x, int y) {
    return QPointF(x * skala + przesuniecieX, y * skala + przesuniecieY);
  };
  for (const KsztaltPrzelewu& k : ksztalty) {
    switch (k.rodzaj) {
      case KsztaltPrzelewu::Linia:
        pioro.setStyle(k.przerywana ? Qt::DashLine : Qt::SolidLine);
        p.setPen(pioro);
        p.drawLine(punkt(k.x1, k.y1), punkt(k.x2, k.y2));
        break;
      case KsztaltPrzelewu::Prostokat:
        pioro.setStyle(Qt::SolidLine);
        p.setPen(pioro);
        p.drawRect(QRectF(punkt(k.x1, k.y1), punkt(k.x2, k.y2)));
        break;
      case KsztaltPrzelewu::Okrag:
        pioro.setStyle(Qt::SolidLine);
        p.setPen(pioro);
        p.drawEllipse(punkt(k.x1, k.y1), k.promien * skala, k.promien * skala);
        break;
      case KsztaltPrzelewu::Tekst: {
        if (k.tekst.trimmed().isEmpty()) break;
        // A point is 20 twips; the font is set in the device's points.
        QFont czcionka(QStringLiteral("Liberation Sans"));
        czcionka.setStyleHint(QFont::SansSerif);
        const double piksele = k.rozmiar * 20.0 * skala;
        czcionka.setPointSizeF(std::max(0.5, piksele * 72.0 / dpi));
        QFontMetricsF miara(czcionka, p.device());
        const double miejsce = (k.x2 - k.x1) * skala;
        const double szerokosc = miara.horizontalAdvance(k.tekst);
        if (miejsce > 0 && szerokosc > miejsce) {
          czcionka.setPointSizeF(std::max(0.5, czcionka.pointSizeF() * miejsce / szerokosc * 0.98));
          miara = QFontMetricsF(czcionka, p.device());
        }
        p.setFont(czcionka);
        p.setPen(Qt::black);
        p.drawText(punkt(k.x1, k.y1) + QPointF(0, miara.ascent()), k.tekst);
        break;
      }
    }
  }
  p.restore();
}

QImage PodgladArkusza(const PrzelewRekord& p, int szerokosc) {
  const double skala = double(szerokosc) / SzerokoscArkusza;
  QImage obraz(szerokosc, int(WysokoscArkusza * skala + 0.5), QImage::Format_RGB32);
  obraz.fill(Qt::white);
  QPainter malarz(&obraz);
  const DopasowanieArkusza d = Dopasowanie(p);
  RysujKsztalty(malarz, UkladArkusza(p), skala * d.skala, d.x * skala, d.y * skala);
  return obraz;
}

bool RysujArkusz(const PrzelewRekord& p, QPagedPaintDevice& urzadzenie, QString* blad) {
  urzadzenie.setPageLayout(
      QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF(0, 0, 0, 0)));
  QPainter malarz;
  if (!malarz.begin(&urzadzenie)) {
    if (blad) *blad = Napis(QStringLiteral("frmWydrukPrzelewu16"));
    return false;
  }
  const double skala = urzadzenie.logicalDpiX() / 1440.0;
  const DopasowanieArkusza d = Dopasowanie(p);
  RysujKsztalty(malarz, UkladArkusza(p), skala * d.skala, d.x * skala, d.y * skala);
  return malarz.end();
}

QByteArray PrzelewDoPdf(const PrzelewRekord& p, QString* blad) {
  if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
    if (blad) *blad = Napis(QStringLiteral("frmWydrukPrzelewu16"));
    return {};
  }
  QByteArray pdf;
  QBuffer bufor(&pdf);
  bufor.open(QIODevice::WriteOnly);
  {
    QPdfWriter pisarz(&bufor);
    pisarz.setResolution(600);
    pisarz.setCreator(QStringLiteral("Zorvik"));
    if (!RysujArkusz(p, pisarz, blad)) return {};
  }
  return pdf;
}
