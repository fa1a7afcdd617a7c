#include "gui/assistants/frmAssistenteVRT.h"

#include "core/lookups/ListaDeclaracoes.h"
#include "gui/assistants/PainelCopiaVrt.h"
#include "gui/assistants/frmManipulaArquivo.h"
#include "core/session/MsgBox.h"
#include "gui/screens/Telas.h"
#include "core/session/modVRTPLN.h"
#include "core/store/Cadastros.h"
#include "core/store/modBancoDados.h"
#include "gui/widgets/ConsultGrid.h"
#include "gui/widgets/OkCancelRow.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const char* const Legendas[] = {"Abrir VRT", "Eliminar VRT", "Copiar VRT", "Gravar para Transmissão",
                                "Gravar Backup"};

}  // namespace

frmAssistenteVRT::frmAssistenteVRT(QWidget* pai) : TelaFilha(pai)
{
    setObjectName(QStringLiteral("frmAssistenteVRT"));
    setWindowTitle(QString::fromUtf8(Legendas[Abrir]));
    // At opening the identifier's column holds "DESC", the others nothing.
    m_direcao = {QStringLiteral("DESC"), QString(), QString(), QString()};

    auto* principal = new QVBoxLayout(this);
    fraAssistenteVRT = new QGroupBox(this);
    fraAssistenteVRT->setObjectName(QStringLiteral("fraAssistenteVRT"));
    auto* quadro = new QVBoxLayout(fraAssistenteVRT);
    grdAssistenteVRT = new ConsultGrid(fraAssistenteVRT);
    grdAssistenteVRT->setObjectName(QStringLiteral("grdAssistenteVRT"));
    grdAssistenteVRT->setMultiSelection(true);
    const QStringList titulos = ListaDeclaracoes::Titulos();
    const int larguras[] = {95, 135, 80, 75, 115, 140, 110, 90};
    // The widest value of each column, so that none is cut.
    const char* const amostras[] = {"000000/00", "00.000.000/0000-00", "00/00/0000", "Individual",
                                    "00/0000",   "000000",             "WWWWW",      "Retificadora"};
    QList<ConsultGrid::Column> colunas;
    for (int i = 0; i < titulos.size(); ++i)
        colunas.append({titulos.at(i), larguras[i], Qt::AlignLeft | Qt::AlignVCenter, QString::fromUtf8(amostras[i])});
    grdAssistenteVRT->setColumns(colunas);
    grdAssistenteVRT->setMinimumSize(870, 300);
    quadro->addWidget(grdAssistenteVRT);
    principal->addWidget(fraAssistenteVRT, 1);
    FraAssistenteVRT_Copia = new PainelCopiaVrt(this);
    principal->addWidget(FraAssistenteVRT_Copia, 1);
    connect(FraAssistenteVRT_Copia, &PainelCopiaVrt::fechado, this, &frmAssistenteVRT::fechaCopia);

    principal->addLayout(okCancelRow(this, cmdOk, cmdCancela));
    // Enter works as Ok, on the list too; Escape as Cancela.
    grdAssistenteVRT->setEnterActivatesRow(true);
    teclasOkCancela(this, cmdOk, cmdCancela);
    setProperty("paginaAjuda", QStringLiteral("escolha.html"));

    connect(grdAssistenteVRT, &ConsultGrid::titleClicked, this, &frmAssistenteVRT::grdAssistenteVRT_HeadClick);
    connect(grdAssistenteVRT, &ConsultGrid::rowActivated, this, &frmAssistenteVRT::grdAssistenteVRT_DblClick);
    connect(cmdOk, &QPushButton::clicked, this, &frmAssistenteVRT::grdAssistenteVRT_DblClick);
    connect(cmdCancela, &QPushButton::clicked, this, &frmAssistenteVRT::fecha);
    connect(grdAssistenteVRT, &ConsultGrid::escapePressed, this, &frmAssistenteVRT::fecha);

    // The main window centres the screen as it opens it. The newest identifier on top within a year.
    carregaLista(ListaDeclaracoes::Identificacao, QStringLiteral("DESC"));
}

void frmAssistenteVRT::FuncaoForm(int acao)
{
    if (acao < Abrir || acao > GravarBackup)
        return;
    m_acao = acao;
    setWindowTitle(QString::fromUtf8(Legendas[acao]));
    AtualizaBarraStatus();
}

void frmAssistenteVRT::carregaLista(int coluna, const QString& direcao)
{
    const QList<QStringList> linhas = ListaDeclaracoes::Lista(coluna, direcao);
    grdAssistenteVRT->setRows(linhas);
    // With no rows the list and Ok are off; Cancela stays.
    grdAssistenteVRT->setEnabled(!linhas.isEmpty());
    cmdOk->setEnabled(!linhas.isEmpty());
}

void frmAssistenteVRT::grdAssistenteVRT_HeadClick(int coluna)
{
    if (ListaDeclaracoes::ColunaOrdenacao(coluna).isEmpty()) {
        MsgBox(QStringLiteral("Esta coluna não pode ser reclassificada!"), Msg::Critical);
        return;
    }
    // A first click on any column but the identifier sorts descending.
    m_direcao[coluna] = m_direcao.at(coluna) == QLatin1String("DESC") ? QStringLiteral("ASC") : QStringLiteral("DESC");
    carregaLista(coluna, m_direcao.at(coluna));
}

void frmAssistenteVRT::grdAssistenteVRT_DblClick()
{
    // An action on an empty list is ignored.
    if (grdAssistenteVRT->dataRowCount() == 0 || grdAssistenteVRT->currentRow() < 0)
        return;
    const QString identificacao = grdAssistenteVRT->currentText(ListaDeclaracoes::Identificacao).trimmed();
    switch (m_acao) {
    case Abrir:
        abre(identificacao, grdAssistenteVRT->currentText(ListaDeclaracoes::Tipo));
        break;
    case Eliminar:
        elimina(identificacao);
        break;
    case GravarTransmissao:
    case GravarBackup:
        grava(identificacao);
        break;
    case Copiar:
        abreCopia();
        break;
    default:
        break;
    }
}

void frmAssistenteVRT::abre(const QString& identificacao, const QString& tipo)
{
    IdVrtAbrir = identificacao;
    DefinePainelStatus(2, QString());
    const bool individual = tipo == QLatin1String("Individual");
    const int tela = individual ? modVRTPLN::Individual : modVRTPLN::Mensal;
    AbreTelaComFuncao(tela, individual ? FuncaoEditor::AbrirIndividual : FuncaoEditor::AbrirMensal);
}

void frmAssistenteVRT::elimina(const QString& identificacao)
{
    if (MsgBox(QStringLiteral("Deseja realmente eliminar essa VRT ?"),
               Msg::YesNo | Msg::Question | Msg::DefaultButton2)
        != Msg::Yes)
        return;
    // Its own transaction on a fresh connection; the cascades of the schema take every row of the declaration.
    modBancoDados::ConectaBanco(modVRTPLN::ArquivoBanco());
    Cadastros::ExcluiVrt(identificacao);
    // Ascending by identifier, whatever the order was; the stored directions are left as they were.
    carregaLista(ListaDeclaracoes::Identificacao, QString());
}

void frmAssistenteVRT::grava(const QString& identificacao)
{
    frmManipulaArquivo::IdVrtEscolhida = identificacao;
    QStringList escolhidas;
    for (const QString& id : grdAssistenteVRT->pickedTexts(ListaDeclaracoes::Identificacao))
        escolhidas << id.trimmed();
    frmManipulaArquivo::VrtsSelecionadas = escolhidas;
    const QString legenda = QString::fromUtf8(Legendas[m_acao]);
    AbreTelaArquivo(QStringLiteral("NAO"), legenda);
}

void frmAssistenteVRT::fecha()
{
    if (auto* janela = qobject_cast<QMdiSubWindow*>(parentWidget()))
        janela->close();
    else
        close();
}

void frmAssistenteVRT::abreCopia()
{
    const auto coluna = [this](int c) { return grdAssistenteVRT->currentText(c); };
    FraAssistenteVRT_Copia->abre(coluna(ListaDeclaracoes::Identificacao).trimmed(), coluna(ListaDeclaracoes::Tipo),
                                 coluna(ListaDeclaracoes::Internador), coluna(ListaDeclaracoes::Criacao));
    fraAssistenteVRT->setEnabled(false);
    fraAssistenteVRT->hide();
    cmdOk->hide();
    cmdCancela->hide();
}

// After a copy or a cancel: the list again, ascending by identifier.
void frmAssistenteVRT::fechaCopia()
{
    fraAssistenteVRT->setEnabled(true);
    fraAssistenteVRT->show();
    cmdOk->show();
    cmdCancela->show();
    cmdCancela->setEnabled(true);
    carregaLista(ListaDeclaracoes::Identificacao, QString());
}
