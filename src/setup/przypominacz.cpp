#include "setup/przypominacz.h"

#include <QFile>
#include <QStringDecoder>

namespace {
// "1234 567.50", " 12,5", "-3.00": digits with blanks and one decimal mark (either kind).
bool czytajKwote(const QString& tekst, qint64* grosze) {
  QString t = tekst;
  t.remove(QLatin1Char(' ')).remove(QChar(0xA0));
  if (t.isEmpty()) return false;
  bool minus = false;
  if (t.startsWith(QLatin1Char('-'))) {
    minus = true;
    t.remove(0, 1);
  }
  const qsizetype znak = std::max(t.lastIndexOf(QLatin1Char('.')), t.lastIndexOf(QLatin1Char(',')));
  QString calosc = znak < 0 ? t : t.left(znak);
  QString ulamek = znak < 0 ? QString() : t.mid(znak + 1);
  if (calosc.isEmpty() || ulamek.size() > 2) return false;
  for (QChar c : calosc + ulamek)
    if (!c.isDigit()) return false;
  if (calosc.size() > 13) return false;
  ulamek = ulamek.leftJustified(2, QLatin1Char('0'));
  const qint64 w = calosc.toLongLong() * 100 + ulamek.toLongLong();
  *grosze = minus ? -w : w;
  return true;
}

QString zWindows1250(const QByteArray& b) {
  QStringDecoder d("windows-1250");
  if (!d.isValid()) return QString::fromLatin1(b);
  return d.decode(b);
}
}  // namespace

Przypomnienia CzytajPrzypomnienia(const QByteArray& dane) {
  Przypomnienia p;
  QList<QByteArray> linie = dane.split('\n');
  for (QByteArray& l : linie)
    if (l.endsWith('\r')) l.chop(1);
  // The file ends with a line end: no line stands behind it.
  if (!linie.isEmpty() && linie.back().isEmpty()) linie.removeLast();
  if (linie.size() > 0) p.imieniny = zWindows1250(linie[0]).trimmed();
  if (linie.size() > 1) p.imie = zWindows1250(linie[1]).trimmed();
  for (qsizetype i = 2; i < linie.size(); ++i) {
    if (linie[i].trimmed().isEmpty()) continue;
    // The separator is split on as a byte, before the text is decoded.
    const QList<QByteArray> pola = linie[i].split(char(0xAE));
    PozycjaPrzypomnienia z;
    const QString rodzaj = pola.size() == 7 ? zWindows1250(pola[1]).trimmed() : QString();
    if (rodzaj == QStringLiteral("Przychód"))
      z.rodzaj = PozycjaPrzypomnienia::Przychod;
    else if (rodzaj == QStringLiteral("Wydatek"))
      z.rodzaj = PozycjaPrzypomnienia::Wydatek;
    else if (rodzaj == QStringLiteral("Transfer"))
      z.rodzaj = PozycjaPrzypomnienia::Transfer;
    else {
      ++p.uszkodzone;
      continue;
    }
    z.kwota = zWindows1250(pola[2]).trimmed();
    if (!czytajKwote(z.kwota, &z.grosze)) {
      ++p.uszkodzone;
      continue;
    }
    z.dzien = zWindows1250(pola[0]).trimmed();
    z.konto = zWindows1250(pola[3]).trimmed();
    z.kategoria = zWindows1250(pola[4]).trimmed();
    z.kontrahent = zWindows1250(pola[5]).trimmed();
    z.opis = zWindows1250(pola[6]).trimmed();
    switch (z.rodzaj) {
      case PozycjaPrzypomnienia::Przychod:
        p.sumaPrzychodow += z.grosze;
        ++p.ilePrzychodow;
        break;
      case PozycjaPrzypomnienia::Wydatek:
        p.sumaWydatkow += z.grosze;
        ++p.ileWydatkow;
        break;
      case PozycjaPrzypomnienia::Transfer:
        p.sumaTransferow += z.grosze;
        ++p.ileTransferow;
        break;
    }
    p.pozycje.push_back(std::move(z));
  }
  return p;
}

StanPlikuPrzypomnien CzytajPlikPrzypomnien(const QString& sciezka, Przypomnienia* wynik) {
  QFile f(sciezka);
  if (!f.exists()) return StanPlikuPrzypomnien::Brak;
  if (!f.open(QIODevice::ReadOnly)) return StanPlikuPrzypomnien::Nieczytelny;
  // A reminder file is small; anything huge is not one.
  if (f.size() > 64 * 1024 * 1024) return StanPlikuPrzypomnien::Nieczytelny;
  const QByteArray dane = f.readAll();
  if (f.error() != QFileDevice::NoError) return StanPlikuPrzypomnien::Nieczytelny;
  if (dane.trimmed().isEmpty()) return StanPlikuPrzypomnien::Pusty;
  if (wynik) *wynik = CzytajPrzypomnienia(dane);
  return StanPlikuPrzypomnien::Dobry;
}

QString KwotaPrzypomnienia(qint64 grosze, const QString& separator) {
  const bool minus = grosze < 0;
  const quint64 w = minus ? quint64(-grosze) : quint64(grosze);
  QString calosc = QString::number(w / 100);
  for (qsizetype i = calosc.size() - 3; i > 0; i -= 3) calosc.insert(i, QLatin1Char(' '));
  return (minus ? QStringLiteral("-") : QString()) + calosc + separator +
         QStringLiteral("%1").arg(w % 100, 2, 10, QLatin1Char('0'));
}
