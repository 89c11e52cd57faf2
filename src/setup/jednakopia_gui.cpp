#include "setup/jednakopia_gui.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QThread>
#include <memory>

#include "mainwindow/frmMain.h"
#include "setup/frmStart.h"
#include "store/baza.h"

namespace {
// The handshake: a later copy asks, a running copy answers. Anything else at the other end is
// not a copy of this program.
const QByteArray kProsba = QByteArrayLiteral("zorvik:pokaz\n");
const QByteArray kOdpowiedz = QByteArrayLiteral("zorvik:jest\n");

// A later copy asked for the window: the main window if it stands, else whatever is in front
// (the password gate, the splash).
void pokazOkno() {
  if (frmMain* f = frmMain::Instancja()) {
    f->Przywroc();
    return;
  }
  QWidget* w = QApplication::activeModalWidget();
  if (!w) w = OknoStartowe();
  if (w) {
    w->raise();
    w->activateWindow();
  }
}

// The listener and the thread it answers from.
class Nasluch {
 public:
  bool Start(const QString& nazwa) {
    watek_.start();
    kontekst_.moveToThread(&watek_);
    bool ok = false;
    QMetaObject::invokeMethod(
        &kontekst_,
        [&] {
          auto* s = new QLocalServer(&kontekst_);
          s->setSocketOptions(QLocalServer::UserAccessOption);
          if (!s->listen(nazwa)) {
            // A crashed copy, or a listener that did not answer as a copy, leaves its socket
            // behind; in our private folder it can go.
            QLocalServer::removeServer(nazwa);
            if (!s->listen(nazwa)) {
              ZapiszLog(QStringLiteral("single-copy listener failed: %1").arg(s->errorString()));
              delete s;
              return;
            }
          }
          QObject::connect(s, &QLocalServer::newConnection, s, [s] { przyjmij(s); });
          ok = true;
        },
        Qt::BlockingQueuedConnection);
    return ok;
  }

  ~Nasluch() {
    QMetaObject::invokeMethod(
        &kontekst_, [this] { qDeleteAll(kontekst_.children()); }, Qt::BlockingQueuedConnection);
    watek_.quit();
    watek_.wait();
  }

 private:
  static void przyjmij(QLocalServer* s) {
    while (QLocalSocket* gniazdo = s->nextPendingConnection()) {
      QObject::connect(gniazdo, &QLocalSocket::disconnected, gniazdo, &QObject::deleteLater);
      auto czytaj = [gniazdo] {
        if (!gniazdo->canReadLine() || gniazdo->readLine() != kProsba) return;
        gniazdo->write(kOdpowiedz);
        gniazdo->flush();
        // The window belongs to the main thread.
        QMetaObject::invokeMethod(qApp, pokazOkno, Qt::QueuedConnection);
      };
      QObject::connect(gniazdo, &QLocalSocket::readyRead, gniazdo, czytaj);
      czytaj();
    }
  }

  QThread watek_;
  QObject kontekst_;
};

std::unique_ptr<Nasluch>& nasluch() {
  static std::unique_ptr<Nasluch> n;
  return n;
}

// A real folder of this user that nobody else may enter: another user who could put a socket
// there could make the program think it runs already.
bool folderPrywatny(const QString& folder) {
  struct stat st {};
  if (::lstat(QFile::encodeName(folder).constData(), &st) != 0) return false;
  return S_ISDIR(st.st_mode) && st.st_uid == ::geteuid() && (st.st_mode & 077) == 0;
}
}  // namespace

QString FolderGniazda() {
  const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
  if (!runtime.isEmpty() && folderPrywatny(runtime)) return runtime;
  const QString wlasny =
      QDir(QDir::tempPath()).filePath(QStringLiteral("zorvik-%1").arg(::geteuid()));
  ::mkdir(QFile::encodeName(wlasny).constData(), 0700);
  if (folderPrywatny(wlasny)) return wlasny;
  ZapiszLog(QStringLiteral("single-copy check: no private folder for its socket (%1)").arg(wlasny));
  return {};
}

QString NazwaGniazda() {
  const QString folder = FolderGniazda();
  if (folder.isEmpty()) return {};
  // One copy per data folder, however its path is written: "dane/", "./dane" and a link to it
  // are the same folder.
  const QFileInfo dane(FolderDanych());
  QString sciezka = dane.canonicalFilePath();
  if (sciezka.isEmpty()) sciezka = QDir::cleanPath(dane.absoluteFilePath());
  const QString skrot = QString::fromLatin1(
      QCryptographicHash::hash(sciezka.toUtf8(), QCryptographicHash::Sha256).toHex().left(24));
  return QDir(folder).filePath(QStringLiteral("zorvik-") + skrot);
}

bool CzyJuzUruchomiony(bool& blad) {
  blad = false;
  const QString nazwa = NazwaGniazda();
  if (nazwa.isEmpty()) {
    blad = true;
    return false;
  }
  QLocalSocket gniazdo;
  gniazdo.connectToServer(nazwa);
  if (!gniazdo.waitForConnected(1000)) {
    // No listener, or a stale one left by a crash: no copy is running.
    const auto e = gniazdo.error();
    blad = e != QLocalSocket::ServerNotFoundError && e != QLocalSocket::ConnectionRefusedError;
    return false;
  }
  // Only a listener that answers as a copy of this program is one.
  gniazdo.write(kProsba);
  QByteArray odpowiedz;
  if (gniazdo.waitForBytesWritten(1000)) {
    QElapsedTimer czas;
    czas.start();
    while (!gniazdo.canReadLine() && czas.elapsed() < 2000 &&
           gniazdo.state() == QLocalSocket::ConnectedState)
      gniazdo.waitForReadyRead(int(qMax<qint64>(1, 2000 - czas.elapsed())));
    if (gniazdo.canReadLine()) odpowiedz = gniazdo.readLine();
  }
  gniazdo.abort();
  if (odpowiedz == kOdpowiedz) return true;
  ZapiszLog(QStringLiteral("single-copy check: the listener at %1 is not a copy of this program")
                .arg(nazwa));
  return false;
}

bool NasluchujKopii() {
  ZakonczNasluch();
  const QString nazwa = NazwaGniazda();
  if (nazwa.isEmpty()) return false;
  auto n = std::make_unique<Nasluch>();
  if (!n->Start(nazwa)) return false;
  nasluch() = std::move(n);
  return true;
}

void ZakonczNasluch() { nasluch().reset(); }
