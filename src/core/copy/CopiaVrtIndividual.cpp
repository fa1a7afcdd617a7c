// The copy of an individual declaration: the head, the exit invoice, then its items by modality ("4", "2", "1",
// "3"), each with the rows of its modality.
#include "core/copy/CopiaComum.h"

namespace CopiaVrt {

namespace {

QString s(const char* t)
{
    return QString::fromLatin1(t);
}

const QString ID = s("ID_VRT_MICRO");
const QString ITEM = s("ITEM_NFS");
const QString ID_ITEM = s("ID_ITEM");

void copiaDocumentos288(CopiadorLinhas& l, const QString& tabela, const QString& tabela288, const QString& pai,
                        const QVariant& antigo, const QVariant& novo)
{
    for (const QVariant& di : l.chaves(tabela, s("ID_ITEM_DI"), pai, antigo)) {
        const QVariant novoDi = l.copiaUma(tabela, s("ID_ITEM_DI"), di, pai, novo);
        l.copiaTodas(tabela288, s("ID_ITEM_DI"), di, novoDi);
    }
}

void copiaModalidade4(CopiaEmCurso& c, const QVariant& item, const QVariant& novo)
{
    c.linhas().copiaTodas(s("ITEM_NFS_100"), ID_ITEM, item, novo);
}

void copiaModalidade2(CopiaEmCurso& c, const QVariant& item, const QVariant& novo)
{
    CopiadorLinhas& l = c.linhas();
    l.copiaTodas(s("ITEM_NFS_PI_COM_PPB"), ID_ITEM, item, novo);
    l.copiaTodas(s("DCRE"), ID_ITEM, item, novo);
    l.copiaTodas(s("DCR"), ID_ITEM, item, novo);
}

void copiaModalidade1(CopiaEmCurso& c, const QVariant& item, const QVariant& novo)
{
    CopiadorLinhas& l = c.linhas();
    l.copiaTodas(s("ITEM_NFS_PE"), ID_ITEM, item, novo);
    l.copiaTodas(s("JUST_DIF_ALIQ_PROD_VRT_IND"), ID_ITEM, item, novo);
    l.copiaTodas(s("ITEM_NFA_PE_IND"), ID_ITEM, item, novo);
    copiaDocumentos288(l, s("ITEM_DI_PE_IND"), s("ITEM_IMPORT_288_PE"), ID_ITEM, item, novo);
    l.copiaTodas(s("ITEM_DSI_PE_IND"), ID_ITEM, item, novo);
}

// The total of each input goes to INSUMO_VRT, the monthly declaration's table, and not to INSUMO_VRT_IND, which
// the writer of an individual declaration reads: the copy's input records carry no total, as the system stands.
void copiaModalidade3(CopiaEmCurso& c, const QVariant& item, const QVariant& novo)
{
    CopiadorLinhas& l = c.linhas();
    l.copiaTodas(s("ITEM_NFS_PI_SEM_PPB"), ID_ITEM, item, novo);
    const QString insumo = s("INSUMO_ITEM_NFS");
    const QString idInsumo = s("ID_INSUMO");
    for (const QVariant& ins : l.chaves(insumo, idInsumo, ID_ITEM, item)) {
        const QVariant novoInsumo = l.copiaUma(insumo, idInsumo, ins, ID_ITEM, novo);
        l.copiaTodas(s("JUST_DIF_ALIQ_INS_VRT_IND"), idInsumo, ins, novoInsumo);
        l.copiaTodas(s("ITEM_NFA_INS_IND"), idInsumo, ins, novoInsumo);
        copiaDocumentos288(l, s("ITEM_DI_INS_IND"), s("ITEM_IMPORT_288_INS"), idInsumo, ins, novoInsumo);
        l.copiaTodas(s("ITEM_DSI_INS_IND"), idInsumo, ins, novoInsumo);
    }
    l.executa(s("INSERT INTO INSUMO_VRT (ID_VRT_MICRO, CD_INT_INSUMO, QT_TOT_INS_EST) "
                "SELECT ?, v.CD_INT_INSUMO, v.QT_TOT_INS FROM INSUMO_VRT_IND v WHERE v.ID_VRT_MICRO = ? "
                "AND v.CD_INT_INSUMO IN (SELECT CD_INT_INSUMO FROM INSUMO_ITEM_NFS WHERE ID_ITEM = ?) "
                "AND NOT EXISTS (SELECT 1 FROM INSUMO_VRT x WHERE x.ID_VRT_MICRO = ? "
                "AND x.CD_INT_INSUMO = v.CD_INT_INSUMO) ORDER BY v.rowid"),
              {c.nova(), c.origem(), item, c.nova()});
}

using CopiaModalidade = void (*)(CopiaEmCurso&, const QVariant&, const QVariant&);

void copiaItens(CopiaEmCurso& c, const QVariant& nfs, const QVariant& novaNfs, char modalidade,
                CopiaModalidade copiaFilhos)
{
    CopiadorLinhas& l = c.linhas();
    const QString filtro = s("ITEM_NFS.IND_MOD_INTERNACAO = '") + QLatin1Char(modalidade) + QLatin1Char('\'');
    for (const QVariant& item : l.chaves(ITEM, ID_ITEM, s("ID_NFS"), nfs, filtro)) {
        const QVariant novo = l.copiaUma(ITEM, ID_ITEM, item, s("ID_NFS"), novaNfs);
        copiaFilhos(c, item, novo);
    }
}

// "Original" leaves the number, series and dates of the invoice to be entered anew.
QVariant copiaNotaFiscal(CopiaEmCurso& c, const QVariant& nfs)
{
    CopiadorLinhas& l = c.linhas();
    if (c.retificadora())
        return l.copiaUma(s("NOTA_FISCAL_SAIDA"), s("ID_NFS"), nfs, ID, c.nova());
    l.executa(s("INSERT INTO NOTA_FISCAL_SAIDA (ID_VRT_MICRO, NR_NF_SAIDA, NR_SERIE_NF_SAIDA, DT_EMISS_NF_SAIDA, "
                "DT_SAIDA_NF_SAIDA, CD_OP_FISCAL, CD_TIPO_DESTINAT, NR_DESTINAT, CD_UF_DESTINO) "
                "SELECT ?, '', '', '', '', CD_OP_FISCAL, CD_TIPO_DESTINAT, NR_DESTINAT, CD_UF_DESTINO "
                "FROM NOTA_FISCAL_SAIDA WHERE ID_NFS = ?"),
              {c.nova(), nfs});
    return l.valor(s("SELECT max(ID_NFS) FROM NOTA_FISCAL_SAIDA"));
}

}  // namespace

void ExecutaCopiaVrtIndividual(const Pedido& pedido, const Acompanhamento& acompanhamento)
{
    CopiaEmCurso c(pedido, acompanhamento);
    AvancaNumeroIndividual(QDate::currentDate());
    c.copiaCabeca();
    c.linhas().executa(s("INSERT INTO VRT_INDIVIDUAL (ID_VRT_MICRO, IN_SAIDA_ALC_AO) "
                         "SELECT ?, IN_SAIDA_ALC_AO FROM VRT_INDIVIDUAL WHERE ID_VRT_MICRO = ?"),
                       {c.nova(), c.origem()});
    c.avanca(15);
    for (const QVariant& nfs : c.linhas().chaves(s("NOTA_FISCAL_SAIDA"), s("ID_NFS"), ID, c.origem())) {
        const QVariant novaNfs = copiaNotaFiscal(c, nfs);
        c.avanca(25);
        copiaItens(c, nfs, novaNfs, '4', copiaModalidade4);
        c.avanca(40);
        copiaItens(c, nfs, novaNfs, '2', copiaModalidade2);
        c.avanca(55);
        copiaItens(c, nfs, novaNfs, '1', copiaModalidade1);
        c.avanca(75);
        copiaItens(c, nfs, novaNfs, '3', copiaModalidade3);
    }
    c.conclui(s("VRT Individual copiada com sucesso!"));
}

}  // namespace CopiaVrt
