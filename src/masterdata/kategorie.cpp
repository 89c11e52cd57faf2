#include "masterdata/kategorie.h"

#include <QSet>
#include <algorithm>
#include <map>

#include "store/MsgBoxModule.h"
#include "store/baza.h"
#include "store/kwota.h"
#include "store/napis.h"
#include "store/tekst.h"

namespace {

const QString NL = QStringLiteral("\r\n");

QString R(int rodzaj) { return QString::number(rodzaj); }

// The parent key as the table holds it.
QString RodzicWTabeli(const QString& klucz) {
  return klucz == KluczKorzenia ? QStringLiteral("-") : klucz;
}

void BladZapisu() {
  MyMsgbox(Napis(QStringLiteral("frmPrzegladKategorii102")),
           Napis(QStringLiteral("frmPrzegladKategorii103")), MsgOK, IkonaOstrzezenie);
}

}  // namespace

// ---- the tree --------------------------------------------------------------------------------

std::vector<WierszKategorii> WierszeKategorii(int rodzaj) {
  OtworzBaze();
  Rekordy rs = pubBaza().Czytaj(
      QStringLiteral("SELECT id,identyfikator,kategoria,nazwa FROM kategorie WHERE rodzaj=") +
      R(rodzaj) + QStringLiteral(" ORDER BY identyfikator"));
  std::vector<WierszKategorii> w;
  w.reserve(size_t(rs.RecordCount()));
  for (; !rs.Eof(); rs.MoveNext())
    w.push_back({rs.Pole(QStringLiteral("id")).toLongLong(),
                 Oczysc(rs.Pole(QStringLiteral("identyfikator"))),
                 Oczysc(rs.Pole(QStringLiteral("kategoria"))),
                 Oczysc(rs.Pole(QStringLiteral("nazwa")))});
  return w;
}

int IleDzieci(const QString& klucz, int rodzaj) {
  OtworzBaze();
  return int(PoliczIle(QStringLiteral("SELECT COUNT(id) AS ile FROM kategorie WHERE rodzaj=") +
                       R(rodzaj) + QStringLiteral(" AND kategoria=") + SqlTekst(klucz)));
}

qint64 IleWpisow(const QString& klucz, int rodzaj) {
  OtworzBaze();
  qint64 ile = 0;
  for (const char* tabela : {"transakcje", "zaplanowane"})
    ile += PoliczIle(
        QStringLiteral("SELECT COUNT(id) AS ile FROM %1 WHERE rodzaj=").arg(QLatin1String(tabela)) +
        R(rodzaj) + QStringLiteral(" AND kategoria=") + SqlTekst(klucz));
  return ile;
}

qint64 IleWpisowPoddrzewa(const QString& klucz, int rodzaj) {
  OtworzBaze();
  qint64 ile = 0;
  for (const char* tabela : {"transakcje", "zaplanowane"})
    ile += PoliczIle(
        QStringLiteral("SELECT COUNT(id) AS ile FROM %1 WHERE rodzaj=").arg(QLatin1String(tabela)) +
        R(rodzaj) + QStringLiteral(" AND LEFT(kategoria,") + QString::number(klucz.size()) +
        QStringLiteral(")=") + SqlTekst(klucz));
  return ile;
}

QString NastepnyIdentyfikator(const QString& rodzic, int rodzaj) {
  OtworzBaze();
  const QString przedrostek = rodzic == QLatin1String("-") ? QString() : rodzic;
  const Rekordy rs = pubBaza().Czytaj(
      QStringLiteral("SELECT TOP 1 identyfikator FROM kategorie WHERE kategoria=") +
      SqlTekst(rodzic) + QStringLiteral(" AND rodzaj=") + R(rodzaj) +
      QStringLiteral(" ORDER BY identyfikator DESC"));
  if (rs.Eof()) return przedrostek + QLatin1Char('a');
  const QString ostatni = Oczysc(rs.Pole(QStringLiteral("identyfikator")));
  const QChar c = ostatni.isEmpty() ? QChar() : ostatni.back();
  if (c >= QLatin1Char('a') && c < QLatin1Char('z')) return przedrostek + QChar(c.unicode() + 1);
  // Past "z" the lowest letter that no sibling holds (gaps left by deletions).
  Rekordy rodzenstwo =
      pubBaza().Czytaj(QStringLiteral("SELECT identyfikator FROM kategorie WHERE kategoria=") +
                       SqlTekst(rodzic) + QStringLiteral(" AND rodzaj=") + R(rodzaj));
  QSet<QString> zajete;
  for (; !rodzenstwo.Eof(); rodzenstwo.MoveNext())
    zajete.insert(Oczysc(rodzenstwo.Pole(QStringLiteral("identyfikator"))));
  for (char16_t l = u'a'; l <= u'z'; ++l) {
    const QString kandydat = przedrostek + QChar(l);
    if (!zajete.contains(kandydat)) return kandydat;
  }
  return {};
}

QString SciezkaKategorii(const QString& identyfikator, int rodzaj) {
  OtworzBaze();
  const qint64 ile =
      PoliczIle(QStringLiteral("SELECT COUNT(*) AS ile FROM kategorie WHERE rodzaj=") + R(rodzaj) +
                QStringLiteral(" AND identyfikator=") + SqlTekst(identyfikator));
  if (identyfikator == QLatin1String("-") || ile == 0) {
    sesja.pubKategoria.identyfikator.clear();
    sesja.pubKategoria.nazwa.clear();
    return identyfikator == QLatin1String("-") ? Napis(QStringLiteral("Module143"))
                                               : Napis(QStringLiteral("Module144"));
  }
  QStringList warunki;
  for (int n = 1; n <= identyfikator.size(); ++n)
    warunki << QStringLiteral("identyfikator=") + SqlTekst(identyfikator.left(n));
  Rekordy rs =
      pubBaza().Czytaj(QStringLiteral("SELECT nazwa FROM kategorie WHERE rodzaj=") + R(rodzaj) +
                       QStringLiteral(" AND (") + warunki.join(QStringLiteral(" OR ")) +
                       QStringLiteral(") ORDER BY identyfikator ASC"));
  QStringList nazwy;
  for (; !rs.Eof(); rs.MoveNext()) nazwy << Oczysc(rs.Pole(QStringLiteral("nazwa")));
  if (nazwy.isEmpty()) return {};
  const QString lisc = nazwy.takeLast();
  QString tekst =
      lisc + QStringLiteral(" (") + nazwy.join(QStringLiteral(" / ")) + QLatin1Char(')');
  // A main category has no ancestors: the empty brackets go, the blank before them stays.
  if (tekst.endsWith(QLatin1String("()"))) tekst.chop(2);
  return tekst;
}

// ---- the editor ------------------------------------------------------------------------------

OpisKategorii CzytajKategorie(const QString& identyfikator, int rodzaj) {
  OtworzBaze();
  const Rekordy rs =
      pubBaza().Czytaj(QStringLiteral("SELECT * FROM kategorie WHERE identyfikator=") +
                       SqlTekst(identyfikator) + QStringLiteral(" AND rodzaj=") + R(rodzaj));
  OpisKategorii o;
  if (rs.Eof()) return o;
  o.istnieje = true;
  o.nazwa = Oczysc(rs.Pole(QStringLiteral("nazwa")));
  o.opis = Oczysc(rs.Pole(QStringLiteral("opis")));
  o.kategoria = Oczysc(rs.Pole(QStringLiteral("kategoria")));
  return o;
}

std::optional<QString> ZapiszKategorie(const KategoriaRekord& k, const QString& nazwaWpisana,
                                       const QString& opisWpisany) {
  OtworzBaze();
  const QString nazwa = nazwaWpisana.trimmed();
  const QString opis = opisWpisany.trimmed();
  const bool nowa = k.identyfikator.isEmpty();
  if (nazwa.isEmpty()) {
    MyMsgbox(Napis(QStringLiteral("frmEdycjaKategorii7")),
             Napis(QStringLiteral("frmEdycjaKategorii8")), MsgOK, IkonaOstrzezenie);
    return std::nullopt;
  }
  auto bladZapisu = [] {
    MyMsgbox(Napis(QStringLiteral("frmEdycjaKategorii14")),
             Napis(QStringLiteral("frmEdycjaKategorii15")), MsgOK, IkonaOstrzezenie);
    return std::nullopt;
  };
  if (!nowa) {
    // Without rodzaj: the identifier is renamed in both trees at once.
    if (!pubBaza().Wykonaj(QStringLiteral("UPDATE kategorie SET nazwa=") + SqlTekst(nazwa) +
                           QStringLiteral(", opis=") + SqlTekst(opis) +
                           QStringLiteral(" WHERE identyfikator=") + SqlTekst(k.identyfikator)))
      return bladZapisu();
    return k.identyfikator;
  }
  // Equal names over both trees and all levels are allowed, but only when the user says so.
  if (PoliczIle(QStringLiteral("SELECT COUNT(*) AS ile FROM kategorie WHERE nazwa=") +
                SqlTekst(nazwa)) > 0) {
    const QString pytanie = Napis(QStringLiteral("frmEdycjaKategorii9")) + QLatin1Char(' ') +
                            nazwa + QStringLiteral(". ") +
                            Napis(QStringLiteral("frmEdycjaKategorii10"));
    if (MyMsgbox(pytanie, Napis(QStringLiteral("frmEdycjaKategorii11")), MsgTakNie, IkonaPytanie) !=
        WynikTak)
      return std::nullopt;
  }
  const QString rodzic = RodzicWTabeli(k.nadkategoria);
  const QString id = NastepnyIdentyfikator(rodzic, k.rodzaj);
  if (id.isEmpty()) {
    // All 26 letters are taken: the same refusal as the browser's.
    const bool glowna = rodzic == QLatin1String("-");
    MyMsgbox(Napis(glowna ? QStringLiteral("frmPrzegladKategorii76")
                          : QStringLiteral("frmPrzegladKategorii80")),
             Napis(glowna ? QStringLiteral("frmPrzegladKategorii77")
                          : QStringLiteral("frmPrzegladKategorii81")),
             MsgOK, IkonaOstrzezenie);
    return std::nullopt;
  }
  if (!pubBaza().Wykonaj(
          QStringLiteral(
              "INSERT INTO kategorie (identyfikator,kategoria,nazwa,opis,rodzaj) VALUES (") +
          SqlTekst(id) + QLatin1Char(',') + SqlTekst(rodzic) + QLatin1Char(',') + SqlTekst(nazwa) +
          QLatin1Char(',') + SqlTekst(opis) + QStringLiteral(",'") + R(k.rodzaj) +
          QStringLiteral("')")))
    return bladZapisu();
  return id;
}

// ---- commands of the browser -----------------------------------------------------------------

std::optional<QString> PrzygotujNowaKategorie(const QString& wezel, const QString& rodzicWezla,
                                              int rodzaj) {
  const QString nadkategoria = wezel == KluczKorzenia ? KluczKorzenia : rodzicWezla;
  if (IleDzieci(RodzicWTabeli(nadkategoria), rodzaj) < MaksDzieci &&
      !NastepnyIdentyfikator(RodzicWTabeli(nadkategoria), rodzaj).isEmpty())
    return nadkategoria;
  MyMsgbox(Napis(QStringLiteral("frmPrzegladKategorii74")),
           Napis(QStringLiteral("frmPrzegladKategorii75")), MsgOK, IkonaOstrzezenie);
  return std::nullopt;
}

NowaPodkategoria PrzygotujNowaPodkategorie(const QString& wezel, int rodzaj) {
  OtworzBaze();
  NowaPodkategoria w;
  w.nadkategoria = wezel;
  auto odmowa = [&](const char* tekst, const char* tytul) {
    MyMsgbox(Napis(QLatin1String(tekst)), Napis(QLatin1String(tytul)), MsgOK, IkonaOstrzezenie);
    return w;
  };
  if (wezel == KluczKorzenia) {
    if (IleDzieci(QStringLiteral("-"), rodzaj) >= MaksDzieci ||
        NastepnyIdentyfikator(QStringLiteral("-"), rodzaj).isEmpty())
      return odmowa("frmPrzegladKategorii76", "frmPrzegladKategorii77");
    w.otworzEdytor = true;
    return w;
  }
  if (wezel.size() >= MaksPoziomow)
    return odmowa("frmPrzegladKategorii78", "frmPrzegladKategorii79");
  if (IleDzieci(wezel, rodzaj) >= MaksDzieci || NastepnyIdentyfikator(wezel, rodzaj).isEmpty())
    return odmowa("frmPrzegladKategorii80", "frmPrzegladKategorii81");

  // Entries live only on leaves: a leaf's entries go down into its first subcategory.
  const bool sWpisy = IleWpisow(wezel, rodzaj) > 0;
  if (sWpisy) {
    const QString pytanie = Napis(QStringLiteral("frmPrzegladKategorii82")) + QLatin1Char(' ') +
                            NL + QLatin1Char(' ') +
                            Napis(QStringLiteral("frmPrzegladKategorii83")) + NL +
                            Napis(QStringLiteral("frmPrzegladKategorii84")) + NL +
                            Napis(QStringLiteral("frmPrzegladKategorii85"));
    if (MyMsgbox(pytanie, Napis(QStringLiteral("frmPrzegladKategorii86")), MsgTakNie,
                 IkonaPytanie) != WynikTak)
      return w;
  }

  // Templates move to the first subcategory in every case: it is the one the editor makes next.
  const QString nowy = wezel + QLatin1Char('a');
  const QString r = R(rodzaj);
  Rekordy szablony = pubBaza().Czytaj(QStringLiteral("SELECT * FROM szablony WHERE kategoria=") +
                                      SqlTekst(wezel) + QStringLiteral(" AND rodzaj=") + r);
  int ileSzablonow = 0;
  QString lista = Napis(QStringLiteral("frmPrzegladKategorii92")) + NL + NL + QLatin1Char(' ');
  for (; !szablony.Eof(); szablony.MoveNext(), ++ileSzablonow)
    lista += szablony.Tekst(QStringLiteral("nazwa")) + NL;

  const bool ok = pubBaza().Transakcja([&] {
    if (sWpisy) {
      const QString sqlNowej =
          QStringLiteral(
              "INSERT INTO kategorie (identyfikator,kategoria,nazwa,opis,rodzaj) VALUES (") +
          SqlTekst(nowy) + QLatin1Char(',') + SqlTekst(wezel) + QLatin1Char(',') +
          SqlTekst(Napis(QStringLiteral("frmPrzegladKategorii89"))) + QLatin1Char(',') +
          SqlTekst(Napis(QStringLiteral("frmPrzegladKategorii90"))) + QStringLiteral(",'") + r +
          QStringLiteral("')");
      if (!pubBaza().Wykonaj(sqlNowej)) return false;
      for (const char* tabela : {"transakcje", "zaplanowane"})
        if (!pubBaza().Wykonaj(
                QStringLiteral("UPDATE %1 SET kategoria=").arg(QLatin1String(tabela)) +
                SqlTekst(nowy) + QStringLiteral(" WHERE kategoria=") + SqlTekst(wezel) +
                QStringLiteral(" AND rodzaj=") + r))
          return false;
    }
    if (ileSzablonow == 0) return true;
    return bool(pubBaza().Wykonaj(QStringLiteral("UPDATE szablony SET kategoria=") +
                                  SqlTekst(nowy) + QStringLiteral(" WHERE kategoria=") +
                                  SqlTekst(wezel) + QStringLiteral(" AND rodzaj=") + r));
  });
  if (!ok) {
    BladZapisu();
    return w;
  }
  if (sWpisy) {
    w.automatyczna = nowy;
    MyMsgbox(Napis(QStringLiteral("frmPrzegladKategorii87")),
             Napis(QStringLiteral("frmPrzegladKategorii88")), MsgOK, IkonaInformacja);
  }
  if (ileSzablonow > 0)
    MyMsgbox(lista, Napis(QStringLiteral("frmPrzegladKategorii93")), MsgOK, IkonaInformacja);
  w.otworzEdytor = true;
  return w;
}

bool SkasujKategorie(const QString& klucz, const QString& nazwa, int rodzaj) {
  if (klucz.isEmpty() || klucz == KluczKorzenia) return false;
  OtworzBaze();
  if (IleWpisowPoddrzewa(klucz, rodzaj) >= 1) {
    MyMsgbox(Napis(QStringLiteral("frmPrzegladKategorii53")) + QLatin1Char(' ') + nazwa +
                 QLatin1Char(' ') + Napis(QStringLiteral("frmPrzegladKategorii54")) + NL +
                 Napis(QStringLiteral("frmPrzegladKategorii55")),
             Napis(QStringLiteral("frmPrzegladKategorii56")), MsgOK, IkonaOstrzezenie);
    return false;
  }
  if (MyMsgbox(Napis(QStringLiteral("frmPrzegladKategorii57")) + QLatin1Char(' ') + nazwa +
                   QLatin1Char(' ') + Napis(QStringLiteral("frmPrzegladKategorii58")),
               Napis(QStringLiteral("frmPrzegladKategorii59")), MsgTakNie,
               IkonaPytanie) != WynikTak)
    return false;
  const QString poddrzewo = QString::number(klucz.size()) + QStringLiteral(")=") + SqlTekst(klucz);
  // Templates never block a deletion: they go with the subtree.
  const bool ok = pubBaza().Transakcja([&] {
    return pubBaza().Wykonaj(QStringLiteral("DELETE FROM kategorie WHERE rodzaj=") + R(rodzaj) +
                             QStringLiteral(" AND LEFT(identyfikator,") + poddrzewo) &&
           pubBaza().Wykonaj(QStringLiteral("DELETE FROM szablony WHERE rodzaj=") + R(rodzaj) +
                             QStringLiteral(" AND LEFT(kategoria,") + poddrzewo);
  });
  if (!ok) BladZapisu();
  return ok;
}
