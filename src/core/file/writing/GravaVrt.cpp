#include "core/file/writing/GravaVrt.h"

#include "core/file/writing/CabecalhoVrt.h"
#include "core/file/writing/ModTrataVrtIndividual.h"
#include "core/file/writing/modTrataVrtMensal.h"
#include "core/session/MsgBox.h"

#include <QDir>

GravacaoVrt::GravacaoVrt(const QString& pastaDestino, ModoGravacao modo) : m_pasta(pastaDestino), m_modo(modo)
{
}

QString GravacaoVrt::origem() const
{
    return m_modo == ModoGravacao::Backup ? QStringLiteral("3") : QStringLiteral("1");
}

QString GravacaoVrt::caminhoArquivo(const QString& idVrtMicro) const
{
    QString nome = idVrtMicro;
    nome.remove(QLatin1Char('/'));
    return QDir(m_pasta).filePath(nome);
}

bool GravacaoVrt::grava(const QString& idVrtMicro)
{
    CabecalhoVrt cabecalho;
    if (!cabecalho.carrega(idVrtMicro)) {
        m_resultado.ignoradas.append(idVrtMicro);
        return false;
    }
    m_resultado.arquivos.append(caminhoArquivo(cabecalho.idVrtMicro));
    if (cabecalho.tipo() == TipoDeclaracao::Mensal)
        modTrataVrtMensal::GravaVrtMensal(cabecalho, *this);
    else
        ModTrataVrtIndividual::GravaVrtIndividual(cabecalho, *this);
    return true;
}

void GravacaoVrt::conclui()
{
    m_resultado.erroGravacao = erroGravacao;
    if (erroGravacao) {
        erroGravacao = false;
        return;
    }
    MsgBox(m_modo == ModoGravacao::Backup ? QStringLiteral("Backup realizado com sucesso.")
                                          : QStringLiteral("Arquivo gerado."),
           Msg::OKOnly | Msg::Information);
}

ResultadoGravacao GravaVrt(const QStringList& identificacoes, const QString& pastaDestino, ModoGravacao modo)
{
    GravacaoVrt run(pastaDestino, modo);
    QStringList ids = identificacoes;
    ids.removeAll(QString());
    // Nothing chosen: nothing happens, not even the closing message.
    if (ids.isEmpty())
        return run.resultado();
    for (const QString& id : ids)
        run.grava(id);
    run.conclui();
    return run.resultado();
}
