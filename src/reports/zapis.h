#pragma once
// A report out of the program: plain text, RTF, PDF and CSV, written through the one checked,
// atomic way of writing files, and the pages of a printed or PDF report.

#include <QByteArray>
#include <QString>

#include "reports/dokument.h"

class QPagedPaintDevice;

enum class FormatZapisu { Rtf, Tekst, Pdf, Csv };

// The file types of the save dialog, in this order: RTF, plain text, PDF, CSV.
QStringList FiltryZapisu();
// The chosen name, with the extension of the chosen filter added when it has none.
QString NazwaZFiltrem(const QString& nazwa, int filtr);
// What a chosen name and filter give: PDF and CSV by their filters; otherwise RTF exactly when
// the name's last three letters are "rtf" (so "x.RTF" is plain text), else plain text.
FormatZapisu FormatDlaNazwy(const QString& nazwa, int filtr);
// The name the save dialog offers: the report's stem and today's date.
QString NazwaDomyslna(const QString& formularz);

QString DoTekstu(const DokumentRaportu& d);
QByteArray DoRtf(const DokumentRaportu& d);
// The report's table: UTF-8 with a byte-order mark, ";" between cells, one row per line.
QByteArray DoCsv(const DokumentRaportu& d);
// The report's pages: margins of 0.42" left, 0.28" top, 0.14" right and 0.42" bottom; lines
// too long for the page go on in the next one; each page ends with a rule and its number, and
// every page after the first begins with the report's head again.
bool RysujStrony(const DokumentRaportu& d, QPagedPaintDevice& urzadzenie, QString* blad = nullptr);
QByteArray DoPdf(const DokumentRaportu& d, QString* blad = nullptr);

// Writes the report to the file in the format; false with the reason.
bool ZapiszRaport(const DokumentRaportu& d, const QString& sciezka, FormatZapisu format,
                  QString* blad = nullptr);
