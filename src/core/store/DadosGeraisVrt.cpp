#include "core/store/DadosGeraisVrt.h"

#include "core/store/modBancoDados.h"

#include <QSqlQuery>
#include <QSqlRecord>

using namespace modBancoDados;

namespace {

QString texto(const QSqlQuery& rs, const char* coluna)
{
    return rs.value(QLatin1String(coluna)).toString();
}

QVariantList valoresVrt(const DadosGerais& d)
{
    return {d.nrVrt,   d.cnpj,     d.indMandado, d.indRetificacao,  d.banco,
            d.agencia, d.conta,    d.processo,   d.indRestituicao};
}

QVariantList valoresNota(const DadosGerais& d, const NotaSaida& n)
{
    return {d.idVrt,   n.numero,           n.serie,        n.emissao, n.saida,
            n.cfop,    n.tipoDestinatario, n.destinatario, n.uf};
}

void leNota(const QString& id, NotaSaida& nota)
{
    QSqlQuery rs(ConexaoBanco());
    AbreConsulta(rs, QStringLiteral("SELECT * FROM NOTA_FISCAL_SAIDA WHERE ID_VRT_MICRO = ?"), {id});
    if (!rs.next())
        return;
    nota.idNfs = rs.value(QStringLiteral("ID_NFS")).toLongLong();
    nota.numero = texto(rs, "NR_NF_SAIDA");
    nota.serie = texto(rs, "NR_SERIE_NF_SAIDA");
    nota.emissao = texto(rs, "DT_EMISS_NF_SAIDA");
    nota.saida = texto(rs, "DT_SAIDA_NF_SAIDA");
    nota.cfop = texto(rs, "CD_OP_FISCAL");
    nota.tipoDestinatario = texto(rs, "CD_TIPO_DESTINAT");
    nota.destinatario = texto(rs, "NR_DESTINAT");
    nota.uf = texto(rs, "CD_UF_DESTINO");
}

}  // namespace

namespace DadosGeraisVrt {

bool Le(const QString& id, DadosGerais& d, NotaSaida* nota)
{
    QSqlQuery rs(ConexaoBanco());
    AbreConsulta(rs, QStringLiteral("SELECT * FROM VRT WHERE ID_VRT_MICRO = ?"), {id});
    if (!rs.next())
        return false;
    d.idVrt = id;
    d.tipo = texto(rs, "CD_TIPO_VRT");
    d.nrVrt = texto(rs, "NR_VRT");
    d.cnpj = texto(rs, "NR_CNPJ_INTERNADOR");
    d.indMandado = texto(rs, "IND_MANDADO_JUDIC");
    d.indRetificacao = texto(rs, "IND_RETIFICACAO");
    d.banco = texto(rs, "NR_BANCO_ARREC");
    d.agencia = texto(rs, "NR_AG_BCO_ARREC");
    d.conta = texto(rs, "NR_CC_AG_BCO_ARREC");
    d.processo = texto(rs, "NR_PROC_ADM_FISCAL");
    d.indRestituicao = texto(rs, "IND_RESTITUICAO");
    d.inscricao = texto(rs, "NR_INSCRICAO_EST");
    rs.finish();
    if (d.individual()) {
        d.alc = ValorUnico(QStringLiteral("SELECT IN_SAIDA_ALC_AO FROM VRT_INDIVIDUAL WHERE ID_VRT_MICRO = ?"), {id})
                    .toString();
        if (nota)
            leNota(id, *nota);
    } else {
        d.referencia =
            ValorUnico(QStringLiteral("SELECT DT_REFERENCIA_VRT FROM VRT_MENSAL WHERE ID_VRT_MICRO = ?"), {id})
                .toString();
    }
    return true;
}

void Insere(const DadosGerais& d, NotaSaida* nota)
{
    ExecutaSql(QStringLiteral("INSERT INTO VRT (ID_VRT_MICRO, NR_VRT, NR_CNPJ_INTERNADOR, IND_MANDADO_JUDIC, "
                              "IND_RETIFICACAO, NR_BANCO_ARREC, NR_AG_BCO_ARREC, NR_CC_AG_BCO_ARREC, "
                              "NR_PROC_ADM_FISCAL, IND_RESTITUICAO, CD_TIPO_VRT, NR_INSCRICAO_EST) "
                              "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
               QVariantList{d.idVrt} + valoresVrt(d)
                   + QVariantList{d.tipo, d.individual() ? QVariant(d.inscricao) : QVariant()});
    if (!d.individual()) {
        ExecutaSql(QStringLiteral("INSERT INTO VRT_MENSAL (ID_VRT_MICRO, DT_REFERENCIA_VRT) VALUES (?, ?)"),
                   {d.idVrt, d.referencia});
        return;
    }
    ExecutaSql(QStringLiteral("INSERT INTO VRT_INDIVIDUAL (ID_VRT_MICRO, IN_SAIDA_ALC_AO) VALUES (?, ?)"),
               {d.idVrt, d.alc});
    NotaSaida vazia;
    NotaSaida& n = nota ? *nota : vazia;
    ExecutaSql(QStringLiteral("INSERT INTO NOTA_FISCAL_SAIDA (ID_VRT_MICRO, NR_NF_SAIDA, NR_SERIE_NF_SAIDA, "
                              "DT_EMISS_NF_SAIDA, DT_SAIDA_NF_SAIDA, CD_OP_FISCAL, CD_TIPO_DESTINAT, NR_DESTINAT, "
                              "CD_UF_DESTINO) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"),
               valoresNota(d, n));
    n.idNfs = ValorUnico(QStringLiteral("SELECT MAX(ID_NFS) FROM NOTA_FISCAL_SAIDA")).toLongLong();
}

void Atualiza(const DadosGerais& d, const NotaSaida* nota)
{
    QString sql = QStringLiteral("UPDATE VRT SET NR_VRT = ?, NR_CNPJ_INTERNADOR = ?, NR_MANDADO_JUDIC = '', "
                                 "IND_MANDADO_JUDIC = ?, IND_RETIFICACAO = ?, NR_BANCO_ARREC = ?, NR_AG_BCO_ARREC = ?, "
                                 "NR_CC_AG_BCO_ARREC = ?, NR_PROC_ADM_FISCAL = ?, IND_RESTITUICAO = ?");
    QVariantList valores = valoresVrt(d);
    if (d.individual()) {
        sql += QStringLiteral(", NR_INSCRICAO_EST = ?");
        valores << d.inscricao;
    }
    ExecutaSql(sql + QStringLiteral(" WHERE ID_VRT_MICRO = ?"), valores << d.idVrt);
    if (!d.individual()) {
        ExecutaSql(QStringLiteral("UPDATE VRT_MENSAL SET DT_REFERENCIA_VRT = ? WHERE ID_VRT_MICRO = ?"),
                   {d.referencia, d.idVrt});
        return;
    }
    ExecutaSql(QStringLiteral("UPDATE VRT_INDIVIDUAL SET IN_SAIDA_ALC_AO = ? WHERE ID_VRT_MICRO = ?"),
               {d.alc, d.idVrt});
    if (!nota)
        return;
    QVariantList v = valoresNota(d, *nota);
    v.removeFirst();
    ExecutaSql(QStringLiteral("UPDATE NOTA_FISCAL_SAIDA SET NR_NF_SAIDA = ?, NR_SERIE_NF_SAIDA = ?, "
                              "DT_EMISS_NF_SAIDA = ?, DT_SAIDA_NF_SAIDA = ?, CD_OP_FISCAL = ?, CD_TIPO_DESTINAT = ?, "
                              "NR_DESTINAT = ?, CD_UF_DESTINO = ? WHERE ID_VRT_MICRO = ?"),
               v << d.idVrt);
}

QString NomeUf(const QString& uf)
{
    return ValorUnico(QStringLiteral("SELECT NM_UF FROM UNIDADE_FEDERATIVA WHERE CD_UF_DESTINO = ?"), {uf}).toString();
}

}  // namespace DadosGeraisVrt
