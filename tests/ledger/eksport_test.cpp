// The export of a browser's list, from the user's side: a filtered and sorted list saved as CSV
// and as QIF and read back by the program's own statement reader, and a write that fails.

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <csignal>

#include "common/magazyn_testowy.h"
#include "imports/wyciag.h"
#include "ledger/frmPrzegladTransakcji.h"
#include "ledger/frmPrzegladTransakcjiWewnetrznych.h"
#include "ledger/transakcje_pomoc.h"
#include "store/napis.h"
#include "store/start.h"
#include "ui/dialogi_gui.h"

using namespace testy_wpisow;

namespace {
QByteArray zawartosc(const QString& plik) {
  QFile f(plik);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// Reads an exported file back as a statement: CSV by its columns, QIF as it stands.
std::vector<PozycjaWyciagu> wczytaj(const QString& plik) {
  OpcjeWyciagu o;
  if (plik.endsWith(QLatin1String(".csv"))) {
    o.mapowanie.separator = QLatin1Char(';');
    o.mapowanie.naglowek = 0;
    o.mapowanie.data = 0;
    o.mapowanie.kwota = 1;
    o.mapowanie.opis = 2;
    o.mapowanie.kontrahent = 4;
  }
  BladWyciagu b;
  const auto w = CzytajWyciag(plik, o, &b);
  EXPECT_TRUE(w) << plik.toStdString() << ": " << TekstBledu(b).toStdString();
  return w ? w->pozycje : std::vector<PozycjaWyciagu>{};
}

struct DialogTestowy {
  std::optional<Dialogi::WybranyPlik> odpowiedz;
  QString proponowana;
  DialogTestowy() {
    Dialogi::UstawDialogZapisu(
        [this](QWidget*, const QString&, const QString& nazwa, const QStringList&) {
          proponowana = nazwa;
          return odpowiedz;
        });
  }
  ~DialogTestowy() { Dialogi::UstawDialogZapisu({}); }
};
}  // namespace

TEST(EksportPrzegladu, FilteredSortedListReadsBackInCsvAndQif) {
  MagazynTestowy m(1);
  WczytajSetup();
  const qint64 portfel = KontoT(QStringLiteral("Portfel"), 1, 0, 0, QStringLiteral("2020-01-01"));
  const qint64 bank = KontoT(QStringLiteral("Bank Śląski"), 2, 0, 0, QStringLiteral("2020-01-01"));
  KategoriaT(QStringLiteral("a"), 1, QStringLiteral("Pensja"));
  KategoriaT(QStringLiteral("a"), 2, QStringLiteral("Żywność"));
  const qint64 sklep = KontrahentT(QStringLiteral("Sklep O'Hara"));
  const QString t = QStringLiteral("transakcje");
  WpisT(t, 1, 999999999999.99, QStringLiteral("2026-01-31"), bank, QStringLiteral("a"), 0,
        QStringLiteral("Premia; \"roczna\" za 2025 — zażółć gęślą jaźń"));
  WpisT(t, 2, 0.01, QStringLiteral("2026-03-02"), bank, QStringLiteral("a"), sklep,
        QStringLiteral("Bułka u O'Hary; reszta"));
  WpisT(t, 2, 12.5, QStringLiteral("2026-02-10"), portfel, QStringLiteral("a"), sklep,
        QStringLiteral("poza filtrem"));
  sesja.pubTryb = 2;
  sesja.pubFiltrCzasowy.rodzaj = 0;
  sesja.pubFiltrTransakcji = QStringLiteral(" AND transakcje.konto=%1 ").arg(bank);
  sesja.pubTytulTransakcji.clear();
  frmPrzegladTransakcji p;
  ASSERT_EQ(p.Dane().Ile(), 2);
  p.KliknijNaglowek(2);  // by expense: the income (no expense) first

  QTemporaryDir d;
  DialogTestowy dialog;
  auto* cmd = Kontrolka<QPushButton>(&p, "cmdEksport");
  ASSERT_NE(cmd, nullptr);
  // Cancelled: nothing written, nothing said.
  cmd->click();
  EXPECT_TRUE(dialog.proponowana.endsWith(QLatin1String(".csv")));
  EXPECT_TRUE(QDir(d.path()).isEmpty());

  // A name without an extension takes the chosen type's.
  for (int filtr : {0, 1}) {
    dialog.odpowiedz = Dialogi::WybranyPlik{d.filePath(QStringLiteral("wpisy banku")), filtr};
    cmd->click();
    const QString plik =
        d.filePath(filtr ? QStringLiteral("wpisy banku.qif") : QStringLiteral("wpisy banku.csv"));
    ASSERT_TRUE(QFile::exists(plik)) << filtr;
    const auto w = wczytaj(plik);
    ASSERT_EQ(w.size(), 2u) << filtr;
    EXPECT_EQ(w[0].data, QDate(2026, 1, 31));
    EXPECT_EQ(w[0].grosze, 99999999999999LL) << filtr;
    EXPECT_EQ(w[0].opis, QStringLiteral("Premia; \"roczna\" za 2025 — zażółć gęślą jaźń")) << filtr;
    EXPECT_EQ(w[1].grosze, -1) << filtr;
    EXPECT_EQ(w[1].kontrahent, QStringLiteral("Sklep O'Hara")) << filtr;
    EXPECT_EQ(w[1].opis, QStringLiteral("Bułka u O'Hary; reszta")) << filtr;
  }
  const QByteArray csv = zawartosc(d.filePath(QStringLiteral("wpisy banku.csv")));
  EXPECT_TRUE(csv.contains(";Żywność;Sklep O'Hara;Bank Śląski\r\n")) << csv.constData();
  EXPECT_FALSE(csv.contains("poza filtrem"));
  EXPECT_TRUE(m.host.pokazane.empty());

  // A write that runs out of room says which file and keeps the former one whole.
  const QString plik = d.filePath(QStringLiteral("wpisy banku.csv"));
  struct rlimit dawny {};
  ::getrlimit(RLIMIT_FSIZE, &dawny);
  const auto dawnySygnal = std::signal(SIGXFSZ, SIG_IGN);
  struct rlimit maly = dawny;
  maly.rlim_cur = 64;
  ::setrlimit(RLIMIT_FSIZE, &maly);
  dialog.odpowiedz = Dialogi::WybranyPlik{plik, 0};
  cmd->click();
  ::setrlimit(RLIMIT_FSIZE, &dawny);
  std::signal(SIGXFSZ, dawnySygnal);
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_TRUE(m.host.pokazane[0].tekst.contains(QDir::toNativeSeparators(plik)));
  EXPECT_EQ(zawartosc(plik), csv);
  EXPECT_EQ(QDir(d.path()).entryList(QDir::Files).size(), 2);
}

TEST(EksportPrzegladu, TransfersLeaveTheirFromAccountAndNameTheOther) {
  MagazynTestowy m(2);
  WczytajSetup();
  const qint64 portfel = KontoT(QStringLiteral("Portfel"), 1, 0, 0, QStringLiteral("2020-01-01"));
  const qint64 bank = KontoT(QStringLiteral("Łączny"), 2, 0, 0, QStringLiteral("2020-01-01"));
  TransferT(QStringLiteral("wewnetrzne"), 250.5, QStringLiteral("2026-04-01"), bank, portfel,
            QStringLiteral("Wypłata z bankomatu"));
  sesja.pubTryb = 2;
  sesja.pubFiltrCzasowy.rodzaj = 0;
  sesja.pubFiltrTransferow.clear();
  frmPrzegladTransakcjiWewnetrznych p;
  QTemporaryDir d;
  DialogTestowy dialog;
  dialog.odpowiedz = Dialogi::WybranyPlik{d.filePath(QStringLiteral("przelewy.QIF")), 0};
  auto* cmd = Kontrolka<QPushButton>(&p, "cmdEksport");
  ASSERT_NE(cmd, nullptr);
  cmd->click();
  const QByteArray qif = zawartosc(d.filePath(QStringLiteral("przelewy.QIF")));
  EXPECT_TRUE(qif.contains("T-250.50\r\n")) << qif.constData();
  EXPECT_TRUE(qif.contains("L[Portfel]\r\n")) << qif.constData();
  EXPECT_TRUE(qif.contains("MWypłata z bankomatu\r\n"));
}
