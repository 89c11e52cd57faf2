#include "imports/wiersz_polecen.h"

#include <QFileInfo>

#include "imports/import.h"
#include "imports/kopie.h"
#include "imports/profile.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/start.h"

namespace {
QString pole(QString t) {
  t.replace(QLatin1Char('\t'), QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' '));
  return t;
}
}  // namespace

int UruchomImport(const QStringList& argumenty, QTextStream& wyjscie, QTextStream& bledy) {
  auto uzycie = [&](const QString& co) {
    if (!co.isEmpty()) bledy << co << '\n';
    bledy << Napis(QStringLiteral("importcli1")) << '\n';
    bledy.flush();
    return 2;
  };
  QString dane, plik, profil;
  qint64 konto = 0;
  bool zapisz = false;
  OpcjeWyciagu o;
  for (int i = 0; i < argumenty.size(); ++i) {
    const QString& a = argumenty[i];
    const bool maWartosc = i + 1 < argumenty.size();
    if (a == QLatin1String("--zapisz")) {
      zapisz = true;
    } else if (a == QLatin1String("--dane") && maWartosc) {
      dane = argumenty[++i];
    } else if (a == QLatin1String("--konto") && maWartosc) {
      bool ok = false;
      konto = argumenty[++i].toLongLong(&ok);
      if (!ok || konto <= 0) return uzycie(a + QLatin1Char(' ') + argumenty[i]);
    } else if (a == QLatin1String("--profil") && maWartosc) {
      profil = argumenty[++i];
    } else if (a == QLatin1String("--format") && maWartosc) {
      const QString f = argumenty[++i].toLower();
      if (f == QLatin1String("auto")) o.format = FormatWyciagu::Auto;
      else if (f == QLatin1String("csv")) o.format = FormatWyciagu::Csv;
      else if (f == QLatin1String("mt940")) o.format = FormatWyciagu::Mt940;
      else if (f == QLatin1String("ofx") || f == QLatin1String("qfx")) o.format = FormatWyciagu::Ofx;
      else if (f == QLatin1String("qif")) o.format = FormatWyciagu::Qif;
      else return uzycie(a + QLatin1Char(' ') + argumenty[i]);
    } else if (a == QLatin1String("--kodowanie") && maWartosc) {
      const QString k = argumenty[++i].toLower();
      if (k == QLatin1String("auto")) o.kodowanie = Kodowanie::Auto;
      else if (k == QLatin1String("cp1250") || k == QLatin1String("windows-1250")) o.kodowanie = Kodowanie::Cp1250;
      else if (k == QLatin1String("utf-8") || k == QLatin1String("utf8")) o.kodowanie = Kodowanie::Utf8;
      else return uzycie(a + QLatin1Char(' ') + argumenty[i]);
    } else if (!a.startsWith(QLatin1String("--")) && plik.isEmpty()) {
      plik = a;
    } else {
      return uzycie(a);
    }
  }
  if (plik.isEmpty() || konto == 0) return uzycie(QString());
  if (!dane.isEmpty()) UstawFolderDanych(dane);
  if (!OtworzBaze()) {
    bledy << Napis(QStringLiteral("importcli2")).arg(PlikBazy()) << '\n';
    return 1;
  }
  // An upgrade of the store's structure is preceded by a copy of the store, as at a start.
  WlaczKopiePrzedAktualizacja();
  AktualizujBaze();
  if (PoliczIle(QStringLiteral("SELECT COUNT(*) AS ile FROM konta WHERE id=%1").arg(konto)) == 0) {
    bledy << Napis(QStringLiteral("importcli3")).arg(konto) << '\n';
    return 1;
  }
  if (!profil.isEmpty()) {
    const auto p = CzytajProfil(profil);
    if (!p) {
      bledy << Napis(QStringLiteral("importcli4")).arg(profil) << '\n';
      return 2;
    }
    o.mapowanie = p->mapowanie;
    if (o.kodowanie == Kodowanie::Auto) o.kodowanie = p->kodowanie;
  }
  BladWyciagu b;
  const auto w = CzytajWyciag(plik, o, &b);
  if (!w) {
    bledy << QFileInfo(plik).fileName() << ": " << TekstBledu(b) << '\n';
    return 2;
  }
  const Podglad g = PrzygotujPodglad(*w, konto);
  if (zapisz) {
    const WynikImportu r = ZapiszImport(g);
    if (!r.ok) {
      bledy << Napis(QStringLiteral("importcli5")).arg(r.blad) << '\n';
      return 1;
    }
    wyjscie << r.wpisy + r.transfery << '\n';
    return 0;
  }
  for (const PozycjaPodgladu& z : g.pozycje) {
    const qint64 kw = std::llabs(z.p.grosze);
    const QString stan = z.stan == StanPozycji::Duplikat   ? QStringLiteral("duplikat")
                         : z.stan == StanPozycji::Transfer ? QStringLiteral("transfer")
                                                           : QStringLiteral("nowy");
    wyjscie << z.p.data.toString(Qt::ISODate) << '\t'
            << QStringLiteral("%1.%2").arg(kw / 100).arg(kw % 100, 2, 10, QLatin1Char('0')) << '\t'
            << (z.rodzaj() == 1 ? "przychod" : "wydatek") << '\t' << pole(z.p.opis) << '\t'
            << pole(z.nazwaKontrahenta) << '\t' << z.kategoria << '\t' << stan << '\n';
  }
  return 0;
}
