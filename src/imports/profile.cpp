#include "imports/profile.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include "store/baza.h"
#include "store/plik.h"

namespace {
QString plikProfili() { return QDir(FolderDanych()).filePath(QStringLiteral("profile_importu.json")); }

QJsonObject wszystkie() {
  QFile f(plikProfili());
  if (!f.open(QIODevice::ReadOnly)) return {};
  return QJsonDocument::fromJson(f.readAll()).object();
}

const char* const pola[] = {"naglowek", "data",       "kwota",    "przychod", "wydatek",
                            "opis",     "kontrahent", "rachunek", "idbanku"};
int* wskazniki(MapowanieCsv& m, int i) {
  int* w[] = {&m.naglowek, &m.data,       &m.kwota,    &m.przychod, &m.wydatek,
              &m.opis,     &m.kontrahent, &m.rachunek, &m.idBanku};
  return w[i];
}
}  // namespace

QStringList ProfileImportu() {
  QStringList n = wszystkie().keys();
  n.sort(Qt::CaseInsensitive);
  return n;
}

std::optional<ProfilImportu> CzytajProfil(const QString& nazwa) {
  const QJsonObject w = wszystkie();
  if (!w.contains(nazwa)) return std::nullopt;
  const QJsonObject o = w.value(nazwa).toObject();
  ProfilImportu p;
  for (int i = 0; i < 9; ++i) *wskazniki(p.mapowanie, i) = o.value(QLatin1String(pola[i])).toInt(-1);
  const QString s = o.value(QStringLiteral("separator")).toString();
  if (!s.isEmpty()) p.mapowanie.separator = s[0];
  p.kodowanie = Kodowanie(o.value(QStringLiteral("kodowanie")).toInt(0));
  return p;
}

bool ZapiszProfil(const QString& nazwa, const ProfilImportu& profil, QString* blad) {
  QJsonObject w = wszystkie();
  QJsonObject o;
  MapowanieCsv m = profil.mapowanie;
  for (int i = 0; i < 9; ++i) o.insert(QLatin1String(pola[i]), *wskazniki(m, i));
  o.insert(QStringLiteral("separator"), m.separator.isNull() ? QString() : QString(m.separator));
  o.insert(QStringLiteral("kodowanie"), int(profil.kodowanie));
  w.insert(nazwa, o);
  return ZapiszPlik(plikProfili(), QJsonDocument(w).toJson(), blad);
}
