#include "core/rules/NumerosDocumento.h"

#include "core/rules/DigitoVerificador.h"
#include "core/rules/FormatoNumero.h"
#include "core/session/MsgBox.h"

namespace Funcoes {

namespace {

void critica(const QString& texto)
{
    MsgBox(texto, Msg::OKOnly | Msg::Critical);
}

QString semPontuacao(const QString& texto)
{
    QString t = texto;
    t.remove(QLatin1Char('/'));
    t.remove(QLatin1Char('-'));
    t.remove(QLatin1Char(' '));
    return t;
}

// The years are compared as numbers; a part that is not a number counts as 0.
int comoNumero(const QString& texto)
{
    bool ok = false;
    const int n = texto.toInt(&ok, 10);
    return ok ? n : 0;
}

}  // namespace

SituacaoNumero ConfereNumeroDocumento(const QString& digitos, const QString& tipo)
{
    const QString t = digitos.trimmed();
    if (t.isEmpty())
        return SituacaoNumero::Vazio;
    if (t.size() != 10 || SoDigitos(t) != t)
        return SituacaoNumero::TamanhoInvalido;
    if (EhZero(t))
        return SituacaoNumero::Zerado;
    return ValidaDigito(t, tipo) ? SituacaoNumero::Valido : SituacaoNumero::DigitoInvalido;
}

bool ValidaNumeroDCRE(const QString& texto, QString* exibicao)
{
    const QString t = semPontuacao(texto);
    if (t.isEmpty()) {
        if (exibicao)
            *exibicao = QStringLiteral("");
        return true;
    }
    if (t.size() == 10) {
        if (!ValidaDCRE(t))
            return false;
        if (exibicao)
            *exibicao = FormataMascara(t, QStringLiteral("####/#####-#"));
        return true;
    }
    if (t.size() == 9) {
        if (comoNumero(t.left(4)) < 2001) {
            critica(QStringLiteral("Ano deve ser maior ou igual a 2001."));
            return false;
        }
        if (EhZero(t.mid(4)) || !EhNumerico(t.mid(4))) {
            critica(QStringLiteral("Número DCR-E inválido !"));
            return false;
        }
        if (exibicao)
            *exibicao = FormataMascara(t, QStringLiteral("####/#####"));
        return true;
    }
    critica(QStringLiteral("Número DCR-E inválido !"));
    return false;
}

bool ValidaNumeroDCR(const QString& texto, QString* exibicao)
{
    const QString t = semPontuacao(texto);
    if (t.isEmpty()) {
        if (exibicao)
            *exibicao = QStringLiteral("");
        return true;
    }
    if (t.size() != 9) {
        critica(QStringLiteral("Número DCR inválido !"));
        return false;
    }
    const int ano = comoNumero(t.right(4));
    if (ano < 1990 || ano > 2001) {
        critica(QStringLiteral("Ano deve ser menor ou igual a 2001 e maior ou igual a 1990."));
        return false;
    }
    if (EhZero(t.left(5)) || !EhNumerico(t.left(5))) {
        critica(QStringLiteral("Número DCR inválido !"));
        return false;
    }
    if (exibicao)
        *exibicao = FormataMascara(t, QStringLiteral("@@@@@/@@@@"));
    return true;
}

SituacaoInscricao ConfereInscricaoEstadual(const QString& texto)
{
    const QString t = texto.trimmed();
    if (t.isEmpty())
        return SituacaoInscricao::Vazia;
    if (EhZero(t))
        return SituacaoInscricao::Zerada;
    if (t.size() < 8)
        return SituacaoInscricao::Curta;
    return SituacaoInscricao::Valida;
}

bool ValidaInscricaoEstadual(const QString& texto, bool obrigatoria)
{
    switch (ConfereInscricaoEstadual(texto)) {
    case SituacaoInscricao::Vazia:
        if (!obrigatoria)
            return true;
        critica(QStringLiteral("Inscrição estadual deve ser preenchida."));
        return false;
    case SituacaoInscricao::Zerada:
        critica(QStringLiteral("Inscrição Estadual não pode ser zerada."));
        return false;
    case SituacaoInscricao::Curta:
        critica(QStringLiteral("Inscrição Estadual Inválida."));
        return false;
    case SituacaoInscricao::Valida:
        break;
    }
    return true;
}

bool ValidaCampoBancario(CampoBancario campo, const QString& texto, bool testaNumerico)
{
    const QString t = texto.trimmed();
    if (t.isEmpty())
        return true;
    // The zero test comes first. A text that is no number (an account ending in its check letter "X") cannot be
    // zero and simply goes on to the next test.
    if (EhZero(t)) {
        const char* textos[] = {"Banco inválido.", "Agência inválida.", "Conta-Corrente inválida."};
        critica(QString::fromUtf8(textos[int(campo)]));
        return false;
    }
    // The account has no further test: any text that is not zero passes, the letter "X" alone included.
    if (campo != CampoBancario::ContaCorrente && testaNumerico && !EhNumerico(t)) {
        critica(QStringLiteral("Campo inválido."));
        return false;
    }
    return true;
}

}  // namespace Funcoes
