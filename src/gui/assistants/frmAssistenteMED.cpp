#include "gui/assistants/frmAssistenteMED.h"

#include "core/session/modVRTPLN.h"

namespace {

AssistenteTabela::Configuracao configuracao()
{
    AssistenteTabela::Configuracao c;
    c.nome = QStringLiteral("frmAssistenteMED");
    c.titulo = QStringLiteral("Selecione a Unidade de Medida Comercial");
    c.nomeGrade = QStringLiteral("grdAssistenteMED");
    c.tabela = QStringLiteral("UNIDADE_MEDIDA");
    c.colunaCodigo = QStringLiteral("CD_UNID_MEDIDA");
    c.colunaNome = QStringLiteral("NM_MEDIDA");
    c.filtro = false;
    c.peloMenu = &modVRTPLN::UnidadePeloMenu;
    c.sufixoBotoes = QStringLiteral("UnidadeMedida");
    c.nomeCampoCodigo = QStringLiteral("txtCodigoUnidade");
    c.nomeCampoDescricao = QStringLiteral("txtDescricaoUnidade");
    c.nomeRotuloCodigo = QStringLiteral("lblCodigoUnidade");
    c.nomeRotuloDescricao = QStringLiteral("lblDescricaoUnidade");
    // Codes are two characters; a unit's name is used with 20 characters by the items and the file.
    c.tamanhoCodigo = 2;
    c.tamanhoDescricao = 20;
    c.textoCodigoVazio = QStringLiteral("O campo código da unidade de medida deve ser preenchido.");
    c.textoDescricaoVazia = QStringLiteral("O campo descrição da unidade de medida deve ser preenchido.");
    c.textoDuplicado = QStringLiteral("O código de unidade de medida informado já foi incluído anteriormente.");
    return c;
}

}  // namespace

frmAssistenteMED::frmAssistenteMED(QWidget* pai)
    : AssistenteTabela(configuracao(), pai),
      grdAssistenteMED(m_grade),
      lblCodigoUnidade(m_lblCodigo),
      lblDescricaoUnidade(m_lblDescricao),
      txtCodigoUnidade(m_txtCodigoCadastro),
      txtDescricaoUnidade(m_txtDescricaoCadastro),
      cmdIncluir_UnidadeMedida(m_cmdIncluir),
      cmdAlterar_UnidadeMedida(m_cmdAlterar),
      cmdExcluir_UnidadeMedida(m_cmdExcluir),
      cmdCancela(m_cmdCancela)
{
}
