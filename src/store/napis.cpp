#include "store/napis.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QStringList>

#include "store/baza.h"
#include "store/session.h"

namespace {
using Tabela = QHash<QString, std::pair<QString, QString>>;

struct Teksty {
  bool wczytane = false;
  QString plik;
  Tabela wiersze;
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

// The program carries its own copy of the texts the store is built from, for the moments the
// store can't be read: a missing or locked store, the password gate before the store is open.
// Same format as the data files: key, Polish, English by tabs; "#" comments; "\n" a line break.
const Tabela& wbudowane() {
  static const Tabela tabela = [] {
    Tabela w;
    const QDir folder(QStringLiteral(":/jezyki"));
    for (const QString& nazwa : folder.entryList({QStringLiteral("*.tsv")}, QDir::Files)) {
      QFile f(folder.filePath(nazwa));
      if (!f.open(QIODevice::ReadOnly)) continue;
      for (const QByteArray& bajty : f.readAll().split('\n')) {
        const QString linia = QString::fromUtf8(bajty).remove(QLatin1Char('\r'));
        if (linia.trimmed().isEmpty() || linia.startsWith(QLatin1Char('#'))) continue;
        QStringList pola = linia.split(QLatin1Char('\t'));
        for (QString& p : pola)
          p.replace(QStringLiteral("\\n"), QStringLiteral("\r\n"))
              .replace(QStringLiteral("\\t"), QStringLiteral("\t"));
        if (pola.size() >= 3) w.insert(pola[0], {pola[1], pola[2]});
      }
    }
    return w;
  }();
  return tabela;
}
}  // namespace

QString Napis(const QString& klucz) {
  Teksty& t = teksty();
  if (pubBaza().Otwarta() && (!t.wczytane || t.plik != pubBaza().Plik())) wczytaj();
  const Tabela& tabela = pubBaza().Otwarta() ? t.wiersze : wbudowane();
  auto it = tabela.constFind(klucz);
  // A store from an older version may lack a text the program has since gained.
  if (it == tabela.constEnd()) {
    it = wbudowane().constFind(klucz);
    if (it == wbudowane().constEnd()) return {};
  }
  return sesja.pubJezyk == 1 ? it->first : it->second;
}

void WyczyscNapisy() { teksty() = Teksty{}; }
