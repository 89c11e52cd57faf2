// The account report: for all accounts, one kind or one account, the balance at the end and at
// the start of the period and the flows between; for all accounts broken down by kind and by
// account. Amounts are added in whole grosze. The entries and transfers are summed per account in
// one grouped pass before the period and one in it, and the rows of kinds and of all accounts add
// those sums up, instead of six statements per row: the figures are the same.

#include <QHash>
#include <optional>

#include "reports/raporty.h"
#include "reports/wspolne.h"
#include "store/baza.h"
#include "store/filtr.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"

namespace {

// The opening balances of a row: one account, the accounts of one kind, all accounts.
QString otwarcieKonta(qint64 n) {
  return QStringLiteral("SELECT bowinien AS sumabowinien, boma AS sumaboma FROM konta WHERE id=") +
         QString::number(n);
}
QString otwarcieRodzaju(int rodzaj) {
  return QStringLiteral(
             "SELECT SUM(bowinien) AS sumabowinien, SUM(boma) AS sumaboma FROM konta WHERE "
             "rodzaj=") +
         QString::number(rodzaj);
}
QString otwarcieWszystkich() {
  return QStringLiteral(
      "SELECT SUM(bowinien) AS sumabowinien, SUM(boma) AS sumaboma FROM konta WHERE id<>0 ");
}

// The flows of a row before the period and in it.
struct Przeplywy {
  qint64 przychodPrzed = 0, wydatekPrzed = 0, naPrzed = 0, zPrzed = 0;
  qint64 przychod = 0, wydatek = 0, na = 0, z = 0;
  void Dodaj(const Przeplywy& p) {
    przychodPrzed += p.przychodPrzed, wydatekPrzed += p.wydatekPrzed;
    naPrzed += p.naPrzed, zPrzed += p.zPrzed;
    przychod += p.przychod, wydatek += p.wydatek, na += p.na, z += p.z;
  }
};

// The flows of every account, read in four grouped statements. A row of all accounts counts
// every entry and transfer (those of accounts no longer kept too, and of none); a kind's row
// counts those of the kept accounts of that kind.
class PrzeplywyKont {
 public:
  // wpisy and transfery narrow the statements to the rows one account needs (empty: all rows).
  PrzeplywyKont(const Okres& o, const QString& wpisy, const QString& transfery) {
    // "+konto": the rows before a period are most of the table, read faster from the covering date
    // index and grouped in memory than looked up one by one along the account index.
    for (const bool wOkresie : {false, true}) {
      const QString okres = wOkresie ? o.warunek : o.warunekPrzed;
      Rekordy rs = pubBaza().Czytaj(
          QStringLiteral("SELECT konto, id<>0 AS liczony, SUM(przychod) AS sumprzychod, "
                         "SUM(wydatek) AS sumwydatek FROM transakcje WHERE 1=1 ") +
          wpisy + okres + QStringLiteral(" GROUP BY +konto, id<>0"));
      for (; !rs.Eof(); rs.MoveNext()) {
        const qint64 przychod = Grosze(rs, QStringLiteral("sumprzychod"));
        const qint64 wydatek = Grosze(rs, QStringLiteral("sumwydatek"));
        for (Przeplywy* p : {konta(rs.Pole(QStringLiteral("konto"))), wszystkie(rs)}) {
          if (!p) continue;
          (wOkresie ? p->przychod : p->przychodPrzed) += przychod;
          (wOkresie ? p->wydatek : p->wydatekPrzed) += wydatek;
        }
      }
      rs = pubBaza().Czytaj(
          QStringLiteral("SELECT zkonta, nakonto, id<>0 AS liczony, SUM(kwota) AS suma FROM "
                         "wewnetrzne WHERE 1=1 ") +
          transfery + okres + QStringLiteral(" GROUP BY +zkonta, nakonto, id<>0"));
      for (; !rs.Eof(); rs.MoveNext()) {
        const qint64 suma = Grosze(rs, QStringLiteral("suma"));
        for (Przeplywy* p : {konta(rs.Pole(QStringLiteral("nakonto"))), wszystkie(rs)})
          if (p) (wOkresie ? p->na : p->naPrzed) += suma;
        for (Przeplywy* p : {konta(rs.Pole(QStringLiteral("zkonta"))), wszystkie(rs)})
          if (p) (wOkresie ? p->z : p->zPrzed) += suma;
      }
    }
    Rekordy rs = pubBaza().Czytaj(QStringLiteral("SELECT id,rodzaj FROM konta"));
    for (; !rs.Eof(); rs.MoveNext()) {
      const QVariant rodzaj = rs.Pole(QStringLiteral("rodzaj"));
      if (!rodzaj.isNull())
        rodzaje_.insert(rs.Pole(QStringLiteral("id")).toLongLong(), rodzaj.toLongLong());
    }
  }

  Przeplywy Konta(qint64 n) const { return konta_.value(n); }
  Przeplywy Rodzaju(int rodzaj) const {
    Przeplywy w;
    for (auto it = konta_.cbegin(); it != konta_.cend(); ++it)
      if (auto k = rodzaje_.constFind(it.key()); k != rodzaje_.cend() && *k == rodzaj) w.Dodaj(*it);
    return w;
  }
  const Przeplywy& Wszystkie() const { return wszystkie_; }

 private:
  QHash<qint64, Przeplywy> konta_;
  QHash<qint64, qint64> rodzaje_;  // the kind of every kept account
  Przeplywy wszystkie_;

  // A row with no account number belongs to no account.
  Przeplywy* konta(const QVariant& numer) {
    return numer.isNull() ? nullptr : &konta_[numer.toLongLong()];
  }
  // The rows of all accounts leave out a row numbered 0.
  Przeplywy* wszystkie(const Rekordy& rs) {
    return rs.Pole(QStringLiteral("liczony")).toInt() ? &wszystkie_ : nullptr;
  }
};

class RaportKont {
 public:
  explicit RaportKont(Raport& r) : r_(r) {}

  void Tworz() {
    const QString wezel = sesja.pubWezelKont;
    const QChar typ = wezel.isEmpty() ? QLatin1Char('R') : wezel[0];
    const int rodzaj = wezel.right(1).toInt();
    wciecie_ = 0;
    if (typ == QLatin1Char('q')) {
      // One account reads its own rows only, by the account indexes.
      const QString n = QString::number(sesja.pubKonto.id);
      ruchy_.emplace(sesja.pubOkres, QStringLiteral(" AND konto=") + n,
                     QStringLiteral(" AND (zkonta=%1 OR nakonto=%1)").arg(n));
    } else {
      ruchy_.emplace(sesja.pubOkres, QString(), QString());
    }
    if (typ == QLatin1Char('r')) {
      otwarcie_ = otwarcieRodzaju(rodzaj);
      przeplywy_ = ruchy_->Rodzaju(rodzaj);
      nazwa_ = NazwaRodzajuKonta(rodzaj);
      konto_ = 0;
    } else if (typ == QLatin1Char('q')) {
      otwarcie_ = otwarcieKonta(sesja.pubKonto.id);
      przeplywy_ = ruchy_->Konta(sesja.pubKonto.id);
      nazwa_ = sesja.pubKonto.nazwa;
      konto_ = sesja.pubKonto.id;
    } else {
      otwarcie_ = otwarcieWszystkich();
      przeplywy_ = ruchy_->Wszystkie();
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
        otwarcie_ = otwarcieRodzaju(k);
        przeplywy_ = ruchy_->Rodzaju(k);
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
  std::optional<PrzeplywyKont> ruchy_;
  QString otwarcie_;
  Przeplywy przeplywy_;
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
      return (Napis(QLatin1String(a)).trimmed() + QLatin1Char(' ') +
              Napis(QLatin1String(b)).trimmed())
          .trimmed();
    };
    r_.dok.tabela.push_back(
        {Napis(QStringLiteral("frmRaport14")).trimmed(), dwie("frmRaport9", "frmRaport15"),
         dwie("frmRaport10", "frmRaport16"), Napis(QStringLiteral("frmRaport17")).trimmed(),
         Napis(QStringLiteral("frmRaport18")).trimmed(), dwie("frmRaport11", "frmRaport19"),
         dwie("frmRaport12", "frmRaport20"), Napis(QStringLiteral("frmRaport21")).trimmed()});
  }

  void WierszKonta() {
    const Okres& o = sesja.pubOkres;
    const Rekordy rs = pubBaza().Czytaj(otwarcie_);
    const qint64 bowinien = Grosze(rs, QStringLiteral("sumabowinien"));
    const qint64 boma = Grosze(rs, QStringLiteral("sumaboma"));
    const Przeplywy& p = przeplywy_;
    const qint64 poczatek =
        bowinien - boma + p.przychodPrzed - p.wydatekPrzed + p.naPrzed - p.zPrzed;
    const qint64 przychod = p.przychod, wydatek = p.wydatek, na = p.na, z = p.z;
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
      otwarcie_ = otwarcieKonta(konto_);
      przeplywy_ = ruchy_->Konta(konto_);
      nazwa_ = rs.Tekst(QStringLiteral("nazwa"));
      wciecie_ = 3;
      WierszKonta();
    }
    if (byly) LiniaRaportu(r_, r_.pubSzerokoscRaportu, false);
  }
};

}  // namespace

void TworzRaportKont(Raport& r) { RaportKont(r).Tworz(); }
