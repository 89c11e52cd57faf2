#include "store/dziennik.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>
#include <cerrno>
#include <cstdio>

#include "store/baza.h"

void ZapiszLog(const QString& wpis) {
  const QString linia = QDateTime::currentDateTime().toString(Qt::ISODate) + QLatin1Char(' ') +
                        wpis + QLatin1Char('\n');
  const QByteArray bajty = linia.toUtf8();
  const QString folder = FolderDanych();
  if (!QFileInfo(folder).isDir()) {
    std::fputs(bajty.constData(), stderr);
    return;
  }
  const QByteArray sciezka = QFile::encodeName(QDir(folder).filePath(QStringLiteral("zorvik.log")));
  const int fd = ::open(sciezka.constData(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
  if (fd < 0) {
    std::fputs(bajty.constData(), stderr);
    return;
  }
  struct stat st {};
  if (::fstat(fd, &st) == 0 && (st.st_mode & 077) != 0) ::fchmod(fd, st.st_mode & 0700);
  // One write per line: appends of whole lines never interleave.
  const char* p = bajty.constData();
  qsizetype zostalo = bajty.size();
  while (zostalo > 0) {
    const ssize_t n = ::write(fd, p, size_t(zostalo));
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) {
      std::fputs(bajty.constData(), stderr);
      break;
    }
    p += n;
    zostalo -= n;
  }
  ::close(fd);
}

namespace {
// Quoted texts ('...' with '' inside, "..."), Jet dates (#...#) and numbers.
QString bezLiteralow(const QString& sql) {
  static const QRegularExpression literaly(QStringLiteral(
      R"('(?:[^']|'')*'?|"[^"]*"?|#[^#]*#?|(?<![\w.])[-+]?\d[\d.,]*(?:[eE][-+]?\d+)?)"));
  QString wynik = sql;
  wynik.replace(literaly, QStringLiteral("?"));
  return wynik;
}
}  // namespace

QString KsztaltZapytania(const QString& sql) {
  const QString czysty = bezLiteralow(sql);
  static const QRegularExpression czasownik(QStringLiteral(R"(^\s*\(?\s*([A-Za-z]+))"));
  const QString verb = czasownik.match(czysty).captured(1).toUpper();
  // A table follows INTO, UPDATE, TABLE and JOIN; FROM may list several, split by commas.
  static const QRegularExpression pojedyncza(
      QStringLiteral(R"(\b(?:INTO|UPDATE|TABLE|JOIN)\s+\[?(\w+))"),
      QRegularExpression::CaseInsensitiveOption);
  static const QRegularExpression lista(
      QStringLiteral(R"(\bFROM\s+([\w\s,\[\]\(]+?)(?=\bWHERE\b|\bGROUP\b|\bORDER\b|\bHAVING\b|)"
                     R"(\bINNER\b|\bLEFT\b|\bRIGHT\b|\bJOIN\b|\bON\b|\bUNION\b|\bLIMIT\b|\)|;|$))"),
      QRegularExpression::CaseInsensitiveOption);
  static const QRegularExpression nazwa(QStringLiteral(R"(^[\s\(\[]*(\w+))"));
  QStringList tabele;
  auto dodaj = [&](const QString& t) {
    if (t.isEmpty() || t.front().isDigit() ||
        t.compare(QLatin1String("SELECT"), Qt::CaseInsensitive) == 0)
      return;
    if (!tabele.contains(t, Qt::CaseInsensitive)) tabele << t;
  };
  for (auto m = lista.globalMatch(czysty); m.hasNext();)
    for (const QString& czesc : m.next().captured(1).split(QLatin1Char(',')))
      dodaj(nazwa.match(czesc).captured(1));
  for (auto m = pojedyncza.globalMatch(czysty); m.hasNext();) dodaj(m.next().captured(1));
  if (verb.isEmpty()) return QStringLiteral("?");
  return tabele.isEmpty() ? verb : verb + QLatin1Char(' ') + tabele.join(QStringLiteral(", "));
}

QString BezCytatow(const QString& blad) {
  static const QRegularExpression cytaty(QStringLiteral(R"("[^"]*"|'[^']*')"));
  QString wynik = blad;
  wynik.replace(cytaty, QStringLiteral("\"...\""));
  return wynik;
}
