#include "core/file/layout/LayoutTabelas.h"

#include "core/file/layout/MontaLayout.h"
#include "core/file/layout/SlotsValores.h"

namespace LayoutTabelas {

namespace {
using T = TipoCampo;
inline QString s(const char* texto) { return QString::fromLatin1(texto); }
}  // namespace

QVector<LayoutRegistro> cabecalho()
{
    QVector<LayoutRegistro> r;

    r << MontaLayout(s("00"), 61, s("VRT"))
             .tipoRegistro()
             .fixo(3, 7, s("VRT/PLN"), s("CABECALHO"))
             // "1" for transmission, "3" for backup, "2" from other software: the writer chooses it.
             .fixo(10, 1, QString(), s("ORIGEM"))
             .fixo(11, 5, s("02.00"), s("VERSAO_LAYOUT"))
             .campo(16, 1, T::A, s("CD_TIPO_VRT"))
             // Monthly: yyyymm from DT_REFERENCIA_VRT (stored mmyyyy); individual: "000000".
             .campo(17, 6, T::N, s("DT_REFERENCIA_VRT"), s("DT_REFERENCIA_VRT"), s("VRT_MENSAL")).mesAno()
             .campo(23, 14, T::N, s("NR_INSCRICAO_EST")).zeroEsquerda()
             .campo(37, 5, T::X, s("NR_SERIE_NF_SAIDA"), s("NR_SERIE_NF_SAIDA"), s("NOTA_FISCAL_SAIDA"))
             .campo(42, 6, T::N, s("NR_NF_SAIDA"), s("NR_NF_SAIDA"), s("NOTA_FISCAL_SAIDA")).zeroEsquerda()
             .campo(48, 14, T::A, s("NR_CNPJ_INTERNADOR"))
             .pronto();

    r << MontaLayout(s("01"), 113, s("VRT"))
             .tipoRegistro()
             // Positions 3 to 49 repeat record 00, whose fields the reader takes.
             .campo(3, 1, T::A, s("CD_TIPO_VRT")).ignorado()
             .fixo(4, 1, s("1"))
             .campo(5, 6, T::N, s("DT_REFERENCIA_VRT"), s("DT_REFERENCIA_VRT"), s("VRT_MENSAL")).ignorado()
             .campo(11, 14, T::A, s("NR_CNPJ_INTERNADOR")).ignorado()
             .campo(25, 14, T::N, s("NR_INSCRICAO_EST")).ignorado()
             .campo(39, 5, T::X, s("NR_SERIE_NF_SAIDA"), s("NR_SERIE_NF_SAIDA"), s("NOTA_FISCAL_SAIDA")).ignorado()
             .campo(44, 6, T::N, s("NR_NF_SAIDA"), s("NR_NF_SAIDA"), s("NOTA_FISCAL_SAIDA")).ignorado()
             // "00000000" reads back as itself: the date rule only moves the digits.
             .campo(50, 8, T::DT, s("DT_EMISS_NF_SAIDA"), s("DT_EMISS_NF_SAIDA"), s("NOTA_FISCAL_SAIDA"))
             .campo(58, 8, T::DT, s("DT_SAIDA_NF_SAIDA"), s("DT_SAIDA_NF_SAIDA"), s("NOTA_FISCAL_SAIDA"))
             .campo(66, 4, T::N, s("CD_OP_FISCAL"), s("CD_OP_FISCAL"), s("NOTA_FISCAL_SAIDA")).zeroEsquerda()
             .campo(70, 1, T::N, s("CD_TIPO_DESTINAT"), s("CD_TIPO_DESTINAT"), s("NOTA_FISCAL_SAIDA"))
             .campo(71, 14, T::R, s("NR_DESTINAT"), s("NR_DESTINAT"), s("NOTA_FISCAL_SAIDA"))
             .campo(85, 2, T::X, s("CD_UF_DESTINO"), s("CD_UF_DESTINO"), s("NOTA_FISCAL_SAIDA"))
             .campo(87, 1, T::X, s("IN_SAIDA_ALC_AO"), s("IN_SAIDA_ALC_AO"), s("VRT_INDIVIDUAL"))
             .campo(88, 3, T::N, s("NR_BANCO_ARREC")).zerosVazio()
             .campo(91, 4, T::N, s("NR_AG_BCO_ARREC")).zerosVazio()
             .campo(95, 19, T::N, s("NR_CC_AG_BCO_ARREC")).zerosVazio()
             .pronto();

    MontaLayout r02(s("02"), 563, s("VALORES_DIVER_MANDADO"));
    r02.tipoRegistro().campo(3, 1, T::X, s("IND_MANDADO_JUDIC"), s("IND_MANDADO_JUDIC"), s("VRT"));
    for (int k = 1; k <= SlotsValores::QuantidadeMandado; ++k) {
        r02.campo(SlotsValores::posicaoIndicadorMandado(k), 1, T::X, SlotsValores::campoIndicadorMandado(k), QString(""))
            .campo(SlotsValores::posicaoValorMandado(k), SlotsValores::TamanhoValor, T::D2,
                   SlotsValores::campoValorMandado(k), s("VL_TOTAL_DIVER_MANDADO"));
    }
    r << r02.pronto();

    MontaLayout r03(s("03"), 524, s("VALORES_DIVER_RETIF"));
    r03.tipoRegistro()
        // Zeros: not a rectification, NR_VRT stored empty; the process number keeps its zeros.
        .campo(3, 10, T::N, s("NR_VRT"), s("NR_VRT"), s("VRT")).zerosVazio()
        .campo(13, 17, T::N, s("NR_PROC_ADM_FISCAL"), s("NR_PROC_ADM_FISCAL"), s("VRT"));
    for (int k = 1; k <= SlotsValores::QuantidadeRetif; ++k) {
        r03.campo(SlotsValores::posicaoValorRetif(k), SlotsValores::TamanhoValor, T::D2,
                  SlotsValores::campoValorRetif(k), s("VL_TOTAL_DIVER_RETIF"));
    }
    r << r03.pronto();
    return r;
}

QVector<LayoutRegistro> mensal()
{
    QVector<LayoutRegistro> r = cabecalho();

    r << MontaLayout(s("11"), 707, s("ITEM_VRT_MEN"))
             .ateTamanho()
             .tipoRegistro()
             .zeros(3, 3)
             .campo(6, 8, T::N, s("CD_NCM_PRODUTO"))
             .campo(14, 15, T::X, s("CD_INT_PRODUTO")).aparado()
             .campo(29, 1, T::N, s("CD_LOCAL_DESTINO"), s("CD_LOCAL_DESTINO"), s("DESTINO_ITEM_VRT_MEN"))
             .campo(30, 45, T::X, s("NM_INT_PRODUTO"))
             .campo(75, 253, T::X, s("JUST_II_DIF_TEC"), s("JUST_II_DIF_TEC"), s("JUST_DIF_ALIQ_PROD_VRT_MEN")).aparado()
             .campo(328, 5, T::D2, s("ALIQ_II_DIF_TEC"), s("ALIQ_II_DIF_TEC"), s("JUST_DIF_ALIQ_PROD_VRT_MEN"))
             .campo(333, 253, T::X, s("JUST_IPI_DIF_TIPI"), s("JUST_IPI_DIF_TIPI"), s("JUST_DIF_ALIQ_PROD_VRT_MEN")).aparado()
             .campo(586, 5, T::D2, s("ALIQ_IPI_DIF_TIPI"), s("ALIQ_IPI_DIF_TIPI"), s("JUST_DIF_ALIQ_PROD_VRT_MEN"))
             .brancos(591, 20)
             .zeros(611, 14)
             .campo(625, 14, T::D5, s("QT_PROD_UNID_EST"))
             .zeros(639, 20)
             .zeros(659, 15)
             .campo(674, 14, T::D5, s("QT_PROD_LOC_DEST"), s("QT_PROD_LOC_DEST"), s("DESTINO_ITEM_VRT_MEN"))
             .campo(688, 20, T::X, s("NM_UNID_MED_PROD")).aparado()
             .pronto();

    r << MontaLayout(s("12"), 93, s("ITEM_NFA_PE_MEN"))
             .tipoRegistro()
             .campo(3, 14, T::N, s("NR_CNPJ_FORNECEDOR"))
             .campo(17, 5, T::X, s("NR_SERIE_NF_AQUIS"))
             .campo(22, 6, T::N, s("NR_NF_AQUIS"))
             .campo(28, 3, T::N, s("NR_ITEM_NF_AQUIS"))
             .campo(31, 8, T::DT, s("DT_EMISS_NF_AQUIS"))
             .campo(39, 4, T::N, s("CD_CFOP_NF_AQUIS")).semZerosEsquerda()
             .campo(43, 1, T::X, s("IND_DL_288_67"))
             .campo(44, 1, T::X, s("IND_OBSOLE_RESIDUO"))
             .campo(45, 14, T::D5, s("QT_PROD_UNID_PROD"))
             .campo(59, 20, T::D7, s("VL_PROD_UNID_PROD"))
             .campo(79, 15, T::D2, s("VL_TOT_PROD_OBSOLE"))
             .pronto();

    r << MontaLayout(s("13"), 133, s("ITEM_DI_PE_MEN"))
             .ateTamanho()
             .tipoRegistro()
             .campo(3, 10, T::N, s("NR_DI")).zerosVazio()
             .campo(13, 15, T::N, s("NR_DI_ANTIGA")).zerosVazio()
             .campo(28, 3, T::N, s("NR_ADICAO_DI"))
             .campo(31, 2, T::N, s("NR_ITEM_ADICAO"))
             .campo(33, 1, T::X, s("IND_DL_288_67"))
             .campo(34, 1, T::X, s("IND_OBSOLE_RESIDUO"))
             .campo(35, 14, T::D5, s("QT_PROD_UNID_PROD"))
             .campo(49, 20, T::D7, s("VL_PROD_UNID_PROD"), s("VL_PROD_UNID_PROD"), s("ITEM_IMPORT_288_PE_MEN"))
             .campo(69, 3, T::N, s("CD_MOEDA_NEG"), s("CD_MOEDA_NEG"), s("ITEM_IMPORT_288_PE_MEN")).zerosVazio()
             .campo(72, 20, T::D7, s("VL_FRETE_UNID_INT"), s("VL_FRETE_UNID_INT"), s("ITEM_IMPORT_288_PE_MEN"))
             .campo(92, 3, T::N, s("CD_MOEDA_FRETE"), s("CD_MOEDA_FRETE"), s("ITEM_IMPORT_288_PE_MEN")).zerosVazio()
             .campo(95, 20, T::D7, s("VL_SEGURO_UNID_INT"), s("VL_SEGURO_UNID_INT"), s("ITEM_IMPORT_288_PE_MEN"))
             .campo(115, 3, T::N, s("CD_MOEDA_SEGURO"), s("CD_MOEDA_SEGURO"), s("ITEM_IMPORT_288_PE_MEN")).zerosVazio()
             .campo(118, 15, T::D2, s("VL_TOT_PROD_OBSOLE"), s("VL_TOT_PROD_OBSOLE"), s("ITEM_IMPORT_288_PE_MEN"))
             .campo(133, 1, T::X, s("IND_SUSP_PIS_COFINS"))
             .pronto();

    r << MontaLayout(s("14"), 114, s("ITEM_DSI_PE_MEN"))
             .ateTamanho()
             .tipoRegistro()
             .campo(3, 10, T::N, s("NR_DSI")).zerosVazio()
             .campo(13, 15, T::N, s("NR_DSI_ANTIGA")).zerosVazio()
             .campo(28, 3, T::N, s("NR_BEM"))
             .campo(31, 14, T::D5, s("QT_PROD_UNID_PROD"))
             .campo(45, 20, T::D7, s("VL_PROD_UNID_PROD"))
             .campo(65, 3, T::N, s("CD_MOEDA_NEG"))
             .campo(68, 20, T::D7, s("VL_FRETE_UNID_INT"))
             .campo(88, 3, T::N, s("CD_MOEDA_FRETE"))
             .campo(91, 20, T::D7, s("VL_SEGURO_UNID_INT"))
             .campo(111, 3, T::N, s("CD_MOEDA_SEGURO"))
             .campo(114, 1, T::X, s("IND_SUSP_PIS_COFINS"))
             .pronto();

    r << MontaLayout(s("21"), 198, s("DESTINO_ITEM_VRT_MEN"))
             .tipoRegistro()
             .zeros(3, 3)
             .campo(6, 1, T::N, s("CD_LOCAL_DESTINO"))
             // NR_DCRE_DCR of a DCR-E (type "1"), else zeros.
             .campo(7, 10, T::N, s("NR_DCRE"), s("NR_DCRE_DCR"), s("ITEM_VRT_MEN_PI_COM_PPB")).semZerosEsquerda()
             .campo(17, 15, T::X, s("CD_INT_PRODUTO"), s("CD_INT_PRODUTO"), s("ITEM_VRT_MEN")).aparado()
             // NR_DCRE_DCR of a DCR (type "2"), else zeros.
             .campo(32, 9, T::N, s("NR_DCR"), s("NR_DCRE_DCR"), s("ITEM_VRT_MEN_PI_COM_PPB")).semZerosEsquerda()
             .campo(41, 45, T::X, s("NM_INT_PRODUTO"), s("NM_INT_PRODUTO"), s("ITEM_VRT_MEN"))
             .campo(86, 20, T::D7, s("VL_II_UNIT_DOLAR"))
             .campo(106, 5, T::D2, s("PC_COEF_REDUCAO_II"))
             .zeros(111, 14)
             .campo(125, 14, T::D5, s("QT_PROD_LOC_DEST"))
             .campo(139, 20, T::X, s("NM_UNID_MED_DEST")).aparado()
             .campo(159, 20, T::D7, s("VL_PIS"))
             .campo(179, 20, T::D7, s("VL_COFINS"))
             .pronto();

    MontaLayout r31(s("31"), 187, s("ITEM_VRT_MEN"));
    r31.semFimDeLinha()
        .tipoRegistro()
        .zeros(3, 3)
        .campo(6, 15, T::X, s("CD_INT_PRODUTO")).aparado()
        .campo(21, 45, T::X, s("NM_INT_PRODUTO"))
        .campo(66, 20, T::X, s("NM_UNID_MED_PROD")).aparado()
        .campo(86, 8, T::N, s("CD_NCM_PRODUTO"))
        .zeros(94, 14)
        .zeros(108, 20);
    for (int d = 1; d <= 4; ++d) {
        const int p = 128 + 15 * (d - 1);
        r31.fixo(p, 1, QString::number(d), s("CD_LOCAL_DESTINO_") + QString::number(d))
            .campo(p + 1, 14, T::D5, s("QT_PROD_LOC_DEST_") + QString::number(d), s("QT_PROD_LOC_DEST"),
                   s("DESTINO_ITEM_VRT_MEN"));
    }
    r << r31.pronto();

    r << MontaLayout(s("32"), 122, s("INSUMO_ITEM_VRT_MEN"))
             .semFimDeLinha()
             .tipoRegistro()
             .zeros(3, 3)
             .campo(6, 15, T::X, s("CD_INT_PRODUTO"), s("CD_INT_PRODUTO"), s("ITEM_VRT_MEN")).aparado()
             .campo(21, 15, T::X, s("CD_INT_INSUMO")).aparado()
             .campo(36, 8, T::N, s("CD_NCM_INSUMO"))
             .campo(44, 45, T::X, s("NM_INT_INSUMO"))
             .campo(89, 20, T::X, s("NM_UNID_MED_INSUMO")).aparado()
             .campo(109, 14, T::D5, s("QT_INSUMO_POR_PROD"))
             .pronto();

    r << MontaLayout(s("33"), 565, s("JUST_DIF_ALIQ_INS_VRT_MEN"))
             .tipoRegistro()
             .zeros(3, 3)
             .campo(6, 15, T::X, s("CD_INT_INSUMO"), s("CD_INT_INSUMO"), s("INSUMO_ITEM_VRT_MEN")).aparado()
             .campo(21, 14, T::D5, s("QT_TOT_INS_EST"), s("QT_TOT_INS_EST"), s("INSUMO_VRT"))
             .campo(35, 1, T::N, s("CD_LOCAL_DESTINO"), s("CD_LOCAL_DESTINO"), s("TOT_INSUMO_CONSOLIDADO"))
             .campo(36, 253, T::X, s("JUST_II_DIF_TEC")).aparado()
             .campo(289, 5, T::D2, s("ALIQ_II_DIF_TEC"))
             .campo(294, 253, T::X, s("JUST_IPI_DIF_TIPI")).aparado()
             .campo(547, 5, T::D2, s("ALIQ_IPI_DIF_TIPI"))
             .campo(552, 14, T::D5, s("QT_TOT_INS_POR_LOC"), s("QT_TOT_INS_POR_LOC"), s("TOT_INSUMO_CONSOLIDADO"))
             .pronto();

    r << MontaLayout(s("34"), 93, s("ITEM_NFA_INS_MEN"))
             .tipoRegistro()
             .campo(3, 14, T::N, s("NR_CNPJ_FORNECEDOR"))
             .campo(17, 5, T::X, s("NR_SERIE_NF_AQUIS"))
             .campo(22, 6, T::N, s("NR_NF_AQUIS"))
             .campo(28, 3, T::N, s("NR_ITEM_NF_AQUIS"))
             .campo(31, 8, T::DT, s("DT_EMISS_NF_AQUIS"))
             .campo(39, 4, T::N, s("CD_CFOP_NF_AQUIS")).semZerosEsquerda()
             .campo(43, 1, T::X, s("IND_DL_288_67"))
             .campo(44, 14, T::D5, s("QT_INSUMO_UNID_INS"))
             .campo(58, 20, T::D7, s("VL_INSUMO_UNID_INS"))
             .campo(78, 15, T::X, s("CD_INT_INSUMO")).aparado()
             .campo(93, 1, T::N, s("CD_LOCAL_DESTINO"))
             .pronto();

    r << MontaLayout(s("35"), 133, s("ITEM_DI_INS_MEN"))
             .ateTamanho()
             .tipoRegistro()
             .campo(3, 10, T::N, s("NR_DI"))
             .campo(13, 15, T::N, s("NR_DI_ANTIGA"))
             .campo(28, 3, T::N, s("NR_ADICAO_DI"))
             .campo(31, 2, T::N, s("NR_ITEM_ADICAO"))
             .campo(33, 1, T::X, s("IND_DL_288_67"))
             .campo(34, 14, T::D5, s("QT_INSUMO_UNID_INS"))
             .campo(48, 20, T::D7, s("VL_INSUMO_UNID_INS"), s("VL_INSUMO_UNID_INS"), s("ITEM_IMPORT_288_INS_MEN"))
             .campo(68, 3, T::N, s("CD_MOEDA_NEG"), s("CD_MOEDA_NEG"), s("ITEM_IMPORT_288_INS_MEN"))
             .campo(71, 20, T::D7, s("VL_FRETE_UNID_INT"), s("VL_FRETE_UNID_INT"), s("ITEM_IMPORT_288_INS_MEN"))
             .campo(91, 3, T::N, s("CD_MOEDA_FRETE"), s("CD_MOEDA_FRETE"), s("ITEM_IMPORT_288_INS_MEN"))
             .campo(94, 20, T::D7, s("VL_SEGURO_UNID_INT"), s("VL_SEGURO_UNID_INT"), s("ITEM_IMPORT_288_INS_MEN"))
             .campo(114, 3, T::N, s("CD_MOEDA_SEGURO"), s("CD_MOEDA_SEGURO"), s("ITEM_IMPORT_288_INS_MEN"))
             .campo(117, 15, T::X, s("CD_INT_INSUMO")).aparado()
             .campo(132, 1, T::N, s("CD_LOCAL_DESTINO"))
             .campo(133, 1, T::X, s("IND_SUSP_PIS_COFINS"))
             .pronto();

    r << MontaLayout(s("36"), 130, s("ITEM_DSI_INS_MEN"))
             .ateTamanho()
             .tipoRegistro()
             .campo(3, 10, T::N, s("NR_DSI"))
             .campo(13, 15, T::N, s("NR_DSI_ANTIGA"))
             .campo(28, 3, T::N, s("NR_BEM"))
             .campo(31, 14, T::D5, s("QT_INSUMO_UNID_INS"))
             .campo(45, 15, T::X, s("CD_INT_INSUMO")).aparado()
             .campo(60, 1, T::N, s("CD_LOCAL_DESTINO"))
             .campo(61, 20, T::D7, s("VL_PROD_UNID_PROD"))
             .campo(81, 3, T::N, s("CD_MOEDA_NEG"))
             .campo(84, 20, T::D7, s("VL_FRETE_UNID_INT"))
             .campo(104, 3, T::N, s("CD_MOEDA_FRETE"))
             .campo(107, 20, T::D7, s("VL_SEGURO_UNID_INT"))
             .campo(127, 3, T::N, s("CD_MOEDA_SEGURO"))
             .campo(130, 1, T::X, s("IND_SUSP_PIS_COFINS"))
             .pronto();

    r << MontaLayout(s("41"), 184, s("ITEM_VRT_MEN"))
             .tipoRegistro()
             .zeros(3, 3)
             .campo(6, 8, T::N, s("CD_NCM_PRODUTO"))
             .campo(14, 15, T::X, s("CD_INT_PRODUTO")).aparado()
             .campo(29, 45, T::X, s("NM_INT_PRODUTO"))
             .campo(74, 20, T::X, s("NM_UNID_MED_PROD")).aparado()
             .zeros(94, 14)
             .zeros(108, 14)
             .zeros(122, 20)
             .campo(142, 15, T::D2, s("VL_PROD_UNID_PROD"))
             .campo(157, 14, T::D5, s("QT_PROD_UNID_PROD"))
             .campo(171, 14, T::D5, s("QT_PROD_UNID_EST"))
             .pronto();
    return r;
}

}  // namespace LayoutTabelas
