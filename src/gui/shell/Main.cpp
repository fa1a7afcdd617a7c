#include "gui/shell/Main.h"

#include "core/session/MsgBox.h"
#include "gui/shell/frmSplashScreen.h"
#include "gui/shell/frmVRTPLN.h"
#include "core/session/modVRTPLN.h"

#include <QDir>

using namespace modVRTPLN;

Execucao Main(const QString& caminhoAplicacao, int segundosSplash)
{
    Execucao run;
    CaminhoAplicacao = QDir::cleanPath(caminhoAplicacao);
    if (!LocalizaBanco()) {
        MsgBox(QStringLiteral("O banco de dados não foi encontrado:\n%1").arg(ArquivoBanco()), Msg::Critical);
        return run;
    }
    run.trava = std::make_unique<QLockFile>(ArquivoBanco() + QStringLiteral(".lock"));
    run.trava->setStaleLockTime(0);
    if (!run.trava->tryLock(0)) {
        MsgBox(QStringLiteral("O VRT já está em execução com este banco de dados.\n"
                              "Feche o outro programa antes de abrir este."),
               Msg::Critical);
        run.trava.reset();
        return run;
    }
    auto janela = std::make_unique<frmVRTPLN>();
    if (!janela->carrega())
        return run;
    janela->show();
    run.janela = std::move(janela);
    if (segundosSplash > 0)
        MostraSplash(segundosSplash);
    return run;
}
