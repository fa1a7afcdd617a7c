#include "core/file/writing/EscritaRegistro.h"

#include "core/file/writing/CabecalhoVrt.h"
#include "core/file/writing/CursorFilhos.h"
#include "core/file/writing/GravaVrt.h"
#include "core/session/MsgBox.h"

#include <QStringList>

namespace EscritaRegistro {

QString se(const QString& condicao, const QString& t, const QString& coluna, const QString& campo)
{
    if (condicao.isEmpty())
        return t + QLatin1Char('.') + coluna + QStringLiteral(" AS ") + campo;
    return QStringLiteral("CASE WHEN %1 THEN %2.%3 END AS %4").arg(condicao, t, coluna, campo);
}

QString valoresImportacao(const QString& condicao, const QString& t, const QString& campoValor,
                          const QString& unidade)
{
    QStringList colunas;
    for (const QString& c : {campoValor, QStringLiteral("CD_MOEDA_NEG"), QStringLiteral("VL_FRETE_UNID_") + unidade,
                             QStringLiteral("CD_MOEDA_FRETE"), QStringLiteral("VL_SEGURO_UNID_") + unidade,
                             QStringLiteral("CD_MOEDA_SEGURO")})
        colunas << se(condicao, t, c, c);
    return colunas.join(QStringLiteral(", "));
}

QString colunas12(const NomesProduto& nomes)
{
    const QString quantidade = nomes.quantidadeBrancoVazio
                                   ? QStringLiteral("NULLIF(x.%1, ' ') AS %1").arg(nomes.quantidade)
                                   : QStringLiteral("x.") + nomes.quantidade;
    return QStringLiteral("x.NR_CNPJ_FORNECEDOR, x.NR_SERIE_NF_AQUIS, x.NR_NF_AQUIS, x.NR_ITEM_NF_AQUIS, "
                          "x.DT_EMISS_NF_AQUIS, x.CD_CFOP_NF_AQUIS, x.IND_DL_288_67, x.IND_OBSOLE_RESIDUO, ")
           + quantidade + QStringLiteral(", ")
           + se(QStringLiteral("x.IND_DL_288_67 = 'S' AND x.IND_OBSOLE_RESIDUO = 'N'"), QStringLiteral("x"),
                nomes.valorNota, nomes.valorNota)
           + QStringLiteral(", ")
           + se(QStringLiteral("x.IND_OBSOLE_RESIDUO = 'S'"), QStringLiteral("x"), nomes.totalObsoleto,
                nomes.totalObsoleto);
}

QString colunas14(const NomesProduto& nomes)
{
    // The import values only under suspension of PIS/COFINS, in both declarations.
    return QStringLiteral("x.NR_DSI, x.NR_DSI_ANTIGA, x.NR_BEM, x.") + nomes.quantidade + QStringLiteral(", ")
           + valoresImportacao(QStringLiteral("x.IND_SUSP_PIS_COFINS = 'S'"), QStringLiteral("x"),
                               QStringLiteral("VL_PROD_UNID_PROD"), QStringLiteral("INT"))
           + QStringLiteral(", x.IND_SUSP_PIS_COFINS");
}

RegistroComposto::RegistroComposto(const LayoutRegistro& layout, const ComandoSqlite& pai,
                                   const ComandoSqlite* filho)
    : m_linha(layout), m_doPai(layout, pai)
{
    if (filho)
        m_doFilho = MapaColunas(layout, *filho);
}

RegistrosFilhos::RegistrosFilhos(const LayoutRegistro& layout, const QString& sql, const QVariantList& valores,
                                 AoCompor aoCompor)
    : m_cursor(sql, valores), m_linha(layout), m_mapa(layout, m_cursor.linha()), m_aoCompor(std::move(aoCompor))
{
}

void RegistrosFilhos::escreve(SaidaVrt& saida, qint64 pai)
{
    for (; m_cursor.de(pai); m_cursor.avanca()) {
        m_linha.limpa();
        m_linha.preenche(m_cursor.linha(), m_mapa);
        if (m_aoCompor)
            m_aoCompor(m_linha, m_cursor.linha());
        saida.escreve(m_linha);
    }
}

RegistrosPorDestino::RegistrosPorDestino(const LayoutRegistro& layout, const QString& sql,
                                         const QVariantList& valores, int primeiraDe, AoCompor aoCompor)
    : m_filhos(sql, valores, primeiraDe), m_linha(layout), m_mapa(layout, m_filhos.consulta()),
      m_aoCompor(std::move(aoCompor))
{
}

void RegistrosPorDestino::escreve(SaidaVrt& saida, qint64 destino)
{
    for (const int k : m_filhos.de(destino)) {
        m_linha.limpa();
        const FilhosDoItem::Linha linha = m_filhos.linha(k);
        m_linha.preenche(linha, m_mapa);
        if (m_aoCompor)
            m_aoCompor(m_linha, linha);
        saida.escreve(m_linha);
    }
}

void gravaArquivo(const CabecalhoVrt& cabecalho, GravacaoVrt& run,
                  const std::function<void(SaidaVrt&)>& escreveItens, MensagemDoErro mensagemDoErro)
{
    run.erroGravacao = false;
    SaidaVrt saida;
    try {
        saida.abre(run.caminhoArquivo(cabecalho.idVrtMicro));
        cabecalho.escreve(saida, run.origem());
        escreveItens(saida);
        saida.fecha();
    } catch (const SaidaVrt::Erro& erro) {
        saida.abandona();
        const QString texto = mensagemDoErro(erro);
        if (texto.isEmpty())
            return;
        MsgBox(texto, Msg::OKOnly | Msg::Critical);
        run.erroGravacao = true;
    }
}

}  // namespace EscritaRegistro
