#pragma once
// The file and print dialogs, each behind one replaceable function: the program shows Qt's
// dialogs, tests answer them from a script.

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

class QPrinter;
class QWidget;

namespace Dialogi {

struct WybranyPlik {
  QString sciezka;
  int filtr = 0;  // index of the chosen file type in the list handed in
};
// The save dialog (asks before overwriting); nothing when cancelled.
using DialogZapisu = std::function<std::optional<WybranyPlik>(
    QWidget* rodzic, const QString& tytul, const QString& proponowana, const QStringList& filtry)>;
std::optional<WybranyPlik> Zapisz(QWidget* rodzic, const QString& tytul, const QString& proponowana,
                                  const QStringList& filtry);
// Installs a replacement (an empty function brings back the real dialog); returns the former.
DialogZapisu UstawDialogZapisu(DialogZapisu dialog);

// The print dialog over a printer: false when cancelled. With zaznaczenie the dialog offers the
// selection and opens with it chosen; on return *tylkoZaznaczenie says whether it stayed chosen.
using DialogDruku =
    std::function<bool(QWidget* rodzic, QPrinter& drukarka, bool zaznaczenie, bool* tylkoZaznaczenie)>;
bool Drukuj(QWidget* rodzic, QPrinter& drukarka, bool zaznaczenie, bool* tylkoZaznaczenie);
DialogDruku UstawDialogDruku(DialogDruku dialog);

}  // namespace Dialogi
