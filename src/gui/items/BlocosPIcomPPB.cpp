#include "gui/items/BlocosPIcomPPB.h"

#include "core/rules/FormatoNumero.h"
#include "core/session/MsgBox.h"
#include "core/store/ItensDeclaracao.h"
#include "core/store/ItensPIcomPPB.h"
#include "gui/blocks/RegraSaida.h"
#include "gui/items/CamposItem.h"

#include <QLineEdit>

using namespace CamposItem;

namespace BlocosPIcomPPB {

namespace {

const QString Quantidade = QStringLiteral("###,###,##0.00000");
const QString ValorUnitario = QStringLiteral("#,###,###,###,##0.0000000");
const QString FormatoPisCofins = QStringLiteral("#0.0000000");
const QString MsgCoeficiente = QStringLiteral("O coeficiente de redução deve ser um valor entre 0 e 100%");

// The names of one block's controls: they differ by editor and by document.
struct Nomes {
    bool individual;
    bool dcr;
    QString tipo, outroTipo;
    QString numero, produto, descricao, botaoProduto, chave, local, quantidade, ii, coeficiente, unidade, pis,
        cofins;
    QString colNumero, colProduto, colDescricao, colQuantidade, colUnidade;
};

Nomes nomes(bool individual, const QString& tipo)
{
    Nomes n;
    n.individual = individual;
    n.dcr = tipo == TipoDCR;
    n.tipo = tipo;
    n.outroTipo = n.dcr ? TipoDCRE : TipoDCR;
    const QString doc = n.dcr ? QStringLiteral("DCR") : QStringLiteral("DCRE");
    const QString editor = individual ? QStringLiteral("Individual") : QStringLiteral("Mensal");
    n.produto = QStringLiteral("txtCodProd%1PIcomPPB").arg(doc);
    n.descricao = QStringLiteral("txtDescrProd%1PIcomPPB").arg(doc);
    n.botaoProduto = QStringLiteral("cmdAssistenteCCI_%1_tabPIcomPPB_%2").arg(doc, editor);
    n.pis = QStringLiteral("mskVlPis%1").arg(doc);
    n.cofins = QStringLiteral("mskVlCofins%1").arg(doc);
    n.local = QStringLiteral("cboLocal%1").arg(doc);
    n.unidade = QStringLiteral("cboUnidadeDCR");
    if (individual) {
        n.chave = n.dcr ? QStringLiteral("produtoPIcomPPBDCR") : QStringLiteral("produtoPIcomPPBDCRE");
        n.numero = n.dcr ? QStringLiteral("mskPIcomPPBIndividual(2)") : QStringLiteral("mskPIcomPPBIndividual(0)");
        n.quantidade = n.dcr ? QStringLiteral("mskPIcomPPBIndividual(3)") : QStringLiteral("mskPIcomPPBIndividual(1)");
        n.ii = QStringLiteral("mskPIcomPPBIndividual(4)");
        n.coeficiente = QStringLiteral("mskPIcomPPBIndividual(5)");
        n.colNumero = n.dcr ? QStringLiteral("NR_DCR") : QStringLiteral("NR_DCRE");
        n.colProduto = QStringLiteral("CD_INT_PROD");
        n.colDescricao = QStringLiteral("NM_INT_PROD");
        n.colQuantidade = QStringLiteral("QT_PRODUTO");
        n.colUnidade = QStringLiteral("NM_UNID_MED_PROD");
    } else {
        n.chave = n.dcr ? QStringLiteral("produtoDCRPIcomPPBMensal") : QStringLiteral("produtoDCREPIcomPPBMensal");
        n.numero = n.dcr ? QStringLiteral("mskDCRPIcomPPB") : QStringLiteral("mskDCREPIcomPPB");
        n.quantidade = n.dcr ? QStringLiteral("mskPIcomPPB(3)") : QStringLiteral("mskPIcomPPB(0)");
        n.ii = QStringLiteral("mskPIcomPPB(1)");
        n.coeficiente = QStringLiteral("mskPIcomPPB(2)");
        n.colNumero = QStringLiteral("NR_DCRE_DCR");
        n.colProduto = QStringLiteral("CD_INT_PRODUTO");
        n.colDescricao = QStringLiteral("NM_INT_PRODUTO");
        n.colQuantidade = QStringLiteral("QT_PROD_LOC_DEST");
        n.colUnidade = QStringLiteral("NM_UNID_MED_DEST");
    }
    return n;
}

QString digitos(const ExecutorBloco& b, const Nomes& n)
{
    return Funcoes::SoDigitos(b.valor(n.numero));
}

// An empty PIS or COFINS is written as zero through its format.
QString pisCofins(const ExecutorBloco& b, const QString& campo)
{
    const QString v = b.valor(campo);
    return Funcoes::FormataNumero(v.isEmpty() ? QStringLiteral("0") : v, FormatoPisCofins);
}

// The individual editor's number field, when left: the number checks, then the display form.
void aoSairNumero(QLineEdit* campo, bool dcr)
{
    aoSair(campo, [campo, dcr] {
        const QString d = Funcoes::SoDigitos(campo->text());
        if (d.isEmpty())
            return true;
        const QString tipo = dcr ? TipoDCR : TipoDCRE;
        const QString msg = ConfereNumero(tipo, d, false);
        if (!msg.isEmpty()) {
            MsgBox(msg, Msg::OKOnly | Msg::Critical);
            return false;
        }
        if (!dcr)
            campo->setText(MostraNumero(tipo, d));
        return true;
    });
}

QList<CampoBloco> campos(const Nomes& n)
{
    const QString zero = MsgZero(n.individual);
    const QString rotuloNumero = n.dcr ? QStringLiteral("Número DCR") : QStringLiteral("Número DCR-E");
    CampoBloco numero;
    numero.nome = n.numero;
    numero.rotulo = rotuloNumero;
    numero.coluna = n.colNumero;
    if (n.dcr) {
        numero.tipo = CampoBloco::Mascara;
        numero.formato = QStringLiteral("#####/####");
    } else {
        numero.tipo = CampoBloco::Texto;
        numero.largura = 12;
    }
    if (n.individual) {
        // The individual editor checks the number as it is left; a DCR-E takes its display form.
        const bool dcr = n.dcr;
        numero.ajusta = [dcr](QWidget* w, ExecutorBloco&) {
            auto* campo = static_cast<QLineEdit*>(w);
            aoSairNumero(campo, dcr);
        };
    }
    QList<CampoBloco> c{numero,
                        produto(n.produto, QStringLiteral("Código do produto"), n.botaoProduto, n.chave, n.descricao,
                                n.colProduto),
                        descricao(n.descricao, QStringLiteral("Descrição do produto"), n.colDescricao)};
    if (!n.individual)
        c << local(n.local, QStringLiteral("Local de destino"), QStringLiteral("CD_LOCAL_DESTINO"), 1);
    if (n.dcr) {
        CampoBloco coef = valor(n.coeficiente, QStringLiteral("Coef. Red. %"), DecimalField::Rate,
                                QStringLiteral("##0.00"), QStringLiteral("PC_COEF_REDUCAO_II"), zero, 1);
        coef.ajusta = [](QWidget* w, ExecutorBloco&) {
            // 100 itself is refused, and the message is the lower-case one with its full stop.
            static_cast<DecimalField*>(w)->setExtraCheck([](const QString& texto) {
                if (Funcoes::ValorNumerico(texto) < 100)
                    return true;
                MsgBox(QStringLiteral("o coeficiente de redução deve ser um valor entre 0 e 100%."),
                       Msg::OKOnly | Msg::Critical);
                return false;
            });
        };
        c << valor(n.ii, QStringLiteral("II Unitário Sem Redução em US$"), DecimalField::UnitValue, ValorUnitario,
                   QStringLiteral("VL_II_UNIT_DOLAR"), zero, 1)
          << coef
          << valor(n.quantidade, n.individual ? QStringLiteral("Quantidade do DCR") : QStringLiteral("Quantidade para o destino"),
                   DecimalField::Quantity, Quantidade, n.colQuantidade, zero, 1)
          << unidade(n.unidade, QStringLiteral("Unidade medida do DCR"), n.colUnidade, 2);
    } else {
        c << valor(n.quantidade,
                   n.individual ? QStringLiteral("Quant. na unidade do DCR-E")
                                : QStringLiteral("Quantidade comercial na unidade do DCR-E"),
                   DecimalField::Quantity, Quantidade, n.colQuantidade, zero, 1);
    }
    c << valor(n.pis, QStringLiteral("Valor PIS/PASEP"), DecimalField::UnitValue, ValorUnitario,
               QStringLiteral("VL_PIS"), zero, 2)
      << valor(n.cofins, QStringLiteral("Valor COFINS"), DecimalField::UnitValue, ValorUnitario,
               QStringLiteral("VL_COFINS"), zero, 2);
    return c;
}

// The other document of the same product: a product stands under a DCR or under a DCR-E, never both.
RegraBloco outroDocumento(const Nomes& n)
{
    return {[n](const ExecutorBloco& b, Operacao) {
                const QString produto = b.valor(n.produto);
                const QString numero =
                    n.individual ? ItensPIcomPPB::NumeroNaNota(b.pai().toLongLong(), produto, n.outroTipo)
                                 : ItensPIcomPPB::NumeroDoProduto(b.pai().toString(), produto, n.outroTipo);
                if (numero.isEmpty())
                    return QString();
                const QString documento = n.dcr ? QStringLiteral(" já foi relacionado no DCR-E ")
                                                : QStringLiteral(" já foi relacionado no DCR ");
                const QString inicio = n.individual ? QStringLiteral("O produto ") : QStringLiteral("o produto ");
                return inicio + produto + documento + MostraNumero(n.outroTipo, numero)
                       + (n.individual ? QString() : QStringLiteral("."));
            },
            {}};
}

RegraBloco numeroValido(const Nomes& n)
{
    return {[n](const ExecutorBloco& b, Operacao) { return ConfereNumero(n.tipo, digitos(b, n), n.individual); },
            n.numero};
}

QList<RegraBloco> validacao(const Nomes& n)
{
    QList<RegraBloco> r;
    if (n.individual)
        r << vazio(CampoItem, QStringLiteral("O campo item deve ser preenchido."));
    r << vazio(n.numero, n.dcr ? QStringLiteral("O campo número DCR deve ser preenchido.")
                               : QStringLiteral("O campo número DCR-E deve ser preenchido."));
    if (n.individual)
        r << numeroValido(n);
    r << vazio(n.produto, QStringLiteral("O campo código do produto deve ser selecionado."), n.botaoProduto)
      << produtoValido(n.produto, n.descricao, n.botaoProduto);
    if (!n.individual)
        r << vazio(n.local, n.dcr ? QStringLiteral("O campo local de destino deve ser selecionado")
                                  : QStringLiteral("O campo local de destino deve ser selecionado "));
    if (!n.dcr) {
        r << vazio(n.quantidade, QStringLiteral("O campo quantidade comercial na unid. DCR-E deve ser preenchido."));
        return r;
    }
    const RegraBloco ii = vazio(n.ii, QStringLiteral("O campo II unitário sem redução em US$ deve ser preenchido."));
    const RegraBloco coef = vazio(n.coeficiente, MsgCoeficiente);
    if (n.individual)
        r << vazio(n.quantidade, QStringLiteral("O campo quantidade internada deve ser preenchido.")) << ii << coef;
    else
        r << ii << coef << vazio(n.quantidade, QStringLiteral("O campo quantidade para o destino deve ser preenchido."));
    r << vazio(n.unidade, QStringLiteral("O campo unidade medida DCR deve ser selecionado"));
    return r;
}

// Monthly: after validation, the tests of Incluir and of Alterar, in their order.
QList<RegraBloco> testesMensal(const Nomes& n)
{
    auto idVrt = [](const ExecutorBloco& b) { return b.pai().toString(); };
    QList<RegraBloco> r;
    r << so(Operacao::Alterar, {[n](const ExecutorBloco& b, Operacao) {
                                    return b.valor(n.produto) != b.valorEscolhido(n.colProduto)
                                               ? QStringLiteral("O produto não pode ser alterado.")
                                               : QString();
                                },
                                {}});
    r << outroDocumento(n) << numeroValido(n);
    if (n.dcr) {
        r << so(Operacao::Incluir, {[n, idVrt](const ExecutorBloco& b, Operacao) {
                                        const QString outro = ItensPIcomPPB::ProdutoDoNumero(
                                            idVrt(b), digitos(b, n), TipoDCR, b.valor(n.produto));
                                        return outro.isEmpty()
                                                   ? QString()
                                                   : QStringLiteral("Este número do DCR já foi utilizado para o código do produto: ") + outro;
                                    },
                                    {}});
        r << so(Operacao::Incluir, {[n, idVrt](const ExecutorBloco& b, Operacao) {
                                        const QString produto = b.valor(n.produto);
                                        const QString outro =
                                            ItensPIcomPPB::NumeroDoProduto(idVrt(b), produto, TipoDCR, digitos(b, n));
                                        // No blank before "já": the text has always read so.
                                        return outro.isEmpty() ? QString()
                                                               : QStringLiteral("O produto ") + produto
                                                                     + QStringLiteral("já foi relacionado no DCR ")
                                                                     + MostraNumero(TipoDCR, outro);
                                    },
                                    {}});
    }
    r << so(Operacao::Incluir, {[n, idVrt](const ExecutorBloco& b, Operacao) {
                                    const qint64 item = ItensPIcomPPB::ItemDoDocumento(idVrt(b), b.valor(n.produto),
                                                                                        digitos(b, n), n.tipo);
                                    return item && ItensDeclaracao::LocalNoItem(item, b.valor(n.local))
                                               ? QStringLiteral("Produto já incluído para este local de destino.")
                                               : QString();
                                },
                                {}});
    r << so(Operacao::Alterar, {[n, idVrt](const ExecutorBloco& b, Operacao) {
                                    const QString numero = digitos(b, n);
                                    if (numero == Funcoes::SoDigitos(b.valorEscolhido(n.colNumero)))
                                        return QString();
                                    return ItensPIcomPPB::NumeroEmOutroItem(idVrt(b), numero, n.tipo,
                                                                            b.valorEscolhido(QStringLiteral("ID_ITEM_VRT")).toLongLong())
                                               ? (n.dcr ? QStringLiteral("DCR já incluído.") : QStringLiteral("DCR-E já incluído."))
                                               : QString();
                                },
                                {}});
    r << so(Operacao::Alterar, {[n](const ExecutorBloco& b, Operacao) {
                                    const QString local = b.valor(n.local);
                                    if (local == b.valorEscolhido(QStringLiteral("CD_LOCAL_DESTINO")))
                                        return QString();
                                    const qint64 item = b.valorEscolhido(QStringLiteral("ID_ITEM_VRT")).toLongLong();
                                    return ItensDeclaracao::LocalNoItem(item, local)
                                               ? QStringLiteral("Local de destino já informado anteriormente ")
                                                     + QStringLiteral("para este produto.")
                                               : QString();
                                },
                                {}});
    return r;
}

QList<RegraBloco> testesIndividual(const Nomes& n)
{
    QList<RegraBloco> r{outroDocumento(n)};
    if (n.dcr)
        // Across every declaration of the database.
        r << RegraBloco{[n](const ExecutorBloco& b, Operacao) {
                            const QString outro = ItensPIcomPPB::ProdutoDoDcr(digitos(b, n), b.valor(n.produto));
                            return outro.isEmpty() ? QString() : QStringLiteral("DCR já incluído para o produto ") + outro;
                        },
                        {}};
    r << numeroItemLivre(CampoItem, QStringLiteral("NR_ITEM_NF_SAIDA"));
    return r;
}

void gravaMensal(const Nomes& n, const ExecutorBloco& b, const QVariant& pai, Operacao op)
{
    QVariantMap destino{{QStringLiteral("CD_LOCAL_DESTINO"), b.valor(n.local)},
                        {QStringLiteral("QT_PROD_LOC_DEST"), b.valor(n.quantidade)},
                        {QStringLiteral("VL_PIS"), pisCofins(b, n.pis)},
                        {QStringLiteral("VL_COFINS"), pisCofins(b, n.cofins)}};
    if (n.dcr) {
        destino.insert(QStringLiteral("VL_II_UNIT_DOLAR"), b.valor(n.ii));
        destino.insert(QStringLiteral("PC_COEF_REDUCAO_II"), b.valor(n.coeficiente));
        destino.insert(QStringLiteral("NM_UNID_MED_DEST"), b.valor(n.unidade));
    }
    const QString produto = b.valor(n.produto);
    const QString numero = digitos(b, n);
    const QString tabelaItem = QStringLiteral("ITEM_VRT_MEN");
    const QString chaveItem = QStringLiteral("ID_ITEM_VRT");
    if (op == Operacao::Alterar) {
        const QVariant item = b.valorEscolhido(chaveItem);
        ItensDeclaracao::Altera(tabelaItem, chaveItem, item, {{QStringLiteral("CD_INT_PRODUTO"), produto}});
        ItensDeclaracao::Altera(QStringLiteral("ITEM_VRT_MEN_PI_COM_PPB"), chaveItem, item,
                                {{QStringLiteral("NR_DCRE_DCR"), numero}});
        ItensDeclaracao::Altera(QStringLiteral("DESTINO_ITEM_VRT_MEN"), QStringLiteral("ID_DEST_PRODUTO"),
                                b.valorEscolhido(QStringLiteral("ID_DEST_PRODUTO")), destino);
        return;
    }
    qint64 item = ItensPIcomPPB::ItemDoDocumento(pai.toString(), produto, numero, n.tipo);
    if (!item) {
        item = ItensDeclaracao::Insere(tabelaItem, chaveItem,
                                       {{QStringLiteral("ID_VRT_MICRO"), pai},
                                        {QStringLiteral("CD_INT_PRODUTO"), produto},
                                        {QStringLiteral("NM_INT_PRODUTO"), b.valor(n.descricao)},
                                        {QStringLiteral("IND_MOD_INTERNACAO"), QStringLiteral("2")}});
        ItensDeclaracao::Insere(QStringLiteral("ITEM_VRT_MEN_PI_COM_PPB"), {},
                                {{chaveItem, item}, {QStringLiteral("NR_DCRE_DCR"), numero},
                                 {QStringLiteral("CD_TIPO_COEF_REDUCAO"), n.tipo}});
    }
    destino.insert(chaveItem, item);
    ItensDeclaracao::Insere(QStringLiteral("DESTINO_ITEM_VRT_MEN"), QStringLiteral("ID_DEST_PRODUTO"), destino);
}

void gravaIndividual(const Nomes& n, const ExecutorBloco& b, const QVariant& pai, Operacao op)
{
    const QVariantMap item{{QStringLiteral("NR_ITEM_NF_SAIDA"), b.valor(CampoItem)},
                           {QStringLiteral("CD_INT_PROD"), b.valor(n.produto)},
                           {QStringLiteral("NM_INT_PROD"), b.valor(n.descricao)},
                           {QStringLiteral("NM_UNID_MED_PROD"), n.dcr ? b.valor(n.unidade) : QString()}};
    QVariantMap ppb{{QStringLiteral("CD_TIPO_COEF_REDUCAO"), n.tipo},
                    {QStringLiteral("VL_PIS"), pisCofins(b, n.pis)},
                    {QStringLiteral("VL_COFINS"), pisCofins(b, n.cofins)}};
    QVariantMap documento{{QStringLiteral("QT_PRODUTO"), b.valor(n.quantidade)}};
    documento.insert(n.colNumero, digitos(b, n));
    if (n.dcr) {
        documento.insert(QStringLiteral("PC_COEF_REDUCAO_II"), b.valor(n.coeficiente));
        documento.insert(QStringLiteral("VL_II_UNIT_DOLAR"), b.valor(n.ii));
    }
    const QString tabelaDoc = n.dcr ? QStringLiteral("DCR") : QStringLiteral("DCRE");
    const QString chave = QStringLiteral("ID_ITEM");
    if (op == Operacao::Alterar) {
        const QVariant id = b.chaveSelecionada().value(0);
        ItensDeclaracao::Altera(QStringLiteral("ITEM_NFS"), chave, id, item);
        ItensDeclaracao::Altera(QStringLiteral("ITEM_NFS_PI_COM_PPB"), chave, id, ppb);
        ItensDeclaracao::Altera(tabelaDoc, chave, id, documento);
        return;
    }
    QVariantMap novo = item;
    novo.insert(QStringLiteral("ID_NFS"), pai);
    novo.insert(QStringLiteral("IND_MOD_INTERNACAO"), QStringLiteral("2"));
    const qint64 id = ItensDeclaracao::Insere(QStringLiteral("ITEM_NFS"), chave, novo);
    ppb.insert(chave, id);
    documento.insert(chave, id);
    ItensDeclaracao::Insere(QStringLiteral("ITEM_NFS_PI_COM_PPB"), {}, ppb);
    ItensDeclaracao::Insere(tabelaDoc, {}, documento);
}

QList<ColunaGrade> colunas(const Nomes& n)
{
    const QString tipo = n.tipo;
    auto numero = [tipo](const QString& v) { return MostraNumero(tipo, v); };
    QList<ColunaGrade> c;
    if (n.individual)
        c << ColunaGrade{QStringLiteral("ID_ITEM"), QStringLiteral("ID_ITEM"), 0, {}}
          << ColunaGrade{QStringLiteral("Item"), QStringLiteral("NR_ITEM_NF_SAIDA"), 50, {}};
    else
        c << ColunaGrade{QStringLiteral("ID_ITEM_VRT"), QStringLiteral("ID_ITEM_VRT"), 0, {}};
    c << ColunaGrade{n.dcr ? QStringLiteral("Número DCR") : QStringLiteral("Número DCR-E"), n.colNumero, 80, {}, numero}
      << ColunaGrade{QStringLiteral("Código do produto"), n.colProduto, 93, {}}
      << ColunaGrade{QStringLiteral("Descrição do produto"), n.colDescricao, 212, {}};
    if (!n.individual)
        c << ColunaGrade{QStringLiteral("Local"), QStringLiteral("NM_LOCAL_DESTINO"), 120, {}};
    c << ColunaGrade{QStringLiteral("Quantidade"), n.colQuantidade, 117, Quantidade};
    if (!n.individual)
        c << ColunaGrade{QStringLiteral("ID_DEST_PRODUTO"), QStringLiteral("ID_DEST_PRODUTO"), 0, {}}
          << ColunaGrade{QStringLiteral("CD_LOCAL_DESTINO"), QStringLiteral("CD_LOCAL_DESTINO"), 0, {}};
    if (n.dcr)
        c << ColunaGrade{QStringLiteral("VL_II_UNIT_DOLAR"), QStringLiteral("VL_II_UNIT_DOLAR"), 0, {}}
          << ColunaGrade{QStringLiteral("PC_COEF_REDUCAO_II"), QStringLiteral("PC_COEF_REDUCAO_II"), 0, {}}
          << ColunaGrade{n.colUnidade, n.colUnidade, 0, {}};
    // Values shown as their fields show them.
    c << ColunaGrade{QStringLiteral("PIS/PASEP"), QStringLiteral("VL_PIS"), 133, ValorUnitario}
      << ColunaGrade{QStringLiteral("COFINS"), QStringLiteral("VL_COFINS"), 133, ValorUnitario};
    return c;
}

}  // namespace

QString MostraNumero(const QString& tipo, const QString& digitos)
{
    // A DCR number read from a file has lost its leading zeros: it is shown zero-filled to its nine digits.
    if (tipo == TipoDCR)
        return digitos.isEmpty() ? digitos
                                 : Funcoes::FormataMascara(digitos.rightJustified(9, u'0'), QStringLiteral("@@@@@/@@@@"));
    return Funcoes::FormataMascara(digitos, digitos.size() == 10 ? QStringLiteral("@@@@/@@@@@-@")
                                                                  : QStringLiteral("@@@@/@@@@@"));
}

QString ConfereNumero(const QString& tipo, const QString& d, bool individual)
{
    if (tipo == TipoDCR) {
        const QString invalido = individual ? QStringLiteral("Número da DCR inválido.") : QStringLiteral("Número DCR inválido !");
        if (d.size() != 9)
            return invalido;
        const int ano = d.right(4).toInt();
        if (ano < 1990 || ano > 2001)
            return QStringLiteral("Ano deve ser menor ou igual a 2001 e maior ou igual a 1990.");
        return Funcoes::EhZero(d.left(5)) ? invalido : QString();
    }
    const QString invalido = individual ? QStringLiteral("Número da DCR-E inválido.") : QStringLiteral("Número DCR-E inválido !");
    if (d.size() != 9 && d.size() != 10)
        return invalido;
    if (d.left(4).toInt() < 2001)
        return QStringLiteral("Ano deve ser maior ou igual a 2001.");
    return Funcoes::EhZero(d.mid(4, d.size() == 9 ? 5 : 6)) ? invalido : QString();
}

DescricaoBloco Descricao(bool individual, const QString& tipo)
{
    const Nomes n = nomes(individual, tipo);
    DescricaoBloco d;
    d.dados = individual ? BlocoEntrada{QStringLiteral("ITEM_NFS"), QStringLiteral("ID_NFS"), {QStringLiteral("ID_ITEM")}, {}, {}}
                         : BlocoEntrada{QStringLiteral("DESTINO_ITEM_VRT_MEN"), QStringLiteral("ID_ITEM_VRT"),
                                        {QStringLiteral("ID_DEST_PRODUTO")}, {}, {}};
    d.tituloCampos = n.dcr ? QStringLiteral("Produto com DCR") : QStringLiteral("Produto com DCR-E");
    d.campos = campos(n);
    if (individual) {
        CampoBloco item = numeroItem(CampoItem, QStringLiteral("NR_ITEM_NF_SAIDA"));
        d.campos.prepend(item);
    }
    d.nomeGrade = individual ? (n.dcr ? QStringLiteral("grdConsultaDCR") : QStringLiteral("grdConsultaDCRE"))
                             : (n.dcr ? QStringLiteral("grdConsultaDCR_fraPIcomPPBMensal")
                                      : QStringLiteral("grdConsultaDCRE_fraPIcomPPBMensal"));
    d.tituloGrade = QStringLiteral("Consulta Produto");
    d.colunasGrade = colunas(n);
    d.msgSemSelecao = n.dcr ? QStringLiteral("Inclua uma DCR ou selecione no grid")
                            : QStringLiteral("Inclua uma DCR-E ou selecione no grid");
    d.opcoes = [n](const QString& campo, const ExecutorBloco&) {
        return campo == n.local ? OpcoesLocal() : OpcoesUnidade();
    };
    d.regras = validacao(n) + (individual ? testesIndividual(n) : testesMensal(n));
    d.linhas = [n](const QVariant& pai) {
        return n.individual ? ItensPIcomPPB::LinhasIndividual(pai.toLongLong(), n.tipo)
                            : ItensPIcomPPB::LinhasMensal(pai.toString(), n.tipo);
    };
    d.grava = [n](const ExecutorBloco& b, const QVariant& pai, Operacao op) {
        if (n.individual)
            gravaIndividual(n, b, pai, op);
        else
            gravaMensal(n, b, pai, op);
    };
    d.apaga = [n](const ExecutorBloco& b, const QVariant&) {
        if (n.individual)
            ItensDeclaracao::Exclui(QStringLiteral("ITEM_NFS"), QStringLiteral("ID_ITEM"), b.chaveSelecionada().value(0));
        else
            ItensDeclaracao::ExcluiDestino(b.valorEscolhido(QStringLiteral("ID_DEST_PRODUTO")).toLongLong(),
                                           b.valorEscolhido(QStringLiteral("ID_ITEM_VRT")).toLongLong());
    };
    d.depois = [n](ExecutorBloco& b, Operacao op) {
        if (op == Operacao::Alterar && !n.individual)
            b.campo(n.numero)->setFocus(Qt::OtherFocusReason);
    };
    ligaEscolhas(d);
    return d;
}

}  // namespace BlocosPIcomPPB
