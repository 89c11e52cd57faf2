#include "common/magazyn_testowy.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "store/baza.h"
#include "store/dzis.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/start.h"

namespace {
QString wzorzec() {
  static QTemporaryDir dir;
  static QString plik;
  if (plik.isEmpty()) {
    const QString p = dir.filePath(QStringLiteral("money.fns"));
    QString blad;
    if (!ZbudujBaze(QStringLiteral(ZORVIK_DATA_DIR), p, &blad))
      ADD_FAILURE() << "store build failed: " << blad.toStdString();
    plik = p;
  }
  return plik;
}
}  // namespace

MagazynTestowy::MagazynTestowy(int jezyk, const RozmiarProbki* probka) {
  ZamknijBaze();
  WyczyscNapisy();
  QFile::copy(wzorzec(), Plik());
  QFile(Plik()).setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
  if (probka) {
    QString blad;
    if (!GenerujProbke(Plik(), *probka, &blad)) ADD_FAILURE() << "sample failed: " << blad.toStdString();
  }
  sesja = Session{};
  sesja.pubJezyk = jezyk;
  UstawDzis(QDate(2026, 11, 22));
  sesja.pubFiltrCzasowy.pozycja = sesja.pubFiltrCzasowy.od = sesja.pubFiltrCzasowy.do_ = Dzis();
  UstawFolderDanych(dir_.path());
  if (!OtworzBaze()) ADD_FAILURE() << "store did not open";
  // A start run by an earlier test leaves its pre-upgrade copy installed: not here.
  UstawPrzedAktualizacja({});
  AktualizujBaze();
  dawnyHost_ = UstawHostKomunikatow(&host);
}

MagazynTestowy::~MagazynTestowy() {
  UstawHostKomunikatow(dawnyHost_);
  ZamknijBaze();
  WyczyscNapisy();
  UstawDzis(QDate());
}

QString MagazynTestowy::Plik() const { return QDir(dir_.path()).filePath(QStringLiteral("money.fns")); }

qint64 MagazynTestowy::Licz(const QString& sqliteSql) const {
  const Rekordy rs = pubBaza().Czytaj(sqliteSql);
  return rs.Pole(0).toLongLong();
}
