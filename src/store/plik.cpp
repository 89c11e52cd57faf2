#include "store/plik.h"

#include <fcntl.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <cerrno>
#include <cstring>

#include "store/dziennik.h"
#include "store/napis.h"

namespace {

QString systemowy(int kod) { return QString::fromLocal8Bit(std::strerror(kod)); }

bool porazka(const QString& sciezka, const QString& powod, QString* blad) {
  ZapiszLog(QStringLiteral("file write failed: %1: %2").arg(sciezka, powod));
  if (blad) *blad = powod;
  return false;
}

// Writes everything or tells why not. A write that takes nothing is a full disk as well.
int zapiszWszystko(int fd, const QByteArray& dane) {
  const char* p = dane.constData();
  qsizetype zostalo = dane.size();
  while (zostalo > 0) {
    const ssize_t n = ::write(fd, p, size_t(zostalo));
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return errno;
    if (n == 0) return ENOSPC;
    p += n;
    zostalo -= n;
  }
  return 0;
}

int fsyncFolderu(const QString& folder) {
  const int fd = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return errno;
  const int kod = ::fsync(fd) == 0 ? 0 : errno;
  ::close(fd);
  // Some file systems can't sync a folder; that costs nothing of the file's content.
  return kod == EINVAL ? 0 : kod;
}

}  // namespace

bool ZapiszPlik(const QString& sciezka, const QByteArray& dane, QString* blad) {
  if (sciezka.isEmpty()) return porazka(sciezka, systemowy(ENOENT), blad);
  QFileInfo cel(sciezka);
  // A link is followed, so that the file it points at gets the new content and the link stays.
  if (cel.isSymLink()) {
    const QString koniec = cel.canonicalFilePath();  // empty while the link points nowhere
    cel = QFileInfo(koniec.isEmpty() ? cel.symLinkTarget() : koniec);
  }
  if (cel.isDir()) return porazka(sciezka, systemowy(EISDIR), blad);
  const QString folder = cel.absolutePath();
  const QByteArray docelowy = QFile::encodeName(cel.absoluteFilePath());
  // The new content goes into a file of its own beside the old one, so that the rename which
  // puts it in place never crosses file systems. mkostemp creates it 0600: private data is never
  // readable by others, not even for a moment; close-on-exec keeps it from started programs.
  QByteArray tymczasowy =
      QFile::encodeName(folder + QStringLiteral("/.") + cel.fileName() + QStringLiteral(".XXXXXX"));
  const int fd = ::mkostemp(tymczasowy.data(), O_CLOEXEC);
  if (fd < 0) return porazka(sciezka, systemowy(errno), blad);
  auto wycofaj = [&](int kod) {
    ::unlink(tymczasowy.constData());
    return porazka(sciezka, systemowy(kod), blad);
  };

  int kod = zapiszWszystko(fd, dane);
  // fsync reports what the page cache could not write later (a full disk, an I/O error): only
  // after it are the bytes known to be on the disk.
  if (kod == 0 && ::fsync(fd) != 0) kod = errno;
  if (::close(fd) != 0 && kod == 0 && errno != EINTR) kod = errno;
  if (kod != 0) return wycofaj(kod);

  if (::rename(tymczasowy.constData(), docelowy.constData()) != 0) return wycofaj(errno);
  // The new content is in place; make the rename itself survive a power cut.
  if ((kod = fsyncFolderu(folder)) != 0)
    ZapiszLog(
        QStringLiteral("file written, folder not synced: %1: %2").arg(sciezka, systemowy(kod)));
  return true;
}

QString TekstBleduZapisu(const QString& sciezka, const QString& powod) {
  return Napis(QStringLiteral("Module160")).arg(QDir::toNativeSeparators(sciezka), powod);
}
