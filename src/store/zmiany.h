#pragma once
// The one announcement that data changed. The store sends it after every successful write
// (at once outside a transaction, at the commit inside one), naming the tables touched; the
// main window and every open browser listen and refill what shows those tables.

#include <QObject>
#include <QString>

namespace Tabele {
enum : unsigned {
  Transakcje = 1u << 0,
  Zaplanowane = 1u << 1,
  Wewnetrzne = 1u << 2,
  ZaplanowaneWewnetrzne = 1u << 3,
  Konta = 1u << 4,
  Kategorie = 1u << 5,
  Kontrahent = 1u << 6,
  Szablony = 1u << 7,
  SzablonyWewnetrzne = 1u << 8,
  Setup = 1u << 9,
  Pytania = 1u << 10,
  Inne = 1u << 31,
};
}  // namespace Tabele

class Zmiany : public QObject {
  Q_OBJECT
 public:
  static Zmiany* Instancja();

 signals:
  void DaneZmienione(unsigned tabele);
};

// The table a Jet write statement changes, as a Tabele flag (Inne for any other, 0 for a read).
unsigned TabelaZapisu(const QString& jetSql);
// Sends the announcement now (nothing when tabele is 0).
void OglosZmiane(unsigned tabele);
