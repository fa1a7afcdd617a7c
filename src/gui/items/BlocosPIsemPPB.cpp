#include "gui/items/BlocosPIsemPPB.h"

#include "core/rules/FormatoNumero.h"
#include "core/session/MsgBox.h"
#include "core/store/ItensDeclaracao.h"
#include "core/store/ItensPIsemPPB.h"
#include "gui/blocks/RegraSaida.h"
#include "gui/items/CamposItem.h"

#include <QCheckBox>
#include <QLineEdit>

using namespace CamposItem;
namespace Itens = ItensPIsemPPB;

namespace BlocosPIsemPPB {

namespace {

const QString Quantidade = QStringLiteral("###,###,##0.00000");
const QString ValorUnitario = QStringLiteral("#,###,###,###,##0.0000000");
const QString FormatoAliquota = QStringLiteral("##0.00");
const QString MascaraNcm = QStringLiteral("@@@@.@@.@@");
const QString MsgNcmVazia = QStringLiteral("O campo número da NCM deve ser preenchido.");
const QString MsgNcmInvalida = QStringLiteral("O campo número da NCM não possui um código válido.");
const QString MsgUnidade = QStringLiteral("O campo unidade de medida comercial deve ser selecionado.");

// The names of the controls, which differ by editor.
struct Nomes {
    bool individual;
    QString ncm, descrNcm, botaoNcm, produto, descrProduto, botaoProduto, chave, unidade;
    // Inputs.
    QString quantidade, marcaII, aliqII, justII, marcaIPI, aliqIPI, justIPI;
};

Nomes nomesProduto(bool individual)
{
    Nomes n;
    n.individual = individual;
    n.ncm = individual ? QStringLiteral("mskPIsemPPBNFS(0)") : QStringLiteral("mskNumNCM_TabPIsemPPB");
    n.descrNcm = individual ? QStringLiteral("txtPIsemPPBNFS(4)") : QStringLiteral("txtDescrNCM_tabPIsemPPB");
    n.botaoNcm = individual ? QStringLiteral("cmdAssistenteNCM_tabPIsemPPB_NFS") : QStringLiteral("cmdAssistenteNCM_tabPIsemPPB_CCI");
    n.produto = QStringLiteral("txtCodProdPIsemPPB");
    n.descrProduto = QStringLiteral("txtDescrProdPIsemPPB");
    n.botaoProduto = individual ? QStringLiteral("cmdAssistenteCClProduto_tabPIsemPPB_NFS")
                                : QStringLiteral("cmdAssistenteCClProduto_tabPIsemPPB_CCI");
    n.chave = individual ? QStringLiteral("produto") : QStringLiteral("produtoPIsemPPBMensal");
    n.unidade = QStringLiteral("cboUnidadePIsemPPB");
    n.quantidade = individual ? QStringLiteral("mskPIsemPPBNFS(1)") : QStringLiteral("mskPIsemPPB(3)");
    return n;
}

Nomes nomesInsumo(bool individual)
{
    Nomes n;
    n.individual = individual;
    n.ncm = individual ? QStringLiteral("mskPIsemPPBNFS(5)") : QStringLiteral("mskNumNCMInsumo");
    n.descrNcm = QStringLiteral("txtDescrNCMInsumo_tabPIsemPPB");
    // No name is given to the input's pickers: theirs follow the product page's, with "Insumo" for "Produto".
    n.botaoNcm = individual ? QStringLiteral("cmdAssistenteNCMInsumo_tabPIsemPPB_NFS")
                            : QStringLiteral("cmdAssistenteNCMInsumo_tabPIsemPPB_CCI");
    n.produto = QStringLiteral("txtCodInsPIsemPPB");
    n.descrProduto = QStringLiteral("txtDescrInsPIsemPPB");
    n.botaoProduto = individual ? QStringLiteral("cmdAssistenteCClInsumo_tabPIsemPPB_NFS")
                                : QStringLiteral("cmdAssistenteCClInsumo_tabPIsemPPB_CCI");
    n.chave = individual ? QStringLiteral("insumo") : QStringLiteral("InsumoPIsemPPBMensal");
    n.unidade = QStringLiteral("cboUnidadeInsumo");
    n.quantidade = individual ? QStringLiteral("mskPIsemPPBNFS(6)") : QStringLiteral("mskPIsemPPB(4)");
    n.marcaII = individual ? QStringLiteral("chk_AliquotaTEC_tabPIsemPPB") : QStringLiteral("chk_Aliquota_tabPIsemPPB");
    n.aliqII = individual ? QStringLiteral("mskPIsemPPBNFS(7)") : QStringLiteral("mskPIsemPPB(5)");
    n.justII = individual ? QStringLiteral("txtPIsemPPBNFS(8)") : QStringLiteral("txtJustifLegalAliqIIPIsemPPB");
    n.marcaIPI = individual ? QStringLiteral("chk_AliquotaTIPI_tabPIsemPPB") : QStringLiteral("chk_Aliquota_tabPIsemPPBTIPI");
    n.aliqIPI = individual ? QStringLiteral("mskPIsemPPBNFS(8)") : QStringLiteral("mskPIsemPPB(6)");
    n.justIPI = individual ? QStringLiteral("txtPIsemPPBNFS(9)") : QStringLiteral("txtJustifLegalAliqIPIPIsemPPB");
    return n;
}

QString aliquota(const QString& v)
{
    return Funcoes::FormataNumero(v.isEmpty() ? QStringLiteral("0") : v, FormatoAliquota);
}

QCheckBox* marca(const ExecutorBloco& b, const QString& nome)
{
    return qobject_cast<QCheckBox*>(b.campo(nome));
}

// The check of a rate: set, its rate and grounds open; unset, both emptied and closed.
CampoBloco marcaAliquota(const QString& nome, const QString& rotulo, const QString& taxa, const QString& justificativa,
                         const QString& coluna, int linha)
{
    CampoBloco c;
    c.nome = nome;
    c.rotulo = rotulo;
    c.tipo = CampoBloco::Marca;
    c.coluna = coluna;
    c.linha = linha;
    c.ajusta = [taxa, justificativa](QWidget* w, ExecutorBloco& b) {
        auto* check = static_cast<QCheckBox*>(w);
        auto aplica = [&b, taxa, justificativa](bool ligada) {
            for (const QString& aberto : {taxa, justificativa}) {
                auto* campo = qobject_cast<QLineEdit*>(b.campo(aberto));
                if (!ligada)
                    campo->clear();
                campo->setEnabled(ligada);
            }
        };
        QObject::connect(check, &QCheckBox::toggled, check, aplica);
        aplica(false);
    };
    return c;
}

CampoBloco justificativa(const QString& nome, const QString& coluna, int linha)
{
    CampoBloco c;
    c.nome = nome;
    c.rotulo = QStringLiteral("Justificativa legal");
    c.tipo = CampoBloco::Texto;
    c.coluna = coluna;
    c.largura = 253;
    c.linha = linha;
    return c;
}

// An empty quantity of an input becomes "0" when it is left, so that the message for zero is the one seen.
void zeroAoSair(QWidget* w, ExecutorBloco&)
{
    auto* campo = static_cast<QLineEdit*>(w);
    aoSair(campo, [campo] {
        if (campo->text().trimmed().isEmpty())
            campo->setText(QStringLiteral("0"));
        return true;
    });
}

RegraBloco regra(std::function<QString(const ExecutorBloco&)> teste, const QString& foco = QString())
{
    return {[teste](const ExecutorBloco& b, Operacao) { return teste(b); }, foco};
}

// Steps 9 and 10 of the product check, on an input's rates (monthly).
QList<RegraBloco> regrasAliquotas(const Nomes& n)
{
    QList<RegraBloco> r;
    const QList<QStringList> impostos{{n.marcaII, n.aliqII, n.justII, QStringLiteral("II")},
                                      {n.marcaIPI, n.aliqIPI, n.justIPI, QStringLiteral("IPI")}};
    for (const QStringList& i : impostos) {
        if (n.individual) {
            const QString msg = QStringLiteral("Os campos alíquota %1 e justificativa legal devem ser preenchidos.").arg(i[3]);
            r << regra([i, msg](const ExecutorBloco& b) {
                return marca(b, i[0])->isChecked() && (b.valor(i[1]).isEmpty() || b.valor(i[2]).trimmed().isEmpty())
                           ? msg
                           : QString();
            }, i[1]);
            continue;
        }
        r << regra([i](const ExecutorBloco& b) {
            return marca(b, i[0])->isChecked() && b.valor(i[1]).isEmpty()
                       ? QStringLiteral("É obrigatório o preenchimento da alíquota de %1.").arg(i[3])
                       : QString();
        }, i[1]);
        r << regra([i](const ExecutorBloco& b) {
            return marca(b, i[0])->isChecked() && b.valor(i[2]).trimmed().isEmpty()
                       ? QStringLiteral("O campo fundamentação legal para a alíquota de %1 deve ser preenchido.").arg(i[3])
                       : QString();
        }, i[2]);
    }
    return r;
}

// An input must look the same in every product of the declaration: NCM, unit and rates of its first row.
QList<RegraBloco> regrasMesmoInsumo(const Nomes& n, std::function<QString()> idVrt)
{
    auto primeiro = [n, idVrt](const ExecutorBloco& b, Operacao op) {
        const qint64 exceto = op == Operacao::Alterar ? b.chaveSelecionada().value(0).toLongLong() : 0;
        const QString codigo = b.valor(n.produto).trimmed();
        return n.individual ? Itens::RegistroInsumoNota(idVrt(), codigo, exceto)
                            : Itens::RegistroInsumoMensal(idVrt(), codigo, exceto);
    };
    const QString fim = QStringLiteral(", que foi informada em outro(s) registro(s) deste insumo.");
    QList<RegraBloco> r;
    r << RegraBloco{[n, primeiro, fim](const ExecutorBloco& b, Operacao op) {
                        const auto p = primeiro(b, op);
                        if (!p || Funcoes::FormataMascara(p->ncm, MascaraNcm) == Funcoes::FormataMascara(b.valor(n.ncm), MascaraNcm))
                            return QString();
                        return QStringLiteral("A NCM informada deve ser igual a ") + Funcoes::FormataMascara(p->ncm, MascaraNcm) + fim;
                    },
                    n.botaoNcm};
    // The focus goes to the product's unit list, on the other page, as it always has in the monthly editor.
    r << RegraBloco{[n, primeiro, fim](const ExecutorBloco& b, Operacao op) {
                        const auto p = primeiro(b, op);
                        if (!p || p->unidade.trimmed() == b.valor(n.unidade).trimmed())
                            return QString();
                        return QStringLiteral("A unidade de medida informada deve ser ") + p->unidade + fim;
                    },
                    n.individual ? n.unidade : QStringLiteral("cboUnidadePIsemPPB")};
    const QList<QStringList> impostos{{n.marcaII, n.aliqII, QStringLiteral("II")},
                                      {n.marcaIPI, n.aliqIPI, QStringLiteral("IPI")}};
    for (const QStringList& i : impostos) {
        r << RegraBloco{[n, i, primeiro, fim](const ExecutorBloco& b, Operacao op) {
                            const auto p = primeiro(b, op);
                            if (!p)
                                return QString();
                            const bool ii = i[2] == QLatin1String("II");
                            if (!p->aliquotas.existe || (n.individual && (ii ? p->aliquotas.aliqII : p->aliquotas.aliqIPI).isEmpty())) {
                                if (!marca(b, i[0])->isChecked())
                                    return QString();
                                if (n.individual)
                                    return QStringLiteral("Alíquota %1 não deve ser informada.").arg(i[2]);
                                return QStringLiteral("Não foi informada Alíquota de %1 anteriormente.").arg(i[2]);
                            }
                            const QString antes = aliquota(ii ? p->aliquotas.aliqII : p->aliquotas.aliqIPI);
                            if (antes == aliquota(b.valor(i[1])))
                                return QString();
                            marca(b, i[0])->setChecked(true);
                            return QStringLiteral("A alíquota do %1 deve ser %2%").arg(i[2], antes) + fim;
                        },
                        i[1]};
    }
    return r;
}

Itens::Insumo insumoDosCampos(const Nomes& n, const ExecutorBloco& b)
{
    return {b.valor(n.produto).trimmed(), b.valor(n.descrProduto), b.valor(n.ncm), b.valor(n.quantidade),
            b.valor(n.unidade)};
}

Itens::Aliquotas aliquotasDosCampos(const Nomes& n, const ExecutorBloco& b)
{
    Itens::Aliquotas a;
    const bool ii = marca(b, n.marcaII)->isChecked();
    const bool ipi = marca(b, n.marcaIPI)->isChecked();
    a.existe = ii || ipi;
    if (ii) {
        a.aliqII = b.valor(n.aliqII);
        a.justII = b.valor(n.justII);
    }
    if (ipi) {
        a.aliqIPI = b.valor(n.aliqIPI);
        a.justIPI = b.valor(n.justIPI);
    }
    return a;
}

}  // namespace

QString ListaProduto(bool individual)
{
    return individual ? QStringLiteral("cboItem_PIsemPPB_Insumo") : QStringLiteral("cboDocProdutoPIsemPPB");
}

DescricaoBloco Produto(bool individual, std::function<QString()> idVrt)
{
    const Nomes n = nomesProduto(individual);
    const QString zero = MsgZero(individual);
    DescricaoBloco d;
    d.dados = individual ? BlocoEntrada{QStringLiteral("ITEM_NFS"), QStringLiteral("ID_NFS"), {QStringLiteral("ID_ITEM")}, {}, {}}
                         : BlocoEntrada{QStringLiteral("DESTINO_ITEM_VRT_MEN"), QStringLiteral("ID_ITEM_VRT"),
                                        {QStringLiteral("ID_DEST_PRODUTO")}, {}, {}};
    d.tituloCampos = QStringLiteral("Produto");
    const int l = individual ? 1 : 0;
    if (individual)
        d.campos << numeroItem(QStringLiteral("txtPIsemPPBNFS(0)"), QStringLiteral("NR_ITEM_NF_SAIDA"));
    d.campos << ncm(n.ncm, QStringLiteral("NCM"), n.botaoNcm, n.chave, n.descrNcm, QString(), individual,
                    individual ? QStringLiteral("CD_NCM_PROD") : QStringLiteral("CD_NCM_PRODUTO"), l)
             << descricao(n.descrNcm, QStringLiteral("Descrição NCM"), {}, 80, l)
             << produto(n.produto, QStringLiteral("Código do produto"), n.botaoProduto, n.chave, n.descrProduto,
                        individual ? QStringLiteral("CD_INT_PROD") : QStringLiteral("CD_INT_PRODUTO"), l + 1)
             << descricao(n.descrProduto, QStringLiteral("Descrição"),
                          individual ? QStringLiteral("NM_INT_PROD") : QStringLiteral("NM_INT_PRODUTO"), 80, l + 1)
             << unidade(n.unidade, QStringLiteral("Unidade de medida comercial"), QStringLiteral("NM_UNID_MED_PROD"), l + 2);
    if (individual) {
        d.campos << valor(n.quantidade, QStringLiteral("Quant. Comercial"), DecimalField::Quantity, Quantidade,
                          QStringLiteral("QT_INT_UNID_NFS"), zero, 3)
                 << valor(QStringLiteral("mskPIsemPPBNFS(2)"), QStringLiteral("Valor unit. na unid. med. comercial"),
                          DecimalField::UnitValue, ValorUnitario, QStringLiteral("VL_INT_UNID_NFS"), zero, 3);
    } else {
        d.campos << local(QStringLiteral("cboLocalPIsemPPB"), QStringLiteral("Local de destino"),
                          QStringLiteral("CD_LOCAL_DESTINO"), 2)
                 << valor(n.quantidade, QStringLiteral("Quantidade comercial"), DecimalField::Quantity, Quantidade,
                          QStringLiteral("QT_PROD_LOC_DEST"), zero, 2);
    }
    if (individual)
        d.colunasGrade = {
            {QStringLiteral("ID_ITEM"), QStringLiteral("ID_ITEM"), 0, {}},
            {QStringLiteral("Item"), QStringLiteral("NR_ITEM_NF_SAIDA"), 50, {}},
            {QStringLiteral("Código do Produto"), QStringLiteral("CD_INT_PROD"), 120, {}},
            {QStringLiteral("Descrição"), QStringLiteral("NM_INT_PROD"), 300, {}},
            {QStringLiteral("CD_NCM_PROD"), QStringLiteral("CD_NCM_PROD"), 0, {}},
            {QStringLiteral("NM_UNID_MED_PROD"), QStringLiteral("NM_UNID_MED_PROD"), 0, {}},
            {QStringLiteral("QT_INT_UNID_NFS"), QStringLiteral("QT_INT_UNID_NFS"), 0, {}},
            {QStringLiteral("VL_INT_UNID_NFS"), QStringLiteral("VL_INT_UNID_NFS"), 0, {}},
        };
    else
        d.colunasGrade = {
            {QStringLiteral("ID_ITEM_VRT"), QStringLiteral("ID_ITEM_VRT"), 0, {}},
            {QStringLiteral("ID_DEST_PRODUTO"), QStringLiteral("ID_DEST_PRODUTO"), 0, {}},
            {QStringLiteral("Código do produto"), QStringLiteral("CD_INT_PRODUTO"), 120, {}},
            {QStringLiteral("Descrição do produto"), QStringLiteral("NM_INT_PRODUTO"), 260, {}},
            {QStringLiteral("Local"), QStringLiteral("NM_LOCAL_DESTINO"), 120, {}},
            {QStringLiteral("Quantidade"), QStringLiteral("QT_PROD_LOC_DEST"), 110, {}},
            {QStringLiteral("NCM"), QStringLiteral("CD_NCM_PRODUTO"), 100, MascaraNcm},
            {QStringLiteral("NM_UNID_MED_PROD"), QStringLiteral("NM_UNID_MED_PROD"), 0, {}},
            {QStringLiteral("CD_LOCAL_DESTINO"), QStringLiteral("CD_LOCAL_DESTINO"), 0, {}},
        };
    d.nomeGrade = individual ? QStringLiteral("grdConsultaProduto") : QStringLiteral("grdConsultaProduto_fraPIsemPPB");
    d.tituloGrade = QStringLiteral("Consulta Produto");
    d.padraoBotoes = individual ? QStringLiteral("cmd%1_tabPIsemPPB_NFS") : QStringLiteral("cmd%1_tabPIsemPPB_CCI");
    d.msgSemSelecao = QStringLiteral("Inclua um produto ou selecione no grid");
    d.opcoes = [](const QString& campo, const ExecutorBloco&) {
        return campo == QLatin1String("cboLocalPIsemPPB") ? OpcoesLocal() : OpcoesUnidade();
    };
    if (individual)
        d.regras << vazio(QStringLiteral("txtPIsemPPBNFS(0)"), QStringLiteral("O campo item deve ser preenchido."));
    d.regras << vazio(n.ncm, MsgNcmVazia, n.botaoNcm) << vazio(n.descrNcm, MsgNcmInvalida, n.botaoNcm)
             << vazio(n.produto, QStringLiteral("O campo código do produto deve ser selecionado."), n.botaoProduto)
             << produtoValido(n.produto, n.descrProduto, n.botaoProduto) << vazio(n.unidade, MsgUnidade);
    const QString fimProduto = QStringLiteral(", que foi informada em outro(s) registro(s) deste produto.");
    if (individual) {
        d.regras << vazio(n.quantidade, QStringLiteral("O campo quantidade deve ser preenchido."))
                 << vazio(QStringLiteral("mskPIsemPPBNFS(2)"),
                          QStringLiteral("O campo valor unit. na unid. med. comercial deve ser preenchido."))
                 << so(Operacao::Incluir, {[n, idVrt, fimProduto](const ExecutorBloco& b, Operacao) {
                           const auto p = Itens::ProdutoNaDeclaracao(idVrt(), b.valor(n.produto).trimmed());
                           if (!p || p->ncm == b.valor(n.ncm))
                               return QString();
                           return QStringLiteral("A NCM informada deve ser igual a ") + Funcoes::FormataMascara(p->ncm, MascaraNcm)
                                  + fimProduto;
                       }, n.botaoNcm})
                 << so(Operacao::Incluir, {[n, idVrt, fimProduto](const ExecutorBloco& b, Operacao) {
                           const auto p = Itens::ProdutoNaDeclaracao(idVrt(), b.valor(n.produto).trimmed());
                           if (!p || p->unidade.trimmed() == b.valor(n.unidade).trimmed())
                               return QString();
                           return QStringLiteral("A unidade de medida informada deve ser ") + p->unidade + fimProduto;
                       }, n.unidade})
                 << numeroItemLivre(QStringLiteral("txtPIsemPPBNFS(0)"), QStringLiteral("NR_ITEM_NF_SAIDA"));
    } else {
        const QString loc = QStringLiteral("cboLocalPIsemPPB");
        d.regras << vazio(loc, QStringLiteral("O campo local de destino deve ser selecionado."))
                 << vazio(n.quantidade, QStringLiteral("O campo quantidade por local deve ser preenchido."))
                 << so(Operacao::Incluir, {[n, idVrt, fimProduto](const ExecutorBloco& b, Operacao) {
                           const auto p = Itens::ProdutoMensal(idVrt(), b.valor(n.produto).trimmed());
                           if (!p || p->unidade.trimmed() == b.valor(n.unidade).trimmed())
                               return QString();
                           return QStringLiteral("A unidade de medida informada deve ser ") + p->unidade + fimProduto;
                       }, n.unidade})
                 << so(Operacao::Incluir, {[n, idVrt, loc](const ExecutorBloco& b, Operacao) {
                           const auto p = Itens::ProdutoMensal(idVrt(), b.valor(n.produto).trimmed());
                           return p && ItensDeclaracao::LocalNoItem(p->id, b.valor(loc))
                                      ? QStringLiteral("Produto já incluído para este local de destino.")
                                      : QString();
                       }, {}})
                 << so(Operacao::Alterar, {[n](const ExecutorBloco& b, Operacao) {
                           return b.valor(n.produto).trimmed() == b.valorEscolhido(QStringLiteral("CD_INT_PRODUTO")).trimmed()
                                      ? QString()
                                      : QStringLiteral("O produto não pode ser alterado.");
                       }, {}})
                 << so(Operacao::Alterar, {[n, fimProduto](const ExecutorBloco& b, Operacao) {
                           const qint64 item = b.valorEscolhido(QStringLiteral("ID_ITEM_VRT")).toLongLong();
                           const QString antes = b.valorEscolhido(QStringLiteral("NM_UNID_MED_PROD"));
                           if (Itens::DestinosDoItem(item) < 2 || antes.trimmed() == b.valor(n.unidade).trimmed())
                               return QString();
                           return QStringLiteral("A unidade de medida informada deve ser ") + antes + fimProduto;
                       }, n.unidade})
                 << so(Operacao::Alterar, {[loc](const ExecutorBloco& b, Operacao) {
                           const QString local = b.valor(loc);
                           if (local == b.valorEscolhido(QStringLiteral("CD_LOCAL_DESTINO")))
                               return QString();
                           return ItensDeclaracao::LocalNoItem(b.valorEscolhido(QStringLiteral("ID_ITEM_VRT")).toLongLong(), local)
                                      ? QStringLiteral("Local de destino já informado anteriormente para este produto.")
                                      : QString();
                       }, {}});
    }
    d.linhas = [individual](const QVariant& pai) {
        return individual ? Itens::LinhasProdutosNota(pai.toLongLong()) : Itens::LinhasProdutosMensal(pai.toString());
    };
    d.grava = [n](const ExecutorBloco& b, const QVariant& pai, Operacao op) {
        const QString codigo = b.valor(n.produto).trimmed();
        if (n.individual) {
            const QString numero = b.valor(QStringLiteral("txtPIsemPPBNFS(0)"));
            const QString valorUnitario = b.valor(QStringLiteral("mskPIsemPPBNFS(2)"));
            if (op == Operacao::Alterar)
                Itens::AlteraProdutoNota(b.chaveSelecionada().value(0).toLongLong(), numero, codigo, b.valor(n.descrProduto),
                                         b.valor(n.ncm), b.valor(n.unidade), b.valor(n.quantidade), valorUnitario);
            else
                Itens::IncluiProdutoNota(pai.toLongLong(), numero, codigo, b.valor(n.descrProduto), b.valor(n.ncm),
                                         b.valor(n.unidade), b.valor(n.quantidade), valorUnitario);
            return;
        }
        const QString local = b.valor(QStringLiteral("cboLocalPIsemPPB"));
        if (op == Operacao::Alterar) {
            Itens::AlteraProdutoMensal(b.valorEscolhido(QStringLiteral("ID_ITEM_VRT")).toLongLong(),
                                       b.chaveSelecionada().value(0).toLongLong(), codigo, b.valor(n.descrProduto),
                                       b.valor(n.ncm), b.valor(n.unidade), local, b.valor(n.quantidade));
            return;
        }
        const auto item = Itens::ProdutoMensal(pai.toString(), codigo);
        Itens::IncluiProdutoMensal(pai.toString(), item ? item->id : 0, codigo, b.valor(n.descrProduto), b.valor(n.ncm),
                                   b.valor(n.unidade), local, b.valor(n.quantidade));
    };
    d.apaga = [individual](const ExecutorBloco& b, const QVariant& pai) {
        if (individual) {
            ItensDeclaracao::Exclui(QStringLiteral("ITEM_NFS"), QStringLiteral("ID_ITEM"), b.chaveSelecionada().value(0));
            return;
        }
        const qint64 item = b.valorEscolhido(QStringLiteral("ID_ITEM_VRT")).toLongLong();
        // The second question comes only for the last destination of a product with inputs; its "Não" keeps all.
        if (Itens::DestinosDoItem(item) < 2 && Itens::InsumosDoItem(item) > 0
            && MsgBox(QStringLiteral("Existem insumos cadastrados para este produto. Deseja realmente excluir?"),
                      Msg::YesNo | Msg::Question) != Msg::Yes)
            return;
        Itens::ExcluiProdutoMensal(pai.toString(), item, b.chaveSelecionada().value(0).toLongLong());
    };
    d.depois = [n](ExecutorBloco& b, Operacao op) {
        if (op == Operacao::Alterar && !n.individual)
            b.controle(n.botaoNcm)->setFocus(Qt::OtherFocusReason);
    };
    ligaEscolhas(d);
    return d;
}

DescricaoBloco Insumo(bool individual, std::function<QString()> idVrt)
{
    const Nomes n = nomesInsumo(individual);
    DescricaoBloco d;
    d.dados = individual ? BlocoEntrada{QStringLiteral("INSUMO_ITEM_NFS"), QStringLiteral("ID_ITEM"), {QStringLiteral("ID_INSUMO")}, {}, {}}
                         : BlocoEntrada{QStringLiteral("INSUMO_ITEM_VRT_MEN"), QStringLiteral("ID_ITEM_VRT"),
                                        {QStringLiteral("ID_INSUMO_ITEM")}, {}, {}};
    d.tituloCampos = QStringLiteral("Insumo");
    CampoBloco qt = valor(n.quantidade, QStringLiteral("Quantidade p/ uma unid. produto"), DecimalField::Quantity,
                          Quantidade, QStringLiteral("QT_INSUMO_POR_PROD"), QString(), 2);
    if (!individual)
        qt.ajusta = zeroAoSair;
    d.campos = {
        ncm(n.ncm, QStringLiteral("NCM"), n.botaoNcm, n.chave, n.descrNcm, QString(), individual,
            QStringLiteral("CD_NCM_INSUMO")),
        descricao(n.descrNcm, QStringLiteral("Descrição NCM"), {}),
        produto(n.produto, QStringLiteral("Código do insumo"), n.botaoProduto, n.chave, n.descrProduto,
                QStringLiteral("CD_INT_INSUMO"), 1),
        descricao(n.descrProduto, QStringLiteral("Descrição insumo"), QStringLiteral("NM_INT_INSUMO"), 80, 1),
        unidade(n.unidade, QStringLiteral("Unidade de medida comercial"), QStringLiteral("NM_UNID_MED_INSUMO"), 2),
        qt,
        marcaAliquota(n.marcaII, QStringLiteral("Alíquota II diferente da TEC"), n.aliqII, n.justII,
                      QStringLiteral("TEM_ALIQ_II"), 3),
        valor(n.aliqII, QStringLiteral("Alíquota II"), DecimalField::Rate, FormatoAliquota,
              QStringLiteral("ALIQ_II_DIF_TEC"), QString(), 3),
        justificativa(n.justII, QStringLiteral("JUST_II_DIF_TEC"), 3),
        marcaAliquota(n.marcaIPI, QStringLiteral("Alíquota IPI diferente da TIPI"), n.aliqIPI, n.justIPI,
                      QStringLiteral("TEM_ALIQ_IPI"), 4),
        valor(n.aliqIPI, QStringLiteral("Alíquota IPI"), DecimalField::Rate, FormatoAliquota,
              QStringLiteral("ALIQ_IPI_DIF_TIPI"), QString(), 4),
        justificativa(n.justIPI, QStringLiteral("JUST_IPI_DIF_TIPI"), 4),
    };
    d.nomeGrade = individual ? QStringLiteral("grdConsultaInsumo") : QStringLiteral("grdConsultaInsumo_fraCCI");
    d.tituloGrade = QStringLiteral("Consulta Insumo");
    d.colunasGrade = {
        {QStringLiteral("ID"), individual ? QStringLiteral("ID_INSUMO") : QStringLiteral("ID_INSUMO_ITEM"), 0, {}},
        {individual ? QStringLiteral("Código do Insumo") : QStringLiteral("Código do insumo"),
         QStringLiteral("CD_INT_INSUMO"), 120, {}},
        {QStringLiteral("Descrição"), QStringLiteral("NM_INT_INSUMO"), 300, {}},
        {QStringLiteral("Quantidade"), QStringLiteral("QT_INSUMO_POR_PROD"), individual ? 0 : 110, {}},
        {QStringLiteral("NCM"), QStringLiteral("CD_NCM_INSUMO"), individual ? 0 : 100, MascaraNcm},
        {QStringLiteral("Nº de Ordem"), QStringLiteral("NR_ORDEM"), 0, {}},
        {QStringLiteral("NM_UNID_MED_INSUMO"), QStringLiteral("NM_UNID_MED_INSUMO"), 0, {}},
        {QStringLiteral("TEM_ALIQ_II"), QStringLiteral("TEM_ALIQ_II"), 0, {}},
        {QStringLiteral("ALIQ_II_DIF_TEC"), QStringLiteral("ALIQ_II_DIF_TEC"), 0, {}},
        {QStringLiteral("JUST_II_DIF_TEC"), QStringLiteral("JUST_II_DIF_TEC"), 0, {}},
        {QStringLiteral("TEM_ALIQ_IPI"), QStringLiteral("TEM_ALIQ_IPI"), 0, {}},
        {QStringLiteral("ALIQ_IPI_DIF_TIPI"), QStringLiteral("ALIQ_IPI_DIF_TIPI"), 0, {}},
        {QStringLiteral("JUST_IPI_DIF_TIPI"), QStringLiteral("JUST_IPI_DIF_TIPI"), 0, {}},
    };
    d.padraoBotoes = QStringLiteral("cmd%1Insumo");
    d.msgSemSelecao = QStringLiteral("Inclua um insumo ou selecione no grid");
    d.opcoes = [](const QString&, const ExecutorBloco&) { return OpcoesUnidade(); };
    const QString lista = ListaProduto(individual);
    const RegraBloco semProduto = regra(
        [individual](const ExecutorBloco& b) {
            if (b.pai().toLongLong() > 0)
                return QString();
            return individual ? QStringLiteral("O produto deve ser selecionado.")
                              : QStringLiteral("O produto referente a este insumo deve ser previamente selecionado.");
        },
        lista);
    d.regras = {semProduto, vazio(n.ncm, MsgNcmVazia, n.botaoNcm), vazio(n.descrNcm, MsgNcmInvalida, n.botaoNcm),
                vazio(n.produto, QStringLiteral("O campo código do insumo deve ser selecionado."), n.botaoProduto),
                produtoValido(n.produto, n.descrProduto, n.botaoProduto,
                              individual ? QStringLiteral("O campo código do Produto não possui um código válido.")
                                         : QStringLiteral("O campo código do insumo não possui um código válido.")),
                vazio(n.unidade, individual ? QStringLiteral("A unidade de medida deve ser selecionada!") : MsgUnidade)};
    if (individual) {
        d.regras << vazio(n.quantidade, QStringLiteral("O campo quantidade deve ser preenchido."));
    } else {
        d.regras << vazio(n.quantidade, QStringLiteral("O campo quantidade insumo por unidade de produto deve ser preenchido."))
                 << regra([n](const ExecutorBloco& b) {
                        return Funcoes::EhZero(b.valor(n.quantidade))
                                   ? QStringLiteral("O campo quantidade insumo por unidade de produto deve ser maior que zero.")
                                   : QString();
                    }, n.quantidade);
    }
    d.regras << regrasAliquotas(n);
    const RegraBloco jaIncluido{[n](const ExecutorBloco& b, Operacao op) {
                                    const QString codigo = b.valor(n.produto).trimmed();
                                    if (op == Operacao::Alterar && codigo == b.valorEscolhido(QStringLiteral("CD_INT_INSUMO")))
                                        return QString();
                                    bool existe = false;
                                    if (n.individual) {
                                        for (const QStringList& l : Itens::LinhasInsumosNota(b.pai().toLongLong()))
                                            existe = existe || l.value(1) == codigo;
                                    } else {
                                        existe = Itens::InsumoNoItem(b.pai().toLongLong(), codigo);
                                    }
                                    return existe ? QStringLiteral("Insumo já incluído.") : QString();
                                },
                                n.botaoProduto};
    // The monthly editor refuses a repeated input first; the individual one after the comparison.
    if (individual)
        d.regras << regrasMesmoInsumo(n, idVrt) << jaIncluido;
    else
        d.regras << jaIncluido << regrasMesmoInsumo(n, idVrt);
    d.linhas = [individual](const QVariant& pai) {
        return individual ? Itens::LinhasInsumosNota(pai.toLongLong()) : Itens::LinhasInsumosMensal(pai.toLongLong());
    };
    d.grava = [n](const ExecutorBloco& b, const QVariant& pai, Operacao op) {
        const Itens::Insumo insumo = insumoDosCampos(n, b);
        const Itens::Aliquotas a = aliquotasDosCampos(n, b);
        const qint64 id = b.chaveSelecionada().value(0).toLongLong();
        if (n.individual) {
            if (op == Operacao::Alterar)
                Itens::AlteraInsumoNota(id, insumo, a);
            else
                Itens::IncluiInsumoNota(pai.toLongLong(), insumo, a);
            return;
        }
        if (op == Operacao::Alterar)
            Itens::AlteraInsumoMensal(pai.toLongLong(), id, b.valorEscolhido(QStringLiteral("CD_INT_INSUMO")), insumo, a);
        else
            Itens::IncluiInsumoMensal(pai.toLongLong(), insumo, a);
    };
    if (!individual)
        // With a row chosen: the product list emptied meanwhile, or the code typed away.
        d.regrasExcluir = {regra([](const ExecutorBloco& b) {
                               return b.pai().toLongLong() > 0 ? QString() : QStringLiteral("Selecione um produto");
                           }),
                           regra([n](const ExecutorBloco& b) {
                               return b.valor(n.produto).trimmed().isEmpty()
                                          ? QStringLiteral("Para excluir de um duplo clique na linha do grid a ser excluída")
                                          : QString();
                           }, QStringLiteral("cmdExcluirInsumo"))};
    d.apaga = [individual, idVrt](const ExecutorBloco& b, const QVariant&) {
        const QVariant id = b.chaveSelecionada().value(0);
        if (individual)
            ItensDeclaracao::Exclui(QStringLiteral("INSUMO_ITEM_NFS"), QStringLiteral("ID_INSUMO"), id);
        else
            Itens::ExcluiInsumoMensal(idVrt(), id.toLongLong());
    };
    ligaEscolhas(d);
    return d;
}

}  // namespace BlocosPIsemPPB
