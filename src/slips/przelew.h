#pragma once
// The payment slip: what its editor fills in from the store, and the drawing of a sheet of four
// slips, on a plain sheet (rules, boxes, labels and values) or on a ready-printed form (values
// only). The drawing is first a list of shapes in twips (1/1440 inch) on the sheet, then painted
// at any scale: the same list makes the preview, the printed page and the PDF.

#include <QByteArray>
#include <QString>
#include <vector>

#include "store/session.h"

class QPainter;
class QPagedPaintDevice;

// ---- the editor ------------------------------------------------------------------------------

// The slip as the editor opens it: the recipient from the counterparty (0: none), the amount and
// the second title line from the planned entry (0: none), and the sender from the user's data in
// setup. Every text is trimmed. kwota is the amount in the amount field's shape, "" for none.
PrzelewRekord DanePrzelewu(qint64 kontrahent, qint64 zaplanowana);

// The editor's check before printing: the amount read as the program reads a number (a ","
// ends the reading, so "0,50" reads as 0). True when that gives 0: the editor asks then.
bool KwotaPrzelewuZerowa(const QString& kwota);

// ---- the sheet -------------------------------------------------------------------------------

// The four positions of a slip on the sheet, in this order: A, B, C, D.
struct PozycjaPrzelewu {
  char litera;
  int x, y;
};
const std::vector<PozycjaPrzelewu>& PozycjePrzelewu(bool naFormularzu);

// One shape of the drawing, in twips on the sheet.
struct KsztaltPrzelewu {
  enum Rodzaj { Linia, Prostokat, Okrag, Tekst };
  Rodzaj rodzaj = Linia;
  int x1 = 0, y1 = 0, x2 = 0, y2 = 0;  // a line's ends, a box's corners; an arc's centre in x1, y1
  int promien = 0;
  bool przerywana = false;  // the cut line below the slip
  // A text: its top-left corner at x1, y1; its size in points (6 a label, 11 a value); the room
  // it has to the right (x2: the edge of its cell), where a longer text is set smaller.
  QString tekst;
  int rozmiar = 0;
  char pozycja = 'A';
};

// One slip at the position's offset.
std::vector<KsztaltPrzelewu> UkladPrzelewu(const PrzelewRekord& p, const PozycjaPrzelewu& gdzie);
// The four slips of the sheet, A to D.
std::vector<KsztaltPrzelewu> UkladArkusza(const PrzelewRekord& p);

// The sheet: landscape A4, in twips.
inline constexpr int SzerokoscArkusza = 16838;
inline constexpr int WysokoscArkusza = 11906;

// Paints the shapes with skala device pixels to the twip, moved by przesuniecie (device pixels).
// The font of a text is shrunk where the text would pass the edge of its cell.
void RysujKsztalty(QPainter& p, const std::vector<KsztaltPrzelewu>& ksztalty, double skala,
                   double przesuniecieX = 0, double przesuniecieY = 0);

// Where the sheet's drawing lands on the paper. The ready-printed form takes the values exactly at
// their places from the paper's corner. A plain sheet is drawn whole: its four slips reach past
// the bottom of a landscape A4, so they are scaled down a little and centred within margins of a
// quarter inch that any printer can print.
struct DopasowanieArkusza {
  double skala = 1;     // on top of the twip scale
  double x = 0, y = 0;  // the offset, in twips of the paper
};
DopasowanieArkusza Dopasowanie(const PrzelewRekord& p);
// The preview picture of the sheet, szerokosc pixels wide, white paper.
class QImage;
QImage PodgladArkusza(const PrzelewRekord& p, int szerokosc);
// The sheet on a printer or a PDF page, landscape, from the paper's corner.
bool RysujArkusz(const PrzelewRekord& p, QPagedPaintDevice& urzadzenie, QString* blad = nullptr);
// The sheet as a one-page PDF.
QByteArray PrzelewDoPdf(const PrzelewRekord& p, QString* blad = nullptr);
