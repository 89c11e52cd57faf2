#pragma once
// Sending the questions not sent yet and fetching the answers to the sent ones: one call to the
// service per question, the outcome of each told by a message and kept in the store. A network
// failure (no connection, the host down, no answer in time, an error status) stops the walk
// with one message, leaving every question not yet handled as it was.

#include <QObject>

#include "questions/http.h"

struct WynikWymiany {
  int wszystkie = 0;       // questions the walk had to handle
  int udane = 0;           // sent, or answered
  int odmowy = 0;          // "brak": refused, or no answer yet
  int bledne = 0;          // answers the service gave in no known form
  bool przerwana = false;  // stopped by the user
  bool awaria = false;     // stopped by a failure of the network or the store
};

class WymianaPytan : public QObject {
  Q_OBJECT
 public:
  using QObject::QObject;
  // Each question not sent yet goes out; the identifier the service gives marks it sent today.
  WynikWymiany WyslijPytania();
  // Each sent question without an answer asks for it; an answer is stored with today's date.
  WynikWymiany PobierzOdpowiedzi();
  // Stops the walk after (or during) the call in progress.
  void Przerwij();
  bool Trwa() const { return trwa_; }

 signals:
  // zrobione of wszystkie questions handled; sent before the first call too.
  void Postep(int zrobione, int wszystkie);

 private:
  WynikWymiany przejdz(bool wysylanie);
  // Tells the user why the service could not be reached; false when the walk must stop.
  bool sprawdzPolaczenie(const WynikHttp& w, const QString& adres, const QByteArray& sciezka);

  ZapytanieHttp http_;
  bool trwa_ = false;
  bool przerwij_ = false;
};
