#include "gui/items/MembroDocumento.h"
#include "gui/items/MembrosFamilia.h"

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

const QString ZeroIgual = t("Este campo não pode ser igual a zero.");
const QString MaiorQueZero = t("Campo deve ser maior que zero.");
const QString Invalido = t("Campo inválido.");
const QString SeisDigitos = t("Informe número de 6 dígitos.");

// The parts of an old document number and the numbers of a DI line, as the monthly editor checks them: the
// zero test first, no bounds on the year.
QMap<Papel, RegraDigitos> regrasMensais()
{
    return {{Papel::Ano, {2, ZeroIgual, Invalido}},
            {Papel::Orgao, {7, ZeroIgual, Invalido}},
            {Papel::Sequencial, {6, ZeroIgual, SeisDigitos}},
            {Papel::Adicao, {0, ZeroIgual, Invalido, -1, -1, false, 3}},
            {Papel::ItemAdicao, {0, ZeroIgual, Invalido, -1, -1, false, 2}}};
}

// The individual editor: the format test first, and a year of the two-digit years before the electronic DI.
QMap<Papel, RegraDigitos> regrasIndividuais()
{
    return {{Papel::Ano, {2, QString(), Invalido, 50, 96, true}},
            {Papel::Orgao, {7, MaiorQueZero, Invalido, -1, -1, true}},
            {Papel::Sequencial, {6, MaiorQueZero, SeisDigitos, -1, -1, true}},
            {Papel::Adicao, {0, MaiorQueZero, Invalido, -1, -1, true, 3}},
            {Papel::ItemAdicao, {0, MaiorQueZero, QString(), -1, -1, true, 2}}};
}

// What the foreign product's DI is in both editors.
MembroDocumento diProduto(bool individual)
{
    MembroDocumento m;
    m.tipo = TipoDocumento::DI;
    m.origem = Origem::Produto;
    m.individual = individual;
    m.nomes = {{Papel::Sim, t("optPosterior1997_tabProdutoEstrangeiro_DI")},
               {Papel::Nao, t("optAnterior1997_tabProdutoEstrangeiro_DI")},
               {Papel::Numero, t("mskNumDI_PE")},
               {Papel::DecretoLei, t("chkDecretoLei28867_tabProdutoEstrangeiro_DI")},
               {Papel::Obsolescencia, t("chkObsolescenciaouResiduo_tabProdutoEstrangeiro_DI")},
               {Papel::Suspensao, t("chk_Suspensao_DI_TabPE")},
               {Papel::Moeda0, t("txtMoedaDI_PE(0)")},
               {Papel::Moeda1, t("txtMoedaDI_PE(1)")},
               {Papel::Moeda2, t("txtMoedaDI_PE(2)")},
               {Papel::Valor0, t("mskVlUnitMedidaDI_PE(0)")},
               {Papel::Valor1, t("mskVlUnitMedidaDI_PE(1)")},
               {Papel::Valor2, t("mskVlUnitMedidaDI_PE(2)")}};
    m.colunas = {{Papel::Numero, t("NR_DI")},
                 {Papel::Adicao, t("NR_ADICAO_DI")},
                 {Papel::ItemAdicao, t("NR_ITEM_ADICAO")},
                 {Papel::DecretoLei, t("IND_DL_288_67")},
                 {Papel::Obsolescencia, t("IND_OBSOLE_RESIDUO")},
                 {Papel::Suspensao, t("IND_SUSP_PIS_COFINS")},
                 {Papel::Moeda0, t("CD_MOEDA_NEG")},
                 {Papel::Moeda1, t("CD_MOEDA_FRETE")},
                 {Papel::Moeda2, t("CD_MOEDA_SEGURO")}};
    m.colunaNumeroAntiga = t("NR_DI_ANTIGA");
    m.rotulos = {{Papel::Suspensao, t("DI com suspensão de PIS/PASEP e COFINS (Lei n° 10.865/2004)")},
                 {Papel::Obsolescencia, individual ? t("Obsolescência, Resíduo ou Sucata")
                                                   : t("Obsolescência ou Resíduo")}};
    m.tipoDigito = t("DI");
    m.msgNumeroInvalido = t("Número da DI inválido.");
    m.msgNumeroVazio = t("O campo número da DI deve ser preenchido.");
    m.msgNumeroCurto = t("DI incorreta.");
    m.msgAntigaVazia = t("Os campos ano, órgão e seqüencial devem ser preenchidos.");
    m.chaveDuplicado = {Papel::Adicao, Papel::ItemAdicao};
    m.habilitacao = Condicao::DecretoSemObsolescenciaOuSuspensao;
    m.titulosBlocos = {t("Produto"), t("Frete Internacional"), t("Seguro Internacional")};
    m.nomeQuadro = t("fraDI_tabProdutoEstrangeiro");
    m.nomeRotuloQuantidade = t("lblQuantidadeDI_PE");
    m.nomeGrade = t("grdConsultaDI_tabProdutoEstrangeiro");
    return m;
}

MembroDocumento diProdutoMensal()
{
    MembroDocumento m = diProduto(false);
    m.dados = {t("ITEM_DI_PE_MEN"), t("ID_ITEM_DI"), {t("ID_DEST_PRODUTO")},
               {t("NR_DI"), t("NR_DI_ANTIGA"), t("NR_ADICAO_DI"), t("NR_ITEM_ADICAO"), t("IND_DL_288_67"),
                t("IND_OBSOLE_RESIDUO"), t("IND_SUSP_PIS_COFINS"), t("QT_PROD_UNID_PROD")},
               t("ITEM_IMPORT_288_PE_MEN"), t("ID_ITEM_IMP_288"),
               {t("CD_MOEDA_NEG"), t("VL_PROD_UNID_PROD"), t("CD_MOEDA_FRETE"), t("VL_FRETE_UNID_INT"),
                t("CD_MOEDA_SEGURO"), t("VL_SEGURO_UNID_INT"), t("VL_TOT_PROD_OBSOLE")}};
    m.nomes.insert(Papel::Ano, t("txtAnoDI_PE"));
    m.nomes.insert(Papel::Orgao, t("txtOrgaoDI_PE"));
    m.nomes.insert(Papel::Sequencial, t("txtSequencialDI_PE"));
    m.nomes.insert(Papel::Adicao, t("txtAdicaoDI_PE"));
    m.nomes.insert(Papel::ItemAdicao, t("txtItemDI_PE"));
    m.nomes.insert(Papel::Quantidade, t("mskPE(5)"));
    m.nomes.insert(Papel::ValorTotal, t("mskPE(7)"));
    m.colunas.insert(Papel::Quantidade, t("QT_PROD_UNID_PROD"));
    m.colunas.insert(Papel::ValorTotal, t("VL_TOT_PROD_OBSOLE"));
    m.colunas.insert(Papel::Valor0, t("VL_PROD_UNID_PROD"));
    m.colunas.insert(Papel::Valor1, t("VL_FRETE_UNID_INT"));
    m.colunas.insert(Papel::Valor2, t("VL_SEGURO_UNID_INT"));
    m.regras = regrasMensais();
    m.msgZeroDecimal = ZeroIgual;
    m.passos = {{Teste::Vazio, Papel::Adicao, t("O campo adição não pode ser nulo.")},
                {Teste::Vazio, Papel::ItemAdicao, t("O campo Item não pode ser nulo.")},
                {Teste::Vazio, Papel::Quantidade, t("O campo quantidade comercial não pode ser nulo.")},
                {Teste::VazioSeAtivo, Papel::ValorTotal, t("O campo valor total não pode ser nulo.")}};
    m.msgDuplicadoEletronica = t("O conjunto DI/Adição/Item já encontra-se incluído.");
    m.msgDuplicadoAntiga = t("O conjunto Ano/Órgão/Seqüencial/Adição/Item já encontra-se incluído.");
    m.msgDuplicadoAlteracao = t("DI já incluída.");
    m.msgSemSelecaoAlterar = t("Inclua um documento ou selecione no grid");
    m.msgSemSelecaoExcluir = t("Inclua um documento ou selecione no grid");
    m.filhaNaInclusao = Condicao::DecretoOuSuspensao;
    m.filhaNaAlteracao = Condicao::DecretoOuSuspensao;
    m.chavesMoeda = {t("produtoPEMensalDIProd"), t("produtoPEMensalDIFI"), t("produtoPEMensalDISI")};
    m.grade = {{t("Código do produto"), t("#produto"), QString(), 110},
               {t("Local de destino"), t("#local"), QString(), 130},
               {t("Nº DI"), t("NR_DI"), t("@@/@@@@@@@-@"), 100},
               {t("Nº DI Antiga"), t("NR_DI_ANTIGA"), QString(), 120},
               {t("Adição"), t("NR_ADICAO_DI"), QString(), 50},
               {t("Item"), t("NR_ITEM_ADICAO"), QString(), 40},
               {t("Quantidade"), t("QT_PROD_UNID_PROD"), t("#,##0.00000"), 110}};
    return m;
}

MembroDocumento diProdutoIndividual()
{
    MembroDocumento m = diProduto(true);
    m.dados = {t("ITEM_DI_PE_IND"), t("ID_ITEM_DI"), {t("ID_ITEM")},
               {t("NR_DI"), t("NR_ADICAO_DI"), t("NR_ITEM_ADICAO"), t("NR_DI_ANTIGA"), t("IND_DL_288_67"),
                t("IND_OBSOLE_RESIDUO"), t("IND_SUSP_PIS_COFINS"), t("QT_PROD_UNID_NFS")},
               t("ITEM_IMPORT_288_PE"), t("ID_ITEM_IMP_288"),
               {t("CD_MOEDA_NEG"), t("VL_INS_PROD_UNID_NFS"), t("CD_MOEDA_FRETE"), t("VL_FRETE_UNID_NFS"),
                t("CD_MOEDA_SEGURO"), t("VL_SEGURO_UNID_NFS")}};
    m.nomes.insert(Papel::Ano, t("txtProdutoEstrangeiroDI(0)"));
    m.nomes.insert(Papel::Orgao, t("txtProdutoEstrangeiroDI(1)"));
    m.nomes.insert(Papel::Sequencial, t("txtProdutoEstrangeiroDI(2)"));
    m.nomes.insert(Papel::Adicao, t("txtProdutoEstrangeiroDI(4)"));
    m.nomes.insert(Papel::ItemAdicao, t("txtProdutoEstrangeiroDI(5)"));
    m.nomes.insert(Papel::Quantidade, t("mskProdutoEstrangeiroDI(0)"));
    m.colunas.insert(Papel::Quantidade, t("QT_PROD_UNID_NFS"));
    m.colunas.insert(Papel::Valor0, t("VL_INS_PROD_UNID_NFS"));
    m.colunas.insert(Papel::Valor1, t("VL_FRETE_UNID_NFS"));
    m.colunas.insert(Papel::Valor2, t("VL_SEGURO_UNID_NFS"));
    m.regras = regrasIndividuais();
    m.msgZeroDecimal = MaiorQueZero;
    m.passos = {{Teste::Vazio, Papel::Adicao, t("O campo número da adição deve ser preenchido.")},
                {Teste::Vazio, Papel::ItemAdicao, t("O campo número do item da adição deve ser preenchido.")},
                {Teste::Vazio, Papel::Quantidade, t("O campo quantidade comercial não pode ser nulo.")}};
    m.msgDuplicadoEletronica = t("DI já incluída.");
    m.msgDuplicadoAntiga = t("DI já incluída.");
    m.msgSemPai = t("Não foi escolhido produto para documento de origem.");
    m.msgSemSelecaoAlterar = t("Inclua ou selecione um documento.");
    m.msgSemSelecaoExcluir = t("Inclua ou selecione um documento.");
    m.filhaNaInclusao = Condicao::DecretoSemObsolescenciaOuSuspensao;
    m.filhaNaAlteracao = Condicao::DecretoSemObsolescenciaOuSuspensao;
    m.chavesMoeda = {t("produtoPEDIProd"), t("produtoPEDIFI"), t("produtoPEDISI")};
    m.grade = {{t("Item"), t("#item"), QString(), 40},
               {t("Código do Produto"), t("#produto"), QString(), 110},
               {t("Núm. DI"), t("NR_DI"), t("@@/@@@@@@@-@"), 100},
               {t("Núm. DI Antiga"), t("NR_DI_ANTIGA"), QString(), 120},
               {t("Adição"), t("NR_ADICAO_DI"), QString(), 50},
               {t("Item DI"), t("NR_ITEM_ADICAO"), QString(), 50}};
    return m;
}

// What the input's DI is in both editors: no obsolescence; the child row of values only with the Decreto-Lei when
// a line is included, with the Decreto-Lei or the suspension when it is changed.
MembroDocumento diInsumo(bool individual)
{
    MembroDocumento m;
    m.tipo = TipoDocumento::DI;
    m.origem = Origem::Insumo;
    m.individual = individual;
    m.nomes = {{Papel::Sim, t("optPosterior1997_tabPIsemPPB_DI")},
               {Papel::Nao, t("optAnterior1997_tabPIsemPPB_DI")},
               {Papel::Numero, t("mskNumDI_PIsemPPBDI")},
               {Papel::Ano, t("txtPIsemPPBDI(1)")},
               {Papel::Orgao, t("txtPIsemPPBDI(2)")},
               {Papel::Sequencial, t("txtPIsemPPBDI(3)")},
               {Papel::Adicao, t("txtPIsemPPBDI(4)")},
               {Papel::ItemAdicao, t("txtPIsemPPBDI(5)")},
               {Papel::Quantidade, individual ? t("mskPIsemPPBDI(0)") : t("mskPIsemPPB(7)")},
               {Papel::DecretoLei, t("chkDecretoLei28867_tabPIsemPPB_DI")},
               {Papel::Suspensao, t("chk_Suspensao_DI_TabPIsemPPB")},
               {Papel::Moeda0, t("txtMoedaDI_PIsemPPB(0)")},
               {Papel::Moeda1, t("txtMoedaDI_PIsemPPB(1)")},
               {Papel::Moeda2, t("txtMoedaDI_PIsemPPB(2)")},
               {Papel::Valor0, t("mskVlUnitMedidaDI_PIsemPPB(0)")},
               {Papel::Valor1, t("mskVlUnitMedidaDI_PIsemPPB(1)")},
               {Papel::Valor2, t("mskVlUnitMedidaDI_PIsemPPB(2)")}};
    m.colunas = {{Papel::Numero, t("NR_DI")},
                 {Papel::Adicao, t("NR_ADICAO_DI")},
                 {Papel::ItemAdicao, t("NR_ITEM_ADICAO")},
                 {Papel::DecretoLei, t("IND_DL_288_67")},
                 {Papel::Suspensao, t("IND_SUSP_PIS_COFINS")},
                 {Papel::Moeda0, t("CD_MOEDA_NEG")},
                 {Papel::Moeda1, t("CD_MOEDA_FRETE")},
                 {Papel::Moeda2, t("CD_MOEDA_SEGURO")}};
    m.colunaNumeroAntiga = t("NR_DI_ANTIGA");
    m.rotulos = {{Papel::Suspensao, t("DI com suspensão de PIS/PASEP e COFINS (Lei n° 10.865/2004)")}};
    m.tipoDigito = t("DI");
    m.msgNumeroInvalido = t("Número da DI inválido.");
    m.msgNumeroVazio = t("O campo número da DI deve ser preenchido.");
    m.msgAntigaVazia = t("Os campos ano, órgão e seqüencial devem ser preenchidos.");
    m.chaveDuplicado = {Papel::Adicao, Papel::ItemAdicao};
    m.habilitacao = Condicao::DecretoOuSuspensao;
    m.filhaNaInclusao = Condicao::Decreto;
    m.filhaNaAlteracao = Condicao::DecretoOuSuspensao;
    m.titulosBlocos = {t("Insumo"), t("Frete Internacional"), t("Seguro Internacional")};
    m.nomeQuadro = t("fraDI_tabPIsemPPB");
    m.nomeRotuloQuantidade = t("lblQuantidadeDI_PIsemPPB");
    m.nomeGrade = t("grdConsultaDI_tabPIsemPPB");
    return m;
}

MembroDocumento diInsumoMensal()
{
    MembroDocumento m = diInsumo(false);
    m.dados = {t("ITEM_DI_INS_MEN"), t("ID_ITEM_DI"), {t("ID_VRT_MICRO"), t("CD_INT_INSUMO"), t("CD_LOCAL_DESTINO")},
               {t("NR_DI"), t("NR_DI_ANTIGA"), t("NR_ADICAO_DI"), t("NR_ITEM_ADICAO"), t("IND_DL_288_67"),
                t("IND_SUSP_PIS_COFINS"), t("QT_INSUMO_UNID_INS")},
               t("ITEM_IMPORT_288_INS_MEN"), t("ID_ITEM_IMP_288"),
               {t("CD_MOEDA_NEG"), t("VL_INSUMO_UNID_INS"), t("CD_MOEDA_FRETE"), t("VL_FRETE_UNID_INT"),
                t("CD_MOEDA_SEGURO"), t("VL_SEGURO_UNID_INT")}};
    m.colunas.insert(Papel::Quantidade, t("QT_INSUMO_UNID_INS"));
    m.colunas.insert(Papel::Valor0, t("VL_INSUMO_UNID_INS"));
    m.colunas.insert(Papel::Valor1, t("VL_FRETE_UNID_INT"));
    m.colunas.insert(Papel::Valor2, t("VL_SEGURO_UNID_INT"));
    m.regras = regrasMensais();
    m.msgZeroDecimal = ZeroIgual;
    m.msgNumeroCurto = t("Di incorreta!");
    m.passos = {{Teste::Vazio, Papel::Adicao, t("O campo adição não pode ser nulo.")},
                  {Teste::Vazio, Papel::ItemAdicao, t("O campo item não pode ser nulo.")},
                  {Teste::Vazio, Papel::Quantidade, t("O campo quantidade comercial não pode ser nulo.")}};
    m.msgDuplicadoEletronica = t("O conjunto DI/Adição/Item já encontra-se incluído.");
    m.msgDuplicadoAntiga = t("O conjunto Ano/Órgão/Seqüencial/Adição/Item já encontra-se incluído.");
    m.msgDuplicadoAlteracao = t("DI já incluída.");
    m.msgSemSelecaoAlterar = t("Inclua um documento ou selecione no grid");
    m.msgSemSelecaoExcluir = t("Inclua um documento ou selecione no grid");
    m.chavesMoeda = {t("InsumoPISemPPBMensalDIIns"), t("InsumoPISemPPBMensalDIFI"), t("InsumoPISemPPBMensalDISI")};
    m.grade = {{t("Código do insumo"), t("#produto"), QString(), 110},
               {t("Local de destino"), t("#local"), QString(), 130},
               {t("Nº DI"), t("NR_DI"), t("@@/@@@@@@@-@"), 100},
               {t("Nº DI Antiga"), t("NR_DI_ANTIGA"), QString(), 120},
               {t("Adição"), t("NR_ADICAO_DI"), QString(), 50},
               {t("Item"), t("NR_ITEM_ADICAO"), QString(), 40},
               {t("Quantidade"), t("QT_INSUMO_UNID_INS"), t("#,##0.00000"), 110}};
    return m;
}

MembroDocumento diInsumoIndividual()
{
    MembroDocumento m = diInsumo(true);
    m.dados = {t("ITEM_DI_INS_IND"), t("ID_ITEM_DI"), {t("ID_INSUMO")},
               {t("NR_DI"), t("NR_ADICAO_DI"), t("NR_ITEM_ADICAO"), t("NR_DI_ANTIGA"), t("IND_DL_288_67"),
                t("IND_SUSP_PIS_COFINS"), t("QT_INSUMO_UNID_NFS")},
               t("ITEM_IMPORT_288_INS"), t("ID_ITEM_IMP_288"),
               {t("CD_MOEDA_NEG"), t("VL_INS_PROD_UNID_NFS"), t("CD_MOEDA_FRETE"), t("VL_FRETE_UNID_NFS"),
                t("CD_MOEDA_SEGURO"), t("VL_SEGURO_UNID_NFS")}};
    m.colunas.insert(Papel::Quantidade, t("QT_INSUMO_UNID_NFS"));
    m.colunas.insert(Papel::Valor0, t("VL_INS_PROD_UNID_NFS"));
    m.colunas.insert(Papel::Valor1, t("VL_FRETE_UNID_NFS"));
    m.colunas.insert(Papel::Valor2, t("VL_SEGURO_UNID_NFS"));
    m.regras = regrasIndividuais();
    m.msgZeroDecimal = MaiorQueZero;
    m.passos = {{Teste::Vazio, Papel::Adicao, t("O campo número da adição deve ser preenchido.")},
                  {Teste::Vazio, Papel::ItemAdicao, t("O campo número do item da adição deve ser preenchido.")},
                  {Teste::Vazio, Papel::Quantidade, t("Quantidade deve ser preenchida.")}};
    m.msgDuplicadoEletronica = t("DI já incluída.");
    m.msgDuplicadoAntiga = t("DI já incluída.");
    m.msgSemPai = t("Não foi escolhido insumo para documento de origem.");
    m.msgSemSelecaoAlterar = t("Inclua ou selecione um documento.");
    m.msgSemSelecaoExcluir = t("Inclua ou selecione um documento.");
    m.chavesMoeda = {t("InsumoPISemPPBDIIns"), t("InsumoPISemPPBDIFI"), t("InsumoPISemPPBDISI")};
    m.grade = {{t("Código do Insumo"), t("#produto"), QString(), 110},
               {t("Núm. DI"), t("NR_DI"), t("@@/@@@@@@@-@"), 100},
               {t("Núm. DI Antiga"), t("NR_DI_ANTIGA"), QString(), 120},
               {t("Adição"), t("NR_ADICAO_DI"), QString(), 50},
               {t("Item"), t("NR_ITEM_ADICAO"), QString(), 50}};
    return m;
}

}  // namespace

const QList<MembroDocumento>& MembrosDocumento()
{
    static const QList<MembroDocumento> membros{diProdutoMensal(),           diProdutoIndividual(),
                                                MembrosFamilia::dsiProduto(false), MembrosFamilia::dsiProduto(true),
                                                MembrosFamilia::nfaProduto(false), MembrosFamilia::nfaProduto(true),
                                                diInsumoMensal(),            diInsumoIndividual()};
    return membros;
}

const MembroDocumento* Membro(TipoDocumento tipo, Origem origem, bool individual)
{
    for (const MembroDocumento& m : MembrosDocumento())
        if (m.tipo == tipo && m.origem == origem && m.individual == individual)
            return &m;
    return nullptr;
}
