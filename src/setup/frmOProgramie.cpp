#include "setup/frmOProgramie.h"

#include <openssl/crypto.h>
#include <sqlcipher/sqlite3.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "store/napis.h"
#include "ui/obrazki_gui.h"

#ifndef ZORVIK_WERSJA
#define ZORVIK_WERSJA "0"
#endif

namespace {
QString napis(int i) { return Napis(QStringLiteral("frmOProgramie%1").arg(i)); }
}  // namespace

frmOProgramie::frmOProgramie(QWidget* rodzic) : QDialog(rodzic) {
  setObjectName(QStringLiteral("frmOProgramie"));
  setWindowTitle(napis(1));
  auto* imgIkona = new QLabel(this);
  imgIkona->setPixmap(IkonaProgramu().pixmap(64, 64));
  auto* lblNazwa = new QLabel(napis(2), this);
  lblNazwa->setObjectName(QStringLiteral("lblNazwa"));
  QFont f = lblNazwa->font();
  f.setBold(true);
  f.setPointSizeF(f.pointSizeF() * 1.6);
  lblNazwa->setFont(f);
  auto* lblWersja = new QLabel(napis(3).arg(QStringLiteral(ZORVIK_WERSJA)), this);
  lblWersja->setObjectName(QStringLiteral("lblWersja"));
  lblWersja->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* lblOpis = new QLabel(napis(4), this);
  lblOpis->setWordWrap(true);

  auto* txtLicencje = new QTextBrowser(this);
  txtLicencje->setObjectName(QStringLiteral("txtLicencje"));
  txtLicencje->setOpenExternalLinks(true);
  const QString wiersz = QStringLiteral("<p><b>%1 %2</b><br>%3</p>");
  txtLicencje->setHtml(
      QStringLiteral("<p>%1</p>").arg(napis(5)) +
      wiersz.arg(QStringLiteral("Qt"), QString::fromLatin1(qVersion()), napis(6)) +
      wiersz.arg(QStringLiteral("SQLCipher / SQLite"), QString::fromLatin1(sqlite3_libversion()),
                 napis(7)) +
      wiersz.arg(QStringLiteral("OpenSSL"),
                 QString::fromLatin1(OpenSSL_version(OPENSSL_VERSION)).section(QLatin1Char(' '), 1, 1),
                 napis(8)) +
      wiersz.arg(QStringLiteral("Liberation Mono"), QString(), napis(9)));

  auto* cmdZamknij = new QPushButton(napis(10), this);
  cmdZamknij->setObjectName(QStringLiteral("cmdZamknij"));
  cmdZamknij->setDefault(true);
  connect(cmdZamknij, &QPushButton::clicked, this, &QDialog::accept);

  auto* naglowek = new QHBoxLayout;
  naglowek->addWidget(imgIkona, 0, Qt::AlignTop);
  auto* teksty = new QVBoxLayout;
  teksty->addWidget(lblNazwa);
  teksty->addWidget(lblWersja);
  teksty->addWidget(lblOpis);
  naglowek->addLayout(teksty, 1);
  auto* dol = new QHBoxLayout;
  dol->addStretch();
  dol->addWidget(cmdZamknij);
  auto* uklad = new QVBoxLayout(this);
  uklad->addLayout(naglowek);
  uklad->addWidget(txtLicencje, 1);
  uklad->addLayout(dol);
  resize(520, 440);
}
