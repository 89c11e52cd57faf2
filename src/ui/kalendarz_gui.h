#pragma once
// The month view of the date dialogs, in the edition's language, Monday first.

#include <QDate>
#include <QString>

class QCalendarWidget;
class QWidget;

QCalendarWidget* NowyKalendarz(const QString& nazwa, const QDate& data, QWidget* rodzic);
