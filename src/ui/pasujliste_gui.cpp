#include "ui/pasujliste_gui.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPalette>
#include <algorithm>
#include <cmath>

namespace {
QColor zBgr(quint32 v) { return QColor(int(v & 0xff), int((v >> 8) & 0xff), int((v >> 16) & 0xff)); }

QColor systemowy(quint32 indeks) {
  const QPalette p = QApplication::palette();
  switch (indeks) {
    case 0x05:
      return p.color(QPalette::Base);
    case 0x08:
      return p.color(QPalette::Text);
    case 0x0f:
      return p.color(QPalette::Button);
    case 0x12:
      return p.color(QPalette::ButtonText);
    case 0x0d:
      return p.color(QPalette::Highlight);
    case 0x0e:
      return p.color(QPalette::HighlightedText);
    default:
      return p.color(QPalette::Window);
  }
}
}  // namespace

QColor KolorUstawienia(const QString& tekst) {
  const QString t = tekst.trimmed();
  if (t.isEmpty()) return {};
  bool ok = false;
  quint32 v = 0;
  if (t.startsWith(QLatin1String("&H"), Qt::CaseInsensitive)) {
    QString cyfry = t.mid(2);
    if (cyfry.endsWith(QLatin1Char('&'))) cyfry.chop(1);
    v = cyfry.toUInt(&ok, 16);
  } else {
    const qint64 liczba = t.toLongLong(&ok);
    ok = ok && liczba >= 0 && liczba <= 0xffffffffLL;
    v = quint32(liczba);
  }
  if (!ok) return {};
  if (v & 0x80000000u) return systemowy(v & 0xff);
  return zBgr(v);
}

namespace {
double luminancja(const QColor& c) {
  auto kanal = [](double v) {
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * kanal(c.redF()) + 0.7152 * kanal(c.greenF()) + 0.0722 * kanal(c.blueF());
}
}  // namespace

double Kontrast(const QColor& a, const QColor& b) {
  const double la = luminancja(a), lb = luminancja(b);
  return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QColor NapisNaPaskach(const QColor& tlo1, const QColor& tlo2, const QColor& zwykly) {
  auto gorszy = [&](const QColor& n) { return std::min(Kontrast(n, tlo1), Kontrast(n, tlo2)); };
  if (zwykly.isValid() && gorszy(zwykly) >= 4.5) return zwykly;
  const QColor czarny(Qt::black), bialy(Qt::white);
  return gorszy(bialy) > gorszy(czarny) ? bialy : czarny;
}

void PasujListe(QAbstractItemView* lista, const QString& kolor1, const QString& kolor2) {
  if (!lista) return;
  const QColor a = KolorUstawienia(kolor1), b = KolorUstawienia(kolor2);
  QPalette p = lista->palette();
  if (a.isValid()) p.setColor(QPalette::Base, a);
  if (b.isValid()) p.setColor(QPalette::AlternateBase, b);
  // Judged from the system's text colour each time, so a list striped dark and then light again
  // gets its dark text back.
  const QColor napis = NapisNaPaskach(
      p.color(QPalette::Active, QPalette::Base), p.color(QPalette::Active, QPalette::AlternateBase),
      QApplication::palette().color(QPalette::Active, QPalette::Text));
  for (auto g : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
    p.setColor(g, QPalette::Text, napis);
  lista->setPalette(p);
  lista->setAlternatingRowColors(true);
}
