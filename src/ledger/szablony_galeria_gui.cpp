#include "ledger/szablony_galeria_gui.h"

#include <QCheckBox>
#include <QLineEdit>

#include "ledger/frmEdycjaOkresowych.h"
#include "ledger/frmEdycjaSzablonuWewnetrznego.h"
#include "ledger/frmEdycjaSzablonuZewnetrznego.h"
#include "ledger/frmOkresowe.h"
#include "ledger/frmParagon.h"
#include "ledger/frmSzablonyWewnetrzne.h"
#include "ledger/frmSzablonyZewnetrzne.h"
#include "masterdata/konta.h"
#include "store/baza.h"
#include "store/session.h"
#include "store/tekst.h"

namespace {

qint64 pierwszy(const QString& sql) {
  OtworzBaze();
  return pubBaza().Czytaj(sql).Pole(0).toLongLong();
}
QString pierwszyTekst(const QString& sql) {
  OtworzBaze();
  return Oczysc(pubBaza().Czytaj(sql).Pole(0));
}
// Expense categories without children, as the receipt's lines take them.
QStringList liscie(int ile) {
  QStringList w;
  for (Rekordy rs = pubBaza().Czytaj(QStringLiteral(
           "SELECT identyfikator FROM kategorie AS k WHERE rodzaj=2 AND LEN(identyfikator)>1 AND "
           "NOT EXISTS (SELECT id FROM kategorie AS d WHERE d.rodzaj=2 AND "
           "d.kategoria=k.identyfikator) ORDER BY identyfikator"));
       !rs.Eof() && w.size() < ile; rs.MoveNext())
    w << Oczysc(rs.Pole(0));
  return w;
}

// A few rules for the sample store, marked as planned far ahead so that showing them changes no
// planned row of the other pictures.
void reguly() {
  if (pierwszy(QStringLiteral("SELECT COUNT(*) AS ile FROM okresowe")) > 0) return;
  const qint64 bank =
      pierwszy(QStringLiteral("SELECT TOP 1 id FROM konta WHERE rodzaj=2 ORDER BY id"));
  const qint64 gotowka =
      pierwszy(QStringLiteral("SELECT TOP 1 id FROM konta WHERE rodzaj=1 ORDER BY id"));
  const QStringList k = liscie(3);
  const QString przychod = pierwszyTekst(
      QStringLiteral("SELECT TOP 1 identyfikator FROM kategorie WHERE rodzaj=1 ORDER BY id"));
  const qint64 kontrahent =
      pierwszy(QStringLiteral("SELECT TOP 1 id FROM kontrahent ORDER BY skrocona"));
  struct R {
    int rodzaj;
    qint64 konto, naKonto;
    QString kategoria;
    qint64 kontrahent;
    const char* opis;
    double kwota;
    const char *od, *do_;
    int czestotliwosc, weekend;
  };
  const R r[] = {
      {2, bank, 0, k.value(0), kontrahent, "Czynsz za mieszkanie", 1450, "2026-01-10", "", 4, 2},
      {1, bank, 0, przychod, 0, "Pensja", 6200, "2025-11-28", "", 4, 1},
      {3, bank, gotowka, QString(), 0, "Kieszonkowe", 150, "2026-01-05", "2026-12-31", 3, 0},
      {2, bank, 0, k.value(1), 0, "Ubezpieczenie OC", 980.5, "2026-03-15", "", 7, 2},
      {2, gotowka, 0, k.value(2), 0, "Obiady w pracy", 22, "2026-02-02", "2026-06-30", 2, 0},
  };
  for (const R& x : r)
    pubBaza().Wykonaj(
        QStringLiteral("INSERT INTO okresowe (rodzaj,konto,nakonto,kategoria,kontrahent,opis,"
                       "kwota,oddaty,dodaty,czestotliwosc,weekend,wygenerowanodo) VALUES "
                       "(%1,%2,%3,%4,%5,%6,%7,%8,%9,%10,%11,'2999-12-31')")
            .arg(x.rodzaj)
            .arg(x.konto)
            .arg(x.naKonto)
            .arg(SqlTekst(x.kategoria))
            .arg(x.kontrahent)
            .arg(SqlTekst(QString::fromUtf8(x.opis)))
            .arg(x.kwota)
            .arg(SqlTekst(QLatin1String(x.od)), SqlTekst(QLatin1String(x.do_)))
            .arg(x.czestotliwosc)
            .arg(x.weekend));
}

}  // namespace

std::unique_ptr<QWidget> GaleriaSzablonow(bool wybor) {
  OtworzBaze();
  sesja.pubSzablonRodzaj = wybor ? 1 : 2;
  sesja.pubSzablonWybor = wybor ? 1 : 2;
  auto f = std::make_unique<frmSzablonyZewnetrzne>();
  sesja.pubSzablonWybor = 2;
  return f;
}

std::unique_ptr<QWidget> GaleriaSzablonowWewnetrznych() {
  OtworzBaze();
  sesja.pubSzablonWybor = 2;
  return std::make_unique<frmSzablonyWewnetrzne>();
}

std::unique_ptr<QWidget> GaleriaEdycjiSzablonu() {
  sesja.pubSzablonRodzaj = 2;
  sesja.pubSzablonId =
      pierwszy(QStringLiteral("SELECT TOP 1 id FROM szablony WHERE rodzaj=2 AND kontrahent>0 "
                              "ORDER BY id"));
  if (sesja.pubSzablonId == 0)
    sesja.pubSzablonId =
        pierwszy(QStringLiteral("SELECT TOP 1 id FROM szablony WHERE rodzaj=2 ORDER BY id"));
  auto f = std::make_unique<frmEdycjaSzablonuZewnetrznego>();
  sesja.pubEdytorOtwarty = false;
  return f;
}

std::unique_ptr<QWidget> GaleriaEdycjiSzablonuWewnetrznego() {
  sesja.pubSzablonId =
      pierwszy(QStringLiteral("SELECT TOP 1 id FROM szablonywewnetrzne ORDER BY id"));
  auto f = std::make_unique<frmEdycjaSzablonuWewnetrznego>();
  sesja.pubEdytorOtwarty = false;
  return f;
}

std::unique_ptr<QWidget> GaleriaParagonu() {
  sesja.pubPrzedefiniowanyKontrahent = 0;
  auto f = std::make_unique<frmParagon>();
  sesja.pubKonto.id =
      pierwszy(QStringLiteral("SELECT TOP 1 id FROM konta WHERE rodzaj=1 ORDER BY id"));
  sesja.pubKonto.datautworzenia = DataUtworzeniaKonta(sesja.pubKonto.id);
  sesja.pubKontrahent.id =
      pierwszy(QStringLiteral("SELECT TOP 1 id FROM kontrahent ORDER BY skrocona"));
  f->OdswiezEtykiety();
  f->findChild<QLineEdit*>(QStringLiteral("txtOpisWspolny"))
      ->setText(QStringLiteral("Zakupy sobotnie"));
  f->findChild<QCheckBox*>(QStringLiteral("chkOpis"))->setChecked(true);
  const QStringList k = liscie(4);
  const double kwoty[] = {23.49, 8.99, 112.00, 4.5};
  const int linie[] = {1, 2, 3, 5};
  for (int i = 0; i < 4; ++i) {
    f->findChild<QLineEdit*>(QStringLiteral("txtKwota(%1)").arg(linie[i]))
        ->setText(FormatKwotyEdycja(kwoty[i]));
    f->UstawKategorie(linie[i], k.value(i));
    f->txtKwota_LostFocus(linie[i]);
  }
  f->findChild<QLineEdit*>(QStringLiteral("txtOpis(3)"))
      ->setText(QStringLiteral("Proszek do prania"));
  sesja.pubEdytorOtwarty = false;
  return f;
}

std::unique_ptr<QWidget> GaleriaOkresowych() {
  OtworzBaze();
  reguly();
  return std::make_unique<frmOkresowe>();
}

std::unique_ptr<QWidget> GaleriaEdycjiOkresowej() {
  OtworzBaze();
  reguly();
  sesja.pubOkresowaId = pierwszy(QStringLiteral("SELECT TOP 1 id FROM okresowe ORDER BY id"));
  auto f = std::make_unique<frmEdycjaOkresowych>();
  sesja.pubEdytorOtwarty = false;
  return f;
}
