#include "rejestr.h"

#include <sqlcipher/sqlite3.h>

#include <QStringList>

#include "store/baza.h"
#include "store/kwota.h"
#include "surowa.h"

Przypadki::Przypadki(int kolejnosc, std::vector<PrzypadekBench> przypadki) {
  for (PrzypadekBench& p : przypadki) RejestrBench().push_back({kolejnosc, std::move(p)});
}

std::vector<WpisRejestru>& RejestrBench() {
  static std::vector<WpisRejestru> r;
  return r;
}

namespace {
KontekstBench& kontekst() {
  static KontekstBench k;
  return k;
}

QString liczba(double v) { return QString::number(ZaokraglijDoGroszy(v), 'f', 2); }
}  // namespace

const KontekstBench& Kontekst() { return kontekst(); }
void UstawKontekst(const KontekstBench& k) { kontekst() = k; }

QString Surowo(const QString& sql) {
  const QByteArray tekst = sql.toUtf8();
  sqlite3_stmt* st = nullptr;
  if (sqlite3_prepare_v2(Kontekst().surowa, tekst.constData(), int(tekst.size()), &st, nullptr) !=
      SQLITE_OK)
    return QStringLiteral("error: ") + QString::fromUtf8(sqlite3_errmsg(Kontekst().surowa));
  QStringList pierwszy;
  bool jest = false;
  while (sqlite3_step(st) == SQLITE_ROW) {
    if (jest) continue;
    jest = true;
    for (int i = 0; i < sqlite3_column_count(st); ++i) {
      switch (sqlite3_column_type(st, i)) {
        case SQLITE_NULL:
          pierwszy << QString();
          break;
        case SQLITE_INTEGER:
        case SQLITE_FLOAT:
          pierwszy << liczba(sqlite3_column_double(st, i));
          break;
        default:
          pierwszy << QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, i)));
      }
    }
  }
  sqlite3_finalize(st);
  return pierwszy.join(QStringLiteral(" | "));
}

QString Wiersz(const Rekordy& rs) {
  QStringList w;
  for (int i = 0; i < rs.LiczbaPol(); ++i) {
    const QVariant v = rs.Pole(i);
    if (v.isNull())
      w << QString();
    else if (v.typeId() == QMetaType::QString)
      w << v.toString();
    else
      w << liczba(v.toDouble());
  }
  return w.join(QStringLiteral(" | "));
}

void SurowoWiersze(const QString& sql, const std::function<void(const Polecenie&)>& wiersz) {
  Polecenie p(Kontekst().surowa, sql);
  while (p.Wiersz()) wiersz(p);
}

qint64 SurowoGrosze(const Polecenie& p, int kolumna) {
  return qRound64(p.Rzeczywista(kolumna) * 100.0);
}

QString SurowaKwota(qint64 grosze) { return liczba(double(grosze) / 100.0); }
