// CSV statements as Polish banks export them: a few lines about the account, then a table with a
// header line; ";" or "," between fields, decimal commas, quoted fields with doubled quotes.
#include <QRegularExpression>

#include "imports/wyciag.h"

namespace {
struct Rekord {
  int wiersz;  // 1-based line the record starts on
  QString tekst;
};

// Splits the text into records: a quoted field may hold line breaks.
std::vector<Rekord> rekordy(const QString& tekst) {
  std::vector<Rekord> r;
  int wiersz = 1;
  int poczatekWiersz = 1;
  qsizetype poczatek = 0;
  bool wCudzyslowie = false;
  const qsizetype n = tekst.size();
  for (qsizetype i = 0; i <= n; ++i) {
    const QChar z = i < n ? tekst[i] : QLatin1Char('\n');
    if (z == QLatin1Char('"')) wCudzyslowie = !wCudzyslowie;
    if (z != QLatin1Char('\n')) continue;
    if (wCudzyslowie && i < n) {
      ++wiersz;
      continue;
    }
    QString linia = tekst.mid(poczatek, i - poczatek);
    if (linia.endsWith(QLatin1Char('\r'))) linia.chop(1);
    if (i < n || !linia.isEmpty()) r.push_back({poczatekWiersz, linia});
    ++wiersz;
    poczatekWiersz = wiersz;
    poczatek = i + 1;
    wCudzyslowie = false;
  }
  return r;
}

int poza(const QString& linia, QChar znak) {
  int ile = 0;
  bool cudzyslow = false;
  for (const QChar z : linia) {
    if (z == QLatin1Char('"')) cudzyslow = !cudzyslow;
    else if (!cudzyslow && z == znak) ++ile;
  }
  return ile;
}

QChar znajdzSeparator(const std::vector<Rekord>& r) {
  int srednik = 0, tab = 0, przecinek = 0, linie = 0;
  for (size_t i = 0; i < r.size() && linie < 40; ++i) {
    if (r[i].tekst.trimmed().isEmpty()) continue;
    ++linie;
    srednik += poza(r[i].tekst, QLatin1Char(';')) > 0;
    tab += poza(r[i].tekst, QLatin1Char('\t')) > 0;
    przecinek += poza(r[i].tekst, QLatin1Char(',')) > 0;
  }
  // Decimal commas stand outside quotes in a ";" file: a ";" on most lines decides.
  if (srednik * 2 >= linie && srednik > 0) return QLatin1Char(';');
  if (tab * 2 >= linie && tab > 0) return QLatin1Char('\t');
  if (przecinek > 0) return QLatin1Char(',');
  return QLatin1Char(';');
}

QString znormalizuj(QString t) {
  t = t.trimmed().toLower();
  t.remove(QLatin1Char('#'));
  t.remove(QLatin1Char(':'));
  return t.simplified();
}

// The column whose name fits best: an earlier name in the list is a better fit.
int kolumna(const QStringList& naglowek, std::initializer_list<const char*> nazwy,
            bool dokladnie = false) {
  for (const char* n : nazwy) {
    const QString wzor = QString::fromUtf8(n);
    for (int i = 0; i < naglowek.size(); ++i) {
      const QString k = znormalizuj(naglowek[i]);
      if (k == wzor || (!dokladnie && k.startsWith(wzor))) return i;
    }
  }
  return -1;
}

MapowanieCsv zNaglowka(const QStringList& h) {
  MapowanieCsv m;
  m.data = kolumna(h, {"data operacji", "data transakcji", "data", "date", "data księgowania",
                       "data waluty"});
  m.kwota = kolumna(h, {"kwota operacji", "kwota transakcji", "kwota", "amount", "wartość"});
  m.przychod = kolumna(h, {"uznania", "wpływy", "przychód", "przychody", "wpłata", "credit"});
  m.wydatek =
      kolumna(h, {"obciążenia", "wydatki", "wydatek", "wypływy", "wypłata", "debit"});
  m.opis = kolumna(h, {"opis operacji", "tytuł operacji", "tytuł", "opis", "szczegóły",
                       "description", "title", "memo"});
  m.kontrahent = kolumna(h, {"nadawca / odbiorca", "nadawca/odbiorca", "kontrahent",
                             "nazwa kontrahenta", "dane kontrahenta", "odbiorca", "nadawca",
                             "payee", "counterparty"});
  m.rachunek = kolumna(h, {"rachunek kontrahenta", "konto kontrahenta", "numer rachunku",
                           "nr rachunku", "rachunek", "account"});
  m.idBanku = kolumna(h, {"numer referencyjny", "identyfikator", "referencja", "reference",
                          "id"}, true);
  if (m.kwota >= 0) m.przychod = m.wydatek = -1;
  return m;
}

bool mozeData(const QString& t) { return CzytajDate(t).isValid(); }
bool mozeKwota(const QString& t) {
  const QString s = t.trimmed();
  return !s.isEmpty() && (s.contains(QLatin1Char(',')) || s.contains(QLatin1Char('.'))) &&
         CzytajKwote(s).has_value();
}

// A table without a header: the first line with a date and an amount shows the columns.
MapowanieCsv zTresci(const std::vector<Rekord>& r, QChar sep, int* pierwszy) {
  MapowanieCsv m;
  for (size_t i = 0; i < r.size() && i < 60; ++i) {
    const QStringList p = PolaCsv(r[i].tekst, sep);
    int data = -1, kwota = -1, opis = -1;
    qsizetype najdluzszy = 0;
    for (int k = 0; k < p.size(); ++k) {
      if (data < 0 && mozeData(p[k])) data = k;
      else if (kwota < 0 && mozeKwota(p[k])) kwota = k;
      else if (p[k].trimmed().size() > najdluzszy) {
        najdluzszy = p[k].trimmed().size();
        opis = k;
      }
    }
    if (data >= 0 && kwota >= 0) {
      m.data = data;
      m.kwota = kwota;
      m.opis = opis;
      *pierwszy = int(i);
      return m;
    }
  }
  return m;
}

int najwiekszaKolumna(const MapowanieCsv& m) {
  return std::max({m.data, m.kwota, m.przychod, m.wydatek, m.opis, m.kontrahent, m.rachunek,
                   m.idBanku});
}

QString pole(const QStringList& p, int k) { return k >= 0 && k < p.size() ? p[k].trimmed() : QString(); }

// The mapping in force and the index of the first record of data.
MapowanieCsv ustal(const std::vector<Rekord>& r, const MapowanieCsv& dana, QChar sep,
                   int* pierwszy) {
  *pierwszy = 0;
  if (dana.naglowek >= 0) {
    *pierwszy = dana.naglowek + 1;
    return dana;
  }
  for (size_t i = 0; i < r.size() && i < 60; ++i) {
    const MapowanieCsv m = zNaglowka(PolaCsv(r[i].tekst, sep));
    if (m.data >= 0 && (m.kwota >= 0 || m.przychod >= 0 || m.wydatek >= 0)) {
      *pierwszy = int(i) + 1;
      MapowanieCsv wynik = dana.pusta() ? m : dana;
      wynik.naglowek = int(i);
      return wynik;
    }
  }
  if (!dana.pusta()) return dana;
  return zTresci(r, sep, pierwszy);
}
}  // namespace

QStringList PolaCsv(const QString& linia, QChar separator) {
  QStringList p;
  QString biezace;
  bool cudzyslow = false;
  for (qsizetype i = 0; i < linia.size(); ++i) {
    const QChar z = linia[i];
    if (cudzyslow) {
      if (z == QLatin1Char('"')) {
        if (i + 1 < linia.size() && linia[i + 1] == QLatin1Char('"')) {
          biezace.append(z);
          ++i;
        } else {
          cudzyslow = false;
        }
      } else {
        biezace.append(z);
      }
    } else if (z == QLatin1Char('"')) {
      cudzyslow = true;
    } else if (z == separator) {
      p << biezace;
      biezace.clear();
    } else {
      biezace.append(z);
    }
  }
  p << biezace;
  return p;
}

PodgladCsv PodejrzyjCsv(const QString& tekst, const MapowanieCsv& mapowanie) {
  PodgladCsv w;
  const std::vector<Rekord> r = rekordy(tekst);
  w.separator = mapowanie.separator.isNull() ? znajdzSeparator(r) : mapowanie.separator;
  for (size_t i = 0; i < r.size() && i < 30; ++i) w.wiersze.push_back(PolaCsv(r[i].tekst, w.separator));
  int pierwszy = 0;
  w.mapowanie = ustal(r, mapowanie, w.separator, &pierwszy);
  w.mapowanie.separator = w.separator;
  if (w.mapowanie.naglowek < 0) w.mapowanie.naglowek = pierwszy - 1;
  return w;
}

std::optional<Wyciag> CzytajCsv(const QString& tekst, const MapowanieCsv& mapowanie,
                                BladWyciagu* blad) {
  auto porazka = [&](BladImportu r, int wiersz, const QString& f = {}) {
    if (blad) *blad = {r, wiersz, f};
    return std::optional<Wyciag>();
  };
  const std::vector<Rekord> r = rekordy(tekst);
  bool cos = false;
  for (const Rekord& k : r) cos = cos || !k.tekst.trimmed().isEmpty();
  if (!cos) return porazka(BladImportu::Pusty, 0);
  const QChar sep = mapowanie.separator.isNull() ? znajdzSeparator(r) : mapowanie.separator;
  int pierwszy = 0;
  const MapowanieCsv m = ustal(r, mapowanie, sep, &pierwszy);
  if (m.data < 0 || (m.kwota < 0 && m.przychod < 0 && m.wydatek < 0))
    return porazka(BladImportu::BrakKolumn, 0);
  const int potrzebne = najwiekszaKolumna(m);
  Wyciag w;
  // The lines above the table often name the account: a 26-digit number among their fields.
  for (int i = 0; i < std::max(0, m.naglowek) && w.rachunek.isEmpty(); ++i)
    for (const QString& f : PolaCsv(r[size_t(i)].tekst, sep))
      if (CyfryRachunku(f).size() == 26 && f.count(QLatin1Char('.')) == 0)
        w.rachunek = CyfryRachunku(f);
  w.pozycje.reserve(r.size());
  for (size_t i = size_t(pierwszy); i < r.size(); ++i) {
    const Rekord& k = r[i];
    if (k.tekst.trimmed().isEmpty()) continue;
    const QStringList p = PolaCsv(k.tekst, sep);
    const QString data = pole(p, m.data);
    // Lines of text under the table (closing balance, notes) have no date.
    const bool tekstowa = data.isEmpty() || !data[0].isDigit();
    if (p.size() <= potrzebne) {
      if (tekstowa && !p.value(0).trimmed().isEmpty() && !p.value(0).trimmed()[0].isDigit())
        continue;
      return porazka(BladImportu::ZaMaloKolumn, k.wiersz, QString::number(p.size()));
    }
    if (tekstowa) continue;
    PozycjaWyciagu poz;
    poz.wiersz = k.wiersz;
    poz.data = CzytajDate(data);
    if (!poz.data.isValid()) return porazka(BladImportu::Data, k.wiersz, data);
    if (m.kwota >= 0) {
      const auto kw = CzytajKwote(pole(p, m.kwota));
      if (!kw) return porazka(BladImportu::Kwota, k.wiersz, pole(p, m.kwota));
      poz.grosze = *kw;
    } else {
      const QString przychod = pole(p, m.przychod), wydatek = pole(p, m.wydatek);
      if (przychod.isEmpty() && wydatek.isEmpty())
        return porazka(BladImportu::Kwota, k.wiersz, QString());
      if (!przychod.isEmpty()) {
        const auto kw = CzytajKwote(przychod);
        if (!kw) return porazka(BladImportu::Kwota, k.wiersz, przychod);
        poz.grosze += std::abs(*kw);
      }
      if (!wydatek.isEmpty()) {
        const auto kw = CzytajKwote(wydatek);
        if (!kw) return porazka(BladImportu::Kwota, k.wiersz, wydatek);
        poz.grosze -= std::abs(*kw);
      }
    }
    poz.opis = pole(p, m.opis).simplified();
    poz.kontrahent = pole(p, m.kontrahent).simplified();
    poz.rachunek = CyfryRachunku(pole(p, m.rachunek));
    poz.idBanku = pole(p, m.idBanku);
    w.pozycje.push_back(std::move(poz));
  }
  return w;
}
