#include "store/dzis.h"

namespace {
QDate& ustalony() {
  static QDate d;
  return d;
}
}  // namespace

QDate Dzis() { return ustalony().isValid() ? ustalony() : QDate::currentDate(); }

QDateTime Teraz() {
  if (!ustalony().isValid()) return QDateTime::currentDateTime();
  return QDateTime(ustalony(), QTime::currentTime());
}

void UstawDzis(const QDate& dzien) { ustalony() = dzien; }
