#include "setup/kolorowanie_gui.h"

#include <QApplication>
#include <QColorDialog>
#include <QEvent>
#include <QLabel>
#include <QMenuBar>
#include <QTableView>
#include <QTreeView>

#include "setup/kolory.h"
#include "store/session.h"
#include "ui/pasujliste_gui.h"

namespace {
// A colour of the theme; one the setup row can't give keeps the system's.
QColor kolor(const QStringList& k, int i, const QColor& systemowy) {
  const QColor c = KolorUstawienia(k.value(i));
  return c.isValid() ? c : systemowy;
}

// A part of a window that shows colours of its own (the samples of the colour screens).
bool osobnaProbka(const QWidget* w, const QWidget* okno) {
  for (const QWidget* p = w; p && p != okno; p = p->parentWidget())
    if (p->property("bezKolorow").toBool()) return true;
  return false;
}

bool naglowek(const QWidget* w) { return w->property("Tag").toString() == QLatin1String("e"); }

// The colours of one state into one colour group.
void ustawGrupe(QPalette& p, QPalette::ColorGroup g, const QColor& tlo, const QColor& napis,
                const QColor& przycisk) {
  p.setColor(g, QPalette::Window, tlo);
  p.setColor(g, QPalette::WindowText, napis);
  p.setColor(g, QPalette::Button, przycisk);
}
}  // namespace

void PomalujOkno(QWidget* okno, const QStringList& k, StanOkna stan) {
  if (!okno) return;
  const QPalette sys = QApplication::palette();
  const QColor tlo = kolor(k, 0, sys.color(QPalette::Active, QPalette::Window));
  const QColor napis = kolor(k, 1, sys.color(QPalette::Active, QPalette::WindowText));
  const QColor przycisk = kolor(k, 2, sys.color(QPalette::Active, QPalette::Button));
  const QColor etykieta = kolor(k, 3, sys.color(QPalette::Active, QPalette::Window));
  const QColor napisEtykiety = kolor(k, 4, sys.color(QPalette::Active, QPalette::WindowText));
  const QColor tloN = kolor(k, 7, sys.color(QPalette::Inactive, QPalette::Window));
  const QColor napisN = kolor(k, 8, sys.color(QPalette::Inactive, QPalette::WindowText));

  // The window: both groups, so the switch with the focus costs nothing.
  QPalette p = sys;
  const bool aktywneTez = stan != StanOkna::Nieaktywne;
  const bool nieaktywneTez = stan != StanOkna::Aktywne;
  ustawGrupe(p, QPalette::Active, aktywneTez ? tlo : tloN, aktywneTez ? napis : napisN,
             aktywneTez ? przycisk : tloN);
  ustawGrupe(p, QPalette::Inactive, nieaktywneTez ? tloN : tlo, nieaktywneTez ? napisN : napis,
             nieaktywneTez ? tloN : przycisk);
  okno->setPalette(p);

  // Children take the window's colours, keeping only the roles they set themselves. Headings
  // keep the heading colours in both states; flat lists are striped.
  for (QWidget* w : okno->findChildren<QWidget*>()) {
    if (w->isWindow() || osobnaProbka(w, okno)) continue;
    if (naglowek(w) && qobject_cast<QLabel*>(w)) {
      QPalette e = p;
      for (auto g : {QPalette::Active, QPalette::Inactive}) {
        e.setColor(g, QPalette::Window, etykieta);
        e.setColor(g, QPalette::WindowText, napisEtykiety);
      }
      w->setPalette(e);
      w->setAutoFillBackground(true);
      continue;
    }
    // The menu bar draws its titles in the button-text colour on the window's background:
    // they take the window's text colours, readable on a dark window as on a light one.
    if (qobject_cast<QMenuBar*>(w)) {
      QPalette m = w->palette();
      m.setColor(QPalette::Active, QPalette::ButtonText, p.color(QPalette::Active, QPalette::WindowText));
      m.setColor(QPalette::Inactive, QPalette::ButtonText,
                 p.color(QPalette::Inactive, QPalette::WindowText));
      w->setPalette(m);
      continue;
    }
    if (auto* widok = qobject_cast<QAbstractItemView*>(w)) {
      const auto* drzewo = qobject_cast<QTreeView*>(widok);
      if ((drzewo && !drzewo->rootIsDecorated()) || qobject_cast<QTableView*>(widok)) {
        // Dark stripes (the black profile) get light text there, so every row stays readable.
        PasujListe(widok, k.value(5), k.value(6));
      }
      continue;
    }
  }
}

void KolorujFormularz(QWidget* okno) { PomalujOkno(okno, KoloryUstawien(sesja.pubUstawienia)); }

namespace {
bool doMalowania(const QWidget* w) {
  const Qt::WindowType t = w->windowType();
  return w->isWindow() && (t == Qt::Window || t == Qt::Dialog) &&
         !w->property("bezKolorow").toBool();
}

class Kolorowanie : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* o, QEvent* e) override {
    if (e->type() == QEvent::Show && o->isWidgetType()) {
      auto* w = static_cast<QWidget*>(o);
      if (doMalowania(w)) KolorujFormularz(w);
    }
    return false;
  }
};
}  // namespace

void KolorujWszystkieOkna() {
  for (QWidget* w : QApplication::topLevelWidgets())
    if (doMalowania(w)) KolorujFormularz(w);
}

void WlaczKolorowanieOkien() {
  static Kolorowanie* filtr = nullptr;
  if (filtr) return;
  filtr = new Kolorowanie(qApp);
  qApp->installEventFilter(filtr);
}

namespace {
DialogKoloru& dialogKoloru() {
  static DialogKoloru d;
  return d;
}
}  // namespace

QColor WybierzKolor(QWidget* rodzic, const QColor& poczatkowy) {
  if (dialogKoloru()) return dialogKoloru()(rodzic, poczatkowy);
  return QColorDialog::getColor(poczatkowy, rodzic);
}

DialogKoloru UstawDialogKoloru(DialogKoloru dialog) {
  DialogKoloru dawny = std::move(dialogKoloru());
  dialogKoloru() = std::move(dialog);
  return dawny;
}
