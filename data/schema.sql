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
  "limit" REAL DEFAULT 0,
  numer TEXT
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
  kontrahent INTEGER DEFAULT 0,
  idbanku TEXT,
  importu INTEGER
);
-- Covering the period sums: a range of days is read from the index alone. Within a day the rows
-- stand by id, so that the newest entries are read from its end without sorting anything.
CREATE INDEX transakcje_data ON transakcje (data, id, konto, przychod, wydatek);
CREATE INDEX transakcje_konto ON transakcje (konto, data);
CREATE INDEX transakcje_kategoria ON transakcje (rodzaj, kategoria, data);
CREATE INDEX transakcje_kontrahent ON transakcje (kontrahent, data);
CREATE INDEX transakcje_importu ON transakcje (importu) WHERE importu IS NOT NULL;

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
-- The oldest plans first and, within a day, the newest first: the dashboard's order.
CREATE INDEX zaplanowane_data ON zaplanowane (data, id DESC);
CREATE INDEX zaplanowane_konto ON zaplanowane (konto, data);
CREATE INDEX zaplanowane_kategoria ON zaplanowane (rodzaj, kategoria, data);
CREATE INDEX zaplanowane_kontrahent ON zaplanowane (kontrahent, data);

CREATE TABLE wewnetrzne (
  id INTEGER PRIMARY KEY AUTOINCREMENT,
  data TEXT,
  kwota REAL DEFAULT 0,
  opis TEXT,
  zkonta INTEGER,
  nakonto INTEGER,
  importu INTEGER
);
CREATE INDEX wewnetrzne_data ON wewnetrzne (data, id, zkonta, nakonto, kwota);
CREATE INDEX wewnetrzne_zkonta ON wewnetrzne (zkonta, data);
CREATE INDEX wewnetrzne_nakonto ON wewnetrzne (nakonto, data);
CREATE INDEX wewnetrzne_importu ON wewnetrzne (importu) WHERE importu IS NOT NULL;

-- What every account has taken in and given out over all time, in whole cents, kept by the
-- triggers below in the same transaction as each write of an entry or a transfer: the balance
-- panel reads one row per account instead of summing every entry. Planned rows never count. The
-- account column has no type, so that it holds the value exactly as the entry holds it and
-- joins the accounts as the entry would. Amounts are read as the exact sum reads them: rounded
-- to cents, a decimal comma in a text taken as the decimal mark.
CREATE TABLE obrotykont (
  konto PRIMARY KEY,
  przychod INTEGER DEFAULT 0,
  wydatek INTEGER DEFAULT 0,
  przychodzace INTEGER DEFAULT 0,
  wychodzace INTEGER DEFAULT 0
);

CREATE TRIGGER transakcje_obroty_wstaw AFTER INSERT ON transakcje WHEN NEW.konto IS NOT NULL
BEGIN
  INSERT OR IGNORE INTO obrotykont (konto) VALUES (NEW.konto);
  UPDATE obrotykont SET
    przychod = przychod + CAST(round(replace(ifnull(NEW.przychod, 0), ',', '.') * 100) AS INTEGER),
    wydatek = wydatek + CAST(round(replace(ifnull(NEW.wydatek, 0), ',', '.') * 100) AS INTEGER)
  WHERE konto = NEW.konto;
END;

CREATE TRIGGER transakcje_obroty_usun AFTER DELETE ON transakcje WHEN OLD.konto IS NOT NULL
BEGIN
  UPDATE obrotykont SET
    przychod = przychod - CAST(round(replace(ifnull(OLD.przychod, 0), ',', '.') * 100) AS INTEGER),
    wydatek = wydatek - CAST(round(replace(ifnull(OLD.wydatek, 0), ',', '.') * 100) AS INTEGER)
  WHERE konto = OLD.konto;
END;

CREATE TRIGGER transakcje_obroty_zmiana AFTER UPDATE OF konto, przychod, wydatek ON transakcje
BEGIN
  UPDATE obrotykont SET
    przychod = przychod - CAST(round(replace(ifnull(OLD.przychod, 0), ',', '.') * 100) AS INTEGER),
    wydatek = wydatek - CAST(round(replace(ifnull(OLD.wydatek, 0), ',', '.') * 100) AS INTEGER)
  WHERE konto = OLD.konto;
  INSERT OR IGNORE INTO obrotykont (konto) SELECT NEW.konto WHERE NEW.konto IS NOT NULL;
  UPDATE obrotykont SET
    przychod = przychod + CAST(round(replace(ifnull(NEW.przychod, 0), ',', '.') * 100) AS INTEGER),
    wydatek = wydatek + CAST(round(replace(ifnull(NEW.wydatek, 0), ',', '.') * 100) AS INTEGER)
  WHERE konto = NEW.konto;
END;

CREATE TRIGGER wewnetrzne_obroty_wstaw AFTER INSERT ON wewnetrzne
BEGIN
  INSERT OR IGNORE INTO obrotykont (konto) SELECT NEW.nakonto WHERE NEW.nakonto IS NOT NULL;
  UPDATE obrotykont SET przychodzace = przychodzace +
    CAST(round(replace(ifnull(NEW.kwota, 0), ',', '.') * 100) AS INTEGER)
  WHERE konto = NEW.nakonto;
  INSERT OR IGNORE INTO obrotykont (konto) SELECT NEW.zkonta WHERE NEW.zkonta IS NOT NULL;
  UPDATE obrotykont SET wychodzace = wychodzace +
    CAST(round(replace(ifnull(NEW.kwota, 0), ',', '.') * 100) AS INTEGER)
  WHERE konto = NEW.zkonta;
END;

CREATE TRIGGER wewnetrzne_obroty_usun AFTER DELETE ON wewnetrzne
BEGIN
  UPDATE obrotykont SET przychodzace = przychodzace -
    CAST(round(replace(ifnull(OLD.kwota, 0), ',', '.') * 100) AS INTEGER)
  WHERE konto = OLD.nakonto;
  UPDATE obrotykont SET wychodzace = wychodzace -
    CAST(round(replace(ifnull(OLD.kwota, 0), ',', '.') * 100) AS INTEGER)
  WHERE konto = OLD.zkonta;
END;

CREATE TRIGGER wewnetrzne_obroty_zmiana AFTER UPDATE OF kwota, zkonta, nakonto ON wewnetrzne
BEGIN
  UPDATE obrotykont SET przychodzace = przychodzace -
    CAST(round(replace(ifnull(OLD.kwota, 0), ',', '.') * 100) AS INTEGER)
  WHERE konto = OLD.nakonto;
  UPDATE obrotykont SET wychodzace = wychodzace -
    CAST(round(replace(ifnull(OLD.kwota, 0), ',', '.') * 100) AS INTEGER)
  WHERE konto = OLD.zkonta;
  INSERT OR IGNORE INTO obrotykont (konto) SELECT NEW.nakonto WHERE NEW.nakonto IS NOT NULL;
  UPDATE obrotykont SET przychodzace = przychodzace +
    CAST(round(replace(ifnull(NEW.kwota, 0), ',', '.') * 100) AS INTEGER)
  WHERE konto = NEW.nakonto;
  INSERT OR IGNORE INTO obrotykont (konto) SELECT NEW.zkonta WHERE NEW.zkonta IS NOT NULL;
  UPDATE obrotykont SET wychodzace = wychodzace +
    CAST(round(replace(ifnull(NEW.kwota, 0), ',', '.') * 100) AS INTEGER)
  WHERE konto = NEW.zkonta;
END;

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
  lk TEXT,
  importu INTEGER
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

-- Recurring rules: an income (rodzaj 1), expense (2) or transfer (3) coming back on a schedule;
-- konto is a transfer's source and nakonto its target. oddaty..dodaty is the period (dodaty empty:
-- no end); czestotliwosc 1 daily, 2 weekdays, 3 weekly, 4 monthly, 5 quarterly, 6 half-yearly,
-- 7 yearly; weekend 0 keeps a Saturday or Sunday, 1 moves it to the Friday before, 2 to the Monday
-- after. wygenerowanodo is the last rule day planned so far.
CREATE TABLE okresowe (
  id INTEGER PRIMARY KEY AUTOINCREMENT,
  rodzaj INTEGER,
  konto INTEGER,
  nakonto INTEGER DEFAULT 0,
  kategoria TEXT,
  kontrahent INTEGER DEFAULT 0,
  opis TEXT,
  kwota REAL DEFAULT 0,
  oddaty TEXT,
  dodaty TEXT,
  czestotliwosc INTEGER,
  weekend INTEGER DEFAULT 0,
  wygenerowanodo TEXT
);
-- Every day a rule has planned, with the planned row it made: a day is never planned twice.
CREATE TABLE okresowedni (
  okresowa INTEGER NOT NULL,
  data TEXT NOT NULL,
  wiersz INTEGER,
  PRIMARY KEY (okresowa, data)
) WITHOUT ROWID;

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
  autostartprzypominacz INTEGER DEFAULT 0,
  liczbakopii INTEGER DEFAULT 10
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
