#pragma once
// The category browser: one of the two trees (pubKategoria.rodzaj) with the monthly limit of a
// leaf and, with the details open, the node's sums over the time filter and their breakdown over
// its children. Called from the main window it maintains the tree (pubTrybPrzegladu 1); called
// from an editor it is the picker that returns one leaf in pubKategoria (pubTrybPrzegladu 2).

#include <QDialog>

#include "store/session.h"

class QAction;
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

class frmPrzegladKategorii : public QDialog {
  Q_OBJECT
 public:
  explicit frmPrzegladKategorii(QWidget* parent = nullptr);
  ~frmPrzegladKategorii() override;
  // Browsing from the main window: the tree of rodzaj with the details open, centred.
  static void Przegladaj(int rodzaj, QWidget* rodzic);

  // Reads the tree afresh and selects the node of pubKategoria.identyfikator (else Root).
  void WypelnijDrzewo();
  // The limit strip of the selected node and, with the details open, its sums and breakdown.
  void PokazWezel();

  // Picker: takes the selected leaf. Browsing: edits the node. (cmdWybierz, Enter, double click)
  void cmdWybierz_Click();
  void NowaKategoria();
  void NowaPodkategoria();
  void EdytujKategorie();
  void SkasujKategorie();
  void cmdZmienLimit_Click();
  void cmdSzczegoly_Click();
  void cmdRozwin_Click();
  void cmdZwin_Click();
  void cmdPrzeglad_Click();
  void cmdRaport_Click(bool detaliczny);
  void cmdWCzasie_Click();

  // cmdAnuluj, Esc and the close box: all four fields of the record go back to their load state.
  void reject() override;

 private:
  void zbuduj();
  QWidget* zbudujSzczegoly();
  void ustawSzczegoly();
  // The window's sizes with the details open and closed.
  WymiarySzczegolow wymiary() const;
  void ustawPolecenia();  // captions and states of the context menu for the selected node
  void menuKontekstowe(const QPoint& gdzie);
  void pokazSzczegoly(QTreeWidgetItem* item, const QString& k);
  QTreeWidgetItem* wybrany() const;
  QString klucz(QTreeWidgetItem* w) const;
  QTreeWidgetItem* wezel(const QString& k) const;
  // A node for a category just saved, among its siblings in identifier order; selected.
  QTreeWidgetItem* dodajWezel(const QString& rodzic, const QString& k, const QString& nazwa);
  // Opens the editor for pubKategoria; on OK puts the result into the tree.
  void otworzEdytor();

  int rodzaj_ = 2;
  KategoriaRekord kopia_;  // pubKategoria as it was at load, for cmdAnuluj
  int szerokoscWaska_ = 0;
  int najwezsza_ = 0;  // the narrowest list part that shows the names whole
  int pasek_ = 0;      // the width that shows every command of the strip
  int panel_ = 0;      // the width of the details

  QTreeWidget* tvwKategorie_ = nullptr;
  QLineEdit* txtKlucz_ = nullptr;
  QPushButton* cmdNastepny_ = nullptr;
  WyszukiwanieGui* wyszukiwanie_ = nullptr;

  QGroupBox* fraLimityMain_ = nullptr;
  QLabel* imgLimit_[2] = {};
  QLabel* lblWykorzystanoMain_ = nullptr;
  QLabel* lblKomentarzLimit_ = nullptr;

  QPushButton* cmdWybierz_ = nullptr;
  QPushButton* cmdAnuluj_ = nullptr;
  QPushButton* cmdSzczegoly_ = nullptr;
  QToolButton* cmdMenu_[9] = {};

  QGroupBox* frmSzczegoly_ = nullptr;
  PrzyciskiFiltra* filtr_ = nullptr;
  QLabel* lblOkres_ = nullptr;
  QLabel* lblSuma_ = nullptr;
  QGroupBox* fraLimity_ = nullptr;
  QLabel* lblLimit_ = nullptr;
  QLabel* lblWykorzystano_ = nullptr;
  QLabel* lblPozostajeDoWykorzystania_ = nullptr;
  QLabel* lblProcentWykorzystania_ = nullptr;
  QLabel* lbl2_ = nullptr;
  QLabel* lbl3_ = nullptr;
  QLabel* lbl4_ = nullptr;
  QPushButton* cmdZmienLimit_ = nullptr;
  QWidget* fraPodkategorie_ = nullptr;
  QTreeWidget* lvwPodkategorie_ = nullptr;
  QChartView* mscWykres_ = nullptr;
  QLabel* lblSumaPod_ = nullptr;
  QLabel* lblRazem_ = nullptr;
  QPushButton* cmdPrzeglad_ = nullptr;
  QPushButton* cmdRaportDetaliczny_ = nullptr;
  QPushButton* cmdRaportZbiorczy_ = nullptr;
  QPushButton* cmdWCzasie_ = nullptr;

  QMenu* menu_ = nullptr;
  QAction* mnuNowaKategoria_ = nullptr;
  QAction* mnuNowaPodKategoria_ = nullptr;
  QAction* mnuEdytujKategorie_ = nullptr;
  QAction* mnuSkasujKategorie_ = nullptr;
};
