#pragma once
// The command-line report runner: its arguments set the session values the report's callers set
// in the program, the report is written by the same code as in the report window, and the
// document goes out as text, RTF, PDF or CSV.

#include <QByteArray>
#include <QDate>
#include <QString>
#include <QStringList>

#include "reports/zapis.h"

struct ZadanieRaportu {
  QString dane;    // data folder; empty: the program's own
  QString raport;  // transakcje, transfery, konta, ...
  int okres = 3;   // kind of the time filter
  QDate data;      // the working date; null: today
  QDate od, do_;   // the range of "zakres"
  qint64 konto = 0;
  int rodzaj = 0;  // account kind
  QString kategoria = QStringLiteral("Root");
  int rodzajKategorii = 2;
  qint64 kontrahent = 0;
  bool szczegoly = false;
  bool zaplanowane = false;
  int jezyk = 0;  // 0: by the system's language
  FormatZapisu format = FormatZapisu::Tekst;
  QString wyjscie;  // file; empty: standard output
  bool pomoc = false;
};

// Reads the arguments (without the program's name). False with the reason for an unknown
// argument, a missing or bad value, or a missing --raport or --format.
bool CzytajArgumentyRaportu(const QStringList& argumenty, ZadanieRaportu* z, QString* blad);
QString PomocRaportu();

// Sets the session as the report's callers do and names the report form; nullptr for an unknown
// report name.
const struct FormularzRaportu* PrzygotujRaport(const ZadanieRaportu& z);

// The whole run over an open store: the report in its format. False with the reason.
bool WykonajRaport(const ZadanieRaportu& z, QByteArray* wynik, QString* blad);

// The runner as the executable runs it: 0 done, 1 the store or the file failed, 2 bad arguments.
// What goes to standard output lands in *wyjscie, messages in *komunikat.
int UruchomRaport(const QStringList& argumenty, QByteArray* wyjscie, QString* komunikat);
