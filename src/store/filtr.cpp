#include "store/filtr.h"

#include "store/napis.h"
#include "store/tekst.h"

namespace {

QString liczba(int n) { return QString::number(n); }

// The parts of the working date that the conditions and the texts use.
struct Pozycja {
  QDate p;
  int w, q, m, y;
};

Pozycja pozycja() {
  QDate p = sesja.pubFiltrCzasowy.pozycja;
  if (!p.isValid()) p = QDate(1899, 12, 30);
  return {p, NumerTygodnia(p), (p.month() - 1) / 3 + 1, p.month(), p.year()};
}

}  // namespace

int NumerTygodnia(const QDate& data) {
  if (!data.isValid()) return 0;
  // Days before the first Monday of the year belong to week 1, with 1 January.
  const int przesuniecie = QDate(data.year(), 1, 1).dayOfWeek() - 1;
  return (data.dayOfYear() - 1 + przesuniecie) / 7 + 1;
}

Okres FiltrCzasowy(const FiltrCzasowyRekord& filtr) {
  Okres o;
  if (filtr.rodzaj < 0 || filtr.rodzaj > 6) return o;
  const Pozycja p = pozycja();
  const QString w = liczba(p.w), q = liczba(p.q), m = liczba(p.m), y = liczba(p.y);
  const QString dataP = ZapisDaty(p.p);
  const QString od = ZapisDaty(sesja.pubFiltrCzasowy.od);
  const QString do_ = ZapisDaty(sesja.pubFiltrCzasowy.do_);
  const QString A = Napis(QStringLiteral("Module111")) + QLatin1Char(' ');
  const QString B = Napis(QStringLiteral("Module112")) + QLatin1Char(' ');
  const QString F = FormatDatyOkresu(p.p);
  const QString N = NazwaMiesiaca(p.p);
  // Both descriptions of kinds 1 to 5 end in the value and ")": the texts end in "(".
  switch (filtr.rodzaj) {
    case 0:
      o.warunek = QStringLiteral(" ");
      o.warunekPrzed = QStringLiteral(" AND 1=0 ");
      o.opis = A;
      o.opisDlugi = B + Napis(QStringLiteral("Module113"));
      break;
    case 1:
      o.warunek = QStringLiteral(" AND data=#") + dataP + QStringLiteral("# ");
      o.warunekPrzed = QStringLiteral(" AND data<#") + dataP + QStringLiteral("# ");
      o.opis = A + Napis(QStringLiteral("Module114")) + F + QStringLiteral(")");
      o.opisDlugi =
          B + QStringLiteral(" ") + Napis(QStringLiteral("Module115")) + F + QStringLiteral(")");
      break;
    case 2:
      o.warunek = QStringLiteral(" AND (DATEPART ('ww',data,2)=") + w +
                  QStringLiteral(" AND YEAR(data)=") + y + QStringLiteral(") ");
      o.warunekPrzed = QStringLiteral(" AND ((DATEPART ('ww',data,2)<") + w +
                       QStringLiteral(" AND YEAR(data)=") + y +
                       QStringLiteral(") OR (YEAR(data)<") + y + QStringLiteral(")) ");
      o.opis = A + Napis(QStringLiteral("Module116")) + w + QStringLiteral(")");
      o.opisDlugi =
          B + QStringLiteral(" ") + Napis(QStringLiteral("Module117")) + w + QStringLiteral(")");
      break;
    case 3:
      o.warunek = QStringLiteral(" AND (MONTH(data)=") + m + QStringLiteral(" AND YEAR(data)=") +
                  y + QStringLiteral(") ");
      o.warunekPrzed = QStringLiteral(" AND ((MONTH(data)<") + m +
                       QStringLiteral(" AND YEAR(data)=") + y +
                       QStringLiteral(") OR (YEAR(data)<") + y + QStringLiteral(")) ");
      o.opis = A + Napis(QStringLiteral("Module118")) + N + QStringLiteral(")");
      o.opisDlugi =
          B + QStringLiteral(" ") + Napis(QStringLiteral("Module119")) + N + QStringLiteral(")");
      break;
    case 4:
      o.warunek = QStringLiteral(" AND (DATEPART ('q',data)=") + q +
                  QStringLiteral(" AND YEAR(data)=") + y + QStringLiteral(") ");
      o.warunekPrzed = QStringLiteral(" AND ((DATEPART ('q',data)<") + q +
                       QStringLiteral(" AND YEAR(data)=") + y +
                       QStringLiteral(") OR (YEAR(data)<") + y + QStringLiteral(")) ");
      o.opis = A + Napis(QStringLiteral("Module120")) + q + QStringLiteral(")");
      o.opisDlugi =
          B + QStringLiteral(" ") + Napis(QStringLiteral("Module121")) + q + QStringLiteral(")");
      break;
    case 5:
      o.warunek = QStringLiteral(" AND YEAR(data)=") + y + QStringLiteral(" ");
      o.warunekPrzed = QStringLiteral(" AND YEAR(data)<") + y + QStringLiteral(" ");
      o.opis = A + Napis(QStringLiteral("Module122")) + y + QStringLiteral(")");
      o.opisDlugi =
          B + QStringLiteral(" ") + Napis(QStringLiteral("Module123")) + y + QStringLiteral(")");
      break;
    case 6:
      o.warunek = QStringLiteral(" AND data>=#") + od + QStringLiteral("# AND data<=#") + do_ +
                  QStringLiteral("# ");
      o.warunekPrzed = QStringLiteral(" AND data<#") + od + QStringLiteral("# ");
      // The short text names the first day only.
      o.opis = A + Napis(QStringLiteral("Module124")) + QStringLiteral(" ") +
               FormatDatyOkresu(sesja.pubFiltrCzasowy.od);
      o.opisDlugi = B + Napis(QStringLiteral("Module125")) + QStringLiteral(" ") +
                    FormatDatyOkresu(sesja.pubFiltrCzasowy.od) + QStringLiteral(" ") +
                    Napis(QStringLiteral("Module155")) + QStringLiteral(" ") +
                    FormatDatyOkresu(sesja.pubFiltrCzasowy.do_);
      break;
  }
  return o;
}

QString OpisOkresu(int rodzaj) {
  const Pozycja p = pozycja();
  QString reszta;
  switch (rodzaj) {
    case 0:
      reszta = Napis(QStringLiteral("Module146"));
      break;
    case 1:
      reszta = Napis(QStringLiteral("Module147")) + FormatDatyOkresu(p.p) + QStringLiteral(")");
      break;
    case 2:
      reszta = Napis(QStringLiteral("Module148")) + liczba(p.w) + QStringLiteral(")");
      break;
    case 3:
      reszta = Napis(QStringLiteral("Module149")) + NazwaMiesiaca(p.p) + QStringLiteral(")");
      break;
    case 4:
      reszta = Napis(QStringLiteral("Module150")) + liczba(p.q) + QStringLiteral(")");
      break;
    case 5:
      reszta = Napis(QStringLiteral("Module151")) + liczba(p.y) + QStringLiteral(")");
      break;
    case 6:
      reszta = Napis(QStringLiteral("Module152")) + QStringLiteral(" ") +
               FormatDatyOkresu(sesja.pubFiltrCzasowy.od) + QStringLiteral(" ") +
               Napis(QStringLiteral("Module155")) + QStringLiteral(" ") +
               FormatDatyOkresu(sesja.pubFiltrCzasowy.do_);
      break;
    default:
      break;
  }
  return Napis(QStringLiteral("Module112")) + QStringLiteral(" ") + reszta;
}

QString NazwaRodzajuKonta(int rodzaj) {
  switch (rodzaj) {
    case 1:
      return Napis(QStringLiteral("Module14"));
    case 2:
      return Napis(QStringLiteral("Module15"));
    case 3:
      return Napis(QStringLiteral("Module16"));
    case 4:
      return Napis(QStringLiteral("Module17"));
    case 5:
      return Napis(QStringLiteral("Module18"));
    case 6:
      return Napis(QStringLiteral("Module19"));
    default:
      return Napis(QStringLiteral("Module110"));
  }
}
