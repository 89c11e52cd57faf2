#include "slips/przelewy_galeria_gui.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QTemporaryDir>

#include "slips/frmEdycjaPrzelewu.h"
#include "slips/frmWydrukPrzelewu.h"
#include "slips/przelew.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"

namespace {

// The planned expense with the largest amount that names a counterparty.
void wybierzPlan() {
  const Rekordy rs = pubBaza().Czytaj(QStringLiteral(
      "SELECT TOP 1 id, kontrahent FROM zaplanowane WHERE wydatek<>0 AND kontrahent<>0 ORDER BY "
      "wydatek DESC, id"));
  sesja.pubPrzelewZaplanowana = rs.Pole(QStringLiteral("id")).toLongLong();
  sesja.pubPrzelewKontrahent = rs.Pole(QStringLiteral("kontrahent")).toLongLong();
}

PrzelewRekord przelew(bool wplata, bool naFormularzu) {
  wybierzPlan();
  PrzelewRekord p = DanePrzelewu(sesja.pubPrzelewKontrahent, sesja.pubPrzelewZaplanowana);
  p.tytulem = p.tytulemCd;
  p.tytulemCd = QStringLiteral("12/2026");
  p.wplata = wplata ? -1 : 0;
  p.naFormularzu = naFormularzu ? -1 : 0;
  return p;
}

}  // namespace

std::unique_ptr<QWidget> GaleriaEdycjiPrzelewu() {
  wybierzPlan();
  return std::make_unique<frmEdycjaPrzelewu>();
}

std::unique_ptr<QWidget> GaleriaWydrukuPrzelewu(bool naFormularzu) {
  sesja.pubPrzelew = przelew(!naFormularzu, naFormularzu);
  return std::make_unique<frmWydrukPrzelewu>();
}

std::unique_ptr<QWidget> GaleriaPdfPrzelewu() {
  auto obraz = std::make_unique<QLabel>();
  QTemporaryDir folder;
  const QString pdf = QDir(folder.path()).filePath(QStringLiteral("przelew.pdf"));
  QFile plik(pdf);
  if (!plik.open(QIODevice::WriteOnly) || plik.write(PrzelewDoPdf(przelew(true, false))) <= 0)
    return obraz;
  plik.close();
  QProcess::execute(
      QStringLiteral("pdftoppm"),
      {QStringLiteral("-png"), QStringLiteral("-r"), QStringLiteral("60"),
       QStringLiteral("-singlefile"), pdf, QDir(folder.path()).filePath(QStringLiteral("strona"))});
  QPixmap strona(QDir(folder.path()).filePath(QStringLiteral("strona.png")));
  obraz->setPixmap(strona);
  obraz->setWindowTitle(Napis(QStringLiteral("drukowanie5")));
  obraz->resize(strona.isNull() ? QSize(10, 10) : strona.size());
  return obraz;
}
