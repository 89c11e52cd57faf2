#pragma once
// The month window of the reports over time, and the plain number form of their balances.

#include <QDate>
#include <QString>

// Six months ending with the month M of a date: column 1 is M - 5, column 6 is M. With M above 6
// the window also fetches M - 6 into column 0, which is never shown nor added up.
struct OknoMiesiecy {
  explicit OknoMiesiecy(const QDate& dzien);
  int m, y;
  QDate od;                // first day fetched
  QDate pierwszyPokazany;  // first day of column 1
  QDate do_;               // first day after the window
  // The column of a calendar month of the window.
  int Kolumna(int miesiac) const;
  // The window as conditions on MONTH and YEAR of "data", grouped by month, and everything before
  // the first shown month (the account report's opening figures read these on datautworzenia).
  QString Okno() const;
  QString Przed() const;
  // The same window as a range of dates on a column, which an index serves.
  QString Zakres(const QString& kolumna) const;
};

// An amount with no mask: no grouping and no fixed decimals ("12345678.9", "-0.05", "100"),
// exact to the grosz however large, with the system's decimal mark.
QString LiczbaBezMaski(qint64 grosze);
