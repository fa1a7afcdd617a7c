#include "core/file/reading/ModGravaVrtIndividual.h"

#include "core/file/reading/CadastrosLeitura.h"
#include "core/file/reading/ComandosPreparados.h"
#include "core/file/reading/EstadoLeitura.h"
#include "core/file/layout/RegistroLido.h"

namespace {
QVariant tx(const QString& v)
{
    return ComandosPreparados::texto(v);
}
}  // namespace

ModGravaVrtIndividual::ModGravaVrtIndividual(EstadoLeitura& estado, ComandosPreparados& comandos,
                                             CadastrosLeitura& cadastros)
    : LeitorItens(TipoDeclaracao::Individual, estado, comandos, cadastros)
{
}

bool ModGravaVrtIndividual::novoItem(const RegistroLido& r, const QString& ncm, const QString& modalidade,
                                     const QString& mensagem)
{
    m_comandos.executa("INSERT INTO ITEM_NFS (ID_NFS, NR_ITEM_NF_SAIDA, CD_INT_PROD, NM_INT_PROD, CD_NCM_PROD, "
                       "IND_MOD_INTERNACAO, NM_UNID_MED_PROD) VALUES (?, ?, ?, ?, ?, ?, ?)",
                       {m_estado.idNfs, tx(r.texto(QStringLiteral("NR_ITEM_NF_SAIDA"))), tx(r.aparado(QStringLiteral("CD_INT_PROD"))),
                        tx(r.texto(QStringLiteral("NM_INT_PROD"))), ncm.isNull() ? QVariant() : tx(ncm), modalidade,
                        tx(r.aparado(QStringLiteral("NM_UNID_MED_PROD")))});
    return m_comandos.novaChave(m_estado.itemAtual, mensagem);
}

bool ModGravaVrtIndividual::registro11(const RegistroLido& r)
{
    const QString ncm = r.texto(QStringLiteral("CD_NCM_PROD"));
    if (!m_cadastros.ExisteNcm(ncm))
        return m_estado.erroRegistro(QStringLiteral("11"), QStringLiteral("NCM não cadastrada"));
    m_estado.nomeLido = r.texto(QStringLiteral("NM_INT_PROD"));
    if (!m_cadastros.RegistraProduto(r.aparado(QStringLiteral("CD_INT_PROD")), m_estado.nomeLido))
        return m_estado.erroRegistro(QStringLiteral("11"), QStringLiteral("Erro ao cadastrar o Produto"));
    QString unidade = r.texto(QStringLiteral("NM_UNID_MED_PROD"));
    if (!m_cadastros.RegistraUnidade(unidade))
        return m_estado.erroRegistro(QStringLiteral("11"), QStringLiteral("Erro ao cadastrar a Unidade de Medida"));
    if (!novoItem(r, ncm, QStringLiteral("1"), QStringLiteral("Problema de Gravação no Registro 11 da individual!")))
        return false;
    m_comandos.executa("INSERT INTO ITEM_NFS_PE (ID_ITEM, QT_INT_UNID_NFS, QT_INT_UNID_EST, VL_INT_UNID_NFS, "
                       "VL_IPI_DESTACADO) VALUES (?, ?, ?, ?, ?)",
                       {m_estado.itemAtual, tx(r.decimal(QStringLiteral("QT_INT_UNID_NFS"))), tx(r.decimal(QStringLiteral("QT_INT_UNID_EST"))),
                        tx(r.decimal(QStringLiteral("VL_INT_UNID_NFS"))), tx(r.decimal(QStringLiteral("VL_IPI_DESTACADO")))});
    // The test looks at positions 110-362 and 368-620, each of which spans an aliquot's digits: true for every
    // record this system writes, false only for a file from elsewhere with blanks there. Kept as it stands.
    const QString& linha = r.linha();
    if (!RegistroLido::soBrancos(linha.mid(109, 253)) || !RegistroLido::soBrancos(linha.mid(367, 253))) {
        const bool temII = !r.brancos(QStringLiteral("JUST_II_DIF_TEC"));
        const bool temIPI = !r.brancos(QStringLiteral("JUST_IPI_DIF_TIPI"));
        m_comandos.executa("INSERT INTO JUST_DIF_ALIQ_PROD_VRT_IND (ID_ITEM, JUST_II_DIF_TEC, ALIQ_II_DIF_TEC, "
                           "JUST_IPI_DIF_TIPI, ALIQ_IPI_DIF_TIPI) VALUES (?, ?, ?, ?, ?)",
                           {m_estado.itemAtual, tx(r.aparado(QStringLiteral("JUST_II_DIF_TEC"))),
                            tx(temII ? r.decimal(QStringLiteral("ALIQ_II_DIF_TEC")) : QString()),
                            tx(r.aparado(QStringLiteral("JUST_IPI_DIF_TIPI"))),
                            tx(temIPI ? r.decimal(QStringLiteral("ALIQ_IPI_DIF_TIPI")) : QString())});
    }
    return true;
}

bool ModGravaVrtIndividual::registro12(const RegistroLido& r)
{
    m_comandos.executa(
        "INSERT INTO ITEM_NFA_PE_IND (ID_ITEM, NR_CNPJ_FORNECEDOR, NR_SERIE_NF_AQUIS, NR_NF_AQUIS, NR_ITEM_NF_AQUIS, "
        "DT_EMISS_NF_AQUIS, CD_CFOP_NF_AQUIS, IND_DL_288_67, IND_OBSOLE_RESIDUO, QT_PROD_UNID_NFS, "
        "VL_INS_PROD_UNID_NFS, VL_TOT_PROD_INT) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
        {m_estado.itemAtual, tx(r.texto(QStringLiteral("NR_CNPJ_FORNECEDOR"))), tx(r.texto(QStringLiteral("NR_SERIE_NF_AQUIS"))),
         tx(r.texto(QStringLiteral("NR_NF_AQUIS"))), tx(r.texto(QStringLiteral("NR_ITEM_NF_AQUIS"))), tx(r.data(QStringLiteral("DT_EMISS_NF_AQUIS"))),
         tx(r.semZerosEsquerda(QStringLiteral("CD_CFOP_NF_AQUIS"))), tx(r.texto(QStringLiteral("IND_DL_288_67"))),
         tx(r.texto(QStringLiteral("IND_OBSOLE_RESIDUO"))), tx(r.decimal(QStringLiteral("QT_PROD_UNID_NFS"))),
         tx(r.decimal(QStringLiteral("VL_INS_PROD_UNID_NFS"))), tx(r.decimal(QStringLiteral("VL_TOT_PROD_INT")))});
    return true;
}

bool ModGravaVrtIndividual::registro13(const RegistroLido& r)
{
    m_comandos.executa("INSERT INTO ITEM_DI_PE_IND (ID_ITEM, NR_DI, NR_DI_ANTIGA, NR_ADICAO_DI, NR_ITEM_ADICAO, "
                       "IND_DL_288_67, IND_OBSOLE_RESIDUO, QT_PROD_UNID_NFS, IND_SUSP_PIS_COFINS) "
                       "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)",
                       {m_estado.itemAtual, tx(r.semZeros(QStringLiteral("NR_DI"))), tx(r.semZeros(QStringLiteral("NR_DI_ANTIGA"))),
                        tx(r.texto(QStringLiteral("NR_ADICAO_DI"))), tx(r.texto(QStringLiteral("NR_ITEM_ADICAO"))),
                        tx(r.texto(QStringLiteral("IND_DL_288_67"))), tx(r.texto(QStringLiteral("IND_OBSOLE_RESIDUO"))),
                        tx(r.decimal(QStringLiteral("QT_PROD_UNID_NFS"))), tx(r.texto(QStringLiteral("IND_SUSP_PIS_COFINS")))});
    QVariant di;
    if (!m_comandos.novaChave(di, QStringLiteral("ERRO NA RECUPERAÇÃO DO REGISTRO 13 DA INDIVIDUAL")))
        return false;
    m_comandos.executa("INSERT INTO ITEM_IMPORT_288_PE (ID_ITEM_DI, VL_INS_PROD_UNID_NFS, CD_MOEDA_NEG, "
                       "VL_FRETE_UNID_NFS, CD_MOEDA_FRETE, VL_SEGURO_UNID_NFS, CD_MOEDA_SEGURO, VL_TOT_PROD_INT) "
                       "VALUES (?, ?, ?, ?, ?, ?, ?, ?)",
                       {di, tx(r.decimal(QStringLiteral("VL_INS_PROD_UNID_NFS"))), tx(r.semZeros(QStringLiteral("CD_MOEDA_NEG"))),
                        tx(r.decimal(QStringLiteral("VL_FRETE_UNID_NFS"))), tx(r.semZeros(QStringLiteral("CD_MOEDA_FRETE"))),
                        tx(r.decimal(QStringLiteral("VL_SEGURO_UNID_NFS"))), tx(r.semZeros(QStringLiteral("CD_MOEDA_SEGURO"))),
                        tx(r.decimal(QStringLiteral("VL_TOT_PROD_INT")))});
    return true;
}

bool ModGravaVrtIndividual::registro14(const RegistroLido& r)
{
    m_comandos.executa(
        "INSERT INTO ITEM_DSI_PE_IND (ID_ITEM, NR_DSI, NR_DSI_ANTIGA, NR_BEM, QT_PROD_UNID_NFS, VL_PROD_UNID_PROD, "
        "CD_MOEDA_NEG, VL_FRETE_UNID_INT, CD_MOEDA_FRETE, VL_SEGURO_UNID_INT, CD_MOEDA_SEGURO, IND_SUSP_PIS_COFINS) "
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
        {m_estado.itemAtual, tx(r.texto(QStringLiteral("NR_DSI"))), tx(r.texto(QStringLiteral("NR_DSI_ANTIGA"))), tx(r.texto(QStringLiteral("NR_BEM"))),
         tx(r.decimal(QStringLiteral("QT_PROD_UNID_NFS"))), tx(r.decimal(QStringLiteral("VL_PROD_UNID_PROD"))), tx(r.texto(QStringLiteral("CD_MOEDA_NEG"))),
         tx(r.decimal(QStringLiteral("VL_FRETE_UNID_INT"))), tx(r.texto(QStringLiteral("CD_MOEDA_FRETE"))),
         tx(r.decimal(QStringLiteral("VL_SEGURO_UNID_INT"))), tx(r.texto(QStringLiteral("CD_MOEDA_SEGURO"))),
         tx(r.texto(QStringLiteral("IND_SUSP_PIS_COFINS")))});
    return true;
}

bool ModGravaVrtIndividual::registro21(const RegistroLido& r)
{
    m_estado.nomeLido = r.texto(QStringLiteral("NM_INT_PROD"));
    if (!m_cadastros.RegistraProduto(r.aparado(QStringLiteral("CD_INT_PROD")), m_estado.nomeLido))
        return m_estado.erroRegistro(QStringLiteral("21"), QStringLiteral("Erro ao cadastrar o Produto"));
    QString unidade = r.texto(QStringLiteral("NM_UNID_MED_PROD"));
    if (!m_cadastros.RegistraUnidade(unidade))
        return m_estado.erroRegistro(QStringLiteral("21"), QStringLiteral("Erro ao cadastrar a Unidade de Medida"));
    // The record has no NCM; its message on a missing key is record 41's, as the system has it.
    if (!novoItem(r, QString(), QStringLiteral("2"), QStringLiteral("Problema de Gravação no Registro 41 da individual")))
        return false;

    QString tipo;
    QString numero;
    if (!r.zeros(QStringLiteral("NR_DCRE"))) {
        tipo = QStringLiteral("1");
        numero = r.semZerosEsquerda(QStringLiteral("NR_DCRE"));
    }
    if (!r.zeros(QStringLiteral("NR_DCR"))) {
        tipo = QStringLiteral("2");
        numero = r.semZerosEsquerda(QStringLiteral("NR_DCR"));
    }
    m_comandos.executa("INSERT INTO ITEM_NFS_PI_COM_PPB (ID_ITEM, CD_TIPO_COEF_REDUCAO, VL_PIS, VL_COFINS) "
                       "VALUES (?, ?, ?, ?)",
                       {m_estado.itemAtual, tx(tipo), tx(r.decimal(QStringLiteral("VL_PIS"))), tx(r.decimal(QStringLiteral("VL_COFINS")))});
    if (tipo == QStringLiteral("1")) {
        m_comandos.executa("INSERT INTO DCRE (ID_ITEM, NR_DCRE, QT_PRODUTO) VALUES (?, ?, ?)",
                           {m_estado.itemAtual, tx(numero), tx(r.decimal(QStringLiteral("QT_PRODUTO")))});
    } else if (tipo == QStringLiteral("2")) {
        m_comandos.executa("INSERT INTO DCR (ID_ITEM, NR_DCR, PC_COEF_REDUCAO_II, QT_PRODUTO, VL_II_UNIT_DOLAR) "
                           "VALUES (?, ?, ?, ?, ?)",
                           {m_estado.itemAtual, tx(numero), tx(r.decimal(QStringLiteral("PC_COEF_REDUCAO_II"))),
                            tx(r.decimal(QStringLiteral("QT_PRODUTO"))), tx(r.decimal(QStringLiteral("VL_II_UNIT_DOLAR")))});
    }
    return true;
}

bool ModGravaVrtIndividual::registro31(const RegistroLido& r)
{
    const QString ncm = r.texto(QStringLiteral("CD_NCM_PROD"));
    if (!m_cadastros.ExisteNcm(ncm))
        return m_estado.erroRegistro(QStringLiteral("31"), QStringLiteral("NCM não cadastrada"));
    m_estado.nomeLido = r.texto(QStringLiteral("NM_INT_PROD"));
    if (!m_cadastros.RegistraProduto(r.aparado(QStringLiteral("CD_INT_PROD")), m_estado.nomeLido))
        return m_estado.erroRegistro(QStringLiteral("31"), QStringLiteral("Erro ao cadastrar o Produto"));
    QString unidade = r.texto(QStringLiteral("NM_UNID_MED_PROD"));
    if (!m_cadastros.RegistraUnidade(unidade))
        return m_estado.erroRegistro(QStringLiteral("31"), QStringLiteral("Erro ao cadastrar a Unidade de Medida"));
    if (!novoItem(r, ncm, QStringLiteral("3"), QStringLiteral("Problema de Gravação no Registro 31 da individual")))
        return false;
    m_comandos.executa("INSERT INTO ITEM_NFS_PI_SEM_PPB (ID_ITEM, QT_INT_UNID_NFS, VL_INT_UNID_NFS) VALUES (?, ?, ?)",
                       {m_estado.itemAtual, tx(r.decimal(QStringLiteral("QT_INT_UNID_NFS"))), tx(r.decimal(QStringLiteral("VL_INT_UNID_NFS")))});
    return true;
}

bool ModGravaVrtIndividual::registro32(const RegistroLido& r)
{
    // The product is registered under the name read last: from the second input on that is the previous
    // input's name, written over the product's. This is how the system behaves.
    if (!m_cadastros.RegistraProduto(r.aparado(QStringLiteral("CD_INT_PROD")), m_estado.nomeLido))
        return m_estado.erroRegistro(QStringLiteral("32"), QStringLiteral("Insumo não cadastrado"));
    const QString codigo = r.aparado(QStringLiteral("CD_INT_INSUMO"));
    const QString nome = r.texto(QStringLiteral("NM_INT_INSUMO"));
    m_estado.nomeLido = nome;
    if (!m_cadastros.RegistraProduto(codigo, nome))
        return m_estado.erroRegistro(QStringLiteral("32"), QStringLiteral("Erro ao cadastrar o Insumo"));
    const QString ncm = r.texto(QStringLiteral("CD_NCM_INSUMO"));
    if (!m_cadastros.ExisteNcm(ncm))
        return m_estado.erroRegistro(QStringLiteral("32"), QStringLiteral("NCM não cadastrada"));
    m_comandos.executa("INSERT INTO INSUMO_ITEM_NFS (ID_ITEM, CD_INT_INSUMO, NM_INT_INSUMO, CD_NCM_INSUMO, "
                       "QT_INSUMO_POR_PROD, NM_UNID_MED_INSUMO) VALUES (?, ?, ?, ?, ?, ?)",
                       {m_estado.itemAtual, tx(codigo), tx(nome), tx(ncm), tx(r.decimal(QStringLiteral("QT_INSUMO_POR_PROD"))),
                        tx(r.aparado(QStringLiteral("NM_UNID_MED_INSUMO")))});
    return m_comandos.novaChave(m_estado.insumoAtual, QStringLiteral("Problema de Gravação no Registro 32 da individual"));
}

bool ModGravaVrtIndividual::registro33(const RegistroLido& r)
{
    const QString codigo = r.aparado(QStringLiteral("CD_INT_INSUMO"));
    if (!m_cadastros.RegistraProduto(codigo, m_estado.nomeLido))
        return m_estado.erroRegistro(QStringLiteral("33"), QStringLiteral("Insumo não cadastrado"));
    const bool temII = !r.brancos(QStringLiteral("JUST_II_DIF_TEC"));
    const bool temIPI = !r.brancos(QStringLiteral("JUST_IPI_DIF_TIPI"));
    if (temII || temIPI) {
        m_comandos.executa("INSERT INTO JUST_DIF_ALIQ_INS_VRT_IND (ID_INSUMO, JUST_II_DIF_TEC, ALIQ_II_DIF_TEC, "
                           "JUST_IPI_DIF_TIPI, ALIQ_IPI_DIF_TIPI) VALUES (?, ?, ?, ?, ?)",
                           {m_estado.insumoAtual, tx(r.aparado(QStringLiteral("JUST_II_DIF_TEC"))),
                            tx(temII ? r.decimal(QStringLiteral("ALIQ_II_DIF_TEC")) : QString()),
                            tx(r.aparado(QStringLiteral("JUST_IPI_DIF_TIPI"))),
                            tx(temIPI ? r.decimal(QStringLiteral("ALIQ_IPI_DIF_TIPI")) : QString())});
    }
    if (!r.zeros(QStringLiteral("QT_TOT_INS")) && !m_estado.insumosComTotal.contains(codigo)) {
        m_comandos.executa("INSERT INTO INSUMO_VRT_IND (ID_VRT_MICRO, CD_INT_INSUMO, QT_TOT_INS) VALUES (?, ?, ?)",
                           {m_estado.IdVrtLida, tx(codigo), tx(r.decimal(QStringLiteral("QT_TOT_INS")))});
        m_estado.insumosComTotal.insert(codigo);
    }
    return true;
}

bool ModGravaVrtIndividual::registro34(const RegistroLido& r)
{
    m_comandos.executa(
        "INSERT INTO ITEM_NFA_INS_IND (ID_INSUMO, NR_NF_AQUIS, NR_SERIE_NF_AQUIS, NR_ITEM_NF_AQUIS, DT_EMISS_NF_AQUIS, "
        "CD_CFOP_NF_AQUIS, NR_CNPJ_FORNECEDOR, IND_DL_288_67, VL_INS_PROD_UNID_NFS, QT_INSUMO_UNID_NFS) "
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
        {m_estado.insumoAtual, tx(r.texto(QStringLiteral("NR_NF_AQUIS"))), tx(r.texto(QStringLiteral("NR_SERIE_NF_AQUIS"))),
         tx(r.texto(QStringLiteral("NR_ITEM_NF_AQUIS"))), tx(r.data(QStringLiteral("DT_EMISS_NF_AQUIS"))),
         tx(r.semZerosEsquerda(QStringLiteral("CD_CFOP_NF_AQUIS"))), tx(r.texto(QStringLiteral("NR_CNPJ_FORNECEDOR"))),
         tx(r.texto(QStringLiteral("IND_DL_288_67"))), tx(r.decimal(QStringLiteral("VL_INS_PROD_UNID_NFS"))),
         tx(r.decimal(QStringLiteral("QT_INSUMO_UNID_NFS")))});
    return true;
}

bool ModGravaVrtIndividual::registro35(const RegistroLido& r)
{
    m_comandos.executa("INSERT INTO ITEM_DI_INS_IND (ID_INSUMO, NR_DI, NR_ADICAO_DI, NR_ITEM_ADICAO, NR_DI_ANTIGA, "
                       "IND_DL_288_67, IND_SUSP_PIS_COFINS, QT_INSUMO_UNID_NFS) VALUES (?, ?, ?, ?, ?, ?, ?, ?)",
                       {m_estado.insumoAtual, tx(r.texto(QStringLiteral("NR_DI"))), tx(r.texto(QStringLiteral("NR_ADICAO_DI"))),
                        tx(r.texto(QStringLiteral("NR_ITEM_ADICAO"))), tx(r.texto(QStringLiteral("NR_DI_ANTIGA"))),
                        tx(r.texto(QStringLiteral("IND_DL_288_67"))), tx(r.texto(QStringLiteral("IND_SUSP_PIS_COFINS"))),
                        tx(r.decimal(QStringLiteral("QT_INSUMO_UNID_NFS")))});
    QVariant di;
    if (!m_comandos.novaChave(di, QStringLiteral("ERRO NA RECUPERAÇÃO DO REGISTRO 35 DA INDIVIDUAL")))
        return false;
    m_comandos.executa("INSERT INTO ITEM_IMPORT_288_INS (ID_ITEM_DI, VL_INS_PROD_UNID_NFS, CD_MOEDA_NEG, "
                       "VL_FRETE_UNID_NFS, CD_MOEDA_FRETE, VL_SEGURO_UNID_NFS, CD_MOEDA_SEGURO) "
                       "VALUES (?, ?, ?, ?, ?, ?, ?)",
                       {di, tx(r.decimal(QStringLiteral("VL_INS_PROD_UNID_NFS"))), tx(r.texto(QStringLiteral("CD_MOEDA_NEG"))),
                        tx(r.decimal(QStringLiteral("VL_FRETE_UNID_NFS"))), tx(r.texto(QStringLiteral("CD_MOEDA_FRETE"))),
                        tx(r.decimal(QStringLiteral("VL_SEGURO_UNID_NFS"))), tx(r.texto(QStringLiteral("CD_MOEDA_SEGURO")))});
    return true;
}

bool ModGravaVrtIndividual::registro36(const RegistroLido& r)
{
    m_comandos.executa(
        "INSERT INTO ITEM_DSI_INS_IND (ID_INSUMO, NR_DSI, NR_BEM, NR_DSI_ANTIGA, IND_SUSP_PIS_COFINS, "
        "VL_INS_UNID_PROD, CD_MOEDA_NEG, VL_FRETE_UNID_INT, CD_MOEDA_FRETE, VL_SEGURO_UNID_INT, CD_MOEDA_SEGURO, "
        "QT_INSUMO_UNID_NFS) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
        {m_estado.insumoAtual, tx(r.texto(QStringLiteral("NR_DSI"))), tx(r.texto(QStringLiteral("NR_BEM"))), tx(r.texto(QStringLiteral("NR_DSI_ANTIGA"))),
         tx(r.texto(QStringLiteral("IND_SUSP_PIS_COFINS"))), tx(r.decimal(QStringLiteral("VL_INS_UNID_PROD"))), tx(r.texto(QStringLiteral("CD_MOEDA_NEG"))),
         tx(r.decimal(QStringLiteral("VL_FRETE_UNID_INT"))), tx(r.texto(QStringLiteral("CD_MOEDA_FRETE"))),
         tx(r.decimal(QStringLiteral("VL_SEGURO_UNID_INT"))), tx(r.texto(QStringLiteral("CD_MOEDA_SEGURO"))),
         tx(r.decimal(QStringLiteral("QT_INSUMO_UNID_NFS")))});
    return true;
}

bool ModGravaVrtIndividual::registro41(const RegistroLido& r)
{
    const QString ncm = r.texto(QStringLiteral("CD_NCM_PROD"));
    if (!m_cadastros.ExisteNcm(ncm))
        return m_estado.erroRegistro(QStringLiteral("41"), QStringLiteral("NCM não cadastrada"));
    m_estado.nomeLido = r.texto(QStringLiteral("NM_INT_PROD"));
    if (!m_cadastros.RegistraProduto(r.aparado(QStringLiteral("CD_INT_PROD")), m_estado.nomeLido))
        return m_estado.erroRegistro(QStringLiteral("41"), QStringLiteral("Erro ao cadastrar o Produto"));
    QString unidade = r.texto(QStringLiteral("NM_UNID_MED_PROD"));
    if (!m_cadastros.RegistraUnidade(unidade))
        return m_estado.erroRegistro(QStringLiteral("41"), QStringLiteral("Erro ao cadastrar a Unidade de Medida"));
    if (!novoItem(r, ncm, QStringLiteral("4"), QStringLiteral("Problema de Gravação no Registro 41 da individual")))
        return false;
    m_comandos.executa("INSERT INTO ITEM_NFS_100 (ID_ITEM, QT_INT_UNID_NFS, QT_INT_UNID_EST, VL_INT_UNID_NFS) "
                       "VALUES (?, ?, ?, ?)",
                       {m_estado.itemAtual, tx(r.decimal(QStringLiteral("QT_INT_UNID_NFS"))), tx(r.decimal(QStringLiteral("QT_INT_UNID_EST"))),
                        tx(r.decimal(QStringLiteral("VL_INT_UNID_NFS")))});
    return true;
}
