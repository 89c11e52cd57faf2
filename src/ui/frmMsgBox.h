#pragma once
// The program's message dialog, sized to its text, and the host that shows it for MyMsgbox.

#include <QDialog>

#include "store/MsgBoxModule.h"

class QLabel;
class QPushButton;

class frmMsgBox : public QDialog {
  Q_OBJECT
 public:
  explicit frmMsgBox(const Komunikat& k, QWidget* rodzic = nullptr);
  // 1 OK, 2 Tak, 3 Nie; 0 while no button was pressed (the close box, Esc).
  int Wynik() const { return wynik_; }
  const RozmiarMsgBox& Rozmiar() const { return rozmiar_; }

  static constexpr int TwipowNaPiksel = 15;

 protected:
  void keyPressEvent(QKeyEvent* e) override;

 private:
  void odpowiedz(int wynik);
  RozmiarMsgBox rozmiar_;
  int wynik_ = 0;
  QLabel* lblTekst_ = nullptr;
  QPushButton* cmdOK_ = nullptr;
  QPushButton* cmdTak_ = nullptr;
  QPushButton* cmdNie_ = nullptr;
};

// The real host: shows frmMsgBox modally over the active window.
class HostOkienkowy : public HostKomunikatow {
 public:
  int Pokaz(const Komunikat& k) override;
};
