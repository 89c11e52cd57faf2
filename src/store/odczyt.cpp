#include "store/odczyt.h"

#include <sqlcipher/sqlite3.h>

#include "store/baza.h"
#include "store/dziennik.h"
#include "store/jet.h"

OdczytJet::OdczytJet(const QString& jetSql) : jetSql_(jetSql) {
  const QByteArray sql = TlumaczJet(jetSql).toUtf8();
  if (sqlite3_prepare_v2(pubBaza().Uchwyt(), sql.constData(), int(sql.size()), &st_, nullptr) !=
      SQLITE_OK) {
    zapiszBlad();
    sqlite3_finalize(st_);
    st_ = nullptr;
  }
}

OdczytJet::~OdczytJet() { sqlite3_finalize(st_); }

bool OdczytJet::Krok() {
  if (!st_ || caly_) return false;
  const int kod = sqlite3_step(st_);
  if (kod == SQLITE_ROW) return true;
  if (kod == SQLITE_DONE)
    caly_ = true;
  else
    zapiszBlad();
  return false;
}

void OdczytJet::zapiszBlad() const {
  ZapiszLog(QStringLiteral("read failed: %1 | %2")
                .arg(BezCytatow(QString::fromUtf8(sqlite3_errmsg(pubBaza().Uchwyt()))),
                     KsztaltZapytania(jetSql_)));
}
