#pragma once
// The template list both template screens share: the search box that narrows the list letter by
// letter, the list, and take / edit / new / delete with the Delete key and a pop-up menu. Opened
// for maintenance (pubSzablonWybor 2) or as a picker (1), where a choice closes the list with
// pubSzablonId set and a close without one leaves pubSzablonId 0.

#include <QDialog>
#include <QStringList>
#include <vector>

#include "ledger/szablony.h"

class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QTreeWidget;

// The texts of one of the two lists.
struct NapisyListySzablonow {
  QString tytul, podtytul, klucz, podpowiedzKlucza;
  QStringList kolumny;
  QString wybierz, edytuj, nowy, kasuj, zamknij, pomoc, podpowiedzPomocy;
  QString menuEdytuj, menuKasuj, menuNowy;
};

class ListaSzablonowGui : public QDialog {
  Q_OBJECT
 public:
  ListaSzablonowGui(bool wewnetrzny, const NapisyListySzablonow& napisy, QWidget* parent);
  ~ListaSzablonowGui() override;

  // Refills the list from the store with the search box's text.
  void OdswiezListe();
  void cmdWybierz_Click();
  void cmdEdytuj_Click();
  void cmdNowySzablon_Click();
  void cmdKasuj_Click();

 private:
  void zbuduj(const NapisyListySzablonow& napisy);
  // Takes the current line into pubSzablonWiersz, pubSzablonId and pubSzablonNazwa; false when
  // no line is current.
  bool wezLinie();
  void pokazEdytor();
  void zaznacz(int wiersz);

  bool wewnetrzny_;
  QLineEdit* txtKlucz_ = nullptr;
  QTreeWidget* lvw_ = nullptr;
  QPushButton* cmdWybierz_ = nullptr;
  QMenu* mnuOpcje_ = nullptr;
  std::vector<WierszSzablonu> wiersze_;
};
