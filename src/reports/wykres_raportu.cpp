#include "reports/wykres_raportu.h"

#include <QFontMetrics>
#include <QPainter>
#include <cmath>


namespace {

// A round step of the scale giving about four lines up to the largest value.
double krokSkali(double maks) {
  if (maks <= 0) return 1;
  const double surowy = maks / 4.0;
  const double rzad = std::pow(10.0, std::floor(std::log10(surowy)));
  for (double m : {1.0, 2.0, 2.5, 5.0, 10.0})
    if (surowy <= m * rzad) return m * rzad;
  return 10 * rzad;
}

// Whole numbers, thousands apart by a blank, as the amounts of the reports are grouped.
QString etykietaSkali(double v) {
  const qlonglong n = std::llround(v);
  QString t = QString::number(std::llabs(n));
  for (qsizetype i = t.size() - 3; i > 0; i -= 3) t.insert(i, QLatin1Char(' '));
  return n < 0 ? QLatin1Char('-') + t : t;
}

}  // namespace

QImage ObrazSlupkow(const DaneWykresu& dane, const QSize& rozmiar) {
  QImage obraz(rozmiar, QImage::Format_RGB32);
  obraz.setDotsPerMeterX(3780);  // 96 dpi: the picture keeps its size on the page
  obraz.setDotsPerMeterY(3780);
  obraz.fill(Qt::white);
  QPainter p(&obraz);
  p.setRenderHint(QPainter::Antialiasing, false);
  QFont f(QStringLiteral("Liberation Sans"));
  f.setStyleHint(QFont::SansSerif);
  f.setPixelSize(11);
  p.setFont(f);
  const QFontMetrics fm(f);

  double maks = 0, min = 0;
  for (double v : dane.wartosci) maks = std::max(maks, v), min = std::min(min, v);
  const double krok = krokSkali(std::max(maks - min, 0.01));
  const double gora = std::ceil(maks / krok) * krok;
  const double dol = std::floor(min / krok) * krok;
  const double zakres = std::max(gora - dol, krok);

  int szerokoscSkali = 0;
  for (double v = dol; v <= gora + krok / 2; v += krok)
    szerokoscSkali = std::max(szerokoscSkali, fm.horizontalAdvance(etykietaSkali(v)));
  int szerokoscLegendy = 0;
  for (const QString& e : dane.etykietyKolumn)
    szerokoscLegendy = std::max(szerokoscLegendy, fm.horizontalAdvance(e) + 22);
  const QRect pole(szerokoscSkali + 14, 10,
                   rozmiar.width() - szerokoscSkali - 24 - (szerokoscLegendy ? szerokoscLegendy + 12 : 0),
                   rozmiar.height() - 10 - fm.height() - 10);
  const auto y = [&](double v) { return pole.bottom() - int(std::lround((v - dol) / zakres * pole.height())); };

  p.setPen(QColor(220, 220, 220));
  for (double v = dol; v <= gora + krok / 2; v += krok) p.drawLine(pole.left(), y(v), pole.right(), y(v));
  p.setPen(Qt::black);
  for (double v = dol; v <= gora + krok / 2; v += krok) {
    const QString t = etykietaSkali(v);
    p.drawText(pole.left() - 6 - fm.horizontalAdvance(t), y(v) + fm.ascent() / 2 - 1, t);
  }
  p.drawLine(pole.bottomLeft(), pole.topLeft());
  p.drawLine(pole.left(), y(0), pole.right(), y(0));

  const int grupy = std::max(dane.wiersze, 1);
  const double szerokoscGrupy = double(pole.width()) / grupy;
  const int kolumny = std::max(dane.kolumny, 1);
  const double slupek = szerokoscGrupy * 0.6 / kolumny;
  for (int w = 1; w <= dane.wiersze; ++w) {
    const double x0 = pole.left() + (w - 1) * szerokoscGrupy + szerokoscGrupy * 0.2;
    for (int k = 1; k <= dane.kolumny; ++k) {
      const double v = dane.Wartosc(w, k);
      const QColor kolor = size_t(k - 1) < dane.kolory.size() ? dane.kolory[size_t(k - 1)] : QColor(0, 160, 0);
      const int x = int(std::lround(x0 + (k - 1) * slupek));
      const int a = y(0), b = y(v);
      const QRect r(x, std::min(a, b), std::max(1, int(std::lround(slupek)) - 1), std::abs(a - b));
      p.fillRect(r, kolor);
      p.setPen(Qt::black);
      if (r.height() > 0) p.drawRect(r.adjusted(0, 0, -1, -1));
    }
    const QString e = dane.etykietyWierszy.value(w - 1);
    const int sx = int(pole.left() + (w - 0.5) * szerokoscGrupy);
    p.drawText(sx - fm.horizontalAdvance(e) / 2, pole.bottom() + 6 + fm.ascent(), e);
  }
  for (int k = 1; k <= int(dane.etykietyKolumn.size()); ++k) {
    const QColor kolor = size_t(k - 1) < dane.kolory.size() ? dane.kolory[size_t(k - 1)] : QColor(0, 160, 0);
    const int lx = pole.right() + 14, ly = pole.top() + (k - 1) * (fm.height() + 4);
    p.fillRect(lx, ly + 2, 12, fm.height() - 4, kolor);
    p.drawRect(lx, ly + 2, 11, fm.height() - 5);
    p.drawText(lx + 18, ly + fm.ascent(), dane.etykietyKolumn[k - 1]);
  }
  return obraz;
}
