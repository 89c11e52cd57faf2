#pragma once
// Rows and window helpers for the entry, transfer and counterparty tests.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <functional>
#include <ostream>

#include "masterdata/konta.h"
#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"

// Texts in failure messages as text, not as bytes.
inline void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }

namespace testy_wpisow {

inline qint64 KontoT(const QString& nazwa, int rodzaj, double winien = 0, double limit = 0,
                     const QString& utworzone = QStringLiteral("2026-01-01")) {
  const WynikZapisu w = pubBaza().Wykonaj(
      QStringLiteral("INSERT INTO konta (datautworzenia,nazwa,opis,rodzaj,bowinien,boma,limit) "
                     "VALUES ('%1',%2,'',%3,'%4','0','%5')")
          .arg(utworzone, SqlTekst(nazwa), QString::number(rodzaj), QString::number(winien, 'f', 2),
               QString::number(limit, 'f', 2)));
  EXPECT_TRUE(w.ok) << w.blad.toStdString();
  return pubBaza().OstatnieId();
}

inline void KategoriaT(const QString& id, int rodzaj, const QString& nazwa) {
  const QString rodzic = id.size() == 1 ? QStringLiteral("-") : id.left(id.size() - 1);
  const WynikZapisu w = pubBaza().Wykonaj(
      QStringLiteral("INSERT INTO kategorie (identyfikator,kategoria,nazwa,opis,rodzaj) VALUES "
                     "(%1,%2,%3,'',%4)")
          .arg(SqlTekst(id), SqlTekst(rodzic), SqlTekst(nazwa), QString::number(rodzaj)));
  EXPECT_TRUE(w.ok) << w.blad.toStdString();
}

inline qint64 KontrahentT(const QString& skrocona) {
  const WynikZapisu w =
      pubBaza().Wykonaj(QStringLiteral("INSERT INTO kontrahent (skrocona,opis) VALUES (%1,'')")
                            .arg(SqlTekst(skrocona)));
  EXPECT_TRUE(w.ok) << w.blad.toStdString();
  return pubBaza().OstatnieId();
}

// An entry of kind rodzaj (1 income, 2 expense) in transakcje or zaplanowane.
inline qint64 WpisT(const QString& tabela, int rodzaj, double kwota, const QString& data,
                    qint64 konto, const QString& kategoria, qint64 kontrahent = 0,
                    const QString& opis = QString()) {
  const WynikZapisu w = pubBaza().Wykonaj(
      QStringLiteral(
          "INSERT INTO %1 (data,rodzaj,przychod,wydatek,opis,kategoria,konto,kontrahent) "
          "VALUES ('%2',%3,'%4','%5',%6,%7,%8,%9)")
          .arg(tabela, data, QString::number(rodzaj),
               QString::number(rodzaj == 1 ? kwota : 0, 'f', 2),
               QString::number(rodzaj == 2 ? kwota : 0, 'f', 2), SqlTekst(opis),
               SqlTekst(kategoria), QString::number(konto), QString::number(kontrahent)));
  EXPECT_TRUE(w.ok) << w.blad.toStdString();
  return pubBaza().OstatnieId();
}

inline qint64 TransferT(const QString& tabela, double kwota, const QString& data, qint64 z,
                        qint64 na, const QString& opis = QString()) {
  const WynikZapisu w = pubBaza().Wykonaj(
      QStringLiteral("INSERT INTO %1 (data,kwota,opis,zkonta,nakonto) VALUES ('%2','%3',%4,%5,%6)")
          .arg(tabela, data, QString::number(kwota, 'f', 2), SqlTekst(opis), QString::number(z),
               QString::number(na)));
  EXPECT_TRUE(w.ok) << w.blad.toStdString();
  return pubBaza().OstatnieId();
}

// The account as the account browser leaves it after the user picked it.
inline KontoRekord WybraneKonto(qint64 id) {
  KontoRekord k;
  k.id = id;
  OpisKonta(k);
  k.saldo = SaldoKonta(id);
  k.datautworzenia = DataUtworzeniaKonta(id);
  return k;
}

// The titles of the messages shown so far, each as the key whose text it is ("?" for none).
inline QStringList TytulyKomunikatow(const SkryptowanyHost& host, const QStringList& klucze) {
  QStringList wynik;
  for (const Komunikat& k : host.pokazane) {
    QString znaleziony = QStringLiteral("?");
    for (const QString& klucz : klucze)
      if (k.tytul.trimmed() == Napis(klucz).trimmed()) znaleziony = klucz;
    wynik << znaleziony;
  }
  return wynik;
}

template <typename T>
T* Kontrolka(QWidget* okno, const char* nazwa) {
  T* w = okno->findChild<T*>(QString::fromLatin1(nazwa));
  EXPECT_NE(w, nullptr) << nazwa;
  return w;
}

// Runs `kroki` on the modal window once `otworz` has shown it; a window left open is closed
// after a few seconds and the test fails instead of hanging.
inline void ZOknem(const std::function<void()>& otworz,
                   const std::function<void(QDialog*)>& kroki) {
  bool wykonane = false;
  QTimer::singleShot(0, [&] {
    auto* okno = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(okno, nullptr);
    wykonane = true;
    kroki(okno);
  });
  QTimer straz;
  straz.setSingleShot(true);
  QObject::connect(&straz, &QTimer::timeout, [] {
    if (auto* okno = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
      ADD_FAILURE() << "window left open: " << okno->objectName().toStdString();
      okno->reject();
    }
  });
  straz.start(5000);
  otworz();
  EXPECT_TRUE(wykonane);
}

}  // namespace testy_wpisow
