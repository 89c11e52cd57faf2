#include "store/plik.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "common/magazyn_testowy.h"

namespace {
QByteArray tresc(const QString& plik) {
  QFile f(plik);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<none>");
}

unsigned tryb(const QString& plik) {
  struct stat st {};
  return ::stat(QFile::encodeName(plik).constData(), &st) == 0 ? st.st_mode & 07777 : 0;
}

// Files other than the given ones: a temporary file left behind would show here.
QStringList reszta(const QString& folder, const QStringList& znane) {
  QStringList r = QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System);
  for (const QString& z : znane) r.removeAll(z);
  return r;
}
}  // namespace

// A file is replaced whole, private to the user even where the old one was readable by all,
// through a link the link stays; where it can't be written the old content stays, nothing is
// left behind and the reason comes back and goes to the log.
TEST(Plik, ReplacesWholePrivatelyOrKeepsTheOld) {
  MagazynTestowy m;
  const QDir d(m.Folder());
  const QString plik = d.filePath(QStringLiteral("raport.txt"));
  {
    QFile f(plik);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(QByteArray(100000, 'x'));
    f.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup |
                     QFileDevice::ReadOther);
  }
  const QByteArray nowa = QStringLiteral("Łódź 12 345 678,91 zł\r\n").toUtf8();
  QString blad;
  ASSERT_TRUE(ZapiszPlik(plik, nowa, &blad)) << blad.toStdString();
  EXPECT_EQ(tresc(plik), nowa) << "a shorter content leaves nothing of the longer old one";
  EXPECT_EQ(tryb(plik), 0600u);

  // The link keeps pointing at the file, which gets the content.
  const QString link = d.filePath(QStringLiteral("ostatni.txt"));
  ASSERT_TRUE(QFile::link(plik, link));
  ASSERT_TRUE(ZapiszPlik(link, QByteArray("przez link")));
  EXPECT_TRUE(QFileInfo(link).isSymLink());
  EXPECT_EQ(tresc(plik), QByteArray("przez link"));
  EXPECT_TRUE(ZapiszPlik(d.filePath(QStringLiteral("pusty.txt")), QByteArray()));
  EXPECT_EQ(tresc(d.filePath(QStringLiteral("pusty.txt"))), QByteArray());

  // A folder that isn't there, and a folder in the file's place.
  blad.clear();
  EXPECT_FALSE(ZapiszPlik(d.filePath(QStringLiteral("brak/raport.txt")), nowa, &blad));
  EXPECT_FALSE(blad.isEmpty());
  ASSERT_TRUE(d.mkdir(QStringLiteral("katalog")));
  EXPECT_FALSE(ZapiszPlik(d.filePath(QStringLiteral("katalog")), nowa, &blad));
  EXPECT_TRUE(QFileInfo(d.filePath(QStringLiteral("katalog"))).isDir());

  // A folder the program may not write to (as root only a read-only mount would stop it).
  if (::geteuid() != 0) {
    const QString zamkniety = d.filePath(QStringLiteral("zamkniety"));
    ASSERT_TRUE(d.mkdir(QStringLiteral("zamkniety")));
    const QString stary = QDir(zamkniety).filePath(QStringLiteral("a.txt"));
    ASSERT_TRUE(ZapiszPlik(stary, QByteArray("stary")));
    ::chmod(QFile::encodeName(zamkniety).constData(), 0500);
    EXPECT_FALSE(ZapiszPlik(stary, nowa, &blad));
    EXPECT_EQ(tresc(stary), QByteArray("stary"));
    ::chmod(QFile::encodeName(zamkniety).constData(), 0700);
  }
  EXPECT_EQ(reszta(m.Folder(), {QStringLiteral("money.fns"), QStringLiteral("raport.txt"),
                                QStringLiteral("ostatni.txt"), QStringLiteral("pusty.txt"),
                                QStringLiteral("zorvik.log")}),
            QStringList());
  EXPECT_TRUE(tresc(d.filePath(QStringLiteral("zorvik.log"))).contains("brak/raport.txt"));
}
