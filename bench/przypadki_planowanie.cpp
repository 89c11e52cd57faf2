// The calendar (its month read, and the window built, painted and turned a month), the category
// change simulation and the payment slip. The calendar and the simulation run on a store of their
// own: the main store's number of entries with 5 000 planned entries (and 1 000 planned
// transfers), made once beside the main store; the cases after them go back to the main store.

#include <sqlcipher/sqlite3.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <utility>

#include "budowa.h"
#include "planning/frmKalendarz.h"
#include "planning/kalendarz.h"
#include "planning/symulacja.h"
#include "rejestr.h"
#include "slips/przelew.h"
#include "store/baza.h"
#include "store/dzis.h"
#include "store/session.h"
#include "store/start.h"
#include "surowa.h"

namespace {

const QDate kDzien(2026, 6, 17);

struct Kopia {
  KontekstBench glowny;
  KontekstBench kopia;
  bool aktywna = false;
};
Kopia& stan() {
  static Kopia k;
  return k;
}

void przelacz(const KontekstBench& k) {
  UstawFolderDanych(k.folder);
  ZamknijBaze();
  OtworzBaze();
  AktualizujBaze();
  WczytajSetup();
  UstawKontekst(k);
}

// The store with 5 000 planned entries, made on first use (or reused), and opened.
bool naKopii() {
  Kopia& s = stan();
  if (s.aktywna) return true;
  if (!s.kopia.surowa) {
    s.glowny = Kontekst();
    s.kopia.folder = QDir(s.glowny.folder).filePath(QStringLiteral("planowanie"));
    QDir().mkpath(s.kopia.folder);
    s.kopia.plik = QDir(s.kopia.folder).filePath(QStringLiteral("money.fns"));
    QString blad;
    bool ma = false;
    if (!QFile::exists(s.kopia.plik) || !MaDaneUzytkownika(s.kopia.plik, &ma, &blad) || !ma) {
      QFile::remove(s.kopia.plik);
      // As many entries as the main store (the 1 000 000-entry run gets its own large copy).
      Polecenie ile(Kontekst().surowa, QStringLiteral("SELECT COUNT(*) FROM transakcje"));
      const qint64 wpisy = ile.Wiersz() ? ile.Liczba(0) : 0;
      RozmiarProbki r = wpisy > 500000 ? RozmiarDlaWpisow(int(wpisy)) : RozmiarProbki();
      r.zaplanowane = 5000;
      r.zaplanowaneWewnetrzne = 1000;
      if (!ZbudujBaze(QStringLiteral(ZORVIK_DATA_DIR), s.kopia.plik, &blad) ||
          !GenerujProbke(s.kopia.plik, r, &blad)) {
        std::fprintf(stderr, "planning store: %s\n", qPrintable(blad));
        return false;
      }
    }
    s.kopia.surowa = OtworzSurowo(s.kopia.plik, false, &blad);
    if (!s.kopia.surowa) return false;
  }
  przelacz(s.kopia);
  s.aktywna = true;
  return true;
}

void naGlownej() {
  Kopia& s = stan();
  if (!s.aktywna) return;
  przelacz(s.glowny);
  s.aktywna = false;
}

QString grosze(qint64 g) { return QString::number(double(g) / 100.0, 'f', 2); }

// The month as the calendar sums it: rows, income, expense, transfers.
QString miesiac(const MiesiacKalendarza& m) {
  qint64 ile = 0, p = 0, w = 0, t = 0;
  for (int d = 1; d <= m.ileDni; ++d) {
    ile += m.dni[size_t(d)].ile;
    p += m.dni[size_t(d)].przychod;
    w += m.dni[size_t(d)].wydatek;
    t += m.dni[size_t(d)].wewnetrzne;
  }
  return QStringList{QString::number(ile), grosze(p), grosze(w), grosze(t)}.join(
      QStringLiteral(" | "));
}

// The floor: the same two grouped reads on the raw connection, summed the same way.
QString miesiacSurowo(int miesiac = 12, int rok = 2026) {
  const QDate od(rok, miesiac, 1);
  const QString okres = QStringLiteral("data>='%1' AND data<'%2'")
                            .arg(od.toString(Qt::ISODate), od.addMonths(1).toString(Qt::ISODate));
  qint64 ile = 0, p = 0, w = 0, t = 0;
  {
    Polecenie z(Kontekst().surowa,
                QStringLiteral("SELECT count(id), sum(przychod), sum(wydatek) FROM zaplanowane "
                               "WHERE %1 GROUP BY substr(data,9,2)")
                    .arg(okres));
    while (z.Wiersz()) {
      ile += z.Liczba(0);
      p += qRound64(z.Rzeczywista(1) * 100);
      w += qRound64(z.Rzeczywista(2) * 100);
    }
  }
  Polecenie z(Kontekst().surowa,
              QStringLiteral("SELECT count(id), sum(kwota) FROM zaplanowanewewnetrzne WHERE %1 "
                             "GROUP BY substr(data,9,2)")
                  .arg(okres));
  while (z.Wiersz()) {
    ile += z.Liczba(0);
    t += qRound64(z.Rzeczywista(1) * 100);
  }
  return QStringList{QString::number(ile), grosze(p), grosze(w), grosze(t)}.join(
      QStringLiteral(" | "));
}

void przygotujPlanowanie() {
  if (!naKopii()) return;
  UstawDzis(kDzien);
  sesja.pubSeparator = QStringLiteral(".");
  // A cut on the first main category and a rise on the second, as a user would have set them.
  const Symulacja s = PrzeliczSymulacje(2, false, Dzis());
  UstawOszczednosc(s, QStringLiteral("a"), QStringLiteral("-15"), 2);
  UstawOszczednosc(s, QStringLiteral("b"), QStringLiteral("10"), 2);
}

// The calendar window as the user meets it: built over the month of today and painted whole
// (grab() draws every cell as the screen would).
QString oknoKalendarza() {
  frmKalendarz f;
  f.show();
  f.grab();
  return miesiac(f.Miesiac());
}

// One window kept open; ">>" and "<<" in turns, each month read and painted.
// Kept until the next case (never deleted after the application is gone).
frmKalendarz* kalendarz = nullptr;
bool naprzod = true, naprzodSurowo = true;
void otworzKalendarz() {
  przygotujPlanowanie();
  kalendarz = new frmKalendarz();
  kalendarz->show();
  kalendarz->grab();
  naprzod = naprzodSurowo = true;
}
QString kolejnyMiesiac() {
  if (std::exchange(naprzod, !naprzod))
    kalendarz->cmdNastepnyMiesiac_Click();
  else
    kalendarz->cmdPoprzedniMiesiac_Click();
  kalendarz->grab();
  return miesiac(kalendarz->Miesiac());
}
QString kolejnyMiesiacSurowo() {
  const QDate d = std::exchange(naprzodSurowo, !naprzodSurowo) ? kDzien.addMonths(1) : kDzien;
  return miesiacSurowo(d.month(), d.year());
}

PrzelewRekord przelew() {
  PrzelewRekord p;
  p.wplata = -1;
  p.nazwaOdbiorcy = QStringLiteral("Zakład Gospodarki Komunalnej w Żyrardowie Sp. z o.o.");
  p.nazwaOdbiorcyCd = QStringLiteral("96-300 Żyrardów ul. Łąkowa 12");
  p.lkOdbiorcy = QStringLiteral("12");
  p.bankOdbiorcy = QStringLiteral("10901014");
  p.kontoOdbiorcy = QStringLiteral("1234567890123456789012345");
  p.waluta = QStringLiteral("PLN");
  p.kwota = QStringLiteral("999999999,99");
  p.nazwaNadawcy = QStringLiteral("Jan Kowalski");
  p.nazwaNadawcyCd = QStringLiteral("30-147 Kraków ul. Źródlana 12/4");
  p.tytulem = QStringLiteral("Opłata za wodę i ścieki");
  p.tytulemCd = QStringLiteral("listopad 2026");
  return p;
}

Przypadki planowanie(
    95, {
            PrzypadekBench(QStringLiteral("calendar month read, 5 000 planned"),
                           [] { return miesiac(CzytajMiesiac(12, 2026)); })
                .Podloga([] { return miesiacSurowo(); })
                .Limit(30)
                .Przygotuj(przygotujPlanowanie),
            PrzypadekBench(QStringLiteral("calendar window built and painted"), oknoKalendarza)
                .Podloga([] { return miesiacSurowo(kDzien.month(), kDzien.year()); })
                .Limit(30)
                .Przygotuj(przygotujPlanowanie),
            PrzypadekBench(QStringLiteral("calendar >> / <<, month painted"), kolejnyMiesiac)
                .Podloga(kolejnyMiesiacSurowo)
                .Limit(30)
                .Przygotuj(otworzKalendarz),
            PrzypadekBench(QStringLiteral("simulation recompute, expense tree"),
                           [] {
                             const Symulacja s = PrzeliczSymulacje(2, false, Dzis());
                             return grosze(s.wezly.front().a);
                           })
                .Podloga([] {
                  return Surowo(QStringLiteral(
                      "SELECT sum(wydatek)+sum(przychod) FROM transakcje WHERE rodzaj=2 AND "
                      "data>='2026-05-01' AND data<'2026-06-01' AND kategoria IN (SELECT "
                      "identyfikator FROM kategorie k WHERE rodzaj=2 AND NOT EXISTS (SELECT 1 "
                      "FROM kategorie c WHERE c.rodzaj=2 AND c.kategoria=k.identyfikator))"));
                })
                .Limit(50)
                .Przygotuj([] {
                  delete std::exchange(kalendarz, nullptr);
                  przygotujPlanowanie();
                }),
            PrzypadekBench(QStringLiteral("slip preview, four slips"),
                           [] {
                             const QImage obraz = PodgladArkusza(przelew(), 1000);
                             return QStringLiteral("%1x%2").arg(obraz.width()).arg(obraz.height());
                           })
                .Limit(100)
                .Przygotuj(naGlownej),
            PrzypadekBench(QStringLiteral("slip sheet as PDF"),
                           [] {
                             return PrzelewDoPdf(przelew()).isEmpty() ? QStringLiteral("empty")
                                                                      : QStringLiteral("written");
                           })
                .Limit(200),
        });

}  // namespace
