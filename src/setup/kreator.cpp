#include "setup/kreator.h"

#include "setup/kolory.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"

std::vector<KategoriaZestawu> ZestawKategorii(int typ) {
  std::vector<KategoriaZestawu> wynik;
  if (!OtworzBaze()) return wynik;
  // The name column of the edition is named by the language table itself.
  const QString kolumna = Napis(QStringLiteral("OgolneJezyk"));
  Rekordy rs = pubBaza().Czytaj(
      QStringLiteral("SELECT * FROM kreatorkategorie WHERE typ=%1 ORDER BY identyfikator").arg(typ));
  for (; !rs.Eof(); rs.MoveNext())
    wynik.push_back({rs.Tekst(QStringLiteral("identyfikator")).trimmed(),
                     rs.Tekst(QStringLiteral("kategoria")).trimmed(), rs.Tekst(kolumna),
                     rs.Tekst(QStringLiteral("opis"))});
  return wynik;
}

bool ZakonczKreator(int typ, int profil) {
  if (!OtworzBaze()) return false;
  Baza& b = pubBaza();
  const QStringList& kolory = ProfilKolorow(profil);
  const bool ok = b.Transakcja([&] {
    if (typ > 0) {
      for (const auto& [rodzaj, zestaw] :
           {std::pair{2, typ}, std::pair{1, typ + PrzesuniecieZestawuPrzychodow}})
        for (const KategoriaZestawu& k : ZestawKategorii(zestaw))
          if (!b.Wykonaj(QStringLiteral("INSERT INTO kategorie (rodzaj,identyfikator,kategoria,"
                                        "nazwa,opis) VALUES ('%1',%2,%3,%4,%5)")
                             .arg(rodzaj)
                             .arg(SqlTekst(k.identyfikator), SqlTekst(k.kategoria),
                                  SqlTekst(k.nazwa), SqlTekst(k.opis))))
            return false;
    }
    return ZapiszKoloryWBazie(kolory);
  });
  if (ok) UstawKoloryUstawien(sesja.pubUstawienia, kolory);
  return ok;
}

bool PosprzatajPoKreatorze() {
  if (!OtworzBaze()) return false;
  return pubBaza().Transakcja([] {
    return pubBaza().Wykonaj(QStringLiteral("DELETE FROM konta")).ok &&
           pubBaza().Wykonaj(QStringLiteral("DELETE FROM kontrahent")).ok;
  });
}
