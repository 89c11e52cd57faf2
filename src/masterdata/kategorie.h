#pragma once
// The two category trees (1 income, 2 expense). A category's identifier spells its path, one
// lower-case letter per level ("b", "ba", "bac"), so every subtree is a prefix condition. The
// trees have at most four levels and 26 children per parent; entries sit only on leaves.

#include <QString>
#include <optional>
#include <vector>

#include "store/session.h"

// Key of the tree node that stands for a whole tree; "-" is what a main category holds as parent.
inline const QString KluczKorzenia = QStringLiteral("Root");
inline constexpr int MaksDzieci = 26;
inline constexpr int MaksPoziomow = 4;

// One row of a tree, fields trimmed, in identifier order (a parent before its children).
struct WierszKategorii {
  qint64 id = 0;
  QString identyfikator;
  QString kategoria;  // the parent's identifier, "-" for a main category
  QString nazwa;
};
std::vector<WierszKategorii> WierszeKategorii(int rodzaj);

// Children of a parent key ("-" for the main categories).
int IleDzieci(const QString& klucz, int rodzaj);
// Executed and planned entries on the category itself.
qint64 IleWpisow(const QString& klucz, int rodzaj);
// Executed and planned entries on the category and below.
qint64 IleWpisowPoddrzewa(const QString& klucz, int rodzaj);

// The identifier a new child of rodzic ("-" for a main category) gets: the letter after the last
// sibling's; past "z" the lowest free letter; "" when all 26 letters are taken.
QString NastepnyIdentyfikator(const QString& rodzic, int rodzaj);

// The category's name with its ancestors in brackets: "Paliwo (Samochód / Eksploatacja)", a main
// category as "Paliwo " (the blank stays). "-" and a category that is gone give their messages and
// clear pubKategoria's identifier and name.
QString SciezkaKategorii(const QString& identyfikator, int rodzaj);

// ---- the editor ------------------------------------------------------------------------------

// Name and description of one category ("" when it is gone).
struct OpisKategorii {
  bool istnieje = false;
  QString nazwa, opis, kategoria;
};
OpisKategorii CzytajKategorie(const QString& identyfikator, int rodzaj);

// The editor's save. k.identyfikator empty: a new child of k.nadkategoria ("Root" or a key);
// otherwise a rename, which renames that identifier in both trees. Questions and refusals go
// through MyMsgbox. Returns the identifier saved, or nothing when the editor must stay open.
std::optional<QString> ZapiszKategorie(const KategoriaRekord& k, const QString& nazwa,
                                       const QString& opis);

// ---- commands of the browser -----------------------------------------------------------------

// A new category beside the selected node (rodzicWezla: its parent's key, "Root" or an id).
// Returns the nadkategoria for the editor, or nothing after the 26-children refusal.
std::optional<QString> PrzygotujNowaKategorie(const QString& wezel, const QString& rodzicWezla,
                                              int rodzaj);

struct NowaPodkategoria {
  bool otworzEdytor = false;
  QString nadkategoria;  // for the editor: the selected key, or "Root"
  QString automatyczna;  // the subcategory made for the moved entries, "" when none
};
// A new subcategory of the selected node: the depth and 26 limits; a leaf with entries asks,
// and on Tak gets an automatic first subcategory that takes its executed and planned entries;
// templates on the node move to its first subcategory. Every move is one transaction.
NowaPodkategoria PrzygotujNowaPodkategorie(const QString& wezel, int rodzaj);

// Deletes the category with its subtree and the templates on it, after the question. Refused
// while an executed or planned entry lies in the subtree. True when deleted.
bool SkasujKategorie(const QString& klucz, const QString& nazwa, int rodzaj);

// ---- sums, the breakdown and limits ----------------------------------------------------------

struct SumaKategorii {
  qint64 ile = 0;
  double przychod = 0, wydatek = 0;
  double Razem() const;
};
// Entries on the node itself (the whole tree for "Root") under an extra condition.
SumaKategorii SumaWezla(const QString& klucz, int rodzaj, const QString& warunek);

struct WierszRozbicia {
  QString identyfikator;  // the direct child
  QString nazwa;
  double kwota = 0;  // income + expense of the child's subtree
  QString udzial;    // percent of the total, "" when the total is 0
  int kolor = 1;     // 1..14, then from 1 again
};
struct Rozbicie {
  double suma = 0;     // the node's own entries (lblSuma)
  double sumaPod = 0;  // the children's total (lblSumaPod)
  double razem = 0;    // lblRazem: the children's total, or the own sum when that is 0
  std::vector<WierszRozbicia> wiersze;
};
inline constexpr int LiczbaKolorowRozbicia = 14;
// The node's entries in the period over its direct children, each child with its whole subtree.
Rozbicie RozbicieKategorii(const QString& klucz, int rodzaj, const QString& warunekOkresu);

// The monthly limit of a leaf for the month of the working date (pubFiltrCzasowy.pozycja).
struct StanLimitu {
  bool widoczny = false;  // a leaf with a limit other than 0
  double limit = 0, wykorzystano = 0, pozostaje = 0;
  bool przekroczony = false;  // the strip: remaining below 0 (imgLimit(1)), else imgLimit(0)
  QString wykorzystanoMain;   // lblWykorzystanoMain
  QString komentarz;          // lblKomentarzLimit
  // The details compare at zero the other way: remaining 0 already reads as used up, in red.
  QString lblLimit, lblWykorzystano, lblPozostaje, lblProcent, lbl4;
  bool wyczerpany = false;
};
StanLimitu LimitWezla(const QString& klucz, int rodzaj, bool maDzieci);

double CzytajLimit(const QString& identyfikator, int rodzaj);
// 0 removes the limit.
bool UstawLimit(const QString& identyfikator, int rodzaj, double limit);
