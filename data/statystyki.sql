-- Planner statistics of a store in use (100 000 entries), shipped so that the query planner
-- weighs the indexes as it would on a filled store: the entry kind alone selects half the rows.
INSERT INTO sqlite_stat1 VALUES ('kategorie', 'kategorie_klucz', '300 150 1');
INSERT INTO sqlite_stat1 VALUES ('kategorie', 'kategorie_nazwa', '300 1');
INSERT INTO sqlite_stat1 VALUES ('kategorie', 'kategorie_rodzic', '300 150 3');
INSERT INTO sqlite_stat1 VALUES ('konta', NULL, '40');
INSERT INTO sqlite_stat1 VALUES ('kontrahent', 'kontrahent_skrocona', '500 1');
INSERT INTO sqlite_stat1 VALUES ('szablony', NULL, '8');
INSERT INTO sqlite_stat1 VALUES ('szablonywewnetrzne', NULL, '4');
INSERT INTO sqlite_stat1 VALUES ('transakcje', 'transakcje_data', '100000 55 1 1 1 1');
INSERT INTO sqlite_stat1 VALUES ('transakcje', 'transakcje_kategoria', '100000 50000 334 2');
INSERT INTO sqlite_stat1 VALUES ('transakcje', 'transakcje_konto', '100000 2500 3');
INSERT INTO sqlite_stat1 VALUES ('transakcje', 'transakcje_kontrahent', '100000 200 2');
INSERT INTO sqlite_stat1 VALUES ('wewnetrzne', 'wewnetrzne_data', '20000 11 1 1 1 1');
INSERT INTO sqlite_stat1 VALUES ('wewnetrzne', 'wewnetrzne_nakonto', '20000 500 2');
INSERT INTO sqlite_stat1 VALUES ('wewnetrzne', 'wewnetrzne_zkonta', '20000 500 2');
INSERT INTO sqlite_stat1 VALUES ('zaplanowane', 'zaplanowane_data', '2000 2 1');
INSERT INTO sqlite_stat1 VALUES ('zaplanowane', 'zaplanowane_kategoria', '2000 1000 7 2');
INSERT INTO sqlite_stat1 VALUES ('zaplanowane', 'zaplanowane_konto', '2000 50 2');
INSERT INTO sqlite_stat1 VALUES ('zaplanowane', 'zaplanowane_kontrahent', '2000 5 2');
INSERT INTO sqlite_stat1 VALUES ('zaplanowanewewnetrzne', 'zaplanowanewewnetrzne_data', '400 2');
INSERT INTO sqlite_stat1 VALUES ('zaplanowanewewnetrzne', 'zaplanowanewewnetrzne_nakonto', '400 10 2');
INSERT INTO sqlite_stat1 VALUES ('zaplanowanewewnetrzne', 'zaplanowanewewnetrzne_zkonta', '400 10 2');
