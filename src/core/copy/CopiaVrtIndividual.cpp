// The copy of an individual declaration: the head, the exit invoice, then its items by modality ("4", "2", "1",
// "3"), each with the rows of its modality. Each table goes in one statement (see CopiadorLinhas).
#include "core/copy/CopiaComum.h"

namespace CopiaVrt {

namespace {

QString s(const char* t)
{
    return QString::fromLatin1(t);
}

const QString ID = s("ID_VRT_MICRO");
const QString ID_ITEM = s("ID_ITEM");
const QString ID_INSUMO = s("ID_INSUMO");
const QString ID_DI = s("ID_ITEM_DI");

// The items' map keeps each item's modality, for the tables that only one modality copies.
QString daModalidade(char modalidade)
{
    return s("p.grupo = '") + QLatin1Char(modalidade) + QLatin1Char('\'');
}

// "Original" leaves the number, series and dates of the invoice to be entered anew.
void copiaNotaFiscal(CopiaEmCurso& c)
{
    PassoCopia nota{s("NOTA_FISCAL_SAIDA"), ID, MapaVrt, {}, {}, s("NFS")};
    if (!c.retificadora()) {
        for (const char* coluna : {"NR_NF_SAIDA", "NR_SERIE_NF_SAIDA", "DT_EMISS_NF_SAIDA", "DT_SAIDA_NF_SAIDA"})
            nota.trocas.insert(s(coluna), s("''"));
    }
    c.linhas().copia(nota);
}

// Invoice by invoice, the items of modality "4", then "2", "1" and "3".
void copiaItens(CopiadorLinhas& l)
{
    l.copia({s("ITEM_NFS"), s("ID_NFS"), s("NFS"), s("t.IND_MOD_INTERNACAO IN ('4', '2', '1', '3')"),
             s("CASE t.IND_MOD_INTERNACAO WHEN '4' THEN 0 WHEN '2' THEN 1 WHEN '1' THEN 2 ELSE 3 END"), s("ITEM"),
             s("t.IND_MOD_INTERNACAO")});
}

void copiaModalidades4e2(CopiadorLinhas& l)
{
    l.copia({s("ITEM_NFS_100"), ID_ITEM, s("ITEM"), daModalidade('4')});
    for (const char* tabela : {"ITEM_NFS_PI_COM_PPB", "DCRE", "DCR"})
        l.copia({s(tabela), ID_ITEM, s("ITEM"), daModalidade('2')});
}

void copiaModalidade1(CopiadorLinhas& l)
{
    const QString modalidade1 = daModalidade('1');
    for (const char* tabela : {"ITEM_NFS_PE", "JUST_DIF_ALIQ_PROD_VRT_IND", "ITEM_NFA_PE_IND"})
        l.copia({s(tabela), ID_ITEM, s("ITEM"), modalidade1});
    l.copia({s("ITEM_DI_PE_IND"), ID_ITEM, s("ITEM"), modalidade1, {}, s("DI_PE")});
    l.copia({s("ITEM_IMPORT_288_PE"), ID_DI, s("DI_PE")});
    l.copia({s("ITEM_DSI_PE_IND"), ID_ITEM, s("ITEM"), modalidade1});
}

// The total of each input goes to INSUMO_VRT, the monthly declaration's table, and not to INSUMO_VRT_IND, which
// the writer of an individual declaration reads: the copy's input records carry no total, as the system stands.
// Each input's row goes with the first item of modality "3" that names it.
void copiaModalidade3(CopiaEmCurso& c)
{
    CopiadorLinhas& l = c.linhas();
    l.copia({s("ITEM_NFS_PI_SEM_PPB"), ID_ITEM, s("ITEM"), daModalidade('3')});
    l.copia({s("INSUMO_ITEM_NFS"), ID_ITEM, s("ITEM"), daModalidade('3'), {}, s("INSUMO")});
    l.copia({s("JUST_DIF_ALIQ_INS_VRT_IND"), ID_INSUMO, s("INSUMO")});
    l.copia({s("ITEM_NFA_INS_IND"), ID_INSUMO, s("INSUMO")});
    l.copia({s("ITEM_DI_INS_IND"), ID_INSUMO, s("INSUMO"), {}, {}, s("DI_INS")});
    l.copia({s("ITEM_IMPORT_288_INS"), ID_DI, s("DI_INS")});
    l.copia({s("ITEM_DSI_INS_IND"), ID_INSUMO, s("INSUMO")});
    l.executa(s("INSERT INTO INSUMO_VRT (ID_VRT_MICRO, CD_INT_INSUMO, QT_TOT_INS_EST) "
                "SELECT ?, v.CD_INT_INSUMO, v.QT_TOT_INS FROM INSUMO_VRT_IND v "
                "JOIN (SELECT n.CD_INT_INSUMO AS insumo, min(m.ordem) AS primeiro FROM %1 m "
                "JOIN INSUMO_ITEM_NFS n ON n.ID_ITEM = m.antigo WHERE m.grupo = '3' GROUP BY n.CD_INT_INSUMO) u "
                "ON u.insumo = v.CD_INT_INSUMO WHERE v.ID_VRT_MICRO = ? ORDER BY u.primeiro, v.rowid")
                  .arg(CopiadorLinhas::tabelaMapa(s("ITEM"))),
              {c.nova(), c.origem()});
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
    copiaNotaFiscal(c);
    copiaItens(c.linhas());
    c.avanca(25);
    copiaModalidades4e2(c.linhas());
    c.avanca(40);
    copiaModalidade1(c.linhas());
    c.avanca(55);
    copiaModalidade3(c);
    c.avanca(75);
    c.conclui(s("VRT Individual copiada com sucesso!"));
}

}  // namespace CopiaVrt
