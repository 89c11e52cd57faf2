// Start at log-on and the desktop entry, in a temporary home: the exclusive options, the entry
// written, replaced and removed, a folder the user can't write to, and the desktop folder named
// in another language.

#include <gtest/gtest.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>

#include "common/magazyn_testowy.h"
#include "setup/autostart.h"
#include "setup/frmKonfiguracja.h"
#include "store/napis.h"

namespace {
// HOME and XDG_CONFIG_HOME point into a temporary folder for the test's life.
class DomTestowy {
 public:
  DomTestowy() : dom_(qgetenv("HOME")), konfig_(qgetenv("XDG_CONFIG_HOME")) {
    qputenv("HOME", dir_.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", (dir_.path() + QStringLiteral("/konfig")).toUtf8());
    qputenv("XDG_DATA_HOME", (dir_.path() + QStringLiteral("/dane")).toUtf8());
  }
  ~DomTestowy() {
    qputenv("HOME", dom_);
    if (konfig_.isEmpty()) qunsetenv("XDG_CONFIG_HOME"); else qputenv("XDG_CONFIG_HOME", konfig_);
    qunsetenv("XDG_DATA_HOME");
  }
  QString Sciezka(const QString& w) const { return QDir(dir_.path()).filePath(w); }

 private:
  QTemporaryDir dir_;
  QByteArray dom_, konfig_;
};

QByteArray czytaj(const QString& plik) {
  QFile f(plik);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QRadioButton* opcja(QWidget* f, const char* nazwa) {
  return f->findChild<QRadioButton*>(QLatin1String(nazwa));
}

void ok(frmKonfiguracja& f) { f.findChild<QPushButton*>(QStringLiteral("cmdOK"))->click(); }
}  // namespace

TEST(Autostart, ExclusiveOptionsEntryWrittenReplacedRemoved) {
  MagazynTestowy m;
  DomTestowy dom;
  const QString wpis = dom.Sciezka(QStringLiteral("konfig/autostart/zorvik.desktop"));
  EXPECT_EQ(PlikAutostartu(), wpis);
  {
    frmKonfiguracja f;
    EXPECT_TRUE(opcja(&f, "optAutoStart(0)")->isChecked());
    opcja(&f, "optAutoStart(1)")->click();
    opcja(&f, "optAutoStartPrzypominacz(1)")->click();
    EXPECT_TRUE(opcja(&f, "optAutoStart(0)")->isChecked()) << "Tak in one is Nie in the other";
    opcja(&f, "optAutoStart(1)")->click();
    EXPECT_TRUE(opcja(&f, "optAutoStartPrzypominacz(0)")->isChecked());
    opcja(&f, "optAutoStartPrzypominacz(0)")->click();
    EXPECT_TRUE(opcja(&f, "optAutoStart(1)")->isChecked()) << "Nie changes nothing else";
    ok(f);
    EXPECT_EQ(f.result(), QDialog::Accepted);
  }
  QByteArray tresc = czytaj(wpis);
  EXPECT_TRUE(tresc.startsWith("[Desktop Entry]\n"));
  const QByteArray program = QCoreApplication::applicationFilePath().toUtf8();
  EXPECT_TRUE(tresc.contains("\nExec=\"" + program + "\"\n")) << tresc.constData();
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM setup WHERE autostart='1' AND autostartprzypominacz='0'")), 1);
  {
    frmKonfiguracja f;
    EXPECT_TRUE(opcja(&f, "optAutoStart(1)")->isChecked());
    opcja(&f, "optAutoStartPrzypominacz(1)")->click();
    ok(f);
  }
  tresc = czytaj(wpis);
  EXPECT_TRUE(tresc.contains("\nExec=\"" + program + "\" a\n")) << tresc.constData();
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM setup WHERE autostart='0' AND autostartprzypominacz='1'")), 1);
  {
    frmKonfiguracja f;
    opcja(&f, "optAutoStartPrzypominacz(0)")->click();
    ok(f);
  }
  EXPECT_FALSE(QFile::exists(wpis)) << "both Nie: no entry";
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM setup WHERE autostart='0' AND autostartprzypominacz='0'")), 1);
  EXPECT_TRUE(m.host.pokazane.empty());
  // A path with blanks, quotes and a per cent sign stays one argument of the command.
  EXPECT_TRUE(WpisPulpitu(QStringLiteral("/opt/Mój \"dom\" 100%/zorvik"), true, true)
                  .contains("\nExec=\"/opt/Mój \\\"dom\\\" 100%%/zorvik\" a\n"));
}

// The write test is a real one: where the user can't write, the message comes, nothing is left
// in the folder and setup keeps its values.
TEST(Autostart, UnwritableFolderGivesTheMessage) {
  MagazynTestowy m;
  DomTestowy dom;
  m.Licz(QStringLiteral("INSERT INTO setup (autostart, autostartprzypominacz) VALUES ('0', '1')"));
  QDir().mkpath(dom.Sciezka(QStringLiteral("konfig")));
  // A file where the folder should be stops anyone, the superuser too.
  QFile blokada(dom.Sciezka(QStringLiteral("konfig/autostart")));
  ASSERT_TRUE(blokada.open(QIODevice::WriteOnly));
  blokada.close();
  EXPECT_FALSE(TestPisaniaAutostartu());
  {
    frmKonfiguracja f;
    opcja(&f, "optAutoStart(1)")->click();
    ok(f);
    EXPECT_NE(f.result(), QDialog::Accepted);
  }
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_EQ(m.host.pokazane[0].tytul.trimmed(), Napis(QStringLiteral("frmKonfiguracja12")));
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM setup WHERE autostart='0' AND autostartprzypominacz='1'")), 1);
  if (getuid() != 0) {
    QFile::remove(blokada.fileName());
    QDir().mkpath(blokada.fileName());
    QFile::setPermissions(blokada.fileName(), QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_FALSE(TestPisaniaAutostartu());
    EXPECT_TRUE(QDir(blokada.fileName()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden).isEmpty());
    QFile::setPermissions(blokada.fileName(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }
}

// The desktop as the desktop names it, in any language; the entry lands there, marked as a
// program, and in the applications menu.
TEST(Autostart, ShortcutOnTheDesktopInAnyLanguage) {
  MagazynTestowy m;
  DomTestowy dom;
  EXPECT_EQ(FolderPulpitu(), dom.Sciezka(QStringLiteral("Desktop")));
  QDir().mkpath(dom.Sciezka(QStringLiteral("konfig")));
  QFile dirs(dom.Sciezka(QStringLiteral("konfig/user-dirs.dirs")));
  ASSERT_TRUE(dirs.open(QIODevice::WriteOnly));
  dirs.write("# written by xdg-user-dirs-update\nXDG_DOWNLOAD_DIR=\"$HOME/Pobrane\"\n"
             "XDG_DESKTOP_DIR=\"$HOME/Biurko Łucji\"\n");
  dirs.close();
  EXPECT_EQ(FolderPulpitu(), dom.Sciezka(QStringLiteral("Biurko Łucji")));
  frmKonfiguracja f;
  f.findChild<QPushButton*>(QStringLiteral("cmdUtworzSkrot"))->click();
  const QString naPulpicie = dom.Sciezka(QStringLiteral("Biurko Łucji/zorvik.desktop"));
  EXPECT_TRUE(czytaj(naPulpicie).contains("\nName=Zorvik\n"));
  EXPECT_TRUE(QFileInfo(naPulpicie).isExecutable());
  EXPECT_TRUE(QFile::exists(dom.Sciezka(QStringLiteral("dane/applications/zorvik.desktop"))));
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_EQ(m.host.pokazane[0].tytul.trimmed(), Napis(QStringLiteral("frmKonfiguracja14")));
}
