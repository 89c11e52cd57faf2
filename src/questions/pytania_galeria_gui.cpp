#include "questions/pytania_galeria_gui.h"

#include <QTreeWidget>

#include "questions/frmUstawieniaInternetowe.h"
#include "questions/frmZadajPytanie.h"
#include "questions/frmZadajPytanieEdycja.h"
#include "questions/logowanie.h"
#include "questions/pytania.h"
#include "store/baza.h"
#include "store/dzis.h"
#include "store/session.h"
#include "store/tekst.h"

namespace {
// Sample questions as a user writes them, with the service's answers.
struct Przyklad {
  const char* pytanie;
  int wyslane;    // days ago; -1: not sent
  int odpowiedz;  // days ago; -1: no answer
  const char* tresc;
};
const Przyklad przyklady[] = {
    {"Jak przenieść dane programu na nowy komputer razem z hasłem?", 12, 9,
     "Skopiuj cały folder dane/ na nowy komputer, do folderu programu. Hasło jest zapisane w "
     "pliku danych, więc przejdzie razem z nim."},
    {"Czy mogę prowadzić w programie dwa budżety domowe?", 20, 18,
     "Każdy budżet to osobny plik danych: uruchom program z opcją --dane i wskaż inny folder."},
    {"Kredyt hipoteczny - jak zapisać ratę, w której część to odsetki?", 3, -1, nullptr},
    {"Jak ustawić limit wydatków na jedzenie dla całego roku?", -1, -1, nullptr},
    {"Czy raport kategorii można zapisać do PDF?", -1, -1, nullptr},
};

qint64 wstaw(const Przyklad& p) {
  const QDate dzis = Dzis();
  QString sql =
      QStringLiteral(
          "INSERT INTO pytania (pytanie, datawyslania, idpytania, "
          "dataodpowiedzi, odpowiedz) VALUES (%1, %2, %3, %4, %5)")
          .arg(SqlTekst(QString::fromUtf8(p.pytanie)),
               p.wyslane < 0
                   ? QStringLiteral("Null")
                   : QLatin1Char('#') + ZapisDaty(dzis.addDays(-p.wyslane)) + QLatin1Char('#'),
               p.wyslane < 0 ? QStringLiteral("Null") : SqlTekst(QString::number(4100 + p.wyslane)),
               p.odpowiedz < 0
                   ? QStringLiteral("Null")
                   : QLatin1Char('#') + ZapisDaty(dzis.addDays(-p.odpowiedz)) + QLatin1Char('#'),
               p.tresc ? SqlTekst(QString::fromUtf8(p.tresc)) : QStringLiteral("Null"));
  pubBaza().Wykonaj(sql);
  return pubBaza().OstatnieId();
}

// Builds the screen over the sample questions and forgets them again.
template <typename Budowa>
std::unique_ptr<QWidget> naPrzykladach(Budowa budowa) {
  OtworzBaze();
  std::unique_ptr<QWidget> okno;
  pubBaza().Transakcja([&] {
    pubBaza().Wykonaj(QStringLiteral("DELETE FROM pytania"));
    std::vector<qint64> id;
    for (const Przyklad& p : przyklady) id.push_back(wstaw(p));
    okno = budowa(id);
    return false;
  });
  return okno;
}
}  // namespace

std::unique_ptr<QWidget> GaleriaPytan() {
  // The list opens without asking for a login.
  if (sesja.pubUstawienia.userid.isEmpty())
    sesja.pubUstawienia.userid = QStringLiteral("jan.kowalski");
  return naPrzykladach([](const std::vector<qint64>& id) {
    auto f = std::make_unique<frmZadajPytanie>();
    auto* lista = f->findChild<QTreeWidget*>(QStringLiteral("lvwPytania"));
    for (int i = 0; i < lista->topLevelItemCount(); ++i)
      if (IdZKlucza(lista->topLevelItem(i)->data(0, Qt::UserRole).toString()) == id.front())
        lista->setCurrentItem(lista->topLevelItem(i));
    return f;
  });
}

std::unique_ptr<QWidget> GaleriaEdycjiPytania() {
  return naPrzykladach([](const std::vector<qint64>& id) {
    pubPytanie = id[3];
    auto f = std::make_unique<frmZadajPytanieEdycja>();
    pubPytanie = 0;
    return f;
  });
}

std::unique_ptr<QWidget> GaleriaUstawienInternetowych() {
  return naPrzykladach([](const std::vector<qint64>&) {
    const Ustawienia dawne = sesja.pubUstawienia;
    ZapiszLogowanie({QStringLiteral("jan.kowalski"), QStringLiteral("tajne-haslo"), QString()});
    auto f = std::make_unique<frmUstawieniaInternetowe>();
    sesja.pubUstawienia = dawne;
    return f;
  });
}
