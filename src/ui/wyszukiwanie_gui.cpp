#include "ui/wyszukiwanie_gui.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

WyszukiwanieGui::WyszukiwanieGui(QLineEdit* txtKlucz, QPushButton* cmdNastepny, QTreeWidget* drzewo,
                                 int pierwszy, Wezly wezly)
    : QObject(txtKlucz),
      txtKlucz_(txtKlucz),
      cmdNastepny_(cmdNastepny),
      drzewo_(drzewo),
      wezly_(std::move(wezly)),
      walk_(pierwszy) {
  if (!wezly_) wezly_ = [this] { return WszystkieWezly(drzewo_); };
  cmdNastepny_->hide();
  connect(txtKlucz_, &QLineEdit::textChanged, this, &WyszukiwanieGui::zmiana);
  connect(cmdNastepny_, &QPushButton::clicked, this, &WyszukiwanieGui::nastepny);
  txtKlucz_->installEventFilter(this);
}

void WyszukiwanieGui::Wyczysc() {
  txtKlucz_->clear();
  cmdNastepny_->hide();
}

QList<QTreeWidgetItem*> WyszukiwanieGui::WszystkieWezly(QTreeWidget* drzewo) {
  QList<QTreeWidgetItem*> lista;
  std::function<void(QTreeWidgetItem*)> dodaj = [&](QTreeWidgetItem* w) {
    lista.append(w);
    for (int i = 0; i < w->childCount(); ++i) dodaj(w->child(i));
  };
  for (int i = 0; i < drzewo->topLevelItemCount(); ++i) dodaj(drzewo->topLevelItem(i));
  return lista;
}

void WyszukiwanieGui::pokaz(const QList<QTreeWidgetItem*>& lista, int indeks) {
  QTreeWidgetItem* w = lista.at(indeks - 1);
  drzewo_->setCurrentItem(w);
  drzewo_->scrollToItem(w);
}

void WyszukiwanieGui::zmiana() {
  const QList<QTreeWidgetItem*> lista = wezly_();
  const auto tekst = [&](int i) { return lista.at(i - 1)->text(0); };
  const QString klucz = txtKlucz_->text();
  if (klucz.trimmed().isEmpty()) {
    cmdNastepny_->hide();
    return;
  }
  const Wyszukiwanie::Wynik w = walk_.Zmiana(klucz, int(lista.size()), tekst);
  if (w.trafienie) pokaz(lista, w.trafienie);
  cmdNastepny_->setVisible(w.nastepny);
}

void WyszukiwanieGui::nastepny() {
  const QList<QTreeWidgetItem*> lista = wezly_();
  const int i = walk_.Nastepny(txtKlucz_->text(), int(lista.size()),
                               [&](int j) { return lista.at(j - 1)->text(0); });
  if (i) pokaz(lista, i);
}

bool WyszukiwanieGui::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
  if (obiekt == txtKlucz_ && zdarzenie->type() == QEvent::KeyPress) {
    const int k = static_cast<QKeyEvent*>(zdarzenie)->key();
    if ((k == Qt::Key_Return || k == Qt::Key_Enter) && !txtKlucz_->text().isEmpty()) {
      emit wybierz();
      return true;
    }
  }
  return QObject::eventFilter(obiekt, zdarzenie);
}
