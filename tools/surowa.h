#pragma once
// A raw SQLite connection to a store, for the tools: the builder and the generator write SQLite
// directly, and the bench measures the floor under the program's own store code.

#include <QByteArray>
#include <QString>

struct sqlite3;
struct sqlite3_stmt;

// Opens plik keyed with the program's key; nullptr (and blad) when it isn't a readable store.
sqlite3* OtworzSurowo(const QString& plik, bool utworz, QString* blad);
// Runs one or more statements that return nothing.
bool WykonajSurowo(sqlite3* db, const QString& sql, QString* blad);

// A prepared statement: bind by position (from 1), step, read columns (from 0), reset.
class Polecenie {
 public:
  Polecenie(sqlite3* db, const QString& sql);
  ~Polecenie();
  Polecenie(const Polecenie&) = delete;
  Polecenie& operator=(const Polecenie&) = delete;

  bool Ok() const { return st_ != nullptr; }
  Polecenie& Tekst(int i, const QString& v);
  Polecenie& Tekst(int i, const QByteArray& v);  // UTF-8, copied
  Polecenie& Liczba(int i, qint64 v);
  Polecenie& Kwota(int i, qint64 grosze);  // stored as a REAL holding whole cents
  // Runs a write to its end and resets for the next binding.
  bool Wykonaj();
  // Steps to the next row; false at the end or on an error (Blad() tells which).
  bool Wiersz();
  void OdNowa();
  qint64 Liczba(int kolumna) const;
  double Rzeczywista(int kolumna) const;
  QString Tekst(int kolumna) const;
  int Kolumny() const;
  const QString& Blad() const { return blad_; }

 private:
  sqlite3* db_;
  sqlite3_stmt* st_ = nullptr;
  QString blad_;
};
