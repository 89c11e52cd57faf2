#include "reports/widok.h"

#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextImageFormat>
#include <QUrl>

void WypelnijWidok(const DokumentRaportu& d, QTextDocument& widok) {
  widok.clear();
  widok.setUndoRedoEnabled(false);
  QTextCursor k(&widok);
  k.beginEditBlock();
  QTextBlockFormat blok;
  blok.setTopMargin(0);
  blok.setBottomMargin(0);
  k.setBlockFormat(blok);
  int obrazki = 0;
  for (const ElementDokumentu& e : d.Elementy()) {
    switch (e.rodzaj) {
      case ElementDokumentu::Tekst: {
        QTextCharFormat f;
        f.setFontFamilies({e.przebieg.czcionka});
        f.setFontFixedPitch(true);
        f.setFontStyleHint(QFont::TypeWriter);
        f.setFontPointSize(e.przebieg.rozmiar);
        f.setFontWeight(e.przebieg.pogrubiony ? QFont::Bold : QFont::Normal);
        k.insertText(e.przebieg.tekst, f);
        break;
      }
      case ElementDokumentu::Linia:
        k.insertBlock(blok);
        break;
      case ElementDokumentu::Obrazek: {
        const QString nazwa = QStringLiteral("raport-obrazek:%1").arg(++obrazki);
        widok.addResource(QTextDocument::ImageResource, QUrl(nazwa), e.obrazek);
        QTextImageFormat f;
        f.setName(nazwa);
        f.setWidth(e.obrazek.width());
        f.setHeight(e.obrazek.height());
        k.insertImage(f);
        break;
      }
    }
  }
  k.endEditBlock();
}
