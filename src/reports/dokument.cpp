#include "reports/dokument.h"

#include "store/session.h"

QString LiniaDokumentu::Tekst() const {
  QString t;
  for (const ElementDokumentu* e : elementy)
    if (e->rodzaj == ElementDokumentu::Tekst) t += e->przebieg.tekst;
  return t;
}

DokumentRaportu::DokumentRaportu() : czcionka(sesja.pubCzcionka) {}

void DokumentRaportu::Dopisz(const QString& tekst) {
  if (tekst.isEmpty()) return;
  // A run with the same look as the one before it joins it: a long report stays small.
  if (!elementy_.empty()) {
    ElementDokumentu& ostatni = elementy_.back();
    Przebieg& p = ostatni.przebieg;
    if (ostatni.rodzaj == ElementDokumentu::Tekst && p.pogrubiony == pogrubiony &&
        p.rozmiar == rozmiar && p.czcionka == czcionka) {
      p.tekst += tekst;
      return;
    }
  }
  ElementDokumentu e;
  e.przebieg = {tekst, pogrubiony, czcionka, rozmiar};
  elementy_.push_back(std::move(e));
}

void DokumentRaportu::NowaLinia() {
  ElementDokumentu e;
  e.rodzaj = ElementDokumentu::Linia;
  elementy_.push_back(std::move(e));
  ++linie_;
}

void DokumentRaportu::Wstaw(const QImage& obrazek) {
  ElementDokumentu e;
  e.rodzaj = ElementDokumentu::Obrazek;
  e.obrazek = obrazek;
  elementy_.push_back(std::move(e));
}

QString DokumentRaportu::Tekst() const {
  QString t;
  for (const ElementDokumentu& e : elementy_) {
    if (e.rodzaj == ElementDokumentu::Tekst)
      t += e.przebieg.tekst;
    else if (e.rodzaj == ElementDokumentu::Linia)
      t += QLatin1Char('\n');
  }
  return t;
}

std::vector<LiniaDokumentu> DokumentRaportu::Linie() const {
  std::vector<LiniaDokumentu> wynik(1);
  wynik.reserve(size_t(linie_) + 1);
  for (const ElementDokumentu& e : elementy_) {
    if (e.rodzaj == ElementDokumentu::Linia)
      wynik.emplace_back();
    else
      wynik.back().elementy.push_back(&e);
  }
  return wynik;
}

DokumentRaportu DokumentRaportu::Wycinek(int od, int do_) const {
  DokumentRaportu w;
  w.szerokosc = szerokosc;
  int pozycja = 0;
  for (const ElementDokumentu& e : elementy_) {
    if (pozycja >= do_) break;
    const int dlugosc = e.rodzaj == ElementDokumentu::Tekst ? int(e.przebieg.tekst.size()) : 1;
    const int a = std::max(od, pozycja), b = std::min(do_, pozycja + dlugosc);
    if (a < b) {
      if (e.rodzaj == ElementDokumentu::Tekst) {
        w.pogrubiony = e.przebieg.pogrubiony;
        w.czcionka = e.przebieg.czcionka;
        w.rozmiar = e.przebieg.rozmiar;
        w.Dopisz(e.przebieg.tekst.mid(a - pozycja, b - a));
      } else if (e.rodzaj == ElementDokumentu::Linia) {
        w.NowaLinia();
      } else {
        w.Wstaw(e.obrazek);
      }
    }
    pozycja += dlugosc;
  }
  return w;
}
