#include "questions/http.h"

#include <QEventLoop>
#include <QSslSocket>
#include <QTcpSocket>
#include <QTimer>
#include <memory>

namespace {
enum class Stan { Niepelna, Gotowa, Zla };

// Reads a chunked body; Niepelna until the closing chunk has come.
Stan kawalki(const QByteArray& dane, qsizetype od, QByteArray* cialo) {
  QByteArray w;
  qsizetype p = od;
  for (;;) {
    const qsizetype eol = dane.indexOf("\r\n", p);
    if (eol < 0) return Stan::Niepelna;
    QByteArray linia = dane.mid(p, eol - p);
    linia = linia.left(linia.indexOf(';') >= 0 ? linia.indexOf(';') : linia.size()).trimmed();
    bool ok = false;
    const qlonglong rozmiar = linia.toLongLong(&ok, 16);
    if (!ok || rozmiar < 0) return Stan::Zla;
    p = eol + 2;
    if (rozmiar == 0) {
      *cialo = w;
      return Stan::Gotowa;  // trailers, if any, are of no interest
    }
    if (dane.size() < p + rozmiar + 2) return Stan::Niepelna;
    w += dane.mid(p, rozmiar);
    p += rozmiar + 2;
  }
}

// A whole answer in dane? zamkniete: the host has closed the connection, so nothing more comes.
Stan rozbierz(const QByteArray& dane, bool zamkniete, WynikHttp* w) {
  qsizetype poczatek = 0;
  for (;;) {
    const qsizetype koniec = dane.indexOf("\r\n\r\n", poczatek);
    if (koniec < 0) return zamkniete ? Stan::Zla : Stan::Niepelna;
    const QList<QByteArray> linie = dane.mid(poczatek, koniec - poczatek).split('\n');
    const QList<QByteArray> statusu = linie.value(0).trimmed().split(' ');
    if (statusu.size() < 2 || !statusu[0].startsWith("HTTP/")) return Stan::Zla;
    bool ok = false;
    w->status = statusu[1].toInt(&ok);
    if (!ok) return Stan::Zla;
    qlonglong dlugosc = -1;
    bool kawalkami = false;
    for (qsizetype i = 1; i < linie.size(); ++i) {
      const QByteArray linia = linie[i].trimmed();
      const qsizetype dwukropek = linia.indexOf(':');
      if (dwukropek <= 0) continue;
      const QByteArray nazwa = linia.left(dwukropek).trimmed().toLower();
      const QByteArray wartosc = linia.mid(dwukropek + 1).trimmed();
      if (nazwa == "content-length") dlugosc = wartosc.toLongLong();
      if (nazwa == "transfer-encoding") kawalkami = wartosc.toLower().contains("chunked");
      if (nazwa == "content-type") w->typZawartosci = wartosc;
    }
    const qsizetype cialo = koniec + 4;
    // An interim "100 Continue" is followed by the real answer.
    if (w->status >= 100 && w->status < 200) {
      poczatek = cialo;
      continue;
    }
    if (kawalkami) {
      const Stan s = kawalki(dane, cialo, &w->cialo);
      return s == Stan::Niepelna && zamkniete ? Stan::Zla : s;
    }
    if (dlugosc >= 0) {
      if (dane.size() - cialo < dlugosc) return zamkniete ? Stan::Zla : Stan::Niepelna;
      w->cialo = dane.mid(cialo, dlugosc);
      return Stan::Gotowa;
    }
    if (!zamkniete) return Stan::Niepelna;
    w->cialo = dane.mid(cialo);
    return Stan::Gotowa;
  }
}

WynikHttp::Blad rodzajBledu(QAbstractSocket::SocketError e) {
  switch (e) {
    case QAbstractSocket::HostNotFoundError:
      return WynikHttp::NieznanyHost;
    case QAbstractSocket::ConnectionRefusedError:
      return WynikHttp::Odmowa;
    case QAbstractSocket::SocketTimeoutError:
      return WynikHttp::LimitCzasu;
    case QAbstractSocket::SslHandshakeFailedError:
    case QAbstractSocket::SslInternalError:
    case QAbstractSocket::SslInvalidUserDataError:
      return WynikHttp::Tls;
    default:
      return WynikHttp::Siec;
  }
}
}  // namespace

WynikHttp ZapytanieHttp::Pobierz(const QUrl& adres, const QByteArray& sciezka, int limitMs) {
  WynikHttp w;
  const QString schemat = adres.scheme().toLower();
  const bool https = schemat == QLatin1String("https");
  if (!adres.isValid() || (!https && schemat != QLatin1String("http")) || adres.host().isEmpty()) {
    w.blad = WynikHttp::ZlyAdres;
    return w;
  }
  const quint16 port = quint16(adres.port(https ? 443 : 80));
  QByteArray host = adres.host(QUrl::FullyEncoded).toLatin1();
  if (host.contains(':')) host = '[' + host + ']';
  if (adres.port() > 0 && adres.port() != (https ? 443 : 80))
    host += ':' + QByteArray::number(adres.port());
  QByteArray przedrostek = adres.path(QUrl::FullyEncoded).toLatin1();
  while (przedrostek.endsWith('/')) przedrostek.chop(1);
  const QByteArray zadanie = "GET " + przedrostek + sciezka + " HTTP/1.1\r\nHost: " + host +
                             "\r\nUser-Agent: Zorvik\r\nAccept: */*\r\nConnection: close\r\n\r\n";

  std::unique_ptr<QTcpSocket> gniazdo;
  QSslSocket* bezpieczne = nullptr;
  if (https) {
    bezpieczne = new QSslSocket;
    gniazdo.reset(bezpieczne);
  } else {
    gniazdo = std::make_unique<QTcpSocket>();
  }
  QEventLoop petla;
  QTimer zegar;
  zegar.setSingleShot(true);
  QByteArray dane;
  bool skonczone = false;
  const auto zakoncz = [&](WynikHttp::Blad blad, const QString& opis) {
    if (skonczone) return;
    skonczone = true;
    w.blad = blad;
    w.opis = opis;
    petla.quit();
  };
  const auto czytaj = [&](bool zamkniete) {
    // A host that drops a secure connection before it stands does not speak TLS there.
    if (zamkniete && bezpieczne && !bezpieczne->isEncrypted()) {
      zakoncz(WynikHttp::Tls, QStringLiteral("closed during the TLS handshake"));
      return;
    }
    dane += gniazdo->readAll();
    WynikHttp odczyt;
    switch (rozbierz(dane, zamkniete, &odczyt)) {
      case Stan::Niepelna:
        return;
      case Stan::Gotowa:
        w.status = odczyt.status;
        w.cialo = odczyt.cialo;
        w.typZawartosci = odczyt.typZawartosci;
        zakoncz(WynikHttp::Brak, {});
        return;
      case Stan::Zla:
        zakoncz(WynikHttp::Protokol, QStringLiteral("not an HTTP answer"));
        return;
    }
  };
  const auto wyslij = [&] { gniazdo->write(zadanie); };
  QTcpSocket* g = gniazdo.get();
  connect(g, &QTcpSocket::readyRead, &petla, [&] { czytaj(false); });
  connect(g, &QTcpSocket::disconnected, &petla, [&] { czytaj(true); });
  connect(g, &QTcpSocket::errorOccurred, &petla, [&](QAbstractSocket::SocketError e) {
    if (e == QAbstractSocket::RemoteHostClosedError) {
      czytaj(true);
      return;
    }
    zakoncz(rodzajBledu(e), gniazdo->errorString());
  });
  connect(&zegar, &QTimer::timeout, &petla,
          [&] { zakoncz(WynikHttp::LimitCzasu, QStringLiteral("no answer in time")); });

  petla_ = &petla;
  przerwane_ = false;
  zegar.start(limitMs);
  if (bezpieczne) {
    connect(bezpieczne, &QSslSocket::encrypted, &petla, wyslij);
    bezpieczne->setPeerVerifyName(adres.host());
    bezpieczne->connectToHostEncrypted(adres.host(), port);
  } else {
    connect(g, &QTcpSocket::connected, &petla, wyslij);
    g->connectToHost(adres.host(), port);
  }
  if (!skonczone) petla.exec();
  petla_ = nullptr;
  if (przerwane_ && !skonczone) zakoncz(WynikHttp::Przerwano, QStringLiteral("stopped"));
  zegar.stop();
  // No signal may reach the lambdas above once they are gone.
  disconnect(g, nullptr, &petla, nullptr);
  g->abort();
  return w;
}

void ZapytanieHttp::Przerwij() {
  przerwane_ = true;
  if (petla_) petla_->quit();
}
