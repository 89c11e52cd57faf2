#include "store/przypomnienia.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>
#include <QStringList>

#include "store/baza.h"
#include "store/dzis.h"
#include "store/session.h"
#include "store/start.h"
#include "store/tekst.h"

namespace {

// Windows-1250 from 0x80 to 0xFF; 0 marks the five bytes the code page leaves unused. Our own
// table, so that the file comes out the same on every build of Qt.
const char16_t kGornaPolowa1250[128] = {
    0x20AC, 0x0000, 0x201A, 0x0000, 0x201E, 0x2026, 0x2020, 0x2021, 0x0000, 0x2030, 0x0160, 0x2039,
    0x015A, 0x0164, 0x017D, 0x0179, 0x0000, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x0000, 0x2122, 0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, 0x00A0, 0x02C7, 0x02D8, 0x0141,
    0x00A4, 0x0104, 0x00A6, 0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B,
    0x00B0, 0x00B1, 0x02DB, 0x0142, 0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB,
    0x013D, 0x02DD, 0x013E, 0x017C, 0x0154, 0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7,
    0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD, 0x00CE, 0x010E, 0x0110, 0x0143, 0x0147, 0x00D3,
    0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA, 0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF,
    0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7, 0x010D, 0x00E9, 0x0119, 0x00EB,
    0x011B, 0x00ED, 0x00EE, 0x010F, 0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4, 0x0151, 0x00F6, 0x00F7,
    0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9,
};

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
  QByteArray wynik;
  wynik.reserve(tekst.size());
  for (QChar c : tekst) {
    const char16_t u = c.unicode();
    char bajt = '?';
    if (u < 0x80) {
      bajt = char(u);
    } else {
      for (int i = 0; i < 128; ++i)
        if (kGornaPolowa1250[i] == u) {
          bajt = char(0x80 + i);
          break;
        }
    }
    wynik += bajt;
  }
  return wynik;
}

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

  QByteArray tresc;
  for (const QString& l : linie) tresc += DoWindows1250(l) + "\r\n";
  QSaveFile plik(QDir(FolderDanych()).filePath(QStringLiteral("cont.rmd")));
  if (!plik.open(QIODevice::WriteOnly)) return porazka(plik.errorString());
  if (plik.write(tresc) != tresc.size()) {
    const QString powod = plik.errorString();
    plik.cancelWriting();
    return porazka(powod);
  }
  if (!plik.commit()) return porazka(plik.errorString());
  return true;
}

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
  return false;
}
