#pragma once
// Pictures painted by the program itself: the three message pictures and the program's icon.

#include <QIcon>
#include <QPixmap>

// Picture of a message: 0 information, 1 warning, 2 question; rozmiar in device-independent
// pixels.
QPixmap ObrazekKomunikatu(int ikona, int rozmiar = 32);
// The program's icon, in the usual sizes.
QIcon IkonaProgramu();
// One size of the program's picture, e.g. for the splash screen.
QPixmap ObrazekProgramu(int rozmiar);
