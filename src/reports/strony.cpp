// The pages of a report, for the printer and for PDF: a fixed-pitch flow cut into pages, with the
// report's head repeated on every page after the first and a numbered rule at the foot of each.

#include <QBuffer>
#include <cmath>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

#include "reports/drukowanie.h"
#include "reports/zapis.h"
#include "store/napis.h"
#include "store/session.h"

namespace {

// One printed line: pieces of runs laid out by character column, or one picture.
struct WierszStrony {
  struct Kawalek {
    const Przebieg* przebieg;
    QString tekst;
  };
  std::vector<Kawalek> kawalki;
  const QImage* obrazek = nullptr;
};

// The document's lines cut at `kolumn` characters; a picture stands on lines of its own.
std::vector<WierszStrony> wiersze(const std::vector<LiniaDokumentu>& linie, int kolumn,
                                  size_t od, size_t do_) {
  std::vector<WierszStrony> w;
  for (size_t n = od; n < do_ && n < linie.size(); ++n) {
    WierszStrony biezacy;
    int kolumna = 0;
    bool cos = false;
    for (const ElementDokumentu* e : linie[n].elementy) {
      if (e->rodzaj == ElementDokumentu::Obrazek) {
        if (cos) w.push_back(std::move(biezacy));
        biezacy = {};
        kolumna = 0;
        cos = false;
        WierszStrony obraz;
        obraz.obrazek = &e->obrazek;
        w.push_back(obraz);
        continue;
      }
      QString reszta = e->przebieg.tekst;
      while (!reszta.isEmpty()) {
        if (kolumna >= kolumn) {
          w.push_back(std::move(biezacy));
          biezacy = {};
          kolumna = 0;
        }
        const QString kawalek = reszta.left(kolumn - kolumna);
        biezacy.kawalki.push_back({&e->przebieg, kawalek});
        kolumna += int(kawalek.size());
        reszta.remove(0, kawalek.size());
        cos = true;
      }
    }
    if (cos || linie[n].elementy.empty()) w.push_back(std::move(biezacy));
  }
  return w;
}

QFont czcionka(const Przebieg* p) {
  QFont f(p ? p->czcionka : sesja.pubCzcionka);
  f.setStyleHint(QFont::TypeWriter);
  f.setFixedPitch(true);
  f.setPointSizeF(p ? p->rozmiar : 8);
  f.setBold(p && p->pogrubiony);
  return f;
}

}  // namespace

bool RysujStrony(const DokumentRaportu& d, QPagedPaintDevice& urzadzenie, QString* blad) {
  // Left 600, top 400, right 200, bottom 600 twips.
  urzadzenie.setPageMargins(QMarginsF(30, 20, 10, 30), QPageLayout::Point);
  QPainter p;
  if (!p.begin(&urzadzenie)) {
    if (blad) *blad = Napis(QStringLiteral("drukowanie7"));
    return false;
  }
  const QFont podstawowa = czcionka(nullptr);
  const QFontMetricsF miary(podstawowa, &urzadzenie);
  const double znak = miary.horizontalAdvance(QLatin1Char('M'));
  const double wysokosc = miary.lineSpacing();
  const QRectF obszar(0, 0, urzadzenie.width(), urzadzenie.height());
  const int kolumn = std::max(20, int(obszar.width() / znak));
  // Two lines at the foot of every page: the rule and the page number.
  const int linii = std::max(4, int(obszar.height() / wysokosc) - 2);

  const std::vector<LiniaDokumentu> linie = d.Linie();
  size_t koniecTresci = linie.size();
  if (koniecTresci > 1 && linie.back().elementy.empty()) --koniecTresci;
  const size_t glowa = std::min<size_t>(size_t(d.LinieNaglowka()), koniecTresci);
  const std::vector<WierszStrony> naglowek = wiersze(linie, kolumn, 0, glowa);
  const std::vector<WierszStrony> tresc = wiersze(linie, kolumn, 0, koniecTresci);
  const int szerokoscReguly = d.szerokosc > 0 ? std::min(d.szerokosc, kolumn) : kolumn;

  int strona = 0;
  int linia = 0;
  const auto stopka = [&] {
    ++strona;
    p.setFont(podstawowa);
    const double y = (linii + 1) * wysokosc + miary.ascent();
    p.drawText(QPointF(0, y - wysokosc), QString(szerokoscReguly, QLatin1Char('-')));
    p.drawText(QPointF(0, y),
               PoleTekstu(Napis(QStringLiteral("drukowanie1")) + QLatin1Char(' ') +
                              QString::number(strona),
                          -szerokoscReguly));
  };
  const auto rysujTekst = [&](const WierszStrony& w) {
    int kolumna = 0;
    for (const WierszStrony::Kawalek& k : w.kawalki) {
      p.setFont(czcionka(k.przebieg));
      p.drawText(QPointF(kolumna * znak, linia * wysokosc + miary.ascent()), k.tekst);
      kolumna += int(k.tekst.size());
    }
    ++linia;
  };
  const auto nowaStrona = [&] {
    stopka();
    urzadzenie.newPage();
    linia = 0;
    for (const WierszStrony& w : naglowek) {
      if (w.obrazek) continue;
      rysujTekst(w);
    }
  };

  for (const WierszStrony& w : tresc) {
    if (w.obrazek) {
      // A picture keeps its size up to the page's width and the lines left for it.
      QSizeF rozmiar = QSizeF(w.obrazek->size()) * (urzadzenie.logicalDpiX() / 96.0);
      rozmiar = rozmiar.scaled(QSizeF(obszar.width(), linii * wysokosc), Qt::KeepAspectRatio)
                    .boundedTo(rozmiar);
      const int zajmie = std::max(1, int(std::ceil(rozmiar.height() / wysokosc)));
      if (linia + zajmie > linii && linia > 0) nowaStrona();
      p.drawImage(QRectF(QPointF(0, linia * wysokosc), rozmiar), *w.obrazek);
      linia += zajmie;
      continue;
    }
    if (linia >= linii) nowaStrona();
    rysujTekst(w);
  }
  stopka();
  return p.end();
}

QByteArray DoPdf(const DokumentRaportu& d, QString* blad) {
  // Fonts and pages need the GUI side of Qt (an offscreen one will do).
  if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
    if (blad) *blad = Napis(QStringLiteral("drukowanie7"));
    return {};
  }
  QByteArray pdf;
  QBuffer bufor(&pdf);
  bufor.open(QIODevice::WriteOnly);
  {
    QPdfWriter pisarz(&bufor);
    pisarz.setPageSize(QPageSize(QPageSize::A4));
    pisarz.setResolution(600);
    pisarz.setCreator(QStringLiteral("Zorvik"));
    if (!RysujStrony(d, pisarz, blad)) return {};
  }
  return pdf;
}
