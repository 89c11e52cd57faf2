-- The delivered store's tables. Dates are ISO text (YYYY-MM-DD), amounts REAL rounded to cents,
-- keys 64-bit integers. Number columns keep NUMERIC/REAL/INTEGER affinity so that quoted numbers
-- written by the program ('12.50', '3') are stored and compared as numbers.

CREATE TABLE konta (
  id INTEGER PRIMARY KEY AUTOINCREMENT,
  datautworzenia TEXT,
  nazwa TEXT,
  opis TEXT,
  rodzaj INTEGER,
  bowinien REAL DEFAULT 0,
  boma REAL DEFAULT 0,
  "limit" REAL DEFAULT 0
);

CREATE TABLE transakcje (
  id INTEGER PRIMARY KEY AUTOINCREMENT,
  data TEXT,
  rodzaj INTEGER,
  przychod REAL DEFAULT 0,
  wydatek REAL DEFAULT 0,
  opis TEXT,
  kategoria TEXT,
  konto INTEGER,
  kontrahent INTEGER DEFAULT 0
);
-- Covering the period sums: a range of days is read from the index alone.
CREATE INDEX transakcje_data ON transakcje (data, konto, przychod, wydatek);
CREATE INDEX transakcje_konto ON transakcje (konto, data);
CREATE INDEX transakcje_kategoria ON transakcje (rodzaj, kategoria, data);
CREATE INDEX transakcje_kontrahent ON transakcje (kontrahent, data);

CREATE TABLE zaplanowane (
  id INTEGER PRIMARY KEY AUTOINCREMENT,
  data TEXT,
  rodzaj INTEGER,
  przychod REAL DEFAULT 0,
  wydatek REAL DEFAULT 0,
  opis TEXT,
  kategoria TEXT,
  konto INTEGER,
  kontrahent INTEGER DEFAULT 0
);
CREATE INDEX zaplanowane_data ON zaplanowane (data);
CREATE INDEX zaplanowane_konto ON zaplanowane (konto, data);
CREATE INDEX zaplanowane_kategoria ON zaplanowane (rodzaj, kategoria, data);
CREATE INDEX zaplanowane_kontrahent ON zaplanowane (kontrahent, data);

CREATE TABLE wewnetrzne (
  id INTEGER PRIMARY KEY AUTOINCREMENT,
  data TEXT,
  kwota REAL DEFAULT 0,
  opis TEXT,
  zkonta INTEGER,
  nakonto INTEGER
);
CREATE INDEX wewnetrzne_data ON wewnetrzne (data, zkonta, nakonto, kwota);
CREATE INDEX wewnetrzne_zkonta ON wewnetrzne (zkonta, data);
CREATE INDEX wewnetrzne_nakonto ON wewnetrzne (nakonto, data);

CREATE TABLE zaplanowanewewnetrzne (
  id INTEGER PRIMARY KEY AUTOINCREMENT,
  data TEXT,
  kwota REAL DEFAULT 0,
  opis TEXT,
  zkonta INTEGER,
  nakonto INTEGER
);
CREATE INDEX zaplanowanewewnetrzne_data ON zaplanowanewewnetrzne (data);
CREATE INDEX zaplanowanewewnetrzne_zkonta ON zaplanowanewewnetrzne (zkonta, data);
CREATE INDEX zaplanowanewewnetrzne_nakonto ON zaplanowanewewnetrzne (nakonto, data);

CREATE TABLE kategorie (
  id INTEGER PRIMARY KEY AUTOINCREMENT,
  identyfikator TEXT,
  kategoria TEXT,
  nazwa TEXT,
  opis TEXT,
  rodzaj INTEGER,
  "limit" REAL DEFAULT 0,
  oszczednosc REAL DEFAULT 0
);
CREATE UNIQUE INDEX kategorie_klucz ON kategorie (rodzaj, identyfikator);
CREATE INDEX kategorie_rodzic ON kategorie (rodzaj, kategoria);
CREATE INDEX kategorie_nazwa ON kategorie (nazwa);

CREATE TABLE kontrahent (
  id INTEGER PRIMARY KEY AUTOINCREMENT,
  skrocona TEXT,
  opis TEXT,
  nazwa TEXT,
  adres TEXT,
  miasto TEXT,
  telefon TEXT,
  konto TEXT,
  bank TEXT,
  lk TEXT
);
CREATE INDEX kontrahent_skrocona ON kontrahent (skrocona);

CREATE TABLE szablony (
  id INTEGER PRIMARY KEY AUTOINCREMENT,
  rodzaj INTEGER,
  nazwa TEXT,
  konto INTEGER,
  kategoria TEXT,
  kontrahent INTEGER DEFAULT 0,
  opis TEXT
);

CREATE TABLE szablonywewnetrzne (
  id INTEGER PRIMARY KEY AUTOINCREMENT,
  nazwa TEXT,
  zkonta INTEGER,
  nakonto INTEGER,
  opis TEXT
);

CREATE TABLE setup (
  tloaktywne TEXT,
  napisyaktywne TEXT,
  przyciskiaktywne TEXT,
  etykietyaktywne TEXT,
  napisyetykietaktywne TEXT,
  listajeden TEXT,
  listadwa TEXT,
  tlonieaktywne TEXT,
  napisynieaktywne TEXT,
  haslo TEXT,
  notatnik TEXT,
  userid TEXT,
  hasloserwisu TEXT,
  imie TEXT,
  nazwisko TEXT,
  ulica TEXT,
  miasto TEXT,
  lk TEXT,
  bank TEXT,
  konto TEXT,
  autostart INTEGER DEFAULT 0,
  autostartprzypominacz INTEGER DEFAULT 0
);

-- The old two-column form; the program adds the eight mask columns on its first start.
CREATE TABLE wersjabazy (
  wersja TEXT,
  data TEXT
);
INSERT INTO wersjabazy (wersja, data) VALUES ('1', '2003-01-01');

CREATE TABLE jezyki (
  kontrolka TEXT PRIMARY KEY,
  polski TEXT,
  angielski TEXT
);

CREATE TABLE imieniny (
  dzien INTEGER,
  miesiac INTEGER,
  imiona TEXT
);
CREATE INDEX imieniny_dzien ON imieniny (miesiac, dzien);

CREATE TABLE kreatorkategorie (
  typ INTEGER,
  identyfikator TEXT,
  kategoria TEXT,
  opis TEXT,
  polski TEXT,
  angielski TEXT
);

CREATE TABLE pytania (
  id INTEGER PRIMARY KEY AUTOINCREMENT,
  pytanie TEXT,
  datawyslania TEXT,
  idpytania TEXT,
  dataodpowiedzi TEXT,
  odpowiedz TEXT
);
