#pragma once
// Every file the program writes (reminder file, reports, exports, backups) goes through here:
// the new content lands in a temporary file beside the target, every byte is checked to have
// reached the disk, and only then does it replace the old file in one rename. On any failure
// the old file stays as it was and the reason is returned.

#include <QByteArray>
#include <QString>

// Writes dane to sciezka atomically, readable and writable by the user alone (0600); a link is
// followed and stays a link. False with the system's reason in blad (when given) if anything
// failed; the error is also logged with the file's path.
bool ZapiszPlik(const QString& sciezka, const QByteArray& dane, QString* blad = nullptr);

// The message that tells the user a file could not be written: which file, why, and that its
// former content is still there.
QString TekstBleduZapisu(const QString& sciezka, const QString& powod);
