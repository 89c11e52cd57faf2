#pragma once
// The splash screen shown while the program loads; the main window hides it at the end of its
// load.

#include <QWidget>

class frmStart : public QWidget {
  Q_OBJECT
 public:
  explicit frmStart(QWidget* rodzic = nullptr);

 protected:
  void paintEvent(QPaintEvent* e) override;
};

// Shows the one splash screen and paints it at once.
void PokazStart();
// Hides and frees it (nothing happens when none is shown).
void UkryjStart();
frmStart* OknoStartowe();
// Puts a new line of what the program is doing under the splash's titles and paints it at once.
void NapisStartu(const QString& tekst);
