#pragma once
// The category editor. pubKategoria.identyfikator empty: a new child of pubKategoria.nadkategoria
// ("Root" for a main category) in the tree of pubKategoria.rodzaj; otherwise that category.
// Saving follows kategorie.h; the browser behind it puts the result into its tree.

#include <QDialog>

class QLabel;
class QLineEdit;

class frmEdycjaKategorii : public QDialog {
  Q_OBJECT
 public:
  explicit frmEdycjaKategorii(QWidget* parent = nullptr);

  bool Nowa() const { return nowa_; }
  // After OK: the saved category's identifier and name.
  const QString& Zapisany() const { return zapisany_; }
  QString Nazwa() const;

 private:
  void cmdOK_Click();

  bool nowa_ = true;
  QLabel* lblNadKategoria_ = nullptr;
  QLineEdit* txtNazwa_ = nullptr;
  QLineEdit* txtOpis_ = nullptr;
  QString zapisany_;
};
