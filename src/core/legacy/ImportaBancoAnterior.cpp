#include "core/legacy/ImportaBancoAnterior.h"

#include "core/legacy/LeitorMdb.h"
#include "core/session/MsgBox.h"
#include "core/store/ComandosPreparados.h"
#include "core/store/modBancoDados.h"

#include <QDir>
#include <QSqlQuery>

namespace BancoAnterior {

namespace {

using namespace modBancoDados;

const QString TextoNaoPertence = QStringLiteral("O banco de dados apontado não pertence a versão 1.0 do sistema!");
const QString TextoErro = QStringLiteral("Ocorreu um erro durente a importação do banco de dados da versão 1.0!");

// The reference tables, emptied and filled again; the declaration tables are emptied by the cascade of VRT.
const QStringList TabelasReferencia = {QStringLiteral("MOEDA"), QStringLiteral("UNIDADE_MEDIDA"),
                                      QStringLiteral("UNIDADE_FEDERATIVA"), QStringLiteral("NCM_ITEM"),
                                      QStringLiteral("PRODUTO")};

int contaPresentes(const QString& tabela)
{
    // The table name is one of this module's constants.
    return ValorUnico(QStringLiteral("SELECT count(*) FROM ") + tabela).toInt();
}

struct ColunaDestino {
    QString nome;
    bool obrigatoria = false;  // NOT NULL: an absent value goes in as an empty text
};

QList<ColunaDestino> colunasDestino(const QString& tabela)
{
    QSqlQuery rs(ConexaoBanco());
    AbreConsulta(rs, QStringLiteral("SELECT name, \"notnull\" FROM pragma_table_info(?) ORDER BY cid"), {tabela});
    QList<ColunaDestino> r;
    while (rs.next())
        r.append({rs.value(0).toString(), rs.value(1).toInt() != 0});
    return r;
}

// A failure of the old file, told by the routine's own handler after the rollback.
struct FalhaLeitura {
    QString descricao;
};

class Copia {
public:
    explicit Copia(const QString& caminho) : m_antigo(caminho) {}

    void executa(const Progresso& progresso)
    {
        if (!m_antigo.aberto())
            throw FalhaLeitura{m_antigo.erro()};
        m_c.executa(QStringLiteral("DELETE FROM VRT"), {});
        m_c.executa(QStringLiteral("DELETE FROM ARQUIVO_NUMERADOR"), {});
        const QStringList& tabelas = TabelasImportadas();
        for (int i = 0; i < tabelas.size(); ++i) {
            const QString& tabela = tabelas.at(i);
            if (TabelasReferencia.contains(tabela) || tabela == QLatin1String("NCM_VRT"))
                m_c.executa(QStringLiteral("DELETE FROM ") + tabela, {});
            copiaTabela(tabela);
            if (progresso)
                progresso(int((i + 1) * 100 / tabelas.size()));
        }
    }

private:
    void copiaTabela(const QString& tabela)
    {
        const std::optional<TabelaLida> lida = m_antigo.le(tabela);
        if (!lida)
            throw FalhaLeitura{m_antigo.erro()};
        const QList<ColunaDestino> destino = colunasDestino(tabela);
        QStringList nomes;
        QList<int> origem;  // per column of the present table: the old table's column, or -1 for a constant
        for (const ColunaDestino& c : destino) {
            nomes << c.nome;
            const bool constante = !ValorAusente(tabela, c.nome).isNull();
            origem << (constante ? -1 : lida->indice(c.nome));
            if (!constante && origem.last() < 0) {
                throw FalhaLeitura{QStringLiteral("A coluna %1 não existe na tabela %2 do banco de dados da "
                                                  "versão 1.0.").arg(c.nome, tabela)};
            }
        }
        // OPERACAO_FISCAL is the one table the import fills without emptying it first, and the database comes
        // delivered with its rows, which an old file holds as well under the same codes. A plain insert would
        // stop at the first code already present and, the failure ending the run, no old database could ever be
        // brought in. So a code already present keeps its row (the delivered text) and the old file adds only the
        // codes the present table lacks: the table is never emptied, as the import has it, and the run goes on.
        const QString verbo = tabela == QLatin1String("OPERACAO_FISCAL") ? QStringLiteral("INSERT OR IGNORE INTO ")
                                                                          : QStringLiteral("INSERT INTO ");
        const QString sql = verbo + tabela + QStringLiteral(" (") + nomes.join(QLatin1String(", "))
                            + QStringLiteral(") VALUES (") + QStringList(nomes.size(), QStringLiteral("?")).join(QLatin1String(", "))
                            + QLatin1Char(')');
        for (const QVariantList& linha : lida->linhas) {
            QVariantList valores;
            valores.reserve(destino.size());
            for (int i = 0; i < destino.size(); ++i) {
                QVariant v = origem.at(i) < 0 ? ValorAusente(tabela, destino.at(i).nome) : linha.value(origem.at(i));
                // Text is never bound as Null: an empty text stays an empty text, as the old statements wrote it.
                if (v.typeId() == QMetaType::QString || (v.isNull() && destino.at(i).obrigatoria))
                    v = ComandosPreparados::texto(v.toString());
                valores << v;
            }
            m_c.executa(sql, valores);
        }
    }

    LeitorMdb m_antigo;
    ComandosPreparados m_c;
};

// Steps 1 and 2: the old file holds declarations and the user wants them. Gives false when the import stops.
bool confirmaArquivo(const QString& caminho)
{
    int quantidade = 0;
    {
        LeitorMdb antigo(caminho);
        const std::optional<TabelaLida> vrt = antigo.aberto() ? antigo.le(QStringLiteral("VRT")) : std::nullopt;
        if (!vrt) {
            MsgBox(TextoNaoPertence, Msg::Critical | Msg::OKCancel);
            return false;
        }
        quantidade = int(vrt->linhas.size());
    }
    if (quantidade < 1) {
        MsgBox(QStringLiteral("Não existem registros de VRT(s) no banco de dados da versão antiga!\n"
                              "O processo de importação não será realizado!"),
               Msg::Critical);
        return false;
    }
    return MsgBox(QStringLiteral("Existem %1 registros de VRT(s) no banco de dados da versão 1.0. "
                                 "Confirma importação?").arg(quantidade),
                  Msg::YesNo | Msg::Question)
           == Msg::Yes;
}

// Step 3: the declarations of the present database go, when the user agrees.
bool confirmaExclusao()
{
    const int presentes = contaPresentes(QStringLiteral("VRT"));
    if (presentes == 0)
        return true;
    const QString n = QString::number(presentes);
    return MsgBox(QStringLiteral("O banco de dados da versão 2.0 já possui %1 registros de VRT!\n"
                                 "Para poder executar a importação dos dados existentes no \n"
                                 "banco de dados da versão 1.0 será necessário excluí-los!\n"
                                 "Confirma a exclusão de %1 registros de VRT existentes no banco de dados da "
                                 "versão 2.0?").arg(n),
                  Msg::YesNo)
           == Msg::Yes;
}

// Step 4: the reference rows of the present database go, when the user agrees.
bool confirmaSubstituicao()
{
    const int uf = contaPresentes(QStringLiteral("UNIDADE_FEDERATIVA"));
    const int unidade = contaPresentes(QStringLiteral("UNIDADE_MEDIDA"));
    const int moeda = contaPresentes(QStringLiteral("MOEDA"));
    const int ncm = contaPresentes(QStringLiteral("NCM_ITEM"));
    const int produto = contaPresentes(QStringLiteral("PRODUTO"));
    if (uf + unidade + moeda + ncm + produto == 0)
        return true;
    const QString texto = QStringLiteral("Foram localizados registros nas tabelas do banco de dados da versão 2.0!\n"
                                         "- %1 registros de Unidade Federativa.\n"
                                         "- %2 registros de Unidade Medida.\n"
                                         "- %3 registros de Moeda.\n"
                                         "- %4 registros de NCM.\n"
                                         "- %5 registros de Produtos.\n"
                                         "Para que a importação seja realizada com sucesso, estes registros devem "
                                         "ser substituídos pelos existentes no banco de dados da versão 1.0. "
                                         "Confirma a substituição?")
                              .arg(uf)
                              .arg(unidade)
                              .arg(moeda)
                              .arg(ncm)
                              .arg(produto);
    return MsgBox(texto, Msg::YesNo) == Msg::Yes;
}

}  // namespace

const QStringList& TabelasImportadas()
{
    static const QStringList tabelas = {
        QStringLiteral("ARQUIVO_NUMERADOR"),
        QStringLiteral("MOEDA"), QStringLiteral("UNIDADE_MEDIDA"), QStringLiteral("UNIDADE_FEDERATIVA"),
        QStringLiteral("NCM_ITEM"), QStringLiteral("PRODUTO"),
        QStringLiteral("VRT"),
        QStringLiteral("NCM_VRT"),
        QStringLiteral("VRT_MENSAL"), QStringLiteral("VRT_INDIVIDUAL"), QStringLiteral("VALORES_DIVER_MANDADO"),
        QStringLiteral("VALORES_DIVER_RETIF"), QStringLiteral("INSUMO_VRT"), QStringLiteral("INSUMO_VRT_IND"),
        // Monthly.
        QStringLiteral("ITEM_VRT_MEN"), QStringLiteral("ITEM_VRT_MEN_PI_COM_PPB"),
        QStringLiteral("JUST_DIF_ALIQ_PROD_VRT_MEN"), QStringLiteral("INSUMO_ITEM_VRT_MEN"),
        QStringLiteral("JUST_DIF_ALIQ_INS_VRT_MEN"), QStringLiteral("DESTINO_ITEM_VRT_MEN"),
        QStringLiteral("ITEM_DI_PE_MEN"), QStringLiteral("ITEM_IMPORT_288_PE_MEN"), QStringLiteral("ITEM_NFA_PE_MEN"),
        QStringLiteral("ITEM_DSI_PE_MEN"), QStringLiteral("ITEM_NFA_INS_MEN"), QStringLiteral("ITEM_DSI_INS_MEN"),
        QStringLiteral("ITEM_DI_INS_MEN"), QStringLiteral("ITEM_IMPORT_288_INS_MEN"),
        // Individual.
        QStringLiteral("NOTA_FISCAL_SAIDA"), QStringLiteral("OPERACAO_FISCAL"), QStringLiteral("ITEM_NFS"),
        QStringLiteral("ITEM_NFS_PI_SEM_PPB"), QStringLiteral("INSUMO_ITEM_NFS"), QStringLiteral("ITEM_NFA_INS_IND"),
        QStringLiteral("ITEM_DSI_INS_IND"), QStringLiteral("JUST_DIF_ALIQ_INS_VRT_IND"),
        QStringLiteral("ITEM_DI_INS_IND"), QStringLiteral("ITEM_IMPORT_288_INS"),
        QStringLiteral("ITEM_NFS_PI_COM_PPB"), QStringLiteral("DCR"), QStringLiteral("DCRE"),
        QStringLiteral("ITEM_NFS_PE"), QStringLiteral("ITEM_NFA_PE_IND"), QStringLiteral("ITEM_DSI_PE_IND"),
        QStringLiteral("JUST_DIF_ALIQ_PROD_VRT_IND"), QStringLiteral("ITEM_DI_PE_IND"),
        QStringLiteral("ITEM_IMPORT_288_PE"), QStringLiteral("ITEM_NFS_100"),
    };
    return tabelas;
}

QVariant ValorAusente(const QString& tabela, const QString& coluna)
{
    const QString zero = QStringLiteral("0,0000000");
    if (tabela == QLatin1String("DESTINO_ITEM_VRT_MEN"))
        return coluna == QLatin1String("VL_PIS") || coluna == QLatin1String("VL_COFINS") ? QVariant(zero) : QVariant();
    const bool di = tabela.startsWith(QLatin1String("ITEM_DI_"));
    const bool dsi = tabela.startsWith(QLatin1String("ITEM_DSI_"));
    if ((di || dsi) && coluna == QLatin1String("IND_SUSP_PIS_COFINS"))
        return QStringLiteral("N");
    if (!dsi)
        return QVariant();
    if (coluna == QLatin1String("CD_MOEDA_NEG") || coluna == QLatin1String("CD_MOEDA_FRETE")
        || coluna == QLatin1String("CD_MOEDA_SEGURO"))
        return ComandosPreparados::texto(QString());
    if (coluna == QLatin1String("VL_PROD_UNID_PROD") || coluna == QLatin1String("VL_INS_UNID_PROD")
        || coluna == QLatin1String("VL_FRETE_UNID_INT") || coluna == QLatin1String("VL_SEGURO_UNID_INT"))
        return zero;
    return QVariant();
}

bool NomeAceito(const QString& nome)
{
    if (nome.toLower() == QLatin1String("pln_vrt.mdb"))
        return true;
    MsgBox(QStringLiteral("O arquivo localizado não é o banco de dados da versão 1.0 do sistema!\n"
                          "O arquivo a ser localizado é:\n"
                          "C:\\PROJETOS\\VRT-PLN\\PLN_VRT.mdb"));
    return false;
}

bool ImportaBancoAnterior(const QString& pasta, const QString& nome, const Progresso& progresso)
{
    const QString caminho = QDir(pasta).filePath(nome);
    if (!confirmaArquivo(caminho) || !confirmaExclusao() || !confirmaSubstituicao())
        return false;
    try {
        Transacao transacao;
        Copia copia(caminho);
        copia.executa(progresso);
        transacao.confirma();
    } catch (const FalhaLeitura& falha) {
        // The guard has rolled the transaction back: the present data stay as they were.
        MsgBox(TextoErro + QLatin1Char('\n') + falha.descricao, Msg::Critical);
        return false;
    }
    return true;
}

}  // namespace BancoAnterior
