#pragma once
// The main window: the menu bar and the column of command buttons that reach every screen, the
// dashboard area, and the status bar with the working date, today and the time filter.

#include <QMainWindow>
#include <array>

class ListaPulpituGui;
class NotatnikGui;
class PanelStanu;
class PrzegladDniaGui;
class QLabel;
class QLineEdit;
class QTimer;
class QVBoxLayout;
class SumyZaplanowanychGui;

class frmMain : public QMainWindow {
  Q_OBJECT
 public:
  explicit frmMain(QWidget* rodzic = nullptr);
  ~frmMain() override;
  // The one main window, or null while there is none.
  static frmMain* Instancja();

  // Refills of the dashboard; run when the store announces a change of the tables they show.
  void OdswiezMain();
  void OdswiezMainZaplanowane();
  void OdswiezMainWewnetrzne();
  void OdswiezMainWewnetrzneZaplanowane();
  void StanKont();
  // The status bar: working date, today, the time filter in force.
  void OdswiezStatus();
  // The four lists striped anew in the theme's colours.
  void PokolorujListy();
  // The search of txtSzukaj (cmdSzukaj, Enter).
  void cmdSzukaj_Click();

  // The parts of the dashboard, for the commands and the tests.
  ListaPulpituGui* Lista(int i) const { return listy_[size_t(i)]; }
  PanelStanu* Panel() const { return panel_; }
  PrzegladDniaGui* Przeglad() const { return przeglad_; }
  NotatnikGui* Notatnik() const { return notatnik_; }

  // The dashboard's area, where the lists and the balance panel go.
  QWidget* Pulpit() const { return pulpit_; }
  QVBoxLayout* UkladPulpitu() const { return ukladPulpitu_; }
  // Restores the window from the task bar and brings it to the front.
  void Przywroc();

 protected:
  void DaneZmienione(unsigned tabele);
  void changeEvent(QEvent* e) override;
  void resizeEvent(QResizeEvent* e) override;
  void showEvent(QShowEvent* e) override;
  void closeEvent(QCloseEvent* e) override;

 private:
  void zbudujMenu();
  QWidget* zbudujPrzyciski();
  QWidget* zbudujPulpit();
  void zbudujStatus();
  void odswiezZegar();
  void ZapiszNotatnik();

  QWidget* pulpit_ = nullptr;
  QVBoxLayout* ukladPulpitu_ = nullptr;
  std::array<ListaPulpituGui*, 4> listy_{};  // executed, planned entries; executed, planned transfers
  SumyZaplanowanychGui* sumy_ = nullptr;
  PanelStanu* panel_ = nullptr;
  PrzegladDniaGui* przeglad_ = nullptr;
  NotatnikGui* notatnik_ = nullptr;
  QLineEdit* txtSzukaj_ = nullptr;
  QLabel* panele_[6] = {};
  QTimer* zegar_ = nullptr;
  bool zamkniety_ = false;
};

// The same refreshes for callers without a pointer to the window; they do nothing while no
// main window exists.
void OdswiezMain();
void OdswiezMainZaplanowane();
void OdswiezMainWewnetrzne();
void OdswiezMainWewnetrzneZaplanowane();
void StanKont();
void OdswiezStatus();
void PokolorujListy();
// Ends the program by closing the main window, with the shut-down steps of its closing.
void ZakonczProgram();
// The date line of the main window: day name, day of the year and, in Polish, today's names.
QString LiniaDaty();
