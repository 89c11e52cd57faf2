#pragma once
// Pieces the account, category and counterparty browsers share: where the window opens, the
// keys of their lists and the small controls of their layouts.

#include <QObject>
#include <functional>

class QLabel;
class QPushButton;
class QWidget;

// A browser opened as a picker stands at pubPozycjaX/pubPozycjaY, kept inside the screen's
// available area; with no position set (-1) it keeps where the window system puts it.
void UstawPozycjePrzegladarki(QWidget* okno);

// The details panel beside a browser's list: the narrowest window without it, the panel's width
// and the least height of the window.
struct WymiarySzczegolow {
  int waska, panel, wysokosc;
};
// Shows or hides the panel as pubSzczegoly says, captions its toggle ("<<  ukryj" or
// "pokaz >>") and sizes the window: the narrow width, plus the panel while it is open.
void PokazSzczegolyPrzegladarki(QWidget* okno, QWidget* panel, QPushButton* przelacznik,
                                const QString& ukryj, const QString& pokaz,
                                const WymiarySzczegolow& wymiary, int szerokoscWaska);
// Flips pubSzczegoly; returns the narrow width to keep: the window's own while the details open,
// the window's without the panel when they close.
int PrzelaczSzczegolyPrzegladarki(const QWidget* okno, const WymiarySzczegolow& wymiary);

// The keys of a browser's list: Delete removes the selected row, Enter and Return choose it.
// Either action may be empty, and then its key goes to the list as usual. The filter belongs to
// the list.
class KlawiszePrzegladarki : public QObject {
  Q_OBJECT
 public:
  KlawiszePrzegladarki(QWidget* lista, std::function<void()> usun, std::function<void()> wybierz);

 protected:
  bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

 private:
  std::function<void()> usun_;
  std::function<void()> wybierz_;
};

// A push button that does not take Enter for itself: Enter belongs to the list and the default
// button.
QPushButton* PrzyciskPrzegladarki(const QString& nazwa, const QString& tekst, QWidget* rodzic);
// A caption (the name may be empty for a caption no one looks up).
QLabel* EtykietaPrzegladarki(const QString& nazwa, const QString& tekst, QWidget* rodzic);
// A figure: right-aligned, selectable for copying.
QLabel* WartoscPrzegladarki(const QString& nazwa, QWidget* rodzic);
