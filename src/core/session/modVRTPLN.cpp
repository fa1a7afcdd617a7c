#include "core/session/modVRTPLN.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace modVRTPLN {

QString ArquivoBanco()
{
    const QString pasta = CaminhoDados.isEmpty() ? CaminhoAplicacao : CaminhoDados;
    return pasta + QLatin1Char('/') + NomeArquivoBanco;
}

namespace {
bool podeEscrever(const QString& pasta)
{
    QFile teste(pasta + QStringLiteral("/.vrt-teste-escrita"));
    if (!teste.open(QIODevice::WriteOnly))
        return false;
    teste.close();
    teste.remove();
    return true;
}
}  // namespace

bool LocalizaBanco()
{
    const QString entregue = CaminhoAplicacao + QLatin1Char('/') + NomeArquivoBanco;
    if (podeEscrever(CaminhoAplicacao)) {
        CaminhoDados = CaminhoAplicacao;
        return QFileInfo::exists(entregue);
    }
    return LocalizaBancoNaPastaDoUsuario();
}

bool LocalizaBancoNaPastaDoUsuario()
{
    const QString entregue = CaminhoAplicacao + QLatin1Char('/') + NomeArquivoBanco;
    const QString dados = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(dados);
    CaminhoDados = dados;
    const QString local = ArquivoBanco();
    if (!QFileInfo::exists(local) && QFileInfo::exists(entregue)) {
        if (!QFile::copy(entregue, local))
            return false;
        QFile(local).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    }
    return QFileInfo::exists(local);
}

}  // namespace modVRTPLN
