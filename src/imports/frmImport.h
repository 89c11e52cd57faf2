#pragma once
// "Importuj wyciąg…": a statement file and an account are chosen, the preview shows each line
// with its counterparty, proposed category and state (new, duplicate, transfer), and "Import"
// writes the chosen lines as one change; "Cofnij import" removes what the last import wrote.

#include <QDialog>
#include <functional>
#include <optional>

#include "imports/import.h"
#include "imports/profile.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

class frmImport : public QDialog {
  Q_OBJECT
 public:
  explicit frmImport(QWidget* parent = nullptr);

  // The open-file dialog, replaceable in tests; "" when cancelled.
  using WyborPliku = std::function<QString(QWidget* rodzic)>;
  static WyborPliku UstawWyborPliku(WyborPliku wybor);

  // Reads the file into the preview (also what cmdWybierz does after the dialog).
  bool Wczytaj(const QString& plik);
  const Podglad& PodgladImportu() const { return podglad_; }

 private:
  void cmdWybierz_Click();
  void cmdMapowanie_Click();
  void cmdKategoria_Click();
  void cmdImportuj_Click();
  void cmdCofnijImport_Click();
  void przelicz();
  void wypelnij();
  void podsumuj();
  void zaznaczenie(QTreeWidgetItem* w, int kolumna);
  OpcjeWyciagu opcje() const;
  qint64 konto() const;

  QLineEdit* txtPlik_;
  QComboBox* cboKonto_;
  QComboBox* cboFormat_;
  QComboBox* cboKodowanie_;
  QComboBox* cboProfil_;
  QPushButton* cmdMapowanie_;
  QTreeWidget* lvwPodglad_;
  QLabel* lblPodsumowanie_;
  QPushButton* cmdKategoria_;
  QPushButton* cmdImportuj_;
  QPushButton* cmdCofnijImport_;
  QString plik_;
  std::optional<Wyciag> wyciag_;
  MapowanieCsv mapowanie_;  // the one chosen in the mapping dialog, when no profile is chosen
  Podglad podglad_;
  bool wypelnianie_ = false;
};
