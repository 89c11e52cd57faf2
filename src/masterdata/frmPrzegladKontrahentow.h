#pragma once
// The counterparty browser: every counterparty in a list, and for the selected one the executed
// entries' sums over the time filter and its planned entries, which can be added, changed,
// realised and deleted here. Called from the main window it browses and maintains the
// counterparties (pubTrybPrzegladu 1); called from an editor it is the picker that returns one in
// pubKontrahent (pubTrybPrzegladu 2).

#include <QDialog>
#include <functional>

#include "store/session.h"

class QAction;
class QGroupBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QRadioButton;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;
class PrzyciskiFiltra;
class WyszukiwanieGui;
struct WymiarySzczegolow;

class frmPrzegladKontrahentow : public QDialog {
  Q_OBJECT
 public:
  explicit frmPrzegladKontrahentow(QWidget* parent = nullptr);
  ~frmPrzegladKontrahentow() override;

  // Reads the counterparties afresh, selects the one of pubKontrahent.id (else the first) and
  // shows it.
  void WypelnijListe();
  // The selected counterparty: its planned entries, pubKontrahent, and with the details open
  // the executed sums of the period.
  void PokazKontrahenta();
  void OdswiezZaplanowane();

  // Picker: takes the selected counterparty and closes. Browsing: edits it.
  void cmdWybierz_Click();
  void NowyKontrahent();
  void EdytujKontrahenta();
  void SkasujKontrahenta();
  void cmdSzczegoly_Click();

  void DodajZaplanowany(int rodzaj);  // cmdDodajZaplanowanyPrzychod (1), ...Wydatek (2)
  void cmdEdytuj_Click();
  void cmdRealizujZaplanowana_Click();
  void cmdUsunZaplanowana_Click();
  void cmdPrzelew_Click();
  void cmdPrzegladDokonanych_Click();
  void cmdRaport_Click(bool detaliczny);
  void cmdPrzegladKontrahentawCzasie_Click();

  // cmdAnuluj, Esc and the close box: pubKontrahent goes back to what it was at load.
  void reject() override;

 private:
  void zbuduj();
  QWidget* zbudujDokonane();
  QWidget* zbudujZaplanowane();
  void ustawSzczegoly();
  // The window's sizes with the details open and closed.
  WymiarySzczegolow wymiary() const;
  void menuKontekstowe(const QPoint& gdzie);
  QTreeWidgetItem* wybrany() const;
  QTreeWidgetItem* wybranaZaplanowana() const;
  // Opens the entry editor for this counterparty in the given mode and refreshes the panel.
  void otworzEdytor(int tryb, qint64 id, int rodzaj);
  // Sets pubKontrahent.id for a report: the selected one, or 0 for all.
  void kontrahentRaportu();

  QTreeWidget* lvwKontrahenci_ = nullptr;
  QLineEdit* txtKlucz_ = nullptr;
  QPushButton* cmdNastepny_ = nullptr;
  WyszukiwanieGui* wyszukiwanie_ = nullptr;
  QPushButton* cmdWybierz_ = nullptr;
  QPushButton* cmdAnuluj_ = nullptr;
  QPushButton* cmdSzczegoly_ = nullptr;
  QToolButton* cmdMenu_[8] = {};

  QWidget* szczegoly_ = nullptr;
  QGroupBox* frmDokonane_ = nullptr;
  PrzyciskiFiltra* filtr_ = nullptr;
  QLabel* lblOkres_ = nullptr;
  QRadioButton* optWszyscy_[2] = {};
  QLabel* lblIlosc_ = nullptr;
  QLabel* lblPrzychod_ = nullptr;
  QLabel* lblWydatek_ = nullptr;
  QPushButton* cmdPrzegladDokonanych_ = nullptr;

  QGroupBox* frmZaplanowane_ = nullptr;
  QTreeWidget* lvwZaplanowane_ = nullptr;
  QLabel* lblSumaZaplanowanychPrzychodow_ = nullptr;
  QLabel* lblSumaZaplanowanychWydatkow_ = nullptr;
  QLabel* lblSumaZaleglychPrzychodow_ = nullptr;
  QLabel* lblSumaZaleglychWydatkow_ = nullptr;
  QPushButton* cmdDodajZaplanowanyPrzychod_ = nullptr;
  QPushButton* cmdDodajZaplanowanyWydatek_ = nullptr;
  QPushButton* cmdEdytuj_ = nullptr;
  QPushButton* cmdRealizujZaplanowana_ = nullptr;
  QPushButton* cmdUsunZaplanowana_ = nullptr;
  QPushButton* cmdPrzelew_ = nullptr;

  QMenu* menu_ = nullptr;
  QAction* mnuNowyKontrahent_ = nullptr;
  QAction* mnuEdytujKontrahenta_ = nullptr;
  QAction* mnuSkasujKontrahenta_ = nullptr;

  KontrahentRekord kopia_;  // pubKontrahent as it was at load, for cmdAnuluj
  int szerokoscWaska_ = 400;
  int najwezsza_ = 0;  // the narrowest list part that shows the names whole
  int pasek_ = 0;      // the width that shows every command of the strip
};
