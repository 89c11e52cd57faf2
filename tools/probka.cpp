// The sample-data generator: a household's five years of accounts, categories, counterparties,
// entries, transfers and plans, the same for the same seed on every machine.

#include <sqlcipher/sqlite3.h>

#include <QDate>
#include <QSet>
#include <QStringList>
#include <algorithm>
#include <random>
#include <vector>

#include "budowa.h"
#include "probka_slowa.h"
#include "store/start.h"
#include "surowa.h"

namespace {

// Our own draws on top of mt19937: the standard distributions give different numbers with
// different libraries, and a sample must be the same everywhere.
class Los {
 public:
  explicit Los(unsigned ziarno) : g_(ziarno) {}
  // 0 .. n-1 for n > 0.
  int Ponizej(int n) { return int((quint64(quint32(g_())) * quint64(n)) >> 32); }
  qint64 Zakres(qint64 od, qint64 do_) {
    const quint64 n = quint64(do_ - od) + 1;
    const quint64 r = (quint64(quint32(g_())) << 32) | quint32(g_());
    return od + qint64(r % n);
  }
  bool Szansa(int procent) { return Ponizej(100) < procent; }
  template <class T>
  const T& Wybierz(const std::vector<T>& v) {
    return v[size_t(Ponizej(int(v.size())))];
  }
  const char* Wybierz(const Slowa& s) { return s.slowa[Ponizej(s.ile)]; }

 private:
  std::mt19937 g_;
};

// Names unique within a set and no longer than the field allows ("Czynsz", "Czynsz 2", ...).
class Nazwy {
 public:
  explicit Nazwy(int dlugosc) : dlugosc_(dlugosc) {}
  QString Unikalna(const QString& baza) {
    QString n = baza.left(dlugosc_).trimmed();
    for (int i = 2; uzyte_.contains(n); ++i) {
      const QString przyrostek = QStringLiteral(" %1").arg(i);
      n = baza.left(dlugosc_ - int(przyrostek.size())).trimmed() + przyrostek;
    }
    uzyte_.insert(n);
    return n;
  }
  // A word of the list not used yet, from a random place on; numbered only when all are used.
  QString Wolna(Los& los, const Slowa& s) {
    const int start = los.Ponizej(s.ile);
    for (int k = 0; k < s.ile; ++k) {
      const QString w = QString::fromUtf8(s.slowa[(start + k) % s.ile]);
      if (!uzyte_.contains(w.left(dlugosc_).trimmed())) return Unikalna(w);
    }
    return Unikalna(QString::fromUtf8(s.slowa[start]));
  }

 private:
  int dlugosc_;
  QSet<QString> uzyte_;
};

QByteArray iso(const QDate& d) { return d.toString(Qt::ISODate).toLatin1(); }

// A random date between od and do_ inclusive.
QDate dzien(Los& los, const QDate& od, const QDate& do_) {
  return od.addDays(los.Zakres(0, od.daysTo(do_)));
}

qint64 zl(Los& los, qint64 od, qint64 do_) { return los.Zakres(od * 100, do_ * 100); }

qint64 kwotaWydatku(Los& los) {
  const int k = los.Ponizej(100);
  if (k < 60) return zl(los, 3, 150);
  if (k < 90) return zl(los, 150, 800);
  if (k < 98) return zl(los, 800, 3000);
  return zl(los, 3000, 15000);
}

qint64 kwotaPrzychodu(Los& los) {
  const int k = los.Ponizej(100);
  if (k < 50) return zl(los, 50, 800);
  if (k < 85) return zl(los, 2500, 9000);
  return zl(los, 9000, 30000);
}

qint64 kwotaPrzelewu(Los& los) { return los.Szansa(90) ? zl(los, 50, 5000) : zl(los, 5000, 50000); }

QString cyfry(Los& los, int ile) {
  QString t;
  for (int i = 0; i < ile; ++i) t += QChar(u'0' + los.Ponizej(10));
  return t;
}

struct Konto {
  qint64 id;
  int rodzaj;
};

// One category tree: a chain down to the fourth level first (so that every depth occurs), some
// first-level categories, then children hung under random parents, at most 26 per parent.
struct Wezel {
  QString klucz, rodzic;
  int poziom, dzieci;
};

std::vector<Wezel> drzewo(Los& los, int ile) {
  std::vector<Wezel> w;
  auto dodaj = [&](int rodzic) {
    if (rodzic < 0) {
      int korzenie = 0;
      for (const Wezel& x : w) korzenie += x.poziom == 1;
      w.push_back({QString(QChar(u'a' + korzenie)), QStringLiteral("-"), 1, 0});
    } else {
      Wezel& r = w[size_t(rodzic)];
      const QString klucz = r.klucz + QChar(u'a' + r.dzieci++);
      w.push_back({klucz, r.klucz, r.poziom + 1, 0});
    }
  };
  for (int i = 0; i < std::min(ile, 4); ++i) dodaj(i - 1);
  const int korzenie = std::clamp(ile / 8, 1, 26);
  for (int i = 1; i < korzenie && int(w.size()) < ile; ++i) dodaj(-1);
  while (int(w.size()) < ile) {
    const int k = los.Ponizej(100);
    const int poziomRodzica = k < 45 ? 1 : k < 80 ? 2 : 3;
    std::vector<int> kandydaci;
    for (int i = 0; i < int(w.size()); ++i)
      if (w[size_t(i)].poziom == poziomRodzica && w[size_t(i)].dzieci < 26) kandydaci.push_back(i);
    if (kandydaci.empty()) {
      for (int i = 0; i < int(w.size()); ++i)
        if (w[size_t(i)].poziom < 4 && w[size_t(i)].dzieci < 26) kandydaci.push_back(i);
      if (kandydaci.empty()) break;  // more than a full tree can hold
    }
    dodaj(los.Wybierz(kandydaci));
  }
  return w;
}

class Generator {
 public:
  Generator(sqlite3* db, const RozmiarProbki& r) : db_(db), r_(r), los_(r.ziarno) {
    koniec_ = QDate::fromString(r.dzienKoncowy, Qt::ISODate);
    poczatek_ = koniec_.addYears(-r.lata).addDays(1);
  }

  bool Uruchom(QString* blad) {
    if (!koniec_.isValid()) return fail(blad, QStringLiteral("bad end day ") + r_.dzienKoncowy);
    return konta(blad) && kategorie(blad) && kontrahenci(blad) &&
           wpisy(QStringLiteral("transakcje"), r_.transakcje, poczatek_, koniec_, blad) &&
           wpisy(QStringLiteral("zaplanowane"), r_.zaplanowane, koniec_.addDays(-180),
                 koniec_.addYears(4), blad) &&
           przelewy(QStringLiteral("wewnetrzne"), r_.wewnetrzne, poczatek_, koniec_, blad) &&
           przelewy(QStringLiteral("zaplanowanewewnetrzne"), r_.zaplanowaneWewnetrzne,
                    koniec_.addDays(-180), koniec_.addYears(4), blad) &&
           szablony(blad) && setup(blad);
  }

 private:
  sqlite3* db_;
  RozmiarProbki r_;
  Los los_;
  QDate poczatek_, koniec_;
  std::vector<Konto> konta_;
  std::vector<int> wagiKont_;  // running sums: entries sit mostly on cash, bank and cards
  std::vector<QByteArray> liscie_[3], nadrzedne_[3];
  std::vector<qint64> kontrahenci_;

  static bool fail(QString* blad, const QString& tekst) {
    if (blad) *blad = tekst;
    return false;
  }
  static bool fail(QString* blad, const Polecenie& p) { return fail(blad, p.Blad()); }

  const Konto& konto() {
    const int k = los_.Ponizej(wagiKont_.back());
    return konta_[size_t(std::upper_bound(wagiKont_.begin(), wagiKont_.end(), k) -
                         wagiKont_.begin())];
  }

  // Two different accounts for a transfer.
  std::pair<qint64, qint64> paraKont() {
    const int z = los_.Ponizej(int(konta_.size()));
    int na = los_.Ponizej(int(konta_.size()) - 1);
    if (na >= z) ++na;
    return {konta_[size_t(z)].id, konta_[size_t(na)].id};
  }

  bool konta(QString* blad) {
    if (r_.konta < 2) return fail(blad, QStringLiteral("a sample needs at least two accounts"));
    Polecenie p(
        db_,
        QStringLiteral(
            "INSERT INTO konta (datautworzenia, nazwa, opis, rodzaj, bowinien, boma, \"limit\") "
            "VALUES (?,?,?,?,?,?,?)"));
    Nazwy nazwy(16);
    static const int wagaRodzaju[] = {0, 3, 5, 3, 1, 1, 1};
    for (int i = 0; i < r_.konta; ++i) {
      // The first six show every kind; the rest are mostly bank accounts and cards.
      int rodzaj = i < 6 ? i + 1 : 1 + los_.Ponizej(6);
      if (i >= 6 && los_.Szansa(40)) rodzaj = 2;
      qint64 winien = 0, ma = 0, limit = 0;
      switch (rodzaj) {
        case 1:
          winien = zl(los_, 50, 3000);
          break;
        case 2:
          winien = zl(los_, 0, 25000);
          if (los_.Szansa(20)) ma = zl(los_, 0, 2000);
          if (los_.Szansa(50)) limit = los_.Zakres(1, 5) * 100000;  // whole thousands
          break;
        case 3:
          ma = zl(los_, 0, 5000);
          limit = los_.Zakres(2, 20) * 100000;
          break;
        case 4:
          winien = zl(los_, 5000, 100000);
          break;
        case 5:
          ma = zl(los_, 20000, 400000);
          break;
        default:
          winien = zl(los_, 0, 10000);
          if (los_.Szansa(30)) ma = zl(los_, 0, 500);
      }
      const QDate utworzone = i < 6 ? dzien(los_, poczatek_.addYears(-1), poczatek_)
                                    : dzien(los_, poczatek_.addYears(-1), koniec_.addYears(-1));
      p.Tekst(1, iso(utworzone))
          .Tekst(2, nazwy.Wolna(los_, NazwyKont[rodzaj]))
          .Tekst(3, QString::fromUtf8(los_.Wybierz(OpisyKont)))
          .Liczba(4, rodzaj)
          .Kwota(5, winien)
          .Kwota(6, ma)
          .Kwota(7, limit);
      if (!p.Wykonaj()) return fail(blad, p);
      konta_.push_back({sqlite3_last_insert_rowid(db_), rodzaj});
      wagiKont_.push_back((wagiKont_.empty() ? 0 : wagiKont_.back()) + wagaRodzaju[rodzaj]);
    }
    return true;
  }

  bool kategorie(QString* blad) {
    Polecenie p(
        db_, QStringLiteral(
                 "INSERT INTO kategorie (identyfikator, kategoria, nazwa, opis, rodzaj, \"limit\", "
                 "oszczednosc) VALUES (?,?,?,?,?,?,?)"));
    Nazwy nazwy(16);  // unique across both trees
    const int przychody = r_.kategorie >= 8 ? r_.kategorie / 6 : r_.kategorie / 2;
    for (int rodzaj = 1; rodzaj <= 2; ++rodzaj) {
      const std::vector<Wezel> w = drzewo(los_, rodzaj == 1 ? przychody : r_.kategorie - przychody);
      const Slowa& glowne = rodzaj == 1 ? KategoriePrzychodow : KategorieWydatkow;
      const Slowa& podrzedne = rodzaj == 1 ? PodkategoriePrzychodow : PodkategorieWydatkow;
      int nastepnaGlowna = 0;
      for (const Wezel& x : w) {
        // First-level names go through the list in order, so each tree starts with its familiar
        // ones.
        const QString nazwa =
            x.poziom == 1 && nastepnaGlowna < glowne.ile
                ? nazwy.Unikalna(QString::fromUtf8(glowne.slowa[nastepnaGlowna++]))
                : nazwy.Wolna(los_, podrzedne);
        const qint64 limit =
            rodzaj == 2 && x.poziom <= 2 && los_.Szansa(20) ? los_.Zakres(1, 20) * 10000 : 0;
        const qint64 oszczednosc = los_.Szansa(10) ? los_.Zakres(1, 4) * 5 : 0;
        p.Tekst(1, x.klucz)
            .Tekst(2, x.rodzic)
            .Tekst(3, nazwa)
            .Tekst(4, los_.Szansa(30) ? QString::fromUtf8(los_.Wybierz(OpisyKategorii)) : QString())
            .Liczba(5, rodzaj)
            .Kwota(6, limit)
            .Liczba(7, oszczednosc);
        if (!p.Wykonaj()) return fail(blad, p);
        (x.dzieci ? nadrzedne_ : liscie_)[rodzaj].push_back(x.klucz.toLatin1());
      }
      if (liscie_[rodzaj].empty())
        return fail(blad, QStringLiteral("a sample needs categories of both kinds"));
    }
    return true;
  }

  bool kontrahenci(QString* blad) {
    Polecenie p(db_,
                QStringLiteral(
                    "INSERT INTO kontrahent (skrocona, opis, nazwa, adres, miasto, telefon, konto, "
                    "bank, lk) VALUES (?,?,?,?,?,?,?,?,?)"));
    Nazwy skrocone(16), pelne(30);
    for (int i = 0; i < r_.kontrahenci; ++i) {
      // One draw per statement: the order of draws must not depend on the compiler.
      const QString rodzaj = QString::fromUtf8(los_.Wybierz(RodzajeFirm));
      const QString nazwisko = QString::fromUtf8(los_.Wybierz(Nazwiska));
      QString krotka = rodzaj + QLatin1Char(' ') + nazwisko;
      if (krotka.size() > 16) krotka = rodzaj.left(3) + QStringLiteral(". ") + nazwisko;
      const QString forma = QString::fromUtf8(los_.Wybierz(FormyPrawne));
      QString adres = QString::fromUtf8(los_.Wybierz(Ulice));
      adres += QStringLiteral(" %1").arg(1 + los_.Ponizej(180));
      if (los_.Szansa(50)) adres += QStringLiteral("/%1").arg(1 + los_.Ponizej(60));
      QString miasto = cyfry(los_, 2) + QLatin1Char('-');
      miasto += cyfry(los_, 3) + QLatin1Char(' ');
      miasto += QString::fromUtf8(los_.Wybierz(Miasta));
      QStringList telefon;
      if (los_.Szansa(50)) {
        const QString siec = QString::number(5 + los_.Ponizej(4));
        telefon << QStringLiteral("+48") << siec + cyfry(los_, 2);
        telefon << cyfry(los_, 3);
        telefon << cyfry(los_, 3);
      } else {
        for (const int n : {2, 3, 2, 2}) telefon << cyfry(los_, n);
      }
      p.Tekst(1, skrocone.Unikalna(krotka))
          .Tekst(2, QString::fromUtf8(los_.Wybierz(OpisyKontrahentow)))
          .Tekst(3, pelne.Unikalna(rodzaj + QLatin1Char(' ') + nazwisko + QLatin1Char(' ') + forma))
          .Tekst(4, adres)
          .Tekst(5, miasto)
          .Tekst(6, telefon.join(QLatin1Char(' ')))
          .Tekst(7, cyfry(los_, 16))
          .Tekst(8, cyfry(los_, 8))
          .Tekst(9, cyfry(los_, 2));
      if (!p.Wykonaj()) return fail(blad, p);
      kontrahenci_.push_back(sqlite3_last_insert_rowid(db_));
    }
    return true;
  }

  const QByteArray& kategoria(int rodzaj) {
    // Mostly leaves; inner categories occur too, as in stores kept before a subcategory came.
    if (!nadrzedne_[rodzaj].empty() && los_.Szansa(15)) return los_.Wybierz(nadrzedne_[rodzaj]);
    return los_.Wybierz(liscie_[rodzaj]);
  }

  qint64 kontrahent() {
    return kontrahenci_.empty() || los_.Ponizej(3) == 0 ? 0 : los_.Wybierz(kontrahenci_);
  }

  struct Wpis {
    qint64 dzien, grosze, konto, kontrahent;
    int rodzaj;
    const QByteArray* kategoria;
    const char* opis;
  };

  // Income and expense entries (executed or planned) in date order, as a household enters them.
  bool wpisy(const QString& tabela, int ile, const QDate& od, const QDate& do_, QString* blad) {
    std::vector<Wpis> w;
    w.reserve(size_t(ile));
    const qint64 dni = od.daysTo(do_);
    for (int i = 0; i < ile; ++i) {
      const int rodzaj = los_.Szansa(20) ? 1 : 2;
      Wpis x;
      x.dzien = los_.Zakres(0, dni);
      x.rodzaj = rodzaj;
      x.grosze = rodzaj == 1 ? kwotaPrzychodu(los_) : kwotaWydatku(los_);
      x.kategoria = &kategoria(rodzaj);
      x.konto = konto().id;
      x.kontrahent = kontrahent();
      x.opis = los_.Wybierz(rodzaj == 1 ? OpisyPrzychodow : OpisyWydatkow);
      w.push_back(x);
    }
    std::stable_sort(w.begin(), w.end(),
                     [](const Wpis& a, const Wpis& b) { return a.dzien < b.dzien; });
    std::vector<QByteArray> daty(size_t(dni + 1));
    Polecenie p(db_, QStringLiteral(
                         "INSERT INTO %1 (data, rodzaj, przychod, wydatek, opis, kategoria, konto, "
                         "kontrahent) VALUES (?,?,?,?,?,?,?,?)")
                         .arg(tabela));
    for (const Wpis& x : w) {
      QByteArray& data = daty[size_t(x.dzien)];
      if (data.isEmpty()) data = iso(od.addDays(x.dzien));
      p.Tekst(1, data)
          .Liczba(2, x.rodzaj)
          .Kwota(3, x.rodzaj == 1 ? x.grosze : 0)
          .Kwota(4, x.rodzaj == 2 ? x.grosze : 0)
          .Tekst(5, QByteArray(x.opis))
          .Tekst(6, *x.kategoria)
          .Liczba(7, x.konto)
          .Liczba(8, x.kontrahent);
      if (!p.Wykonaj()) return fail(blad, p);
    }
    return true;
  }

  bool przelewy(const QString& tabela, int ile, const QDate& od, const QDate& do_, QString* blad) {
    std::vector<std::pair<qint64, int>> kolejnosc;  // day, draw number: date order, stable
    struct Przelew {
      qint64 grosze, z, na;
      const char* opis;
    };
    std::vector<Przelew> w;
    const qint64 dni = od.daysTo(do_);
    for (int i = 0; i < ile; ++i) {
      kolejnosc.push_back({los_.Zakres(0, dni), i});
      const auto [z, na] = paraKont();
      w.push_back({kwotaPrzelewu(los_), z, na, los_.Wybierz(OpisyPrzelewow)});
    }
    std::sort(kolejnosc.begin(), kolejnosc.end());  // the pairs are all different: deterministic
    Polecenie p(db_, QStringLiteral(
                         "INSERT INTO %1 (data, kwota, opis, zkonta, nakonto) VALUES (?,?,?,?,?)")
                         .arg(tabela));
    for (const auto& [d, i] : kolejnosc) {
      const Przelew& x = w[size_t(i)];
      p.Tekst(1, iso(od.addDays(d)))
          .Kwota(2, x.grosze)
          .Tekst(3, QByteArray(x.opis))
          .Liczba(4, x.z)
          .Liczba(5, x.na);
      if (!p.Wykonaj()) return fail(blad, p);
    }
    return true;
  }

  bool szablony(QString* blad) {
    Polecenie p(db_, QStringLiteral(
                         "INSERT INTO szablony (rodzaj, nazwa, konto, kategoria, kontrahent, opis) "
                         "VALUES (?,?,?,?,?,?)"));
    Nazwy nazwy(20);
    for (int i = 0; i < r_.szablony; ++i) {
      const int rodzaj = i % 4 == 0 ? 1 : 2;
      p.Liczba(1, rodzaj)
          .Tekst(2, nazwy.Wolna(los_, rodzaj == 1 ? SzablonyPrzychodow : SzablonyWydatkow))
          .Liczba(3, konto().id)
          .Tekst(4, kategoria(rodzaj))
          .Liczba(5, kontrahent())
          .Tekst(6, QByteArray(los_.Wybierz(rodzaj == 1 ? OpisyPrzychodow : OpisyWydatkow)));
      if (!p.Wykonaj()) return fail(blad, p);
    }
    Polecenie pw(
        db_, QStringLiteral(
                 "INSERT INTO szablonywewnetrzne (nazwa, zkonta, nakonto, opis) VALUES (?,?,?,?)"));
    Nazwy nazwyPrzelewow(20);
    for (int i = 0; i < r_.szablonyWewnetrzne; ++i) {
      const auto [z, na] = paraKont();
      pw.Tekst(1, nazwyPrzelewow.Wolna(los_, SzablonyPrzelewow))
          .Liczba(2, z)
          .Liczba(3, na)
          .Tekst(4, QByteArray(los_.Wybierz(OpisyPrzelewow)));
      if (!pw.Wykonaj()) return fail(blad, pw);
    }
    return true;
  }

  bool setup(QString* blad) {
    if (!WykonajSurowo(db_, QStringLiteral("DELETE FROM setup"), blad)) return false;
    Polecenie p(
        db_, QStringLiteral(
                 "INSERT INTO setup (tloaktywne, napisyaktywne, przyciskiaktywne, etykietyaktywne, "
                 "napisyetykietaktywne, listajeden, listadwa, tlonieaktywne, napisynieaktywne, "
                 "haslo, notatnik, "
                 "userid, hasloserwisu, imie, nazwisko, ulica, miasto, lk, bank, konto, autostart, "
                 "autostartprzypominacz) VALUES (?,?,?,?,?,?,?,?,?,'',?,'','',?,?,?,?,?,?,?,0,1)"));
    const QStringList& kolory = DomyslneKolory();
    for (int i = 0; i < 9; ++i) p.Tekst(i + 1, kolory.value(i));
    p.Tekst(10,
            QStringLiteral(
                "Zapłacić za prąd do 15.\r\nUmówić przegląd samochodu.\r\nKupić prezent dla Zosi."))
        .Tekst(11, QStringLiteral("Jan"))
        .Tekst(12, QStringLiteral("Kowalski"))
        .Tekst(13, QStringLiteral("ul. Źródlana 12/4"))
        .Tekst(14, QStringLiteral("30-147 Kraków"))
        .Tekst(15, cyfry(los_, 2))
        .Tekst(16, cyfry(los_, 8))
        .Tekst(17, cyfry(los_, 16));
    return p.Wykonaj() || fail(blad, p);
  }
};

}  // namespace

RozmiarProbki RozmiarDlaWpisow(int wpisy) {
  RozmiarProbki r;
  r.transakcje = wpisy;
  r.wewnetrzne = wpisy / 5;
  r.zaplanowane = std::max(20, wpisy / 50);
  r.zaplanowaneWewnetrzne = std::max(5, wpisy / 250);
  return r;
}

bool GenerujProbke(const QString& plik, const RozmiarProbki& rozmiar, QString* blad) {
  bool ma = false;
  if (!MaDaneUzytkownika(plik, &ma, blad)) return false;
  if (ma) {
    if (blad)
      *blad =
          QStringLiteral("%1 already holds data; a sample goes only into an empty store").arg(plik);
    return false;
  }
  sqlite3* db = OtworzSurowo(plik, false, blad);
  if (!db) return false;
  // A big page cache keeps the index pages of 100 000 rows in memory until the commit.
  bool ok = WykonajSurowo(db, QStringLiteral("PRAGMA cache_size=-65536; BEGIN"), blad);
  if (ok) {
    Generator g(db, rozmiar);
    ok = g.Uruchom(blad) && WykonajSurowo(db, QStringLiteral("COMMIT"), blad);
    if (!ok) WykonajSurowo(db, QStringLiteral("ROLLBACK"), nullptr);
  }
  sqlite3_close(db);
  return ok;
}
