#include "gui/assistants/AssistenteTabela.h"

#include "gui/screens/Telas.h"

#include "gui/assistants/DestinosEscolha.h"
#include "core/rules/FormatoNumero.h"
#include "core/session/MsgBox.h"
#include "core/session/modVRTPLN.h"
#include "core/store/modBancoDados.h"
#include "gui/widgets/MaskedField.h"
#include "gui/widgets/TextField.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShowEvent>
#include <QTimer>
#include <QVBoxLayout>

using modVRTPLN::AlteracaoPendente;

namespace {

QPushButton* botao(const QString& nome, const QString& texto, QWidget* pai)
{
    auto* b = new QPushButton(texto, pai);
    b->setObjectName(nome);
    b->setAutoDefault(false);
    return b;
}

}  // namespace

AssistenteTabela::AssistenteTabela(const Configuracao& configuracao, QWidget* pai)
    : QDialog(pai), m_cfg(configuracao)
{
    m_menu = m_cfg.peloMenu && *m_cfg.peloMenu;
    montaTela();
    if (m_menu) {
        // The menu face keeps the table in a transaction of its own on a new connection.
        HabilitaMenus(true);
        modBancoDados::ConectaBanco(modVRTPLN::ArquivoBanco());
        modBancoDados::IniciaTransacao();
    }
}

AssistenteTabela::~AssistenteTabela()
{
    // A screen destroyed without its closing step leaves nothing half done.
    if (m_menu && !m_fechando && modBancoDados::TransacaoAberta())
        modBancoDados::DesfazTransacao();
}

void AssistenteTabela::montaTela()
{
    setObjectName(m_cfg.nome);
    setWindowTitle(m_cfg.titulo);
    setModal(true);

    auto* principal = new QVBoxLayout(this);

    m_fraFiltro = new QGroupBox(this);
    m_fraFiltro->setObjectName(QStringLiteral("fraFiltro"));
    auto* filtro = new QHBoxLayout(m_fraFiltro);
    m_lblFiltro = new QLabel(QStringLiteral("&Selecione um código"), m_fraFiltro);
    m_lblFiltro->setObjectName(QStringLiteral("lblFiltro"));
    // NCM and currency codes are digits in a masked box; a product code is free text without the special
    // characters. Either selects its whole text when it gets the focus.
    if (m_cfg.filtroSoDigitos)
        m_txtCodigo = new MaskedField(QString(m_cfg.tamanhoFiltro, QLatin1Char('#')), QStringLiteral("txtCodigo"),
                                      m_fraFiltro);
    else
        m_txtCodigo = &(new TextField(QStringLiteral("txtCodigo"), m_cfg.tamanhoFiltro, m_fraFiltro))
                           ->refuseSpecialCharacters()
                           .setSelectAllOnFocus();
    m_lblFiltro->setBuddy(m_txtCodigo);
    m_cmdFiltro = botao(QStringLiteral("cmdFiltro"), QStringLiteral("A&plicar"), m_fraFiltro);
    // The field as wide as the longest code it takes.
    m_txtCodigo->setFixedWidth(m_txtCodigo->fontMetrics().horizontalAdvance(QString(m_cfg.tamanhoFiltro + 3, QLatin1Char('W'))));
    filtro->addWidget(m_lblFiltro);
    filtro->addWidget(m_txtCodigo);
    filtro->addWidget(m_cmdFiltro);
    filtro->addStretch(1);
    principal->addWidget(m_fraFiltro);

    m_grade = new ConsultGrid(this);
    m_grade->setObjectName(m_cfg.nomeGrade);
    m_grade->setColumns(colunas());
    m_grade->setEnterActivatesRow(m_cfg.enterComoOk);
    m_grade->setMinimumHeight(260);
    principal->addWidget(m_grade, 1);

    const bool cadastro = m_cfg.peloMenu != nullptr;
    if (cadastro) {
        auto* campos = new QGridLayout;
        m_lblCodigo = new QLabel(m_cfg.rotuloCodigo, this);
        m_lblCodigo->setObjectName(m_cfg.nomeRotuloCodigo);
        // Codes refuse the special characters (the quotes among them), names the apostrophe.
        m_txtCodigoCadastro =
            &(new TextField(m_cfg.nomeCampoCodigo, m_cfg.tamanhoCodigo, this))->refuseSpecialCharacters();
        m_lblCodigo->setBuddy(m_txtCodigoCadastro);
        m_lblDescricao = new QLabel(m_cfg.rotuloDescricao, this);
        m_lblDescricao->setObjectName(m_cfg.nomeRotuloDescricao);
        m_txtDescricaoCadastro =
            &(new TextField(m_cfg.nomeCampoDescricao, m_cfg.tamanhoDescricao, this))->refuseCharacters(QStringLiteral("'"));
        m_lblDescricao->setBuddy(m_txtDescricaoCadastro);
        // Room for the longest code and description the fields take.
        const int largura = fontMetrics().horizontalAdvance(QLatin1Char('W'));
        m_txtCodigoCadastro->setMinimumWidth(largura * (m_cfg.tamanhoCodigo + 2) * 2 / 3);
        m_txtDescricaoCadastro->setMinimumWidth(largura * m_cfg.tamanhoDescricao * 2 / 3);
        campos->addWidget(m_lblCodigo, 0, 0);
        campos->addWidget(m_txtCodigoCadastro, 0, 1, Qt::AlignLeft);
        campos->addWidget(m_lblDescricao, 1, 0);
        campos->addWidget(m_txtDescricaoCadastro, 1, 1);
        campos->setColumnStretch(1, 1);
        principal->addLayout(campos);
    }

    auto* botoes = new QHBoxLayout;
    if (cadastro) {
        m_cmdIncluir = botao(QStringLiteral("cmdIncluir_") + m_cfg.sufixoBotoes, QStringLiteral("&Incluir"), this);
        m_cmdAlterar = botao(QStringLiteral("cmdAlterar_") + m_cfg.sufixoBotoes, QStringLiteral("&Alterar"), this);
        m_cmdExcluir = botao(QStringLiteral("cmdExcluir_") + m_cfg.sufixoBotoes, QStringLiteral("&Excluir"), this);
        botoes->addWidget(m_cmdIncluir);
        botoes->addWidget(m_cmdAlterar);
        botoes->addWidget(m_cmdExcluir);
    }
    botoes->addStretch(1);
    if (m_cfg.destinos) {
        m_cmdOk = botao(QStringLiteral("cmdOk"), QStringLiteral("&Ok"), this);
        botoes->addWidget(m_cmdOk);
    }
    m_cmdCancela = botao(QStringLiteral("cmdCancela"), QStringLiteral("&Cancela"), this);
    botoes->addWidget(m_cmdCancela);
    principal->addLayout(botoes);

    // The two faces.
    if (m_menu) {
        m_fraFiltro->hide();
        if (m_cmdOk) {
            m_cmdOk->hide();
            m_cmdOk->setEnabled(false);
        }
        m_cmdCancela->setText(QStringLiteral("&Fechar"));
        m_cmdAlterar->setEnabled(false);
        m_cmdExcluir->setEnabled(false);
    } else {
        m_fraFiltro->setVisible(m_cfg.filtro);
        if (cadastro) {
            for (QWidget* w : {static_cast<QWidget*>(m_cmdIncluir), static_cast<QWidget*>(m_cmdAlterar),
                               static_cast<QWidget*>(m_cmdExcluir), static_cast<QWidget*>(m_lblCodigo),
                               static_cast<QWidget*>(m_lblDescricao), static_cast<QWidget*>(m_txtCodigoCadastro),
                               static_cast<QWidget*>(m_txtDescricaoCadastro)})
                w->hide();
        }
    }

    connect(m_cmdFiltro, &QPushButton::clicked, this, &AssistenteTabela::cmdFiltro_Click);
    connect(m_cmdCancela, &QPushButton::clicked, this, &AssistenteTabela::reject);
    if (m_cmdOk)
        connect(m_cmdOk, &QPushButton::clicked, this, &AssistenteTabela::cmdOk_Click);
    if (cadastro) {
        connect(m_cmdIncluir, &QPushButton::clicked, this, &AssistenteTabela::cmdIncluir_Click);
        connect(m_cmdAlterar, &QPushButton::clicked, this, &AssistenteTabela::cmdAlterar_Click);
        connect(m_cmdExcluir, &QPushButton::clicked, this, &AssistenteTabela::cmdExcluir_Click);
    }
    connect(m_grade, &ConsultGrid::rowChosen, this, &AssistenteTabela::selecionaLinha);
    connect(m_grade, &ConsultGrid::escapePressed, this, &AssistenteTabela::reject);
    connect(m_grade, &ConsultGrid::rowActivated, this, [this](int) {
        if (m_cmdOk && m_cmdOk->isEnabled())
            cmdOk_Click();
    });
    defineTeclas();
    resize(m_menu ? 640 : 720, 480);
}

QList<ConsultGrid::Column> AssistenteTabela::colunas() const
{
    // The code column holds the longest code whole: its display mask, its digits, or capitals.
    QString amostra = m_cfg.formatoCodigo;
    amostra.replace(QLatin1Char('@'), QLatin1Char('0'));
    if (amostra.isEmpty())
        amostra = m_cfg.filtroSoDigitos ? QString(m_cfg.tamanhoFiltro, QLatin1Char('0'))
                                        : QString(qMax(m_cfg.tamanhoCodigo, m_cfg.filtro ? m_cfg.tamanhoFiltro : 0),
                                                  QLatin1Char('W'));
    QList<ConsultGrid::Column> lista{{QStringLiteral("chave"), 0, Qt::AlignLeft | Qt::AlignVCenter}};
    const bool picker = !m_menu;
    const int larguras[] = {picker ? 130 : 110, picker ? 470 : 380, 220};
    // The description (column 1) wraps: a long NCM or product description is read whole in its row.
    for (int i = 0; i < m_cfg.titulos.size(); ++i)
        lista.append({m_cfg.titulos.at(i), larguras[qMin(i, 2)], Qt::AlignLeft | Qt::AlignVCenter,
                      i == 0 ? amostra : QString(), i == 1});
    return lista;
}

// Ok is the default button of a picker; Enter in the filter applies it and goes to the list; Escape leaves as
// Cancela does (QDialog's own); Tab goes from the list to the fields and buttons.
void AssistenteTabela::defineTeclas()
{
    setProperty("paginaAjuda", m_cfg.paginaAjuda);
    if (m_cmdOk && !m_menu)
        m_cmdOk->setDefault(true);
    m_txtCodigo->installEventFilter(this);
    if (m_txtCodigoCadastro) {
        const QList<QWidget*> ordem{m_grade,    m_txtCodigoCadastro, m_txtDescricaoCadastro, m_cmdIncluir,
                                    m_cmdAlterar, m_cmdExcluir,       m_cmdCancela};
        for (int i = 1; i < ordem.size(); ++i)
            setTabOrder(ordem.at(i - 1), ordem.at(i));
    }
}

bool AssistenteTabela::eventFilter(QObject* objeto, QEvent* evento)
{
    if (objeto == m_txtCodigo && evento->type() == QEvent::KeyPress) {
        const int tecla = static_cast<QKeyEvent*>(evento)->key();
        if (tecla == Qt::Key_Return || tecla == Qt::Key_Enter) {
            cmdFiltro_Click();
            m_grade->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    return QDialog::eventFilter(objeto, evento);
}

void AssistenteTabela::defineFiltro(const QString& filtro)
{
    m_txtCodigo->setText(filtro);
}

void AssistenteTabela::showEvent(QShowEvent* evento)
{
    QDialog::showEvent(evento);
    if (!m_ativado) {
        m_ativado = true;
        // Centred in the window of whoever called it (the main window, or an editor inside it).
        if (QWidget* principal = parentWidget() ? parentWidget()->window() : nullptr; principal && principal->isVisible())
            move(principal->frameGeometry().center() - QPoint(frameGeometry().width() / 2, frameGeometry().height() / 2));
        // The list is read when the screen comes to the front, once the dialog's own loop runs.
        QTimer::singleShot(0, this, &AssistenteTabela::aoAtivar);
    }
}

void AssistenteTabela::aoAtivar()
{
    carregaGrade();
    if (!m_menu && m_grade->dataRowCount() == 0 && m_cfg.destinos) {
        MsgBox(m_cfg.textoNaoEncontrado, Msg::Critical);
        done(QDialog::Rejected);
        return;
    }
    QWidget* foco = m_fraFiltro->isVisible() ? static_cast<QWidget*>(m_txtCodigo) : m_grade;
    foco->setFocus(Qt::OtherFocusReason);
    if (foco == m_txtCodigo)
        m_txtCodigo->selectAll();
}

void AssistenteTabela::carregaGrade()
{
    const QString filtro = m_txtCodigo->text().trimmed();
    // The filter is a prefix of the code; the menu face lists the whole table.
    const bool filtra = m_cfg.filtro && !m_menu && !filtro.isEmpty();
    QList<QStringList> linhas;
    for (const QStringList& lida : Cadastros::Lista(m_cfg.tabela, filtra ? filtro : QString())) {
        const QString& codigo = lida.at(0);
        QStringList linha{codigo,
                          m_cfg.formatoCodigo.isEmpty() ? codigo : Funcoes::FormataMascara(codigo, m_cfg.formatoCodigo),
                          lida.at(1)};
        if (lida.size() > 2)
            linha << lida.at(2);
        linhas << linha;
    }
    m_grade->setRows(linhas);
    // The maintenance face opens with no row highlighted: a highlighted row would look chosen while the fields
    // are empty and Alterar is off.
    if (m_menu)
        m_grade->clearCurrentRow();
    if (m_cmdOk && !m_menu)
        m_cmdOk->setEnabled(!linhas.isEmpty());
    if (m_cmdAlterar) {
        m_cmdAlterar->setEnabled(false);
        m_cmdExcluir->setEnabled(false);
    }
}

void AssistenteTabela::selecionaLinha(int linha)
{
    if (linha < 0 || !m_txtCodigoCadastro)
        return;
    m_txtCodigoCadastro->setText(m_grade->cellText(linha, ColunaChave));
    m_txtDescricaoCadastro->setText(m_grade->cellText(linha, ColunaNome));
    m_chaveAntiga = m_grade->cellText(linha, ColunaChave);
    if (m_menu) {
        m_cmdAlterar->setEnabled(true);
        m_cmdExcluir->setEnabled(true);
    }
}

void AssistenteTabela::limpaCampos()
{
    m_txtCodigoCadastro->clear();
    m_txtDescricaoCadastro->clear();
    m_chaveAntiga.clear();
}

void AssistenteTabela::cmdFiltro_Click()
{
    carregaGrade();
}

void AssistenteTabela::cmdOk_Click()
{
    const int linha = m_grade->currentRow();
    if (linha < 0 || !m_cfg.destinos || !m_cfg.chamador)
        return;
    m_cfg.destinos->entrega(*m_cfg.chamador, m_grade->cellText(linha, ColunaChave),
                            m_cfg.tabela.colunaComplemento.isEmpty() ? m_grade->cellText(linha, ColunaNome)
                                                              : m_grade->cellText(linha, ColunaComplemento));
    accept();
}

bool AssistenteTabela::validaCampos()
{
    if (m_txtCodigoCadastro->text().trimmed().isEmpty()) {
        MsgBox(m_cfg.textoCodigoVazio, Msg::Critical, TituloPadrao);
        m_txtCodigoCadastro->setFocus();
        return false;
    }
    if (m_txtDescricaoCadastro->text().trimmed().isEmpty()) {
        MsgBox(m_cfg.textoDescricaoVazia, Msg::Critical, TituloPadrao);
        m_txtDescricaoCadastro->setFocus();
        return false;
    }
    return true;
}

bool AssistenteTabela::codigoJaIncluido(const QString& codigo) const
{
    return Cadastros::Existe(m_cfg.tabela, codigo);
}

void AssistenteTabela::cmdIncluir_Click()
{
    if (!validaCampos())
        return;
    const QString codigo = m_txtCodigoCadastro->text();
    if (codigoJaIncluido(codigo)) {
        MsgBox(m_cfg.textoDuplicado, Msg::Critical, TituloPadrao);
        m_txtCodigoCadastro->setFocus();
        return;
    }
    AlteracaoPendente = true;
    Cadastros::Inclui(m_cfg.tabela, codigo, m_txtDescricaoCadastro->text());
    carregaGrade();
    limpaCampos();
}

void AssistenteTabela::cmdAlterar_Click()
{
    if (!validaCampos())
        return;
    const QString codigo = m_txtCodigoCadastro->text();
    // With the code unchanged there is nothing to search.
    if (codigo != m_chaveAntiga && codigoJaIncluido(codigo)) {
        MsgBox(m_cfg.textoDuplicado, Msg::Critical, TituloPadrao);
        m_txtCodigoCadastro->setFocus();
        return;
    }
    AlteracaoPendente = true;
    Cadastros::Altera(m_cfg.tabela, m_chaveAntiga, codigo, m_txtDescricaoCadastro->text());
    carregaGrade();
    limpaCampos();
}

void AssistenteTabela::cmdExcluir_Click()
{
    if (MsgBox(QStringLiteral("Deseja realmente excluir?"), Msg::YesNo | Msg::Information, TituloPadrao) != Msg::Yes)
        return;
    AlteracaoPendente = true;
    Cadastros::Exclui(m_cfg.tabela, m_txtCodigoCadastro->text());
    carregaGrade();
    limpaCampos();
}

bool AssistenteTabela::passoFechamento()
{
    if (AlteracaoPendente) {
        const int resposta = MsgBox(QStringLiteral("Deseja salvar as alterações?"),
                                    Msg::YesNoCancel | Msg::Information, TituloPadrao);
        if (resposta == Msg::Cancel)
            return false;
        if (resposta == Msg::Yes)
            modBancoDados::ConfirmaTransacao();
        else
            modBancoDados::DesfazTransacao();
        AlteracaoPendente = false;
    } else {
        modBancoDados::DesfazTransacao();
    }
    return true;
}

void AssistenteTabela::reject()
{
    if (m_menu && !m_fechando) {
        if (!passoFechamento())
            return;
        m_fechando = true;
        // The unload step of the menu face.
        HabilitaMenus(false);
        ZeraTelaAtual();
    }
    QDialog::reject();
}
