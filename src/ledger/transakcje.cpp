#include "ledger/transakcje.h"

#include <QVariant>
#include <cmath>

#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/kwota.h"
#include "store/napis.h"
#include "store/tekst.h"

namespace {

bool pytanie(const QString& tekst, const QString& tytul) {
  return MyMsgbox(tekst, tytul, MsgTakNie, IkonaPytanie) == WynikTak;
}

void blad(const QString& tekst, const QString& tytul) {
  MyMsgbox(tekst, tytul, MsgOK, IkonaOstrzezenie);
}

// The two amount columns: the typed amount in the entry's own column, "0" in the other.
struct Kolumny {
  QString przychod, wydatek;
};
Kolumny kolumny(const DaneTransakcji& d) {
  QString kwota = d.kwota.trimmed();
  QString zero = QStringLiteral("0");
  const QString k = KropkaNaSeparator(kwota);
  const QString z = KropkaNaSeparator(zero);
  return d.rodzaj == 1 ? Kolumny{k, z} : Kolumny{z, k};
}

}  // namespace

QString TabelaTrybu(int tryb) {
  return tryb == 2 ? QStringLiteral("transakcje") : QStringLiteral("zaplanowane");
}

QString LiczbaDoZapisu(qint64 liczba) {
  return liczba >= 0 ? QLatin1Char(' ') + QString::number(liczba) : QString::number(liczba);
}

double KwotaPola(const QString& tekst) {
  QString t = tekst.trimmed();
  return ZaokraglijDoGroszy(LiczbaZTekstu(PrzecinekNaKropke(t)));
}

bool PozaPokryciem(int rodzajKonta, double kwota, double limit, double saldo) {
  const qint64 k = WGroszach(kwota), l = WGroszach(limit), s = WGroszach(saldo);
  switch (rodzajKonta) {
    case 1:
    case 4:
      return k > s;
    case 2:
    case 3:
      return k > l + s;
    case 5:
    case 6:
      return l != 0 && k > l + s;
    default:
      return false;
  }
}

QString KwotaWaluty(double kwota) {
  QVariant v = ZaokraglijDoGroszy(kwota);
  return FormatWaluty(v);
}

QString SqlWstawTransakcje(const QString& tabela, const DaneTransakcji& d) {
  const Kolumny k = kolumny(d);
  // The editor appends one blank to the description and the statement another.
  return QStringLiteral("INSERT INTO ") + tabela +
         QStringLiteral(
             " (data,rodzaj,przychod,wydatek,opis,kategoria,konto,kontrahent) Values (#") +
         ZapisDaty(d.data) + QStringLiteral("#,") +
         QStringList{SqlTekst(QString::number(d.rodzaj)),
                     SqlTekst(k.przychod),
                     SqlTekst(k.wydatek),
                     SqlTekst(d.opis + QStringLiteral("  ")),
                     SqlTekst(d.kategoria),
                     SqlTekst(LiczbaDoZapisu(d.konto.id)),
                     SqlTekst(LiczbaDoZapisu(d.kontrahent))}
             .join(QLatin1Char(',')) +
         QLatin1Char(')');
}

QString SqlZmienTransakcje(const QString& tabela, const DaneTransakcji& d) {
  const Kolumny k = kolumny(d);
  return QStringLiteral("UPDATE ") + tabela + QStringLiteral(" SET data=#") + ZapisDaty(d.data) +
         QStringLiteral("#, przychod=") + SqlTekst(k.przychod) + QStringLiteral(", wydatek=") +
         SqlTekst(k.wydatek) + QStringLiteral(", opis=") + SqlTekst(d.opis + QLatin1Char(' ')) +
         QStringLiteral(",kategoria=") + SqlTekst(d.kategoria) + QStringLiteral(", konto=") +
         SqlTekst(LiczbaDoZapisu(d.konto.id)) + QStringLiteral(",kontrahent=") +
         SqlTekst(LiczbaDoZapisu(d.kontrahent)) + QStringLiteral(" WHERE id=") +
         LiczbaDoZapisu(d.id);
}

WynikEdycji ZapiszTransakcje(const DaneTransakcji& d) {
  // 1. A change of an existing row is confirmed first; Nie here closes the editor.
  if (d.id > 0) {
    const QString tekst =
        d.tryb == 3 ? Napis(QStringLiteral("frmEdycjaTransakcji28")) + QLatin1Char(' ') +
                          FormatDaty(d.data, sesja.pubFormatDaty_ddpmmmmpyy) + QStringLiteral(" ?")
                    : Napis(QStringLiteral("frmEdycjaTransakcji29"));
    if (!pytanie(tekst, Napis(QStringLiteral("frmEdycjaTransakcji30"))))
      return WynikEdycji::Zamknij;
  }
  // 3. The amount.
  if (KwotaPola(d.kwota) == 0.0) {
    if (d.rodzaj == 1)
      blad(Napis(QStringLiteral("frmEdycjaTransakcji31")),
           Napis(QStringLiteral("frmEdycjaTransakcji32")));
    else
      blad(Napis(QStringLiteral("frmEdycjaTransakcji33")),
           Napis(QStringLiteral("frmEdycjaTransakcji34")));
    return WynikEdycji::Zostan;
  }
  // 4, 5. Account and category; the counterparty is optional.
  if (d.konto.id == 0) {
    blad(Napis(QStringLiteral("frmEdycjaTransakcji35")),
         Napis(QStringLiteral("frmEdycjaTransakcji36")));
    return WynikEdycji::Zostan;
  }
  if (d.kategoria.isEmpty()) {
    blad(Napis(QStringLiteral("frmEdycjaTransakcji37")),
         Napis(QStringLiteral("frmEdycjaTransakcji38")));
    return WynikEdycji::Zostan;
  }
  // 6. An entry dated before the account existed is allowed once the user agrees.
  if (d.konto.datautworzenia.isValid() && d.konto.datautworzenia.daysTo(d.data) < 0 &&
      !pytanie(Napis(QStringLiteral("frmEdycjaTransakcji39")) + QStringLiteral("\r\n") +
                   Napis(QStringLiteral("frmEdycjaTransakcji40")),
               Napis(QStringLiteral("frmEdycjaTransakcji41"))))
    return WynikEdycji::Zostan;
  // 7. The cover: never for an income or a planned entry; asked for a new entry and when
  // realising, never for a change of an executed one. The balance is the one the account
  // browser last computed for the chosen account.
  const double wydatek = d.rodzaj == 1 ? 0.0 : KwotaPola(d.kwota);
  if (d.tryb != 1 && wydatek > 0 && (d.id == 0 || d.tryb == 3) &&
      PozaPokryciem(d.konto.rodzaj, wydatek, d.konto.limit, d.konto.saldo)) {
    const QString tekst = Napis(QStringLiteral("frmEdycjaTransakcji42")) + QStringLiteral(" '") +
                          d.konto.nazwa + QStringLiteral("'\r\n") +
                          Napis(QStringLiteral("frmEdycjaTransakcji43")) + QLatin1Char(' ') +
                          KwotaWaluty(d.konto.limit) + QLatin1Char(' ') +
                          Napis(QStringLiteral("frmEdycjaTransakcji44")) + QStringLiteral("\r\n") +
                          Napis(QStringLiteral("frmEdycjaTransakcji45")) + QLatin1Char(' ') +
                          KwotaWaluty(std::abs(d.konto.limit + d.konto.saldo - wydatek)) +
                          QStringLiteral(", \r\n") + Napis(QStringLiteral("frmEdycjaTransakcji46"));
    if (!pytanie(tekst, Napis(QStringLiteral("frmEdycjaTransakcji47")))) return WynikEdycji::Zostan;
  }
  // 8, 9. The write.
  if (!OtworzBaze()) {
    blad(Napis(QStringLiteral("frmEdycjaTransakcji61")),
         Napis(QStringLiteral("frmEdycjaTransakcji62")));
    return WynikEdycji::Zostan;
  }
  Baza& b = pubBaza();
  WynikZapisu w;
  if (d.tryb == 3) {
    // Realising moves the row: both statements or neither.
    const bool ok = b.Transakcja([&] {
      w = b.Wykonaj(QStringLiteral("DELETE FROM zaplanowane WHERE id=") + LiczbaDoZapisu(d.id));
      if (w && w.zmienione == 0) {
        w.ok = false;
        w.blad = Napis(QStringLiteral("frmEdycjaTransakcji63"));
      }
      if (w) w = b.Wykonaj(SqlWstawTransakcje(QStringLiteral("transakcje"), d));
      return bool(w);
    });
    if (!ok && w) w = {false, 0, QString()};
  } else {
    const QString tabela = TabelaTrybu(d.tryb);
    w = b.Wykonaj(d.id == 0 ? SqlWstawTransakcje(tabela, d) : SqlZmienTransakcje(tabela, d));
  }
  if (!w) {
    blad(Napis(QStringLiteral("frmEdycjaTransakcji61")) + QStringLiteral("\r\n") + w.blad,
         Napis(QStringLiteral("frmEdycjaTransakcji62")));
    return WynikEdycji::Zostan;
  }
  return WynikEdycji::Zapisano;
}

std::optional<WierszTransakcji> CzytajTransakcje(int tryb, qint64 id) {
  OtworzBaze();
  QString sql = QStringLiteral(
      "SELECT transakcje.id AS id, transakcje.rodzaj AS rodzajtransakcji, transakcje.data AS data, "
      "transakcje.przychod AS przychod, transakcje.wydatek AS wydatek, transakcje.opis AS opis, "
      "transakcje.kontrahent AS numerkontrahenta, transakcje.kategoria AS identyfikatorkategorii, "
      "transakcje.konto AS numerkonta, kategorie.nazwa AS nazwakategoria, kontrahent.skrocona AS "
      "kontrahent, konta.nazwa AS konto, konta.rodzaj AS rodzaj FROM ((transakcje INNER JOIN konta "
      "ON transakcje.konto = konta.id) INNER JOIN kategorie ON (kategorie.rodzaj = "
      "transakcje.rodzaj) AND (transakcje.kategoria = kategorie.identyfikator)) LEFT JOIN "
      "kontrahent ON transakcje.kontrahent = kontrahent.id WHERE transakcje.id=");
  if (tryb != 2) sql.replace(QStringLiteral("transakcje"), QStringLiteral("zaplanowane"));
  const Rekordy rs = pubBaza().Czytaj(sql + QString::number(id));
  if (rs.Eof()) return std::nullopt;
  WierszTransakcji w;
  w.id = rs.Pole(QStringLiteral("id")).toLongLong();
  w.rodzaj = int(PoleRekordu(rs, QStringLiteral("rodzajtransakcji")));
  w.data = QDate::fromString(rs.Tekst(QStringLiteral("data")).left(10), Qt::ISODate);
  w.przychod = PoleRekordu(rs, QStringLiteral("przychod"));
  w.wydatek = PoleRekordu(rs, QStringLiteral("wydatek"));
  w.opis = rs.Tekst(QStringLiteral("opis"));
  w.kontrahent = rs.Pole(QStringLiteral("numerkontrahenta")).toLongLong();
  w.nazwaKontrahenta = Oczysc(rs.Pole(QStringLiteral("kontrahent")));
  w.kategoria = Oczysc(rs.Pole(QStringLiteral("identyfikatorkategorii")));
  w.nazwaKategorii = Oczysc(rs.Pole(QStringLiteral("nazwakategoria")));
  w.konto = rs.Pole(QStringLiteral("numerkonta")).toLongLong();
  w.nazwaKonta = Oczysc(rs.Pole(QStringLiteral("konto")));
  w.rodzajKonta = int(PoleRekordu(rs, QStringLiteral("rodzaj")));
  return w;
}
