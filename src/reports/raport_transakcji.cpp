// The entry and transfer reports: line by line what a browser shows, walking the browser's own
// query, with the sums of income and expense under the entries.

#include <QRegularExpression>

#include "reports/raporty.h"
#include "reports/wspolne.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"

QString ZapytanieWpisow(int tryb, const QString& filtr, const QString& warunekOkresu) {
  QString sql = QStringLiteral(
      "SELECT transakcje.id AS id, transakcje.data AS data, transakcje.przychod AS przychod, "
      "transakcje.wydatek AS wydatek, transakcje.opis AS opis, kategorie.nazwa AS kategoria, "
      "kontrahent.skrocona AS kontrahent, konta.nazwa AS konto FROM ((transakcje INNER JOIN konta "
      "ON transakcje.konto = konta.id) INNER JOIN kategorie ON (kategorie.rodzaj = "
      "transakcje.rodzaj) AND (transakcje.kategoria = kategorie.identyfikator)) LEFT JOIN "
      "kontrahent ON transakcje.kontrahent = kontrahent.id WHERE 1=1 ");
  sql += filtr + warunekOkresu + QStringLiteral(" ORDER BY transakcje.data DESC,transakcje.id DESC");
  // Planned entries: the same statement over their own table, the caller's fragment included.
  if (tryb != 2)
    sql.replace(QRegularExpression(QStringLiteral("\\btransakcje\\b")), QStringLiteral("zaplanowane"));
  return sql;
}

QString ZapytanieTransferow(int tryb, const QString& filtr, const QString& warunekOkresu) {
  QString sql = QStringLiteral(
      "SELECT wewnetrzne.id AS id, wewnetrzne.data AS data, wewnetrzne.kwota AS kwota, "
      "wewnetrzne.opis AS opis, konta.nazwa AS zkonta, kontaprim.nazwa AS nakonto, konta.id AS "
      "numerzkonta, kontaprim.id AS numernakonto, konta.rodzaj AS rodzajzkonta, kontaprim.rodzaj "
      "AS rodzajnakonto FROM wewnetrzne,konta,konta AS kontaprim WHERE konta.id=wewnetrzne.zkonta "
      "AND kontaprim.id=wewnetrzne.nakonto ");
  sql += filtr + warunekOkresu + QStringLiteral(" ORDER BY wewnetrzne.data DESC,wewnetrzne.id DESC");
  if (tryb != 2)
    sql.replace(QRegularExpression(QStringLiteral("\\bwewnetrzne\\b")),
                QStringLiteral("zaplanowanewewnetrzne"));
  return sql;
}

namespace {

QString data(const Rekordy& rs) {
  return FormatDaty(QDate::fromString(rs.Tekst(QStringLiteral("data")).left(10), Qt::ISODate),
                    sesja.pubFormatDaty_ddpmmmpyy);
}
QString dataTabeli(const Rekordy& rs) { return rs.Tekst(QStringLiteral("data")).left(10); }

void naglowek(Raport& r, const char* forma, std::initializer_list<int> szerokosci) {
  TytulRaportu(r, sesja.pubOkres.opisDlugi);
  NowaLinia(r, 2);
  PoleRaportu(r, Napis(QStringLiteral("OgolneLp")), 4, 0);
  QStringList tabela{Napis(QStringLiteral("OgolneLp"))};
  int n = 8;
  for (int s : szerokosci) {
    const QString tekst = Napis(QLatin1String(forma) + QString::number(n++));
    PoleRaportu(r, tekst, s, 0);
    tabela << tekst.trimmed();
  }
  r.dok.tabela.push_back(tabela);
}

}  // namespace

void TworzRaportTransakcji(Raport& r) {
  naglowek(r, "frmRaportTransakcji", {13, 21, 13, 13, 17, 17, 17});
  // This head runs its rule on straight after the last head field.
  LiniaRaportu(r, r.pubSzerokoscRaportu, false);
  r.dok.ZakonczNaglowek();

  const QString sql = sesja.pubZapytanieRaportu.isEmpty()
                          ? ZapytanieWpisow(sesja.pubTryb, sesja.pubFiltrTransakcji,
                                            sesja.pubOkres.warunek)
                          : sesja.pubZapytanieRaportu;
  Rekordy rs = pubBaza().Czytaj(sql);
  r.Maksimum(int(rs.RecordCount()));
  qint64 przychody = 0, wydatki = 0;
  int licznik = 1;
  for (; !rs.Eof(); rs.MoveNext()) {
    if (r.Przerwij(licznik++)) break;
    const QString numer = FormatCalkowita(licznik - 1);
    const qint64 przychod = Grosze(rs, QStringLiteral("przychod"));
    const qint64 wydatek = Grosze(rs, QStringLiteral("wydatek"));
    const QString opis = rs.Tekst(QStringLiteral("opis")).left(20);
    const QString kategoria = rs.Tekst(QStringLiteral("kategoria"));
    const QString konto = rs.Tekst(QStringLiteral("konto"));
    const QString kontrahent = rs.Tekst(QStringLiteral("kontrahent"));
    PoleRaportu(r, numer, 4, 0);
    PoleRaportu(r, data(rs), 9, 0);
    PoleRaportu(r, opis, 21, 0);
    PoleRaportu(r, KwotaRaportu(przychod), -12, 0);
    PoleRaportu(r, KwotaRaportu(wydatek), -12, 0);
    PoleRaportu(r, QString(), 1, 0);
    PoleRaportu(r, kategoria, 17, 0);
    PoleRaportu(r, konto, 17, 0);
    PoleRaportu(r, kontrahent, 17, 0);
    NowaLinia(r, 1);
    przychody += przychod;
    wydatki += wydatek;
    r.dok.tabela.push_back({numer, dataTabeli(rs), opis.trimmed(), KwotaTabeli(przychod),
                            KwotaTabeli(wydatek), kategoria.trimmed(), konto.trimmed(),
                            kontrahent.trimmed()});
  }
  LiniaRaportu(r, r.pubSzerokoscRaportu, false);
  PoleRaportu(r, QStringLiteral(" "), 34, 0);
  PoleRaportu(r, KwotaRaportu(przychody), -12, 0);
  PoleRaportu(r, KwotaRaportu(wydatki), -12, 0);
  r.dok.tabela.push_back({QString(), QString(), QString(), KwotaTabeli(przychody),
                          KwotaTabeli(wydatki), QString(), QString(), QString()});
  StopkaRaportu(r);
}

void TworzRaportTransferow(Raport& r) {
  naglowek(r, "frmRaportTransakcjiWewnetrznych", {13, 21, 13, 17, 17});
  NowaLinia(r, 1);
  LiniaRaportu(r, r.pubSzerokoscRaportu, false);
  r.dok.ZakonczNaglowek();

  const QString sql = sesja.pubZapytanieRaportu.isEmpty()
                          ? ZapytanieTransferow(sesja.pubTryb, sesja.pubFiltrTransferow,
                                                sesja.pubOkres.warunek)
                          : sesja.pubZapytanieRaportu;
  Rekordy rs = pubBaza().Czytaj(sql);
  r.Maksimum(int(rs.RecordCount()));
  int licznik = 1;
  for (; !rs.Eof(); rs.MoveNext()) {
    if (r.Przerwij(licznik++)) break;
    const QString numer = FormatCalkowita(licznik - 1);
    const qint64 kwota = Grosze(rs, QStringLiteral("kwota"));
    const QString opis = rs.Tekst(QStringLiteral("opis")).left(20);
    const QString z = rs.Tekst(QStringLiteral("zkonta"));
    const QString na = rs.Tekst(QStringLiteral("nakonto"));
    PoleRaportu(r, numer, 4, 0);
    PoleRaportu(r, data(rs), 9, 0);
    PoleRaportu(r, opis, 21, 0);
    PoleRaportu(r, KwotaRaportu(kwota), -12, 0);
    PoleRaportu(r, QString(), 1, 0);
    PoleRaportu(r, z, 17, 0);
    PoleRaportu(r, na, 17, 0);
    NowaLinia(r, 1);
    r.dok.tabela.push_back({numer, dataTabeli(rs), opis.trimmed(), KwotaTabeli(kwota), z.trimmed(),
                            na.trimmed()});
  }
  // A sum of amounts moved between accounts means nothing: the line has its blank field alone.
  LiniaRaportu(r, r.pubSzerokoscRaportu, false);
  PoleRaportu(r, QStringLiteral(" "), 13, 0);
  StopkaRaportu(r);
}
