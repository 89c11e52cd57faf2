// The import dialog, the restore dialog and the account number in the account editor, driven
// by their controls; and the export read back by the import.
#include <gtest/gtest.h>
#include <sqlcipher/sqlite3.h>

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>

#include "common/magazyn_testowy.h"
#include "imports/frmImport.h"
#include "imports/frmPrzywrocKopie.h"
#include "imports/kopie.h"
#include "ledger/eksport.h"
#include "masterdata/frmEdycjaKonta.h"
#include "store/baza.h"
#include "store/napis.h"
#include "store/session.h"

namespace {
template <typename T>
T* pole(QWidget* o, const char* nazwa) {
  T* w = o->findChild<T*>(QLatin1String(nazwa));
  EXPECT_NE(w, nullptr) << nazwa;
  return w;
}
}  // namespace

TEST(EkranyImportu, AccountNumberIsCheckedStoredAsDigitsAndShownGrouped) {
  MagazynTestowy m(2);
  sesja.pubKonto = KontoRekord{};
  {
    frmEdycjaKonta e;
    pole<QLineEdit>(&e, "txtNazwa")->setText(QStringLiteral("Główne"));
    pole<QLineEdit>(&e, "txtNumer")->setText(QStringLiteral("PL61 1090 1014 0000 0712 1981 287"));
    pole<QPushButton>(&e, "cmdOK")->click();
    ASSERT_EQ(m.host.pokazane.size(), 1u);  // 25 digits: refused, nothing saved
    EXPECT_EQ(m.host.pokazane[0].tekst, Napis(QStringLiteral("frmEdycjaKonta36")));
    EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta")), 0);
    pole<QLineEdit>(&e, "txtNumer")->setText(QStringLiteral("PL61 1090 1014 0000 0712 1981 2874"));
    pole<QPushButton>(&e, "cmdOK")->click();
    EXPECT_EQ(e.result(), int(QDialog::Accepted));
  }
  const Rekordy rs = pubBaza().Czytaj(QStringLiteral("SELECT id, numer FROM konta"));
  EXPECT_EQ(rs.Tekst(QStringLiteral("numer")), QStringLiteral("61109010140000071219812874"));
  sesja.pubKonto.id = rs.Pole(QStringLiteral("id")).toLongLong();
  {
    frmEdycjaKonta e;
    EXPECT_EQ(pole<QLineEdit>(&e, "txtNumer")->text(),
              QStringLiteral("61 1090 1014 0000 0712 1981 2874"));
  }
  // The number is saved with the rest of the account or not at all: a store that refuses this
  // number leaves neither the new name nor a new account behind, and the editor stays open.
  sqlite3_exec(
      pubBaza().Uchwyt(),
      "CREATE TRIGGER odmowa_u BEFORE UPDATE ON konta WHEN NEW.numer='11111111111111111111111111' "
      "BEGIN SELECT RAISE(ABORT, 'refused'); END;"
      "CREATE TRIGGER odmowa_i BEFORE INSERT ON konta WHEN NEW.numer='11111111111111111111111111' "
      "BEGIN SELECT RAISE(ABORT, 'refused'); END;",
      nullptr, nullptr, nullptr);
  m.host.pokazane.clear();
  for (const bool nowe : {false, true}) {
    if (nowe) sesja.pubKonto = KontoRekord{};
    frmEdycjaKonta e;
    pole<QLineEdit>(&e, "txtNazwa")
        ->setText(nowe ? QStringLiteral("Oszczędności") : QStringLiteral("Główne ŻÓŁĆ"));
    pole<QLineEdit>(&e, "txtNumer")->setText(QStringLiteral("11 1111 1111 1111 1111 1111 1111"));
    pole<QPushButton>(&e, "cmdOK")->click();
    EXPECT_NE(e.result(), int(QDialog::Accepted)) << nowe;
  }
  EXPECT_EQ(m.host.pokazane.size(), 2u);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta")), 1);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta WHERE nazwa='Główne' AND "
                                  "numer='61109010140000071219812874'")),
            1);
}

TEST(EkranyImportu, PreviewChosenLinesImportAndUndo) {
  MagazynTestowy m;
  pubBaza().Wykonaj(QStringLiteral("INSERT INTO konta (nazwa, rodzaj) VALUES ('Gotówka', 1)"));
  pubBaza().Wykonaj(QStringLiteral(
      "INSERT INTO konta (nazwa, rodzaj, numer) VALUES ('Główne', 2, '61109010140000071219812874')"));
  const qint64 glowne = pubBaza().OstatnieId();
  frmImport f;
  auto* lista = pole<QTreeWidget>(&f, "lvwPodglad");
  ASSERT_TRUE(f.Wczytaj(QStringLiteral(ZORVIK_SRC_DIR "/tests/imports/dane/pko_cp1250.csv")));
  // The statement's number chose the account.
  EXPECT_EQ(pole<QComboBox>(&f, "cboKonto")->currentData().toLongLong(), glowne);
  ASSERT_EQ(lista->topLevelItemCount(), 5);
  EXPECT_EQ(lista->topLevelItem(1)->text(2), QStringLiteral("Przelew: czynsz za listopad; lokal 5"));
  EXPECT_TRUE(lista->topLevelItem(4)->text(3).endsWith(Napis(QStringLiteral("frmImport21"))));
  lista->topLevelItem(2)->setCheckState(0, Qt::Unchecked);  // the salary stays out
  m.host.odpowiedzi = {WynikOK};
  pole<QPushButton>(&f, "cmdImportuj")->click();
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje WHERE konto=%1").arg(glowne)), 4);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje WHERE przychod=8500")), 0);
  // Written lines now show as duplicates, unchosen.
  EXPECT_EQ(lista->topLevelItem(0)->checkState(0), Qt::Unchecked);
  EXPECT_EQ(lista->topLevelItem(0)->text(5), Napis(QStringLiteral("frmImport22")));
  EXPECT_EQ(lista->topLevelItem(2)->checkState(0), Qt::Checked);
  m.host.odpowiedzi = {WynikTak};
  auto* cofnij = pole<QPushButton>(&f, "cmdCofnijImport");
  ASSERT_TRUE(cofnij->isEnabled());
  cofnij->click();
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM transakcje")), 0);
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM kontrahent")), 0);
  EXPECT_FALSE(cofnij->isEnabled());

  // A bad file: the message names the line; the preview is empty.
  QTemporaryDir d;
  QFile zly(d.filePath(QStringLiteral("zly.csv")));
  ASSERT_TRUE(zly.open(QIODevice::WriteOnly));
  zly.write("Data;Kwota\n01.11.2026;12,00\n2026-13-45;1,00\n");
  zly.close();
  m.host.pokazane.clear();
  m.host.odpowiedzi = {WynikOK};
  EXPECT_FALSE(f.Wczytaj(zly.fileName()));
  ASSERT_EQ(m.host.pokazane.size(), 1u);
  EXPECT_TRUE(m.host.pokazane[0].tekst.contains(QStringLiteral("2026-13-45")));
  EXPECT_TRUE(m.host.pokazane[0].tekst.contains(Napis(QStringLiteral("import14")).arg(3)));
  EXPECT_EQ(lista->topLevelItemCount(), 0);
}

TEST(EkranyImportu, RestoreDialogAsksAndRestores) {
  MagazynTestowy m;
  ASSERT_TRUE(ZrobKopie(PowodKopii::Reczna));
  pubBaza().Wykonaj(QStringLiteral("INSERT INTO konta (nazwa, rodzaj) VALUES ('Nowe', 1)"));
  frmPrzywrocKopie f;
  auto* lista = pole<QTreeWidget>(&f, "lvwKopie");
  ASSERT_EQ(lista->topLevelItemCount(), 1);
  m.host.odpowiedzi = {WynikNie};
  pole<QPushButton>(&f, "cmdPrzywroc")->click();
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta")), 1);  // "Nie" changes nothing
  m.host.odpowiedzi = {WynikTak, WynikOK};
  pole<QPushButton>(&f, "cmdPrzywroc")->click();
  EXPECT_EQ(m.Licz(QStringLiteral("SELECT COUNT(*) FROM konta")), 0);
  EXPECT_EQ(f.result(), int(QDialog::Accepted));
  EXPECT_EQ(ListaKopii().size(), 2u);
}

TEST(EkranyImportu, ExportReadsBackAsTheSameEntries) {
  MagazynTestowy m;
  const std::vector<WierszEksportu> w = {
      {QDate(2026, 11, 3), -99999999999999LL, QStringLiteral("Zakup; \"duży\"\nna raty"),
       QStringLiteral("Dom"), QStringLiteral("Sklep O'Hara"), QStringLiteral("Główne")},
      {QDate(2026, 11, 4), 1250, QStringLiteral("Zwrot"), {}, QStringLiteral("Łucja Żak"), QStringLiteral("Główne")}};
  QTemporaryDir d;
  for (const char* nazwa : {"eksport.csv", "eksport.qif"}) {
    const QString plik = d.filePath(QLatin1String(nazwa));
    ASSERT_TRUE(ZapiszEksport(plik, w));
    BladWyciagu b;
    OpcjeWyciagu o;
    if (QLatin1String(nazwa).endsWith(QLatin1String("csv"))) {
      o.mapowanie.separator = QLatin1Char(';');
      o.mapowanie.naglowek = 0;
      o.mapowanie.data = 0;
      o.mapowanie.kwota = 1;
      o.mapowanie.opis = 2;
      o.mapowanie.kontrahent = 4;
    }
    const auto r = CzytajWyciag(plik, o, &b);
    ASSERT_TRUE(r) << nazwa << ": " << TekstBledu(b).toStdString();
    ASSERT_EQ(r->pozycje.size(), 2u) << nazwa;
    EXPECT_EQ(r->pozycje[0].grosze, -99999999999999LL) << nazwa;
    EXPECT_EQ(r->pozycje[0].data, QDate(2026, 11, 3));
    EXPECT_EQ(r->pozycje[0].kontrahent, QStringLiteral("Sklep O'Hara"));
    EXPECT_EQ(r->pozycje[1].kontrahent, QStringLiteral("Łucja Żak"));
    EXPECT_EQ(r->pozycje[1].grosze, 1250);
  }
  EXPECT_TRUE(EksportCsv(w).startsWith("\xEF\xBB\xBF"));
  EXPECT_TRUE(EksportCsv(w).contains("\"Zakup; \"\"duży\"\"\nna raty\""));
}
