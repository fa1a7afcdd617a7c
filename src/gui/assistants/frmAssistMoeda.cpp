#include "gui/assistants/frmAssistMoeda.h"

#include "gui/assistants/DestinosEscolha.h"
#include "core/session/modVRTPLN.h"

namespace {

AssistenteTabela::Configuracao configuracao()
{
    AssistenteTabela::Configuracao c;
    c.nome = QStringLiteral("frmAssistMoeda");
    c.titulo = QStringLiteral("Selecione a Moeda");
    c.nomeGrade = QStringLiteral("grdAssistMoeda");
    c.tabela = QStringLiteral("MOEDA");
    c.colunaCodigo = QStringLiteral("CD_MOEDA");
    c.colunaNome = QStringLiteral("NM_MOEDA");
    c.tamanhoFiltro = 3;
    c.filtroSoDigitos = true;
    c.textoNaoEncontrado = QStringLiteral("Código de moeda não encontrado!");
    c.destinos = &DestinosEscolha::moeda();
    c.chamador = &modVRTPLN::ChamadorMoeda;
    return c;
}

}  // namespace

frmAssistMoeda::frmAssistMoeda(QWidget* pai)
    : AssistenteTabela(configuracao(), pai),
      fraFiltro(m_fraFiltro),
      lblFiltro(m_lblFiltro),
      txtCodigo(m_txtCodigo),
      cmdFiltro(m_cmdFiltro),
      grdAssistMoeda(m_grade),
      cmdOk(m_cmdOk),
      cmdCancela(m_cmdCancela)
{
}

bool frmAssistMoeda::Escolhe(const QString& chave, QWidget* pai)
{
    modVRTPLN::ChamadorMoeda = chave;
    frmAssistMoeda picker(pai);
    picker.defineFiltro(DestinosEscolha::moeda().valorAtual(chave));
    return picker.exec() == QDialog::Accepted;
}
