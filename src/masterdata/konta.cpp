#include "masterdata/konta.h"

#include "store/MsgBoxModule.h"
#include "store/filtr.h"
#include "store/kwota.h"
#include "store/napis.h"
#include "store/tekst.h"

namespace {

QString liczba(qint64 n) { return QString::number(n); }

}  // namespace

// ---- nodes -----------------------------------------------------------------------------------

WezelKont WezelKont::ZKlucza(const QString& klucz) {
  WezelKont w;
  const QChar pierwszy = klucz.isEmpty() ? QLatin1Char('R') : klucz.at(0);
  w.typ = pierwszy == QLatin1Char('q') ? 'q' : pierwszy == QLatin1Char('r') ? 'r' : 'R';
  w.numer = w.typ == 'R' ? 0 : klucz.mid(1).toLongLong();
  return w;
}

QString WezelKont::Klucz() const {
  switch (typ) {
    case 'q':
      return QLatin1Char('q') + liczba(numer);
    case 'r':
      return QLatin1Char('r') + liczba(numer);
    default:
      return QStringLiteral("Root");
  }
}

QString WezelKont::Zakres() const {
  switch (typ) {
    case 'q':
      return QStringLiteral("q");
    case 'r':
      return QLatin1Char('r') + liczba(numer);
    default:
      return QStringLiteral("R");
  }
}

ZapytaniaKont ZapytaniaWezla(const WezelKont& w) {
  const QString glowa = QStringLiteral(
      "SELECT COUNT(transakcje.id) AS ile,SUM(transakcje.przychod) AS sumprzychod,"
      "SUM(transakcje.wydatek) AS sumwydatek ");
  const QString n = liczba(w.numer);
  ZapytaniaKont z;
  switch (w.typ) {
    case 'q':
      z.bilansOtwarcia =
          QStringLiteral("SELECT bowinien AS sumabowinien, boma AS sumaboma FROM konta WHERE id=") +
          n;
      z.transakcje = glowa + QStringLiteral("FROM transakcje WHERE transakcje.konto=") + n;
      z.przychodzace =
          QStringLiteral(
              "SELECT COUNT(id) AS ile, SUM(kwota) AS suma FROM wewnetrzne WHERE nakonto=") +
          n;
      z.wychodzace =
          QStringLiteral(
              "SELECT COUNT(id) AS ile, SUM(kwota) AS suma FROM wewnetrzne WHERE zkonta=") +
          n;
      break;
    case 'r':
      // The unary plus is the same condition to Jet; it keeps SQLite from walking the entries
      // of a kind by the account index (a random read per row on a kind that holds most of
      // them) and makes it read the table through once instead.
      z.bilansOtwarcia =
          QStringLiteral(
              "SELECT SUM(bowinien) AS sumabowinien, SUM(boma) AS sumaboma FROM konta "
              "WHERE rodzaj=") +
          n;
      z.transakcje =
          glowa +
          QStringLiteral(
              "FROM transakcje,konta WHERE +transakcje.konto=konta.id AND konta.rodzaj=") +
          n;
      z.przychodzace =
          QStringLiteral(
              "SELECT COUNT(wewnetrzne.id) AS ile, SUM(kwota) AS suma FROM wewnetrzne,konta "
              "WHERE (+nakonto=konta.id AND konta.rodzaj=") +
          n + QLatin1Char(')');
      z.wychodzace =
          QStringLiteral(
              "SELECT COUNT(wewnetrzne.id) AS ile, SUM(kwota) AS suma FROM wewnetrzne,konta "
              "WHERE (+zkonta=konta.id AND konta.rodzaj=") +
          n + QLatin1Char(')');
      break;
    default:
      z.bilansOtwarcia = QStringLiteral(
          "SELECT SUM(bowinien) AS sumabowinien, SUM(boma) AS sumaboma FROM konta WHERE id<>0 ");
      z.transakcje = glowa + QStringLiteral("FROM transakcje WHERE id<>0 ");
      z.przychodzace = QStringLiteral(
          "SELECT COUNT(wewnetrzne.id) AS ile, SUM(kwota) AS suma FROM wewnetrzne WHERE id<>0 ");
      z.wychodzace = QStringLiteral(
          "SELECT COUNT(id) AS ile, SUM(kwota) AS suma FROM wewnetrzne WHERE id<>0 ");
      break;
  }
  return z;
}

// ---- sums ------------------------------------------------------------------------------------

double SumyKont::BilansOtwarcia() const { return ZGroszy(WGroszach(bowinien) - WGroszach(boma)); }

double SumyKont::Saldo() const {
  return ZGroszy(WGroszach(bowinien) - WGroszach(boma) + WGroszach(przychod) - WGroszach(wydatek) +
                 WGroszach(przychodzace) - WGroszach(wychodzace));
}

QString WarunekDlaKont(const QString& warunek) {
  QString w = warunek;
  return w.replace(QStringLiteral("data"), QStringLiteral("datautworzenia"));
}

SumyKont CzytajSumy(const WezelKont& wezel, const QString& warunek) {
  OtworzBaze();
  const ZapytaniaKont z = ZapytaniaWezla(wezel);
  Baza& b = pubBaza();
  SumyKont s;
  const Rekordy bo = b.Czytaj(z.bilansOtwarcia + WarunekDlaKont(warunek));
  s.bowinien = PoleRekordu(bo, QStringLiteral("sumabowinien"));
  s.boma = PoleRekordu(bo, QStringLiteral("sumaboma"));
  const Rekordy tr = b.Czytaj(z.transakcje + warunek);
  s.przychod = PoleRekordu(tr, QStringLiteral("sumprzychod"));
  s.wydatek = PoleRekordu(tr, QStringLiteral("sumwydatek"));
  s.przychodzace = PoleRekordu(b.Czytaj(z.przychodzace + warunek), QStringLiteral("suma"));
  s.wychodzace = PoleRekordu(b.Czytaj(z.wychodzace + warunek), QStringLiteral("suma"));
  return s;
}

double SaldoWezla(const WezelKont& wezel) { return CzytajSumy(wezel).Saldo(); }

double SaldoKonta(qint64 id) { return SaldoWezla(WezelKont::Konto(id)); }

BilansOkresu ObliczBilansOkresu(const WezelKont& wezel, const Okres& okres) {
  BilansOkresu b;
  b.przed = CzytajSumy(wezel, okres.warunekPrzed);
  b.wOkresie = CzytajSumy(wezel, okres.warunek);
  const qint64 poczatek = WGroszach(b.przed.Saldo());
  const qint64 koniec = poczatek + WGroszach(b.wOkresie.Saldo());
  b.poczatek = ZGroszy(poczatek);
  b.koniec = ZGroszy(koniec);
  b.zmiana = ZGroszy(koniec - poczatek);
  b.bilansOtwarcia =
      ZGroszy(WGroszach(b.przed.BilansOtwarcia()) + WGroszach(b.wOkresie.BilansOtwarcia()));
  b.procent = ProcentZmiany(b.poczatek, b.koniec);
  return b;
}

StanWezla CzytajStanWezla(const WezelKont& wezel, const Okres* okres) {
  StanWezla s;
  // A full scan of the entries costs the most on the root and the kinds, where nothing shows
  // the balance over all time; an account reads it through its index.
  if (wezel.typ == 'q') {
    s.maSaldo = true;
    s.saldo = SaldoWezla(wezel);
  }
  if (okres) {
    s.maBilans = true;
    s.bilans = ObliczBilansOkresu(wezel, *okres);
  }
  return s;
}

double ProcentZmiany(double przed, double po) {
  if (przed != 0.0) return (po - przed) / przed * 100.0;
  return po == 0.0 ? 0.0 : 100.0;
}

int StanLimitu(double saldo, double limit) {
  const qint64 s = WGroszach(saldo);
  if (s >= 0) return 1;
  return WGroszach(limit) >= -s ? 2 : 3;
}

// ---- lookups ---------------------------------------------------------------------------------

QString OpisKonta(KontoRekord& konto) {
  OtworzBaze();
  const Rekordy rs = pubBaza().Czytaj(
      QStringLiteral("SELECT nazwa,rodzaj,id,limit FROM konta WHERE id=") + liczba(konto.id));
  if (rs.Eof() || rs.Pole(QStringLiteral("id")).toLongLong() == 0) {
    konto.id = 0;
    konto.nazwa.clear();
    konto.rodzaj = 0;
    konto.limit = 0;
    return Napis(QStringLiteral("Module153"));
  }
  konto.nazwa = rs.Tekst(QStringLiteral("nazwa"));
  konto.rodzaj = int(PoleRekordu(rs, QStringLiteral("rodzaj")));
  konto.limit = PoleRekordu(rs, QStringLiteral("limit"));
  return konto.nazwa + QStringLiteral(" (") + NazwaRodzajuKonta(konto.rodzaj) + QLatin1Char(')');
}

QDate DataUtworzeniaKonta(qint64 id) {
  OtworzBaze();
  const Rekordy rs =
      pubBaza().Czytaj(QStringLiteral("SELECT datautworzenia FROM konta WHERE id=") + liczba(id));
  return QDate::fromString(rs.Tekst(QStringLiteral("datautworzenia")).left(10), Qt::ISODate);
}

// ---- saving ----------------------------------------------------------------------------------

PytanieKonta SprawdzZapisKonta(const DaneKonta& dane) {
  const QString nazwa = dane.nazwa.trimmed();
  if (nazwa.isEmpty())
    return {PytanieKonta::Odmowa, Napis(QStringLiteral("frmEdycjaKonta25")) + QLatin1Char(' '),
            Napis(QStringLiteral("frmEdycjaKonta26"))};
  if (dane.id == 0) {
    OtworzBaze();
    if (PoliczIle(QStringLiteral("SELECT COUNT(*) AS ile FROM konta WHERE nazwa=") +
                  SqlTekst(nazwa)) > 0)
      return {PytanieKonta::Pytanie,
              Napis(QStringLiteral("frmEdycjaKonta27")) + QLatin1Char(' ') + nazwa +
                  Napis(QStringLiteral("frmEdycjaKonta28")),
              Napis(QStringLiteral("frmEdycjaKonta29"))};
  }
  return {};
}

WynikZapisu ZapiszKonto(const DaneKonta& dane, qint64* nowyId) {
  OtworzBaze();
  const QString data = ZapisDaty(sesja.pubFiltrCzasowy.pozycja);
  const QString nazwa = SqlTekst(dane.nazwa.trimmed());
  const QString opis = SqlTekst(dane.opis.trimmed());
  // An empty amount field is stored as 0; no range check is made.
  QString winien = dane.winien, ma = dane.ma, limit = dane.limit;
  winien = SqlTekst(KropkaNaSeparator(winien));
  ma = SqlTekst(KropkaNaSeparator(ma));
  limit = SqlTekst(KropkaNaSeparator(limit));
  const QString rodzaj = SqlTekst(QString::number(dane.rodzaj));
  Baza& b = pubBaza();
  // The number travels in the same statement as the rest of the row: never one without the other.
  const QString numer = dane.numer ? SqlTekst(*dane.numer) : QString();
  if (dane.id != 0)
    return b.Wykonaj(QStringLiteral("UPDATE konta SET nazwa=") + nazwa + QStringLiteral(", opis=") +
                     opis + QStringLiteral(", rodzaj=") + rodzaj + QStringLiteral(", bowinien=") +
                     winien + QStringLiteral(",boma=") + ma + QStringLiteral(",limit=") + limit +
                     (dane.numer ? QStringLiteral(",numer=") + numer : QString()) +
                     QStringLiteral(" WHERE id=") + liczba(dane.id));
  const WynikZapisu w = b.Wykonaj(
      QStringLiteral("INSERT INTO konta (datautworzenia,nazwa,opis,rodzaj,bowinien,boma,limit") +
      (dane.numer ? QStringLiteral(",numer") : QString()) + QStringLiteral(") VALUES (#") + data +
      QStringLiteral("#,") + nazwa + QLatin1Char(',') + opis + QLatin1Char(',') + rodzaj +
      QLatin1Char(',') + winien + QLatin1Char(',') + ma + QLatin1Char(',') + limit +
      (dane.numer ? QLatin1Char(',') + numer : QString()) + QLatin1Char(')'));
  if (w && nowyId) {
    const Rekordy rs = b.Czytaj(QStringLiteral("SELECT TOP 1 id FROM konta ORDER BY id DESC"));
    *nowyId = rs.Pole(QStringLiteral("id")).toLongLong();
  }
  return w;
}

namespace {
// Shows the refusal or question; true when the caller may go on.
bool zapytaj(const PytanieKonta& p) {
  switch (p.rodzaj) {
    case PytanieKonta::Odmowa:
      MyMsgbox(p.tekst, p.tytul, MsgOK, IkonaOstrzezenie);
      return false;
    case PytanieKonta::Pytanie:
      return MyMsgbox(p.tekst, p.tytul, MsgTakNie, IkonaPytanie) == WynikTak;
    default:
      return true;
  }
}
}  // namespace

bool ZapiszKontoZPytaniami(const DaneKonta& dane, qint64* nowyId) {
  if (!zapytaj(SprawdzZapisKonta(dane))) return false;
  const WynikZapisu w = ZapiszKonto(dane, nowyId);
  if (!w) {
    MyMsgbox(Napis(QStringLiteral("frmEdycjaKonta33")) + QStringLiteral("\r\n") + w.blad,
             Napis(QStringLiteral("frmEdycjaKonta34")), MsgOK, IkonaOstrzezenie);
    return false;
  }
  return true;
}

// ---- deleting --------------------------------------------------------------------------------

PytanieKonta SprawdzUsuniecieKonta(qint64 id, const QString& nazwa) {
  OtworzBaze();
  const QString n = liczba(id);
  const qint64 ile =
      PoliczIle(QStringLiteral("SELECT COUNT(id) AS ile FROM transakcje WHERE konto=") + n) +
      PoliczIle(QStringLiteral("SELECT COUNT(id) AS ile FROM zaplanowane WHERE konto=") + n) +
      PoliczIle(QStringLiteral("SELECT COUNT(id) AS ile FROM wewnetrzne WHERE nakonto=") + n +
                QStringLiteral(" OR zkonta=") + n) +
      PoliczIle(
          QStringLiteral("SELECT COUNT(id) AS ile FROM zaplanowanewewnetrzne WHERE nakonto=") + n +
          QStringLiteral(" OR zkonta=") + n);
  if (ile >= 1)
    return {PytanieKonta::Odmowa,
            Napis(QStringLiteral("frmPrzegladKont71")) + QLatin1Char(' ') + nazwa +
                QLatin1Char(' ') + Napis(QStringLiteral("frmPrzegladKont72")),
            Napis(QStringLiteral("frmPrzegladKont73"))};
  return {
      PytanieKonta::Pytanie,
      Napis(QStringLiteral("frmPrzegladKont74")) + QLatin1Char(' ') + nazwa + QStringLiteral(" ?"),
      Napis(QStringLiteral("frmPrzegladKont75"))};
}

bool UsunKonto(qint64 id) {
  OtworzBaze();
  const QString n = liczba(id);
  Baza& b = pubBaza();
  // Templates never block a deletion: they go with the account.
  return b.Transakcja([&] {
    return b.Wykonaj(QStringLiteral("DELETE FROM konta WHERE id=") + n) &&
           b.Wykonaj(QStringLiteral("DELETE FROM szablony WHERE konto=") + n) &&
           b.Wykonaj(QStringLiteral("DELETE FROM szablonywewnetrzne WHERE nakonto=") + n +
                     QStringLiteral(" OR zkonta=") + n);
  });
}

bool UsunKontoZPytaniami(qint64 id, const QString& nazwa) {
  if (!zapytaj(SprawdzUsuniecieKonta(id, nazwa))) return false;
  if (!UsunKonto(id)) {
    MyMsgbox(Napis(QStringLiteral("frmPrzegladKont92")) + QLatin1Char(' ') + nazwa,
             Napis(QStringLiteral("frmPrzegladKont75")), MsgOK, IkonaOstrzezenie);
    return false;
  }
  return true;
}

// ---- lists of a node -------------------------------------------------------------------------

FiltrListy FiltrTransakcjiWezla(const WezelKont& w, const QString& nazwaKonta) {
  const QString n = liczba(w.numer);
  switch (w.typ) {
    case 'q':
      return {QStringLiteral(" AND transakcje.konto=") + n,
              Napis(QStringLiteral("frmPrzegladKont65")) + QLatin1Char(' ') + nazwaKonta};
    case 'r':
      return {QStringLiteral(" AND (transakcje.konto=konta.id AND konta.rodzaj=") + n +
                  QLatin1Char(')'),
              Napis(QStringLiteral("frmPrzegladKont64")) + QLatin1Char(' ') +
                  NazwaRodzajuKonta(int(w.numer))};
    default:
      return {QStringLiteral(" AND transakcje.konto=konta.id "),
              Napis(QStringLiteral("frmPrzegladKont63"))};
  }
}

FiltrListy FiltrTransferowWezla(const WezelKont& w, const QString& nazwaKonta) {
  const QString n = liczba(w.numer);
  switch (w.typ) {
    case 'q':
      return {QStringLiteral(" AND (wewnetrzne.zkonta=") + n +
                  QStringLiteral(" OR wewnetrzne.nakonto=") + n + QStringLiteral(" )"),
              Napis(QStringLiteral("frmPrzegladKont68")) + QLatin1Char(' ') + nazwaKonta, 0,
              w.numer};
    case 'r':
      return {QStringLiteral(" AND ((wewnetrzne.zkonta=konta.id AND konta.rodzaj=") + n +
                  QStringLiteral(" ) OR (wewnetrzne.nakonto=kontaprim.id AND kontaprim.rodzaj= ") +
                  n + QStringLiteral(" ))"),
              Napis(QStringLiteral("frmPrzegladKont67")) + QLatin1Char(' ') +
                  NazwaRodzajuKonta(int(w.numer)),
              int(w.numer), 0};
    default:
      return {QStringLiteral(" AND 1=1 "), Napis(QStringLiteral("frmPrzegladKont66")), 0, 0};
  }
}
