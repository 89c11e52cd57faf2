#include "setup/haslo.h"

#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/rand.h>

#include <QByteArray>
#include <QStringList>

#include "store/baza.h"
#include "store/session.h"
#include "store/zamek.h"

namespace {
const QString kZnacznik = QStringLiteral("pbkdf2-sha256");
constexpr int kIteracje = 60000;
constexpr int kDlugoscSoli = 16;
constexpr int kDlugoscKlucza = 32;

// PBKDF2 (RFC 8018) with HMAC-SHA256, for a key of one hash length.
QByteArray pbkdf2(const QByteArray& haslo, const QByteArray& sol, int iteracje) {
  QByteArray wynik(kDlugoscKlucza, '\0');
  if (PKCS5_PBKDF2_HMAC(haslo.constData(), int(haslo.size()),
                        reinterpret_cast<const unsigned char*>(sol.constData()), int(sol.size()),
                        iteracje, EVP_sha256(), kDlugoscKlucza,
                        reinterpret_cast<unsigned char*>(wynik.data())) != 1)
    return {};
  return wynik;
}

// Comparison whose time doesn't depend on where the first difference lies.
bool rowne(const QByteArray& a, const QByteArray& b) {
  return a.size() == b.size() && !a.isEmpty() &&
         CRYPTO_memcmp(a.constData(), b.constData(), size_t(a.size())) == 0;
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

QString hasloZBazy() {
  return pubBaza().Czytaj(QStringLiteral("SELECT haslo FROM setup")).Tekst(QStringLiteral("haslo"));
}

// Writes the hash over the value in setup.haslo so that no trace of a plain password stays in
// the file's free space.
bool zapiszHash(const QString& hash) {
  pubBaza().Wykonaj(QStringLiteral("PRAGMA secure_delete=ON"));
  const bool ok =
      bool(pubBaza().Wykonaj(QStringLiteral("UPDATE setup SET haslo=") + SqlTekst(hash)));
  pubBaza().Wykonaj(QStringLiteral("PRAGMA secure_delete=OFF"));
  return ok;
}

// Locks the store with the password; the hash of it lands in the locked file.
bool zablokuj(const QString& haslo, const QString& hash, QString* blad) {
  return PrzekluczBaze(haslo.toUtf8(), hash, blad);
}
}  // namespace

QString HashHasla(const QString& haslo) {
  if (haslo.isEmpty()) return {};
  QByteArray sol(kDlugoscSoli, '\0');
  if (RAND_bytes(reinterpret_cast<unsigned char*>(sol.data()), kDlugoscSoli) != 1) return {};
  const QByteArray klucz = pbkdf2(haslo.toUtf8(), sol, kIteracje);
  if (klucz.isEmpty()) return {};
  return QStringList{kZnacznik, QString::number(kIteracje), QString::fromLatin1(sol.toBase64()),
                     QString::fromLatin1(klucz.toBase64())}
      .join(QLatin1Char('$'));
}

bool CzyHashHasla(const QString& zapisane) { return rozbierz(zapisane).ok; }

bool SprawdzHaslo(const QString& wpisane, const QString& zapisane) {
  const Rozbior r = rozbierz(zapisane);
  if (!r.ok) return !zapisane.isEmpty() && wpisane == zapisane;
  return rowne(pbkdf2(wpisane.toUtf8(), r.sol, r.iteracje), r.klucz);
}

bool UstawHasloBazy(const QString& nowe, QString* blad) {
  if (nowe.isEmpty()) return PrzekluczBaze({}, QString(), blad);
  const QString hash = HashHasla(nowe);
  if (hash.isEmpty()) {
    if (blad) *blad = QStringLiteral("no random salt");
    ZapiszLog(QStringLiteral("password not set: no random salt"));
    return false;
  }
  return zablokuj(nowe, hash, blad);
}

bool WpuscHaslem(const QString& wpisane, QString* bladZamka) {
  if (wpisane.isEmpty()) return false;
  if (!pubBaza().Otwarta()) {
    // A locked store: the password is its key.
    UstawKluczSesji(wpisane.toUtf8());
    QString blad;
    if (!pubBaza().Otworz(PlikBazy(), &blad, KluczSesji())) {
      UstawKluczSesji({});
      ZapiszLog(QStringLiteral("password gate: the store did not open with the password typed"));
      return false;
    }
    // The hash inside follows the key, whatever an older version left there.
    if (!SprawdzHaslo(wpisane, hasloZBazy()) || !CzyHashHasla(hasloZBazy()))
      zapiszHash(HashHasla(wpisane));
    return true;
  }
  const QString zapisane = sesja.pubUstawienia.haslo;
  if (!SprawdzHaslo(wpisane, zapisane)) return false;
  QString hash = zapisane;
  if (!CzyHashHasla(zapisane)) {
    // A plain password of an older store is let in this once and never kept again.
    hash = HashHasla(wpisane);
    if (!zapiszHash(hash)) ZapiszLog(QStringLiteral("password gate: the hash was not stored"));
  }
  QString blad;
  if (!zablokuj(wpisane, hash, &blad) && bladZamka) *bladZamka = blad;
  return true;
}
