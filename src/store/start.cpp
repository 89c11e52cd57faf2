#include "store/start.h"

#include <QStringList>
#include <sqlcipher/sqlite3.h>

#include "store/baza.h"
#include "store/dzis.h"
#include "store/session.h"
#include "store/strony.h"
#include "store/zamek.h"

namespace {
const char* const kolumnyMasek[] = {"pubFormatDaty_ddpmmm",      "pubFormatDaty_ddpmmmpyy",
                                    "pubFormatDaty_ddlmmmlyyyy", "pubFormatDaty_ddsmmmmsyyyy",
                                    "pubFormatDaty_dd_mmm_yy",   "pubFormatDaty_ddpmmmmpyy",
                                    "pubFormatDaty_ddpmmmmpyyyy"};

const QStringList& kolumnySetupKolorow() {
  static const QStringList k = {QStringLiteral("tloaktywne"),
                                QStringLiteral("napisyaktywne"),
                                QStringLiteral("przyciskiaktywne"),
                                QStringLiteral("etykietyaktywne"),
                                QStringLiteral("napisyetykietaktywne"),
                                QStringLiteral("listajeden"),
                                QStringLiteral("listadwa"),
                                QStringLiteral("tlonieaktywne"),
                                QStringLiteral("napisynieaktywne")};
  return k;
}

void ustawKolory(Ustawienia& u, const QStringList& k) {
  QString* pola[] = {&u.tloaktywne,      &u.napisyaktywne,        &u.przyciskiaktywne,
                     &u.etykietyaktywne, &u.napisyetykietaktywne, &u.listajeden,
                     &u.listadwa,        &u.tlonieaktywne,        &u.napisynieaktywne};
  for (int i = 0; i < 9; ++i) *pola[i] = k.value(i);
}
}  // namespace

const QStringList& DomyslneKolory() {
  static const QStringList k = {
      QStringLiteral("12303359"), QStringLiteral("986895"),   QStringLiteral("16777139"),
      QStringLiteral("8454143"),  QStringLiteral("4194304"),  QStringLiteral("16777215"),
      QStringLiteral("10812380"), QStringLiteral("15724527"), QStringLiteral("986895")};
  return k;
}

// The masks of the edition in force, in the order of kolumnyMasek.
QStringList maskiWydania() {
  const bool polski = sesja.pubJezyk == 1;
  return {QStringLiteral("dd-mmm"),
          QStringLiteral("dd-mmm-yy"),
          QStringLiteral("dd/mmm/yyyy"),
          polski ? QStringLiteral("dd mmmm yyyy") : QStringLiteral("mmmm dd yyyy"),
          QStringLiteral("dd_mmm_yy"),
          polski ? QStringLiteral("dd-mmmm-yy") : QStringLiteral("mmmm-dd-yy"),
          polski ? QStringLiteral("dd-mmmm-yyyy") : QStringLiteral("mm-dd-yyyy")};
}

namespace {
std::function<void()>& przedAktualizacja() {
  static std::function<void()> f;
  return f;
}

struct NowaKolumna {
  const char* tabela;
  const char* kolumna;
  const char* typ;
};
const NowaKolumna noweKolumny[] = {{"setup", "adresserwisu", "TEXT(255)"},
                                   {"konta", "numer", "TEXT"},
                                   {"transakcje", "idbanku", "TEXT"},
                                   {"transakcje", "importu", "INTEGER"},
                                   {"wewnetrzne", "importu", "INTEGER"},
                                   {"kontrahent", "importu", "INTEGER"},
                                   {"setup", "liczbakopii", "INTEGER"}};

bool maKolumne(const char* tabela, const char* kolumna) {
  const Rekordy rs = pubBaza().Czytaj(
      QStringLiteral("SELECT * FROM %1 WHERE 1=0").arg(QLatin1String(tabela)));
  return !rs.Ok() || rs.NazwyPol().contains(QLatin1String(kolumna), Qt::CaseInsensitive);
}

bool dodajKolumne(const NowaKolumna& k) {
  if (maKolumne(k.tabela, k.kolumna)) return true;
  return bool(pubBaza().Wykonaj(QStringLiteral("ALTER TABLE %1 ADD COLUMN %2 %3")
                                    .arg(QLatin1String(k.tabela), QLatin1String(k.kolumna),
                                         QLatin1String(k.typ))));
}
}  // namespace

void UstawPrzedAktualizacja(std::function<void()> przed) { przedAktualizacja() = std::move(przed); }

bool AktualizujStrony() {
  if (!OtworzBaze() || pubBaza().RozmiarStrony() >= RozmiarStronyBazy) return true;
  if (przedAktualizacja()) przedAktualizacja()();
  return PrzeniesNaNoweStrony();
}

bool DodajKolumnyImportu() {
  bool ok = true;
  for (const NowaKolumna& k : noweKolumny) ok = dodajKolumne(k) && ok;
  // The rows of imports, found for an undo without reading the whole table.
  if (ok)
    sqlite3_exec(pubBaza().Uchwyt(),
                 "CREATE INDEX IF NOT EXISTS transakcje_importu ON transakcje (importu) WHERE "
                 "importu IS NOT NULL; CREATE INDEX IF NOT EXISTS wewnetrzne_importu ON wewnetrzne "
                 "(importu) WHERE importu IS NOT NULL;",
                 nullptr, nullptr, nullptr);
  return ok;
}

bool AktualizujBaze() {
  if (!OtworzBaze()) return false;
  Baza& b = pubBaza();
  const QStringList wartosci = maskiWydania();
  const Rekordy stara = b.Czytaj(QStringLiteral("SELECT * FROM wersjabazy"));
  // Before any change of structure the store as it stands is copied aside.
  bool zmiana = stara.Ok() && stara.LiczbaPol() == 2;
  for (const NowaKolumna& k : noweKolumny) zmiana = zmiana || !maKolumne(k.tabela, k.kolumna);
  if (zmiana && przedAktualizacja()) przedAktualizacja()();
  if (stara.Ok() && stara.LiczbaPol() == 2) {
    const bool ok = b.Transakcja([&] {
      for (const char* k : kolumnyMasek)
        if (!b.Wykonaj(QStringLiteral("ALTER TABLE wersjabazy ADD COLUMN %1 TEXT(25)")
                           .arg(QLatin1String(k))))
          return false;
      if (!b.Wykonaj(QStringLiteral("ALTER TABLE wersjabazy ADD COLUMN DrukowacZera BYTE")))
        return false;
      QStringList set;
      for (int i = 0; i < 7; ++i)
        set << QStringLiteral("%1=%2").arg(QLatin1String(kolumnyMasek[i]), SqlTekst(wartosci[i]));
      set << QStringLiteral("DrukowacZera='1'");
      return bool(
          b.Wykonaj(QStringLiteral("UPDATE wersjabazy SET ") + set.join(QStringLiteral(", "))));
    });
    if (!ok) ZapiszLog(QStringLiteral("wersjabazy: the upgrade failed"));
  }
  DodajAdresSerwisu();
  DodajOkresowe();
  DodajKolumnyImportu();
  // The masks as the store holds them. A table of another shape, or one without its row, is
  // no reason to stop: the edition's own masks serve, and the log says so.
  const Rekordy rs = b.Czytaj(QStringLiteral(
      "SELECT pubFormatDaty_ddpmmm, pubFormatDaty_ddpmmmpyy, pubFormatDaty_ddlmmmlyyyy, "
      "pubFormatDaty_ddsmmmmsyyyy, pubFormatDaty_dd_mmm_yy, pubFormatDaty_ddpmmmmpyy, "
      "pubFormatDaty_ddpmmmmpyyyy, DrukowacZera FROM wersjabazy"));
  QString* maski[] = {&sesja.pubFormatDaty_ddpmmm,      &sesja.pubFormatDaty_ddpmmmpyy,
                      &sesja.pubFormatDaty_ddlmmmlyyyy, &sesja.pubFormatDaty_ddsmmmmsyyyy,
                      &sesja.pubFormatDaty_dd_mmm_yy,   &sesja.pubFormatDaty_ddpmmmmpyy,
                      &sesja.pubFormatDaty_ddpmmmmpyyyy};
  if (!rs.Ok() || rs.Eof()) {
    ZapiszLog(QStringLiteral("wersjabazy: no masks to read (%1); the edition's own are used")
                  .arg(rs.Ok() ? QStringLiteral("no row") : rs.Blad()));
    for (int i = 0; i < 7; ++i) *maski[i] = wartosci[i];
    sesja.DrukowacZera = 1;
    return true;
  }
  for (int i = 0; i < 7; ++i) *maski[i] = rs.Tekst(QLatin1String(kolumnyMasek[i]));
  sesja.DrukowacZera = rs.Tekst(QStringLiteral("DrukowacZera")).toInt();
  return true;
}

bool DodajAdresSerwisu() {
  if (!pubBaza().Czytaj(QStringLiteral("SELECT * FROM setup WHERE 1=0")).Ok()) return false;
  return dodajKolumne(noweKolumny[0]);
}

bool DodajOkresowe() {
  Baza& b = pubBaza();
  const Rekordy setup = b.Czytaj(QStringLiteral("SELECT * FROM setup WHERE 1=0"));
  const bool horyzont =
      !setup.Ok() ||
      setup.NazwyPol().contains(QStringLiteral("horyzontokresowych"), Qt::CaseInsensitive);
  const bool tabela = PoliczIle(QStringLiteral(
                          "SELECT COUNT(*) AS ile FROM sqlite_master WHERE type='table' AND "
                          "name='okresowe'")) > 0;
  if (horyzont && tabela) return true;
  // The same tables as a new store has (data/schema.sql), added as one change.
  const bool ok = b.Transakcja([&] {
    if (!horyzont &&
        !b.Wykonaj(QStringLiteral("ALTER TABLE setup ADD COLUMN horyzontokresowych INTEGER")))
      return false;
    if (tabela) return true;
    for (const char* sql :
         {"CREATE TABLE okresowe (id INTEGER PRIMARY KEY AUTOINCREMENT, rodzaj INTEGER, konto "
          "INTEGER, nakonto INTEGER DEFAULT 0, kategoria TEXT, kontrahent INTEGER DEFAULT 0, opis "
          "TEXT, kwota REAL DEFAULT 0, oddaty TEXT, dodaty TEXT, czestotliwosc INTEGER, weekend "
          "INTEGER DEFAULT 0, wygenerowanodo TEXT)",
          "CREATE TABLE okresowedni (okresowa INTEGER NOT NULL, data TEXT NOT NULL, wiersz "
          "INTEGER, PRIMARY KEY (okresowa, data)) WITHOUT ROWID"})
      if (sqlite3_exec(b.Uchwyt(), sql, nullptr, nullptr, nullptr) != SQLITE_OK) {
        ZapiszLog(QStringLiteral("recurring rules: the upgrade failed: %1")
                      .arg(QString::fromUtf8(sqlite3_errmsg(b.Uchwyt()))));
        return false;
      }
    return true;
  });
  if (!ok) ZapiszLog(QStringLiteral("okresowe: the upgrade failed"));
  return ok;
}

bool CzyPustaBaza() {
  for (const char* tabela : {"kategorie", "konta", "kontrahent"}) {
    if (PoliczIle(QStringLiteral("SELECT COUNT(*) AS ile FROM %1").arg(QLatin1String(tabela))) > 0)
      return false;
  }
  return true;
}

void WczytajSetup() {
  Ustawienia u;
  ustawKolory(u, DomyslneKolory());
  OtworzBaze();
  const Rekordy rs = pubBaza().Czytaj(QStringLiteral("SELECT * FROM setup"));
  if (rs.Ok() && rs.Eof()) {
    QStringList wartosci;
    for (const QString& k : DomyslneKolory()) wartosci << SqlTekst(k);
    pubBaza().Wykonaj(QStringLiteral("INSERT INTO setup (") +
                      kolumnySetupKolorow().join(QLatin1Char(',')) +
                      QStringLiteral(",autostartprzypominacz) VALUES (") +
                      wartosci.join(QLatin1Char(',')) + QStringLiteral(",'1')"));
  } else if (!rs.Eof()) {
    QStringList k;
    for (const QString& kolumna : kolumnySetupKolorow()) k << rs.Tekst(kolumna);
    ustawKolory(u, k);
    u.haslo = rs.Tekst(QStringLiteral("haslo"));
    u.notatnik = rs.Tekst(QStringLiteral("notatnik"));
    u.userid = rs.Tekst(QStringLiteral("userid"));
    u.hasloserwisu = rs.Tekst(QStringLiteral("hasloserwisu"));
  }
  u.pubWykres = 0;
  u.imieniny = sesja.pubUstawienia.imieniny;
  sesja.pubUstawienia = u;
}

QString ImionaDnia() {
  const QDate d = Dzis();
  const Rekordy rs =
      pubBaza().Czytaj(QStringLiteral("SELECT imiona FROM imieniny WHERE dzien=%1 AND miesiac=%2")
                           .arg(d.day())
                           .arg(d.month()));
  return rs.Tekst(QStringLiteral("imiona"));
}
