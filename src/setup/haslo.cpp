#include "setup/haslo.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QRandomGenerator>
#include <QStringList>
#include <cstring>

namespace {
const QString kZnacznik = QStringLiteral("pbkdf2-sha256");
constexpr int kIteracje = 60000;
constexpr int kDlugoscSoli = 16;
constexpr int kDlugoscKlucza = 32;
constexpr int kBlok = 64;  // SHA-256 block size

// HMAC-SHA256 with the key pads computed once, since PBKDF2 calls it tens of thousands of times;
// results go through fixed buffers so that the loop allocates nothing.
class Hmac {
 public:
  explicit Hmac(QByteArray klucz) {
    if (klucz.size() > kBlok) klucz = QCryptographicHash::hash(klucz, QCryptographicHash::Sha256);
    klucz.resize(kBlok, '\0');
    wewn_ = klucz;
    zewn_ = klucz;
    for (int i = 0; i < kBlok; ++i) {
      wewn_[i] = char(wewn_[i] ^ 0x36);
      zewn_[i] = char(zewn_[i] ^ 0x5c);
    }
  }
  // wynik gets the 32 bytes of the code of dane.
  void operator()(QByteArrayView dane, char* wynik) {
    char wewnetrzny[kDlugoscKlucza];
    h_.reset();
    h_.addData(wewn_);
    h_.addData(dane);
    std::memcpy(wewnetrzny, h_.resultView().data(), kDlugoscKlucza);
    h_.reset();
    h_.addData(zewn_);
    h_.addData(QByteArrayView(wewnetrzny, kDlugoscKlucza));
    std::memcpy(wynik, h_.resultView().data(), kDlugoscKlucza);
  }

 private:
  QByteArray wewn_, zewn_;
  QCryptographicHash h_{QCryptographicHash::Sha256};
};

// PBKDF2 (RFC 8018) with HMAC-SHA256, for a key of one hash length.
QByteArray pbkdf2(const QByteArray& haslo, const QByteArray& sol, int iteracje) {
  Hmac hmac(haslo);
  char u[kDlugoscKlucza];
  hmac(sol + QByteArray("\x00\x00\x00\x01", 4), u);
  QByteArray wynik(u, kDlugoscKlucza);
  for (int i = 1; i < iteracje; ++i) {
    hmac(QByteArrayView(u, kDlugoscKlucza), u);
    for (int j = 0; j < kDlugoscKlucza; ++j) wynik[j] = char(wynik[j] ^ u[j]);
  }
  return wynik;
}

// Comparison whose time doesn't depend on where the first difference lies.
bool rowne(const QByteArray& a, const QByteArray& b) {
  if (a.size() != b.size()) return false;
  unsigned char roznica = 0;
  for (qsizetype i = 0; i < a.size(); ++i) roznica |= static_cast<unsigned char>(a[i] ^ b[i]);
  return roznica == 0;
}

struct Rozbior {
  bool ok = false;
  int iteracje = 0;
  QByteArray sol, klucz;
};

Rozbior rozbierz(const QString& zapisane) {
  Rozbior r;
  const QStringList czesci = zapisane.split(QLatin1Char('$'));
  if (czesci.size() != 4 || czesci[0] != kZnacznik) return r;
  bool liczba = false;
  r.iteracje = czesci[1].toInt(&liczba);
  const auto sol =
      QByteArray::fromBase64Encoding(czesci[2].toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
  const auto klucz =
      QByteArray::fromBase64Encoding(czesci[3].toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
  if (!liczba || r.iteracje < 1 || !sol || !klucz || sol.decoded.isEmpty() ||
      klucz.decoded.size() != kDlugoscKlucza)
    return r;
  r.sol = sol.decoded;
  r.klucz = klucz.decoded;
  r.ok = true;
  return r;
}
}  // namespace

QString HashHasla(const QString& haslo) {
  if (haslo.isEmpty()) return {};
  QByteArray sol(kDlugoscSoli, '\0');
  QRandomGenerator::system()->fillRange(reinterpret_cast<quint32*>(sol.data()), kDlugoscSoli / 4);
  const QByteArray klucz = pbkdf2(haslo.toUtf8(), sol, kIteracje);
  return QStringList{kZnacznik, QString::number(kIteracje), QString::fromLatin1(sol.toBase64()),
                     QString::fromLatin1(klucz.toBase64())}
      .join(QLatin1Char('$'));
}

bool CzyHashHasla(const QString& zapisane) { return rozbierz(zapisane).ok; }

bool SprawdzHaslo(const QString& wpisane, const QString& zapisane) {
  const Rozbior r = rozbierz(zapisane);
  if (!r.ok) return wpisane == zapisane;
  return rowne(pbkdf2(wpisane.toUtf8(), r.sol, r.iteracje), r.klucz);
}
