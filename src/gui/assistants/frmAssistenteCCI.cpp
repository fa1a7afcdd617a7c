#include "gui/assistants/frmAssistenteCCI.h"

#include "gui/assistants/DestinosEscolha.h"
#include "core/session/modVRTPLN.h"

namespace {

AssistenteTabela::Configuracao configuracao()
{
    AssistenteTabela::Configuracao c;
    c.nome = QStringLiteral("frmAssistenteCCI");
    c.titulo = QStringLiteral("Selecione o Código do Produto");
    c.nomeGrade = QStringLiteral("grdAssistenteCCI");
    c.tabela = QStringLiteral("PRODUTO");
    c.colunaCodigo = QStringLiteral("CD_INT_PRODUTO");
    c.colunaNome = QStringLiteral("NM_INT_PRODUTO");
    c.codigoSemCaixa = true;
    c.tamanhoFiltro = 15;
    c.textoNaoEncontrado = QStringLiteral("Código de produto não encontrado!");
    c.destinos = &DestinosEscolha::produto();
    c.chamador = &modVRTPLN::ChamadorProduto;
    c.peloMenu = &modVRTPLN::ProdutoPeloMenu;
    c.sufixoBotoes = QStringLiteral("Produto");
    c.nomeCampoCodigo = QStringLiteral("txtCodigoProduto");
    c.nomeCampoDescricao = QStringLiteral("txtDescricaoProduto");
    c.nomeRotuloCodigo = QStringLiteral("lblCodigoProduto");
    c.nomeRotuloDescricao = QStringLiteral("lblDescricaoProduto");
    c.tamanhoCodigo = 15;
    c.tamanhoDescricao = 45;
    c.textoCodigoVazio = QStringLiteral("O campo código do produto deve ser preenchido.");
    c.textoDescricaoVazia = QStringLiteral("O campo descrição do produto deve ser preenchido.");
    c.textoDuplicado = QStringLiteral("O código de produto informado já foi incluído anteriormente.");
    return c;
}

}  // namespace

frmAssistenteCCI::frmAssistenteCCI(QWidget* pai)
    : AssistenteTabela(configuracao(), pai),
      fraFiltro(m_fraFiltro),
      txtCodigo(m_txtCodigo),
      cmdFiltro(m_cmdFiltro),
      grdAssistenteCCI(m_grade),
      lblCodigoProduto(m_lblCodigo),
      lblDescricaoProduto(m_lblDescricao),
      txtCodigoProduto(m_txtCodigoCadastro),
      txtDescricaoProduto(m_txtDescricaoCadastro),
      cmdIncluir_Produto(m_cmdIncluir),
      cmdAlterar_Produto(m_cmdAlterar),
      cmdExcluir_Produto(m_cmdExcluir),
      cmdOk(m_cmdOk),
      cmdCancela(m_cmdCancela)
{
}

bool frmAssistenteCCI::Escolhe(const QString& chave, QWidget* pai)
{
    modVRTPLN::ProdutoPeloMenu = false;
    modVRTPLN::ChamadorProduto = chave;
    frmAssistenteCCI picker(pai);
    picker.defineFiltro(DestinosEscolha::produto().valorAtual(chave));
    return picker.exec() == QDialog::Accepted;
}
