#pragma once
// The reminder companion's reading of the reminder file: Windows-1250 text, CR LF line ends,
// fields joined by the byte 174. Line 1 holds today's name days, line 2 the user's first name,
// every further line one planned entry or transfer that is due, in seven fields.

#include <QByteArray>
#include <QString>
#include <vector>

struct PozycjaPrzypomnienia {
  enum Rodzaj { Przychod, Wydatek, Transfer };
  Rodzaj rodzaj = Wydatek;
  QString dzien;       // as written: "15-mar"
  qint64 grosze = 0;   // the amount in hundredths
  QString kwota;       // the amount as written, blanks trimmed
  QString konto;       // the account (a transfer: the source)
  QString kategoria;   // the category (a transfer: the target account)
  QString kontrahent;  // empty for none and for transfers
  QString opis;
};

struct Przypomnienia {
  QString imieniny;
  QString imie;
  std::vector<PozycjaPrzypomnienia> pozycje;
  int uszkodzone = 0;  // lines that are not seven fields with a known kind and an amount
  qint64 sumaPrzychodow = 0, sumaWydatkow = 0, sumaTransferow = 0;  // hundredths
  int ilePrzychodow = 0, ileWydatkow = 0, ileTransferow = 0;
};

// Reads the file's bytes; never fails: what can't be read counts as damaged.
Przypomnienia CzytajPrzypomnienia(const QByteArray& dane);

enum class StanPlikuPrzypomnien { Dobry, Brak, Nieczytelny, Pusty };
// Reads the file at sciezka. Brak: no such file; Nieczytelny: it can't be read; Pusty: it holds
// nothing at all (not even the two head lines).
StanPlikuPrzypomnien CzytajPlikPrzypomnien(const QString& sciezka, Przypomnienia* wynik);

// An amount in hundredths as the user reads it: "1 234 567,50" with the given decimal mark.
QString KwotaPrzypomnienia(qint64 grosze, const QString& separator);
