#include "reports/wiersz_raportu.h"

#include <QFile>
#include <QLocale>

#include "reports/raporty.h"
#include "store/baza.h"
#include "store/dzis.h"
#include "store/filtr.h"
#include "store/plik.h"
#include "store/session.h"
#include "store/start.h"

namespace {

struct NazwaRaportu {
  const char* nazwa;
  const char* ekran;
};
const NazwaRaportu kRaporty[] = {
    {"transakcje", "frmRaportTransakcji"},
    {"transfery", "frmRaportTransakcjiWewnetrznych"},
    {"konta", "frmRaportKont"},
    {"kategorie", "frmRaportKategorii"},
    {"kontrahenci", "frmRaportKontrahenta"},
    {"konta-w-czasie", "frmRaportKontaWCzasie"},
    {"kategorie-w-czasie", "frmRaportKategorieWCzasie"},
    {"kontrahenci-w-czasie", "frmRaportKontrahentaWCzasie"},
    {"sumaryczny", "frmRaportSumaryczny"},
};
const char* const kOkresy[] = {"wszystko", "dzien", "tydzien", "miesiac", "kwartal", "rok", "zakres"};

bool liczba(const QString& t, qint64* v) {
  bool ok = false;
  *v = t.toLongLong(&ok);
  return ok;
}

}  // namespace

QString PomocRaportu() {
  return QStringLiteral(
      "usage: zorvik-raport --raport NAME --format txt|rtf|pdf|csv [options]\n"
      "\n"
      "Writes a Zorvik report with no window: the same document the report window shows.\n"
      "\n"
      "  --dane DIR                the data folder holding money.fns (default: dane/ beside the\n"
      "                            program)\n"
      "  --raport NAME             transakcje, transfery, konta, kategorie, kontrahenci,\n"
      "                            konta-w-czasie, kategorie-w-czasie, kontrahenci-w-czasie,\n"
      "                            sumaryczny\n"
      "  --okres KIND              wszystko, dzien, tydzien, miesiac (default), kwartal, rok,\n"
      "                            zakres (with --od and --do)\n"
      "  --data YYYY-MM-DD         the working date the period is taken at (default: today)\n"
      "  --od YYYY-MM-DD, --do YYYY-MM-DD   the range of --okres zakres\n"
      "  --konto ID | --rodzaj N   konta, konta-w-czasie: one account, or one kind (1 cash, 2 bank,\n"
      "                            3 credit cards, 4 deposits, 5 loans, 6 other); default all\n"
      "  --kategoria ID            kategorie, kategorie-w-czasie: a category and all below it\n"
      "                            (default: the whole tree)\n"
      "  --rodzaj-kategorii 1|2    1 income, 2 expense (default)\n"
      "  --kontrahent ID           kontrahenci, kontrahenci-w-czasie: one counterparty (default\n"
      "                            all)\n"
      "  --szczegoly               konta, kategorie, kontrahenci: list the entries under each row\n"
      "  --zaplanowane             transakcje, transfery: the planned rows instead of the executed\n"
      "  --edition pl|en           the language of the report (default: the system's)\n"
      "  --format txt|rtf|pdf|csv  the output\n"
      "  --out FILE                write the file (atomically); default: standard output\n"
      "  --help                    this text\n"
      "\n"
      "Exit codes: 0 written, 1 the store or the file failed, 2 bad arguments.\n");
}

bool CzytajArgumentyRaportu(const QStringList& a, ZadanieRaportu* z, QString* blad) {
  const auto zle = [blad](const QString& t) {
    *blad = t;
    return false;
  };
  const auto data = [](const QString& t, QDate* d) {
    *d = QDate::fromString(t, Qt::ISODate);
    return d->isValid();
  };
  bool maRaport = false, maFormat = false;
  for (int i = 0; i < a.size(); ++i) {
    const QString arg = a[i];
    if (arg == QLatin1String("--help") || arg == QLatin1String("-h")) {
      z->pomoc = true;
      return true;
    }
    if (arg == QLatin1String("--szczegoly")) {
      z->szczegoly = true;
      continue;
    }
    if (arg == QLatin1String("--zaplanowane")) {
      z->zaplanowane = true;
      continue;
    }
    static const QStringList zWartoscia{
        QStringLiteral("--dane"),    QStringLiteral("--raport"),     QStringLiteral("--okres"),
        QStringLiteral("--data"),    QStringLiteral("--od"),         QStringLiteral("--do"),
        QStringLiteral("--konto"),   QStringLiteral("--rodzaj"),     QStringLiteral("--kategoria"),
        QStringLiteral("--rodzaj-kategorii"), QStringLiteral("--kontrahent"),
        QStringLiteral("--edition"), QStringLiteral("--format"),     QStringLiteral("--out")};
    if (!zWartoscia.contains(arg)) return zle(QStringLiteral("unknown argument: %1").arg(arg));
    if (i + 1 >= a.size()) return zle(QStringLiteral("%1 needs a value").arg(arg));
    const QString w = a[++i];
    const QString zlaWartosc = QStringLiteral("bad value of %1: %2").arg(arg, w);
    qint64 n = 0;
    if (arg == QLatin1String("--dane")) {
      z->dane = w;
    } else if (arg == QLatin1String("--raport")) {
      bool jest = false;
      for (const NazwaRaportu& r : kRaporty) jest = jest || w == QLatin1String(r.nazwa);
      if (!jest) return zle(QStringLiteral("unknown report: %1").arg(w));
      z->raport = w;
      maRaport = true;
    } else if (arg == QLatin1String("--okres")) {
      int k = -1;
      for (int j = 0; j < int(std::size(kOkresy)); ++j)
        if (w == QLatin1String(kOkresy[j])) k = j;
      if (k < 0) return zle(zlaWartosc);
      z->okres = k;
    } else if (arg == QLatin1String("--data")) {
      if (!data(w, &z->data)) return zle(zlaWartosc);
    } else if (arg == QLatin1String("--od")) {
      if (!data(w, &z->od)) return zle(zlaWartosc);
    } else if (arg == QLatin1String("--do")) {
      if (!data(w, &z->do_)) return zle(zlaWartosc);
    } else if (arg == QLatin1String("--konto")) {
      if (!liczba(w, &n) || n < 1) return zle(zlaWartosc);
      z->konto = n;
    } else if (arg == QLatin1String("--rodzaj")) {
      if (!liczba(w, &n) || n < 1 || n > 6) return zle(zlaWartosc);
      z->rodzaj = int(n);
    } else if (arg == QLatin1String("--kategoria")) {
      z->kategoria = w;
    } else if (arg == QLatin1String("--rodzaj-kategorii")) {
      if (w != QLatin1String("1") && w != QLatin1String("2")) return zle(zlaWartosc);
      z->rodzajKategorii = w.toInt();
    } else if (arg == QLatin1String("--kontrahent")) {
      if (!liczba(w, &n) || n < 0) return zle(zlaWartosc);
      z->kontrahent = n;
    } else if (arg == QLatin1String("--edition")) {
      if (w != QLatin1String("pl") && w != QLatin1String("en")) return zle(zlaWartosc);
      z->jezyk = w == QLatin1String("pl") ? 1 : 2;
    } else if (arg == QLatin1String("--format")) {
      if (w == QLatin1String("txt"))
        z->format = FormatZapisu::Tekst;
      else if (w == QLatin1String("rtf"))
        z->format = FormatZapisu::Rtf;
      else if (w == QLatin1String("pdf"))
        z->format = FormatZapisu::Pdf;
      else if (w == QLatin1String("csv"))
        z->format = FormatZapisu::Csv;
      else
        return zle(zlaWartosc);
      maFormat = true;
    } else if (arg == QLatin1String("--out")) {
      z->wyjscie = w;
    }
  }
  if (!maRaport) return zle(QStringLiteral("--raport NAME is required"));
  if (!maFormat) return zle(QStringLiteral("--format txt|rtf|pdf|csv is required"));
  if (z->konto && z->rodzaj) return zle(QStringLiteral("--konto and --rodzaj exclude each other"));
  if (z->okres == 6 && (!z->od.isValid() || !z->do_.isValid()))
    return zle(QStringLiteral("--okres zakres needs --od and --do"));
  return true;
}

const FormularzRaportu* PrzygotujRaport(const ZadanieRaportu& z) {
  const FormularzRaportu* f = nullptr;
  for (const NazwaRaportu& r : kRaporty)
    if (z.raport == QLatin1String(r.nazwa)) f = ZnajdzFormularz(QLatin1String(r.ekran));
  if (!f) return nullptr;

  FiltrCzasowyRekord& filtr = sesja.pubFiltrCzasowy;
  filtr.rodzaj = z.okres;
  filtr.pozycja = z.data.isValid() ? z.data : Dzis();
  filtr.od = z.od.isValid() ? z.od : filtr.pozycja;
  filtr.do_ = z.do_.isValid() ? z.do_ : filtr.pozycja;
  sesja.pubOkres = FiltrCzasowy(filtr);
  sesja.pubRaportDetaliczny = z.szczegoly;

  // What the browsers and menus hand over: the browser's statement over all accounts.
  sesja.pubTryb = z.zaplanowane ? 1 : 2;
  sesja.pubZapytanieRaportu.clear();
  sesja.pubFiltrTransakcji.clear();
  sesja.pubFiltrTransferow.clear();

  if (z.konto) {
    sesja.pubWezelKont = QStringLiteral("q");
    sesja.pubKonto = KontoRekord{};
    sesja.pubKonto.id = z.konto;
    Rekordy rs = pubBaza().Czytaj(QStringLiteral("SELECT nazwa FROM konta WHERE id=%1").arg(z.konto));
    sesja.pubKonto.nazwa = rs.Tekst(QStringLiteral("nazwa"));
  } else if (z.rodzaj) {
    sesja.pubWezelKont = QStringLiteral("r%1").arg(z.rodzaj);
  } else {
    sesja.pubWezelKont = QStringLiteral("R");
  }
  sesja.pubKategoria.identyfikator = z.kategoria;
  sesja.pubKategoria.rodzaj = z.rodzajKategorii;
  sesja.pubKontrahent.id = z.kontrahent;
  return f;
}

bool WykonajRaport(const ZadanieRaportu& z, QByteArray* wynik, QString* blad) {
  const FormularzRaportu* f = PrzygotujRaport(z);
  if (!f) {
    *blad = QStringLiteral("unknown report: %1").arg(z.raport);
    return false;
  }
  Raport r;
  TworzRaport(*f, r);
  switch (z.format) {
    case FormatZapisu::Tekst:
      *wynik = DoTekstu(r.dok).toUtf8();
      break;
    case FormatZapisu::Rtf:
      *wynik = DoRtf(r.dok);
      break;
    case FormatZapisu::Csv:
      *wynik = DoCsv(r.dok);
      break;
    case FormatZapisu::Pdf:
      *wynik = DoPdf(r.dok, blad);
      if (wynik->isEmpty()) return false;
      break;
  }
  if (!z.wyjscie.isEmpty()) {
    if (!ZapiszPlik(z.wyjscie, *wynik, blad)) return false;
    wynik->clear();
  }
  return true;
}

int UruchomRaport(const QStringList& argumenty, QByteArray* wyjscie, QString* komunikat) {
  ZadanieRaportu z;
  QString blad;
  if (!CzytajArgumentyRaportu(argumenty, &z, &blad)) {
    *komunikat = QStringLiteral("zorvik-raport: %1\n%2").arg(blad, PomocRaportu());
    return 2;
  }
  if (z.pomoc) {
    *wyjscie = PomocRaportu().toUtf8();
    return 0;
  }
  sesja.pubJezyk = z.jezyk ? z.jezyk : (QLocale::system().language() == QLocale::Polish ? 1 : 2);
  sesja.pubSeparator = QLocale::system().decimalPoint();
  if (!z.dane.isEmpty()) UstawFolderDanych(z.dane);
  if (!QFile::exists(PlikBazy())) {
    *komunikat = QStringLiteral("zorvik-raport: no store at %1").arg(PlikBazy());
    return 1;
  }
  if (!OtworzBaze() || !AktualizujBaze()) {
    *komunikat = QStringLiteral("zorvik-raport: the store %1 does not open").arg(PlikBazy());
    return 1;
  }
  WczytajSetup();
  if (!WykonajRaport(z, wyjscie, &blad)) {
    *komunikat = QStringLiteral("zorvik-raport: %1").arg(blad);
    return 1;
  }
  return 0;
}
