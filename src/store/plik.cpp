#include "store/plik.h"

#include <QFileInfo>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "store/baza.h"

namespace {

bool porazka(const QString& sciezka, const QString& powod, QString* blad) {
  const QString tekst = QStringLiteral("%1: %2").arg(QFileInfo(sciezka).fileName(), powod);
  ZapiszLog(QStringLiteral("file write failed: ") + tekst);
  if (blad) *blad = tekst;
  return false;
}

QString systemowy() { return QString::fromLocal8Bit(std::strerror(errno)); }

}  // namespace

bool ZapiszPlik(const QString& sciezka, const QByteArray& dane, QString* blad) {
  const QFileInfo cel(sciezka);
  const QByteArray wzor = QFile::encodeName(cel.absolutePath() + QStringLiteral("/.") +
                                            cel.fileName() + QStringLiteral(".XXXXXX"));
  QByteArray tymczasowy = wzor;
  // mkstemp creates the file 0600, so private data is never readable by others, even briefly.
  const int fd = ::mkstemp(tymczasowy.data());
  if (fd < 0) return porazka(sciezka, systemowy(), blad);
  auto sprzatnij = [&] { ::unlink(tymczasowy.constData()); };

  const char* p = dane.constData();
  qint64 zostalo = dane.size();
  while (zostalo > 0) {
    const ssize_t n = ::write(fd, p, size_t(zostalo));
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) {
      const QString powod = systemowy();
      ::close(fd);
      sprzatnij();
      return porazka(sciezka, powod, blad);
    }
    p += n;
    zostalo -= n;
  }
  // fsync reports what the page cache could not write (a full disk, an I/O error).
  if (::fsync(fd) != 0) {
    const QString powod = systemowy();
    ::close(fd);
    sprzatnij();
    return porazka(sciezka, powod, blad);
  }
  if (::close(fd) != 0) {
    const QString powod = systemowy();
    sprzatnij();
    return porazka(sciezka, powod, blad);
  }
  if (::rename(tymczasowy.constData(), QFile::encodeName(cel.absoluteFilePath()).constData()) != 0) {
    const QString powod = systemowy();
    sprzatnij();
    return porazka(sciezka, powod, blad);
  }
  // Make the rename itself durable.
  const int katalog = ::open(QFile::encodeName(cel.absolutePath()).constData(), O_RDONLY | O_DIRECTORY);
  if (katalog >= 0) {
    ::fsync(katalog);
    ::close(katalog);
  }
  return true;
}
