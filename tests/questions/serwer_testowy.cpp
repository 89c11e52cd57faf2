#include "serwer_testowy.h"

#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

OdpowiedzTestowa Cialo(const QByteArray& cialo, int status) {
  OdpowiedzTestowa o;
  o.cialo = cialo;
  o.status = status;
  return o;
}

SerwerTestowy::SerwerTestowy() : serwer_(new QTcpServer(this)) {
  serwer_->listen(QHostAddress::LocalHost, 0);
  port_ = serwer_->serverPort();
  connect(serwer_, &QTcpServer::newConnection, this, [this] {
    while (QTcpSocket* s = serwer_->nextPendingConnection()) {
      auto* bufor = new QByteArray;
      connect(s, &QObject::destroyed, [bufor] { delete bufor; });
      connect(s, &QTcpSocket::readyRead, this, [this, s, bufor] {
        *bufor += s->readAll();
        // Not HTTP (a TLS greeting, say): refused as a web server does.
        if (!bufor->isEmpty() && !(bufor->at(0) >= 'A' && bufor->at(0) <= 'Z')) {
          s->write("HTTP/1.1 400 Bad Request\r\nConnection: close\r\n\r\n");
          s->disconnectFromHost();
          return;
        }
        const qsizetype koniec = bufor->indexOf("\r\n\r\n");
        if (koniec < 0 || bufor->isEmpty()) return;
        const QByteArray pierwsza = bufor->left(bufor->indexOf("\r\n"));
        bufor->clear();
        const QByteArray cel = pierwsza.split(' ').value(1);
        cele << cel;
        OdpowiedzTestowa o;
        if (!skrypt.empty()) {
          o = skrypt.front();
          skrypt.pop_front();
        } else if (domyslna) {
          o = domyslna(cel);
        } else {
          o = Cialo("brak");
        }
        if (o.zwloka > 0) {
          QPointer<QTcpSocket> p(s);
          QTimer::singleShot(o.zwloka, this, [this, p, o] {
            if (p && p->state() == QAbstractSocket::ConnectedState) odpowiedz(p, o);
          });
        } else {
          odpowiedz(s, o);
        }
      });
      connect(s, &QTcpSocket::disconnected, s, &QObject::deleteLater);
    }
  });
}

SerwerTestowy::~SerwerTestowy() = default;

QString SerwerTestowy::Adres() const { return QStringLiteral("http://127.0.0.1:%1").arg(port_); }

void SerwerTestowy::Zatrzymaj() { serwer_->close(); }

void SerwerTestowy::odpowiedz(QTcpSocket* s, const OdpowiedzTestowa& o) {
  QByteArray w = "HTTP/1.1 " + QByteArray::number(o.status) + (o.status == 200 ? " OK" : " Error") +
                 "\r\nServer: test\r\nConnection: close\r\n";
  if (!o.typ.isEmpty()) w += "Content-Type: " + o.typ + "\r\n";
  switch (o.ramka) {
    case OdpowiedzTestowa::DlugoscPodana:
      w += "Content-Length: " + QByteArray::number(o.cialo.size()) + "\r\n\r\n" + o.cialo;
      break;
    case OdpowiedzTestowa::Kawalki: {
      w += "Transfer-Encoding: chunked\r\n\r\n";
      // Two chunks, so that the reader has to join them.
      const QByteArray a = o.cialo.left(o.cialo.size() / 2), b = o.cialo.mid(o.cialo.size() / 2);
      for (const QByteArray& k : {a, b})
        if (!k.isEmpty()) w += QByteArray::number(k.size(), 16) + "\r\n" + k + "\r\n";
      w += "0\r\n\r\n";
      break;
    }
    case OdpowiedzTestowa::DoZamkniecia:
      w += "\r\n" + o.cialo;
      break;
  }
  s->write(w);
  s->disconnectFromHost();
}
