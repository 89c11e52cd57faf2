#pragma once
// The notepad of the main window: free text kept in the setup row, with three buttons: empty
// it, copy it to the clipboard, paste the clipboard's text at the caret.

#include <QWidget>
#include <array>

class QPlainTextEdit;
class QPushButton;

class NotatnikGui : public QWidget {
  Q_OBJECT
 public:
  explicit NotatnikGui(QWidget* rodzic);
  // Takes the note from pubUstawienia.notatnik, which is emptied in memory.
  void Wczytaj();
  // Writes the note into the setup row exactly as it stands.
  bool Zapisz();
  // cmdNotatnik(i).
  void Polecenie(int i);
  QPlainTextEdit* Pole() const { return txtNotatnik_; }

 private:
  QPlainTextEdit* txtNotatnik_ = nullptr;
  std::array<QPushButton*, 3> cmdNotatnik_{};
};
