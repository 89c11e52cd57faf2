#include "questions/kodowanie.h"

#include <QRegularExpression>
#include <QStringDecoder>
#include <QStringEncoder>

namespace {
QByteArray windows1250(const QString& tekst) {
  QStringEncoder koder("windows-1250");
  if (!koder.isValid()) return tekst.toLatin1();  // no such codec: the Western part still holds
  return koder.encode(tekst);
}

bool litera(unsigned char z) {
  return (z >= 'a' && z <= 'z') || (z >= 'A' && z <= 'Z') || (z >= '0' && z <= '9');
}
}  // namespace

QByteArray KodujPytanie(const QString& tekst) {
  QByteArray w;
  for (const char c : windows1250(tekst)) {
    const auto z = static_cast<unsigned char>(c);
    if (z == ' ')
      w += '+';
    else if (litera(z) || z == '_' || z == '.')
      w += char(z);
    else
      w += '%' + QByteArray::number(z, 16).toUpper();
  }
  return w;
}

QByteArray WartoscWAdresie(const QString& tekst) {
  static const QByteArray zostaja = QByteArrayLiteral("-_.~!$'()*,;:@/?");
  QByteArray w;
  for (const char c : windows1250(tekst)) {
    const auto z = static_cast<unsigned char>(c);
    if (litera(z) || zostaja.contains(char(z)))
      w += char(z);
    else
      w += '%' + QByteArray::number(z, 16).toUpper().rightJustified(2, '0');
  }
  return w;
}

QString TekstOdpowiedzi(const QByteArray& cialo, const QByteArray& typZawartosci) {
  static const QRegularExpression zestaw(QStringLiteral(R"(charset\s*=\s*"?([A-Za-z0-9_.:-]+))"),
                                         QRegularExpression::CaseInsensitiveOption);
  const auto m = zestaw.match(QString::fromLatin1(typZawartosci));
  if (m.hasMatch()) {
    QStringDecoder dekoder(m.captured(1).toLatin1().constData());
    if (dekoder.isValid()) return dekoder.decode(cialo);
  }
  QStringDecoder dekoder("windows-1250");
  if (!dekoder.isValid()) return QString::fromLatin1(cialo);
  return dekoder.decode(cialo);
}

OdpowiedzSerwisu RozbierzOdpowiedz(const QString& cialo) {
  if (cialo == QLatin1String("brak")) return {OdpowiedzSerwisu::Brak, {}};
  if (cialo.startsWith(QLatin1String("ok "))) return {OdpowiedzSerwisu::Ok, cialo.mid(3)};
  return {OdpowiedzSerwisu::Blad, {}};
}
