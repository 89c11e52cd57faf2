#pragma once
// How a question travels to the support service and how its answer is read back.

#include <QByteArray>
#include <QString>

// The question's text for the address: each character taken by its Windows-1250 byte; a blank
// becomes "+"; letters a-z and A-Z, digits, "_" and "." stay; every other byte becomes "%" and
// its code in capital hexadecimal with no leading zero ("-" is "%2D", a line break "%D%A").
// The service reads exactly this form.
QByteArray KodujPytanie(const QString& tekst);

// A login or an identifier goes in as it stands, except the bytes that would break the address
// or change its meaning there (blanks, "&", "+", "%", "#", controls, letters beyond ASCII),
// which go as "%" and two hex digits of their Windows-1250 code.
QByteArray WartoscWAdresie(const QString& tekst);

// The body as text: in the character set the service names, else Windows-1250.
QString TekstOdpowiedzi(const QByteArray& cialo, const QByteArray& typZawartosci);

// What a body says: "brak" (the whole body) refuses a question or tells there is no answer yet;
// "ok " and a value (the rest, nothing trimmed) gives the question's identifier or the answer;
// anything else, an empty body too, is an error.
struct OdpowiedzSerwisu {
  enum Rodzaj { Brak, Ok, Blad };
  Rodzaj rodzaj = Blad;
  QString wartosc;
};
OdpowiedzSerwisu RozbierzOdpowiedz(const QString& cialo);
