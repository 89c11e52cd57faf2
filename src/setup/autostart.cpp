#include "setup/autostart.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include "store/baza.h"
#include "store/napis.h"
#include "store/plik.h"

namespace {
QString xdg(const char* zmienna, const QString& domyslny) {
  const QString v = qEnvironmentVariable(zmienna);
  // The XDG rules ignore a relative path.
  return !v.isEmpty() && QDir::isAbsolutePath(v) ? v : QDir::home().filePath(domyslny);
}

// A path quoted for the Exec key of a desktop entry.
QString wCudzyslowie(const QString& sciezka) {
  QString s = sciezka;
  s.replace(QLatin1Char('\\'), QStringLiteral("\\\\"))
      .replace(QLatin1Char('"'), QStringLiteral("\\\""))
      .replace(QLatin1Char('`'), QStringLiteral("\\`"))
      .replace(QLatin1Char('$'), QStringLiteral("\\$"));
  s.replace(QLatin1Char('%'), QStringLiteral("%%"));
  return QLatin1Char('"') + s + QLatin1Char('"');
}

bool zapiszWpis(const QString& plik, const QByteArray& tresc, bool wykonywalny, QString* blad) {
  if (!QDir().mkpath(QFileInfo(plik).absolutePath())) {
    if (blad) *blad = QFileInfo(plik).absolutePath();
    return false;
  }
  if (!ZapiszPlik(plik, tresc, blad)) return false;
  // Desktops start only entries their owner marked as programs.
  QFile::Permissions p = QFile::ReadOwner | QFile::WriteOwner;
  if (wykonywalny) p |= QFile::ExeOwner;
  QFile::setPermissions(plik, p);
  return true;
}
}  // namespace

QString FolderAutostartu() {
  return QDir(xdg("XDG_CONFIG_HOME", QStringLiteral(".config"))).filePath(QStringLiteral("autostart"));
}

QString PlikAutostartu() { return QDir(FolderAutostartu()).filePath(QStringLiteral("zorvik.desktop")); }

QString FolderAplikacji() {
  return QDir(xdg("XDG_DATA_HOME", QStringLiteral(".local/share")))
      .filePath(QStringLiteral("applications"));
}

QString FolderPulpitu() {
  QFile f(QDir(xdg("XDG_CONFIG_HOME", QStringLiteral(".config")))
              .filePath(QStringLiteral("user-dirs.dirs")));
  if (f.open(QIODevice::ReadOnly | QIODevice::Text)) {
    QTextStream in(&f);
    while (!in.atEnd()) {
      const QString linia = in.readLine().trimmed();
      if (!linia.startsWith(QLatin1String("XDG_DESKTOP_DIR="))) continue;
      QString w = linia.mid(16).trimmed();
      if (w.startsWith(QLatin1Char('"')) && w.endsWith(QLatin1Char('"')) && w.size() >= 2)
        w = w.mid(1, w.size() - 2);
      w.replace(QStringLiteral("$HOME"), QDir::homePath());
      // "$HOME/" alone means no desktop folder of its own: the home folder.
      if (QDir::isAbsolutePath(w)) return QDir::cleanPath(w);
    }
  }
  return QDir::home().filePath(QStringLiteral("Desktop"));
}

bool TestPisaniaAutostartu() {
  const QString folder = FolderAutostartu();
  if (!QDir().mkpath(folder)) return false;
  const QString plik = QDir(folder).filePath(QStringLiteral(".zorvik-test"));
  const QByteArray tekst = QByteArrayLiteral("TestPisaniaDoRejestru");
  bool ok = false;
  {
    QFile f(plik);
    if (f.open(QIODevice::WriteOnly | QIODevice::Truncate))
      ok = f.write(tekst) == tekst.size() && f.flush();
  }
  if (ok) {
    QFile f(plik);
    ok = f.open(QIODevice::ReadOnly) && f.readAll() == tekst;
  }
  QFile::remove(plik);
  return ok;
}

QByteArray WpisPulpitu(const QString& program, bool przypomnienie, bool autostart) {
  QString exec = wCudzyslowie(program);
  if (przypomnienie) exec += QStringLiteral(" a");
  QStringList w = {QStringLiteral("[Desktop Entry]"),
                   QStringLiteral("Type=Application"),
                   QStringLiteral("Version=1.0"),
                   QStringLiteral("Name=Zorvik"),
                   QStringLiteral("GenericName=") + Napis(QStringLiteral("frmKonfiguracja20")),
                   QStringLiteral("Comment=") + Napis(QStringLiteral("frmKonfiguracja21")),
                   QStringLiteral("Exec=") + exec,
                   QStringLiteral("Icon=zorvik"),
                   QStringLiteral("Terminal=false"),
                   QStringLiteral("Categories=Office;Finance;")};
  if (autostart) w << QStringLiteral("X-GNOME-Autostart-enabled=true");
  return (w.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8();
}

UstawieniaAutostartu CzytajAutostart() {
  UstawieniaAutostartu u;
  if (!OtworzBaze()) return u;
  const Rekordy rs =
      pubBaza().Czytaj(QStringLiteral("SELECT autostartprzypominacz,autostart FROM setup"));
  u.program = rs.Tekst(QStringLiteral("autostart")).trimmed() == QLatin1String("1");
  u.przypominacz = rs.Tekst(QStringLiteral("autostartprzypominacz")).trimmed() == QLatin1String("1");
  return u;
}

bool ZapiszAutostart(const UstawieniaAutostartu& u, const QString& program, QString* blad) {
  if (!TestPisaniaAutostartu()) {
    if (blad) *blad = FolderAutostartu();
    return false;
  }
  // One entry serves both: the program, or its reminder run. Only one may start.
  const QString plik = PlikAutostartu();
  if (QFile::exists(plik) && !QFile::remove(plik)) {
    if (blad) *blad = plik;
    return false;
  }
  if ((u.program || u.przypominacz) &&
      !zapiszWpis(plik, WpisPulpitu(program, !u.program, true), false, blad))
    return false;
  if (!OtworzBaze()) return false;
  if (pubBaza().Czytaj(QStringLiteral("SELECT * FROM setup")).Eof())
    pubBaza().Wykonaj(QStringLiteral("INSERT INTO setup (autostart) VALUES ('0')"));
  const WynikZapisu w =
      pubBaza().Wykonaj(QStringLiteral("UPDATE setup SET autostart='%1', autostartprzypominacz='%2'")
                            .arg(u.program ? 1 : 0)
                            .arg(u.przypominacz && !u.program ? 1 : 0));
  if (!w && blad) *blad = w.blad;
  return w.ok;
}

bool UtworzSkrot(const QString& program, QString* blad) {
  const QByteArray wpis = WpisPulpitu(program, false, false);
  return zapiszWpis(QDir(FolderPulpitu()).filePath(QStringLiteral("zorvik.desktop")), wpis, true,
                    blad) &&
         zapiszWpis(QDir(FolderAplikacji()).filePath(QStringLiteral("zorvik.desktop")), wpis, false,
                    blad);
}
