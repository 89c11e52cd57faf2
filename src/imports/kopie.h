#pragma once
// Rotating copies of the store in <data folder>/kopie/: the store's file copied as it lies while
// the open connection holds a read lock (so a copy is consistent even while the program writes,
// and costs a file copy, not a re-encryption of every page), read back and compared, still
// encrypted with the store's key; SQLite's online backup where a file copy can't be made. A copy is
// taken before an upgrade of the store's structure, at the first start of a day and at the end of a
// run; only the newest ones are kept.

#include <QDateTime>
#include <QString>
#include <functional>
#include <vector>

// Why a copy was taken; part of its file name.
enum class PowodKopii { Aktualizacja, Start, Koniec, Przywracanie, Reczna };

struct Kopia {
  QString plik;  // full path
  QDateTime kiedy;
  qint64 rozmiar = 0;
  PowodKopii powod = PowodKopii::Reczna;
  int kolejny = 0;  // copies of the same second are numbered 2, 3, ...
};

QString FolderKopii();
// The copies in the folder, newest first (files of other names are left alone).
std::vector<Kopia> ListaKopii();
// How many copies are kept (the setting; 10 unless the user chose otherwise), and its change.
int LiczbaKopiiDoZachowania();
bool UstawLiczbeKopii(int liczba);

// Takes a copy of the open store now, then drops the oldest beyond the setting. The copy lands
// under a temporary name and gets its own only when complete. krok is called between steps of
// the backup (the window's thread yields there); false with the reason in blad on failure.
bool ZrobKopie(PowodKopii powod, QString* blad = nullptr,
               const std::function<void()>& krok = {});
// The copy of the first start of a day, taken in a thread of its own so that the window goes
// on; false when none was started (there is one from today, or no store).
bool ZrobKopieStartuWTle();
// Waits for a copy being taken in the background (before another copy, a restore, the end).
void CzekajNaKopie();
// Removes the oldest copies beyond the setting.
void UsunNadmiarKopii();

// Whether there is a copy taken at a start of today.
bool JestKopiaZDzisiaj();

// Opens a copy with the session's key and runs PRAGMA integrity_check: true when it says "ok".
bool SprawdzKopie(const QString& plik, QString* blad = nullptr);
// The copies that pass their check, newest first: only these are ever offered.
std::vector<Kopia> KopieDoPrzywrocenia();

// Puts the copy in place of the store: checks it again, keeps the current file as one more copy,
// replaces the store file in one rename, reopens it and brings it up to date. Nothing is
// replaced when the check or any step before the rename fails.
bool PrzywrocKopie(const QString& plik, QString* blad = nullptr);

// Installs the copy before an upgrade of the store's structure (AktualizujBaze calls it).
void WlaczKopiePrzedAktualizacja();
