#include "store/napis.h"

#include <QHash>

#include "store/baza.h"
#include "store/session.h"

namespace {
struct Teksty {
  bool wczytane = false;
  QString plik;
  QHash<QString, std::pair<QString, QString>> wiersze;
};
Teksty& teksty() {
  static Teksty t;
  return t;
}

void wczytaj() {
  Teksty& t = teksty();
  t.wiersze.clear();
  t.wczytane = true;
  t.plik = pubBaza().Plik();
  Rekordy rs = pubBaza().Czytaj(QStringLiteral("SELECT kontrolka, polski, angielski FROM jezyki"));
  t.wiersze.reserve(rs.RecordCount());
  for (; !rs.Eof(); rs.MoveNext())
    t.wiersze.insert(rs.Tekst(QStringLiteral("kontrolka")),
                     {rs.Tekst(QStringLiteral("polski")), rs.Tekst(QStringLiteral("angielski"))});
}
}  // namespace

QString Napis(const QString& klucz) {
  Teksty& t = teksty();
  if (!t.wczytane || t.plik != pubBaza().Plik()) {
    if (!pubBaza().Otwarta()) return {};
    wczytaj();
  }
  const auto it = t.wiersze.constFind(klucz);
  if (it == t.wiersze.constEnd()) return {};
  return sesja.pubJezyk == 1 ? it->first : it->second;
}

void WyczyscNapisy() { teksty() = Teksty{}; }
