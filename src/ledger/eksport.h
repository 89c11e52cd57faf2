#pragma once
// Export of the entries a browser shows: CSV by the rules of the reports' CSV (UTF-8 with a
// byte-order mark, ";" between cells, a cell quoted when it holds ";", a quote, a line break or
// blanks at its ends, CRLF lines) and QIF (a bank account's records, which the program's own
// import reads back).

#include <QByteArray>
#include <QDate>
#include <QString>
#include <vector>

class DanePrzegladu;

struct WierszEksportu {
  QDate data;
  qint64 grosze = 0;  // positive: income or money in; negative: expense or money out
  QString opis, kategoria, kontrahent, konto;
};

// A header line in the edition's language, then a line per row: date (yyyy-mm-dd), amount with
// the edition's decimal mark and no grouping, description, category, counterparty, account.
QByteArray EksportCsv(const std::vector<WierszEksportu>& wiersze);
QByteArray EksportQif(const std::vector<WierszEksportu>& wiersze);
// The rows of an entry browser's read (fields data, przychod, wydatek, opis and, when present,
// nazwakategorii, nazwakontrahenta, nazwakonta), in its order.
std::vector<WierszEksportu> WierszeDoEksportu(const QString& jetSql);
// The rows a browser shows, in the order it shows them. Entries: income positive, expense
// negative. Transfers: the amount leaves the "from" account (negative, that account in the
// account column) and the category column names the other account in brackets, as QIF marks a
// transfer.
std::vector<WierszEksportu> WierszeZPrzegladu(const DanePrzegladu& dane);
// Writes the rows to a file through the checked writer; QIF when the name ends in ".qif".
bool ZapiszEksport(const QString& sciezka, const std::vector<WierszEksportu>& wiersze,
                   QString* blad = nullptr);
