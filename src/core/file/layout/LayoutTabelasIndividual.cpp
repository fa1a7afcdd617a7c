#include "core/file/layout/LayoutTabelas.h"
#include "core/file/layout/MontaLayout.h"

namespace LayoutTabelas {

namespace {
using T = TipoCampo;
inline QString s(const char* texto) { return QString::fromLatin1(texto); }
}  // namespace

// The record numbers and column maps of the monthly file, filled from the invoice's tables; the destination
// code of the invoice stands where a monthly file has its destination row.
QVector<LayoutRegistro> individual()
{
    QVector<LayoutRegistro> r = cabecalho();

    r << MontaLayout(s("11"), 707, s("ITEM_NFS_PE"))
             .ateTamanho()
             .tipoRegistro()
             .campo(3, 3, T::N, s("NR_ITEM_NF_SAIDA"), s("NR_ITEM_NF_SAIDA"), s("ITEM_NFS"))
             .campo(6, 8, T::N, s("CD_NCM_PROD"), s("CD_NCM_PROD"), s("ITEM_NFS"))
             .campo(14, 15, T::X, s("CD_INT_PROD"), s("CD_INT_PROD"), s("ITEM_NFS"))
             .campo(29, 1, T::N, s("CD_LOCAL_DESTINO"), QString(""))
             .campo(30, 45, T::X, s("NM_INT_PROD"), s("NM_INT_PROD"), s("ITEM_NFS"))
             .campo(75, 253, T::X, s("JUST_II_DIF_TEC"), s("JUST_II_DIF_TEC"), s("JUST_DIF_ALIQ_PROD_VRT_IND"))
             .campo(328, 5, T::D2, s("ALIQ_II_DIF_TEC"), s("ALIQ_II_DIF_TEC"), s("JUST_DIF_ALIQ_PROD_VRT_IND"))
             .campo(333, 253, T::X, s("JUST_IPI_DIF_TIPI"), s("JUST_IPI_DIF_TIPI"), s("JUST_DIF_ALIQ_PROD_VRT_IND"))
             .campo(586, 5, T::D2, s("ALIQ_IPI_DIF_TIPI"), s("ALIQ_IPI_DIF_TIPI"), s("JUST_DIF_ALIQ_PROD_VRT_IND"))
             .campo(591, 20, T::X, s("NM_UNID_MED_PROD"), s("NM_UNID_MED_PROD"), s("ITEM_NFS"))
             .campo(611, 14, T::D5, s("QT_INT_UNID_NFS"))
             .campo(625, 14, T::D5, s("QT_INT_UNID_EST"))
             .campo(639, 20, T::D7, s("VL_INT_UNID_NFS"))
             .campo(659, 15, T::D2, s("VL_IPI_DESTACADO"))
             .zeros(674, 14)
             .brancos(688, 20)
             .pronto();

    r << MontaLayout(s("12"), 93, s("ITEM_NFA_PE_IND"))
             .semFimDeLinha()
             .tipoRegistro()
             .campo(3, 14, T::N, s("NR_CNPJ_FORNECEDOR"))
             .campo(17, 5, T::X, s("NR_SERIE_NF_AQUIS"))
             .campo(22, 6, T::N, s("NR_NF_AQUIS"))
             .campo(28, 3, T::N, s("NR_ITEM_NF_AQUIS"))
             .campo(31, 8, T::DT, s("DT_EMISS_NF_AQUIS"))
             .campo(39, 4, T::N, s("CD_CFOP_NF_AQUIS"))
             .campo(43, 1, T::X, s("IND_DL_288_67"))
             // Zero-filled here, so a Null indicator goes out as "0" (a monthly record 12 gives a blank).
             .campo(44, 1, T::N, s("IND_OBSOLE_RESIDUO"))
             .campo(45, 14, T::D5, s("QT_PROD_UNID_NFS"))
             .campo(59, 20, T::D7, s("VL_INS_PROD_UNID_NFS"))
             .campo(79, 15, T::D2, s("VL_TOT_PROD_INT"))
             .pronto();

    r << MontaLayout(s("13"), 133, s("ITEM_DI_PE_IND"))
             .ateTamanho()
             .tipoRegistro()
             .campo(3, 10, T::N, s("NR_DI"))
             .campo(13, 15, T::N, s("NR_DI_ANTIGA"))
             .campo(28, 3, T::N, s("NR_ADICAO_DI"))
             .campo(31, 2, T::N, s("NR_ITEM_ADICAO"))
             .campo(33, 1, T::X, s("IND_DL_288_67"))
             .campo(34, 1, T::X, s("IND_OBSOLE_RESIDUO"))
             .campo(35, 14, T::D5, s("QT_PROD_UNID_NFS"))
             .campo(49, 20, T::D7, s("VL_INS_PROD_UNID_NFS"), s("VL_INS_PROD_UNID_NFS"), s("ITEM_IMPORT_288_PE"))
             .campo(69, 3, T::N, s("CD_MOEDA_NEG"), s("CD_MOEDA_NEG"), s("ITEM_IMPORT_288_PE"))
             .campo(72, 20, T::D7, s("VL_FRETE_UNID_NFS"), s("VL_FRETE_UNID_NFS"), s("ITEM_IMPORT_288_PE"))
             .campo(92, 3, T::N, s("CD_MOEDA_FRETE"), s("CD_MOEDA_FRETE"), s("ITEM_IMPORT_288_PE"))
             .campo(95, 20, T::D7, s("VL_SEGURO_UNID_NFS"), s("VL_SEGURO_UNID_NFS"), s("ITEM_IMPORT_288_PE"))
             .campo(115, 3, T::N, s("CD_MOEDA_SEGURO"), s("CD_MOEDA_SEGURO"), s("ITEM_IMPORT_288_PE"))
             .campo(118, 15, T::D2, s("VL_TOT_PROD_INT"), s("VL_TOT_PROD_INT"), s("ITEM_IMPORT_288_PE"))
             .campo(133, 1, T::X, s("IND_SUSP_PIS_COFINS"))
             .pronto();

    r << MontaLayout(s("14"), 114, s("ITEM_DSI_PE_IND"))
             .ateTamanho()
             .tipoRegistro()
             .campo(3, 10, T::N, s("NR_DSI"))
             .campo(13, 15, T::N, s("NR_DSI_ANTIGA"))
             .campo(28, 3, T::N, s("NR_BEM"))
             .campo(31, 14, T::D5, s("QT_PROD_UNID_NFS"))
             .campo(45, 20, T::D7, s("VL_PROD_UNID_PROD"))
             .campo(65, 3, T::N, s("CD_MOEDA_NEG"))
             .campo(68, 20, T::D7, s("VL_FRETE_UNID_INT"))
             .campo(88, 3, T::N, s("CD_MOEDA_FRETE"))
             .campo(91, 20, T::D7, s("VL_SEGURO_UNID_INT"))
             .campo(111, 3, T::N, s("CD_MOEDA_SEGURO"))
             .campo(114, 1, T::X, s("IND_SUSP_PIS_COFINS"))
             .pronto();

    r << MontaLayout(s("21"), 198, s("ITEM_NFS_PI_COM_PPB"))
             .tipoRegistro()
             .campo(3, 3, T::N, s("NR_ITEM_NF_SAIDA"), s("NR_ITEM_NF_SAIDA"), s("ITEM_NFS"))
             .campo(6, 1, T::N, s("CD_LOCAL_DESTINO"), QString(""))
             .campo(7, 10, T::N, s("NR_DCRE"), s("NR_DCRE"), s("DCRE"))
             .campo(17, 15, T::X, s("CD_INT_PROD"), s("CD_INT_PROD"), s("ITEM_NFS"))
             .campo(32, 9, T::N, s("NR_DCR"), s("NR_DCR"), s("DCR"))
             .campo(41, 45, T::X, s("NM_INT_PROD"), s("NM_INT_PROD"), s("ITEM_NFS"))
             .campo(86, 20, T::D7, s("VL_II_UNIT_DOLAR"), s("VL_II_UNIT_DOLAR"), s("DCR"))
             .campo(106, 5, T::D2, s("PC_COEF_REDUCAO_II"), s("PC_COEF_REDUCAO_II"), s("DCR"))
             // QT_PRODUTO of DCRE or DCR, by the item's type.
             .campo(111, 14, T::D5, s("QT_PRODUTO"), s("QT_PRODUTO"), s("DCR"))
             .zeros(125, 14)
             .campo(139, 20, T::X, s("NM_UNID_MED_PROD"), s("NM_UNID_MED_PROD"), s("ITEM_NFS"))
             .campo(159, 20, T::D7, s("VL_PIS"))
             .campo(179, 20, T::D7, s("VL_COFINS"))
             .pronto();

    MontaLayout r31(s("31"), 187, s("ITEM_NFS_PI_SEM_PPB"));
    r31.tipoRegistro()
        .campo(3, 3, T::N, s("NR_ITEM_NF_SAIDA"), s("NR_ITEM_NF_SAIDA"), s("ITEM_NFS"))
        .campo(6, 15, T::X, s("CD_INT_PROD"), s("CD_INT_PROD"), s("ITEM_NFS"))
        .campo(21, 45, T::X, s("NM_INT_PROD"), s("NM_INT_PROD"), s("ITEM_NFS"))
        .campo(66, 20, T::X, s("NM_UNID_MED_PROD"), s("NM_UNID_MED_PROD"), s("ITEM_NFS"))
        .campo(86, 8, T::N, s("CD_NCM_PROD"), s("CD_NCM_PROD"), s("ITEM_NFS"))
        .campo(94, 14, T::D5, s("QT_INT_UNID_NFS"))
        .campo(108, 20, T::D7, s("VL_INT_UNID_NFS"));
    for (int d = 1; d <= 4; ++d) {
        const int p = 128 + 15 * (d - 1);
        // The digit of the destination where it is the invoice's, else "0".
        r31.campo(p, 1, T::N, s("CD_LOCAL_DESTINO_") + QString::number(d), QString("")).zeros(p + 1, 14);
    }
    r << r31.pronto();

    r << MontaLayout(s("32"), 122, s("INSUMO_ITEM_NFS"))
             .tipoRegistro()
             .campo(3, 3, T::N, s("NR_ITEM_NF_SAIDA"), s("NR_ITEM_NF_SAIDA"), s("ITEM_NFS"))
             .campo(6, 15, T::X, s("CD_INT_PROD"), s("CD_INT_PROD"), s("ITEM_NFS"))
             .campo(21, 15, T::X, s("CD_INT_INSUMO"))
             .campo(36, 8, T::N, s("CD_NCM_INSUMO"))
             .campo(44, 45, T::X, s("NM_INT_INSUMO"))
             .campo(89, 20, T::X, s("NM_UNID_MED_INSUMO"))
             .campo(109, 14, T::D5, s("QT_INSUMO_POR_PROD"))
             .pronto();

    r << MontaLayout(s("33"), 565, s("JUST_DIF_ALIQ_INS_VRT_IND"))
             .tipoRegistro()
             .campo(3, 3, T::N, s("NR_ITEM_NF_SAIDA"), s("NR_ITEM_NF_SAIDA"), s("ITEM_NFS"))
             .campo(6, 15, T::X, s("CD_INT_INSUMO"), s("CD_INT_INSUMO"), s("INSUMO_ITEM_NFS"))
             .campo(21, 14, T::D5, s("QT_TOT_INS"), s("QT_TOT_INS"), s("INSUMO_VRT_IND"))
             .campo(35, 1, T::N, s("CD_LOCAL_DESTINO"), QString(""))
             .campo(36, 253, T::X, s("JUST_II_DIF_TEC"))
             .campo(289, 5, T::D2, s("ALIQ_II_DIF_TEC"))
             .campo(294, 253, T::X, s("JUST_IPI_DIF_TIPI"))
             .campo(547, 5, T::D2, s("ALIQ_IPI_DIF_TIPI"))
             .zeros(552, 14)
             .pronto();

    r << MontaLayout(s("34"), 93, s("ITEM_NFA_INS_IND"))
             .tipoRegistro()
             .campo(3, 14, T::N, s("NR_CNPJ_FORNECEDOR"))
             .campo(17, 5, T::X, s("NR_SERIE_NF_AQUIS"))
             .campo(22, 6, T::N, s("NR_NF_AQUIS"))
             .campo(28, 3, T::N, s("NR_ITEM_NF_AQUIS"))
             .campo(31, 8, T::DT, s("DT_EMISS_NF_AQUIS"))
             .campo(39, 4, T::N, s("CD_CFOP_NF_AQUIS"))
             .campo(43, 1, T::X, s("IND_DL_288_67"))
             .campo(44, 14, T::D5, s("QT_INSUMO_UNID_NFS"))
             .campo(58, 20, T::D7, s("VL_INS_PROD_UNID_NFS"))
             .brancos(78, 15)
             .fixo(93, 1, s("0"))
             .pronto();

    r << MontaLayout(s("35"), 133, s("ITEM_DI_INS_IND"))
             .ateTamanho()
             .tipoRegistro()
             .campo(3, 10, T::N, s("NR_DI"))
             .campo(13, 15, T::N, s("NR_DI_ANTIGA"))
             .campo(28, 3, T::N, s("NR_ADICAO_DI"))
             .campo(31, 2, T::N, s("NR_ITEM_ADICAO"))
             .campo(33, 1, T::X, s("IND_DL_288_67"))
             .campo(34, 14, T::D5, s("QT_INSUMO_UNID_NFS"))
             .campo(48, 20, T::D7, s("VL_INS_PROD_UNID_NFS"), s("VL_INS_PROD_UNID_NFS"), s("ITEM_IMPORT_288_INS"))
             .campo(68, 3, T::N, s("CD_MOEDA_NEG"), s("CD_MOEDA_NEG"), s("ITEM_IMPORT_288_INS"))
             .campo(71, 20, T::D7, s("VL_FRETE_UNID_NFS"), s("VL_FRETE_UNID_NFS"), s("ITEM_IMPORT_288_INS"))
             .campo(91, 3, T::N, s("CD_MOEDA_FRETE"), s("CD_MOEDA_FRETE"), s("ITEM_IMPORT_288_INS"))
             .campo(94, 20, T::D7, s("VL_SEGURO_UNID_NFS"), s("VL_SEGURO_UNID_NFS"), s("ITEM_IMPORT_288_INS"))
             .campo(114, 3, T::N, s("CD_MOEDA_SEGURO"), s("CD_MOEDA_SEGURO"), s("ITEM_IMPORT_288_INS"))
             .brancos(117, 15)
             .fixo(132, 1, s("0"))
             .campo(133, 1, T::X, s("IND_SUSP_PIS_COFINS"))
             .pronto();

    r << MontaLayout(s("36"), 130, s("ITEM_DSI_INS_IND"))
             .ateTamanho()
             .tipoRegistro()
             .campo(3, 10, T::N, s("NR_DSI"))
             .campo(13, 15, T::N, s("NR_DSI_ANTIGA"))
             .campo(28, 3, T::N, s("NR_BEM"))
             .campo(31, 14, T::D5, s("QT_INSUMO_UNID_NFS"))
             .brancos(45, 15)
             .fixo(60, 1, s("0"))
             .campo(61, 20, T::D7, s("VL_INS_UNID_PROD"))
             .campo(81, 3, T::N, s("CD_MOEDA_NEG"))
             .campo(84, 20, T::D7, s("VL_FRETE_UNID_INT"))
             .campo(104, 3, T::N, s("CD_MOEDA_FRETE"))
             .campo(107, 20, T::D7, s("VL_SEGURO_UNID_INT"))
             .campo(127, 3, T::N, s("CD_MOEDA_SEGURO"))
             .campo(130, 1, T::X, s("IND_SUSP_PIS_COFINS"))
             .pronto();

    r << MontaLayout(s("41"), 184, s("ITEM_NFS_100"))
             .tipoRegistro()
             .campo(3, 3, T::N, s("NR_ITEM_NF_SAIDA"), s("NR_ITEM_NF_SAIDA"), s("ITEM_NFS"))
             .campo(6, 8, T::N, s("CD_NCM_PROD"), s("CD_NCM_PROD"), s("ITEM_NFS"))
             .campo(14, 15, T::X, s("CD_INT_PROD"), s("CD_INT_PROD"), s("ITEM_NFS"))
             .campo(29, 45, T::X, s("NM_INT_PROD"), s("NM_INT_PROD"), s("ITEM_NFS"))
             .campo(74, 20, T::X, s("NM_UNID_MED_PROD"), s("NM_UNID_MED_PROD"), s("ITEM_NFS"))
             .campo(94, 14, T::D5, s("QT_INT_UNID_NFS"))
             .campo(108, 14, T::D5, s("QT_INT_UNID_EST"))
             .campo(122, 20, T::D7, s("VL_INT_UNID_NFS"))
             .zeros(142, 15)
             .zeros(157, 14)
             .zeros(171, 14)
             .pronto();
    return r;
}

}  // namespace LayoutTabelas
