// MT940, the SWIFT statement Polish banks offer: tags :20: :25: :28C: :60F: :61: :86: :62F:,
// a :61: line per entry followed by its :86: description, which Polish banks split into "~"
// subfields (~20-~25 the title, ~27/~28 and ~32/~33 the other party, ~38 its IBAN).
#include <QRegularExpression>

#include "imports/wyciag.h"

namespace {
struct Pole {
  QString tag;
  QString tresc;  // lines joined with "\n"
  int wiersz;
};

QString podpola(const QString& tresc, QChar znak, QMap<int, QString>* pola) {
  // "~20abc~21def": the text before the first mark is the code of the operation.
  const QString jednaLinia = QString(tresc).replace(QLatin1Char('\n'), QString());
  const QStringList czesci = jednaLinia.split(znak);
  for (int i = 1; i < czesci.size(); ++i) {
    const QString c = czesci[i];
    if (c.size() < 2 || !c[0].isDigit() || !c[1].isDigit()) continue;
    const int numer = c.left(2).toInt();
    (*pola)[numer] += c.mid(2);
  }
  return czesci.value(0);
}

void opisz(PozycjaWyciagu& p, const QString& tresc) {
  const QChar znak = tresc.contains(QLatin1Char('~'))   ? QLatin1Char('~')
                     : tresc.contains(QLatin1Char('<')) ? QLatin1Char('<')
                                                        : QChar();
  if (znak.isNull()) {
    p.opis = QString(tresc).replace(QLatin1Char('\n'), QLatin1Char(' ')).simplified();
    return;
  }
  QMap<int, QString> pola;
  podpola(tresc, znak, &pola);
  QString opis;
  for (int i = 20; i <= 26; ++i) opis += pola.value(i);
  for (int i = 60; i <= 63; ++i) opis += pola.value(i);
  p.opis = opis.simplified();
  QString nazwa = pola.value(32) + pola.value(33);
  if (nazwa.trimmed().isEmpty()) nazwa = pola.value(27) + pola.value(28);
  p.kontrahent = nazwa.simplified();
  QString rachunek = CyfryRachunku(pola.value(38));
  if (rachunek.isEmpty()) rachunek = CyfryRachunku(pola.value(30) + pola.value(31));
  p.rachunek = rachunek;
}
}  // namespace

std::optional<Wyciag> CzytajMt940(const QString& tekst, BladWyciagu* blad) {
  auto porazka = [&](BladImportu r, int wiersz, const QString& f = {}) {
    if (blad) *blad = {r, wiersz, f};
    return std::optional<Wyciag>();
  };
  // The fields, with their continuation lines; "-}" and "{...}" envelope lines are skipped.
  std::vector<Pole> pola;
  static const QRegularExpression tagWzor(QStringLiteral(R"(^:(\d{2}[A-Z]?):(.*)$)"));
  const QStringList linie = tekst.split(QLatin1Char('\n'));
  for (int i = 0; i < linie.size(); ++i) {
    QString l = linie[i];
    if (l.endsWith(QLatin1Char('\r'))) l.chop(1);
    const QString t = l.trimmed();
    if (t.isEmpty() || t == QLatin1String("-") || t == QLatin1String("-}") ||
        t.startsWith(QLatin1Char('{')))
      continue;
    if (t.startsWith(QLatin1Char(':'))) {
      const auto m = tagWzor.match(t);
      // A line opening with a colon is a tag, or a continuation of :86: text that begins with
      // one, which banks avoid: a colon line that is not a tag is broken.
      if (!m.hasMatch()) return porazka(BladImportu::Znacznik, i + 1, t);
      pola.push_back({m.captured(1), m.captured(2), i + 1});
    } else {
      if (pola.empty()) return porazka(BladImportu::Znacznik, i + 1, t);
      pola.back().tresc += QLatin1Char('\n') + l;
    }
  }
  if (pola.empty()) return porazka(BladImportu::Pusty, 0);

  static const QRegularExpression wzor61(QStringLiteral(
      R"(^(\d{6})(\d{4})?(RC|RD|C|D)([A-Z])?(\d{1,12}(?:,\d{0,2})?)([NFS][A-Z0-9]{3})?([^/\n]*)(?://([^\n]*))?)"));
  Wyciag w;
  bool otwarty = false;  // between :60F: and :62F:
  int wierszOtwarcia = 0;
  PozycjaWyciagu* ostatnia = nullptr;
  for (const Pole& p : pola) {
    if (p.tag == QLatin1String("25")) {
      w.rachunek = CyfryRachunku(p.tresc.section(QLatin1Char('/'), -1));
      if (w.rachunek.size() > 26) w.rachunek = w.rachunek.right(26);
    } else if (p.tag.startsWith(QLatin1String("60"))) {
      otwarty = true;
      wierszOtwarcia = p.wiersz;
    } else if (p.tag.startsWith(QLatin1String("62"))) {
      otwarty = false;
    } else if (p.tag == QLatin1String("61")) {
      const QString linia = p.tresc.section(QLatin1Char('\n'), 0, 0).trimmed();
      const auto m = wzor61.match(linia);
      if (!m.hasMatch()) return porazka(BladImportu::Znacznik, p.wiersz, QStringLiteral(":61:") + linia);
      PozycjaWyciagu poz;
      poz.wiersz = p.wiersz;
      const QString d = m.captured(1);
      const int rok = d.left(2).toInt();
      poz.data = QDate(rok < 80 ? 2000 + rok : 1900 + rok, d.mid(2, 2).toInt(), d.mid(4, 2).toInt());
      if (!poz.data.isValid()) return porazka(BladImportu::Data, p.wiersz, d);
      QString kwota = m.captured(5);
      if (kwota.endsWith(QLatin1Char(','))) kwota += QLatin1String("00");
      const auto kw = CzytajKwote(kwota);
      if (!kw) return porazka(BladImportu::Kwota, p.wiersz, m.captured(5));
      const QString znak = m.captured(3);
      // RC and RD reverse a debit and a credit.
      const bool przychod = znak == QLatin1String("C") || znak == QLatin1String("RD");
      poz.grosze = przychod ? *kw : -*kw;
      QString ref = m.captured(7).trimmed();
      if (ref == QLatin1String("NONREF")) ref.clear();
      poz.idBanku = m.captured(8).trimmed().isEmpty() ? ref : m.captured(8).trimmed();
      w.pozycje.push_back(poz);
      ostatnia = &w.pozycje.back();
    } else if (p.tag == QLatin1String("86")) {
      if (ostatnia) opisz(*ostatnia, p.tresc);
      ostatnia = nullptr;
    }
  }
  // A statement opened by its opening balance ends with its closing one; one that does not was
  // cut short.
  if (otwarty) {
    const int ostatni = pola.back().wiersz;
    return porazka(BladImportu::Urwany, ostatni > 0 ? ostatni : wierszOtwarcia);
  }
  return w;
}
