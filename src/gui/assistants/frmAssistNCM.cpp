#include "gui/assistants/frmAssistNCM.h"

#include "gui/assistants/DestinosEscolha.h"
#include "core/session/modVRTPLN.h"

namespace {

AssistenteTabela::Configuracao configuracao()
{
    AssistenteTabela::Configuracao c;
    c.nome = QStringLiteral("frmAssistNCM");
    c.titulo = QStringLiteral("Selecione a NCM");
    c.nomeGrade = QStringLiteral("grdAssistNCM");
    c.tabela = QStringLiteral("NCM_ITEM");
    c.colunaCodigo = QStringLiteral("CD_NCM_PRODUTO");
    c.colunaNome = QStringLiteral("DESCR_NCM_PRODUTO");
    c.colunaComplemento = QStringLiteral("NM_UNID_MED_EST");
    c.titulos = {QStringLiteral("Código"), QStringLiteral("Descrição"), QStringLiteral("Unidade Estatística")};
    c.formatoCodigo = QStringLiteral("@@@@.@@.@@");
    c.tamanhoFiltro = 8;
    c.filtroSoDigitos = true;
    c.textoNaoEncontrado = QStringLiteral("Código de NCM não encontrado!");
    c.destinos = &DestinosEscolha::ncm();
    c.chamador = &modVRTPLN::ChamadorNCM;
    return c;
}

}  // namespace

frmAssistNCM::frmAssistNCM(QWidget* pai)
    : AssistenteTabela(configuracao(), pai),
      fraFiltro(m_fraFiltro),
      lblFiltro(m_lblFiltro),
      txtCodigo(m_txtCodigo),
      cmdFiltro(m_cmdFiltro),
      grdAssistNCM(m_grade),
      cmdOk(m_cmdOk),
      cmdCancela(m_cmdCancela)
{
    resize(860, 480);
}

bool frmAssistNCM::Escolhe(const QString& chave, QWidget* pai)
{
    modVRTPLN::ChamadorNCM = chave;
    frmAssistNCM picker(pai);
    // The NCM field may show its points; the filter takes the digits typed so far.
    QString inicio = DestinosEscolha::ncm().valorAtual(chave);
    inicio.remove(QLatin1Char('.'));
    picker.defineFiltro(inicio.trimmed());
    return picker.exec() == QDialog::Accepted;
}
