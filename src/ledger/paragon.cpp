#include "ledger/paragon.h"

#include <cmath>

#include "ledger/transakcje.h"
#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/kwota.h"
#include "store/napis.h"
#include "store/tekst.h"

namespace {
void blad(const QString& tekst, const QString& tytul) {
  MyMsgbox(tekst, tytul, MsgOK, IkonaOstrzezenie);
}
bool pytanie(const QString& tekst, const QString& tytul) {
  return MyMsgbox(tekst, tytul, MsgTakNie, IkonaPytanie) == WynikTak;
}
}  // namespace

double SumaParagonu(const DaneParagonu& d) {
  qint64 grosze = 0;
  for (const PozycjaParagonu& p : d.pozycje) grosze += WGroszach(KwotaPola(p.kwota));
  return ZGroszy(grosze);
}

QString SqlPozycjiParagonu(const DaneParagonu& d, int n) {
  const PozycjaParagonu& p = d.pozycje[size_t(n - 1)];
  QString kwota = p.kwota.trimmed();
  QString zero = QStringLiteral("0");
  return QStringLiteral(
             "INSERT INTO transakcje (data,rodzaj,przychod,wydatek,opis,kategoria,konto,"
             "kontrahent) Values (#") +
         ZapisDaty(d.data) + QStringLiteral("#,") +
         QStringList{SqlTekst(QStringLiteral("2")),
                     SqlTekst(KropkaNaSeparator(zero)),
                     SqlTekst(KropkaNaSeparator(kwota)),
                     SqlTekst(p.opis + QLatin1Char(' ')),
                     SqlTekst(p.kategoria),
                     SqlTekst(LiczbaDoZapisu(d.konto.id)),
                     SqlTekst(LiczbaDoZapisu(d.kontrahent))}
             .join(QLatin1Char(',')) +
         QLatin1Char(')');
}

bool ZapiszParagon(const DaneParagonu& d) {
  // 1, 2. Nothing to save.
  const double suma = SumaParagonu(d);
  if (suma == 0.0) {
    blad(Napis(QStringLiteral("frmParagon68")), Napis(QStringLiteral("frmParagon69")));
    return false;
  }
  // 3. Lines with an amount and no category, named by number: "2,5".
  QStringList bez;
  for (int n = 1; n <= LiczbaPozycjiParagonu; ++n) {
    const PozycjaParagonu& p = d.pozycje[size_t(n - 1)];
    if (KwotaPola(p.kwota) != 0.0 && p.kategoria.isEmpty()) bez << QString::number(n);
  }
  if (!bez.isEmpty()) {
    blad(Napis(QStringLiteral("frmParagon70")) + QLatin1Char(' ') + bez.join(QLatin1Char(',')),
         Napis(QStringLiteral("frmParagon71")));
    return false;
  }
  // 4. The account.
  if (d.konto.id == 0) {
    blad(Napis(QStringLiteral("frmParagon74")), Napis(QStringLiteral("frmParagon75")));
    return false;
  }
  // 5. A receipt dated before its account existed, once the user agrees.
  if (d.konto.datautworzenia.isValid() && d.konto.datautworzenia.daysTo(d.data) < 0 &&
      !pytanie(Napis(QStringLiteral("frmParagon76")) + QStringLiteral("\r\n") +
                   Napis(QStringLiteral("frmParagon77")),
               Napis(QStringLiteral("frmParagon78"))))
    return false;
  // 6. The cover, on the whole receipt.
  if (suma > 0 && PozaPokryciem(d.konto.rodzaj, suma, d.konto.limit, d.konto.saldo)) {
    const QString tekst =
        Napis(QStringLiteral("frmParagon79")) + QStringLiteral(" '") + d.konto.nazwa +
        QStringLiteral("'\r\n") + Napis(QStringLiteral("frmParagon80")) + QLatin1Char(' ') +
        KwotaWaluty(d.konto.limit) + QLatin1Char(' ') + Napis(QStringLiteral("frmParagon81")) +
        QStringLiteral("\r\n") + Napis(QStringLiteral("frmParagon82")) + QLatin1Char(' ') +
        KwotaWaluty(std::abs(d.konto.limit + d.konto.saldo - suma)) + QStringLiteral(" , \r\n") +
        Napis(QStringLiteral("frmParagon83"));
    if (!pytanie(tekst, Napis(QStringLiteral("frmParagon84")))) return false;
  }
  // 7. The lines from 9 down to 1, all or none.
  WynikZapisu w{true, 0, QString()};
  const bool ok = OtworzBaze() && pubBaza().Transakcja([&] {
    for (int n = LiczbaPozycjiParagonu; n >= 1; --n) {
      if (KwotaPola(d.pozycje[size_t(n - 1)].kwota) == 0.0) continue;
      w = pubBaza().Wykonaj(SqlPozycjiParagonu(d, n));
      if (!w) return false;
    }
    return true;
  });
  if (!ok) {
    blad(Napis(QStringLiteral("frmParagon72")) + QStringLiteral("\r\n") + w.blad,
         Napis(QStringLiteral("frmParagon73")));
    return false;
  }
  return true;
}
