// vrt-cli: the command-line companion of the program, for batch work on the same database.
#include "cli/ComandoCopiar.h"
#include "cli/ComandoTabela.h"
#include "cli/ComandosCli.h"
#include "cli/OpcoesCli.h"
#include "core/session/MsgBox.h"
#include "core/store/TravaBanco.h"

#include <QCoreApplication>
#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const OpcoesCli opcoes = OpcoesCli::le(app.arguments());
    if (opcoes.ajuda) {
        std::fputs(TextoAjuda().toUtf8().constData(), stdout);
        return 0;
    }
    if (!opcoes.erro.isEmpty()) {
        std::fprintf(stderr, "vrt-cli: %s\n\n%s", opcoes.erro.toUtf8().constData(), TextoAjuda().toUtf8().constData());
        return 2;
    }
    if (opcoes.comando == QStringLiteral("verificar"))
        return ComandosCli::Verificar(opcoes);
    // Until a command installs its own, boxes print to stderr (a failed statement's among them).
    InstalaManipuladorMsg(ManipuladorConsole);
    const QString arquivo = ComandosCli::ArquivoDoBanco(opcoes);
    if (arquivo.isEmpty())
        return 1;
    // One writer per database: a command that writes waits for no one and touches nothing while the program
    // (or another vrt-cli that writes) has the database. Commands that only read go on.
    TravaBanco trava(arquivo);
    if (ComandosCli::Escreve(opcoes.comando) && !trava.trava()) {
        std::fprintf(stderr, "vrt-cli: %s\n",
                     QStringLiteral("o banco de dados %1 está em uso pelo VRT ou por outro vrt-cli; feche-o e "
                                    "repita o comando.").arg(arquivo).toUtf8().constData());
        return 1;
    }
    if (!ComandosCli::AbreBanco(arquivo))
        return 1;
    if (opcoes.comando == QStringLiteral("banco-anterior"))
        return ComandosCli::BancoAnterior(opcoes);
    if (opcoes.comando == QStringLiteral("copiar"))
        return ComandosCli::Copiar(opcoes);
    if (opcoes.comando == QStringLiteral("gravar"))
        return ComandosCli::Gravar(opcoes);
    if (opcoes.comando == QStringLiteral("importar"))
        return ComandosCli::Importar(opcoes);
    if (opcoes.comando == QStringLiteral("tabela"))
        return ComandosCli::Tabela(opcoes);
    return ComandosCli::Listar(opcoes);
}
