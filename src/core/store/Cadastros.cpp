#include "core/store/Cadastros.h"

#include "core/store/modBancoDados.h"

#include <QSqlQuery>

namespace Cadastros {

namespace {
TabelaCadastro tabela(const char* t, const char* codigo, const char* nome, const char* complemento = "",
                      bool semCaixa = false)
{
    return {QString::fromLatin1(t), QString::fromLatin1(codigo), QString::fromLatin1(nome),
            QString::fromLatin1(complemento), semCaixa};
}

QString semCaixa(const TabelaCadastro& t)
{
    return t.codigoSemCaixa ? QStringLiteral(" COLLATE NOCASE") : QString();
}
}  // namespace

const TabelaCadastro& Produto()
{
    static const TabelaCadastro t = tabela("PRODUTO", "CD_INT_PRODUTO", "NM_INT_PRODUTO", "", true);
    return t;
}

const TabelaCadastro& UnidadeMedida()
{
    static const TabelaCadastro t = tabela("UNIDADE_MEDIDA", "CD_UNID_MEDIDA", "NM_MEDIDA");
    return t;
}

const TabelaCadastro& Ncm()
{
    static const TabelaCadastro t = tabela("NCM_ITEM", "CD_NCM_PRODUTO", "DESCR_NCM_PRODUTO", "NM_UNID_MED_EST");
    return t;
}

const TabelaCadastro& Moeda()
{
    static const TabelaCadastro t = tabela("MOEDA", "CD_MOEDA", "NM_MOEDA");
    return t;
}

QList<QStringList> Lista(const TabelaCadastro& t, const QString& prefixo)
{
    QString sql = QStringLiteral("SELECT %1, %2").arg(t.colunaCodigo, t.colunaNome);
    if (!t.colunaComplemento.isEmpty())
        sql += QStringLiteral(", ") + t.colunaComplemento;
    sql += QStringLiteral(" FROM ") + t.tabela;
    QVariantList valores;
    if (!prefixo.isEmpty()) {
        // The length as the database counts characters: QString counts 16-bit units.
        sql += QStringLiteral(" WHERE substr(%1, 1, length(?)) = ?").arg(t.colunaCodigo) + semCaixa(t);
        valores << prefixo << prefixo;
    }
    sql += QStringLiteral(" ORDER BY %1.%2").arg(t.tabela, t.colunaCodigo);

    QSqlQuery rs(modBancoDados::ConexaoBanco());
    rs.setForwardOnly(true);
    modBancoDados::AbreConsulta(rs, sql, valores);
    const int colunas = t.colunaComplemento.isEmpty() ? 2 : 3;
    QList<QStringList> linhas;
    while (rs.next()) {
        QStringList linha;
        for (int i = 0; i < colunas; ++i)
            linha << rs.value(i).toString();
        linhas << linha;
    }
    return linhas;
}

bool Existe(const TabelaCadastro& t, const QString& codigo)
{
    const QString sql = QStringLiteral("SELECT 1 FROM %1 WHERE %2 = ?%3 LIMIT 1").arg(t.tabela, t.colunaCodigo, semCaixa(t));
    return modBancoDados::ValorUnico(sql, {codigo}).isValid();
}

void Inclui(const TabelaCadastro& t, const QString& codigo, const QString& nome)
{
    modBancoDados::Transacao transacao(modBancoDados::Transacao::JuntaSeAberta);
    modBancoDados::ExecutaSql(
        QStringLiteral("INSERT INTO %1 (%2, %3) VALUES (?, ?)").arg(t.tabela, t.colunaCodigo, t.colunaNome),
        {codigo, nome});
    transacao.confirma();
}

void Altera(const TabelaCadastro& t, const QString& codigoAntigo, const QString& codigo, const QString& nome)
{
    modBancoDados::Transacao transacao(modBancoDados::Transacao::JuntaSeAberta);
    modBancoDados::ExecutaSql(
        QStringLiteral("UPDATE %1 SET %2 = ?, %3 = ? WHERE %2 = ?").arg(t.tabela, t.colunaCodigo, t.colunaNome),
        {codigo, nome, codigoAntigo});
    transacao.confirma();
}

void Exclui(const TabelaCadastro& t, const QString& codigo)
{
    modBancoDados::Transacao transacao(modBancoDados::Transacao::JuntaSeAberta);
    modBancoDados::ExecutaSql(QStringLiteral("DELETE FROM %1 WHERE %2 = ?").arg(t.tabela, t.colunaCodigo), {codigo});
    transacao.confirma();
}

void IncluiProduto(const QString& codigo, const QString& nome) { Inclui(Produto(), codigo, nome); }
void AlteraProduto(const QString& codigoAntigo, const QString& codigo, const QString& nome)
{
    Altera(Produto(), codigoAntigo, codigo, nome);
}
void ExcluiProduto(const QString& codigo) { Exclui(Produto(), codigo); }
void IncluiUnidade(const QString& codigo, const QString& nome) { Inclui(UnidadeMedida(), codigo, nome); }
void AlteraUnidade(const QString& codigoAntigo, const QString& codigo, const QString& nome)
{
    Altera(UnidadeMedida(), codigoAntigo, codigo, nome);
}
void ExcluiUnidade(const QString& codigo) { Exclui(UnidadeMedida(), codigo); }

bool ExisteVrt(const QString& identificacao)
{
    return modBancoDados::ValorUnico(QStringLiteral("SELECT 1 FROM VRT WHERE ID_VRT_MICRO = ?"), {identificacao})
        .isValid();
}

QString TipoVrt(const QString& identificacao)
{
    const QVariant tipo =
        modBancoDados::ValorUnico(QStringLiteral("SELECT CD_TIPO_VRT FROM VRT WHERE ID_VRT_MICRO = ?"), {identificacao});
    return tipo.isValid() ? tipo.toString() : QString();
}

QStringList CodigosUf()
{
    QSqlQuery rs(modBancoDados::ConexaoBanco());
    modBancoDados::AbreConsulta(rs, QStringLiteral("SELECT CD_UF_DESTINO FROM UNIDADE_FEDERATIVA ORDER BY CD_UF_DESTINO"));
    QStringList codigos;
    while (rs.next())
        codigos << rs.value(0).toString();
    return codigos;
}

void ExcluiVrt(const QString& identificacao)
{
    modBancoDados::Transacao transacao(modBancoDados::Transacao::JuntaSeAberta);
    modBancoDados::ExecutaSql(QStringLiteral("DELETE FROM VRT WHERE ID_VRT_MICRO = ?"), {identificacao});
    transacao.confirma();
}

}  // namespace Cadastros
