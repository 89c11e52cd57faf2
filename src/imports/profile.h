#pragma once
// Column mappings of CSV statements remembered by name (a profile per bank), in
// <data folder>/profile_importu.json.

#include <QString>
#include <QStringList>
#include <optional>

#include "imports/wyciag.h"

struct ProfilImportu {
  MapowanieCsv mapowanie;
  Kodowanie kodowanie = Kodowanie::Auto;
};

QStringList ProfileImportu();
std::optional<ProfilImportu> CzytajProfil(const QString& nazwa);
// Saves (or replaces) the profile; false with the reason in blad when the file can't be written.
bool ZapiszProfil(const QString& nazwa, const ProfilImportu& profil, QString* blad = nullptr);
