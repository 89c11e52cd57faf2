#pragma once
// Rows and stand-in screens for the main window's tests.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTreeWidget>
#include <functional>
#include <ostream>

#include "mainwindow/frmMain.h"
#include "store/baza.h"
#include "store/filtr.h"
#include "store/session.h"
#include "ui/nawigacja_gui.h"

inline void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }

namespace testy_pulpitu {

inline void Zapisz(const QString& sql) {
  const WynikZapisu w = pubBaza().Wykonaj(sql);
  ASSERT_TRUE(w.ok) << w.blad.toStdString() << " | " << sql.toStdString();
}

inline qint64 Konto(const QString& nazwa, int rodzaj, double winien = 0) {
  Zapisz(QStringLiteral("INSERT INTO konta (datautworzenia,nazwa,opis,rodzaj,bowinien,boma) "
                        "VALUES ('2026-01-01',%1,'',%2,'%3','0')")
             .arg(SqlTekst(nazwa), QString::number(rodzaj), QString::number(winien, 'f', 2)));
  return pubBaza().OstatnieId();
}

inline void Kategoria(const QString& id, int rodzaj, const QString& nazwa) {
  Zapisz(QStringLiteral("INSERT INTO kategorie (identyfikator,kategoria,nazwa,opis,rodzaj) VALUES "
                        "(%1,'-',%2,'',%3)")
             .arg(SqlTekst(id), SqlTekst(nazwa), QString::number(rodzaj)));
}

inline qint64 Kontrahent(const QString& skrocona) {
  Zapisz(QStringLiteral("INSERT INTO kontrahent (skrocona,opis) VALUES (%1,'')").arg(SqlTekst(skrocona)));
  return pubBaza().OstatnieId();
}

// An income (przychod > 0) or an expense entry in category "A" (income) or "B" (expense).
inline qint64 Wpis(const QString& tabela, qint64 konto, const QString& data, double przychod,
                   double wydatek, const QString& opis = QString(), qint64 kontrahent = 0) {
  const int rodzaj = przychod > 0 ? 1 : 2;
  Zapisz(QStringLiteral("INSERT INTO %1 (data,rodzaj,przychod,wydatek,opis,kategoria,konto,"
                        "kontrahent) VALUES ('%2',%3,'%4','%5',%6,'%7',%8,%9)")
             .arg(tabela, data, QString::number(rodzaj), QString::number(przychod, 'f', 2),
                  QString::number(wydatek, 'f', 2), SqlTekst(opis),
                  rodzaj == 1 ? QStringLiteral("A") : QStringLiteral("B"), QString::number(konto),
                  QString::number(kontrahent)));
  return pubBaza().OstatnieId();
}

inline qint64 Transfer(const QString& tabela, qint64 z, qint64 na, const QString& data,
                       double kwota, const QString& opis = QString()) {
  Zapisz(QStringLiteral("INSERT INTO %1 (data,kwota,opis,zkonta,nakonto) VALUES ('%2','%3',%4,%5,%6)")
             .arg(tabela, data, QString::number(kwota, 'f', 2), SqlTekst(opis), QString::number(z),
                  QString::number(na)));
  return pubBaza().OstatnieId();
}

// A screen put in place of a registered one for the length of a test.
class ZastepczyEkran {
 public:
  ZastepczyEkran(const QString& nazwa, Nawigacja::Ekran ekran) : nazwa_(nazwa) {
    dawny_ = Nawigacja::Zarejestruj(nazwa, std::move(ekran));
  }
  ~ZastepczyEkran() { Nawigacja::Zarejestruj(nazwa_, dawny_); }

 private:
  QString nazwa_;
  Nawigacja::Ekran dawny_;
};

// What a browser found in the session when it opened, and the rows its statement selects: the
// statement of the entry browser with the handed fragment and the period of the filter in force.
struct Wywolanie {
  int tryb = 0;
  QString fragment, tytul;
  int rodzajFiltra = -1;
  QDate od, do_;
  int wierszTransakcji = -1;
  QStringList opisy;  // descriptions of the rows selected, newest first
};

inline Wywolanie PrzegladTransakcji() {
  Wywolanie w;
  w.tryb = sesja.pubTryb;
  w.fragment = sesja.pubFiltrTransakcji;
  w.tytul = sesja.pubTytulTransakcji;
  w.rodzajFiltra = sesja.pubFiltrCzasowy.rodzaj;
  w.od = sesja.pubFiltrCzasowy.od;
  w.do_ = sesja.pubFiltrCzasowy.do_;
  w.wierszTransakcji = sesja.pubWierszTransakcji;
  const QString t = sesja.pubTryb == 2 ? QStringLiteral("transakcje") : QStringLiteral("zaplanowane");
  const QString sql =
      QStringLiteral(
          "SELECT %1.id AS id, %1.opis AS opis FROM ((%1 INNER JOIN konta ON %1.konto = konta.id) "
          "INNER JOIN kategorie ON (kategorie.rodzaj = %1.rodzaj) AND (%1.kategoria = "
          "kategorie.identyfikator)) LEFT JOIN kontrahent ON %1.kontrahent = kontrahent.id WHERE "
          "1=1 ")
          .arg(t) +
      sesja.pubFiltrTransakcji + FiltrCzasowy(sesja.pubFiltrCzasowy).warunek +
      QStringLiteral(" ORDER BY %1.data DESC,%1.id DESC").arg(t);
  Rekordy rs = pubBaza().Czytaj(sql);
  EXPECT_TRUE(rs.Ok()) << rs.Blad().toStdString() << " | " << sql.toStdString();
  for (; !rs.Eof(); rs.MoveNext()) w.opisy << rs.Tekst(QStringLiteral("opis")).trimmed();
  return w;
}

inline QString Tekst(const QWidget& okno, const char* nazwa) {
  const auto* l = okno.findChild<QLabel*>(QLatin1String(nazwa));
  EXPECT_NE(l, nullptr) << nazwa;
  return l ? l->text() : QString();
}

inline QTreeWidget* Lista(const QWidget& okno, const char* nazwa) {
  auto* l = okno.findChild<QTreeWidget*>(QLatin1String(nazwa));
  EXPECT_NE(l, nullptr) << nazwa;
  return l;
}

// The texts of one column of a list, top to bottom.
inline QStringList Kolumna(QTreeWidget* l, int k) {
  QStringList w;
  for (int i = 0; l && i < l->topLevelItemCount(); ++i) w << l->topLevelItem(i)->text(k).trimmed();
  return w;
}

}  // namespace testy_pulpitu
