// One copy of the program per data folder, however the folder is written, and nobody else's
// socket can keep the program from starting.

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QLocalServer>
#include <QProcess>
#include <QTemporaryDir>
#include <thread>

#include "common/magazyn_testowy.h"
#include "setup/start_pomoc.h"
#include "store/baza.h"

namespace {
// The program itself started as a second copy; its exit code, or -1 when it was still running
// after the time given (it then opened a window of its own) and had to be ended.
int drugaKopia(const QString& folder) {
  QProcess p;
  p.setProgram(QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("zorvik")));
  p.setArguments(
      {QStringLiteral("--edition"), QStringLiteral("pl"), QStringLiteral("--dane"), folder});
  p.start();
  if (!p.waitForStarted(5000)) return -2;
  QElapsedTimer t;
  t.start();
  while (p.state() != QProcess::NotRunning && t.elapsed() < 15000) {
    QApplication::processEvents(QEventLoop::AllEvents, 20);
    p.waitForFinished(20);
  }
  if (p.state() != QProcess::NotRunning) {
    p.kill();
    p.waitForFinished();
    return -1;
  }
  return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -3;
}

// A listener of someone else's at the socket: it takes the connection, reads the question and
// answers with something that is no answer of this program.
class ObcySluchacz {
 public:
  explicit ObcySluchacz(const QString& sciezka) {
    fd_ = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un a{};
    a.sun_family = AF_UNIX;
    const QByteArray p = QFile::encodeName(sciezka);
    std::memcpy(a.sun_path, p.constData(),
                size_t(qMin<qsizetype>(p.size(), sizeof a.sun_path - 1)));
    ::unlink(p.constData());
    ok_ = ::bind(fd_, reinterpret_cast<sockaddr*>(&a), sizeof a) == 0 && ::listen(fd_, 4) == 0;
    if (ok_)
      watek_ = std::thread([this] {
        const int k = ::accept(fd_, nullptr, nullptr);
        if (k < 0) return;
        char bufor[64];
        [[maybe_unused]] const auto n = ::read(k, bufor, sizeof bufor);
        const char odpowiedz[] = "HTTP/1.0 400 Bad Request\r\n\r\n";
        [[maybe_unused]] const auto w = ::write(k, odpowiedz, sizeof odpowiedz - 1);
        ::close(k);
      });
  }
  ~ObcySluchacz() {
    ::shutdown(fd_, SHUT_RDWR);
    if (watek_.joinable()) watek_.join();
    ::close(fd_);
  }
  bool Ok() const { return ok_; }

 private:
  int fd_ = -1;
  bool ok_ = false;
  std::thread watek_;
};
}  // namespace

// A second start on the same data folder, written with a trailing slash, through "..", or
// through a link, finds the running copy, brings it forward and ends; another folder is another
// copy's.
TEST(JednaKopia, SameFolderHoweverWrittenFindsTheRunningCopy) {
  MagazynTestowy m;
  ASSERT_EQ(Main(parametry(m.Folder()), ekran(1280)).wynik, WynikStartu::Dziala);
  frmMain* f = frmMain::Instancja();
  ASSERT_NE(f, nullptr);
  QTemporaryDir inny;
  const QString link = QDir(inny.path()).filePath(QStringLiteral("dane"));
  ASSERT_TRUE(QFile::link(m.Folder(), link));
  const QString nazwa = QFileInfo(m.Folder()).fileName();
  for (const QString& folder :
       {m.Folder() + QLatin1Char('/'), link, m.Folder() + QStringLiteral("/../") + nazwa})
    EXPECT_EQ(drugaKopia(folder), 0) << folder.toStdString();
  EXPECT_EQ(frmMain::Instancja(), f);

  UstawFolderDanych(inny.path());
  bool blad = true;
  EXPECT_FALSE(CzyJuzUruchomiony(blad));
  EXPECT_FALSE(blad);
  UstawFolderDanych(link + QLatin1Char('/'));
  EXPECT_TRUE(CzyJuzUruchomiony(blad));
  UstawFolderDanych(m.Folder());
  zamknijGlowne();
}

// Someone else listening at the socket's name, silent or answering nonsense, does not keep the
// program from starting; the started copy then owns the name and answers there itself.
TEST(JednaKopia, AForeignListenerDoesNotStopTheStart) {
  MagazynTestowy m;
  const QString nazwa = NazwaGniazda();
  ASSERT_FALSE(nazwa.isEmpty());
  EXPECT_NE(QFileInfo(nazwa).absolutePath(), QDir::tempPath()) << "not in the shared folder";
  {
    QLocalServer cichy;
    ASSERT_TRUE(cichy.listen(nazwa));
    QElapsedTimer t;
    t.start();
    ASSERT_EQ(Main(parametry(m.Folder()), ekran(1280)).wynik, WynikStartu::Dziala);
    EXPECT_LT(t.elapsed(), 10000);
    ASSERT_NE(frmMain::Instancja(), nullptr);
    bool blad = true;
    EXPECT_TRUE(CzyJuzUruchomiony(blad));
    EXPECT_FALSE(blad);
    zamknijGlowne();
  }
  {
    ObcySluchacz obcy(nazwa);
    ASSERT_TRUE(obcy.Ok());
    ASSERT_EQ(Main(parametry(m.Folder()), ekran(1280)).wynik, WynikStartu::Dziala);
    EXPECT_NE(frmMain::Instancja(), nullptr);
    zamknijGlowne();
  }
  EXPECT_TRUE(logDanych(m.Folder()).contains(QStringLiteral("is not a copy of this program")));
}
