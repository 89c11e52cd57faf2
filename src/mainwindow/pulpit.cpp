#include "mainwindow/pulpit.h"

#include "store/baza.h"
#include "store/kwota.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"

namespace {

QString klucz(int numer) { return QStringLiteral("frmMain%1").arg(numer); }

QDate dataPola(const Rekordy& rs) {
  const QVariant v = rs.Pole(QStringLiteral("data"));
  return QDate::fromString(v.toString().left(10), Qt::ISODate);
}

// The entry list's statement over one of the two entry tables. TOP keeps the rows tied with the
// last one, as the list has always shown them.
QString zapytanieTransakcji(const QString& t, const QString& top, const QString& kolejnosc) {
  return QStringLiteral("SELECT TOP ") + top + QLatin1Char(' ') + t + QStringLiteral(".id AS id, ") +
         t + QStringLiteral(".data AS data, ") + t + QStringLiteral(".przychod AS przychod, ") + t +
         QStringLiteral(".wydatek AS wydatek, ") + t +
         QStringLiteral(
             ".opis AS opis, kategorie.nazwa AS kategoria, kontrahent.skrocona AS kontrahent, "
             "konta.nazwa AS konto FROM ((") +
         t + QStringLiteral(" INNER JOIN konta ON ") + t +
         QStringLiteral(".konto = konta.id) INNER JOIN kategorie ON (kategorie.rodzaj = ") + t +
         QStringLiteral(".rodzaj) AND (") + t +
         QStringLiteral(".kategoria = kategorie.identyfikator)) LEFT JOIN kontrahent ON ") + t +
         QStringLiteral(".kontrahent = kontrahent.id ORDER BY ") + kolejnosc;
}

QString zapytanieTransferow(const QString& t, const QString& top) {
  return QStringLiteral("SELECT TOP ") + top + QLatin1Char(' ') + t + QStringLiteral(".id AS id, ") +
         t + QStringLiteral(".data AS data, ") + t + QStringLiteral(".kwota AS kwota, ") + t +
         QStringLiteral(".opis AS opis, konta.nazwa AS zkonta, kontaprim.nazwa AS nakonto FROM ") +
         t + QStringLiteral(", konta, konta AS kontaprim WHERE konta.id=") + t +
         QStringLiteral(".zkonta AND kontaprim.id=") + t + QStringLiteral(".nakonto ORDER BY ") + t +
         QStringLiteral(".data DESC,") + t + QStringLiteral(".id DESC");
}

// The planner's hint: the joins keep their meaning, but the entry or transfer table becomes the
// outer loop, so that the store walks it from the newest row by its (data, id) index and stops
// after the few rows the list shows, instead of joining every row and sorting them all.
QString naPierwszejTabeli(QString sql, const QString& t) {
  sql.replace(QStringLiteral(" INNER JOIN "), QStringLiteral(" CROSS JOIN "));
  sql.replace(t + QStringLiteral(", konta, konta AS kontaprim "),
              t + QStringLiteral(" CROSS JOIN konta CROSS JOIN konta AS kontaprim "));
  return sql;
}

// The balance arithmetic in whole cents: inflow and outflow of each account kind 1 to 6.
struct TablicaStanow {
  qint64 wn[7] = {};
  qint64 ma[7] = {};
  void Dodaj(int rodzaj, double winien, double ma_) {
    // A kind outside 1 to 6 has no label: it counts nowhere.
    if (rodzaj < 1 || rodzaj > 6) return;
    wn[rodzaj] += WGroszach(winien);
    ma[rodzaj] += WGroszach(ma_);
  }
};

// Adds each row's wn and ma to its kind.
void dodajDoStanu(TablicaStanow& t, const QString& sql) {
  for (Rekordy rs = pubBaza().Czytaj(sql); !rs.Eof(); rs.MoveNext())
    t.Dodaj(int(PoleRekordu(rs, QStringLiteral("rodzaj"))), PoleRekordu(rs, QStringLiteral("wn")),
            PoleRekordu(rs, QStringLiteral("ma")));
}

// The same sums from the per-account totals the store keeps in whole cents: one row per
// account instead of every entry and transfer.
void dodajObroty(TablicaStanow& t) {
  Rekordy rs = pubBaza().Czytaj(QStringLiteral(
      "SELECT obrotykont.przychod AS przychod, obrotykont.wydatek AS wydatek, "
      "obrotykont.przychodzace AS przychodzace, obrotykont.wychodzace AS wychodzace, "
      "konta.rodzaj AS rodzaj FROM obrotykont, konta WHERE obrotykont.konto = konta.id"));
  for (; !rs.Eof(); rs.MoveNext()) {
    const int rodzaj = rs.Pole(QStringLiteral("rodzaj")).toInt();
    if (rodzaj < 1 || rodzaj > 6) continue;
    const auto grosze = [&](const char* pole) {
      return rs.Pole(QLatin1String(pole)).toLongLong();
    };
    t.wn[rodzaj] += grosze("przychod") + grosze("przychodzace");
    t.ma[rodzaj] += grosze("wydatek") + grosze("wychodzace");
  }
}

QString tabelaListy(ListaPulpitu lista) {
  switch (lista) {
    case ListaPulpitu::Transakcje:
      return QStringLiteral("transakcje");
    case ListaPulpitu::Zaplanowane:
      return QStringLiteral("zaplanowane");
    case ListaPulpitu::Wewnetrzne:
      return QStringLiteral("wewnetrzne");
    case ListaPulpitu::WewnetrzneZaplanowane:
      break;
  }
  return QStringLiteral("zaplanowanewewnetrzne");
}

}  // namespace

bool ListaTransferow(ListaPulpitu lista) {
  return lista == ListaPulpitu::Wewnetrzne || lista == ListaPulpitu::WewnetrzneZaplanowane;
}

bool ListaZaplanowanych(ListaPulpitu lista) {
  return lista == ListaPulpitu::Zaplanowane || lista == ListaPulpitu::WewnetrzneZaplanowane;
}

QString ZapytanieListy(ListaPulpitu lista) {
  const QString t = tabelaListy(lista);
  switch (lista) {
    case ListaPulpitu::Transakcje:
      return naPierwszejTabeli(
          zapytanieTransakcji(t, QStringLiteral("10"),
                              QStringLiteral("transakcje.data DESC,transakcje.id DESC")),
          t);
    case ListaPulpitu::Zaplanowane:
      // The oldest plans first, so that what is overdue stands at the top.
      return naPierwszejTabeli(
          zapytanieTransakcji(t, QStringLiteral("3"),
                              QStringLiteral("zaplanowane.data,zaplanowane.id DESC")),
          t);
    case ListaPulpitu::Wewnetrzne:
      return naPierwszejTabeli(zapytanieTransferow(t, QStringLiteral("10")), t);
    case ListaPulpitu::WewnetrzneZaplanowane:
      break;
  }
  // Planned transfers show the latest date first, unlike planned entries.
  return naPierwszejTabeli(zapytanieTransferow(t, QStringLiteral("3")), t);
}

bool KolumnaKwoty(ListaPulpitu lista, int kolumna) {
  return ListaTransferow(lista) ? kolumna == 1 : kolumna == 1 || kolumna == 2;
}

std::vector<WierszPulpitu> CzytajListe(ListaPulpitu lista) {
  std::vector<WierszPulpitu> wynik;
  if (!OtworzBaze()) return wynik;
  const bool transfery = ListaTransferow(lista);
  for (Rekordy rs = pubBaza().Czytaj(ZapytanieListy(lista)); !rs.Eof(); rs.MoveNext()) {
    WierszPulpitu w;
    w.id = rs.Pole(QStringLiteral("id")).toLongLong();
    w.opis = rs.Tekst(QStringLiteral("opis"));
    w.kolumny << FormatDaty(dataPola(rs), sesja.pubFormatDaty_ddpmmm);
    if (transfery) {
      w.przychod = PoleRekordu(rs, QStringLiteral("kwota"));
      w.kolumny << FormatKwoty(w.przychod) << rs.Tekst(QStringLiteral("zkonta"))
                << rs.Tekst(QStringLiteral("nakonto"));
    } else {
      w.przychod = PoleRekordu(rs, QStringLiteral("przychod"));
      w.wydatek = PoleRekordu(rs, QStringLiteral("wydatek"));
      w.kolumny << FormatKwoty(w.przychod) << FormatKwoty(w.wydatek)
                << rs.Tekst(QStringLiteral("kategoria")) << rs.Tekst(QStringLiteral("konto"))
                << rs.Tekst(QStringLiteral("kontrahent"));
    }
    w.kolumny << w.opis;
    wynik.push_back(std::move(w));
  }
  return wynik;
}

StanZaplanowanych CzytajStanZaplanowanych(const QDate& dzis) {
  StanZaplanowanych s;
  if (!OtworzBaze()) return s;
  const QString sql = QStringLiteral(
      "SELECT COUNT (id) AS ile, SUM(przychod) AS sumprzychod, SUM(wydatek) AS sumwydatek FROM "
      "zaplanowane ");
  Rekordy wszystkie = pubBaza().Czytaj(sql);
  s.przychody = PoleRekordu(wszystkie, QStringLiteral("sumprzychod"));
  s.wydatki = PoleRekordu(wszystkie, QStringLiteral("sumwydatek"));
  // Overdue: strictly before today; what falls due today is not late yet.
  Rekordy zalegle =
      pubBaza().Czytaj(sql + QStringLiteral("WHERE data<#") + ZapisDaty(dzis) + QStringLiteral("# "));
  s.zaleglePrzychody = PoleRekordu(zalegle, QStringLiteral("sumprzychod"));
  s.zalegleWydatki = PoleRekordu(zalegle, QStringLiteral("sumwydatek"));
  return s;
}

bool MaObrotyKont() {
  // All six triggers, or the totals may have missed a write.
  return OtworzBaze() &&
         PoliczIle(QStringLiteral(
             "SELECT COUNT(*) AS ile FROM sqlite_master WHERE type='trigger' AND name IN "
             "('transakcje_obroty_wstaw','transakcje_obroty_usun','transakcje_obroty_zmiana',"
             "'wewnetrzne_obroty_wstaw','wewnetrzne_obroty_usun','wewnetrzne_obroty_zmiana')")) ==
             6;
}

StanKontPulpitu ObliczStanKont(const QDate& dzis) {
  StanKontPulpitu s;
  if (!OtworzBaze()) return s;
  TablicaStanow t;
  dodajDoStanu(t, QStringLiteral("SELECT SUM(bowinien) AS wn, SUM(boma) AS ma, rodzaj FROM konta "
                                 "WHERE id<>0 GROUP BY rodzaj"));
  if (MaObrotyKont()) {
    dodajObroty(t);
  } else {
    dodajDoStanu(t, QStringLiteral(
                        "SELECT COUNT(transakcje.id) AS ile,SUM(transakcje.przychod) AS "
                        "wn,SUM(transakcje.wydatek) AS ma, konta.rodzaj FROM transakcje,konta "
                        "WHERE transakcje.id<>0 AND transakcje.konto = konta.id GROUP BY "
                        "konta.rodzaj"));
    dodajDoStanu(t, QStringLiteral(
                        "SELECT COUNT(wewnetrzne.id) AS ile, SUM(wewnetrzne.kwota) AS wn, 0 as ma, "
                        "konta.rodzaj FROM wewnetrzne,konta WHERE (wewnetrzne.nakonto=konta.id) "
                        "GROUP BY konta.rodzaj"));
    dodajDoStanu(t, QStringLiteral(
                        "SELECT COUNT(wewnetrzne.id) AS ile, 0 as wn, SUM(wewnetrzne.kwota) AS ma, "
                        "konta.rodzaj FROM wewnetrzne,konta WHERE (wewnetrzne.zkonta=konta.id) "
                        "GROUP BY konta.rodzaj"));
  }
  qint64 suma = 0;
  for (int i = 1; i <= 6; ++i) {
    const qint64 saldo = t.wn[i] - t.ma[i];
    s.salda[size_t(i)] = ZGroszy(saldo);
    suma += saldo;
  }
  s.suma = ZGroszy(suma);

  // The calendar month of today, whatever period the filter shows: its first to its last day,
  // the same rows as MONTH and YEAR of the date select, found through the date index.
  const QDate pierwszy(dzis.year(), dzis.month(), 1);
  Rekordy m = pubBaza().Czytaj(
      QStringLiteral("SELECT SUM(transakcje.przychod) AS sumprzychod,SUM(transakcje.wydatek) AS "
                     "sumwydatek FROM transakcje WHERE data>=#") +
      ZapisDaty(pierwszy) + QStringLiteral("# AND data<=#") +
      ZapisDaty(pierwszy.addMonths(1).addDays(-1)) + QStringLiteral("#"));
  s.przychody = PoleRekordu(m, QStringLiteral("sumprzychod"));
  s.wydatki = PoleRekordu(m, QStringLiteral("sumwydatek"));
  s.bilans = ZGroszy(WGroszach(s.przychody) - WGroszach(s.wydatki));
  return s;
}

QString TytulMiesiaca(const QDate& dzis) {
  QString nazwa = FormatDaty(dzis, QStringLiteral("mmmm"));
  if (!nazwa.isEmpty()) nazwa[0] = nazwa[0].toUpper();
  return QLatin1Char(' ') + nazwa;
}

QString PrzegladDnia(const QDate& dzis) {
  if (!OtworzBaze()) return {};
  const QString dzien = ZapisDaty(dzis);
  const QString koniec = QStringLiteral("\n");
  struct Grupa {
    int ile = 0;
    qint64 suma = 0;
    QString linie;
    void Dodaj(double kwota, const QString& linia) {
      ++ile;
      suma += WGroszach(kwota);
      linie += linia;
    }
  } przychody, wydatki, transfery;

  Rekordy rs = pubBaza().Czytaj(
      QStringLiteral(
          "SELECT zaplanowane.data AS data, zaplanowane.przychod AS przychod, zaplanowane.wydatek "
          "AS wydatek, zaplanowane.opis AS opis, kategorie.nazwa AS kategoria FROM zaplanowane, "
          "kategorie WHERE zaplanowane.kategoria = kategorie.identyfikator AND kategorie.rodzaj = "
          "zaplanowane.rodzaj AND data<=#") +
      dzien + QStringLiteral("# ORDER BY zaplanowane.data,zaplanowane.id ASC"));
  for (; !rs.Eof(); rs.MoveNext()) {
    const double przychod = PoleRekordu(rs, QStringLiteral("przychod"));
    const bool toPrzychod = przychod > 0;
    const double kwota = toPrzychod ? przychod : PoleRekordu(rs, QStringLiteral("wydatek"));
    (toPrzychod ? przychody : wydatki)
        .Dodaj(kwota, FormatKwoty(kwota) + QLatin1Char(' ') + rs.Tekst(QStringLiteral("kategoria")) +
                          QLatin1Char(' ') + rs.Tekst(QStringLiteral("opis")) + koniec);
  }
  rs = pubBaza().Czytaj(
      QStringLiteral(
          "SELECT zaplanowanewewnetrzne.kwota AS kwota, zaplanowanewewnetrzne.opis AS opis, "
          "konta.nazwa AS zkonta, kontaprim.nazwa AS nakonto FROM zaplanowanewewnetrzne, konta, "
          "konta AS kontaprim WHERE konta.id=zaplanowanewewnetrzne.zkonta AND "
          "kontaprim.id=zaplanowanewewnetrzne.nakonto AND data<=#") +
      dzien +
      QStringLiteral(
          "# ORDER BY zaplanowanewewnetrzne.data ASC,zaplanowanewewnetrzne.id ASC"));
  for (; !rs.Eof(); rs.MoveNext()) {
    const double kwota = PoleRekordu(rs, QStringLiteral("kwota"));
    transfery.Dodaj(kwota, FormatKwoty(kwota) + QLatin1Char(' ') + Napis(klucz(214)) +
                               QLatin1Char(' ') + rs.Tekst(QStringLiteral("zkonta")) +
                               QLatin1Char(' ') + Napis(klucz(215)) + QLatin1Char(' ') +
                               rs.Tekst(QStringLiteral("nakonto")) + QLatin1Char(' ') +
                               rs.Tekst(QStringLiteral("opis")) + koniec);
  }

  const QString data = FormatDaty(dzis, sesja.pubFormatDaty_ddpmmmmpyyyy);
  if (przychody.ile + wydatki.ile + transfery.ile == 0)
    return Napis(klucz(217)) + data + Napis(klucz(218)) + koniec + Napis(klucz(219)) + koniec +
           koniec + Napis(klucz(220));
  QString tekst = Napis(klucz(216)) + data + QStringLiteral(") :") + koniec;
  const Grupa* grupy[3] = {&przychody, &wydatki, &transfery};
  for (int i = 0; i < 3; ++i) {
    const Grupa& g = *grupy[i];
    if (g.ile == 0) continue;
    // The sum stands one blank after the words, whether or not the mask gave it a leading blank.
    tekst += Napis(klucz(221 + 2 * i)) + QString::number(g.ile) + Napis(klucz(222 + 2 * i)) +
             QLatin1Char(' ') + FormatKwoty(ZGroszy(g.suma)).trimmed() + QStringLiteral(" :") +
             koniec + g.linie;
  }
  return tekst;
}

QString FiltrWyszukiwania(const QString& tekst) {
  // The text goes in through the quoting helper: an apostrophe is searched for, not a break.
  const QString s = SqlTekst(QLatin1Char('*') + tekst.trimmed() + QLatin1Char('*'));
  return QStringLiteral(" AND transakcje.konto=konta.id AND (transakcje.opis LIKE ") + s +
         QStringLiteral(" OR transakcje.przychod LIKE ") + s +
         QStringLiteral(" OR transakcje.wydatek LIKE ") + s +
         QStringLiteral(" OR kategorie.nazwa LIKE ") + s +
         QStringLiteral(" OR kontrahent.skrocona LIKE ") + s +
         QStringLiteral(" OR konta.nazwa LIKE ") + s + QLatin1Char(')');
}

QString OpisWiersza(const WierszPulpitu& wiersz) {
  QStringList czesci;
  for (qsizetype i = 0; i + 1 < wiersz.kolumny.size(); ++i) {
    const QString c = wiersz.kolumny[i].trimmed();
    if (!c.isEmpty()) czesci << c;
  }
  czesci << QLatin1Char('"') + wiersz.opis.trimmed() + QLatin1Char('"');
  return czesci.join(QLatin1Char(' '));
}

bool UsunWierszListy(ListaPulpitu lista, qint64 id) {
  return OtworzBaze() &&
         pubBaza()
             .Wykonaj(QStringLiteral("DELETE FROM ") + tabelaListy(lista) +
                      QStringLiteral(" WHERE id=") + QString::number(id))
             .ok;
}

bool WyczyscWszystkieDane() {
  if (!OtworzBaze()) return false;
  static const char* const tabele[] = {
      "kategorie",  "konta",      "kontrahent",  "szablony",
      "szablonywewnetrzne", "transakcje", "wewnetrzne", "zaplanowane",
      "zaplanowanewewnetrzne", "okresowe", "okresowedni"};
  return pubBaza().Transakcja([] {
    for (const char* t : tabele)
      if (!pubBaza().Wykonaj(QStringLiteral("DELETE FROM ") + QLatin1String(t)).ok) return false;
    return true;
  });
}
