#pragma once
// A small HTTP server of our own on 127.0.0.1 and a free port, answering from a script: each
// request takes the next scripted answer. It runs in the test's thread, so it answers only
// while the program's call keeps the event loop turning.

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <deque>
#include <functional>

class QTcpServer;

struct OdpowiedzTestowa {
  int status = 200;
  QByteArray cialo;
  QByteArray typ = "text/plain";  // Content-Type; "" sends none
  int zwloka = 0;                 // milliseconds before the answer goes out
  enum Ramka { DlugoscPodana, Kawalki, DoZamkniecia } ramka = DlugoscPodana;
};

class SerwerTestowy : public QObject {
  Q_OBJECT
 public:
  SerwerTestowy();
  ~SerwerTestowy() override;
  // "http://127.0.0.1:<port>"
  QString Adres() const;
  // Stops listening: later calls are refused.
  void Zatrzymaj();

  std::deque<OdpowiedzTestowa> skrypt;
  // Used when the script is empty.
  std::function<OdpowiedzTestowa(const QByteArray& cel)> domyslna;
  // The request targets received, as they came ("/zorvik/question.php?userid=...").
  QList<QByteArray> cele;

 private:
  void odpowiedz(class QTcpSocket* s, const OdpowiedzTestowa& o);
  QTcpServer* serwer_;
  quint16 port_ = 0;
};

// Shorthand for a scripted body.
OdpowiedzTestowa Cialo(const QByteArray& cialo, int status = 200);
