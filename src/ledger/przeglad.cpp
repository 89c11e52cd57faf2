#include "ledger/przeglad.h"

#include <sqlcipher/sqlite3.h>

#include <QDate>
#include <QHashFunctions>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <numeric>

#include "store/baza.h"
#include "store/odczyt.h"
#include "store/porzadek.h"
#include "store/session.h"
#include "store/tekst.h"

QString TabelaPrzegladu(RodzajPrzegladu rodzaj, int tryb) {
  if (rodzaj == RodzajPrzegladu::Transfery)
    return tryb == 2 ? QStringLiteral("wewnetrzne") : QStringLiteral("zaplanowanewewnetrzne");
  return tryb == 2 ? QStringLiteral("transakcje") : QStringLiteral("zaplanowane");
}

QString ZapytaniePrzegladu(RodzajPrzegladu rodzaj, int tryb, const QString& fragment,
                           const QString& warunekOkresu) {
  const QString t = TabelaPrzegladu(rodzaj, tryb);
  if (rodzaj == RodzajPrzegladu::Transfery)
    return QStringLiteral(
               "SELECT %1.id AS id, %1.data AS data, %1.kwota AS kwota, %1.opis AS opis, "
               "konta.nazwa AS zkonta, kontaprim.nazwa AS nakonto, konta.id AS numerzkonta, "
               "kontaprim.id AS numernakonto, konta.rodzaj AS rodzajzkonta, kontaprim.rodzaj AS "
               "rodzajnakonto FROM %1,konta,konta AS kontaprim WHERE konta.id=%1.zkonta AND "
               "kontaprim.id=%1.nakonto ")
               .arg(t) +
           fragment + warunekOkresu + QStringLiteral("ORDER BY %1.data DESC,%1.id DESC").arg(t);
  return QStringLiteral(
             "SELECT %1.id AS id, %1.data AS data, %1.przychod AS przychod, %1.wydatek AS "
             "wydatek, %1.opis AS opis, kategorie.nazwa AS kategoria, kontrahent.skrocona AS "
             "kontrahent, konta.nazwa AS konto FROM ((%1 INNER JOIN konta ON %1.konto = konta.id) "
             "INNER JOIN kategorie ON (kategorie.rodzaj = %1.rodzaj) AND (%1.kategoria = "
             "kategorie.identyfikator)) LEFT JOIN kontrahent ON %1.kontrahent = kontrahent.id "
             "WHERE 1=1 ")
             .arg(t) +
         fragment + warunekOkresu + QLatin1Char(' ') +
         QStringLiteral("ORDER BY %1.data DESC,%1.id DESC").arg(t);
}

QString ZapytanieCalegoPrzegladu(RodzajPrzegladu rodzaj, int tryb, const QString& fragment,
                                 const QString& warunekOkresu) {
  const QString t = TabelaPrzegladu(rodzaj, tryb);
  QString sql = ZapytaniePrzegladu(rodzaj, tryb, fragment, warunekOkresu);
  sql.truncate(sql.lastIndexOf(QStringLiteral("ORDER BY ")));
  // The table is read straight through, never through one of its indexes.
  const QString z = rodzaj == RodzajPrzegladu::Transfery ? QStringLiteral("FROM %1,")
                                                         : QStringLiteral("((%1 INNER");
  const QString na = rodzaj == RodzajPrzegladu::Transfery
                         ? QStringLiteral("FROM %1 NOT INDEXED,")
                         : QStringLiteral("((%1 NOT INDEXED INNER");
  sql.replace(sql.indexOf(z.arg(t)), z.arg(t).size(), na.arg(t));
  return sql;
}

void DanePrzegladu::UporzadkujOdNajnowszych() {
  std::sort(wiersze_.begin(), wiersze_.end(),
            [](const WierszPrzegladu& a, const WierszPrzegladu& b) {
              return a.data != b.data ? a.data > b.data : a.id > b.id;
            });
  kolejnosc_.clear();
}

int DanePrzegladu::LiczbaKolumn() const {
  return rodzaj_ == RodzajPrzegladu::Transfery ? int(KolumnyTransferow::Ile)
                                               : int(KolumnyTransakcji::Ile);
}

bool DanePrzegladu::KolumnaKwoty(int kolumna) const {
  if (rodzaj_ == RodzajPrzegladu::Transfery) return kolumna == KolumnyTransferow::Kwota;
  return kolumna == KolumnyTransakcji::Przychod || kolumna == KolumnyTransakcji::Wydatek;
}

void DanePrzegladu::Wyczysc() {
  wiersze_.clear();
  wiersze_.shrink_to_fit();
  kolejnosc_.clear();
  kolumnaSortu_ = -1;
  suma1_ = suma2_ = 0;
  pula_.clear();
  poczatki_.assign(1, 0);
  szuflady_.clear();
  rangi_.clear();
}

namespace {

// A date column as the store keeps it, "YYYY-MM-DD" (a time behind it is ignored), as a Julian
// day; anything else is read by Qt, and what isn't a date gives 0.
qint32 dzienZTekstu(const unsigned char* t, int n) {
  auto cyfry = [t](int od, int ile) {
    int v = 0;
    for (int i = od; i < od + ile; ++i) {
      if (t[i] < '0' || t[i] > '9') return -1;
      v = v * 10 + (t[i] - '0');
    }
    return v;
  };
  if (n >= 10 && t[4] == '-' && t[7] == '-') {
    const int r = cyfry(0, 4), m = cyfry(5, 2), d = cyfry(8, 2);
    if (r >= 0 && m >= 0 && d >= 0) {
      const QDate data(r, m, d);
      if (data.isValid()) return qint32(data.toJulianDay());
    }
  }
  const QDate data = QDate::fromString(
      QString::fromUtf8(reinterpret_cast<const char*>(t), n).left(10), Qt::ISODate);
  return data.isValid() ? qint32(data.toJulianDay()) : 0;
}

// Amounts are kept as whole cents in a real column: the nearest cent is the exact value.
qint64 groszeKolumny(sqlite3_stmt* st, int i) {
  if (i < 0 || sqlite3_column_type(st, i) == SQLITE_NULL) return 0;
  const double v = sqlite3_column_double(st, i);
  return std::isfinite(v) ? qint64(std::llround(v * 100.0)) : 0;
}

int kolumna(sqlite3_stmt* st, const char* nazwa) {
  for (int i = 0; i < sqlite3_column_count(st); ++i)
    if (qstricmp(sqlite3_column_name(st, i), nazwa) == 0) return i;
  return -1;
}

}  // namespace

qint32 DanePrzegladu::zapamietaj(const char* tekst, int dlugosc) {
  if ((poczatki_.size() - 1) * 2 + 2 > szuflady_.size()) {
    // Grow the hash to keep it at most half full, and put every text back in.
    szuflady_.assign(std::max<size_t>(1024, szuflady_.size() * 2), -1);
    const size_t maska = szuflady_.size() - 1;
    for (size_t k = 0; k + 1 < poczatki_.size(); ++k) {
      size_t s =
          qHashBits(pula_.constData() + poczatki_[k], poczatki_[k + 1] - poczatki_[k]) & maska;
      while (szuflady_[s] >= 0) s = (s + 1) & maska;
      szuflady_[s] = qint32(k);
    }
  }
  const size_t maska = szuflady_.size() - 1;
  size_t s = qHashBits(tekst, size_t(dlugosc)) & maska;
  for (;; s = (s + 1) & maska) {
    const qint32 k = szuflady_[s];
    if (k < 0) break;
    const quint32 od = poczatki_[size_t(k)], dl = poczatki_[size_t(k) + 1] - od;
    if (dl == quint32(dlugosc) && std::memcmp(pula_.constData() + od, tekst, dl) == 0) return k;
  }
  const qint32 nowy = qint32(poczatki_.size() - 1);
  pula_.append(tekst, dlugosc);
  poczatki_.push_back(quint32(pula_.size()));
  szuflady_[s] = nowy;
  return nowy;
}

bool DanePrzegladu::Wczytaj(const QString& jetSql, const std::function<void(qint64)>& postep) {
  Wyczysc();
  if (!OtworzBaze()) return false;
  OdczytJet odczyt(jetSql);
  if (!odczyt.Ok()) return false;
  sqlite3_stmt* st = odczyt.Polecenie();
  const bool transfery = rodzaj_ == RodzajPrzegladu::Transfery;
  const int kId = kolumna(st, "id"), kData = kolumna(st, "data");
  const int k1 = kolumna(st, transfery ? "kwota" : "przychod");
  const int k2 = transfery ? -1 : kolumna(st, "wydatek");
  const int kTekst[4] = {
      kolumna(st, transfery ? "zkonta" : "kategoria"), kolumna(st, transfery ? "nakonto" : "konto"),
      kolumna(st, transfery ? "opis" : "kontrahent"), transfery ? -1 : kolumna(st, "opis")};
  while (odczyt.Krok()) {
    WierszPrzegladu w;
    w.id = kId >= 0 ? sqlite3_column_int64(st, kId) : 0;
    if (kData >= 0 && sqlite3_column_type(st, kData) != SQLITE_NULL)
      w.data = dzienZTekstu(sqlite3_column_text(st, kData), sqlite3_column_bytes(st, kData));
    w.kwota1 = groszeKolumny(st, k1);
    w.kwota2 = groszeKolumny(st, k2);
    for (int i = 0; i < 4; ++i) {
      const int k = kTekst[i];
      if (k < 0 || sqlite3_column_type(st, k) == SQLITE_NULL) continue;
      const auto* t = reinterpret_cast<const char*>(sqlite3_column_text(st, k));
      w.tekst[i] = zapamietaj(t, sqlite3_column_bytes(st, k));
    }
    suma1_ += w.kwota1;
    suma2_ += w.kwota2;
    wiersze_.push_back(w);
    if (postep && (wiersze_.size() & 4095) == 0) postep(qint64(wiersze_.size()));
  }
  const bool ok = odczyt.Caly();
  if (!ok) Wyczysc();
  szuflady_.clear();
  szuflady_.shrink_to_fit();
  if (postep) postep(qint64(wiersze_.size()));
  return ok;
}

const WierszPrzegladu& DanePrzegladu::Wiersz(qsizetype pozycja) const {
  return wiersze_[kolejnosc_.empty() ? size_t(pozycja) : size_t(kolejnosc_[size_t(pozycja)])];
}

QString DanePrzegladu::Tekst(qint32 indeks) const {
  if (indeks < 0 || size_t(indeks) + 1 >= poczatki_.size()) return QString();
  const quint32 od = poczatki_[size_t(indeks)];
  return QString::fromUtf8(pula_.constData() + od, qsizetype(poczatki_[size_t(indeks) + 1] - od));
}

QString DanePrzegladu::Komorka(qsizetype pozycja, int kolumna) const {
  const WierszPrzegladu& w = Wiersz(pozycja);
  if (kolumna == 0)
    return w.data ? FormatDaty(QDate::fromJulianDay(w.data), sesja.pubFormatDaty_ddpmmmpyy)
                  : QString();
  if (kolumna == 1) return FormatKwoty(double(w.kwota1) / 100.0);
  if (rodzaj_ == RodzajPrzegladu::Transakcje) {
    if (kolumna == 2) return FormatKwoty(double(w.kwota2) / 100.0);
    return kolumna >= 3 && kolumna <= 6 ? Tekst(w.tekst[kolumna - 3]) : QString();
  }
  return kolumna >= 2 && kolumna <= 4 ? Tekst(w.tekst[kolumna - 2]) : QString();
}

void DanePrzegladu::ustalRangi() {
  if (!rangi_.empty() || poczatki_.size() < 2) return;
  const size_t n = poczatki_.size() - 1;
  std::vector<qint32> k(n);
  std::iota(k.begin(), k.end(), 0);
  const auto* p = reinterpret_cast<const unsigned char*>(pula_.constData());
  auto porownaj = [&](qint32 a, qint32 b) {
    return PorownajPolskoUtf8(
        p + poczatki_[size_t(a)], int(poczatki_[size_t(a) + 1] - poczatki_[size_t(a)]),
        p + poczatki_[size_t(b)], int(poczatki_[size_t(b) + 1] - poczatki_[size_t(b)]));
  };
  std::sort(k.begin(), k.end(), [&](qint32 a, qint32 b) { return porownaj(a, b) < 0; });
  // Texts that compare equal (case aside) share a rank.
  rangi_.assign(n, 0);
  qint32 ranga = 0;
  for (size_t i = 0; i < n; ++i) {
    if (i > 0 && porownaj(k[i - 1], k[i]) != 0) ++ranga;
    rangi_[size_t(k[i])] = ranga;
  }
}

void DanePrzegladu::Sortuj(int kolumna, bool rosnaco) {
  if (kolumna < 0 || kolumna >= LiczbaKolumn()) return;
  const size_t n = wiersze_.size();
  const bool transfery = rodzaj_ == RodzajPrzegladu::Transfery;
  const int pierwszaTekstowa = transfery ? 2 : 3;
  if (kolumna >= pierwszaTekstowa) ustalRangi();
  // The key of each row; rows of one key keep the statement's order in either direction.
  std::vector<std::pair<qint64, quint32>> klucze(n);
  for (size_t i = 0; i < n; ++i) {
    const WierszPrzegladu& w = wiersze_[i];
    qint64 k;
    if (kolumna == 0)
      k = w.data;
    else if (kolumna == 1)
      k = w.kwota1;
    else if (kolumna == 2 && !transfery)
      k = w.kwota2;
    else {
      const qint32 t = w.tekst[kolumna - pierwszaTekstowa];
      k = t < 0 ? -1 : rangi_[size_t(t)];
    }
    klucze[i] = {rosnaco ? k : -k, quint32(i)};
  }
  std::sort(klucze.begin(), klucze.end());
  kolejnosc_.resize(n);
  for (size_t i = 0; i < n; ++i) kolejnosc_[i] = klucze[i].second;
  kolumnaSortu_ = kolumna;
}
