#pragma once
// Amounts, numbers and dates as text: every amount and date reaches the screen, the reports
// and SQL through these, with the system's decimal mark and month and day names by edition.

#include <QByteArray>
#include <QDate>
#include <QString>
#include <QVariant>

// Number masks. An empty (null or "") value counts as 0.
QString FormatKwoty(double wartosc);  // "#### ##0.00": 12.5 -> " 12.50", 1234567.5 -> "1234 567.50"
QString FormatKwotyEdycja(double wartosc);  // "######0.00": 1234.5 -> "1234.50"
QString FormatCalkowita(double wartosc);    // "###0"
QString FormatProcentu(double wartosc);     // "###.00": 0.5 -> ".50"
// A number by any of the program's masks ("#", "0", ".", blanks and other literals), half away
// from zero on the decimal form, "." written as pubSeparator. A negative number gets "-" in
// front of the whole text; one that rounds to zero gets none.
QString FormatLiczby(double wartosc, const QString& maska);

// A date by one of the date masks ("d", "dd", "ddd", "dddd", "m", "mm", "mmm", "mmmm", "y",
// "yy", "yyyy", "/", and literals such as "-", "_", blank), with month and day names by edition
// (the "nazwydat" texts). "/" is the edition's date separator: "." in Polish, "/" in English.
// An invalid date counts as 1899-12-30.
QString FormatDaty(const QDate& data, const QString& maska);
QString FormatDatyOkresu(const QDate& data);  // by pubFormatDaty_ddlmmmlyyyy
// The date for SQL: always mm/dd/yyyy with "/", whatever the system's separator.
QString ZapisDaty(const QDate& data);
// The edition's date separator that "/" in a date mask stands for.
QString SeparatorDaty();

// "" becomes "0" (in the caller's variable too); "." becomes pubSeparator.
QString KropkaNaSeparator(QString& tekst);
// "" becomes "0" (in the caller's variable too); "," becomes ".".
QString PrzecinekNaKropke(QString& tekst);
// The calculator's reading of a typed amount: "" becomes "0", the decimal comma read when it is
// the system's mark, rounded to cents with a final 5 going to the even digit.
double KwotaZTekstu(QString& tekst);
// The value (a number or text; "," read as ".") as currency text of the system's locale.
QString FormatWaluty(QVariant& wartosc);

// Month name: a text of 3 or more characters is a date, else a month number. May is "maj".
QString NazwaMiesiaca(const QString& tekst);
QString NazwaMiesiaca(int miesiac);
QString NazwaMiesiaca(const QDate& data);

// A field of a CSV file as a spreadsheet reads it (UTF-8, ";" between fields): quoted, with its
// quotes doubled, when it holds a separator, a quote, a line break or blanks at either end.
QByteArray KomorkaCsv(const QString& t);
