#include "imports/import.h"

#include <sqlcipher/sqlite3.h>

#include <QHash>
#include <QSet>
#include <algorithm>
#include <map>

#include "store/baza.h"
#include "store/dziennik.h"
#include "store/zmiany.h"

namespace {
// A prepared statement on the program's connection, finalized on leaving.
class Polecenie {
 public:
  explicit Polecenie(const char* sql) {
    if (sqlite3_prepare_v2(pubBaza().Uchwyt(), sql, -1, &st_, nullptr) != SQLITE_OK) st_ = nullptr;
  }
  ~Polecenie() { sqlite3_finalize(st_); }
  Polecenie(const Polecenie&) = delete;
  Polecenie& operator=(const Polecenie&) = delete;
  bool ok() const { return st_ != nullptr; }
  Polecenie& wiaz(int i, qint64 v) {
    sqlite3_bind_int64(st_, i, v);
    return *this;
  }
  Polecenie& wiaz(int i, double v) {
    sqlite3_bind_double(st_, i, v);
    return *this;
  }
  Polecenie& wiaz(int i, const QString& v) {
    const QByteArray b = v.toUtf8();
    sqlite3_bind_text(st_, i, b.constData(), int(b.size()), SQLITE_TRANSIENT);
    return *this;
  }
  bool wiersz() { return st_ && sqlite3_step(st_) == SQLITE_ROW; }
  // Ready to run again with new values.
  void zeruj() {
    if (st_) sqlite3_reset(st_);
  }
  bool wykonaj() {
    const bool ok = st_ && sqlite3_step(st_) == SQLITE_DONE;
    if (st_) sqlite3_reset(st_);
    return ok;
  }
  qint64 liczba(int k) const { return sqlite3_column_int64(st_, k); }
  double ulamek(int k) const { return sqlite3_column_double(st_, k); }
  QString tekst(int k) const {
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st_, k)),
                             sqlite3_column_bytes(st_, k));
  }

 private:
  sqlite3_stmt* st_ = nullptr;
};

QString bladBazy() { return QString::fromUtf8(sqlite3_errmsg(pubBaza().Uchwyt())); }

qint64 grosze(double kwota) { return qRound64(kwota * 100.0); }

// Descriptions compared as the user reads them: case, blanks and punctuation aside.
QString klucz(const QString& t) {
  QString k;
  k.reserve(t.size());
  for (const QChar z : t.toLower())
    if (z.isLetterOrNumber()) k.append(z);
  return k;
}

bool opisyPasuja(const QString& a, const QString& b) {
  const QString ka = klucz(a), kb = klucz(b);
  if (ka.isEmpty() || kb.isEmpty()) return true;
  return ka == kb || ka.contains(kb) || kb.contains(ka);
}

// The word a description is known by: its first word of three letters or more.
QString slowo(const QString& opis) {
  QString w;
  for (const QChar z : opis.toLower()) {
    if (z.isLetter()) {
      w.append(z);
    } else {
      if (w.size() >= 3) return w;
      w.clear();
    }
  }
  return w.size() >= 3 ? w : QString();
}

struct Kontrahent {
  qint64 id;
  QString skrocona;
  QString nazwa;  // lower case, for matching
};

// The most frequent category of each key.
using Licznik = QHash<QString, QHash<QString, int>>;
QString najczestsza(const Licznik& l, const QString& k) {
  const auto it = l.constFind(k);
  if (it == l.constEnd()) return {};
  QString najlepsza;
  int ile = 0;
  for (auto j = it->constBegin(); j != it->constEnd(); ++j)
    if (j.value() > ile || (j.value() == ile && j.key() < najlepsza)) {
      ile = j.value();
      najlepsza = j.key();
    }
  return najlepsza;
}

// The short name of a new counterparty, as lists show it: the editor's sixteen characters,
// cut after a whole word where one fits (the full name is kept beside it).
QString krotkaNazwa(const QString& nazwa) {
  constexpr int kDlugosc = 16;
  if (nazwa.size() <= kDlugosc) return nazwa;
  const qsizetype spacja = nazwa.lastIndexOf(QLatin1Char(' '), kDlugosc);
  return (spacja >= 3 ? nazwa.left(spacja) : nazwa.left(kDlugosc)).trimmed();
}

qint64 numerImportu() {
  // "IS NOT NULL" lets the store answer from the small index of imported rows.
  Polecenie p(
      "SELECT max(m) FROM (SELECT max(importu) AS m FROM transakcje WHERE importu IS NOT NULL "
      "UNION ALL SELECT max(importu) FROM wewnetrzne WHERE importu IS NOT NULL UNION ALL SELECT "
      "max(importu) FROM kontrahent)");
  return p.wiersz() ? p.liczba(0) : 0;
}
}  // namespace

int Podglad::ile(StanPozycji s) const {
  return int(std::count_if(pozycje.begin(), pozycje.end(),
                           [s](const PozycjaPodgladu& p) { return p.stan == s; }));
}

qint64 KontoDlaRachunku(const QString& rachunek) {
  const QString cyfry = CyfryRachunku(rachunek);
  if (cyfry.isEmpty() || !OtworzBaze()) return 0;
  Polecenie p("SELECT id, numer FROM konta WHERE numer IS NOT NULL AND numer<>''");
  while (p.wiersz())
    if (CyfryRachunku(p.tekst(1)) == cyfry) return p.liczba(0);
  return 0;
}

QString NumerKonta(qint64 konto) {
  if (!OtworzBaze()) return {};
  Polecenie p("SELECT numer FROM konta WHERE id=?1");
  p.wiaz(1, konto);
  return p.wiersz() ? p.tekst(0) : QString();
}

QString NazwaKategorii(const QString& identyfikator, int rodzaj) {
  if (identyfikator.isEmpty() || !OtworzBaze()) return {};
  Polecenie p("SELECT nazwa FROM kategorie WHERE identyfikator=?1 AND rodzaj=?2");
  p.wiaz(1, identyfikator).wiaz(2, qint64(rodzaj));
  return p.wiersz() ? p.tekst(0) : QString();
}

Podglad PrzygotujPodglad(const Wyciag& w, qint64 konto) {
  Podglad g;
  g.konto = konto;
  if (!OtworzBaze()) return g;
  // The user's other accounts by number.
  QHash<QString, qint64> wlasne;
  {
    Polecenie p("SELECT id, numer FROM konta WHERE numer IS NOT NULL AND numer<>''");
    while (p.wiersz())
      if (p.liczba(0) != konto) wlasne.insert(CyfryRachunku(p.tekst(1)), p.liczba(0));
  }
  // Counterparties by account number and by name.
  std::vector<Kontrahent> kontrahenci;
  QHash<QString, size_t> poRachunku, poNazwie;
  {
    Polecenie p("SELECT id, skrocona, nazwa, konto FROM kontrahent");
    while (p.wiersz()) {
      const size_t i = kontrahenci.size();
      kontrahenci.push_back({p.liczba(0), p.tekst(1).trimmed(), p.tekst(2).trimmed().toLower()});
      const QString r = CyfryRachunku(p.tekst(3));
      if (r.size() >= 10) poRachunku.insert(r, i);
      if (!kontrahenci[i].skrocona.isEmpty())
        poNazwie.insert(kontrahenci[i].skrocona.toLower(), i);
      if (!kontrahenci[i].nazwa.isEmpty()) poNazwie.insert(kontrahenci[i].nazwa, i);
    }
  }
  // Categories that exist, and what the user's past entries say.
  QSet<QString> kategorie;
  {
    Polecenie p("SELECT rodzaj, identyfikator FROM kategorie");
    while (p.wiersz()) kategorie.insert(QString::number(p.liczba(0)) + QLatin1Char('|') + p.tekst(1));
  }
  Licznik poKontrahencie, poSlowie;
  {
    // The newest twenty thousand entries say enough about how descriptions are filed.
    Polecenie p("SELECT opis, rodzaj, kategoria FROM transakcje ORDER BY id DESC LIMIT 20000");
    while (p.wiersz()) {
      const QString s = slowo(p.tekst(0));
      if (!s.isEmpty()) poSlowie[s + QLatin1Char('|') + QString::number(p.liczba(1))][p.tekst(2)]++;
    }
  }
  // The account's entries and transfers over the statement's days, for duplicates.
  QDate od, do_;
  for (const PozycjaWyciagu& p : w.pozycje) {
    if (!od.isValid() || p.data < od) od = p.data;
    if (!do_.isValid() || p.data > do_) do_ = p.data;
  }
  struct Istniejacy {
    QString opis, idBanku;
    bool zuzyty = false;
  };
  std::map<std::pair<QString, qint64>, std::vector<Istniejacy>> istniejace;
  QSet<QString> idBanku;
  std::map<std::pair<QString, qint64>, int> transfery;  // date, signed grosze as seen by konto
  if (od.isValid()) {
    const QString a = od.toString(Qt::ISODate), b = do_.toString(Qt::ISODate);
    Polecenie p(
        "SELECT data, przychod, wydatek, opis, idbanku FROM transakcje WHERE konto=?1 AND "
        "data BETWEEN ?2 AND ?3");
    p.wiaz(1, konto).wiaz(2, a).wiaz(3, b);
    while (p.wiersz()) {
      const qint64 kw = grosze(p.ulamek(1)) - grosze(p.ulamek(2));
      istniejace[{p.tekst(0), kw}].push_back({p.tekst(3), p.tekst(4)});
    }
    Polecenie q("SELECT idbanku FROM transakcje WHERE konto=?1 AND idbanku IS NOT NULL AND idbanku<>''");
    q.wiaz(1, konto);
    while (q.wiersz()) idBanku.insert(q.tekst(0));
    Polecenie t(
        "SELECT data, kwota, zkonta, nakonto FROM wewnetrzne WHERE (zkonta=?1 OR nakonto=?1) AND "
        "data BETWEEN ?2 AND ?3");
    t.wiaz(1, konto).wiaz(2, a).wiaz(3, b);
    while (t.wiersz()) {
      const qint64 kw = grosze(t.ulamek(1));
      transfery[{t.tekst(0), t.liczba(2) == konto ? -kw : kw}]++;
    }
  }

  // The other party of each line: by account number, else by name (whole, or a known name it
  // begins with).
  QHash<QString, size_t> dopasowane;  // name as the bank gives it -> counterparty index + 1
  std::vector<size_t> strony;         // per line: counterparty index + 1, 0 for none
  strony.reserve(w.pozycje.size());
  for (const PozycjaWyciagu& p : w.pozycje) {
    size_t k = 0;
    if (!p.rachunek.isEmpty()) k = poRachunku.contains(p.rachunek) ? poRachunku.value(p.rachunek) + 1 : 0;
    const QString nazwa = p.kontrahent.trimmed().toLower();
    if (!k && !nazwa.isEmpty()) {
      if (dopasowane.contains(nazwa)) {
        k = dopasowane.value(nazwa);
      } else {
        if (poNazwie.contains(nazwa)) {
          k = poNazwie.value(nazwa) + 1;
        } else {
          qsizetype najdluzsza = 0;
          for (auto it = poNazwie.constBegin(); it != poNazwie.constEnd(); ++it) {
            const QString& n = it.key();
            if (n.size() >= 4 && n.size() > najdluzsza && nazwa.startsWith(n) &&
                (nazwa.size() == n.size() || !nazwa[n.size()].isLetterOrNumber())) {
              najdluzsza = n.size();
              k = it.value() + 1;
            }
          }
        }
        dopasowane.insert(nazwa, k);
      }
    }
    strony.push_back(k);
  }
  // What the matched counterparties' own recent entries were filed under: only theirs are read,
  // each through its index, never the whole table.
  {
    QSet<qint64> znane;
    for (size_t k : strony)
      if (k) znane.insert(kontrahenci[k - 1].id);
    Polecenie p(
        "SELECT rodzaj, kategoria FROM transakcje WHERE kontrahent=?1 ORDER BY data DESC LIMIT "
        "200");
    for (qint64 id : znane) {
      p.wiaz(1, id);
      while (p.wiersz())
        poKontrahencie[QString::number(id) + QLatin1Char('|') + QString::number(p.liczba(0))]
                      [p.tekst(1)]++;
      p.zeruj();
    }
  }

  g.pozycje.reserve(w.pozycje.size());
  for (size_t i = 0; i < w.pozycje.size(); ++i) {
    const PozycjaWyciagu& p = w.pozycje[i];
    PozycjaPodgladu z;
    z.p = p;
    const QString dzien = p.data.toString(Qt::ISODate);
    const size_t k = strony[i];
    if (k) {
      z.kontrahent = kontrahenci[k - 1].id;
      z.nazwaKontrahenta = kontrahenci[k - 1].skrocona;
    } else if (!p.kontrahent.trimmed().isEmpty()) {
      z.nowyKontrahent = true;
      // The name as the bank gives it: shown whole in the preview and kept whole as the
      // counterparty's full name, so two payees that differ only past a short prefix stay two.
      z.nazwaKontrahenta = p.kontrahent.simplified();
    }
    // A category from the same counterparty's entries, else from similar descriptions.
    const QString rodzaj = QString::number(z.rodzaj());
    if (z.kontrahent)
      z.kategoria = najczestsza(poKontrahencie, QString::number(z.kontrahent) + QLatin1Char('|') + rodzaj);
    if (z.kategoria.isEmpty()) {
      const QString s = slowo(p.opis.isEmpty() ? p.kontrahent : p.opis);
      if (!s.isEmpty()) z.kategoria = najczestsza(poSlowie, s + QLatin1Char('|') + rodzaj);
    }
    if (!kategorie.contains(rodzaj + QLatin1Char('|') + z.kategoria)) z.kategoria.clear();
    // The user's own other account: a transfer.
    if (!p.rachunek.isEmpty() && wlasne.contains(p.rachunek)) {
      z.kontoTransferu = wlasne.value(p.rachunek);
      z.jakoTransfer = true;
      z.stan = StanPozycji::Transfer;
      z.nowyKontrahent = false;
      z.kontrahent = 0;
      z.nazwaKontrahenta.clear();
      z.kategoria.clear();
      auto t = transfery.find({dzien, p.grosze});
      if (t != transfery.end() && t->second > 0) {
        --t->second;
        z.stan = StanPozycji::Duplikat;
      }
    } else {
      // Already in the store: the bank's id, or the day and amount with a matching description.
      // Each stored entry answers for one line only.
      bool duplikat = !p.idBanku.isEmpty() && idBanku.contains(p.idBanku);
      auto it = istniejace.find({dzien, p.grosze});
      if (it != istniejace.end()) {
        for (Istniejacy& e : it->second) {
          if (e.zuzyty) continue;
          if ((duplikat && e.idBanku == p.idBanku) ||
              (!duplikat && (p.idBanku.isEmpty() || e.idBanku.isEmpty() || e.idBanku == p.idBanku) &&
               opisyPasuja(e.opis, p.opis))) {
            e.zuzyty = true;
            duplikat = true;
            break;
          }
        }
      }
      // A transfer already written from the other account's statement stands for this line.
      if (!duplikat) {
        auto t = transfery.find({dzien, p.grosze});
        if (t != transfery.end() && t->second > 0) {
          --t->second;
          duplikat = true;
        }
      }
      if (duplikat) z.stan = StanPozycji::Duplikat;
    }
    z.wybrana = z.stan != StanPozycji::Duplikat;
    g.pozycje.push_back(std::move(z));
  }
  return g;
}

WynikImportu ZapiszImport(const Podglad& g) {
  WynikImportu w;
  if (!OtworzBaze()) {
    w.blad = QStringLiteral("store not open");
    return w;
  }
  Baza& b = pubBaza();
  const bool ok = b.Transakcja([&] {
    const qint64 numer = numerImportu() + 1;
    Polecenie nowyK(
        "INSERT INTO kontrahent (skrocona, opis, nazwa, adres, miasto, telefon, konto, bank, lk, "
        "importu) VALUES (?1, '', ?2, '', '', '', ?3, '', '', ?4)");
    Polecenie wpis(
        "INSERT INTO transakcje (data, rodzaj, przychod, wydatek, opis, kategoria, konto, "
        "kontrahent, idbanku, importu) VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10)");
    Polecenie transfer(
        "INSERT INTO wewnetrzne (data, kwota, opis, zkonta, nakonto, importu) VALUES "
        "(?1, ?2, ?3, ?4, ?5, ?6)");
    if (!nowyK.ok() || !wpis.ok() || !transfer.ok()) return false;
    QHash<QString, qint64> utworzeni;
    for (const PozycjaPodgladu& z : g.pozycje) {
      if (!z.wybrana) continue;
      const double kwota = double(std::llabs(z.p.grosze)) / 100.0;
      const QString dzien = z.p.data.toString(Qt::ISODate);
      QString opis = z.p.opis.isEmpty() ? z.p.kontrahent : z.p.opis;
      if (z.jakoTransfer && z.kontoTransferu) {
        const qint64 zKonta = z.p.grosze < 0 ? g.konto : z.kontoTransferu;
        const qint64 naKonto = z.p.grosze < 0 ? z.kontoTransferu : g.konto;
        transfer.wiaz(1, dzien).wiaz(2, kwota).wiaz(3, opis).wiaz(4, zKonta).wiaz(5, naKonto).wiaz(6, numer);
        if (!transfer.wykonaj()) return false;
        ++w.transfery;
        continue;
      }
      qint64 kontrahent = z.kontrahent;
      if (!kontrahent && z.nowyKontrahent && !z.nazwaKontrahenta.isEmpty()) {
        const QString k = z.nazwaKontrahenta.toLower();
        if (utworzeni.contains(k)) {
          kontrahent = utworzeni.value(k);
        } else {
          nowyK.wiaz(1, krotkaNazwa(z.nazwaKontrahenta))
              .wiaz(2, z.nazwaKontrahenta)
              .wiaz(3, RachunekGrupami(z.p.rachunek))
              .wiaz(4, numer);
          if (!nowyK.wykonaj()) return false;
          kontrahent = b.OstatnieId();
          utworzeni.insert(k, kontrahent);
          ++w.kontrahenci;
        }
      }
      wpis.wiaz(1, dzien).wiaz(2, qint64(z.rodzaj()))
          .wiaz(3, z.p.grosze >= 0 ? kwota : 0.0).wiaz(4, z.p.grosze < 0 ? kwota : 0.0)
          .wiaz(5, opis).wiaz(6, z.kategoria).wiaz(7, g.konto).wiaz(8, kontrahent)
          .wiaz(9, z.p.idBanku).wiaz(10, numer);
      if (!wpis.wykonaj()) return false;
      ++w.wpisy;
    }
    return true;
  });
  if (!ok) {
    w.blad = bladBazy();
    ZapiszLog(QStringLiteral("import failed: %1").arg(BezCytatow(w.blad)));
    w.wpisy = w.transfery = w.kontrahenci = 0;
    return w;
  }
  w.ok = true;
  OglosZmiane(Tabele::Transakcje | Tabele::Wewnetrzne | Tabele::Kontrahent);
  return w;
}

int WierszeOstatniegoImportu() {
  if (!OtworzBaze()) return 0;
  const qint64 n = numerImportu();
  if (n <= 0) return 0;
  Polecenie p(
      "SELECT (SELECT count(*) FROM transakcje WHERE importu=?1) + "
      "(SELECT count(*) FROM wewnetrzne WHERE importu=?1)");
  p.wiaz(1, n);
  return p.wiersz() ? int(p.liczba(0)) : 0;
}

WynikImportu CofnijImport() {
  WynikImportu w;
  if (!OtworzBaze()) return w;
  const qint64 n = numerImportu();
  if (n <= 0) {
    w.ok = true;
    return w;
  }
  const bool ok = pubBaza().Transakcja([&] {
    Polecenie t("DELETE FROM transakcje WHERE importu=?1");
    Polecenie x("DELETE FROM wewnetrzne WHERE importu=?1");
    // A counterparty the import created stays when anything else has come to use it.
    Polecenie k(
        "DELETE FROM kontrahent WHERE importu=?1 AND id NOT IN (SELECT kontrahent FROM "
        "transakcje WHERE kontrahent IS NOT NULL UNION SELECT kontrahent FROM zaplanowane WHERE "
        "kontrahent IS NOT NULL)");
    Polecenie kz("UPDATE kontrahent SET importu=NULL WHERE importu=?1");
    t.wiaz(1, n);
    if (!t.wykonaj()) return false;
    w.wpisy = sqlite3_changes(pubBaza().Uchwyt());
    x.wiaz(1, n);
    if (!x.wykonaj()) return false;
    w.transfery = sqlite3_changes(pubBaza().Uchwyt());
    k.wiaz(1, n);
    if (!k.wykonaj()) return false;
    w.kontrahenci = sqlite3_changes(pubBaza().Uchwyt());
    kz.wiaz(1, n);
    return kz.wykonaj();
  });
  if (!ok) {
    w.blad = bladBazy();
    ZapiszLog(QStringLiteral("undo of an import failed: %1").arg(BezCytatow(w.blad)));
    return w;
  }
  w.ok = true;
  OglosZmiane(Tabele::Transakcje | Tabele::Wewnetrzne | Tabele::Kontrahent);
  return w;
}
