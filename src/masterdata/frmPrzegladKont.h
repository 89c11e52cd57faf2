#pragma once
// The account browser: every account as a tree under its six kinds, the balance of the selected
// node, and, with the details open, its figures over the period of the time filter. Called from
// the main window it browses and maintains accounts (pubTrybPrzegladu 1); called from an editor
// it is the picker that returns one account in pubKonto (pubTrybPrzegladu 2).

#include <QDialog>

class QChartView;
class QGroupBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;
class PrzyciskiFiltra;
class WyszukiwanieGui;
struct WymiarySzczegolow;

#include "store/session.h"

class frmPrzegladKont : public QDialog {
  Q_OBJECT
 public:
  explicit frmPrzegladKont(QWidget* parent = nullptr);
  ~frmPrzegladKont() override;

  // Reads the accounts afresh; selects the account of pubKonto.id and shows it.
  void WypelnijDrzewo();
  // Shows the balance (and with the details the period's figures) of the selected node.
  void PokazWezel();

  // Picker: takes the selected account. Browsing: edits it. (cmdWybierz, Enter, double click)
  void cmdWybierz_Click();
  void NoweKonto();
  void EdytujKonto();
  void SkasujKonto();
  void cmdSzczegoly_Click();
  void cmdRozwin_Click();
  void cmdZwin_Click();
  void cmdPrzeglad_Click();
  void cmdPrzegladWewnetrznych_Click();
  void cmdRaport_Click(bool detaliczny);
  void cmdWCzasie_Click();

  // cmdAnuluj, Esc and the close box: the record goes back to what it was at load.
  void reject() override;

 private:
  void zbuduj();
  // The refill, selecting the node of klucz if it is there (else as WypelnijDrzewo does).
  void wypelnij(const QString& klucz);
  void ustawSzczegoly();
  // The window's sizes with the details open and closed.
  WymiarySzczegolow wymiary() const;
  void menuKontekstowe(const QPoint& gdzie);
  QTreeWidgetItem* wybrany() const;
  QString klucz(QTreeWidgetItem* w) const;

  QTreeWidget* tvwKonta_ = nullptr;
  QList<QTreeWidgetItem*> wezly_;  // in the order they were added: the search walks it
  QLineEdit* txtKlucz_ = nullptr;
  QPushButton* cmdNastepny_ = nullptr;
  WyszukiwanieGui* wyszukiwanie_ = nullptr;

  QGroupBox* fraLimityMain_ = nullptr;
  QLabel* lblMainLimit_ = nullptr;
  QLabel* lblMainSaldo_ = nullptr;
  QLabel* imgLimit_[3] = {};

  QPushButton* cmdWybierz_ = nullptr;
  QPushButton* cmdAnuluj_ = nullptr;
  QPushButton* cmdSzczegoly_ = nullptr;
  QPushButton* cmdPrzeglad_ = nullptr;
  QPushButton* cmdPrzegladWewnetrznych_ = nullptr;
  QToolButton* cmdMenu_[7] = {};

  QGroupBox* frmSzczegoly_ = nullptr;
  PrzyciskiFiltra* filtr_ = nullptr;
  QLabel* lblKiedy_ = nullptr;
  QLabel* lblOkres_ = nullptr;
  QLabel* lblBO_ = nullptr;
  QLabel* lblPoczatek_ = nullptr;
  QLabel* lblPrzychody_ = nullptr;
  QLabel* lblWydatki_ = nullptr;
  QLabel* lblWewnetrznePrzychody_ = nullptr;
  QLabel* lblWewnetrzneWydatki_ = nullptr;
  QLabel* lblBZ_ = nullptr;
  QLabel* lblZmiana_ = nullptr;
  QLabel* lblProcent_ = nullptr;
  QChartView* chartBilanse_ = nullptr;
  QChartView* chartObroty_ = nullptr;

  QMenu* menu_ = nullptr;
  QAction* mnuNoweKonto_ = nullptr;
  QAction* mnuEdytujKonto_ = nullptr;
  QAction* mnuSkasujKonto_ = nullptr;

  KontoRekord kopia_;  // pubKonto as it was at load, for cmdAnuluj
  int szerokoscWaska_ = 0;
  int najwezsza_ = 0;  // the narrowest list part that shows the names whole
  int pasek_ = 0;      // the width that shows every command of the strip
};
