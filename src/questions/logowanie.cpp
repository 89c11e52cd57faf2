#include "questions/logowanie.h"

#include <sqlcipher/sqlite3.h>

#include <QUrl>

#include "store/baza.h"
#include "store/session.h"
#include "store/start.h"
#include "store/zmiany.h"

namespace {
int limitCzasu = 20000;
}

QString DomyslnyAdresSerwisu() { return QStringLiteral("https://zorvik.pl"); }

QString AdresSerwisu() {
  const QString a = CzytajLogowanie().adres.trimmed();
  return a.isEmpty() ? DomyslnyAdresSerwisu() : a;
}

bool PoprawnyAdresSerwisu(const QString& adres) {
  const QUrl u(adres.trimmed(), QUrl::StrictMode);
  const QString s = u.scheme().toLower();
  return u.isValid() && (s == QLatin1String("http") || s == QLatin1String("https")) &&
         !u.host().isEmpty() && !u.hasQuery() && !u.hasFragment() && u.userInfo().isEmpty();
}

LogowanieSerwisu CzytajLogowanie() {
  LogowanieSerwisu l;
  if (!OtworzBaze()) return l;
  const Rekordy rs = pubBaza().Czytaj(QStringLiteral("SELECT * FROM setup"));
  l.userid = rs.Tekst(QStringLiteral("userid"));
  l.hasloserwisu = rs.Tekst(QStringLiteral("hasloserwisu"));
  l.adres = rs.Tekst(QStringLiteral("adresserwisu"));
  return l;
}

bool ZapiszLogowanie(const LogowanieSerwisu& l, QString* blad) {
  const auto porazka = [&](const QString& powod) {
    if (blad) *blad = powod;
    ZapiszLog(QStringLiteral("saving the questions service login: %1").arg(powod));
    return false;
  };
  if (!OtworzBaze()) return porazka(QStringLiteral("store not open"));
  // The one-row rule: a store without its setup row gets it first.
  if (PoliczIle(QStringLiteral("SELECT COUNT(*) AS ile FROM setup")) == 0) WczytajSetup();
  sqlite3* db = pubBaza().Uchwyt();
  sqlite3_stmt* st = nullptr;
  if (sqlite3_prepare_v2(db, "UPDATE setup SET userid=?1, hasloserwisu=?2, adresserwisu=?3", -1,
                         &st, nullptr) != SQLITE_OK)
    return porazka(QString::fromUtf8(sqlite3_errmsg(db)));
  const QByteArray wartosci[] = {l.userid.toUtf8(), l.hasloserwisu.toUtf8(),
                                 l.adres.trimmed().toUtf8()};
  for (int i = 0; i < 3; ++i)
    sqlite3_bind_text(st, i + 1, wartosci[i].constData(), int(wartosci[i].size()),
                      SQLITE_TRANSIENT);
  const int kod = sqlite3_step(st);
  sqlite3_finalize(st);
  if (kod != SQLITE_DONE) return porazka(QString::fromUtf8(sqlite3_errmsg(db)));
  sesja.pubUstawienia.userid = l.userid;
  sesja.pubUstawienia.hasloserwisu = l.hasloserwisu;
  OglosZmiane(Tabele::Setup);
  return true;
}

int LimitCzasuSerwisu() { return limitCzasu; }
void UstawLimitCzasuSerwisu(int ms) { limitCzasu = ms > 0 ? ms : 20000; }
