#include "core/rules/Formatadores.h"

#include "core/rules/FormatoNumero.h"

namespace Funcoes {

namespace {
bool emBranco(const QString& valor)
{
    return valor.trimmed().isEmpty();
}
}  // namespace

QString ZeroEsquerda(const QString& valor, int tamanho)
{
    const QString texto = emBranco(valor) ? QStringLiteral("0") : valor;
    if (texto.size() >= tamanho)
        return texto;
    return QString(tamanho - texto.size(), QLatin1Char('0')) + texto;
}

QString BrancoDireita(const QString& valor, int tamanho)
{
    if (valor.size() >= tamanho)
        return valor.isNull() ? QStringLiteral("") : valor;
    return valor + QString(tamanho - valor.size(), QLatin1Char(' '));
}

QString BrancoEsquerda(const QString& valor, int tamanho)
{
    if (valor.size() >= tamanho)
        return valor.isNull() ? QStringLiteral("") : valor;
    return QString(tamanho - valor.size(), QLatin1Char(' ')) + valor;
}

QString TiraCaractere(const QString& valor, const QString& caractere)
{
    QString texto = emBranco(valor) ? QStringLiteral("0") : valor;
    if (caractere.size() == 1)
        texto.remove(caractere.at(0));
    return texto;
}

QString InsereVirgula(const QString& valor, int casas)
{
    if (emBranco(valor))
        return QStringLiteral("");
    if (valor.contains(QLatin1Char(',')))
        return valor;
    const int d = valor.size() - casas;
    if (d > 0)
        return valor.left(d) + QLatin1Char(',') + valor.mid(d);
    if (d == 0)
        return QStringLiteral("0,") + valor;
    return QStringLiteral("0,") + QString(-d, QLatin1Char('0')) + valor;
}

QString TiraZerosEsquerda(const QString& valor)
{
    if (emBranco(valor) || EhZero(valor))
        return QStringLiteral("");
    int i = 0;
    while (i < valor.size() && valor.at(i) == QLatin1Char('0'))
        ++i;
    return valor.mid(i);
}

QString TrocaApostrofo(const QString& valor, const QString& caractere)
{
    QString texto = valor.isNull() ? QStringLiteral("") : valor;
    if (!caractere.isEmpty())
        texto.replace(caractere, QStringLiteral("\u00B4"));
    return texto;
}

}  // namespace Funcoes
