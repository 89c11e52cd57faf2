// The reports over time: six months side by side, ending with the month of the time filter's
// date. Each report reads its entries in one grouped pass over the months it needs (a range of
// dates the date index serves) and adds them up in whole grosze, instead of one statement per row
// and month; the sums are the same.

#include "reports/raporty_w_czasie.h"

#include <QHash>
#include <array>

#include "reports/raporty.h"
#include "reports/wspolne.h"
#include "reports/wykres_raportu.h"
#include "store/baza.h"
#include "store/filtr.h"
#include "store/kwota.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"
#include "ui/wykresy.h"

OknoMiesiecy::OknoMiesiecy(const QDate& dzien) : m(dzien.month()), y(dzien.year()) {
  const QDate pierwszy(y, m, 1);
  pierwszyPokazany = pierwszy.addMonths(-5);
  // With M above 6 the window also fetches the month before the six (column 0).
  od = m > 6 ? pierwszy.addMonths(-6) : pierwszyPokazany;
  do_ = pierwszy.addMonths(1);
}

int OknoMiesiecy::Kolumna(int miesiac) const {
  int k = miesiac + (6 - m);
  if (k > 12) k -= 12;
  return k;
}

QString OknoMiesiecy::Okno() const {
  const auto n = [](int v) { return QString::number(v); };
  if (m > 6)
    return QStringLiteral(" AND MONTH(data)>=") + n(m - 6) + QStringLiteral(" AND YEAR(data)=") +
           n(y) + QStringLiteral(" AND (MONTH(data)<=") + n(m) + QStringLiteral(") AND (YEAR(data)=") +
           n(y) + QStringLiteral(") GROUP BY MONTH(data)");
  return QStringLiteral(" AND ((MONTH(data)<=") + n(m) + QStringLiteral(" AND YEAR(data)=") + n(y) +
         QStringLiteral(") OR (MONTH(data)>") + n(m + 6) + QStringLiteral(" AND YEAR(data)=") +
         n(y - 1) + QStringLiteral(")) GROUP BY MONTH(data)");
}

QString OknoMiesiecy::Przed() const {
  const auto n = [](int v) { return QString::number(v); };
  if (m > 5)
    return QStringLiteral(" AND ((MONTH(data)<=") + n(m - 6) + QStringLiteral("AND YEAR (data)=") +
           n(y) + QStringLiteral(") OR (YEAR (data)<") + n(y) + QStringLiteral(" ))");
  return QStringLiteral(" AND ((MONTH(data)<") + n(m + 7) + QStringLiteral("AND YEAR (data)<") +
         n(y) + QStringLiteral(") OR (YEAR (data)<") + n(y - 1) + QStringLiteral(" ))");
}

QString OknoMiesiecy::Zakres(const QString& kolumna) const {
  return QStringLiteral(" AND %1>=#%2# AND %1<#%3#").arg(kolumna, ZapisDaty(od), ZapisDaty(do_));
}

QString LiczbaBezMaski(qint64 grosze) {
  const qint64 a = grosze < 0 ? -grosze : grosze;
  QString t = QString::number(a / 100);
  if (const qint64 g = a % 100; g != 0) {
    QString u = QStringLiteral("%1").arg(g, 2, 10, QLatin1Char('0'));
    if (u.endsWith(QLatin1Char('0'))) u.chop(1);
    t += sesja.pubSeparator + u;
  }
  return grosze < 0 ? QLatin1Char('-') + t : t;
}

namespace {

using Szesc = std::array<qint64, 7>;  // columns 0 to 6; column 0 is never shown

// Title at 45 bold, two breaks, then head field A and the six month names, head field B and the
// six years, and the rule.
void Naglowek(Raport& r, const OknoMiesiecy& o, const QString& tytul, const QString& a,
              const QString& b, int k, int w, int regula, const QString& pierwszaKolumna) {
  TytulRaportu(r, tytul);
  NowaLinia(r, 2);
  const QDate dzien = sesja.pubFiltrCzasowy.pozycja;
  PoleRaportu(r, a, k, 0);
  QStringList tabela{pierwszaKolumna};
  for (int i = -5; i <= 0; ++i) {
    PoleRaportu(r, FormatDaty(dzien.addMonths(i), QStringLiteral("mmmm")), w, 0);
    tabela << FormatDaty(dzien.addMonths(i), QStringLiteral("mmmm")) + QLatin1Char(' ') +
                  FormatDaty(dzien.addMonths(i), QStringLiteral("yyyy"));
  }
  NowaLinia(r, 1);
  PoleRaportu(r, b, k, 0);
  for (int i = -5; i <= 0; ++i)
    PoleRaportu(r, FormatDaty(dzien.addMonths(i), QStringLiteral("yyyy")), w, 0);
  NowaLinia(r, 1);
  LiniaRaportu(r, regula, false);
  r.dok.ZakonczNaglowek();
  r.dok.tabela.push_back(tabela);
  (void)o;
}

// ---- accounts --------------------------------------------------------------------------------

// Flows of one account: before the window, and per column of the window. Series: 0 income,
// 1 expense, 2 transfers in, 3 transfers out.
struct Ruchy {
  std::array<qint64, 4> przed{};
  std::array<Szesc, 4> kolumny{};
  void Dodaj(const Ruchy& r) {
    for (int s = 0; s < 4; ++s) {
      przed[s] += r.przed[s];
      for (int k = 0; k < 7; ++k) kolumny[s][k] += r.kolumny[s][k];
    }
  }
};

class RaportKontWCzasie {
 public:
  RaportKontWCzasie(Raport& r, const OknoMiesiecy& o) : r_(r), o_(o) {}

  void Tworz() {
    Wczytaj();
    const QString wezel = sesja.pubWezelKont;
    const QChar typ = wezel.isEmpty() ? QLatin1Char('R') : wezel[0];
    const int rodzaj = wezel.right(1).toInt();
    Naglowek(r_, o_, Napis(QStringLiteral("frmRaportKontaWCzasie")),
             Napis(QStringLiteral("frmRaportKontaWCzasie10")), QStringLiteral(" "), 20, -12, 92,
             Napis(QStringLiteral("frmRaportKontaWCzasie10")).trimmed());
    if (typ == QLatin1Char('r'))
      Wiersz(NazwaRodzajuKonta(rodzaj), Otwarcie(QStringLiteral("rodzaj=%1").arg(rodzaj)),
             Rodzaju(rodzaj), 0);
    else if (typ == QLatin1Char('q'))
      Wiersz(sesja.pubKonto.nazwa, Otwarcie(QStringLiteral("id=%1").arg(sesja.pubKonto.id)),
             ruchy_.value(sesja.pubKonto.id), 0);
    else
      Wiersz(Napis(QStringLiteral("frmRaportKontaWCzasie8")), Otwarcie(QStringLiteral("id<>0 ")),
             Wszystkie(), 0);
    NowaLinia(r_, 1);
    LiniaRaportu(r_, r_.pubSzerokoscRaportu, true);
    if (typ == QLatin1Char('R')) {
      for (int k = 1; k <= 6 && !r_.przerwano; ++k) {
        r_.Opis(Napis(QStringLiteral("frmRaportKontaWCzasie11")) + QLatin1Char(' ') +
                NazwaRodzajuKonta(k));
        Wiersz(NazwaRodzajuKonta(k), Otwarcie(QStringLiteral("rodzaj=%1").arg(k)), Rodzaju(k), 2);
        KontaRodzaju(k);
      }
    } else if (typ == QLatin1Char('r')) {
      KontaRodzaju(rodzaj);
    }
    StopkaRaportu(r_);
  }

 private:
  Raport& r_;
  const OknoMiesiecy& o_;
  QHash<qint64, Ruchy> ruchy_;       // by account number, accounts no longer kept included
  QHash<qint64, int> rodzajKonta_;  // the kind of every kept account

  // The entries and transfers up to the window's end, by account: the sums before the window in
  // one pass, and those of the window by month in another.
  void Wczytaj() {
    const QString przed = QStringLiteral(" WHERE data<#%1# ").arg(ZapisDaty(o_.pierwszyPokazany));
    const QString okno = QStringLiteral(" WHERE data>=#%1# AND data<#%2# ")
                             .arg(ZapisDaty(o_.pierwszyPokazany), ZapisDaty(o_.do_));
    const auto dodaj = [&](qint64 konto, int miesiac, int seria, qint64 kwota) {
      Ruchy& r = ruchy_[konto];
      if (miesiac == 0)
        r.przed[size_t(seria)] += kwota;
      else
        r.kolumny[size_t(seria)][size_t(o_.Kolumna(miesiac))] += kwota;
    };
    for (const bool wOknie : {false, true}) {
      Rekordy rs = pubBaza().Czytaj(
          wOknie ? QStringLiteral("SELECT konto, MONTH(data) AS miesiac, SUM(przychod) AS "
                                  "sumprzychod, SUM(wydatek) AS sumwydatek FROM transakcje") +
                       okno + QStringLiteral("GROUP BY konto, MONTH(data)")
                 : QStringLiteral("SELECT konto, 0 AS miesiac, SUM(przychod) AS sumprzychod, "
                                  "SUM(wydatek) AS sumwydatek FROM transakcje") +
                       przed + QStringLiteral("GROUP BY konto"));
      for (; !rs.Eof(); rs.MoveNext()) {
        const qint64 konto = rs.Pole(QStringLiteral("konto")).toLongLong();
        const int miesiac = rs.Pole(QStringLiteral("miesiac")).toInt();
        dodaj(konto, miesiac, 0, Grosze(rs, QStringLiteral("sumprzychod")));
        dodaj(konto, miesiac, 1, Grosze(rs, QStringLiteral("sumwydatek")));
      }
      rs = pubBaza().Czytaj(
          wOknie ? QStringLiteral("SELECT zkonta, nakonto, MONTH(data) AS miesiac, SUM(kwota) AS "
                                  "suma FROM wewnetrzne") +
                       okno + QStringLiteral("GROUP BY zkonta, nakonto, MONTH(data)")
                 : QStringLiteral("SELECT zkonta, nakonto, 0 AS miesiac, SUM(kwota) AS suma FROM "
                                  "wewnetrzne") +
                       przed + QStringLiteral("GROUP BY zkonta, nakonto"));
      for (; !rs.Eof(); rs.MoveNext()) {
        const qint64 suma = Grosze(rs, QStringLiteral("suma"));
        const int miesiac = rs.Pole(QStringLiteral("miesiac")).toInt();
        dodaj(rs.Pole(QStringLiteral("nakonto")).toLongLong(), miesiac, 2, suma);
        dodaj(rs.Pole(QStringLiteral("zkonta")).toLongLong(), miesiac, 3, suma);
      }
    }
    Rekordy rs = pubBaza().Czytaj(QStringLiteral("SELECT id,rodzaj FROM konta"));
    for (; !rs.Eof(); rs.MoveNext())
      rodzajKonta_.insert(rs.Pole(QStringLiteral("id")).toLongLong(),
                          rs.Pole(QStringLiteral("rodzaj")).toInt());
  }

  // Every account's flows, kept or not: the rows of all accounts read the whole tables.
  Ruchy Wszystkie() const {
    Ruchy w;
    for (const Ruchy& r : ruchy_) w.Dodaj(r);
    return w;
  }
  Ruchy Rodzaju(int rodzaj) const {
    Ruchy w;
    for (auto it = ruchy_.cbegin(); it != ruchy_.cend(); ++it)
      if (rodzajKonta_.value(it.key(), -1) == rodzaj) w.Dodaj(*it);
    return w;
  }

  // The opening balances: those of accounts opened before the window, and of the accounts opened
  // in the window's first month that has any, in that month's column (the first row of the
  // grouped statement only).
  struct Bilans {
    qint64 przed[2] = {0, 0};
    Szesc kolumny[2] = {};
  };
  Bilans Otwarcie(const QString& warunek) const {
    const QString sql =
        QStringLiteral("SELECT SUM(bowinien) AS sumabowinien, SUM(boma) AS sumaboma, "
                       "MAX(MONTH(datautworzenia)) AS miesiac FROM konta WHERE ") +
        warunek;
    const auto zamien = [](QString t) {
      return t.replace(QStringLiteral("data)"), QStringLiteral("datautworzenia)"));
    };
    Bilans b;
    Rekordy rs = pubBaza().Czytaj(sql + zamien(o_.Przed()));
    b.przed[0] = Grosze(rs, QStringLiteral("sumabowinien"));
    b.przed[1] = Grosze(rs, QStringLiteral("sumaboma"));
    rs = pubBaza().Czytaj(sql + zamien(o_.Okno()));
    if (!rs.Eof()) {
      const int miesiac = rs.Pole(QStringLiteral("miesiac")).toInt();
      if (miesiac != 0) {
        const size_t k = size_t(o_.Kolumna(miesiac));
        if (k < 7) {
          b.kolumny[0][k] = Grosze(rs, QStringLiteral("sumabowinien"));
          b.kolumny[1][k] = Grosze(rs, QStringLiteral("sumaboma"));
        }
      }
    }
    return b;
  }

  void Wiersz(const QString& nazwa, const Bilans& b, const Ruchy& r, int wciecie) {
    PoleRaportu(r_, QString(wciecie, QLatin1Char(' ')), wciecie, 0);
    PoleRaportu(r_, nazwa.left(16), 20 - wciecie, 0);
    QStringList tabela{nazwa.trimmed()};
    qint64 stan = r.przed[0] - r.przed[1] + r.przed[2] - r.przed[3] + b.przed[0] - b.przed[1];
    for (size_t m = 1; m <= 6; ++m) {
      stan += r.kolumny[0][m] - r.kolumny[1][m] + r.kolumny[2][m] - r.kolumny[3][m] +
              b.kolumny[0][m] - b.kolumny[1][m];
      // The plain number, with no mask and no grouping, unlike every other amount.
      PoleRaportu(r_, LiczbaBezMaski(stan), -12, 0);
      tabela << KwotaTabeli(stan);
    }
    r_.dok.tabela.push_back(tabela);
    NowaLinia(r_, 1);
  }

  void KontaRodzaju(int rodzaj) {
    LiniaRaportu(r_, r_.pubSzerokoscRaportu, false);
    Rekordy rs =
        pubBaza().Czytaj(QStringLiteral("SELECT id,nazwa FROM konta WHERE rodzaj=%1").arg(rodzaj));
    r_.Maksimum(int(rs.RecordCount()));
    int licznik = 1;
    const bool byly = !rs.Eof();
    for (; !rs.Eof(); rs.MoveNext()) {
      if (r_.Przerwij(licznik++)) break;
      const qint64 id = rs.Pole(QStringLiteral("id")).toLongLong();
      Wiersz(rs.Tekst(QStringLiteral("nazwa")), Otwarcie(QStringLiteral("id=%1").arg(id)),
             ruchy_.value(id), 4);
    }
    if (byly) LiniaRaportu(r_, r_.pubSzerokoscRaportu, false);
  }
};

// ---- sums by month of a grouped key ----------------------------------------------------------

// income + expense by key and column, read in one statement: "klucz" and "miesiac" per row.
QHash<QString, Szesc> SumyMiesiecy(const OknoMiesiecy& o, const QString& sql) {
  QHash<QString, Szesc> wynik;
  for (Rekordy rs = pubBaza().Czytaj(sql); !rs.Eof(); rs.MoveNext()) {
    const int miesiac = rs.Pole(QStringLiteral("miesiac")).toInt();
    if (miesiac == 0) continue;
    const int k = o.Kolumna(miesiac);
    if (k < 0 || k > 6) continue;
    wynik[rs.Tekst(QStringLiteral("klucz"))][size_t(k)] +=
        Grosze(rs, QStringLiteral("sumprzychod")) + Grosze(rs, QStringLiteral("sumwydatek"));
  }
  return wynik;
}

QStringList SzescMiesiecy() {
  QStringList w;
  for (int i = -5; i <= 0; ++i)
    w << FormatDaty(sesja.pubFiltrCzasowy.pozycja.addMonths(i), QStringLiteral("mmmm"));
  return w;
}

}  // namespace

void TworzRaportKontWCzasie(Raport& r) {
  sesja.pubOkres = FiltrCzasowy(sesja.pubFiltrCzasowy);
  const OknoMiesiecy o(sesja.pubFiltrCzasowy.pozycja);
  RaportKontWCzasie(r, o).Tworz();
}

void TworzRaportKategoriiWCzasie(Raport& r) {
  sesja.pubOkres = FiltrCzasowy(sesja.pubFiltrCzasowy);
  const OknoMiesiecy o(sesja.pubFiltrCzasowy.pozycja);
  const QString wybrana = sesja.pubKategoria.identyfikator;
  const int rodzaj = sesja.pubKategoria.rodzaj;
  Naglowek(r, o,
           Napis(rodzaj == 1 ? QStringLiteral("frmRaportKategorieWCzasie8")
                             : QStringLiteral("frmRaportKategorieWCzasie9")),
           QString(), Napis(QStringLiteral("frmRaportKategorieWCzasie10")), 28, -11, 94,
           Napis(QStringLiteral("frmRaportKategorieWCzasie10")).trimmed());

  const QHash<QString, Szesc> sumy = SumyMiesiecy(
      o, QStringLiteral("SELECT kategoria AS klucz, MONTH(data) AS miesiac, SUM(przychod) AS "
                        "sumprzychod, SUM(wydatek) AS sumwydatek FROM transakcje WHERE rodzaj=%1")
                 .arg(rodzaj) +
             o.Zakres(QStringLiteral("data")) + QStringLiteral(" GROUP BY kategoria, MONTH(data)"));

  Rekordy rs = pubBaza().Czytaj(
      wybrana == QLatin1String("Root")
          ? QStringLiteral("SELECT nazwa,identyfikator FROM kategorie WHERE rodzaj=%1 ORDER BY "
                           "identyfikator ")
                .arg(rodzaj)
          : QStringLiteral("SELECT nazwa,identyfikator FROM kategorie WHERE identyfikator LIKE %1 "
                           "AND rodzaj=%2 ORDER BY identyfikator ")
                .arg(SqlTekst(wybrana + QLatin1Char('*')))
                .arg(rodzaj));
  r.Maksimum(int(rs.RecordCount()));
  const QStringList miesiace = SzescMiesiecy();
  int licznik = 1;
  for (; !rs.Eof(); rs.MoveNext()) {
    if (r.Przerwij(licznik++)) break;
    const QString x = rs.Tekst(QStringLiteral("identyfikator"));
    const QString nazwa = rs.Tekst(QStringLiteral("nazwa"));
    // The category with all its descendants: every key that begins with its own, letter for
    // letter as the keys compare.
    Szesc szesc{};
    for (auto it = sumy.cbegin(); it != sumy.cend(); ++it)
      if (it.key().startsWith(x))
        for (size_t k = 0; k < 7; ++k) szesc[k] += (*it)[k];
    const int wciecie = int(x.size() - 1) * 4;
    PoleRaportu(r, QString(), wciecie, 0);
    PoleRaportu(r, nazwa, 16, 0);
    PoleRaportu(r, QString(), 12 - wciecie, 0);
    QStringList tabela{x, nazwa.trimmed()};
    std::vector<double> wykres;
    for (size_t k = 1; k <= 6; ++k) {
      PoleRaportu(r, KwotaRaportu(szesc[k]), -11, 0);
      tabela << KwotaTabeli(szesc[k]);
      wykres.push_back(ZGroszy(szesc[k]));
    }
    r.dok.tabela.push_back(tabela);
    if (x.size() == 1) {
      NowaLinia(r, 1);
      DaneWykresu dane = WykresMiesiecy(wykres, miesiace);
      dane.etykietyKolumn = {Napis(QStringLiteral("frmRaportKategorieWCzasie11"))};
      r.dok.Wstaw(ObrazSlupkow(dane));
    }
    NowaLinia(r, 1);
  }
  StopkaRaportu(r);
}

void TworzRaportKontrahentaWCzasie(Raport& r) {
  sesja.pubOkres = FiltrCzasowy(sesja.pubFiltrCzasowy);
  const OknoMiesiecy o(sesja.pubFiltrCzasowy.pozycja);
  const qint64 wybrany = sesja.pubKontrahent.id;
  Naglowek(r, o, Napis(QStringLiteral("frmRaportKontrahentaWCzasie8")), QString(),
           Napis(QStringLiteral("frmRaportKontrahentaWCzasie9")), 24, -12, 96,
           Napis(QStringLiteral("frmRaportKontrahentaWCzasie9")).trimmed());

  const QHash<QString, Szesc> sumy = SumyMiesiecy(
      o, QStringLiteral("SELECT kontrahent AS klucz, MONTH(data) AS miesiac, SUM(przychod) AS "
                        "sumprzychod, SUM(wydatek) AS sumwydatek FROM transakcje WHERE 1=1") +
             (wybrany != 0 ? QStringLiteral(" AND kontrahent=%1").arg(wybrany) : QString()) +
             o.Zakres(QStringLiteral("data")) + QStringLiteral(" GROUP BY kontrahent, MONTH(data)"));

  Rekordy rs = pubBaza().Czytaj(
      wybrany != 0 ? QStringLiteral("SELECT id,skrocona FROM kontrahent WHERE id=%1").arg(wybrany)
                   : QStringLiteral("SELECT id,skrocona FROM kontrahent ORDER BY skrocona "));
  r.Maksimum(int(rs.RecordCount()));
  int licznik = 1;
  for (; !rs.Eof(); rs.MoveNext()) {
    if (r.Przerwij(licznik++)) break;
    const QString nazwa = rs.Tekst(QStringLiteral("skrocona"));
    const Szesc szesc = sumy.value(rs.Tekst(QStringLiteral("id")));
    PoleRaportu(r, nazwa, 16, 0);
    PoleRaportu(r, QString(), 8, 0);
    QStringList tabela{nazwa.trimmed()};
    for (size_t k = 1; k <= 6; ++k) {
      PoleRaportu(r, KwotaRaportu(szesc[k]), -12, 0);
      tabela << KwotaTabeli(szesc[k]);
    }
    r.dok.tabela.push_back(tabela);
    NowaLinia(r, 1);
  }
  StopkaRaportu(r);
}
