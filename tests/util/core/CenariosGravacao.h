#pragma once
// Declarations set up row by row for the writer's tests, and the golden files they are compared with.
// A golden file (tests/data/gravacao) is composed by hand from the record tables: one line of the file per line,
// fields separated by "|" (which never reach the file), "#" lines are notes, and a last line
// "«sem CR LF no fim»" says that the file ends without a line end. The file itself is Windows-1252 with CR LF.
#include "TestUtil.h"

#include <QFile>
#include <QPair>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringConverter>
#include <QStringList>
#include <QTest>

namespace CenariosGravacao {

using Colunas = QList<QPair<QString, QVariant>>;

// One row; gives the key the engine made.
inline qint64 insere(const QString& tabela, const Colunas& colunas)
{
    QStringList nomes, marcas;
    for (const auto& c : colunas) {
        nomes << c.first;
        marcas << QStringLiteral("?");
    }
    QSqlQuery q(modBancoDados::ConexaoBanco());
    q.prepare(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)").arg(tabela, nomes.join(u','), marcas.join(u',')));
    for (const auto& c : colunas)
        q.addBindValue(c.second);
    if (!q.exec())
        qFatal("%s: %s", qPrintable(tabela), qPrintable(q.lastError().text()));
    return q.lastInsertId().toLongLong();
}

inline QVariant nulo()
{
    return QVariant();
}

// The bytes a golden file stands for.
inline QByteArray esperado(const QString& nome)
{
    QFile f(QStringLiteral(VRT_TEST_DATA "/gravacao/") + nome);
    if (!f.open(QIODevice::ReadOnly))
        qFatal("arquivo de referência ausente: %s", qPrintable(nome));
    const QStringList linhas = QString::fromUtf8(f.readAll()).split(u'\n');
    QString texto;
    bool fimSemLinha = false;
    for (const QString& l : linhas) {
        if (l.isEmpty() || l.startsWith(u'#'))
            continue;
        if (l == QStringLiteral("«sem CR LF no fim»")) {
            fimSemLinha = true;
            continue;
        }
        texto += QString(l).remove(u'|') + QStringLiteral("\r\n");
    }
    if (fimSemLinha)
        texto.chop(2);
    QStringEncoder cp1252("windows-1252");
    return cp1252.encode(texto);
}

inline QByteArray conteudo(const QString& caminho)
{
    QFile f(caminho);
    if (!f.open(QIODevice::ReadOnly))
        return QByteArray("<arquivo ausente>");
    return f.readAll();
}

// Compares line by line first, so that a failure names the line, then byte for byte.
inline bool mesmosBytes(const QByteArray& obtido, const QByteArray& esperadoBytes)
{
    const QList<QByteArray> a = obtido.split('\n');
    const QList<QByteArray> b = esperadoBytes.split('\n');
    for (int i = 0; i < qMin(a.size(), b.size()); ++i) {
        if (a.at(i) != b.at(i)) {
            qWarning("linha %d difere\nobtido:   [%s]\nesperado: [%s]", i + 1, a.at(i).constData(),
                     b.at(i).constData());
            return false;
        }
    }
    if (a.size() != b.size()) {
        qWarning("obtido %d linhas, esperado %d", int(a.size()), int(b.size()));
        return false;
    }
    return obtido == esperadoBytes;
}

// The monthly declaration of mensal_completa.txt. Items are made out of modality order on purpose.
inline void insereMensalCompleta(const QString& id = QStringLiteral("00012/09"))
{
    insere(QStringLiteral("VRT"),
           {{"ID_VRT_MICRO", id}, {"NR_VRT", "0812345678"}, {"IND_RETIFICACAO", "S"},
            {"NR_CNPJ_INTERNADOR", "12345678000195"}, {"NR_INSCRICAO_EST", "999"}, {"IND_MANDADO_JUDIC", "S"},
            {"NR_BANCO_ARREC", "001"}, {"NR_AG_BCO_ARREC", "1234"}, {"NR_CC_AG_BCO_ARREC", "123456"},
            {"CD_TIPO_VRT", "2"}, {"NR_PROC_ADM_FISCAL", "10283720001200955"}, {"IND_RESTITUICAO", "N"}});
    insere(QStringLiteral("VRT_MENSAL"), {{"ID_VRT_MICRO", id}, {"DT_REFERENCIA_VRT", "122008"}});
    const auto mandado = [&](const char* mod, const char* tipo, const char* valor) {
        insere(QStringLiteral("VALORES_DIVER_MANDADO"), {{"ID_VRT_MICRO", id}, {"CD_MOD_MANDADO", mod},
                                                         {"CD_TIPO_DIVER_MANDADO", tipo},
                                                         {"VL_TOTAL_DIVER_MANDADO", valor}});
    };
    mandado("1", "3", "1234,56");
    mandado("9", "2", "0,00");
    mandado("2", "6", "77,00");  // IPI under modality 2: no slot
    const auto retif = [&](const char* mod, const char* tipo, const char* valor) {
        insere(QStringLiteral("VALORES_DIVER_RETIF"), {{"ID_VRT_MICRO", id}, {"CD_MOD_RETIF", mod},
                                                       {"CD_TIPO_DIVER_RETIF", tipo},
                                                       {"VL_TOTAL_DIVER_RETIF", valor}});
    };
    retif("1", "3", "10,00");
    retif("3", "13", "5,5");

    // Item A, modality 4.
    insere(QStringLiteral("ITEM_VRT_MEN"),
           {{"ID_VRT_MICRO", id}, {"CD_INT_PRODUTO", "NAC-4"}, {"NM_INT_PRODUTO", "Açúcar"},
            {"CD_NCM_PRODUTO", "17019900"}, {"NM_UNID_MED_PROD", "KG"}, {"IND_MOD_INTERNACAO", "4"},
            {"QT_PROD_UNID_PROD", "1000,00000"}, {"QT_PROD_UNID_EST", "1000,00000"}, {"VL_PROD_UNID_PROD", "3,50"}});

    // Item B, modality 1, destinations 1 and 3.
    const qint64 b = insere(QStringLiteral("ITEM_VRT_MEN"),
                            {{"ID_VRT_MICRO", id}, {"CD_INT_PRODUTO", "PE-1"}, {"NM_INT_PRODUTO", "Motor elétrico"},
                             {"CD_NCM_PRODUTO", "85011019"}, {"NM_UNID_MED_PROD", "UNIDADE"},
                             {"IND_MOD_INTERNACAO", "1"}, {"QT_PROD_UNID_EST", "10,00000"}});
    insere(QStringLiteral("JUST_DIF_ALIQ_PROD_VRT_MEN"),
           {{"ID_ITEM_VRT", b}, {"JUST_II_DIF_TEC", "Ex-tarifário"}, {"ALIQ_II_DIF_TEC", "2,50"},
            {"JUST_IPI_DIF_TIPI", "Redução IPI"}, {"ALIQ_IPI_DIF_TIPI", "10,00"}});
    const qint64 b1 = insere(QStringLiteral("DESTINO_ITEM_VRT_MEN"),
                             {{"ID_ITEM_VRT", b}, {"CD_LOCAL_DESTINO", "1"}, {"QT_PROD_LOC_DEST", "6,00000"}});
    const qint64 b3 = insere(QStringLiteral("DESTINO_ITEM_VRT_MEN"),
                             {{"ID_ITEM_VRT", b}, {"CD_LOCAL_DESTINO", "3"}, {"QT_PROD_LOC_DEST", "4,00000"}});
    insere(QStringLiteral("ITEM_NFA_PE_MEN"),
           {{"ID_DEST_PRODUTO", b1}, {"NR_NF_AQUIS", "123"}, {"NR_SERIE_NF_AQUIS", "1"}, {"NR_ITEM_NF_AQUIS", "1"},
            {"DT_EMISS_NF_AQUIS", "15012008"}, {"CD_CFOP_NF_AQUIS", "3102"}, {"NR_CNPJ_FORNECEDOR", "11222333000181"},
            {"IND_DL_288_67", "S"}, {"IND_OBSOLE_RESIDUO", "N"}, {"VL_TOT_PROD_OBSOLE", "99,00"},
            {"VL_PROD_UNID_PROD", "12,3456789"}, {"QT_PROD_UNID_PROD", "6,00000"}});
    const qint64 di1 = insere(QStringLiteral("ITEM_DI_PE_MEN"),
                              {{"ID_DEST_PRODUTO", b1}, {"NR_DI", "0812345678"}, {"NR_DI_ANTIGA", ""},
                               {"NR_ADICAO_DI", "1"}, {"NR_ITEM_ADICAO", "2"}, {"IND_DL_288_67", "S"},
                               {"IND_OBSOLE_RESIDUO", "N"}, {"QT_PROD_UNID_PROD", "6,00000"},
                               {"IND_SUSP_PIS_COFINS", "N"}});
    insere(QStringLiteral("ITEM_IMPORT_288_PE_MEN"),
           {{"ID_ITEM_DI", di1}, {"CD_MOEDA_NEG", "220"}, {"VL_PROD_UNID_PROD", "1,5000000"},
            {"CD_MOEDA_FRETE", "220"}, {"VL_FRETE_UNID_INT", "0,1000000"}, {"CD_MOEDA_SEGURO", "790"},
            {"VL_SEGURO_UNID_INT", "0,0500000"}, {"VL_TOT_PROD_OBSOLE", "7,00"}});
    insere(QStringLiteral("ITEM_DSI_PE_MEN"),
           {{"ID_DEST_PRODUTO", b1}, {"NR_DSI", "2012345678"}, {"NR_DSI_ANTIGA", ""}, {"NR_BEM", "5"},
            {"QT_PROD_UNID_PROD", "1,00000"}, {"CD_MOEDA_NEG", "220"}, {"VL_PROD_UNID_PROD", "2,0000000"},
            {"CD_MOEDA_FRETE", "220"}, {"VL_FRETE_UNID_INT", "0,2000000"}, {"CD_MOEDA_SEGURO", "220"},
            {"VL_SEGURO_UNID_INT", "0,0100000"}, {"IND_SUSP_PIS_COFINS", "S"}});
    insere(QStringLiteral("ITEM_NFA_PE_MEN"),
           {{"ID_DEST_PRODUTO", b3}, {"NR_NF_AQUIS", "456"}, {"NR_SERIE_NF_AQUIS", "A"}, {"NR_ITEM_NF_AQUIS", "2"},
            {"DT_EMISS_NF_AQUIS", "01022008"}, {"CD_CFOP_NF_AQUIS", "3101"}, {"NR_CNPJ_FORNECEDOR", "11222333000181"},
            {"IND_DL_288_67", "S"}, {"IND_OBSOLE_RESIDUO", "S"}, {"VL_TOT_PROD_OBSOLE", "150,00"},
            {"VL_PROD_UNID_PROD", "5,0000000"}, {"QT_PROD_UNID_PROD", nulo()}});
    const qint64 di3 = insere(QStringLiteral("ITEM_DI_PE_MEN"),
                              {{"ID_DEST_PRODUTO", b3}, {"NR_DI", "0899999999"}, {"NR_DI_ANTIGA", "123456789012345"},
                               {"NR_ADICAO_DI", "10"}, {"NR_ITEM_ADICAO", "1"}, {"IND_DL_288_67", "N"},
                               {"IND_OBSOLE_RESIDUO", "S"}, {"QT_PROD_UNID_PROD", "4,00000"},
                               {"IND_SUSP_PIS_COFINS", "N"}});
    insere(QStringLiteral("ITEM_IMPORT_288_PE_MEN"),
           {{"ID_ITEM_DI", di3}, {"CD_MOEDA_NEG", "220"}, {"VL_PROD_UNID_PROD", "3,0000000"},
            {"VL_TOT_PROD_OBSOLE", "80,00"}});

    // Item C, modality 3, destinations 1 and 4, two inputs.
    const qint64 c = insere(QStringLiteral("ITEM_VRT_MEN"),
                            {{"ID_VRT_MICRO", id}, {"CD_INT_PRODUTO", "PI-3"}, {"NM_INT_PRODUTO", "Bicicleta"},
                             {"CD_NCM_PRODUTO", "87120010"}, {"NM_UNID_MED_PROD", "UNIDADE"},
                             {"IND_MOD_INTERNACAO", "3"}});
    insere(QStringLiteral("DESTINO_ITEM_VRT_MEN"),
           {{"ID_ITEM_VRT", c}, {"CD_LOCAL_DESTINO", "1"}, {"QT_PROD_LOC_DEST", "2,00000"}});
    insere(QStringLiteral("DESTINO_ITEM_VRT_MEN"),
           {{"ID_ITEM_VRT", c}, {"CD_LOCAL_DESTINO", "4"}, {"QT_PROD_LOC_DEST", "3,00000"}});
    const qint64 ins1 = insere(QStringLiteral("INSUMO_ITEM_VRT_MEN"),
                               {{"NR_ORDEM", 1}, {"ID_ITEM_VRT", c}, {"CD_INT_INSUMO", "INS-1"},
                                {"NM_INT_INSUMO", "Quadro de aço"}, {"CD_NCM_INSUMO", "73089010"},
                                {"QT_INSUMO_POR_PROD", "1,50000"}, {"NM_UNID_MED_INSUMO", "UNIDADE"}});
    insere(QStringLiteral("JUST_DIF_ALIQ_INS_VRT_MEN"),
           {{"ID_INSUMO_ITEM", ins1}, {"JUST_II_DIF_TEC", "Just II insumo"}, {"ALIQ_II_DIF_TEC", "3,00"},
            {"JUST_IPI_DIF_TIPI", "Just IPI insumo"}, {"ALIQ_IPI_DIF_TIPI", " "}});
    insere(QStringLiteral("INSUMO_VRT"),
           {{"ID_VRT_MICRO", id}, {"CD_INT_INSUMO", "INS-1"}, {"QT_TOT_INS_EST", "100,00000"}});
    insere(QStringLiteral("ITEM_NFA_INS_MEN"),
           {{"ID_VRT_MICRO", id}, {"ID_INSUMO_ITEM", ins1}, {"CD_INT_INSUMO", "INS-1"}, {"CD_LOCAL_DESTINO", "1"},
            {"NR_NF_AQUIS", "789"}, {"NR_SERIE_NF_AQUIS", "2"}, {"NR_ITEM_NF_AQUIS", "3"},
            {"DT_EMISS_NF_AQUIS", "10032008"}, {"CD_CFOP_NF_AQUIS", "2102"}, {"NR_CNPJ_FORNECEDOR", "44555666000177"},
            {"IND_DL_288_67", "X"}, {"VL_INSUMO_UNID_INS", "4,5000000"}, {"QT_INSUMO_UNID_INS", "3,00000"}});
    const qint64 dii = insere(QStringLiteral("ITEM_DI_INS_MEN"),
                              {{"ID_VRT_MICRO", id}, {"CD_INT_INSUMO", "INS-1"}, {"NM_INT_INSUMO", "Quadro de aço"},
                               {"CD_LOCAL_DESTINO", "1"}, {"ID_INSUMO_ITEM", ins1}, {"NR_DI", "0811111111"},
                               {"NR_DI_ANTIGA", "123456789012345"}, {"NR_ADICAO_DI", "1"}, {"NR_ITEM_ADICAO", "1"},
                               {"IND_DL_288_67", "S"}, {"QT_INSUMO_UNID_INS", "3,00000"},
                               {"IND_SUSP_PIS_COFINS", "N"}});
    insere(QStringLiteral("ITEM_IMPORT_288_INS_MEN"),
           {{"ID_ITEM_DI", dii}, {"CD_MOEDA_NEG", "220"}, {"VL_INSUMO_UNID_INS", "2,0000000"},
            {"CD_MOEDA_FRETE", "220"}, {"VL_FRETE_UNID_INT", "0,5000000"}, {"CD_MOEDA_SEGURO", "220"},
            {"VL_SEGURO_UNID_INT", "0,2500000"}});
    insere(QStringLiteral("ITEM_DSI_INS_MEN"),
           {{"ID_VRT_MICRO", id}, {"ID_INSUMO_ITEM", ins1}, {"CD_INT_INSUMO", "INS-1"}, {"CD_LOCAL_DESTINO", "1"},
            {"NR_DSI", " "}, {"NR_DSI_ANTIGA", "98765"}, {"NR_BEM", "7"}, {"QT_INSUMO_UNID_INS", "3,00000"},
            {"CD_MOEDA_NEG", "220"}, {"VL_PROD_UNID_PROD", "1,0000000"}, {"IND_SUSP_PIS_COFINS", "N"}});
    insere(QStringLiteral("INSUMO_ITEM_VRT_MEN"),
           {{"NR_ORDEM", 2}, {"ID_ITEM_VRT", c}, {"CD_INT_INSUMO", "INS-2"}, {"NM_INT_INSUMO", "Pneu"},
            {"CD_NCM_INSUMO", "40115000"}, {"QT_INSUMO_POR_PROD", "2,00000"}, {"NM_UNID_MED_INSUMO", "PAR"}});

    // Items D and E, modality 2.
    const qint64 d = insere(QStringLiteral("ITEM_VRT_MEN"),
                            {{"ID_VRT_MICRO", id}, {"CD_INT_PRODUTO", "PPB-2"}, {"NM_INT_PRODUTO", "Televisor"},
                             {"IND_MOD_INTERNACAO", "2"}});
    insere(QStringLiteral("ITEM_VRT_MEN_PI_COM_PPB"),
           {{"ID_ITEM_VRT", d}, {"NR_DCRE_DCR", "123456789"}, {"CD_TIPO_COEF_REDUCAO", "2"}});
    for (const char* destino : {"1", "2"}) {
        insere(QStringLiteral("DESTINO_ITEM_VRT_MEN"),
               {{"ID_ITEM_VRT", d}, {"CD_LOCAL_DESTINO", destino},
                {"QT_PROD_LOC_DEST", QString::fromLatin1(destino) == QLatin1String("1") ? "3,00000" : "1,00000"},
                {"VL_II_UNIT_DOLAR", "1,2345678"}, {"PC_COEF_REDUCAO_II", "88,50"}, {"NM_UNID_MED_DEST", "PECA"},
                {"VL_PIS", "0,1000000"}, {"VL_COFINS", "0,2000000"}});
    }
    const qint64 e = insere(QStringLiteral("ITEM_VRT_MEN"),
                            {{"ID_VRT_MICRO", id}, {"CD_INT_PRODUTO", "PPB-1"}, {"NM_INT_PRODUTO", "Fogão"},
                             {"IND_MOD_INTERNACAO", "2"}});
    insere(QStringLiteral("ITEM_VRT_MEN_PI_COM_PPB"),
           {{"ID_ITEM_VRT", e}, {"NR_DCRE_DCR", "1234567890"}, {"CD_TIPO_COEF_REDUCAO", "1"}});
    insere(QStringLiteral("DESTINO_ITEM_VRT_MEN"),
           {{"ID_ITEM_VRT", e}, {"CD_LOCAL_DESTINO", "4"}, {"QT_PROD_LOC_DEST", "2,00000"},
            {"VL_II_UNIT_DOLAR", "9,0000000"}, {"PC_COEF_REDUCAO_II", "50,00"}, {"NM_UNID_MED_DEST", "KG"},
            {"VL_PIS", ""}, {"VL_COFINS", nulo()}});
}

// The individual declaration of individual_completa.txt.
inline void insereIndividualCompleta(const QString& id = QStringLiteral("00013/09"))
{
    insere(QStringLiteral("VRT"),
           {{"ID_VRT_MICRO", id}, {"NR_VRT", " "}, {"IND_RETIFICACAO", "N"}, {"NR_CNPJ_INTERNADOR", "12345678000195"},
            {"NR_INSCRICAO_EST", "123456789"}, {"IND_MANDADO_JUDIC", "N"}, {"CD_TIPO_VRT", "1"},
            {"NR_PROC_ADM_FISCAL", " "}, {"IND_RESTITUICAO", "N"}});
    insere(QStringLiteral("VRT_INDIVIDUAL"), {{"ID_VRT_MICRO", id}, {"IN_SAIDA_ALC_AO", "N"}});
    const qint64 nfs = insere(QStringLiteral("NOTA_FISCAL_SAIDA"),
                              {{"ID_VRT_MICRO", id}, {"NR_NF_SAIDA", "4567"}, {"NR_SERIE_NF_SAIDA", "U"},
                               {"DT_EMISS_NF_SAIDA", "05012009"}, {"DT_SAIDA_NF_SAIDA", "06012009"},
                               {"CD_OP_FISCAL", "6101"}, {"CD_TIPO_DESTINAT", "1"},
                               {"NR_DESTINAT", "98765432000198"}, {"CD_UF_DESTINO", "SP"}});
    const auto item = [&](const char* nr, const char* codigo, const char* nome, const char* unidade,
                          const QVariant& ncm, const char* modalidade) {
        return insere(QStringLiteral("ITEM_NFS"),
                      {{"ID_NFS", nfs}, {"NR_NF_SAIDA", "4567"}, {"NR_SERIE_NF_SAIDA", "U"},
                       {"NR_ITEM_NF_SAIDA", nr}, {"CD_INT_PROD", codigo}, {"NM_INT_PROD", nome},
                       {"NM_UNID_MED_PROD", unidade}, {"CD_NCM_PROD", ncm}, {"IND_MOD_INTERNACAO", modalidade}});
    };

    const qint64 i1 = item("1", "PE-9", "Câmera", "PECA", "85258029", "1");
    insere(QStringLiteral("ITEM_NFS_PE"),
           {{"ID_ITEM", i1}, {"QT_INT_UNID_NFS", "2,00000"}, {"VL_INT_UNID_NFS", "150,0000000"},
            {"QT_INT_UNID_EST", "2,00000"}, {"VL_IPI_DESTACADO", "30,00"}});
    insere(QStringLiteral("JUST_DIF_ALIQ_PROD_VRT_IND"),
           {{"ID_ITEM", i1}, {"JUST_II_DIF_TEC", "Motivo II"}, {"ALIQ_II_DIF_TEC", "4,00"},
            {"JUST_IPI_DIF_TIPI", " "}, {"ALIQ_IPI_DIF_TIPI", " "}});
    const auto nfa = [&](const char* numero, const char* itemNf, const QVariant& obsoleto, const char* quantidade) {
        insere(QStringLiteral("ITEM_NFA_PE_IND"),
               {{"ID_ITEM", i1}, {"NR_NF_AQUIS", numero}, {"NR_SERIE_NF_AQUIS", "1"}, {"NR_ITEM_NF_AQUIS", itemNf},
                {"DT_EMISS_NF_AQUIS", "02012009"}, {"CD_CFOP_NF_AQUIS", "3102"},
                {"NR_CNPJ_FORNECEDOR", "11222333000181"}, {"IND_DL_288_67", "S"}, {"IND_OBSOLE_RESIDUO", obsoleto},
                {"VL_TOT_PROD_INT", "10,00"}, {"VL_INS_PROD_UNID_NFS", "75,0000000"},
                {"QT_PROD_UNID_NFS", quantidade}});
    };
    nfa("321", "1", nulo(), "2,00000");
    nfa("322", "2", "N", " ");
    const qint64 di = insere(QStringLiteral("ITEM_DI_PE_IND"),
                             {{"ID_ITEM", i1}, {"NR_DI", " "}, {"NR_DI_ANTIGA", "123456789012345"},
                              {"NR_ADICAO_DI", "2"}, {"NR_ITEM_ADICAO", "3"}, {"IND_DL_288_67", "S"},
                              {"IND_OBSOLE_RESIDUO", "N"}, {"QT_PROD_UNID_NFS", "2,00000"},
                              {"IND_SUSP_PIS_COFINS", "S"}});
    insere(QStringLiteral("ITEM_IMPORT_288_PE"),
           {{"ID_ITEM_DI", di}, {"CD_MOEDA_NEG", "220"}, {"VL_INS_PROD_UNID_NFS", "70,0000000"},
            {"CD_MOEDA_FRETE", "220"}, {"VL_FRETE_UNID_NFS", "1,0000000"}, {"CD_MOEDA_SEGURO", "220"},
            {"VL_SEGURO_UNID_NFS", "0,5000000"}, {"VL_TOT_PROD_INT", "5,00"}});
    insere(QStringLiteral("ITEM_DSI_PE_IND"),
           {{"ID_ITEM", i1}, {"NR_DSI", "2099999999"}, {"NR_DSI_ANTIGA", ""}, {"NR_BEM", "1"},
            {"QT_PROD_UNID_NFS", "2,00000"}, {"VL_PROD_UNID_PROD", "9,0000000"}, {"IND_SUSP_PIS_COFINS", "N"}});

    const qint64 i2 = item("2", "PPB-7", "Monitor", "PECA", nulo(), "2");
    insere(QStringLiteral("ITEM_NFS_PI_COM_PPB"),
           {{"ID_ITEM", i2}, {"CD_TIPO_COEF_REDUCAO", "2"}, {"VL_PIS", "0,5000000"}, {"VL_COFINS", "1,0000000"}});
    insere(QStringLiteral("DCR"), {{"ID_ITEM", i2}, {"NR_DCR", "987654321"}, {"PC_COEF_REDUCAO_II", "75,00"},
                                   {"QT_PRODUTO", "2,00000"}, {"VL_II_UNIT_DOLAR", "3,2000000"}});

    const qint64 i3 = item("3", "PPB-8", "Teclado", "PECA", nulo(), "2");
    insere(QStringLiteral("ITEM_NFS_PI_COM_PPB"),
           {{"ID_ITEM", i3}, {"CD_TIPO_COEF_REDUCAO", "1"}, {"VL_PIS", nulo()}, {"VL_COFINS", nulo()}});
    insere(QStringLiteral("DCRE"), {{"ID_ITEM", i3}, {"NR_DCRE", "1234567890"}, {"QT_PRODUTO", "5,00000"}});

    const qint64 i4 = item("4", "PI-5", "Bicicleta", "UNIDADE", "87120010", "3");
    insere(QStringLiteral("ITEM_NFS_PI_SEM_PPB"),
           {{"ID_ITEM", i4}, {"QT_INT_UNID_NFS", "1,00000"}, {"VL_INT_UNID_NFS", "500,0000000"}});
    const qint64 ins = insere(QStringLiteral("INSUMO_ITEM_NFS"),
                              {{"NR_ORDEM", 1}, {"ID_ITEM", i4}, {"CD_INT_INSUMO", "INS-9"}, {"NM_INT_INSUMO", "Aro"},
                               {"CD_NCM_INSUMO", "87149990"}, {"QT_INSUMO_POR_PROD", "2,00000"},
                               {"NM_UNID_MED_INSUMO", "PAR"}});
    insere(QStringLiteral("JUST_DIF_ALIQ_INS_VRT_IND"),
           {{"ID_INSUMO", ins}, {"JUST_II_DIF_TEC", "Just II"}, {"ALIQ_II_DIF_TEC", "1,00"},
            {"JUST_IPI_DIF_TIPI", "Just IPI"}, {"ALIQ_IPI_DIF_TIPI", "2,00"}});
    insere(QStringLiteral("INSUMO_VRT_IND"), {{"ID_VRT_MICRO", id}, {"CD_INT_INSUMO", "INS-9"}, {"QT_TOT_INS", "2,00000"}});
    insere(QStringLiteral("ITEM_NFA_INS_IND"),
           {{"ID_INSUMO", ins}, {"NR_NF_AQUIS", "654"}, {"NR_SERIE_NF_AQUIS", "3"}, {"NR_ITEM_NF_AQUIS", "4"},
            {"DT_EMISS_NF_AQUIS", "03012009"}, {"CD_CFOP_NF_AQUIS", "2101"}, {"NR_CNPJ_FORNECEDOR", "44555666000177"},
            {"IND_DL_288_67", "S"}, {"VL_INS_PROD_UNID_NFS", "12,0000000"}, {"QT_INSUMO_UNID_NFS", "2,00000"}});
    const qint64 dii1 = insere(QStringLiteral("ITEM_DI_INS_IND"),
                               {{"ID_INSUMO", ins}, {"NR_DI", "0822222222"}, {"NR_DI_ANTIGA", " "},
                                {"NR_ADICAO_DI", "1"}, {"NR_ITEM_ADICAO", "1"}, {"IND_DL_288_67", "N"},
                                {"QT_INSUMO_UNID_NFS", "2,00000"}, {"IND_SUSP_PIS_COFINS", "N"}});
    insere(QStringLiteral("ITEM_IMPORT_288_INS"),
           {{"ID_ITEM_DI", dii1}, {"CD_MOEDA_NEG", "220"}, {"VL_INS_PROD_UNID_NFS", "1,0000000"}});
    const qint64 dii2 = insere(QStringLiteral("ITEM_DI_INS_IND"),
                               {{"ID_INSUMO", ins}, {"NR_DI", "0833333333"}, {"NR_DI_ANTIGA", "111111111111111"},
                                {"NR_ADICAO_DI", "2"}, {"NR_ITEM_ADICAO", "2"}, {"IND_DL_288_67", "S"},
                                {"QT_INSUMO_UNID_NFS", "1,00000"}, {"IND_SUSP_PIS_COFINS", "N"}});
    insere(QStringLiteral("ITEM_IMPORT_288_INS"),
           {{"ID_ITEM_DI", dii2}, {"CD_MOEDA_NEG", "220"}, {"VL_INS_PROD_UNID_NFS", "8,0000000"},
            {"CD_MOEDA_FRETE", "220"}, {"VL_FRETE_UNID_NFS", "0,8000000"}, {"CD_MOEDA_SEGURO", "220"},
            {"VL_SEGURO_UNID_NFS", "0,0800000"}});
    insere(QStringLiteral("ITEM_DSI_INS_IND"),
           {{"ID_INSUMO", ins}, {"NR_DSI", "2033333333"}, {"NR_DSI_ANTIGA", ""}, {"NR_BEM", "2"},
            {"QT_INSUMO_UNID_NFS", "2,00000"}, {"CD_MOEDA_NEG", "220"}, {"VL_INS_UNID_PROD", "6,0000000"},
            {"CD_MOEDA_FRETE", "220"}, {"VL_FRETE_UNID_INT", "0,6000000"}, {"CD_MOEDA_SEGURO", "220"},
            {"VL_SEGURO_UNID_INT", "0,0600000"}, {"IND_SUSP_PIS_COFINS", "N"}});

    const qint64 i5 = item("5", "NAC-1", "Café", "KG", "09012100", "4");
    insere(QStringLiteral("ITEM_NFS_100"),
           {{"ID_ITEM", i5}, {"QT_INT_UNID_NFS", "10,00000"}, {"QT_INT_UNID_EST", "10,00000"},
            {"VL_INT_UNID_NFS", "25,0000000"}});

    // Item 6, modality 1 without its ITEM_NFS_PE row: nothing of it is written, its document neither.
    const qint64 i6 = item("6", "PE-0", "Sem valores", "PECA", "85258029", "1");
    insere(QStringLiteral("ITEM_NFA_PE_IND"), {{"ID_ITEM", i6}, {"NR_NF_AQUIS", "999"}, {"IND_DL_288_67", "N"}});
}

}  // namespace CenariosGravacao
