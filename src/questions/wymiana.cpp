#include "questions/wymiana.h"

#include <QUrl>

#include "questions/kodowanie.h"
#include "questions/logowanie.h"
#include "questions/pytania.h"
#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/dzis.h"
#include "store/napis.h"
#include "store/session.h"
#include "store/tekst.h"

namespace {
const QString nl = QStringLiteral("\r\n");

QString wCudzyslowie(const QString& pytanie) {
  return QLatin1Char('"') + SkroconyTekst(pytanie) + QLatin1Char('"');
}

QString opisBledu(const WynikHttp& w) {
  switch (w.blad) {
    case WynikHttp::ZlyAdres:
      return Napis(QStringLiteral("frmZadajPytanie51"));
    case WynikHttp::NieznanyHost:
      return Napis(QStringLiteral("frmZadajPytanie52"));
    case WynikHttp::Odmowa:
      return Napis(QStringLiteral("frmZadajPytanie53"));
    case WynikHttp::LimitCzasu:
      return Napis(QStringLiteral("frmZadajPytanie54"));
    case WynikHttp::Tls:
      return Napis(QStringLiteral("frmZadajPytanie55"));
    case WynikHttp::Protokol:
      return Napis(QStringLiteral("frmZadajPytanie57"));
    case WynikHttp::Brak:
      return Napis(QStringLiteral("frmZadajPytanie58")) + QLatin1Char(' ') +
             QString::number(w.status) + QLatin1Char('.');
    default:
      return Napis(QStringLiteral("frmZadajPytanie56"));
  }
}
}  // namespace

WynikWymiany WymianaPytan::WyslijPytania() { return przejdz(true); }
WynikWymiany WymianaPytan::PobierzOdpowiedzi() { return przejdz(false); }

void WymianaPytan::Przerwij() {
  przerwij_ = true;
  http_.Przerwij();
}

bool WymianaPytan::sprawdzPolaczenie(const WynikHttp& w, const QString& adres,
                                     const QByteArray& sciezka) {
  if (w.Ok() && w.status == 200) return true;
  // The query holds the password: only the address and the path go to the log.
  const QByteArray bezZapytania = sciezka.left(sciezka.indexOf('?'));
  ZapiszLog(QStringLiteral("questions service %1%2: %3")
                .arg(adres, QString::fromLatin1(bezZapytania),
                     w.Ok() ? QStringLiteral("HTTP status %1").arg(w.status) : w.opis));
  MyMsgbox(Napis(QStringLiteral("frmZadajPytanie50")) + QLatin1Char(' ') + adres + nl +
               opisBledu(w) + nl + Napis(QStringLiteral("frmZadajPytanie59")),
           Napis(QStringLiteral("frmZadajPytanie60")), MsgOK, IkonaOstrzezenie);
  return false;
}

WynikWymiany WymianaPytan::przejdz(bool wysylanie) {
  WynikWymiany wynik;
  if (trwa_) return wynik;
  trwa_ = true;
  przerwij_ = false;
  const char szukany = wysylanie ? StanPytania::NieWyslane : StanPytania::Wyslane;
  std::vector<Pytanie> pytania;
  for (Pytanie& p : CzytajPytania())
    if (p.Stan() == szukany) pytania.push_back(std::move(p));
  wynik.wszystkie = int(pytania.size());
  if (pytania.empty()) {
    MyMsgbox(wysylanie ? Napis(QStringLiteral("frmZadajPytanie48"))
                       : Napis(QStringLiteral("frmZadajPytanie49")),
             Napis(QStringLiteral("frmZadajPytanie1")), MsgOK, IkonaInformacja);
    trwa_ = false;
    return wynik;
  }

  const QString adres = AdresSerwisu();
  QString bazowy = adres;
  while (bazowy.endsWith(QLatin1Char('/'))) bazowy.chop(1);
  const QUrl url(adres.trimmed());
  const QByteArray logowanie = "?userid=" + WartoscWAdresie(sesja.pubUstawienia.userid) +
                               "&haslo=" + WartoscWAdresie(sesja.pubUstawienia.hasloserwisu) +
                               "&question=";
  // Both dates take the day of the press.
  const QString dzien = ZapisDaty(Dzis());
  int zrobione = 0;
  emit Postep(0, wynik.wszystkie);
  for (const Pytanie& p : pytania) {
    if (przerwij_) break;
    const QByteArray sciezka = (wysylanie ? QByteArrayLiteral("/zorvik/question.php")
                                          : QByteArrayLiteral("/zorvik/answer.php")) +
                               logowanie +
                               (wysylanie ? KodujPytanie(p.pytanie) : WartoscWAdresie(p.idpytania));
    const WynikHttp w = http_.Pobierz(url, sciezka, LimitCzasuSerwisu());
    if (w.blad == WynikHttp::Przerwano || przerwij_) break;
    if (!sprawdzPolaczenie(w, bazowy, sciezka)) {
      wynik.awaria = true;
      break;
    }
    const OdpowiedzSerwisu o = RozbierzOdpowiedz(TekstOdpowiedzi(w.cialo, w.typZawartosci));
    if (o.rodzaj == OdpowiedzSerwisu::Ok) {
      const WynikZapisu z =
          wysylanie ? pubBaza().Wykonaj(
                          QStringLiteral(
                              "UPDATE pytania SET datawyslania=#%1#, idpytania=%2  WHERE id=%3")
                              .arg(dzien, SqlTekst(o.wartosc))
                              .arg(p.id))
                    : pubBaza().Wykonaj(
                          QStringLiteral(
                              "UPDATE pytania SET dataodpowiedzi=#%1#, odpowiedz=%2  WHERE id=%3")
                              .arg(dzien, SqlTekst(o.wartosc))
                              .arg(p.id));
      if (!z) {
        MyMsgbox(Napis(QStringLiteral("frmZadajPytanie68")) + nl + z.blad,
                 Napis(QStringLiteral("frmZadajPytanie69")), MsgOK, IkonaOstrzezenie);
        wynik.awaria = true;
        break;
      }
      ++wynik.udane;
    } else if (o.rodzaj == OdpowiedzSerwisu::Brak) {
      ++wynik.odmowy;
      if (wysylanie)
        MyMsgbox(Napis(QStringLiteral("frmZadajPytanie26")),
                 Napis(QStringLiteral("frmZadajPytanie27")), MsgOK, IkonaOstrzezenie);
      else
        MyMsgbox(Napis(QStringLiteral("frmZadajPytanie21")) + wCudzyslowie(p.pytanie) +
                     Napis(QStringLiteral("frmZadajPytanie22")),
                 Napis(QStringLiteral("frmZadajPytanie23")), MsgOK, IkonaInformacja);
    } else {
      ++wynik.bledne;
      if (wysylanie)
        MyMsgbox(Napis(QStringLiteral("frmZadajPytanie28")) + wCudzyslowie(p.pytanie) +
                     Napis(QStringLiteral("frmZadajPytanie29")),
                 Napis(QStringLiteral("frmZadajPytanie30")), MsgOK, IkonaOstrzezenie);
      else
        MyMsgbox(Napis(QStringLiteral("frmZadajPytanie24")),
                 Napis(QStringLiteral("frmZadajPytanie44")), MsgOK, IkonaOstrzezenie);
    }
    emit Postep(++zrobione, wynik.wszystkie);
  }
  wynik.przerwana = przerwij_ && !wynik.awaria;
  if (!wynik.awaria) {
    const QString liczby = (wysylanie ? Napis(QStringLiteral("frmZadajPytanie64"))
                                      : Napis(QStringLiteral("frmZadajPytanie65"))) +
                           QLatin1Char(' ') + QString::number(wynik.udane) +
                           Napis(QStringLiteral("frmZadajPytanie66")) +
                           QString::number(wynik.wszystkie) + QLatin1Char('.');
    const QString koniec = wynik.przerwana ? Napis(QStringLiteral("frmZadajPytanie67"))
                           : wysylanie     ? Napis(QStringLiteral("frmZadajPytanie31"))
                                           : Napis(QStringLiteral("frmZadajPytanie25"));
    MyMsgbox(koniec + nl + liczby, Napis(QStringLiteral("frmZadajPytanie1")), MsgOK,
             IkonaInformacja);
  }
  trwa_ = false;
  return wynik;
}
