#include "store/MsgBoxModule.h"

#include <cmath>

#include "store/baza.h"

namespace {
HostKomunikatow*& host() {
  static HostKomunikatow* h = nullptr;
  return h;
}
}  // namespace

int SkryptowanyHost::Pokaz(const Komunikat& k) {
  pokazane.push_back(k);
  if (odpowiedzi.empty()) return k.przyciski == MsgTakNie ? WynikNie : WynikOK;
  const int w = odpowiedzi.front();
  odpowiedzi.pop_front();
  return w;
}

HostKomunikatow* UstawHostKomunikatow(HostKomunikatow* h) {
  HostKomunikatow* dawny = host();
  host() = h;
  return dawny;
}

HostKomunikatow* HostKomunikatowBiezacy() { return host(); }

int MyMsgbox(const QString& tekst, const QString& tytul, int przyciski, int ikona) {
  Komunikat k{tekst, QLatin1Char(' ') + tytul, przyciski, ikona};
  if (!host()) {
    // No screen to ask on: the message still must not pass silently.
    ZapiszLog(QStringLiteral("message without a host: %1 | %2").arg(k.tytul, tekst));
    return przyciski == MsgTakNie ? WynikNie : WynikOK;
  }
  return host()->Pokaz(k);
}

int IleRazyWStringu(const QString& tekst, const QString& szukany) {
  if (szukany.isEmpty()) return 0;
  int ile = 0;
  qsizetype poz = 0;
  while ((poz = tekst.indexOf(szukany, poz)) >= 0) {
    ++ile;
    ++poz;  // searching on from one behind each hit
  }
  return ile;
}

int NajdluzszaLinia(const QString& tekst) {
  int najdluzsza = 0;
  for (const QString& linia : tekst.split(QStringLiteral("\r\n")))
    najdluzsza = std::max(najdluzsza, int(linia.size()));
  return najdluzsza;
}

RozmiarMsgBox ObliczRozmiarMsgBox(const QString& tekst, int przyciski) {
  RozmiarMsgBox r;
  r.wiersze = IleRazyWStringu(tekst, QStringLiteral("\r\n")) + 2;
  r.znaki = NajdluzszaLinia(tekst);
  if (r.znaki > 60) {
    r.znaki = 60;
    r.wiersze += 1;
  }
  r.wysokoscEtykiety = r.wiersze * 255;
  r.szerokoscEtykiety = std::max(r.znaki * 121, 2600);
  r.wysokoscOkna = r.wysokoscEtykiety + 1380;
  r.szerokoscOkna = r.szerokoscEtykiety + 1200;
  r.goraPrzyciskow = r.wysokoscEtykiety + 465;
  if (przyciski == MsgTakNie) {
    const int odstep = int(std::lround((r.szerokoscOkna - 3200) / 3.0));
    r.lewyTak = odstep;
    r.lewyNie = 2 * odstep + 1600;
  } else {
    r.lewyOK = int(std::lround((r.szerokoscOkna - 1600) / 2.0));
  }
  return r;
}
