#pragma once
// A fresh copy of the delivered store in a temporary folder, opened as the program's store.

#include <QString>
#include <QTemporaryDir>
#include <memory>

#include "budowa.h"
#include "store/MsgBoxModule.h"

class MagazynTestowy {
 public:
  // Builds (once per test program) the delivered store, copies it to a temporary folder, points
  // the program at it, opens it and runs the start-up upgrade. With a sample size the copy is
  // filled with generated data. Session values are reset; the edition is Polish unless set.
  explicit MagazynTestowy(int jezyk = 1, const RozmiarProbki* probka = nullptr);
  ~MagazynTestowy();

  QString Folder() const { return dir_.path(); }
  QString Plik() const;
  // Runs a statement directly (SQLite dialect) for checks that must not pass through our code.
  qint64 Licz(const QString& sqliteSql) const;

  SkryptowanyHost host;

 private:
  QTemporaryDir dir_;
  HostKomunikatow* dawnyHost_ = nullptr;
};
