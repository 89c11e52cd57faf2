#include "ui/kalendarz_gui.h"

#include <QCalendarWidget>
#include <QLocale>

#include "store/dzis.h"
#include "store/session.h"

QCalendarWidget* NowyKalendarz(const QString& nazwa, const QDate& data, QWidget* rodzic) {
  auto* k = new QCalendarWidget(rodzic);
  k->setObjectName(nazwa);
  k->setLocale(sesja.pubJezyk == 1 ? QLocale(QLocale::Polish, QLocale::Poland)
                                   : QLocale(QLocale::English, QLocale::UnitedKingdom));
  k->setFirstDayOfWeek(Qt::Monday);
  k->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  k->setGridVisible(true);
  k->setSelectedDate(data.isValid() ? data : Dzis());
  return k;
}
