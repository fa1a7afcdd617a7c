#include "cli/ComandoCopiar.h"

#include "core/store/Cadastros.h"

#include "cli/ManipuladorCli.h"
#include "core/copy/CopiaVrt.h"
#include "core/file/numbering/IdentificacaoPrevista.h"
#include "core/rules/DigitoVerificador.h"
#include "core/session/MsgBox.h"
#include "core/store/modBancoDados.h"

#include <cstdio>

namespace ComandosCli {

namespace {
QString s(const char* t)
{
    return QString::fromUtf8(t);
}

// The declaration number as the panel's field takes it: ten digits (the mask's "/" and "-" may be typed),
// not all zeros, with a valid check digit. Refusals are the panel's messages.
bool numeroAceito(const QString& digitado, QString& numero)
{
    numero = digitado;
    numero.remove(QLatin1Char('/')).remove(QLatin1Char('-'));
    bool digitos = numero.size() == 10;
    for (const QChar c : numero)
        digitos = digitos && c.isDigit();
    if (!digitos) {
        std::fprintf(stderr, "vrt-cli: %s\n", (s("número da VRT inválido: ") + digitado).toUtf8().constData());
        return false;
    }
    if (numero.toLongLong() == 0) {
        MsgBox(s("Número da VRT não pode ser zerado."));
        return false;
    }
    if (!Funcoes::ValidaDigito(numero, s("VRT"))) {
        MsgBox(s("Dígito verificador inválido."));
        return false;
    }
    return true;
}
}  // namespace

int Copiar(const OpcoesCli& opcoes)
{
    ManipuladorCli manipulador;
    InstalaManipuladorMsg(std::ref(manipulador));
    const QString origem = opcoes.argumentos.at(0).trimmed();
    const QString tipo = Cadastros::TipoVrt(origem);
    if (tipo.isNull()) {
        std::fprintf(stderr, "vrt-cli: %s\n", (s("identificação não encontrada: ") + origem).toUtf8().constData());
        return 1;
    }
    CopiaVrt::Pedido pedido{origem, Funcoes::IdentificacaoPrevista(), QString(), CopiaVrt::Tipo::Original};
    if (!opcoes.retificacao.isNull()) {
        if (!numeroAceito(opcoes.retificacao, pedido.numeroVrt))
            return 1;
        pedido.tipo = CopiaVrt::Tipo::Retificadora;
    }
    // The chooser's "Tipo" column: "Individual" for type 1, "Mensal" for any other.
    if (tipo.trimmed() == QLatin1String("1"))
        CopiaVrt::ExecutaCopiaVrtIndividual(pedido);
    else
        CopiaVrt::ExecutaCopiaVrtMensal(pedido);
    std::fprintf(stdout, "%s\n", pedido.novaId.toUtf8().constData());
    return 0;
}

}  // namespace ComandosCli
