#include "ledger/okresowe.h"

#include <sqlcipher/sqlite3.h>

#include <algorithm>
#include <cstdio>
#include <set>

#include "ledger/transakcje.h"
#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/dzis.h"
#include "store/kwota.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/zmiany.h"

namespace {

QString iso(const QDate& d) { return d.toString(Qt::ISODate); }
QDate zIso(const QString& t) { return QDate::fromString(t.left(10), Qt::ISODate); }

int miesiaceKroku(int czestotliwosc) {
  switch (czestotliwosc) {
    case CoMiesiac:
      return 1;
    case CoKwartal:
      return 3;
    case CoPolRoku:
      return 6;
    case CoRok:
      return 12;
    default:
      return 0;
  }
}

bool weekend(const QDate& d) { return d.dayOfWeek() >= 6; }

// A statement with bound values on the program's connection: the generation writes thousands of
// rows, and a prepared statement with its values bound stores every text exactly.
class Surowe {
 public:
  explicit Surowe(const char* sql) {
    if (sqlite3_prepare_v2(pubBaza().Uchwyt(), sql, -1, &st_, nullptr) != SQLITE_OK) {
      ZapiszLog(QStringLiteral("recurring rules: prepare failed: %1")
                    .arg(QString::fromUtf8(sqlite3_errmsg(pubBaza().Uchwyt()))));
      st_ = nullptr;
    }
  }
  ~Surowe() { sqlite3_finalize(st_); }
  Surowe(const Surowe&) = delete;
  Surowe& operator=(const Surowe&) = delete;

  Surowe& operator()(int i, qint64 v) {
    sqlite3_bind_int64(st_, i, v);
    return *this;
  }
  Surowe& operator()(int i, double v) {
    sqlite3_bind_double(st_, i, v);
    return *this;
  }
  Surowe& operator()(int i, const QString& v) { return (*this)(i, v.toUtf8()); }
  Surowe& operator()(int i, const QByteArray& v) {
    sqlite3_bind_text(st_, i, v.constData(), int(v.size()), SQLITE_TRANSIENT);
    return *this;
  }
  // A day as the store keeps it (YYYY-MM-DD), written without a detour through QString.
  Surowe& operator()(int i, const QDate& d) {
    char t[16];
    const int n = std::snprintf(t, sizeof t, "%04d-%02d-%02d", d.year(), d.month(), d.day());
    sqlite3_bind_text(st_, i, t, n, SQLITE_TRANSIENT);
    return *this;
  }
  // Makes a read ready to be bound and stepped again.
  Surowe& Od() {
    sqlite3_reset(st_);
    sqlite3_clear_bindings(st_);
    return *this;
  }
  // Runs a write; false (logged) when it fails.
  bool Wykonaj() {
    if (!st_) return false;
    const int kod = sqlite3_step(st_);
    sqlite3_reset(st_);
    sqlite3_clear_bindings(st_);
    if (kod == SQLITE_DONE) return true;
    ZapiszLog(QStringLiteral("recurring rules: write failed: %1")
                  .arg(QString::fromUtf8(sqlite3_errmsg(pubBaza().Uchwyt()))));
    return false;
  }
  bool Wiersz() { return st_ && sqlite3_step(st_) == SQLITE_ROW; }
  qint64 Liczba(int k) const { return sqlite3_column_int64(st_, k); }
  QString Tekst(int k) const {
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st_, k)));
  }
  bool Ok() const { return st_ != nullptr; }

 private:
  sqlite3_stmt* st_ = nullptr;
};

RegulaOkresowa regulaZ(const Rekordy& rs) {
  RegulaOkresowa r;
  r.id = rs.Pole(QStringLiteral("id")).toLongLong();
  r.rodzaj = rs.Pole(QStringLiteral("rodzaj")).toInt();
  r.konto = rs.Pole(QStringLiteral("konto")).toLongLong();
  r.naKonto = rs.Pole(QStringLiteral("nakonto")).toLongLong();
  r.kategoria = rs.Tekst(QStringLiteral("kategoria"));
  r.kontrahent = rs.Pole(QStringLiteral("kontrahent")).toLongLong();
  r.opis = rs.Tekst(QStringLiteral("opis"));
  r.kwota = PoleRekordu(rs, QStringLiteral("kwota"));
  r.od = zIso(rs.Tekst(QStringLiteral("oddaty")));
  r.do_ = zIso(rs.Tekst(QStringLiteral("dodaty")));
  r.czestotliwosc = rs.Pole(QStringLiteral("czestotliwosc")).toInt();
  r.weekend = rs.Pole(QStringLiteral("weekend")).toInt();
  r.wygenerowanoDo = zIso(rs.Tekst(QStringLiteral("wygenerowanodo")));
  return r;
}

// The accounts (and for an entry the category) of the rule still exist.
bool maPodstawy(const RegulaOkresowa& r) {
  if (PoliczIle(QStringLiteral("SELECT COUNT(*) AS ile FROM konta WHERE id=") +
                QString::number(r.konto)) == 0)
    return false;
  if (r.rodzaj == 3)
    return r.naKonto != r.konto &&
           PoliczIle(QStringLiteral("SELECT COUNT(*) AS ile FROM konta WHERE id=") +
                     QString::number(r.naKonto)) > 0;
  return PoliczIle(QStringLiteral("SELECT COUNT(*) AS ile FROM kategorie WHERE rodzaj=") +
                   QString::number(r.rodzaj) + QStringLiteral(" AND identyfikator=") +
                   SqlTekst(r.kategoria)) > 0;
}

// The statements of one generation, prepared once and bound anew for every row: a year of daily
// rules writes tens of thousands of rows.
struct Zapisy {
  Surowe dni{"SELECT data FROM okresowedni WHERE okresowa=? AND data>=? AND data<=?"};
  Surowe wpis{
      "INSERT INTO zaplanowane (data,rodzaj,przychod,wydatek,opis,kategoria,konto,kontrahent) "
      "VALUES (?,?,?,?,?,?,?,?)"};
  Surowe przelew{
      "INSERT INTO zaplanowanewewnetrzne (data,kwota,opis,zkonta,nakonto) VALUES (?,?,?,?,?)"};
  Surowe dzien{"INSERT INTO okresowedni (okresowa,data,wiersz) VALUES (?,?,?)"};
  Surowe znacznik{"UPDATE okresowe SET wygenerowanodo=? WHERE id=?"};
};

// Plans the rule's days after its last planned one up to the horizon; inside a transaction. The
// rule's days already planned in that stretch are read once, not asked for day by day.
bool generujRegule(Zapisy& z, const RegulaOkresowa& r, const QDate& granica, qint64& wiersze) {
  QDate koniec = granica;
  if (r.do_.isValid()) koniec = std::min(koniec, r.do_);
  QDate od = r.od;
  if (r.wygenerowanoDo.isValid()) od = std::max(od, r.wygenerowanoDo.addDays(1));
  if (od > koniec || !maPodstawy(r)) return true;

  std::set<QDate> zaplanowane;
  z.dni.Od()(1, r.id)(2, od)(3, koniec);
  while (z.dni.Wiersz()) zaplanowane.insert(zIso(z.dni.Tekst(0)));

  const bool przelew = r.rodzaj == 3;
  const double kwota = ZaokraglijDoGroszy(r.kwota);
  // Descriptions are stored as the editors store theirs, with two trailing blanks.
  const QByteArray opis = (r.opis + QStringLiteral("  ")).toUtf8();
  const QByteArray kategoria = r.kategoria.toUtf8();
  sqlite3* db = pubBaza().Uchwyt();
  for (const Termin& t : TerminyReguly(r, od, koniec)) {
    if (zaplanowane.count(t.dzien)) continue;
    const bool ok =
        przelew ? z.przelew(1, t.data)(2, kwota)(3, opis)(4, r.konto)(5, r.naKonto).Wykonaj()
                : z.wpis(1, t.data)(2, qint64(r.rodzaj))(3, r.rodzaj == 1 ? kwota : 0.0)(
                       4, r.rodzaj == 1 ? 0.0 : kwota)(5, opis)(6, kategoria)(7, r.konto)(
                       8, r.kontrahent)
                      .Wykonaj();
    if (!ok || !z.dzien(1, r.id)(2, t.dzien)(3, qint64(sqlite3_last_insert_rowid(db))).Wykonaj())
      return false;
    ++wiersze;
  }
  return z.znacznik(1, koniec)(2, r.id).Wykonaj();
}

std::vector<RegulaOkresowa> wszystkieReguly() {
  std::vector<RegulaOkresowa> w;
  for (Rekordy rs = pubBaza().Czytaj(QStringLiteral("SELECT * FROM okresowe")); !rs.Eof();
       rs.MoveNext())
    w.push_back(regulaZ(rs));
  return w;
}

bool generuj(const std::vector<RegulaOkresowa>& reguly, const QDate& granica, qint64& wiersze) {
  Zapisy z;
  for (const RegulaOkresowa& r : reguly)
    if (!generujRegule(z, r, granica, wiersze)) return false;
  return true;
}

// The planned rows of the rule from the day on that still wait, and their days, go; a day whose
// row was realised or deleted by hand stays planned, so that it never comes back.
bool usunOczekujace(qint64 id, int rodzaj, const QDate& od) {
  const bool przelew = rodzaj == 3;
  std::vector<std::pair<qint64, QString>> doUsuniecia;
  {
    Surowe s(przelew ? "SELECT d.wiersz, d.data FROM okresowedni AS d JOIN zaplanowanewewnetrzne "
                       "AS z ON z.id=d.wiersz WHERE d.okresowa=? AND d.data>=?"
                     : "SELECT d.wiersz, d.data FROM okresowedni AS d JOIN zaplanowane AS z ON "
                       "z.id=d.wiersz WHERE d.okresowa=? AND d.data>=?");
    s(1, id)(2, iso(od));
    while (s.Wiersz()) doUsuniecia.emplace_back(s.Liczba(0), s.Tekst(1));
  }
  Surowe wiersz(przelew ? "DELETE FROM zaplanowanewewnetrzne WHERE id=?"
                        : "DELETE FROM zaplanowane WHERE id=?");
  Surowe dzien("DELETE FROM okresowedni WHERE okresowa=? AND data=?");
  for (const auto& [w, d] : doUsuniecia)
    if (!wiersz(1, w).Wykonaj() || !dzien(1, id)(2, d).Wykonaj()) return false;
  return true;
}

// How far apart a frequency's days stand at most, in days.
int krokDni(int czestotliwosc) {
  switch (czestotliwosc) {
    case CoTydzien:
      return 7;
    default:
      return 31 * miesiaceKroku(czestotliwosc);
  }
}

// The new day that takes the place of a day the user already took care of: a weekly rule's day
// of the same week (Monday to Sunday), a monthly rule's day of the same month, and for the longer
// periods the nearest day. Null when there is none.
QDate tenSamTermin(const RegulaOkresowa& r, const QDate& x) {
  const int krok = krokDni(r.czestotliwosc);
  QDate wynik;
  for (const Termin& t : TerminyReguly(r, x.addDays(-krok), x.addDays(krok))) {
    const QDate& d = t.dzien;
    if (r.czestotliwosc == CoTydzien) {
      if (d.addDays(1 - d.dayOfWeek()) == x.addDays(1 - x.dayOfWeek())) return d;
    } else if (r.czestotliwosc == CoMiesiac) {
      if (d.year() == x.year() && d.month() == x.month()) return d;
    } else if (!wynik.isValid() || std::abs(d.daysTo(x)) < std::abs(wynik.daysTo(x))) {
      wynik = d;
    }
  }
  return r.czestotliwosc == CoTydzien || r.czestotliwosc == CoMiesiac ? QDate() : wynik;
}

// A rule moved to other days at the same frequency (a new first day): each day the rule already
// made that is not planned anew (its row is past, or the user realised or deleted it) marks the
// new day of the same week or month as planned, so that a week or month already paid or planned
// does not come twice. Runs after the rows still waiting from today went. Daily and weekday rules
// keep their days, which need nothing more.
bool zachowajZalatwione(const RegulaOkresowa& r, const QDate& dzis) {
  if (r.czestotliwosc == Codziennie || r.czestotliwosc == DniPowszednie) return true;
  std::vector<QDate> zalatwione;
  {
    Surowe s("SELECT data FROM okresowedni WHERE okresowa=? AND data>=?");
    s(1, r.id)(2, dzis.addDays(-krokDni(r.czestotliwosc)));
    while (s.Wiersz()) zalatwione.push_back(zIso(s.Tekst(0)));
  }
  Surowe oznacz("INSERT OR IGNORE INTO okresowedni (okresowa,data,wiersz) VALUES (?,?,0)");
  for (const QDate& x : zalatwione) {
    const QDate d = tenSamTermin(r, x);
    if (d.isValid() && d >= dzis && !oznacz(1, r.id)(2, d).Wykonaj()) return false;
  }
  return true;
}

void blad(const QString& tekst, const QString& tytul) {
  MyMsgbox(tekst, tytul, MsgOK, IkonaOstrzezenie);
}

const unsigned kZaplanowane = Tabele::Zaplanowane | Tabele::ZaplanowaneWewnetrzne | Tabele::Inne;

}  // namespace

QDate DzienReguly(const RegulaOkresowa& r, int k) {
  switch (r.czestotliwosc) {
    case Codziennie:
      return r.od.addDays(k);
    case DniPowszednie: {
      QDate d = r.od;
      while (weekend(d)) d = d.addDays(1);
      for (int i = 0; i < k; ++i) {
        d = d.addDays(1);
        while (weekend(d)) d = d.addDays(1);
      }
      return d;
    }
    case CoTydzien:
      return r.od.addDays(7 * qint64(k));
    default:
      // Always counted from the first day: the 31st comes back after a shorter month.
      return r.od.addMonths(k * miesiaceKroku(r.czestotliwosc));
  }
}

QDate PrzesunZWeekendu(const QDate& data, int sposob) {
  const int dzien = data.dayOfWeek();
  if (dzien < 6 || sposob == WeekendZostaw) return data;
  if (sposob == WeekendPiatek) return data.addDays(5 - dzien);
  return data.addDays(8 - dzien);
}

std::vector<Termin> TerminyReguly(const RegulaOkresowa& r, const QDate& od, const QDate& do_) {
  std::vector<Termin> w;
  if (!r.od.isValid()) return w;
  const QDate a = std::max(od, r.od);
  const QDate b = r.do_.isValid() ? std::min(do_, r.do_) : do_;
  if (!a.isValid() || !b.isValid() || a > b) return w;
  auto dodaj = [&](const QDate& d) { w.push_back({d, PrzesunZWeekendu(d, r.weekend)}); };
  switch (r.czestotliwosc) {
    case Codziennie:
    case CoTydzien: {
      const qint64 krok = r.czestotliwosc == Codziennie ? 1 : 7;
      qint64 k = (r.od.daysTo(a) + krok - 1) / krok;
      for (QDate d = r.od.addDays(k * krok); d <= b; d = r.od.addDays(++k * krok)) dodaj(d);
      break;
    }
    case DniPowszednie:
      for (QDate d = a; d <= b; d = d.addDays(1))
        if (!weekend(d)) w.push_back({d, d});
      break;
    default: {
      const int krok = miesiaceKroku(r.czestotliwosc);
      if (krok == 0) break;
      const int miesiace = (a.year() - r.od.year()) * 12 + a.month() - r.od.month();
      for (int k = std::max(0, miesiace / krok - 1);; ++k) {
        const QDate d = r.od.addMonths(k * krok);
        if (d > b) break;
        if (d >= a) dodaj(d);
      }
    }
  }
  return w;
}

std::vector<WierszOkresowej> ListaOkresowych(const QString& klucz) {
  OtworzBaze();
  QString sql = QStringLiteral(
      "SELECT okresowe.*, konta.nazwa AS nazwakonta, kontaprim.nazwa AS nazwanakonto, "
      "kategorie.nazwa AS nazwakategorii, kontrahent.skrocona AS nazwakontrahenta FROM "
      "(((okresowe LEFT JOIN konta ON okresowe.konto = konta.id) LEFT JOIN konta AS kontaprim ON "
      "okresowe.nakonto = kontaprim.id) LEFT JOIN kategorie ON (okresowe.rodzaj = "
      "kategorie.rodzaj AND okresowe.kategoria = kategorie.identyfikator)) LEFT JOIN kontrahent "
      "ON okresowe.kontrahent = kontrahent.id WHERE 1=1");
  if (!klucz.isEmpty()) {
    const QString k = SqlTekst(QLatin1Char('*') + klucz + QLatin1Char('*'));
    sql += QStringLiteral(
               " AND (okresowe.opis LIKE %1 OR konta.nazwa LIKE %1 OR kontaprim.nazwa "
               "LIKE %1 OR kategorie.nazwa LIKE %1 OR kontrahent.skrocona LIKE %1)")
               .arg(k);
  }
  sql += QStringLiteral(" ORDER BY okresowe.opis, okresowe.id");
  std::vector<WierszOkresowej> w;
  for (Rekordy rs = pubBaza().Czytaj(sql); !rs.Eof(); rs.MoveNext()) {
    WierszOkresowej o;
    o.regula = regulaZ(rs);
    o.konto = rs.Tekst(QStringLiteral("nazwakonta"));
    o.naKonto = rs.Tekst(QStringLiteral("nazwanakonto"));
    o.kategoria = rs.Tekst(QStringLiteral("nazwakategorii"));
    o.kontrahent = rs.Tekst(QStringLiteral("nazwakontrahenta"));
    w.push_back(std::move(o));
  }
  return w;
}

std::optional<RegulaOkresowa> CzytajOkresowa(qint64 id) {
  OtworzBaze();
  const Rekordy rs =
      pubBaza().Czytaj(QStringLiteral("SELECT * FROM okresowe WHERE id=") + QString::number(id));
  if (rs.Eof()) return std::nullopt;
  return regulaZ(rs);
}

bool ZapiszOkresowa(RegulaOkresowa r, qint64* id) {
  if (WGroszach(r.kwota) <= 0) {
    blad(Napis(QStringLiteral("frmEdycjaOkresowych30")),
         Napis(QStringLiteral("frmEdycjaOkresowych31")));
    return false;
  }
  if (r.konto == 0) {
    blad(Napis(QStringLiteral("frmEdycjaOkresowych32")),
         Napis(QStringLiteral("frmEdycjaOkresowych33")));
    return false;
  }
  if (r.rodzaj != 3 && r.kategoria.isEmpty()) {
    blad(Napis(QStringLiteral("frmEdycjaOkresowych34")),
         Napis(QStringLiteral("frmEdycjaOkresowych35")));
    return false;
  }
  if (r.rodzaj == 3 && r.naKonto == 0) {
    blad(Napis(QStringLiteral("frmEdycjaOkresowych36")),
         Napis(QStringLiteral("frmEdycjaOkresowych37")));
    return false;
  }
  if (r.rodzaj == 3 && r.naKonto == r.konto) {
    blad(Napis(QStringLiteral("frmEdycjaOkresowych38")),
         Napis(QStringLiteral("frmEdycjaOkresowych39")));
    return false;
  }
  if (r.do_.isValid() && r.do_ < r.od) {
    blad(Napis(QStringLiteral("frmEdycjaOkresowych40")),
         Napis(QStringLiteral("frmEdycjaOkresowych41")));
    return false;
  }
  if (r.rodzaj == 3) {
    r.kategoria.clear();
    r.kontrahent = 0;
  } else {
    r.naKonto = 0;
  }
  const QDate dzis = Dzis();
  const int horyzont = HoryzontOkresowych();
  Baza& b = pubBaza();
  const bool ok = OtworzBaze() && b.Transakcja([&] {
    const QString wartosci[] = {QString::number(r.rodzaj),
                                QString::number(r.konto),
                                QString::number(r.naKonto),
                                SqlTekst(r.kategoria),
                                QString::number(r.kontrahent),
                                SqlTekst(r.opis),
                                QString::number(ZaokraglijDoGroszy(r.kwota), 'f', 2),
                                SqlTekst(iso(r.od)),
                                SqlTekst(r.do_.isValid() ? iso(r.do_) : QString()),
                                QString::number(r.czestotliwosc),
                                QString::number(r.weekend)};
    const char* kolumny[] = {"rodzaj", "konto",  "nakonto", "kategoria",     "kontrahent", "opis",
                             "kwota",  "oddaty", "dodaty",  "czestotliwosc", "weekend"};
    if (r.id == 0) {
      QStringList k, v;
      for (int i = 0; i < 11; ++i) {
        k << QLatin1String(kolumny[i]);
        v << wartosci[i];
      }
      if (!b.Wykonaj(QStringLiteral("INSERT INTO okresowe (") + k.join(QLatin1Char(',')) +
                     QStringLiteral(") VALUES (") + v.join(QLatin1Char(',')) + QLatin1Char(')')))
        return false;
      r.id = b.OstatnieId();
    } else {
      const auto dawna = CzytajOkresowa(r.id);
      if (!dawna) return false;
      // The rule is planned anew from today: what still waits goes, the past stays.
      if (!usunOczekujace(r.id, dawna->rodzaj, dzis)) return false;
      QDate zrobione = dawna->wygenerowanoDo;
      if (zrobione.isValid()) zrobione = std::min(zrobione, dzis.addDays(-1));
      QStringList set;
      for (int i = 0; i < 11; ++i)
        set << QLatin1String(kolumny[i]) + QLatin1Char('=') + wartosci[i];
      set << QStringLiteral("wygenerowanodo=") +
                 SqlTekst(zrobione.isValid() ? iso(zrobione) : QString());
      if (!b.Wykonaj(QStringLiteral("UPDATE okresowe SET ") + set.join(QStringLiteral(", ")) +
                     QStringLiteral(" WHERE id=") + QString::number(r.id)))
        return false;
      if (dawna->czestotliwosc == r.czestotliwosc && dawna->od != r.od &&
          !zachowajZalatwione(r, dzis))
        return false;
    }
    qint64 wiersze = 0;
    return generuj(wszystkieReguly(), dzis.addDays(horyzont), wiersze);
  });
  if (!ok) {
    blad(Napis(QStringLiteral("frmEdycjaOkresowych42")),
         Napis(QStringLiteral("frmEdycjaOkresowych43")));
    return false;
  }
  if (id) *id = r.id;
  OglosZmiane(kZaplanowane);
  return true;
}

bool UsunOkresowaZPytaniem(qint64 id, const QString& opis) {
  const QString tytul = Napis(QStringLiteral("frmOkresowe19"));
  if (MyMsgbox(Napis(QStringLiteral("frmOkresowe20")) + QStringLiteral(" '") + opis +
                   QStringLiteral("' ?"),
               tytul, MsgTakNie, IkonaPytanie) != WynikTak)
    return false;
  const bool zWierszami =
      MyMsgbox(Napis(QStringLiteral("frmOkresowe21")), tytul, MsgTakNie, IkonaPytanie) == WynikTak;
  const auto r = CzytajOkresowa(id);
  if (!r) return false;
  Baza& b = pubBaza();
  const bool ok = b.Transakcja([&] {
    if (zWierszami && !usunOczekujace(id, r->rodzaj, Dzis())) return false;
    return b.Wykonaj(QStringLiteral("DELETE FROM okresowedni WHERE okresowa=") +
                     QString::number(id)) &&
           b.Wykonaj(QStringLiteral("DELETE FROM okresowe WHERE id=") + QString::number(id));
  });
  if (!ok) {
    blad(Napis(QStringLiteral("frmOkresowe22")), Napis(QStringLiteral("frmOkresowe23")));
    return false;
  }
  OglosZmiane(kZaplanowane);
  return true;
}

int HoryzontOkresowych() {
  OtworzBaze();
  const Rekordy rs = pubBaza().Czytaj(QStringLiteral("SELECT horyzontokresowych FROM setup"));
  const QVariant v = rs.Pole(0);
  return v.isNull() || v.toInt() <= 0 ? DomyslnyHoryzont : v.toInt();
}

bool UstawHoryzontOkresowych(int dni) {
  OtworzBaze();
  return bool(pubBaza().Wykonaj(QStringLiteral("UPDATE setup SET horyzontokresowych=") +
                                QString::number(std::clamp(dni, 1, 3660))));
}

WynikGenerowania GenerujOkresowe(const QDate& dzis, int horyzont) {
  WynikGenerowania w;
  if (!OtworzBaze()) return {false, 0};
  // Nothing to do is the common start: one read, no transaction.
  const QDate granica = dzis.addDays(horyzont);
  const std::vector<RegulaOkresowa> reguly = wszystkieReguly();
  const bool praca = std::any_of(reguly.begin(), reguly.end(), [&](const RegulaOkresowa& r) {
    const QDate koniec = r.do_.isValid() ? std::min(r.do_, granica) : granica;
    return !r.wygenerowanoDo.isValid() || r.wygenerowanoDo < koniec;
  });
  if (!praca) return w;
  w.ok = pubBaza().Transakcja([&] { return generuj(reguly, granica, w.wiersze); });
  if (!w.ok) {
    w.wiersze = 0;
    return w;
  }
  if (w.wiersze > 0) OglosZmiane(kZaplanowane);
  return w;
}

WynikGenerowania GenerujOkresowe() { return GenerujOkresowe(Dzis(), HoryzontOkresowych()); }

QString NazwaCzestotliwosci(int czestotliwosc) {
  switch (czestotliwosc) {
    case Codziennie:
      return Napis(QStringLiteral("frmEdycjaOkresowych10"));
    case DniPowszednie:
      return Napis(QStringLiteral("frmEdycjaOkresowych11"));
    case CoTydzien:
      return Napis(QStringLiteral("frmEdycjaOkresowych12"));
    case CoMiesiac:
      return Napis(QStringLiteral("frmEdycjaOkresowych13"));
    case CoKwartal:
      return Napis(QStringLiteral("frmEdycjaOkresowych14"));
    case CoPolRoku:
      return Napis(QStringLiteral("frmEdycjaOkresowych15"));
    case CoRok:
      return Napis(QStringLiteral("frmEdycjaOkresowych16"));
    default:
      return QString();
  }
}

QString OpisOkresuReguly(const RegulaOkresowa& r) {
  const QString maska =
      sesja.pubJezyk == 1 ? QStringLiteral("dd.MM.yyyy") : QStringLiteral("MM/dd/yyyy");
  QString t = Napis(QStringLiteral("frmOkresowe28")) + QLatin1Char(' ') + r.od.toString(maska);
  if (r.do_.isValid())
    return t + QLatin1Char(' ') + Napis(QStringLiteral("frmOkresowe33")) + QLatin1Char(' ') +
           r.do_.toString(maska);
  return t + QStringLiteral(", ") + Napis(QStringLiteral("frmOkresowe27"));
}
