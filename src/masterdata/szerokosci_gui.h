#pragma once
// Widths at which the master-data screens show a name whole: the longest name the store allows
// (16 characters) written in the widest letters of the font, Polish ones included.

class QFontMetrics;
class QLineEdit;
class QTreeWidget;
class QWidget;

// The longest name a name column holds (nazwa of accounts and categories, skrocona of
// counterparties).
constexpr int DlugoscNazwy = 16;

// The width of DlugoscNazwy characters of the widest letter or digit of the font.
int SzerokoscNazwy(const QFontMetrics& fm);
// The width at which a line edit shows such a name whole.
int SzerokoscPolaNazwy(const QLineEdit* pole);
// The width a list's column needs to show such a name whole, with the line's icon when it has
// one and, in a tree, poziomy levels of indentation in front.
int SzerokoscKolumnyNazwy(const QTreeWidget* lista, bool zIkona, int poziomy = 0);
// The width of the window's content at which a command strip of it shows every command, with
// no "more" button.
int SzerokoscPaska(const QWidget* pasek);
