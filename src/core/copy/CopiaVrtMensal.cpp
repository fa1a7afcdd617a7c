// The copy of a monthly declaration: the head, then the items by modality ("4", "2", "1", "3") with the rows of
// their modality, then the documents of the inputs, which hang from the declaration rather than from an item.
// Each table goes in one statement (see CopiadorLinhas).
#include "core/copy/CopiaComum.h"

namespace CopiaVrt {

namespace {

QString s(const char* t)
{
    return QString::fromLatin1(t);
}

const QString ID = s("ID_VRT_MICRO");
const QString ID_ITEM = s("ID_ITEM_VRT");
const QString ID_DESTINO = s("ID_DEST_PRODUTO");
const QString ID_DI = s("ID_ITEM_DI");

// The items' map keeps each item's modality, for the tables that only one modality copies.
QString daModalidade(const char* modalidades)
{
    return s("p.grupo IN (%1)").arg(s(modalidades));
}

// A document of Decreto-Lei 288/67 (or of suspended PIS/COFINS) takes its import row along; a row under a
// document marked otherwise stays behind. The mark is kept in the documents' map.
const QString Leva288 = s("CASE WHEN trim(t.IND_DL_288_67) = 'S' OR trim(t.IND_SUSP_PIS_COFINS) = 'S' "
                          "THEN 'S' END");
const QString ComImportacao = s("p.grupo = 'S'");

void copiaItens(CopiadorLinhas& l)
{
    l.copia({s("ITEM_VRT_MEN"), ID, MapaVrt, s("t.IND_MOD_INTERNACAO IN ('4', '2', '1', '3')"),
             s("CASE t.IND_MOD_INTERNACAO WHEN '4' THEN 0 WHEN '2' THEN 1 WHEN '1' THEN 2 ELSE 3 END"), s("ITEM"),
             s("t.IND_MOD_INTERNACAO")});
}

void copiaModalidade2(CopiadorLinhas& l)
{
    l.copia({s("ITEM_VRT_MEN_PI_COM_PPB"), ID_ITEM, s("ITEM"), daModalidade("'2'")});
    // The destinations of the three modalities that have them, in the order of their items.
    l.copia({s("DESTINO_ITEM_VRT_MEN"), ID_ITEM, s("ITEM"), daModalidade("'2', '1', '3'"), {}, s("DESTINO"),
             s("p.grupo")});
}

void copiaModalidade1(CopiadorLinhas& l)
{
    const QString modalidade1 = daModalidade("'1'");
    l.copia({s("JUST_DIF_ALIQ_PROD_VRT_MEN"), ID_ITEM, s("ITEM"), modalidade1});
    l.copia({s("ITEM_DI_PE_MEN"), ID_DESTINO, s("DESTINO"), modalidade1, {}, s("DI_PE"), Leva288});
    l.copia({s("ITEM_IMPORT_288_PE_MEN"), ID_DI, s("DI_PE"), ComImportacao});
    l.copia({s("ITEM_DSI_PE_MEN"), ID_DESTINO, s("DESTINO"), modalidade1});
    l.copia({s("ITEM_NFA_PE_MEN"), ID_DESTINO, s("DESTINO"), modalidade1});
}

// NCM_VRT and INSUMO_VRT hold one row per NCM and per input of the declaration: each row goes with the first
// item of modality "3" that names it, in the order of the items.
void copiaModalidade3(CopiaEmCurso& c)
{
    CopiadorLinhas& l = c.linhas();
    const QString itens = CopiadorLinhas::tabelaMapa(s("ITEM"));
    l.executa(s("INSERT INTO NCM_VRT (ID_VRT_MICRO, IN_MOD_INTERNACAO, CD_NCM_PRODUTO, QT_TOTAL_NCM) "
                "SELECT ?, n.IN_MOD_INTERNACAO, n.CD_NCM_PRODUTO, n.QT_TOTAL_NCM FROM NCM_VRT n "
                "JOIN (SELECT i.CD_NCM_PRODUTO AS ncm, min(m.ordem) AS primeiro FROM %1 m "
                "JOIN ITEM_VRT_MEN i ON i.ID_ITEM_VRT = m.antigo WHERE m.grupo = '3' GROUP BY i.CD_NCM_PRODUTO) u "
                "ON u.ncm = n.CD_NCM_PRODUTO WHERE n.ID_VRT_MICRO = ? AND n.IN_MOD_INTERNACAO = '3' "
                "ORDER BY u.primeiro")
                  .arg(itens),
              {c.nova(), c.origem()});
    l.copia({s("INSUMO_ITEM_VRT_MEN"), ID_ITEM, s("ITEM"), daModalidade("'3'"), {}, s("INSUMO")});
    l.copia({s("JUST_DIF_ALIQ_INS_VRT_MEN"), s("ID_INSUMO_ITEM"), s("INSUMO")});
    l.executa(s("INSERT INTO INSUMO_VRT (ID_VRT_MICRO, CD_INT_INSUMO, QT_TOT_INS_EST) "
                "SELECT ?, v.CD_INT_INSUMO, v.QT_TOT_INS_EST FROM INSUMO_VRT v "
                "JOIN (SELECT n.CD_INT_INSUMO AS insumo, min(m.ordem) AS primeiro FROM %1 m "
                "JOIN INSUMO_ITEM_VRT_MEN n ON n.ID_ITEM_VRT = m.antigo WHERE m.grupo = '3' "
                "GROUP BY n.CD_INT_INSUMO) u ON u.insumo = v.CD_INT_INSUMO WHERE v.ID_VRT_MICRO = ? "
                "ORDER BY u.primeiro, v.rowid")
                  .arg(itens),
              {c.nova(), c.origem()});
}

void copiaDocumentosInsumo(CopiadorLinhas& l)
{
    l.copia({s("ITEM_DI_INS_MEN"), ID, MapaVrt, {}, {}, s("DI_INS"), Leva288});
    l.copia({s("ITEM_IMPORT_288_INS_MEN"), ID_DI, s("DI_INS"), ComImportacao});
    l.copia({s("ITEM_DSI_INS_MEN"), ID, MapaVrt});
    l.copia({s("ITEM_NFA_INS_MEN"), ID, MapaVrt});
}

}  // namespace

void ExecutaCopiaVrtMensal(const Pedido& pedido, const Acompanhamento& acompanhamento)
{
    CopiaEmCurso c(pedido, acompanhamento);
    AvancaNumeroMensal();
    c.copiaCabeca();
    // "Original" leaves the reference month to be entered anew, so the copy never stands for the same month.
    c.linhas().copia({s("VRT_MENSAL"), ID, MapaVrt, {}, {}, {}, {},
                      {{s("DT_REFERENCIA_VRT"), c.retificadora() ? s("t.DT_REFERENCIA_VRT") : s("''")}}});
    c.avanca(15);
    copiaItens(c.linhas());
    c.avanca(30);
    copiaModalidade2(c.linhas());
    c.avanca(45);
    copiaModalidade1(c.linhas());
    c.avanca(65);
    copiaModalidade3(c);
    c.avanca(85);
    copiaDocumentosInsumo(c.linhas());
    c.conclui(s("VRT Mensal copiada com sucesso!"));
}

}  // namespace CopiaVrt
