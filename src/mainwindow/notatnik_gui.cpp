#include "mainwindow/notatnik_gui.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"

namespace {
QString napis(int numer) { return Napis(QStringLiteral("frmMain%1").arg(numer)); }
}  // namespace

NotatnikGui::NotatnikGui(QWidget* rodzic) : QWidget(rodzic) {
  setObjectName(QStringLiteral("fraNotatnik"));
  auto* v = new QVBoxLayout(this);
  v->setContentsMargins(0, 0, 0, 0);
  v->setSpacing(2);
  auto* glowa = new QHBoxLayout;
  glowa->setSpacing(2);
  auto* tytul = new QLabel(napis(162), this);
  QFont f = tytul->font();
  f.setBold(true);
  tytul->setFont(f);
  glowa->addWidget(tytul, 1);
  for (int i = 0; i < 3; ++i) {
    auto* b = new QPushButton(napis(227 + i), this);
    b->setObjectName(QStringLiteral("cmdNotatnik(%1)").arg(i));
    b->setToolTip(napis(163 + i));
    b->setAutoDefault(false);
    connect(b, &QPushButton::clicked, this, [this, i] { Polecenie(i); });
    cmdNotatnik_[size_t(i)] = b;
    glowa->addWidget(b);
  }
  v->addLayout(glowa);
  txtNotatnik_ = new QPlainTextEdit(this);
  txtNotatnik_->setObjectName(QStringLiteral("txtNotatnik"));
  txtNotatnik_->setTabChangesFocus(true);
  txtNotatnik_->setMinimumHeight(60);
  v->addWidget(txtNotatnik_, 1);
}

void NotatnikGui::Wczytaj() {
  txtNotatnik_->setPlainText(sesja.pubUstawienia.notatnik);
  sesja.pubUstawienia.notatnik.clear();
}

bool NotatnikGui::Zapisz() {
  if (!OtworzBaze()) return false;
  return pubBaza()
      .Wykonaj(QStringLiteral("UPDATE setup SET notatnik=") + SqlTekst(txtNotatnik_->toPlainText()))
      .ok;
}

void NotatnikGui::Polecenie(int i) {
  QClipboard* schowek = QGuiApplication::clipboard();
  switch (i) {
    case 0:
      txtNotatnik_->clear();
      break;
    case 1:
      if (schowek) schowek->setText(txtNotatnik_->toPlainText());
      break;
    case 2:
      // At the caret, with what stands left and right of it kept.
      if (schowek) txtNotatnik_->textCursor().insertText(schowek->text());
      break;
    default:
      return;
  }
  txtNotatnik_->setFocus();
}
