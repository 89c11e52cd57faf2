#include "calculator/frmKalkulatorCaly.h"

#include <algorithm>

#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"

frmKalkulatorCaly::frmKalkulatorCaly(QWidget* rodzic)
    : OknoKalkulatora(rodzic, QStringLiteral("frmKalkulatorCaly"),
                      Napis(QStringLiteral("frmKalkulatorCaly1")),
                      Napis(QStringLiteral("frmKalkulatorCaly2"))) {}

void frmKalkulatorCaly::Pokaz(QWidget* glowne) {
  sesja.pubKalkWartosc = FormatKwotyEdycja(0);
  if (glowne) {
    // Towards the right of the main window, below its menu and tool bar.
    const QRect okno = glowne->frameGeometry();
    sesja.pubKalkLewa = okno.left() + std::max(0, okno.width() - 340);
    sesja.pubKalkGora = okno.top() + 120;
  }
  frmKalkulatorCaly kalkulator(glowne);
  kalkulator.exec();
}
