#include "gui/items/CamposItem.h"

#include "core/lookups/BuscaProduto.h"
#include "core/store/ItensDeclaracao.h"
#include "gui/assistants/DestinosEscolha.h"
#include "gui/assistants/frmAssistNCM.h"
#include "gui/assistants/frmAssistenteCCI.h"
#include "gui/widgets/NcmField.h"

#include <QLineEdit>

namespace CamposItem {

QString MsgZero(bool individual)
{
    return individual ? ZeroMessage::GreaterThanZero : ZeroMessage::NotEqualZero;
}

CampoBloco ncm(const QString& nome, const QString& rotulo, const QString& botao, const QString& chamador,
               const QString& descricao, const QString& unidadeEstatistica, bool individual,
               const QString& coluna, int linha)
{
    CampoBloco c;
    c.nome = nome;
    c.rotulo = rotulo;
    c.tipo = CampoBloco::Ncm;
    c.coluna = coluna;
    c.formato = QStringLiteral("####.##.##");
    c.linha = linha;
    c.botao = botao;
    c.chamador = chamador;
    c.alvos = {descricao, unidadeEstatistica};
    if (individual)
        c.ajusta = [](QWidget* w, ExecutorBloco&) { static_cast<NcmField*>(w)->setClearCodeWhenNotFound(true); };
    return c;
}

CampoBloco produto(const QString& nome, const QString& rotulo, const QString& botao, const QString& chamador,
                   const QString& descricao, const QString& coluna, int linha)
{
    CampoBloco c;
    c.nome = nome;
    c.rotulo = rotulo;
    c.tipo = CampoBloco::Produto;
    c.coluna = coluna;
    c.largura = 15;
    c.linha = linha;
    c.botao = botao;
    c.chamador = chamador;
    c.alvos = {descricao};
    return c;
}

CampoBloco descricao(const QString& nome, const QString& rotulo, const QString& coluna, int largura, int linha)
{
    CampoBloco c;
    c.nome = nome;
    c.rotulo = rotulo;
    c.tipo = CampoBloco::Texto;
    c.coluna = coluna;
    c.largura = largura;
    c.linha = linha;
    c.somenteLeitura = true;
    return c;
}

CampoBloco unidade(const QString& nome, const QString& rotulo, const QString& coluna, int linha)
{
    CampoBloco c;
    c.nome = nome;
    c.rotulo = rotulo;
    c.tipo = CampoBloco::Lista;
    c.coluna = coluna;
    c.linha = linha;
    c.larguraTela = 120;
    return c;
}

CampoBloco local(const QString& nome, const QString& rotulo, const QString& coluna, int linha)
{
    CampoBloco c = unidade(nome, rotulo, coluna, linha);
    c.larguraTela = 150;
    return c;
}

CampoBloco valor(const QString& nome, const QString& rotulo, DecimalField::Family familia, const QString& formato,
                 const QString& coluna, const QString& msgZero, int linha)
{
    CampoBloco c;
    c.nome = nome;
    c.rotulo = rotulo;
    c.tipo = CampoBloco::Decimal;
    c.familia = familia;
    c.formato = formato;
    c.coluna = coluna;
    c.msgZero = msgZero;
    c.linha = linha;
    return c;
}

CampoBloco numeroItem(const QString& nome, const QString& coluna, int linha)
{
    CampoBloco c;
    c.nome = nome;
    c.rotulo = QStringLiteral("Item:");
    c.tipo = CampoBloco::Digitos;
    c.coluna = coluna;
    c.largura = 3;
    c.msgZero = ZeroMessage::GreaterThanZero;
    c.linha = linha;
    c.larguraTela = 50;
    return c;
}

QList<OpcaoLista> OpcoesUnidade()
{
    QList<OpcaoLista> l;
    for (const QString& u : ItensDeclaracao::Unidades())
        l.append({u, u});
    return l;
}

QList<OpcaoLista> OpcoesLocal()
{
    QList<OpcaoLista> l;
    for (const QStringList& r : ItensDeclaracao::Locais())
        l.append({r.at(1), r.at(0)});
    return l;
}

RegraBloco vazio(const QString& campo, const QString& msg, const QString& foco)
{
    return {[campo, msg](const ExecutorBloco& b, Operacao) {
                return b.valor(campo).trimmed().isEmpty() ? msg : QString();
            },
            foco.isEmpty() ? campo : foco};
}

RegraBloco produtoValido(const QString& campo, const QString& descricao, const QString& foco, const QString& msg)
{
    return {[campo, descricao, msg](const ExecutorBloco& b, Operacao) {
                const QString nome = modVRTPLN::BuscaProduto(b.valor(campo).trimmed(), true);
                if (nome.isEmpty())
                    return msg;
                if (auto* d = qobject_cast<QLineEdit*>(b.campo(descricao)))
                    d->setText(nome);
                return QString();
            },
            foco};
}

QList<RegraBloco> regrasProduto(const QString& ncm, const QString& descricaoNcm, const QString& botaoNcm,
                                const QString& codigo, const QString& descricao, const QString& botaoProduto)
{
    return {vazio(ncm, QStringLiteral("O campo número da NCM deve ser preenchido."), botaoNcm),
            vazio(descricaoNcm, QStringLiteral("O campo número da NCM não possui um código válido."), botaoNcm),
            vazio(codigo, QStringLiteral("O campo código do produto deve ser selecionado."), botaoProduto),
            produtoValido(codigo, descricao, botaoProduto)};
}

RegraBloco unidadeEscolhida(const QString& campo)
{
    return vazio(campo, QStringLiteral("O campo unidade de medida comercial deve ser selecionado."));
}

RegraBloco numeroItemLivre(const QString& campo, const QString& colunaGrade)
{
    return {[campo, colunaGrade](const ExecutorBloco& b, Operacao op) {
                const QString numero = b.valor(campo).trimmed();
                if (op == Operacao::Alterar && numero == b.valorEscolhido(colunaGrade).trimmed())
                    return QString();
                return ItensDeclaracao::NumeroItemUsado(b.pai().toLongLong(), numero)
                           ? QStringLiteral("O número de item informado já foi incluído anteriormente.")
                           : QString();
            },
            campo};
}

RegraBloco so(Operacao op, RegraBloco regra)
{
    auto teste = regra.teste;
    regra.teste = [op, teste](const ExecutorBloco& b, Operacao agora) { return agora == op ? teste(b, agora) : QString(); };
    return regra;
}

void ligaEscolhas(DescricaoBloco& d)
{
    d.escolhe = [](const CampoBloco& c, ExecutorBloco& b) {
        QWidget* janela = b.campo(c.nome)->window();
        if (c.tipo == CampoBloco::Ncm)
            frmAssistNCM::Escolhe(c.chamador, janela);
        else
            frmAssistenteCCI::Escolhe(c.chamador, janela);
    };
}

void registraDestinos(ExecutorBloco& bloco)
{
    for (const CampoBloco& c : bloco.descricao().campos) {
        if (c.chamador.isEmpty())
            continue;
        auto* codigo = qobject_cast<QLineEdit*>(bloco.campo(c.nome));
        if (c.tipo == CampoBloco::Ncm)
            DestinosEscolha::ncm().registra(c.chamador, codigo,
                                            qobject_cast<QLineEdit*>(bloco.campo(c.alvos.value(1))), &bloco);
        else
            DestinosEscolha::produto().registra(c.chamador, codigo,
                                                qobject_cast<QLineEdit*>(bloco.campo(c.alvos.value(0))), &bloco);
    }
}

}  // namespace CamposItem
