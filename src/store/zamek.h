#pragma once
// The lock of the store: changing the key the store file is encrypted with. A store without a
// password has the program's own key; a password locks it with a key the store's encryption
// derives from the password (its own salt and iterations), so that the file is of no use
// without it.

#include <QByteArray>
#include <QString>

// Puts the program's store under a new key (the program's own when empty). A copy under the new
// key, with setup.haslo set to hasloWBazie (null: no password), is made beside the store,
// checked table by table and put in place of the old file in one rename; the old file is kept
// until the new one has opened. Whenever the process stops, the store's path holds a file that
// opens with the old key or with the new one. The store is open under the new key afterwards;
// on failure it is open under the old key, unchanged, and the reason is logged and returned.
bool PrzekluczBaze(const QByteArray& nowyKlucz, const QString& hasloWBazie,
                   QString* blad = nullptr);

// Removes what an interrupted change of key left beside the store (an unfinished copy, the kept
// old file). Call it only while the store itself opens.
void UsunResztkiPrzekluczenia();

// Moves a store whose pages are smaller than new stores' (one made by an earlier version) to the
// new page size, through the same checked copy and swap under the session's key: the password,
// if any, stays. Nothing to do for a store of the new size. On failure (a full disk, say) the
// store stays open as it was, and the reason is logged and returned.
bool PrzeniesNaNoweStrony(QString* blad = nullptr);
