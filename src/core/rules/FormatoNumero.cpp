#include "core/rules/FormatoNumero.h"

#include <QLocale>

namespace Funcoes {

namespace {

QString vazio()
{
    return QStringLiteral("");
}

bool ehDigito(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

bool ehFormatoNumerico(const QString& formato)
{
    if (formato.isEmpty() || formato.count(QLatin1Char('.')) > 1)
        return false;
    for (QChar c : formato) {
        if (c != QLatin1Char('#') && c != QLatin1Char('0') && c != QLatin1Char(',') && c != QLatin1Char('.'))
            return false;
    }
    return true;
}

// Adds one unit at the last position of a string of digits; returns the carry out of the first position.
bool somaUm(QString& digitos)
{
    for (int i = digitos.size() - 1; i >= 0; --i) {
        if (digitos.at(i) == QLatin1Char('9')) {
            digitos[i] = QLatin1Char('0');
        } else {
            digitos[i] = QChar(digitos.at(i).unicode() + 1);
            return false;
        }
    }
    return true;
}

// Rounds half away from zero to `casas` decimals, working on the digits.
void arredonda(NumeroDecimal& n, int casas)
{
    if (n.decimais.size() <= casas) {
        n.decimais += QString(casas - n.decimais.size(), QLatin1Char('0'));
        return;
    }
    const bool sobe = n.decimais.at(casas) >= QLatin1Char('5');
    n.decimais.truncate(casas);
    if (!sobe)
        return;
    if (somaUm(n.decimais) && somaUm(n.inteiros))
        n.inteiros.prepend(QLatin1Char('1'));
}

QString agrupa(const QString& inteiros)
{
    QString saida;
    const int n = inteiros.size();
    for (int i = 0; i < n; ++i) {
        if (i > 0 && (n - i) % 3 == 0)
            saida += QLatin1Char('.');
        saida += inteiros.at(i);
    }
    return saida;
}

}  // namespace

bool NumeroDecimal::ehZero() const
{
    for (QChar c : inteiros + decimais) {
        if (c != QLatin1Char('0'))
            return false;
    }
    return true;
}

bool LeNumero(const QString& texto, NumeroDecimal* numero)
{
    const QString t = texto.trimmed();
    NumeroDecimal n;
    int i = 0;
    if (i < t.size() && (t.at(i) == QLatin1Char('-') || t.at(i) == QLatin1Char('+'))) {
        n.negativo = t.at(i) == QLatin1Char('-');
        ++i;
    }
    bool virgula = false;
    int digitos = 0;
    for (; i < t.size(); ++i) {
        const QChar c = t.at(i);
        if (ehDigito(c)) {
            (virgula ? n.decimais : n.inteiros) += c;
            ++digitos;
        } else if (c == QLatin1Char(',') && !virgula) {
            virgula = true;
        } else if (c == QLatin1Char('.') && !virgula) {
            continue;  // grouping
        } else {
            return false;
        }
    }
    if (digitos == 0)
        return false;
    int zeros = 0;
    while (zeros < n.inteiros.size() - 1 && n.inteiros.at(zeros) == QLatin1Char('0'))
        ++zeros;
    n.inteiros.remove(0, zeros);
    if (n.inteiros.isEmpty())
        n.inteiros = QStringLiteral("0");
    if (numero)
        *numero = n;
    return true;
}

bool EhNumerico(const QString& texto)
{
    return LeNumero(texto);
}

bool EhZero(const QString& texto)
{
    NumeroDecimal n;
    return LeNumero(texto, &n) && n.ehZero();
}

double ValorNumerico(const QString& texto)
{
    NumeroDecimal n;
    if (!LeNumero(texto, &n))
        return 0.0;
    QString c = n.inteiros;
    if (!n.decimais.isEmpty())
        c += QLatin1Char('.') + n.decimais;
    const double v = QLocale::c().toDouble(c);
    return n.negativo ? -v : v;
}

QString FormataNumero(const QString& valor, const QString& formato)
{
    if (valor.trimmed().isEmpty())
        return vazio();
    NumeroDecimal n;
    if (!LeNumero(valor, &n))
        return valor;

    const int ponto = formato.indexOf(QLatin1Char('.'));
    const QString parteInteira = ponto < 0 ? formato : formato.left(ponto);
    const QString parteDecimal = ponto < 0 ? QString() : formato.mid(ponto + 1);
    const bool agrupar = parteInteira.contains(QLatin1Char(','));
    const int minimoInteiros = parteInteira.count(QLatin1Char('0'));
    const int casas = parteDecimal.count(QLatin1Char('0')) + parteDecimal.count(QLatin1Char('#'));
    const int casasMinimas = parteDecimal.count(QLatin1Char('0'));

    arredonda(n, casas);
    while (n.decimais.size() > casasMinimas && n.decimais.endsWith(QLatin1Char('0')))
        n.decimais.chop(1);

    QString inteiros = n.inteiros == QLatin1String("0") ? QString() : n.inteiros;
    if (inteiros.size() < minimoInteiros)
        inteiros.prepend(QString(minimoInteiros - inteiros.size(), QLatin1Char('0')));
    if (agrupar)
        inteiros = agrupa(inteiros);

    QString saida = inteiros;
    if (!n.decimais.isEmpty())
        saida += QLatin1Char(',') + n.decimais;
    if (n.negativo && !n.ehZero())
        saida.prepend(QLatin1Char('-'));
    return saida;
}

QString FormataMascara(const QString& valor, const QString& formato)
{
    const bool branco = valor.trimmed().isEmpty();
    if (branco && !formato.contains(QLatin1Char('0')))
        return vazio();
    const QString texto = branco ? QString() : valor;
    int j = texto.size() - 1;
    QString saida;
    for (int i = formato.size() - 1; i >= 0; --i) {
        const QChar f = formato.at(i);
        const bool marcador = f == QLatin1Char('@') || f == QLatin1Char('#') || f == QLatin1Char('0');
        if (!marcador) {
            saida.prepend(f);
        } else if (j >= 0) {
            saida.prepend(texto.at(j--));
        } else if (f == QLatin1Char('@')) {
            saida.prepend(QLatin1Char(' '));
        } else if (f == QLatin1Char('0')) {
            saida.prepend(QLatin1Char('0'));
        }
    }
    if (j >= 0)
        saida.prepend(texto.left(j + 1));
    return saida;
}

QString Formata(const QString& valor, const QString& formato)
{
    return ehFormatoNumerico(formato) ? FormataNumero(valor, formato) : FormataMascara(valor, formato);
}

QString SoDigitos(const QString& texto)
{
    QString saida;
    for (QChar c : texto) {
        if (ehDigito(c))
            saida += c;
    }
    return saida;
}

}  // namespace Funcoes
