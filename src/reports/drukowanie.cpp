#include "reports/drukowanie.h"

#include "store/baza.h"
#include "store/dzis.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"

void Raport::Maksimum(int ile) {
  if (postep) postep->Maksimum(ile + 1);
}

bool Raport::Przerwij(int licznik) {
  if (postep && postep->Krok(licznik)) przerwano = true;
  return przerwano;
}

void Raport::Opis(const QString& tekst) {
  if (postep) postep->Opis(tekst);
}

QString PoleTekstu(const QString& tekst, int szerokosc) {
  const qsizetype dopelnienie = std::abs(szerokosc) - tekst.size();
  if (dopelnienie <= 0) return tekst;
  const QString blanki(dopelnienie, QLatin1Char(' '));
  return szerokosc < 0 ? blanki + tekst : tekst + blanki;
}

void PoleRaportu(Raport& cel, const QString& tekst, int szerokosc, int styl) {
  if (styl == 0) styl = 1;
  DokumentRaportu& d = cel.dok;
  if (styl == 1 || styl == 2) {
    d.czcionka = sesja.pubCzcionka;
    d.pogrubiony = styl == 2;
    d.rozmiar = 8;
  }
  d.Dopisz(PoleTekstu(tekst, szerokosc));
}

void NowaLinia(Raport& cel, int ile) {
  for (int i = 0; i < ile; ++i) cel.dok.NowaLinia();
}

void LiniaRaportu(Raport& cel, int szerokosc, bool pogrubiona) {
  if (pogrubiona) cel.dok.pogrubiony = true;
  cel.dok.Dopisz(QString(std::max(szerokosc, 0), QLatin1Char('-')));
  NowaLinia(cel, 1);
  cel.dok.pogrubiony = false;
}

void StopkaRaportu(Raport& cel) {
  NowaLinia(cel, 1);
  PoleRaportu(cel,
              Napis(QStringLiteral("drukowanie2")) + QLatin1Char(' ') +
                  FormatDaty(Teraz().date(), sesja.pubFormatDaty_ddsmmmmsyyyy),
              0, 0);
}

void TytulRaportu(Raport& cel, const QString& tytul) { PoleRaportu(cel, tytul, 45, 2); }

void ListaTransakcji(Raport& cel, const QString& naglowek, int wciecie) {
  Baza& baza = pubBaza();
  const qint64 ile = PoliczIle(
      QStringLiteral("SELECT COUNT(transakcje.id) AS ile FROM transakcje,konta WHERE ") +
      cel.pubWarunekListy);
  if (ile <= 0) return;
  LiniaRaportu(cel, cel.pubSzerokoscRaportu, false);
  PoleRaportu(cel, QStringLiteral(" "), wciecie, 0);
  PoleRaportu(cel, naglowek, 0, 0);
  NowaLinia(cel, 1);
  Rekordy rs = baza.Czytaj(
      QStringLiteral(
          "SELECT transakcje.id AS id, transakcje.data AS data, transakcje.przychod AS przychod, "
          "transakcje.wydatek AS wydatek, transakcje.opis AS opis, kategorie.nazwa AS kategoria, "
          "kontrahent.skrocona AS kontrahent, konta.nazwa AS konto FROM ((transakcje INNER JOIN "
          "konta ON transakcje.konto = konta.id) INNER JOIN kategorie ON (kategorie.rodzaj = "
          "transakcje.rodzaj) AND (transakcje.kategoria = kategorie.identyfikator)) LEFT JOIN "
          "kontrahent ON transakcje.kontrahent = kontrahent.id WHERE ") +
      cel.pubWarunekListy + QStringLiteral(" ORDER BY transakcje.data,transakcje.id"));
  int numer = 1;
  const QString pusty = QStringLiteral(" ");
  for (; !rs.Eof(); rs.MoveNext(), ++numer) {
    PoleRaportu(cel, pusty, wciecie, 0);
    PoleRaportu(cel, FormatCalkowita(numer), 4, 0);
    if (cel.pubKolumnaData) {
      const QDate data = QDate::fromString(rs.Tekst(QStringLiteral("data")).left(10), Qt::ISODate);
      PoleRaportu(cel, FormatDaty(data, sesja.pubFormatDaty_ddpmmmpyy), 11, 0);
    }
    PoleRaportu(cel, cel.pubKolumnaOpis ? rs.Tekst(QStringLiteral("opis")).left(16) : pusty, 18,
                0);
    if (cel.pubKolumnaPrzychod)
      PoleRaportu(cel, FormatKwoty(PoleRekordu(rs, QStringLiteral("przychod"))), -11, 0);
    if (cel.pubKolumnaWydatek)
      PoleRaportu(cel, FormatKwoty(PoleRekordu(rs, QStringLiteral("wydatek"))), -11, 0);
    PoleRaportu(cel, QString(), 1, 0);
    if (cel.pubKolumnaKategoria) PoleRaportu(cel, rs.Tekst(QStringLiteral("kategoria")), 17, 0);
    if (cel.pubKolumnaKonto) PoleRaportu(cel, rs.Tekst(QStringLiteral("konto")), 17, 0);
    if (cel.pubKolumnaKontrahent) PoleRaportu(cel, rs.Tekst(QStringLiteral("kontrahent")), 17, 0);
    NowaLinia(cel, 1);
  }
  LiniaRaportu(cel, cel.pubSzerokoscRaportu, false);
}
