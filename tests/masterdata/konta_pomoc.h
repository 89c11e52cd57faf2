#pragma once
// Rows for the account tests, written straight into the store.

#include <gtest/gtest.h>

#include "store/baza.h"

inline qint64 NoweKontoTestowe(const QString& nazwa, int rodzaj, const QString& utworzone,
                               double winien = 0, double ma = 0, double limit = 0) {
  const WynikZapisu w = pubBaza().Wykonaj(
      QStringLiteral("INSERT INTO konta (datautworzenia,nazwa,opis,rodzaj,bowinien,boma,limit) "
                     "VALUES ('%1',%2,'',%3,'%4','%5','%6')")
          .arg(utworzone, SqlTekst(nazwa), QString::number(rodzaj), QString::number(winien, 'f', 2),
               QString::number(ma, 'f', 2), QString::number(limit, 'f', 2)));
  EXPECT_TRUE(w.ok) << w.blad.toStdString();
  return pubBaza().OstatnieId();
}

// An income (przychod > 0) or expense entry, executed or planned.
inline void WpisTestowy(qint64 konto, const QString& data, double przychod, double wydatek,
                        const QString& tabela = QStringLiteral("transakcje")) {
  const WynikZapisu w = pubBaza().Wykonaj(
      QStringLiteral("INSERT INTO %1 (data,rodzaj,przychod,wydatek,opis,kategoria,konto) "
                     "VALUES ('%2',%3,'%4','%5','','A',%6)")
          .arg(tabela, data, QString::number(przychod > 0 ? 1 : 2),
               QString::number(przychod, 'f', 2), QString::number(wydatek, 'f', 2),
               QString::number(konto)));
  EXPECT_TRUE(w.ok) << w.blad.toStdString();
}

inline void TransferTestowy(qint64 z, qint64 na, const QString& data, double kwota,
                            const QString& tabela = QStringLiteral("wewnetrzne")) {
  const WynikZapisu w = pubBaza().Wykonaj(
      QStringLiteral("INSERT INTO %1 (data,kwota,opis,zkonta,nakonto) VALUES ('%2','%3','',%4,%5)")
          .arg(tabela, data, QString::number(kwota, 'f', 2), QString::number(z),
               QString::number(na)));
  EXPECT_TRUE(w.ok) << w.blad.toStdString();
}
