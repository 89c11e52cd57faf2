#pragma once
// The frame the entry and transfer browsers share: the caller's rows (executed or planned, the
// caller's fragment, the time filter's seven buttons and the range), the totals and the count,
// the progress bar while the list fills, the period in the status bar, editing and deleting a
// line, sorting by a header click, and a refill whenever the store announces a change of the
// rows shown. The two forms differ only in their table, columns and texts.

#include <QAbstractTableModel>
#include <QDialog>
#include <QStringList>

#include "ledger/przeglad.h"

class QAction;
class QLabel;
class QMenu;
class QProgressBar;
class QPushButton;
class QStatusBar;
class QTreeView;
class PrzyciskiFiltra;

// The rows of a browser for Qt's list view: one text per cell, made when the cell is shown.
class ModelPrzegladu : public QAbstractTableModel {
  Q_OBJECT
 public:
  ModelPrzegladu(DanePrzegladu* dane, QStringList naglowki, QObject* rodzic);

  int rowCount(const QModelIndex& rodzic = {}) const override;
  int columnCount(const QModelIndex& rodzic = {}) const override;
  QVariant data(const QModelIndex& indeks, int rola = Qt::DisplayRole) const override;
  QVariant headerData(int sekcja, Qt::Orientation kierunek, int rola) const override;

  // Around a change of the rows (a new read or another order).
  void Zaczynam() { beginResetModel(); }
  void Skonczone() { endResetModel(); }

 private:
  DanePrzegladu* dane_;
  QStringList naglowki_;
};

// The keys of a form's texts.
struct TekstyPrzegladu {
  QString forma;                    // the form's name
  QString tytul, tytulPlanowanych;  // the window's caption, executed and planned
  QStringList kolumny;
  QString suma1, suma2;          // captions of the totals (suma2 empty: one total)
  QString ilosc, okres, zakres;  // the count's caption, the status bar's, cmdZakres
  QString raport, podpowiedzRaportu, zamknij;
  QString edytuj, kasuj;          // the popup menu
  QString pytanie, tytulPytania;  // the delete question
  QString bladKasowania;          // a delete the store refused
  QString edytor, raportEkran;    // the screens opened by name
};

class PrzegladWpisowGui : public QDialog {
  Q_OBJECT
 public:
  // Reads pubTryb, the caller's fragment and title (pubFiltrTransakcji / pubTytulTransakcji, or
  // those of transfers) and the time filter in force, and fills the list.
  PrzegladWpisowGui(RodzajPrzegladu rodzaj, const TekstyPrzegladu& teksty, QWidget* rodzic);
  ~PrzegladWpisowGui() override;

  // Rebuilds the list from the store in the statement's order (a sort ends here).
  void OdswiezMain();
  // The line shown at a 1-based number, selected and scrolled into view; false past the end.
  bool ZaznaczWiersz(int numer);
  // The 1-based number of the selected line, 0 for none.
  int WybranyWiersz() const;

  // A header click: the column sorted now flips its direction, another one starts ascending.
  void KliknijNaglowek(int kolumna);
  // Edit or delete the selected line (double-click, Enter, the menu, the Delete key).
  void EdytujWiersz();
  void UsunWiersz();
  void cmdRaport_Click();

  const DanePrzegladu& Dane() const { return dane_; }
  QTreeView* Lista() const { return lvw_; }
  QMenu* Menu() const { return menu_; }

 protected:
  void showEvent(QShowEvent* zdarzenie) override;

 private:
  void zbuduj();
  void ustawKolumny();
  void pokazMenu(const QPoint& gdzie);
  void daneZmienione(unsigned tabele);
  void odswiezJesliCzeka();
  QString opisWiersza(const WierszPrzegladu& w) const;
  int& wierszSesji() const;

  RodzajPrzegladu rodzaj_;
  TekstyPrzegladu t_;
  int tryb_ = 2;
  QString fragment_;
  DanePrzegladu dane_;
  ModelPrzegladu* model_ = nullptr;
  bool czeka_ = false;     // a change was announced and the list not yet refilled
  bool wczytuje_ = false;  // the list is being filled
  bool rosnaco_ = true;

  QLabel* lblTytul_ = nullptr;
  PrzyciskiFiltra* filtr_ = nullptr;
  QTreeView* lvw_ = nullptr;
  QLabel* lblSuma1_ = nullptr;
  QLabel* lblSuma2_ = nullptr;
  QLabel* lblIloscZapisow_ = nullptr;
  QPushButton* cmdRaport_ = nullptr;
  QPushButton* cmdAnuluj_ = nullptr;
  QStatusBar* sbrStatus_ = nullptr;
  QLabel* lblOkres_ = nullptr;
  QProgressBar* pbrPasek_ = nullptr;
  QMenu* menu_ = nullptr;
  QAction* mnuEdytuj_ = nullptr;
  QAction* mnuKasuj_ = nullptr;
};
