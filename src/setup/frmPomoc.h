#pragma once
// The help window: the contents list, a search over every page, and the page of the window the
// user asked from.

#include <QDialog>

class QLineEdit;
class QListWidget;
class QTextBrowser;

class frmPomoc : public QDialog {
  Q_OBJECT
 public:
  // The page shown first belongs to rodzic's window (the active window when there is none).
  explicit frmPomoc(QWidget* rodzic = nullptr);
  void PokazStrone(const QString& strona);
  QString Strona() const { return strona_; }

 private:
  void Szukaj();
  QListWidget* lstSpis_ = nullptr;
  QLineEdit* txtSzukaj_ = nullptr;
  QTextBrowser* txtStrona_ = nullptr;
  QString strona_;
};

// From now on F1 in any window opens the help at that window's page.
void WlaczPomocF1();
