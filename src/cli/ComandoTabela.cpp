#include "cli/ComandoTabela.h"

#include "cli/ManipuladorCli.h"
#include "core/refdata/modImportacao.h"
#include "core/session/MsgBox.h"
#include "core/session/modVRTPLN.h"

#include <QFileInfo>
#include <cstdio>

namespace ComandosCli {

int Tabela(const OpcoesCli& opcoes)
{
    const QFileInfo arquivo(opcoes.argumentos.at(0));
    if (!arquivo.isFile()) {
        std::fprintf(stderr, "vrt-cli: %s\n",
                     (QStringLiteral("arquivo não encontrado: ") + opcoes.argumentos.at(0)).toUtf8().constData());
        return 1;
    }
    ManipuladorCli manipulador;
    InstalaManipuladorMsg(std::ref(manipulador));
    // The menu's table commands set this before the file chooser opens; the import refuses a file without it.
    modVRTPLN::ArquivoImportaTabela = QStringLiteral("SIM");
    const modImportacao::Resultado r = modImportacao::ImportaTabela(arquivo.absolutePath(), arquivo.fileName());
    modVRTPLN::ArquivoImportaTabela = QStringLiteral("NAO");
    return r == modImportacao::Resultado::Sucesso ? 0 : 1;
}

}  // namespace ComandosCli
