// OFX and QFX through libofx: its callbacks hand over the account and each transaction.
#include <libofx/libofx.h>

#include <QDateTime>
#include <QTimeZone>
#include <QFile>

#include "imports/wyciag.h"

namespace {
struct Zbior {
  Wyciag w;
  bool konto = false;
};

int naKonto(const OfxAccountData data, void* dane) {
  auto* z = static_cast<Zbior*>(dane);
  z->konto = true;
  if (data.account_id_valid && z->w.rachunek.isEmpty()) {
    const QString cyfry = CyfryRachunku(QString::fromUtf8(data.account_id));
    z->w.rachunek = cyfry.size() > 26 ? cyfry.right(26) : cyfry;
  }
  return 0;
}

int naTransakcje(const OfxTransactionData data, void* dane) {
  auto* z = static_cast<Zbior*>(dane);
  if (!data.amount_valid || !(data.date_posted_valid || data.date_initiated_valid)) return 0;
  PozycjaWyciagu p;
  const time_t t = data.date_posted_valid ? data.date_posted : data.date_initiated;
  // libofx gives the moment in UTC; the day the bank meant is the UTC day of noon-based stamps.
  p.data = QDateTime::fromSecsSinceEpoch(qint64(t), QTimeZone(0)).date();
  p.grosze = qRound64(data.amount * 100.0);
  if (data.name_valid) p.kontrahent = QString::fromUtf8(data.name).simplified();
  if (data.memo_valid) p.opis = QString::fromUtf8(data.memo).simplified();
  if (p.opis.isEmpty()) p.opis = p.kontrahent;
  if (data.fi_id_valid) p.idBanku = QString::fromUtf8(data.fi_id);
  z->w.pozycje.push_back(p);
  return 0;
}
}  // namespace

std::optional<Wyciag> CzytajOfx(const QString& plik, BladWyciagu* blad) {
  // libofx talks on the console unless told not to.
  ofx_PARSER_msg = ofx_DEBUG_msg = ofx_DEBUG1_msg = ofx_DEBUG2_msg = ofx_DEBUG3_msg = 0;
  ofx_DEBUG4_msg = ofx_DEBUG5_msg = ofx_STATUS_msg = ofx_INFO_msg = ofx_WARNING_msg = 0;
  ofx_ERROR_msg = 0;
  QFile f(plik);
  if (!f.open(QIODevice::ReadOnly)) {
    if (blad) *blad = {BladImportu::Otwarcie, 0, f.errorString()};
    return std::nullopt;
  }
  const QByteArray poczatek = f.read(8192).toUpper();
  f.close();
  if (!poczatek.contains("<OFX>") && !poczatek.contains("OFXHEADER")) {
    if (blad) *blad = {BladImportu::Ofx, 0, QString()};
    return std::nullopt;
  }
  Zbior z;
  LibofxContextPtr ctx = libofx_get_new_context();
  ofx_set_account_cb(ctx, naKonto, &z);
  ofx_set_transaction_cb(ctx, naTransakcje, &z);
  libofx_proc_file(ctx, QFile::encodeName(plik).constData(), AUTODETECT);
  libofx_free_context(ctx);
  if (!z.konto && z.w.pozycje.empty()) {
    if (blad) *blad = {BladImportu::Ofx, 0, QString()};
    return std::nullopt;
  }
  return z.w;
}
