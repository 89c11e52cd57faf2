#include "ledger/eksport.h"

#include "ledger/przeglad.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/plik.h"
#include "store/session.h"
#include "store/tekst.h"

namespace {
QString kwota(qint64 grosze, QChar znak) {
  const qint64 a = std::llabs(grosze);
  return QStringLiteral("%1%2%3%4")
      .arg(grosze < 0 ? QStringLiteral("-") : QString())
      .arg(a / 100)
      .arg(znak)
      .arg(a % 100, 2, 10, QLatin1Char('0'));
}

// One line of a QIF field: no line break may end the record early.
QString jednaLinia(QString t) {
  t.replace(QLatin1Char('\r'), QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' '));
  return t.trimmed();
}
}  // namespace

QByteArray EksportCsv(const std::vector<WierszEksportu>& wiersze) {
  QByteArray out = "\xEF\xBB\xBF";
  const QString naglowek[] = {Napis(QStringLiteral("eksport1")), Napis(QStringLiteral("eksport2")),
                              Napis(QStringLiteral("eksport3")), Napis(QStringLiteral("eksport4")),
                              Napis(QStringLiteral("eksport5")), Napis(QStringLiteral("eksport6"))};
  for (int i = 0; i < 6; ++i) out += (i ? ";" : "") + KomorkaCsv(naglowek[i]);
  out += "\r\n";
  const QChar znak = sesja.pubJezyk == 2 ? QLatin1Char('.') : QLatin1Char(',');
  for (const WierszEksportu& w : wiersze) {
    const QString pola[] = {w.data.toString(Qt::ISODate),
                            kwota(w.grosze, znak),
                            w.opis,
                            w.kategoria,
                            w.kontrahent,
                            w.konto};
    for (int i = 0; i < 6; ++i) out += (i ? ";" : "") + KomorkaCsv(pola[i]);
    out += "\r\n";
  }
  return out;
}

QByteArray EksportQif(const std::vector<WierszEksportu>& wiersze) {
  QString t = QStringLiteral("!Type:Bank\r\n");
  for (const WierszEksportu& w : wiersze) {
    t += QStringLiteral("D") + w.data.toString(QStringLiteral("dd.MM.yyyy")) +
         QStringLiteral("\r\n");
    t += QStringLiteral("T") + kwota(w.grosze, QLatin1Char('.')) + QStringLiteral("\r\n");
    if (!w.kontrahent.isEmpty())
      t += QStringLiteral("P") + jednaLinia(w.kontrahent) + QStringLiteral("\r\n");
    if (!w.opis.isEmpty()) t += QStringLiteral("M") + jednaLinia(w.opis) + QStringLiteral("\r\n");
    if (!w.kategoria.isEmpty())
      t += QStringLiteral("L") + jednaLinia(w.kategoria) + QStringLiteral("\r\n");
    t += QStringLiteral("^\r\n");
  }
  return t.toUtf8();
}

std::vector<WierszEksportu> WierszeDoEksportu(const QString& jetSql) {
  std::vector<WierszEksportu> w;
  for (Rekordy rs = pubBaza().Czytaj(jetSql); !rs.Eof(); rs.MoveNext()) {
    WierszEksportu r;
    r.data = QDate::fromString(rs.Tekst(QStringLiteral("data")).left(10), Qt::ISODate);
    r.grosze = qRound64(PoleRekordu(rs, QStringLiteral("przychod")) * 100.0) -
               qRound64(PoleRekordu(rs, QStringLiteral("wydatek")) * 100.0);
    r.opis = rs.Tekst(QStringLiteral("opis")).trimmed();
    r.kategoria = rs.Tekst(QStringLiteral("nazwakategorii")).trimmed();
    r.kontrahent = rs.Tekst(QStringLiteral("nazwakontrahenta")).trimmed();
    r.konto = rs.Tekst(QStringLiteral("nazwakonta")).trimmed();
    w.push_back(r);
  }
  return w;
}

std::vector<WierszEksportu> WierszeZPrzegladu(const DanePrzegladu& dane) {
  std::vector<WierszEksportu> w;
  w.reserve(size_t(dane.Ile()));
  const bool transfery = dane.Rodzaj() == RodzajPrzegladu::Transfery;
  for (qsizetype i = 0; i < dane.Ile(); ++i) {
    const WierszPrzegladu& r = dane.Wiersz(i);
    WierszEksportu e;
    e.data = r.data ? QDate::fromJulianDay(r.data) : QDate();
    if (transfery) {
      e.grosze = -r.kwota1;
      e.konto = dane.Tekst(r.tekst[0]).trimmed();
      const QString na = dane.Tekst(r.tekst[1]).trimmed();
      if (!na.isEmpty()) e.kategoria = QLatin1Char('[') + na + QLatin1Char(']');
      e.opis = dane.Tekst(r.tekst[2]).trimmed();
    } else {
      e.grosze = r.kwota1 - r.kwota2;
      e.kategoria = dane.Tekst(r.tekst[0]).trimmed();
      e.konto = dane.Tekst(r.tekst[1]).trimmed();
      e.kontrahent = dane.Tekst(r.tekst[2]).trimmed();
      e.opis = dane.Tekst(r.tekst[3]).trimmed();
    }
    w.push_back(std::move(e));
  }
  return w;
}

bool ZapiszEksport(const QString& sciezka, const std::vector<WierszEksportu>& wiersze,
                   QString* blad) {
  const bool qif = sciezka.endsWith(QLatin1String(".qif"), Qt::CaseInsensitive);
  return ZapiszPlik(sciezka, qif ? EksportQif(wiersze) : EksportCsv(wiersze), blad);
}
