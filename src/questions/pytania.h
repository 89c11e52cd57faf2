#pragma once
// The user's questions to the support service, kept in the table pytania: their three states,
// the short form the list shows, the counts, and saving and deleting from the editor and list.

#include <QDate>
#include <QString>
#include <vector>

// A question's state, the first letter of its list key.
namespace StanPytania {
constexpr char NieWyslane = 'a';    // not sent yet
constexpr char Wyslane = 'b';       // sent, no answer yet
constexpr char ZOdpowiedzia = 'c';  // answered
}  // namespace StanPytania

struct Pytanie {
  qint64 id = 0;
  QString pytanie;
  QDate datawyslania;    // null until sent
  QString idpytania;     // the service's identifier of the question
  QDate dataodpowiedzi;  // null until answered
  QString odpowiedz;

  char Stan() const;
  // The list key: the state letter and the id ("a12").
  QString Klucz() const;
};

// The question the editor works on: 0 for a new one. Set by the caller before the editor opens;
// after a save it holds the saved row's id.
extern qint64 pubPytanie;

// Every question, in the order they were written.
std::vector<Pytanie> CzytajPytania();
// One question; id 0 when there is no such row.
Pytanie CzytajPytanie(qint64 id);
// The state from a list key ("a12" -> 'a'), and the id (12).
char StanZKlucza(const QString& klucz);
qint64 IdZKlucza(const QString& klucz);

// The state word the list's first column shows.
QString SlowoStanu(char stan);
// The list's short form of a text: one of 30 or more characters is cut at its first blank from
// the 30th character on, and " ..." follows. A text with no blank there is kept whole.
QString SkroconyTekst(const QString& tekst);

struct LicznikiPytan {
  int nieWyslane = 0;
  int bezOdpowiedzi = 0;
};
LicznikiPytan Policz(const std::vector<Pytanie>& pytania);

// The longest question the editor accepts: each character may travel as three, and the
// service's address has to stay within what web servers take.
constexpr int NajdluzszePytanie = 2000;

// Saves the editor's text: refuses (with the message) a text with nothing but blanks or one
// that is too long, else updates the question id or inserts a new one (id 0). Line breaks are
// kept as CR LF. False when refused or when the store failed (then told too).
bool ZapiszPytanie(qint64 id, const QString& tekst, qint64* zapisany = nullptr);
// Deletes a question in any state. False when the store failed.
bool UsunPytanie(qint64 id);
