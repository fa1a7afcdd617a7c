#include "file/EscritaRegistro.h"

#include "file/CabecalhoVrt.h"
#include "file/CursorFilhos.h"
#include "file/GravaVrt.h"
#include "shell/MsgBox.h"

namespace EscritaRegistro {

namespace {
const QString Branco = QStringLiteral(" ");

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
