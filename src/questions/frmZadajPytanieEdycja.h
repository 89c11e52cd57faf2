#pragma once
// Writing a new question (pubPytanie 0) or changing one not sent yet (pubPytanie its id).
// On OK the text is saved and pubPytanie holds the saved question's id.

#include <QDialog>

class QLabel;
class QPlainTextEdit;

class frmZadajPytanieEdycja : public QDialog {
  Q_OBJECT
 public:
  explicit frmZadajPytanieEdycja(QWidget* parent = nullptr);

 protected:
  bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

 private:
  void cmdOK_Click();
  void policzZnaki();

  QPlainTextEdit* txtPytanie_ = nullptr;
  QLabel* lblZnaki_ = nullptr;
  qint64 id_ = 0;
};
