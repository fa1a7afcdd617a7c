#include "core/copy/CopiaComum.h"

#include "core/session/MsgBox.h"
#include "core/session/modVRTPLN.h"
#include "core/store/modBancoDados.h"

using namespace modBancoDados;

namespace CopiaVrt {

namespace {
QString anoDoisDigitos(const QDate& hoje)
{
    return QStringLiteral("%1").arg(hoje.year() % 100, 2, 10, QLatin1Char('0'));
}
}  // namespace

void AvancaNumeroMensal()
{
    ExecutaSql(QStringLiteral("UPDATE ARQUIVO_NUMERADOR SET NUM_ULTIMA_VRT = (NUM_ULTIMA_VRT + 1)"));
}

void AvancaNumeroIndividual(const QDate& hoje)
{
    const QString ano = anoDoisDigitos(hoje);
    const QVariant anoGuardado = ValorUnico(QStringLiteral("SELECT ANO FROM ARQUIVO_NUMERADOR"));
    if (!anoGuardado.isValid()) {
        ExecutaSql(QStringLiteral("INSERT INTO ARQUIVO_NUMERADOR (NUM_ULTIMA_VRT, ANO) VALUES (1, ?)"), {ano.toInt()});
        return;
    }
    // The stored year read through "00": a year kept with four digits is another year, and so is none.
    const QString guardado = anoGuardado.isNull()
                                 ? QString()
                                 : QStringLiteral("%1").arg(anoGuardado.toLongLong(), 2, 10, QLatin1Char('0'));
    if (guardado == ano) {
        ExecutaSql(QStringLiteral("UPDATE ARQUIVO_NUMERADOR SET NUM_ULTIMA_VRT = (NUM_ULTIMA_VRT + 1)"));
        return;
    }
    ExecutaSql(QStringLiteral("UPDATE ARQUIVO_NUMERADOR SET NUM_ULTIMA_VRT = 1, ANO = ?"), {ano.toInt()});
}

CopiaEmCurso::CopiaEmCurso(const Pedido& pedido, const Acompanhamento& acompanhamento)
    : m_pedido(pedido), m_nova(pedido.novaId.trimmed()), m_acompanhamento(acompanhamento)
{
    ConectaBanco(modVRTPLN::ArquivoBanco());
    IniciaTransacao();
    m_linhas = std::make_unique<CopiadorLinhas>();
    m_linhas->raiz(MapaVrt, m_pedido.origem, m_nova);
    if (m_acompanhamento.inicio)
        m_acompanhamento.inicio();
}

// NR_VRT is the field's text, trimmed: empty, never Null, when the field is.
QString CopiaEmCurso::numeroVrt() const
{
    const QString numero = m_pedido.numeroVrt.trimmed();
    return numero.isNull() ? QStringLiteral("") : numero;
}

void CopiaEmCurso::copiaCabeca()
{
    static const char* const copiadas =
        "NR_SEQ_RETIF_VRT, NR_CNPJ_INTERNADOR, NR_INSCRICAO_EST, NR_CPF_REPR_LEGAL, DT_REGISTRO_VRT_MICRO, "
        "DT_REGISTRO_VRT, HO_REGISTRO_VRT, IND_MANDADO_JUDIC, NR_TRANSMISSAO, NR_BANCO_ARREC, NR_AG_BCO_ARREC, "
        "NR_CC_AG_BCO_ARREC, CD_TIPO_VRT, IND_VRT_CANCELADA";
    const QString lista = QString::fromLatin1(copiadas);
    m_linhas->executa(QStringLiteral("INSERT INTO VRT (ID_VRT_MICRO, NR_VRT, %1, NR_PROC_ADM_FISCAL, IND_RESTITUICAO, "
                                     "IND_RETIFICACAO) SELECT ?, ?, %1, '', 'N', ? FROM VRT WHERE ID_VRT_MICRO = ?")
                          .arg(lista),
                      {m_nova, numeroVrt(), retificadora() ? QStringLiteral("S") : QStringLiteral("N"),
                       m_pedido.origem});
    const QString id = QStringLiteral("ID_VRT_MICRO");
    if (retificadora())
        m_linhas->copia({QStringLiteral("VALORES_DIVER_RETIF"), id, MapaVrt});
    m_linhas->copia({QStringLiteral("VALORES_DIVER_MANDADO"), id, MapaVrt});
}

void CopiaEmCurso::avanca(int valor)
{
    if (m_acompanhamento.progresso)
        m_acompanhamento.progresso(valor);
}

void CopiaEmCurso::conclui(const QString& mensagem)
{
    avanca(100);
    if (m_acompanhamento.situacao)
        m_acompanhamento.situacao(QString::fromUtf8("** Cópia concluída **"));
    MsgBox(mensagem, Msg::Information);
    m_linhas->encerra();
    m_linhas.reset();
    ConfirmaTransacao();
}

}  // namespace CopiaVrt
