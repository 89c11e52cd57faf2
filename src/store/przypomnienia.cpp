#include "store/przypomnienia.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStringEncoder>
#include <QStringList>

#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/dzis.h"
#include "store/napis.h"
#include "store/plik.h"
#include "store/session.h"
#include "store/start.h"
#include "store/tekst.h"

namespace {

const QChar kSeparator(0x00AE);  // byte 174 in Windows-1250

// A field never carries the separator or a line break: either would break the companion's
// reading of the line.
QString pole(QString tekst) {
  tekst.replace(kSeparator, QStringLiteral("(R)"));
  tekst.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
  tekst.replace(QLatin1Char('\r'), QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' '));
  return tekst;
}

QString linia(const QStringList& pola) {
  QStringList czyste;
  for (const QString& p : pola) czyste << pole(p);
  return czyste.join(kSeparator);
}

QDate dataPola(const Rekordy& rs) {
  return QDate::fromString(rs.Tekst(QStringLiteral("data")).left(10), Qt::ISODate);
}

}  // namespace

QByteArray DoWindows1250(const QString& tekst) {
  // Qt's converter knows the code page through ICU. It marks a character the code page lacks
  // with a control byte, which the companion would show as garbage: such characters become '?'.
  QStringEncoder kodek("windows-1250", QStringConverter::Flag::Stateless);
  if (!kodek.isValid()) return {};
  QByteArray wynik = kodek.encode(tekst);
  if (!kodek.hasError()) return wynik;
  wynik.clear();
  wynik.reserve(tekst.size());
  for (qsizetype i = 0; i < tekst.size();) {
    const qsizetype dlugosc = tekst.at(i).isHighSurrogate() && i + 1 < tekst.size() ? 2 : 1;
    QStringEncoder znak("windows-1250", QStringConverter::Flag::Stateless);
    const QByteArray bajty = znak.encode(QStringView(tekst).mid(i, dlugosc));
    wynik += znak.hasError() || bajty.isEmpty() ? QByteArray("?") : bajty;
    i += dlugosc;
  }
  return wynik;
}

bool KodowanieWindows1250() { return QStringEncoder("windows-1250").isValid(); }

bool ZapiszPrzypomnienia(QString* blad) {
  auto porazka = [&](const QString& powod) {
    ZapiszLog(QStringLiteral("reminder file: ") + powod);
    if (blad) *blad = powod;
    return false;
  };
  if (!OtworzBaze()) return porazka(QStringLiteral("the store did not open"));
  Baza& b = pubBaza();
  const QDate dzis = Dzis();
  QStringList linie;
  linie << pole(ImionaDnia());
  linie << pole(b.Czytaj(QStringLiteral("SELECT * FROM setup")).Tekst(QStringLiteral("imie")));

  // Entries oldest first, the newest id first within a day.
  Rekordy rs = b.Czytaj(
      QStringLiteral(
          "SELECT zaplanowane.id AS id, zaplanowane.data AS data, zaplanowane.przychod AS "
          "przychod, "
          "zaplanowane.wydatek AS wydatek, zaplanowane.opis AS opis, kategorie.nazwa AS kategoria, "
          "kontrahent.skrocona AS kontrahent, konta.nazwa AS konto FROM ((zaplanowane INNER JOIN "
          "konta ON zaplanowane.konto = konta.id) INNER JOIN kategorie ON (kategorie.rodzaj = "
          "zaplanowane.rodzaj) AND (zaplanowane.kategoria = kategorie.identyfikator)) LEFT JOIN "
          "kontrahent ON zaplanowane.kontrahent = kontrahent.id WHERE zaplanowane.data<=#") +
      ZapisDaty(dzis) + QStringLiteral("# ORDER BY zaplanowane.data,zaplanowane.id DESC"));
  for (; !rs.Eof(); rs.MoveNext()) {
    const double przychod = PoleRekordu(rs, QStringLiteral("przychod"));
    const double wydatek = PoleRekordu(rs, QStringLiteral("wydatek"));
    // The kind words are part of the file's contract with the companion, the same in every
    // edition.
    linie << linia({FormatDaty(dataPola(rs), sesja.pubFormatDaty_ddpmmm),
                    przychod > 0 ? QStringLiteral("Przychód") : QStringLiteral("Wydatek"),
                    FormatKwoty(przychod + wydatek), rs.Tekst(QStringLiteral("konto")),
                    rs.Tekst(QStringLiteral("kategoria")), rs.Tekst(QStringLiteral("kontrahent")),
                    rs.Tekst(QStringLiteral("opis"))});
  }

  // Transfers newest first.
  rs = b.Czytaj(
      QStringLiteral("SELECT zaplanowanewewnetrzne.id AS id, zaplanowanewewnetrzne.data AS data, "
                     "zaplanowanewewnetrzne.kwota AS kwota, zaplanowanewewnetrzne.opis AS opis, "
                     "konta.nazwa AS "
                     "zkonta, kontaprim.nazwa AS nakonto FROM zaplanowanewewnetrzne, konta, konta "
                     "AS kontaprim "
                     "WHERE konta.id=zaplanowanewewnetrzne.zkonta AND "
                     "kontaprim.id=zaplanowanewewnetrzne.nakonto "
                     "AND zaplanowanewewnetrzne.data<=#") +
      ZapisDaty(dzis) +
      QStringLiteral("# ORDER BY zaplanowanewewnetrzne.data DESC,zaplanowanewewnetrzne.id DESC"));
  for (; !rs.Eof(); rs.MoveNext())
    linie << linia(
        {FormatDaty(dataPola(rs), sesja.pubFormatDaty_ddpmmm), QStringLiteral("Transfer"),
         FormatKwoty(PoleRekordu(rs, QStringLiteral("kwota"))), rs.Tekst(QStringLiteral("zkonta")),
         rs.Tekst(QStringLiteral("nakonto")), QString(), rs.Tekst(QStringLiteral("opis"))});

  if (!KodowanieWindows1250())
    return porazka(QStringLiteral("this build of Qt cannot write Windows-1250"));
  QByteArray tresc;
  for (const QString& l : linie) tresc += DoWindows1250(l) + "\r\n";
  // The old file stays whole unless every byte of the new one reached the disk.
  QString powod;
  if (!ZapiszPlik(SciezkaPrzypomnien(), tresc, &powod)) return porazka(powod);
  return true;
}

bool ZapiszPrzypomnieniaIPowiadom() {
  QString powod;
  if (ZapiszPrzypomnienia(&powod)) return true;
  MyMsgbox(TekstBleduZapisu(SciezkaPrzypomnien(), powod), Napis(QStringLiteral("Module161")), MsgOK,
           IkonaOstrzezenie);
  return false;
}

QString SciezkaPrzypomnien() { return QDir(FolderDanych()).filePath(QStringLiteral("cont.rmd")); }

bool UruchomPrzypominacz() {
  const QDir dane(FolderDanych());
  for (const QString& nazwa : {QStringLiteral("timer.exe"), QStringLiteral("timer")}) {
    const QFileInfo program(dane.filePath(nazwa));
    if (!program.isFile() || !program.isExecutable()) continue;
    // The companion runs from the program's folder, as it always has.
    QDir folderProgramu = dane;
    folderProgramu.cdUp();
    return QProcess::startDetached(program.absoluteFilePath(), {}, folderProgramu.absolutePath());
  }
  // Our own companion, built and installed beside the program zorvik (other programs of the
  // build, the tests among them, have none): told where the file is and in which edition.
  const QFileInfo towarzysz(QDir(QCoreApplication::applicationDirPath())
                                .filePath(QStringLiteral("zorvik-przypomnienia")));
  const bool program =
      QFileInfo(QCoreApplication::applicationFilePath()).fileName() == QLatin1String("zorvik");
  if (program && towarzysz.isFile() && towarzysz.isExecutable())
    return QProcess::startDetached(
        towarzysz.absoluteFilePath(),
        {QStringLiteral("--edition"), sesja.pubJezyk == 1 ? QStringLiteral("pl") : QStringLiteral("en"),
         SciezkaPrzypomnien()},
        towarzysz.absolutePath());
  return false;
}
