#pragma once
// Fully populated declarations for the store tests: one row in every table of a monthly or an individual
// declaration's tree, each row remembered by table, key column and key value so that a test can tell which rows
// are still there after a delete.
#include "core/store/modBancoDados.h"

#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

struct LinhaDeclaracao {
    QString tabela;
    QString coluna;  // the column that names this very row
    QVariant chave;
};
using ArvoreDeclaracao = QList<LinhaDeclaracao>;

namespace DeclaracaoCompleta {

// Inserts one row with bound values; with `contador`, gives back the new counter read as the program reads it.
inline QVariant insere(const QString& tabela, const QVariantMap& valores, const QString& contador = QString())
{
    QStringList marcas;
    for (int i = 0; i < valores.size(); ++i)
        marcas << QStringLiteral("?");
    modBancoDados::ExecutaSql(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                                  .arg(tabela, valores.keys().join(QLatin1String(", ")), marcas.join(QLatin1String(", "))),
                              valores.values());
    if (contador.isEmpty())
        return QVariant();
    return modBancoDados::ValorUnico(QStringLiteral("SELECT MAX(%1) FROM %2").arg(contador, tabela));
}

// Writes a tree in one transaction of its own unless one is open already: a statement per commit is slow.
class TransacaoSeFechada {
public:
    TransacaoSeFechada() : m_propria(!modBancoDados::TransacaoAberta())
    {
        if (m_propria)
            modBancoDados::IniciaTransacao();
    }
    ~TransacaoSeFechada()
    {
        if (m_propria)
            modBancoDados::ConfirmaTransacao();
    }

private:
    bool m_propria;
};

inline void cabeca(ArvoreDeclaracao& a, const QString& id, const QString& tipo)
{
    insere(QStringLiteral("VRT"), {{QStringLiteral("ID_VRT_MICRO"), id}, {QStringLiteral("CD_TIPO_VRT"), tipo},
                                   {QStringLiteral("NR_CNPJ_INTERNADOR"), QStringLiteral("11222333000181")},
                                   {QStringLiteral("NR_VRT"), QStringLiteral(" ")}});
    a.append({QStringLiteral("VRT"), QStringLiteral("ID_VRT_MICRO"), id});
    for (const QString& sufixo : {QStringLiteral("RETIF"), QStringLiteral("MANDADO")}) {
        const QString tabela = QStringLiteral("VALORES_DIVER_") + sufixo;
        insere(tabela, {{QStringLiteral("ID_VRT_MICRO"), id}, {QStringLiteral("CD_MOD_") + sufixo, QStringLiteral("1")},
                        {QStringLiteral("CD_TIPO_DIVER_") + sufixo, QStringLiteral("10")},
                        {QStringLiteral("VL_TOTAL_DIVER_") + sufixo, QStringLiteral("1500,00")}});
        a.append({tabela, QStringLiteral("ID_VRT_MICRO"), id});
    }
}

// A monthly declaration with one item that has a row in every table below it, and one document of an input
// (with its Decreto-Lei 288/67 values) on the declaration.
inline ArvoreDeclaracao mensal(const QString& id)
{
    TransacaoSeFechada transacao;
    ArvoreDeclaracao a;
    cabeca(a, id, QStringLiteral("2"));
    const QString ID = QStringLiteral("ID_VRT_MICRO");
    insere(QStringLiteral("VRT_MENSAL"), {{ID, id}, {QStringLiteral("DT_REFERENCIA_VRT"), QStringLiteral("052024")}});
    a.append({QStringLiteral("VRT_MENSAL"), ID, id});
    insere(QStringLiteral("NCM_VRT"), {{ID, id}, {QStringLiteral("IN_MOD_INTERNACAO"), QStringLiteral("3")},
                                       {QStringLiteral("CD_NCM_PRODUTO"), QStringLiteral("84713012")},
                                       {QStringLiteral("QT_TOTAL_NCM"), QStringLiteral("0")}});
    a.append({QStringLiteral("NCM_VRT"), ID, id});
    insere(QStringLiteral("INSUMO_VRT"), {{ID, id}, {QStringLiteral("CD_INT_INSUMO"), QStringLiteral("INS-01")},
                                          {QStringLiteral("QT_TOT_INS_EST"), QStringLiteral("5,00000")}});
    a.append({QStringLiteral("INSUMO_VRT"), ID, id});

    const QVariant item = insere(QStringLiteral("ITEM_VRT_MEN"),
                                 {{ID, id}, {QStringLiteral("CD_INT_PRODUTO"), QStringLiteral("PROD-01")},
                                  {QStringLiteral("NM_INT_PRODUTO"), QStringLiteral("Produto de teste")},
                                  {QStringLiteral("IND_MOD_INTERNACAO"), QStringLiteral("3")}},
                                 QStringLiteral("ID_ITEM_VRT"));
    const QString IT = QStringLiteral("ID_ITEM_VRT");
    a.append({QStringLiteral("ITEM_VRT_MEN"), IT, item});
    for (const QString& tabela : {QStringLiteral("ITEM_VRT_MEN_PI_COM_PPB"), QStringLiteral("JUST_DIF_ALIQ_PROD_VRT_MEN")}) {
        insere(tabela, {{IT, item}});
        a.append({tabela, IT, item});
    }
    const QVariant destino = insere(QStringLiteral("DESTINO_ITEM_VRT_MEN"),
                                    {{IT, item}, {QStringLiteral("CD_LOCAL_DESTINO"), QStringLiteral("1")},
                                     {QStringLiteral("QT_PROD_LOC_DEST"), QStringLiteral("4,00000")}},
                                    QStringLiteral("ID_DEST_PRODUTO"));
    const QString DE = QStringLiteral("ID_DEST_PRODUTO");
    a.append({QStringLiteral("DESTINO_ITEM_VRT_MEN"), DE, destino});
    const QVariant di = insere(QStringLiteral("ITEM_DI_PE_MEN"), {{DE, destino}, {QStringLiteral("IND_DL_288_67"), QStringLiteral("S")}},
                               QStringLiteral("ID_ITEM_DI"));
    a.append({QStringLiteral("ITEM_DI_PE_MEN"), QStringLiteral("ID_ITEM_DI"), di});
    const QVariant imp = insere(QStringLiteral("ITEM_IMPORT_288_PE_MEN"), {{QStringLiteral("ID_ITEM_DI"), di}},
                                QStringLiteral("ID_ITEM_IMP_288"));
    a.append({QStringLiteral("ITEM_IMPORT_288_PE_MEN"), QStringLiteral("ID_ITEM_IMP_288"), imp});
    const QVariant dsi = insere(QStringLiteral("ITEM_DSI_PE_MEN"), {{DE, destino}}, QStringLiteral("ID_ITEM_DSI"));
    a.append({QStringLiteral("ITEM_DSI_PE_MEN"), QStringLiteral("ID_ITEM_DSI"), dsi});
    const QVariant nfa = insere(QStringLiteral("ITEM_NFA_PE_MEN"), {{DE, destino}}, QStringLiteral("ID_ITEM_NFA"));
    a.append({QStringLiteral("ITEM_NFA_PE_MEN"), QStringLiteral("ID_ITEM_NFA"), nfa});

    const QVariant insumo = insere(QStringLiteral("INSUMO_ITEM_VRT_MEN"),
                                   {{IT, item}, {QStringLiteral("NR_ORDEM"), 1},
                                    {QStringLiteral("CD_INT_INSUMO"), QStringLiteral("INS-01")},
                                    {QStringLiteral("QT_INSUMO_POR_PROD"), QStringLiteral("2,50000")}},
                                   QStringLiteral("ID_INSUMO_ITEM"));
    const QString IN = QStringLiteral("ID_INSUMO_ITEM");
    a.append({QStringLiteral("INSUMO_ITEM_VRT_MEN"), IN, insumo});
    insere(QStringLiteral("JUST_DIF_ALIQ_INS_VRT_MEN"), {{IN, insumo}});
    a.append({QStringLiteral("JUST_DIF_ALIQ_INS_VRT_MEN"), IN, insumo});
    const QVariantMap doc{{ID, id}, {IN, insumo}, {QStringLiteral("CD_INT_INSUMO"), QStringLiteral("INS-01")},
                          {QStringLiteral("CD_LOCAL_DESTINO"), QStringLiteral("1")}};
    const QVariant diIns = insere(QStringLiteral("ITEM_DI_INS_MEN"), doc, QStringLiteral("ID_ITEM_DI"));
    a.append({QStringLiteral("ITEM_DI_INS_MEN"), QStringLiteral("ID_ITEM_DI"), diIns});
    const QVariant impIns = insere(QStringLiteral("ITEM_IMPORT_288_INS_MEN"), {{QStringLiteral("ID_ITEM_DI"), diIns}},
                                   QStringLiteral("ID_ITEM_IMP_288"));
    a.append({QStringLiteral("ITEM_IMPORT_288_INS_MEN"), QStringLiteral("ID_ITEM_IMP_288"), impIns});
    const QVariant dsiIns = insere(QStringLiteral("ITEM_DSI_INS_MEN"), doc, QStringLiteral("ID_ITEM_DSI"));
    a.append({QStringLiteral("ITEM_DSI_INS_MEN"), QStringLiteral("ID_ITEM_DSI"), dsiIns});
    const QVariant nfaIns = insere(QStringLiteral("ITEM_NFA_INS_MEN"), doc, QStringLiteral("ID_ITEM_NFA"));
    a.append({QStringLiteral("ITEM_NFA_INS_MEN"), QStringLiteral("ID_ITEM_NFA"), nfaIns});
    return a;
}

// An individual declaration: one invoice with one item that has a row in every table below it.
inline ArvoreDeclaracao individual(const QString& id)
{
    TransacaoSeFechada transacao;
    ArvoreDeclaracao a;
    cabeca(a, id, QStringLiteral("1"));
    const QString ID = QStringLiteral("ID_VRT_MICRO");
    insere(QStringLiteral("VRT_INDIVIDUAL"), {{ID, id}, {QStringLiteral("IN_SAIDA_ALC_AO"), QStringLiteral("N")}});
    a.append({QStringLiteral("VRT_INDIVIDUAL"), ID, id});
    insere(QStringLiteral("INSUMO_VRT_IND"), {{ID, id}, {QStringLiteral("CD_INT_INSUMO"), QStringLiteral("INS-01")},
                                              {QStringLiteral("QT_TOT_INS"), QStringLiteral("3,00000")}});
    a.append({QStringLiteral("INSUMO_VRT_IND"), ID, id});

    const QVariant nfs = insere(QStringLiteral("NOTA_FISCAL_SAIDA"),
                                {{ID, id}, {QStringLiteral("NR_NF_SAIDA"), QStringLiteral("000123")},
                                 {QStringLiteral("CD_UF_DESTINO"), QStringLiteral("SP")}},
                                QStringLiteral("ID_NFS"));
    a.append({QStringLiteral("NOTA_FISCAL_SAIDA"), QStringLiteral("ID_NFS"), nfs});
    const QVariant item = insere(QStringLiteral("ITEM_NFS"),
                                 {{QStringLiteral("ID_NFS"), nfs}, {QStringLiteral("NR_ITEM_NF_SAIDA"), QStringLiteral("001")},
                                  {QStringLiteral("CD_INT_PROD"), QStringLiteral("PROD-01")},
                                  {QStringLiteral("IND_MOD_INTERNACAO"), QStringLiteral("3")}},
                                 QStringLiteral("ID_ITEM"));
    const QString IT = QStringLiteral("ID_ITEM");
    a.append({QStringLiteral("ITEM_NFS"), IT, item});
    for (const QString& tabela : {QStringLiteral("ITEM_NFS_100"), QStringLiteral("ITEM_NFS_PE"),
                                 QStringLiteral("ITEM_NFS_PI_COM_PPB"), QStringLiteral("ITEM_NFS_PI_SEM_PPB"),
                                 QStringLiteral("JUST_DIF_ALIQ_PROD_VRT_IND")}) {
        insere(tabela, {{IT, item}});
        a.append({tabela, IT, item});
    }
    const QVariant dcr = insere(QStringLiteral("DCR"), {{IT, item}, {QStringLiteral("NR_DCR"), QStringLiteral("123452024")}},
                                QStringLiteral("ID_DCR"));
    a.append({QStringLiteral("DCR"), QStringLiteral("ID_DCR"), dcr});
    const QVariant dcre = insere(QStringLiteral("DCRE"), {{IT, item}, {QStringLiteral("NR_DCRE"), QStringLiteral("1234567890")}},
                                 QStringLiteral("ID_DCRE"));
    a.append({QStringLiteral("DCRE"), QStringLiteral("ID_DCRE"), dcre});

    const QVariant di = insere(QStringLiteral("ITEM_DI_PE_IND"), {{IT, item}, {QStringLiteral("IND_DL_288_67"), QStringLiteral("S")}},
                               QStringLiteral("ID_ITEM_DI"));
    a.append({QStringLiteral("ITEM_DI_PE_IND"), QStringLiteral("ID_ITEM_DI"), di});
    const QVariant imp = insere(QStringLiteral("ITEM_IMPORT_288_PE"), {{QStringLiteral("ID_ITEM_DI"), di}},
                                QStringLiteral("ID_ITEM_IMP_288"));
    a.append({QStringLiteral("ITEM_IMPORT_288_PE"), QStringLiteral("ID_ITEM_IMP_288"), imp});
    const QVariant dsi = insere(QStringLiteral("ITEM_DSI_PE_IND"), {{IT, item}}, QStringLiteral("ID_ITEM_DSI"));
    a.append({QStringLiteral("ITEM_DSI_PE_IND"), QStringLiteral("ID_ITEM_DSI"), dsi});
    const QVariant nfa = insere(QStringLiteral("ITEM_NFA_PE_IND"), {{IT, item}}, QStringLiteral("ID_ITEM_NFA"));
    a.append({QStringLiteral("ITEM_NFA_PE_IND"), QStringLiteral("ID_ITEM_NFA"), nfa});

    const QVariant insumo = insere(QStringLiteral("INSUMO_ITEM_NFS"),
                                   {{IT, item}, {QStringLiteral("NR_ORDEM"), 1},
                                    {QStringLiteral("CD_INT_INSUMO"), QStringLiteral("INS-01")}},
                                   QStringLiteral("ID_INSUMO"));
    const QString IN = QStringLiteral("ID_INSUMO");
    a.append({QStringLiteral("INSUMO_ITEM_NFS"), IN, insumo});
    insere(QStringLiteral("JUST_DIF_ALIQ_INS_VRT_IND"), {{IN, insumo}});
    a.append({QStringLiteral("JUST_DIF_ALIQ_INS_VRT_IND"), IN, insumo});
    const QVariant diIns = insere(QStringLiteral("ITEM_DI_INS_IND"), {{IN, insumo}, {QStringLiteral("IND_DL_288_67"), QStringLiteral("S")}},
                                  QStringLiteral("ID_ITEM_DI"));
    a.append({QStringLiteral("ITEM_DI_INS_IND"), QStringLiteral("ID_ITEM_DI"), diIns});
    const QVariant impIns = insere(QStringLiteral("ITEM_IMPORT_288_INS"), {{QStringLiteral("ID_ITEM_DI"), diIns}},
                                   QStringLiteral("ID_ITEM_IMP_288"));
    a.append({QStringLiteral("ITEM_IMPORT_288_INS"), QStringLiteral("ID_ITEM_IMP_288"), impIns});
    const QVariant dsiIns = insere(QStringLiteral("ITEM_DSI_INS_IND"), {{IN, insumo}}, QStringLiteral("ID_ITEM_DSI"));
    a.append({QStringLiteral("ITEM_DSI_INS_IND"), QStringLiteral("ID_ITEM_DSI"), dsiIns});
    const QVariant nfaIns = insere(QStringLiteral("ITEM_NFA_INS_IND"), {{IN, insumo}}, QStringLiteral("ID_ITEM_NFA"));
    a.append({QStringLiteral("ITEM_NFA_INS_IND"), QStringLiteral("ID_ITEM_NFA"), nfaIns});
    return a;
}

// The row of `tabela` in a tree.
inline LinhaDeclaracao linha(const ArvoreDeclaracao& a, const QString& tabela)
{
    for (const LinhaDeclaracao& l : a)
        if (l.tabela == tabela)
            return l;
    qFatal("tabela %s fora da árvore", qPrintable(tabela));
}

// Tables of a tree whose row is no longer there.
inline QStringList ausentes(const ArvoreDeclaracao& a)
{
    QStringList faltam;
    for (const LinhaDeclaracao& l : a) {
        const int n = modBancoDados::ValorUnico(
                          QStringLiteral("SELECT COUNT(*) FROM %1 WHERE %2 = ?").arg(l.tabela, l.coluna), {l.chave})
                          .toInt();
        if (n == 0)
            faltam << l.tabela;
    }
    faltam.sort();
    return faltam;
}

}  // namespace DeclaracaoCompleta
