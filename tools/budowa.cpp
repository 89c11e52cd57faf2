#include "budowa.h"

#include <sqlcipher/sqlite3.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include "surowa.h"

namespace {

// Rows of a tab-separated data file; "#" starts a comment line. In texts, "\n" stands for a line
// break (stored as CR LF, as the messages expect) and "\t" for a tab.
QList<QStringList> wiersze(const QString& plik, QString* blad) {
  QList<QStringList> wynik;
  QFile f(plik);
  if (!f.open(QIODevice::ReadOnly | QIODevice::Text)) {
    if (blad) *blad = QStringLiteral("cannot read %1").arg(plik);
    return wynik;
  }
  QTextStream in(&f);
  in.setEncoding(QStringConverter::Utf8);
  while (!in.atEnd()) {
    const QString linia = in.readLine();
    if (linia.trimmed().isEmpty() || linia.startsWith(QLatin1Char('#'))) continue;
    QStringList pola = linia.split(QLatin1Char('\t'));
    for (QString& p : pola)
      p.replace(QStringLiteral("\\n"), QStringLiteral("\r\n"))
          .replace(QStringLiteral("\\t"), QStringLiteral("\t"));
    wynik << pola;
  }
  return wynik;
}

bool wstaw(sqlite3* db, const QString& sql, const QList<QStringList>& dane, int kolumny,
           QString* blad) {
  sqlite3_stmt* st = nullptr;
  if (sqlite3_prepare_v2(db, sql.toUtf8().constData(), -1, &st, nullptr) != SQLITE_OK) {
    if (blad) *blad = QString::fromUtf8(sqlite3_errmsg(db));
    return false;
  }
  for (const QStringList& w : dane) {
    sqlite3_reset(st);
    for (int i = 0; i < kolumny; ++i) {
      const QByteArray v = w.value(i).toUtf8();
      sqlite3_bind_text(st, i + 1, v.constData(), int(v.size()), SQLITE_TRANSIENT);
    }
    if (sqlite3_step(st) != SQLITE_DONE) {
      if (blad)
        *blad = QStringLiteral("%1: %2").arg(w.value(0), QString::fromUtf8(sqlite3_errmsg(db)));
      sqlite3_finalize(st);
      return false;
    }
  }
  sqlite3_finalize(st);
  return true;
}

// The language table (every data/jezyki/*.tsv), the name days and the wizard's category sets.
bool zaladujDostarczone(sqlite3* db, const QString& folderData, QString* blad) {
  if (!WykonajSurowo(
          db,
          QStringLiteral("DELETE FROM jezyki; DELETE FROM imieniny; DELETE FROM kreatorkategorie;"),
          blad))
    return false;
  QDir jezyki(QDir(folderData).filePath(QStringLiteral("jezyki")));
  for (const QString& nazwa :
       jezyki.entryList({QStringLiteral("*.tsv")}, QDir::Files, QDir::Name)) {
    const auto dane = wiersze(jezyki.filePath(nazwa), blad);
    for (const QStringList& w : dane)
      if (w.size() != 3) {
        if (blad)
          *blad = QStringLiteral("%1: row %2 has %3 fields").arg(nazwa, w.value(0)).arg(w.size());
        return false;
      }
    if (!wstaw(db,
               QStringLiteral("INSERT INTO jezyki (kontrolka, polski, angielski) VALUES (?,?,?)"),
               dane, 3, blad)) {
      if (blad) *blad = nazwa + QStringLiteral(": ") + *blad;
      return false;
    }
  }
  const QString imieniny = QDir(folderData).filePath(QStringLiteral("imieniny.tsv"));
  if (QFile::exists(imieniny) &&
      !wstaw(db, QStringLiteral("INSERT INTO imieniny (miesiac, dzien, imiona) VALUES (?,?,?)"),
             wiersze(imieniny, blad), 3, blad))
    return false;
  const QString kreator = QDir(folderData).filePath(QStringLiteral("kreatorkategorie.tsv"));
  if (QFile::exists(kreator) &&
      !wstaw(db,
             QStringLiteral("INSERT INTO kreatorkategorie (typ, identyfikator, kategoria, polski, "
                            "angielski, opis) "
                            "VALUES (?,?,?,?,?,?)"),
             wiersze(kreator, blad), 6, blad))
    return false;
  return true;
}

// Planner statistics of a filled store (data/statystyki.sql), so that a new store's queries
// take the indexes a store in use needs. ANALYZE on the empty tables only makes sqlite_stat1.
bool statystyki(sqlite3* db, const QString& folderData, QString* blad) {
  QFile f(QDir(folderData).filePath(QStringLiteral("statystyki.sql")));
  if (!f.exists()) return true;
  if (!f.open(QIODevice::ReadOnly)) {
    if (blad) *blad = QStringLiteral("cannot read %1").arg(f.fileName());
    return false;
  }
  return WykonajSurowo(db, QStringLiteral("ANALYZE; DELETE FROM sqlite_stat1;"), blad) &&
         WykonajSurowo(db, QString::fromUtf8(f.readAll()), blad);
}

}  // namespace

bool ZbudujBaze(const QString& folderData, const QString& plik, QString* blad) {
  QFile schemat(QDir(folderData).filePath(QStringLiteral("schema.sql")));
  if (!schemat.open(QIODevice::ReadOnly)) {
    if (blad) *blad = QStringLiteral("cannot read %1").arg(schemat.fileName());
    return false;
  }
  const QString sql = QString::fromUtf8(schemat.readAll());
  // Built under a temporary name and renamed, so that a failed build leaves no half store.
  const QString tymczasowy = plik + QStringLiteral(".new");
  QFile::remove(tymczasowy);
  QDir().mkpath(QFileInfo(plik).absolutePath());
  sqlite3* db = OtworzSurowo(tymczasowy, true, blad);
  if (!db) return false;
  bool ok = WykonajSurowo(db, QStringLiteral("BEGIN"), blad) && WykonajSurowo(db, sql, blad) &&
            zaladujDostarczone(db, folderData, blad) && statystyki(db, folderData, blad) &&
            WykonajSurowo(db, QStringLiteral("COMMIT"), blad);
  sqlite3_close(db);
  if (!ok) {
    QFile::remove(tymczasowy);
    return false;
  }
  QFile::remove(plik);
  return QFile::rename(tymczasowy, plik);
}

bool OdswiezDostarczone(const QString& folderData, const QString& plik, QString* blad) {
  sqlite3* db = OtworzSurowo(plik, false, blad);
  if (!db) return false;
  const bool ok = WykonajSurowo(db, QStringLiteral("BEGIN"), blad) &&
                  zaladujDostarczone(db, folderData, blad) &&
                  WykonajSurowo(db, QStringLiteral("COMMIT"), blad);
  if (!ok) WykonajSurowo(db, QStringLiteral("ROLLBACK"), nullptr);
  sqlite3_close(db);
  return ok;
}

bool MaDaneUzytkownika(const QString& plik, bool* ma, QString* blad) {
  *ma = false;
  sqlite3* db = OtworzSurowo(plik, false, blad);
  if (!db) return false;
  // Every table the program writes into on the user's behalf; a table the file lacks is empty.
  static const char* const tabele[] = {"konta",
                                       "kategorie",
                                       "kontrahent",
                                       "transakcje",
                                       "zaplanowane",
                                       "wewnetrzne",
                                       "zaplanowanewewnetrzne",
                                       "szablony",
                                       "szablonywewnetrzne",
                                       "okresowe",
                                       "setup",
                                       "pytania"};
  bool ok = true;
  for (const char* t : tabele) {
    Polecenie jest(
        db, QStringLiteral("SELECT count(*) FROM sqlite_master WHERE type='table' AND name=?"));
    jest.Tekst(1, QString::fromLatin1(t));
    if (!jest.Wiersz()) {
      ok = false;
      if (blad) *blad = jest.Blad();
      break;
    }
    if (jest.Liczba(0) == 0) continue;
    Polecenie wiersz(db, QStringLiteral("SELECT EXISTS (SELECT 1 FROM %1)").arg(QLatin1String(t)));
    if (!wiersz.Wiersz()) {
      ok = false;
      if (blad) *blad = wiersz.Blad();
      break;
    }
    if (wiersz.Liczba(0) != 0) {
      *ma = true;
      break;
    }
  }
  sqlite3_close(db);
  return ok;
}

bool PrzygotujBaze(const QString& folderData, const QString& plik, SkutekBudowy* skutek,
                   QString* blad) {
  if (QFile::exists(plik)) {
    bool ma = false;
    if (!MaDaneUzytkownika(plik, &ma, blad)) {
      if (blad)
        *blad = QStringLiteral("%1 is not a readable store, left as it is: %2").arg(plik, *blad);
      return false;
    }
    if (ma) {
      if (skutek) *skutek = SkutekBudowy::Odswiezona;
      return OdswiezDostarczone(folderData, plik, blad);
    }
  }
  if (skutek) *skutek = SkutekBudowy::Zbudowana;
  return ZbudujBaze(folderData, plik, blad);
}
