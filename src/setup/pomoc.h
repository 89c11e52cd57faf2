#pragma once
// The program's help: one short HTML page per main screen, in both editions, shipped inside the
// program. A window finds its page by its form name.

#include <QString>
#include <QStringList>

// The names of the pages, in the order of the contents list.
const QStringList& StronyPomocy();
// The page of a window (by its form name); the main window's page for any other.
QString StronaOkna(const QString& formularz);
// The HTML of a page in the edition's language ("" for an unknown page).
QString TrescStrony(const QString& strona);
// A page's title, from its <title>.
QString TytulStrony(const QString& strona);
// The pages whose text holds every word of the query, whatever the case; all for an empty one.
QStringList SzukajWPomocy(const QString& zapytanie);
