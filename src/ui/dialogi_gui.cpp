#include "ui/dialogi_gui.h"

#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>

namespace Dialogi {
namespace {

std::optional<WybranyPlik> prawdziwyZapis(QWidget* rodzic, const QString& tytul,
                                          const QString& proponowana, const QStringList& filtry) {
  QFileDialog d(rodzic, tytul);
  d.setAcceptMode(QFileDialog::AcceptSave);
  d.setFileMode(QFileDialog::AnyFile);
  d.setNameFilters(filtry);
  if (!filtry.isEmpty()) d.selectNameFilter(filtry.first());
  d.selectFile(proponowana);
  if (d.exec() != QDialog::Accepted || d.selectedFiles().isEmpty()) return std::nullopt;
  return WybranyPlik{d.selectedFiles().first(), int(filtry.indexOf(d.selectedNameFilter()))};
}

bool prawdziwyDruk(QWidget* rodzic, QPrinter& drukarka, bool zaznaczenie, bool* tylkoZaznaczenie) {
  QPrintDialog d(&drukarka, rodzic);
  QAbstractPrintDialog::PrintDialogOptions opcje = QAbstractPrintDialog::PrintShowPageSize;
  if (zaznaczenie) opcje |= QAbstractPrintDialog::PrintSelection;
  d.setOptions(opcje);
  d.setPrintRange(zaznaczenie ? QAbstractPrintDialog::Selection : QAbstractPrintDialog::AllPages);
  if (d.exec() != QDialog::Accepted) return false;
  if (tylkoZaznaczenie) *tylkoZaznaczenie = d.printRange() == QAbstractPrintDialog::Selection;
  return true;
}

DialogZapisu& zapis() {
  static DialogZapisu d;
  return d;
}
DialogDruku& druk() {
  static DialogDruku d;
  return d;
}

}  // namespace

std::optional<WybranyPlik> Zapisz(QWidget* rodzic, const QString& tytul, const QString& proponowana,
                                  const QStringList& filtry) {
  return zapis() ? zapis()(rodzic, tytul, proponowana, filtry)
                 : prawdziwyZapis(rodzic, tytul, proponowana, filtry);
}

DialogZapisu UstawDialogZapisu(DialogZapisu dialog) { return std::exchange(zapis(), std::move(dialog)); }

bool Drukuj(QWidget* rodzic, QPrinter& drukarka, bool zaznaczenie, bool* tylkoZaznaczenie) {
  if (tylkoZaznaczenie) *tylkoZaznaczenie = false;
  return druk() ? druk()(rodzic, drukarka, zaznaczenie, tylkoZaznaczenie)
                : prawdziwyDruk(rodzic, drukarka, zaznaczenie, tylkoZaznaczenie);
}

DialogDruku UstawDialogDruku(DialogDruku dialog) { return std::exchange(druk(), std::move(dialog)); }

}  // namespace Dialogi
