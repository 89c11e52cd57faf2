#include "setup/kolory.h"

#include <QColor>

#include "store/baza.h"
#include "store/session.h"

const QStringList& KolumnyKolorow() {
  static const QStringList k = {
      QStringLiteral("tloaktywne"),      QStringLiteral("napisyaktywne"),
      QStringLiteral("przyciskiaktywne"), QStringLiteral("etykietyaktywne"),
      QStringLiteral("napisyetykietaktywne"), QStringLiteral("listajeden"),
      QStringLiteral("listadwa"),        QStringLiteral("tlonieaktywne"),
      QStringLiteral("napisynieaktywne")};
  return k;
}

const QStringList& ProfilKolorow(int indeks) {
  static const QStringList profile[LiczbaProfili] = {
      {"&H8000000F", "&H80000012", "&H8000000F", "12632256", "986895", "&H00FFFFFF", "15724527",
       "&H8000000F", "&H80000012"},
      {"12303359", "986895", "16777139", "8454143", "4194304", "16777215", "10812380",
       "15724527", "986895"},
      {"14997831", "986895", "16744448", "10485760", "16777215", "16777215", "16775108",
       "8421440", "65535"},
      {"11583073", "986895", "11075507", "10460928", "986895", "16777215", "13827985",
       "11513775", "986895"},
      {"11467263", "986895", "55807", "11467263", "4194304", "16777215", "11467263", "15724527",
       "986895"},
      {"2039583", "16777215", "8421504", "6250335", "16777215", "8355711", "5197647", "8421440",
       "65535"},
  };
  return profile[indeks >= 0 && indeks < LiczbaProfili ? indeks : 1];
}

int KtoryProfil(const QStringList& kolory) {
  for (int i = 0; i < LiczbaProfili; ++i) {
    const QStringList& p = ProfilKolorow(i);
    bool rowne = kolory.size() == LiczbaKolorow;
    for (int k = 0; rowne && k < LiczbaKolorow; ++k)
      rowne = kolory[k].trimmed().compare(p[k], Qt::CaseInsensitive) == 0;
    if (rowne) return i;
  }
  return -1;
}


QStringList KoloryUstawien(const Ustawienia& u) {
  return {u.tloaktywne,      u.napisyaktywne, u.przyciskiaktywne,
          u.etykietyaktywne, u.napisyetykietaktywne, u.listajeden,
          u.listadwa,        u.tlonieaktywne, u.napisynieaktywne};
}

void UstawKoloryUstawien(Ustawienia& u, const QStringList& kolory) {
  QString* p[] = {&u.tloaktywne,      &u.napisyaktywne,        &u.przyciskiaktywne,
                  &u.etykietyaktywne, &u.napisyetykietaktywne, &u.listajeden,
                  &u.listadwa,        &u.tlonieaktywne,        &u.napisynieaktywne};
  for (int i = 0; i < LiczbaKolorow; ++i) *p[i] = kolory.value(i);
}

bool ZapiszKoloryWBazie(const QStringList& kolory) {
  if (!OtworzBaze()) return false;
  Baza& b = pubBaza();
  const Rekordy rs = b.Czytaj(QStringLiteral("SELECT * FROM setup"));
  if (!rs.Ok()) return false;
  QStringList wartosci;
  for (int i = 0; i < LiczbaKolorow; ++i) wartosci << SqlTekst(kolory.value(i));
  if (rs.Eof())
    return bool(b.Wykonaj(QStringLiteral("INSERT INTO setup (") +
                          KolumnyKolorow().join(QLatin1Char(',')) + QStringLiteral(") VALUES (") +
                          wartosci.join(QLatin1Char(',')) + QLatin1Char(')')));
  QStringList set;
  for (int i = 0; i < LiczbaKolorow; ++i) set << KolumnyKolorow()[i] + QLatin1Char('=') + wartosci[i];
  return bool(b.Wykonaj(QStringLiteral("UPDATE setup SET ") + set.join(QLatin1Char(','))));
}

QString TekstKoloru(const QColor& kolor) {
  if (!kolor.isValid()) return {};
  const quint32 v = quint32(kolor.red()) | (quint32(kolor.green()) << 8) |
                    (quint32(kolor.blue()) << 16);
  return v == 0 ? QString() : QString::number(v);
}
