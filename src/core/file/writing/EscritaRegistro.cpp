#include "core/file/writing/EscritaRegistro.h"

#include "core/file/writing/CabecalhoVrt.h"
#include "core/file/writing/CursorFilhos.h"
#include "core/file/writing/GravaVrt.h"
#include "core/session/MsgBox.h"

namespace EscritaRegistro {

namespace {
const QString Branco = QStringLiteral(" ");
const QString S = QStringLiteral("S");
const QString N = QStringLiteral("N");

template <typename Fonte>
void poeDe(LinhaRegistro& r, const Fonte& texto, const Colunas& colunas)
{
    for (const Coluna& c : colunas) {
        const QString valor = texto(c.coluna);
        r.poe(c.campo, c.brancoVazio && valor == Branco ? QString() : valor);
    }
}
}  // namespace

Colunas valoresImportacao(const QString& campoValor, const QString& unidade, int primeira)
{
    return {{campoValor, primeira},
            {QStringLiteral("CD_MOEDA_NEG"), primeira + 1},
            {QStringLiteral("VL_FRETE_UNID_") + unidade, primeira + 2},
            {QStringLiteral("CD_MOEDA_FRETE"), primeira + 3},
            {QStringLiteral("VL_SEGURO_UNID_") + unidade, primeira + 4},
            {QStringLiteral("CD_MOEDA_SEGURO"), primeira + 5}};
}

void poe(LinhaRegistro& r, const CursorFilhos& x, const Colunas& colunas)
{
    poeDe(r, [&x](int i) { return x.texto(i); }, colunas);
}

void poe(LinhaRegistro& r, const QStringList& x, const Colunas& colunas)
{
    poeDe(r, [&x](int i) { return x.at(i); }, colunas);
}

void escreveRegistros12(SaidaVrt& saida, const LayoutRegistro& layout, CursorFilhos& x, qint64 pai,
                        const NomesProduto& nomes)
{
    enum { Cnpj = 1, Serie, Numero, ItemNf, Data, Cfop, Dl288, Obsoleto, Quantidade, Valor, Total };
    const Colunas campos{{QStringLiteral("NR_CNPJ_FORNECEDOR"), Cnpj},
                         {QStringLiteral("NR_SERIE_NF_AQUIS"), Serie},
                         {QStringLiteral("NR_NF_AQUIS"), Numero},
                         {QStringLiteral("NR_ITEM_NF_AQUIS"), ItemNf},
                         {QStringLiteral("DT_EMISS_NF_AQUIS"), Data},
                         {QStringLiteral("CD_CFOP_NF_AQUIS"), Cfop},
                         {QStringLiteral("IND_DL_288_67"), Dl288},
                         {QStringLiteral("IND_OBSOLE_RESIDUO"), Obsoleto},
                         {nomes.quantidade, Quantidade, nomes.quantidadeBrancoVazio}};
    for (; x.de(pai); x.avanca()) {
        LinhaRegistro r(layout);
        poe(r, x, campos);
        if (x.texto(Dl288) == S && x.texto(Obsoleto) == N)
            r.poe(nomes.valorNota, x.texto(Valor));
        if (x.texto(Obsoleto) == S)
            r.poe(nomes.totalObsoleto, x.texto(Total));
        saida.escreve(r);
    }
}

void escreveRegistros14(SaidaVrt& saida, const LayoutRegistro& layout, CursorFilhos& x, qint64 pai,
                        const NomesProduto& nomes)
{
    enum { Numero = 1, Antiga, Bem, Quantidade, Valor, Suspensao = Valor + 6 };
    const Colunas campos{{QStringLiteral("NR_DSI"), Numero},
                         {QStringLiteral("NR_DSI_ANTIGA"), Antiga},
                         {QStringLiteral("NR_BEM"), Bem},
                         {nomes.quantidade, Quantidade}};
    static const Colunas valores =
        valoresImportacao(QStringLiteral("VL_PROD_UNID_PROD"), QStringLiteral("INT"), Valor);
    for (; x.de(pai); x.avanca()) {
        LinhaRegistro r(layout);
        poe(r, x, campos);
        // The import values only under suspension of PIS/COFINS, in both declarations.
        if (x.texto(Suspensao) == S)
            poe(r, x, valores);
        r.poe(QStringLiteral("IND_SUSP_PIS_COFINS"), x.texto(Suspensao));
        saida.escreve(r);
    }
}

void gravaArquivo(const CabecalhoVrt& cabecalho, GravacaoVrt& run,
                  const std::function<void(SaidaVrt&)>& escreveItens, MensagemDoErro mensagemDoErro)
{
    run.erroGravacao = false;
    SaidaVrt saida;
    try {
        saida.abre(run.caminhoArquivo(cabecalho.idVrtMicro));
        cabecalho.escreve(saida, run.origem());
        escreveItens(saida);
        saida.fecha();
    } catch (const SaidaVrt::Erro& erro) {
        saida.abandona();
        const QString texto = mensagemDoErro(erro);
        if (texto.isEmpty())
            return;
        MsgBox(texto, Msg::OKOnly | Msg::Critical);
        run.erroGravacao = true;
    }
}

}  // namespace EscritaRegistro
