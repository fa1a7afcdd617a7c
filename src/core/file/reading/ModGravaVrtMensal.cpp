#include "core/file/reading/ModGravaVrtMensal.h"

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

ModGravaVrtMensal::ModGravaVrtMensal(EstadoLeitura& estado, ComandosPreparados& comandos, CadastrosLeitura& cadastros)
    : LeitorItens(TipoDeclaracao::Mensal, estado, comandos, cadastros)
{
}

bool ModGravaVrtMensal::registro11(const RegistroLido& r)
{
    const QString ncm = r.texto(QStringLiteral("CD_NCM_PRODUTO"));
    if (!m_cadastros.ExisteNcm(ncm))
        return m_estado.erroRegistro(QStringLiteral("11"), QStringLiteral("NCM não cadastrada"));
    const QString codigo = r.aparado(QStringLiteral("CD_INT_PRODUTO"));
    const QString nome = r.texto(QStringLiteral("NM_INT_PRODUTO"));
    if (!m_cadastros.RegistraProduto(codigo, nome))
        return m_estado.erroRegistro(QStringLiteral("11"), QStringLiteral("Erro ao cadastrar o Produto"));
    QString unidade = r.texto(QStringLiteral("NM_UNID_MED_PROD"));
    if (!m_cadastros.RegistraUnidade(unidade))
        return m_estado.erroRegistro(QStringLiteral("11"), QStringLiteral("Erro ao cadastrar a Unidade de Medida"));

    // The several records 11 of one product (one per destination) fold back into one item.
    const auto existente = m_estado.itensPE.constFind(codigo);
    if (existente != m_estado.itensPE.constEnd()) {
        m_estado.itemAtual = existente.value();
    } else {
        m_comandos.executa("INSERT INTO ITEM_VRT_MEN (ID_VRT_MICRO, CD_NCM_PRODUTO, CD_INT_PRODUTO, "
                           "IND_MOD_INTERNACAO, QT_PROD_UNID_EST, NM_UNID_MED_PROD, NM_INT_PRODUTO) "
                           "VALUES (?, ?, ?, '1', ?, ?, ?)",
                           {m_estado.IdVrtLida, tx(ncm), tx(codigo), tx(r.decimal(QStringLiteral("QT_PROD_UNID_EST"))),
                            tx(r.aparado(QStringLiteral("NM_UNID_MED_PROD"))), tx(nome)});
        if (!m_comandos.novaChave(m_estado.itemAtual, QStringLiteral("ERRO NA RECUPERAÇÃO DO REGISTRO 11 DA MENSAL")))
            return false;
        m_estado.itensPE.insert(codigo, m_estado.itemAtual);
    }

    const QString local = r.texto(QStringLiteral("CD_LOCAL_DESTINO"));
    m_comandos.executa("INSERT INTO DESTINO_ITEM_VRT_MEN (ID_ITEM_VRT, CD_LOCAL_DESTINO, QT_PROD_LOC_DEST) "
                       "VALUES (?, ?, ?)",
                       {m_estado.itemAtual, tx(local), tx(r.decimal(QStringLiteral("QT_PROD_LOC_DEST")))});
    if (!m_comandos.novaChave(m_estado.destinoAtual, QStringLiteral("Problema de Gravação no Registro 11 da mensal")))
        return false;

    // Only the first record 11 of a product fills the justification: later destinations' are not read.
    const qint64 item = m_estado.itemAtual.toLongLong();
    if (!m_estado.itensComJustificativa.contains(item)) {
        const bool temII = !r.brancos(QStringLiteral("JUST_II_DIF_TEC"));
        const bool temIPI = !r.brancos(QStringLiteral("JUST_IPI_DIF_TIPI"));
        m_comandos.executa("INSERT INTO JUST_DIF_ALIQ_PROD_VRT_MEN (ID_ITEM_VRT, JUST_II_DIF_TEC, ALIQ_II_DIF_TEC, "
                           "JUST_IPI_DIF_TIPI, ALIQ_IPI_DIF_TIPI) VALUES (?, ?, ?, ?, ?)",
                           {m_estado.itemAtual, tx(r.aparado(QStringLiteral("JUST_II_DIF_TEC"))),
                            tx(temII ? r.decimal(QStringLiteral("ALIQ_II_DIF_TEC")) : QString()),
                            tx(r.aparado(QStringLiteral("JUST_IPI_DIF_TIPI"))),
                            tx(temIPI ? r.decimal(QStringLiteral("ALIQ_IPI_DIF_TIPI")) : QString())});
        m_estado.itensComJustificativa.insert(item);
    }
    m_estado.localDestinoAtual = local;
    return true;
}

bool ModGravaVrtMensal::registro12(const RegistroLido& r)
{
    m_comandos.executa(
        "INSERT INTO ITEM_NFA_PE_MEN (ID_DEST_PRODUTO, NR_CNPJ_FORNECEDOR, NR_SERIE_NF_AQUIS, NR_NF_AQUIS, "
        "NR_ITEM_NF_AQUIS, DT_EMISS_NF_AQUIS, CD_CFOP_NF_AQUIS, IND_DL_288_67, IND_OBSOLE_RESIDUO, "
        "QT_PROD_UNID_PROD, VL_PROD_UNID_PROD, VL_TOT_PROD_OBSOLE) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
        {m_estado.destinoAtual, tx(r.texto(QStringLiteral("NR_CNPJ_FORNECEDOR"))), tx(r.texto(QStringLiteral("NR_SERIE_NF_AQUIS"))),
         tx(r.texto(QStringLiteral("NR_NF_AQUIS"))), tx(r.texto(QStringLiteral("NR_ITEM_NF_AQUIS"))), tx(r.data(QStringLiteral("DT_EMISS_NF_AQUIS"))),
         tx(r.semZerosEsquerda(QStringLiteral("CD_CFOP_NF_AQUIS"))), tx(r.texto(QStringLiteral("IND_DL_288_67"))),
         tx(r.texto(QStringLiteral("IND_OBSOLE_RESIDUO"))), tx(r.decimal(QStringLiteral("QT_PROD_UNID_PROD"))),
         tx(r.decimal(QStringLiteral("VL_PROD_UNID_PROD"))), tx(r.decimal(QStringLiteral("VL_TOT_PROD_OBSOLE")))});
    return true;
}

bool ModGravaVrtMensal::registro13(const RegistroLido& r)
{
    m_comandos.executa("INSERT INTO ITEM_DI_PE_MEN (ID_DEST_PRODUTO, NR_DI, NR_DI_ANTIGA, NR_ADICAO_DI, "
                       "NR_ITEM_ADICAO, IND_DL_288_67, IND_OBSOLE_RESIDUO, IND_SUSP_PIS_COFINS, QT_PROD_UNID_PROD) "
                       "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)",
                       {m_estado.destinoAtual, tx(r.semZeros(QStringLiteral("NR_DI"))), tx(r.semZeros(QStringLiteral("NR_DI_ANTIGA"))),
                        tx(r.texto(QStringLiteral("NR_ADICAO_DI"))), tx(r.texto(QStringLiteral("NR_ITEM_ADICAO"))),
                        tx(r.texto(QStringLiteral("IND_DL_288_67"))), tx(r.texto(QStringLiteral("IND_OBSOLE_RESIDUO"))),
                        tx(r.texto(QStringLiteral("IND_SUSP_PIS_COFINS"))), tx(r.decimal(QStringLiteral("QT_PROD_UNID_PROD")))});
    QVariant di;
    if (!m_comandos.novaChave(di, QStringLiteral("ERRO NA RECUPERAÇÃO DO REGISTRO 13 DA MENSAL")))
        return false;
    // Always one row of values, empty ones included; each value only when it differs from its zeros.
    m_comandos.executa("INSERT INTO ITEM_IMPORT_288_PE_MEN (ID_ITEM_DI, VL_PROD_UNID_PROD, CD_MOEDA_NEG, "
                       "VL_FRETE_UNID_INT, CD_MOEDA_FRETE, VL_SEGURO_UNID_INT, CD_MOEDA_SEGURO, VL_TOT_PROD_OBSOLE) "
                       "VALUES (?, ?, ?, ?, ?, ?, ?, ?)",
                       {di, tx(r.decimal(QStringLiteral("VL_PROD_UNID_PROD"))), tx(r.semZeros(QStringLiteral("CD_MOEDA_NEG"))),
                        tx(r.decimal(QStringLiteral("VL_FRETE_UNID_INT"))), tx(r.semZeros(QStringLiteral("CD_MOEDA_FRETE"))),
                        tx(r.decimal(QStringLiteral("VL_SEGURO_UNID_INT"))), tx(r.semZeros(QStringLiteral("CD_MOEDA_SEGURO"))),
                        tx(r.decimal(QStringLiteral("VL_TOT_PROD_OBSOLE")))});
    return true;
}

bool ModGravaVrtMensal::registro14(const RegistroLido& r)
{
    m_comandos.executa(
        "INSERT INTO ITEM_DSI_PE_MEN (ID_DEST_PRODUTO, NR_DSI, NR_DSI_ANTIGA, NR_BEM, QT_PROD_UNID_PROD, "
        "VL_PROD_UNID_PROD, CD_MOEDA_NEG, VL_FRETE_UNID_INT, CD_MOEDA_FRETE, VL_SEGURO_UNID_INT, CD_MOEDA_SEGURO, "
        "IND_SUSP_PIS_COFINS) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
        {m_estado.destinoAtual, tx(r.semZeros(QStringLiteral("NR_DSI"))), tx(r.semZeros(QStringLiteral("NR_DSI_ANTIGA"))),
         tx(r.texto(QStringLiteral("NR_BEM"))), tx(r.decimal(QStringLiteral("QT_PROD_UNID_PROD"))), tx(r.decimal(QStringLiteral("VL_PROD_UNID_PROD"))),
         tx(r.texto(QStringLiteral("CD_MOEDA_NEG"))), tx(r.decimal(QStringLiteral("VL_FRETE_UNID_INT"))), tx(r.texto(QStringLiteral("CD_MOEDA_FRETE"))),
         tx(r.decimal(QStringLiteral("VL_SEGURO_UNID_INT"))), tx(r.texto(QStringLiteral("CD_MOEDA_SEGURO"))),
         tx(r.texto(QStringLiteral("IND_SUSP_PIS_COFINS")))});
    return true;
}

bool ModGravaVrtMensal::registro21(const RegistroLido& r)
{
    const QString codigo = r.aparado(QStringLiteral("CD_INT_PRODUTO"));
    const QString nome = r.texto(QStringLiteral("NM_INT_PRODUTO"));
    if (!m_cadastros.RegistraProduto(codigo, nome))
        return m_estado.erroRegistro(QStringLiteral("21"), QStringLiteral("Erro ao cadastrar o Produto"));
    QString unidade = r.texto(QStringLiteral("NM_UNID_MED_DEST"));
    if (!m_cadastros.RegistraUnidade(unidade))
        return m_estado.erroRegistro(QStringLiteral("21"), QStringLiteral("Erro ao cadastrar a Unidade de Medida"));

    // No search, unlike record 11: each destination of the product comes back as an item of its own.
    m_comandos.executa("INSERT INTO ITEM_VRT_MEN (ID_VRT_MICRO, NM_INT_PRODUTO, CD_INT_PRODUTO, IND_MOD_INTERNACAO) "
                       "VALUES (?, ?, ?, '2')",
                       {m_estado.IdVrtLida, tx(nome), tx(codigo)});
    if (!m_comandos.novaChave(m_estado.itemAtual, QStringLiteral("Problema de Gravação no Registro 21 da mensal")))
        return false;
    m_comandos.executa("INSERT INTO DESTINO_ITEM_VRT_MEN (ID_ITEM_VRT, CD_LOCAL_DESTINO, VL_II_UNIT_DOLAR, "
                       "PC_COEF_REDUCAO_II, QT_PROD_LOC_DEST, NM_UNID_MED_DEST, VL_PIS, VL_COFINS) "
                       "VALUES (?, ?, ?, ?, ?, ?, ?, ?)",
                       {m_estado.itemAtual, tx(r.texto(QStringLiteral("CD_LOCAL_DESTINO"))), tx(r.decimal(QStringLiteral("VL_II_UNIT_DOLAR"))),
                        tx(r.decimal(QStringLiteral("PC_COEF_REDUCAO_II"))), tx(r.decimal(QStringLiteral("QT_PROD_LOC_DEST"))),
                        tx(r.aparado(QStringLiteral("NM_UNID_MED_DEST"))), tx(r.decimal(QStringLiteral("VL_PIS"))),
                        tx(r.decimal(QStringLiteral("VL_COFINS")))});
    m_estado.destinoAtual = m_comandos.ultimaChave();

    // Both numbers filled: the DCR of positions 32-40 wins.
    QString tipo, numero;
    if (!r.zeros(QStringLiteral("NR_DCR"))) {
        tipo = QStringLiteral("2");
        numero = r.semZerosEsquerda(QStringLiteral("NR_DCR"));
    } else if (!r.zeros(QStringLiteral("NR_DCRE"))) {
        tipo = QStringLiteral("1");
        numero = r.semZerosEsquerda(QStringLiteral("NR_DCRE"));
    }
    m_comandos.executa("INSERT INTO ITEM_VRT_MEN_PI_COM_PPB (ID_ITEM_VRT, NR_DCRE_DCR, CD_TIPO_COEF_REDUCAO) "
                       "VALUES (?, ?, ?)",
                       {m_estado.itemAtual, tx(numero), tx(tipo)});
    return true;
}

bool ModGravaVrtMensal::registro31(const RegistroLido& r)
{
    const QString ncm = r.texto(QStringLiteral("CD_NCM_PRODUTO"));
    if (!m_cadastros.ExisteNcm(ncm))
        return m_estado.erroRegistro(QStringLiteral("31"), QStringLiteral("NCM não cadastrada"));
    const QString codigo = r.aparado(QStringLiteral("CD_INT_PRODUTO"));
    const QString nome = r.texto(QStringLiteral("NM_INT_PRODUTO"));
    if (!m_cadastros.RegistraProduto(codigo, nome))
        return m_estado.erroRegistro(QStringLiteral("31"), QStringLiteral("Erro ao cadastrar o Produto"));
    QString unidade = r.texto(QStringLiteral("NM_UNID_MED_PROD"));
    if (!m_cadastros.RegistraUnidade(unidade))
        return m_estado.erroRegistro(QStringLiteral("31"), QStringLiteral("Erro ao cadastrar a Unidade de Medida"));

    m_comandos.executa("INSERT INTO ITEM_VRT_MEN (ID_VRT_MICRO, NM_INT_PRODUTO, CD_INT_PRODUTO, NM_UNID_MED_PROD, "
                       "CD_NCM_PRODUTO, IND_MOD_INTERNACAO) VALUES (?, ?, ?, ?, ?, '3')",
                       {m_estado.IdVrtLida, tx(nome), tx(codigo), tx(r.aparado(QStringLiteral("NM_UNID_MED_PROD"))), tx(ncm)});
    if (!m_comandos.novaChave(m_estado.itemAtual, QStringLiteral("Problema de Gravação no Registro 31 da mensal")))
        return false;
    for (int d = 1; d <= 4; ++d) {
        const QString n = QString::number(d);
        const QString local = r.texto(QStringLiteral("CD_LOCAL_DESTINO_") + n);
        const QString qtd = r.decimal(QStringLiteral("QT_PROD_LOC_DEST_") + n);
        if (qtd.isEmpty() || local != n)
            continue;
        m_comandos.executa("INSERT INTO DESTINO_ITEM_VRT_MEN (ID_ITEM_VRT, CD_LOCAL_DESTINO, QT_PROD_LOC_DEST) "
                           "VALUES (?, ?, ?)",
                           {m_estado.itemAtual, local, qtd});
    }
    return true;
}

bool ModGravaVrtMensal::registro32(const RegistroLido& r)
{
    if (!m_cadastros.ExisteProduto(r.aparado(QStringLiteral("CD_INT_PRODUTO"))))
        return m_estado.erroRegistro(QStringLiteral("32"), QStringLiteral("Insumo não cadastrado"));
    const QString codigo = r.aparado(QStringLiteral("CD_INT_INSUMO"));
    const QString nome = r.texto(QStringLiteral("NM_INT_INSUMO"));
    if (!m_cadastros.RegistraProduto(codigo, nome))
        return m_estado.erroRegistro(QStringLiteral("32"), QStringLiteral("Erro ao cadastrar o Insumo"));
    const QString ncm = r.texto(QStringLiteral("CD_NCM_INSUMO"));
    if (!m_cadastros.ExisteNcm(ncm))
        return m_estado.erroRegistro(QStringLiteral("32"), QStringLiteral("NCM não cadastrada"));
    QString unidade = r.texto(QStringLiteral("NM_UNID_MED_INSUMO"));
    if (!m_cadastros.RegistraUnidade(unidade))
        return m_estado.erroRegistro(QStringLiteral("32"), QStringLiteral("Erro ao cadastrar a Unidade de Medida"));

    m_comandos.executa("INSERT INTO INSUMO_ITEM_VRT_MEN (ID_ITEM_VRT, CD_INT_INSUMO, CD_NCM_INSUMO, NM_INT_INSUMO, "
                       "NM_UNID_MED_INSUMO, QT_INSUMO_POR_PROD) VALUES (?, ?, ?, ?, ?, ?)",
                       {m_estado.itemAtual, tx(codigo), tx(ncm), tx(nome), tx(r.aparado(QStringLiteral("NM_UNID_MED_INSUMO"))),
                        tx(r.decimal(QStringLiteral("QT_INSUMO_POR_PROD")))});
    if (!m_comandos.novaChave(m_estado.insumoAtual, QStringLiteral("Problema de Gravação no Registro 32 da mensal")))
        return false;
    m_estado.codigoInsumoAtual = codigo;
    m_estado.nomeInsumoAtual = nome;
    return true;
}

bool ModGravaVrtMensal::registro33(const RegistroLido& r)
{
    const QString codigo = r.aparado(QStringLiteral("CD_INT_INSUMO"));
    // Registered again under the name kept from record 32: it exists, so it counts as a product changed.
    if (!m_cadastros.RegistraProduto(codigo, m_estado.nomeInsumoAtual))
        return m_estado.erroRegistro(QStringLiteral("33"), QStringLiteral("Insumo não cadastrado"));

    // A record 33 before any record 32 has no input: its row, with an empty key, is refused by the engine.
    const qint64 insumo = m_estado.insumoAtual.toLongLong();
    if (!m_estado.insumoAtual.isValid() || !m_estado.insumosComJustificativa.contains(insumo)) {
        const bool temII = !r.brancos(QStringLiteral("JUST_II_DIF_TEC"));
        const bool temIPI = !r.brancos(QStringLiteral("JUST_IPI_DIF_TIPI"));
        m_comandos.executa("INSERT INTO JUST_DIF_ALIQ_INS_VRT_MEN (ID_INSUMO_ITEM, JUST_II_DIF_TEC, ALIQ_II_DIF_TEC, "
                           "JUST_IPI_DIF_TIPI, ALIQ_IPI_DIF_TIPI) VALUES (?, ?, ?, ?, ?)",
                           {m_estado.insumoAtual, tx(r.aparado(QStringLiteral("JUST_II_DIF_TEC"))),
                            tx(temII ? r.decimal(QStringLiteral("ALIQ_II_DIF_TEC")) : QString()),
                            tx(r.aparado(QStringLiteral("JUST_IPI_DIF_TIPI"))),
                            tx(temIPI ? r.decimal(QStringLiteral("ALIQ_IPI_DIF_TIPI")) : QString())});
        m_estado.insumosComJustificativa.insert(insumo);
    }
    if (!r.zeros(QStringLiteral("QT_TOT_INS_EST")) && !m_estado.insumosComTotal.contains(codigo)) {
        m_comandos.executa("INSERT INTO INSUMO_VRT (ID_VRT_MICRO, CD_INT_INSUMO, QT_TOT_INS_EST) VALUES (?, ?, ?)",
                           {m_estado.IdVrtLida, tx(codigo), tx(r.decimal(QStringLiteral("QT_TOT_INS_EST")))});
        m_estado.insumosComTotal.insert(codigo);
    }
    return true;
}

bool ModGravaVrtMensal::registro34(const RegistroLido& r)
{
    const bool dl288 = r.texto(QStringLiteral("IND_DL_288_67")) == QStringLiteral("S");
    m_comandos.executa(
        "INSERT INTO ITEM_NFA_INS_MEN (ID_VRT_MICRO, ID_INSUMO_ITEM, CD_INT_INSUMO, CD_LOCAL_DESTINO, "
        "NR_CNPJ_FORNECEDOR, NR_SERIE_NF_AQUIS, NR_NF_AQUIS, NR_ITEM_NF_AQUIS, DT_EMISS_NF_AQUIS, CD_CFOP_NF_AQUIS, "
        "IND_DL_288_67, QT_INSUMO_UNID_INS, VL_INSUMO_UNID_INS) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
        {m_estado.IdVrtLida, m_estado.insumoAtual, tx(r.aparado(QStringLiteral("CD_INT_INSUMO"))),
         tx(r.texto(QStringLiteral("CD_LOCAL_DESTINO"))), tx(r.texto(QStringLiteral("NR_CNPJ_FORNECEDOR"))),
         tx(r.texto(QStringLiteral("NR_SERIE_NF_AQUIS"))), tx(r.texto(QStringLiteral("NR_NF_AQUIS"))), tx(r.texto(QStringLiteral("NR_ITEM_NF_AQUIS"))),
         tx(r.data(QStringLiteral("DT_EMISS_NF_AQUIS"))), tx(r.semZerosEsquerda(QStringLiteral("CD_CFOP_NF_AQUIS"))),
         tx(r.texto(QStringLiteral("IND_DL_288_67"))), tx(r.decimal(QStringLiteral("QT_INSUMO_UNID_INS"))),
         tx(dl288 ? r.decimal(QStringLiteral("VL_INSUMO_UNID_INS")) : QString())});
    return true;
}

bool ModGravaVrtMensal::registro35(const RegistroLido& r)
{
    m_comandos.executa(
        "INSERT INTO ITEM_DI_INS_MEN (ID_VRT_MICRO, CD_INT_INSUMO, NM_INT_INSUMO, CD_LOCAL_DESTINO, ID_INSUMO_ITEM, "
        "NR_DI, NR_ADICAO_DI, NR_ITEM_ADICAO, NR_DI_ANTIGA, IND_DL_288_67, IND_SUSP_PIS_COFINS, QT_INSUMO_UNID_INS) "
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
        {m_estado.IdVrtLida, tx(r.aparado(QStringLiteral("CD_INT_INSUMO"))), tx(m_estado.nomeInsumoAtual),
         tx(r.texto(QStringLiteral("CD_LOCAL_DESTINO"))), m_estado.insumoAtual, tx(r.texto(QStringLiteral("NR_DI"))),
         tx(r.texto(QStringLiteral("NR_ADICAO_DI"))), tx(r.texto(QStringLiteral("NR_ITEM_ADICAO"))), tx(r.texto(QStringLiteral("NR_DI_ANTIGA"))),
         tx(r.texto(QStringLiteral("IND_DL_288_67"))), tx(r.texto(QStringLiteral("IND_SUSP_PIS_COFINS"))),
         tx(r.decimal(QStringLiteral("QT_INSUMO_UNID_INS")))});
    // The monthly reader's own message for this record is the individual one, as the system has it.
    QVariant di;
    if (!m_comandos.novaChave(di, QStringLiteral("ERRO NA RECUPERAÇÃO DO REGISTRO 35 DA INDIVIDUAL")))
        return false;
    m_comandos.executa("INSERT INTO ITEM_IMPORT_288_INS_MEN (ID_ITEM_DI, VL_INSUMO_UNID_INS, CD_MOEDA_NEG, "
                       "VL_FRETE_UNID_INT, CD_MOEDA_FRETE, VL_SEGURO_UNID_INT, CD_MOEDA_SEGURO) "
                       "VALUES (?, ?, ?, ?, ?, ?, ?)",
                       {di, tx(r.decimal(QStringLiteral("VL_INSUMO_UNID_INS"))), tx(r.texto(QStringLiteral("CD_MOEDA_NEG"))),
                        tx(r.decimal(QStringLiteral("VL_FRETE_UNID_INT"))), tx(r.texto(QStringLiteral("CD_MOEDA_FRETE"))),
                        tx(r.decimal(QStringLiteral("VL_SEGURO_UNID_INT"))), tx(r.texto(QStringLiteral("CD_MOEDA_SEGURO")))});
    return true;
}

bool ModGravaVrtMensal::registro36(const RegistroLido& r)
{
    m_comandos.executa(
        "INSERT INTO ITEM_DSI_INS_MEN (ID_VRT_MICRO, ID_INSUMO_ITEM, CD_INT_INSUMO, CD_LOCAL_DESTINO, NR_DSI, "
        "NR_DSI_ANTIGA, NR_BEM, QT_INSUMO_UNID_INS, VL_PROD_UNID_PROD, CD_MOEDA_NEG, VL_FRETE_UNID_INT, "
        "CD_MOEDA_FRETE, VL_SEGURO_UNID_INT, CD_MOEDA_SEGURO, IND_SUSP_PIS_COFINS) "
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
        {m_estado.IdVrtLida, m_estado.insumoAtual, tx(r.aparado(QStringLiteral("CD_INT_INSUMO"))),
         tx(r.texto(QStringLiteral("CD_LOCAL_DESTINO"))), tx(r.texto(QStringLiteral("NR_DSI"))), tx(r.texto(QStringLiteral("NR_DSI_ANTIGA"))),
         tx(r.texto(QStringLiteral("NR_BEM"))), tx(r.decimal(QStringLiteral("QT_INSUMO_UNID_INS"))), tx(r.decimal(QStringLiteral("VL_PROD_UNID_PROD"))),
         tx(r.texto(QStringLiteral("CD_MOEDA_NEG"))), tx(r.decimal(QStringLiteral("VL_FRETE_UNID_INT"))), tx(r.texto(QStringLiteral("CD_MOEDA_FRETE"))),
         tx(r.decimal(QStringLiteral("VL_SEGURO_UNID_INT"))), tx(r.texto(QStringLiteral("CD_MOEDA_SEGURO"))),
         tx(r.texto(QStringLiteral("IND_SUSP_PIS_COFINS")))});
    return true;
}

bool ModGravaVrtMensal::registro41(const RegistroLido& r)
{
    const QString ncm = r.texto(QStringLiteral("CD_NCM_PRODUTO"));
    if (!m_cadastros.ExisteNcm(ncm))
        return m_estado.erroRegistro(QStringLiteral("41"), QStringLiteral("NCM não cadastrada"));
    const QString codigo = r.aparado(QStringLiteral("CD_INT_PRODUTO"));
    const QString nome = r.texto(QStringLiteral("NM_INT_PRODUTO"));
    if (!m_cadastros.RegistraProduto(codigo, nome))
        return m_estado.erroRegistro(QStringLiteral("41"), QStringLiteral("Erro ao cadastrar o Produto"));
    QString unidade = r.texto(QStringLiteral("NM_UNID_MED_PROD"));
    if (!m_cadastros.RegistraUnidade(unidade))
        return m_estado.erroRegistro(QStringLiteral("41"), QStringLiteral("Erro ao cadastrar a Unidade de Medida"));
    m_comandos.executa("INSERT INTO ITEM_VRT_MEN (ID_VRT_MICRO, CD_NCM_PRODUTO, CD_INT_PRODUTO, NM_INT_PRODUTO, "
                       "NM_UNID_MED_PROD, IND_MOD_INTERNACAO, VL_PROD_UNID_PROD, QT_PROD_UNID_PROD, QT_PROD_UNID_EST) "
                       "VALUES (?, ?, ?, ?, ?, '4', ?, ?, ?)",
                       {m_estado.IdVrtLida, tx(ncm), tx(codigo), tx(nome), tx(r.aparado(QStringLiteral("NM_UNID_MED_PROD"))),
                        tx(r.decimal(QStringLiteral("VL_PROD_UNID_PROD"))), tx(r.decimal(QStringLiteral("QT_PROD_UNID_PROD"))),
                        tx(r.decimal(QStringLiteral("QT_PROD_UNID_EST")))});
    m_estado.itemAtual = m_comandos.ultimaChave();
    return true;
}
