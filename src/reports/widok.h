#pragma once
// The report document in a rich-text view: runs with their font, size and bold, a block per
// line and the pictures, so that a character position in the view is one in the document.

#include "reports/dokument.h"

class QTextDocument;

void WypelnijWidok(const DokumentRaportu& d, QTextDocument& widok);
