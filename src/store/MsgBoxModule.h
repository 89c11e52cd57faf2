#pragma once
// Every message of the program goes through MyMsgbox, which hands it to one replaceable host:
// the real one shows frmMsgBox, tests install a scripted one.

#include <QString>
#include <QStringList>
#include <deque>
#include <memory>
#include <vector>

enum PrzyciskiMsgBox { MsgOK = 1, MsgTakNie = 2 };
enum IkonaMsgBox { IkonaInformacja = 0, IkonaOstrzezenie = 1, IkonaPytanie = 2 };
enum WynikMsgBox { WynikOK = 1, WynikTak = 2, WynikNie = 3 };

struct Komunikat {
  QString tekst;
  QString tytul;  // as shown: with the blank in front
  int przyciski = MsgOK;
  int ikona = IkonaInformacja;
};

class HostKomunikatow {
 public:
  virtual ~HostKomunikatow() = default;
  // Shows the message and returns 1 OK, 2 Tak, 3 Nie (0 if closed by the close box).
  virtual int Pokaz(const Komunikat& k) = 0;
};

// Answers from a queue and records each message. An empty queue answers OK for a one-button
// message and Nie for a question, so that a missing answer shows up as a refusal.
class SkryptowanyHost : public HostKomunikatow {
 public:
  explicit SkryptowanyHost(std::deque<int> odpowiedzi = {}) : odpowiedzi(std::move(odpowiedzi)) {}
  int Pokaz(const Komunikat& k) override;
  std::deque<int> odpowiedzi;
  std::vector<Komunikat> pokazane;
};

// Installs a host; returns the former one. Null restores nothing: the caller owns both.
HostKomunikatow* UstawHostKomunikatow(HostKomunikatow* host);
HostKomunikatow* HostKomunikatowBiezacy();

// tekst: "\r\n" breaks a line; tytul gets a blank in front; przyciski 1 OK or 2 Tak/Nie;
// ikona 0 information, 1 warning, 2 question.
int MyMsgbox(const QString& tekst, const QString& tytul, int przyciski, int ikona);

// The dialog's size, in twips, worked out from its text.
struct RozmiarMsgBox {
  int wiersze = 0;
  int znaki = 0;
  int wysokoscEtykiety = 0, szerokoscEtykiety = 0;
  int wysokoscOkna = 0, szerokoscOkna = 0;
  int goraPrzyciskow = 0;
  int lewyOK = 0, lewyTak = 0, lewyNie = 0;
};
int IleRazyWStringu(const QString& tekst, const QString& szukany);
int NajdluzszaLinia(const QString& tekst);
RozmiarMsgBox ObliczRozmiarMsgBox(const QString& tekst, int przyciski);
