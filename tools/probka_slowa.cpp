#include "probka_slowa.h"

#define SLOWA(nazwa, ...)                              \
  static const char* const nazwa##_[] = {__VA_ARGS__}; \
  const Slowa nazwa = {nazwa##_, int(sizeof(nazwa##_) / sizeof(nazwa##_[0]))};

static const char* const gotowka_[] = {"Portfel", "Skarbonka", "Kasa domowa",
                                       "Gotówka", "Koperta",   "Sejf"};
static const char* const bankowe_[] = {
    "Konto osobiste", "Konto wspólne", "ROR",         "Konto firmowe", "Konto walutowe",
    "Konto PKO",      "Konto ING",     "Konto mBank", "Konto Pekao",   "Konto Millennium"};
static const char* const karty_[] = {"Karta Visa",  "Karta Mastercard", "Karta kredytowa",
                                     "Karta złota", "Karta sklepowa",   "Karta paliwowa"};
static const char* const lokaty_[] = {"Lokata roczna",   "Lokata 3-mies.", "Lokata 6-mies.",
                                      "Konto oszczędn.", "Lokata dziecka", "Fundusz awaryjny"};
static const char* const kredyty_[] = {"Kredyt hipotecz.", "Kredyt na auto",   "Pożyczka",
                                       "Raty za meble",    "Kredyt studencki", "Pożyczka od mamy"};
static const char* const inne_[] = {"Inwestycje",   "Akcje",  "Obligacje",
                                    "Kryptowaluty", "PayPal", "Bon podarunkowy"};
#define KONTA(t) \
  { t, int(sizeof(t) / sizeof(t[0])) }
const Slowa NazwyKont[7] = {KONTA(gotowka_), KONTA(gotowka_), KONTA(bankowe_), KONTA(karty_),
                            KONTA(lokaty_),  KONTA(kredyty_), KONTA(inne_)};

SLOWA(OpisyKont, "Codzienne wydatki", "Oszczędności na czarną godzinę", "Wpływy z pensji",
      "Spłata w ratach do 2030 r.", "Na wakacje", "Konto \"na życie\"",
      "Pieniądze 'na wszelki wypadek'", "")

SLOWA(KategorieWydatkow, "Dom", "Jedzenie", "Transport", "Zdrowie", "Rozrywka", "Edukacja",
      "Odzież i obuwie", "Dzieci", "Podatki i opłaty", "Prezenty", "Wakacje", "Zwierzęta",
      "Finanse", "Uroda", "Elektronika", "Sport", "Hobby", "Samochód", "Łączność", "Darowizny",
      "Ubezpieczenia", "Kultura", "Ogród", "Remonty", "Usługi", "Różne")

SLOWA(KategoriePrzychodow, "Wynagrodzenie", "Premie", "Odsetki", "Zwroty", "Sprzedaż",
      "Prezenty otrzym.", "Dywidendy", "Najem", "Emerytura", "Zasiłki", "Zlecenia", "Nagrody",
      "Inne przychody")

SLOWA(PodkategorieWydatkow, "Czynsz", "Prąd", "Gaz", "Woda", "Ogrzewanie", "Internet", "Telefon",
      "Telewizja", "Paliwo", "Bilety", "Serwis", "Parking", "Myjnia", "Opony", "Przegląd", "Leki",
      "Lekarz", "Dentysta", "Okulary", "Badania", "Kino", "Teatr", "Koncerty", "Książki", "Gazety",
      "Kursy", "Szkoła", "Przedszkole", "Korepetycje", "Obuwie", "Kurtki", "Bielizna", "Zabawki",
      "Restauracje", "Kawiarnie", "Warzywa", "Owoce", "Pieczywo", "Nabiał", "Mięso", "Ryby",
      "Słodycze", "Napoje", "Chemia", "Kosmetyki", "Meble", "Farby", "Narzędzia", "Naprawy",
      "Sprzątanie", "Opłaty bankowe", "Prowizje", "Raty", "Siłownia", "Basen", "Rower", "Narty",
      "Fryzjer", "Manicure", "Weterynarz", "Karma", "Hotel", "Wycieczki", "Pamiątki", "Komputer",
      "Oprogramowanie", "Gry", "Muzyka", "Filmy", "Kwiaty", "Rośliny", "Nasiona", "PIT",
      "Podatek od nier.", "Mandaty", "OC", "AC", "Polisa na życie", "Składki", "Kieszonkowe",
      "Zajęcia dodatk.", "Wyprawka", "Obiady szkolne", "Prasa", "Poczta", "Kurier", "Taksówki",
      "Autobus", "Pociąg", "Samolot", "Wynajem auta", "Abonament", "Streaming", "Aplikacje", "Lody",
      "Pizza", "Sushi", "Bar mleczny", "Żłobek", "Śmieci")

SLOWA(PodkategoriePrzychodow, "Pensja", "Nadgodziny", "Trzynastka", "Premia roczna",
      "Premia kwartalna", "Odsetki lokat", "Odsetki konta", "Zwrot podatku", "Zwrot za zakupy",
      "Sprzedaż auta", "Allegro", "OLX", "Prezent urodz.", "Spadek", "Czynsz najmu", "Dywidenda",
      "Umowa o dzieło", "Umowa zlecenie", "Nagroda", "Wygrana", "Stypendium", "Świadczenie",
      "Alimenty", "Renta", "Emerytura ZUS", "Zwrot kaucji", "Cashback", "Honorarium", "Tantiemy")

SLOWA(OpisyKategorii, "Stałe opłaty co miesiąc", "Wydatki nieregularne", "Limit uzgodniony z żoną",
      "Tzw. 'drobne' wydatki", "Zakupy w dyskontach", "Wpływy raz na kwartał")

SLOWA(RodzajeFirm, "Sklep", "Apteka", "Piekarnia", "Kwiaciarnia", "Warsztat", "Gabinet", "Biuro",
      "Hurtownia", "Kawiarnia", "Salon", "Serwis", "Pralnia", "Przychodnia", "Księgarnia",
      "Cukiernia", "Restauracja", "Stacja", "Pizzeria", "Zakład")

SLOWA(Nazwiska, "Nowak", "Kowalski", "Wiśniewski", "Wójcik", "Kowalczyk", "Kamiński", "Lewandowski",
      "Zieliński", "Szymański", "Woźniak", "Dąbrowski", "Kozłowski", "Jankowski", "Mazur",
      "Kwiatkowski", "Krawczyk", "Piotrowski", "Grabowski", "Nowakowski", "Pawłowski", "Michalski",
      "Król", "Wieczorek", "Jabłoński", "Wróbel", "Majewski", "Olszewski", "Stępień", "Malinowski",
      "Jaworski", "Adamczyk", "Dudek", "Nowicki", "Pająk", "Górski", "Zając", "Łuczak", "Żak",
      "Ślusarczyk", "Bąk")

SLOWA(FormyPrawne, "Sp. z o.o.", "s.c.", "S.A.", "i S-ka", "Sp. j.", "")

SLOWA(Ulice, "ul. Długa", "ul. Kościuszki", "ul. Mickiewicza", "ul. Słowackiego",
      "al. Jerozolimskie", "ul. Piękna", "ul. Źródlana", "ul. Żeromskiego", "ul. Łąkowa",
      "ul. Ogrodowa", "ul. Polna", "ul. Leśna", "ul. Szkolna", "pl. Wolności", "os. Słoneczne",
      "ul. Świętojańska")

SLOWA(Miasta, "Warszawa", "Kraków", "Łódź", "Wrocław", "Poznań", "Gdańsk", "Szczecin", "Bydgoszcz",
      "Lublin", "Białystok", "Katowice", "Gdynia", "Częstochowa", "Radom", "Toruń", "Kielce",
      "Rzeszów", "Gliwice", "Olsztyn", "Bielsko-Biała", "Zielona Góra", "Opole", "Elbląg", "Płock",
      "Tarnów", "Kalisz", "Koszalin", "Legnica", "Świnoujście", "Żyrardów")

SLOWA(OpisyKontrahentow, "Zakupy spożywcze na co dzień", "Sklep 'Pod Lipą' – świeże pieczywo",
      "Dostawca prądu", "Nie płacić gotówką", "Właściciel mieszkania",
      "Płatność przelewem w ciągu 14 dni", "Pan Zdzisław, hydraulik \"złota rączka\"",
      "Rabat 5% z kartą stałego klienta", "Otwarte do 22:00", "Przychodnia rodzinna",
      "O'Brien's – irlandzki pub", "")

SLOWA(OpisyPrzychodow, "Wynagrodzenie za miesiąc", "Premia kwartalna", "Zwrot podatku z PIT",
      "Odsetki od lokaty", "Sprzedaż roweru", "Prezent od babci", "Zwrot za bilety",
      "Honorarium za artykuł", "Czynsz od najemcy", "Nagroda w konkursie 'Złoty Kłos'", "")

SLOWA(OpisyWydatkow, "Zakupy w sklepie", "Obiad z rodziną", "Bilet miesięczny",
      "Tankowanie do pełna", "Rachunek za prąd", "Czynsz za mieszkanie", "Prezent dla mamy",
      "Wizyta u dentysty", "Książka 'Lalka' Prusa", "Kino – seans wieczorny",
      "Buty zimowe dla Zosi", "Leki z apteki", "Naprawa pralki", "Abonament telefoniczny",
      "Składka na ubezpieczenie", "Opłata za przedszkole", "Kwiaty na imieniny", "Kawa na mieście",
      "Zakupy w Żabce", "Karma dla psa", "")

SLOWA(OpisyPrzelewow, "Wypłata z bankomatu", "Spłata karty kredytowej", "Wpłata na lokatę",
      "Rata kredytu", "Przelew na oszczędności", "Zasilenie portfela", "Zwrot z lokaty",
      "Doładowanie konta 'na życie'", "")

SLOWA(SzablonyPrzychodow, "Pensja", "Premia", "Odsetki", "Czynsz od najemcy")
SLOWA(SzablonyWydatkow, "Czynsz", "Zakupy spożywcze", "Prąd", "Internet", "Paliwo", "Przedszkole",
      "Abonament telefonu")
SLOWA(SzablonyPrzelewow, "Spłata karty", "Wpłata na lokatę", "Wypłata z bankomatu", "Oszczędności",
      "Rata kredytu")
