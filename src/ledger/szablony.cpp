#include "ledger/szablony.h"

#include <sqlcipher/sqlite3.h>

#include "ledger/transakcje.h"
#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/filtr.h"
#include "store/napis.h"
#include "store/odczyt.h"

namespace {

void blad(const QString& tekst, const QString& tytul) {
  MyMsgbox(tekst, tytul, MsgOK, IkonaOstrzezenie);
}

QString zRodzajem(const QString& nazwa, int rodzaj) {
  return nazwa + QStringLiteral(" (") + NazwaRodzajuKonta(rodzaj) + QLatin1Char(')');
}

// A failed write: the user hears of it and the editor keeps what was typed.
bool zapisano(const WynikZapisu& w, const QString& tekst, const QString& tytul) {
  if (w) return true;
  MyMsgbox(tekst + QStringLiteral("\r\n") + w.blad, tytul, MsgOK, IkonaOstrzezenie);
  return false;
}

// The names one of the reads below gives a template's columns (each read keeps its own
// statement); an empty name is a column that read does not have.
struct KolumnySzablonu {
  QString konto, nazwaKonta, rodzajKonta;
  QString naKonto, nazwaNaKonta, rodzajNaKonta;
  QString kategoria, nazwaKategorii;
  QString kontrahent, nazwaKontrahenta;
};

// The one reader that fills a template from a row of any read. rodzaj is the template's kind when
// the row has no "rodzaj" column.
Szablon szablonZ(const Rekordy& rs, qint64 id, int rodzaj, const KolumnySzablonu& k) {
  const auto liczba = [&rs](const QString& n) { return n.isEmpty() ? 0 : rs.Pole(n).toLongLong(); };
  const auto tekst = [&rs](const QString& n) { return n.isEmpty() ? QString() : rs.Tekst(n); };
  Szablon s;
  s.id = id;
  s.rodzaj = rs.NazwyPol().contains(QStringLiteral("rodzaj"), Qt::CaseInsensitive)
                 ? int(PoleRekordu(rs, QStringLiteral("rodzaj")))
                 : rodzaj;
  s.nazwa = rs.Tekst(QStringLiteral("nazwa"));
  s.opis = rs.Tekst(QStringLiteral("opis"));
  s.konto.id = liczba(k.konto);
  s.konto.nazwa = tekst(k.nazwaKonta);
  s.konto.rodzaj = int(liczba(k.rodzajKonta));
  s.naKonto.id = liczba(k.naKonto);
  s.naKonto.nazwa = tekst(k.nazwaNaKonta);
  s.naKonto.rodzaj = int(liczba(k.rodzajNaKonta));
  if (!k.kategoria.isEmpty()) {
    s.kategoria.identyfikator = Oczysc(rs.Pole(k.kategoria));
    s.kategoria.nazwa = tekst(k.nazwaKategorii);
    s.kategoria.rodzaj = s.rodzaj;
  }
  s.kontrahent.id = liczba(k.kontrahent);
  s.kontrahent.skrocona = tekst(k.nazwaKontrahenta);
  return s;
}

// The lists are refilled for every letter typed: their rows are stepped straight from the
// translated statement, each column read by its place, rather than gathered into a recordset
// first. A failed read is logged and gives no rows.
template <class F>
void przejdzListe(const QString& jetSql, F&& wiersz) {
  if (!OtworzBaze()) return;
  OdczytJet odczyt(jetSql);
  sqlite3_stmt* st = odczyt.Polecenie();
  const auto tekst = [st](int k) {
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, k)),
                             sqlite3_column_bytes(st, k));
  };
  const auto liczba = [st](int k) { return sqlite3_column_int64(st, k); };
  while (odczyt.Krok()) wiersz(tekst, liczba);
}

}  // namespace

QString SqlListySzablonow(int rodzaj, const QString& klucz) {
  QString sql = QStringLiteral(
                    "SELECT szablony.id AS id, szablony.rodzaj AS rodzaj, szablony.nazwa AS nazwa, "
                    "szablony.opis AS opis, konta.nazwa AS konto, konta.rodzaj AS rodzajkonta, "
                    "kategorie.nazwa AS kategoria, kontrahent.skrocona AS kontrahent FROM "
                    "((szablony INNER JOIN konta ON szablony.konto = konta.id) INNER JOIN "
                    "kategorie ON (szablony.rodzaj= kategorie.rodzaj AND szablony.kategoria = "
                    "kategorie.identyfikator)) LEFT JOIN kontrahent ON szablony.kontrahent = "
                    "kontrahent.id WHERE szablony.rodzaj=") +
                QString::number(rodzaj);
  if (!klucz.isEmpty()) {
    const QString k = SqlTekst(QLatin1Char('*') + klucz + QLatin1Char('*'));
    sql += QStringLiteral(
               " AND (kontrahent.skrocona LIKE %1 OR szablony.nazwa LIKE %1 OR "
               "szablony.opis LIKE %1 OR konta.nazwa LIKE %1 OR kategorie.nazwa LIKE "
               "%1)")
               .arg(k);
  }
  return sql + QStringLiteral(" ORDER BY szablony.nazwa");
}

QString SqlListySzablonowWewnetrznych(const QString& klucz) {
  QString sql = QStringLiteral(
      "SELECT szablonywewnetrzne.id AS id, szablonywewnetrzne.nazwa AS nazwa, "
      "szablonywewnetrzne.opis AS opis, konta.nazwa AS zkonta, kontaprim.nazwa AS nakonto, "
      "konta.rodzaj AS rodzajzkonta, kontaprim.rodzaj AS rodzajnakonto FROM szablonywewnetrzne, "
      "konta, konta AS kontaprim WHERE konta.id=szablonywewnetrzne.zkonta AND "
      "kontaprim.id=szablonywewnetrzne.nakonto");
  if (!klucz.isEmpty()) {
    const QString k = SqlTekst(QLatin1Char('*') + klucz + QLatin1Char('*'));
    sql += QStringLiteral(
               " AND (szablonywewnetrzne.nazwa LIKE %1 OR szablonywewnetrzne.opis LIKE "
               "%1 OR konta.nazwa LIKE %1 OR kontaprim.nazwa LIKE %1)")
               .arg(k);
  }
  return sql + QStringLiteral(" ORDER BY szablonywewnetrzne.nazwa");
}

std::vector<WierszSzablonu> ListaSzablonow(int rodzaj, const QString& klucz) {
  std::vector<WierszSzablonu> w;
  // Columns: id, rodzaj, nazwa, opis, konto, rodzajkonta, kategoria, kontrahent.
  przejdzListe(SqlListySzablonow(rodzaj, klucz), [&w](const auto& tekst, const auto& liczba) {
    WierszSzablonu s;
    s.id = liczba(0);
    s.nazwa = tekst(2);
    s.opis = tekst(3);
    s.konto = zRodzajem(tekst(4), int(liczba(5)));
    s.kategoria = tekst(6);
    s.kontrahent = tekst(7);
    w.push_back(std::move(s));
  });
  return w;
}

std::vector<WierszSzablonu> ListaSzablonowWewnetrznych(const QString& klucz) {
  std::vector<WierszSzablonu> w;
  // Columns: id, nazwa, opis, zkonta, nakonto, rodzajzkonta, rodzajnakonto.
  przejdzListe(SqlListySzablonowWewnetrznych(klucz), [&w](const auto& tekst, const auto& liczba) {
    WierszSzablonu s;
    s.id = liczba(0);
    s.nazwa = tekst(1);
    s.opis = tekst(2);
    s.zKonta = zRodzajem(tekst(3), int(liczba(5)));
    s.naKonto = zRodzajem(tekst(4), int(liczba(6)));
    w.push_back(std::move(s));
  });
  return w;
}

std::optional<Szablon> CzytajSzablon(qint64 id) {
  OtworzBaze();
  const Rekordy rs = pubBaza().Czytaj(
      QStringLiteral(
          "SELECT szablony.id AS id, szablony.rodzaj AS rodzaj, szablony.nazwa AS nazwa, "
          "szablony.konto AS numerkonta, szablony.kontrahent AS numerkontrahenta, "
          "szablony.kategoria AS idenkategorii, szablony.opis AS opis, konta.nazwa AS konto, "
          "kategorie.nazwa AS kategoria, kontrahent.skrocona AS kontrahent FROM ((szablony LEFT "
          "JOIN kontrahent ON szablony.kontrahent = kontrahent.id) INNER JOIN konta ON "
          "szablony.konto = konta.id) INNER JOIN kategorie ON (szablony.rodzaj = kategorie.rodzaj) "
          "AND (szablony.kategoria = kategorie.identyfikator) Where szablony.Id = ") +
      QString::number(id));
  if (rs.Eof()) return std::nullopt;
  KolumnySzablonu k;
  k.konto = QStringLiteral("numerkonta");
  k.nazwaKonta = QStringLiteral("konto");
  k.kategoria = QStringLiteral("idenkategorii");
  k.nazwaKategorii = QStringLiteral("kategoria");
  k.kontrahent = QStringLiteral("numerkontrahenta");
  k.nazwaKontrahenta = QStringLiteral("kontrahent");
  Szablon s = szablonZ(rs, id, 2, k);
  return s;
}

std::optional<Szablon> CzytajSzablonWewnetrzny(qint64 id) {
  OtworzBaze();
  const Rekordy rs = pubBaza().Czytaj(
      QStringLiteral(
          "SELECT szablonywewnetrzne.nazwa AS nazwa, szablonywewnetrzne.opis AS opis, "
          "szablonywewnetrzne.zkonta AS zkonta, szablonywewnetrzne.nakonto AS nakonto, "
          "konta.nazwa AS nazwazkonta, kontaprim.nazwa AS nazwanakonto FROM szablonywewnetrzne, "
          "konta, konta AS kontaprim WHERE konta.id=szablonywewnetrzne.zkonta AND "
          "kontaprim.id=szablonywewnetrzne.nakonto AND szablonywewnetrzne.id=") +
      QString::number(id));
  if (rs.Eof()) return std::nullopt;
  KolumnySzablonu k;
  k.konto = QStringLiteral("zkonta");
  k.nazwaKonta = QStringLiteral("nazwazkonta");
  k.naKonto = QStringLiteral("nakonto");
  k.nazwaNaKonta = QStringLiteral("nazwanakonto");
  Szablon s = szablonZ(rs, id, 3, k);
  return s;
}

bool ZapiszSzablon(const Szablon& s) {
  if (s.nazwa.trimmed().isEmpty()) {
    blad(Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego14")),
         Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego15")));
    return false;
  }
  if (s.konto.id == 0) {
    blad(Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego16")),
         Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego17")));
    return false;
  }
  if (s.kategoria.identyfikator.isEmpty()) {
    blad(Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego18")),
         Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego19")));
    return false;
  }
  if (!OtworzBaze())
    return zapisano({}, Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego20")),
                    Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego21")));
  const QString konto = SqlTekst(LiczbaDoZapisu(s.konto.id));
  const QString kategoria = SqlTekst(s.kategoria.identyfikator);
  const QString kontrahent = SqlTekst(LiczbaDoZapisu(s.kontrahent.id));
  const QString sql =
      s.id == 0
          ? QStringLiteral(
                "INSERT INTO szablony (rodzaj,nazwa,konto,kategoria,kontrahent,opis) "
                "Values (") +
                QStringList{SqlTekst(QString::number(s.rodzaj)),
                            SqlTekst(s.nazwa),
                            konto,
                            kategoria,
                            kontrahent,
                            SqlTekst(s.opis)}
                    .join(QLatin1Char(',')) +
                QLatin1Char(')')
          : QStringLiteral("UPDATE szablony SET konto=") + konto + QStringLiteral(", kategoria=") +
                kategoria + QStringLiteral(", kontrahent=") + kontrahent +
                QStringLiteral(", nazwa=") + SqlTekst(s.nazwa) + QStringLiteral(", opis=") +
                SqlTekst(s.opis) + QStringLiteral(" WHERE id=") + QString::number(s.id);
  return zapisano(pubBaza().Wykonaj(sql), Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego20")),
                  Napis(QStringLiteral("frmEdycjaSzablonuZewnetrznego21")));
}

bool ZapiszSzablonWewnetrzny(const Szablon& s) {
  if (s.nazwa.trimmed().isEmpty()) {
    blad(Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego11")),
         Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego12")));
    return false;
  }
  if (s.konto.id == 0) {
    blad(Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego13")),
         Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego14")));
    return false;
  }
  if (s.naKonto.id == 0) {
    blad(Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego15")),
         Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego16")));
    return false;
  }
  if (s.konto.id == s.naKonto.id) {
    blad(Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego17")),
         Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego18")));
    return false;
  }
  if (!OtworzBaze())
    return zapisano({}, Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego19")),
                    Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego20")));
  const QString z = SqlTekst(LiczbaDoZapisu(s.konto.id));
  const QString na = SqlTekst(LiczbaDoZapisu(s.naKonto.id));
  const QString sql =
      s.id == 0
          ? QStringLiteral(
                "INSERT INTO szablonywewnetrzne (nazwa,zkonta,nakonto,opis) "
                "Values (") +
                QStringList{SqlTekst(s.nazwa), z, na, SqlTekst(s.opis)}.join(QLatin1Char(',')) +
                QLatin1Char(')')
          : QStringLiteral("UPDATE szablonywewnetrzne SET zkonta=") + z +
                QStringLiteral(", nakonto=") + na + QStringLiteral(", nazwa=") + SqlTekst(s.nazwa) +
                QStringLiteral(", opis=") + SqlTekst(s.opis) + QStringLiteral(" WHERE id=") +
                QString::number(s.id);
  return zapisano(pubBaza().Wykonaj(sql), Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego19")),
                  Napis(QStringLiteral("frmEdycjaSzablonuWewnetrznego20")));
}

bool UsunSzablonZPytaniem(qint64 id, const QString& nazwa, bool wewnetrzny) {
  const QString tytul = wewnetrzny ? Napis(QStringLiteral("frmSzablonyWewnetrzne15"))
                                   : Napis(QStringLiteral("frmSzablonyZewnetrzne20"));
  const QString tekst = (wewnetrzny ? Napis(QStringLiteral("frmSzablonyWewnetrzne16"))
                                    : Napis(QStringLiteral("frmSzablonyZewnetrzne21"))) +
                        QLatin1Char(' ') + nazwa + QStringLiteral(" ?");
  if (MyMsgbox(tekst, tytul, MsgTakNie, IkonaPytanie) != WynikTak) return false;
  OtworzBaze();
  return zapisano(
      pubBaza().Wykonaj((wewnetrzny ? QStringLiteral("DELETE FROM szablonywewnetrzne "
                                                     "WHERE id=")
                                    : QStringLiteral("DELETE FROM szablony WHERE id=")) +
                        QString::number(id)),
      wewnetrzny ? Napis(QStringLiteral("frmSzablonyWewnetrzne17"))
                 : Napis(QStringLiteral("frmSzablonyZewnetrzne22")),
      wewnetrzny ? Napis(QStringLiteral("frmSzablonyWewnetrzne18"))
                 : Napis(QStringLiteral("frmSzablonyZewnetrzne23")));
}

std::optional<Szablon> SzablonDlaWpisu(qint64 id) {
  OtworzBaze();
  const Rekordy rs = pubBaza().Czytaj(
      QStringLiteral(
          "SELECT szablony.nazwa AS nazwa, szablony.opis AS opis, szablony.konto AS konto, "
          "szablony.kategoria AS kategoria, szablony.kontrahent AS kontrahent, konta.nazwa AS "
          "nazwakonta, konta.rodzaj AS rodzajkonta, kategorie.nazwa AS nazwakategorii, "
          "kontrahent.skrocona AS nazwakontrahenta FROM ((szablony INNER JOIN konta ON "
          "szablony.konto = konta.id) INNER JOIN kategorie ON (szablony.rodzaj = kategorie.rodzaj) "
          "AND (szablony.kategoria = kategorie.identyfikator)) LEFT JOIN kontrahent ON "
          "szablony.kontrahent = kontrahent.id WHERE szablony.id=") +
      QString::number(id));
  if (rs.Eof()) return std::nullopt;
  KolumnySzablonu k;
  k.konto = QStringLiteral("konto");
  k.nazwaKonta = QStringLiteral("nazwakonta");
  k.rodzajKonta = QStringLiteral("rodzajkonta");
  k.kategoria = QStringLiteral("kategoria");
  k.nazwaKategorii = QStringLiteral("nazwakategorii");
  k.kontrahent = QStringLiteral("kontrahent");
  k.nazwaKontrahenta = QStringLiteral("nazwakontrahenta");
  Szablon s = szablonZ(rs, id, 2, k);
  return s;
}

std::optional<Szablon> SzablonDlaTransferu(qint64 id) {
  OtworzBaze();
  const Rekordy rs = pubBaza().Czytaj(
      QStringLiteral(
          "SELECT szablonywewnetrzne.nazwa AS nazwa, szablonywewnetrzne.opis AS opis, "
          "szablonywewnetrzne.zkonta AS zkonta, szablonywewnetrzne.nakonto AS nakonto, "
          "konta.nazwa AS nazwazkonta, kontaprim.nazwa AS nazwanakonto, konta.rodzaj AS "
          "rodzajzkonta, kontaprim.rodzaj AS rodzajnakonto FROM szablonywewnetrzne, konta, konta "
          "AS kontaprim WHERE kontaprim.id=szablonywewnetrzne.nakonto AND "
          "konta.id=szablonywewnetrzne.zkonta AND szablonywewnetrzne.id=") +
      QString::number(id));
  if (rs.Eof()) return std::nullopt;
  KolumnySzablonu k;
  k.konto = QStringLiteral("zkonta");
  k.nazwaKonta = QStringLiteral("nazwazkonta");
  k.rodzajKonta = QStringLiteral("rodzajzkonta");
  k.naKonto = QStringLiteral("nakonto");
  k.nazwaNaKonta = QStringLiteral("nazwanakonto");
  k.rodzajNaKonta = QStringLiteral("rodzajnakonto");
  Szablon s = szablonZ(rs, id, 3, k);
  return s;
}
