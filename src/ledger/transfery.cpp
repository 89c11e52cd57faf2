#include "ledger/transfery.h"

#include <cmath>

#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/tekst.h"

namespace {

bool pytanie(const QString& tekst, const QString& tytul) {
  return MyMsgbox(tekst, tytul, MsgTakNie, IkonaPytanie) == WynikTak;
}

void blad(const QString& tekst, const QString& tytul) {
  MyMsgbox(tekst, tytul, MsgOK, IkonaOstrzezenie);
}

QString kwotaDoZapisu(const DaneTransferu& d) {
  QString kwota = d.kwota.trimmed();
  return KropkaNaSeparator(kwota);
}

bool przedUtworzeniem(const KontoRekord& konto, const QDate& data) {
  return konto.datautworzenia.isValid() && konto.datautworzenia.daysTo(data) < 0;
}

}  // namespace

QString TabelaTransferow(int tryb) {
  return tryb == 2 ? QStringLiteral("wewnetrzne") : QStringLiteral("zaplanowanewewnetrzne");
}

QString SqlWstawTransfer(const QString& tabela, const DaneTransferu& d) {
  return QStringLiteral("INSERT INTO ") + tabela +
         QStringLiteral(" (data,kwota,opis,zkonta,nakonto) Values (#") + ZapisDaty(d.data) +
         QStringLiteral("#,") +
         QStringList{SqlTekst(kwotaDoZapisu(d)), SqlTekst(d.opis + QStringLiteral("  ")),
                     SqlTekst(LiczbaDoZapisu(d.zKonta.id)), SqlTekst(LiczbaDoZapisu(d.naKonto.id))}
             .join(QLatin1Char(',')) +
         QLatin1Char(')');
}

QString SqlZmienTransfer(const QString& tabela, const DaneTransferu& d) {
  return QStringLiteral("UPDATE ") + tabela + QStringLiteral(" SET data=#") + ZapisDaty(d.data) +
         QStringLiteral("#, kwota=") + SqlTekst(kwotaDoZapisu(d)) + QStringLiteral(", opis=") +
         SqlTekst(d.opis + QLatin1Char(' ')) + QStringLiteral(",zkonta=") +
         SqlTekst(LiczbaDoZapisu(d.zKonta.id)) + QStringLiteral(",nakonto=") +
         SqlTekst(LiczbaDoZapisu(d.naKonto.id)) + QStringLiteral(" WHERE id=") +
         LiczbaDoZapisu(d.id);
}

WynikEdycji ZapiszTransfer(const DaneTransferu& d) {
  // 1. A change of an existing row is confirmed first; Nie here closes the editor.
  if (d.id != 0) {
    const QString tekst =
        d.tryb == 3 ? Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej20")) + QLatin1Char(' ') +
                          FormatDaty(d.data, sesja.pubFormatDaty_ddpmmmmpyy) + QStringLiteral(" ?")
                    : Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej21"));
    if (!pytanie(tekst, Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej22"))))
      return WynikEdycji::Zamknij;
  }
  // 3 to 6. Amount, both accounts, and two different ones.
  const double kwota = KwotaPola(d.kwota);
  if (kwota == 0.0) {
    blad(Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej23")),
         Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej24")));
    return WynikEdycji::Zostan;
  }
  if (d.zKonta.id == 0) {
    blad(Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej25")),
         Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej26")));
    return WynikEdycji::Zostan;
  }
  if (d.naKonto.id == 0) {
    blad(Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej27")),
         Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej28")));
    return WynikEdycji::Zostan;
  }
  if (d.zKonta.id == d.naKonto.id) {
    blad(Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej29")),
         Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej30")));
    return WynikEdycji::Zostan;
  }
  // 7, 8. A date before either account was created is allowed once the user agrees.
  if (przedUtworzeniem(d.zKonta, d.data) &&
      !pytanie(Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej31")) + QStringLiteral("\r\n") +
                   Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej32")),
               Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej33"))))
    return WynikEdycji::Zostan;
  if (przedUtworzeniem(d.naKonto, d.data) &&
      !pytanie(Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej34")) + QStringLiteral("\r\n") +
                   Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej35")),
               Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej36"))))
    return WynikEdycji::Zostan;
  // 9. The cover of the source account, for every executed transfer.
  const KontoRekord& z = d.zKonta;
  if (d.tryb != 1 && PozaPokryciem(z.rodzaj, kwota, z.limit, z.saldo)) {
    const QString tekst =
        Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej37")) + QStringLiteral(" '") + z.nazwa +
        QStringLiteral("'\r\n") + Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej38")) +
        QLatin1Char(' ') + KwotaWaluty(z.limit) + QLatin1Char(' ') +
        Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej39")) + QStringLiteral("\r\n") +
        Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej40")) + QLatin1Char(' ') +
        KwotaWaluty(std::abs(z.limit + z.saldo - kwota)) + QStringLiteral(" , \r\n") +
        Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej41"));
    if (!pytanie(tekst, Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej42"))))
      return WynikEdycji::Zostan;
  }
  // 10. The write.
  if (!OtworzBaze()) {
    blad(Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej44")),
         Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej45")));
    return WynikEdycji::Zostan;
  }
  Baza& b = pubBaza();
  WynikZapisu w;
  if (d.tryb == 3) {
    // Realising moves the row: both statements or neither.
    const bool ok = b.Transakcja([&] {
      w = b.Wykonaj(QStringLiteral("DELETE FROM zaplanowanewewnetrzne WHERE id=") +
                    LiczbaDoZapisu(d.id));
      if (w && w.zmienione == 0) {
        w.ok = false;
        w.blad = Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej46"));
      }
      if (w) w = b.Wykonaj(SqlWstawTransfer(QStringLiteral("wewnetrzne"), d));
      return bool(w);
    });
    if (!ok && w) w = {false, 0, QString()};
  } else {
    const QString tabela = TabelaTransferow(d.tryb);
    w = b.Wykonaj(d.id == 0 ? SqlWstawTransfer(tabela, d) : SqlZmienTransfer(tabela, d));
  }
  if (!w) {
    blad(
        Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej44")) + QStringLiteral("\r\n") + w.blad,
        Napis(QStringLiteral("frmEdycjaTransakcjiWewnetrznej45")));
    return WynikEdycji::Zostan;
  }
  return WynikEdycji::Zapisano;
}

std::optional<WierszTransferu> CzytajTransfer(int tryb, qint64 id) {
  OtworzBaze();
  QString sql = QStringLiteral(
      "SELECT zaplanowanewewnetrzne.id AS id, zaplanowanewewnetrzne.data AS data, "
      "zaplanowanewewnetrzne.kwota AS kwota, zaplanowanewewnetrzne.opis AS opis, "
      "zaplanowanewewnetrzne.zkonta AS zkonta, zaplanowanewewnetrzne.nakonto AS nakonto, "
      "konta.nazwa AS nazwazkonta, konta.rodzaj AS rodzajzkonta, kontaprim.nazwa AS nazwanakonto, "
      "kontaprim.rodzaj AS rodzajnakonto FROM zaplanowanewewnetrzne, konta, konta AS kontaprim "
      "WHERE konta.id=zaplanowanewewnetrzne.zkonta AND kontaprim.id=zaplanowanewewnetrzne.nakonto "
      "AND zaplanowanewewnetrzne.id=");
  if (tryb == 2) sql.replace(QStringLiteral("zaplanowanewewnetrzne"), QStringLiteral("wewnetrzne"));
  const Rekordy rs = pubBaza().Czytaj(sql + QString::number(id));
  if (rs.Eof()) return std::nullopt;
  WierszTransferu w;
  w.id = rs.Pole(QStringLiteral("id")).toLongLong();
  w.data = QDate::fromString(rs.Tekst(QStringLiteral("data")).left(10), Qt::ISODate);
  w.kwota = PoleRekordu(rs, QStringLiteral("kwota"));
  w.opis = rs.Tekst(QStringLiteral("opis"));
  w.zKonta = rs.Pole(QStringLiteral("zkonta")).toLongLong();
  w.naKonto = rs.Pole(QStringLiteral("nakonto")).toLongLong();
  w.nazwaZKonta = Oczysc(rs.Pole(QStringLiteral("nazwazkonta")));
  w.nazwaNaKonto = Oczysc(rs.Pole(QStringLiteral("nazwanakonto")));
  w.rodzajZKonta = int(PoleRekordu(rs, QStringLiteral("rodzajzkonta")));
  w.rodzajNaKonto = int(PoleRekordu(rs, QStringLiteral("rodzajnakonto")));
  return w;
}
