#pragma once
// Finding a screen's controls by name, and acting on the modal dialog that a step opens.

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <functional>

template <class T = QWidget>
T* Kontrolka(const QObject* o, const QString& nazwa) {
  T* w = o->findChild<T*>(nazwa);
  EXPECT_NE(w, nullptr) << nazwa.toStdString();
  return w;
}

// Runs akcja on the modal dialog that the next step opens, then makes sure it closes.
inline void NaModalnym(std::function<void(QWidget*)> akcja) {
  QTimer::singleShot(0, [akcja] {
    QWidget* d = QApplication::activeModalWidget();
    ASSERT_NE(d, nullptr);
    akcja(d);
    if (d->isVisible()) d->close();
  });
}
