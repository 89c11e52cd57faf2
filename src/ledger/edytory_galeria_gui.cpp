#include "ledger/edytory_galeria_gui.h"

#include <QLineEdit>

#include "ledger/frmEdycjaTransakcji.h"
#include "ledger/frmEdycjaTransakcjiWewnetrznej.h"
#include "masterdata/konta.h"
#include "store/baza.h"
#include "store/session.h"
#include "store/tekst.h"

namespace {

qint64 pierwszy(const QString& sql) {
  OtworzBaze();
  return pubBaza().Czytaj(sql).Pole(0).toLongLong();
}

KontoRekord wybraneKonto(qint64 id) {
  KontoRekord k;
  k.id = id;
  OpisKonta(k);
  k.saldo = SaldoKonta(id);
  k.datautworzenia = DataUtworzeniaKonta(id);
  return k;
}

void przygotuj(int tryb, qint64 id, int rodzaj) {
  OtworzBaze();
  sesja.pubTryb = tryb;
  sesja.pubTransakcja.id = id;
  sesja.pubTransakcja.rodzaj = rodzaj;
  sesja.pubKategoria.rodzaj = rodzaj;
  sesja.pubWidokZrodlowy = 0;
  sesja.pubPrzedefiniowanyKontrahent = 0;
  sesja.pubPrzedefiniowanaData = QDate();
}

}  // namespace

std::unique_ptr<QWidget> GaleriaNowegoPrzychodu() {
  przygotuj(2, 0, 1);
  return std::make_unique<frmEdycjaTransakcji>();
}

std::unique_ptr<QWidget> GaleriaNowegoWydatku() {
  przygotuj(2, 0, 2);
  auto f = std::make_unique<frmEdycjaTransakcji>();
  // What the three pickers leave behind.
  sesja.pubKonto = wybraneKonto(
      pierwszy(QStringLiteral("SELECT TOP 1 id FROM konta WHERE rodzaj=2 ORDER BY id")));
  const Rekordy k =
      pubBaza().Czytaj(QStringLiteral("SELECT TOP 1 identyfikator FROM kategorie AS k WHERE "
                                      "rodzaj=2 AND LEN(identyfikator)>1 AND NOT EXISTS "
                                      "(SELECT id FROM kategorie AS d WHERE d.rodzaj=2 AND "
                                      "d.kategoria=k.identyfikator) ORDER BY identyfikator"));
  sesja.pubKategoria.identyfikator = Oczysc(k.Pole(0));
  sesja.pubKontrahent.id =
      pierwszy(QStringLiteral("SELECT TOP 1 id FROM kontrahent ORDER BY skrocona"));
  f->OdswiezEtykiety();
  f->findChild<QLineEdit*>(QStringLiteral("txtKwota"))->setText(FormatKwotyEdycja(249.99));
  f->findChild<QLineEdit*>(QStringLiteral("txtOpis"))->setText(QStringLiteral("Zakupy na weekend"));
  return f;
}

std::unique_ptr<QWidget> GaleriaZaplanowanegoWpisu() {
  const qint64 id =
      pierwszy(QStringLiteral("SELECT TOP 1 zaplanowane.id FROM zaplanowane, konta WHERE "
                              "zaplanowane.konto=konta.id AND wydatek>0 "
                              "AND kontrahent>0 ORDER BY data DESC"));
  przygotuj(1, id, 2);
  return std::make_unique<frmEdycjaTransakcji>();
}

std::unique_ptr<QWidget> GaleriaNowegoTransferu() {
  przygotuj(2, 0, 3);
  sesja.pubTransfer = 0;
  auto f = std::make_unique<frmEdycjaTransakcjiWewnetrznej>();
  f->ZKonta() = wybraneKonto(
      pierwszy(QStringLiteral("SELECT TOP 1 id FROM konta WHERE rodzaj=2 ORDER BY id")));
  f->NaKonto() = wybraneKonto(
      pierwszy(QStringLiteral("SELECT TOP 1 id FROM konta WHERE rodzaj=1 ORDER BY id")));
  f->OdswiezEtykiety();
  f->findChild<QLineEdit*>(QStringLiteral("txtKwota"))->setText(FormatKwotyEdycja(500));
  return f;
}

std::unique_ptr<QWidget> GaleriaZaplanowanegoTransferu() {
  przygotuj(1, 0, 3);
  sesja.pubTransfer =
      pierwszy(QStringLiteral("SELECT TOP 1 id FROM zaplanowanewewnetrzne ORDER BY data DESC"));
  return std::make_unique<frmEdycjaTransakcjiWewnetrznej>();
}
