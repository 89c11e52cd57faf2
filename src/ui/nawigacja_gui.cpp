#include "ui/nawigacja_gui.h"

#include <QHash>

namespace Nawigacja {
namespace {

QHash<QString, Ekran>& ekrany() {
  static QHash<QString, Ekran> e;
  return e;
}

}  // namespace

Ekran Zarejestruj(const QString& ekran, Ekran pokaz) {
  Ekran dawny = ekrany().take(ekran);
  if (pokaz) ekrany().insert(ekran, std::move(pokaz));
  return dawny;
}

bool Dostepny(const QString& ekran) { return ekrany().contains(ekran); }

bool Pokaz(const QString& ekran, QWidget* rodzic) {
  const auto it = ekrany().constFind(ekran);
  if (it == ekrany().constEnd()) return false;
  // A copy: the screen may register others while it is open.
  const Ekran pokaz = *it;
  pokaz(rodzic);
  return true;
}

}  // namespace Nawigacja
