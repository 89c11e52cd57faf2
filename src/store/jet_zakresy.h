#pragma once

#include <QString>

// Period conditions on a date column — YEAR(data)=y, (MONTH(data)=m AND YEAR(data)=y), the week
// and quarter forms, and their "before" forms — rewritten as date ranges, which the indexes on
// `data` serve. The result is still Jet text, with the same meaning for every date.
QString ZakresyDat(const QString& jet);
