// QIF: "!Type:Bank" (or Cash, CCard), then records of one-letter fields ended by "^":
// D date, T or U amount, P payee, M memo, N number, L category, A address lines.
#include <QRegularExpression>

#include "imports/wyciag.h"

namespace {
// QIF dates come as the exporting program likes: ours, and the American M/D'YY and M/D/YYYY.
QDate dataQif(const QString& t) {
  const QDate d = CzytajDate(t);
  if (d.isValid()) return d;
  static const QRegularExpression am(QStringLiteral(R"(^(\d{1,2})/(\d{1,2})(?:/|')\s*(\d{2,4})$)"));
  const auto m = am.match(t.trimmed());
  if (!m.hasMatch()) return {};
  int rok = m.captured(3).toInt();
  if (m.captured(3).size() == 2) rok += rok < 80 ? 2000 : 1900;
  return QDate(rok, m.captured(1).toInt(), m.captured(2).toInt());
}
}  // namespace

std::optional<Wyciag> CzytajQif(const QString& tekst, BladWyciagu* blad) {
  auto porazka = [&](BladImportu r, int wiersz, const QString& f = {}) {
    if (blad) *blad = {r, wiersz, f};
    return std::optional<Wyciag>();
  };
  Wyciag w;
  const QStringList linie = tekst.split(QLatin1Char('\n'));
  PozycjaWyciagu biezaca;
  bool wRekordzie = false;
  bool maKwote = false;
  bool pomijaj = false;  // inside a list of accounts, categories or classes
  int ostatniaNiepusta = 0;
  for (int i = 0; i < linie.size(); ++i) {
    QString l = linie[i];
    if (l.endsWith(QLatin1Char('\r'))) l.chop(1);
    if (l.trimmed().isEmpty()) continue;
    ostatniaNiepusta = i + 1;
    const QChar kod = l[0];
    const QString tresc = l.mid(1).trimmed();
    if (kod == QLatin1Char('!')) {
      const QString naglowek = l.toLower();
      pomijaj = !(naglowek.startsWith(QLatin1String("!type:bank")) ||
                  naglowek.startsWith(QLatin1String("!type:cash")) ||
                  naglowek.startsWith(QLatin1String("!type:ccard")) ||
                  naglowek.startsWith(QLatin1String("!type:oth")));
      if (naglowek.startsWith(QLatin1String("!option")) ||
          naglowek.startsWith(QLatin1String("!clear")))
        pomijaj = false;
      continue;
    }
    if (kod == QLatin1Char('^')) {
      if (!pomijaj && wRekordzie) {
        if (!biezaca.data.isValid()) return porazka(BladImportu::Data, biezaca.wiersz, QString());
        if (!maKwote) return porazka(BladImportu::Kwota, biezaca.wiersz, QString());
        w.pozycje.push_back(biezaca);
      }
      biezaca = PozycjaWyciagu();
      wRekordzie = maKwote = false;
      continue;
    }
    if (pomijaj) continue;
    if (!wRekordzie) {
      biezaca.wiersz = i + 1;
      wRekordzie = true;
    }
    switch (kod.toLatin1()) {
      case 'D':
        biezaca.data = dataQif(tresc);
        if (!biezaca.data.isValid()) return porazka(BladImportu::Data, i + 1, tresc);
        break;
      case 'T':
      case 'U': {
        const auto kw = CzytajKwote(tresc);
        if (!kw) return porazka(BladImportu::Kwota, i + 1, tresc);
        biezaca.grosze = *kw;
        maKwote = true;
        break;
      }
      case 'P': biezaca.kontrahent = tresc; break;
      case 'M': biezaca.opis = tresc; break;
      case 'N': biezaca.idBanku = tresc; break;
      case 'L': case 'A': case 'C': case 'S': case 'E': case '$': case '%': case 'F': case 'Y':
      case 'I': case 'Q': case 'O': case 'B': case 'X':
        break;
      default:
        return porazka(BladImportu::LiniaQif, i + 1, l);
    }
  }
  // A record not closed by "^" means the file was cut short.
  if (wRekordzie && !pomijaj) return porazka(BladImportu::Urwany, ostatniaNiepusta);
  if (w.pozycje.empty() && ostatniaNiepusta == 0) return porazka(BladImportu::Pusty, 0);
  return w;
}
