#include "questions/pytania.h"

#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/napis.h"

qint64 pubPytanie = 0;

namespace {
QDate data(const Rekordy& rs, const QString& pole) {
  return QDate::fromString(rs.Tekst(pole).left(10), Qt::ISODate);
}

Pytanie zRekordu(const Rekordy& rs) {
  Pytanie p;
  p.id = rs.Pole(QStringLiteral("id")).toLongLong();
  p.pytanie = rs.Tekst(QStringLiteral("pytanie"));
  p.datawyslania = data(rs, QStringLiteral("datawyslania"));
  p.idpytania = rs.Tekst(QStringLiteral("idpytania"));
  p.dataodpowiedzi = data(rs, QStringLiteral("dataodpowiedzi"));
  p.odpowiedz = rs.Tekst(QStringLiteral("odpowiedz"));
  return p;
}

// The editor's line breaks, whatever the platform gave, as CR LF: the service reads them so.
QString zLiniamiCrLf(QString tekst) {
  tekst.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  tekst.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  tekst.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
  return tekst;
}
}  // namespace

char Pytanie::Stan() const {
  if (!dataodpowiedzi.isNull()) return StanPytania::ZOdpowiedzia;
  if (!datawyslania.isNull()) return StanPytania::Wyslane;
  return StanPytania::NieWyslane;
}

QString Pytanie::Klucz() const { return QLatin1Char(Stan()) + QString::number(id); }

std::vector<Pytanie> CzytajPytania() {
  std::vector<Pytanie> w;
  if (!OtworzBaze()) return w;
  for (Rekordy rs = pubBaza().Czytaj(QStringLiteral("SELECT * FROM pytania ORDER BY id"));
       !rs.Eof(); rs.MoveNext())
    w.push_back(zRekordu(rs));
  return w;
}

Pytanie CzytajPytanie(qint64 id) {
  if (!OtworzBaze()) return {};
  const Rekordy rs = pubBaza().Czytaj(QStringLiteral("SELECT * FROM pytania WHERE id=%1").arg(id));
  return rs.Eof() ? Pytanie{} : zRekordu(rs);
}

char StanZKlucza(const QString& klucz) { return klucz.isEmpty() ? '\0' : klucz.at(0).toLatin1(); }

qint64 IdZKlucza(const QString& klucz) { return klucz.mid(1).toLongLong(); }

QString SlowoStanu(char stan) {
  switch (stan) {
    case StanPytania::NieWyslane:
      return Napis(QStringLiteral("frmZadajPytanie40"));
    case StanPytania::Wyslane:
      return Napis(QStringLiteral("frmZadajPytanie41"));
    default:
      return Napis(QStringLiteral("frmZadajPytanie45"));
  }
}

QString SkroconyTekst(const QString& tekst) {
  if (tekst.size() < 30) return tekst;
  const qsizetype odstep = tekst.indexOf(QLatin1Char(' '), 29);
  if (odstep < 0) return tekst;
  return tekst.left(odstep) + QStringLiteral(" ...");
}

LicznikiPytan Policz(const std::vector<Pytanie>& pytania) {
  LicznikiPytan l;
  for (const Pytanie& p : pytania) {
    if (p.Stan() == StanPytania::NieWyslane) ++l.nieWyslane;
    if (p.Stan() == StanPytania::Wyslane) ++l.bezOdpowiedzi;
  }
  return l;
}

bool ZapiszPytanie(qint64 id, const QString& tekst, qint64* zapisany) {
  const QString t = zLiniamiCrLf(tekst);
  if (t.trimmed().isEmpty()) {
    MyMsgbox(Napis(QStringLiteral("frmZadajPytanieEdycja3")),
             Napis(QStringLiteral("frmZadajPytanieEdycja4")), MsgOK, IkonaOstrzezenie);
    return false;
  }
  // A line break counts as one character, as the editor counts it.
  const qsizetype dlugosc = t.size() - t.count(QStringLiteral("\r\n"));
  if (dlugosc > NajdluzszePytanie) {
    MyMsgbox(Napis(QStringLiteral("frmZadajPytanieEdycja8")) + QStringLiteral(" ") +
                 QString::number(dlugosc) + Napis(QStringLiteral("frmZadajPytanieEdycja9")) +
                 QStringLiteral(" ") + QString::number(NajdluzszePytanie) + QStringLiteral("."),
             Napis(QStringLiteral("frmZadajPytanieEdycja4")), MsgOK, IkonaOstrzezenie);
    return false;
  }
  if (!OtworzBaze()) return false;
  const WynikZapisu w =
      id != 0 ? pubBaza().Wykonaj(QStringLiteral("UPDATE pytania SET pytanie=%1  WHERE id=%2")
                                      .arg(SqlTekst(t))
                                      .arg(id))
              : pubBaza().Wykonaj(
                    QStringLiteral("INSERT INTO pytania (pytanie) Values (%1)").arg(SqlTekst(t)));
  if (!w) {
    MyMsgbox(Napis(QStringLiteral("frmZadajPytanieEdycja10")) + QStringLiteral("\r\n") + w.blad,
             Napis(QStringLiteral("frmZadajPytanieEdycja4")), MsgOK, IkonaOstrzezenie);
    return false;
  }
  if (zapisany) *zapisany = id != 0 ? id : pubBaza().OstatnieId();
  return true;
}

bool UsunPytanie(qint64 id) {
  if (!OtworzBaze()) return false;
  const WynikZapisu w =
      pubBaza().Wykonaj(QStringLiteral("DELETE FROM pytania WHERE id=%1").arg(id));
  if (!w) {
    MyMsgbox(Napis(QStringLiteral("frmZadajPytanie46")) + QStringLiteral("\r\n") + w.blad,
             Napis(QStringLiteral("frmZadajPytanie47")), MsgOK, IkonaOstrzezenie);
    return false;
  }
  return true;
}
