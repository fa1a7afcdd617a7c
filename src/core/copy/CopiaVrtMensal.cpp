// The copy of a monthly declaration: the head, then the items by modality ("4", "2", "1", "3"), then the
// documents of the inputs, which hang from the declaration rather than from an item.
#include "core/copy/CopiaComum.h"

namespace CopiaVrt {

namespace {

QString s(const char* t)
{
    return QString::fromLatin1(t);
}

const QString ID = s("ID_VRT_MICRO");
const QString ITEM = s("ITEM_VRT_MEN");
const QString ID_ITEM = s("ID_ITEM_VRT");

QString filtroModalidade(char modalidade)
{
    return s("IND_MOD_INTERNACAO = '") + QLatin1Char(modalidade) + QLatin1Char('\'');
}

// A document of Decreto-Lei 288/67 goes with its import row only when the document says so; a row under a
// document marked otherwise stays behind.
bool levaImportacao288(CopiadorLinhas& l, const QString& tabela, const QVariant& idDi)
{
    QSqlQuery& q = l.executa(s("SELECT IND_DL_288_67, IND_SUSP_PIS_COFINS FROM %1 WHERE ID_ITEM_DI = ?").arg(tabela),
                             {idDi});
    bool leva = false;
    if (q.next())
        leva = q.value(0).toString().trimmed() == QLatin1String("S") || q.value(1).toString().trimmed() == QLatin1String("S");
    q.finish();
    return leva;
}

void copiaDi(CopiadorLinhas& l, const QString& tabela, const QString& tabela288, const QVariant& idDi,
             const QString& pai, const QVariant& novoPai)
{
    const QVariant novoDi = l.copiaUma(tabela, s("ID_ITEM_DI"), idDi, pai, novoPai);
    if (levaImportacao288(l, tabela, idDi))
        l.copiaTodas(tabela288, s("ID_ITEM_DI"), idDi, novoDi);
}

void copiaModalidade2(CopiaEmCurso& c, const QVariant& item)
{
    CopiadorLinhas& l = c.linhas();
    const QVariant novo = l.copiaUma(ITEM, ID_ITEM, item, ID, c.nova());
    l.copiaTodas(s("ITEM_VRT_MEN_PI_COM_PPB"), ID_ITEM, item, novo);
    l.copiaTodas(s("DESTINO_ITEM_VRT_MEN"), ID_ITEM, item, novo);
}

void copiaModalidade1(CopiaEmCurso& c, const QVariant& item)
{
    CopiadorLinhas& l = c.linhas();
    const QVariant novo = l.copiaUma(ITEM, ID_ITEM, item, ID, c.nova());
    l.copiaTodas(s("JUST_DIF_ALIQ_PROD_VRT_MEN"), ID_ITEM, item, novo);
    const QString destino = s("DESTINO_ITEM_VRT_MEN");
    const QString idDestino = s("ID_DEST_PRODUTO");
    for (const QVariant& d : l.chaves(destino, idDestino, ID_ITEM, item)) {
        const QVariant novoDestino = l.copiaUma(destino, idDestino, d, ID_ITEM, novo);
        for (const QVariant& di : l.chaves(s("ITEM_DI_PE_MEN"), s("ID_ITEM_DI"), idDestino, d))
            copiaDi(l, s("ITEM_DI_PE_MEN"), s("ITEM_IMPORT_288_PE_MEN"), di, idDestino, novoDestino);
        l.copiaTodas(s("ITEM_DSI_PE_MEN"), idDestino, d, novoDestino);
        l.copiaTodas(s("ITEM_NFA_PE_MEN"), idDestino, d, novoDestino);
    }
}

// NCM_VRT and INSUMO_VRT hold one row per NCM and per input of the declaration: an item whose NCM or input an
// earlier item of the copy already brought adds no second row.
void copiaModalidade3(CopiaEmCurso& c, const QVariant& item)
{
    CopiadorLinhas& l = c.linhas();
    const QVariant novo = l.copiaUma(ITEM, ID_ITEM, item, ID, c.nova());
    l.executa(s("INSERT INTO NCM_VRT (ID_VRT_MICRO, IN_MOD_INTERNACAO, CD_NCM_PRODUTO, QT_TOTAL_NCM) "
                "SELECT ?, n.IN_MOD_INTERNACAO, n.CD_NCM_PRODUTO, n.QT_TOTAL_NCM FROM NCM_VRT n "
                "JOIN ITEM_VRT_MEN i ON i.CD_NCM_PRODUTO = n.CD_NCM_PRODUTO "
                "WHERE i.ID_ITEM_VRT = ? AND n.ID_VRT_MICRO = ? AND n.IN_MOD_INTERNACAO = '3' AND NOT EXISTS "
                "(SELECT 1 FROM NCM_VRT x WHERE x.ID_VRT_MICRO = ? AND x.IN_MOD_INTERNACAO = '3' "
                "AND x.CD_NCM_PRODUTO = n.CD_NCM_PRODUTO)"),
              {c.nova(), item, c.origem(), c.nova()});
    l.copiaTodas(s("DESTINO_ITEM_VRT_MEN"), ID_ITEM, item, novo);
    const QString insumo = s("INSUMO_ITEM_VRT_MEN");
    const QString idInsumo = s("ID_INSUMO_ITEM");
    for (const QVariant& ins : l.chaves(insumo, idInsumo, ID_ITEM, item)) {
        const QVariant novoInsumo = l.copiaUma(insumo, idInsumo, ins, ID_ITEM, novo);
        l.copiaTodas(s("JUST_DIF_ALIQ_INS_VRT_MEN"), idInsumo, ins, novoInsumo);
    }
    l.executa(s("INSERT INTO INSUMO_VRT (ID_VRT_MICRO, CD_INT_INSUMO, QT_TOT_INS_EST) "
                "SELECT ?, v.CD_INT_INSUMO, v.QT_TOT_INS_EST FROM INSUMO_VRT v WHERE v.ID_VRT_MICRO = ? "
                "AND v.CD_INT_INSUMO IN (SELECT CD_INT_INSUMO FROM INSUMO_ITEM_VRT_MEN WHERE ID_ITEM_VRT = ?) "
                "AND NOT EXISTS (SELECT 1 FROM INSUMO_VRT x WHERE x.ID_VRT_MICRO = ? "
                "AND x.CD_INT_INSUMO = v.CD_INT_INSUMO) ORDER BY v.rowid"),
              {c.nova(), c.origem(), item, c.nova()});
}

void copiaDocumentosInsumo(CopiaEmCurso& c)
{
    CopiadorLinhas& l = c.linhas();
    for (const QVariant& di : l.chaves(s("ITEM_DI_INS_MEN"), s("ID_ITEM_DI"), ID, c.origem()))
        copiaDi(l, s("ITEM_DI_INS_MEN"), s("ITEM_IMPORT_288_INS_MEN"), di, ID, c.nova());
    l.copiaTodas(s("ITEM_DSI_INS_MEN"), ID, c.origem(), c.nova());
    l.copiaTodas(s("ITEM_NFA_INS_MEN"), ID, c.origem(), c.nova());
}

void copiaItens(CopiaEmCurso& c, char modalidade, void (*copiaItem)(CopiaEmCurso&, const QVariant&))
{
    for (const QVariant& item : c.linhas().chaves(ITEM, ID_ITEM, ID, c.origem(), filtroModalidade(modalidade)))
        copiaItem(c, item);
}

}  // namespace

void ExecutaCopiaVrtMensal(const Pedido& pedido, const Acompanhamento& acompanhamento)
{
    CopiaEmCurso c(pedido, acompanhamento);
    AvancaNumeroMensal();
    c.copiaCabeca();
    // "Original" leaves the reference month to be entered anew, so the copy never stands for the same month.
    c.linhas().executa(s("INSERT INTO VRT_MENSAL (ID_VRT_MICRO, DT_REFERENCIA_VRT) "
                         "SELECT ?, %1 FROM VRT_MENSAL WHERE ID_VRT_MICRO = ?")
                           .arg(c.retificadora() ? s("DT_REFERENCIA_VRT") : s("''")),
                       {c.nova(), c.origem()});
    c.avanca(15);
    c.linhas().copiaTodas(ITEM, ID, c.origem(), c.nova(), filtroModalidade('4'));
    c.avanca(30);
    copiaItens(c, '2', copiaModalidade2);
    c.avanca(45);
    copiaItens(c, '1', copiaModalidade1);
    c.avanca(65);
    copiaItens(c, '3', copiaModalidade3);
    c.avanca(85);
    copiaDocumentosInsumo(c);
    c.conclui(s("VRT Mensal copiada com sucesso!"));
}

}  // namespace CopiaVrt
