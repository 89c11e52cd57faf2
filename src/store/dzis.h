#pragma once
// The one source of "today" and "now": tests and the gallery set it.

#include <QDate>
#include <QDateTime>

QDate Dzis();
QDateTime Teraz();
// A valid date fixes today from now on; an invalid one returns to the system clock.
void UstawDzis(const QDate& dzien);
