// The account report: for all accounts, one kind or one account, the balance at the end and at
// the start of the period and the flows between; for all accounts broken down by kind and by
// account. Amounts are added in whole grosze.

#include "reports/raporty.h"
#include "reports/wspolne.h"
#include "store/baza.h"
#include "store/filtr.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"

namespace {

struct Zapytania {
  QString otwarcie, wpisy, na, z;
};

Zapytania konta(qint64 n) {
  const QString k = QString::number(n);
  return {QStringLiteral("SELECT bowinien AS sumabowinien, boma AS sumaboma FROM konta WHERE id=") +
              k,
          QStringLiteral("SELECT COUNT(transakcje.id) AS ile,SUM(transakcje.przychod) AS "
                         "sumprzychod,SUM(transakcje.wydatek) AS sumwydatek FROM transakcje WHERE "
                         "transakcje.konto=") +
              k,
          QStringLiteral("SELECT COUNT(id) AS ile, SUM(kwota) AS suma FROM wewnetrzne WHERE nakonto=") +
              k,
          QStringLiteral("SELECT COUNT(id) AS ile, SUM(kwota) AS suma FROM wewnetrzne WHERE zkonta=") +
              k};
}

Zapytania rodzaju(int rodzaj) {
  const QString k = QString::number(rodzaj);
  return {QStringLiteral("SELECT SUM(bowinien) AS sumabowinien, SUM(boma) AS sumaboma FROM konta "
                         "WHERE rodzaj=") +
              k,
          QStringLiteral("SELECT COUNT(transakcje.id) AS ile,SUM(transakcje.przychod) AS "
                         "sumprzychod,SUM(transakcje.wydatek) AS sumwydatek FROM transakcje,konta "
                         "WHERE transakcje.konto=konta.id AND konta.rodzaj=") +
              k,
          QStringLiteral("SELECT COUNT(wewnetrzne.id) AS ile, SUM(kwota) AS suma FROM "
                         "wewnetrzne,konta WHERE (nakonto=konta.id AND konta.rodzaj=%1)")
              .arg(k),
          QStringLiteral("SELECT COUNT(wewnetrzne.id) AS ile, SUM(kwota) AS suma FROM "
                         "wewnetrzne,konta WHERE (zkonta=konta.id AND konta.rodzaj=%1)")
              .arg(k)};
}

Zapytania wszystkich() {
  return {QStringLiteral(
              "SELECT SUM(bowinien) AS sumabowinien, SUM(boma) AS sumaboma FROM konta WHERE id<>0 "),
          QStringLiteral("SELECT COUNT(transakcje.id) AS ile,SUM(transakcje.przychod) AS "
                         "sumprzychod,SUM(transakcje.wydatek) AS sumwydatek FROM transakcje WHERE "
                         "id<>0 "),
          QStringLiteral("SELECT COUNT(id) AS ile, SUM(kwota) AS suma FROM wewnetrzne WHERE id<>0 "),
          QStringLiteral("SELECT COUNT(id) AS ile, SUM(kwota) AS suma FROM wewnetrzne WHERE id<>0 ")};
}

class RaportKont {
 public:
  explicit RaportKont(Raport& r) : r_(r) {}

  void Tworz() {
    const QString wezel = sesja.pubWezelKont;
    const QChar typ = wezel.isEmpty() ? QLatin1Char('R') : wezel[0];
    const int rodzaj = wezel.right(1).toInt();
    wciecie_ = 0;
    if (typ == QLatin1Char('r')) {
      zapytania_ = rodzaju(rodzaj);
      nazwa_ = NazwaRodzajuKonta(rodzaj);
      konto_ = 0;
    } else if (typ == QLatin1Char('q')) {
      zapytania_ = konta(sesja.pubKonto.id);
      nazwa_ = sesja.pubKonto.nazwa;
      konto_ = sesja.pubKonto.id;
    } else {
      zapytania_ = wszystkich();
      nazwa_ = Napis(QStringLiteral("frmRaport8"));
      konto_ = 0;
    }
    Naglowek();
    WierszKonta();
    NowaLinia(r_, 1);
    LiniaRaportu(r_, r_.pubSzerokoscRaportu, true);
    if (typ == QLatin1Char('R')) {
      for (int k = 1; k <= 6; ++k) {
        r_.Opis(Napis(QStringLiteral("frmRaport22")) + QLatin1Char(' ') + NazwaRodzajuKonta(k));
        zapytania_ = rodzaju(k);
        nazwa_ = NazwaRodzajuKonta(k);
        konto_ = 0;
        wciecie_ = 1;
        WierszKonta();
        KontaRodzaju(k);
      }
    } else if (typ == QLatin1Char('r')) {
      KontaRodzaju(rodzaj);
    }
    StopkaRaportu(r_);
  }

 private:
  Raport& r_;
  Zapytania zapytania_;
  QString nazwa_;
  qint64 konto_ = 0;
  int wciecie_ = 0;

  void Naglowek() {
    const auto p = [this](const char* klucz, int szerokosc) {
      PoleRaportu(r_, klucz ? Napis(QLatin1String(klucz)) : QString(), szerokosc, 0);
    };
    TytulRaportu(r_, sesja.pubOkres.opisDlugi);
    NowaLinia(r_, 1);
    p(nullptr, 23), p("frmRaport9", 10), p("frmRaport10", 11), p(nullptr, 9), p(nullptr, 11);
    p("frmRaport11", 11), p("frmRaport12", 9), p(nullptr, 9);
    NowaLinia(r_, 1);
    p("frmRaport14", 22), p("frmRaport15", 12), p("frmRaport16", 9), p("frmRaport17", 13);
    p("frmRaport18", 8), p("frmRaport19", 13), p("frmRaport20", 11), p("frmRaport21", 7);
    NowaLinia(r_, 1);
    LiniaRaportu(r_, r_.pubSzerokoscRaportu, false);
    r_.dok.ZakonczNaglowek();
    const auto dwie = [](const char* a, const char* b) {
      return (Napis(QLatin1String(a)).trimmed() + QLatin1Char(' ') + Napis(QLatin1String(b)).trimmed())
          .trimmed();
    };
    r_.dok.tabela.push_back({Napis(QStringLiteral("frmRaport14")).trimmed(),
                             dwie("frmRaport9", "frmRaport15"), dwie("frmRaport10", "frmRaport16"),
                             Napis(QStringLiteral("frmRaport17")).trimmed(),
                             Napis(QStringLiteral("frmRaport18")).trimmed(),
                             dwie("frmRaport11", "frmRaport19"), dwie("frmRaport12", "frmRaport20"),
                             Napis(QStringLiteral("frmRaport21")).trimmed()});
  }

  void WierszKonta() {
    const Okres& o = sesja.pubOkres;
    Rekordy rs = pubBaza().Czytaj(zapytania_.otwarcie);
    const qint64 bowinien = Grosze(rs, QStringLiteral("sumabowinien"));
    const qint64 boma = Grosze(rs, QStringLiteral("sumaboma"));
    rs = pubBaza().Czytaj(zapytania_.wpisy + o.warunekPrzed);
    const qint64 przychodPrzed = Grosze(rs, QStringLiteral("sumprzychod"));
    const qint64 wydatekPrzed = Grosze(rs, QStringLiteral("sumwydatek"));
    const qint64 naPrzed = Grosze(pubBaza().Czytaj(zapytania_.na + o.warunekPrzed), QStringLiteral("suma"));
    const qint64 zPrzed = Grosze(pubBaza().Czytaj(zapytania_.z + o.warunekPrzed), QStringLiteral("suma"));
    rs = pubBaza().Czytaj(zapytania_.wpisy + o.warunek);
    const qint64 przychod = Grosze(rs, QStringLiteral("sumprzychod"));
    const qint64 wydatek = Grosze(rs, QStringLiteral("sumwydatek"));
    const qint64 na = Grosze(pubBaza().Czytaj(zapytania_.na + o.warunek), QStringLiteral("suma"));
    const qint64 z = Grosze(pubBaza().Czytaj(zapytania_.z + o.warunek), QStringLiteral("suma"));
    const qint64 poczatek = bowinien - boma + przychodPrzed - wydatekPrzed + naPrzed - zPrzed;
    const qint64 koniec = poczatek + przychod - wydatek + na - z;

    PoleRaportu(r_, QString(wciecie_, QLatin1Char(' ')), wciecie_, 0);
    PoleRaportu(r_, nazwa_.left(16), 19 - wciecie_, 0);
    const qint64 kwoty[] = {koniec, poczatek, przychod, wydatek, na, z, koniec - poczatek};
    QStringList wiersz{nazwa_.trimmed()};
    for (const qint64 k : kwoty) {
      PoleRaportu(r_, KwotaRaportu(k), -11, 0);
      wiersz << KwotaTabeli(k);
    }
    r_.dok.tabela.push_back(wiersz);
    NowaLinia(r_, 1);

    if (konto_ >= 1 && sesja.pubRaportDetaliczny) {
      r_.pubWarunekListy = QStringLiteral("transakcje.konto=%1 ").arg(konto_) +
                           FiltrCzasowy(sesja.pubFiltrCzasowy).warunek;
      r_.pubOkresListy = o.warunek;
      r_.pubKolumnaData = r_.pubKolumnaKategoria = r_.pubKolumnaKontrahent = true;
      r_.pubKolumnaWydatek = r_.pubKolumnaPrzychod = true;
      r_.pubKolumnaOpis = r_.pubKolumnaKonto = false;
      ListaTransakcji(r_, Napis(QStringLiteral("frmRaport23")) + QLatin1Char(' ') + nazwa_, 8);
    }
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
      konto_ = rs.Pole(QStringLiteral("id")).toLongLong();
      zapytania_ = konta(konto_);
      nazwa_ = rs.Tekst(QStringLiteral("nazwa"));
      wciecie_ = 3;
      WierszKonta();
    }
    if (byly) LiniaRaportu(r_, r_.pubSzerokoscRaportu, false);
  }
};

}  // namespace

void TworzRaportKont(Raport& r) { RaportKont(r).Tworz(); }
