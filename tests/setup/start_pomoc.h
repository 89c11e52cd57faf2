#pragma once
// What the start-up tests share: the command line of a run, the screen, the windows on it, the
// gate answered from inside its modal loop, and the files of the data folder.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "mainwindow/frmMain.h"
#include "setup/frmHaslo.h"
#include "setup/start_gui.h"

inline ParametryStartu parametry(const QString& folder, int jezyk = 1) {
  ParametryStartu p;
  p.folderDanych = folder;
  p.jezyk = jezyk;
  return p;
}

inline ParametryStartu przypomnienie(const QString& folder) {
  ParametryStartu p = parametry(folder);
  p.przypomnienie = true;
  return p;
}

inline SrodowiskoStartu ekran(int szerokosc) {
  SrodowiskoStartu s;
  s.szerokoscEkranu = szerokosc;
  s.komunikatBrakuBazy = [](const QString& tekst, const QString&) {
    ADD_FAILURE() << "store unusable: " << tekst.toStdString();
  };
  return s;
}

inline QList<QWidget*> widoczneOkna() {
  QList<QWidget*> w;
  for (QWidget* o : QApplication::topLevelWidgets())
    if (o->isVisible()) w << o;
  return w;
}

// Closes the main window as the user does and lets its deletion run.
inline void zamknijGlowne() {
  if (frmMain* f = frmMain::Instancja()) f->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// Answers the password gate from inside its modal loop, once per given text.
inline void odpowiadajBramie(QStringList teksty) {
  auto* t = new QTimer;
  t->setInterval(10);
  QObject::connect(t, &QTimer::timeout, [t, teksty]() mutable {
    auto* brama = qobject_cast<frmHaslo*>(QApplication::activeModalWidget());
    if (!brama) {
      if (teksty.isEmpty()) t->deleteLater();
      return;
    }
    if (teksty.isEmpty()) return;
    brama->findChild<QLineEdit*>(QStringLiteral("txtHaslo"))->setText(teksty.takeFirst());
    brama->findChild<QPushButton*>(QStringLiteral("cmdOK"))->click();
  });
  t->start();
}

inline QByteArray zawartosc(const QString& plik) {
  QFile f(plik);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

inline bool zapisz(const QString& plik, const QByteArray& dane) {
  QFile f(plik);
  return f.open(QIODevice::WriteOnly) && f.write(dane) == dane.size();
}

inline QString logDanych(const QString& folder) {
  return QString::fromUtf8(zawartosc(QDir(folder).filePath(QStringLiteral("zorvik.log"))));
}

// The permission bits, or -1 when there is no such file.
inline int tryb(const QString& sciezka) {
  struct stat st {};
  return ::lstat(QFile::encodeName(sciezka).constData(), &st) == 0 ? int(st.st_mode & 07777) : -1;
}
