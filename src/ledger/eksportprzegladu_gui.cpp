#include "ledger/eksportprzegladu_gui.h"

#include <QDir>
#include <QFileInfo>

#include "ledger/eksport.h"
#include "ledger/przeglad.h"
#include "store/MsgBoxModule.h"
#include "store/napis.h"
#include "store/plik.h"
#include "ui/dialogi_gui.h"

namespace {
// The folder of the last export: the next one is proposed there.
QString& ostatniFolder() {
  static QString f;
  return f;
}
}  // namespace

bool EksportujPrzeglad(QWidget* rodzic, const DanePrzegladu& dane) {
  const QStringList filtry = {Napis(QStringLiteral("eksport7")), Napis(QStringLiteral("eksport8"))};
  const QString nazwa =
      Napis(dane.Rodzaj() == RodzajPrzegladu::Transfery ? QStringLiteral("eksport11")
                                                        : QStringLiteral("eksport10")) +
      QStringLiteral(".csv");
  const QString folder = ostatniFolder().isEmpty() ? QDir::homePath() : ostatniFolder();
  const auto wybor = Dialogi::Zapisz(rodzic, Napis(QStringLiteral("eksport9")),
                                     QDir(folder).filePath(nazwa), filtry);
  if (!wybor || wybor->sciezka.trimmed().isEmpty()) return false;
  // The type chosen in the dialog decides when the name has no known extension of its own.
  QString sciezka = wybor->sciezka;
  const QString rozszerzenie = QFileInfo(sciezka).suffix().toLower();
  if (rozszerzenie != QLatin1String("csv") && rozszerzenie != QLatin1String("qif"))
    sciezka += wybor->filtr == 1 ? QStringLiteral(".qif") : QStringLiteral(".csv");
  ostatniFolder() = QFileInfo(sciezka).absolutePath();
  QString blad;
  if (!ZapiszEksport(sciezka, WierszeZPrzegladu(dane), &blad)) {
    MyMsgbox(TekstBleduZapisu(sciezka, blad), Napis(QStringLiteral("eksport12")), MsgOK,
             IkonaOstrzezenie);
    return false;
  }
  return true;
}
