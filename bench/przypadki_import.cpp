// Statement import and backups: the preview of a 10 000-line CSV and MT940 statement of the
// busiest account (duplicate detection against its entries, counterparty and category matching),
// the write of 10 000 lines as one change (undone in the same call so that the store stays as
// generated), and a backup of the whole store. The floor of the preview is the raw read of the
// account's entries over the statement's days, the floor of the backup a plain file copy.

#include <sqlcipher/sqlite3.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "imports/import.h"
#include "imports/kopie.h"
#include "rejestr.h"
#include "store/baza.h"
#include "surowa.h"

namespace {
qint64 konto = 0;
QTemporaryDir& folder() {
  static QTemporaryDir d;
  return d;
}
QString plikCsv() { return QDir(folder().path()).filePath(QStringLiteral("wyciag.csv")); }
QString plikMt940() { return QDir(folder().path()).filePath(QStringLiteral("wyciag.sta")); }
QDate od, do_;

// 10 000 lines: every third one an entry the account already has, the rest new lines of a
// few dozen payees.
void przygotuj() {
  OtworzBaze();
  konto = qint64(Surowo(QStringLiteral(
                            "SELECT konto FROM transakcje GROUP BY konto ORDER BY COUNT(*) DESC LIMIT 1"))
                     .toDouble());
  std::vector<std::tuple<QString, double, QString>> istniejace;
  sqlite3_stmt* st = nullptr;
  const QByteArray sql = QStringLiteral(
                             "SELECT data, przychod - wydatek, opis FROM transakcje WHERE konto=%1 "
                             "ORDER BY data DESC LIMIT 3334")
                             .arg(konto)
                             .toUtf8();
  sqlite3_prepare_v2(Kontekst().surowa, sql.constData(), -1, &st, nullptr);
  while (sqlite3_step(st) == SQLITE_ROW)
    istniejace.emplace_back(QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, 0))),
                            sqlite3_column_double(st, 1),
                            QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, 2))));
  sqlite3_finalize(st);
  QStringList csv = {QStringLiteral("Data operacji;Opis operacji;Nadawca / Odbiorca;Kwota")};
  QStringList mt = {QStringLiteral(":20:BENCH"), QStringLiteral(":25:/PL61109010140000071219812874"),
                    QStringLiteral(":60F:C260101PLN0,00")};
  od = QDate();
  for (int i = 0; i < 10000; ++i) {
    QDate d;
    double kw;
    QString opis, kto;
    if (i % 3 == 0 && size_t(i / 3) < istniejace.size()) {
      const auto& [data, k, o] = istniejace[size_t(i / 3)];
      d = QDate::fromString(data.left(10), Qt::ISODate);
      kw = k;
      opis = o.trimmed();
    } else {
      d = QDate(2026, 1, 1).addDays(i % 330);
      kw = -double((i * 7919) % 50000 + 100) / 100.0;
      opis = QStringLiteral("Zakup kartą nr %1 sklep %2").arg(i).arg(i % 40);
      kto = QStringLiteral("Sklep Łódź %1").arg(i % 40);
    }
    if (!od.isValid() || d < od) od = d;
    if (!do_.isValid() || d > do_) do_ = d;
    const QString k = QString::number(kw, 'f', 2).replace(QLatin1Char('.'), QLatin1Char(','));
    csv << QStringLiteral("%1;%2;%3;%4").arg(d.toString(QStringLiteral("dd.MM.yyyy")), opis, kto, k);
    mt << QStringLiteral(":61:%1%2%3NTRFNONREF")
              .arg(d.toString(QStringLiteral("yyMMdd")), kw < 0 ? QStringLiteral("D") : QStringLiteral("C"),
                   k.startsWith(QLatin1Char('-')) ? k.mid(1) : k)
       << QStringLiteral(":86:020~20%1~32%2").arg(opis.left(35), kto);
  }
  mt << QStringLiteral(":62F:C261231PLN0,00");
  QFile a(plikCsv()), b(plikMt940());
  a.open(QIODevice::WriteOnly);
  a.write(csv.join(QStringLiteral("\r\n")).toUtf8());
  b.open(QIODevice::WriteOnly);
  b.write(mt.join(QStringLiteral("\r\n")).toUtf8());
}

QString podglad(const QString& plik) {
  BladWyciagu b;
  const auto w = CzytajWyciag(plik, {}, &b);
  if (!w) return TekstBledu(b);
  const Podglad g = PrzygotujPodglad(*w, konto);
  return QStringLiteral("%1 lines, %2 duplicates").arg(g.pozycje.size()).arg(g.ile(StanPozycji::Duplikat));
}

QString podlogaPodgladu() {
  Surowo(QStringLiteral("SELECT data, przychod, wydatek, opis, idbanku FROM transakcje WHERE "
                        "konto=%1 AND data BETWEEN '%2' AND '%3'")
             .arg(konto)
             .arg(od.toString(Qt::ISODate), do_.toString(Qt::ISODate)));
  return {};
}

QString zapisIZwrot() {
  BladWyciagu b;
  const auto w = CzytajWyciag(plikCsv(), {}, &b);
  if (!w) return TekstBledu(b);
  Podglad g;
  g.konto = konto;
  for (const PozycjaWyciagu& p : w->pozycje) {
    PozycjaPodgladu z;
    z.p = p;
    g.pozycje.push_back(z);
  }
  const WynikImportu r = ZapiszImport(g);
  const WynikImportu c = CofnijImport();
  return QStringLiteral("%1 written, %2 undone").arg(r.wpisy).arg(c.wpisy);
}

// The floor of the write: the same lines as one raw prepared insert in one transaction, then
// deleted through the index of imported rows, each side committed as the program commits.
QString podlogaZapisu() {
  BladWyciagu b;
  const auto w = CzytajWyciag(plikCsv(), {}, &b);
  if (!w) return TekstBledu(b);
  sqlite3* db = Kontekst().surowa;
  sqlite3_exec(db, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
  sqlite3_stmt* st = nullptr;
  sqlite3_prepare_v2(
      db,
      "INSERT INTO transakcje (data, rodzaj, przychod, wydatek, opis, kategoria, konto, "
      "kontrahent, idbanku, importu) VALUES (?1, ?2, ?3, ?4, ?5, '', ?6, 0, '', -7)",
      -1, &st, nullptr);
  int ile = 0;
  for (const PozycjaWyciagu& p : w->pozycje) {
    const QByteArray dzien = p.data.toString(Qt::ISODate).toUtf8();
    const QByteArray opis = (p.opis.isEmpty() ? p.kontrahent : p.opis).toUtf8();
    const double kwota = double(std::llabs(p.grosze)) / 100.0;
    sqlite3_bind_text(st, 1, dzien.constData(), int(dzien.size()), SQLITE_TRANSIENT);
    sqlite3_bind_int64(st, 2, p.grosze >= 0 ? 1 : 2);
    sqlite3_bind_double(st, 3, p.grosze >= 0 ? kwota : 0.0);
    sqlite3_bind_double(st, 4, p.grosze < 0 ? kwota : 0.0);
    sqlite3_bind_text(st, 5, opis.constData(), int(opis.size()), SQLITE_TRANSIENT);
    sqlite3_bind_int64(st, 6, konto);
    if (sqlite3_step(st) == SQLITE_DONE) ++ile;
    sqlite3_reset(st);
  }
  sqlite3_finalize(st);
  sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr);
  sqlite3_exec(db, "BEGIN IMMEDIATE; DELETE FROM transakcje WHERE importu=-7; COMMIT;", nullptr,
               nullptr, nullptr);
  return QStringLiteral("%1 written, %2 undone").arg(ile).arg(sqlite3_changes(db));
}

QString kopia() { return ZrobKopie(PowodKopii::Reczna) ? QStringLiteral("ok") : QStringLiteral("failed"); }

QString kopiaPliku() {
  const QString cel = QDir(folder().path()).filePath(QStringLiteral("kopia.fns"));
  QFile::remove(cel);
  return QFile::copy(Kontekst().plik, cel) ? QStringLiteral("ok") : QStringLiteral("failed");
}
}  // namespace

static Przypadki p(
    90,
    {PrzypadekBench(QStringLiteral("import preview, 10 000-line CSV"),
                    [] { return podglad(plikCsv()); })
         .Przygotuj(przygotuj)
         .Limit(1000),
     PrzypadekBench(QStringLiteral("import preview, 10 000-line MT940"),
                    [] { return podglad(plikMt940()); })
         .Limit(1000),
     PrzypadekBench(QStringLiteral("import preview: the raw read alone"), podlogaPodgladu),
     PrzypadekBench(QStringLiteral("import write 10 000 lines (+ undo)"), zapisIZwrot)
         .Podloga(podlogaZapisu)
         .Limit(1000),
     PrzypadekBench(QStringLiteral("backup of the store"), kopia).Podloga(kopiaPliku).Limit(500)});
