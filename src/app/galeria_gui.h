#pragma once
// The gallery: a picture of every screen in its chief states and both editions, for looking at
// the program as a user does without clicking through it.

#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

struct WpisGalerii {
  QString nazwa;  // file base name: the form's name, and its state after a dash
  std::function<std::unique_ptr<QWidget>()> zbuduj;
};

// Every screen of the gallery. A new screen adds one line to the list in galeria_gui.cpp.
const std::vector<WpisGalerii>& WpisyGalerii();

// Writes <nazwa>-pl.png and <nazwa>-en.png for every entry into folder, on the store that is
// open. The session is prepared as at start-up for each edition. False with the reason when a
// picture could not be written.
bool ZapiszGalerie(const QString& folder, QStringList* zapisane = nullptr, QString* blad = nullptr);

// The picture of one screen as a user sees it, with a plain title bar drawn above it (the
// window system's own frame is not part of a grab).
QImage ObrazOkna(QWidget* okno);
