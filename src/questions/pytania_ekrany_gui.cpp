#include "questions/pytania_ekrany_gui.h"

#include "questions/frmUstawieniaInternetowe.h"
#include "questions/frmZadajPytanie.h"
#include "ui/nawigacja_gui.h"

void ZarejestrujEkranyPytan() {
  Nawigacja::Zarejestruj(QStringLiteral("frmZadajPytanie"),
                         [](QWidget* rodzic) { frmZadajPytanie(rodzic).exec(); });
  Nawigacja::Zarejestruj(QStringLiteral("frmUstawieniaInternetowe"),
                         [](QWidget* rodzic) { frmUstawieniaInternetowe(rodzic).exec(); });
}
