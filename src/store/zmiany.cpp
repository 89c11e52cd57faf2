#include "store/zmiany.h"

#include <QHash>
#include <QRegularExpression>

Zmiany* Zmiany::Instancja() {
  static Zmiany z;
  return &z;
}

unsigned TabelaZapisu(const QString& jetSql) {
  // INSERT INTO t, UPDATE t, DELETE [*] FROM t: the table is the first name after the verb.
  static const QRegularExpression wzor(
      QStringLiteral(R"(^\s*(?:INSERT\s+INTO|UPDATE|DELETE(?:\s+\*)?\s+FROM|ALTER\s+TABLE)\s+\[?(\w+))"),
      QRegularExpression::CaseInsensitiveOption);
  const auto m = wzor.match(jetSql);
  if (!m.hasMatch()) return 0;
  static const QHash<QString, unsigned> tabele = {
      {QStringLiteral("transakcje"), Tabele::Transakcje},
      {QStringLiteral("zaplanowane"), Tabele::Zaplanowane},
      {QStringLiteral("wewnetrzne"), Tabele::Wewnetrzne},
      {QStringLiteral("zaplanowanewewnetrzne"), Tabele::ZaplanowaneWewnetrzne},
      {QStringLiteral("konta"), Tabele::Konta},
      {QStringLiteral("kategorie"), Tabele::Kategorie},
      {QStringLiteral("kontrahent"), Tabele::Kontrahent},
      {QStringLiteral("szablony"), Tabele::Szablony},
      {QStringLiteral("szablonywewnetrzne"), Tabele::SzablonyWewnetrzne},
      {QStringLiteral("setup"), Tabele::Setup},
      {QStringLiteral("pytania"), Tabele::Pytania},
  };
  return tabele.value(m.captured(1).toLower(), Tabele::Inne);
}

void OglosZmiane(unsigned tabele) {
  if (tabele != 0) emit Zmiany::Instancja()->DaneZmienione(tabele);
}
