#pragma once
// The store: one SQLCipher file, one connection for the process, statements in the Jet dialect.

#include <QString>
#include <QStringList>
#include <QVariant>
#include <functional>
#include <vector>

#include "store/dziennik.h"

struct sqlite3;

// A read result held in memory: walked with Eof/MoveNext, fields read by name.
class Rekordy {
 public:
  Rekordy() = default;

  bool Eof() const { return biezacy_ >= wiersze_.size(); }
  void MoveNext() {
    if (!Eof()) ++biezacy_;
  }
  void MoveFirst() { biezacy_ = 0; }
  qsizetype RecordCount() const { return wiersze_.size(); }
  int LiczbaPol() const { return int(nazwy_.size()); }
  const QStringList& NazwyPol() const { return nazwy_; }

  // Value of a field of the current row; null QVariant at EOF or for an unknown name.
  QVariant Pole(const QString& nazwa) const;
  QVariant Pole(int kolumna) const;
  // Text of a field; null and EOF give "".
  QString Tekst(const QString& nazwa) const;

  bool Ok() const { return blad_.isEmpty(); }
  const QString& Blad() const { return blad_; }

 private:
  friend class Baza;
  QStringList nazwy_;
  std::vector<std::vector<QVariant>> wiersze_;
  size_t biezacy_ = 0;
  QString blad_;
  int indeks(const QString& nazwa) const;
};

// Outcome of a write: success, the rows changed, or the error text.
struct WynikZapisu {
  bool ok = false;
  qint64 zmienione = 0;
  QString blad;
  explicit operator bool() const { return ok; }
};

class Baza {
 public:
  Baza() = default;
  ~Baza();
  Baza(const Baza&) = delete;
  Baza& operator=(const Baza&) = delete;

  // Opens (or reopens) the file with the key (the program's own when empty), for reading only
  // when asked. False on failure, with the reason in blad when given (else in the log);
  // KodBledu() then tells the store's error code.
  bool Otworz(const QString& plik, QString* blad = nullptr, const QByteArray& klucz = {},
              bool tylkoDoOdczytu = false);
  void Zamknij();
  bool Otwarta() const { return db_ != nullptr; }
  const QString& Plik() const { return plik_; }
  int KodBledu() const { return kodBledu_; }
  // The size of the open file's pages (see store/strony.h); 0 when closed.
  int RozmiarStrony() const { return rozmiarStrony_; }

  // A Jet-dialect read. A failed read gives an empty result carrying the error, and is logged.
  Rekordy Czytaj(const QString& jetSql);
  // A Jet-dialect INSERT, UPDATE, DELETE or ALTER. A failure is logged and returned.
  WynikZapisu Wykonaj(const QString& jetSql);
  // Runs several writes as one change: commits when praca returns true, rolls back otherwise.
  // Nested calls join the outer transaction.
  bool Transakcja(const std::function<bool()>& praca);
  qint64 OstatnieId() const;

  sqlite3* Uchwyt() const { return db_; }

 private:
  sqlite3* db_ = nullptr;
  QString plik_;
  int kodBledu_ = 0;
  int glebokoscTransakcji_ = 0;
  int rozmiarStrony_ = 0;
  unsigned zmienioneTabele_ = 0;  // announced at the commit
};

// The program's store: <data folder>/money.fns, opened once with the key of the session;
// cheap on every later call.
bool OtworzBaze();
// The key the program's store opens with: the program's own until the user's password locks the
// store, then the password as typed at the gate. Empty: the program's own.
void UstawKluczSesji(const QByteArray& klucz);
QByteArray KluczSesji();

// What stands between the program and its store.
enum class StanBazy {
  Otwarta,         // open for reading and writing
  Brak,            // no file
  TylkoDoOdczytu,  // the file or its folder may not be written by this user
  Zablokowana,     // does not open with the key of the session: locked by a password
  Nieczytelna,     // may not be read, empty, or not a store of this program
};
// Opens the program's store, or tells why it can't; every state but Otwarta is logged with its
// reason. A read-only store is left closed (see OtworzBazeDoOdczytu).
StanBazy OtworzBazeIZbadaj();
// Opens the program's store for reading only (a store the user may not write to).
bool OtworzBazeDoOdczytu();
Baza& pubBaza();
// Closes the program's store (tests, the end of the process).
void ZamknijBaze();
// The data folder (dane/ beside the program unless --dane says otherwise).
QString FolderDanych();
void UstawFolderDanych(const QString& folder);
QString PlikBazy();

// The one way a text value enters a statement: quoted, any apostrophe doubled.
QString SqlTekst(const QString& tekst);

// A number field of the current row: EOF or null give 0; the value is rounded to cents.
double PoleRekordu(const Rekordy& rs, const QString& nazwa);
// The count a "SELECT COUNT(...) AS ile ..." statement gives; 0 when it fails.
qint64 PoliczIle(const QString& jetSql);
// Value as text with leading and trailing blanks removed.
QString Oczysc(const QVariant& wartosc);

// The fixed key of the program's store: a store without a password opens with it.
extern const char* const KluczBazy;
