#include "setup/ustawienia.h"

#include "setup/haslo.h"
#include "store/baza.h"
#include "store/session.h"

DaneUzytkownika CzytajDaneUzytkownika() {
  DaneUzytkownika d;
  if (!OtworzBaze()) return d;
  const Rekordy rs = pubBaza().Czytaj(QStringLiteral("SELECT * FROM setup"));
  d.imie = rs.Tekst(QStringLiteral("imie"));
  d.nazwisko = rs.Tekst(QStringLiteral("nazwisko"));
  d.miasto = rs.Tekst(QStringLiteral("miasto"));
  d.ulica = rs.Tekst(QStringLiteral("ulica"));
  d.lk = rs.Tekst(QStringLiteral("lk"));
  d.bank = rs.Tekst(QStringLiteral("bank"));
  d.konto = rs.Tekst(QStringLiteral("konto"));
  return d;
}

bool JestHaslo() {
  if (!OtworzBaze()) return false;
  return !pubBaza()
              .Czytaj(QStringLiteral("SELECT haslo FROM setup"))
              .Tekst(QStringLiteral("haslo"))
              .isEmpty();
}

int KontrolaHasel(const QString& haslo, const QString& powtorzenie) {
  if (haslo == powtorzenie) return 0;
  if (haslo.isEmpty()) return 15;
  if (powtorzenie.isEmpty()) return 17;
  return 19;
}

bool ZapiszUstawienia(const DaneUzytkownika& d, bool zmienHaslo, const QString& haslo,
                      QString* blad) {
  if (!OtworzBaze()) {
    if (blad) *blad = QStringLiteral("store not open");
    return false;
  }
  Baza& b = pubBaza();
  const bool ok = b.Transakcja([&] {
    if (b.Czytaj(QStringLiteral("SELECT * FROM setup")).Eof() &&
        !b.Wykonaj(QStringLiteral("INSERT INTO setup (autostart) VALUES ('0')")))
      return false;
    const WynikZapisu w = b.Wykonaj(
        QStringLiteral("UPDATE setup SET imie=%1, nazwisko=%2, miasto=%3, ulica=%4, lk=%5, "
                       "bank=%6, konto=%7")
            .arg(SqlTekst(d.imie), SqlTekst(d.nazwisko), SqlTekst(d.miasto), SqlTekst(d.ulica),
                 SqlTekst(d.lk), SqlTekst(d.bank), SqlTekst(d.konto)));
    if (!w && blad) *blad = w.blad;
    return w.ok;
  });
  if (!ok) return false;
  if (!zmienHaslo) return true;
  // The change of key reads the committed row, so it comes after the data is in.
  if (!UstawHasloBazy(haslo, blad)) return false;
  // The gate was passed in this run: the session keeps no password.
  sesja.pubUstawienia.haslo.clear();
  return true;
}
