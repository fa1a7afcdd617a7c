#include "core/rules/DigitoVerificador.h"

#include "core/rules/FormatoNumero.h"
#include "core/session/MsgBox.h"

namespace Funcoes {

namespace {

// The value of a digit; any other character counts as 0, as the old digit-by-digit reading did.
int digito(QChar c)
{
    return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) ? c.unicode() - '0' : 0;
}

bool ehDigitoDe(QChar c, int d)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9') && c.unicode() - '0' == d;
}

// Sum of digits 1..pesos.size() of `texto` by the given weights.
int somaPonderada(const QString& texto, std::initializer_list<int> pesos)
{
    int soma = 0;
    int i = 0;
    for (int peso : pesos)
        soma += digito(texto.at(i++)) * peso;
    return soma;
}

void avisa(const QString& texto)
{
    MsgBox(texto, Msg::OKOnly | Msg::Exclamation, TituloPadrao);
}

}  // namespace

int DigitoModulo11(int somaPonderada)
{
    const int resto = somaPonderada % 11;
    return resto < 2 ? 0 : 11 - resto;
}

bool ValidaDigito(const QString& numero, const QString& tipo)
{
    if (numero.isEmpty())
        return false;
    QString texto = numero;
    if (tipo == QLatin1String("VRT"))
        texto.prepend(QLatin1Char('5'));
    else if (tipo == QLatin1String("DI"))
        texto.prepend(QLatin1Char('2'));
    else if (tipo == QLatin1String("DSI"))
        texto.prepend(QLatin1Char('4'));

    int soma = 0;
    int peso = 2;
    for (int i = texto.size() - 2; i >= 0; --i) {
        soma += digito(texto.at(i)) * peso;
        peso = peso == 9 ? 2 : peso + 1;
    }
    return ehDigitoDe(numero.back(), DigitoModulo11(soma));
}

bool ValidaCPF(const QString& cpf)
{
    if (cpf.isEmpty())
        return true;
    const QString preencha = QStringLiteral("Preencha novamente o campo.");
    if (cpf.size() != 11) {
        avisa(QStringLiteral("CPF com tamanho inválido (11 dígitos é o correto). ") + preencha);
        return false;
    }
    if (EhZero(cpf)) {
        avisa(QStringLiteral("CPF zerado. Preencha novamente o campo."));
        return false;
    }
    const QString dvInvalido = QStringLiteral("CPF com DV (Dígito de Verificação) inválido. ") + preencha;
    const int primeiro = DigitoModulo11(somaPonderada(cpf, {10, 9, 8, 7, 6, 5, 4, 3, 2}));
    if (!ehDigitoDe(cpf.at(9), primeiro)) {
        avisa(dvInvalido);
        return false;
    }
    const int segundo = DigitoModulo11(somaPonderada(cpf, {11, 10, 9, 8, 7, 6, 5, 4, 3}) + primeiro * 2);
    if (!ehDigitoDe(cpf.at(10), segundo)) {
        avisa(dvInvalido);
        return false;
    }
    return true;
}

bool ValidaCNPJ(const QString& cnpj)
{
    if (cnpj.isEmpty())
        return true;
    const QString invalido = QStringLiteral("CNPJ inválido.");
    if (cnpj.size() != 14 || EhZero(cnpj)) {
        avisa(invalido);
        return false;
    }
    const int primeiro = DigitoModulo11(somaPonderada(cnpj, {5, 4, 3, 2, 9, 8, 7, 6, 5, 4, 3, 2}));
    if (!ehDigitoDe(cnpj.at(12), primeiro)) {
        avisa(invalido);
        return false;
    }
    const int segundo = DigitoModulo11(somaPonderada(cnpj, {6, 5, 4, 3, 2, 9, 8, 7, 6, 5, 4, 3}) + primeiro * 2);
    if (!ehDigitoDe(cnpj.at(13), segundo)) {
        avisa(invalido);
        return false;
    }
    return true;
}

bool ValidaDCRE(const QString& numero)
{
    const QString texto = numero.trimmed();
    if (texto.isEmpty()) {
        MsgBox(QStringLiteral("Campo deve ser maior que zero."), Msg::OKOnly | Msg::Critical);
        return false;
    }
    if (texto.size() < 9) {
        MsgBox(QStringLiteral("Tamanho Invalido"), Msg::OKOnly | Msg::Critical);
        return false;
    }
    if (texto.size() == 10) {
        const int dv = DigitoModulo11(somaPonderada(texto, {2, 9, 8, 7, 6, 5, 4, 3, 2}));
        if (!ehDigitoDe(texto.at(9), dv)) {
            MsgBox(QStringLiteral("Número de Registro DCR-E com DV Inválido"), Msg::OKOnly | Msg::Exclamation);
            return false;
        }
    }
    return true;
}

}  // namespace Funcoes
