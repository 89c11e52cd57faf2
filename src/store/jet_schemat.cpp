#include "store/jet_schemat.h"

#include <QLatin1StringView>
#include <cstring>

namespace {
// The columns of data/schema.sql by kind. Kept by hand: a new number column must be added here,
// or a quoted amount written to it would stay text; a new name column, or it would compare
// with case.
struct Tabela {
  const char* nazwa;
  const char* liczbowe;  // blank-separated
  const char* klucze;
  const char* teksty;
  const char* zIndeksem;  // name columns with an index of their own
  bool maId;              // "id" is the row key
};

constexpr Tabela kTabele[] = {
    {"konta", "id rodzaj bowinien boma limit", "datautworzenia", "nazwa opis", "", true},
    {"transakcje", "id rodzaj przychod wydatek konto kontrahent", "data kategoria", "opis", "",
     true},
    {"zaplanowane", "id rodzaj przychod wydatek konto kontrahent", "data kategoria", "opis", "",
     true},
    {"wewnetrzne", "id kwota zkonta nakonto", "data", "opis", "", true},
    {"zaplanowanewewnetrzne", "id kwota zkonta nakonto", "data", "opis", "", true},
    {"kategorie", "id rodzaj limit oszczednosc", "identyfikator kategoria", "nazwa opis", "nazwa",
     true},
    {"kontrahent", "id", "telefon konto bank lk", "skrocona opis nazwa adres miasto", "skrocona",
     true},
    {"szablony", "id rodzaj konto kontrahent", "kategoria", "nazwa opis", "", true},
    {"szablonywewnetrzne", "id zkonta nakonto", "", "nazwa opis", "", true},
    {"okresowe", "id rodzaj konto nakonto kontrahent kwota czestotliwosc weekend",
     "kategoria oddaty dodaty wygenerowanodo", "opis", "", true},
    {"okresowedni", "okresowa wiersz", "data", "", "", false},
    {"setup", "autostart autostartprzypominacz",
     "tloaktywne napisyaktywne przyciskiaktywne etykietyaktywne napisyetykietaktywne listajeden "
     "listadwa tlonieaktywne napisynieaktywne haslo userid hasloserwisu lk bank konto",
     "notatnik imie nazwisko ulica miasto", "", false},
    {"wersjabazy", "drukowaczera",
     "wersja data pubformatdaty_ddpmmm pubformatdaty_ddpmmmpyy pubformatdaty_ddlmmmlyyyy "
     "pubformatdaty_ddsmmmmsyyyy pubformatdaty_dd_mmm_yy pubformatdaty_ddpmmmmpyy "
     "pubformatdaty_ddpmmmmpyyyy",
     "", "", false},
    {"jezyki", "", "kontrolka", "polski angielski", "", false},
    {"imieniny", "dzien miesiac", "", "imiona", "", false},
    {"kreatorkategorie", "typ", "identyfikator kategoria", "opis polski angielski", "", false},
    {"pytania", "id", "datawyslania idpytania dataodpowiedzi", "pytanie odpowiedz", "", true},
};

// ASCII names compared blind to case, without a call per character.
bool rowne(QStringView a, const char* b, qsizetype n) {
  if (a.size() != n) return false;
  for (qsizetype i = 0; i < n; ++i) {
    char16_t c = a[i].unicode();
    if (c >= u'A' && c <= u'Z') c += 32;
    if (c != char16_t(b[i])) return false;
  }
  return true;
}

const Tabela* znajdz(QStringView nazwa) {
  for (const Tabela& t : kTabele)
    if (rowne(nazwa, t.nazwa, qsizetype(std::strlen(t.nazwa)))) return &t;
  return nullptr;
}

// True when the blank-separated list holds the word (case-insensitive).
bool naLiscie(const char* lista, QStringView slowo) {
  const char* p = lista;
  while (*p) {
    const char* k = p;
    while (*k && *k != ' ') ++k;
    if (rowne(slowo, p, k - p)) return true;
    p = *k ? k + 1 : k;
  }
  return false;
}
}  // namespace

bool JetZnanaTabela(QStringView tabela) { return znajdz(tabela) != nullptr; }

RodzajKolumny JetRodzajKolumny(QStringView tabela, QStringView kolumna) {
  const Tabela* t = znajdz(tabela);
  if (!t) return RodzajKolumny::Nieznana;
  if (naLiscie(t->liczbowe, kolumna)) return RodzajKolumny::Liczba;
  if (naLiscie(t->klucze, kolumna)) return RodzajKolumny::Klucz;
  if (naLiscie(t->teksty, kolumna)) return RodzajKolumny::Tekst;
  return RodzajKolumny::Nieznana;
}

int JetKolumnaLiczbowa(QStringView tabela, QStringView kolumna) {
  switch (JetRodzajKolumny(tabela, kolumna)) {
    case RodzajKolumny::Liczba:
      return 1;
    case RodzajKolumny::Nieznana:
      return -1;
    default:
      return 0;
  }
}

bool JetTekstZIndeksem(QStringView tabela, QStringView kolumna) {
  const Tabela* t = znajdz(tabela);
  return t && naLiscie(t->zIndeksem, kolumna);
}

bool JetKluczWiersza(QStringView tabela, QStringView kolumna) {
  const Tabela* t = znajdz(tabela);
  return t && t->maId && kolumna.compare(QLatin1StringView("id"), Qt::CaseInsensitive) == 0;
}
