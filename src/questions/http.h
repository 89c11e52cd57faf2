#pragma once
// One GET to the support service over plain or TLS sockets. Qt's own HTTP classes normalise the
// address, and the service needs the question's bytes exactly as we encode them ("%D%A" for a
// line break), so the request line is written here as it is. The call waits in a local event
// loop: the window keeps drawing and answering while the answer is on its way.

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QUrl>

class QEventLoop;

struct WynikHttp {
  enum Blad {
    Brak,          // a whole answer came (any status)
    ZlyAdres,      // the service's address is not an http:// or https:// address
    NieznanyHost,  // the name does not resolve: no network, or a wrong address
    Odmowa,        // the host refused the connection: the service is down
    LimitCzasu,    // no whole answer within the time allowed
    Tls,           // the secure connection failed (certificate, protocol)
    Siec,          // any other network failure
    Protokol,      // the host answered, but not in HTTP
    Przerwano,     // the user stopped it
  };
  Blad blad = Brak;
  int status = 0;
  QByteArray cialo;
  QByteArray typZawartosci;  // the Content-Type header
  QString opis;              // the system's own words on a failure, for the log
  bool Ok() const { return blad == Brak; }
};

class ZapytanieHttp : public QObject {
  Q_OBJECT
 public:
  using QObject::QObject;
  // GETs sciezka (path and query, already encoded) under the address (scheme, host, port and
  // an optional leading path), waiting at most limitMs for the whole answer.
  WynikHttp Pobierz(const QUrl& adres, const QByteArray& sciezka, int limitMs);
  // Stops the call in progress; it returns Przerwano.
  void Przerwij();
  bool Trwa() const { return petla_ != nullptr; }

 private:
  QEventLoop* petla_ = nullptr;
  bool przerwane_ = false;
};
