#include "masterdata/kontrahenci.h"

#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/kwota.h"
#include "store/napis.h"

namespace {

QString liczba(qint64 n) { return QString::number(n); }

}  // namespace

QString OpisKontrahenta(KontrahentRekord& kontrahent) {
  OtworzBaze();
  const Rekordy rs = pubBaza().Czytaj(
      QStringLiteral("SELECT id,skrocona FROM kontrahent WHERE id=") + liczba(kontrahent.id));
  if (rs.Eof() || rs.Pole(QStringLiteral("id")).toLongLong() == 0) {
    kontrahent.id = 0;
    kontrahent.skrocona.clear();
    return Napis(QStringLiteral("Module154"));
  }
  kontrahent.skrocona = Oczysc(rs.Pole(QStringLiteral("skrocona")));
  return kontrahent.skrocona;
}

DaneKontrahenta CzytajKontrahenta(qint64 id) {
  OtworzBaze();
  const Rekordy rs =
      pubBaza().Czytaj(QStringLiteral("SELECT * FROM kontrahent WHERE id=") + liczba(id));
  DaneKontrahenta d;
  if (rs.Eof()) return d;
  const auto pole = [&rs](const char* nazwa) { return Oczysc(rs.Pole(QLatin1String(nazwa))); };
  d.id = rs.Pole(QStringLiteral("id")).toLongLong();
  d.skrocona = pole("skrocona");
  d.opis = pole("opis");
  d.nazwa = pole("nazwa");
  d.adres = pole("adres");
  d.miasto = pole("miasto");
  d.telefon = pole("telefon");
  d.lk = pole("lk");
  d.bank = pole("bank");
  d.konto = pole("konto");
  return d;
}

bool ZapiszKontrahenta(const DaneKontrahenta& dane, qint64* nowyId) {
  OtworzBaze();
  Baza& b = pubBaza();
  const QString s = dane.skrocona.trimmed();
  if (s.isEmpty()) {
    MyMsgbox(Napis(QStringLiteral("frmEdycjaKontrahenta15")),
             Napis(QStringLiteral("frmEdycjaKontrahenta16")), MsgOK, IkonaOstrzezenie);
    return false;
  }
  // A short name may be shared, as far as the user agrees; a rename is not checked.
  if (dane.id == 0 &&
      PoliczIle(QStringLiteral("SELECT COUNT(*) AS ile FROM kontrahent WHERE skrocona=") +
                SqlTekst(s)) > 0 &&
      MyMsgbox(Napis(QStringLiteral("frmEdycjaKontrahenta17")) + QLatin1Char(' ') + s +
                   Napis(QStringLiteral("frmEdycjaKontrahenta18")),
               Napis(QStringLiteral("frmEdycjaKontrahenta19")), MsgTakNie,
               IkonaPytanie) != WynikTak)
    return false;

  const QString o = SqlTekst(dane.opis.trimmed()), n = SqlTekst(dane.nazwa.trimmed()),
                a = SqlTekst(dane.adres.trimmed()), m = SqlTekst(dane.miasto.trimmed()),
                t = SqlTekst(dane.telefon.trimmed()), k = SqlTekst(dane.konto.trimmed()),
                bk = SqlTekst(dane.bank.trimmed()), l = SqlTekst(dane.lk.trimmed());
  WynikZapisu w;
  if (dane.id != 0) {
    w = b.Wykonaj(QStringLiteral("UPDATE kontrahent SET skrocona=") + SqlTekst(s) +
                  QStringLiteral(", opis=") + o + QStringLiteral(", nazwa=") + n +
                  QStringLiteral(", adres=") + a + QStringLiteral(", miasto=") + m +
                  QStringLiteral(", telefon=") + t + QStringLiteral(", konto=") + k +
                  QStringLiteral(", bank=") + bk + QStringLiteral(", lk=") + l +
                  QStringLiteral(" WHERE id=") + liczba(dane.id));
  } else {
    w = b.Wykonaj(
        QStringLiteral("INSERT INTO kontrahent "
                       "(skrocona,opis,nazwa,adres,miasto,telefon,konto,bank,lk) VALUES (") +
        QStringList{SqlTekst(s), o, n, a, m, t, k, bk, l}.join(QLatin1Char(',')) +
        QLatin1Char(')'));
    if (w && nowyId) {
      const Rekordy rs =
          b.Czytaj(QStringLiteral("SELECT TOP 1 id FROM kontrahent ORDER BY id DESC"));
      *nowyId = rs.Pole(QStringLiteral("id")).toLongLong();
    }
  }
  if (!w) {
    MyMsgbox(Napis(QStringLiteral("frmEdycjaKontrahenta24")) + QStringLiteral("\r\n") + w.blad,
             Napis(QStringLiteral("frmEdycjaKontrahenta25")), MsgOK, IkonaOstrzezenie);
    return false;
  }
  return true;
}

qint64 IleWpisowKontrahenta(qint64 id) {
  OtworzBaze();
  const QString n = liczba(id);
  return PoliczIle(QStringLiteral("SELECT COUNT(id) AS ile FROM transakcje WHERE kontrahent=") +
                   n) +
         PoliczIle(QStringLiteral("SELECT COUNT(id) AS ile FROM zaplanowane WHERE kontrahent=") +
                   n);
}

bool UsunKontrahenta(qint64 id, const QString& nazwa) {
  if (IleWpisowKontrahenta(id) >= 1) {
    MyMsgbox(Napis(QStringLiteral("frmPrzegladKontrahentow70")) + QLatin1Char(' ') + nazwa +
                 QLatin1Char(' ') + Napis(QStringLiteral("frmPrzegladKontrahentow71")),
             Napis(QStringLiteral("frmPrzegladKontrahentow72")), MsgOK, IkonaOstrzezenie);
    return false;
  }
  if (MyMsgbox(Napis(QStringLiteral("frmPrzegladKontrahentow73")) + QLatin1Char(' ') + nazwa +
                   QStringLiteral(" ?"),
               Napis(QStringLiteral("frmPrzegladKontrahentow74")), MsgTakNie,
               IkonaPytanie) != WynikTak)
    return false;
  Baza& b = pubBaza();
  const QString n = liczba(id);
  // Templates never block the deletion: they go with the counterparty.
  const bool ok = b.Transakcja([&] {
    return b.Wykonaj(QStringLiteral("DELETE FROM kontrahent WHERE id=") + n) &&
           b.Wykonaj(QStringLiteral("DELETE FROM szablony where kontrahent=") + n);
  });
  if (!ok)
    MyMsgbox(Napis(QStringLiteral("frmPrzegladKontrahentow77")) + QLatin1Char(' ') + nazwa,
             Napis(QStringLiteral("frmPrzegladKontrahentow74")), MsgOK, IkonaOstrzezenie);
  return ok;
}

// ---- the browser's panels --------------------------------------------------------------------

SumyKontrahenta SumyDokonanych(qint64 id, bool wszyscy, const QString& warunek) {
  OtworzBaze();
  // An entry with no counterparty never counts, not even among "all".
  const QString sql =
      QStringLiteral(
          "SELECT COUNT(transakcje.id) AS ile,SUM(transakcje.przychod) AS sumprzychod,"
          "SUM(transakcje.wydatek) AS sumwydatek FROM transakcje WHERE ") +
      (wszyscy ? QStringLiteral("transakcje.kontrahent>0")
               : QStringLiteral("transakcje.kontrahent=") + liczba(id)) +
      warunek;
  const Rekordy rs = pubBaza().Czytaj(sql);
  SumyKontrahenta s;
  s.ile = qint64(PoleRekordu(rs, QStringLiteral("ile")));
  s.przychod = PoleRekordu(rs, QStringLiteral("sumprzychod"));
  s.wydatek = PoleRekordu(rs, QStringLiteral("sumwydatek"));
  return s;
}

bool ZaplanowanaKontrahenta::Przychod() const { return WGroszach(wydatek) == 0; }

PanelZaplanowanych CzytajZaplanowane(qint64 id, const QDate& dzienRoboczy) {
  OtworzBaze();
  PanelZaplanowanych p;
  qint64 przychody = 0, wydatki = 0, zaleglePrzychody = 0, zalegleWydatki = 0;
  for (Rekordy rs = pubBaza().Czytaj(
           QStringLiteral(
               "SELECT id,data,przychod,wydatek,opis FROM zaplanowane WHERE kontrahent=") +
           liczba(id) + QStringLiteral(" ORDER BY data, id DESC"));
       !rs.Eof(); rs.MoveNext()) {
    ZaplanowanaKontrahenta z;
    z.id = rs.Pole(QStringLiteral("id")).toLongLong();
    z.data = QDate::fromString(rs.Tekst(QStringLiteral("data")).left(10), Qt::ISODate);
    z.przychod = PoleRekordu(rs, QStringLiteral("przychod"));
    z.wydatek = PoleRekordu(rs, QStringLiteral("wydatek"));
    z.opis = rs.Tekst(QStringLiteral("opis"));
    przychody += WGroszach(z.przychod);
    wydatki += WGroszach(z.wydatek);
    if (z.data.isValid() && z.data.daysTo(dzienRoboczy) >= 1) {
      zaleglePrzychody += WGroszach(z.przychod);
      zalegleWydatki += WGroszach(z.wydatek);
    }
    p.wiersze.push_back(std::move(z));
  }
  p.przychody = ZGroszy(przychody);
  p.wydatki = ZGroszy(wydatki);
  p.zaleglePrzychody = ZGroszy(zaleglePrzychody);
  p.zalegleWydatki = ZGroszy(zalegleWydatki);
  return p;
}

QString LiczbaBezMaski(double wartosc) {
  QString t = QString::number(ZaokraglijDoGroszy(wartosc), 'f', 2);
  while (t.endsWith(QLatin1Char('0'))) t.chop(1);
  if (t.endsWith(QLatin1Char('.'))) t.chop(1);
  if (t == QLatin1String("-0")) t = QStringLiteral("0");
  return t.replace(QLatin1Char('.'), sesja.pubSeparator);
}

bool UsunZaplanowanaKontrahenta(qint64 id) {
  if (MyMsgbox(Napis(QStringLiteral("frmPrzegladKontrahentow66")),
               Napis(QStringLiteral("frmPrzegladKontrahentow67")), MsgTakNie,
               IkonaPytanie) != WynikTak)
    return false;
  OtworzBaze();
  const WynikZapisu w =
      pubBaza().Wykonaj(QStringLiteral("DELETE FROM zaplanowane WHERE id=") + liczba(id));
  if (!w)
    MyMsgbox(Napis(QStringLiteral("frmPrzegladKontrahentow78")) + QStringLiteral("\r\n") + w.blad,
             Napis(QStringLiteral("frmPrzegladKontrahentow67")), MsgOK, IkonaOstrzezenie);
  return bool(w);
}
