#include "imports/import_galeria_gui.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "imports/frmImport.h"
#include "imports/frmMapowanieKolumn.h"
#include "imports/frmPrzywrocKopie.h"
#include "imports/kopie.h"
#include "store/baza.h"

namespace {
QTemporaryDir& folder() {
  static QTemporaryDir d;
  return d;
}

QString kwota(double k) { return QString::number(k, 'f', 2).replace(QLatin1Char('.'), QLatin1Char(',')); }

// A statement of the busiest account: its three newest entries (already in the store), lines
// from two known counterparties and from new ones, and a transfer to another account.
QString wyciag() {
  OtworzBaze();
  Baza& b = pubBaza();
  const qint64 konto =
      b.Czytaj(QStringLiteral("SELECT TOP 1 konto, COUNT(id) AS ile FROM transakcje GROUP BY konto "
                              "ORDER BY COUNT(id) DESC, konto"))
          .Pole(0)
          .toLongLong();
  const qint64 drugie =
      b.Czytaj(QStringLiteral("SELECT TOP 1 id FROM konta WHERE id<>%1 ORDER BY id").arg(konto))
          .Pole(0)
          .toLongLong();
  b.Wykonaj(QStringLiteral("UPDATE konta SET numer='61109010140000071219812874' WHERE id=%1").arg(konto));
  b.Wykonaj(QStringLiteral("UPDATE konta SET numer='27114020040000300201355387' WHERE id=%1").arg(drugie));
  QStringList linie = {QStringLiteral("Historia rachunku"),
                       QStringLiteral("Numer rachunku;PL61 1090 1014 0000 0712 1981 2874"),
                       QString(),
                       QStringLiteral("Data operacji;Opis operacji;Nadawca / Odbiorca;Rachunek kontrahenta;Kwota")};
  for (Rekordy rs = b.Czytaj(QStringLiteral(
           "SELECT TOP 3 data, opis, przychod, wydatek FROM transakcje WHERE konto=%1 ORDER BY data DESC, id DESC")
                                 .arg(konto));
       !rs.Eof(); rs.MoveNext()) {
    const QDate d = QDate::fromString(rs.Tekst(QStringLiteral("data")).left(10), Qt::ISODate);
    linie << QStringLiteral("%1;%2;;;%3")
                 .arg(d.toString(QStringLiteral("dd.MM.yyyy")), rs.Tekst(QStringLiteral("opis")).trimmed(),
                      kwota(PoleRekordu(rs, QStringLiteral("przychod")) - PoleRekordu(rs, QStringLiteral("wydatek"))));
  }
  QStringList znani;
  for (Rekordy rs = b.Czytaj(QStringLiteral(
           "SELECT TOP 2 kontrahent.skrocona, COUNT(transakcje.id) AS ile FROM transakcje, kontrahent WHERE "
           "transakcje.kontrahent=kontrahent.id AND transakcje.rodzaj=2 GROUP BY kontrahent.skrocona "
           "ORDER BY COUNT(transakcje.id) DESC, kontrahent.skrocona"));
       !rs.Eof(); rs.MoveNext())
    znani << rs.Tekst(QStringLiteral("skrocona")).trimmed();
  linie << QStringLiteral("23.11.2026;Zakup kartą 4312;%1;;-86,40").arg(znani.value(0).toUpper())
        << QStringLiteral("24.11.2026;Płatność BLIK;%1;;-1 249,99").arg(znani.value(1))
        << QStringLiteral("24.11.2026;Kawa i rogalik;Kawiarnia „Pod Łąką”;;-23,50")
        << QStringLiteral("25.11.2026;Przelew na oszczędności;Jan Kowalski;PL27 1140 2004 0000 3002 0135 5387;-500,00")
        << QStringLiteral("26.11.2026;Zwrot za leki;Apteka Świętego Józefa;;45,00");
  const QString plik = QDir(folder().path()).filePath(QStringLiteral("wyciag-listopad.csv"));
  QFile f(plik);
  if (f.open(QIODevice::WriteOnly)) f.write(linie.join(QStringLiteral("\r\n")).toUtf8());
  return plik;
}
}  // namespace

std::unique_ptr<QWidget> GaleriaImportu() {
  const QString plik = wyciag();
  auto f = std::make_unique<frmImport>();
  f->Wczytaj(plik);
  return f;
}

std::unique_ptr<QWidget> GaleriaMapowaniaKolumn() {
  QFile f(wyciag());
  f.open(QIODevice::ReadOnly);
  return std::make_unique<frmMapowanieKolumn>(QString::fromUtf8(f.readAll()), MapowanieCsv{},
                                              Kodowanie::Auto);
}

std::unique_ptr<QWidget> GaleriaPrzywracaniaKopii() {
  // Copies of the sample store, so that the list shows what a user sees after a few days.
  if (ListaKopii().size() < 3) {
    ZrobKopie(PowodKopii::Aktualizacja);
    ZrobKopie(PowodKopii::Start);
    ZrobKopie(PowodKopii::Koniec);
  }
  return std::make_unique<frmPrzywrocKopie>();
}
