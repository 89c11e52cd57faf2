#pragma once
// A read of the program's SQL dialect stepped row by row on the program's connection, for the
// lists that are refilled often or hold many rows: no recordset is gathered first.

#include <QString>

struct sqlite3_stmt;

class OdczytJet {
 public:
  // Translates and prepares the statement; a failure is logged with the statement's shape.
  explicit OdczytJet(const QString& jetSql);
  ~OdczytJet();
  OdczytJet(const OdczytJet&) = delete;
  OdczytJet& operator=(const OdczytJet&) = delete;

  bool Ok() const { return st_ != nullptr; }
  sqlite3_stmt* Polecenie() const { return st_; }
  // Steps to the next row; false at the end, or when the read fails (logged).
  bool Krok();
  // True once every row was read without a failure.
  bool Caly() const { return caly_; }

 private:
  void zapiszBlad() const;

  QString jetSql_;
  sqlite3_stmt* st_ = nullptr;
  bool caly_ = false;
};
