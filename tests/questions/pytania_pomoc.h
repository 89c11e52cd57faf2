#pragma once
// Questions written straight into the store, and what the tests read back.

#include <sqlcipher/sqlite3.h>

#include <QFile>
#include <QStringList>

#include "common/magazyn_testowy.h"
#include "questions/pytania.h"
#include "store/baza.h"
#include "store/napis.h"

namespace testy_pytan {

// A question in a state: 'a' not sent, 'b' sent on 2026-11-02, 'c' answered on 2026-11-05.
inline qint64 Wstaw(const QString& tekst, char stan, const QString& idpytania = QStringLiteral("7"),
                    const QString& odpowiedz = QStringLiteral("Tak.")) {
  const QString wyslane = stan == 'a' ? QStringLiteral("Null") : QStringLiteral("#11/02/2026#");
  const QString id = stan == 'a' ? QStringLiteral("Null") : SqlTekst(idpytania);
  const QString odpowiedziano =
      stan == 'c' ? QStringLiteral("#11/05/2026#") : QStringLiteral("Null");
  const QString tresc = stan == 'c' ? SqlTekst(odpowiedz) : QStringLiteral("Null");
  pubBaza().Wykonaj(QStringLiteral("INSERT INTO pytania (pytanie, datawyslania, idpytania, "
                                   "dataodpowiedzi, odpowiedz) VALUES (%1, %2, %3, %4, %5)")
                        .arg(SqlTekst(tekst), wyslane, id, odpowiedziano, tresc));
  return pubBaza().OstatnieId();
}

// One column of a question's row, read by plain SQL.
inline QString Kolumna(qint64 id, const char* kolumna) {
  return pubBaza()
      .Czytaj(
          QStringLiteral("SELECT %1 FROM pytania WHERE id=%2").arg(QLatin1String(kolumna)).arg(id))
      .Tekst(QLatin1String(kolumna));
}

// A statement run past the program's translator (triggers that make a write fail).
inline void Surowo(const char* sql) {
  sqlite3_exec(pubBaza().Uchwyt(), sql, nullptr, nullptr, nullptr);
}

inline QStringList Tytuly(const SkryptowanyHost& h) {
  QStringList w;
  for (const Komunikat& k : h.pokazane) w << k.tytul.mid(1);
  return w;
}

inline QString Log(const MagazynTestowy& m) {
  QFile f(m.Folder() + QStringLiteral("/zorvik.log"));
  return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

}  // namespace testy_pytan
