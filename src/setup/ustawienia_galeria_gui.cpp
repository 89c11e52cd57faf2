#include "setup/ustawienia_galeria_gui.h"

#include <QApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QStandardPaths>
#include <QTreeWidget>

#include "ledger/edytory_galeria_gui.h"
#include "mainwindow/frmMain.h"
#include "setup/frmKolory.h"
#include "setup/frmKonfiguracja.h"
#include "setup/frmKreatorKategorie.h"
#include "setup/frmKreatorKolory.h"
#include "setup/frmKreatorKonta.h"
#include "setup/frmKreatorKontrahenci.h"
#include "setup/frmKreatorWitamy.h"
#include "setup/frmOProgramie.h"
#include "setup/frmPomoc.h"
#include "setup/frmPrzypomnienia.h"
#include "setup/frmUstawienia.h"
#include "setup/kolorowanie_gui.h"
#include "setup/kolory.h"
#include "store/baza.h"
#include "store/dzis.h"
#include "store/przypomnienia.h"
#include "store/session.h"
#include "store/tekst.h"

namespace {
std::unique_ptr<QWidget> glowne() {
  auto f = std::make_unique<frmMain>();
  f->resize(1100, 720);
  return f;
}

QPixmap obraz(QWidget* w) {
  w->setAttribute(Qt::WA_DontShowOnScreen);
  w->show();
  QApplication::processEvents();
  const QPixmap p = w->grab();
  w->hide();
  return p;
}

// A window as it looks in one profile while it has the focus: built and drawn with the profile
// as the user's colours (lists refilled on show stripe themselves from those), the active set
// forced, since a window drawn off screen never has the focus. The session's colours come back
// right after.
std::unique_ptr<QWidget> wProfilu(const std::function<std::unique_ptr<QWidget>()>& zbuduj,
                                  int profil) {
  const QStringList dawne = KoloryUstawien(sesja.pubUstawienia);
  UstawKoloryUstawien(sesja.pubUstawienia, ProfilKolorow(profil));
  std::unique_ptr<QWidget> w = zbuduj();
  w->setProperty("bezKolorow", true);
  PomalujOkno(w.get(), ProfilKolorow(profil), StanOkna::Aktywne);
  const QPixmap p = obraz(w.get());
  UstawKoloryUstawien(sesja.pubUstawienia, dawne);
  auto plansza = std::make_unique<QLabel>();
  plansza->setProperty("bezKolorow", true);
  plansza->setWindowTitle(w->windowTitle());
  plansza->setPixmap(p);
  plansza->setFixedSize(p.deviceIndependentSize().toSize());
  return plansza;
}

// The same editor twice: as the window with the focus, and as one that lost it.
std::unique_ptr<QWidget> paraAktywnaNieaktywna() {
  auto plansza = std::make_unique<QWidget>();
  plansza->setWindowTitle(QStringLiteral("Zorvik"));
  auto* uklad = new QHBoxLayout(plansza.get());
  for (StanOkna stan : {StanOkna::Aktywne, StanOkna::Nieaktywne}) {
    std::unique_ptr<QWidget> e = GaleriaNowegoWydatku();
    e->setProperty("bezKolorow", true);
    PomalujOkno(e.get(), KoloryUstawien(sesja.pubUstawienia), stan);
    auto* l = new QLabel(plansza.get());
    l->setPixmap(obraz(e.get()));
    uklad->addWidget(l, 0, Qt::AlignTop);
  }
  return plansza;
}

std::unique_ptr<QWidget> krokKategorii() {
  sesja.pubTypKreatora = 4;
  auto f = std::make_unique<frmKreatorKategorie>();
  f->findChild<QTreeWidget*>(QStringLiteral("tvwKategorie"))->expandAll();
  return f;
}

std::unique_ptr<QWidget> krokKolorow() {
  sesja.pubProfilKreatora = 1;
  return std::make_unique<frmKreatorKolory>();
}

// The companion over the reminder file the program writes for the sample store, with a day of
// payments due.
std::unique_ptr<QWidget> przypomnienia() {
  ZapiszPrzypomnienia();
  return std::make_unique<frmPrzypomnienia>(SciezkaPrzypomnien(), QString());
}

// The help window at the wizard's page, as F1 in a wizard step opens it.
std::unique_ptr<QWidget> pomoc() {
  auto f = std::make_unique<frmPomoc>();
  f->PokazStrone(QStringLiteral("kreator"));
  return f;
}
}  // namespace

std::vector<EkranGaleriiUstawien> GaleriaUstawien() {
  std::vector<EkranGaleriiUstawien> w = {
      {QStringLiteral("frmKreatorWitamy"), [] { return std::make_unique<frmKreatorWitamy>(); }},
      {QStringLiteral("frmKreatorKategorie"), krokKategorii},
      {QStringLiteral("frmKreatorKonta"), [] { return std::make_unique<frmKreatorKonta>(); }},
      {QStringLiteral("frmKreatorKontrahenci"),
       [] { return std::make_unique<frmKreatorKontrahenci>(); }},
      {QStringLiteral("frmKreatorKolory"), krokKolorow},
      {QStringLiteral("frmKolory"), [] { return std::make_unique<frmKolory>(); }},
      {QStringLiteral("frmUstawienia"), [] { return std::make_unique<frmUstawienia>(); }},
      {QStringLiteral("frmKonfiguracja"), [] { return std::make_unique<frmKonfiguracja>(); }},
      {QStringLiteral("frmPrzypomnienia"), przypomnienia},
      {QStringLiteral("frmPomoc"), pomoc},
      {QStringLiteral("frmOProgramie"), [] { return std::make_unique<frmOProgramie>(); }},
      {QStringLiteral("kolory-aktywne-nieaktywne"), paraAktywnaNieaktywna},
  };
  for (int p = 0; p < LiczbaProfili; ++p) {
    w.push_back(
        {QStringLiteral("kolory-profil%1-frmMain").arg(p), [p] { return wProfilu(glowne, p); }});
    w.push_back({QStringLiteral("kolory-profil%1-frmEdycjaTransakcji").arg(p),
                 [p] { return wProfilu(GaleriaNowegoWydatku, p); }});
  }
  return w;
}
