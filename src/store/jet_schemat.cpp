#include "store/jet_schemat.h"

#include <QLatin1StringView>

namespace {
// The columns of data/schema.sql, number columns first. Kept by hand: a new number column must
// be added here, or a quoted amount written to it would stay text.
struct Tabela {
  const char* nazwa;
  const char* liczbowe;  // blank-separated
  const char* tekstowe;
};

constexpr Tabela kTabele[] = {
    {"konta", "id rodzaj bowinien boma limit", "datautworzenia nazwa opis"},
    {"transakcje", "id rodzaj przychod wydatek konto kontrahent", "data opis kategoria"},
    {"zaplanowane", "id rodzaj przychod wydatek konto kontrahent", "data opis kategoria"},
    {"wewnetrzne", "id kwota zkonta nakonto", "data opis"},
    {"zaplanowanewewnetrzne", "id kwota zkonta nakonto", "data opis"},
    {"kategorie", "id rodzaj limit oszczednosc", "identyfikator kategoria nazwa opis"},
    {"kontrahent", "id", "skrocona opis nazwa adres miasto telefon konto bank lk"},
    {"szablony", "id rodzaj konto kontrahent", "nazwa kategoria opis"},
    {"szablonywewnetrzne", "id zkonta nakonto", "nazwa opis"},
    {"setup", "autostart autostartprzypominacz",
     "tloaktywne napisyaktywne przyciskiaktywne etykietyaktywne napisyetykietaktywne listajeden "
     "listadwa tlonieaktywne napisynieaktywne haslo notatnik userid hasloserwisu imie nazwisko "
     "ulica miasto lk bank konto"},
    {"wersjabazy", "drukowaczera",
     "wersja data pubformatdaty_ddpmmm pubformatdaty_ddpmmmpyy pubformatdaty_ddlmmmlyyyy "
     "pubformatdaty_ddsmmmmsyyyy pubformatdaty_dd_mmm_yy pubformatdaty_ddpmmmmpyy "
     "pubformatdaty_ddpmmmmpyyyy"},
    {"jezyki", "", "kontrolka polski angielski"},
    {"imieniny", "dzien miesiac", "imiona"},
    {"kreatorkategorie", "typ", "identyfikator kategoria opis polski angielski"},
    {"pytania", "id", "pytanie datawyslania idpytania dataodpowiedzi odpowiedz"},
};

const Tabela* znajdz(QStringView nazwa) {
  for (const Tabela& t : kTabele)
    if (nazwa.compare(QLatin1StringView(t.nazwa), Qt::CaseInsensitive) == 0) return &t;
  return nullptr;
}

// True when the blank-separated list holds the word (case-insensitive).
bool naLiscie(const char* lista, QStringView slowo) {
  const QLatin1StringView l(lista);
  qsizetype i = 0;
  while (i < l.size()) {
    qsizetype j = i;
    while (j < l.size() && l[j] != QLatin1Char(' ')) ++j;
    if (slowo.compare(l.sliced(i, j - i), Qt::CaseInsensitive) == 0) return true;
    i = j + 1;
  }
  return false;
}
}  // namespace

bool JetZnanaTabela(QStringView tabela) { return znajdz(tabela) != nullptr; }

int JetKolumnaLiczbowa(QStringView tabela, QStringView kolumna) {
  const Tabela* t = znajdz(tabela);
  if (!t) return -1;
  if (naLiscie(t->liczbowe, kolumna)) return 1;
  if (naLiscie(t->tekstowe, kolumna)) return 0;
  return -1;
}
