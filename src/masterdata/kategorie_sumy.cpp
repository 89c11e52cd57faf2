// Sums of a category node: its own entries, the breakdown over its direct children, and the
// monthly limit of a leaf.

#include <QHash>
#include <algorithm>

#include "masterdata/kategorie.h"
#include "store/baza.h"
#include "store/kwota.h"
#include "store/napis.h"
#include "store/tekst.h"

namespace {

QString R(int rodzaj) { return QString::number(rodzaj); }

// The node alone: every entry of the tree on "Root", else the entries filed on the key.
QString ZapytanieWezla(const QString& klucz, int rodzaj) {
  QString q =
      QStringLiteral(
          "SELECT COUNT(transakcje.id) AS ile,SUM(transakcje.przychod) AS sumprzychod,"
          "SUM(transakcje.wydatek) AS sumwydatek FROM transakcje WHERE transakcje.rodzaj=") +
      R(rodzaj);
  if (klucz != KluczKorzenia) q += QStringLiteral(" AND transakcje.kategoria=") + SqlTekst(klucz);
  return q;
}

// What lies below the node, joined to the names of the entries' categories and their parents.
QString ZapytaniePoddrzewa(const QString& klucz, int rodzaj) {
  const QString r = R(rodzaj);
  if (klucz == KluczKorzenia)
    return QStringLiteral(
               "SELECT COUNT(transakcje.id) AS ile, SUM(transakcje.przychod) AS sumprzychod, "
               "SUM(transakcje.wydatek) AS sumwydatek, MIN(kategorie.nazwa) AS nazwanadkategorii, "
               "MIN(kategorie.identyfikator) AS p2 FROM transakcje, kategorie WHERE "
               "kategorie.rodzaj=") +
           r +
           QStringLiteral(
               " AND transakcje.kategoria = kategorie.identyfikator AND transakcje.rodzaj=") +
           r;
  return QStringLiteral(
             "SELECT COUNT(transakcje.id) AS ile, SUM(transakcje.przychod) AS sumprzychod, "
             "SUM(transakcje.wydatek) AS sumwydatek, MIN(kategorie.nazwa) AS nazwakategorii, "
             "MIN(kategorie.identyfikator) AS p1, MIN(kategorieprim.nazwa) AS nazwanadkategorii, "
             "MIN(kategorieprim.identyfikator) AS p2 FROM transakcje, kategorie, kategorie AS "
             "kategorieprim "
             "WHERE kategorieprim.identyfikator=kategorie.kategoria AND kategorieprim.rodzaj=") +
         r + QStringLiteral(" AND kategorie.rodzaj=") + r +
         QStringLiteral(
             " AND transakcje.kategoria=kategorie.identyfikator AND transakcje.rodzaj=") +
         r + QStringLiteral(" AND LEFT(transakcje.kategoria,") + QString::number(klucz.size()) +
         QStringLiteral(")=") + SqlTekst(klucz) + QStringLiteral(" AND transakcje.kategoria<>") +
         SqlTekst(klucz);
}

qint64 Grosze(const Rekordy& rs) {
  return WGroszach(PoleRekordu(rs, QStringLiteral("sumprzychod"))) +
         WGroszach(PoleRekordu(rs, QStringLiteral("sumwydatek")));
}

}  // namespace

double SumaKategorii::Razem() const { return ZGroszy(WGroszach(przychod) + WGroszach(wydatek)); }

SumaKategorii SumaWezla(const QString& klucz, int rodzaj, const QString& warunek) {
  OtworzBaze();
  const Rekordy rs = pubBaza().Czytaj(ZapytanieWezla(klucz, rodzaj) + warunek);
  SumaKategorii s;
  s.ile = rs.Pole(QStringLiteral("ile")).toLongLong();
  s.przychod = PoleRekordu(rs, QStringLiteral("sumprzychod"));
  s.wydatek = PoleRekordu(rs, QStringLiteral("sumwydatek"));
  return s;
}

Rozbicie RozbicieKategorii(const QString& klucz, int rodzaj, const QString& warunekOkresu) {
  OtworzBaze();
  Rozbicie wynik;
  wynik.suma = SumaWezla(klucz, rodzaj, warunekOkresu).Razem();

  const bool korzen = klucz == KluczKorzenia;
  const int L = korzen ? 0 : int(klucz.size());
  const QString grupa = korzen ? QStringLiteral(" GROUP BY LEFT (transakcje.kategoria,1) ")
                               : QStringLiteral(" GROUP BY MID (transakcje.kategoria,") +
                                     QString::number(L + 1) + QStringLiteral(",1)");
  Rekordy rs = pubBaza().Czytaj(ZapytaniePoddrzewa(klucz, rodzaj) + warunekOkresu + grupa);

  // A row's MIN() names need not belong to one category when leaves sit at mixed depths, so
  // each row is named by its direct child, the prefix of its smallest identifier.
  QHash<QString, QString> nazwyDzieci;
  Rekordy dzieci = pubBaza().Czytaj(
      QStringLiteral("SELECT identyfikator,nazwa FROM kategorie WHERE rodzaj=") + R(rodzaj) +
      QStringLiteral(" AND kategoria=") + SqlTekst(korzen ? QStringLiteral("-") : klucz));
  for (; !dzieci.Eof(); dzieci.MoveNext())
    nazwyDzieci.insert(Oczysc(dzieci.Pole(QStringLiteral("identyfikator"))),
                       Oczysc(dzieci.Pole(QStringLiteral("nazwa"))));

  struct Grupa {
    QString dziecko, nazwa;
    qint64 grosze;
  };
  std::vector<Grupa> grupy;
  qint64 calosc = 0;
  for (; !rs.Eof(); rs.MoveNext()) {
    const QString najmniejszy =
        Oczysc(rs.Pole(korzen ? QStringLiteral("p2") : QStringLiteral("p1")));
    const QString dziecko = najmniejszy.left(L + 1);
    QString nazwa = nazwyDzieci.value(dziecko);
    if (nazwa.isEmpty())
      nazwa = Oczysc(rs.Pole(!korzen && najmniejszy.size() == L + 1
                                 ? QStringLiteral("nazwakategorii")
                                 : QStringLiteral("nazwanadkategorii")));
    grupy.push_back({dziecko, nazwa, Grosze(rs)});
    calosc += grupy.back().grosze;
  }
  std::sort(grupy.begin(), grupy.end(),
            [](const Grupa& a, const Grupa& b) { return a.dziecko < b.dziecko; });

  int kolor = 0;
  for (const Grupa& g : grupy) {
    WierszRozbicia w;
    w.identyfikator = g.dziecko;
    w.nazwa = g.nazwa;
    w.kwota = ZGroszy(g.grosze);
    if (calosc != 0)
      w.udzial = FormatLiczby(double(g.grosze) / double(calosc) * 100.0, QStringLiteral("##0.00"));
    kolor = kolor % LiczbaKolorowRozbicia + 1;
    w.kolor = kolor;
    wynik.wiersze.push_back(w);
  }
  wynik.sumaPod = ZGroszy(calosc);
  wynik.razem = calosc != 0 ? wynik.sumaPod : wynik.suma;
  return wynik;
}

double CzytajLimit(const QString& identyfikator, int rodzaj) {
  OtworzBaze();
  const Rekordy rs =
      pubBaza().Czytaj(QStringLiteral("SELECT limit FROM kategorie WHERE identyfikator=") +
                       SqlTekst(identyfikator) + QStringLiteral(" AND rodzaj=") + R(rodzaj));
  return PoleRekordu(rs, QStringLiteral("limit"));
}

bool UstawLimit(const QString& identyfikator, int rodzaj, double limit) {
  OtworzBaze();
  QString liczba = QString::number(ZaokraglijDoGroszy(limit), 'f', 2);
  KropkaNaSeparator(liczba);
  return bool(pubBaza().Wykonaj(QStringLiteral("UPDATE kategorie SET limit=") + SqlTekst(liczba) +
                                QStringLiteral("  WHERE identyfikator=") + SqlTekst(identyfikator) +
                                QStringLiteral(" AND rodzaj=") + R(rodzaj)));
}

StanLimitu LimitWezla(const QString& klucz, int rodzaj, bool maDzieci) {
  StanLimitu s;
  // A parent never shows a limit, whatever its row holds.
  if (maDzieci) return s;
  s.limit = CzytajLimit(klucz, rodzaj);
  if (s.limit == 0) {
    s.lblLimit = Napis(QStringLiteral("frmPrzegladKategorii97"));
    return s;
  }
  // Only the calendar month of the working date counts, whatever the time filter.
  const QDate p = sesja.pubFiltrCzasowy.pozycja;
  s.wykorzystano = SumaWezla(klucz, rodzaj,
                             QStringLiteral(" AND YEAR(data) =") + QString::number(p.year()) +
                                 QStringLiteral(" AND MONTH(data)=") + QString::number(p.month()))
                       .Razem();
  const qint64 pozostajeGrosze = WGroszach(s.limit) - WGroszach(s.wykorzystano);
  s.widoczny = true;
  s.pozostaje = ZGroszy(pozostajeGrosze);
  s.przekroczony = pozostajeGrosze < 0;
  s.wykorzystanoMain = FormatKwotyEdycja(s.wykorzystano);
  s.komentarz = Napis(s.przekroczony ? QStringLiteral("frmPrzegladKategorii94")
                                     : QStringLiteral("frmPrzegladKategorii95")) +
                QLatin1Char(' ') + FormatKwotyEdycja(s.pozostaje);
  s.lblLimit = FormatKwotyEdycja(s.limit);
  s.lblWykorzystano = FormatKwotyEdycja(s.wykorzystano);
  s.lblPozostaje = FormatKwotyEdycja(s.pozostaje);
  s.lblProcent = FormatKwotyEdycja(s.wykorzystano / s.limit * 100.0);
  s.wyczerpany = pozostajeGrosze <= 0;
  s.lbl4 = Napis(s.wyczerpany ? QStringLiteral("frmPrzegladKategorii100")
                              : QStringLiteral("frmPrzegladKategorii99"));
  return s;
}
