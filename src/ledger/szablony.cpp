#include "ledger/szablony.h"

#include "ledger/transakcje.h"
#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/filtr.h"
#include "store/napis.h"

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
  OtworzBaze();
  std::vector<WierszSzablonu> w;
  for (Rekordy rs = pubBaza().Czytaj(SqlListySzablonow(rodzaj, klucz)); !rs.Eof(); rs.MoveNext()) {
    WierszSzablonu s;
    s.id = rs.Pole(QStringLiteral("id")).toLongLong();
    s.nazwa = rs.Tekst(QStringLiteral("nazwa"));
    s.kategoria = rs.Tekst(QStringLiteral("kategoria"));
    s.konto = zRodzajem(rs.Tekst(QStringLiteral("konto")),
                        int(PoleRekordu(rs, QStringLiteral("rodzajkonta"))));
    s.kontrahent = rs.Tekst(QStringLiteral("kontrahent"));
    s.opis = rs.Tekst(QStringLiteral("opis"));
    w.push_back(std::move(s));
  }
  return w;
}

std::vector<WierszSzablonu> ListaSzablonowWewnetrznych(const QString& klucz) {
  OtworzBaze();
  std::vector<WierszSzablonu> w;
  for (Rekordy rs = pubBaza().Czytaj(SqlListySzablonowWewnetrznych(klucz)); !rs.Eof();
       rs.MoveNext()) {
    WierszSzablonu s;
    s.id = rs.Pole(QStringLiteral("id")).toLongLong();
    s.nazwa = rs.Tekst(QStringLiteral("nazwa"));
    s.zKonta = zRodzajem(rs.Tekst(QStringLiteral("zkonta")),
                         int(PoleRekordu(rs, QStringLiteral("rodzajzkonta"))));
    s.naKonto = zRodzajem(rs.Tekst(QStringLiteral("nakonto")),
                          int(PoleRekordu(rs, QStringLiteral("rodzajnakonto"))));
    s.opis = rs.Tekst(QStringLiteral("opis"));
    w.push_back(std::move(s));
  }
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
  Szablon s;
  s.id = id;
  s.rodzaj = int(PoleRekordu(rs, QStringLiteral("rodzaj")));
  s.nazwa = rs.Tekst(QStringLiteral("nazwa"));
  s.opis = rs.Tekst(QStringLiteral("opis"));
  s.konto.id = rs.Pole(QStringLiteral("numerkonta")).toLongLong();
  s.konto.nazwa = rs.Tekst(QStringLiteral("konto"));
  s.kategoria.identyfikator = Oczysc(rs.Pole(QStringLiteral("idenkategorii")));
  s.kategoria.nazwa = rs.Tekst(QStringLiteral("kategoria"));
  s.kategoria.rodzaj = s.rodzaj;
  s.kontrahent.id = rs.Pole(QStringLiteral("numerkontrahenta")).toLongLong();
  s.kontrahent.skrocona = rs.Tekst(QStringLiteral("kontrahent"));
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
  Szablon s;
  s.id = id;
  s.rodzaj = 3;
  s.nazwa = rs.Tekst(QStringLiteral("nazwa"));
  s.opis = rs.Tekst(QStringLiteral("opis"));
  s.konto.id = rs.Pole(QStringLiteral("zkonta")).toLongLong();
  s.konto.nazwa = rs.Tekst(QStringLiteral("nazwazkonta"));
  s.naKonto.id = rs.Pole(QStringLiteral("nakonto")).toLongLong();
  s.naKonto.nazwa = rs.Tekst(QStringLiteral("nazwanakonto"));
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
  Szablon s;
  s.id = id;
  s.nazwa = rs.Tekst(QStringLiteral("nazwa"));
  s.opis = rs.Tekst(QStringLiteral("opis"));
  s.konto.id = rs.Pole(QStringLiteral("konto")).toLongLong();
  s.konto.nazwa = rs.Tekst(QStringLiteral("nazwakonta"));
  s.konto.rodzaj = int(PoleRekordu(rs, QStringLiteral("rodzajkonta")));
  s.kategoria.identyfikator = Oczysc(rs.Pole(QStringLiteral("kategoria")));
  s.kategoria.nazwa = rs.Tekst(QStringLiteral("nazwakategorii"));
  s.kontrahent.id = rs.Pole(QStringLiteral("kontrahent")).toLongLong();
  s.kontrahent.skrocona = rs.Tekst(QStringLiteral("nazwakontrahenta"));
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
  Szablon s;
  s.id = id;
  s.rodzaj = 3;
  s.nazwa = rs.Tekst(QStringLiteral("nazwa"));
  s.opis = rs.Tekst(QStringLiteral("opis"));
  s.konto.id = rs.Pole(QStringLiteral("zkonta")).toLongLong();
  s.konto.nazwa = rs.Tekst(QStringLiteral("nazwazkonta"));
  s.konto.rodzaj = int(PoleRekordu(rs, QStringLiteral("rodzajzkonta")));
  s.naKonto.id = rs.Pole(QStringLiteral("nakonto")).toLongLong();
  s.naKonto.nazwa = rs.Tekst(QStringLiteral("nazwanakonto"));
  s.naKonto.rodzaj = int(PoleRekordu(rs, QStringLiteral("rodzajnakonto")));
  return s;
}
