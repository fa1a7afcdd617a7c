#include "gui/items/NotaAquisicao.h"

#include "core/rules/CaracteresTexto.h"
#include "core/rules/Datas.h"

namespace NotaAquisicao {

QString FiltraSerie(const QString& texto, bool maiuscula)
{
    QString r;
    for (const QChar c : texto) {
        if (maiuscula ? Funcoes::EhCaracterEspecial(c) : !(c.isLetterOrNumber() && c.unicode() < 128))
            continue;
        r += c;
    }
    return maiuscula ? r.toUpper() : r;
}

bool SerieZero(const QString& serie)
{
    const QString s = serie.trimmed();
    if (s.isEmpty())
        return false;
    for (const QChar c : s)
        if (c != QLatin1Char('0'))
            return false;
    return true;
}

QString ConfereData(const QString& digitos, const QString& msgAno)
{
    const QString data = Funcoes::DataParaValidar(digitos);
    if (digitos.size() != 8 || !Funcoes::ValidaData(data))
        return QString::fromUtf8("Data inválida.");
    if (data.right(4).toInt() < 1970)
        return msgAno;
    return QString();
}

QString ConfereCFOP(const QString& cfop, const QString& dataDigitos)
{
    const QString invalido = QString::fromUtf8("Campo inválido.");
    const QString c = cfop.trimmed();
    if (c.size() < 3)
        return invalido;
    if (dataDigitos.size() == 8) {
        const int ano = dataDigitos.right(4).toInt();
        if (c.size() == 3 && ano > 2002)
            return QString::fromUtf8("Ano superior a 2002, informar CFOP com 4 dígitos.");
        if (c.size() == 4 && ano < 2003)
            return QString::fromUtf8("Ano anterior a 2003, informar CFOP com 3 dígitos.");
    }
    for (const QChar ch : c)
        if (!ch.isDigit())
            return invalido;
    if (!QStringLiteral("12356").contains(c.at(0)))
        return invalido;
    return QString();
}

}  // namespace NotaAquisicao
