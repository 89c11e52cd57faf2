#pragma once
// A bank statement read from a file: its lines with date, amount in grosze, description, the
// other party and its account, and the bank's own id of the line. Readers of CSV, MT940, QIF and
// OFX produce it; a file they can't read gives a message naming what and where, and no lines.

#include <QByteArray>
#include <QDate>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

struct PozycjaWyciagu {
  int wiersz = 0;  // line of the file the entry starts on (1-based; 0 when unknown)
  QDate data;
  qint64 grosze = 0;  // positive: money in, negative: money out
  QString opis;
  QString kontrahent;  // the other party's name as the bank gives it
  QString rachunek;    // the other party's account number, digits only
  QString idBanku;     // the bank's id of the line ("" when the format has none)
};

struct Wyciag {
  QString rachunek;  // the statement's own account number, digits only ("" when not given)
  std::vector<PozycjaWyciagu> pozycje;
};

// What went wrong, where: the kind of fault, the line (0: the file as a whole) and the piece of
// text at fault.
enum class BladImportu {
  Pusty,          // the file holds nothing
  ZaDuzy,         // over NajwiekszyWyciag
  Otwarcie,       // the file can't be read
  Kwota,          // an amount that is not one
  Data,           // a date that is not one
  ZaMaloKolumn,   // a CSV line shorter than the columns it must have
  BrakKolumn,     // no date or amount column in the mapping
  Znacznik,       // an MT940 tag or field of the wrong form
  Urwany,         // the file ends inside a statement or record
  BrakOperacji,   // nothing to import
  Kodowanie,      // not valid UTF-8 though read as UTF-8
  Ofx,            // libofx found no statement
  LiniaQif,       // a QIF line of no known kind
};
struct BladWyciagu {
  BladImportu rodzaj = BladImportu::Pusty;
  int wiersz = 0;
  QString fragment;
};

// The message the user reads: what and where, in the edition's language.
QString TekstBledu(const BladWyciagu& b);

enum class FormatWyciagu { Auto, Csv, Mt940, Ofx, Qif };
enum class Kodowanie { Auto, Cp1250, Utf8 };

// How the columns of a CSV file are read; -1: no such column.
struct MapowanieCsv {
  QChar separator;      // null: found from the file
  int naglowek = -1;    // line (0-based) holding the column names; -1: found from the file
  int data = -1;
  int kwota = -1;       // one signed amount column, or
  int przychod = -1;    // separate columns of money in and
  int wydatek = -1;     // money out (its amounts may be written with or without a minus)
  int opis = -1;
  int kontrahent = -1;
  int rachunek = -1;
  int idBanku = -1;
  bool pusta() const { return data < 0 && kwota < 0 && przychod < 0 && wydatek < 0; }
};

struct OpcjeWyciagu {
  FormatWyciagu format = FormatWyciagu::Auto;
  Kodowanie kodowanie = Kodowanie::Auto;
  MapowanieCsv mapowanie;  // an empty one: the columns are found from the header
};

// The largest file read: a statement is far smaller; anything bigger is refused before reading.
constexpr qint64 NajwiekszyWyciag = 20 * 1024 * 1024;

// Text of the file's bytes: UTF-8 when they are valid UTF-8 (a BOM is dropped), else
// Windows-1250, unless the encoding is given.
QString Dekoduj(const QByteArray& bajty, Kodowanie kodowanie);
// Windows-1250 alone.
QString ZCp1250(const QByteArray& bajty);
QByteArray DoCp1250(const QString& tekst);

// An amount as banks write it: "1234,56", "-1 234,56 zł", "1.234,56", "+12.50 PLN", "(12,00)".
// The value in grosze, or nothing when the text is not an amount (or has more than two decimals
// or is beyond 999 999 999 999.99).
std::optional<qint64> CzytajKwote(const QString& tekst);
// A date as dd.mm.yyyy, yyyy-mm-dd, dd-mm-yyyy (also with "/" or a time after a blank).
QDate CzytajDate(const QString& tekst);
// Digits of an account number (spaces, dashes and a country prefix such as "PL" dropped).
QString CyfryRachunku(const QString& tekst);
// An NRB grouped as banks print it: "61 1090 1014 0000 0712 1981 2874".
QString RachunekGrupami(const QString& cyfry);

// The format the content shows.
FormatWyciagu RozpoznajFormat(const QByteArray& bajty);

// The readers. Each gives the statement or fills blad and gives nothing.
std::optional<Wyciag> CzytajCsv(const QString& tekst, const MapowanieCsv& mapowanie,
                                BladWyciagu* blad);
std::optional<Wyciag> CzytajMt940(const QString& tekst, BladWyciagu* blad);
std::optional<Wyciag> CzytajQif(const QString& tekst, BladWyciagu* blad);
// OFX and QFX through libofx, which reads a file.
std::optional<Wyciag> CzytajOfx(const QString& plik, BladWyciagu* blad);

// A CSV file's first lines split into fields, and the mapping found from its header: what the
// column-mapping dialog shows.
struct PodgladCsv {
  QChar separator;
  std::vector<QStringList> wiersze;  // at most the first 30 lines
  MapowanieCsv mapowanie;            // found from the header (columns -1 when not found)
};
PodgladCsv PodejrzyjCsv(const QString& tekst, const MapowanieCsv& mapowanie = {});
// The fields of one CSV line ("" quoted with doubled quotes inside).
QStringList PolaCsv(const QString& linia, QChar separator);

// Reads a file in the format asked for (or found), in the encoding asked for (or found).
std::optional<Wyciag> CzytajWyciag(const QString& plik, const OpcjeWyciagu& opcje,
                                   BladWyciagu* blad, FormatWyciagu* rozpoznany = nullptr);
