#pragma once
// A report as a document: runs of text (each with its bold, font and size), line breaks and
// pictures, appended at the end as the report is written. The window shows it, and the writers
// turn it into plain text, RTF, PDF or CSV. Reports that are tables also keep their rows as
// cells, for the CSV export.

#include <QImage>
#include <QString>
#include <QStringList>
#include <vector>

struct Przebieg {
  QString tekst;
  bool pogrubiony = false;
  QString czcionka;
  int rozmiar = 8;  // points
};

struct ElementDokumentu {
  enum Rodzaj { Tekst, Linia, Obrazek } rodzaj = Tekst;
  Przebieg przebieg;  // Tekst
  QImage obrazek;     // Obrazek
};

// One line of the document: its runs and pictures, without the break.
struct LiniaDokumentu {
  std::vector<const ElementDokumentu*> elementy;
  QString Tekst() const;
};

class DokumentRaportu {
 public:
  DokumentRaportu();

  // The attributes of the insertion point, which the next run takes.
  bool pogrubiony = false;
  QString czcionka;
  int rozmiar = 8;

  void Dopisz(const QString& tekst);
  void NowaLinia();
  void Wstaw(const QImage& obrazek);

  const std::vector<ElementDokumentu>& Elementy() const { return elementy_; }
  // The whole text, lines ended with "\n"; a picture stands as nothing.
  QString Tekst() const;
  // The lines of the document; the last one may be empty.
  std::vector<LiniaDokumentu> Linie() const;
  int LiczbaLinii() const { return linie_ + 1; }
  bool Pusty() const { return elementy_.empty(); }

  // The head of the report ends here: a printed page repeats the lines before it.
  void ZakonczNaglowek() { liniaNaglowka_ = linie_; }
  int LinieNaglowka() const { return liniaNaglowka_; }
  // Width of the report's rules, which the page number lines up with on a printed page.
  int szerokosc = 0;

  // The part between two character positions of the text as the window shows it (a line break
  // and a picture are one character each), with the attributes of its runs.
  DokumentRaportu Wycinek(int od, int do_) const;

  // Rows of a table report, for the CSV export: the head row first, then one row per report
  // row. Empty for a report that is no table.
  std::vector<QStringList> tabela;

 private:
  std::vector<ElementDokumentu> elementy_;
  int linie_ = 0;
  int liniaNaglowka_ = 0;
};
